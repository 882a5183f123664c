#pragma once

#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/Unicode.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// How an INI file is laid out: lines, section headers, keys, and the spelling of names. Pure functions on
// bytes; they know no file and keep no state. How a value is spelled is the business of IniValue.h.
namespace QuorIniFile {

inline constexpr std::size_t npos = std::string_view::npos;

/// What a line is.
enum class IniLineKind : std::uint8_t {
    Blank,
    Comment,       // ';' or '#' is its first character that is no blank
    Section,       // "[name]", with nothing behind it that counts
    BrokenSection, // '[' without ']': starts a section that has no name, so that nobody can address its keys
    Key,           // "key=value"
    Malformed,     // anything else; kept, never looked at
};

struct IniLine {
    IniLineKind kind = IniLineKind::Blank;
    std::string_view name;  // of a section, as it stands between the brackets; of a key, without edge blanks
    std::string_view value; // of a key: the bytes behind the '=', without edge blanks, still quoted
};

/// Says what `line` (without its line end) is. The views point into `line`; an empty value points to where
/// a value would stand. A section's name ends at the first ']' behind which there is nothing but blanks or a
/// comment, and at the last ']' when there is no such one.
[[nodiscard]] IniLine ClassifyLine(std::string_view line);

/// Says line by line, from a header down, which lines belong to a value. Some programs continue a value on
/// the lines below its key line: lines that begin with a blank or tab (blank lines and comments may stand
/// between), and the line below one that ends in a backslash. The store does not join such lines to the
/// value, but nothing may come between.
class IniContinuation {
public:
    /// For the next line. True for key lines and the lines that continue a value, an indented line right
    /// below the header too: it would continue any key that came above it.
    [[nodiscard]] bool IsPartOfValue(std::string_view line, IniLineKind kind);

private:
    bool m_isValue = true;      // an indented line continues what stands above
    bool m_isContinued = false; // the line above ends in a backslash
};

/// A value parted from the comment behind it: "100.02 ; ohms at 0 C".
struct IniCommentedValue {
    std::string_view plain;   // the value without blanks at its end
    std::string_view comment; // from its ';' on; empty when there is none
};

/// Parts the comment from a text in quotes ("Rig 4" ; the old one). The closing quote is the first one that
/// no backslash escapes; a blank and a ';' follow it, and no other quote. Everything else is text as a whole:
/// a text without quotes may hold a ';' of its own.
[[nodiscard]] IniCommentedValue SplitTextComment(std::string_view value);

/// Parts the comment from the value of a number or flag, which can hold no ';' of its own: it begins at the
/// first ';' at the start or behind a blank. A value that begins with a quote is parted as a text.
[[nodiscard]] IniCommentedValue SplitComment(std::string_view value);

/// What is to stand behind a key.
struct IniNewValue {
    std::string bytes; // of a text as it stands there already, without a comment, or as EncodeText spells it
    bool isText = false;
    std::string comment; // "; remark", takes the place of the comment that stood there; empty: leave it
};

/// The key line `line` with another value. Everything else of it stays as it was, the comment behind the old
/// value (SplitComment) too. A text above a comment is put in quotes, which tell it from the comment, and
/// double quotes in the comment become single ones, because no other quote may follow. A text that stands
/// there already, with all that looks like a comment, changes nothing.
[[nodiscard]] std::string RewriteLine(std::string_view line, const IniNewValue& value);

/// The line that starts at a place of a text, and where the next one starts.
struct IniCut {
    std::string_view line; // without LF or CRLF; a CR elsewhere is a character like any other
    std::size_t next = 0;
};
[[nodiscard]] inline IniCut CutLine(std::string_view text, std::size_t at) {
    const std::size_t end = text.find('\n', at);
    if (end == npos)
        return {text.substr(at), text.size()};
    const bool carriageReturn = end > at && text[end - 1] == '\r';
    return {std::string_view(text.data() + at, end - at - (carriageReturn ? 1 : 0)), end + 1};
}

/// The length of the byte-order mark of UTF-8 at the start of `text`: 3 or 0.
[[nodiscard]] std::size_t MarkLength(std::string_view text);

/// Whether `text` is UTF-16: by its byte-order mark, or because one of its first two bytes is NUL and the
/// other is not. Such a text cannot be taken for lines of bytes.
[[nodiscard]] bool IsUtf16(std::string_view text);

/// Walks through a text line by line:
///     IniWalker walker(text);
///     while (walker.Next())
///         if (walker.Line().kind == IniLineKind::Malformed)
///             report(walker.Number());
/// The text must outlive the walker.
class IniWalker {
public:
    explicit IniWalker(std::string_view text) : m_text(text), m_next(MarkLength(text)) {}

    /// Moves to the next line, at first to the first one. False behind the last.
    [[nodiscard]] bool Next();
    /// The number of the line, from 1.
    [[nodiscard]] std::size_t Number() const { return m_number; }
    [[nodiscard]] const IniLine& Line() const { return m_line; }
    /// All of the line, without its end.
    [[nodiscard]] std::string_view Bytes() const { return m_bytes; }

private:
    std::string_view m_text;
    std::size_t m_next;
    std::size_t m_number = 0;
    std::string_view m_bytes;
    IniLine m_line;
};

/// How bytes outside ASCII stand in a file: as UTF-8, or, in a file that as a whole is no valid UTF-8, as
/// Latin-1. Single values and names are always read as UTF-8 where they are valid, else as Latin-1.
enum class IniEncoding : std::uint8_t { Utf8, Latin1 };
[[nodiscard]] IniEncoding EncodingOf(std::string_view text);

/// `name` as look-ups take it (UTF-8), or nothing when no bytes of a file can spell it.
[[nodiscard]] std::optional<std::string> NameToFind(std::wstring_view name);

/// The bytes that spell `name` in a file of that encoding, or nothing when none reads back as `name`.
/// A name knows no escapes, and in UTF-8 it would make a Latin-1 file one of two encodings.
[[nodiscard]] std::optional<std::string> NameToWrite(std::wstring_view name, IniEncoding encoding);

/// `name` as it stands in a file, as look-ups take it: UTF-8. `buffer` holds the answer when it is not
/// `name`.
[[nodiscard]] std::string_view CanonicalName(std::string_view name, std::string& buffer);

/// Whether `name` as it stands in a file is the one that NameToFind gave. The case of ASCII letters does not
/// matter.
[[nodiscard]] bool AreOneName(std::string_view name, std::string_view wanted);
[[nodiscard]] inline bool SameName(std::string_view name, std::string_view wanted) {
    return name == wanted || AreOneName(name, wanted); // as it stands, nearly always
}

/// Whether `name` is ASCII and `wanted` has the same characters, as many.
[[nodiscard]] inline bool IsSameAscii(std::string_view name, const wchar_t* wanted) {
    constexpr std::size_t step = 8; // characters at once; the last ones again with some before them
    const auto isSame = [&](std::size_t from, std::size_t count) {
        std::uint32_t differing = 0;
        for (std::size_t at = from; at < from + count; ++at)
            differing |= static_cast<std::uint32_t>(wanted[at]) ^ static_cast<unsigned char>(name[at]);
        return differing == 0;
    };
    if (name.size() < step)
        return isSame(0, name.size()) && IsAscii(name);
    for (std::size_t at = 0; at + step < name.size(); at += step) {
        if (!isSame(at, step))
            return false;
    }
    return isSame(name.size() - step, step) && IsAscii(name);
}

/// The same for a name as a host gives it. One that no bytes of a file can spell is never meant.
[[nodiscard]] bool AreOneName(std::string_view name, std::wstring_view wanted);
[[nodiscard]] inline bool SameName(std::string_view name, std::wstring_view wanted) {
    return (name.size() == wanted.size() && IsSameAscii(name, wanted.data())) || // nearly always
           AreOneName(name, wanted);
}

/// Whether a new header or key line with that name would read back as that very name.
[[nodiscard]] bool IsSectionName(std::string_view name);
[[nodiscard]] bool IsKeyName(std::string_view name);

} // namespace QuorIniFile
