#pragma once

#include <algorithm>
#include <string>
#include <string_view>

// Text in which the case of ASCII letters does not matter, whatever the locale: names of sections and keys,
// words of formats and values.
namespace QuorIniFile {

/// A capital ASCII letter made small; any other character as it is.
template <class Character>
[[nodiscard]] constexpr Character Small(Character c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Character>(c + ('a' - 'A')) : c;
}

/// `text` with its ASCII capitals made small.
[[nodiscard]] inline std::wstring Folded(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), Small<wchar_t>);
    return text;
}

/// Whether two texts are the same in any case of ASCII letters.
[[nodiscard]] inline bool EqualFolded(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Small(x) == Small(y); });
}
[[nodiscard]] inline bool EqualFolded(std::wstring_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return Small(x) == Small(y); });
}
/// The same for ASCII and a text.
[[nodiscard]] inline bool EqualFolded(std::string_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, wchar_t y) { return static_cast<wchar_t>(Small(x)) == Small(y); });
}

} // namespace QuorIniFile
