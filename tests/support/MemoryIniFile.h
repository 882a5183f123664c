#pragma once

#include "QuorIniFile/INIFile.h"

#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace Support {

/// An INI file in memory that tells what was asked of it, a line each and in order:
///     FileName "probe.cvd"            Section "Probe 1"
///     ReadDouble Coefficients0        WriteDouble Coefficients0=100.5 comment ""
/// and that can be made to fail at any of these operations.
class MemoryIniFile : public QuorIniFile::INIFile {
public:
    using Value = std::variant<bool, double, std::int16_t, std::wstring>;

    /// The number of the operation, from 0, that raises 57 "Device I/O error" instead of being done.
    std::size_t failAt = std::numeric_limits<std::size_t>::max();
    /// What a read leaves in the variable when the key is missing; nothing for "as it was".
    bool scribblesOnMissingKeys = false;

    std::vector<std::wstring> operations;
    std::map<std::pair<std::wstring, std::wstring>, Value> values; ///< by section and key

    void Set(const std::wstring& section, const std::wstring& key, Value value);
    void Remove(const std::wstring& section, const std::wstring& key) { values.erase({section, key}); }
    [[nodiscard]] bool Has(const std::wstring& section, const std::wstring& key) const;
    [[nodiscard]] double Double(const std::wstring& section, const std::wstring& key) const;

    void SetFileName(std::wstring_view fileName) override;
    void SetSection(std::wstring_view section) override;
    bool ReadBoolean(std::wstring_view key, bool& value) override;
    bool ReadDouble(std::wstring_view key, double& value) override;
    bool ReadInteger(std::wstring_view key, std::int16_t& value) override;
    bool ReadString(std::wstring_view key, std::wstring& value) override;
    void WriteBoolean(std::wstring_view key, bool value) override;
    void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) override;
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) override;
    void WriteString(std::wstring_view key, std::wstring_view value) override;
    void Hold() override { Operation(L"Hold"); }
    void Release() override { Operation(L"Release"); }

private:
    void Operation(std::wstring line);
    template <class T>
    bool Read(const wchar_t* name, std::wstring_view key, T& value, T scribble);
    void Write(std::wstring line, std::wstring_view key, Value value);

    std::wstring m_section;
};

} // namespace Support
