#pragma once

#include "QuorProbeFile/Export.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace QuorIniFile {
class IniStore;
}

namespace QuorProbeFile {

/// A probe of a file, and what is to become of it.
struct ProbeMove {
    std::wstring section;     ///< in which it stands
    std::wstring name;        ///< under which it is to stand; `section` for one that keeps its name
    bool isRemoved = false;   ///< it goes, with its settings
    bool changesType = false; ///< the settings that stand in the file are those of another conversion, and go
    bool standAlone = false;  ///< it holds its settings itself, and has sections that are nested in it
    bool hasSettings = true;  ///< else sections that are called like its settings are the host's, and stay
};

/// What is to become of the sections of a file before anything is written into them. ApplyPlan does it in
/// this order.
struct SectionPlan {
    std::vector<std::wstring> removed;
    std::vector<std::pair<std::wstring, std::wstring>> renamed; ///< from, to; names may change places
    std::vector<std::wstring> outdated; ///< under their new names: settings of another conversion, that go
    [[nodiscard]] bool IsEmpty() const { return removed.empty() && renamed.empty() && outdated.empty(); }
};

/// A section that would go or move with one probe and belongs to another one as well, which stays.
struct SharedSection {
    std::wstring section;
    std::size_t probe; ///< the place, among the probes, of the one with which it would go
    std::size_t other; ///< and of the other one
};

/// Which sections of a file follow its probes: the sections of their own, those of their settings ("P -
/// Settings") and what is nested there ("P - Settings - Low Range"; "ITS-90 - Low Range" of a stand-alone
/// one, of which a file has one at most). `sections` are the names of all sections
/// of the file, `probes` all its probes, those included that stay as they are. When a section would have to
/// follow one probe and stay with another, that is told in `shared` and nothing is planned.
[[nodiscard]] QUORPROBEFILE_EXPORT SectionPlan PlanSections(const std::vector<std::wstring>& sections,
                                                            const std::vector<ProbeMove>& probes,
                                                            std::optional<SharedSection>& shared);

/// Removes and renames sections as planned; to be called inside an edit of the store. Raises what the store
/// raises, such as 75 when a name is taken by a section that does not move.
QUORPROBEFILE_EXPORT void ApplyPlan(QuorIniFile::IniStore& store, const SectionPlan& plan);

} // namespace QuorProbeFile
