#pragma once

#include "QuorIniFile/Export.h"

#include <algorithm>
#include <cstdint>
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

/// The hash of a name in ASCII or UTF-8, the same for names that differ in the case of ASCII letters only. It
/// is keyed anew in every process, so that no file can be made whose names all collide.
[[nodiscard]] QUORINIFILE_EXPORT std::uint64_t HashName(std::string_view name);
/// The same for a name as a host gives it.
[[nodiscard]] QUORINIFILE_EXPORT std::uint64_t HashName(std::wstring_view name);

} // namespace QuorIniFile
