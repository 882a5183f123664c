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
#include "apps/quorconv/Steps.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quorconv {

using namespace QuorProbeFile;

namespace {

/// The probes of a table that another one does not have, in the order of the file.
std::vector<std::wstring> Added(const ProbeTable& table, const ProbeTable& base) {
    std::vector<std::wstring> sections;
    table.ForEach([&](const std::wstring& section) {
        if (!base.Has(section))
            sections.push_back(section);
    });
    return sections;
}

/// Probes by their values.
class AddedProbes {
public:
    AddedProbes(const ProbeTable& table, std::vector<std::wstring> sections)
        : m_sections(std::move(sections)) {
        for (std::size_t i = 0; i < m_sections.size(); ++i)
            for (const std::wstring& text : Texts(table.Read(m_sections[i])))
                m_byValue[text].push_back(i);
    }

    [[nodiscard]] bool IsEmpty() const { return m_sections.empty(); }

    /// The names of the probes that have more than half of the values of one of the base: that one, renamed,
    /// and perhaps changed as well. Several only if they have as many of them; the first one comes first.
    [[nodiscard]] std::vector<std::wstring> NamesOf(const ProbeValues& probe) const {
        constexpr std::size_t common = 100; // a value that so many have tells none from another
        const auto texts = Texts(probe);
        std::map<std::size_t, std::size_t> shared; // values, by the number of the section
        for (const std::wstring& text : texts) {
            const auto found = m_byValue.find(text);
            if (found != m_byValue.end() && (found->second.size() < common || texts.size() == 1))
                for (const std::size_t section : found->second)
                    ++shared[section];
        }
        std::size_t most = texts.size() / 2 + 1;
        for (const auto& [section, count] : shared)
            most = std::max(most, count);
        std::vector<std::wstring> names;
        for (const auto& [section, count] : shared)
            if (count == most)
                names.push_back(m_sections[section]);
        return names;
    }

    /// Whether a probe has a value by which it is known again.
    [[nodiscard]] static bool IsKnownByItsValues(const ProbeValues& probe) {
        return std::any_of(probe.entries.begin(), probe.entries.end(), IsTelling);
    }

    /// Whether a probe has more of them than one, which may be a nominal value.
    [[nodiscard]] static bool IsUnmistakable(const ProbeValues& probe) {
        return std::count_if(probe.entries.begin(), probe.entries.end(), IsTelling) > 1;
    }

private:
    static bool IsTelling(const RecordImage::Entry& entry) {
        const double* const number = std::get_if<double>(&entry.value);
        return number && *number != 0.0; // many have zeros
    }

    /// The values of a probe with its type. Of a probe without values its type alone.
    static std::vector<std::wstring> Texts(const ProbeValues& probe) {
        const std::wstring type = std::to_wstring(probe.code);
        std::vector<std::wstring> texts;
        for (const RecordImage::Entry& entry : probe.entries)
            if (IsTelling(entry))
                texts.push_back(type + L"\n" + entry.path + L"=" + ToText(entry.value));
        if (texts.empty())
            texts.push_back(type);
        return texts;
    }

    std::vector<std::wstring> m_sections;
    std::unordered_map<std::wstring, std::vector<std::size_t>> m_byValue; // numbers of sections
};

/// Calls `use` with the name and the text of each section of a file.
template <class Use>
void ForEachSection(ProbeFile& file, const Use& use) {
    const std::string_view text = file.Text();
    auto lines = file.Store()->Lines();
    for (bool isThere = lines.NextHeader(); isThere;) {
        const std::wstring name = lines.Name();
        const std::size_t begin = lines.Here().offset;
        isThere = lines.NextHeader();
        use(name, text.substr(begin, (isThere ? lines.Here().offset : text.size()) - begin));
    }
}

/// The names of the probes of which some line is not as in the base, by the sections that differ. There are
/// names of none among them.
NameSet TouchedProbes(ProbeFile& base, ProbeFile& theirs) {
    NameMap<std::string_view> before;
    ForEachSection(base,
                   [&](const std::wstring& name, std::string_view text) { before.emplace(name, text); });
    NameSet touched;
    const auto touch = [&](const std::wstring& section) {
        touched.insert(section);
        for (const std::wstring_view owner : PossibleOwners(section))
            touched.insert(std::wstring(owner));
    };
    ForEachSection(theirs, [&](const std::wstring& name, std::string_view text) {
        const auto found = before.find(name);
        if (found == before.end() || found->second != text)
            touch(name);
        if (found != before.end())
            before.erase(found);
    });
    for (const auto& [name, text] : before)
        touch(name);
    return touched;
}

/// Sections with settings of probes that are none (any more), by the names of these.
NameMap<std::wstring> LeftSettings(ProbeFile& file, const ProbeTable& table) {
    NameMap<std::wstring> left;
    for (const std::wstring& section : file.Sections())
        for (const std::wstring_view owner : PossibleOwners(section))
            if (const std::wstring name(owner); !table.Has(name))
                left.emplace(name, section);
    return left;
}

class Merge final : public Command {
    std::wstring m_base;
    std::wstring m_ours;
    std::wstring m_theirs;
    ValueRules m_rules;
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
        const NameMap<std::wstring>& leftInTheirs; // LeftSettings
        const NameSet& touched;                    // TouchedProbes
    };

    /// What is done with the file, if there are no conflicts.
    struct Plan {
        std::vector<Change> written;
        std::vector<std::wstring> retyped; // of the written ones
        std::vector<std::wstring> removed;
        std::vector<std::pair<std::wstring, std::wstring>> renamed; // from, to
        NameMap<std::wstring> nameBefore;                           // of the renamed ones, by their new names
        std::vector<std::wstring> otherKeys; // probes that receive the keys beside the values of theirs
        NameSet kept;                        // "section/key" of what is not taken from these
        std::vector<std::wstring> conflicts;
    };

    void Declare(Arguments& arguments) override {
        arguments.One("BASE", m_base, Meaning::File, "The common base of both");
        arguments.One("FILE", m_ours, Meaning::File, "The file that receives the changes");
        arguments.One("OTHER", m_theirs, Meaning::File, "The file whose changes since BASE are merged");
        m_rules.Declare(arguments);
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
        const NameMap<std::wstring> left = LeftSettings(*theirFile, theirs);
        const NameSet touched = TouchedProbes(*baseFile, *theirFile);
        Plan plan;
        NameSet merged;
        file.Edit(m_isDryRun, [&] {
            const auto renamedHere = RenamedHere(*file, base, theirs, touched);
            std::vector<std::pair<std::wstring, std::wstring>> back;
            back.reserve(renamedHere.size());
            for (const auto& [section, name] : renamedHere)
                back.emplace_back(name, section);
            file->Rename(back); // as long as it is merged
            const ProbeTable ours(*file);
            Progress progress(L"probes", 0);
            plan = PlanOf({{base, ours}, theirs, left, touched}, progress);
            if (!plan.conflicts.empty())
                throw Problem{m_ours +
                                  L": nothing was written, because both files have changed the same value",
                              std::move(plan.conflicts)};
            file->Remove(plan.removed);
            file->Rename(plan.renamed);
            const NameSet retyped(plan.retyped.begin(), plan.retyped.end());
            for (const Change& change : plan.written) {
                progress.Step();
                Write(*file, *theirFile, change, retyped.contains(change.section));
                merged.insert(change.section);
            }
            NameMap<std::wstring> copied;
            for (const std::wstring& section : plan.otherKeys)
                copied.emplace(section, section);
            CopyOtherKeys(*theirFile, copied, *file, plan.kept);
            merged.insert(plan.otherKeys.begin(), plan.otherKeys.end());
            file->Rename(renamedHere);
        });
        TellCount(merged.size(), L"probe", m_isDryRun ? "would be merged" : "merged");
        if (!plan.renamed.empty())
            TellCount(plan.renamed.size(), L"probe", m_isDryRun ? "would be renamed" : "renamed");
        if (!plan.removed.empty())
            TellCount(plan.removed.size(), L"probe", m_isDryRun ? "would be removed" : "removed");
        return fine;
    }

    /// The probes that this file has renamed, and that theirs may have changed under the name of the base.
    [[nodiscard]] std::vector<std::pair<std::wstring, std::wstring>>
    RenamedHere(ProbeFile& file, const ProbeTable& base, const ProbeTable& theirs,
                const NameSet& touched) const {
        const ProbeTable ours(file);
        RequireOnce(ours, m_ours);
        const NameMap<std::wstring> left = LeftSettings(file, ours);
        Plan plan;
        // The other way round. Two thermometers may have nominal values in common: theirs would get into
        // another one by a guess.
        FindRenamed({{base, theirs}, ours, left, touched}, plan, Alike::No);
        std::erase_if(plan.renamed, [&](const auto& pair) {
            return !touched.contains(pair.first) || !AddedProbes::IsUnmistakable(base.Read(pair.first));
        });
        return std::move(plan.renamed);
    }

    [[nodiscard]] Plan PlanOf(const Tables& tables, Progress& progress) const {
        Plan plan;
        FindRenamed(tables, plan, Alike::Too);
        for (const auto& [section, name] : plan.renamed)
            plan.nameBefore.emplace(name, section);
        tables.theirs.ForEach([&](const std::wstring& section) {
            progress.Step();
            MergeProbe(tables, section, plan);
        });
        NameSet renamed;
        for (const auto& [section, name] : plan.renamed)
            renamed.insert(section);
        tables.base.ForEach([&](const std::wstring& section) {
            progress.Step();
            if (!tables.theirs.Has(section) && !renamed.contains(section))
                MergeRemoved(tables, section, plan);
        });
        RequireNothingElseLost(tables, plan);
        FindTwoNames(tables, plan.conflicts);
        MergeOtherKeys(tables, plan);
        return plan;
    }

    /// The name that a probe of theirs has here and in the base.
    [[nodiscard]] static std::wstring NameHere(const Plan& plan, const std::wstring& section) {
        const auto found = plan.nameBefore.find(section);
        return found == plan.nameBefore.end() ? section : found->second;
    }

    /// A section that is still in theirs of a probe of the base that is none there any more.
    [[nodiscard]] static std::optional<std::wstring> LeftOf(const Tables& tables, const ProbeValues& base) {
        if (tables.theirs.HasSection(base.section))
            return base.section;
        const bool hasSettings = !base.entries.empty() || !FindType(base.code); // else they are the host's
        const auto found = tables.leftInTheirs.find(base.section);
        return hasSettings && found != tables.leftInTheirs.end() ? std::optional(found->second)
                                                                 : std::nullopt;
    }

    /// A probe of the base that theirs lack.
    void MergeRemoved(const Tables& tables, const std::wstring& section, Plan& plan) const {
        const auto* const our = tables.ours.Find(section);
        if (!our)
            return;
        const ProbeValues base = tables.base.Read(section);
        if (const auto left = LeftOf(tables, base))
            plan.conflicts.push_back(L"[" + section + L"]: is no probe any more in " + m_theirs + L", but [" +
                                     *left + L"] is still there");
        else if (SameValues(*our, base))
            plan.removed.push_back(our->section);
        else
            plan.conflicts.push_back(L"[" + section + L"]: changed here, removed in " + m_theirs);
    }

    /// Whether a probe may be another one of which more than half of the values are the same.
    enum class Alike : std::uint8_t { Too, No };

    /// The probes of the base that theirs have under another name: they are renamed, which keeps what the
    /// file has beside their values.
    void FindRenamed(const Tables& tables, Plan& plan, Alike alike) const {
        std::vector<std::wstring> gone = Added(tables.base, tables.theirs);
        std::erase_if(gone, [&](const std::wstring& section) {
            return !tables.ours.Has(section) || LeftOf(tables, tables.base.Read(section));
        });
        std::vector<std::wstring> added = Added(tables.theirs, tables.base);
        std::erase_if(added, [&](const std::wstring& section) { return tables.ours.Has(section); });
        if (gone.empty() || added.empty())
            return;
        FindUnchanged(tables, gone, added, plan);
        if (alike == Alike::Too)
            FindAlike(tables, gone, added, plan);
    }

    /// Of the probes that are gone and added, those that are the same to the last line. Where several are the
    /// same, nobody can tell which one became which.
    static void FindUnchanged(const Tables& tables, std::vector<std::wstring>& gone,
                              std::vector<std::wstring>& added, Plan& plan) {
        const auto byText = [](const ProbeTable& table, const std::vector<std::wstring>& sections) {
            const OtherLines lines(table, {sections.begin(), sections.end()});
            std::unordered_map<std::wstring, std::vector<std::wstring>> found;
            for (const std::wstring& section : sections) {
                const ProbeValues& probe = table.Read(section);
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
        for (const auto& [text, sections] : byText(tables.base, gone)) {
            const auto found = after.find(text);
            if (found == after.end() || found->second.size() != 1 || sections.size() != 1)
                continue;
            plan.renamed.emplace_back(sections.front(), found->second.front());
            names.insert(sections.front());
            names.insert(found->second.front());
        }
        for (auto* const sections : {&gone, &added})
            std::erase_if(*sections, [&](const std::wstring& section) { return names.contains(section); });
    }

    /// Of the others, those that have most of their values. Where nobody can tell which one became which,
    /// what the file has beside the values of one must not be lost with it.
    void FindAlike(const Tables& tables, const std::vector<std::wstring>& gone,
                   const std::vector<std::wstring>& added, Plan& plan) const {
        const AddedProbes probes(tables.theirs, added);
        std::vector<std::pair<std::wstring, std::vector<std::wstring>>> alike;
        NameMap<std::size_t> counts; // by the new names
        for (const std::wstring& section : gone) {
            alike.emplace_back(section, probes.NamesOf(tables.base.Read(section)));
            for (const std::wstring& name : alike.back().second)
                ++counts[name];
        }
        std::erase_if(alike, [&](const auto& pair) {
            const auto& [section, names] = pair;
            if (names.size() == 1 && counts[names.front()] == 1)
                plan.renamed.emplace_back(section, names.front());
            return names.empty() || (names.size() == 1 && counts[names.front()] == 1);
        });
        NameSet sections;
        NameSet candidates;
        for (const auto& [section, names] : alike) {
            sections.insert(section);
            candidates.insert(names.begin(), names.end());
        }
        const OtherLines before(tables.base, sections);
        const OtherLines now(tables.ours, sections);
        const OtherLines after(tables.theirs, candidates);
        for (const auto& [section, names] : alike) {
            const auto lines = now.Of(tables.ours.Read(section));
            const auto hasThem = [&, &section = section](const std::wstring& name) {
                ProbeValues probe = tables.base.Read(section);
                probe.section = name;
                const auto theirs = after.Of(probe);
                return std::includes(theirs.begin(), theirs.end(), lines.begin(), lines.end());
            };
            if (lines == before.Of(tables.base.Read(section)) && // else RequireNothingElseLost tells it
                !std::all_of(names.begin(), names.end(), hasThem))
                plan.conflicts.push_back(L"[" + section + L"]: has keys beside its values, and may be [" +
                                         names.front() + L"] in " + m_theirs + L" or another one");
        }
    }

    /// Takes over the keys beside the values of probes that only theirs have changed.
    void MergeOtherKeys(const Tables& tables, Plan& plan) const {
        const std::vector<std::wstring> sections = TouchedSections(tables, plan);
        const NameSet theirNames(sections.begin(), sections.end());
        NameSet names; // here
        for (const std::wstring& section : sections)
            names.insert(NameHere(plan, section));
        const OtherLines base(tables.base, names);
        const OtherLines ours(tables.ours, names);
        const OtherLines theirs(tables.theirs, theirNames);
        for (const std::wstring& section : sections)
            MergeOtherKeys(tables, section, {base, ours, theirs}, plan);
        const NameSet retyped(plan.retyped.begin(), plan.retyped.end());
        for (const Change& change : plan.written)
            if (!tables.ours.Has(NameHere(plan, change.section)) || retyped.contains(change.section))
                plan.otherKeys.push_back(change.section);
    }

    /// The probes of theirs that are here as well and may have other keys than in the base.
    [[nodiscard]] static std::vector<std::wstring> TouchedSections(const Tables& tables, const Plan& plan) {
        const NameSet retyped(plan.retyped.begin(), plan.retyped.end());
        std::vector<std::wstring> sections;
        tables.theirs.ForEach([&](const std::wstring& section) {
            if (tables.touched.contains(section) && !retyped.contains(section) &&
                tables.ours.Has(NameHere(plan, section)))
                sections.push_back(section);
        });
        return sections;
    }

    struct OtherLinesOfAll {
        const OtherLines& base;
        const OtherLines& ours;
        const OtherLines& theirs;
    };

    void MergeOtherKeys(const Tables& tables, const std::wstring& section, const OtherLinesOfAll& lines,
                        Plan& plan) const {
        const std::wstring name = NameHere(plan, section);
        ProbeValues record = tables.theirs.Read(section); // with all that is a value in one of the files
        for (const auto& other : {tables.ours.Find(name), tables.base.Find(name)})
            if (other)
                record.entries.insert(record.entries.end(), other->entries.begin(), other->entries.end());
        const auto theirs = lines.theirs.ByKey(record);
        record.section = name;
        auto ours = lines.ours.ByKey(record);
        auto base = lines.base.ByKey(record);
        NameSet kept;
        for (const auto& [key, line] : theirs) {
            const std::wstring& our = ours[key];
            const std::wstring& before = base[key];
            if (line == our || line == before) {
                kept.insert(PlaceOf(tables.theirs, section, key));
            } else if (our != before) {
                plan.conflicts.push_back(L"[" + name +
                                         L"]: keys beside its values were changed here and in " + m_theirs);
                return;
            }
        }
        if (kept.size() == theirs.size())
            return;
        plan.otherKeys.push_back(section);
        plan.kept.merge(kept);
        for (const RecordImage::Entry& entry : record.entries)
            plan.kept.insert(tables.theirs.PlaceOf(section, entry.path));
    }

    /// "section/key" of a key of OtherLines::ByKey.
    static std::wstring PlaceOf(const ProbeTable& table, const std::wstring& section,
                                const std::wstring& key) {
        const std::size_t mark = settingsMark.size();
        if (!EqualFolded(std::wstring_view(key).substr(0, mark), settingsMark))
            return section + key;
        return table.PlaceOf(section, key.substr(mark + (key[mark] == L'/' ? 1 : nestedMark.size())));
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

    /// A probe of the base that both files lack, and that one or both have added under another name: it would
    /// be there twice, or stay although the other has removed it.
    void FindTwoNames(const Tables& tables, std::vector<std::wstring>& conflicts) const {
        const AddedProbes ourAdded(tables.ours, Added(tables.ours, tables.base));
        const AddedProbes theirAdded(tables.theirs, Added(tables.theirs, tables.base));
        if (ourAdded.IsEmpty() && theirAdded.IsEmpty())
            return;
        tables.base.ForEach([&](const std::wstring& section) {
            if (tables.ours.Has(section) || tables.theirs.Has(section))
                return;
            const ProbeValues probe = tables.base.Read(section);
            const auto our = ourAdded.NamesOf(probe);
            const auto their = theirAdded.NamesOf(probe);
            if ((!our.empty() && tables.theirs.Has(our.front())) ||
                (!their.empty() && tables.ours.Has(their.front())))
                return;
            const bool isKnown = AddedProbes::IsKnownByItsValues(probe);
            std::wstring what;
            if (!our.empty() && !their.empty())
                what = L"[" + our.front() + L"] here, to [" + their.front() + L"] in " + m_theirs;
            else if (!our.empty() && isKnown)
                what = L"[" + our.front() + L"] here, removed in " + m_theirs;
            else if (!their.empty() && isKnown)
                what = L"[" + their.front() + L"] in " + m_theirs + L", removed here";
            if (!what.empty())
                conflicts.push_back(L"[" + section + L"]: renamed to " + what);
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
        const std::wstring name = NameHere(plan, section);
        const auto* const base = tables.base.Find(name);
        const auto* const our = tables.ours.Find(name);
        const ProbeValues their = tables.theirs.Read(section);
        const std::wstring place = L"[" + name + L"]";
        if ((our && SameValues(*our, their)) || (base && SameValues(*base, their)))
            return; // they have changed nothing, or we the same
        if (!m_rules.allowsNan)
            RequireFinite(base, our, their, plan.conflicts);
        if (auto damage = DamageOf(tables.theirs, their, our ? our : base); !damage.empty()) {
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
    [[nodiscard]] std::wstring DamageOf(const ProbeTable& theirs, const ProbeValues& their,
                                        const ProbeValues* before) const {
        if (!FindType(their.code))
            return std::to_wstring(their.code) + L" in " + m_theirs + L" is the code of no conversion type";
        const std::wstring settings = SettingsSection(their.section);
        const auto mayHaveSettings = [](const ProbeValues& probe) {
            return MayHaveSettings(static_cast<QuorConversions::EQuorConversionType>(probe.code));
        };
        if (before && mayHaveSettings(*before) && !mayHaveSettings(their) && // else it is the host's
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

    /// Values that would become NaN or infinite: a mistake more often than meant, as for "set".
    void RequireFinite(const ProbeValues* base, const ProbeValues* our, const ProbeValues& their,
                       std::vector<std::wstring>& conflicts) const {
        const auto isSame = [](const Value* a, const Value* b) {
            return a && b ? SameValue(*a, *b) : a == b;
        };
        for (const RecordImage::Entry& entry : their.entries) {
            const double* const number = std::get_if<double>(&entry.value);
            if (!number || std::isfinite(*number))
                continue;
            const Value* const here = our ? our->Find(entry.path) : nullptr;
            const Value* const before = base ? base->Find(entry.path) : nullptr;
            if (isSame(here, before) &&
                !isSame(before, &entry.value)) // else it stays, or is a conflict anyway
                conflicts.push_back(L"[" + (our ? our : &their)->section + L"] " + entry.path + L": " +
                                    TextOf(here) + L" would become " + ToText(entry.value) + L" of " +
                                    m_theirs + L", which gives no temperature; --allow-nan stores it");
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

    static void Write(ProbeFile& file, ProbeFile& theirFile, const Change& change, bool isRetyped) {
        if (change.values.empty()) {
            const Probe probe = ReadProbe(theirFile, change.section);
            if (isRetyped)
                WriteRetyped(file, change.section, probe.Conversion());
            else
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
