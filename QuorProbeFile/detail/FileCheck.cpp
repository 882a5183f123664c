#include "QuorProbeFile/detail/FileCheck.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/IniLines.h"
#include "QuorIniFile/ValueText.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordReference.h"
#include "QuorProbeFile/detail/RecordComparison.h"
#include "QuorProbeFile/detail/RecordProblems.h"
#include "QuorProbeFile/detail/RecordReading.h"
#include "QuorProbeFile/detail/RecordWarnings.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>
#include <utility>
#include <variant>

namespace QuorProbeFile {

using QuorConversions::coefficientsKey;
using QuorConversions::numCoefficientsKey;
using QuorConversions::numPointsKey;
using QuorConversions::offsetsKey;
using QuorConversions::orderKey;
using QuorConversions::rangeKey;
using QuorConversions::temperaturesKey;
using QuorConversions::versionKey;
using QuorConversions::voltagesKey;
using QuorIniFile::IniLeftover;
using QuorIniFile::IniLines;
using QuorIniFile::IniStore;
using QuorIniFile::IniWarning;
using QuorIniFile::IniWarningKind;

namespace {

/// A key that says how many indexed values stand beside it. A record that is written with fewer leaves the
/// others in the file, as every program that writes records does: they are no mistake.
struct CountKey {
    const wchar_t* name;
    std::array<std::wstring_view, 3> indexed;
    EProbeProblem warning;
};
constexpr CountKey countKeys[] = {
    {numCoefficientsKey, {coefficientsKey}, WARNING_COUNT_DOES_NOT_FIT},
    {numPointsKey, {temperaturesKey, offsetsKey, voltagesKey}, WARNING_COUNT_DOES_NOT_FIT},
    {orderKey, {coefficientsKey}, WARNING_COUNT_DOES_NOT_FIT},
    {rangeKey, {coefficientsKey}, WARNING_RANGE_DOES_NOT_FIT},
};

const CountKey* FindCountKey(const std::wstring& name) {
    const auto* const found = std::find_if(std::begin(countKeys), std::end(countKeys),
                                           [&name](const CountKey& count) { return name == count.name; });
    return found == std::end(countKeys) ? nullptr : found;
}

/// Whether a key is that of a value which `count` counts: its name and an index.
bool IsCounted(const CountKey& count, std::wstring_view key) {
    return std::any_of(count.indexed.begin(), count.indexed.end(), [key](std::wstring_view name) {
        if (name.empty() || key.size() <= name.size() || !EqualFolded(key.substr(0, name.size()), name))
            return false;
        const std::wstring_view index = key.substr(name.size());
        return index.find_first_not_of(L"0123456789") == std::wstring_view::npos &&
               (index.size() == 1 || index.front() != L'0');
    });
}

/// The keys for coefficients, points and other measured values that a section of any record can have.
const NameSet& MeasuredKeys() {
    static const NameSet keys = [] {
        NameSet found;
        for (const TypeInfo& type : Types())
            for (const RecordKey& key : RecordKeys(type.code))
                if (std::holds_alternative<double>(key.initial))
                    found.insert(key.path.substr(key.path.find(L'/') + 1));
        return found;
    }();
    return keys;
}

/// What the library has asked for in a section.
struct AskedKeys {
    std::set<std::wstring> names; // folded
    std::vector<const CountKey*> counts;

    [[nodiscard]] bool Explain(const std::wstring& key) const {
        return names.contains(key) || EqualFolded(key, versionKey) ||
               std::any_of(counts.begin(), counts.end(),
                           [&key](const CountKey* count) { return IsCounted(*count, key); });
    }
};

class FileCheck {
public:
    explicit FileCheck(const std::shared_ptr<IniStore>& store) : m_store(store), m_places(*store) {}

    void Report(ProbeProblem problem) { m_problems.push_back(std::move(problem)); }

    /// Keys and sections that nobody reads, the host's own too: those that stand twice, of which the first is
    /// read, and those of lines that end in a carriage return alone.
    void CheckHiddenLines() {
        for (const IniWarning& warning : m_store->Warnings()) {
            if (warning.kind == IniWarningKind::LineEndsInCr)
                Report(ProblemIn(PROBLEM_LINE_ENDS_IN_CR, warning.line, warning.section, warning.key,
                                 {{PROBE_TEXT_LINE_ENDS_IN_CR}}));
            const bool isKey = warning.kind == IniWarningKind::DuplicateKey;
            if (!isKey && warning.kind != IniWarningKind::DuplicateSection)
                continue;
            Report(ProblemIn(isKey ? PROBLEM_DUPLICATE_KEY : PROBLEM_DUPLICATE_SECTION, warning.line,
                             warning.section, warning.key,
                             {{isKey ? PROBE_TEXT_DUPLICATE_KEY : PROBE_TEXT_DUPLICATE_SECTION,
                               {std::to_wstring(warning.first)}}}));
        }
    }

    void CheckRecord(const std::wstring& path, const ProbeEntry& probe) {
        const RecordReading reading(m_store, path, probe);
        if (IsRight(reading, probe)) {
            Warn(reading, probe);
            return;
        }
        bool isLookedThrough =
            reading.HasType(); // the library has asked for each key that the record can have
        for (ProbeProblem& problem : ProblemsOf(reading, probe, m_places)) {
            if (problem.kind == PROBLEM_SECTION_MISSING) {
                if (!m_missingSections.insert(Folded(problem.section)).second)
                    continue;
                problem.key.clear();
            }
            isLookedThrough = isLookedThrough && !IsGivenUpAfter(problem);
            Report(std::move(problem));
        }
        if (isLookedThrough)
            Warn(reading, probe);
        CheckSections(reading, probe, isLookedThrough);
    }

    /// Settings of probes that are not there. A host may have sections that are named so: they count only if
    /// they hold measured values.
    void CheckOwners(const std::vector<ProbeEntry>& probes) {
        NameSet owners;
        std::size_t longest = 0; // a name of many pieces is not looked up piece by piece
        for (const ProbeEntry& probe : probes) {
            owners.insert(probe.section);
            longest = std::max(longest, probe.section.size());
        }
        const auto isThere = [&](std::wstring_view owner) {
            return owner.size() <= longest && owners.contains(owner);
        };
        for (IniLines lines = m_store->Lines(); lines.NextHeader();) {
            const std::wstring section = lines.Name();
            const auto possible = PossibleOwners(section);
            if (possible.empty() || std::any_of(possible.begin(), possible.end(), isThere))
                continue;
            const SectionIndex::Section& place = *m_places.Section(section);
            if (place.header.number == lines.Number() && HoldsMeasured(place)) // the first one of its name
                Report(ProblemIn(WARNING_NO_SUCH_PROBE, lines.Number(), section, {},
                                 {{PROBE_TEXT_NO_SUCH_PROBE, {std::wstring(possible.back())}}}));
        }
    }

    /// What saves have left beside the file.
    void CheckLeftovers(std::vector<ProbeProblem>& problems) const {
        for (const IniLeftover& leftover : m_store->Leftovers())
            problems.push_back(ProblemIn(
                leftover.isKept ? PROBLEM_KEPT_FILE : PROBLEM_INTERRUPTED_SAVE, 0, {}, {},
                {{leftover.isKept ? PROBE_TEXT_KEPT_FILE : PROBE_TEXT_INTERRUPTED_SAVE, {leftover.path}}}));
    }

    [[nodiscard]] std::vector<ProbeProblem> Take() {
        std::stable_sort(m_problems.begin(), m_problems.end(),
                         [](const ProbeProblem& a, const ProbeProblem& b) { return a.line < b.line; });
        CheckLeftovers(m_problems);
        return std::move(m_problems);
    }

private:
    [[nodiscard]] bool HoldsMeasured(const SectionIndex::Section& section) {
        bool holds = false;
        m_places.ForEachLine(section, [&](const IniLines& line) {
            holds = holds || (line.Is(IniLines::Kind::Key) && MeasuredKeys().contains(line.Name()));
        });
        return holds;
    }

    void Warn(const RecordReading& reading, const ProbeEntry& probe) {
        for (RecordWarning& warning : WarningsOf(reading))
            Report(ProblemAt(*warning.read, probe, m_places, warning.kind, {std::move(warning.phrase)}));
    }

    /// Whether the library may have asked for no more keys of the record.
    [[nodiscard]] static bool IsGivenUpAfter(const ProbeProblem& problem) {
        return problem.kind == PROBLEM_UNKNOWN_TYPE || problem.kind == PROBLEM_RECORD_REFUSED ||
               problem.kind == PROBLEM_VALUE_REFUSED;
    }

    /// Whether the record is right at first sight, as nearly all are: the library has nothing to say, has
    /// found every key, takes every value as it is, and its sections have as many keys as were asked for.
    bool IsRight(const RecordReading& reading, const ProbeEntry& probe) {
        const std::vector<ReadLog::Read>& reads = reading.Reads();
        if (!reading.Messages().empty() || reading.LacksKeys() || probe.standAlone ||
            !FindType(reading.Conversion().ConversionType()))
            return false;
        if (const auto settings = reading.Settings()) {
            const auto comparison = std::make_shared<RecordComparison>(reads, 1); // behind the type
            settings->WriteOrRaise(comparison, SettingsSection(probe.section));
            if (!comparison->IsSame())
                return false;
        }
        for (std::size_t first = 0; first < reads.size();) {
            std::size_t last = first;
            while (last < reads.size() && reads[last].section == reads[first].section)
                ++last;
            const SectionIndex::Section* const section = m_places.Section(reads[first].section);
            if (section->keys != last - first || section->malformed != 0)
                return false;
            first = last;
        }
        return true;
    }

    /// Keys that no record of this type has, and lines that are no keys.
    void CheckSections(const RecordReading& reading, const ProbeEntry& probe, bool isLookedThrough) {
        std::map<std::wstring, AskedKeys> known;
        known[Folded(probe.section)];
        if (reading.Settings())
            known[Folded(probe.standAlone ? probe.section : SettingsSection(probe.section))];
        for (const ReadLog::Read& read : reading.Reads()) {
            AskedKeys& keys = known[Folded(read.section)];
            keys.names.insert(Folded(read.key));
            if (const CountKey* const count = FindCountKey(read.key))
                keys.counts.push_back(count);
        }
        for (const auto& [name, keys] : known)
            if (const auto* const section = m_places.Section(name))
                CheckSection(*section, keys, isLookedThrough);
        for (const ReadLog::Read& read : reading.Reads()) {
            const CountKey* const count = isLookedThrough && read.found ? FindCountKey(read.key) : nullptr;
            if (count)
                CheckCount(*count, read, probe, known[Folded(read.section)]);
        }
    }

    /// Whether values that are not 0 stand beside a count or an ITS-90 range that leaves them out: the wrong
    /// count or range, most likely.
    void CheckCount(const CountKey& count, const ReadLog::Read& read, const ProbeEntry& probe,
                    const AskedKeys& known) {
        std::wstring surplus;
        std::set<std::wstring> seen;
        m_places.ForEachLine(*m_places.Section(read.section), [&](const IniLines& line) {
            const std::wstring key = line.Is(IniLines::Kind::Key) ? Folded(line.Name()) : std::wstring{};
            if (!IsCounted(count, key) || known.names.contains(key) || !seen.insert(key).second)
                return;
            if (const auto value = QuorIniFile::DoubleOf(line.Value()); value && *value != 0.0)
                surplus += (surplus.empty() ? L"" : L", ") + line.Name();
        });
        if (surplus.empty())
            return;
        Report(ProblemAt(read, probe, m_places, count.warning,
                         {{count.warning == WARNING_RANGE_DOES_NOT_FIT ? PROBE_TEXT_RANGE_LACKS_COEFFICIENTS
                                                                       : PROBE_TEXT_COUNT_LEAVES_OUT,
                           {ToText(read.value), surplus}}}));
    }

    void CheckSection(const SectionIndex::Section& section, const AskedKeys& known, bool isLookedThrough) {
        const std::wstring name = m_places.NameOf(section);
        std::set<std::wstring> seen;
        m_places.ForEachLine(section, [&](const IniLines& line) {
            if (line.Is(IniLines::Kind::Malformed)) {
                Report(ProblemIn(PROBLEM_MALFORMED_LINE, line.Number(), name, {},
                                 {{PROBE_TEXT_MALFORMED_LINE}}));
                return;
            }
            const std::wstring key = Folded(line.Name());
            if (isLookedThrough && !known.Explain(key) && seen.insert(key).second)
                Report(ProblemIn(PROBLEM_UNKNOWN_KEY, line.Number(), name, line.Name(),
                                 {{PROBE_TEXT_UNKNOWN_KEY}}));
        });
    }

    std::shared_ptr<IniStore> m_store;
    LinePlaces m_places;
    std::vector<ProbeProblem> m_problems;
    std::set<std::wstring> m_missingSections;
};

} // namespace

std::vector<ProbeProblem> CheckFile(const std::shared_ptr<IniStore>& store, const std::wstring& path,
                                    const std::vector<ProbeEntry>& probes,
                                    const std::vector<std::size_t>& lostSections,
                                    const std::function<void()>& afterEach) {
    FileCheck check(store);
    if (const auto section = StandAloneSection(path); section && probes.empty())
        check.Report(ProblemIn(PROBLEM_SECTION_MISSING, 1, *section, {}, {{PROBE_TEXT_SECTION_MISSING}}));
    for (const std::size_t line : lostSections)
        check.Report(ProblemIn(PROBLEM_UNCLOSED_HEADER, line, {}, {}, {{PROBE_TEXT_UNCLOSED_HEADER}}));
    check.CheckHiddenLines();
    if (lostSections.empty()) // any of those may be the probe
        check.CheckOwners(probes);
    for (const ProbeEntry& probe : probes) {
        check.CheckRecord(path, probe);
        afterEach();
    }
    return check.Take();
}

} // namespace QuorProbeFile
