#include "QuorConversions/core/ValueFormatter.h"

#include "QuorConversions/core/detail/ShortestDecimal.h"
#include "QuorIniFile/AsciiCase.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <iterator>

namespace QuorConversions {
namespace {

enum Kind : unsigned {
    LITERAL = 0,
    PLACE = 1,
    POINT = 2,
    COMMA = 4,
    PERCENT = 8,
    EXPONENT = 16,
    QUOTE = 32,
    ESCAPE = 64,
    END = 128,
    IN_NUMBER = 256 ///< no kind: a place, the point or a comma stands right before
};

/// A character with a meaning, and when it has none: unless `after` came before it, or once one of `never`
/// did.
struct Meaning {
    wchar_t character;
    Kind kind;
    unsigned after;
    unsigned never;
};

constexpr Meaning meanings[] = {
    {L'0', PLACE, 0, EXPONENT},
    {L'#', PLACE, 0, EXPONENT},
    {L'.', POINT, 0, POINT | EXPONENT},
    {L',', COMMA, IN_NUMBER, 0},
    {L'%', PERCENT, 0, 0},
    {L'E', EXPONENT, PLACE, EXPONENT},
    {L'e', EXPONENT, PLACE, EXPONENT},
    {L'"', QUOTE, 0, 0},
    {L'\\', ESCAPE, 0, 0},
    {L';', END, 0, 0},
};

/// The end of a run of places behind "E+" or "E-"; 1 for an "E" that is just a letter.
std::size_t ExponentLength(std::wstring_view text) {
    if (text.size() < 2 || (text[1] != L'+' && text[1] != L'-'))
        return 1;
    const std::size_t length = std::min(text.find_first_not_of(L"0#", 2), text.size());
    return length == 2 ? 1 : length;
}

/// InputDriver the pieces of the first section of `format` to `take`, like places together, and literals
/// without their quotes. Returns the sections that follow.
template <class Take>
std::wstring_view ReadSection(std::wstring_view format, Take take) {
    unsigned seen = 0;
    while (!format.empty()) {
        const auto* const meaning = std::ranges::find(meanings, format.front(), &Meaning::character);
        const bool means = meaning != std::end(meanings) && (seen & meaning->after) == meaning->after &&
                           (seen & meaning->never) == 0;
        Kind kind = means ? meaning->kind : LITERAL;
        std::size_t length = 1;
        std::wstring_view text = format;
        switch (kind) {
        case END:
            return format.substr(1);
        case PLACE:
            length = std::min(format.find_first_not_of(format.front()), format.size());
            break;
        case EXPONENT:
            length = ExponentLength(format);
            kind = length > 1 ? EXPONENT : LITERAL;
            break;
        case ESCAPE:
            format.remove_prefix(format.size() > 1 ? 1 : 0);
            text = format;
            kind = LITERAL;
            break;
        case QUOTE: // one that is not closed goes to the end
            text.remove_prefix(1);
            text = text.substr(0, text.find(L'"'));
            length = std::min(text.size() + 2, format.size());
            kind = LITERAL;
            break;
        default:
            break;
        }
        seen = (seen & ~IN_NUMBER) | kind | ((kind & (PLACE | POINT | COMMA)) != 0 ? IN_NUMBER : 0U);
        take(kind, text.substr(0, length));
        format.remove_prefix(length);
    }
    return format;
}

/// What a section asks of the number as a whole.
struct Section {
    int integerPlaces = 0;
    int minIntegers = 0;   ///< shown as zeros when the number has no such digits
    int optionalUnits = 0; ///< how many of these stand behind the last zero: a number below 1 omits them
    int decimals = 0;
    int minDecimals = 0;
    int optionalTenths = 0; ///< how many of these stand before the first zero: an integer omits them
    int shift = 0;          ///< power of ten that percent and the scaling commas come to
    bool grouping = false;
    bool exponent = false;

    explicit Section(std::wstring_view text) {
        int commas = 0; // since the last place: they group or scale as the next piece decides
        int percent = 0;
        bool point = false;
        ReadSection(text, [&](Kind kind, std::wstring_view piece) {
            switch (kind) {
            case PLACE:
                AddPlaces(piece, point);
                grouping = grouping || (commas > 0 && !point);
                commas = 0;
                break;
            case POINT:
                point = true;
                shift -= 3 * commas;
                commas = 0;
                break;
            case COMMA:
                ++commas;
                break;
            case PERCENT:
                percent = 2;
                break;
            case EXPONENT: // a mantissa of zero shows its zero
                exponent = true;
                minIntegers = std::max(minIntegers, std::min(integerPlaces, 1));
                break;
            default:
                break;
            }
        });
        shift += percent - 3 * commas;
        if (minIntegers > 0 && minDecimals > 0)
            optionalUnits = optionalTenths = 0; // they stand between two zeros
    }

    [[nodiscard]] bool HasPlaces() const { return integerPlaces + decimals > 0; }

    /// The exponent that leaves the number `point` with a mantissa that the places before the point can show.
    [[nodiscard]] int ExponentOf(int point) const {
        if (integerPlaces == 0)
            return point;
        const int power = point - 1;
        const int above = power % integerPlaces;
        return power - (above < 0 ? above + integerPlaces : above);
    }

private:
    /// Places between two zeros are zeros, too.
    void AddPlaces(std::wstring_view places, bool afterPoint) {
        const int count = static_cast<int>(places.size());
        const bool zeros = places.front() == L'0';
        if (afterPoint) {
            if (zeros && minDecimals == 0)
                optionalTenths = decimals;
            decimals += count;
            minDecimals = zeros ? decimals : minDecimals;
        } else {
            integerPlaces += count;
            minIntegers += zeros || minIntegers > 0 ? count : 0;
            optionalUnits = zeros || minIntegers == 0 ? 0 : optionalUnits + count;
        }
    }
};

/// Scales and rounds `number` to what the section shows. Returns the exponent.
int Fit(ShortestDecimal& number, const Section& section) {
    if (number.count == 0 || !section.HasPlaces())
        return 0;
    number.point += section.shift;
    if (!section.exponent) {
        number.Round(number.point + section.decimals);
        return 0;
    }
    number.Round(number.point - section.ExponentOf(number.point) + section.decimals);
    const int exponent = section.ExponentOf(number.point); // 9.99 may have become 10
    number.point -= exponent;
    return exponent;
}

/// `text` is "E+00" or the like.
void AppendExponent(std::wstring& result, std::wstring_view text, int exponent) {
    result += text[0];
    if (exponent < 0)
        result += L'-';
    else if (text[1] == L'+')
        result += L'+';
    const std::wstring digits = std::to_wstring(std::abs(exponent));
    const std::size_t places = text.size() - std::min(text.find(L'0', 2), text.size());
    result.append(std::max(places, digits.size()) - digits.size(), L'0');
    result += digits;
}

std::wstring Show(ShortestDecimal number, std::wstring_view text, bool minus,
                  const NumberSeparators& separators) {
    const Section section(text);
    const int exponent = Fit(number, section);
    int integers = section.HasPlaces() ? std::max(number.point, section.minIntegers) : 0; // still to show
    int integerPlaces = section.integerPlaces;                                            // still to fill
    const int lastInteger = number.point > 0 ? 0 : section.optionalUnits; // counted from the point
    const int digitsBehindPoint = static_cast<int>(number.count) - number.point;
    const int decimals = std::max(digitsBehindPoint, section.minDecimals);
    const int firstDecimal = digitsBehindPoint > 0 ? 0 : section.optionalTenths;
    int decimalPlaces = 0; // filled so far

    std::wstring result;
    result.reserve(text.size() + static_cast<std::size_t>(integers) * (section.grouping ? 2 : 1) + 8);
    const auto showIntegers = [&](int left) {
        for (; integers > std::max(left, lastInteger); --integers) {
            result += number.At(number.point - integers);
            if (section.grouping && integers % 3 == 1 && integers > lastInteger + 1)
                result += separators.grouping;
        }
    };
    if (minus && number.count > 0)
        result += L'-';
    ReadSection(text, [&](Kind kind, std::wstring_view piece) {
        const int length = static_cast<int>(piece.size());
        switch (kind) {
        case PLACE:
            if (integerPlaces > 0) {
                integerPlaces -= length;
                showIntegers(integerPlaces);
            } else {
                for (int i = std::max(decimalPlaces, firstDecimal);
                     i < std::min(decimalPlaces + length, decimals); ++i)
                    result += number.At(number.point + i);
                decimalPlaces += length;
            }
            break;
        case POINT:
            showIntegers(0);
            result += separators.decimal;
            break;
        case COMMA:
            break;
        case EXPONENT:
            AppendExponent(result, piece, exponent);
            break;
        default:
            result += piece;
            break;
        }
    });
    return result;
}

/// The format that shows every digit and no more.
std::wstring_view GeneralFormat(const ShortestDecimal& number) {
    if (number.point < -4 || number.point > 15)
        return number.count > 1 ? L"0.################E+00" : L"0E+00";
    return static_cast<int>(number.count) > number.point ? L"0.#####################" : L"0";
}

struct NamedFormat {
    std::wstring_view name;
    std::wstring_view format;
};

constexpr NamedFormat namedFormats[] = {
    {L"general number", L""}, {L"fixed", L"0.00"},          {L"standard", L"#,##0.00"},
    {L"percent", L"0.00%"},   {L"scientific", L"0.00E+00"},
};

std::wstring_view FormatOf(std::wstring_view nameOrFormat) {
    for (const auto& [name, format] : namedFormats)
        if (QuorIniFile::EqualFolded(name, nameOrFormat))
            return format;
    return nameOrFormat;
}

/// What is left of `format` from its section `index` on.
std::wstring_view FromSection(std::wstring_view format, int index) {
    for (; index > 0; --index)
        format = ReadSection(format, [](Kind, std::wstring_view) {});
    return format;
}

bool IsEmptySection(std::wstring_view text) { return text.empty() || text.front() == L';'; }

} // namespace

bool IsGeneralFormat(std::wstring_view format) { return FormatOf(format).empty(); }

std::wstring FormatValue(double value, std::wstring_view format, const NumberSeparators& separators) {
    if (std::isnan(value))
        return L"NaN";
    if (std::isinf(value))
        return value < 0 ? L"-Infinity" : L"Infinity";

    format = FormatOf(format);
    bool minus = std::signbit(value);
    const int ownSection = value < 0 ? 1 : value == 0 ? 2 : 0;
    if (const auto own = FromSection(format, ownSection); !IsEmptySection(own)) {
        format = own;
        minus = minus && ownSection == 0;
    }

    const ShortestDecimal number(std::abs(value));
    if (!IsEmptySection(format))
        return Show(number, format, minus, separators);
    if (number.count == 0)
        return minus ? L"-0" : L"0";
    return Show(number, GeneralFormat(number), minus, separators);
}

} // namespace QuorConversions
