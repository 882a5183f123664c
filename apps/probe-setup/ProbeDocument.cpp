#include "apps/probe-setup/ProbeDocument.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "QuorIniFile/detail/IniError.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/ReadLog.h"
#include "QuorProbeFile/ProbeTypes.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <random>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <unistd.h>

namespace ProbeSetup {

using namespace QuorConversions;
using namespace ProbeRecords;
using QuorIniFile::IniStore;
using QuorIniFile::ToUtf8;

namespace fs = std::filesystem;

namespace {

/// Gives a file these bytes, whatever stands in it.
void ReplaceBytes(const std::wstring& path, std::string_view bytes, QuorIniFile::IniFileSystem& files) {
    constexpr int mostTries = 20;
    for (int tries = 0;; ++tries) {
        QuorIniFile::IniReplacement replacement(path, files);
        if (replacement.Commit(bytes))
            return;
        if (tries == mostTries)
            throw QuorError(replacement.Setback());
    }
}

/// Calls `visit` with each part of `section` that is the name of a probe, if `section` holds its settings.
template <class Visit>
void ForEachOwner(std::wstring_view section, const Visit& visit) {
    for (std::size_t at = section.find(nestedMark); at != std::wstring_view::npos;
         at = section.find(nestedMark, at + 1)) {
        if (HoldsSettingsOf(section, section.substr(0, at)))
            visit(section.substr(0, at));
    }
}

bool CanBeWritten(std::wstring_view name) {
    const auto spelled = QuorIniFile::NameToFind(name);
    return spelled && QuorIniFile::IsSectionName(*spelled);
}

/// A name for a probe that is called as no section can be: a file may have any name.
std::wstring WithoutWhatCannotBeWritten(std::wstring name) {
    constexpr std::wstring_view blanks = L" \t";
    std::replace_if(
        name.begin(), name.end(), [](wchar_t c) { return c < L' ' || c == L'[' || c == L']'; }, L' ');
    name.erase(0, name.find_first_not_of(blanks));
    name.erase(name.find_last_not_of(blanks) + 1);
    return !name.empty() && CanBeWritten(name) ? name : L"Probe";
}

/// Types of one code whose names depend on their values.
bool IsNamedByItsValues(std::int32_t type) { return type == CONV_TCTYPEX || type == CONV_TCTYPEPOLY; }

bool IsReadOnlyFile(const std::wstring& path) {
    std::error_code error;
    const fs::path file = fs::canonical(ToUtf8(path), error); // a save leaves a symbolic link where it is
    const fs::perms mode = fs::status(file, error).permissions();
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    // A save puts a new file into the folder.
    return error || (mode & anyWrite) == fs::perms::none || ::access(file.c_str(), W_OK) != 0 ||
           ::access(file.parent_path().c_str(), W_OK) != 0;
}

/// The place of a file at the end of all symbolic links, also when it is gone.
fs::path PlaceOf(const std::wstring& path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    fs::path place = fs::absolute(ToUtf8(path), error);
    for (int links = 0; links < mostLinks && fs::is_symlink(place, error); ++links)
        place = place.parent_path() / fs::read_symlink(place, error);
    const fs::path found = fs::weakly_canonical(place, error);
    return error ? place : found;
}

/// Whether a save to the one path is a save to the other. Another hard link is another file then, because
/// a save parts the two; another spelling, where the case of letters makes no difference, is not.
bool IsSameFile(const std::wstring& a, const std::wstring& b) {
    if (PlaceOf(a) == PlaceOf(b))
        return true;
    std::error_code error;
    return fs::equivalent(ToUtf8(a), ToUtf8(b), error) && fs::hard_link_count(ToUtf8(a), error) == 1;
}

/// A file in a folder of its own, which vanishes with it.
class WorkFile {
public:
    WorkFile()
        : m_folder(fs::temp_directory_path() / ("probe-setup-" + std::to_string(std::random_device{}()))) {
        IniStore store;
        store.SetFileName(Path());
        store.MakeFolder();
    }
    WorkFile(const WorkFile&) = delete;
    WorkFile& operator=(const WorkFile&) = delete;
    ~WorkFile() {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }
    [[nodiscard]] std::wstring Path() const { return (m_folder / "copy.ini").wstring(); }

private:
    fs::path m_folder;
};

/// The first line that shows that a text without probes is none of an INI file: it has a character that no
/// text has, or there is no section at all and the line is no key either. Nothing for what may be a host's
/// file that has no probes yet.
std::optional<std::size_t> LineOfNoIniFile(std::string_view text) {
    const auto control = std::find_if(text.begin(), text.end(), [](char c) {
        // What moves a printer, and the mark at the end of a file of old systems, may stand in a text.
        constexpr std::string_view harmless = "\t\n\v\f\r\x1A";
        return static_cast<unsigned char>(c) < ' ' && harmless.find(c) == std::string_view::npos;
    });
    if (control != text.end())
        return 1 + static_cast<std::size_t>(std::count(text.begin(), control, '\n'));
    std::optional<std::size_t> malformed;
    QuorIniFile::IniWalker walker(text);
    while (walker.Next()) {
        const QuorIniFile::IniLineKind kind = walker.Line().kind;
        if (kind == QuorIniFile::IniLineKind::Section)
            return std::nullopt;
        if (kind == QuorIniFile::IniLineKind::Malformed && !malformed)
            malformed = walker.Number();
    }
    return malformed;
}

ReadProblems ProblemsOf(const std::vector<ReadLog::Read>& reads, const QuietPlatform::Quiet& quiet) {
    ReadProblems problems;
    for (const ReadLog::Read& read : reads) {
        if (!read.found)
            problems.keys.push_back(L"[" + read.section + L"] " + read.key);
    }
    // The message of missing keys says less than the keys themselves.
    for (const auto& [text, id] : quiet.Messages()) {
        if (problems.keys.empty() || id != IDS_WRONG_FILE_VERSION)
            problems.messages.push_back(text);
    }
    return problems;
}

/// What DocumentError says of a probe that cannot be written.
std::vector<std::wstring> Details(const std::wstring& probe, const QuietPlatform::Quiet& quiet) {
    std::vector<std::wstring> details{probe};
    for (const auto& message : quiet.Messages())
        details.push_back(message.text);
    return details;
}

/// What the library reads of a conversion that stands in `section`.
std::vector<ReadLog::Read> ReadsOf(CQuorConversion& conversion, const std::shared_ptr<IniStore>& store,
                                   const std::wstring& section) {
    const auto log = std::make_shared<ReadLog>(store);
    std::shared_ptr<INIFile> iniFile = log;
    conversion.ReadFromFile(iniFile, L"", section);
    return log->Reads();
}

} // namespace

std::vector<std::wstring> ReadProblems::Lines() const {
    std::vector<std::wstring> lines = keys;
    lines.insert(lines.end(), messages.begin(), messages.end());
    return lines;
}

void ProbeDocument::Entry::SetName(std::wstring newName) {
    if (!isNew && !nameInFile)
        nameInFile = name;
    name = std::move(newName);
    if (name == nameInFile)
        nameInFile.reset();
}

ProbeDocument::ProbeDocument(std::shared_ptr<Platform> platform,
                             std::shared_ptr<QuorRegistryII::Registry> registry,
                             QuorIniFile::IniFileSystem& files)
    : m_platform(std::make_shared<QuietPlatform>(std::move(platform))),
      m_registry(std::move(registry)),
      m_files(files) {}

std::shared_ptr<IniStore> ProbeDocument::StoreOf(const std::wstring& path) const {
    auto store = std::make_shared<IniStore>(m_files);
    store->SetFileName(path);
    return store;
}

// The list and the file

void ProbeDocument::Open(const std::wstring& path, const Progress& progress) {
    const ProbeFile file(path);
    const std::vector<Record>& records = file.Records();
    if (const auto line = records.empty() ? LineOfNoIniFile(file.Bytes()) : std::nullopt)
        throw DocumentError{Failure::NoSettingsFile, path, {std::to_wstring(*line)}};
    auto store = StoreOf(path);

    const QuietPlatform::Quiet quiet(*m_platform);
    std::vector<Entry> entries;
    entries.reserve(records.size());
    std::unordered_set<std::wstring> probes;
    std::unordered_map<std::int32_t, std::uint32_t> names; // of types
    for (const Record& record : records) {
        if (record.standAlone)
            continue;
        Entry entry;
        entry.name = record.section;
        store->SetSection(record.section);
        std::int16_t type = 0;
        if (!store->ReadInteger(conversionTypeKey, type)) {
            entry.content.name = NumberOf({});
        } else {
            entry.content.type = EQuorConversionType{type};
            const auto [name, isNew] = names.try_emplace(type, 0);
            if (isNew || IsNamedByItsValues(type)) {
                const auto conversion = NewConversion();
                conversion->SetConversionType(EQuorConversionType{type});
                if (IsNamedByItsValues(type)) {
                    std::shared_ptr<INIFile> iniFile = store;
                    conversion->ReadFromFile(iniFile, L"", record.section);
                }
                name->second = NumberOf(NameOf(*conversion));
            }
            entry.content.name = name->second;
        }
        probes.insert(Folded(entry.name));
        entries.push_back(std::move(entry));
        constexpr std::size_t now = 1024;
        if (progress && entries.size() % now == 0)
            progress(static_cast<double>(entries.size()) / static_cast<double>(records.size()));
    }

    std::vector<std::wstring> foreign;
    for (std::wstring& section : store->Sections()) {
        bool ours = probes.contains(Folded(section));
        ForEachOwner(section, [&](std::wstring_view owner) {
            ours = ours || probes.contains(Folded(std::wstring(owner)));
        });
        if (!ours)
            foreign.push_back(std::move(section));
    }

    Close();
    m_path = path;
    m_isReadOnly = IsReadOnlyFile(path);
    m_store = std::move(store);
    m_entries = std::move(entries);
    m_lostRecords = file.LostRecords();
    m_foreign = std::move(foreign);
}

void ProbeDocument::Close() {
    m_path.clear();
    m_isReadOnly = false;
    m_store = nullptr;
    m_entries.clear();
    m_lostRecords.clear();
    m_foreign.clear();
    m_done.clear();
    m_undone.clear();
}

bool ProbeDocument::IsChanged(std::size_t probe) const {
    const Entry& entry = m_entries[probe];
    return entry.isNew || entry.IsRenamed() || entry.content.IsChanged();
}

std::optional<std::size_t> ProbeDocument::Find(std::wstring_view name) const {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry& entry) { return SameName(entry.name, name); });
    if (found == m_entries.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_entries.begin());
}

NameProblem ProbeDocument::CheckName(std::wstring_view name, std::optional<std::size_t> except) const {
    if (name.empty())
        return NameProblem::Empty;
    if (!CanBeWritten(name))
        return NameProblem::CannotBeWritten;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (i == except)
            continue;
        const std::wstring& other = m_entries[i].name;
        if (SameName(name, other))
            return NameProblem::ProbeExists;
        if (HoldsSettingsOf(name, other))
            return NameProblem::IsSettingsOfProbe;
        if (HoldsSettingsOf(other, name))
            return NameProblem::SettingsSectionExists;
    }
    for (const std::wstring& section : m_foreign) {
        if (SameName(name, section))
            return NameProblem::SectionExists;
        if (HoldsSettingsOf(section, name))
            return NameProblem::SettingsSectionExists;
    }
    return NameProblem::None;
}

std::wstring ProbeDocument::FreeName(const std::wstring& wish) const {
    std::wstring stem = !wish.empty() && CanBeWritten(wish) ? wish : WithoutWhatCannotBeWritten(wish);
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
        IniImage::Apply(IniImage::Of(*settings), *copy->Settings());
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

ProbeDocument::Content ProbeDocument::ContentOf(std::shared_ptr<CQuorConversion> conversion) {
    Content content;
    content.type = conversion->ConversionType();
    content.name = NumberOf(NameOf(*conversion));
    content.conversion = std::move(conversion);
    return content;
}

const ReadProblems& ProbeDocument::Load(Entry& entry) {
    Content& content = entry.content;
    if (content.conversion)
        return content.problems;
    const QuietPlatform::Quiet quiet(*m_platform);
    auto conversion = NewConversion();
    if (!content.type) { // the library would take it for an ITS-90 calibration
        content.conversion = std::move(conversion);
        content.problems.keys = {L"[" + entry.Section() + L"] ConversionType"};
        return content.problems;
    }
    content.problems = ProblemsOf(ReadsOf(*conversion, m_store, entry.Section()), quiet);
    conversion->SetChanged(false);
    content.conversion = std::move(conversion);
    return content.problems;
}

void ProbeDocument::RequireWhole(Entry& entry) {
    if (const ReadProblems& problems = Load(entry); !problems.IsEmpty())
        throw DocumentError{Failure::UnreadableRecord, m_path, problems.Lines()};
    const EQuorConversionType type = *entry.content.type;
    if (!ConversionEnumerator(type)) // settings of a kind that the library does not know
        throw DocumentError{Failure::UnknownType, m_path, {entry.name, std::to_wstring(type)}};
}

bool ProbeDocument::HasSettings(std::size_t probe) { return Conversion(probe).Settings() != nullptr; }

const ReadProblems& ProbeDocument::CheckRecord(std::size_t probe) { return Load(m_entries[probe]); }

const CQuorConversion& ProbeDocument::Conversion(std::size_t probe) {
    Load(m_entries[probe]);
    return *m_entries[probe].content.conversion;
}

bool ProbeDocument::Edit(std::size_t probe) {
    const CQuorConversion& conversion = Conversion(probe);
    const auto copy = CopyOf(conversion);
    if (!copy->Edit() || m_isReadOnly || !copy->Settings())
        return false;
    // Not every value that a dialog can change sets Changed: a file that it opens may hold others as well.
    if (IniImage::Same(*IniImage::Of(*conversion.Settings()), *IniImage::Of(*copy->Settings())))
        return false;
    copy->SetChanged(true);
    Content content = ContentOf(copy);
    content.replacesRecord = m_entries[probe].content.replacesRecord;
    Do({StepKind::Edit, {probe}, {}, {}, std::move(content)});
    return true;
}

std::optional<std::wstring> ProbeDocument::Export(std::size_t probe, std::int32_t hwnd) {
    RequireWhole(m_entries[probe]);
    const std::shared_ptr<SettingsObject> settings = Conversion(probe).Settings();
    // A slash in a name would lead into another folder.
    std::wstring fileName = Name(probe);
    std::replace_if(
        fileName.begin(), fileName.end(), [](wchar_t c) { return c == L'/' || c == L'\\'; }, L'-');
    fileName = GetFolderPart(m_path) + fileName + L'.' + settings->FileExtension();
    const QuietPlatform::Quiet quiet(*m_platform);
    const bool chosen = settings->SaveFileAs(hwnd, fileName);
    if (!quiet.Messages().empty())
        throw DocumentError{Failure::CannotWrite, fileName, Details(Name(probe), quiet)};
    return chosen ? std::optional(fileName) : std::nullopt;
}

// Changes of the list

std::size_t ProbeDocument::Append(StepKind kind, std::wstring name, Content content) {
    Step step{kind, {m_entries.size()}, {}, {}, {}};
    step.entries.push_back({std::move(name), {}, true, std::move(content)});
    Do(std::move(step));
    return m_entries.size() - 1;
}

std::size_t ProbeDocument::Add(const std::wstring& name, EQuorConversionType type) {
    auto conversion = NewConversion();
    conversion->SetConversionType(type);
    return Append(StepKind::Add, name, ContentOf(std::move(conversion)));
}

std::size_t ProbeDocument::Duplicate(std::size_t probe) {
    RequireWhole(m_entries[probe]);
    return Append(StepKind::Duplicate, FreeName(Name(probe)), ContentOf(CopyOf(Conversion(probe))));
}

std::size_t ProbeDocument::Import(const std::wstring& path) {
    const std::wstring extension = Folded(GetExtensionPart(path));
    const TypeInfo* first = nullptr;
    for (const TypeInfo& type : Types()) {
        if (extension.empty() || type.extension != extension)
            continue;
        // Several types share an extension: the first that reads the file without a complaint is meant.
        first = first ? first : &type;
        auto conversion = NewConversion();
        conversion->SetConversionType(type.code);
        const QuietPlatform::Quiet quiet(*m_platform);
        std::wstring fileName = path;
        if (conversion->Settings()->OpenFile(0, fileName) && quiet.Messages().empty()) {
            const std::wstring name = GetFileNamePart(path);
            return Append(StepKind::Import, FreeName(name.substr(0, name.size() - extension.size() - 1)),
                          ContentOf(std::move(conversion)));
        }
    }
    if (!first)
        throw DocumentError{Failure::NoStandAloneFile, path, {}};

    // Once more, to learn what is missing.
    const QuietPlatform::Quiet quiet(*m_platform);
    const auto store = StoreOf(path);
    const auto log = std::make_shared<ReadLog>(store);
    std::shared_ptr<INIFile> iniFile = log;
    const auto conversion = NewConversion();
    conversion->SetConversionType(first->code);
    conversion->Settings()->ReadFromFile(iniFile, L"", first->section);
    const ReadProblems problems = ProblemsOf(log->Reads(), quiet);
    throw DocumentError{Failure::UnreadableRecord, path,
                        problems.messages.empty() ? problems.keys : problems.messages};
}

void ProbeDocument::Rename(std::size_t probe, const std::wstring& name) {
    if (m_entries[probe].name != name)
        Do({StepKind::Rename, {probe}, {}, name, {}});
}

void ProbeDocument::SetType(std::size_t probe, EQuorConversionType type) {
    const Entry& entry = m_entries[probe];
    if (entry.content.type == type)
        return;
    auto conversion = NewConversion();
    conversion->SetConversionType(type);
    Content content = ContentOf(std::move(conversion));
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
        Entry& entry = m_entries[step.places.front()];
        std::wstring old = entry.name;
        entry.SetName(std::move(step.name));
        step.name = std::move(old);
        return;
    }
    case StepKind::ChangeType:
    case StepKind::Edit:
        std::swap(m_entries[step.places.front()].content, step.content);
        return;
    case StepKind::Add:
    case StepKind::Duplicate:
    case StepKind::Import:
    case StepKind::Remove:
        break;
    }
    std::vector<Entry> entries;
    auto place = step.places.begin();
    if (step.entries.empty()) {
        step.entries.reserve(step.places.size());
        entries.reserve(m_entries.size() - step.places.size());
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            const bool goes = place != step.places.end() && *place == i;
            (goes ? step.entries : entries).push_back(std::move(m_entries[i]));
            place += goes ? 1 : 0;
        }
    } else {
        entries.reserve(m_entries.size() + step.entries.size());
        auto stays = m_entries.begin();
        for (Entry& comes : step.entries) {
            while (entries.size() < *place)
                entries.push_back(std::move(*stays++));
            entries.push_back(std::move(comes));
            ++place;
        }
        std::move(stays, m_entries.end(), std::back_inserter(entries));
        step.entries.clear();
    }
    m_entries = std::move(entries);
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

std::vector<const ProbeDocument::Entry*> ProbeDocument::RemovedEntries() const {
    // What was taken out of the list and stands in the file is in a step that was done. (Steps that were
    // taken back hold new probes only.)
    std::vector<const Entry*> removed;
    for (const Step& step : m_done) {
        for (const Entry& entry : step.entries) {
            if (!entry.isNew)
                removed.push_back(&entry);
        }
    }
    return removed;
}

bool ProbeDocument::Changed() const {
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (IsChanged(i))
            return true;
    }
    return !RemovedEntries().empty();
}

void ProbeDocument::Save(const OthersChanges& replaced) {
    // What was read stays in m_store, whatever becomes of this save.
    const auto store = StoreOf(m_path);
    bool othersWrote = false;
    store->Edit([&] {
        // A file that is gone is not made anew: it would hold nothing but what has changed.
        static_cast<void>(store->Sections());
        othersWrote = WriteChanges(store, replaced);
    });
    Settle();
    m_store = store;
    if (!othersWrote)
        return;
    // Values of others that were kept would look like changes of ours, beside the file.
    for (Entry& entry : m_entries)
        entry.content.conversion = nullptr;
    try {
        Open(std::wstring(m_path));
    } catch (const QuorError&) {
        // Everything is saved. The list lacks what others have added until the file can be read again.
    }
}

std::unordered_set<const ProbeDocument::Entry*>
ProbeDocument::CheckForConflicts(const std::shared_ptr<IniStore>& theirs, const OthersChanges& replaced) {
    std::unordered_set<std::wstring> sections;
    std::unordered_set<std::wstring> taken; // and by whose settings
    for (const std::wstring& section : theirs->Sections()) {
        sections.insert(Folded(section));
        ForEachOwner(section, [&taken](std::wstring_view name) { taken.insert(Folded(std::wstring(name))); });
    }
    taken.insert(sections.begin(), sections.end());
    RequireFreeNames(taken);

    std::vector<std::wstring> changed;
    std::vector<RecordConflict> conflicts;
    std::vector<Entry*> gone;
    for (Entry& entry : m_entries) {
        if (entry.isNew || !(entry.IsRenamed() || entry.content.IsChanged()))
            continue;
        if (!sections.contains(Folded(entry.Section()))) {
            gone.push_back(&entry);
            changed.push_back(entry.name);
        } else if (IsMerged(entry)) {
            const auto found = MergeOf(entry, theirs, entry.Section())->Conflicts();
            conflicts.insert(conflicts.end(), found.begin(), found.end());
        } else if (entry.content.IsChanged() && !IsSameRecord(theirs, entry.Section())) {
            changed.push_back(entry.name);
        } // what is only renamed keeps the values that stand there
    }
    for (const Entry* const entry : RemovedEntries()) {
        if (sections.contains(Folded(entry->Section())) && !IsSameRecord(theirs, entry->Section()))
            changed.push_back(entry->name);
    }
    const auto isAgreed = [](const auto& agreed) {
        return [&agreed](const auto& found) {
            return std::find(agreed.begin(), agreed.end(), found) != agreed.end();
        };
    };
    if (!std::all_of(changed.begin(), changed.end(), isAgreed(replaced.probes)) ||
        !std::all_of(conflicts.begin(), conflicts.end(), isAgreed(replaced.values)))
        throw DocumentError{Failure::ChangedByOthers, m_path, std::move(changed), std::move(conflicts)};
    for (Entry* const entry : gone)
        RequireWhole(*entry);
    return {gone.begin(), gone.end()};
}

bool ProbeDocument::IsSameRecord(const std::shared_ptr<IniStore>& theirs, const std::wstring& section) const {
    const QuietPlatform::Quiet quiet(*m_platform);
    const auto before = ReadsOf(*NewConversion(), m_store, section);
    const auto now = ReadsOf(*NewConversion(), theirs, section);
    return std::equal(before.begin(), before.end(), now.begin(), now.end(),
                      [](const ReadLog::Read& a, const ReadLog::Read& b) {
                          return a.section == b.section && a.key == b.key && a.found == b.found &&
                                 (!a.found || SameValue(a.value, b.value));
                      });
}

void ProbeDocument::RequireFreeNames(const std::unordered_set<std::wstring>& taken) const {
    std::unordered_set<std::wstring> ours; // sections in which our probes stood when the file was read
    for (const Entry& entry : m_entries) {
        if (!entry.isNew)
            ours.insert(Folded(entry.Section()));
    }
    for (const Entry* const entry : RemovedEntries())
        ours.insert(Folded(entry->Section()));
    for (const Entry& entry : m_entries) {
        if (!entry.isNew && !entry.IsRenamed())
            continue;
        const std::wstring name = Folded(entry.name);
        if (!ours.contains(name) && taken.contains(name))
            throw DocumentError{Failure::NameIsTaken, m_path, {entry.name}};
    }
}

void ProbeDocument::WriteAll(const std::shared_ptr<IniStore>& store) {
    for (Entry& entry : m_entries) {
        RequireWhole(entry);
        Write(store, entry, entry.name);
    }
}

bool ProbeDocument::WriteChanges(const std::shared_ptr<IniStore>& store, const OthersChanges& replaced) {
    const bool othersWrote = m_store->FileChanged();
    std::unordered_set<const Entry*> gone;
    if (othersWrote)
        gone = CheckForConflicts(store, replaced);
    MoveSections(*store);
    for (const Entry& entry : m_entries) {
        if (IsMerged(entry) && !gone.contains(&entry))
            WriteMerged(store, entry);
        else if (entry.isNew || entry.content.IsChanged() || gone.contains(&entry))
            Write(store, entry, entry.name);
    }
    SpellNewNames(*store);
    return othersWrote;
}

void ProbeDocument::SpellNewNames(IniStore& store) const {
    std::unordered_set<std::wstring> removed;
    for (const Entry* const entry : RemovedEntries())
        removed.insert(Folded(entry->Section()));
    for (const Entry& entry : m_entries) {
        if (!entry.isNew || !removed.contains(Folded(entry.name)))
            continue;
        for (const std::wstring& section : store.Sections()) {
            const std::wstring spelled =
                entry.name + section.substr(std::min(section.size(), entry.name.size()));
            if ((SameName(section, entry.name) || HoldsSettingsOf(section, entry.name)) && section != spelled)
                store.RenameSection(section, spelled);
        }
    }
}

void ProbeDocument::WriteMerged(const std::shared_ptr<IniStore>& store, const Entry& entry) const {
    const auto merge = MergeOf(entry, store, entry.name);
    if (merge->Conflicts().empty())
        merge->WriteChanges();
    else if (merge->HasAnotherType()) // the keys that stand there are not those of this conversion
        Write(store, entry, entry.name);
    else
        merge->WriteChangesAndRemoved();
}

std::shared_ptr<RecordMerge> ProbeDocument::MergeOf(const Entry& entry,
                                                    const std::shared_ptr<IniStore>& store,
                                                    const std::wstring& section) const {
    auto merge = std::make_shared<RecordMerge>(m_store, entry.Section(), store, section);
    Write(merge, entry, section);
    return merge;
}

void ProbeDocument::MoveSections(IniStore& store) const {
    const Moves moves = MovesIn(store);
    for (const std::wstring& section : moves.removed)
        store.RemoveSection(section);
    // Probes may change names among each other: a name that somebody waits for is given up first.
    std::unordered_set<std::wstring> wanted;
    for (const auto& [from, to] : moves.renamed) {
        if (!SameName(from, to))
            wanted.insert(Folded(to));
    }
    std::size_t number = 0;
    std::vector<std::pair<std::wstring, std::wstring>> renamed = moves.renamed;
    for (auto& [from, to] : renamed) {
        if (!wanted.contains(Folded(from)))
            continue;
        const std::wstring between = L"probe-setup renames " + std::to_wstring(++number);
        store.RenameSection(from, between);
        from = between;
    }
    for (const auto& [from, to] : renamed)
        store.RenameSection(from, to);
    for (const std::wstring& section : moves.outdated)
        store.RemoveSection(section);
}

ProbeDocument::Moves ProbeDocument::MovesIn(IniStore& store) const {
    const std::unordered_map<std::wstring, Owner> owners = Owners();
    if (std::none_of(owners.begin(), owners.end(),
                     [](const auto& owner) { return owner.second.Moves(true); }))
        return {};
    Moves moves;
    for (const std::wstring& section : store.Sections()) {
        std::vector<Owner> found;
        const auto find = [&](std::wstring_view name) {
            const auto owner = owners.find(Folded(std::wstring(name)));
            if (owner == owners.end())
                return;
            found.push_back(owner->second);
            moves.Add(owner->second, section, name.size());
        };
        find(section);
        ForEachOwner(section, find);
        RequireAgreement(section, found);
    }
    return moves;
}

std::unordered_map<std::wstring, ProbeDocument::Owner> ProbeDocument::Owners() const {
    std::unordered_map<std::wstring, Owner> owners;
    for (const Entry& entry : m_entries) {
        if (!entry.isNew)
            owners.emplace(Folded(entry.Section()), Owner{&entry, false});
    }
    for (const Entry* const entry : RemovedEntries())
        owners.emplace(Folded(entry->Section()), Owner{entry, true});
    return owners;
}

void ProbeDocument::Moves::Add(const Owner& owner, const std::wstring& section, std::size_t nameLength) {
    const std::wstring name = owner.entry->name + section.substr(nameLength);
    if (owner.isRemoved) {
        removed.push_back(section);
        return;
    }
    if (owner.entry->IsRenamed())
        renamed.emplace_back(section, name);
    if (owner.entry->content.replacesRecord && section.size() > nameLength)
        outdated.push_back(name);
}

void ProbeDocument::RequireAgreement(const std::wstring& section, const std::vector<Owner>& owners) const {
    for (const Owner& moving : owners) {
        if (!moving.Moves(!SameName(section, moving.entry->Section())))
            continue;
        for (const Owner& other : owners) {
            if (other.entry != moving.entry && !other.isRemoved)
                throw DocumentError{
                    Failure::SharedSection, m_path, {section, moving.entry->name, other.entry->name}};
        }
    }
}

void ProbeDocument::Write(const std::shared_ptr<INIFile>& iniFile, const Entry& entry,
                          const std::wstring& section) const {
    const QuietPlatform::Quiet quiet(*m_platform);
    std::shared_ptr<INIFile> target = iniFile;
    entry.content.conversion->WriteToFile(target, L"", section);
    if (!quiet.Messages().empty())
        throw DocumentError{Failure::CannotWrite, m_path, Details(entry.name, quiet)};
}

void ProbeDocument::Settle() {
    for (Entry& entry : m_entries) {
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
    const auto original = m_path.empty() ? std::nullopt : QuorIniFile::ReadBytes(m_path, m_files);
    const bool isOwn = !m_path.empty() && IsSameFile(path, m_path);
    if (isOwn && original) {
        Save(replaced);
        return;
    }
    const WorkFile work;
    ReplaceBytes(work.Path(), original ? original->bytes : std::string(), m_files);
    const auto store = StoreOf(work.Path());
    try {
        // Where somebody has removed the file, the probes are what can be saved of it.
        store->Edit([&] {
            if (original)
                static_cast<void>(WriteChanges(store, replaced));
            else
                WriteAll(store);
        });
    } catch (DocumentError& error) {
        if (error.failure == Failure::CannotWrite)
            error.file = path;
        throw;
    } catch (const QuorError& error) { // the user knows nothing of a work file
        if (error.Cause() && error.Cause()->fileName == work.Path())
            throw WithFileName(error, path);
        throw;
    }
    ReplaceBytes(path, QuorIniFile::ReadBytes(work.Path(), m_files)->bytes, m_files);
    if (!m_path.empty() && !isOwn)
        return;
    auto saved = StoreOf(path);
    static_cast<void>(saved->Sections()); // takes the text in
    m_path = path;
    m_store = std::move(saved);
    m_isReadOnly = false;
    m_lostRecords.clear(); // nothing but probes stands in it
    m_foreign.clear();
    Settle();
}

bool ProbeDocument::IsStandAlone(const std::wstring& path) {
    if (!StandAloneSection(path))
        return false;
    const ProbeFile file(path);
    return std::all_of(file.Records().begin(), file.Records().end(),
                       [](const Record& record) { return record.standAlone; });
}

} // namespace ProbeSetup
