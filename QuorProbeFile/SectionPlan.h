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

// This is public for hosts that edit a list of their own, in which many probes are renamed, removed and
// changed, and save all of it in one ProbeFile::Edit, as Probe Setup does. ProbeFile::Rename and Remove do
// the same for one probe.

/// A probe of a file, and what should happen to it.
struct ProbeMove {
    std::wstring section;     ///< where it is
    std::wstring name;        ///< its new name; `section` if it keeps its name
    bool isRemoved = false;   ///< it is removed with its settings
    bool changesType = false; ///< the settings in the file belong to another conversion and are removed
    bool standAlone = false;  ///< its own section has the settings, with sections nested in it
    bool hasSettings = true;  ///< if False, sections named like its settings are the host's, and stay
};

/// What should happen to the sections of a file before anything is written into them, in this order: see
/// ApplyPlan.
struct SectionPlan {
    std::vector<std::wstring> removed;                          ///< sections of probes that are removed
    std::vector<std::pair<std::wstring, std::wstring>> renamed; ///< from, to; names may be swapped
    std::vector<std::wstring>
        outdated; ///< settings of another conversion, by their new names: they are removed
    /// Whether nothing should happen.
    [[nodiscard]] bool IsEmpty() const { return removed.empty() && renamed.empty() && outdated.empty(); }
};

/// A section that would be removed or renamed with one probe but also belongs to another one, which stays.
struct SharedSection {
    std::wstring section; ///< the section
    std::size_t probe;    ///< the index, among the probes, of the first one
    std::size_t other;    ///< the index of the one that stays
};

/// Determines which sections of a file follow its probes: their own, those of their settings ("P - Settings")
/// and the nested ones ("P - Settings - Low Range"; "ITS-90 - Low Range" for a stand-alone one, of which a
/// file has at most one). `sections` are the names of all sections of the file, `probes` all its probes,
/// including those that do not change. If a section would have to follow one probe and stay with another,
/// `shared` receives it and the plan is empty.
[[nodiscard]] QUORPROBEFILE_EXPORT SectionPlan PlanSections(const std::vector<std::wstring>& sections,
                                                            const std::vector<ProbeMove>& probes,
                                                            std::optional<SharedSection>& shared);

/// Removes and renames sections as planned; call it inside an edit of the store. Raises what the store
/// raises, such as 75 if a section that does not move has a name.
QUORPROBEFILE_EXPORT void ApplyPlan(QuorIniFile::IniStore& store, const SectionPlan& plan);

} // namespace QuorProbeFile
