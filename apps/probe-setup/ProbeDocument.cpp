#include "apps/probe-setup/ProbeDocument.h"

#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/core/modPaths.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorIniFile/Utf8.h"
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

/// The headers of sections that nobody reads: their names have occurred before, or they have no "]".
std::vector<std::wstring> HeadersOfWhatIsNotRead(ProbeFile& file) {
    std::vector<std::wstring> headers;
    for (const QuorIniFile::IniWarning& duplicate : file.DuplicateSections())
        headers.push_back(L"[" + duplicate.section + L"]");
    const std::vector<std::size_t>& lost = file.LostSections();
    IniLines lines = file.Store()->Lines();
    while (lines.Next()) {
        if (std::find(lost.begin(), lost.end(), lines.Number()) != lost.end())
            headers.push_back(L"[" + WithoutWhatCannotBeWritten(QuorIniFile::DecodeBytes(lines.Bytes())));
    }
    return headers;
}

/// A name of a probe as that of a file: a slash would lead into another folder.
std::wstring FileNameOf(std::wstring name) {
    std::replace_if(
        name.begin(), name.end(), [](wchar_t c) { return c == L'/' || c == L'\\'; }, L'-');
    return name;
}

/// Whether a conversion is what is chosen, and nothing would be another by choosing it.
bool Covers(const TypeChoice& choice, const CQuorConversion& conversion) {
    const TypeChoice present = TypeChoice::Of(conversion);
    const auto same = [](const auto& chosen, const auto& is) { return !chosen || chosen == is; };
    return choice.type == present.type && same(choice.polynomial, present.polynomial) &&
           same(choice.letter, present.letter) && same(choice.low, present.low) &&
           same(choice.high, present.high);
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

/// Does what writes into a file, which a failure names.
template <class Body>
void NamingFile(const std::wstring& path, const Body& body) {
    try {
        body();
    } catch (DocumentError& error) {
        if (error.failure == Failure::CannotWrite)
            error.file = path;
        throw;
    }
}

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
        if (!file->Exists())
            return file;
    }
}

// The list and the file

std::unique_ptr<ProbeDocument::Loaded> ProbeDocument::Read(const std::wstring& path,
                                                           const Progress& progress) const {
    auto loaded = std::make_unique<Loaded>();
    loaded->path = path;
    loaded->file = FileAt(path);
    ProbeFile& file = *loaded->file;
    loaded->isReadOnly = file.IsReadOnly();
    const std::vector<ProbeEntry>& probes = file.Probes();
    if (const auto line = probes.empty() ? LineOfNoIniFile(file.Store()->Lines()) : std::nullopt)
        throw DocumentError{Failure::NoSettingsFile, path, {std::to_wstring(*line)}};

    loaded->probes.reserve(probes.size());
    std::unordered_map<std::int32_t, std::uint32_t> names; // of types
    for (const ProbeEntry& probe : probes) {
        if (probe.standAlone)
            continue;
        ListedProbe entry;
        entry.name = probe.section;
        entry.content.type = probe.type;
        entry.typeInFile = probe.type;
        if (!probe.type || IsNamedByItsValues(*probe.type)) {
            entry.content.name = NumberOf(file.ConversionName(probe), loaded->names);
        } else {
            const auto [name, isNew] = names.try_emplace(*probe.type, 0);
            if (isNew)
                name->second = NumberOf(file.ConversionName(probe), loaded->names);
            entry.content.name = name->second;
        }
        loaded->probes.push_back(std::move(entry));
        constexpr std::size_t now = 1024;
        if (progress && loaded->probes.size() % now == 0)
            progress(static_cast<double>(loaded->probes.size()) / static_cast<double>(probes.size()));
    }
    return loaded;
}

void ProbeDocument::Take(std::unique_ptr<Loaded> loaded) {
    Close();
    m_path = std::move(loaded->path);
    m_isReadOnly = loaded->isReadOnly;
    m_file = std::move(loaded->file);
    m_probes = std::move(loaded->probes);
    m_names = std::move(loaded->names);
}

void ProbeDocument::Close() {
    m_path.clear();
    m_isReadOnly = false;
    m_file = nullptr;
    m_probes.clear();
    m_foreign.reset();
    m_done.clear();
    m_undone.clear();
    m_gone.clear();
    m_problems.reset();
    ++m_revision;
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

/// They are looked for when the first name is checked: opening a file does not wait for them.
const std::vector<std::wstring>& ProbeDocument::Foreign() const {
    if (m_foreign || !m_file)
        return m_foreign ? *m_foreign : m_foreign.emplace();
    NameSet ours;
    NameSet withSettings;
    for (const ProbeEntry& probe : m_file->Probes()) {
        if (probe.standAlone)
            continue;
        ours.insert(probe.section);
        if (MayHaveSettings(probe.type))
            withSettings.insert(probe.section);
    }
    m_foreign.emplace();
    for (std::wstring& section : m_file->Sections()) {
        const std::vector<std::wstring_view> owners = PossibleOwners(section);
        if (!ours.contains(section) &&
            std::none_of(owners.begin(), owners.end(),
                         [&](std::wstring_view owner) { return withSettings.contains(owner); }))
            m_foreign->push_back(std::move(section));
    }
    return *m_foreign;
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
    if (except && EqualFolded(name, m_probes[*except].name)) // its own, in other letters
        return NameProblem::None;
    for (const std::wstring& section : Foreign()) {
        if (EqualFolded(name, section))
            return NameProblem::SectionExists;
        if (HoldsSettingsOf(section, name))
            return NameProblem::SettingsSectionExists;
    }
    return !m_file || m_file->Store()->CanSpell(name) ? NameProblem::None : NameProblem::CannotBeSpelled;
}

std::wstring ProbeDocument::FreeName(const std::wstring& wish) const {
    std::wstring stem =
        !wish.empty() && IniStore::CanNameSection(wish) ? wish : WithoutWhatCannotBeWritten(wish);
    std::wstring name = stem;
    NameProblem problem = CheckName(name);
    for (int number = 2; problem != NameProblem::None; problem = CheckName(name)) {
        if (problem == NameProblem::CannotBeSpelled) { // the rest of it tells the probe still
            std::erase_if(stem, [this](wchar_t c) { return !m_file->Store()->CanSpell(std::wstring(1, c)); });
            name = stem = WithoutWhatCannotBeWritten(stem);
            continue;
        }
        // No number behind the name of a section of settings makes it another one's.
        if (problem == NameProblem::IsSettingsOfProbe)
            stem.resize(Folded(stem).rfind(Folded(std::wstring(settingsMark))));
        name = stem + L" (" + std::to_wstring(number++) + L")";
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

std::uint32_t ProbeDocument::NumberOf(const std::wstring& name, std::vector<std::wstring>& names) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        names.push_back(name);
        return static_cast<std::uint32_t>(names.size() - 1);
    }
    return static_cast<std::uint32_t>(found - names.begin());
}

ProbeContent ProbeDocument::ContentOf(std::shared_ptr<CQuorConversion> conversion) {
    ProbeContent content;
    content.type = conversion->ConversionType();
    content.name = NumberOf(NameOf(*conversion), m_names);
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
    Step step{StepKind::Edit, {probe}, {}, {}, {}};
    step.contents.push_back(ContentOf(copy));
    Do(std::move(step));
    return true;
}

std::vector<ProbeFinding> ProbeDocument::Check() {
    std::vector<ProbeFinding> findings;
    const auto add = [&findings](std::optional<std::size_t> probe, ProbeProblem problem) {
        problem.line = 0;
        findings.push_back({probe, std::move(problem)});
    };
    try {
        if (m_file && !m_problems)
            m_problems = m_file->Check();
    } catch (const QuorError& error) { // the folder cannot be read any more
        add({}, {PROBLEM_RECORD_REFUSED, 0, {}, {}, DescriptionOf(error)});
    }
    if (m_problems)
        std::ranges::move(FindingsOf(*m_problems, m_probes), std::back_inserter(findings));
    // What has changed is checked in a file in memory, where it stands as a save would write it.
    for (std::size_t i = 0; i < m_probes.size(); ++i) {
        const ListedProbe& entry = m_probes[i];
        if ((!entry.isNew && !entry.content.IsChanged()) || !entry.content.conversion)
            continue;
        try {
            const auto file = FileThatDoesNotExist(m_path.empty() ? std::wstring(L"new.ini") : m_path);
            const InMemory inMemory(*file->Store());
            DocumentSave::WriteWhole(*file, entry);
            for (ProbeProblem& problem : file->Check())
                add(i, std::move(problem));
        } catch (const DocumentError& error) {
            add(i, {PROBLEM_RECORD_REFUSED, 0, entry.name, {}, error.details.back(), error.phrases});
        } catch (const QuorError& error) {
            add(i, {PROBLEM_RECORD_REFUSED, 0, entry.name, {}, DescriptionOf(error)});
        }
    }
    return findings;
}

std::optional<std::wstring> ProbeDocument::Export(std::size_t probe, std::int32_t hwnd) {
    RequireWhole(m_probes[probe]);
    const std::shared_ptr<SettingsObject> settings = Conversion(probe).Settings();
    std::wstring fileName =
        GetFolderPart(m_path) + FileNameOf(Name(probe)) + L'.' + settings->FileExtension();
    const QuietPlatform::Quiet quiet(*m_platform);
    const bool chosen = settings->SaveFileAs(hwnd, fileName);
    if (!quiet.Messages().empty())
        throw DocumentError{Failure::CannotWrite, fileName, {Name(probe), quiet.Messages().front().text}};
    return chosen ? std::optional(fileName) : std::nullopt;
}

std::wstring ProbeDocument::ExportName(std::size_t probe) {
    const std::shared_ptr<SettingsObject> settings = Conversion(probe).Settings();
    return settings ? FileNameOf(Name(probe)) + L'.' + settings->FileExtension() : std::wstring();
}

void ProbeDocument::ExportTo(std::size_t probe, const std::wstring& path) {
    RequireWhole(m_probes[probe]);
    const std::shared_ptr<SettingsObject> settings = Conversion(probe).Settings();
    const auto file = FileThatDoesNotExist(path);
    const InMemory inMemory(*file->Store());
    settings->WriteOrRaise(file->Store(), settings->SectionName());
    file->SaveAs(path);
}

std::wstring ProbeDocument::TextOf(const std::vector<std::size_t>& probes) {
    const auto file = FileThatDoesNotExist(m_path.empty() ? std::wstring(L"new.ini") : m_path);
    const InMemory inMemory(*file->Store());
    for (const std::size_t probe : probes) {
        RequireWhole(m_probes[probe]);
        DocumentSave::WriteWhole(*file, m_probes[probe]);
    }
    std::wstring text;
    IniLines lines = file->Store()->Lines();
    while (lines.Next()) {
        if (lines.Is(IniLines::Kind::Header) && !text.empty())
            text += L'\n';
        text += QuorIniFile::DecodeBytes(lines.Bytes());
    }
    return text;
}

bool ProbeDocument::ChangedByOthers() {
    try {
        return m_file && m_file->Changed();
    } catch (const QuorError&) {
        return true; // it cannot be read any more
    }
}

bool ProbeDocument::IsGone() const {
    try {
        return !FileAt(m_path, Opening::OrNew)->Exists();
    } catch (const QuorError&) {
        return true; // it cannot be read any more
    }
}

std::vector<std::size_t> ProbeDocument::StaleAmong(const std::vector<std::size_t>& probes) {
    std::vector<std::size_t> stale;
    if (!ChangedByOthers())
        return stale;
    try {
        const auto file = FileAt(m_path);
        std::ranges::copy_if(probes, std::back_inserter(stale),
                             [&](std::size_t probe) { return IsStale(m_probes[probe], *file); });
    } catch (const QuorError&) {
        // The file is gone: there is nothing newer.
    }
    return stale;
}

bool ProbeDocument::IsStale(const ListedProbe& entry, ProbeFile& file) {
    if (entry.isNew)
        return false;
    const QuietPlatform::Quiet quiet(*m_platform);
    const auto read = [&](ProbeFile& from, CQuorConversion& conversion) {
        try {
            return std::optional(from.Read(entry.Section(), conversion).problems.size());
        } catch (const ProbeFileError&) {
            return std::optional<std::size_t>();
        }
    };
    const auto before = NewConversion();
    const auto now = NewConversion();
    if (read(*m_file, *before) != read(file, *now) || before->ConversionType() != now->ConversionType())
        return true;
    return before->Settings() &&
           !RecordImage::Same(*RecordImage::Of(*before->Settings()), *RecordImage::Of(*now->Settings()));
}

// Changes of the list

std::vector<std::size_t> ProbeDocument::Append(StepKind kind, std::vector<NewProbe> probes) {
    Step step{kind, {}, {}, {}, {}};
    for (NewProbe& probe : probes) {
        step.places.push_back(m_probes.size());
        m_probes.push_back({FreeName(probe.wish), {}, true, std::move(probe.content)});
    }
    std::vector<std::size_t> places = step.places;
    Push(std::move(step));
    return places;
}

std::size_t ProbeDocument::Add(const std::wstring& name, const TypeChoice& type) {
    auto conversion = NewConversion();
    type.ApplyTo(*conversion);
    std::vector<NewProbe> added;
    added.push_back({name, ContentOf(std::move(conversion))});
    return Append(StepKind::Add, std::move(added)).front();
}

std::vector<std::size_t> ProbeDocument::Duplicate(const std::vector<std::size_t>& probes) {
    std::vector<NewProbe> added;
    for (const std::size_t probe : probes) {
        RequireWhole(m_probes[probe]);
        added.push_back({Name(probe), ContentOf(CopyOf(Conversion(probe)))});
    }
    return Append(StepKind::Duplicate, std::move(added));
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
    std::vector<NewProbe> added;
    added.push_back({name.substr(0, name.rfind(L'.')), ContentOf(std::move(conversion))});
    return Append(StepKind::Import, std::move(added)).front();
}

std::vector<std::size_t> ProbeDocument::AddFrom(const std::wstring& path) {
    const auto file = FileAt(path);
    if (std::vector<std::wstring> headers = HeadersOfWhatIsNotRead(*file); !headers.empty())
        throw DocumentError{Failure::UnreadSections, path, std::move(headers)};
    std::vector<NewProbe> added;
    for (const ProbeEntry& probe : file->Probes()) {
        if (!probe.type || !ConversionEnumerator(*probe.type))
            throw DocumentError{Failure::UnreadableText, path, {L"[" + probe.section + L"] ConversionType"}};
        auto conversion = NewConversion();
        if (const ReadProblems problems = ProblemsOf(file->Read(probe.section, *conversion));
            !problems.IsEmpty())
            throw DocumentError{Failure::UnreadableText, path, problems.Lines()};
        added.push_back({probe.section, ContentOf(std::move(conversion))});
    }
    if (added.empty())
        throw DocumentError{Failure::NoProbesInText, path, {}};
    return Append(StepKind::Paste, std::move(added));
}

void ProbeDocument::Rename(std::size_t probe, const std::wstring& name) {
    if (m_probes[probe].name != name)
        Do({StepKind::Rename, {probe}, {}, name, {}});
}

void ProbeDocument::SetType(const std::vector<std::size_t>& probes, const TypeChoice& type) {
    Step step{StepKind::ChangeType, {}, {}, {}, {}};
    for (const std::size_t probe : probes) {
        auto conversion = NewConversion();
        type.ApplyTo(*conversion);
        conversion->SetChanged(true);
        // What a save takes out of the file comes back from here.
        if (m_probes[probe].content.type == type.type && Covers(type, Conversion(probe)))
            continue;
        Load(m_probes[probe]);
        step.places.push_back(probe);
        step.contents.push_back(ContentOf(std::move(conversion)));
    }
    if (!step.places.empty())
        Do(std::move(step));
}

void ProbeDocument::Remove(const std::vector<std::size_t>& probes) {
    if (!probes.empty())
        Do({StepKind::Remove, probes, {}, {}, {}});
}

void ProbeDocument::Do(Step step) {
    Toggle(step);
    Push(std::move(step));
}

void ProbeDocument::Push(Step step) {
    for (Step& undone : m_undone) {
        for (ListedProbe& entry : undone.entries) {
            if (!entry.isNew)
                m_gone.push_back(std::move(entry));
        }
    }
    m_undone.clear();
    m_done.push_back(std::move(step));
    ++m_revision;
}

void ProbeDocument::Toggle(Step& step) {
    ++m_revision;
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
        for (std::size_t i = 0; i < step.places.size(); ++i)
            m_probes[step.places[i]].SwapContent(step.contents[i]);
        return;
    case StepKind::Add:
    case StepKind::Duplicate:
    case StepKind::Import:
    case StepKind::Paste:
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
    // A step holds what is not in the list. One that was taken back holds a probe of the file when it has
    // added the probe before a save.
    std::vector<const ListedProbe*> removed;
    const auto add = [&removed](const std::vector<ListedProbe>& entries) {
        for (const ListedProbe& entry : entries) {
            if (!entry.isNew)
                removed.push_back(&entry);
        }
    };
    for (const std::vector<Step>* const steps : {&m_done, &m_undone}) {
        for (const Step& step : *steps)
            add(step.entries);
    }
    add(m_gone);
    return removed;
}

bool ProbeDocument::Changed() const {
    return std::any_of(m_probes.begin(), m_probes.end(),
                       [](const ListedProbe& entry) { return entry.IsChanged(); }) ||
           !RemovedProbes().empty();
}

void ProbeDocument::Save(const OthersChanges& replaced) {
    // What was read stays in m_file, whatever becomes of this save.
    const std::size_t lostSteps = ReadHistory();
    auto file = FileAt(m_path);
    bool othersWrote = false;
    file->Edit([&] {
        // A file that is gone is not made anew: it would hold nothing but what has changed.
        static_cast<void>(file->Store()->Sections());
        othersWrote = WriteChanges(*file, replaced);
    });
    Settle(lostSteps);
    m_file = std::move(file);
    if (othersWrote)
        TakeOthersChanges();
}

void ProbeDocument::WriteAll(ProbeFile& file) {
    for (ListedProbe& entry : m_probes) {
        RequireWhole(entry);
        DocumentSave::WriteWhole(file, entry);
    }
}

bool ProbeDocument::WriteChanges(ProbeFile& file, const OthersChanges& replaced) {
    const bool othersWrote = ChangedByOthers();
    WriteChanges(file, othersWrote, replaced);
    return othersWrote;
}

void ProbeDocument::WriteChanges(ProbeFile& file, bool othersWrote, const OthersChanges& replaced) {
    const auto requireWhole = [this](std::size_t probe) { RequireWhole(m_probes[probe]); };
    DocumentSave(*m_file, m_probes, RemovedProbes(), requireWhole).WriteInto(file, othersWrote, replaced);
}

std::size_t ProbeDocument::ReadHistory() {
    const auto isWhole = [](const ProbeContent& content) {
        return content.problems.IsEmpty() && content.type && ConversionEnumerator(*content.type);
    };
    const auto isKept = [&](Step& step) {
        return std::all_of(step.contents.begin(), step.contents.end(), isWhole) &&
               std::all_of(step.entries.begin(), step.entries.end(), [&](ListedProbe& entry) {
                   return entry.isNew || (Load(entry).IsEmpty() && isWhole(entry.content));
               });
    };
    const auto lost = std::find_if_not(m_done.rbegin(), m_done.rend(), isKept);
    return static_cast<std::size_t>(m_done.rend() - lost);
}

void ProbeDocument::Settle(std::size_t lostSteps) {
    m_done.erase(m_done.begin(), m_done.begin() + static_cast<std::ptrdiff_t>(lostSteps));
    for (ListedProbe& entry : m_probes)
        entry.SetSaved();
    m_gone.clear();
    for (std::vector<Step>* const steps : {&m_done, &m_undone}) {
        for (Step& step : *steps) {
            for (ListedProbe& entry : step.entries)
                entry.SetNew();
            for (ProbeContent& content : step.contents)
                content.conversion->SetChanged(true);
        }
    }
    m_foreign.reset();
    m_problems.reset();
    ++m_revision;
}

void ProbeDocument::SaveCopyAs(const std::wstring& path, const OthersChanges& replaced) {
    SaveTo(path, replaced, m_path.empty());
}

void ProbeDocument::SaveAs(const std::wstring& path, const OthersChanges& replaced) {
    SaveTo(path, replaced, true);
}

void ProbeDocument::SaveTo(const std::wstring& path, const OthersChanges& replaced, bool moves) {
    // Where somebody has removed the file, all of its text is still here.
    const bool isGone = m_file && IsGone();
    if (isGone) {
        NamingFile(path, [&] { // what is refused is refused before anything is replaced
            const auto trial = ProbeFile::Snapshot(*m_file);
            const InMemory inMemory(*trial->Store());
            WriteChanges(*trial, false, replaced);
        });
        m_file->SaveAs(path);
    }
    if (m_file && m_file->Store()->IsOwnFile(path)) {
        Save(replaced);
        return;
    }
    const auto file = m_file ? FileAt(isGone ? path : m_path) : FileThatDoesNotExist(path);
    const std::size_t lostSteps = moves ? ReadHistory() : 0;
    bool othersWrote = false;
    NamingFile(path, [&] {
        const InMemory inMemory(*file->Store());
        if (m_file)
            othersWrote = WriteChanges(*file, replaced) && !isGone;
        else
            WriteAll(*file);
        file->SaveAs(path);
    });
    if (!moves)
        return;
    m_file = FileAt(path);
    m_path = path;
    m_isReadOnly = false;
    Settle(lostSteps);
    if (othersWrote)
        TakeOthersChanges();
}

void ProbeDocument::TakeOthersChanges() {
    // Values of others that were kept would look like changes of ours, beside the file.
    for (ListedProbe& entry : m_probes)
        entry.content.conversion = nullptr;
    // A step that is taken back would write their old values, also when the file cannot be read now.
    m_done.clear();
    m_undone.clear();
    try {
        Open(std::wstring(m_path));
    } catch (const DocumentError&) {
        // As below: it is no settings file any more.
    } catch (const QuorError&) {
        // Everything is saved. The list lacks what others have added until the file can be read again.
    }
}

bool ProbeDocument::IsStandAlone(const std::wstring& path) {
    if (!StandAloneSection(path))
        return false;
    ProbeFile file(path);
    return std::all_of(file.Probes().begin(), file.Probes().end(),
                       [](const ProbeEntry& probe) { return probe.standAlone; });
}

} // namespace ProbeSetup
