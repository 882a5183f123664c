#include "QuorIniFile/detail/IniEncodedText.h"

#include "QuorIniFile/detail/IniError.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/Unicode.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace QuorIniFile {
namespace {

constexpr std::size_t unitSize = 2; // bytes

QuorError CannotBeRead(std::wstring_view fileName, EIniCause cause, std::vector<std::wstring> values = {}) {
    return FileError(ERR_PATH_FILE_ACCESS, fileName, cause, std::move(values));
}

IniFileEncoding EncodingByMark(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE"))
        return IniFileEncoding::Utf16LittleEndian;
    return bytes.starts_with("\xFE\xFF") ? IniFileEncoding::Utf16BigEndian : IniFileEncoding::Bytes;
}

/// The bytes of a UTF-16 text, character by character.
class Utf16Reader {
public:
    Utf16Reader(std::string_view bytes, IniFileEncoding encoding)
        : m_bytes(bytes), m_low(encoding == IniFileEncoding::Utf16LittleEndian ? 0 : 1) {}

    [[nodiscard]] bool IsAtEnd() const { return m_at == m_bytes.size(); }
    /// The next character, or noCharacter for half a surrogate pair.
    [[nodiscard]] std::uint32_t Next() {
        const std::uint32_t unit = NextUnit();
        if (IsTrailSurrogate(unit) || (IsLeadSurrogate(unit) && IsAtEnd()))
            return noCharacter;
        if (!IsLeadSurrogate(unit))
            return unit;
        const std::uint32_t trail = NextUnit();
        return IsTrailSurrogate(trail) ? JoinSurrogates(unit, trail) : noCharacter;
    }

private:
    std::uint32_t NextUnit() {
        const auto low = static_cast<unsigned char>(m_bytes[m_at + m_low]);
        const auto high = static_cast<unsigned char>(m_bytes[m_at + 1 - m_low]);
        m_at += unitSize;
        return static_cast<std::uint32_t>(high) << 8U | low;
    }

    std::string_view m_bytes;
    std::size_t m_low; // where the low byte of a unit stands
    std::size_t m_at = 0;
};

/// Whether `bytes`, which begin with FF FE, are more than the mark of UTF-32, and all of it. In UTF-16 this
/// would be a text in which every other character is a control character, the first a NUL.
bool IsUtf32(std::string_view bytes) {
    constexpr std::size_t size = 4;
    if (bytes.size() == size || bytes.size() % size != 0 ||
        bytes.substr(unitSize, unitSize) != std::string_view("\0\0", 2))
        return false;
    for (std::size_t at = 0; at < bytes.size(); at += size) {
        if (bytes[at + 3] != '\0' || static_cast<unsigned char>(bytes[at + 2]) > lastCharacter >> 16U)
            return false;
    }
    return true;
}

std::size_t LengthInUtf8(std::uint32_t code) {
    return code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
}

/// The bytes that a UTF-16 text takes in UTF-8. Raises for what is no valid UTF-16.
std::uint64_t SizeInUtf8(std::string_view bytes, IniFileEncoding encoding, std::wstring_view fileName) {
    std::uint64_t size = 0;
    std::size_t line = 1;
    for (Utf16Reader reader(bytes, encoding); !reader.IsAtEnd();) {
        const std::uint32_t code = reader.Next();
        if (code == noCharacter)
            throw CannotBeRead(fileName, INI_CAUSE_UTF16_HALF_A_PAIR, {std::to_wstring(line)});
        size += LengthInUtf8(code);
        line += code == '\n' ? 1 : 0;
    }
    return size;
}

/// The bytes that a text of valid UTF-8 takes in UTF-16.
std::uint64_t SizeInUtf16(std::string_view text) {
    std::uint64_t units = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isContinuation = (byte & 0xC0U) == 0x80U;
        units += isContinuation ? 0 : byte >= 0xF0 ? 2 : 1;
    }
    return units * unitSize;
}

void AppendUnit(std::string& bytes, std::uint32_t unit, IniFileEncoding encoding) {
    const auto low = static_cast<char>(unit & 0xFFU);
    const auto high = static_cast<char>(unit >> 8U);
    const bool lowFirst = encoding == IniFileEncoding::Utf16LittleEndian;
    bytes += lowFirst ? low : high;
    bytes += lowFirst ? high : low;
}

std::string ToUtf16(std::string_view text, IniFileEncoding encoding) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(SizeInUtf16(text)));
    for (std::size_t at = 0; at < text.size();) {
        const std::uint32_t code = NextFromUtf8(text, at);
        if (code < 0x10000) {
            AppendUnit(bytes, code, encoding);
            continue;
        }
        AppendUnit(bytes, LeadSurrogate(code), encoding);
        AppendUnit(bytes, TrailSurrogate(code), encoding);
    }
    return bytes;
}

} // namespace

IniDecodedText DecodeFile(std::string bytes, std::wstring_view fileName, std::uint64_t most) {
    const IniFileEncoding encoding = EncodingByMark(bytes);
    if (encoding == IniFileEncoding::Bytes) {
        if (IsUtf16(bytes))
            throw CannotBeRead(fileName, INI_CAUSE_UTF16_WITHOUT_MARK);
        return {std::move(bytes), encoding};
    }
    if (bytes.size() % unitSize != 0)
        throw CannotBeRead(fileName, INI_CAUSE_UTF16_ODD_SIZE);
    if (encoding == IniFileEncoding::Utf16LittleEndian && IsUtf32(bytes))
        throw CannotBeRead(fileName, INI_CAUSE_UTF32);
    const std::uint64_t size = SizeInUtf8(bytes, encoding, fileName);
    if (size > most)
        throw CannotBeRead(fileName, INI_CAUSE_TOO_LARGE_AS_UTF8);
    IniDecodedText decoded{{}, encoding};
    decoded.text.reserve(static_cast<std::size_t>(size));
    for (Utf16Reader reader(bytes, encoding); !reader.IsAtEnd();)
        AppendUtf8(decoded.text, reader.Next());
    return decoded;
}

void RequireDecodable(std::string_view text, IniFileEncoding encoding, std::wstring_view fileName,
                      std::uint64_t most) {
    const bool isUtf16 = encoding != IniFileEncoding::Bytes;
    if (!isUtf16 && IsUtf16(text))
        throw CannotBeRead(fileName, INI_CAUSE_WOULD_BE_UTF16);
    if (isUtf16 && !IsUtf8(text))
        throw CannotBeRead(fileName, INI_CAUSE_WOULD_BE_INVALID_UTF16);
    const bool beginsWithNul = text.substr(MarkLength(text)).starts_with('\0'); // as almost never
    if (encoding == IniFileEncoding::Utf16LittleEndian && beginsWithNul &&
        IsUtf32(IniEncodedText(text, encoding).Bytes()))
        throw CannotBeRead(fileName, INI_CAUSE_WOULD_BE_UTF32);
    if (text.size() > most || (isUtf16 && SizeInUtf16(text) > most))
        throw CannotBeRead(fileName, INI_CAUSE_WOULD_BE_TOO_LARGE);
}

IniEncodedText::IniEncodedText(std::string_view text, IniFileEncoding encoding) : m_bytes(text) {
    if (encoding == IniFileEncoding::Bytes)
        return;
    m_utf16 = ToUtf16(text, encoding);
    m_bytes = m_utf16;
}

} // namespace QuorIniFile
