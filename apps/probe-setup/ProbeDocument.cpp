#include "apps/probe-setup/ProbeDocument.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordImage.h"
#include "apps/probe-setup/DocumentSave.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace ProbeSetup {

using namespace QuorConversions;
using namespace QuorProbeFile;
using QuorIniFile::IniLines;
using QuorIniFile::IniStore;

namespace {

/// A name for a probe that is called as no section can be: a file may have any name.
std::wstring WithoutWhatCannotBeWritten(std::wstring name) {
    constexpr std::wstring_view blanks = L" \t";
    std::replace_if(
        name.begin(), name.end(), [](wchar_t c) { return c < L' ' || c == L'[' || c == L']'; }, L' ');
    name.erase(0, name.find_first_not_of(blanks));
    name.erase(name.find_last_not_of(blanks) + 1);
    return !name.empty() && IniStore::CanNameSection(name) ? name : L"Probe";
}

/// Types of one code whose names depend on their values.
bool IsNamedByItsValues(std::int32_t type) { return type == CONV_TCTYPEX || type == CONV_TCTYPEPOLY; }

/// Whether a line has a character that no text has. What moves a printer may stand in a text, and so may the
/// mark at the end of a file of old systems.
bool HasControlCharacter(std::string_view line) {
    return std::any_of(line.begin(), line.end(), [](char c) {
        constexpr std::string_view harmless = "\t\n\v\f\r\x1A";
        return static_cast<unsigned char>(c) < ' ' && harmless.find(c) == std::string_view::npos;
    });
}

/// The first line that shows that a text without probes is none of an INI file: it has a character that no
/// text has, or there is no section at all and the line is no key either. Nothing for what may be a host's
/// file that has no probes yet.
std::optional<std::size_t> LineOfNoIniFile(IniLines lines) {
    bool hasSection = false;
    std::optional<std::size_t> malformed;
    while (lines.Next()) {
        if (HasControlCharacter(lines.Bytes()))
            return lines.Number();
        hasSection = hasSection || lines.Is(IniLines::Kind::Header);
        if (lines.Is(IniLines::Kind::Malformed) && !malformed)
            malformed = lines.Number();
    }
    return hasSection ? std::nullopt : malformed;
}

ReadProblems ProblemsOf(const ReadOutcome& outcome) {
    ReadProblems problems;
    for (const ProbeProblem& problem : outcome.problems) {
        if (problem.key.empty())
            problems.messages.push_back(problem.text);
        else
            problems.keys.push_back(L"[" + problem.section + L"] " + problem.key);
    }
    if (problems.IsEmpty())
        problems.messages = outcome.messages;
    return problems;
}

bool Exists(const ProbeFile& file) {
    try {
        static_cast<void>(file.Store()->Sections());
        return true;
    } catch (const QuorError& error) {
        if (error.Number() != QuorIniFile::ERR_FILE_NOT_FOUND)
            throw;
        return false;
    }
}

/// Reads a probe. Of a record that its class gives up the file gives the default values; here those that were
/// reached are shown, because a save must not write defaults over them.
ReadProblems ReadInto(CQuorConversion& conversion, ProbeFile& file, const std::wstring& section) {
    const ReadOutcome outcome = file.Read(section, conversion);
    const bool isGivenUp =
        std::any_of(outcome.problems.begin(), outcome.problems.end(), [](const ProbeProblem& problem) {
            return problem.kind == PROBLEM_RECORD_REFUSED || problem.kind == PROBLEM_VALUE_REFUSED;
        });
    if (isGivenUp) {
        std::shared_ptr<INIFile> store = file.Store();
        conversion.ReadFromFile(store, L"", section);
    }
    return ProblemsOf(outcome);
}

/// What is written through a store as long as this lives stays in memory.
class InMemory {
public:
    explicit InMemory(IniStore& store) : m_store(store) { m_store.Hold(); }
    InMemory(const InMemory&) = delete;
    InMemory& operator=(const InMemory&) = delete;
    ~InMemory() { m_store.Abandon(); }

private:
    IniStore& m_store;
};

} // namespace

ProbeDocument::ProbeDocument(std::shared_ptr<Platform> platform,
                             std::shared_ptr<QuorRegistryII::Registry> registry,
                             QuorIniFile::IniFileSystem* files)
    : m_platform(std::make_shared<QuietPlatform>(std::move(platform))),
      m_registry(std::move(registry)),
      m_files(files) {}

std::unique_ptr<ProbeFile> ProbeDocument::FileAt(const std::wstring& path, Opening opening) const {
    return m_files ? std::make_unique<ProbeFile>(path, *m_files, opening)
                   : std::make_unique<ProbeFile>(path, opening);
}

std::unique_ptr<ProbeFile> ProbeDocument::FileThatDoesNotExist(const std::wstring& path) const {
    for (int number = 1;; ++number) {
        auto file = FileAt(path + L"." + std::to_wstring(number), Opening::OrNew);
        if (!Exists(*file))
            return file;
    }
}

// The list and the file

void ProbeDocument::Open(const std::wstring& path, const Progress& progress) {
    auto file = FileAt(path);
    const std::vector<ProbeEntry>& probes = file->Probes();
    if (const auto line = probes.empty() ? LineOfNoIniFile(file->Store()->Lines()) : std::nullopt)
        throw DocumentError{Failure::NoSettingsFile, path, {std::to_wstring(*line)}};

    std::vector<ListedProbe> entries;
    entries.reserve(probes.size());
    NameSet ours;
    std::unordered_map<std::int32_t, std::uint32_t> names; // of types
    for (const ProbeEntry& probe : probes) {
        if (probe.standAlone)
            continue;
        ListedProbe entry;
        entry.name = probe.section;
        entry.content.type = probe.type;
        if (!probe.type || IsNamedByItsValues(*probe.type)) {
            entry.content.name = NumberOf(file->ConversionName(probe));
        } else {
            const auto [name, isNew] = names.try_emplace(*probe.type, 0);
            if (isNew)
                name->second = NumberOf(file->ConversionName(probe));
            entry.content.name = name->second;
        }
        ours.insert(entry.name);
        entries.push_back(std::move(entry));
        constexpr std::size_t now = 1024;
        if (progress && entries.size() % now == 0)
            progress(static_cast<double>(entries.size()) / static_cast<double>(probes.size()));
    }

    std::vector<std::wstring> foreign;
    for (std::wstring& section : file->Store()->Sections()) {
        const std::vector<std::wstring_view> owners = PossibleOwners(section);
        if (!ours.contains(section) &&
            std::none_of(owners.begin(), owners.end(),
                         [&](std::wstring_view owner) { return ours.contains(owner); }))
            foreign.push_back(std::move(section));
    }

    Close();
    m_path = path;
    m_isReadOnly = file->IsReadOnly();
    m_file = std::move(file);
    m_probes = std::move(entries);
    m_foreign = std::move(foreign);
}

void ProbeDocument::Close() {
    m_path.clear();
    m_isReadOnly = false;
    m_file = nullptr;
    m_probes.clear();
    m_foreign.clear();
    m_done.clear();
    m_undone.clear();
}

std::vector<std::size_t> ProbeDocument::LostRecords() const {
    return m_file ? m_file->LostSections() : std::vector<std::size_t>();
}

bool ProbeDocument::IsChanged(std::size_t probe) const { return m_probes[probe].IsChanged(); }

std::optional<std::size_t> ProbeDocument::Find(std::wstring_view name) const {
    const auto found = std::find_if(m_probes.begin(), m_probes.end(),
                                    [&](const ListedProbe& entry) { return EqualFolded(entry.name, name); });
    if (found == m_probes.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_probes.begin());
}

NameProblem ProbeDocument::CheckName(std::wstring_view name, std::optional<std::size_t> except) const {
    if (name.empty())
        return NameProblem::Empty;
    if (!IniStore::CanNameSection(name))
        return NameProblem::CannotBeWritten;
    for (std::size_t i = 0; i < m_probes.size(); ++i) {
        if (i == except)
            continue;
        const std::wstring& other = m_probes[i].name;
        if (EqualFolded(name, other))
            return NameProblem::ProbeExists;
        if (HoldsSettingsOf(name, other))
            return NameProblem::IsSettingsOfProbe;
        if (HoldsSettingsOf(other, name))
            return NameProblem::SettingsSectionExists;
    }
    for (const std::wstring& section : m_foreign) {
        if (EqualFolded(name, section))
            return NameProblem::SectionExists;
        if (HoldsSettingsOf(section, name))
            return NameProblem::SettingsSectionExists;
    }
    return NameProblem::None;
}

std::wstring ProbeDocument::FreeName(const std::wstring& wish) const {
    std::wstring stem =
        !wish.empty() && IniStore::CanNameSection(wish) ? wish : WithoutWhatCannotBeWritten(wish);
    std::wstring name = stem;
    NameProblem problem = CheckName(name);
    for (int number = 2; problem != NameProblem::None; problem = CheckName(name), ++number) {
        // No number behind the name of a section of settings makes it another one's.
        if (problem == NameProblem::IsSettingsOfProbe)
            stem.resize(Folded(stem).rfind(Folded(std::wstring(settingsMark))));
        name = stem + L" (" + std::to_wstring(number) + L")";
    }
    return name;
}

// Conversions

std::shared_ptr<CQuorConversion> ProbeDocument::NewConversion() const {
    auto conversion = std::make_shared<CQuorConversion>(m_platform);
    std::shared_ptr<QuorRegistryII::Registry> registry = m_registry;
    conversion->SetRegistry(registry);
    conversion->SetFilePath(GetFolderPart(m_path));
    conversion->SetAllowEdit(!m_isReadOnly);
    return conversion;
}

std::shared_ptr<CQuorConversion> ProbeDocument::CopyOf(const CQuorConversion& conversion) const {
    const QuietPlatform::Quiet quiet(*m_platform);
    auto copy = NewConversion();
    copy->SetConversionType(conversion.ConversionType());
    if (const auto settings = conversion.Settings())
        RecordImage::Apply(RecordImage::Of(*settings), *copy->Settings());
    copy->SetChanged(false);
    return copy;
}

std::wstring ProbeDocument::NameOf(const CQuorConversion& conversion) const {
    return conversion.ConversionName(conversion.Settings() ? currentValue : conversion.ConversionType());
}

std::uint32_t ProbeDocument::NumberOf(const std::wstring& name) {
    const auto found = std::find(m_names.begin(), m_names.end(), name);
    if (found == m_names.end()) {
        m_names.push_back(name);
        return static_cast<std::uint32_t>(m_names.size() - 1);
    }
    return static_cast<std::uint32_t>(found - m_names.begin());
}

ProbeContent ProbeDocument::ContentOf(std::shared_ptr<CQuorConversion> conversion) {
    ProbeContent content;
    content.type = conversion->ConversionType();
    content.name = NumberOf(NameOf(*conversion));
    content.conversion = std::move(conversion);
    return content;
}

const ReadProblems& ProbeDocument::Load(ListedProbe& entry) {
    ProbeContent& content = entry.content;
    if (content.conversion)
        return content.problems;
    const QuietPlatform::Quiet quiet(*m_platform);
    auto conversion = NewConversion();
    if (!content.type)
        content.problems.keys = {L"[" + entry.Section() + L"] ConversionType"};
    else if (ConversionEnumerator(*content.type))
        content.problems = ReadInto(*conversion, *m_file, entry.Section());
    else
        conversion->SetConversionType(*content.type);
    conversion->SetChanged(false);
    content.conversion = std::move(conversion);
    return content.problems;
}

void ProbeDocument::RequireWhole(ListedProbe& entry) {
    if (const ReadProblems& problems = Load(entry); !problems.IsEmpty())
        throw DocumentError{Failure::UnreadableRecord, m_path, problems.Lines()};
    const EQuorConversionType type = *entry.content.type;
    if (!ConversionEnumerator(type)) // settings of a kind that the library does not know
        throw DocumentError{Failure::UnknownType, m_path, {entry.name, std::to_wstring(type)}};
}

bool ProbeDocument::HasSettings(std::size_t probe) { return Conversion(probe).Settings() != nullptr; }

const ReadProblems& ProbeDocument::CheckRecord(std::size_t probe) { return Load(m_probes[probe]); }

const CQuorConversion& ProbeDocument::Conversion(std::size_t probe) {
    Load(m_probes[probe]);
    return *m_probes[probe].content.conversion;
}

bool ProbeDocument::Edit(std::size_t probe) {
    const CQuorConversion& conversion = Conversion(probe);
    const auto copy = CopyOf(conversion);
    if (!copy->Edit() || m_isReadOnly || !copy->Settings())
        return false;
    // Not every value that a dialog can change sets Changed: a file that it opens may hold others as well.
    if (RecordImage::Same(*RecordImage::Of(*conversion.Settings()), *RecordImage::Of(*copy->Settings())))
        return false;
    copy->SetChanged(true);
    ProbeContent content = ContentOf(copy);
    content.replacesRecord = m_probes[probe].content.replacesRecord;
    Do({StepKind::Edit, {probe}, {}, {}, std::move(content)});
    return true;
}

std::optional<std::wstring> ProbeDocument::Export(std::size_t probe, std::int32_t hwnd) {
    RequireWhole(m_probes[probe]);
    const std::shared_ptr<SettingsObject> settings = Conversion(probe).Settings();
    // A slash in a name would lead into another folder.
    std::wstring fileName = Name(probe);
    std::replace_if(
        fileName.begin(), fileName.end(), [](wchar_t c) { return c == L'/' || c == L'\\'; }, L'-');
    fileName = GetFolderPart(m_path) + fileName + L'.' + settings->FileExtension();
    const QuietPlatform::Quiet quiet(*m_platform);
    const bool chosen = settings->SaveFileAs(hwnd, fileName);
    if (!quiet.Messages().empty())
        throw DocumentError{Failure::CannotWrite, fileName, {Name(probe), quiet.Messages().front().text}};
    return chosen ? std::optional(fileName) : std::nullopt;
}

// Changes of the list

std::size_t ProbeDocument::Append(StepKind kind, std::wstring name, ProbeContent content) {
    Step step{kind, {m_probes.size()}, {}, {}, {}};
    step.entries.push_back({std::move(name), {}, true, std::move(content)});
    Do(std::move(step));
    return m_probes.size() - 1;
}

std::size_t ProbeDocument::Add(const std::wstring& name, EQuorConversionType type) {
    auto conversion = NewConversion();
    conversion->SetConversionType(type);
    return Append(StepKind::Add, name, ContentOf(std::move(conversion)));
}

std::size_t ProbeDocument::Duplicate(std::size_t probe) {
    RequireWhole(m_probes[probe]);
    return Append(StepKind::Duplicate, FreeName(Name(probe)), ContentOf(CopyOf(Conversion(probe))));
}

std::size_t ProbeDocument::Import(const std::wstring& path) {
    const auto section = StandAloneSection(path);
    if (!section)
        throw DocumentError{Failure::NoStandAloneFile, path, {}};
    const auto file = FileAt(path);
    if (!file->Find(*section))
        throw DocumentError{Failure::UnreadableRecord, path, {L"[" + *section + L"]"}};
    auto conversion = NewConversion();
    if (const ReadProblems problems = ProblemsOf(file->Read(*section, *conversion)); !problems.IsEmpty())
        throw DocumentError{Failure::UnreadableRecord, path, problems.Lines()};
    const std::wstring name = GetFileNamePart(path);
    return Append(StepKind::Import, FreeName(name.substr(0, name.rfind(L'.'))),
                  ContentOf(std::move(conversion)));
}

void ProbeDocument::Rename(std::size_t probe, const std::wstring& name) {
    if (m_probes[probe].name != name)
        Do({StepKind::Rename, {probe}, {}, name, {}});
}

void ProbeDocument::SetType(std::size_t probe, EQuorConversionType type) {
    const ListedProbe& entry = m_probes[probe];
    if (entry.content.type == type)
        return;
    auto conversion = NewConversion();
    conversion->SetConversionType(type);
    ProbeContent content = ContentOf(std::move(conversion));
    content.replacesRecord = !entry.isNew;
    Do({StepKind::ChangeType, {probe}, {}, {}, std::move(content)});
}

void ProbeDocument::Remove(const std::vector<std::size_t>& probes) {
    if (!probes.empty())
        Do({StepKind::Remove, probes, {}, {}, {}});
}

void ProbeDocument::Do(Step step) {
    Toggle(step);
    m_undone.clear();
    m_done.push_back(std::move(step));
}

void ProbeDocument::Toggle(Step& step) {
    switch (step.kind) {
    case StepKind::Rename: {
        ListedProbe& entry = m_probes[step.places.front()];
        std::wstring old = entry.name;
        entry.SetName(std::move(step.name));
        step.name = std::move(old);
        return;
    }
    case StepKind::ChangeType:
    case StepKind::Edit:
        std::swap(m_probes[step.places.front()].content, step.content);
        return;
    case StepKind::Add:
    case StepKind::Duplicate:
    case StepKind::Import:
    case StepKind::Remove:
        break;
    }
    std::vector<ListedProbe> entries;
    auto place = step.places.begin();
    if (step.entries.empty()) {
        step.entries.reserve(step.places.size());
        entries.reserve(m_probes.size() - step.places.size());
        for (std::size_t i = 0; i < m_probes.size(); ++i) {
            const bool goes = place != step.places.end() && *place == i;
            (goes ? step.entries : entries).push_back(std::move(m_probes[i]));
            place += goes ? 1 : 0;
        }
    } else {
        entries.reserve(m_probes.size() + step.entries.size());
        auto stays = m_probes.begin();
        for (ListedProbe& comes : step.entries) {
            while (entries.size() < *place)
                entries.push_back(std::move(*stays++));
            entries.push_back(std::move(comes));
            ++place;
        }
        std::move(stays, m_probes.end(), std::back_inserter(entries));
        step.entries.clear();
    }
    m_probes = std::move(entries);
}

std::optional<StepKind> ProbeDocument::UndoKind() const {
    return m_done.empty() ? std::nullopt : std::optional(m_done.back().kind);
}

std::optional<StepKind> ProbeDocument::RedoKind() const {
    return m_undone.empty() ? std::nullopt : std::optional(m_undone.back().kind);
}

std::vector<std::size_t> ProbeDocument::Undo() {
    Toggle(m_done.back());
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
    return m_undone.back().places;
}

std::vector<std::size_t> ProbeDocument::Redo() {
    Toggle(m_undone.back());
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
    return m_done.back().places;
}

// Saving

std::vector<const ListedProbe*> ProbeDocument::RemovedProbes() const {
    // What was taken out of the list and stands in the file is in a step that was done. (Steps that were
    // taken back hold new probes only.)
    std::vector<const ListedProbe*> removed;
    for (const Step& step : m_done) {
        for (const ListedProbe& entry : step.entries) {
            if (!entry.isNew)
                removed.push_back(&entry);
        }
    }
    return removed;
}

bool ProbeDocument::Changed() const {
    return std::any_of(m_probes.begin(), m_probes.end(),
                       [](const ListedProbe& entry) { return entry.IsChanged(); }) ||
           !RemovedProbes().empty();
}

void ProbeDocument::Save(const OthersChanges& replaced) {
    // What was read stays in m_file, whatever becomes of this save.
    auto file = FileAt(m_path);
    bool othersWrote = false;
    file->Edit([&] {
        // A file that is gone is not made anew: it would hold nothing but what has changed.
        static_cast<void>(file->Store()->Sections());
        othersWrote = WriteChanges(*file, replaced);
    });
    Settle();
    m_file = std::move(file);
    if (!othersWrote)
        return;
    // Values of others that were kept would look like changes of ours, beside the file.
    for (ListedProbe& entry : m_probes)
        entry.content.conversion = nullptr;
    try {
        Open(std::wstring(m_path));
    } catch (const QuorError&) {
        // Everything is saved. The list lacks what others have added until the file can be read again.
    }
}

void ProbeDocument::WriteAll(const ProbeFile& file) {
    for (ListedProbe& entry : m_probes) {
        RequireWhole(entry);
        DocumentSave::WriteWhole(file, entry);
    }
}

bool ProbeDocument::WriteChanges(ProbeFile& file, const OthersChanges& replaced) {
    const auto requireWhole = [this](std::size_t probe) { RequireWhole(m_probes[probe]); };
    return DocumentSave(*m_file, m_probes, RemovedProbes(), requireWhole).WriteInto(file, replaced);
}

void ProbeDocument::Settle() {
    for (ListedProbe& entry : m_probes) {
        entry.nameInFile.reset();
        entry.isNew = false;
        entry.content.replacesRecord = false;
        if (entry.content.conversion)
            entry.content.conversion->SetChanged(false);
    }
    m_done.clear();
    m_undone.clear();
}

void ProbeDocument::SaveCopyAs(const std::wstring& path, const OthersChanges& replaced) {
    const bool isOwn = m_file && m_file->Store()->IsOwnFile(path);
    const auto file = m_path.empty() ? FileThatDoesNotExist(path) : FileAt(m_path, Opening::OrNew);
    const bool exists = Exists(*file);
    if (isOwn && exists) {
        Save(replaced);
        return;
    }
    try {
        const InMemory inMemory(*file->Store());
        // Where somebody has removed the file, the probes are what can be saved of it.
        if (exists)
            static_cast<void>(WriteChanges(*file, replaced));
        else
            WriteAll(*file);
        file->SaveAs(path);
    } catch (DocumentError& error) {
        if (error.failure == Failure::CannotWrite)
            error.file = path;
        throw;
    }
    if (!m_path.empty() && !isOwn)
        return;
    m_file = FileAt(path);
    m_path = path;
    m_isReadOnly = false;
    m_foreign.clear(); // nothing but probes stands in it
    Settle();
}

bool ProbeDocument::IsStandAlone(const std::wstring& path) {
    if (!StandAloneSection(path))
        return false;
    ProbeFile file(path);
    return std::all_of(file.Probes().begin(), file.Probes().end(),
                       [](const ProbeEntry& probe) { return probe.standAlone; });
}

} // namespace ProbeSetup
