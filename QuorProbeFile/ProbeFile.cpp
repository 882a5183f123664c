#include "QuorProbeFile/ProbeFile.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/modPaths.h"
#include "QuorConversions/thermistor/CQuorThermistor.h"
#include "QuorIniFile/IniLines.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordImage.h"
#include "QuorProbeFile/SectionPlan.h"
#include "QuorProbeFile/detail/ConsistencyCheck.h"
#include "QuorProbeFile/detail/FileCheck.h"
#include "QuorProbeFile/detail/KeptValues.h"
#include "QuorProbeFile/detail/RecordBaseline.h"
#include "QuorProbeFile/detail/RecordProblems.h"
#include "QuorProbeFile/detail/RecordReading.h"
#include "QuorProbeFile/detail/SectionIndex.h"
#include "QuorProbeFile/detail/WriteValue.h"

#include <algorithm>
#include <utility>

namespace QuorProbeFile {

using namespace QuorConversions;
using QuorIniFile::IniLines;
using QuorIniFile::IniStore;
using QuorIniFile::IniWarning;
using QuorIniFile::IniWarningKind;

namespace {

/// The type as messages name it: its enumerator, or the code of one that is none.
std::wstring TypeName(std::int32_t code) {
    const wchar_t* const enumerator = ConversionEnumerator(code);
    return enumerator ? enumerator : std::to_wstring(code);
}

std::wstring TypeName(const std::optional<EQuorConversionType>& type) {
    return type ? TypeName(std::int32_t{*type}) : L"?";
}

bool IsNamedByItsValues(std::int32_t code) { return code == CONV_TCTYPEX || code == CONV_TCTYPEPOLY; }

/// Whether the settings object has given up reading the record.
bool IsRefused(const std::vector<ProbeProblem>& problems) {
    return std::any_of(problems.begin(), problems.end(), [](const ProbeProblem& problem) {
        return problem.kind == PROBLEM_RECORD_REFUSED || problem.kind == PROBLEM_VALUE_REFUSED;
    });
}

/// Whether a section would be part of the settings of a probe, and not the first of their sections: "P -
/// Settings - Low Range".
bool IsNested(std::wstring_view section) {
    const auto owners = PossibleOwners(section);
    return std::any_of(owners.begin(), owners.end(), [&](std::wstring_view owner) {
        return owner.size() + settingsMark.size() != section.size();
    });
}

/// Gives one conversion type and values of another one, and nothing of what it held before.
void Assign(CQuorConversion& to, const CQuorConversion& from) {
    to.SetConversionType(from.ConversionType());
    if (const auto thermistor = SettingsAs<CQuorThermistor>(from)) // a host may have turned the other one
        SettingsAs<CQuorThermistor>(to)->SetConvType(thermistor->ConvType());
    if (const auto settings = from.Settings()) {
        RecordImage::Apply(RecordImage::Of(*settings), *to.Settings());
        to.Settings()->ClearSpareValues();
    }
}

/// Selects the section again that is selected now, when it goes.
class SelectedSection {
public:
    explicit SelectedSection(IniStore& store) : m_store(store), m_section(store.Section()) {}
    SelectedSection(const SelectedSection&) = delete;
    SelectedSection& operator=(const SelectedSection&) = delete;
    ~SelectedSection() { m_store.SetSection(m_section); } // the store has had room for the name
private:
    IniStore& m_store;
    std::wstring m_section;
};

} // namespace

ProbeFile::ProbeFile(std::wstring_view path, Opening opening)
    : m_path(path), m_store(std::make_shared<IniStore>()) {
    Load(path, opening);
}

ProbeFile::ProbeFile(std::wstring_view path, QuorIniFile::IniFileSystem& files, Opening opening)
    : m_path(path), m_store(std::make_shared<IniStore>(files)) {
    Load(path, opening);
}

ProbeFile::ProbeFile(std::wstring path, std::shared_ptr<IniStore> store)
    : m_path(std::move(path)), m_store(std::move(store)) {}

std::unique_ptr<ProbeFile> ProbeFile::Snapshot(ProbeFile& file) {
    return std::unique_ptr<ProbeFile>(new ProbeFile(file.m_path, IniStore::OfText(file.Text())));
}

ProbeFile::~ProbeFile() = default;

void ProbeFile::Load(std::wstring_view path, Opening opening) {
    m_store->SetFileName(path);
    if (opening == Opening::Existing)
        static_cast<void>(m_store->Text());
    else
        static_cast<void>(Exists());
}

ProbeFileError ProbeFile::Error(EProbeFileError code, std::wstring_view section,
                                std::wstring_view other) const {
    return {code, m_path, std::wstring(section), std::wstring(other)};
}

// What is there

void ProbeFile::Survey() {
    const bool exists = Exists();
    if (m_surveyed == m_store->TextNumber())
        return;
    m_probes.clear();
    m_lostSections.clear();
    if (!exists)
        return;
    const SelectedSection selected(*m_store);
    const std::string typeKey = QuorIniFile::ToUtf8(conversionTypeKey);
    const bool isPlain = m_store->HasPlainHeaders();
    SectionIndex sections;
    IniLines lines = m_store->Lines();
    IniLines header = lines; // of the section that is walked through
    bool isFirst = false;    // of its name; nobody reads another one
    bool hasType = false;
    std::optional<EQuorConversionType> type;
    const auto finish = [&] {
        if (hasType && header.Is(IniLines::Kind::UnclosedHeader))
            m_lostSections.push_back(header.Number());
        else if (isFirst && hasType)
            m_probes.push_back({header.Name(), header.Number(), type, false});
        else if (isFirst && m_standAlone && EqualFolded(header.Name(), *m_standAlone))
            m_probes.push_back({header.Name(), header.Number(), {}, true});
    };
    while (lines.NextHeaderOr(typeKey)) {
        if (!lines.Is(IniLines::Kind::Key)) {
            finish();
            header = lines;
            isFirst = lines.Is(IniLines::Kind::Header) && (isPlain || sections.Add(lines) != nullptr);
            hasType = false;
            type.reset();
        } else if (!hasType && header.Number() != 0) {
            hasType = true;
            if (const auto code = lines.Integer())
                type = EQuorConversionType{*code};
        }
    }
    finish();
    for (ProbeEntry& probe : m_probes) {
        if (probe.standAlone)
            probe.type = RecordReading(m_store, m_path, probe).Conversion().ConversionType();
    }
    m_surveyed = m_store->TextNumber();
}

/// Where sections and keys stand in the text as it is now.
LinePlaces& ProbeFile::Places() {
    if (!m_places || m_placesText != m_store->TextNumber()) {
        m_places = std::make_unique<LinePlaces>(*m_store);
        m_placesText = m_store->TextNumber();
    }
    return *m_places;
}

std::vector<std::wstring> ProbeFile::Sections() {
    return Exists() ? m_store->Sections() : std::vector<std::wstring>();
}

std::string_view ProbeFile::Text() { return Exists() ? m_store->Text() : std::string_view(); }

const std::vector<ProbeEntry>& ProbeFile::Probes() {
    Survey();
    return m_probes;
}

const std::vector<std::size_t>& ProbeFile::LostSections() {
    Survey();
    return m_lostSections;
}

std::optional<ProbeEntry> ProbeFile::Find(std::wstring_view section) {
    const SelectedSection selected(*m_store);
    auto probe = Locate(section);
    if (!probe)
        return std::nullopt;
    // Its header, the first one of that name: a look at the headers costs less than a survey of the file.
    IniLines lines = m_store->Lines();
    const std::string bytes = QuorIniFile::ToUtf8(section);
    const bool isAscii = bytes.size() == section.size();
    const auto isHeader = [&] {
        return lines.Is(IniLines::Kind::Header) &&
               (isAscii ? lines.HasName(bytes) : EqualFolded(lines.Name(), section));
    };
    while (lines.NextHeader() && !isHeader()) {
    }
    probe->section = lines.Name();
    probe->line = lines.Number();
    if (probe->standAlone)
        probe->type = RequireType(*probe);
    return probe;
}

std::wstring ProbeFile::ConversionName(const ProbeEntry& probe) {
    if (!probe.type)
        return {};
    const SelectedSection selected(*m_store);
    if (probe.standAlone || IsNamedByItsValues(*probe.type)) {
        const RecordReading reading(m_store, m_path, probe);
        return NameOf(reading.Conversion());
    }
    const auto [name, isNew] = m_typeNames.try_emplace(*probe.type);
    if (isNew) {
        CQuorConversion conversion;
        conversion.SetConversionType(*probe.type);
        name->second = NameOf(conversion);
    }
    return name->second;
}

std::vector<IniWarning> ProbeFile::DuplicateSections() {
    if (!Exists() || m_store->HasPlainHeaders())
        return {};
    std::vector<IniWarning> warnings;
    SectionIndex sections;
    for (IniLines lines = m_store->Lines(); lines.NextHeader();) {
        if (!lines.Is(IniLines::Kind::Header) || sections.Add(lines))
            continue;
        const IniLines::Place first = sections.Find(lines.Name())->header;
        IniLines header = m_store->Lines(first);
        static_cast<void>(header.Next());
        warnings.push_back(
            {IniWarningKind::DuplicateSection, lines.Number(), first.number, header.Name(), {}});
    }
    return warnings;
}

bool ProbeFile::HasSection(std::wstring_view section) { return Exists() && m_store->HasSection(section); }

/// The probe of a section, without its line: that would take a walk through the whole file.
std::optional<ProbeEntry> ProbeFile::Locate(std::wstring_view section) {
    if (!HasSection(section))
        return std::nullopt;
    m_store->SetSection(section);
    ProbeEntry probe{std::wstring(section), 0, {}, false};
    std::wstring text;
    if (m_store->ReadString(conversionTypeKey, text)) {
        std::int16_t code = 0;
        if (m_store->ReadInteger(conversionTypeKey, code))
            probe.type = EQuorConversionType{code};
        return probe;
    }
    if (!m_standAlone || !EqualFolded(*m_standAlone, section))
        return std::nullopt;
    probe.standAlone = true;
    return probe;
}

ProbeEntry ProbeFile::Require(std::wstring_view section) {
    if (auto probe = Locate(section))
        return *std::move(probe);
    throw Error(HasSection(section) ? PROBE_NO_RECORD : PROBE_NO_SUCH_SECTION, section);
}

// Reading

/// The type of a probe that Require has found.
EQuorConversionType ProbeFile::RequireType(const ProbeEntry& probe) {
    if (probe.standAlone)
        return RecordReading(m_store, m_path, probe).Conversion().ConversionType();
    if (probe.type)
        return *probe.type;
    std::wstring text;
    m_store->SetSection(probe.section);
    static_cast<void>(m_store->ReadString(conversionTypeKey, text));
    throw Error(PROBE_TYPE_UNREADABLE, probe.section, text);
}

ReadOutcome ProbeFile::Read(std::wstring_view section, CQuorConversion& conversion) {
    const SelectedSection selected(*m_store);
    ProbeEntry probe = Require(section);
    if (!probe.standAlone)
        static_cast<void>(RequireType(probe));
    LinePlaces& places = Places();
    const SectionIndex::Section& place = *places.Section(probe.section);
    probe.section = places.NameOf(place);
    probe.line = place.header.number;
    const RecordReading reading(m_store, m_path, probe, &conversion);
    probe.type = reading.Conversion().ConversionType();
    ReadOutcome outcome;
    outcome.problems = ProblemsOf(reading, probe, places);
    for (const MessageCollector::Message& message : reading.Messages())
        outcome.messages.push_back(message.text);
    CQuorConversion defaults;
    const bool isRefused = IsRefused(outcome.problems); // what it was read up to is no record either
    if (isRefused) {
        defaults.SetConversionType(*probe.type);
        TakeLimits(defaults, reading.Conversion());
    }
    const CQuorConversion& result = isRefused ? defaults : reading.Conversion();
    outcome.record = RecordOf(probe, outcome, result);
    outcome.probe = std::move(probe);
    Assign(conversion, result);
    conversion.SetChanged(false);
    return outcome;
}

RecordAsRead ProbeFile::RecordOf(const ProbeEntry& probe, const ReadOutcome& outcome,
                                 const CQuorConversion& result) {
    auto state = std::make_shared<RecordAsRead::State>();
    state->probe = probe;
    if (IsRefused(outcome.problems)) {
        state->refusal = outcome.problems;
        state->messages = outcome.messages;
        const auto held = std::make_shared<KeptValues>();
        WriteRecordTo(held, probe.section, result, probe.standAlone);
        state->held = held->Written();
    }
    state->text = TextOf(probe);
    return RecordAsRead(std::move(state));
}

/// The text of the sections of a record, also of those that a settings object which refuses it has not read.
std::string ProbeFile::TextOf(const ProbeEntry& probe) {
    const std::wstring settings = probe.standAlone ? probe.section : SettingsSection(probe.section);
    std::vector<std::wstring> sections{probe.section};
    if (probe.standAlone || MayHaveSettings(probe.type)) {
        if (!probe.standAlone)
            sections.push_back(settings);
        for (const wchar_t* const range : {highRangeName, lowRangeName})
            sections.push_back(std::wstring(settings).append(nestedMark).append(range));
    }
    std::string record;
    const std::string_view text = m_store->Text();
    for (const std::wstring& section : sections) {
        const SectionIndex::Section* const place = Places().Section(section);
        if (!place)
            continue;
        IniLines lines = m_store->Lines(place->header);
        static_cast<void>(lines.Next());
        const std::size_t end = lines.NextHeader() ? lines.Here().offset : text.size();
        const std::string_view piece = text.substr(place->header.offset, end - place->header.offset);
        record.append(piece).append(piece.ends_with('\r') ? "\r\n" : "\n"); // a last CR is its value's
    }
    return record;
}

std::vector<ProbeProblem> ProbeFile::Check() {
    return Check([] {});
}

std::vector<ProbeProblem> ProbeFile::Check(const std::function<void()>& afterEach) {
    if (!Exists())
        return {};
    const SelectedSection selected(*m_store);
    return CheckFile(m_store, m_path, Probes(), LostSections(), afterEach);
}

// Writing

void ProbeFile::Edit(const std::function<void()>& edit) { m_store->Edit(edit); }

/// The sections of these probes do not count.
TakenNames ProbeFile::NamesBut(const NameMap<ProbeEntry>& probes) {
    const auto isOwner = [&probes](std::wstring_view name) {
        const auto probe = probes.find(name);
        return probe != probes.end() && MayHaveSettings(probe->second.type);
    };
    TakenNames names;
    for (const std::wstring& section : Sections()) {
        const auto owners = PossibleOwners(section);
        if (!probes.contains(section) && std::none_of(owners.begin(), owners.end(), isOwner))
            names.Add(section);
    }
    return names;
}

/// The sections that their own names do not tell to be in the way of a new probe: nested ones, of which one
/// must know the last part. A file has few of them.
TakenNames ProbeFile::NestedSections() {
    TakenNames names;
    for (const std::wstring& section : Sections()) {
        if (IsNested(section))
            names.Add(section);
    }
    return names;
}

/// Raises if settings of a new probe would stand in a section that is there, or others be read as part of
/// them.
void ProbeFile::RequireNoSettings(std::wstring_view section, const std::wstring& settings) {
    auto other = m_nested.SettingsOf(section);
    if (HasSection(settings)) {
        const std::vector<std::wstring> sections = Sections();
        other = *std::find_if(sections.begin(), sections.end(),
                              [&](const std::wstring& present) { return EqualFolded(present, settings); });
    }
    if (other)
        throw Error(PROBE_SETTINGS_ARE_TAKEN, section, *other);
}

void ProbeFile::RequireName(std::wstring_view name, const TakenNames& names,
                            const std::function<bool(std::wstring_view)>& isProbe) {
    if (const auto obstacle = names.ObstacleTo(name, isProbe))
        throw Error(obstacle->code, name, obstacle->other);
}

void ProbeFile::MoveSections(const std::function<void(ProbeMove&)>& move) {
    std::vector<ProbeMove> moves;
    moves.reserve(Probes().size());
    for (const ProbeEntry& probe : Probes())
        move(moves.emplace_back(ProbeMove{probe.section, probe.section, false, false, probe.standAlone,
                                          MayHaveSettings(probe.type)}));
    std::optional<SharedSection> shared;
    const SectionPlan plan = PlanSections(m_store->Sections(), moves, shared);
    if (shared)
        throw Error(PROBE_SECTION_IS_SHARED, moves[shared->probe].section, moves[shared->other].section);
    ApplyPlan(*m_store, plan);
}

/// The settings that stand in the file go where they are those of another type, or nobody knows of which.
void ProbeFile::RemoveOldSettings(const std::vector<ProbeToWrite>& probes) {
    NameSet changing;
    for (const ProbeToWrite& probe : probes) {
        const auto present = Locate(probe.section);
        if (present && !present->standAlone && present->type != probe.conversion.get().ConversionType())
            changing.insert(probe.section);
    }
    if (!changing.empty())
        MoveSections([&](ProbeMove& move) { move.changesType = changing.contains(move.section); });
}

/// Writes a probe by `write`, if it can stand in that section, in which there is the probe `present`, or
/// nothing.
void ProbeFile::WriteOne(const std::wstring& section, EQuorConversionType type,
                         const std::optional<ProbeEntry>& present,
                         const std::function<void(bool standAlone)>& write) {
    const bool getsSettings =
        present && !present->standAlone && !MayHaveSettings(present->type) && MayHaveSettings(type);
    if ((!present || getsSettings) && m_namesText != m_store->TextNumber()) {
        m_nested = NestedSections();
        m_namesText = m_store->TextNumber();
    }
    if (!present)
        RequireName(section, m_nested, [this](std::wstring_view owner) { return Locate(owner).has_value(); });
    const std::wstring settings = SettingsSection(section);
    if (!present || getsSettings)
        RequireNoSettings(section, settings);
    const bool isStandAlone =
        present ? present->standAlone : m_standAlone && EqualFolded(*m_standAlone, section);
    if (isStandAlone) {
        // Types share sections, not extensions: a PT100 would fit into a "cvd" file, and then be no valid
        // one.
        const TypeInfo* const info = FindType(type);
        if (!info || info->extension != Folded(GetExtensionPart(m_path)))
            throw Error(PROBE_DOES_NOT_FIT_FILE, section, TypeName(type));
    }
    const bool namesAreKnown = m_namesText == m_store->TextNumber();
    write(isStandAlone);
    if (!namesAreKnown)
        return;
    // A host that writes thousands of new ones in one edit has no time to look at all sections for each.
    if (section.find(nestedMark) != std::wstring::npos) // else none of both is nested
        for (const std::wstring* const written : {&section, &settings})
            if (IsNested(*written) && HasSection(*written))
                m_nested.Add(*written);
    m_namesText = m_store->TextNumber();
}

/// Calls what the conversion itself may refuse.
template <class Body>
void ProbeFile::WithRefusal(std::wstring_view section, const Body& body) const {
    try {
        body();
    } catch (const QuorError& error) {
        if (error.Cause()) // it is the store's, which has told the file
            throw;
        throw ProbeFileError(m_path, std::wstring(section), error);
    }
}

void ProbeFile::WriteRecord(const std::shared_ptr<INIFile>& to, std::wstring_view section,
                            const CQuorConversion& conversion, bool standAlone) const {
    WithRefusal(section, [&] { WriteRecordTo(to, std::wstring(section), conversion, standAlone); });
}

bool ProbeFile::IsConsistent(const CQuorConversion& conversion) {
    return ConsistencyCheck().Holds(conversion);
}

void ProbeFile::RequireConsistent(std::wstring_view section, const CQuorConversion& conversion,
                                  ConsistencyCheck& check) const {
    bool isConsistent = false;
    WithRefusal(section, [&] { isConsistent = check.Holds(conversion); });
    if (!isConsistent)
        throw Error(PROBE_INCONSISTENT, section);
}

std::vector<RecordConflict> ProbeFile::WriteChanges(std::wstring_view section,
                                                    const CQuorConversion& conversion, RecordAsRead& record) {
    if (!record.m_state)
        throw Error(PROBE_NO_RECORD, section);
    const RecordAsRead::State& state = *record.m_state;
    const ProbeEntry& probe = state.probe;
    if (probe.type != conversion.ConversionType())
        throw Error(PROBE_OF_ANOTHER_TYPE, section, TypeName(probe.type));
    ConsistencyCheck check;
    RequireConsistent(section, conversion, check);
    if (!state.refusal.empty()) { // with the changes it would be refused as before, or mix values of both
        if (!record.IsChanged(conversion))
            return {};
        throw ProbeFileError(m_path, std::wstring(section), state.refusal, state.messages);
    }
    const std::wstring name = EqualFolded(section, probe.section) ? probe.section : std::wstring(section);
    const auto read = state.Record();
    const auto unchanged = state.Unchanged();
    const auto changesIn = [&](const std::shared_ptr<INIFile>& file, const std::wstring& to) {
        const auto merge = std::make_shared<RecordMerge>(read, probe.section, file, to, unchanged);
        WriteRecord(merge, to, conversion, probe.standAlone);
        return merge;
    };
    std::vector<RecordConflict> conflicts;
    Edit([&] {
        const auto merge = changesIn(m_store, name);
        conflicts = merge->Conflicts();
        if (conflicts.empty())
            merge->WriteChanges();
    });
    if (!conflicts.empty())
        return conflicts;
    // The same changes in what was read, and in nothing that others have written.
    const auto written = state.Record();
    changesIn(written, probe.section)->WriteChanges();
    const auto held = std::make_shared<KeptValues>();
    WriteRecord(held, probe.section, conversion, probe.standAlone);
    auto now = std::make_shared<RecordAsRead::State>(state);
    now->read = written->Written();
    now->held = held->Written();
    record.m_state = std::move(now);
    return {};
}

RecordAsRead ProbeFile::Record(std::wstring_view section) {
    const SelectedSection selected(*m_store);
    ProbeEntry probe = Require(section);
    if (probe.standAlone || probe.type) {
        CQuorConversion conversion;
        return Read(section, conversion).record;
    }
    auto state = std::make_shared<RecordAsRead::State>();
    state->text = TextOf(probe);
    state->probe = std::move(probe);
    return RecordAsRead(std::move(state));
}

void ProbeFile::Write(std::wstring_view section, const CQuorConversion& conversion) {
    Write(std::vector<ProbeToWrite>{{std::wstring(section), conversion}});
}

void ProbeFile::Write(const std::vector<ProbeToWrite>& probes) {
    NameSet written;
    for (const ProbeToWrite& probe : probes) {
        if (!written.insert(probe.section).second)
            throw Error(PROBE_NAME_IS_TAKEN, probe.section);
    }
    ConsistencyCheck check;
    Edit([&] {
        RemoveOldSettings(probes);
        for (const ProbeToWrite& probe : probes) {
            RequireConsistent(probe.section, probe.conversion, check);
            const CQuorConversion& conversion = probe.conversion;
            const auto present = Locate(probe.section);
            if (!present && HasSection(probe.section))
                throw Error(PROBE_SECTION_OF_HOST, probe.section);
            WriteOne(probe.section, conversion.ConversionType(), present,
                     [&](bool standAlone) { WriteRecord(m_store, probe.section, conversion, standAlone); });
        }
    });
}

void ProbeFile::WriteNew(std::wstring_view section, EQuorConversionType type,
                         const std::vector<RecordImage::Entry>& values) {
    const auto begin = [this](const std::wstring& name) {
        m_store->SetSection(name);
        m_store->WriteString(versionKey, QUOR_LIBRARY_VERSION);
    };
    Edit([&, section = std::wstring(section)] {
        if (HasSection(section))
            throw Error(PROBE_NAME_IS_TAKEN, section);
        if (!FindType(type))
            throw Error(PROBE_UNKNOWN_TYPE, section, TypeName(type));
        WriteOne(section, type, std::nullopt, [&](bool standAlone) {
            const std::wstring settings = standAlone ? section : SettingsSection(section);
            if (!standAlone) {
                begin(section);
                m_store->WriteInteger(conversionTypeKey, static_cast<std::int16_t>(type), L"");
            }
            std::optional<std::wstring_view> nested; // the record that is being written
            for (const RecordImage::Entry& entry : values) {
                const auto slash = entry.path.find(L'/');
                const auto key = slash == std::wstring::npos ? 0 : slash + 1;
                const auto name = std::wstring_view(entry.path).substr(0, key == 0 ? 0 : slash);
                if (nested != name)
                    begin(name.empty() ? settings : std::wstring(settings).append(nestedMark).append(name));
                nested = name;
                WriteValue(*m_store, key == 0 ? entry.path : entry.path.substr(key), entry.value);
            }
        });
    });
}

// Names may be views into Probes(), which is looked at anew inside an edit: they are copied before.

/// Raises for a name that a probe cannot have once all of them have theirs.
void ProbeFile::RequireNames(const std::vector<std::pair<std::wstring, std::wstring>>& names,
                             const NameMap<ProbeEntry>& probes) {
    TakenNames taken = NamesBut(probes);
    NameSet given;
    const auto isProbe = [&](std::wstring_view owner) {
        return given.contains(owner) || (!probes.contains(owner) && Locate(owner).has_value());
    };
    const auto give = [&](const std::wstring& name) {
        taken.Add(name);
        given.insert(name);
    };
    for (const auto& [section, name] : names) {
        if (EqualFolded(section, name)) // its sections keep their places and their names
            give(name);
    }
    for (const auto& [section, name] : names) {
        const bool keepsName = EqualFolded(section, name);
        if (!keepsName)
            RequireName(name, taken, isProbe);
        if (probes.find(section)->second.standAlone ||
            (m_standAlone && !keepsName && EqualFolded(*m_standAlone, name)))
            throw Error(PROBE_DOES_NOT_FIT_FILE, name, section);
        if (!keepsName)
            give(name);
    }
}

void ProbeFile::Rename(std::wstring_view section, std::wstring_view name) {
    Rename({{std::wstring(section), std::wstring(name)}});
}

void ProbeFile::Rename(const std::vector<std::pair<std::wstring, std::wstring>>& names) {
    if (names.empty())
        return;
    Edit([&] {
        NameMap<ProbeEntry> probes;
        NameMap<std::wstring> nameOf;
        for (const auto& [section, name] : names) {
            probes.emplace(section, Require(section));
            if (!nameOf.emplace(section, name).second)
                throw Error(PROBE_NAME_IS_TAKEN, section);
        }
        RequireNames(names, probes);
        MoveSections([&](ProbeMove& move) {
            if (const auto found = nameOf.find(move.section); found != nameOf.end())
                move.name = found->second;
        });
    });
}

void ProbeFile::Remove(std::wstring_view section) {
    Remove(std::vector<std::wstring>{std::wstring(section)});
}

void ProbeFile::Remove(const std::vector<std::wstring>& sections) {
    const NameSet removed(sections.begin(), sections.end());
    Edit([&] {
        for (const std::wstring& section : sections)
            static_cast<void>(Require(section));
        MoveSections([&](ProbeMove& move) { move.isRemoved = removed.contains(move.section); });
    });
}

void ProbeFile::Copy(std::wstring_view section, std::wstring_view toSection) {
    Edit([this, from = std::wstring(section), to = std::wstring(toSection)] { CopyFrom(*this, from, to); });
}

void ProbeFile::CopyFrom(ProbeFile& source, std::wstring_view section, std::wstring_view toSection) {
    CQuorConversion conversion;
    ReadOutcome outcome = source.Read(section, conversion);
    if (!FindType(conversion.ConversionType()))
        throw source.Error(PROBE_UNKNOWN_TYPE, section, TypeName(conversion.ConversionType()));
    if (!outcome.IsWhole())
        throw ProbeFileError(source.Path(), std::wstring(section), std::move(outcome.problems),
                             std::move(outcome.messages));
    Edit([this, &conversion, toSection = std::wstring(toSection)] {
        auto present = Locate(toSection);
        if (present && present->standAlone)
            present->type = RequireType(*present);
        if (present && present->type != conversion.ConversionType())
            throw Error(PROBE_OF_ANOTHER_TYPE, toSection, TypeName(present->type));
        Write(toSection, conversion);
    });
}

} // namespace QuorProbeFile
