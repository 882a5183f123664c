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
/// It refers to the text of the store that made it, and is valid until that store is next written to, saved,
/// edited, discarded, reloaded or given another file. It visits every line: a key that occurs twice is
/// visited twice.
class QUORINIFILE_EXPORT IniLines {
public:
    /// What a line is.
    enum class Kind : std::uint8_t {
        Header,         // "[name]"
        UnclosedHeader, // '[' without ']': it begins a section without a name, whose keys cannot be read
        Key,            // "key=value"
        Malformed,      // none of these, no comment and not blank
    };
    /// Where a line begins.
    struct Place {
        std::size_t offset = 0; ///< in the text, in bytes
        std::size_t number = 1; ///< of the line, from 1
    };

    /// Moves to the next line that is neither blank nor a comment, at first to the first one. False after the
    /// last.
    [[nodiscard]] bool Next();

    /// Moves to the next header, closed or not, and skips everything else: faster than calling Next. False
    /// after the last.
    [[nodiscard]] bool NextHeader();
    /// Moves to the next header or to the next key of that name, which is ASCII, in any case; as fast as
    /// NextHeader. False after the last of both.
    [[nodiscard]] bool NextHeaderOr(std::string_view key);

    /// The number of the line, from 1.
    [[nodiscard]] std::size_t Number() const { return m_line.number; }
    /// Where the line begins, to continue from there later: IniStore::Lines.
    [[nodiscard]] Place Here() const { return m_line; }
    /// What the line is.
    [[nodiscard]] bool Is(Kind kind) const { return m_kind == kind; }
    [[nodiscard]] Kind What() const { return m_kind; }

    /// The line unchanged, including its line end.
    [[nodiscard]] std::string_view Bytes() const {
        return m_text.substr(m_line.offset, m_next.offset - m_line.offset);
    }
    /// The name in a header, or of a key; empty for other lines.
    [[nodiscard]] std::wstring Name() const;
    /// The same as the bytes of the text, UTF-8 or Latin-1.
    [[nodiscard]] std::string_view NameBytes() const { return m_name; }
    /// Whether Name() is `name`, which is ASCII, ignoring case. Faster than comparing the texts.
    [[nodiscard]] bool HasName(std::string_view name) const;
    /// The value of a key unchanged, with its quotes, but without the comment that may follow a number.
    [[nodiscard]] std::wstring Value() const;
    /// The value of a key with the comment behind it, unchanged: see IniStore::WriteAsItStands.
    [[nodiscard]] std::wstring ValueWithComment() const;
    /// The value of a key as a whole number; nothing if it is not one, or not within 16 bits.
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
