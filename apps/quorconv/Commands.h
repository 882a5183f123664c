#pragma once

#include "QuorConversions/platform/Platform.h"
#include "QuorProbeFile/ProbeProblem.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quorconv {

/// A wish that cannot be fulfilled; its text says why, with file, section and key where there is one. The
/// program prints it, each reason on a line of its own below it, and ends with 1.
struct Problem {
    std::wstring text;
    std::vector<std::wstring> reasons = {};
};

/// A KEY=VALUE of the command line.
struct Assignment {
    std::wstring key;
    std::wstring value;
};

// The commands. Each prints its results on the standard output and raises Problem or QuorError
// (ProbeFileError too) when it cannot do what it is asked; nothing has been written then.

void ListTypes();
void ListProbes(const std::wstring& path);
/// Without a section: every probe.
void ShowProbes(const std::wstring& path, const std::wstring* section, bool asJson);
void NewProbe(const std::wstring& path, const std::wstring& section, const std::wstring& typeText,
              const std::vector<Assignment>& assignments);
void SetValues(const std::wstring& path, const std::wstring& section,
               const std::vector<Assignment>& assignments);
void CopyProbe(const std::wstring& fromPath, const std::wstring& fromSection, const std::wstring& toPath,
               const std::wstring& toSection);
/// Opens the dialog of the probe and plays the script in it, a file; `show` prints the dialog as it opens,
/// and without a script that is all. What was accepted is written.
void EditProbe(const std::wstring& path, const std::wstring& section, const std::wstring* scriptPath,
               bool show);
/// Opens the dialog of the probe on the screen of `platform`. What was accepted is written.
void EditProbeOn(const std::shared_ptr<QuorConversions::Platform>& platform, const std::wstring& path,
                 const std::wstring& section);
/// Why a record cannot be read: what the library has said, and the keys.
[[nodiscard]] std::vector<std::wstring> Reasons(const std::vector<std::wstring>& messages,
                                                const std::vector<QuorProbeFile::ProbeProblem>& problems);
/// What a check makes of warnings (ProbeWarning.h).
struct WarningChoice {
    bool isStrict = false;          ///< they count as problems
    std::set<std::wstring> ignored; ///< the ids of those that are not told
};
/// Prints each problem of each file as "file:line: [section] key: what is wrong", warnings with their ids;
/// true when there is no problem but warnings, or with `isStrict` nothing at all.
[[nodiscard]] bool CheckFiles(const std::vector<std::wstring>& files, const WarningChoice& warnings);

} // namespace quorconv
