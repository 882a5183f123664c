#pragma once

#include "QuorConversions/core/QuorObject.h"
#include "QuorIniFile/INIFile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace QuorConversions {

/// The key of one element of an indexed value: "Coefficients" and 3 make "Coefficients3". It allocates
/// nothing: many probes have many keys. `name` is one of RecordNames.h, with at most mostLetters.
class IndexedKey {
public:
    IndexedKey(const wchar_t* name, std::int32_t index);
    operator std::wstring_view() const { return {m_text.data(), m_length}; } // NOLINT: it is a text

private:
    static constexpr std::size_t mostLetters = 20, mostDigits = 11;
    std::array<wchar_t, mostLetters + mostDigits> m_text{};
    std::size_t m_length = 0;
};

/// The section of a nested record: parent section, " - ", child name.
[[nodiscard]] std::wstring NestedSection(const std::wstring& parent, const wchar_t* child);

/// Writes what one record holds, key by key, into the selected section of an INI-file object. It knows errors
/// of that object from errors of the object that is being written.
class RecordWriter {
public:
    /// Whether what fails in a nested record is reported by that record, or raised.
    enum class Failures : std::uint8_t { Reported, Raised };

    RecordWriter(std::shared_ptr<INIFile> iniFile, std::wstring section, const wchar_t* source,
                 Failures failures = Failures::Reported);

    void Text(const wchar_t* key, const std::wstring& value);
    /// Codes and counts are 16-bit values in a file. Raises 6 "Overflow" for one that does not fit.
    void Integer(const wchar_t* key, std::int32_t value);
    void Double(std::wstring_view key, double value);
    void Boolean(const wchar_t* key, bool value);
    /// Writes a nested record into its own section. The selected section is another one afterwards, so nested
    /// records come last.
    void Nested(const wchar_t* name, const QuorObject& child);

    /// Whether the INI-file object has raised an error.
    [[nodiscard]] bool StoreFailed() const { return m_storeFailed; }

private:
    template <class Operation>
    void Store(Operation operation);

    std::shared_ptr<INIFile> m_iniFile;
    std::wstring m_section; // a copy: host code that runs inside a message box may change the caller's
    const wchar_t* m_source;
    Failures m_failures;
    bool m_storeFailed = false;
};

/// Reads what one record holds, key by key. Each read is given the object's current value and returns what
/// the store left in it, so a missing key changes nothing; it marks the record as failed and the reading goes
/// on.
class RecordReader {
public:
    RecordReader(std::shared_ptr<INIFile> iniFile, std::wstring section);

    [[nodiscard]] std::wstring Text(const wchar_t* key, std::wstring current);
    [[nodiscard]] std::int32_t Integer(const wchar_t* key, std::int32_t current);
    /// A count: always within 16 bits, as its current value is.
    [[nodiscard]] std::int16_t Count(const wchar_t* key, std::int16_t current);
    [[nodiscard]] double Double(std::wstring_view key, double current);
    [[nodiscard]] bool Boolean(const wchar_t* key, bool current);
    void Nested(const wchar_t* name, QuorObject& child);

    void Fail() { m_failed = true; }
    [[nodiscard]] bool Failed() const { return m_failed; }

private:
    std::shared_ptr<INIFile> m_iniFile;
    std::wstring m_section; // a copy: host code that runs inside a message box may change the caller's
    bool m_failed = false;
};

} // namespace QuorConversions
