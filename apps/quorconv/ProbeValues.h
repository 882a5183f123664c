#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/RecordImage.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
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

/// All probes of a file, in its order. Raises Problem for one that cannot be read wholly: nobody could tell
/// what differs then.
class ProbeTable {
public:
    explicit ProbeTable(QuorProbeFile::ProbeFile& file);
    [[nodiscard]] const std::vector<ProbeValues>& Probes() const { return m_probes; }
    /// Null when there is none of that name.
    [[nodiscard]] const ProbeValues* Find(const std::wstring& section) const;

private:
    std::vector<ProbeValues> m_probes;
    std::unordered_map<std::wstring, std::size_t> m_bySection; // folded
};

/// What has become another value from one record to another of the same type.
struct ValueChange {
    std::wstring key;
    const QuorProbeFile::Value* before; ///< null for one that was not there
    const QuorProbeFile::Value* after;  ///< null for one that is gone
};
[[nodiscard]] std::vector<ValueChange> ChangesOf(const ProbeValues& before, const ProbeValues& after);

} // namespace quorconv
