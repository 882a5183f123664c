#pragma once

#include "QuorIniFile/IniStore.h"
#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/RecordMerge.h"
#include "apps/probe-setup/DocumentError.h"
#include "apps/probe-setup/ListedProbe.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace ProbeSetup {

/// A save of a document: what was done to its probes is joined with what other programs have written into the
/// file since it was read. Nothing of the document changes by it.
class DocumentSave {
public:
    /// A save of `probes`, and of the removal of `removed`, which were all read from `before` unless they are
    /// new. `requireWhole` raises for a probe of a place that cannot be written where its text is gone. All
    /// of it outlives the save.
    DocumentSave(QuorProbeFile::ProbeFile& before, const std::vector<ListedProbe>& probes,
                 std::vector<const ListedProbe*> removed, std::function<void(std::size_t)> requireWhole);

    /// Writes into `file`, within an edit, which may call it again, or in memory. What others have written
    /// into it is looked for if `othersWrote`. Raises DocumentError when a section would go that belongs to
    /// another probe too, when a record is refused by its class, and when what others have written is in the
    /// way and is not among `replaced`.
    void WriteInto(QuorProbeFile::ProbeFile& file, bool othersWrote, const OthersChanges& replaced) const;

    /// Writes one probe, with all its values. Raises DocumentError when its class refuses the record.
    static void WriteWhole(QuorProbeFile::ProbeFile& file, const ListedProbe& probe);

private:
    /// Raises DocumentError when a section of the host stands where the settings of the probe would.
    static void RequireNoSettingsOfTheHost(QuorProbeFile::ProbeFile& file, const ListedProbe& probe);
    /// Raises DocumentError when what was done cannot be joined with what others have written into `file`.
    /// Returns the changed probes that are gone there.
    [[nodiscard]] std::unordered_set<const ListedProbe*>
    CheckForConflicts(QuorProbeFile::ProbeFile& file, const OthersChanges& replaced) const;
    /// Raises DocumentError when a probe would get a name that it cannot have in `file`, beside what others
    /// have there.
    void RequireFreeNames(QuorProbeFile::ProbeFile& file) const;
    /// Whether what the library reads of a probe is the same in the file as it was.
    [[nodiscard]] bool IsSameRecord(QuorProbeFile::ProbeFile& file, const std::wstring& section) const;
    /// Removes and renames sections before anything is written into them.
    void MoveSections(QuorIniFile::IniStore& store) const;
    /// The changes of a probe that is merged, now that it stands in `section` of `file`.
    [[nodiscard]] std::shared_ptr<QuorProbeFile::RecordMerge> MergeOf(const ListedProbe& probe,
                                                                      const QuorProbeFile::ProbeFile& file,
                                                                      const std::wstring& section) const;
    /// Conflicts give way: the user has agreed to that, or there were none.
    void WriteMerged(QuorProbeFile::ProbeFile& file, const ListedProbe& probe) const;
    /// Gives new and renamed probes their names in the letters that the user has typed: a section that is
    /// written in the place of one that is gone has the letters of that one.
    void SpellNewNames(QuorIniFile::IniStore& store) const;

    QuorProbeFile::ProbeFile& m_before;
    const std::vector<ListedProbe>& m_probes;
    std::vector<const ListedProbe*> m_removed;
    std::function<void(std::size_t)> m_requireWhole;
};

} // namespace ProbeSetup
