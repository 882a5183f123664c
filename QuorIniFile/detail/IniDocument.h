#pragma once

#include "QuorIniFile/detail/IniChanges.h"
#include "QuorIniFile/detail/IniExtents.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniKeys.h"
#include "QuorIniFile/detail/IniNames.h"
#include "QuorIniFile/detail/IniSections.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace QuorIniFile {

/// Why the changes of one document cannot be made in another one, whose text somebody else has changed since.
struct IniConflict {
    enum class Kind : std::uint8_t {
        NameIsTaken,   // a section was to get a name that another one has there
        SectionIsGone, // a section of which only some keys were written was removed or renamed there
    };
    Kind kind = Kind::NameIsTaken;
    std::string section; // the name that is taken; or the section that is gone, as the text called it
};

/// The text of an INI file as it was read, an index over its sections, and the changes made since.
/// It knows no file and no kinds of values: a value is the bytes behind a key.
///
/// Names are given as NameToFind or CanonicalName spell them, and looked up without regard to the case of
/// ASCII letters; of several sections or keys of one name the first counts. Sections and keys are found when
/// they are asked for, in one pass over the text that goes as far as it has to. The text is never touched:
/// changes stand beside it until Text() puts both together, so that a change costs the same in a file of any
/// size.
class IniDocument {
public:
    /// The number of a section of this document.
    using Section = IniSections::Section;

    explicit IniDocument(std::string text = {});

    /// How new text has to be written. Decided by the whole text, when it is first asked for.
    [[nodiscard]] IniEncoding Encoding() const;

    [[nodiscard]] std::optional<Section> FindSection(std::string_view name) const;
    /// Adds a section at the end, below a blank line of its own; it becomes part of the text with its first
    /// key. `name` is spelled as it
    /// will stand in the text, and no section of that name is there yet. One that was removed comes back in
    /// its old place, without its old keys.
    Section AddSection(std::string_view name);
    /// The names as they stand in the text with all changes, in its order; of a name that stands several
    /// times the first. The views live until the next change.
    [[nodiscard]] std::vector<std::string_view> SectionNames() const;
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

    /// A key of a section as it stands now. The views live until the next change.
    struct Key {
        std::optional<IniLine> line;             // nothing: there is none
        std::optional<std::uint32_t> change;     // the one that wrote it
        std::size_t start = IniChanges::newLine; // of its line in the text, unless it was written
    };
    [[nodiscard]] Key Look(Section section, std::string_view key) const;
    [[nodiscard]] std::optional<IniLine> FindKey(Section section, std::string_view key) const {
        return Look(section, key).line;
    }
    /// Puts `value` behind `key`. The first key line of that name is rewritten; without one, a line is added
    /// behind the last key of the section, with `spelling` as the bytes of the key.
    void Write(Section section, std::string_view key, std::string_view spelling, const IniNewValue& value) {
        Write(section, key, Look(section, key), spelling, value);
    }
    /// The same for who has looked already.
    void Write(Section section, std::string_view key, const Key& present, std::string_view spelling,
               const IniNewValue& value);

    /// Whether the text with all changes is another one.
    [[nodiscard]] bool Changed() const { return m_differing != 0 || !m_edits.empty(); }
    /// Whether anything was written, even if it stood there already: in the text that somebody else has made
    /// of the file since, it may not.
    [[nodiscard]] bool Written() const { return m_changes.Size() != 0 || !m_moves.empty(); }
    /// Forgets what was written. For a document that it has not changed.
    void ForgetWrites();
    /// The text as it was read.
    [[nodiscard]] std::string_view BaseText() const { return m_text; }
    /// The text with all changes.
    [[nodiscard]] std::string Text() const;
    /// Writes into another document, in the same order, what was written into this one: for a text that
    /// somebody else has changed since it was read. A section that was to be removed or renamed and is gone
    /// there needs neither. A section of this text in which something was written and which is gone there is
    /// added again if all its keys were written, or if the other text is empty. Returns what stands in the
    /// way of a change; `other` is of no use then. Nothing: all changes are made.
    [[nodiscard]] std::optional<IniConflict> ApplyChangesTo(IniDocument& other) const;

private:
    struct Placed {
        std::size_t at = 0; // in the text
        const IniChanges::Change* change = nullptr;
    };
    /// What has become of a section of the text. Later ones of its name share its lot.
    struct Edit {
        bool isRemoved = false; // with all its keys; a key that is written brings it back, and it alone
        std::string name;       // as it stands now
    };
    /// A removal (without `to`) or a renaming, in the order in which they were asked for.
    struct Move {
        std::string from; // as look-ups take it
        std::optional<std::string> to;
    };
    /// What takes the place of a part of the text.
    struct Patch {
        IniExtent old;
        std::string_view text;
    };

    /// The name as it stands now.
    [[nodiscard]] std::string_view Name(Section section) const;
    [[nodiscard]] bool IsNew(Section section) const { return section >= m_firstNew; }
    /// Whether the text has keys that count for the section.
    [[nodiscard]] bool HasKeysInText(Section section) const;
    /// Whether the text with all changes has the section.
    [[nodiscard]] bool IsThere(Section section) const;
    /// The edit of a section; null for none.
    [[nodiscard]] const Edit* EditOf(Section section) const;
    /// Notes a removal or renaming of a section of the text, and gives its edit to be changed.
    Edit& Note(Section section, std::optional<std::string> to);
    /// The section that was given that name, whose hash is given too, last and has it still, whether it is
    /// there or was removed.
    [[nodiscard]] std::optional<Section> LastGiven(std::string_view name, std::uint64_t hash) const;
    /// The same among new sections, as long as none of that name was renamed.
    [[nodiscard]] std::optional<Section> FindNew(std::string_view name, std::uint64_t hash) const;
    /// The sections that were given that name, for renaming: from now on m_given has them.
    std::vector<Section>& Given(std::string_view name);
    /// Takes a name back from the section that was given it last; nothing for other sections.
    void TakeBack(std::string_view name, Section section) noexcept;
    /// Whether all headers of a section spell that name in the text, so that none has to be rewritten.
    [[nodiscard]] bool IsSpelledInText(Section section, std::string_view name) const;
    /// Whether each key that the section has in the text was written, so that its changes are all of it.
    [[nodiscard]] bool IsWrittenWhole(Section section) const;
    [[nodiscard]] const IniKeys& KeysOf(Section section) const;
    [[nodiscard]] bool Differs(const IniChanges::Change& change) const;
    /// The changes of sections that the text has, in the order of the text.
    [[nodiscard]] std::vector<Placed> PlacedChanges() const;
    /// The removals and renamings alone.
    [[nodiscard]] std::optional<IniConflict> ApplyMovesTo(IniDocument& other) const;
    /// What removals and new names make of the text, in its order.
    [[nodiscard]] std::vector<Patch> Patches() const;

    std::string m_text;
    mutable IniSections m_sections;
    mutable IniKeys m_keys;                                  // of the section that was asked last
    mutable std::optional<Section> m_keysOf;                 // which one that is
    mutable std::unordered_map<Section, IniKeys> m_longKeys; // of all long sections that were asked
    mutable std::optional<IniEncoding> m_encoding;

    std::vector<std::string> m_newSections; // each is there as soon as it has a key
    Section m_firstNew = 0xFFFFFFFF;        // the number of the first new section, once there is one
    std::unordered_map<Section, Edit> m_edits;
    std::vector<Move> m_moves;
    IniIndex m_newNames; // of new sections, as they were added
    // The names that sections were given or gave up by being renamed, with those that have them now. Of
    // several that have one name all but the last were removed.
    IniNameMap<std::vector<Section>> m_given;
    IniChanges m_changes;
    std::string m_line;          // that is being put together
    std::size_t m_differing = 0; // how many of them say something else than the text
};

} // namespace QuorIniFile
