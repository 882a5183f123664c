#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace QuorIniFile {
namespace {

constexpr std::uint32_t replacement = 0xFFFD;
constexpr std::uint32_t noCharacter = 0xFFFFFFFF;

bool IsSurrogate(std::uint32_t code) { return code >= 0xD800 && code <= 0xDFFF; }

/// The character that starts at `text[at]`; moves `at` behind it.
std::uint32_t NextCharacter(std::wstring_view text, std::size_t& at) {
    // NOLINTNEXTLINE(bugprone-signed-char-misuse,cert-str34-c): a wide character, whatever its sign
    auto code = static_cast<std::uint32_t>(text[at++]);
    if constexpr (wideIsUtf16) {
        code &= 0xFFFFU;
        if (code >= 0xD800 && code <= 0xDBFF && at < text.size()) {
            const std::uint32_t low = static_cast<std::uint32_t>(text[at]) & 0xFFFFU;
            if (low >= 0xDC00 && low <= 0xDFFF) {
                ++at;
                return 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
            }
        }
    }
    return IsSurrogate(code) || code > 0x10FFFF ? replacement : code;
}

/// The character that starts at `bytes[at]`, or noCharacter; moves `at` behind it.
std::uint32_t NextFromUtf8(std::string_view bytes, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(bytes[at++]);
    if (lead < 0x80)
        return lead;
    const int continuations = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() - at < static_cast<std::size_t>(continuations))
        return noCharacter;
    std::uint32_t code = lead & (0x3FU >> continuations);
    for (int i = 0; i < continuations; ++i) {
        const auto next = static_cast<unsigned char>(bytes[at++]);
        if ((next & 0xC0U) != 0x80U)
            return noCharacter;
        code = (code << 6) | (next & 0x3FU);
    }
    constexpr std::uint32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    return code < smallest[continuations] || IsSurrogate(code) || code > 0x10FFFF ? noCharacter : code;
}

} // namespace

void AppendCharacter(std::wstring& text, std::uint32_t code) {
    if (wideIsUtf16 && code > 0xFFFF) {
        code -= 0x10000;
        text += static_cast<wchar_t>(0xD800 + (code >> 10));
        code = 0xDC00 + (code & 0x3FF);
    }
    text += static_cast<wchar_t>(code);
}

std::string ToUtf8(std::wstring_view text) {
    std::string bytes;
    if (CopyAscii(text, bytes)) // nearly all names are
        return bytes;
    bytes.clear();
    for (std::size_t at = 0; at < text.size();) {
        const std::uint32_t code = NextCharacter(text, at);
        if (code < 0x80) {
            bytes += static_cast<char>(code);
            continue;
        }
        const int continuations = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
        constexpr std::uint32_t leads[] = {0, 0xC0, 0xE0, 0xF0};
        bytes += static_cast<char>(leads[continuations] | (code >> (6 * continuations)));
        for (int i = continuations - 1; i >= 0; --i)
            bytes += static_cast<char>(0x80 | ((code >> (6 * i)) & 0x3F));
    }
    return bytes;
}

bool IsAscii(std::wstring_view text) {
    std::uint32_t bits = 0; // of all characters at once: a look at each would take longer
    for (const wchar_t c : text)
        bits |= static_cast<std::uint32_t>(c); // NOLINT(bugprone-signed-char-misuse,cert-str34-c): as above
    return bits < 0x80;
}

bool CopyAscii(std::wstring_view text, std::string& bytes) {
    if (bytes.size() != text.size())
        bytes.resize(text.size());
    const wchar_t* const from = text.data();
    char* const to = bytes.data();
    std::uint32_t bits = 0; // of all characters at once, as above
    for (std::size_t at = 0; at < text.size(); ++at) {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse,cert-str34-c): a wide character, whatever its sign
        const auto code = static_cast<std::uint32_t>(from[at]);
        bits |= code;
        to[at] = static_cast<char>(code);
    }
    return bits < 0x80;
}

bool IsUtf8(std::string_view bytes) {
    if (IsAscii(bytes))
        return true;
    for (std::size_t at = 0; at < bytes.size();) {
        if (NextFromUtf8(bytes, at) == noCharacter)
            return false;
    }
    return true;
}

std::optional<std::wstring> FromUtf8(std::string_view bytes) {
    if (IsAscii(bytes))
        return std::wstring(bytes.begin(), bytes.end());
    std::wstring text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const std::uint32_t code = NextFromUtf8(bytes, at);
        if (code == noCharacter)
            return std::nullopt;
        AppendCharacter(text, code);
    }
    return text;
}

} // namespace QuorIniFile
