#pragma once

#include "QuorProbeFile/ProbeEntry.h"
#include "QuorProbeFile/ProbeProblem.h"
#include "QuorProbeFile/RecordAsRead.h"
#include "QuorProbeFile/detail/KeptValues.h"

#include <memory>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// What a RecordAsRead knows.
struct RecordAsRead::State {
    ProbeEntry probe; ///< of the type that it was read as
    std::string text; ///< of its sections, as they stood in the file
    /// What made the settings object give up reading it; a read gives default values then. Else empty.
    std::vector<ProbeProblem> refusal;
    std::vector<std::wstring> messages; ///< of the settings object about that
    KeptValues::Values read;            ///< what WriteChanges has written into the record since
    /// All values that a conversion has that was neither changed since it was read nor since WriteChanges has
    /// written it. Without any, those that a read of the text gives; of a refused record the default values.
    KeptValues::Values held;

    /// The record, with what was written.
    [[nodiscard]] std::shared_ptr<KeptValues> Record() const;
    /// What an unchanged conversion writes.
    [[nodiscard]] std::shared_ptr<KeptValues> Unchanged() const;
};

/// Writes a record, into sections that begin with `section`. Raises what the conversion raises.
void WriteRecordTo(const std::shared_ptr<QuorIniFile::INIFile>& to, const std::wstring& section,
                   const QuorConversions::CQuorConversion& conversion, bool standAlone);

} // namespace QuorProbeFile
