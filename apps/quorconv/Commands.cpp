#include "apps/quorconv/Commands.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "QuorIniFile/detail/IniError.h"
#include "apps/quorconv/Probe.h"
#include "apps/records/IniImage.h"
#include "apps/records/Names.h"
#include "apps/records/ProbeFile.h"
#include "apps/records/RecordMerge.h"
#include "apps/records/Types.h"
#include "toolkits/scripted/Script.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <iterator>
#include <utility>

namespace quorconv {

using namespace QuorConversions;
using namespace ProbeRecords;
using QuorIniFile::ToPrintable;
using QuorIniFile::ToUtf8;
using Json = nlohmann::ordered_json;

namespace {

std::wstring Place(const std::wstring& file, const std::wstring& section) {
    return file + L": [" + section + L"]";
}

/// The messages of the library as the reasons of a problem.
std::vector<std::wstring> Reasons(const Probe& probe) {
    std::vector<std::wstring> reasons;
    for (const auto& message : probe.Messages())
        reasons.push_back(message.text);
    for (const auto& read : probe.Reads())
        if (!read.found)
            reasons.push_back(L"[" + read.section + L"] " + read.key + L": missing or unreadable");
    return reasons;
}

Record FindRecord(const ProbeFile& file, const std::wstring& section) {
    if (auto record = file.FindRecord(section))
        return *std::move(record);
    const bool exists = file.FindSection(section) != nullptr;
    throw Problem{Place(file.Path(), section) +
                  (exists ? L": the section is not the record of a probe" : L": there is no such section")};
}

/// Whether there is no complaint about a record but that it lacks keys which are about to be given.
bool IsCompletedBy(const Probe& probe, const std::vector<Assignment>& assignments) {
    const auto& messages = probe.Messages();
    const auto& reads = probe.Reads();
    return (messages.empty() || probe.LacksKeys()) &&
           std::all_of(messages.begin(), messages.end(), IsVersionMessage) &&
           std::all_of(reads.begin(), reads.end(), [&](const ReadLog::Read& read) {
               return read.found ||
                      std::any_of(assignments.begin(), assignments.end(),
                                  [&](const Assignment& a) { return SameName(a.key, probe.PathOf(read)); });
           });
}

/// The probe of a record; raises Problem when the library could not read all of it, but for what `completion`
/// gives.
Probe ReadProbe(const std::shared_ptr<QuorIniFile::INIFile>& store, const std::wstring& file, Record record,
                const std::vector<Assignment>& completion = {}) {
    Probe probe(store, file, std::move(record));
    probe.Read();
    if (!IsCompletedBy(probe, completion))
        throw Problem{Place(file, probe.Where().section) + L": the record cannot be read", Reasons(probe)};
    return probe;
}

/// Where a record is to be written: what stands there already, or a place for a new one.
struct Target {
    Record record;
    bool exists = false;
};

Target FindTarget(const std::wstring& path, const std::wstring& section, const TypeInfo& type) {
    try {
        const ProbeFile file(path);
        if (auto record = file.FindRecord(section))
            return {*std::move(record), true};
        if (file.FindSection(section))
            throw Problem{Place(path, section) + L": the section exists and is not the record of a probe"};
    } catch (const QuorIniFile::QuorError& error) {
        if (error.Number() != QuorIniFile::ERR_FILE_NOT_FOUND)
            throw;
    }
    // Types share sections, not extensions: a PT100 would fit into a "cvd" file, and then be no valid one.
    const auto standAlone = StandAloneSection(path);
    const bool isStandAlone = standAlone && SameName(*standAlone, section);
    if (isStandAlone && Folded(GetExtensionPart(path)) != type.extension)
        throw Problem{Place(path, section) + L": in a file of this kind the section is not for " +
                      type.enumerator};
    return {{section, 0, isStandAlone}, false};
}

/// Writes all of a probe into `iniFile`.
void WriteProbe(Probe& probe, const std::wstring& file,
                const std::shared_ptr<QuorIniFile::INIFile>& iniFile) {
    if (!probe.Write(iniFile))
        throw Problem{Place(file, probe.Where().section) + L": the record cannot be written", Reasons(probe)};
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

/// Writes what has become another value since the probe was read, into the file as it is within an edit of
/// `store`, and nothing else. Raises Problem when another program has changed the same.
void WriteChanges(Probe& probe, const std::wstring& file,
                  const std::shared_ptr<QuorIniFile::INIFile>& store) {
    const std::wstring& section = probe.Where().section;
    const auto merge = std::make_shared<RecordMerge>(probe.Store(), section, store, section);
    WriteProbe(probe, file, merge);
    std::vector<std::wstring> told;
    for (const RecordConflict& conflict : merge->Conflicts())
        told.push_back(TellConflict(file, conflict));
    if (!told.empty())
        throw Problem{told.front(), {std::next(told.begin()), told.end()}};
    merge->WriteChanges();
}

/// Gives the settings the values of the assignments, through the object itself, so that its own rules decide.
/// A value may need another one first (a coefficient past the count needs the count), so those that have no
/// place yet are tried again as long as new places appear.
void Assign(Probe& probe, const std::wstring& file, const std::vector<Assignment>& assignments) {
    const std::wstring place = Place(file, probe.Where().section) + L" ";
    SettingsObject* const settings = probe.Settings();
    if (!settings) {
        if (!assignments.empty())
            throw Problem{place + assignments.front().key + L": " + probe.TypeName() + L" has no settings"};
        return;
    }
    probe.ForgetMessages();
    std::vector<Assignment> pending = assignments;
    std::vector<IniImage::Entry> assigned;
    while (!pending.empty()) {
        const auto image = IniImage::Of(*settings);
        const auto unplaced = std::stable_partition(pending.begin(), pending.end(), [&](const Assignment& a) {
            return image->Find(a.key) != nullptr;
        });
        if (unplaced == pending.begin())
            throw Problem{place + pending.front().key + L": there is no such key in a record of this type"};
        for (auto assignment = pending.begin(); assignment != unplaced; ++assignment) {
            IniImage::Entry& entry = *image->Find(assignment->key);
            const auto value = ParseAs(entry.value, assignment->value);
            if (!value)
                throw Problem{place + assignment->key + L": " + WhatIsWrong(entry.value, assignment->value)};
            entry.value = *value;
            assigned.push_back(entry);
        }
        pending.erase(pending.begin(), unplaced);
        IniImage::Apply(image, *settings);
        if (!probe.Messages().empty())
            throw Problem{place + L"the values are refused", Reasons(probe)};
    }
    const auto result = IniImage::Of(*settings);
    for (auto entry = assigned.begin(); entry != assigned.end(); ++entry) {
        const bool replaced =
            std::any_of(std::next(entry), assigned.end(),
                        [&](const IniImage::Entry& later) { return later.path == entry->path; });
        const IniImage::Entry* const stored = result->Find(entry->path);
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
        const auto image = IniImage::Of(*probe.Settings());
        for (const auto& entry : image->Entries()) {
            const auto slash = entry.path.find(L'/');
            Json& parent =
                slash == std::wstring::npos ? settings : settings[ToUtf8(entry.path.substr(0, slash))];
            parent[ToUtf8(slash == std::wstring::npos ? entry.path : entry.path.substr(slash + 1))] =
                ToJson(entry.value);
        }
    }
    return {{"section", ToUtf8(probe.Where().section)},
            {"code", static_cast<std::int32_t>(probe.Conversion().ConversionType())},
            {"type", ToUtf8(probe.TypeName())},
            {"name", ToUtf8(probe.Name())},
            {"settings", std::move(settings)}};
}

void PrintProbe(const Probe& probe) {
    std::cout << ToPrintable(L"[" + probe.Where().section + L"] " + probe.TypeName() + L" " + probe.Name())
              << '\n';
    if (!probe.Settings())
        return;
    const auto image = IniImage::Of(*probe.Settings());
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
    const ProbeFile file(path);
    const auto store = StoreOf(path);
    for (const Record& record : file.Records()) {
        Probe probe(store, path, record);
        probe.Read();
        std::cout << ToPrintable(record.section) << '\t'
                  << ToPrintable(probe.HasType() ? probe.TypeName() : L"?") << '\t'
                  << ToPrintable(probe.HasType() ? probe.Name() : L"?") << '\n';
    }
}

void ShowProbes(const std::wstring& path, const std::wstring* section, bool asJson) {
    const ProbeFile file(path);
    std::vector<Record> records = file.Records();
    if (section)
        records = {FindRecord(file, *section)};
    const auto store = StoreOf(path);
    Json array = Json::array();
    const char* separator = "";
    for (const Record& record : records) {
        const Probe probe = ReadProbe(store, path, record);
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
    const auto store = StoreOf(path);
    store->Edit([&] {
        Target target = FindTarget(path, section, *type);
        if (target.exists)
            throw Problem{Place(path, section) + L": there is a probe in this section already"};
        Probe probe(store, path, std::move(target.record));
        probe.SetType(*type);
        Assign(probe, path, assignments);
        WriteProbe(probe, path, store);
    });
}

void SetValues(const std::wstring& path, const std::wstring& section,
               const std::vector<Assignment>& assignments) {
    const auto store = StoreOf(path);
    store->Edit([&] {
        const ProbeFile file(path);
        Probe probe = ReadProbe(store, path, FindRecord(file, section), assignments);
        Assign(probe, path, assignments);
        WriteChanges(probe, path, store);
    });
}

namespace {

Probe ReadEditableProbe(const std::wstring& path, const std::wstring& section) {
    const ProbeFile file(path);
    Probe probe = ReadProbe(StoreOf(path), path, FindRecord(file, section));
    if (!probe.Settings())
        throw Problem{Place(path, section) + L": " + probe.TypeName() + L" has no settings"};
    return probe;
}

/// Writes what a person has changed of a probe, who may have taken his time.
void WriteEdited(Probe& probe, const std::wstring& path) {
    const auto store = StoreOf(path);
    store->Edit([&] { WriteChanges(probe, path, store); });
}

} // namespace

void EditProbe(const std::wstring& path, const std::wstring& section, const std::wstring* scriptPath,
               bool show) {
    Probe probe = ReadEditableProbe(path, section);
    std::wstring commands = show ? L"show\n" : L"";
    if (scriptPath) {
        const auto script = QuorIniFile::ReadBytes(*scriptPath);
        if (!script)
            throw QuorIniFile::FileError(QuorIniFile::ERR_FILE_NOT_FOUND, *scriptPath);
        commands += QuorIniFile::DecodeBytes(script->bytes);
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
        WriteEdited(probe, path);
}

void EditProbeOn(const std::shared_ptr<Platform>& platform, const std::wstring& path,
                 const std::wstring& section) {
    Probe probe = ReadEditableProbe(path, section);
    // The probe itself stays with the platform that logs: its messages decide what is told here.
    CQuorConversion shown(platform);
    shown.SetConversionType(probe.Conversion().ConversionType());
    IniImage::Apply(IniImage::Of(*probe.Settings()), *shown.Settings());
    if (!shown.Edit())
        return;
    IniImage::Apply(IniImage::Of(*shown.Settings()), *probe.Settings());
    WriteEdited(probe, path);
}

void CopyProbe(const std::wstring& fromPath, const std::wstring& fromSection, const std::wstring& toPath,
               const std::wstring& toSection) {
    const ProbeFile from(fromPath);
    const Probe source = ReadProbe(StoreOf(fromPath), fromPath, FindRecord(from, fromSection));
    const TypeInfo* const type = FindType(source.Conversion().ConversionType());
    if (!type)
        throw Problem{Place(fromPath, fromSection) + L": " + source.TypeName() + L" is no conversion type"};
    const auto store = StoreOf(toPath);
    store->Edit([&] {
        Target target = FindTarget(toPath, toSection, *type);
        if (target.exists) {
            // Nothing ever deletes keys, so a record of another type would leave its own among the new ones.
            Probe old(store, toPath, target.record);
            old.Read();
            if (old.TypeName() != source.TypeName())
                throw Problem{Place(toPath, toSection) + L": there is a probe of another type (" +
                              old.TypeName() + L") in this section"};
        }
        Probe copy(store, toPath, std::move(target.record));
        copy.SetType(*type);
        if (source.Settings())
            IniImage::Apply(IniImage::Of(*source.Settings()), *copy.Settings());
        WriteProbe(copy, toPath, store);
    });
}

} // namespace quorconv
