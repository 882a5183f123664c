#pragma once

#include "QuorIniFile/Export.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

// Text in which the case of ASCII letters does not matter, whatever the locale: names of sections and keys,
// words of formats and values.
namespace QuorIniFile {

/// An ASCII capital in lower case; any other character unchanged.
template <class Character>
[[nodiscard]] constexpr Character Small(Character c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Character>(c + ('a' - 'A')) : c;
}

/// `text` with its ASCII capitals in lower case.
[[nodiscard]] inline std::wstring Folded(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), Small<wchar_t>);
    return text;
}

/// Whether two texts are equal if the case of ASCII letters is ignored.
[[nodiscard]] inline bool EqualFolded(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Small(x) == Small(y); });
}
[[nodiscard]] inline bool EqualFolded(std::wstring_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return Small(x) == Small(y); });
}
/// The same for an ASCII text `a` and a wide text `b`.
[[nodiscard]] inline bool EqualFolded(std::string_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, wchar_t y) { return static_cast<wchar_t>(Small(x)) == Small(y); });
}

/// The hash of a name in ASCII or UTF-8, the same for names that differ only in the case of ASCII letters. It
/// has a random key in every process, so that no file can be crafted whose names all collide.
[[nodiscard]] QUORINIFILE_EXPORT std::uint64_t HashName(std::string_view name);
/// The same for a name as wide text.
[[nodiscard]] QUORINIFILE_EXPORT std::uint64_t HashName(std::wstring_view name);

} // namespace QuorIniFile
