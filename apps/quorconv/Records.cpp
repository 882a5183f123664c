#include "apps/quorconv/Records.h"

#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/Nearest.h"

#include <algorithm>
#include <cmath>
#include <cwctype>
#include <iterator>

namespace quorconv {

using namespace QuorConversions;
using namespace QuorProbeFile;

namespace {

/// Whether a key is missing, or cannot be read.
bool IsOfKey(const ProbeProblem& problem) {
    return problem.kind == PROBLEM_SECTION_MISSING || problem.kind == PROBLEM_KEY_MISSING ||
           problem.kind == PROBLEM_VALUE_UNREADABLE;
}

/// Whether there is no complaint about a record but that it lacks keys which are about to be given. A type
/// that nobody knows, and a value that the settings replace, are shown as they are.
bool IsCompletedBy(const ReadOutcome& outcome, const std::wstring& settings,
                   const std::vector<Assignment>& assignments) {
    const auto& problems = outcome.problems;
    const bool lacksKeys = std::any_of(problems.begin(), problems.end(), IsOfKey);
    return (outcome.messages.empty() || lacksKeys) &&
           std::all_of(problems.begin(), problems.end(), [&](const ProbeProblem& problem) {
               if (problem.kind == PROBLEM_UNKNOWN_TYPE || problem.kind == PROBLEM_VALUE_REPLACED)
                   return true;
               return IsOfKey(problem) &&
                      std::any_of(assignments.begin(), assignments.end(), [&](const Assignment& a) {
                          return EqualFolded(a.key, PathOf(settings, problem.section, problem.key));
                      });
           });
}

std::wstring TellConflict(const std::wstring& file, const RecordConflict& conflict) {
    std::wstring text = Place(file, conflict.section) + L" " + conflict.key + L": another program has ";
    if (!conflict.read)
        text += L"added it meanwhile as " + ToText(*conflict.theirs);
    else if (!conflict.theirs)
        text += L"removed it meanwhile, which was " + ToText(*conflict.read);
    else
        text += L"changed it meanwhile from " + ToText(*conflict.read) + L" to " + ToText(*conflict.theirs);
    return text + L"; yours is " + ToText(conflict.ours) + L", and nothing was written";
}

} // namespace

std::wstring Place(const std::wstring& file, const std::wstring& section) {
    return file + L": [" + section + L"]";
}

std::vector<Assignment> Assignments(const std::vector<std::wstring>& texts) {
    std::vector<Assignment> assignments;
    for (const std::wstring& text : texts) {
        const auto equals = text.find(L'=');
        if (equals == std::wstring::npos || equals == 0)
            throw UsageError{L"KEY=VALUE expected: " + text};
        assignments.push_back({text.substr(0, equals), text.substr(equals + 1)});
    }
    return assignments;
}

void ValueRules::Declare(Arguments& arguments) {
    arguments.Flag("--allow-nan", allowsNan, "Take NaN and Infinity for numbers");
}

RecordForm FormOf(const RecordImage& image) {
    const auto flag =
        std::find_if(image.Entries().begin(), image.Entries().end(), [](const RecordImage::Entry& entry) {
            return std::holds_alternative<bool>(entry.value);
        });
    if (flag == image.Entries().end())
        return RecordForm::Any;
    return std::get<bool>(flag->value) ? RecordForm::Polynomial : RecordForm::AlphaDeltaBeta;
}

Probe ReadProbe(ProbeFile& file, const std::wstring& section, const std::vector<Assignment>& completion) {
    Probe probe(section);
    const ReadOutcome outcome = file.Read(section, probe.Conversion());
    const std::wstring settings = outcome.probe.standAlone ? section : SettingsSection(section);
    if (!IsCompletedBy(outcome, settings, completion))
        throw Problem{Place(file.Path(), section) + L": the record cannot be read",
                      Reasons(outcome.messages, outcome.problems)};
    return probe;
}

Probe ReadProbeWithSettings(ProbeFile& file, const std::wstring& section) {
    Probe probe = ReadProbe(file, section);
    if (!probe.Settings())
        throw Problem{Place(file.Path(), section) + L": " + probe.TypeName() + L" has no settings"};
    return probe;
}

std::wstring MeantKey(const Probe& probe, const RecordImage& image, const std::wstring& typed) {
    const EQuorConversionType type = probe.Conversion().ConversionType();
    const RecordForm form = FormOf(image);
    if (FindRecordKey(type, typed, RecordForm::Any))
        return L"; it needs another count, order or range";
    std::wstring named; // by a name that several keys may have ("High Range" and "Low Range": a)
    std::vector<std::wstring> known;
    for (const RecordKey& key : RecordKeys(type)) {
        if (key.form != RecordForm::Any && key.form != form)
            continue;
        if (!key.name.empty() && EqualFolded(key.name, typed))
            named += (named.empty() ? L"; did you mean \"" : L" or \"") + key.path + L"\"";
        known.push_back(key.path);
    }
    return named.empty() ? DidYouMean(typed, known) : named + L"?";
}

// NOLINTNEXTLINE(readability-function-cognitive-complexity): the steps of one assignment in their order
std::vector<RecordImage::Entry> Assign(Probe& probe, const std::wstring& file,
                                       const std::vector<Assignment>& assignments, const ValueRules& rules,
                                       Assigned which) {
    const std::wstring place = Place(file, probe.Section()) + L" ";
    SettingsObject* const settings = probe.Settings();
    if (!settings && assignments.empty())
        return {};
    if (!settings)
        throw Problem{place + assignments.front().key + L": " + probe.TypeName() + L" has no settings"};
    probe.ForgetMessages();
    auto image = RecordImage::Of(*settings);
    const std::vector<RecordImage::Entry> before = image->Entries();
    // A value may need another one first (a coefficient past the count needs the count), so those that have
    // no place yet are tried again as long as new places appear.
    std::vector<Assignment> pending = assignments;
    std::vector<RecordImage::Entry> assigned;
    while (!pending.empty()) {
        const auto unplaced = std::stable_partition(pending.begin(), pending.end(), [&](const Assignment& a) {
            return image->Find(a.key) != nullptr;
        });
        if (unplaced == pending.begin())
            throw Problem{place + pending.front().key + L": there is no such key in a record of this type" +
                          MeantKey(probe, *image, pending.front().key)};
        for (auto assignment = pending.begin(); assignment != unplaced; ++assignment) {
            RecordImage::Entry& entry = *image->Find(assignment->key);
            const auto value = ParseAs(entry.value, assignment->value);
            if (!value)
                throw Problem{place + assignment->key + L": " + WhatIsWrong(entry.value, assignment->value)};
            const double* const number = std::get_if<double>(&*value);
            if (number && !std::isfinite(*number) && !rules.allowsNan)
                throw Problem{place + assignment->key + L": " + ToText(*value) +
                              L" gives no temperature; --allow-nan stores it"};
            entry.value = *value;
            assigned.push_back(entry);
        }
        pending.erase(pending.begin(), unplaced);
        RecordImage::Apply(image, *settings);
        if (!probe.Messages().empty())
            throw Problem{place + L"the values are refused", Reasons(probe.Messages(), {})};
        image = RecordImage::Of(*settings);
    }
    const std::vector<RecordImage::Entry>& result = image->Entries();
    std::vector<bool> isAssigned(result.size(), false); // of what was given several times the last one counts
    std::reverse(assigned.begin(), assigned.end());
    for (const RecordImage::Entry& entry : assigned) {
        const RecordImage::Entry* const stored = image->Find(entry.path);
        const auto at = stored ? static_cast<std::size_t>(stored - result.data()) : 0;
        if (stored && isAssigned[at])
            continue;
        if (!stored || !SameValue(stored->value, entry.value))
            throw Problem{place + entry.path + L": the value " + ToText(entry.value) + L" is not accepted"};
        isAssigned[at] = true;
    }
    std::vector<RecordImage::Entry> changed;
    for (std::size_t at = 0; at < result.size(); ++at) {
        if (which == Assigned::All && !isAssigned[at])
            throw Problem{place + result[at].path + L": the value is missing, and the probe is a new one"};
        const bool isSame = at < before.size() && before[at].path == result[at].path &&
                            SameValue(before[at].value, result[at].value);
        if (!isSame)
            changed.push_back(result[at]);
    }
    return changed;
}

namespace {

/// Reads a record of a host as it stands, when there is nothing wrong with it.
bool ReadWhole(ProbeFile& file, Probe& probe) {
    std::shared_ptr<QuorIniFile::INIFile> store = file.Store();
    std::int16_t code = 0;
    store->SetSection(probe.Section());
    return store->ReadInteger(conversionTypeKey, code) &&
           probe.Conversion().ReadFromFile(store, L"", probe.Section()) && probe.Settings() &&
           probe.Messages().empty();
}

void WriteEntry(QuorIniFile::INIFile& store, const std::wstring& settings, const RecordImage::Entry& entry) {
    struct Visitor {
        QuorIniFile::INIFile& store;
        const std::wstring& key;
        void operator()(const std::wstring& value) const { store.WriteString(key, value); }
        void operator()(std::int16_t value) const { store.WriteInteger(key, value, L""); }
        void operator()(double value) const { store.WriteDouble(key, value, L""); }
        void operator()(bool value) const { store.WriteBoolean(key, value); }
    };
    const auto slash = entry.path.find(L'/');
    const bool isNested = slash != std::wstring::npos;
    store.SetSection(isNested ? settings + std::wstring(nestedMark) + entry.path.substr(0, slash) : settings);
    std::visit(Visitor{store, isNested ? entry.path.substr(slash + 1) : entry.path}, entry.value);
}

} // namespace

void AssignInFile(ProbeFile& file, const std::wstring& section, const std::vector<Assignment>& assignments,
                  const ValueRules& rules) {
    Probe whole(section);
    if (ReadWhole(file, whole)) {
        const std::wstring settings = SettingsSection(section);
        for (const RecordImage::Entry& entry : Assign(whole, file.Path(), assignments, rules))
            WriteEntry(*file.Store(), settings, entry);
        return;
    }
    Probe probe = ReadProbe(file, section, assignments); // which tells what is wrong with it
    Assign(probe, file.Path(), assignments, rules);
    file.Write(section, probe.Conversion());
}

void WriteChanges(const Probe& probe, ProbeFile& before, ProbeFile& now) {
    std::vector<std::wstring> told;
    for (const RecordConflict& conflict : now.WriteChanges(probe.Section(), probe.Conversion(), before))
        told.push_back(TellConflict(now.Path(), conflict));
    if (!told.empty())
        throw Problem{told.front(), {std::next(told.begin()), told.end()}};
}

void WriteEdited(const Probe& probe, ProbeFile& before) {
    ProbeFile now(before.Path());
    WriteChanges(probe, before, now);
}

void RequireName(const std::wstring& file, const std::wstring& name) {
    // The store gives back more names than other programs that read the file.
    const struct {
        bool isBroken;
        const wchar_t* reason;
    } rules[] = {
        {name.empty(), L"a name needs a character"},
        {name.find(L']') != std::wstring::npos, L"a \"]\" ends the name in the file"},
        {name.find_first_of(L"\r\n") != std::wstring::npos, L"it has a line break"},
        {name.starts_with(L'#') || name.starts_with(L';'), L"what begins so is a comment to other programs"},
        {!name.empty() && (std::iswspace(static_cast<std::wint_t>(name.front())) != 0 ||
                           std::iswspace(static_cast<std::wint_t>(name.back())) != 0),
         L"blanks around it are lost in the file"},
        {!QuorIniFile::IniStore::CanNameSection(name), L"the file could not give it back"},
    };
    for (const auto& [isBroken, reason] : rules) {
        if (isBroken)
            throw Problem{Place(file, name) + L": no section can have this name: " + reason};
    }
}

} // namespace quorconv
