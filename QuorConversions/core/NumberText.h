#pragma once

#include "QuorConversions/Export.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace QuorConversions {

// Numbers from text that a user typed, whose decimal separator was already replaced by a point. A number has
// at most one sign, digits with at most one point, and optionally an exponent: "-1.5", "5.", ".5e-3". The
// locale does not matter; hexadecimal digits, "inf" and "nan" are not numbers.

/// The number at the start of `text`, after any blanks; 0 if there is none. An exponent without digits is not
/// part of it: "1e" is 1. A number too small for a double is 0 with its sign. Raises QuorError 6 "Overflow"
/// if it is too large.
[[nodiscard]] QUORCONVERSIONS_EXPORT double ParseLeadingNumber(std::wstring_view text);

/// How many characters the number at the start of `text` has, including the blanks before it; 0 if there is
/// none. The magnitude is not checked.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::size_t LeadingNumberLength(std::wstring_view text);

/// The number that `text` consists of, apart from blanks around it. Nothing for any other text, and for a
/// number that is too large.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::optional<double> ParseWholeNumber(std::wstring_view text);

} // namespace QuorConversions
