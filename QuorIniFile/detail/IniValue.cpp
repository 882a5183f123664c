#include "QuorIniFile/detail/IniValue.h"

#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <system_error>
#include <utility>

namespace QuorIniFile {
namespace {

// Writing --------------------------------------------------------------------------------------------------

template <class Number>
std::string_view ToText(Number value, NumberText& place) {
    const auto result = std::to_chars(place.data(), place.data() + place.size(), value);
    return {place.data(), static_cast<std::size_t>(result.ptr - place.data())};
}

void AppendEscape(std::string& out, std::uint32_t code) {
    constexpr std::pair<char, char> named[] = {{'\\', '\\'}, {'"', '"'}, {'\n', 'n'}, {'\r', 'r'}};
    for (const auto& [character, letter] : named) {
        if (code == static_cast<unsigned char>(character)) {
            out.append(1, '\\').append(1, letter);
            return;
        }
    }
    out += HexEscape(code);
}

bool IsControl(std::uint32_t code, IniEncoding encoding) {
    // In a file that is not UTF-8 the bytes 80 to 9F are most likely letters of some code page.
    return (code < 0x20 && code != '\t') || code == 0x7F ||
           (encoding == IniEncoding::Utf8 && code >= 0x80 && code <= 0x9F);
}

template <class Unit>
bool IsEdge(Unit c) {
    return c == ' ' || c == '\t';
}

/// How text is put between the bytes of a file: what cannot stand there itself becomes an escape.
template <class Unit>
class TextWriter {
public:
    /// Characters above `limit` are escaped, whether the encoding has them or not.
    TextWriter(std::basic_string_view<Unit> text, IniEncoding encoding, std::uint32_t limit)
        : m_text(text), m_encoding(encoding), m_limit(limit) {}

    [[nodiscard]] std::string Write() const {
        const bool quoted = NeedsQuotes();
        std::string out(quoted ? 1 : 0, '"');
        for (std::size_t at = 0; at < m_text.size();) {
            const std::uint32_t code = NextCode(m_text, at);
            if (NeedsEscape(code) || (quoted && (code == '"' || code == '\\')))
                AppendEscape(out, code);
            else if (m_encoding == IniEncoding::Latin1)
                out += static_cast<char>(code);
            else
                AppendUtf8(out, code);
        }
        return out.append(quoted ? 1 : 0, '"');
    }

private:
    [[nodiscard]] bool NeedsEscape(std::uint32_t code) const {
        return code > m_limit || !IsCharacter(code) || IsControl(code, m_encoding);
    }

    [[nodiscard]] bool NeedsQuotes() const {
        if (m_text.empty())
            return false;
        if (IsEdge(m_text.front()) || IsEdge(m_text.back()) || m_text.front() == ';' || m_text.front() == '#')
            return true;
        bool isBehindBlank = false;
        for (std::size_t at = 0; at < m_text.size();) {
            const std::uint32_t code = NextCode(m_text, at);
            if (code == '"' || NeedsEscape(code) || (code == ';' && isBehindBlank))
                return true;
            isBehindBlank = IsEdge(code);
        }
        return false;
    }

    std::basic_string_view<Unit> m_text;
    IniEncoding m_encoding;
    std::uint32_t m_limit;
};

template <class Unit>
std::string EncodeUnits(std::basic_string_view<Unit> text, IniEncoding encoding) {
    if (encoding == IniEncoding::Utf8)
        return TextWriter(text, encoding, std::numeric_limits<std::uint32_t>::max()).Write();
    std::string bytes = TextWriter(text, encoding, 0xFF).Write();
    // Letters of Latin-1 that happen to form UTF-8 would be read as UTF-8.
    if (!IsAscii(bytes) && IsUtf8(bytes))
        bytes = TextWriter(text, encoding, 0x7F).Write();
    return bytes;
}

// Reading --------------------------------------------------------------------------------------------------

/// Reads the number that all of `value` spells; result_out_of_range when a Number cannot hold it. from_chars
/// knows no '+', and takes names that are none of ours.
template <class Number>
std::errc ReadNumber(std::string_view value, Number& number) {
    if (value.starts_with('+') && !value.starts_with("+-"))
        value.remove_prefix(1);
    const std::size_t first = value.starts_with('-') ? 1 : 0;
    if (value.size() == first || (value[first] != '.' && (value[first] < '0' || value[first] > '9')))
        return std::errc::invalid_argument;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return end == value.data() + value.size() ? error : std::errc::invalid_argument;
}

template <class Number>
std::optional<Number> ToNumber(std::string_view value) {
    Number number{};
    return ReadNumber(value, number) == std::errc() ? std::optional(number) : std::nullopt;
}

bool IsWide(std::uint32_t code) { return !wideIsUtf16 || code <= lastCharacter; }

/// The code of the escape "u{HEX}" at the start of `escape`, and how long it is; nothing when it is none.
std::optional<std::pair<std::uint32_t, std::size_t>> ReadHexEscape(std::wstring_view escape) {
    constexpr std::wstring_view digits = L"0123456789ABCDEFabcdef";
    constexpr std::size_t mostDigits = 8;
    const std::size_t close = escape.find_first_not_of(digits, 2);
    if (!escape.starts_with(L"u{") || close == std::wstring_view::npos || escape[close] != L'}' ||
        close == 2 || close > 2 + mostDigits)
        return std::nullopt;
    std::uint32_t code = 0;
    for (const wchar_t c : escape.substr(2, close - 2)) {
        const std::size_t digit = digits.find(c);
        code = code * 16 + static_cast<std::uint32_t>(digit < 16 ? digit : digit - 6);
    }
    if (!IsWide(code))
        return std::nullopt;
    return std::pair{code, close + 1};
}

enum class Inside : std::uint8_t { WellFormed, ForeignBackslash, BareQuote };

/// Unescapes what stands between quotes; the text counts only where all of it is well-formed.
std::pair<Inside, std::wstring> Unescape(std::wstring_view inside) {
    constexpr std::pair<wchar_t, wchar_t> named[] = {
        {L'\\', L'\\'}, {L'"', L'"'}, {L'n', L'\n'}, {L'r', L'\r'}};
    Inside result = Inside::WellFormed;
    std::wstring text;
    for (std::size_t at = 0; at < inside.size();) {
        const wchar_t c = inside[at++];
        if (c == L'"')
            return {Inside::BareQuote, {}};
        if (c != L'\\') {
            text += c;
            continue;
        }
        const std::wstring_view escape = inside.substr(at);
        const auto* const known = std::find_if(std::begin(named), std::end(named), [&](const auto& entry) {
            return escape.starts_with(entry.first);
        });
        if (known != std::end(named)) {
            text += known->second;
            ++at;
        } else if (const auto hex = ReadHexEscape(escape)) {
            AppendCharacter(text, hex->first);
            at += hex->second;
        } else {
            result = Inside::ForeignBackslash;
        }
    }
    return {result, std::move(text)};
}

} // namespace

std::string FormatDouble(double value) {
    NumberText place;
    return std::string(FormatDouble(value, place));
}

std::string_view FormatDouble(double value, NumberText& place) {
    if (std::isnan(value))
        return "NaN";
    if (std::isinf(value))
        return value > 0 ? "Infinity" : "-Infinity";
    return ToText(value, place);
}

std::optional<double> ParseDouble(std::string_view value) {
    using Limits = std::numeric_limits<double>;
    constexpr std::pair<std::string_view, double> named[] = {
        {"nan", Limits::quiet_NaN()}, {"infinity", Limits::infinity()}, {"-infinity", -Limits::infinity()}};
    if (const auto number = ToNumber<double>(value)) // as nearly all are
        return number;
    const auto* const found = std::find_if(std::begin(named), std::end(named), [value](const auto& number) {
        return EqualFolded(value, number.first);
    });
    return found == std::end(named) ? std::nullopt : std::optional(found->second);
}

bool IsBeyondDouble(std::string_view value) {
    double number = 0;
    return ReadNumber(value, number) == std::errc::result_out_of_range;
}

std::string FormatInteger(std::int16_t value) {
    NumberText place;
    return std::string(ToText(value, place));
}

std::optional<std::int16_t> ParseInteger(std::string_view value) { return ToNumber<std::int16_t>(value); }

std::string FormatBoolean(bool value) { return value ? "True" : "False"; }

std::optional<bool> ParseBoolean(std::string_view value) {
    constexpr std::pair<std::string_view, bool> spellings[] = {
        {"true", true}, {"-1", true}, {"1", true}, {"false", false}, {"0", false}};
    for (const auto& [spelling, flag] : spellings) {
        if (EqualFolded(value, spelling))
            return flag;
    }
    return std::nullopt;
}

std::string EncodeText(std::wstring_view text, IniEncoding encoding) { return EncodeUnits(text, encoding); }

std::string EncodeText(std::u16string_view text, IniEncoding encoding) { return EncodeUnits(text, encoding); }

std::wstring DecodeText(std::string_view value) {
    if (!value.starts_with('"') && IsAscii(value))
        return {value.begin(), value.end()};
    std::wstring text = DecodeBytes(SplitTextComment(value).plain);
    if (text.size() < 2 || text.front() != L'"' || text.back() != L'"')
        return text;
    const std::wstring_view inside = std::wstring_view(text).substr(1, text.size() - 2);
    auto [result, unescaped] = Unescape(inside);
    switch (result) {
    case Inside::WellFormed:
        return std::move(unescaped);
    case Inside::ForeignBackslash:
        return std::wstring(inside);
    case Inside::BareQuote:
        break;
    }
    return text;
}

std::string FormatComment(std::wstring_view comment, IniEncoding encoding) {
    std::string text;
    for (std::size_t at = 0; at < comment.size();) {
        const std::size_t start = at;
        const std::uint32_t code = NextCode(comment, at);
        if (IsControl(code, IniEncoding::Utf8) || code == '\t')
            text += ' ';
        else if (encoding == IniEncoding::Latin1)
            text += code > 0xFF ? '?' : static_cast<char>(code);
        else
            text += ToUtf8(comment.substr(start, at - start));
    }
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return "; " + text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace QuorIniFile
