#include "QuorIniFile/Utf8.h"

#include <gtest/gtest.h>

#include <string>

using QuorIniFile::FromUtf8;
using QuorIniFile::IsAscii;
using QuorIniFile::IsUtf8;
using QuorIniFile::ToUtf8;

TEST(Utf8, TextOfEveryLengthOfCharacterComesBack) {
    EXPECT_EQ(ToUtf8(L"A\u00B0\u2126\U0001F321"), "A\xC2\xB0\xE2\x84\xA6\xF0\x9F\x8C\xA1");
    EXPECT_EQ(FromUtf8("A\xC2\xB0\xE2\x84\xA6\xF0\x9F\x8C\xA1"), L"A\u00B0\u2126\U0001F321");
    EXPECT_EQ(FromUtf8(""), L"");
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
