#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The bytes of a file, and the text that they spell. The text of a UTF-8 or Latin-1 file is its bytes. That
// of a UTF-16 file with a byte-order mark is UTF-8, so that everything that looks at lines knows bytes alone:
// it is translated where the file is read, and back, byte for byte, where the file is written. These
// functions touch no file.
namespace QuorIniFile {

/// How the bytes of a file spell its text.
enum class IniFileEncoding : std::uint8_t {
    Bytes,             // the text is the bytes: UTF-8, or Latin-1
    Utf16LittleEndian, // begins with FF FE
    Utf16BigEndian,    // begins with FE FF
};

struct IniDecodedText {
    std::string text; // of a UTF-16 file valid UTF-8, which begins with the mark of UTF-8
    IniFileEncoding encoding = IniFileEncoding::Bytes;
};

/// The most bytes that a file, and its text, can have.
inline constexpr std::uint64_t largestText = 0xFFFFFFFF;

/// The text of a file. Raises 75 with `fileName` for UTF-16 without a byte-order mark, with an odd number of
/// bytes or with half a surrogate pair, for UTF-32 with the mark that begins like that of UTF-16, and for a
/// text of more than `most` bytes.
[[nodiscard]] IniDecodedText DecodeFile(std::string bytes, std::wstring_view fileName,
                                        std::uint64_t most = largestText);

/// Raises 75 with `fileName` unless DecodeFile would give `text` back from the bytes that spell it: when they
/// would be taken for UTF-16 or UTF-32, when the text of a UTF-16 file is no valid UTF-8, and when bytes or
/// text would be more than `most`.
void RequireDecodable(std::string_view text, IniFileEncoding encoding, std::wstring_view fileName,
                      std::uint64_t most = largestText);

/// The bytes that spell a text in a file. It must outlive them, because of Bytes there is no copy. That of a
/// UTF-16 file is valid UTF-8.
class IniEncodedText {
public:
    IniEncodedText(std::string_view text, IniFileEncoding encoding);
    IniEncodedText(const IniEncodedText&) = delete;
    IniEncodedText& operator=(const IniEncodedText&) = delete;
    ~IniEncodedText() = default;

    [[nodiscard]] std::string_view Bytes() const { return m_bytes; }

private:
    std::string m_utf16;
    std::string_view m_bytes; // m_utf16, or the text itself
};

} // namespace QuorIniFile
