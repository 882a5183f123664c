#pragma once

#include "QuorConversions/Export.h"

#include <optional>
#include <string>
#include <string_view>

namespace QuorConversions {

/// Why a text is not taken as a number.
enum class PasteRefusal {
    None,
    NoNumber,   ///< it cannot be read as a number, or says more than a number
    TwoReadings ///< it can be read as two different numbers: "100,012", "- 5", "3 x 104"
};

/// A unit behind a number, or in its name. Those of one quantity are one, but for the two that have another
/// zero: degrees Celsius and kelvins. Powers of a degree are the same in both.
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
    /// The number with the user's decimal separator and an exponent behind "E", which ParseWholeNumber reads
    /// after ToPointDecimal; nothing when the text is refused. Its digits are those of the text: none is
    /// added, lost or rounded, and the size is not judged ("1E400").
    std::optional<std::wstring> number;
    PasteRefusal refusal = PasteRefusal::None;
    /// Whether the user is to be told what was read: the sign that was read as the decimal separator stands
    /// where it could have grouped thousands ("10.000"), or blanks divide digits, as they divide columns
    /// ("100 200").
    bool isToBeTold = false;
    /// What stands in front of it, as it is written, without "=" or ":"; empty for nothing.
    std::wstring name;
    PastedUnit unit = PastedUnit::None;
};

/// The number that a person means who copies `text` from a certificate, a PDF or a web page; `separator` is
/// the user's decimal separator: its first character, and the point where it is empty. A text with two
/// readings, or none, is refused, and no character is ever left out.
///
///     signs        - + and U+2212, U+2010 to U+2013, U+FE63, U+FF0D, U+FF0B. A dash and a blank in front of
///                  the digits is the mark of a list, but for U+2212 and behind "="
///     blanks       every Unicode space, U+FEFF and U+200B; at the edges tabs and line ends, too
///     groups       of three digits, divided by a blank or an apostrophe before the decimal separator, by a
///                  blank behind it, where the last group may be shorter. No grouped number begins with 0
///     . and ,      of both, the last one is the decimal separator and stands once, the other one groups;
///                  several of one kind group; a single point is the decimal separator, and so is a single
///                  comma that is the user's, or that cannot group: with other than three digits behind it,
///                  with 0, none or more than three digits before it, or with one digit before it and an
///                  exponent behind the number
///     exponents    E-3 e-3 D-3; 10^-3 10**-3 10^(-3) 10^{-3} and 10 with superscript digits, also without a
///                  sign; 10-3 and 10 -3, only with a sign; the 10 behind one of: U+00D7 U+00B7 U+22C5 U+2219
///                  x *
///     units        those that do not scale, behind a blank or directly; K, K-1 and those that begin with
///                  "1/" only behind a blank: "5K" may be five thousand. Degrees and kelvins in the powers -1
///                  to -4, in the writings of exponents
///     names        in front, up to "=" or ":", that say nothing of a factor, a scaling unit, a sign or a
///                  function, not glued to them either ("Ax10 =", "Ae3 ="): "R0 =", "A[7]:", "R(TPW) =".
///                  Whose name it is, is the caller's to judge
///     digits       0 to 9 and the full-width ones
///
/// Everything else refuses: uncertainties, brackets, fractions, trailing signs, other digits, control
/// characters, soft hyphens.
[[nodiscard]] QUORCONVERSIONS_EXPORT PastedNumber NumberFromPaste(std::wstring_view text,
                                                                  std::wstring_view separator);

/// The unit that a text is, "mV" or "K^-1"; None for any other text.
[[nodiscard]] QUORCONVERSIONS_EXPORT PastedUnit UnitFromPaste(std::wstring_view text);

} // namespace QuorConversions
