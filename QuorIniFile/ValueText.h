#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers and flags as they are spelled in an INI file, whatever the user's locale, for those who show such a
// value or take one from a command line. What is written reads back as the very value.
namespace QuorIniFile {

/// The shortest decimal text that reads back to the same bits, with a point; "NaN", "Infinity", "-Infinity".
[[nodiscard]] QUORINIFILE_EXPORT std::wstring ToValueText(double value);
[[nodiscard]] QUORINIFILE_EXPORT std::wstring ToValueText(std::int16_t value);
/// "True" or "False".
[[nodiscard]] QUORINIFILE_EXPORT std::wstring ToValueText(bool value);

/// Decimal, from the first character to the last. Nothing for a number that a double cannot hold.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<double> DoubleOf(std::wstring_view text);
/// Whether it is a number that a double cannot hold, be it too large or too close to zero.
[[nodiscard]] QUORINIFILE_EXPORT bool IsBeyondDouble(std::wstring_view text);
/// Decimal, from the first character to the last. Nothing outside 16 bits.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<std::int16_t> IntegerOf(std::wstring_view text);
/// True, -1 and 1, False and 0, in any case of letters.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<bool> BooleanOf(std::wstring_view text);

} // namespace QuorIniFile
