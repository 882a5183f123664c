#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/Records.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorconv {

// What can be done with a probe. Each is to be called inside an edit of the file, and raises Problem or
// ProbeFileError; the edit saves nothing then.

/// The type that a person means, of those that a probe can have.
[[nodiscard]] const QuorProbeFile::TypeInfo& RequireSettingsType(const std::wstring& text);
void NewProbe(QuorProbeFile::ProbeFile& file, const std::wstring& section, const std::wstring& type,
              const std::vector<Assignment>& assignments, const ValueRules& rules);
void SetValues(QuorProbeFile::ProbeFile& file, const std::wstring& section,
               const std::vector<Assignment>& assignments, const ValueRules& rules);
void RenameProbe(QuorProbeFile::ProbeFile& file, const std::wstring& section, const std::wstring& name);
void RetypeProbe(QuorProbeFile::ProbeFile& file, const std::wstring& section, const std::wstring& type,
                 const std::vector<Assignment>& assignments, const ValueRules& rules);
/// Writes a conversion over a probe of another type. Keys of its settings that are no values of either type
/// stay; comments behind the values go with these.
void WriteRetyped(QuorProbeFile::ProbeFile& file, const std::wstring& section,
                  const QuorConversions::CQuorConversion& conversion);
/// Over a probe that stands there only with `replaces`. The keys that no record has stay behind.
void CopyProbe(QuorProbeFile::ProbeFile& from, const std::wstring& section, QuorProbeFile::ProbeFile& to,
               const std::wstring& name, bool replaces);

/// Copies what CopyProbe leaves behind: keys of the probe's own, and values beyond a count. By the sections
/// of the probes, with those that they were copied to. What stands in `but` as "section/key" stays behind.
void CopyOtherKeys(QuorProbeFile::ProbeFile& from, const QuorProbeFile::NameMap<std::wstring>& copied,
                   QuorProbeFile::ProbeFile& to, const QuorProbeFile::NameSet& but = {});

/// What a line of steps says.
enum class StepLanguage : std::uint8_t {
    Settings, ///< SECTION KEY=VALUE...
    Commands, ///< a command and its arguments, without the file: set "Probe 1" Coefficients0=100.01
};

/// The words of a line: parted by blanks, in double quotes where they have blanks (\" and \\ inside), up to a
/// "#" that begins a word. Raises Problem for a quote that is not closed, and for one that follows a closing
/// one, which other programs mean as a quote inside.
[[nodiscard]] std::vector<std::wstring> Words(std::wstring_view line);

/// Does what the lines of `from` say with the file `path`, which is created when it does not exist and a
/// step adds a probe: all of it, durable together, or nothing. Raises Problem with each wrong line.
[[nodiscard]] ExitCode RunSteps(const std::wstring& path, const std::wstring& from, StepLanguage language,
                                const ValueRules& rules, bool isDryRun);

} // namespace quorconv
