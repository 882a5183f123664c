#include "QuorIniFile/detail/IniNames.h"

#include <gtest/gtest.h>

#include <string>

using namespace QuorIniFile;

namespace {

constexpr auto any = [](std::uint32_t) { return true; };

} // namespace

TEST(IniNames, TheHashOfANameIgnoresTheCaseOfAsciiLettersOnly) {
    EXPECT_EQ(HashName("[PROBE 1 - Settings@`]"), HashName("[probe 1 - SETTINGS@`]"));
    EXPECT_NE(HashName("@"), HashName("`"));
    EXPECT_NE(HashName("["), HashName("{"));
    EXPECT_NE(HashName("\xC4"), HashName("\xE4"));
    EXPECT_NE(HashName("a"), HashName(std::string("a\0", 2)));
    EXPECT_NE(HashName(""), HashName(std::string("\0", 1)));
}

TEST(IniNames, AnEmptyIndexFindsNothing) { EXPECT_EQ(IniNameIndex().Find(1, any), std::nullopt); }

TEST(IniNames, EveryNumberIsFoundAgainHoweverMany) {
    IniNameIndex index;
    for (std::uint32_t number = 0; number < 100'000; ++number)
        index.Add(HashName(std::to_string(number)), number);
    for (std::uint32_t number = 0; number < 100'000; ++number) {
        const auto same = [&](std::uint32_t found) { return found == number; };
        ASSERT_EQ(index.Find(HashName(std::to_string(number)), same), number);
    }
    EXPECT_EQ(index.Find(HashName("100000"), [](std::uint32_t) { return false; }), std::nullopt);
}

TEST(IniNames, NumbersOfOneHashAreKeptApartByTheirNames) {
    IniNameIndex index;
    index.Add(7, 1);
    index.Add(7, 2);
    EXPECT_EQ(index.Find(7, [](std::uint32_t number) { return number == 2; }), 2U);
    EXPECT_EQ(index.Find(7, [](std::uint32_t number) { return number == 3; }), std::nullopt);
}

TEST(IniNames, TheHashOfANameIsTheSameForAHostAndAFile) {
    EXPECT_EQ(HashName(L""), HashName(""));
    EXPECT_EQ(HashName(L"Probe 1 - Settings"), HashName("pROBE 1 - sETTINGS"));
    EXPECT_EQ(HashName(L"K\u00F6ln \u2126"), HashName("k\xC3\xB6LN \xE2\x84\xA6"));
    EXPECT_NE(HashName(L"K\u00F6ln"), HashName("K\xF6ln")) << "as look-ups take it, names are UTF-8";
}

TEST(IniNames, ANumberThatIsRemovedIsNotFoundAndAllOthersAre) {
    IniNameIndex index;
    constexpr std::uint32_t count = 1000;
    const auto hash = [](std::uint32_t number) { return std::uint64_t{number} % 7; }; // in long rows
    for (std::uint32_t number = 0; number < count; ++number)
        index.Add(hash(number), number);
    for (std::uint32_t number = 0; number < count; number += 3)
        index.Remove(hash(number), number);
    index.Remove(1, count);
    for (std::uint32_t number = 0; number < count; ++number) {
        const auto found = index.Find(hash(number), [&](std::uint32_t other) { return other == number; });
        ASSERT_EQ(found.has_value(), number % 3 != 0) << number;
    }
}

TEST(IniNames, WhereNumbersAreAddedAndRemovedAgainAndAgainNoneIsLost) {
    IniNameIndex index;
    for (std::uint32_t number = 0; number < 12; ++number)
        index.Add(HashName(std::to_string(number)), number);
    for (std::uint32_t number = 0; number < 10'000; ++number) {
        index.Remove(HashName(std::to_string(number)), number);
        index.Add(HashName(std::to_string(number + 12)), number + 12);
        for (std::uint32_t there = number + 1; there <= number + 12; ++there) {
            const auto same = [&](std::uint32_t found) { return found == there; };
            ASSERT_EQ(index.Find(HashName(std::to_string(there)), same), there);
        }
    }
}
