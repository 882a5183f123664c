#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace QuorIniFile {

class IniText;

/// Reads values from the text of an INI file, or from a part of it, in memory, by the rules of IniStore: for
/// hosts that keep an earlier state of a file (IniStore::Text).
///
/// Names of sections and keys ignore the case of ASCII letters; of duplicates the first counts. The only
/// error is lack of memory, std::bad_alloc.
class QUORINIFILE_EXPORT IniTextReader {
public:
    /// A reader of `text`, which is UTF-8 or Latin-1.
    explicit IniTextReader(std::string text);
    IniTextReader(const IniTextReader&) = delete;
    IniTextReader& operator=(const IniTextReader&) = delete;
    ~IniTextReader();

    /// Reads the value under `key` in `section`. True, and the value in `value`, if the key exists and holds
    /// a value of that type; otherwise False, and `value` is unchanged.
    [[nodiscard]] bool Read(std::wstring_view section, std::wstring_view key, bool& value);
    /// Reads a number.
    [[nodiscard]] bool Read(std::wstring_view section, std::wstring_view key, double& value);
    /// Reads a whole number of 16 bits.
    [[nodiscard]] bool Read(std::wstring_view section, std::wstring_view key, std::int16_t& value);
    /// Reads a text.
    [[nodiscard]] bool Read(std::wstring_view section, std::wstring_view key, std::wstring& value);

private:
    template <class Value>
    bool Take(std::wstring_view section, std::wstring_view key, Value& value);

    std::unique_ptr<IniText> m_text;
};

} // namespace QuorIniFile
