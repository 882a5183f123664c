#pragma once

#include "QuorIniFile/INIFile.h"
#include "QuorProbeFile/RecordValue.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace QuorProbeFile {

/// The value of a key of the selected section, of the kind of `kind`, or its text when it is none of that
/// kind; nothing when there is no such key.
[[nodiscard]] std::optional<Value> ReadValue(QuorIniFile::INIFile& file, const std::wstring& key,
                                             const Value& kind);

/// What a file holds of the keys of a record, kept while the file becomes another one.
///
/// A settings object or facade is written to it as to a file: that tells it the keys, whose values it reads
/// from the file then. Nothing is written. Reads give what was kept. Without a file it keeps the values that
/// are written to it.
class KeptValues final : public QuorIniFile::INIFile {
public:
    explicit KeptValues(std::shared_ptr<QuorIniFile::INIFile> file = nullptr) : m_file(std::move(file)) {}

    void SetFileName(std::wstring_view /*fileName*/) override {}
    void SetSection(std::wstring_view section) override { m_section = section; }
    bool ReadBoolean(std::wstring_view key, bool& value) override { return Give(key, value); }
    bool ReadDouble(std::wstring_view key, double& value) override { return Give(key, value); }
    bool ReadInteger(std::wstring_view key, std::int16_t& value) override { return Give(key, value); }
    bool ReadString(std::wstring_view key, std::wstring& value) override { return Give(key, value); }
    void WriteBoolean(std::wstring_view key, bool value) override { Keep(key, value); }
    void WriteDouble(std::wstring_view key, double value, std::wstring_view /*comment*/) override {
        Keep(key, value);
    }
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view /*comment*/) override {
        Keep(key, value);
    }
    void WriteString(std::wstring_view key, std::wstring_view value) override {
        Keep(key, std::wstring(value));
    }

private:
    void Keep(std::wstring_view key, const Value& kind);
    template <class T>
    bool Give(std::wstring_view key, T& value) const {
        const auto kept = m_values.find({m_section, std::wstring(key)});
        const T* const found = kept == m_values.end() ? nullptr : std::get_if<T>(&kept->second);
        if (found)
            value = *found;
        return found != nullptr;
    }

    std::shared_ptr<QuorIniFile::INIFile> m_file;
    std::wstring m_section;
    std::map<std::pair<std::wstring, std::wstring>, Value> m_values; // by section and key
};

} // namespace QuorProbeFile
