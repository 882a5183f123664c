#pragma once

#include "QuorConversions/Export.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace QuorConversions {

// Numbers from text that a person typed, its decimal separator already turned into a point. A number is one
// sign at most, digits with at most one point among them, and an exponent: "-1.5", "5.", ".5e-3". The locale
// does not matter; hexadecimal digits, "inf" and "nan" are no numbers.

/// The number that `text` begins with, behind blanks; 0 when it begins with none. An exponent without digits
/// is not part of it: "1e" is 1. A number too small for a double is 0 with its sign. Raises QuorError 6
/// "Overflow" for one that is too large.
[[nodiscard]] QUORCONVERSIONS_EXPORT double ParseLeadingNumber(std::wstring_view text);

/// How many characters of `text` the number takes that it begins with, with the blanks in front of it; 0 when
/// it begins with none. No size is too large here.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::size_t LeadingNumberLength(std::wstring_view text);

/// The number that `text` is, with nothing but blanks around it. Nothing for any other text, and for a number
/// that is too large.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::optional<double> ParseWholeNumber(std::wstring_view text);

} // namespace QuorConversions
