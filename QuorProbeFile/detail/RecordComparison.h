#pragma once

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/INIFile.h"
#include "QuorProbeFile/detail/ReadLog.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

/// Takes what a settings object writes, and says whether it has taken over the values that were read, each
/// key in its turn. It keeps nothing: a record of which this is true needs no closer look.
class RecordComparison final : public QuorIniFile::INIFile {
public:
    /// The reads of a record begin with `first`.
    RecordComparison(const std::vector<ReadLog::Read>& reads, std::size_t first)
        : m_reads(reads), m_next(first) {}

    /// Whether everything that was read has been written again, with the same values.
    [[nodiscard]] bool IsSame() const { return m_isSame && m_next == m_reads.size(); }

    void SetFileName(std::wstring_view /*fileName*/) override {}
    void SetSection(std::wstring_view section) override { m_section = section; }
    [[nodiscard]] bool ReadBoolean(std::wstring_view /*key*/, bool& /*value*/) override { return false; }
    [[nodiscard]] bool ReadDouble(std::wstring_view /*key*/, double& /*value*/) override { return false; }
    [[nodiscard]] bool ReadInteger(std::wstring_view /*key*/, std::int16_t& /*value*/) override {
        return false;
    }
    [[nodiscard]] bool ReadString(std::wstring_view /*key*/, std::wstring& /*value*/) override {
        return false;
    }
    void WriteBoolean(std::wstring_view key, bool value) override { Compare(key, value); }
    void WriteDouble(std::wstring_view key, double value, std::wstring_view /*comment*/) override {
        Compare(key, value);
    }
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view /*comment*/) override {
        Compare(key, value);
    }
    void WriteString(std::wstring_view key, std::wstring_view value) override {
        if (key != QuorConversions::versionKey) // nobody reads it
            Compare(key, std::wstring(value));
    }

private:
    template <class T>
    void Compare(std::wstring_view key, const T& value) {
        const ReadLog::Read* const read = m_next < m_reads.size() ? &m_reads[m_next++] : nullptr;
        m_isSame = m_isSame && read && read->found && read->section == m_section && read->key == key &&
                   SameValue(read->value, value);
    }

    const std::vector<ReadLog::Read>& m_reads;
    std::size_t m_next;
    std::wstring m_section;
    bool m_isSame = true;
};

} // namespace QuorProbeFile
