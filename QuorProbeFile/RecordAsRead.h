#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorProbeFile/Export.h"

#include <memory>
#include <string>
#include <utility>

namespace QuorProbeFile {

/// The record of a probe as a conversion was read from it (ReadOutcome::record), or as ProbeFile::Record
/// finds it: what ProbeFile::WriteChanges compares the conversion with. A host keeps one beside each
/// conversion that it may change. It holds the text of the record, no file; copies share it.
class QUORPROBEFILE_EXPORT RecordAsRead {
public:
    /// Of no probe.
    RecordAsRead() = default;

    /// The section of the probe; empty for one of no probe.
    [[nodiscard]] const std::wstring& Section() const;
    /// Whether `conversion` is of another type, or has other values, than the conversion had that was read,
    /// or that WriteChanges has written last. True for one of no probe.
    [[nodiscard]] bool IsChanged(const QuorConversions::CQuorConversion& conversion) const;

    /// Whether a conversion would read the same values from the other one, miss the same keys, and all other
    /// lines are the same: values that cannot be read, those that a settings object which refuses the record
    /// does not come to, and keys of others. How a number is written, comments and "Version" do not count. Of
    /// two of no probe as well.
    [[nodiscard]] bool HasSameValues(const RecordAsRead& other) const;

private:
    friend class ProbeFile;
    struct State;
    explicit RecordAsRead(std::shared_ptr<const State> state) : m_state(std::move(state)) {}

    std::shared_ptr<const State> m_state;
};

} // namespace QuorProbeFile
