#pragma once

#include "QuorIniFile/detail/IniFormat.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

// How values are spelled in an INI file, both ways. Pure functions; the user's locale plays no part in them.
// What is written reads back as the very value. Where a value cannot be read as that kind, the answer is
// nothing.
namespace QuorIniFile {

/// The shortest decimal text that reads back to the same bits, with a point; "NaN", "Infinity", "-Infinity".
/// (A NaN has one spelling: its sign and payload are not kept.)
[[nodiscard]] std::string FormatDouble(double value);
/// The same in a place of the caller's.
using NumberText = std::array<char, 32>;
[[nodiscard]] std::string_view FormatDouble(double value, NumberText& place);
/// Decimal, from the first byte to the last, a leading '+' allowed; the three names in any case. Nothing for
/// a number that a double cannot hold, be it too large or too close to zero.
[[nodiscard]] std::optional<double> ParseDouble(std::string_view value);
/// Whether it is such a number.
[[nodiscard]] bool IsBeyondDouble(std::string_view value);

[[nodiscard]] std::string FormatInteger(std::int16_t value);
/// Decimal, from the first byte to the last, a leading '+' allowed. Nothing outside 16 bits.
[[nodiscard]] std::optional<std::int16_t> ParseInteger(std::string_view value);

/// "True" or "False".
[[nodiscard]] std::string FormatBoolean(bool value);
/// True, -1 and 1, False and 0, in any case.
[[nodiscard]] std::optional<bool> ParseBoolean(std::string_view value);

/// Text as it stands, where it reads back so. Otherwise (blanks at an edge, a quote anywhere, ';' or '#' in
/// front, ';' behind a blank, line breaks and other control characters, characters that the encoding lacks)
/// in double quotes with the escapes \\ \" \n \r and \u{HEX}. Every std::wstring comes back exactly, even one
/// that is no valid text.
[[nodiscard]] std::string EncodeText(std::wstring_view text, IniEncoding encoding);
/// The same for text in units of 16 bits, as wchar_t is on some systems: a pair of surrogates is one
/// character.
[[nodiscard]] std::string EncodeText(std::u16string_view text, IniEncoding encoding);

/// The text that a value spells. In double quotes:
///   - with the escapes above and no others: unescaped;
///   - with a backslash that starts none of them: other programs write "C:\Data" and mean C:\Data, so the
///   outer
///     quotes go and the rest is taken as it stands;
///   - with a quote inside that no backslash escapes ("a" or "b"): taken as it stands, outer quotes included.
/// A comment behind a text in quotes is no part of it: SplitTextComment. Without quotes every byte means
/// itself, the backslash and the semicolon too.
[[nodiscard]] std::wstring DecodeText(std::string_view value);

/// A remark as it stands behind a value: "; remark", with line breaks as blanks. Empty for an empty remark.
[[nodiscard]] std::string FormatComment(std::wstring_view comment, IniEncoding encoding);

/// Reads the bytes behind a key as a value of that kind. False, and `value` stays as it was, where there is
/// no key, or where they are none.
template <class Value>
[[nodiscard]] bool TakeValue(const std::optional<std::string_view>& bytes, Value& value) {
    const auto take = [&value](auto&& read) {
        if (!read)
            return false;
        value = *std::forward<decltype(read)>(read);
        return true;
    };
    if (!bytes)
        return false;
    // Few values have a comment, so all of the bytes are tried first.
    const auto parse = [&](const auto& parsed) {
        const auto whole = parsed(*bytes);
        return take(whole ? whole : parsed(SplitComment(*bytes).plain));
    };
    if constexpr (std::is_same_v<Value, bool>)
        return parse(ParseBoolean);
    else if constexpr (std::is_same_v<Value, double>)
        return parse(ParseDouble);
    else if constexpr (std::is_same_v<Value, std::int16_t>)
        return parse(ParseInteger);
    else
        return take(std::optional(DecodeText(*bytes)));
}

} // namespace QuorIniFile
