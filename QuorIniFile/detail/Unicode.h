#pragma once

#include "QuorIniFile/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace QuorIniFile {

/// Whether characters outside the basic plane are two units of a wide string.
inline constexpr bool wideIsUtf16 = sizeof(wchar_t) == 2;

/// The greatest code of a Unicode character.
inline constexpr std::uint32_t lastCharacter = 0x10FFFF;

/// No code of a character.
inline constexpr std::uint32_t noCharacter = 0xFFFFFFFF;

// A character outside the basic plane is two units in UTF-16, a lead and a trail surrogate.
[[nodiscard]] constexpr bool IsLeadSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
[[nodiscard]] constexpr bool IsTrailSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
[[nodiscard]] constexpr std::uint32_t JoinSurrogates(std::uint32_t lead, std::uint32_t trail) {
    return 0x10000 + ((lead - 0xD800) << 10U) + (trail - 0xDC00);
}
[[nodiscard]] constexpr std::uint32_t LeadSurrogate(std::uint32_t code) {
    return 0xD800 + ((code - 0x10000) >> 10U);
}
[[nodiscard]] constexpr std::uint32_t TrailSurrogate(std::uint32_t code) { return 0xDC00 + (code & 0x3FFU); }

/// Whether it is the code of a Unicode character: no lone surrogate, nothing past the last one.
[[nodiscard]] constexpr bool IsCharacter(std::uint32_t code) {
    return (code < 0xD800 || code > 0xDFFF) && code <= lastCharacter;
}

/// The code that starts at `text[at]`, that of a lone surrogate too; moves `at` behind it. In units of 16
/// bits a pair of surrogates is one code; a wider unit is a code of its own.
template <class Unit>
[[nodiscard]] std::uint32_t NextCode(std::basic_string_view<Unit> text, std::size_t& at) {
    // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wide character, whatever its sign
    auto code = static_cast<std::uint32_t>(text[at++]);
    if constexpr (sizeof(Unit) == 2) {
        code &= 0xFFFFU;
        if (IsLeadSurrogate(code) && at < text.size()) {
            const std::uint32_t trail = static_cast<std::uint32_t>(text[at]) & 0xFFFFU;
            if (IsTrailSurrogate(trail)) {
                ++at;
                return JoinSurrogates(code, trail);
            }
        }
    }
    return code;
}

/// Whether all of it is ASCII, which is the same as bytes and as text.
[[nodiscard]] bool IsAscii(std::wstring_view text);
[[nodiscard]] inline bool IsAscii(std::string_view bytes) { // in line: it is asked of every key
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    constexpr std::size_t step = sizeof highBits;
    const auto word = [bytes](std::size_t at) {
        std::uint64_t read = 0;
        std::memcpy(&read, bytes.data() + at, sizeof read);
        return read;
    };
    if (bytes.size() < step) {
        unsigned bits = 0;
        for (const char c : bytes)
            bits |= static_cast<unsigned char>(c);
        return bits < 0x80;
    }
    for (std::size_t at = 0; at + step <= bytes.size(); at += step) {
        if ((word(at) & highBits) != 0)
            return false;
    }
    return (word(bytes.size() - step) & highBits) == 0; // the last bytes, some of them once more
}

/// Puts `text` into `bytes` when it is ASCII; false, and something in `bytes`, when it is not. A string that
/// is used again and again needs no memory of its own each time.
[[nodiscard]] bool CopyAscii(std::wstring_view text, std::string& bytes);

[[nodiscard]] bool IsUtf8(std::string_view bytes);

/// The escape for the character with that code, "\u{HEX}", in values of files and in what is printed.
[[nodiscard]] std::string HexEscape(std::uint32_t code);

/// Adds the character with that code, in two parts where a wchar_t cannot hold it.
void AppendCharacter(std::wstring& text, std::uint32_t code);

/// Adds the character with that code as UTF-8.
void AppendUtf8(std::string& bytes, std::uint32_t code);

/// The character that starts at `bytes[at]`, or noCharacter where that is no valid UTF-8; moves `at` behind
/// what it has read.
[[nodiscard]] std::uint32_t NextFromUtf8(std::string_view bytes, std::size_t& at);

} // namespace QuorIniFile
