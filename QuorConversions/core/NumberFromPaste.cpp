#include "QuorConversions/core/NumberFromPaste.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace QuorConversions {
namespace {

using Text = std::wstring_view;

// What the text is made of, after Normalized.

constexpr wchar_t blank = L' ';
constexpr wchar_t wideBlank =
    L'\u2003'; ///< more than one: it may stand between two columns and groups nothing
constexpr wchar_t zeroWidth = L'\u200B';
constexpr Text allDigits = L"0123456789";
constexpr Text superscripts = L"\u2070\u00B9\u00B2\u00B3\u2074\u2075\u2076\u2077\u2078\u2079";
constexpr Text subscripts = L"\u2080\u2081\u2082\u2083\u2084\u2085\u2086\u2087\u2088\u2089";
constexpr Text timesSigns = L"\u00D7\u00B7\u22C5\u2219xX*";
constexpr Text edges = L"\t\r\n\v\f\u0085\u2028\u2029 \u2003"; ///< blanks, tabs and line ends

/// Characters that mean the same as another one; those that stand in no row mean themselves.
constexpr struct {
    wchar_t first, last;
    wchar_t meaning; ///< of the first one
    bool countsOn;   ///< whether each further one means the next character, too
} sameMeanings[] = {
    {L'\u00A0', L'\u00A0', blank, false},     {L'\u1680', L'\u1680', blank, false},
    {L'\u2000', L'\u200A', blank, false},     {L'\u202F', L'\u202F', blank, false},
    {L'\u205F', L'\u205F', blank, false},     {L'\u3000', L'\u3000', blank, false},
    {L'\uFEFF', L'\uFEFF', zeroWidth, false}, {L'\u2010', L'\u2013', L'-', false},
    {L'\uFE63', L'\uFE63', L'-', false},      {L'\uFF0D', L'\uFF0D', L'-', false},
    {L'\uFF0B', L'\uFF0B', L'+', false},      {L'\uFF1A', L'\uFF1A', L':', false},
    {L'\uFF1D', L'\uFF1D', L'=', false},      {L'\uFF25', L'\uFF25', L'E', false},
    {L'\uFF45', L'\uFF45', L'e', false},      {L'\u00BA', L'\u00BA', L'\u00B0', false},
    {L'\uFF10', L'\uFF19', L'0', true},       {L'\u2019', L'\u2019', L'\'', false},
    {L'\u2126', L'\u2126', L'\u03A9', false}, {L'\u212A', L'\u212A', L'K', false},
    {L'\u00B5', L'\u00B5', L'\u03BC', false},
};

/// The units that do not scale, after Normalized.
constexpr struct {
    Text text;
    PastedUnit unit;
    bool alsoDirectly; ///< not only behind a blank
} units[] = {
    {L"\u03A9", PastedUnit::Ohm, true},
    {L"ohm", PastedUnit::Ohm, true},
    {L"ohms", PastedUnit::Ohm, true},
    {L"Ohm", PastedUnit::Ohm, true},
    {L"Ohms", PastedUnit::Ohm, true},
    {L"OHM", PastedUnit::Ohm, true},
    {L"OHMS", PastedUnit::Ohm, true},
    {L"\u00B0C", PastedUnit::Celsius, true},
    {L"K", PastedUnit::Kelvin, false}, // "5K" may be five thousand
    {L"mV", PastedUnit::Millivolt, true},
    {L"mV/\u00B0C", PastedUnit::MillivoltPerDegree, true},
    {L"mV/K", PastedUnit::MillivoltPerDegree, true},
    {L"1/\u00B0C", PastedUnit::PerDegree, false},
    {L"1/K", PastedUnit::PerDegree, false}, // directly, the 1 would be a digit of the number
    {L"/\u00B0C", PastedUnit::PerDegree, true},
    {L"/K", PastedUnit::PerDegree, true},
};

/// The powers that a degree stands in, behind "\u00B0C" or "K".
constexpr struct {
    Text power;
    PastedUnit unit;
} powersOfDegrees[] = {
    {L"-1", PastedUnit::PerDegree},
    {L"-2", PastedUnit::PerDegree2},
    {L"-3", PastedUnit::PerDegree3},
    {L"-4", PastedUnit::PerDegree4},
};

/// Words that make of a name more than a name, in small letters: scaling units, factors, signs.
constexpr Text tellingWords[] = {
    L"v",       L"kv",      L"uv",      L"nv",      L"\u03BCv", L"mk",   L"uk",     L"kk",
    L"\u03BCk", L"pv",      L"mc",      L"mr",      L"kr",      L"half", L"double", L"twice",
    L"halb",    L"doppelt", L"cubed",   L"tenfold", L"percent", L"ppm",  L"ppb",    L"times",
    L"per",     L"plus",    L"ld",      L"lb",      L"sin",     L"cos",  L"tan",    L"abs",
    L"mille",   L"hundred", L"hundert", L"tausend", L"neg",     L"mal",  L"hoch",   L"betrag",
};
/// What the names of functions begin with, also where the argument follows without a bracket: "lnR"; and
/// what scaling units begin with: "milliohms".
constexpr Text tellingBeginnings[] = {
    L"ln",      L"lg",    L"log",      L"exp",         L"sqrt",      L"arc",         L"squar",    L"quadrat",
    L"wurzel",  L"kilo",  L"milli",    L"micro",       L"mikro",     L"meg",         L"giga",     L"nano",
    L"pico",    L"piko",  L"thousand", L"tausendstel", L"hundredth", L"hundertstel", L"promille", L"prozent",
    L"negativ", L"minus", L"inver",    L"reciproc",    L"kehrwert"};
/// Symbols that are written as words. A factor may be attached to them: "ALPHAe3".
constexpr Text symbolsOfManyLetters[] = {
    L"alpha", L"beta",  L"gamma", L"delta", L"epsilon", L"zeta", L"eta",   L"theta", L"kappa", L"lambda",
    L"rho",   L"sigma", L"tau",   L"phi",   L"omega",   L"coef", L"coeff", L"koeff", L"wert",
};
/// Words that end in x, which is no factor there.
constexpr Text wordsThatEndInX[] = {L"index", L"appendix", L"box", L"flux", L"matrix", L"max", L"suffix"};
/// Words that are numbered beyond 9: "Coefficient 10".
constexpr Text numberedWords[] = {L"coefficient", L"koeffizient", L"temperature", L"temperatur",
                                  L"voltage",     L"spannung",    L"point",       L"punkt"};
/// What is a prefix of a unit where it stands behind a name by itself: "R0 (k)", "R0 k".
constexpr Text lonePrefixes[] = {L"k", L"m", L"M", L"G", L"\u03BC", L"u", L"n"};

bool IsDigit(wchar_t c) { return allDigits.find(c) != Text::npos; }
bool AreDigits(Text text) { return text.find_first_not_of(allDigits) == Text::npos; }
bool IsBlank(wchar_t c) { return c == blank || c == wideBlank; }

Text Trimmed(Text text, Text what) {
    const auto first = text.find_first_not_of(what);
    if (first == Text::npos)
        return {};
    return text.substr(first, text.find_last_not_of(what) - first + 1);
}

wchar_t MeaningOf(wchar_t c) {
    if (c < std::begin(sameMeanings)->first)
        return c;
    for (const auto& row : sameMeanings)
        if (c >= row.first && c <= row.last)
            return static_cast<wchar_t>(row.meaning + (row.countsOn ? c - row.first : 0));
    return c;
}

/// The text with one character for all that mean the same, and one for each run of blanks. What has no width
/// is left out, but between two digits, where it is a blank.
std::wstring Normalized(Text text) {
    std::wstring result;
    bool inBlanks = false;
    bool visible = false;   // a blank of that run that has a width
    bool invisible = false; // something without a width stands in front
    for (const wchar_t written : text) {
        const wchar_t c = MeaningOf(written);
        if (c == zeroWidth) {
            invisible = true;
            continue;
        }
        if (std::exchange(invisible, false) && IsDigit(c) && !result.empty() && IsDigit(result.back()))
            result += blank;
        if (c == blank) {
            if (!std::exchange(inBlanks, true))
                result += blank;
            if (std::exchange(visible, true))
                result.back() = wideBlank;
            continue;
        }
        inBlanks = visible = false;
        if (c == L'\u2103') // degrees Celsius in one character
            result += L"\u00B0C";
        else
            result += c;
    }
    return result;
}

/// Reads a text from its front.
struct Reader {
    Text rest;

    bool Take(wchar_t c) { return Take(Text(&c, 1)); }
    bool Take(Text text) {
        const bool found = rest.starts_with(text);
        rest.remove_prefix(found ? text.size() : 0);
        return found;
    }
    bool TakeBlanks() {
        const bool found = !rest.empty() && IsBlank(rest.front());
        rest.remove_prefix(found ? 1 : 0); // a run of blanks is one
        return found;
    }
    /// One of the characters; 0 when none of them comes.
    wchar_t TakeOneOf(Text characters) {
        if (rest.empty() || characters.find(rest.front()) == Text::npos)
            return 0;
        const wchar_t c = rest.front();
        rest.remove_prefix(1);
        return c;
    }
    Text TakeAllOf(Text characters) {
        const Text found = rest.substr(0, std::min(rest.find_first_not_of(characters), rest.size()));
        rest.remove_prefix(found.size());
        return found;
    }
};

constexpr Text signs = L"-+\u2212"; ///< the last one is never the mark of a list

std::wstring SignText(wchar_t sign) {
    if (sign == 0)
        return {};
    return sign == L'+' || sign == L'\u207A' ? L"+" : L"-";
}

PastedNumber Refused(PasteRefusal refusal) { return {std::nullopt, refusal, false, {}, PastedUnit::None}; }

/// Digits that stand in groups of three, divided by `divider`; nothing for any other text.
std::optional<std::wstring> JoinGroups(Text text, wchar_t divider, bool beforePoint) {
    std::wstring joined;
    for (bool first = true, last = false; !last; first = false) {
        const auto end = text.find(divider);
        last = end == Text::npos;
        const Text group = text.substr(0, end);
        text.remove_prefix(last ? text.size() : end + 1);
        const bool mayBeShort = beforePoint ? first : last;
        if (!AreDigits(group) || group.empty() || group.size() > 3 || (group.size() < 3 && !mayBeShort) ||
            (beforePoint && first && group.front() == L'0'))
            return std::nullopt;
        joined += group;
    }
    return joined;
}

/// The digits on one side of the decimal separator, in one run or in groups.
std::optional<std::wstring> JoinDigits(Text text, Text dividers, bool beforePoint) {
    if (AreDigits(text))
        return std::wstring(text);
    const wchar_t divider = text[text.find_first_not_of(allDigits)];
    return dividers.find(divider) == Text::npos ? std::nullopt : JoinGroups(text, divider, beforePoint);
}

/// Whether the sign between these digits could group thousands instead.
bool CouldGroup(Text before, Text behind, bool hasExponent) {
    return AreDigits(before) && AreDigits(behind) && behind.size() == 3 && !before.empty() &&
           before.size() <= 3 && before.front() != L'0' && !(before.size() == 1 && hasExponent);
}

/// The last point or comma; 0 for none.
wchar_t LastSign(Text text) {
    const auto at = text.find_last_of(L".,");
    return at == Text::npos ? L'\0' : text[at];
}

/// Whether a number may be several: "100 200", "100,200,300", or the number of a row and a value,
/// "1,100.012".
bool MayBeSeveral(Text text, Text before, bool hasDecimal) {
    const bool hasSigns = text.find_first_of(L".,") != Text::npos;
    const bool mayBeRow = hasDecimal && before.find_first_of(L".,") == 1;
    return (hasSigns && !hasDecimal) || mayBeRow || text.find(blank) != Text::npos;
}

/// The digits of a number and what divides them, without sign and exponent. Points or commas that do not
/// stand for the decimal separator group.
PastedNumber ReadMantissa(Text text, wchar_t separator, bool hasExponent) {
    const auto count = [text](wchar_t c) { return std::count(text.begin(), text.end(), c); };
    const auto points = count(L'.');
    const auto commas = count(L',');
    const bool otherSeparator = separator != L'.' && separator != L',' && count(separator) > 0;
    if (otherSeparator && (count(separator) > 1 || points + commas > 0))
        return Refused(PasteRefusal::NoNumber);

    const bool both = points > 0 && commas > 0;
    const wchar_t last = otherSeparator ? separator : LastSign(text);
    if (both && count(last) > 1)
        return Refused(PasteRefusal::NoNumber);
    if (both && text.back() == last) // the decimal separator, or the end of a sentence: "100.012,"
        return Refused(PasteRefusal::TwoReadings);
    const bool hasDecimal = count(last) == 1;
    const auto at = hasDecimal ? text.find(last) : text.size();
    const Text before = text.substr(0, at);
    const Text behind = hasDecimal ? text.substr(at + 1) : Text{};

    const bool couldGroup = hasDecimal && !both && !otherSeparator && CouldGroup(before, behind, hasExponent);
    if (couldGroup && last == L',' && separator != L',')
        return Refused(PasteRefusal::TwoReadings);
    const auto whole = both ? JoinGroups(before, last == L'.' ? L',' : L'.', true)
                            : JoinDigits(before, hasDecimal ? L" '" : L" '.,", true);
    const auto fraction = JoinDigits(behind, L" ", false);
    if (!whole || !fraction || whole->size() + fraction->size() == 0)
        return Refused(PasteRefusal::NoNumber);
    PastedNumber result;
    result.number = hasDecimal ? *whole + separator + *fraction : *whole;
    result.isToBeTold = couldGroup || MayBeSeveral(text, before, hasDecimal);
    return result;
}

/// The power in front of the reader, its sign and digits, where it is written as one: raised, or behind
/// "^" or "**", also in brackets. An empty text where such a power begins and is none; nothing where none
/// begins.
std::optional<std::wstring> ReadPower(Reader& reader) {
    if (reader.Take(L'^') || reader.Take(L"**")) {
        const wchar_t open = reader.TakeOneOf(L"({");
        const wchar_t sign = reader.TakeOneOf(signs);
        const Text digits = reader.TakeAllOf(allDigits);
        const bool isWhole = !digits.empty() && (open == 0 || reader.Take(open == L'(' ? L')' : L'}'));
        return isWhole ? SignText(sign) + std::wstring(digits) : std::wstring{};
    }
    const wchar_t sign = reader.TakeOneOf(L"\u207B\u207A");
    std::wstring digits;
    for (const wchar_t c : reader.TakeAllOf(superscripts))
        digits += allDigits[superscripts.find(c)];
    if (sign == 0 && digits.empty())
        return std::nullopt;
    return digits.empty() ? std::wstring{} : SignText(sign) + digits;
}

/// The exponent in front of the reader, as "E" with its sign and digits, or an empty text for none; nothing
/// where one begins and is none.
struct Exponent {
    std::wstring text;
    PasteRefusal refusal = PasteRefusal::None;
};

Exponent ReadExponent(Reader& reader) {
    const auto written = [](const std::wstring& power) {
        return power.empty() ? Exponent{{}, PasteRefusal::NoNumber} : Exponent{L"E" + power};
    };
    const auto signedDigits = [&reader](wchar_t sign) {
        const Text digits = reader.TakeAllOf(allDigits);
        return digits.empty() ? std::wstring{} : SignText(sign) + std::wstring(digits);
    };
    const bool behindBlank = reader.TakeBlanks();
    if (reader.TakeOneOf(L"eEdD")) {
        const wchar_t sign = reader.TakeOneOf(signs);
        return written(behindBlank && sign == 0 ? std::wstring{} : signedDigits(sign));
    }
    if (!reader.TakeOneOf(timesSigns))
        return {};
    reader.TakeBlanks();
    if (!reader.Take(L"10"))
        return {{}, PasteRefusal::NoNumber};
    const bool blankBehindTen = reader.TakeBlanks();
    const bool raisedUnsigned = !reader.rest.empty() && superscripts.find(reader.rest.front()) != Text::npos;
    if (const auto power = ReadPower(reader)) // "10 2" with a raised 2 may be ten, and a footnote
        return written(blankBehindTen && raisedUnsigned ? std::wstring{} : *power);
    const wchar_t sign = reader.TakeOneOf(signs);
    const std::wstring power = signedDigits(sign);
    if (sign == 0 && !power.empty()) // the power, or more digits of the factor
        return {{}, PasteRefusal::TwoReadings};
    return written(power);
}

/// A number and nothing else.
PastedNumber ReadNumber(Text text, wchar_t separator, bool behindEquals) {
    Reader reader{text};
    const wchar_t sign = reader.TakeOneOf(signs);
    if (sign != 0 && reader.TakeBlanks() && sign == L'-' && !behindEquals)
        return Refused(PasteRefusal::TwoReadings); // the mark of a list, or a minus
    std::wstring mantissa;
    while (!reader.rest.empty()) {
        const wchar_t c = reader.rest.front();
        const bool divides = IsBlank(c) && reader.rest.size() > 1 && IsDigit(reader.rest[1]);
        if (divides && c == wideBlank)
            return Refused(PasteRefusal::TwoReadings); // one number, or two in columns
        if (!divides && !IsDigit(c) && c != separator && Text(L".,'").find(c) == Text::npos)
            break;
        mantissa += c;
        reader.rest.remove_prefix(1);
    }
    const Exponent exponent = ReadExponent(reader);
    if (exponent.refusal != PasteRefusal::None || !reader.rest.empty())
        return Refused(exponent.refusal == PasteRefusal::None ? PasteRefusal::NoNumber : exponent.refusal);
    if (!exponent.text.empty() && mantissa.ends_with(L" 10")) // "3.908 10E-3" may lack the times sign
        return Refused(PasteRefusal::TwoReadings);
    PastedNumber result = ReadMantissa(mantissa, separator, !exponent.text.empty());
    if (result.number)
        result.number = SignText(sign) + *result.number + exponent.text;
    return result;
}

/// A unit that ends a text.
struct UnitFound {
    PastedUnit unit = PastedUnit::None;
    std::size_t at = 0; ///< where it begins
    bool alsoDirectly = false;
};

/// What `tail`, which stands behind the sign of a unit, makes of it; nothing where it belongs to no unit.
std::optional<UnitFound> WithPower(PastedUnit unit, Text tail, bool alsoDirectly) {
    if (tail.empty())
        return UnitFound{unit, 0, alsoDirectly};
    if (unit != PastedUnit::Celsius && unit != PastedUnit::Kelvin)
        return std::nullopt;
    Reader reader{tail};
    const auto raised = ReadPower(reader);
    const wchar_t sign = raised ? L'\0' : reader.TakeOneOf(signs);
    const std::wstring power = raised ? *raised : SignText(sign) + std::wstring(reader.rest);
    for (const auto& row : powersOfDegrees)
        if (row.power == power && (!raised || reader.rest.empty()))
            return UnitFound{row.unit, 0, alsoDirectly || raised};
    return std::nullopt;
}

/// The units that a text may end with: of "mV/K" both that and "K".
std::vector<UnitFound> UnitsAtEnd(Text text) {
    std::vector<UnitFound> found;
    for (const auto& row : units)
        if (const auto at = text.rfind(row.text); at != Text::npos)
            if (auto unit = WithPower(row.unit, text.substr(at + row.text.size()), row.alsoDirectly)) {
                unit->at = at;
                found.push_back(*unit);
            }
    return found;
}

/// The unit that the whole text is.
PastedUnit WholeUnit(Text text) {
    for (const UnitFound& found : UnitsAtEnd(text))
        if (found.at == 0)
            return found.unit;
    return PastedUnit::None;
}

/// A number with or without a unit behind it.
PastedNumber ReadQuantity(Text text, wchar_t separator, bool behindEquals) {
    PastedNumber result = ReadNumber(text, separator, behindEquals);
    for (const UnitFound& found : UnitsAtEnd(text)) {
        if (result.number || result.refusal == PasteRefusal::TwoReadings || found.at == 0)
            break;
        const Text number = text.substr(0, found.at);
        const bool behindBlank = IsBlank(number.back());
        const bool isInverse = text[found.at] == L'/' && number.ends_with(L'1'); // or "1/K", directly
        if (!behindBlank && (!found.alsoDirectly || isInverse))
            continue;
        result = ReadNumber(number.substr(0, number.size() - (behindBlank ? 1 : 0)), separator, behindEquals);
        result.unit = found.unit;
    }
    return result;
}

// Names

bool IsLetter(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') ||
           (c >= L'\u00C0' && c <= L'\u00FF' && c != L'\u00D7' && c != L'\u00F7') ||
           (c >= L'\u0370' && c <= L'\u03FF' && c != L'\u03A9');
}

template <std::size_t count>
bool IsOneOf(Text text, const Text (&words)[count]) {
    return std::find(std::begin(words), std::end(words), text) != std::end(words);
}

std::wstring InSmallLetters(Text text) {
    std::wstring small(text);
    for (wchar_t& c : small)
        c = c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
    return small;
}

/// Whether a word in small letters is "ohm" with a prefix of one letter: "kohm", "\u03BCohms".
bool IsScaledOhm(Text small) {
    return small.size() > 1 && (small.substr(1) == L"ohm" || small.substr(1) == L"ohms");
}

/// Whether letters in front of a number may be a symbol and the beginning of a factor: "Ae3", "ALPHAE3",
/// "RTPWe3", "Ax10". "Code2" and "Slope2" are words.
bool MayEndInFactor(Text letters) {
    letters = Trimmed(letters, L"_");
    const std::wstring small = InSmallLetters(letters);
    if (small.size() < 2 || Text(L"edx").find(small.back()) == Text::npos)
        return false;
    if (small.back() == L'x')
        return !IsOneOf(small, wordsThatEndInX);
    const Text stem = Text(small).substr(0, small.size() - 1);
    constexpr std::size_t longestSymbol = 2;
    const bool endsInCapital = letters.back() != small.back() && letters[letters.size() - 2] == stem.back();
    return stem.size() <= longestSymbol || endsInCapital || IsOneOf(stem, symbolsOfManyLetters) ||
           stem.find_first_of(L"aeiouy\u00E4\u00F6\u00FC") == Text::npos || stem.find(L'_') != Text::npos;
}

/// A word of a name: a letter, more letters, up to two digits. Three digits may be a power of ten without
/// its sign: "A106". A number alone may have two digits only after a word that is numbered: "A 10" may be
/// ten times A.
bool IsPlainWord(Text word, Text before) {
    Reader reader{word};
    while (!reader.rest.empty() && (IsLetter(reader.rest.front()) || reader.rest.front() == L'_'))
        reader.rest.remove_prefix(1);
    const Text letters = word.substr(0, word.size() - reader.rest.size());
    const std::wstring small = InSmallLetters(letters);
    const Text number = reader.TakeAllOf(allDigits);
    const bool isNumbered = !reader.TakeAllOf(subscripts).empty() || !number.empty();
    if (!reader.rest.empty())
        return false;
    if (letters.empty()) // "Temperature 2"
        return !before.empty() && number.size() <= (IsOneOf(InSmallLetters(before), numberedWords) ? 2 : 1);
    const bool isFactor = !before.empty() && (small == L"x" || (small == L"e" && !number.empty()) ||
                                              IsOneOf(word, lonePrefixes));
    return number.size() <= 2 && !isFactor && !(isNumbered && MayEndInFactor(letters)) &&
           !IsOneOf(small, tellingWords) && !IsScaledOhm(small) &&
           std::none_of(std::begin(tellingBeginnings), std::end(tellingBeginnings),
                        [&](Text beginning) { return small.starts_with(beginning); });
}

/// Whether words say nothing of a factor, a scaling unit, a sign or a function.
/// `before` is what stands before them, empty at the beginning of a name.
bool ArePlainWords(Text words, Text before) {
    while (!words.empty()) {
        const auto end = std::min(words.find_first_of(L" \u2003"), words.size());
        const Text word = words.substr(0, end);
        if (!IsPlainWord(word, std::exchange(before, word)))
            return false;
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return true;
}

/// What may stand in the brackets of a name, beside a unit: an index, a temperature, or a word that names a
/// state: "R(TPW)", "R(H2O)", "W(Ga)".
bool IsPlainInBrackets(Text text) {
    if (AreDigits(text) && !text.empty() && text.size() <= 2)
        return true;
    const auto number = text.find_last_of(L"0123456789");
    if (number != Text::npos && text.find_first_not_of(L"0123456789.,") > number) {
        const Text behind = Trimmed(text.substr(number + 1), L" ");
        const PastedUnit unit = behind == L"C" ? PastedUnit::Celsius : WholeUnit(behind);
        return unit == PastedUnit::Celsius || unit == PastedUnit::Kelvin;
    }
    return !text.empty() && (text == L"H2O" || text == L"H\u2082O" || ArePlainWords(text, L"("));
}

/// What stands in front of a number, as far as it says nothing of a factor, a scaling unit, a sign or a
/// function. The unit is the one that it names: "R0/ohm", "R0 [ohm]".
struct Name {
    std::wstring text;
    PastedUnit unit = PastedUnit::None;
};

std::optional<Name> ReadName(Text name) {
    name = Trimmed(name, edges);
    Name result{std::wstring(name)};
    if (const auto slash = name.find(L'/'); slash != Text::npos) {
        result.unit = WholeUnit(Trimmed(name.substr(slash + 1), edges));
        if (result.unit != PastedUnit::None)
            name = Trimmed(name.substr(0, slash), edges);
    }
    while (name.ends_with(L')') || name.ends_with(L']')) {
        const auto open = name.rfind(name.back() == L')' ? L'(' : L'[');
        if (open == Text::npos || open == 0)
            return std::nullopt;
        const Text inside = name.substr(open + 1, name.size() - open - 2);
        if (const PastedUnit unit = WholeUnit(inside); unit != PastedUnit::None)
            result.unit = unit;
        else if (!IsPlainInBrackets(inside))
            return std::nullopt;
        name = Trimmed(name.substr(0, open), edges);
    }
    return ArePlainWords(name, {}) ? std::optional(result) : std::nullopt;
}

} // namespace

PastedNumber NumberFromPaste(std::wstring_view text, std::wstring_view separator) {
    const std::wstring normalized = Normalized(text);
    Text quantity = Trimmed(normalized, edges);
    bool behindEquals = false;
    std::optional<Name> name = Name{};
    if (const auto end = quantity.find_last_of(L"=:"); end != Text::npos) {
        name = ReadName(quantity.substr(0, end));
        if (!name)
            return Refused(PasteRefusal::NoNumber);
        behindEquals = quantity[end] == L'=';
        quantity = Trimmed(quantity.substr(end + 1), L" \u2003");
    }
    PastedNumber result = ReadQuantity(quantity, separator.empty() ? L'.' : separator.front(), behindEquals);
    if (!result.number)
        return Refused(result.refusal);
    result.name = std::move(name->text);
    if (result.unit == PastedUnit::None)
        result.unit = name->unit;
    return result;
}

PastedUnit UnitFromPaste(std::wstring_view text) {
    const std::wstring normalized = Normalized(text);
    return WholeUnit(Trimmed(normalized, edges));
}

} // namespace QuorConversions
