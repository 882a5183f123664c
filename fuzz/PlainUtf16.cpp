#include "fuzz/PlainUtf16.h"

#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <vector>

namespace Fuzz {
namespace {

std::vector<unsigned> UnitsOf(std::string_view bytes) {
    const bool lowFirst = bytes.starts_with("\xFF\xFE");
    std::vector<unsigned> units;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const unsigned first = static_cast<unsigned char>(bytes[at]);
        const unsigned second = static_cast<unsigned char>(bytes[at + 1]);
        units.push_back(lowFirst ? first + 256 * second : 256 * first + second);
    }
    return units;
}

/// Whether every second unit is so small that both are a character of UTF-32.
bool IsUtf32(const std::vector<unsigned>& units) {
    if (units.size() < 4 || units.size() % 2 != 0 || units[1] != 0)
        return false;
    for (std::size_t at = 1; at < units.size(); at += 2) {
        if (units[at] > 0x10)
            return false;
    }
    return true;
}

} // namespace

bool HasUtf16Mark(std::string_view bytes) {
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

std::optional<std::string> PlainText(std::string_view bytes) {
    if (!HasUtf16Mark(bytes))
        return QuorIniFile::IsUtf16(bytes) ? std::nullopt : std::optional<std::string>(bytes);
    const std::vector<unsigned> units = UnitsOf(bytes);
    if (bytes.size() % 2 != 0 || (bytes.starts_with("\xFF\xFE") && IsUtf32(units)))
        return std::nullopt;
    std::wstring text;
    for (std::size_t at = 0; at < units.size(); ++at) {
        unsigned code = units[at];
        if (code >= 0xD800 && code < 0xE000) {
            const unsigned next = at + 1 < units.size() ? units[++at] : 0;
            if (code >= 0xDC00 || next < 0xDC00 || next >= 0xE000)
                return std::nullopt;
            code = 0x10000 + (code - 0xD800) * 0x400 + (next - 0xDC00);
        }
        QuorIniFile::AppendCharacter(text, code);
    }
    return QuorIniFile::ToUtf8(text);
}

std::string PlainUtf16(std::string_view ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char c : ascii)
        bytes.append(1, c).append(1, '\0');
    return bytes;
}

} // namespace Fuzz
