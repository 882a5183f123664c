#include "QuorIniFile/Utf8.h"

#include <gtest/gtest.h>

using QuorIniFile::FromUtf8;
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
    for (const char* bytes : wrong)
        EXPECT_EQ(FromUtf8(bytes), std::nullopt) << testing::PrintToString(bytes);
}
