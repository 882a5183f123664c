#pragma once

#include "QuorIniFile/Export.h"

#include <optional>
#include <string>
#include <string_view>

namespace QuorIniFile {

/// Whether characters outside the basic plane are two units of a wide string.
inline constexpr bool wideIsUtf16 = sizeof(wchar_t) == 2;

/// Whether all of it is ASCII, which is the same as bytes and as text.
[[nodiscard]] QUORINIFILE_EXPORT bool IsAscii(std::wstring_view text);
[[nodiscard]] QUORINIFILE_EXPORT bool IsAscii(std::string_view bytes);

/// Puts `text` into `bytes` when it is ASCII; false, and something in `bytes`, when it is not. A string that
/// is used again and again needs no memory of its own each time.
[[nodiscard]] QUORINIFILE_EXPORT bool CopyAscii(std::wstring_view text, std::string& bytes);

[[nodiscard]] QUORINIFILE_EXPORT bool IsUtf8(std::string_view bytes);

/// `text` as UTF-8. What is no Unicode character (a lone surrogate, a code past 0x10FFFF) becomes U+FFFD.
[[nodiscard]] QUORINIFILE_EXPORT std::string ToUtf8(std::wstring_view text);

/// `bytes` as text, or nothing when they are not valid UTF-8.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<std::wstring> FromUtf8(std::string_view bytes);

} // namespace QuorIniFile
