#pragma once

#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeProblem.h"

#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

/// A kind of warning of ProbeFile::Check, about a record that is readable but has values that no thermometer
/// has, or about settings that no probe reads. docs/checks.md has the same as a table.
struct ProbeWarning {
    EProbeProblem kind;  ///< its number
    std::wstring id;     ///< a short name that never changes, by which users silence it: "r0-not-positive"
    std::wstring what;   ///< the values that are checked
    std::wstring limit;  ///< what they should be: "above 0", "0.0037 to 0.004"
    std::wstring source; ///< where the limit comes from
    double least = 0.0;  ///< of a limit that is an interval, in the unit of the value, inclusive
    double most = 0.0;   ///< likewise; both are 0 if the limit is not an interval
};

/// All warnings, by their numbers.
[[nodiscard]] QUORPROBEFILE_EXPORT const std::vector<ProbeWarning>& Warnings();
/// The warning with that number; null if there is none.
[[nodiscard]] QUORPROBEFILE_EXPORT const ProbeWarning* FindWarning(EProbeProblem kind);
/// The warning with exactly that id; null if there is none.
[[nodiscard]] QUORPROBEFILE_EXPORT const ProbeWarning* FindWarning(std::wstring_view id);

} // namespace QuorProbeFile
