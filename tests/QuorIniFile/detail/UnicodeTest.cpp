#include "QuorIniFile/detail/Unicode.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

using QuorIniFile::EscapeControls;
using QuorIniFile::FromUtf8;
using QuorIniFile::IsAscii;
using QuorIniFile::IsUtf8;
using QuorIniFile::NextCode;
using QuorIniFile::ToPrintable;
using QuorIniFile::ToUtf8;

TEST(Utf8, TextOfEveryLengthOfCharacterComesBack) {
    EXPECT_EQ(ToUtf8(L"A\u00B0\u2126\U0001F321"), "A\xC2\xB0\xE2\x84\xA6\xF0\x9F\x8C\xA1");
    EXPECT_EQ(FromUtf8("A\xC2\xB0\xE2\x84\xA6\xF0\x9F\x8C\xA1"), L"A\u00B0\u2126\U0001F321");
    EXPECT_EQ(FromUtf8(""), L"");
}

TEST(Utf8, APairOfSurrogatesIsOneCodeInUnitsOf16BitsAndTwoInWiderOnes) {
    const std::u16string narrow = {u'a', 0xD83C, 0xDF21, 0xDF21, 0xD83C};
    std::vector<std::uint32_t> codes;
    for (std::size_t at = 0; at < narrow.size();)
        codes.push_back(NextCode(std::u16string_view(narrow), at));
    EXPECT_EQ(codes, (std::vector<std::uint32_t>{'a', 0x1F321, 0xDF21, 0xD83C}));

    const std::u32string wide = {0xD83C, 0xDF21, 0x1F321, 0x110000};
    codes.clear();
    for (std::size_t at = 0; at < wide.size();)
        codes.push_back(NextCode(std::u32string_view(wide), at));
    EXPECT_EQ(codes, (std::vector<std::uint32_t>{0xD83C, 0xDF21, 0x1F321, 0x110000}));
}

TEST(Utf8, WhatIsNoCharacterBecomesTheReplacementCharacter) {
    EXPECT_EQ(ToUtf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
}

TEST(Utf8, BytesThatAreNotUtf8AreRefused) {
    const char* const wrong[] = {
        "\xB0",             // a Latin-1 degree sign
        "\xC2",             // cut off
        "\xC2 ",            // no continuation
        "\xC0\x80",         // longer than needed
        "\xE0\x80\x80",     // longer than needed
        "\xED\xA0\x80",     // a surrogate
        "\xF4\x90\x80\x80", // past the last character
        "\xFF",
    };
    for (const char* bytes : wrong) {
        EXPECT_EQ(FromUtf8(bytes), std::nullopt) << testing::PrintToString(bytes);
        EXPECT_FALSE(IsUtf8(bytes)) << testing::PrintToString(bytes);
    }
    EXPECT_TRUE(IsUtf8("A\xC2\xB0\xE2\x84\xA6\xF0\x9F\x8C\xA1"));
    EXPECT_TRUE(IsUtf8(""));
}

TEST(Utf8, ACharacterThatIsNotAsciiIsSeenAtEveryPlace) {
    for (std::size_t length = 0; length < 20; ++length) {
        EXPECT_TRUE(IsAscii(std::string(length, '\x7F'))) << length;
        EXPECT_TRUE(IsAscii(std::wstring(length, L'\x7F'))) << length;
        for (std::size_t at = 0; at < length; ++at) {
            std::string bytes(length, 'A');
            bytes[at] = '\x80';
            EXPECT_FALSE(IsAscii(bytes)) << at << " of " << length;
            std::wstring text(length, L'A');
            text[at] = L'\u0080';
            EXPECT_FALSE(IsAscii(text)) << at << " of " << length;
        }
    }
}

TEST(Utf8, WhatATerminalOrALogWouldObeyIsEscapedAndNothingElse) {
    const struct {
        std::wstring_view text;
        const char* printed;
    } cases[] = {
        {L"", ""},
        {L"Probe 1", "Probe 1"},
        {L"\n\r\t", "\\n\\r\\t"},
        {std::wstring_view(L"\0\1", 2), "\\u{0}\\u{1}"},
        {L"\x1B]0;title\a", "\\u{1B}]0;title\\u{7}"},
        {L"\x1F\x20\x7E\x7F", "\\u{1F} ~\\u{7F}"},
        {L"\x80\x9B\x9F\xA0", "\\u{80}\\u{9B}\\u{9F}\xC2\xA0"},
        {L"\u061B\u061C\u061D", "\xD8\x9B\\u{61C}\xD8\x9D"},
        {L"\u00AC\u00AD\u00AE", "\xC2\xAC\\u{AD}\xC2\xAE"},
        {L"\u180D\u180E\u180F", "\xE1\xA0\x8D\\u{180E}\xE1\xA0\x8F"},
        {L"\u200A\u200B\u200D\u200E\u200F\u2010",
         "\xE2\x80\x8A\\u{200B}\\u{200D}\\u{200E}\\u{200F}\xE2\x80\x90"},
        {L"\u2027\u2028\u2029", "\xE2\x80\xA7\\u{2028}\\u{2029}"},
        {L"\u202A\u202B\u202C\u202D\u202E\u202F",
         "\\u{202A}\\u{202B}\\u{202C}\\u{202D}\\u{202E}\xE2\x80\xAF"},
        {L"\u205F\u2060\u2066\u206F\u2070", "\xE2\x81\x9F\\u{2060}\\u{2066}\\u{206F}\xE2\x81\xB0"},
        {L"\uFFF8\uFFF9\uFFFB\uFFFC", "\xEF\xBF\xB8\\u{FFF9}\\u{FFFB}\xEF\xBF\xBC"},
        {L"\U000E0041", "\\u{E0041}"},
        {L"\uFEFE\uFEFF\uFF00", "\xEF\xBB\xBE\\u{FEFF}\xEF\xBC\x80"},
        {L"20 \u00B0C \u2126 \U0001F321", "20 \xC2\xB0"
                                          "C \xE2\x84\xA6 \xF0\x9F\x8C\xA1"},
        {L"C:\\new\\u{1B} \"quoted\"", "C:\\new\\u{1B} \"quoted\""},
    };
    for (const auto& [text, printed] : cases) {
        EXPECT_EQ(ToPrintable(text), printed);
        EXPECT_EQ(ToUtf8(EscapeControls(text)), printed);
    }
}

TEST(Utf8, WhatIsNoCharacterIsPrintedByItsCode) {
    EXPECT_EQ(ToPrintable(std::wstring(1, static_cast<wchar_t>(0xD800)) + L"A"), "\\u{D800}A");
    EXPECT_EQ(ToPrintable(std::wstring(1, static_cast<wchar_t>(0xDFFF))), "\\u{DFFF}");
    EXPECT_EQ(ToPrintable(L"\uD7FF\uE000"), "\xED\x9F\xBF\xEE\x80\x80");
    if constexpr (!QuorIniFile::wideIsUtf16) {
        const auto of = [](std::uint32_t code) { return std::wstring(1, static_cast<wchar_t>(code)); };
        EXPECT_EQ(ToPrintable(of(0x10FFFF)), "\xF4\x8F\xBF\xBF");
        EXPECT_EQ(ToPrintable(of(0x110000)), "\\u{110000}");
        EXPECT_EQ(ToPrintable(of(0xFFFFFFFF)), "\\u{FFFFFFFF}");
    }
}
