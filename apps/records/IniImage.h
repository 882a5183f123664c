#pragma once

#include "QuorConversions/core/SettingsObject.h"
#include "QuorIniFile/INIFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace ProbeRecords {

/// A value of a record, with the kind that the library gave it.
using Value = std::variant<std::wstring, std::int16_t, double, bool>;

/// How a value stands in a file, but text as it is.
[[nodiscard]] std::wstring ToText(const Value& value);
/// `text` as a value of the kind of `kind`, exactly; nothing when it is not wholly one.
[[nodiscard]] std::optional<Value> ParseAs(const Value& kind, const std::wstring& text);
/// What a text that ParseAs refuses should have been: "is not a number", ...
[[nodiscard]] std::wstring WhatIsWrong(const Value& kind, const std::wstring& text);
/// Bit for bit for numbers, so that -0.0 is not 0.0 and NaN is NaN.
[[nodiscard]] bool SameValue(const Value& a, const Value& b);

/// A settings record in memory: what the library writes, in its order and with its kinds, so that a
/// host knows the keys of no class. It can be read back into an object; a key that it does not hold counts
/// as found and leaves the object's own value.
class IniImage final : public QuorIniFile::INIFile {
public:
    struct Entry {
        std::wstring path; ///< the key; behind "High Range/" or the like in a nested record
        Value value;
    };

    /// All values of `settings`, without "Version".
    [[nodiscard]] static std::shared_ptr<IniImage> Of(const QuorConversions::SettingsObject& settings);
    /// Puts the values of the image into `settings`.
    static void Apply(std::shared_ptr<IniImage> image, QuorConversions::SettingsObject& settings);
    /// Whether two images have the same values under the same paths, in the same order.
    [[nodiscard]] static bool Same(const IniImage& a, const IniImage& b);

    [[nodiscard]] const std::vector<Entry>& Entries() const { return m_entries; }
    /// The entry of a path, in any ASCII case; null when there is none.
    [[nodiscard]] Entry* Find(std::wstring_view path);

    void SetFileName(std::wstring_view fileName) override;
    void SetSection(std::wstring_view section) override;
    bool ReadBoolean(std::wstring_view key, bool& value) override { return Read(key, value); }
    bool ReadDouble(std::wstring_view key, double& value) override { return Read(key, value); }
    bool ReadInteger(std::wstring_view key, std::int16_t& value) override { return Read(key, value); }
    bool ReadString(std::wstring_view key, std::wstring& value) override { return Read(key, value); }
    void WriteBoolean(std::wstring_view key, bool value) override { Write(key, value); }
    void WriteDouble(std::wstring_view key, double value, std::wstring_view /*comment*/) override {
        Write(key, value);
    }
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view /*comment*/) override {
        Write(key, value);
    }
    void WriteString(std::wstring_view key, std::wstring_view value) override {
        Write(key, std::wstring(value));
    }

private:
    template <class T>
    bool Read(std::wstring_view key, T& value) {
        const Entry* const entry = Find(m_prefix + std::wstring(key));
        if (entry && std::holds_alternative<T>(entry->value))
            value = std::get<T>(entry->value);
        return true;
    }
    void Write(std::wstring_view key, Value value);

    std::vector<Entry> m_entries;
    std::unordered_map<std::wstring, std::size_t> m_byPath; ///< a file may claim 32767 coefficients
    std::wstring m_prefix;
};

} // namespace ProbeRecords
