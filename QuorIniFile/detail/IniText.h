#pragma once

#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniNames.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace QuorIniFile {

/// Why the changes of one text cannot be made in another one, which somebody else has changed since.
struct IniConflict {
    enum class Kind : std::uint8_t {
        NameIsTaken,   // a section was to get a name that another one has there
        SectionIsGone, // a section of which only some keys were written was removed or renamed there
    };
    Kind kind = Kind::NameIsTaken;
    std::string section; // the name that is taken; or the section that is gone, as the text called it
};

/// The text of an INI file, an index over it, and the changes made since it was read. It knows no file and no
/// kinds of values: a value is the bytes behind a key.
///
/// There are three texts:
/// - ReadText, as it was read;
/// - ExtendedText, which begins with ReadText: new sections are added at its end at once, as they will be
///   saved. All other changes stand beside it, so that one costs the same in a text of any size;
/// - the text with all changes: ComposedText, or ExtendedText where there is nothing to compose.
/// IsDifferent says whether the third is another one than the first; then HasWrites holds. HasWrites alone:
/// what was written stood there already. TakeAsRead makes the three texts one, and neither holds.
///
/// Names are looked up without regard to the case of ASCII letters; of several sections or keys of one name
/// the first counts. The text is looked through from its start as far as a question needs. A function that
/// raises std::bad_alloc has changed nothing.
class IniText {
public:
    /// The number of a section of this text.
    using Section = std::uint32_t;

    explicit IniText(std::string text = {});
    IniText(const IniText&) = delete; // the keys point to their changes
    IniText& operator=(const IniText&) = delete;
    IniText(IniText&&) = default;
    IniText& operator=(IniText&&) = default;
    ~IniText() = default;

    /// How new text has to be written. Decided by the whole text as it was read, when it is first asked for.
    [[nodiscard]] IniEncoding Encoding();
    /// The text as it was read.
    [[nodiscard]] std::string_view ReadText() const { return std::string_view(m_text).substr(0, m_base); }

    [[nodiscard]] std::optional<Section> FindSection(std::wstring_view name);
    /// The names as they stand in the text with all changes, in its order; of a name that stands several
    /// times the first. The views live until the next change.
    [[nodiscard]] std::vector<std::string_view> SectionNames();
    /// Whether each header is closed, and the only one of its name.
    [[nodiscard]] bool HasPlainHeaders();
    /// The bytes behind a key as they stand now, without edge blanks. The view lives until the next change.
    [[nodiscard]] std::optional<std::string_view> FindValue(Section section, std::wstring_view key);

    /// Puts `value` behind `key`. The first key line of that name is rewritten; without one, a line is added
    /// behind the last key of the section, with `spelling` as the bytes of the key; below a blank line where
    /// the line above ends in a backslash.
    void Write(Section section, std::wstring_view key, std::string_view spelling, const IniNewValue& value);
    /// The same for a key that the section does not have.
    void WriteNew(Section section, std::string_view spelling, const IniNewValue& value);
    /// Adds a section with its first key at the end, below a blank line of its own. `name` is spelled as it
    /// will stand in the text, and no section of that name is there. One that the text had when it was read
    /// and that was removed comes back in its old place, without its old keys.
    Section AddSection(std::string_view name, std::wstring_view key, std::string_view spelling,
                       const IniNewValue& value);
    /// Removes a section, and later ones of its name, which would be found in its place otherwise: the
    /// header, the comments that touch it from above, and what follows down to the last key and the comments
    /// that touch that one. Comments that stand apart stay, and so do those that touch the next header, and
    /// those that open the text, for these may speak of the whole of it. Removing the last section, which was
    /// added at the end, gives the text that was there before.
    void RemoveSection(Section section);
    /// Rewrites the name in the header of a section, and of later ones of its name, and nothing else. `name`
    /// is spelled as it will stand in the text, and no other section of that name is there. False, and
    /// nothing has changed, when no header line could give that name back.
    [[nodiscard]] bool RenameSection(Section section, std::string_view name);

    /// Whether the text with all changes is another one.
    [[nodiscard]] bool IsDifferent() const {
        return m_text.size() != m_base || m_differing != 0 || !m_edits.empty();
    }
    /// Whether anything was written, even if it stood there already: in the text that somebody else has made
    /// of the file since, it may not.
    [[nodiscard]] bool HasWrites() const { return m_isWritten; }
    /// The text with all changes, or nothing when it stands in ExtendedText() already.
    [[nodiscard]] std::optional<std::string> ComposedText() const;
    /// The text as it was read, with the sections that were added.
    [[nodiscard]] std::string_view ExtendedText() const { return m_text; }
    /// Takes ExtendedText() for the text as it was read, and forgets what was written. For a text of which
    /// ComposedText() gives nothing. The sections keep their numbers.
    void TakeAsRead() noexcept;

    /// Writes into another text what was written into this one, the sections in their order, the keys of each
    /// in that of their writing: for a text that somebody else has changed since it was read. A section that
    /// was to be removed or renamed and is gone there needs neither. A section of this text in which
    /// something was written and which is gone there is added again if all its keys were written, or if the
    /// other text is empty. Returns what stands in the way of a change; `other` is of no use then. Nothing:
    /// all changes are made.
    [[nodiscard]] std::optional<IniConflict> ApplyChangesTo(IniText& other);

private:
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    /// A header of the text; small, because a file may have millions.
    struct Header {
        std::uint32_t name = 0;          // where its name starts; the '[' stands right before
        std::uint32_t nameLength = none; // none: it is broken
        Section first = none;            // the first section of its name, once it is indexed
        bool hasOtherSpellings = false;  // of a first section: a later one of its name is spelled otherwise
    };
    /// A key line that was written.
    struct Change {
        std::uint32_t start = none; // where the line stands in the text; none: nowhere, it is new
        bool isText = false;        // the value that was written
        bool hasComment = false;    // the comment was written with it
        std::string line;           // as it is now
    };
    /// Those of a section, in the order in which they were written first.
    using Changes = std::vector<Change>;
    /// A key line as it is now.
    struct Key {
        std::uint32_t start = none;  // where the line stands in the text; none: nowhere, it is new
        std::uint32_t change = none; // the number of its change
        std::uint32_t name = 0, nameLength = 0, value = 0, valueLength = 0; // in the line
        std::uint32_t tag = 0; // that names have in common which differ in the case of ASCII letters only
    };
    /// The key lines of one section: those of the text in its order, then the new ones in that of their
    /// writing. Few are looked through, many have an index, which knows the first of each name.
    struct Keys {
        std::vector<Key> list;
        Changes* changes = nullptr; // of the section in m_changes, where it has any
        IniNameIndex names;
        bool isIndexed = false;
        std::size_t length = 0; // of the section in the text, in bytes
    };
    /// What has become of a section. Later ones of its name share its lot.
    struct Edit {
        bool isRemoved = false; // with all its keys; a key that is written brings it back, and it alone
        std::string name;       // as it stands now
    };
    /// A removal (without `to`) or a renaming of a section that was read, in the order of their making.
    struct Move {
        std::string from; // as CanonicalName spells it
        std::optional<std::string> to;
    };
    /// What takes the place of a part of the text: a line that is added, or other bytes.
    struct Patch {
        std::size_t start = 0, end = 0;
        const std::string* bytes = nullptr; // none: nothing
        bool isLine = false;
    };
    /// A header line of the text as it was read, and the first section of its name.
    struct Place {
        std::size_t start = 0, next = 0; // where its '[' stands, where the line behind it starts
        Section section = none;
    };

    // Sections.
    [[nodiscard]] bool ReadOn();
    void MakeRoomForHeaders(std::size_t next);
    void Index();
    void IndexOne(Section section, std::uint64_t hash);
    void ReadAllHeaders();
    [[nodiscard]] bool IsRedundant(const Header& header) const;
    [[nodiscard]] std::string_view NameInText(Section section) const;
    [[nodiscard]] std::string_view Name(Section section) const;
    [[nodiscard]] bool IsAdded(Section section) const { return section >= m_firstAdded; }
    [[nodiscard]] const Edit* EditOf(Section section) const;
    [[nodiscard]] Edit& EditFor(Section section, Move move);
    [[nodiscard]] bool IsRemoved(Section section) const;
    [[nodiscard]] bool IsThere(Section section) const;
    [[nodiscard]] bool IsFound(Section section, std::wstring_view name) const;
    [[nodiscard]] std::optional<Section> FindNamed(std::string_view canonicalName) const;
    void GiveUpName(std::string_view canonicalName, Section section) noexcept;
    void TakeBack(std::size_t length) noexcept;

    // Keys.
    [[nodiscard]] std::string_view TextUpTo(Section section) const;
    [[nodiscard]] std::size_t Begin(Section section) const;
    [[nodiscard]] Keys& KeysOf(Section section);
    void ReadKeys(Section section);
    void ReadChanges(Section section);
    static void Describe(Key& key, std::string_view line, const IniLine& parsed);
    void IndexKeys(Keys& keys) const;
    [[nodiscard]] std::optional<std::uint32_t> FindIndexed(const Keys& keys, std::string_view name,
                                                           std::uint64_t hash) const;
    void AddKey(Keys& keys, const Key& key, bool isFirst) const;
    [[nodiscard]] const char* BytesOf(const Keys& keys, const Key& key) const;
    [[nodiscard]] std::string_view NameOf(const Keys& keys, const Key& key) const;
    [[nodiscard]] std::string_view ValueOf(const Keys& keys, const Key& key) const;
    [[nodiscard]] Key* FindKey(Keys& keys, std::wstring_view name) const;
    [[nodiscard]] std::string_view LineInText(Section section, std::uint32_t start) const;
    [[nodiscard]] bool Differs(Section section, const Change& change) const;
    [[nodiscard]] Change ChangeOf(Section section, const Keys& keys, const Key& key) const;
    [[nodiscard]] Changes& ChangesFor(Section section, Keys& keys);
    [[nodiscard]] Key ComposeLine(std::string_view spelling, const IniNewValue& value);
    void Rewrite(Section section, Keys& keys, Key& key, const IniNewValue& value);
    void InsertKey(Section section, Keys& keys, std::string_view spelling, const IniNewValue& value);
    void AppendKey(Keys& keys, std::string_view spelling, const IniNewValue& value);

    // Saving and merging.
    [[nodiscard]] std::vector<Place> Places() const;
    void AddChanges(std::vector<Patch>& patches) const;
    [[nodiscard]] std::vector<Patch> Patches() const;
    void AddRenaming(std::vector<Patch>& patches, std::size_t name, std::size_t length,
                     const Edit& edit) const;
    [[nodiscard]] Patch RemovalOf(const std::vector<Place>& places, std::size_t number, bool isKept) const;
    void AddEditsOfRead(std::vector<Patch>& patches) const;
    void AddEditsOfAdded(std::vector<Patch>& patches) const;
    [[nodiscard]] std::vector<Section> SectionsThatMayBeWritten() const;
    [[nodiscard]] std::vector<Key> WrittenKeys(Section section, const Keys& keys) const;
    [[nodiscard]] bool IsWrittenWhole(Section section, Keys& keys) const;
    [[nodiscard]] std::optional<IniConflict> ApplyMovesTo(IniText& other) const;

    std::string m_text;     // as it was read, and the sections that were added
    std::size_t m_base = 0; // the length of what was read
    std::optional<IniEncoding> m_encoding;
    std::vector<Header> m_headers;
    std::size_t m_next = 0;    // up to where the text was looked through for headers
    std::size_t m_indexed = 0; // so many sections, from the first on
    IniNameIndex m_names;      // under the name that each section has now: the section that was given it last
    Section m_asked = none;    // the section that was found last
    Section m_firstAdded = none;
    std::vector<std::size_t> m_starts;  // of the added sections, with the blank lines above them
    std::vector<std::uint32_t> m_texts; // where lines of added sections start that hold a text

    Keys m_keys; // of the section that was asked last
    Section m_keysOf = none;
    std::unordered_map<Section, Keys> m_kept; // of long sections
    std::unordered_map<Section, Changes> m_changes;

    std::unordered_map<Section, Edit> m_edits;
    std::unordered_map<Section, Section> m_hidden; // the removed section that had the name of another before
    std::vector<Move> m_moves;
    std::size_t m_differing = 0; // how many lines say something else than the text
    bool m_isWritten = false;
    std::string m_line; // that is being put together
};

} // namespace QuorIniFile
