#pragma once

#include "QuorProbeFile/ProbeProblem.h"
#include "QuorProbeFile/detail/ReadLog.h"
#include "QuorProbeFile/detail/RecordReading.h"

#include <string>
#include <vector>

namespace QuorProbeFile {

/// A value of a record that can hardly be meant.
struct RecordWarning {
    EProbeProblem kind;
    const ReadLog::Read* read; ///< of the reading; the first of several values
    ProbePhrase phrase;
};

/// The warnings of a record of a known type that the library has read to its end, in the order of its keys.
[[nodiscard]] std::vector<RecordWarning> WarningsOf(const RecordReading& reading);

} // namespace QuorProbeFile
