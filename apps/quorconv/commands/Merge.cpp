#include "apps/quorconv/commands/Rows.h"

#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordMeaning.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Probe.h"
#include "apps/quorconv/ProbeValues.h"
#include "apps/quorconv/Progress.h"
#include "apps/quorconv/Records.h"
#include "apps/quorconv/Selection.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quorconv {

using namespace QuorProbeFile;

namespace {

/// The probes of a file that its base does not have, by their values.
class AddedProbes {
public:
    AddedProbes(const ProbeTable& base, const ProbeTable& table) {
        table.ForEach([&](const std::wstring& section) {
            if (base.Has(section))
                return;
            for (const std::wstring& text : Texts(table.Read(section)))
                m_byValue[text].push_back(m_sections.size());
            m_sections.push_back(section);
        });
    }

    [[nodiscard]] bool IsEmpty() const { return m_sections.empty(); }

    /// The name of the probe that has more than half of the values of one of the base: that one, renamed,
    /// and perhaps changed as well. Nothing when there is none.
    [[nodiscard]] std::optional<std::wstring> NameOf(const ProbeValues& probe) const {
        constexpr std::size_t common = 100; // a value that so many have tells none from another
        const auto texts = Texts(probe);
        std::unordered_map<std::size_t, std::size_t> shared; // values, by the number of the section
        for (const std::wstring& text : texts) {
            const auto found = m_byValue.find(text);
            if (found != m_byValue.end() && (found->second.size() < common || texts.size() == 1))
                for (const std::size_t section : found->second)
                    ++shared[section];
        }
        const auto most = std::max_element(shared.begin(), shared.end(), [](const auto& a, const auto& b) {
            return std::pair(a.second, b.first) < std::pair(b.second, a.first); // the first of several
        });
        if (most == shared.end() || most->second * 2 <= texts.size())
            return std::nullopt;
        return m_sections[most->first];
    }

private:
    /// The values of a probe with its type, without zeros: many have those. Of a probe without values its
    /// type alone.
    static std::vector<std::wstring> Texts(const ProbeValues& probe) {
        const std::wstring type = std::to_wstring(probe.code);
        std::vector<std::wstring> texts;
        for (const RecordImage::Entry& entry : probe.entries)
            if (const double* const number = std::get_if<double>(&entry.value); number && *number != 0.0)
                texts.push_back(type + L"\n" + entry.path + L"=" + ToText(entry.value));
        if (texts.empty())
            texts.push_back(type);
        return texts;
    }

    std::vector<std::wstring> m_sections;
    std::unordered_map<std::wstring, std::vector<std::size_t>> m_byValue; // numbers of sections
};

class Merge final : public Command {
    std::wstring m_base;
    std::wstring m_ours;
    std::wstring m_theirs;
    bool m_isDryRun = false;

    /// What is written of theirs: those values, or all of the probe where there are none.
    struct Change {
        std::wstring section;
        std::vector<Assignment> values;
    };

    struct BaseAndOurs {
        const ProbeTable& base;
        const ProbeTable& ours;
    };
    struct Tables : BaseAndOurs {
        const ProbeTable& theirs;
    };

    /// What is done with the file, if there are no conflicts.
    struct Plan {
        std::vector<Change> written;
        std::vector<std::wstring> retyped; // of the written ones
        std::vector<std::wstring> removed;
        std::vector<std::pair<std::wstring, std::wstring>> renamed; // from, to
        std::vector<std::wstring> conflicts;
    };

    void Declare(Arguments& arguments) override {
        arguments.One("BASE", m_base, Meaning::File, "The common base of both");
        arguments.One("FILE", m_ours, Meaning::File, "The file that receives the changes");
        arguments.One("OTHER", m_theirs, Meaning::File, "The file whose changes since BASE are merged");
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        HostFile baseFile(m_base);
        HostFile theirFile(m_theirs);
        HostFile file(m_ours);
        const ProbeTable base(*baseFile);
        const ProbeTable theirs(*theirFile);
        RequireOnce(base, m_base);
        RequireOnce(theirs, m_theirs);
        if (theirFile->Probes().empty() && !baseFile->Probes().empty())
            throw Problem{m_theirs + L": there is no probe in this file; nothing was written"};
        Plan plan;
        file.Edit(m_isDryRun, [&] {
            const ProbeTable ours(*file);
            RequireOnce(ours, m_ours);
            plan = {};
            Progress progress(L"probes", 0);
            theirs.ForEach([&](const std::wstring& section) {
                progress.Step();
                MergeProbe({{base, ours}, theirs}, section, plan);
            });
            base.ForEach([&](const std::wstring& section) {
                progress.Step();
                if (!theirs.Has(section))
                    MergeRemoved({{base, ours}, theirs}, section, plan);
            });
            FindRenamed({{base, ours}, theirs}, plan);
            RequireNothingElseLost({base, ours}, plan);
            FindTwoNames(base, ours, theirs, plan.conflicts);
            if (!plan.conflicts.empty())
                throw Problem{m_ours + L": nothing was written, because both files have changed the same",
                              std::move(plan.conflicts)};
            for (const auto& [section, name] : plan.renamed)
                file->Rename(section, name);
            for (const Change& change : plan.written) {
                progress.Step();
                Write(*file, *theirFile, change);
            }
            for (const std::wstring& section : plan.removed)
                file->Remove(section);
        });
        TellCount(plan.written.size(), L"probe", m_isDryRun ? "would be merged" : "merged");
        if (!plan.renamed.empty())
            TellCount(plan.renamed.size(), L"probe", m_isDryRun ? "would be renamed" : "renamed");
        if (!plan.removed.empty())
            TellCount(plan.removed.size(), L"probe", m_isDryRun ? "would be removed" : "removed");
        return fine;
    }

    /// A probe of the base that theirs lack.
    void MergeRemoved(const Tables& tables, const std::wstring& section, Plan& plan) const {
        const auto our = tables.ours.Find(section);
        if (!our)
            return;
        const ProbeValues base = tables.base.Read(section);
        const bool hasSettings = !base.entries.empty() || !FindType(base.code);
        for (const std::wstring& rest : {section, SettingsSection(section)}) {
            const bool isHosts = rest != section && !hasSettings;
            if (!isHosts && tables.theirs.HasSection(rest)) {
                std::wstring conflict = L"[" + section + L"]: is no probe any more in " + m_theirs;
                conflict.append(L", but [").append(rest).append(L"] is still there");
                plan.conflicts.push_back(std::move(conflict));
                return;
            }
        }
        if (SameValues(*our, base))
            plan.removed.push_back(our->section);
        else
            plan.conflicts.push_back(L"[" + section + L"]: changed here, removed in " + m_theirs);
    }

    /// Of the probes that would be removed and added, those that theirs have under another name and that are
    /// the same to the last line: they are renamed, which keeps what the file has beside their values. Where
    /// several are the same, nobody can tell which one became which.
    void FindRenamed(const Tables& tables, Plan& plan) const {
        NameSet removed(plan.removed.begin(), plan.removed.end());
        NameSet added;
        for (const Change& change : plan.written)
            if (!tables.base.Has(change.section))
                added.insert(change.section);
        if (removed.empty() || added.empty())
            return;
        const auto byText = [](const ProbeTable& table, const NameSet& sections) {
            const OtherLines lines(table, sections);
            std::unordered_map<std::wstring, std::vector<std::wstring>> found;
            for (const std::wstring& section : sections) {
                const ProbeValues probe = table.Read(section);
                std::wstring text = std::to_wstring(probe.code);
                for (const RecordImage::Entry& entry : probe.entries)
                    text += L"\n" + entry.path + L"=" + ToText(entry.value);
                for (const std::wstring& line : lines.Of(probe))
                    text += L"\n" + line;
                found[text].push_back(section);
            }
            return found;
        };
        const auto after = byText(tables.theirs, added);
        NameSet names;
        for (const auto& [text, sections] : byText(tables.base, removed)) {
            const auto found = after.find(text);
            if (found == after.end() || found->second.size() != 1 || sections.size() != 1)
                continue;
            plan.renamed.emplace_back(sections.front(), found->second.front());
            names.insert(sections.front());
            names.insert(found->second.front());
        }
        std::erase_if(plan.removed, [&](const std::wstring& section) { return names.contains(section); });
        std::erase_if(plan.written, [&](const Change& change) { return names.contains(change.section); });
    }

    /// Lines that no record has, and that this file has changed in a probe which theirs have removed, or
    /// given another type: they would go unseen.
    void RequireNothingElseLost(const BaseAndOurs& tables, Plan& plan) const {
        NameSet sections(plan.removed.begin(), plan.removed.end());
        sections.insert(plan.retyped.begin(), plan.retyped.end());
        const OtherLines before(tables.base, sections);
        const OtherLines now(tables.ours, sections);
        for (const auto* const list : {&plan.removed, &plan.retyped}) {
            for (const std::wstring& section : *list) {
                if (before.Of(tables.base.Read(section)) != now.Of(tables.ours.Read(section)))
                    plan.conflicts.push_back(
                        L"[" + section + L"]: keys beside its values were changed here, and the probe " +
                        (list == &plan.removed ? L"removed" : L"given another type") + L" in " + m_theirs);
            }
        }
    }

    /// A probe of the base that both files lack, and that both have added under another name: it would be
    /// there twice.
    void FindTwoNames(const ProbeTable& base, const ProbeTable& ours, const ProbeTable& theirs,
                      std::vector<std::wstring>& conflicts) const {
        const AddedProbes ourAdded(base, ours);
        const AddedProbes theirAdded(base, theirs);
        if (ourAdded.IsEmpty() || theirAdded.IsEmpty())
            return;
        base.ForEach([&](const std::wstring& section) {
            if (ours.Has(section) || theirs.Has(section))
                return;
            const ProbeValues probe = base.Read(section);
            const auto our = ourAdded.NameOf(probe);
            const auto their = theirAdded.NameOf(probe);
            if (our && their && !theirs.Has(*our) && !ours.Has(*their))
                conflicts.push_back(L"[" + section + L"]: renamed to [" + *our + L"] here, to [" + *their +
                                    L"] in " + m_theirs);
        });
    }

    /// Raises Problem for sections of probes that occur twice: only the first of them could be compared, and
    /// both would be removed.
    static void RequireOnce(const ProbeTable& table, const std::wstring& path) {
        std::vector<std::wstring> lines;
        for (const QuorIniFile::IniWarning& warning : table.Duplicates())
            if (table.IsOfProbe(warning.section))
                lines.push_back(L"line " + std::to_wstring(warning.line) + L": [" + warning.section +
                                L"] occurs twice; the first is in line " + std::to_wstring(warning.first));
        if (!lines.empty())
            throw Problem{path + L": nothing was written, because probes occur twice", std::move(lines)};
    }

    /// Decides what becomes of a probe of theirs.
    void MergeProbe(const Tables& tables, const std::wstring& section, Plan& plan) const {
        const auto base = tables.base.Find(section);
        const auto our = tables.ours.Find(section);
        const ProbeValues their = tables.theirs.Read(section);
        const std::wstring place = L"[" + their.section + L"]";
        if ((our && SameValues(*our, their)) || (base && SameValues(*base, their)))
            return; // they have changed nothing, or we the same
        if (auto damage = DamageOf(tables.theirs, their); !damage.empty()) {
            plan.conflicts.push_back(place + L" ConversionType: " + damage);
            return;
        }
        if (!our && base) {
            plan.conflicts.push_back(place + L": removed here, changed in " + m_theirs);
        } else if (!our) {
            plan.written.push_back({their.section, {}});
        } else if (!base) {
            plan.conflicts.push_back(place + L": added in both files, with different values");
        } else if (SameValues(*base, *our)) {
            plan.written.push_back({their.section, {}});
            if (base->code != their.code)
                plan.retyped.push_back(their.section);
            else
                RequireNothingWrittenOver(tables, *our, their, plan.conflicts);
        } else if (base->code != their.code || base->code != our->code) {
            plan.conflicts.push_back(place +
                                     L" ConversionType: changed in one file, and the record in the other");
        } else {
            MergeValues(*base, *our, their, place, plan.written, plan.conflicts);
            RequireNothingWrittenOver(tables, *our, their, plan.conflicts);
        }
    }

    /// What shows that a changed type of theirs is a mistake: to take it over would remove the settings that
    /// the probe has here. Empty for one that is right.
    [[nodiscard]] std::wstring DamageOf(const ProbeTable& theirs, const ProbeValues& their) const {
        if (!FindType(their.code))
            return std::to_wstring(their.code) + L" in " + m_theirs + L" is the code of no conversion type";
        const std::wstring settings = SettingsSection(their.section);
        if (!MayHaveSettings(static_cast<QuorConversions::EQuorConversionType>(their.code)) &&
            theirs.HasSection(settings))
            return TypeName(their.code) + L" in " + m_theirs + L" has no settings, but [" + settings +
                   L"] is still there";
        return {};
    }

    /// Values of theirs that our record does not have, because of its count, and that stand in the file
    /// beside it: those that are not as the base has them are kept from being written over.
    void RequireNothingWrittenOver(const BaseAndOurs& tables, const ProbeValues& our,
                                   const ProbeValues& their, std::vector<std::wstring>& conflicts) const {
        for (const RecordImage::Entry& entry : their.entries) {
            if (our.Find(entry.path))
                continue;
            const auto present = tables.ours.Text(our.section, entry.path);
            if (!present || present->empty() || present == tables.base.Text(our.section, entry.path))
                continue;
            const auto value = ParseAs(entry.value, *present);
            if (!value || !SameValue(*value, entry.value))
                conflicts.push_back(L"[" + our.section + L"] " + entry.path + L": " + *present +
                                    L" stands here beyond the count, and would become " +
                                    ToText(entry.value) + L" of " + m_theirs);
        }
    }

    void MergeValues(const ProbeValues& base, const ProbeValues& our, const ProbeValues& their,
                     const std::wstring& place, std::vector<Change>& written,
                     std::vector<std::wstring>& conflicts) const {
        auto ourChanges = ChangesOf(base, our);
        std::vector<ValueChange> theirChanges; // those that we have not made as well
        bool isFine = true;
        for (ValueChange& change : ChangesOf(base, their)) {
            const auto mine = std::find_if(ourChanges.begin(), ourChanges.end(),
                                           [&](const ValueChange& one) { return one.key == change.key; });
            if (mine == ourChanges.end()) {
                theirChanges.push_back(std::move(change));
                continue;
            }
            const bool isSame = mine->after && change.after ? SameValue(*mine->after, *change.after)
                                                            : !mine->after && !change.after;
            if (isSame) {
                ourChanges.erase(mine);
                continue;
            }
            conflicts.push_back(place + L" " + change.key + L": " + TextOf(change.before) + L" is " +
                                TextOf(mine->after) + L" here and " + TextOf(change.after) + L" in " +
                                m_theirs);
            isFine = false;
        }
        const ValueChange* const theirsDeciding = Deciding(theirChanges, ourChanges);
        const ValueChange* const deciding =
            theirsDeciding ? theirsDeciding : Deciding(ourChanges, theirChanges);
        if (isFine && deciding) {
            conflicts.push_back(place + L" " + deciding->key + L": changed " +
                                (theirsDeciding ? L"in " + m_theirs : L"here") +
                                L", and other values of the probe in the other file");
            return;
        }
        if (!isFine || theirChanges.empty())
            return;
        written.push_back({their.section, {}});
        for (const ValueChange& change : theirChanges) {
            if (change.after) // else it is beyond a count that is written
                written.back().values.push_back({change.key, ToText(*change.after)});
        }
    }

    /// The change that gives what others have changed another meaning, or adds values or leaves some out, of
    /// which they know nothing; null when there is none.
    static const ValueChange* Deciding(const std::vector<ValueChange>& mayDecide,
                                       const std::vector<ValueChange>& decidedOf) {
        const auto valueOf = [](const Value* value) { return value ? std::optional(*value) : std::nullopt; };
        const auto decides = [&](const ValueChange& change) {
            const auto isDecided = [&](const ValueChange& other) {
                return ChangesMeaning(change.key, valueOf(change.before), valueOf(change.after), other.key);
            };
            return std::any_of(decidedOf.begin(), decidedOf.end(), isDecided) ||
                   std::any_of(mayDecide.begin(), mayDecide.end(), [&](const ValueChange& own) {
                       return (!own.before || !own.after) && isDecided(own);
                   });
        };
        const auto found = std::find_if(mayDecide.begin(), mayDecide.end(), decides);
        return decidedOf.empty() || found == mayDecide.end() ? nullptr : &*found;
    }

    static std::wstring TextOf(const Value* value) { return value ? ToText(*value) : L"(none)"; }

    static void Write(ProbeFile& file, ProbeFile& theirFile, const Change& change) {
        if (change.values.empty()) {
            const Probe probe = ReadProbe(theirFile, change.section);
            file.Write(change.section, probe.Conversion());
            return;
        }
        Probe probe = ReadProbe(file, change.section, change.values);
        Assign(probe, file.Path(), change.values, ValueRules{true, true, false});
        file.Write(change.section, probe.Conversion());
    }
};

} // namespace

const CommandRow mergeRow{
    "merge",
    "Merge the changes of probes that another file has since a common base into a file, or report conflicts; "
    "sections of the instrument stay as they are",
    {"quorconv merge laboratory-2024.ini laboratory.ini from-the-field.ini --dry-run"},
    Create<Merge>};

} // namespace quorconv
