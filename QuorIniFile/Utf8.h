#pragma once

#include "QuorIniFile/Export.h"

#include <optional>
#include <string>
#include <string_view>

// The wide text of the interfaces as the bytes of files, terminals and other libraries.
namespace QuorIniFile {

/// `text` as UTF-8. What is not a Unicode character (a lone surrogate, a code above 0x10FFFF) becomes U+FFFD.
[[nodiscard]] QUORINIFILE_EXPORT std::string ToUtf8(std::wstring_view text);

/// `bytes` as text, or nothing if they are not valid UTF-8.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<std::wstring> FromUtf8(std::string_view bytes);

/// The text of `bytes` from a file or an argument: UTF-8 if they are valid UTF-8, otherwise Latin-1.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring DecodeBytes(std::string_view bytes);

/// `text` with escapes for what would control a terminal or break a line in a log: control characters, line
/// separators, marks of direction, invisible characters, and what is not a Unicode character. They look like
/// those in values of files: "\n", "\r", "\t", otherwise "\u{1B}". Everything else is unchanged, backslashes
/// too, so the result cannot be parsed back. Escape a text of several lines line by line.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring EscapeControls(std::wstring_view text);

/// The same as UTF-8, ready to be printed.
[[nodiscard]] QUORINIFILE_EXPORT std::string ToPrintable(std::wstring_view text);

} // namespace QuorIniFile
