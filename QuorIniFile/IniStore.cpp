#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/detail/IniDisk.h"
#include "QuorIniFile/detail/IniEncodedText.h"
#include "QuorIniFile/detail/IniError.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniText.h"
#include "QuorIniFile/detail/IniValue.h"
#include "QuorIniFile/detail/Unicode.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

namespace QuorIniFile {
namespace {

bool SameDouble(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

/// Which new names a file can take, and what is told of the others.
struct NameRule {
    bool (*readsBack)(std::string_view name);
    EIniCause refusal;
};
constexpr NameRule sectionNames{IsSectionName, INI_CAUSE_BAD_SECTION_NAME};
constexpr NameRule keyNames{IsKeyName, INI_CAUSE_BAD_KEY_NAME};

} // namespace

/// One file and the section that is selected in it.
class IniStore::Session {
public:
    explicit Session(IniFileSystem& files) : m_files(files) {}

    void SetText(std::string_view text) {
        FileText file{IniText(std::string(text))};
        file.stamp.exists = true;
        Adopt(std::move(file));
    }
    void SetFileName(std::wstring_view fileName) {
        IniFileName file = IniFileName::Absolute(fileName, m_files);
        if (file == m_file)
            return;
        if (m_isEditing)
            throw FileError(ERR_PATH_FILE_ACCESS, FileName(), INI_CAUSE_EDIT_NOT_ENDED);
        if (!m_isAbandoned)
            Save();
        TextChanges();
        m_text.reset();
        m_file = std::move(file);
    }
    [[nodiscard]] const std::wstring& FileName() const { return m_file.Text(); }
    void MakeFolder() const {
        if (FileName().empty())
            throw FileError(ERR_BAD_FILE_NAME, FileName());
        MakeFolderOf(m_file, m_files);
    }

    void SetSection(std::wstring_view section) {
        if (section == m_section)
            return;
        m_section = section; // nothing has changed should this fail
        m_number.reset();
    }
    [[nodiscard]] const std::wstring& Section() const { return m_section; }

    /// The bytes behind a key of the selected section, or nothing. Raises 53 when there is no file.
    std::optional<std::string_view> Read(std::wstring_view key) {
        LoadExisting();
        return FindValue(key);
    }

    /// Puts a number or flag behind `key`, unless `same(plain)` says that it stands there already.
    template <class Same>
    void Write(std::wstring_view key, std::string_view bytes, std::wstring_view comment, const Same& same) {
        Load();
        m_value.bytes = bytes;
        m_value.isText = false;
        m_value.comment.clear();
        if (!comment.empty())
            m_value.comment = FormatComment(comment, EncodingFor(comment));
        const auto present = FindValue(key);
        if (present) {
            const std::string_view plain = SplitComment(*present).plain;
            if (same(plain))
                m_value.bytes = plain;
        }
        Put(key, present.has_value());
    }

    void WriteText(std::wstring_view key, std::wstring_view text) {
        Load();
        const auto present = FindValue(key);
        m_value.isText = true;
        m_value.comment.clear();
        if (present && DecodeText(*present) == text)
            m_value.bytes = SplitTextComment(*present).plain;
        else
            m_value.bytes = EncodeText(text, EncodingFor(text));
        Put(key, present.has_value());
    }

    void WriteAsItStands(std::wstring_view key, std::wstring_view value) {
        Load();
        const std::optional<std::string> bytes = NameToWrite(value, m_text->Encoding());
        if (!bytes)
            return WriteText(key, value);
        const IniCommentedValue line = SplitComment(*bytes);
        m_value.bytes = line.plain;
        m_value.isText = false;
        m_value.comment = line.comment;
        const bool isThere = FindValue(key).has_value();
        Put(key, isThere);
    }

    [[nodiscard]] std::vector<std::wstring> Sections() {
        LoadExisting();
        std::vector<std::wstring> names;
        for (const std::string_view name : m_text->SectionNames())
            names.push_back(DecodeBytes(name));
        return names;
    }

    [[nodiscard]] std::vector<IniWarning> Warnings() {
        LoadExisting();
        return WarningsOf(m_text->ReadText());
    }

    [[nodiscard]] bool HasSection(std::wstring_view name) {
        LoadExisting();
        return m_text->FindSection(name).has_value();
    }

    [[nodiscard]] bool CanSpell(std::wstring_view name) {
        Load();
        return NameToWrite(name, EncodingFor(name)).has_value();
    }

    [[nodiscard]] bool HasPlainHeaders() {
        LoadExisting();
        return m_text->HasPlainHeaders();
    }

    [[nodiscard]] bool HasText() {
        Load();
        return m_stamp.exists || m_text->IsDifferent();
    }
    [[nodiscard]] std::string_view PresentText() {
        LoadExisting();
        if (!m_composed)
            m_composed = m_text->ComposedText();
        return m_composed ? *m_composed : m_text->ExtendedText();
    }
    [[nodiscard]] std::uint64_t TextNumber() const { return m_textNumber; }

    [[nodiscard]] bool IsReadOnly() const { return QuorIniFile::IsReadOnly(m_file, m_files); }
    [[nodiscard]] bool IsOwnFile(std::wstring_view fileName) const {
        return IsSamePlace(IniFileName::Absolute(fileName, m_files), m_file, m_files);
    }
    [[nodiscard]] std::vector<IniLeftover> Leftovers() const { return LeftoversOf(m_file, m_files); }

    void SaveAs(std::wstring_view fileName) {
        if (m_isEditing)
            throw FileError(ERR_PATH_FILE_ACCESS, FileName(), INI_CAUSE_EDIT_NOT_ENDED);
        if (m_isAbandoned)
            throw NotWritten();
        const IniFileName target = IniFileName::Absolute(fileName, m_files);
        const std::string_view text = PresentText();
        const bool isOwn = IsSamePlace(target, m_file, m_files);
        if (isOwn && StampOf(m_file, m_files).exists) {
            Save();
            return;
        }
        RequireDecodable(text, m_encoding, target.Text());
        const IniEncodedText bytes(text, m_encoding);
        IniStamp stamp;
        UntilSaved([&] { return TryReplace(target, bytes.Bytes(), stamp); });
        if (isOwn) {
            m_hasFailed = false;
            Adopt({IniText(std::string(text)), m_encoding, stamp});
        }
    }

    void RemoveSection(std::wstring_view name) {
        Load();
        const auto section = m_text->FindSection(name);
        if (!section)
            return;
        m_text->RemoveSection(*section);
        SectionsChanged();
    }

    void RenameSection(std::wstring_view from, std::wstring_view to) {
        Load();
        const auto section = m_text->FindSection(from);
        if (!section)
            throw ErrorAbout(from, INI_CAUSE_NO_SUCH_SECTION);
        SpellNew(to, m_spelling, sectionNames);
        const auto holder = m_text->FindSection(to);
        if (holder && holder != section)
            throw ErrorAbout(to, INI_CAUSE_SECTION_EXISTS);
        if (!m_text->RenameSection(*section, m_spelling))
            throw ErrorAbout(to, sectionNames.refusal);
        SectionsChanged();
    }

    void Discard() {
        TextChanges();
        m_text.reset();
        m_hasFailed = false;
        m_isAbandoned = false;
        m_number.reset();
    }

    void Hold() { ++m_holds; }
    void Release() {
        if (m_holds == 0)
            return;
        --m_holds;
        if (IsHeld())
            return;
        if (!m_isAbandoned) {
            Save();
            return;
        }
        Discard();
        throw NotWritten();
    }
    void Abandon() {
        if (!IsHeld())
            return;
        m_isAbandoned = true;
        m_holds -= m_holds > 0 ? 1 : 0;
        if (!IsHeld())
            Discard();
    }

    void Edit(const std::function<void()>& edit) {
        if (m_isEditing) {
            EditWithin(edit);
            return;
        }
        if (IsHeld())
            throw FileError(ERR_PATH_FILE_ACCESS, FileName(), INI_CAUSE_EDIT_WITHIN_HOLD);
        if (FileName().empty())
            throw FileError(ERR_BAD_FILE_NAME, FileName());
        Save();
        UntilSaved([&] { return TryEdit(edit); });
    }

    /// Nothing of the object changes unless all has gone well.
    void Save() {
        if (!m_text || !m_text->HasWrites())
            return;
        if (FileName().empty())
            throw FileError(ERR_BAD_FILE_NAME, FileName());
        if (!m_text->IsDifferent() && !FileChanged()) {
            m_text->TakeAsRead();
            return;
        }
        m_hasFailed = true;
        UntilSaved([this] { return TrySave(); });
        m_hasFailed = false;
    }

    /// What a save has failed for was reported; it is not saved behind the user's back.
    void SaveAtEnd() {
        if (!m_hasFailed && !m_isAbandoned)
            Save();
    }

    bool FileChanged() {
        if (!m_text)
            return false;
        const IniStamp now = StampOf(m_file, m_files);
        if (now.exists != m_stamp.exists)
            return true;
        if (now == m_stamp && m_stamp.isSettled)
            return false;
        if (!HasBytes(m_file, Loaded().Bytes(), m_files))
            return true;
        m_stamp = now;
        return false;
    }

    void Reload() {
        if (!m_text)
            return;
        FileText file = LoadFile();
        ApplyChangesTo(file.text);
        Adopt(std::move(file));
    }

private:
    /// A text, and how the file that it was read from spells it.
    struct FileText {
        IniText text;
        IniFileEncoding encoding = IniFileEncoding::Bytes;
        IniStamp stamp = {};
    };

    /// One attempt at an edit. Ends the brackets that were opened in it, selects the section that was
    /// selected before, and forgets what was written unless all of it has been saved.
    class Attempt {
    public:
        explicit Attempt(Session& session) : m_session(session), m_section(session.m_section) {
            m_session.m_isEditing = true;
        }
        Attempt(const Attempt&) = delete;
        Attempt& operator=(const Attempt&) = delete;
        ~Attempt() {
            if (!m_isSaved)
                m_session.Discard();
            m_session.m_holds = 0;
            m_session.m_isEditing = false;
            m_session.m_section.swap(m_section);
            m_session.m_number.reset();
        }
        void Saved() { m_isSaved = true; }

    private:
        Session& m_session;
        std::wstring m_section;
        bool m_isSaved = false;
    };

    [[nodiscard]] bool IsHeld() const { return m_holds > 0 || m_isEditing; }
    [[nodiscard]] QuorError NotWritten() const {
        return FileError(ERR_PATH_FILE_ACCESS, FileName(), INI_CAUSE_RECORD_NOT_WHOLE);
    }

    /// Repeats an attempt that tells what has come in between, if anything.
    template <class Try>
    static void UntilSaved(const Try& attempt) {
        constexpr int mostRepetitions = 20;
        for (int repetitions = 0; const std::optional<QuorError> setback = attempt(); ++repetitions) {
            if (repetitions == mostRepetitions)
                throw QuorError(*setback);
        }
    }

    /// An edit inside another one. What a failed one has written in part must not be saved with the rest.
    void EditWithin(const std::function<void()>& edit) {
        try {
            edit();
        } catch (...) {
            m_isAbandoned = true;
            throw;
        }
    }

    /// Loads the file, runs the function and saves, all under the lock. What has come in between, if
    /// anything.
    std::optional<QuorError> TryEdit(const std::function<void()>& edit) {
        IniReplacement replacement(m_file, m_files);
        std::optional<FileText> file;
        if (!IsLoaded(replacement))
            file = LoadFile();
        Attempt attempt(*this);
        if (file)
            Adopt(*std::move(file));
        else
            m_stamp = replacement.Stamp();
        edit();
        if (m_isAbandoned)
            throw NotWritten();
        if (m_text && m_text->HasWrites()) {
            if (auto setback = SaveInto(replacement, *m_text, m_encoding))
                return setback;
        }
        attempt.Saved();
        return std::nullopt;
    }

    /// Gives a file these bytes, whatever stands in it. What has come in between, if anything.
    std::optional<QuorError> TryReplace(const IniFileName& target, std::string_view bytes, IniStamp& stamp) {
        IniReplacement replacement(target, m_files);
        const std::optional<IniStamp> now = replacement.Commit(bytes);
        if (!now)
            return replacement.Setback();
        stamp = *now;
        return std::nullopt;
    }

    /// Whether the file that is to be replaced is the one that was loaded, upon which nothing was written: it
    /// need not be loaded and indexed again.
    [[nodiscard]] bool IsLoaded(const IniReplacement& replacement) const {
        return m_text && !m_text->HasWrites() && m_stamp.exists && replacement.Stamp().exists &&
               replacement.Has(Loaded().Bytes());
    }

    void Load() {
        // A file that was not there may have come since, as long as we have nothing to say about it.
        if (m_text && (m_stamp.exists || m_text->IsDifferent()))
            return;
        if (FileName().empty())
            throw FileError(ERR_BAD_FILE_NAME, FileName());
        Adopt(LoadFile());
    }

    void LoadExisting() {
        if (!HasText())
            throw FileError(ERR_FILE_NOT_FOUND, FileName());
    }

    /// The file as it is now; an empty text when there is none.
    [[nodiscard]] FileText LoadFile() const {
        std::optional<IniFileBytes> file = ReadBytes(m_file, m_files);
        return file ? Decode(std::move(file->bytes), file->stamp) : FileText();
    }

    [[nodiscard]] FileText Decode(std::string bytes, const IniStamp& stamp) const {
        IniDecodedText decoded = DecodeFile(std::move(bytes), FileName());
        return {IniText(std::move(decoded.text)), decoded.encoding, stamp};
    }

    /// The bytes of the file as it was loaded.
    [[nodiscard]] IniEncodedText Loaded() const { return {m_text->ReadText(), m_encoding}; }

    void Adopt(FileText file) noexcept {
        static_assert(std::is_nothrow_move_assignable_v<IniText>);
        TextChanges();
        m_text = std::move(file.text);
        m_number.reset();
        m_encoding = file.encoding;
        m_stamp = file.stamp;
    }

    /// Raises what stands in the way of a change there.
    void ApplyChangesTo(IniText& other) {
        const std::optional<IniConflict> conflict = m_text->ApplyChangesTo(other);
        if (!conflict)
            return;
        throw ErrorAbout(DecodeBytes(conflict->section), conflict->kind == IniConflict::Kind::NameIsTaken
                                                             ? INI_CAUSE_SECTION_EXISTS
                                                             : INI_CAUSE_SECTION_IS_GONE);
    }

    /// Writes the changes into the file as it is now. What has come in between, if anything.
    std::optional<QuorError> TrySave() {
        IniReplacement replacement(m_file, m_files);
        if (replacement.Has(Loaded().Bytes()))
            return SaveInto(replacement, *m_text, m_encoding);
        // What somebody else has made of the file, and our changes to it.
        FileText theirs;
        try {
            theirs = Decode(replacement.Bytes(), replacement.Stamp());
            ApplyChangesTo(theirs.text);
        } catch (const QuorError&) {
            if (StampOf(m_file, m_files) == replacement.Stamp())
                throw;
            // It was half written.
            return FileError(ERR_PERMISSION_DENIED, FileName(), INI_CAUSE_KEEPS_WRITING);
        }
        return SaveInto(replacement, theirs.text, theirs.encoding);
    }

    /// Puts what `changed`, which was made from what stands in the file in that encoding, says with its
    /// changes in its place. What has come in between, if anything.
    std::optional<QuorError> SaveInto(IniReplacement& replacement, IniText& changed,
                                      IniFileEncoding encoding) {
        // All that can fail is done before the file is replaced.
        std::optional<IniText> merged;
        if (auto text = changed.ComposedText())
            merged.emplace(*std::move(text));
        const std::string_view text = merged ? merged->ReadText() : changed.ExtendedText();
        std::optional<IniStamp> stamp;
        if (changed.IsDifferent()) {
            // A file of one NUL is no UTF-16, and becomes it with what follows: nobody could load that.
            RequireDecodable(text, encoding, FileName());
            const IniEncodedText bytes(text, encoding);
            const IniEncodedText read(changed.ReadText(), encoding);
            stamp = replacement.Commit(bytes.Bytes(), read.Bytes());
            if (!stamp)
                return replacement.Setback();
        } else {
            // Whoever wrote it, what we say is saved has to outlive a power cut.
            replacement.Flush();
            stamp = replacement.Stamp();
        }
        if (!merged)
            changed.TakeAsRead();
        if (merged)
            Adopt({*std::move(merged), encoding, *stamp});
        else if (&changed != &*m_text)
            Adopt({std::move(changed), encoding, *stamp});
        m_number.reset();
        m_encoding = encoding;
        m_stamp = *stamp;
        return std::nullopt;
    }

    std::optional<std::string_view> FindValue(std::wstring_view key) {
        if (!m_number) // it is looked up once and remembered
            m_number = m_text->FindSection(m_section);
        return m_number ? m_text->FindValue(*m_number, key) : std::nullopt;
    }

    /// The text is about to become another one, or has become one.
    void TextChanges() noexcept {
        ++m_textNumber;
        m_composed.reset();
    }

    void SectionsChanged() {
        TextChanges();
        m_number.reset();
        m_hasFailed = false;
        if (!IsHeld())
            Save();
    }

    /// Puts m_value behind a key, which is there or not.
    void Put(std::wstring_view key, bool isThere) {
        // Both names are checked before anything is changed.
        if (!isThere)
            SpellNew(key, m_spelling, keyNames);
        TextChanges();
        if (isThere) {
            m_text->Write(*m_number, key, m_spelling, m_value);
        } else if (m_number) {
            m_text->WriteNew(*m_number, m_spelling, m_value);
        } else {
            SpellNew(m_section, m_sectionSpelling, sectionNames);
            m_number = m_text->AddSection(m_sectionSpelling, key, m_spelling, m_value);
        }
        m_hasFailed = false;
        if (!IsHeld())
            Save();
    }

    /// How `text` is to be written. ASCII is the same in every file, whose bytes need no look then.
    [[nodiscard]] IniEncoding EncodingFor(std::wstring_view text) {
        return IsAscii(text) ? IniEncoding::Utf8 : m_text->Encoding();
    }

    /// Puts the bytes of a new name into `spelling`.
    void SpellNew(std::wstring_view name, std::string& spelling, const NameRule& rule) {
        if (!CopyAscii(name, spelling)) { // as nearly all are
            auto bytes = NameToWrite(name, m_text->Encoding());
            if (!bytes)
                throw ErrorAbout(name, NameToFind(name) ? INI_CAUSE_NAME_NOT_IN_LATIN1 : rule.refusal);
            spelling = *std::move(bytes);
        }
        if (!rule.readsBack(spelling))
            throw ErrorAbout(name, rule.refusal);
    }

    /// An error about a section or key of the file, by name.
    [[nodiscard]] QuorError ErrorAbout(std::wstring_view name, EIniCause cause) const {
        return FileError(ERR_PATH_FILE_ACCESS, FileName(), cause, {std::wstring(name)});
    }

    IniFileSystem& m_files;
    IniFileName m_file;
    std::wstring m_section;
    std::optional<IniText> m_text;            // nothing until the file is loaded
    IniStamp m_stamp;                         // of the file that the text was read from
    std::optional<IniText::Section> m_number; // of the selected section, once it was found
    std::uint64_t m_textNumber = 1;           // counts whatever may have changed the text
    std::optional<std::string> m_composed;    // from m_text, as long as that is the same
    bool m_hasFailed = false;                 // a save of all that is written
    std::size_t m_holds = 0;
    bool m_isAbandoned = false; // what is held is part of a record, and must not be saved
    bool m_isEditing = false;   // an edit holds all that is written, until it ends
    IniFileEncoding m_encoding = IniFileEncoding::Bytes; // of the file that the text was read from
    // Made anew with each call; kept, because making them needs memory.
    std::string m_spelling, m_sectionSpelling;
    IniNewValue m_value;
};

IniStore::IniStore() : IniStore(IniFileSystem::System()) {}
IniStore::IniStore(IniFileSystem& files) : m_session(std::make_unique<Session>(files)) {}

std::shared_ptr<IniStore> IniStore::OfText(std::string_view text) {
    auto store = std::make_shared<IniStore>();
    store->m_session->SetText(text);
    return store;
}

IniStore::~IniStore() {
    try {
        m_session->SaveAtEnd();
    } catch (...) { // NOLINT(bugprone-empty-catch): a destructor has nobody to tell
    }
}

void IniStore::SetFileName(std::wstring_view fileName) { m_session->SetFileName(fileName); }
std::wstring_view IniStore::FileName() const { return m_session->FileName(); }
void IniStore::MakeFolder() { m_session->MakeFolder(); }
void IniStore::SetSection(std::wstring_view section) { m_session->SetSection(section); }
std::wstring_view IniStore::Section() const { return m_session->Section(); }

bool IniStore::ReadBoolean(std::wstring_view key, bool& value) {
    return TakeValue(m_session->Read(key), value);
}
bool IniStore::ReadDouble(std::wstring_view key, double& value) {
    return TakeValue(m_session->Read(key), value);
}
bool IniStore::ReadInteger(std::wstring_view key, std::int16_t& value) {
    return TakeValue(m_session->Read(key), value);
}
bool IniStore::ReadString(std::wstring_view key, std::wstring& value) {
    return TakeValue(m_session->Read(key), value);
}

void IniStore::WriteBoolean(std::wstring_view key, bool value) {
    m_session->Write(key, FormatBoolean(value), {},
                     [value](std::string_view present) { return ParseBoolean(present) == value; });
}

void IniStore::WriteDouble(std::wstring_view key, double value, std::wstring_view comment) {
    NumberText place;
    m_session->Write(key, FormatDouble(value, place), comment, [value](std::string_view present) {
        const std::optional<double> old = ParseDouble(present);
        return old && SameDouble(*old, value);
    });
}

void IniStore::WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) {
    m_session->Write(key, FormatInteger(value), comment,
                     [value](std::string_view present) { return ParseInteger(present) == value; });
}

void IniStore::WriteString(std::wstring_view key, std::wstring_view value) {
    m_session->WriteText(key, value);
}

void IniStore::WriteAsItStands(std::wstring_view key, std::wstring_view value) {
    m_session->WriteAsItStands(key, value);
}

bool IniStore::HasText() { return m_session->HasText(); }
std::string_view IniStore::Text() { return m_session->PresentText(); }
std::vector<std::wstring> IniStore::Sections() { return m_session->Sections(); }
std::vector<IniWarning> IniStore::Warnings() { return m_session->Warnings(); }
bool IniStore::CanNameSection(std::wstring_view name) {
    const auto spelled = NameToFind(name);
    return spelled && QuorIniFile::IsSectionName(*spelled);
}
bool IniStore::CanSpell(std::wstring_view name) { return m_session->CanSpell(name); }
bool IniStore::HasSection(std::wstring_view name) { return m_session->HasSection(name); }
IniLines IniStore::Lines(const IniLines::Place& from) { return {m_session->PresentText(), from}; }
bool IniStore::HasPlainHeaders() { return m_session->HasPlainHeaders(); }
std::uint64_t IniStore::TextNumber() const { return m_session->TextNumber(); }
void IniStore::RemoveSection(std::wstring_view name) { m_session->RemoveSection(name); }
void IniStore::RenameSection(std::wstring_view from, std::wstring_view to) {
    m_session->RenameSection(from, to);
}
void IniStore::Discard() { m_session->Discard(); }

void IniStore::Edit(const std::function<void()>& edit) { m_session->Edit(edit); }
void IniStore::Hold() { m_session->Hold(); }
void IniStore::Release() { m_session->Release(); }
void IniStore::Abandon() { m_session->Abandon(); }

bool IniStore::FileChanged() { return m_session->FileChanged(); }
bool IniStore::IsReadOnly() const { return m_session->IsReadOnly(); }
bool IniStore::IsOwnFile(std::wstring_view fileName) const { return m_session->IsOwnFile(fileName); }
std::vector<IniLeftover> IniStore::Leftovers() const { return m_session->Leftovers(); }
void IniStore::SaveAs(std::wstring_view fileName) { m_session->SaveAs(fileName); }
void IniStore::Reload() { m_session->Reload(); }

} // namespace QuorIniFile
