#pragma once

#include "QuorConversions/Export.h"

#include <string>
#include <string_view>

namespace QuorConversions {

/// What a formatted number shows for "." and for "," in its format.
struct NumberSeparators {
    std::wstring decimal = L".";  ///< for ".", the decimal separator
    std::wstring grouping = L","; ///< for ",", which groups thousands
};

/// The text of `value` in a value format. No format is an error.
///
/// An empty format gives the shortest text that reads back to the same bits: plain decimal for
/// 1E-5 <= |value| < 1E15, else "1.5E-07". Minus zero is "-0" there, for the same reason.
///
/// Otherwise a format has up to three sections, "positive;negative;zero"; the positive one replaces a section
/// that is missing or empty, and further ones are ignored. The section is chosen by the value before
/// rounding. Only the positive section puts a minus sign before its text, and not if it shows zero.
///
///     0 #      a digit; "0" shows at least a zero, "#" shows nothing where the number has no digit;
///              between two zeros, and on one side of the point between a zero and a digit, "#" is a zero
///     .        the decimal separator, shown even if no digit follows
///     ,        after a place: groups of three digits, if a place before the point follows;
///              otherwise, also after the point, each divides by a thousand
///     %        a percent sign; multiplies by a hundred, once
///     E+00     exponent of at least so many digits, after the places of the mantissa; "E+" always shows its
///              sign, "E-" a minus only, "e" shows a small letter. With n places before the point the
///              exponent is a multiple of n
///     "x" \x   the text or the character itself
///
/// Every other character, and each of these where it has no meaning, is shown unchanged; a format without
/// places shows no digits. Rounding is half away from zero on the shortest decimal text: 1.005 under "0.00"
/// is "1.01".
///
/// Named formats, in any case: "General Number" is the empty format, "Fixed" is "0.00", "Standard"
/// "#,##0.00", "Percent" "0.00%", "Scientific" "0.00E+00".
///
/// "NaN", "Infinity" and "-Infinity" are shown in any format.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring FormatValue(double value, std::wstring_view format,
                                                              const NumberSeparators& separators = {});

/// Whether `format` shows every value so that it reads back to the same bits: the empty format, or its name.
[[nodiscard]] QUORCONVERSIONS_EXPORT bool IsGeneralFormat(std::wstring_view format);

} // namespace QuorConversions
