#include "QuorConversions/core/NumberFromPaste.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

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
constexpr Text timesSigns = L"\u00D7\u00B7\u22C5\u2219x*";
constexpr Text edges = L"\t\r\n\u0085\u2028\u2029 \u2003"; ///< blanks, tabs and line ends

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
    {L'\uFF0B', L'\uFF0B', L'+', false},      {L'\uFF10', L'\uFF19', L'0', true},
    {L'\u2019', L'\u2019', L'\'', false},     {L'\u2126', L'\u2126', L'\u03A9', false},
    {L'\u212A', L'\u212A', L'K', false},      {L'\u00B5', L'\u00B5', L'\u03BC', false},
};

/// The units that do not scale, after Normalized.
constexpr struct {
    Text text;
    bool alsoDirectly; ///< not only behind a blank
} units[] = {
    {L"\u03A9", true},
    {L"ohm", true},
    {L"ohms", true},
    {L"Ohm", true},
    {L"Ohms", true},
    {L"\u00B0C", true},
    {L"K", false},
    {L"mV", true},
    {L"mV/\u00B0C", true},
    {L"mV/K", true},
    {L"1/\u00B0C", false},
    {L"1/K", false}, // directly, the 1 would be a digit of the number
    {L"\u00B0C\u207B\u00B9", true},
    {L"K\u207B\u00B9", true},
    {L"\u00B0C\u207B\u00B2", true},
    {L"K\u207B\u00B2", true},
    {L"\u00B0C\u207B\u00B3", true},
    {L"K\u207B\u00B3", true},
    {L"\u00B0C\u207B\u2074", true},
    {L"K\u207B\u2074", true},
    {L"\u00B0C-1", true},
    {L"K-1", false},
    {L"\u00B0C-2", true},
    {L"K-2", false},
    {L"\u00B0C-3", true},
    {L"K-3", false},
    {L"\u00B0C-4", true},
    {L"K-4", false},
    {L"\u00B0C\u22121", true},
    {L"K\u22121", false},
    {L"\u00B0C\u22122", true},
    {L"K\u22122", false},
    {L"\u00B0C\u22123", true},
    {L"K\u22123", false},
    {L"\u00B0C\u22124", true},
    {L"K\u22124", false},
};

/// Words that make of a name more than a name, in small letters: scaling units, factors, signs.
constexpr Text tellingWords[] = {
    L"v",    L"kv",    L"uv",    L"nv",    L"\u03BCv", L"mk",    L"uk",       L"kk",      L"\u03BCk",
    L"kohm", L"kohms", L"mohm",  L"mohms", L"milli",   L"micro", L"kilo",     L"mega",    L"percent",
    L"ppm",  L"ppb",   L"times", L"per",   L"minus",   L"plus",  L"negative", L"inverse", L"reciprocal",
    L"lg",   L"ld",    L"lb",    L"sin",   L"cos",     L"tan",   L"abs",
};
/// What the names of functions begin with, also where the argument follows without a bracket: "lnR".
constexpr Text functions[] = {L"ln", L"log", L"exp", L"sqrt", L"arc"};

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

/// The text with one character for all that mean the same, and one for each run of blanks.
std::wstring Normalized(Text text) {
    std::wstring result;
    bool inBlanks = false;
    bool visible = false; // a blank of that run that has a width
    for (const wchar_t written : text) {
        const wchar_t c = MeaningOf(written);
        if (c == blank || c == zeroWidth) {
            if (!std::exchange(inBlanks, true))
                result += blank;
            if (c == blank && std::exchange(visible, true))
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

PastedNumber Refused(PasteRefusal refusal) { return {std::nullopt, refusal, false}; }

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
           before.size() <= 3 && before != L"0" && !(before.size() == 1 && hasExponent);
}

/// The digits of a number and what divides them, without sign and exponent.
PastedNumber ReadMantissa(Text text, wchar_t separator, bool hasExponent) {
    const auto count = [text](wchar_t c) { return std::count(text.begin(), text.end(), c); };
    const auto points = count(L'.');
    const auto commas = count(L',');
    const bool otherSeparator = separator != L'.' && separator != L',' && count(separator) > 0;
    if (otherSeparator && (count(separator) > 1 || points + commas > 0))
        return Refused(PasteRefusal::NoNumber);

    const bool both = points > 0 && commas > 0;
    const wchar_t last = otherSeparator        ? separator
                         : points + commas > 0 ? text[text.find_last_of(L".,")]
                                               : L'\0';
    if (both && count(last) > 1)
        return Refused(PasteRefusal::NoNumber);
    const bool hasDecimal = count(last) == 1;
    const auto at = hasDecimal ? text.find(last) : text.size();
    const Text before = text.substr(0, at);
    const Text behind = hasDecimal ? text.substr(at + 1) : Text{};

    const bool couldGroup = hasDecimal && !both && !otherSeparator && CouldGroup(before, behind, hasExponent);
    if (couldGroup && last == L',' && separator != L',')
        return Refused(PasteRefusal::TwoReadings);
    // Points or commas that do not stand for the decimal separator group.
    const auto whole = both          ? JoinGroups(before, last == L'.' ? L',' : L'.', true)
                       : !hasDecimal ? JoinDigits(before, L" '.,", true)
                                     : JoinDigits(before, L" '", true);
    const auto fraction = JoinDigits(behind, L" ", false);
    if (!whole || !fraction || whole->size() + fraction->size() == 0)
        return Refused(PasteRefusal::NoNumber);
    return {hasDecimal ? *whole + separator + *fraction : *whole, PasteRefusal::None, couldGroup};
}

/// The exponent in front of the reader, as "E" with its sign and digits, or an empty text for none; nothing
/// where one begins and is none.
struct Exponent {
    std::wstring text;
    PasteRefusal refusal = PasteRefusal::None;
};

Exponent ReadExponent(Reader& reader) {
    const auto written = [](wchar_t sign, Text power) {
        return power.empty() ? Exponent{{}, PasteRefusal::NoNumber}
                             : Exponent{L"E" + SignText(sign) + std::wstring(power)};
    };
    const bool behindBlank = reader.TakeBlanks();
    if (reader.TakeOneOf(L"eEdD")) {
        const wchar_t sign = reader.TakeOneOf(signs);
        return written(sign, behindBlank && sign == 0 ? Text{} : reader.TakeAllOf(allDigits));
    }
    if (!reader.TakeOneOf(timesSigns))
        return {};
    reader.TakeBlanks();
    if (!reader.Take(L"10"))
        return {{}, PasteRefusal::NoNumber};
    if (reader.Take(L'^') || reader.Take(L"**")) {
        const wchar_t sign = reader.TakeOneOf(signs);
        return written(sign, reader.TakeAllOf(allDigits));
    }
    const bool blankBehindTen = reader.TakeBlanks();
    const wchar_t raisedSign = reader.TakeOneOf(L"\u207B\u207A");
    std::wstring raised;
    for (const wchar_t c : reader.TakeAllOf(superscripts))
        raised += allDigits[superscripts.find(c)];
    if (raisedSign != 0 || !raised.empty())
        return written(raisedSign, blankBehindTen && raisedSign == 0 ? Text{} : Text(raised));
    const wchar_t sign = reader.TakeOneOf(signs);
    const Text power = reader.TakeAllOf(allDigits);
    if (sign == 0 && !power.empty()) // the power, or more digits of the factor
        return {{}, PasteRefusal::TwoReadings};
    return written(sign, power);
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
    PastedNumber result = ReadMantissa(mantissa, separator, !exponent.text.empty());
    if (result.number)
        result.number = SignText(sign) + *result.number + exponent.text;
    return result;
}

/// A number with or without a unit behind it.
PastedNumber ReadQuantity(Text text, wchar_t separator, bool behindEquals) {
    PastedNumber result = ReadNumber(text, separator, behindEquals);
    for (const auto& unit : units) {
        if (result.number || !text.ends_with(unit.text) || text.size() == unit.text.size())
            continue;
        const Text number = text.substr(0, text.size() - unit.text.size());
        if (const bool behindBlank = IsBlank(number.back()); behindBlank || unit.alsoDirectly)
            result =
                ReadNumber(number.substr(0, number.size() - (behindBlank ? 1 : 0)), separator, behindEquals);
        if (result.refusal == PasteRefusal::TwoReadings)
            break;
    }
    return result;
}

// Names

bool IsUnit(Text text) {
    return std::any_of(std::begin(units), std::end(units),
                       [text](const auto& unit) { return unit.text == text; });
}

bool IsLetter(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') ||
           (c >= L'\u00C0' && c <= L'\u00FF' && c != L'\u00D7' && c != L'\u00F7') ||
           (c >= L'\u0370' && c <= L'\u03FF' && c != L'\u03A9');
}

/// A word of a name: a letter, more letters, up to two digits. Three digits may be a power of ten without
/// its sign: "A106".
bool IsPlainWord(Text word, bool first) {
    Reader reader{word};
    std::wstring letters;
    while (!reader.rest.empty() && (IsLetter(reader.rest.front()) || reader.rest.front() == L'_')) {
        letters += reader.rest.front() >= L'A' && reader.rest.front() <= L'Z'
                       ? static_cast<wchar_t>(reader.rest.front() - L'A' + L'a')
                       : reader.rest.front();
        reader.rest.remove_prefix(1);
    }
    const Text number = reader.TakeAllOf(allDigits);
    reader.TakeAllOf(subscripts);
    if (!reader.rest.empty())
        return false;
    if (letters.empty()) // "Temperature 2"
        return !first && number.size() <= 1;
    const bool isFactor = !first && (letters == L"x" || (letters == L"e" && !number.empty()));
    return number.size() <= 2 && !isFactor &&
           std::find(std::begin(tellingWords), std::end(tellingWords), letters) == std::end(tellingWords) &&
           std::none_of(std::begin(functions), std::end(functions),
                        [&](Text function) { return letters.starts_with(function); });
}

/// What may stand in the brackets of a name: an index, a unit, or a temperature.
bool IsPlainInBrackets(Text text) {
    if (IsUnit(text) || (AreDigits(text) && !text.empty() && text.size() <= 2))
        return true;
    const auto number = text.find_last_of(L"0123456789");
    if (number == Text::npos || text.find_first_not_of(L"0123456789.,") <= number)
        return false;
    const Text unit = Trimmed(text.substr(number + 1), L" ");
    return unit == L"\u00B0C" || unit == L"K";
}

/// Whether a name says nothing of a factor, a scaling unit, a sign or a function.
bool IsPlainName(Text name) {
    name = Trimmed(name, edges);
    if (name.empty())
        return true;
    if (const auto slash = name.find(L'/');
        slash != Text::npos && IsUnit(Trimmed(name.substr(slash + 1), edges)))
        name = Trimmed(name.substr(0, slash), edges);
    for (const auto& [open, close] : {std::pair(L'(', L')'), std::pair(L'[', L']')}) {
        const auto at = name.find(open);
        if (at == Text::npos || at == 0 || name.back() != close)
            continue;
        if (!IsPlainInBrackets(name.substr(at + 1, name.size() - at - 2)))
            return false;
        name = Trimmed(name.substr(0, at), edges);
    }
    for (bool first = true; !name.empty(); first = false) {
        const auto end = std::min(name.find_first_of(L" \u2003"), name.size());
        if (!IsPlainWord(name.substr(0, end), first))
            return false;
        name.remove_prefix(std::min(end + 1, name.size()));
    }
    return true;
}

} // namespace

PastedNumber NumberFromPaste(std::wstring_view text, std::wstring_view separator) {
    const std::wstring normalized = Normalized(text);
    Text quantity = Trimmed(normalized, edges);
    bool behindEquals = false;
    if (const auto end = quantity.find_last_of(L"=:"); end != Text::npos) {
        if (!IsPlainName(quantity.substr(0, end)))
            return Refused(PasteRefusal::NoNumber);
        behindEquals = quantity[end] == L'=';
        quantity = Trimmed(quantity.substr(end + 1), L" \u2003");
    }
    return ReadQuantity(quantity, separator.front(), behindEquals);
}

} // namespace QuorConversions
