#include "apps/quorconv/Records.h"

#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordMeaning.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/Nearest.h"
#include "apps/quorconv/ProbeReader.h"

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

/// The section in which the settings of a probe begin, as the file spells it.
std::wstring SettingsOf(const ProbeEntry& probe) {
    return probe.standAlone ? probe.section : SettingsSection(probe.section);
}

/// Whether there is no complaint about a record but that it lacks keys which are about to be given. A type
/// that nobody knows is shown as it is; a value that the settings replace is only for who edits the record.
bool IsCompletedBy(const ReadOutcome& outcome, const std::vector<Assignment>& assignments, bool isEdited) {
    const auto& problems = outcome.problems;
    const std::wstring settings = SettingsOf(outcome.probe);
    const bool lacksKeys = std::any_of(problems.begin(), problems.end(), IsOfKey);
    return (outcome.messages.empty() || lacksKeys) &&
           std::all_of(problems.begin(), problems.end(), [&](const ProbeProblem& problem) {
               if (problem.kind == PROBLEM_UNKNOWN_TYPE ||
                   (isEdited && problem.kind == PROBLEM_VALUE_REPLACED))
                   return true;
               return IsOfKey(problem) &&
                      std::any_of(assignments.begin(), assignments.end(), [&](const Assignment& a) {
                          return EqualFolded(a.key, PathOf(settings, problem.section, problem.key));
                      });
           });
}

/// Whether the file has each whole number and each flag that the settings hold: they replace some that are
/// out of their range without a message.
bool HoldsWhatStands(const SettingsObject& settings, QuorIniFile::INIFile& store,
                     const std::wstring& section) {
    struct Visitor : StandsInFile {
        using StandsInFile::operator();
        bool operator()(double /*held*/) const { return true; }
        bool operator()(const std::wstring& /*held*/) const { return true; }
    };
    const auto image = RecordImage::Of(settings);
    return std::all_of(image->Entries().begin(), image->Entries().end(),
                       [&](const RecordImage::Entry& entry) {
                           const std::wstring key = SelectKey(store, SettingsSection(section), entry.path);
                           return std::visit(Visitor{{store, key}}, entry.value);
                       });
}

} // namespace

bool StandsInFile::operator()(std::int16_t value) const {
    std::int16_t present = 0;
    return store.ReadInteger(key, present) && present == value;
}

bool StandsInFile::operator()(bool value) const {
    bool present = false;
    return store.ReadBoolean(key, present) && present == value;
}

bool ReadWhole(ProbeFile& file, Probe& probe) {
    std::shared_ptr<QuorIniFile::INIFile> store = file.Store();
    std::int16_t code = 0;
    store->SetSection(probe.Section());
    return store->ReadInteger(conversionTypeKey, code) && FindType(code) &&
           probe.Conversion().ReadFromFile(store, L"", probe.Section()) && probe.Messages().empty() &&
           (!probe.Settings() || HoldsWhatStands(*probe.Settings(), *store, probe.Section()));
}

namespace {

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
    NameSet keys;
    for (const std::wstring& text : texts) {
        const auto equals = text.find(L'=');
        if (equals == std::wstring::npos || equals == 0)
            throw UsageError{L"KEY=VALUE expected: " + text};
        assignments.push_back({text.substr(0, equals), text.substr(equals + 1)});
        if (!keys.insert(assignments.back().key).second)
            throw UsageError{assignments.back().key + L": the key is given twice"};
    }
    return assignments;
}

void ValueRules::Declare(Arguments& arguments) {
    arguments.Flag("--allow-nan", allowsNan, "Accept NaN and Infinity as numbers");
}

void ValueRules::DeclareDrop(Arguments& arguments) {
    arguments.Flag("--drop", drops,
                   "Allow the loss of values beyond the new count, order or range, and the change of a\n"
                   "flag, type or scale that gives other values another meaning; without it, such a\n"
                   "change is refused, and the message names the values");
}

RecordForm FormOf(const std::vector<RecordImage::Entry>& entries) {
    const auto flag = std::find_if(entries.begin(), entries.end(), [](const RecordImage::Entry& entry) {
        return std::holds_alternative<bool>(entry.value);
    });
    if (flag == entries.end())
        return RecordForm::Any;
    return std::get<bool>(flag->value) ? RecordForm::Polynomial : RecordForm::AlphaDeltaBeta;
}

namespace {

/// Reads a probe with what is wrong with it, and its record.
Probe ReadWithRecord(ProbeFile& file, const std::wstring& section, const std::vector<Assignment>& completion,
                     bool isEdited) {
    Probe probe(section);
    const ReadOutcome outcome = file.Read(section, probe.Conversion());
    if (!IsCompletedBy(outcome, completion, isEdited))
        throw Problem{Place(file.Path(), section) + L": the record cannot be read",
                      Reasons(outcome.messages, outcome.problems)};
    return probe;
}

} // namespace

Probe ReadProbe(ProbeFile& file, const std::wstring& section, const std::vector<Assignment>& completion) {
    Probe whole(section);
    return ReadWhole(file, whole) ? std::move(whole) : ReadWithRecord(file, section, completion, false);
}

Probe ReadProbeToEdit(ProbeFile& file, const std::wstring& section) {
    Probe probe = ReadWithRecord(file, section, {}, true);
    if (!probe.Settings())
        throw Problem{Place(file.Path(), section) + L": " + probe.TypeName() + L" has no settings"};
    probe.Record() = file.Record(section);
    return probe;
}

std::wstring MeantKey(const Probe& probe, const RecordImage& image, const std::wstring& typed) {
    const EQuorConversionType type = probe.Conversion().ConversionType();
    const RecordForm form = FormOf(image.Entries());
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

namespace {

using Entries = std::vector<RecordImage::Entry>;

bool IsMinusZero(double number) { return number == 0.0 && std::signbit(number); }

/// Whether something is lost with a value. Counts, codes and flags follow from others where nobody gives
/// them.
bool SaysSomething(const Value& value) {
    const double* const number = std::get_if<double>(&value);
    const std::wstring* const text = std::get_if<std::wstring>(&value);
    return (number && *number != 0.0) || (text && !text->empty());
}

/// One assignment of values to the settings of a probe: its steps, in their order.
class Assigning {
public:
    Assigning(Probe& probe, const std::wstring& file, std::vector<Assignment> assignments,
              const ValueRules& rules)
        : m_probe(probe),
          m_settings(*probe.Settings()),
          m_place(Place(file, probe.Section()) + L" "),
          m_rules(rules),
          m_pending(std::move(assignments)),
          m_image(RecordImage::Of(m_settings)),
          m_before(m_image->Entries()) {
        probe.ForgetMessages();
    }

    /// Gives the settings the values. A value may need another one first (a coefficient past the count needs
    /// the count), so those that have no place yet are tried again as long as new places appear.
    void Assign() {
        while (!m_pending.empty()) {
            const auto unplaced =
                std::stable_partition(m_pending.begin(), m_pending.end(), [&](const Assignment& assignment) {
                    return m_image->Find(assignment.key) != nullptr;
                });
            if (unplaced == m_pending.begin())
                throw Problem{m_place + m_pending.front().key +
                              L": there is no such key in a record of this type" +
                              MeantKey(m_probe, *m_image, m_pending.front().key)};
            std::for_each(m_pending.begin(), unplaced,
                          [this](const Assignment& assignment) { Put(assignment); });
            m_pending.erase(m_pending.begin(), unplaced);
            RecordImage::Apply(m_image, m_settings);
            if (!m_probe.Messages().empty())
                throw Problem{m_place + L"the values are refused", Reasons(m_probe.Messages(), {})};
            m_image = RecordImage::Of(m_settings);
        }
        RequireTaken();
        const auto isMinusZero = [](const RecordImage::Entry& entry) {
            const double* const number = std::get_if<double>(&entry.value);
            return number && IsMinusZero(*number);
        };
        if (std::any_of(m_assigned.begin(), m_assigned.end(), isMinusZero))
            m_image = AsReadAgain(); // some values are read as 0 from "-0": 0 is what is written of them
    }

    /// Raises Problem with the values that were not given.
    void RequireAll() const {
        constexpr std::size_t mostNamed = 20;
        std::wstring missing;
        std::size_t count = 0;
        for (std::size_t at = 0; at < Result().size(); ++at) {
            if (m_isAssigned[at])
                continue;
            if (++count <= mostNamed)
                missing += (missing.empty() ? L"" : L", ") + Result()[at].path;
        }
        if (count > mostNamed)
            missing += L" and " + std::to_wstring(count - mostNamed) + L" more";
        if (count > 0)
            throw Problem{m_place + missing +
                          (count == 1 ? L": the value is missing" : L": the values are missing") +
                          L", and the probe is a new one"};
    }

    /// Raises Problem for a value that the record has gained and that was not given.
    void RequireGained() const {
        for (std::size_t at = 0; at < Result().size(); ++at) {
            const std::wstring& path = Result()[at].path;
            if (m_isAssigned[at] || !std::holds_alternative<double>(Result()[at].value) ||
                (at < m_before.size() && m_before[at].path == path)) // which most are, where nothing moves
                continue;
            const bool wasThere =
                std::any_of(m_before.begin(), m_before.end(),
                            [&](const RecordImage::Entry& entry) { return entry.path == path; });
            if (!wasThere)
                throw Problem{m_place + path + L": the value is missing, and the record has none yet"};
        }
    }

    /// Raises Problem with the values that the record has lost, or that are others now, or mean something
    /// else, without being given.
    void RequireNothingLost() const {
        const Entries redecided = Redecided();
        std::vector<std::wstring> lost;
        std::vector<std::wstring> reinterpreted;
        for (const RecordImage::Entry& entry : m_before) {
            const RecordImage::Entry* const stored = m_image->Find(entry.path);
            if ((stored && IsEnteredAgain(*stored, entry)) || !SaysSomething(entry.value))
                continue;
            if (!stored || !SameValue(stored->value, entry.value))
                lost.push_back(entry.path + L"=" + ToText(entry.value));
            for (const RecordImage::Entry& old : redecided) {
                const RecordImage::Entry& now = *m_image->Find(old.path);
                if (stored && ChangesMeaning(old.path, old.value, now.value, entry.path))
                    reinterpreted.push_back(entry.path + L"=" + ToText(entry.value) + L", by " + now.path +
                                            L"=" + ToText(now.value));
            }
        }
        RefuseLoss(m_place, std::move(lost));
        if (!reinterpreted.empty())
            throw Problem{m_place + L"values of the probe would change their meaning; enter them again, or "
                                    L"use --drop to allow it",
                          std::move(reinterpreted)};
    }

    [[nodiscard]] Entries Changed() const {
        Entries changed;
        for (std::size_t at = 0; at < Result().size(); ++at) {
            const bool isSame = at < m_before.size() && m_before[at].path == Result()[at].path &&
                                SameValue(m_before[at].value, Result()[at].value);
            if (!isSame)
                changed.push_back(Result()[at]);
        }
        return changed;
    }

    static void RefuseLoss(const std::wstring& place, std::vector<std::wstring> lost) {
        if (!lost.empty())
            throw Problem{place + L"values of the probe would be lost; use --drop to allow it",
                          std::move(lost)};
    }

private:
    /// The record as it is read from a file that has it.
    [[nodiscard]] std::shared_ptr<RecordImage> AsReadAgain() const {
        CQuorConversion conversion;
        conversion.SetConversionType(m_probe.Conversion().ConversionType());
        RecordImage::Apply(m_image, *conversion.Settings());
        return RecordImage::Of(*conversion.Settings());
    }
    /// The entries as they were of flags, counts, codes and texts that have other values now. One that
    /// the file did not have had no meaning for the others.
    [[nodiscard]] Entries Redecided() const {
        Entries redecided;
        std::copy_if(m_before.begin(), m_before.end(), std::back_inserter(redecided),
                     [&](const RecordImage::Entry& entry) {
                         const RecordImage::Entry* const stored = m_image->Find(entry.path);
                         return !std::holds_alternative<double>(entry.value) && stored &&
                                !m_completed.contains(entry.path) && !SameValue(stored->value, entry.value);
                     });
        return redecided;
    }
    /// Whether a value was given for what it means now. A table and JSON carry each value, also where nobody
    /// has looked at it: there it is entered again if it is another one.
    [[nodiscard]] bool IsEnteredAgain(const RecordImage::Entry& stored,
                                      const RecordImage::Entry& before) const {
        return m_isAssigned[PlaceOf(&stored)] &&
               !(m_rules.completes && SameValue(stored.value, before.value));
    }
    [[nodiscard]] const Entries& Result() const { return m_image->Entries(); }
    [[nodiscard]] std::size_t PlaceOf(const RecordImage::Entry* entry) const {
        return static_cast<std::size_t>(entry - Result().data());
    }

    void Put(const Assignment& assignment) {
        RecordImage::Entry& entry = *m_image->Find(assignment.key);
        const auto value = ParseAs(entry.value, assignment.value);
        if (!value)
            throw Problem{m_place + assignment.key + L": " + WhatIsWrong(entry.value, assignment.value)};
        const double* const number = std::get_if<double>(&*value);
        if (number && !std::isfinite(*number) && !m_rules.allowsNan)
            throw Problem{m_place + assignment.key + L": " + ToText(*value) +
                          L" gives no temperature; --allow-nan stores it"};
        const auto* const code = std::get_if<std::int16_t>(&*value);
        if (code && !SameValue(entry.value, *value))
            RequireCode(entry.path, *code);
        entry.value = *value;
        m_assigned.push_back(entry);
        if (assignment.completes)
            m_completed.insert(entry.path);
    }

    /// Raises Problem for a code that stands for nothing, and for a count below zero, which the settings
    /// would refuse in words that say nothing of it.
    void RequireCode(const std::wstring& path, std::int16_t code) const {
        const RecordKey* const key =
            FindRecordKey(m_probe.Conversion().ConversionType(), path, RecordForm::Any);
        if (key && (key->choices.empty() ? code < 0 : ChoiceName(*key, code).empty()))
            throw Problem{m_place + path + L": " + std::to_wstring(code) + NotInRange(key)};
    }

    [[nodiscard]] static std::wstring NotInRange(const RecordKey* key) {
        return L" is not accepted" + (key && !key->range.empty() ? L"; range: " + key->range : L"");
    }

    /// The count that leaves out a value, if there is one: "; it is beyond NumCoefficients=3".
    [[nodiscard]] std::wstring Beyond(const std::wstring& path) const {
        const auto slash = path.find(L'/');
        const std::wstring nested = slash == std::wstring::npos ? L"" : path.substr(0, slash + 1);
        const auto count = std::find_if(Result().begin(), Result().end(), [&](const auto& entry) {
            return entry.path.starts_with(nested + L"Num");
        });
        return count == Result().end() ? L"" : L"; it is beyond " + count->path + L"=" + ToText(count->value);
    }

    /// Raises Problem for a value that the settings have not taken. Of what was given several times the last
    /// one counts.
    void RequireTaken() {
        m_isAssigned.assign(Result().size(), false);
        for (std::size_t i = m_assigned.size(); i-- > 0;) {
            const RecordImage::Entry& entry = m_assigned[i];
            const RecordImage::Entry* const stored = m_image->Find(entry.path);
            if (stored && m_isAssigned[PlaceOf(stored)])
                continue;
            if (!stored || !IsTaken(entry.value, stored->value))
                throw Problem{m_place + entry.path + L": the value " + ToText(entry.value) +
                              NotInRange(std::holds_alternative<std::int16_t>(entry.value)
                                             ? FindRecordKey(m_probe.Conversion().ConversionType(),
                                                             entry.path, RecordForm::Any)
                                             : nullptr) +
                              (stored ? L"" : Beyond(entry.path))};
            m_isAssigned[PlaceOf(stored)] = true;
        }
    }

    Probe& m_probe;
    SettingsObject& m_settings;
    std::wstring m_place;
    const ValueRules& m_rules;
    std::vector<Assignment> m_pending;
    std::shared_ptr<RecordImage> m_image; // of the settings as they are now
    Entries m_before;
    Entries m_assigned;
    NameSet m_completed;
    std::vector<bool> m_isAssigned; // of the entries of m_image
};

} // namespace

std::vector<RecordImage::Entry> Assign(Probe& probe, const std::wstring& file,
                                       const std::vector<Assignment>& assignments, const ValueRules& rules,
                                       Assigned which) {
    if (!probe.Settings() && assignments.empty())
        return {};
    if (!probe.Settings())
        throw Problem{Place(file, probe.Section()) + L" " + assignments.front().key + L": " +
                      probe.TypeName() + L" has no settings"};
    Assigning assigning(probe, file, assignments, rules);
    assigning.Assign();
    if (which == Assigned::All)
        assigning.RequireAll();
    else if (!rules.drops)
        assigning.RequireNothingLost();
    if (rules.completes)
        assigning.RequireGained();
    return assigning.Changed();
}

std::wstring SelectKey(QuorIniFile::INIFile& store, const std::wstring& settings, const std::wstring& path) {
    const auto slash = path.find(L'/');
    if (slash == std::wstring::npos) {
        store.SetSection(settings);
        return path;
    }
    store.SetSection(settings + std::wstring(nestedMark) + path.substr(0, slash));
    return path.substr(slash + 1);
}

namespace {

void WriteEntry(QuorIniFile::INIFile& store, const std::wstring& settings, const RecordImage::Entry& entry) {
    struct Visitor {
        QuorIniFile::INIFile& store;
        const std::wstring& key;
        void operator()(const std::wstring& value) const { store.WriteString(key, value); }
        void operator()(std::int16_t value) const { store.WriteInteger(key, value, L""); }
        void operator()(double value) const { store.WriteDouble(key, value, L""); }
        void operator()(bool value) const { store.WriteBoolean(key, value); }
    };
    const std::wstring key = SelectKey(store, settings, entry.path);
    std::visit(Visitor{store, key}, entry.value);
}

/// Raises Problem with the values that stand in the file beside a count which left them out, and that a
/// greater count would write over with 0.
void RequireNothingWrittenOver(ProbeFile& file, const std::wstring& section, const std::wstring& settings,
                               const Entries& changed, const std::vector<Assignment>& assignments) {
    std::vector<std::wstring> lost;
    NameSet given; // there may be 32767
    for (const Assignment& assignment : assignments)
        given.insert(assignment.key);
    for (const RecordImage::Entry& entry : changed) {
        std::wstring text;
        if (given.contains(entry.path) ||
            !file.Store()->ReadString(SelectKey(*file.Store(), settings, entry.path), text))
            continue;
        const auto present = ParseAs(entry.value, text);
        if (!text.empty() && !(present && (SameValue(*present, entry.value) || !SaysSomething(*present))))
            lost.push_back(entry.path + L"=" + text);
    }
    Assigning::RefuseLoss(Place(file.Path(), section) + L" ", std::move(lost));
}

/// Raises Problem with the values that stand in the file and that a count leaves out which has taken the
/// place of one that was refused: nobody knows how many were meant.
void RequireNothingLeftOut(ProbeFile& file, const Probe& probe) {
    constexpr int mostGaps = 64; // keys that are missing between others
    const auto image = RecordImage::Of(*probe.Settings());
    NameSet lists;
    for (const RecordKey& key : RecordKeys(probe.Conversion().ConversionType()))
        if (key.index >= 0)
            lists.insert(key.list);
    std::vector<std::wstring> lost;
    for (const std::wstring& list : lists) {
        for (int index = 0, gaps = 0; gaps < mostGaps; ++index) {
            const std::wstring path = list + std::to_wstring(index);
            std::wstring text;
            if (!file.Store()->ReadString(SelectKey(*file.Store(), SettingsSection(probe.Section()), path),
                                          text)) {
                ++gaps;
                continue;
            }
            const auto value = ParseAs(Value(0.0), text);
            if (!image->Find(path) && (!value || SaysSomething(*value)))
                lost.push_back(std::wstring(path).append(L"=").append(text));
        }
    }
    std::sort(lost.begin(), lost.end());
    Assigning::RefuseLoss(Place(file.Path(), probe.Section()) + L" ", std::move(lost));
}

/// Whether the settings take a value in the place of another one, and nothing else changes with it.
bool IsTakenAlone(const Value& value, const Value& before, const ValueRules& rules) {
    const double* const number = std::get_if<double>(&value);
    if (!number)
        return SameValue(value, before);
    return (std::isfinite(*number) || rules.allowsNan) && !IsMinusZero(*number);
}

/// Gives a record all of its values: numbers, and what it has already. False when these are not all, or when
/// one of them needs a closer look.
bool GiveAll(ProbeValues& probe, const std::vector<Assignment>& assignments, const ValueRules& rules) {
    // The keys differ: the readers of tables and of JSON see to that.
    if (probe.entries.size() != assignments.size())
        return false;
    for (std::size_t at = 0; at < assignments.size(); ++at) {
        const auto isMeant = [&](const RecordImage::Entry& entry) {
            return entry.path == assignments[at].key || EqualFolded(entry.path, assignments[at].key);
        };
        auto entry = probe.entries.begin() + static_cast<std::ptrdiff_t>(at);
        if (!isMeant(*entry))
            entry = std::find_if(probe.entries.begin(), probe.entries.end(), isMeant);
        if (entry == probe.entries.end())
            return false;
        const bool isParsed =
            assignments[at].parsed && assignments[at].parsed->index() == entry->value.index();
        const auto value = isParsed ? assignments[at].parsed : ParseAs(entry->value, assignments[at].value);
        if (!value || !IsTakenAlone(*value, entry->value, rules))
            return false;
        entry->value = *value;
    }
    return true;
}

/// Gives numbers to a probe of which nothing is wrong, which needs no conversion. False when nothing was
/// written, because there is more to look at.
bool AssignNumbers(ProbeFile& file, const std::wstring& section, const std::vector<Assignment>& assignments,
                   const ValueRules& rules) {
    static ProbeReader reader; // which keeps what it has learned of records, and nothing of a file
    const ProbeValues* const probe = reader.Find(file, section);
    if (!probe || probe->shape == 0)
        return false;
    Entries changed;
    for (const Assignment& assignment : assignments) {
        const auto entry =
            std::find_if(probe->entries.begin(), probe->entries.end(), [&](const RecordImage::Entry& one) {
                return EqualFolded(one.path, assignment.key);
            });
        const auto value =
            entry == probe->entries.end() ? std::nullopt : ParseAs(entry->value, assignment.value);
        if (!value || !IsTakenAlone(*value, entry->value, rules))
            return false;
        if (!SameValue(*value, entry->value))
            changed.push_back({entry->path, *value});
    }
    const std::wstring settings = SettingsSection(section);
    for (const RecordImage::Entry& entry : changed)
        WriteEntry(*file.Store(), settings, entry);
    return true;
}

/// Writes those of the values for which the settings refuse the record as a whole, such as a count below
/// zero, or take another one: they hold nothing of what stands there then, so that it is to be read again.
/// False when none of them is given.
bool WriteRefused(ProbeFile& file, const std::wstring& section, const std::vector<Assignment>& assignments) {
    Probe probe(section);
    const ReadOutcome outcome = file.Read(section, probe.Conversion());
    const std::wstring settings = SettingsOf(outcome.probe);
    bool isWritten = false;
    for (const ProbeProblem& problem : outcome.problems) {
        const std::wstring path = PathOf(settings, problem.section, problem.key);
        const auto given = std::find_if(assignments.begin(), assignments.end(),
                                        [&](const Assignment& a) { return EqualFolded(a.key, path); });
        const RecordKey* const key =
            FindRecordKey(probe.Conversion().ConversionType(), path, RecordForm::Any);
        const bool isRefused =
            problem.kind == PROBLEM_VALUE_REFUSED || problem.kind == PROBLEM_VALUE_REPLACED;
        if (!isRefused || given == assignments.end() || !key)
            continue;
        if (const auto value = ParseAs(key->initial, given->value)) {
            WriteEntry(*file.Store(), settings, {path, *value});
            isWritten = true;
        }
    }
    return isWritten;
}

/// The same values, with what completes the record.
std::vector<Assignment> Completing(ProbeFile& file, const Probe& probe,
                                   const std::vector<Assignment>& assignments) {
    const std::wstring settings = SettingsOf(*file.Find(probe.Section()));
    std::vector<Assignment> completing = assignments;
    for (Assignment& assignment : completing) {
        std::wstring text;
        const RecordKey* const key =
            FindRecordKey(probe.Conversion().ConversionType(), assignment.key, RecordForm::Any);
        assignment.completes =
            key && !(file.Store()->ReadString(SelectKey(*file.Store(), settings, assignment.key), text) &&
                     ParseAs(key->initial, text));
    }
    return completing;
}

} // namespace

void AssignInFile(ProbeFile& file, const std::wstring& section, const std::vector<Assignment>& assignments,
                  const ValueRules& rules) {
    if (AssignNumbers(file, section, assignments, rules))
        return;
    Probe probe(section);
    bool isWhole = ReadWhole(file, probe) && probe.Settings();
    if (!isWhole && WriteRefused(file, section, assignments)) {
        probe = Probe(section);
        isWhole = ReadWhole(file, probe) && probe.Settings();
        if (isWhole && !rules.drops)
            RequireNothingLeftOut(file, probe);
    }
    if (!isWhole)
        probe = ReadProbe(file, section, assignments); // which tells what is wrong with it
    const Entries changed =
        Assign(probe, file.Path(), isWhole ? assignments : Completing(file, probe, assignments), rules);
    const std::wstring settings = isWhole ? SettingsSection(section) : SettingsOf(*file.Find(section));
    if (!rules.drops)
        RequireNothingWrittenOver(file, section, settings, changed, assignments);
    if (!isWhole)
        return file.Write(section, probe.Conversion());
    for (const RecordImage::Entry& entry : changed)
        WriteEntry(*file.Store(), settings, entry);
}

void WriteNewProbe(ProbeFile& file, const std::wstring& section, EQuorConversionType type,
                   const std::vector<Assignment>& assignments, const ValueRules& rules) {
    static ProbeReader writtenOnes; // which a conversion has accepted: a file may hold what it refuses
    if (const ProbeValues* const probe =
            writtenOnes.Make(type, [&](ProbeValues& one) { return GiveAll(one, assignments, rules); }))
        return file.WriteNew(section, type, probe->entries);
    Probe probe(section);
    probe.Conversion().SetConversionType(type);
    Assign(probe, file.Path(), assignments, rules, Assigned::All);
    file.Write(section, probe.Conversion());
    static_cast<void>(writtenOnes.Find(file, section)); // the next one may be like it
}

bool MayHaveKey(EQuorConversionType type, const std::wstring& key) {
    const auto digits = key.find_last_not_of(L"0123456789") + 1;
    return FindRecordKey(type, key, RecordForm::Any) ||
           (digits < key.size() && FindRecordKey(type, key.substr(0, digits) + L"0", RecordForm::Any));
}

void WriteEdited(Probe& probe, ProbeFile& file) {
    std::vector<std::wstring> told;
    for (const RecordConflict& conflict :
         file.WriteChanges(probe.Section(), probe.Conversion(), probe.Record()))
        told.push_back(TellConflict(file.Path(), conflict));
    if (!told.empty())
        throw Problem{told.front(), {std::next(told.begin()), told.end()}};
}

void RequireName(ProbeFile& file, const std::wstring& name) {
    // The store gives back more names than other programs that read the file.
    const struct {
        bool isBroken;
        const wchar_t* reason;
    } rules[] = {
        {name.empty(), L"a name needs a character"},
        {name.find(L']') != std::wstring::npos, L"a \"]\" ends the name in the file"},
        {name.find_first_of(L"\r\n") != std::wstring::npos, L"it has a line break"},
        {std::any_of(name.begin(), name.end(), [](wchar_t c) { return c < L' ' || c == L'\x7F'; }),
         L"it has a tab or another control character, which no list of names can show as it is"},
        {name.starts_with(L'#') || name.starts_with(L';'), L"what begins so is a comment to other programs"},
        {!name.empty() && (std::iswspace(static_cast<std::wint_t>(name.front())) != 0 ||
                           std::iswspace(static_cast<std::wint_t>(name.back())) != 0),
         L"blanks around it would be lost in the file"},
        {!QuorIniFile::IniStore::CanNameSection(name), L"the file could not give it back"},
        {!file.Store()->CanSpell(name),
         L"the file is in Latin-1, which cannot spell it; save the file as UTF-8 first"},
    };
    for (const auto& [isBroken, reason] : rules) {
        if (isBroken)
            throw Problem{Place(file.Path(), name) + L": no section can have this name: " + reason};
    }
}

} // namespace quorconv
