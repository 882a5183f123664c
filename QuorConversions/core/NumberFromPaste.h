#pragma once

#include "QuorConversions/Export.h"

#include <optional>
#include <string>
#include <string_view>

namespace QuorConversions {

/// Why a text is not taken as a number.
enum class PasteRefusal {
    None,       ///< it is taken
    NoNumber,   ///< it cannot be read as a number, or says more than a number
    TwoReadings ///< it can be read as two different numbers: "100,012", "- 5", "3 x 104"
};

/// A unit after a number, or in its name. Units of the same quantity count as one, except degrees Celsius and
/// kelvins, which have different zeros. Powers of a degree are the same in both.
enum class PastedUnit {
    None, ///< none is written
    Ohm,
    Celsius,
    Kelvin,
    Millivolt,
    MillivoltPerDegree,
    PerDegree,
    PerDegree2,
    PerDegree3,
    PerDegree4,
};

/// What a text from the clipboard means.
struct PastedNumber {
    /// The number with the user's decimal separator and an exponent after "E", which ParseWholeNumber reads
    /// once the separator is a point; nothing if the text is refused. Its digits are those of the text: none
    /// is added, lost or rounded, and the magnitude is not checked ("1E400").
    std::optional<std::wstring> number;
    PasteRefusal refusal = PasteRefusal::None; ///< why there is no number
    /// Whether the user should be told what was read: the character that was read as the decimal separator
    /// could have grouped thousands ("10.000"); blanks separate digits, as they separate columns ("100 200");
    /// points or commas group, and there is no decimal separator ("100,200,300"), or a single digit stands
    /// before the first of them, as the number of a row does ("1,100.012").
    bool isToBeTold = false;
    /// The name before the number, as written, without "=" or ":"; empty if there is none.
    std::wstring name;
    /// The unit after the number or in its name.
    PastedUnit unit = PastedUnit::None;
};

/// The number in a text that was copied from a certificate, a PDF or a web page; `separator` is the user's
/// decimal separator: its first character, or the point if it is empty. A text with two readings, or none, is
/// refused, and no character is ever ignored.
///
///     signs        - + and U+2212, U+2010 to U+2013, U+FE63, U+FF0D, U+FF0B. A dash and a blank before
///                  the digits mark a list item, except for U+2212 and after "="
///     blanks       every Unicode space; at the ends also tabs and line ends. U+FEFF and U+200B are left out,
///                  but between two digits they are blanks
///     groups       of three digits, separated by a blank or an apostrophe before the decimal separator, by a
///                  blank after it, where the last group may be shorter. No grouped number begins with 0
///     . and ,      of both, the last one is the decimal separator and occurs once, and the other groups;
///                  several of one kind group; a single point is the decimal separator, and so is a single
///                  comma that is the user's, or that cannot group: with other than three digits after it,
///                  with a leading 0, none or more than three digits before it, or with one digit before it
///                  and an exponent after the number
///     exponents    E-3 e-3 D-3; 10^-3 10**-3 10^(-3) 10^{-3} and 10 with superscript digits, also without a
///                  sign; 10-3 and 10 -3, only with a sign; the 10 after one of: U+00D7 U+00B7 U+22C5 U+2219
///                  x X *
///     units        those that do not scale, after a blank or directly; K, K-1 and those that begin with
///                  "1/" only after a blank: "5K" may be five thousand; "/K" not directly after a 1.
///                  Degrees and kelvins to the powers -1 to -4, written like exponents
///     names        before the number, up to "=" or ":", without a factor, a scaling unit, a sign or a
///                  function, even attached ("Ax10 =", "Ae3 ="): "R0 =", "A[7]:", "R(TPW) =". The caller
///                  decides whether the name fits
///     digits       0 to 9 and the full-width ones
///
/// Everything else is refused: uncertainties, brackets, fractions, trailing signs, other digits, control
/// characters, soft hyphens.
[[nodiscard]] QUORCONVERSIONS_EXPORT PastedNumber NumberFromPaste(std::wstring_view text,
                                                                  std::wstring_view separator);

/// The unit that the text names, such as "mV" or "K^-1"; None for any other text.
[[nodiscard]] QUORCONVERSIONS_EXPORT PastedUnit UnitFromPaste(std::wstring_view text);

} // namespace QuorConversions
