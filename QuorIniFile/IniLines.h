#pragma once

#include "QuorIniFile/Export.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace QuorIniFile {

/// A walk through the lines of an INI file, from header to header and key to key; blank lines and comments
/// are passed over:
///     IniLines lines = store.Lines();
///     while (lines.Next())
///         if (lines.Is(IniLines::Kind::Key))
///             use(lines.Number(), lines.Name(), lines.Value());
/// It looks at the text of the store that made it, and lives until that store is next written to, saved,
/// edited, discarded, reloaded or given another file. It tells what stands in the lines: a key that stands
/// twice is told twice.
class QUORINIFILE_EXPORT IniLines {
public:
    /// What a line is.
    enum class Kind : std::uint8_t {
        Header,         // "[name]"
        UnclosedHeader, // '[' without ']': it begins a section without a name, whose keys nobody can read
        Key,            // "key=value"
        Malformed,      // none of these, no comment and not blank
    };
    /// Where a line begins.
    struct Place {
        std::size_t offset = 0; // in the text
        std::size_t number = 1; // of the line
    };

    /// Moves to the next line that is no comment and not blank, at first to the first one. False behind the
    /// last.
    [[nodiscard]] bool Next();

    /// Moves to the next header, closed or not, and passes everything else over: cheaper than to walk there.
    [[nodiscard]] bool NextHeader();

    /// The number of the line, from 1.
    [[nodiscard]] std::size_t Number() const { return m_line.number; }
    /// Where the line begins, to walk on from there later: IniStore::Lines.
    [[nodiscard]] Place Here() const { return m_line; }
    [[nodiscard]] bool Is(Kind kind) const { return m_kind == kind; }
    [[nodiscard]] Kind What() const { return m_kind; }

    /// The line as it stands in the text, with its end.
    [[nodiscard]] std::string_view Bytes() const {
        return m_text.substr(m_line.offset, m_next.offset - m_line.offset);
    }
    /// The name in a header, or of a key; empty in other lines.
    [[nodiscard]] std::wstring Name() const;
    /// The same as its bytes stand in the text, UTF-8 or Latin-1.
    [[nodiscard]] std::string_view NameBytes() const { return m_name; }
    /// Whether Name() is `name`, which is ASCII, in any case of letters. Cheaper than to compare the texts.
    [[nodiscard]] bool HasName(std::string_view name) const;
    /// The value of a key as it stands, in its quotes, but without the comment that may follow a number.
    [[nodiscard]] std::wstring Value() const;
    /// The value of a key as a whole number; nothing when it is none of 16 bits.
    [[nodiscard]] std::optional<std::int16_t> Integer() const;

private:
    friend class IniStore;
    IniLines(std::string_view text, const Place& from);

    std::string_view m_text;
    Place m_next;
    Place m_line;
    Kind m_kind = Kind::Malformed;
    std::string_view m_name;
    std::string_view m_value;
};

} // namespace QuorIniFile
