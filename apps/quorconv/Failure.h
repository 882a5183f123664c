#pragma once

#include "QuorProbeFile/ProbeProblem.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace quorconv {

/// How the program ends.
enum ExitCode : int {
    fine = 0,
    problemFound = 1, ///< the files are not as they should be, or differ; nothing was written then
    wrongUsage = 2,   ///< the command line is wrong; `diff` ends with it for whatever keeps it from comparing
};

/// A wish that cannot be fulfilled; its text says why, with file, section and key where there is one. The
/// program prints it, each reason on a line of its own below it, and ends with 1.
struct Problem {
    std::wstring text;
    std::vector<std::wstring> reasons = {};
};

/// A mistake in the command line.
struct UsageError {
    std::wstring text;
    std::vector<std::wstring> reasons = {};
};

/// Why a record cannot be read, each reason once: the keys and values that are to blame, or where there are
/// none what the library has said.
[[nodiscard]] std::vector<std::wstring> Reasons(const std::vector<std::wstring>& messages,
                                                const std::vector<QuorProbeFile::ProbeProblem>& problems);

/// What is printed of the exception that is being handled: a text, and its reasons. To be called inside a
/// handler.
[[nodiscard]] Problem CurrentFailure();

/// Prints it on the standard error, behind what was printed before.
void PrintFailure(const Problem& failure, const char* program = "quorconv");

} // namespace quorconv
