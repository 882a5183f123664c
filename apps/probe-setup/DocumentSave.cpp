#include "apps/probe-setup/DocumentSave.h"

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/core/modMessages.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/SectionPlan.h"
#include "QuorProbeFile/TakenNames.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace ProbeSetup {

using namespace QuorConversions;
using namespace QuorProbeFile;
using QuorIniFile::IniStore;

namespace {

void WriteRecord(const std::shared_ptr<INIFile>& iniFile, const ListedProbe& probe,
                 const std::wstring& section, const std::wstring& path) {
    try {
        probe.content.conversion->WriteOrRaise(iniFile, section);
    } catch (const QuorError& error) {
        throw DocumentError{Failure::CannotWrite, path, {probe.name, DescriptionOf(error)}};
    }
}

DocumentError ChangedByOthers(const std::wstring& path, std::vector<ChangedProbe> changed,
                              std::vector<RecordConflict> conflicts) {
    DocumentError error{Failure::ChangedByOthers, path, {}, std::move(conflicts)};
    for (const ChangedProbe& probe : changed)
        error.details.push_back(probe.name);
    error.changed = std::move(changed);
    return error;
}

/// Whether a save writes settings of a probe that has none in the file: what stands in their place is the
/// host's.
bool GetsSettings(const ListedProbe& probe) {
    const bool hadSettings = !probe.isNew && MayHaveSettings(probe.typeInFile);
    return (probe.isNew || probe.content.replacesRecord) && !hadSettings &&
           MayHaveSettings(probe.content.type);
}

RecordAsRead RecordIn(ProbeFile& file, const std::wstring& section) {
    try {
        return file.Record(section);
    } catch (const ProbeFileError&) { // it says no type that could be read
        return {};
    }
}

} // namespace

DocumentSave::DocumentSave(ProbeFile& before, const std::vector<ListedProbe>& probes,
                           std::vector<const ListedProbe*> removed,
                           std::function<void(std::size_t)> requireWhole)
    : m_before(before),
      m_probes(probes),
      m_removed(std::move(removed)),
      m_requireWhole(std::move(requireWhole)) {}

void DocumentSave::WriteInto(ProbeFile& file, bool othersWrote, const OthersChanges& replaced) const {
    std::unordered_set<const ListedProbe*> gone;
    if (othersWrote)
        gone = CheckForConflicts(file, replaced);
    MoveSections(*file.Store());
    NameSet owners; // of what stands there now: the files of many probes are looked through once
    for (const std::wstring& section : file.Sections()) {
        for (const std::wstring_view owner : PossibleOwners(section))
            owners.emplace(owner);
    }
    for (const ListedProbe& probe : m_probes) {
        if (probe.IsMerged() && !gone.contains(&probe)) {
            WriteMerged(file, probe);
        } else if (probe.isNew || probe.content.IsChanged() || gone.contains(&probe)) {
            if (GetsSettings(probe) && owners.contains(probe.name))
                RequireNoSettingsOfTheHost(file, probe);
            WriteWhole(file, probe);
        }
    }
    SpellNewNames(*file.Store());
}

void DocumentSave::RequireNoSettingsOfTheHost(ProbeFile& file, const ListedProbe& probe) {
    for (const std::wstring& section : file.Sections()) {
        if (!HoldsSettingsOf(section, probe.name))
            continue;
        const ProbeFileError taken(PROBE_SETTINGS_ARE_TAKEN, file.Path(), probe.name, section);
        throw DocumentError{
            Failure::CannotWrite, file.Path(), {probe.name, taken.Description()}, {}, {taken.Phrase()}};
    }
}

void DocumentSave::WriteWhole(ProbeFile& file, const ListedProbe& probe) {
    WriteRecord(file.Store(), probe, probe.name, file.Path());
}

std::unordered_set<const ListedProbe*> DocumentSave::CheckForConflicts(ProbeFile& file,
                                                                       const OthersChanges& replaced) const {
    RequireFreeNames(file);
    IniStore& store = *file.Store();
    std::vector<ChangedProbe> changed;
    std::vector<RecordConflict> conflicts;
    std::unordered_set<const ListedProbe*> gone;
    for (const ListedProbe& probe : m_probes) {
        if (probe.isNew || !probe.IsChanged())
            continue;
        if (!store.HasSection(probe.Section())) {
            gone.insert(&probe);
            changed.push_back({probe.name, RecordIn(file, probe.Section())});
        } else if (probe.IsMerged()) {
            const auto found = MergeOf(probe, file, probe.Section())->Conflicts();
            conflicts.insert(conflicts.end(), found.begin(), found.end());
        } else if (probe.content.IsChanged() && !IsSameRecord(file, probe.Section())) {
            changed.push_back({probe.name, RecordIn(file, probe.Section())});
        } // what is only renamed keeps the values that stand there
    }
    for (const ListedProbe* const probe : m_removed) {
        if (store.HasSection(probe->Section()) && !IsSameRecord(file, probe->Section()))
            changed.push_back({probe->name, RecordIn(file, probe->Section())});
    }
    const auto isAgreed = [](const auto& agreed) {
        return [&agreed](const auto& found) {
            return std::find(agreed.begin(), agreed.end(), found) != agreed.end();
        };
    };
    if (!std::all_of(changed.begin(), changed.end(), isAgreed(replaced.probes)) ||
        !std::all_of(conflicts.begin(), conflicts.end(), isAgreed(replaced.values)))
        throw ChangedByOthers(file.Path(), std::move(changed), std::move(conflicts));
    for (std::size_t i = 0; i < m_probes.size(); ++i) {
        if (gone.contains(&m_probes[i]))
            m_requireWhole(i);
    }
    return gone;
}

void DocumentSave::RequireFreeNames(ProbeFile& file) const {
    NameSet ours; // sections in which our probes stood when the file was read
    for (const ListedProbe& probe : m_probes) {
        if (!probe.isNew)
            ours.insert(probe.Section());
    }
    for (const ListedProbe* const probe : m_removed)
        ours.insert(probe->Section());
    const auto isOurs = [&](std::wstring_view section) { return ours.contains(section); };
    TakenNames taken;
    for (const std::wstring& section : file.Store()->Sections()) {
        const auto owners = PossibleOwners(section);
        if (!isOurs(section) && std::none_of(owners.begin(), owners.end(), isOurs))
            taken.Add(section);
    }
    const auto isTheirs = [&](std::wstring_view section) {
        return !isOurs(section) && file.Find(section).has_value();
    };
    for (const ListedProbe& probe : m_probes) {
        if ((probe.isNew || probe.IsRenamed()) && taken.ObstacleTo(probe.name, isTheirs))
            throw DocumentError{Failure::NameIsTaken, m_before.Path(), {probe.name}};
    }
}

bool DocumentSave::IsSameRecord(ProbeFile& file, const std::wstring& section) const {
    return RecordIn(m_before, section).HasSameValues(RecordIn(file, section));
}

void DocumentSave::MoveSections(IniStore& store) const {
    std::vector<ProbeMove> moves;
    for (const ListedProbe& probe : m_probes) {
        if (!probe.isNew)
            moves.push_back({probe.Section(), probe.name, false, probe.content.replacesRecord, false,
                             MayHaveSettings(probe.typeInFile)});
    }
    for (const ListedProbe* const probe : m_removed)
        moves.push_back(
            {probe->Section(), probe->name, true, false, false, MayHaveSettings(probe->typeInFile)});
    std::optional<SharedSection> shared;
    const SectionPlan plan = PlanSections(store.Sections(), moves, shared);
    if (shared)
        throw DocumentError{Failure::SharedSection,
                            m_before.Path(),
                            {shared->section, moves[shared->probe].name, moves[shared->other].name}};
    ApplyPlan(store, plan);
}

std::shared_ptr<RecordMerge> DocumentSave::MergeOf(const ListedProbe& probe, const ProbeFile& file,
                                                   const std::wstring& section) const {
    auto merge = std::make_shared<RecordMerge>(m_before.Store(), probe.Section(), file.Store(), section);
    WriteRecord(merge, probe, section, file.Path());
    return merge;
}

void DocumentSave::WriteMerged(ProbeFile& file, const ListedProbe& probe) const {
    const auto merge = MergeOf(probe, file, probe.name);
    if (merge->Conflicts().empty())
        merge->WriteChanges();
    else if (merge->HasAnotherType()) // the keys that stand there are not those of this conversion
        WriteWhole(file, probe);
    else
        merge->WriteChangesAndRemoved();
}

void DocumentSave::SpellNewNames(IniStore& store) const {
    NameSet given; // up, by probes that were removed or have another name now
    for (const ListedProbe* const probe : m_removed)
        given.insert(probe->Section());
    for (const ListedProbe& probe : m_probes) {
        if (probe.IsRenamed())
            given.insert(probe.Section());
    }
    for (const ListedProbe& probe : m_probes) {
        if ((!probe.isNew && !probe.IsRenamed()) || !given.contains(probe.name))
            continue;
        for (const std::wstring& section : store.Sections()) {
            const std::wstring spelled =
                probe.name + section.substr(std::min(section.size(), probe.name.size()));
            if ((EqualFolded(section, probe.name) || HoldsSettingsOf(section, probe.name)) &&
                section != spelled)
                store.RenameSection(section, spelled);
        }
    }
}

} // namespace ProbeSetup
