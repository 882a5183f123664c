#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers and flags as they are spelled in an INI file, whatever the user's locale, for programs that show
// such a value or read one from a command line. What is written reads back as the same value.
namespace QuorIniFile {

/// The shortest decimal text that reads back to the same bits, with a point; "NaN", "Infinity", "-Infinity".
[[nodiscard]] QUORINIFILE_EXPORT std::wstring ToValueText(double value);
/// Appends the same to a text in UTF-8.
QUORINIFILE_EXPORT void AppendValueText(std::string& text, double value);
/// The decimal digits, after a "-" if it is negative.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring ToValueText(std::int16_t value);
/// "True" or "False".
[[nodiscard]] QUORINIFILE_EXPORT std::wstring ToValueText(bool value);

/// The decimal number that the whole of `text` spells. Nothing if it spells none, or one beyond a double.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<double> DoubleOf(std::wstring_view text);
/// Whether `text` spells a number that a double cannot hold, because it is too large or too close to zero.
[[nodiscard]] QUORINIFILE_EXPORT bool IsBeyondDouble(std::wstring_view text);
/// The whole decimal number that the whole of `text` spells. Nothing if it spells none, or one beyond 16
/// bits.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<std::int16_t> IntegerOf(std::wstring_view text);
/// "True", "-1" and "1", "False" and "0", ignoring case; nothing for any other text.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<bool> BooleanOf(std::wstring_view text);

} // namespace QuorIniFile
