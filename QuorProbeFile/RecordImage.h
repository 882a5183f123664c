#pragma once

#include "QuorConversions/core/SettingsObject.h"
#include "QuorIniFile/INIFile.h"
#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/RecordValue.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace QuorProbeFile {

/// A settings record in memory: what the library writes, in that order and with its types, so that a host
/// need not know the keys of any class. It can be read back into an object; a key that it does not have
/// counts as found and leaves the object's value unchanged.
class QUORPROBEFILE_EXPORT RecordImage final : public QuorIniFile::INIFile {
public:
    /// A key of the record with its value.
    struct Entry {
        std::wstring path; ///< the key, with "High Range/" or the like before it in a nested record
        Value value;       ///< its value
    };

    /// All values of `settings`, without "Version".
    [[nodiscard]] static std::shared_ptr<RecordImage> Of(const QuorConversions::SettingsObject& settings);
    /// Puts the values of the image into `settings`.
    static void Apply(std::shared_ptr<RecordImage> image, QuorConversions::SettingsObject& settings);
    /// Whether two images have the same values under the same paths, in the same order.
    [[nodiscard]] static bool Same(const RecordImage& a, const RecordImage& b);

    /// All keys, in the order of the record.
    [[nodiscard]] const std::vector<Entry>& Entries() const { return m_entries; }
    /// The entry with that path, ignoring case; null if there is none.
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

} // namespace QuorProbeFile
