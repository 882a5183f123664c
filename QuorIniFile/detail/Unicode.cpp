#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

namespace QuorIniFile {
namespace {

constexpr std::uint32_t replacement = 0xFFFD;

/// The first and the last code of each range that a terminal or a log must not get. They are in order.
constexpr std::pair<std::uint32_t, std::uint32_t> unprintable[] = {
    {0x0, 0x1F},        // control characters
    {0x7F, 0x9F},       // delete, and the control characters that are one code for ESC and a letter
    {0xAD, 0xAD},       // soft hyphen: from here on what nobody sees, or what changes the direction
    {0x61C, 0x61C},     // Arabic letter mark
    {0x180E, 0x180E},   // Mongolian vowel separator
    {0x200B, 0x200F},   // spaces and joiners without a width, marks of direction
    {0x2028, 0x202E},   // line and paragraph separator, embeddings and overrides of the direction
    {0x2060, 0x206F},   // joiners and operators without a width, isolates of the direction
    {0xD800, 0xDFFF},   // lone surrogates
    {0xFEFF, 0xFEFF},   // byte-order mark
    {0xFFF9, 0xFFFB},   // annotations
    {0xE0000, 0xE007F}, // tags
    {lastCharacter + 1, noCharacter}, // no Unicode
};

bool IsUnprintable(std::uint32_t code) {
    const auto* const range =
        std::find_if(std::begin(unprintable), std::end(unprintable),
                     [code](const auto& candidate) { return code <= candidate.second; });
    return range->first <= code; // the last range ends with the greatest code there is
}

} // namespace

void AppendCharacter(std::wstring& text, std::uint32_t code) {
    if (wideIsUtf16 && code > 0xFFFF) {
        text += static_cast<wchar_t>(LeadSurrogate(code));
        code = TrailSurrogate(code);
    }
    text += static_cast<wchar_t>(code);
}

void AppendUtf8(std::string& bytes, std::uint32_t code) {
    if (code < 0x80) {
        bytes += static_cast<char>(code);
        return;
    }
    const int continuations = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr std::uint32_t leads[] = {0, 0xC0, 0xE0, 0xF0};
    bytes += static_cast<char>(leads[continuations] | (code >> (6 * continuations)));
    for (int i = continuations - 1; i >= 0; --i)
        bytes += static_cast<char>(0x80 | ((code >> (6 * i)) & 0x3F));
}

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
    return code < smallest[continuations] || !IsCharacter(code) ? noCharacter : code;
}

std::string ToUtf8(std::wstring_view text) {
    std::string bytes;
    if (CopyAscii(text, bytes)) // nearly all names are
        return bytes;
    bytes.clear();
    for (std::size_t at = 0; at < text.size();) {
        const std::uint32_t code = NextCode(text, at);
        AppendUtf8(bytes, IsCharacter(code) ? code : replacement);
    }
    return bytes;
}

std::string HexEscape(std::uint32_t code) {
    std::array<char, 8> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), code, 16);
    std::transform(digits.data(), result.ptr, digits.data(),
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    return std::string("\\u{").append(digits.data(), result.ptr).append(1, '}');
}

std::wstring EscapeControls(std::wstring_view text) {
    constexpr std::pair<std::uint32_t, const wchar_t*> named[] = {
        {'\n', L"\\n"}, {'\r', L"\\r"}, {'\t', L"\\t"}};
    std::wstring escaped;
    escaped.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = at;
        const std::uint32_t code = NextCode(text, at);
        if (!IsUnprintable(code)) {
            escaped += text.substr(start, at - start);
            continue;
        }
        const auto* const known = std::find_if(std::begin(named), std::end(named),
                                               [code](const auto& entry) { return entry.first == code; });
        if (known != std::end(named)) {
            escaped += known->second;
        } else {
            const std::string hex = HexEscape(code);
            escaped.append(hex.begin(), hex.end());
        }
    }
    return escaped;
}

std::string ToPrintable(std::wstring_view text) { return ToUtf8(EscapeControls(text)); }

bool IsAscii(std::wstring_view text) {
    std::uint32_t bits = 0; // of all characters at once: a look at each would take longer
    for (const wchar_t c : text)
        bits |= static_cast<std::uint32_t>(c); // NOLINT(bugprone-signed-char-misuse): as above
    return bits < 0x80;
}

bool CopyAscii(std::wstring_view text, std::string& bytes) {
    if (bytes.size() != text.size())
        bytes.resize(text.size());
    const wchar_t* const from = text.data();
    char* const to = bytes.data();
    std::uint32_t bits = 0; // of all characters at once, as above
    for (std::size_t at = 0; at < text.size(); ++at) {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wide character, whatever its sign
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
