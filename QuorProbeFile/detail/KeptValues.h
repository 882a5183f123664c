#pragma once

#include "QuorIniFile/INIFile.h"
#include "QuorIniFile/IniTextReader.h"
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

/// Values in memory, above the text of a file: reads give the value that was written, and that of the text
/// where none was.
class KeptValues final : public QuorIniFile::INIFile {
public:
    using Values = std::map<std::pair<std::wstring, std::wstring>, Value>; // by section and key

    explicit KeptValues(std::string text = {}, Values written = {})
        : m_text(std::move(text)), m_written(std::move(written)) {}

    /// What was written.
    [[nodiscard]] const Values& Written() const { return m_written; }

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
    void Keep(std::wstring_view key, Value value) {
        m_written.insert_or_assign({m_section, std::wstring(key)}, std::move(value));
    }
    template <class T>
    bool Give(std::wstring_view key, T& value) {
        const auto written = m_written.find({m_section, std::wstring(key)});
        if (written == m_written.end())
            return m_text.Read(m_section, key, value);
        const T* const found = std::get_if<T>(&written->second);
        if (found)
            value = *found;
        return found != nullptr;
    }

    QuorIniFile::IniTextReader m_text;
    std::wstring m_section;
    Values m_written;
};

} // namespace QuorProbeFile
