#pragma once

#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeProblem.h"

#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

/// One of the warnings of ProbeFile::Check. It concerns a record that can be read: nothing refuses its
/// values, and no thermometer has such ones. docs/checks.md has the same as a table.
struct ProbeWarning {
    EProbeProblem kind;
    std::wstring id;     ///< a short word that stays, by which a user silences it: "r0-not-positive"
    std::wstring what;   ///< the values that are looked at
    std::wstring limit;  ///< what they have to be: "above 0", "0.0037 to 0.004"
    std::wstring source; ///< where the limit comes from
    double least = 0.0;  ///< of a limit that is an interval, in the unit of the value; it belongs to it
    double most = 0.0;   ///< likewise; both are 0 where the limit is no interval
};

/// All warnings, by their numbers.
[[nodiscard]] QUORPROBEFILE_EXPORT const std::vector<ProbeWarning>& Warnings();
/// The warning of that number; null when there is none.
[[nodiscard]] QUORPROBEFILE_EXPORT const ProbeWarning* FindWarning(EProbeProblem kind);
/// The warning of that id, exactly; null when there is none.
[[nodiscard]] QUORPROBEFILE_EXPORT const ProbeWarning* FindWarning(std::wstring_view id);

} // namespace QuorProbeFile
