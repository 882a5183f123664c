#include "QuorIniFile/detail/IniIndex.h"

#include <gtest/gtest.h>

#include <string>

using namespace QuorIniFile;

namespace {

constexpr auto any = [](std::uint32_t) { return true; };

} // namespace

TEST(IniIndex, TheHashOfANameIgnoresTheCaseOfAsciiLettersOnly) {
    EXPECT_EQ(HashName("[PROBE 1 - Settings@`]"), HashName("[probe 1 - SETTINGS@`]"));
    EXPECT_NE(HashName("@"), HashName("`"));
    EXPECT_NE(HashName("["), HashName("{"));
    EXPECT_NE(HashName("\xC4"), HashName("\xE4"));
    EXPECT_NE(HashName("a"), HashName(std::string("a\0", 2)));
    EXPECT_NE(HashName(""), HashName(std::string("\0", 1)));
}

TEST(IniIndex, AnEmptyIndexFindsNothing) { EXPECT_EQ(IniIndex().Find(1, any), std::nullopt); }

TEST(IniIndex, EveryNumberIsFoundAgainHoweverMany) {
    IniIndex index;
    for (std::uint32_t number = 0; number < 100'000; ++number)
        index.Add(HashName(std::to_string(number)), number);
    for (std::uint32_t number = 0; number < 100'000; ++number) {
        const auto same = [&](std::uint32_t found) { return found == number; };
        ASSERT_EQ(index.Find(HashName(std::to_string(number)), same), number);
    }
    EXPECT_EQ(index.Find(HashName("100000"), [](std::uint32_t) { return false; }), std::nullopt);
}

TEST(IniIndex, NumbersOfOneHashAreKeptApartByTheirNames) {
    IniIndex index;
    index.Add(7, 1);
    index.Add(7, 2);
    EXPECT_EQ(index.Find(7, [](std::uint32_t number) { return number == 2; }), 2U);
    EXPECT_EQ(index.Find(7, [](std::uint32_t number) { return number == 3; }), std::nullopt);
}
