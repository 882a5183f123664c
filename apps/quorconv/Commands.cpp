#include "apps/quorconv/Commands.h"

#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/ProbeWarning.h"
#include "QuorProbeFile/RecordImage.h"
#include "QuorProbeFile/RecordMerge.h"
#include "apps/quorconv/Probe.h"
#include "toolkits/scripted/Script.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>
#include <utility>

namespace quorconv {

using namespace QuorConversions;
using namespace QuorProbeFile;
using QuorIniFile::ToPrintable;
using QuorIniFile::ToUtf8;
using Json = nlohmann::ordered_json;

namespace {

std::wstring Place(const std::wstring& file, const std::wstring& section) {
    return file + L": [" + section + L"]";
}

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

/// Reads the probe of a section; raises Problem when the library could not read all of it, but for what
/// `completion` gives.
Probe ReadProbe(ProbeFile& file, const std::wstring& section,
                const std::vector<Assignment>& completion = {}) {
    Probe probe(section);
    const ReadOutcome outcome = file.Read(section, probe.Conversion());
    const std::wstring settings = outcome.probe.standAlone ? section : SettingsSection(section);
    if (!IsCompletedBy(outcome, settings, completion))
        throw Problem{Place(file.Path(), section) + L": the record cannot be read",
                      Reasons(outcome.messages, outcome.problems)};
    return probe;
}

/// `section` as the file spells it. To be asked for one probe: it is looked up from the start of the file.
std::wstring SpelledInFile(ProbeFile& file, const std::wstring& section) {
    const auto present = file.Find(section);
    return present ? present->section : section;
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

/// Writes what has become another value since the probe was read from `before`, into `now`, and nothing else.
/// Raises Problem when another program has changed the same.
void WriteChanges(const Probe& probe, ProbeFile& before, ProbeFile& now) {
    std::vector<std::wstring> told;
    for (const RecordConflict& conflict : now.WriteChanges(probe.Section(), probe.Conversion(), before))
        told.push_back(TellConflict(now.Path(), conflict));
    if (!told.empty())
        throw Problem{told.front(), {std::next(told.begin()), told.end()}};
}

/// Gives the settings the values of the assignments, through the object itself, so that its own rules decide.
/// A value may need another one first (a coefficient past the count needs the count), so those that have no
/// place yet are tried again as long as new places appear.
void Assign(Probe& probe, const std::wstring& file, const std::vector<Assignment>& assignments) {
    const std::wstring place = Place(file, probe.Section()) + L" ";
    SettingsObject* const settings = probe.Settings();
    if (!settings) {
        if (!assignments.empty())
            throw Problem{place + assignments.front().key + L": " + probe.TypeName() + L" has no settings"};
        return;
    }
    probe.ForgetMessages();
    std::vector<Assignment> pending = assignments;
    std::vector<RecordImage::Entry> assigned;
    while (!pending.empty()) {
        const auto image = RecordImage::Of(*settings);
        const auto unplaced = std::stable_partition(pending.begin(), pending.end(), [&](const Assignment& a) {
            return image->Find(a.key) != nullptr;
        });
        if (unplaced == pending.begin())
            throw Problem{place + pending.front().key + L": there is no such key in a record of this type"};
        for (auto assignment = pending.begin(); assignment != unplaced; ++assignment) {
            RecordImage::Entry& entry = *image->Find(assignment->key);
            const auto value = ParseAs(entry.value, assignment->value);
            if (!value)
                throw Problem{place + assignment->key + L": " + WhatIsWrong(entry.value, assignment->value)};
            entry.value = *value;
            assigned.push_back(entry);
        }
        pending.erase(pending.begin(), unplaced);
        RecordImage::Apply(image, *settings);
        if (!probe.Messages().empty())
            throw Problem{place + L"the values are refused", probe.Messages()};
    }
    const auto result = RecordImage::Of(*settings);
    for (auto entry = assigned.begin(); entry != assigned.end(); ++entry) {
        const bool replaced =
            std::any_of(std::next(entry), assigned.end(),
                        [&](const RecordImage::Entry& later) { return later.path == entry->path; });
        const RecordImage::Entry* const stored = result->Find(entry->path);
        if (!replaced && (!stored || !SameValue(stored->value, entry->value)))
            throw Problem{place + entry->path + L": the value " + ToText(entry->value) + L" is not accepted"};
    }
}

Json ToJson(const Value& value) {
    struct Visitor {
        Json operator()(const std::wstring& text) const { return ToUtf8(text); }
        Json operator()(std::int16_t number) const { return number; }
        Json operator()(bool flag) const { return flag; }
        Json operator()(double number) const {
            if (std::isfinite(number))
                return number;
            return ToUtf8(ToText(number)); // JSON has no number for these
        }
    };
    return std::visit(Visitor{}, value);
}

Json ToJson(const Probe& probe) {
    Json settings = Json::object();
    if (probe.Settings()) {
        const auto image = RecordImage::Of(*probe.Settings());
        for (const auto& entry : image->Entries()) {
            const auto slash = entry.path.find(L'/');
            Json& parent =
                slash == std::wstring::npos ? settings : settings[ToUtf8(entry.path.substr(0, slash))];
            parent[ToUtf8(slash == std::wstring::npos ? entry.path : entry.path.substr(slash + 1))] =
                ToJson(entry.value);
        }
    }
    return {{"section", ToUtf8(probe.Section())},
            {"code", static_cast<std::int32_t>(probe.Conversion().ConversionType())},
            {"type", ToUtf8(probe.TypeName())},
            {"name", ToUtf8(probe.Name())},
            {"settings", std::move(settings)}};
}

void PrintProbe(const Probe& probe) {
    std::cout << ToPrintable(L"[" + probe.Section() + L"] " + probe.TypeName() + L" " + probe.Name()) << '\n';
    if (!probe.Settings())
        return;
    const auto image = RecordImage::Of(*probe.Settings());
    for (const auto& entry : image->Entries())
        std::cout << ToPrintable(entry.path + L"=" + ToText(entry.value)) << '\n';
}

} // namespace

void ListTypes() {
    for (const TypeInfo& type : Types())
        std::cout << type.code << '\t' << ToUtf8(type.enumerator) << '\t' << ToUtf8(type.name) << '\t'
                  << ToUtf8(type.extension) << '\n';
}

void ListProbes(const std::wstring& path) {
    ProbeFile file(path);
    for (const ProbeEntry& probe : file.Probes())
        std::cout << ToPrintable(probe.section) << '\t'
                  << ToPrintable(probe.type ? TypeName(*probe.type) : L"?") << '\t'
                  << ToPrintable(probe.type ? file.ConversionName(probe) : L"?") << '\n';
}

void ShowProbes(const std::wstring& path, const std::wstring* section, bool asJson) {
    ProbeFile file(path);
    std::vector<std::wstring> sections;
    if (section)
        sections = {SpelledInFile(file, *section)};
    else
        for (const ProbeEntry& probe : file.Probes())
            sections.push_back(probe.section);
    Json array = Json::array();
    const char* separator = "";
    for (const std::wstring& name : sections) {
        const Probe probe = ReadProbe(file, name);
        if (asJson) {
            array.push_back(ToJson(probe));
        } else {
            std::cout << std::exchange(separator, "\n");
            PrintProbe(probe);
        }
    }
    if (asJson)
        std::cout << (section ? array.front() : array).dump(2) << '\n';
}

void NewProbe(const std::wstring& path, const std::wstring& section, const std::wstring& typeText,
              const std::vector<Assignment>& assignments) {
    const TypeInfo* const type = ParseType(typeText);
    if (!type || type->code == CONV_NONE)
        throw Problem{L"\"" + typeText + L"\" is no conversion type; the command \"types\" lists them"};
    ProbeFile file(path, ProbeFile::Opening::OrNew);
    file.Edit([&] {
        if (file.Find(section))
            throw Problem{Place(path, section) + L": there is a probe in this section already"};
        Probe probe(section);
        probe.Conversion().SetConversionType(type->code);
        Assign(probe, path, assignments);
        file.Write(section, probe.Conversion());
    });
}

void SetValues(const std::wstring& path, const std::wstring& section,
               const std::vector<Assignment>& assignments) {
    ProbeFile file(path);
    file.Edit([&] {
        Probe probe = ReadProbe(file, SpelledInFile(file, section), assignments);
        Assign(probe, path, assignments);
        WriteChanges(probe, file, file);
    });
}

namespace {

Probe ReadEditableProbe(ProbeFile& file, const std::wstring& section) {
    Probe probe = ReadProbe(file, SpelledInFile(file, section));
    if (!probe.Settings())
        throw Problem{Place(file.Path(), section) + L": " + probe.TypeName() + L" has no settings"};
    return probe;
}

/// Writes what a person has changed of a probe, who may have taken his time.
void WriteEdited(const Probe& probe, ProbeFile& before) {
    ProbeFile now(before.Path());
    WriteChanges(probe, before, now);
}

} // namespace

void EditProbe(const std::wstring& path, const std::wstring& section, const std::wstring* scriptPath,
               bool show) {
    ProbeFile file(path);
    Probe probe = ReadEditableProbe(file, section);
    std::wstring commands = show ? L"show\n" : L"";
    if (scriptPath) {
        std::ifstream script(ToUtf8(*scriptPath), std::ios::binary);
        if (!script)
            throw Problem{L"File not found: " + *scriptPath};
        const std::string bytes{std::istreambuf_iterator<char>(script), {}};
        commands += QuorIniFile::DecodeBytes(bytes);
    } else {
        commands += L"escape";
    }
    const std::size_t added = show ? 1 : 0; // lines that the script does not have
    try {
        Scripted::Script(commands, added).PlayOn(probe.Screen(), [](const std::wstring& screen) {
            std::cout << ToUtf8(screen);
        });
    } catch (const Scripted::ScriptError& error) {
        throw Problem{*scriptPath + L": " + error.text};
    }
    const bool accepted = probe.Settings()->Edit();
    if (const auto& complaints = probe.Screen().Complaints(); !complaints.empty())
        throw Problem{Place(path, section) + L": the dialog did not go as the script says", complaints};
    if (accepted)
        WriteEdited(probe, file);
}

void EditProbeOn(const std::shared_ptr<Platform>& platform, const std::wstring& path,
                 const std::wstring& section) {
    ProbeFile file(path);
    Probe probe = ReadEditableProbe(file, section);
    // The probe itself stays with the platform that logs: its messages decide what is told here.
    CQuorConversion shown(platform);
    shown.SetConversionType(probe.Conversion().ConversionType());
    RecordImage::Apply(RecordImage::Of(*probe.Settings()), *shown.Settings());
    if (!shown.Edit())
        return;
    RecordImage::Apply(RecordImage::Of(*shown.Settings()), *probe.Settings());
    WriteEdited(probe, file);
}

void CopyProbe(const std::wstring& fromPath, const std::wstring& fromSection, const std::wstring& toPath,
               const std::wstring& toSection) {
    ProbeFile from(fromPath);
    ProbeFile to(toPath, ProbeFile::Opening::OrNew);
    to.CopyFrom(from, fromSection, toSection);
}

std::vector<std::wstring> Reasons(const std::vector<std::wstring>& messages,
                                  const std::vector<ProbeProblem>& problems) {
    std::vector<std::wstring> reasons = messages;
    for (const ProbeProblem& problem : problems)
        if (IsOfKey(problem))
            reasons.push_back(L"[" + problem.section + L"] " + problem.key + L": missing or unreadable");
    return reasons;
}

namespace {

void PrintProblem(const std::wstring& file, const ProbeProblem& problem, const ProbeWarning* warning) {
    if (problem.line == 0) { // beside the file
        std::cout << ToPrintable(file + L": " + problem.text) << '\n';
        return;
    }
    std::cout << ToPrintable(file) << ':' << problem.line << ": " << (warning ? "warning: " : "")
              << ToPrintable(L"[" + problem.section + L"] " +
                             (problem.key.empty() ? L"" : problem.key + L": ") + problem.text +
                             (warning ? L" [" + warning->id + L"]" : L""))
              << '\n';
}

} // namespace

bool CheckFiles(const std::vector<std::wstring>& files, const WarningChoice& warnings) {
    bool fine = true;
    for (const std::wstring& file : files) {
        try {
            for (const ProbeProblem& problem : ProbeFile(file).Check()) {
                const ProbeWarning* const warning = FindWarning(problem.kind);
                if (warning && warnings.ignored.contains(warning->id))
                    continue;
                fine = fine && warning && !warnings.isStrict;
                PrintProblem(file, problem, warning);
            }
        } catch (const QuorIniFile::QuorError& error) {
            std::cout << ToPrintable(file) << ": " << ToPrintable(error.Description()) << '\n';
            fine = false;
        }
    }
    return fine;
}

} // namespace quorconv
