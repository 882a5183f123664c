#include "QuorIniFile/detail/IniEncodedText.h"

#include "QuorIniFile/QuorError.h"
#include "tests/QuorIniFile/RaisedBy.h"
#include "tests/support/Utf16.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

using namespace QuorIniFile;
using Support::RefusalOf;
using namespace std::string_literals;

namespace {

constexpr IniFileEncoding utf16s[] = {IniFileEncoding::Utf16LittleEndian, IniFileEncoding::Utf16BigEndian};

std::string Utf16(std::u16string_view text, IniFileEncoding encoding) {
    return encoding == IniFileEncoding::Utf16BigEndian ? Utf16Be(text) : Utf16Le(text);
}

} // namespace

TEST(IniEncodedText, OfAFileThatIsNotUtf16IsItsBytes) {
    for (const std::string& bytes : {""s, "\0"s, "\0\0"s, "\xFF"s, "\xFE"s, "[A]\nx=\xC2\xB0\n"s,
                                     "[A]\nx=\xB0\n"s, "\xEF\xBB\xBF[A]\n"s, "a\xFF\xFE"s, "[A]\n\0"s}) {
        const IniDecodedText decoded = DecodeFile(bytes, L"a.ini");
        EXPECT_EQ(decoded.text, bytes);
        EXPECT_EQ(decoded.encoding, IniFileEncoding::Bytes);
        EXPECT_EQ(IniEncodedText(decoded.text, decoded.encoding).Bytes(), bytes);
    }
}

TEST(IniEncodedText, OfAFileThatIsNotUtf16IsNotCopied) {
    std::string bytes = "[A]\nlong enough to stand in memory of its own=1\n";
    const char* const place = bytes.data();
    const IniDecodedText decoded = DecodeFile(std::move(bytes), L"a.ini");
    EXPECT_EQ(decoded.text.data(), place);
    EXPECT_EQ(IniEncodedText(decoded.text, decoded.encoding).Bytes().data(), place);
}

TEST(IniEncodedText, OfUtf16WithAMarkIsUtf8WithAMark) {
    const std::pair<std::u16string, std::string> cases[] = {
        {u"\uFEFF", "\xEF\xBB\xBF"},
        {u"\uFEFF[A]\r\nx=1\r\n", "\xEF\xBB\xBF[A]\r\nx=1\r\n"},
        {u"\uFEFFK\u00F6ln=20 \u00B0C", "\xEF\xBB\xBFK\xC3\xB6ln=20 \xC2\xB0"
                                        "C"},
        {u"\uFEFF\u2126 \u0A0A \U0001F321.", "\xEF\xBB\xBF\xE2\x84\xA6 \xE0\xA8\x8A \xF0\x9F\x8C\xA1."},
        {u"\uFEFF\uFEFF\uFFFE\uFFFF", "\xEF\xBB\xBF\xEF\xBB\xBF\xEF\xBF\xBE\xEF\xBF\xBF"},
        {u"\uFEFF\0x\0\0y"s, "\xEF\xBB\xBF\0x\0\0y"s},
    };
    for (const auto& [characters, text] : cases) {
        for (const IniFileEncoding encoding : utf16s) {
            const std::string bytes = Utf16(characters, encoding);
            const IniDecodedText decoded = DecodeFile(bytes, L"a.ini");
            EXPECT_EQ(decoded.text, text);
            EXPECT_EQ(decoded.encoding, encoding);
            EXPECT_EQ(IniEncodedText(text, encoding).Bytes(), bytes);
        }
    }
}

TEST(IniEncodedText, HasEveryCharacterInEitherByteOrder) {
    std::u16string characters = u"\uFEFF";
    std::size_t size = 3;
    for (std::uint32_t code = 0; code <= 0x10FFFF; ++code) {
        if (code >= 0xD800 && code <= 0xDFFF)
            continue;
        if (code > 0xFFFF)
            characters += static_cast<char16_t>(0xD7C0 + code / 0x400);
        characters += static_cast<char16_t>(code > 0xFFFF ? 0xDC00 + code % 0x400 : code);
        size += code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
    }
    for (const IniFileEncoding encoding : utf16s) {
        const std::string bytes = Utf16(characters, encoding);
        const IniDecodedText decoded = DecodeFile(bytes, L"a.ini");
        EXPECT_EQ(decoded.text.size(), size);
        EXPECT_TRUE(IniEncodedText(decoded.text, encoding).Bytes() == bytes);
    }
}

TEST(IniEncodedText, OfWhatIsNoUtf16WithAMarkIsRefusedWithTheReason) {
    const std::wstring start = L"Path/File access error: a.ini: ";
    const std::wstring pair = start + L"The file is UTF-16 text with half a surrogate pair in line ";
    const std::wstring odd = start + L"The file is UTF-16 text with an odd number of bytes";
    const std::wstring unmarked = start + L"The file is UTF-16 text without a byte-order mark";
    const std::pair<std::string, std::wstring> cases[] = {
        {Utf16Le(u"[A]\n"), unmarked},
        {Utf16Be(u"[A]\n"), unmarked},
        {"[\0A"s, unmarked},
        {"\0["s, unmarked},
        {"\xFF\xFE["s, odd},
        {"\xFE\xFF\0"s, odd},
        {Utf16Le(u"\uFEFF[A]\n") + '[', odd},
        {Utf16Le(u"\uFEFF"s + char16_t{0xD83C}), pair + L"1"},
        {Utf16Le(u"\uFEFF"s + char16_t{0xDF21}), pair + L"1"},
        {Utf16Be(u"\uFEFF[A]\r\n\r\nx="s + char16_t{0xD83C} + u"1\n"), pair + L"3"},
        {Utf16Be(u"\uFEFF[A]\nx="s + char16_t{0xDF21} + char16_t{0xD83C} + u"1\n"), pair + L"2"},
        {Utf16Le(u"\uFEFF"s + char16_t{0xD83C} + char16_t{0xD83C} + char16_t{0xDF21}), pair + L"1"},
    };
    for (const auto& [bytes, error] : cases) {
        EXPECT_EQ(RefusalOf([&, &text = bytes] { static_cast<void>(DecodeFile(text, L"a.ini")); }), error)
            << testing::PrintToString(bytes);
    }
}

TEST(IniEncodedText, OfUtf32IsNotTakenForUtf16) {
    const std::string mark = "\xFF\xFE\0\0"s;
    EXPECT_EQ(RefusalOf([&] { static_cast<void>(DecodeFile(mark + "[\0\0\0\x21\xF3\x01\0"s, L"a.ini")); }),
              L"Path/File access error: a.ini: The file is UTF-32 text");
    EXPECT_EQ(DecodeFile(mark, L"a.ini").text, "\xEF\xBB\xBF\0"s);
    EXPECT_EQ(DecodeFile(mark + "[\0A\0"s, L"a.ini").text, "\xEF\xBB\xBF\0[A"s);
    EXPECT_EQ(DecodeFile(mark + "[\0"s, L"a.ini").text, "\xEF\xBB\xBF\0["s);
}

TEST(IniEncodedText, CanBeAsLargeAsAFile) {
    const std::string wide = Utf16Le(u"\uFEFF\u2126\u2126"); // six bytes, nine in UTF-8
    EXPECT_EQ(RefusalOf([&] { static_cast<void>(DecodeFile(wide, L"a.ini", 9)); }), L"");
    EXPECT_EQ(RefusalOf([&] { static_cast<void>(DecodeFile(wide, L"a.ini", 8)); }),
              L"Path/File access error: a.ini: It is larger than 4 GiB as UTF-8");
    const std::string wideText = "\xEF\xBB\xBF\xE2\x84\xA6\xE2\x84\xA6";
    const std::string narrowText = "\xEF\xBB\xBF[A]";            // six bytes, eight in UTF-16
    const std::string pairText = "\xEF\xBB\xBF\xF0\x9F\x8C\xA1"; // seven bytes, six in UTF-16
    const auto raised = [](std::string_view text, IniFileEncoding encoding, std::uint64_t most) {
        return RefusalOf([&] { RequireDecodable(text, encoding, L"a.ini", most); });
    };
    const std::wstring tooLarge = L"Path/File access error: a.ini: It would be larger than 4 GiB";
    for (const IniFileEncoding encoding : utf16s) {
        EXPECT_EQ(raised(wideText, encoding, 9), L"");
        EXPECT_EQ(raised(wideText, encoding, 8), tooLarge);
        EXPECT_EQ(raised(narrowText, encoding, 8), L"");
        EXPECT_EQ(raised(narrowText, encoding, 7), tooLarge);
        EXPECT_EQ(raised(pairText, encoding, 7), L"");
        EXPECT_EQ(raised(pairText, encoding, 6), tooLarge);
    }
    EXPECT_EQ(raised(narrowText, IniFileEncoding::Bytes, 6), L"");
    EXPECT_EQ(raised(narrowText, IniFileEncoding::Bytes, 5), tooLarge);
}

TEST(IniEncodedText, ThatCouldNotBeReadBackIsRefused) {
    const auto raised = [](std::string_view text, IniFileEncoding encoding) {
        return RefusalOf([&] { RequireDecodable(text, encoding, L"a.ini"); });
    };
    for (const std::string& text : {"\xFF\xFE"s, "\xFE\xFF[A]"s, "\0["s, "[\0"s})
        EXPECT_EQ(raised(text, IniFileEncoding::Bytes),
                  L"Path/File access error: a.ini: With these changes it would be UTF-16 text");
    EXPECT_EQ(raised("\xEF\xBB\xBFx=\xB0", IniFileEncoding::Utf16LittleEndian),
              L"Path/File access error: a.ini: With these changes it would be no valid UTF-16 text");
    EXPECT_EQ(raised("\xEF\xBB\xBFx=\xB0", IniFileEncoding::Bytes), L"");
    EXPECT_EQ(raised("\xEF\xBB\xBFx=\xC2\xB0", IniFileEncoding::Utf16LittleEndian), L"");
    EXPECT_EQ(raised("\xEF\xBB\xBF\0["s, IniFileEncoding::Utf16BigEndian), L"");
}

TEST(IniEncodedText, AnEditedUtf16TextThatWouldBeTakenForUtf32IsRefused) {
    const std::string_view text("\xEF\xBB\xBF\0\n\n", 6); // FF FE 00 00 0A 00 0A 00
    try {
        RequireDecodable(text, IniFileEncoding::Utf16LittleEndian, L"a.ini");
        FAIL() << "it could not be loaded again";
    } catch (const QuorError& error) {
        EXPECT_EQ(error.Description(),
                  L"Path/File access error: a.ini: With these changes it would be UTF-32 text");
    }
    RequireDecodable(text, IniFileEncoding::Utf16BigEndian, L"a.ini");
}
