#pragma once

#include "QuorIniFile/Export.h"

#include <optional>
#include <string>
#include <string_view>

// The wide text of the interfaces as the bytes of files, terminals and other libraries.
namespace QuorIniFile {

/// `text` as UTF-8. What is no Unicode character (a lone surrogate, a code past 0x10FFFF) becomes U+FFFD.
[[nodiscard]] QUORINIFILE_EXPORT std::string ToUtf8(std::wstring_view text);

/// `bytes` as text, or nothing when they are not valid UTF-8.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<std::wstring> FromUtf8(std::string_view bytes);

/// The text that `bytes` of a file or an argument spell: UTF-8 where they are valid, else Latin-1.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring DecodeBytes(std::string_view bytes);

/// `text` with escapes for what a terminal would obey or a log would take for a new line: control characters,
/// line separators, marks of direction, characters that nobody sees, and what is no Unicode character. They
/// look like those in the values of files: "\n", "\r", "\t", else "\u{1B}". Everything else stays,
/// backslashes too, so the result is not to be parsed. A text of several lines is escaped line by line.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring EscapeControls(std::wstring_view text);

/// The same as UTF-8, ready to be printed.
[[nodiscard]] QUORINIFILE_EXPORT std::string ToPrintable(std::wstring_view text);

} // namespace QuorIniFile
