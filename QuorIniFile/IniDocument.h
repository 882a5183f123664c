#pragma once

#include "QuorIniFile/Export.h"
#include "QuorIniFile/IniFormat.h"
#include "QuorIniFile/IniIndex.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace QuorIniFile {

/// The text of an INI file as it was read, an index over its sections, and the changes made since.
/// It knows no file and no kinds of values: a value is the bytes behind a key.
///
/// Names are given as NameToFind or CanonicalName spell them, and looked up without regard to the case of
/// ASCII letters; of several sections or keys of one name the first counts. Keys are found when they are
/// asked for: by looking through a small section, by an index in a large one. The text is never touched:
/// changes stand beside it until Text() puts both together, so that a change costs the same in a file of any
/// size.
class QUORINIFILE_EXPORT IniDocument {
public:
    /// The number of a section of this document.
    using Section = std::uint32_t;

    explicit IniDocument(std::string text = {});

    /// How new text has to be written. Decided by the whole text, when it is first asked for.
    [[nodiscard]] IniEncoding Encoding() const;

    [[nodiscard]] std::optional<Section> FindSection(std::string_view name) const;
    /// Adds a section at the end; it becomes part of the text with its first key. `name` is spelled as it
    /// will stand in the text, and no section of that name is there yet.
    Section AddSection(std::string_view name);

    /// The key line as it stands now. The views live until the next change.
    [[nodiscard]] std::optional<IniLine> FindKey(Section section, std::string_view key) const;
    /// Puts `value` behind `key`. The first key line of that name is rewritten; without one, a line is added
    /// behind the last key of the section, with `spelling` as the bytes of the key.
    void Write(Section section, std::string_view key, std::string_view spelling, const IniNewValue& value);

    /// Whether the text with all changes is another one.
    [[nodiscard]] bool Changed() const { return m_differing != 0; }
    /// Whether anything was written, even if it stood there already: in the text that somebody else has made
    /// of the file since, it may not.
    [[nodiscard]] bool Written() const { return !m_changes.empty(); }
    /// Forgets what was written. For a document that it has not changed.
    void ForgetWrites();
    /// The text as it was read.
    [[nodiscard]] std::string_view BaseText() const { return m_text; }
    /// The text with all changes.
    [[nodiscard]] std::string Text() const;
    /// Writes into another document, in the same order, what was written into this one: for a text that
    /// somebody else has changed since it was read.
    void ApplyChangesTo(IniDocument& other) const;

private:
    static constexpr std::uint32_t nameless = 0xFFFFFFFF;

    struct SectionSpan {
        std::size_t name = 0; // where its name starts; the '[' stands right before
        std::size_t body = 0; // where the line behind its header starts
        std::uint32_t nameLength = nameless;
    };
    struct KeySpan {
        std::size_t name = 0;
        std::uint32_t nameLength = 0;
    };
    struct KeyIndex {
        std::vector<KeySpan> keys; // every key line of the section
        IniIndex names;            // of these, the first of each name
    };
    struct Change {
        Section section = 0;
        bool isText = false;
        bool hasComment = false; // the comment on the line was written with the value
        std::size_t line = 0;    // where the line stands in the text; npos: it is new
        std::string text;        // the line as it is to be
    };
    struct Placed {
        std::size_t at = 0; // in the text
        const Change* change = nullptr;
    };

    void IndexSections();
    [[nodiscard]] std::string_view Name(Section section) const;
    [[nodiscard]] bool IsNew(Section section) const { return section >= m_sections.size(); }
    /// Where the text of a section ends.
    [[nodiscard]] std::size_t BodyEnd(Section section) const;
    [[nodiscard]] bool IsLarge(Section section) const;
    [[nodiscard]] const KeyIndex& KeysOf(Section section) const;
    [[nodiscard]] std::size_t LineStart(std::size_t at) const;

    [[nodiscard]] bool Differs(const Change& change) const;
    [[nodiscard]] std::optional<std::uint32_t> FindChange(Section section, std::string_view key,
                                                          std::uint64_t hash) const;
    /// Where the text has the key line, npos when it has none.
    [[nodiscard]] std::size_t FindLine(Section section, std::string_view key) const;
    /// Where the line behind the last key of a section starts.
    [[nodiscard]] std::size_t BehindLastKey(Section section) const;
    [[nodiscard]] std::vector<Placed> PlacedChanges() const;

    std::string m_text;
    std::vector<SectionSpan> m_sections;
    std::vector<std::string> m_newSections;
    IniIndex m_sectionNames;
    std::vector<Change> m_changes;
    std::size_t m_differing = 0; // how many of them say something else than the text
    IniIndex m_changedKeys;
    mutable std::unordered_map<Section, KeyIndex> m_keyIndexes; // of the large sections that were asked
    mutable std::optional<IniEncoding> m_encoding;
};

} // namespace QuorIniFile
