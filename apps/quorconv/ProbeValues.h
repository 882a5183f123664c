#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/RecordImage.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorconv {

/// A probe with its values, to be compared.
struct ProbeValues {
    std::wstring section;
    std::int32_t code = 0;
    std::vector<QuorProbeFile::RecordImage::Entry> entries;

    /// Null for a key that the record does not have.
    [[nodiscard]] const QuorProbeFile::Value* Find(const std::wstring& path) const;
};

/// Whether both have the same type and the same values, bit for bit.
[[nodiscard]] bool SameValues(const ProbeValues& a, const ProbeValues& b);

/// The probes of a file, whose values are read when they are asked for: there may be a hundred thousand.
/// Raises Problem for a file of which not all can be read, and for a probe that cannot be read wholly: nobody
/// could tell what differs then.
class ProbeTable {
public:
    explicit ProbeTable(QuorProbeFile::ProbeFile& file);
    /// The probes in the order of the file, as they were when the table was made.
    [[nodiscard]] const std::vector<QuorProbeFile::ProbeEntry>& Probes() const { return m_probes; }
    [[nodiscard]] bool Has(const std::wstring& section) const;
    /// Nothing when there is none of that name.
    [[nodiscard]] std::optional<ProbeValues> Find(const std::wstring& section) const;
    [[nodiscard]] ProbeValues Read(const QuorProbeFile::ProbeEntry& probe) const;

private:
    QuorProbeFile::ProbeFile& m_file;
    std::vector<QuorProbeFile::ProbeEntry> m_probes;
};

/// What has become another value from one record to another of the same type.
struct ValueChange {
    std::wstring key;
    const QuorProbeFile::Value* before; ///< null for one that was not there
    const QuorProbeFile::Value* after;  ///< null for one that is gone
};
[[nodiscard]] std::vector<ValueChange> ChangesOf(const ProbeValues& before, const ProbeValues& after);

} // namespace quorconv
