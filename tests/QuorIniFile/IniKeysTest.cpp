#include "QuorIniFile/detail/IniKeys.h"

#include <gtest/gtest.h>

#include <string>

using namespace QuorIniFile;

namespace {

std::string ValueOf(const IniKeys& keys, std::string_view text, std::string_view name) {
    const auto found = keys.Find(text, name);
    return found ? std::string(found->line.value) : "no key";
}

} // namespace

TEST(IniKeys, TheFirstKeyOfANameIsFoundWithItsLine) {
    const std::string text = "[A]\n; x=0\n\t x = 1 ; one\nX=2\ny=\n\n[B]\nz=3\n";
    IniKeys keys;
    keys.Read(text, 4, text.find("[B]"));
    const auto found = keys.Find(text, "x");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->start, text.find("\t x"));
    EXPECT_EQ(found->line.name, "x");
    EXPECT_EQ(found->line.value, "1 ; one");
    EXPECT_EQ(ValueOf(keys, text, "X"), "1 ; one");
    EXPECT_EQ(ValueOf(keys, text, "Y"), "");
    EXPECT_EQ(ValueOf(keys, text, "z"), "no key") << "that one belongs to the next section";
    EXPECT_EQ(keys.BehindLast(), text.find("\n[B]"));
}

TEST(IniKeys, WithoutAKeyTheNextOneStandsRightBehindTheHeader) {
    IniKeys keys;
    keys.Read("[A]\n; nothing\n", 4, 14);
    EXPECT_EQ(keys.BehindLast(), 4U);
    EXPECT_EQ(ValueOf(keys, "[A]\n; nothing\n", ""), "no key");
}

TEST(IniKeys, FewAndManyKeysAreFoundInTheSameWay) {
    for (const int count : {1, 31, 32, 33, 34, 1000}) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += "Key" + std::to_string(i) + "=" + std::to_string(i) + "\n";
        text += "kEY0=again\nW\xE4rme=warm\n"; // Latin-1
        IniKeys keys;
        keys.Read(text, 0, text.size());
        SCOPED_TRACE(count);
        EXPECT_EQ(ValueOf(keys, text, "KEY0"), "0");
        EXPECT_EQ(ValueOf(keys, text, "key" + std::to_string(count - 1)), std::to_string(count - 1));
        EXPECT_EQ(ValueOf(keys, text, "w\xC3\xA4rme"), "warm");
        EXPECT_EQ(ValueOf(keys, text, "Key" + std::to_string(count)), "no key");
        EXPECT_EQ(keys.BehindLast(), text.size());
    }
}

TEST(IniKeys, NamesThatDifferInTheCaseOfAsciiLettersHaveOneTag) {
    EXPECT_EQ(TagOfName("Coefficients0"), TagOfName("cOEFFICIENTS0"));
    EXPECT_NE(TagOfName("Coefficients0"), TagOfName("Coefficients1"));
    EXPECT_NE(TagOfName("R"), TagOfName("RR"));
    EXPECT_EQ(TagOfName(""), 0U);
}

TEST(IniKeys, ALongSectionIsWorthKeeping) {
    IniKeys keys;
    const std::string few = "x=1\n";
    keys.Read(few, 0, few.size());
    EXPECT_FALSE(keys.AreLong());
    const std::string comments = few + std::string(5000, ';');
    keys.Read(comments, 0, comments.size());
    EXPECT_TRUE(keys.AreLong());
}
