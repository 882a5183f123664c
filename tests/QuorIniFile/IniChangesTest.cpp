#include "QuorIniFile/detail/IniChanges.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace QuorIniFile;

namespace {

void Add(IniChanges& changes, std::uint32_t section, const std::string& key, const std::string& value) {
    IniChanges::Change change;
    change.section = section;
    const std::string line = " " + key + " = " + value;
    changes.Add(change, key, line, std::string_view(line).substr(1, key.size()));
}

std::string LineOf(const IniChanges& changes, std::uint32_t section, const std::string& key) {
    const auto number = changes.Find(section, key);
    return number ? std::string(changes.Line(changes[*number])) : "no change";
}

} // namespace

TEST(IniChanges, AKeyIsFoundInItsSectionOnly) {
    IniChanges changes;
    Add(changes, 7, "x", "1");
    Add(changes, 3, "x", "2");
    Add(changes, 7, "y", "3");
    EXPECT_EQ(LineOf(changes, 7, "X"), " x = 1");
    EXPECT_EQ(LineOf(changes, 3, "x"), " x = 2");
    EXPECT_EQ(LineOf(changes, 3, "y"), "no change");
    EXPECT_EQ(LineOf(changes, 4, "x"), "no change");
}

TEST(IniChanges, TheChangesOfASectionFollowEachOtherInTheOrderOfTheirWriting) {
    IniChanges changes;
    for (int i = 0; i < 40; ++i)
        Add(changes, i % 2, "Key" + std::to_string(i), std::to_string(i));
    int expected = 1;
    for (std::uint32_t number = changes.FirstOf(1); number != IniChanges::none;
         number = changes[number].next) {
        EXPECT_EQ(changes.Line(changes[number]),
                  " Key" + std::to_string(expected) + " = " + std::to_string(expected));
        expected += 2;
    }
    EXPECT_EQ(expected, 41);
    EXPECT_EQ(changes.FirstOf(2), IniChanges::none);
}

TEST(IniChanges, FewAndManyKeysOfASectionAreFoundInTheSameWay) {
    for (const int count : {1, 15, 16, 17, 18, 1000}) {
        IniChanges changes;
        for (int i = 0; i < count; ++i)
            Add(changes, 5, "Key" + std::to_string(i), std::to_string(i));
        for (int i = 0; i < count; ++i)
            ASSERT_EQ(LineOf(changes, 5, "kEY" + std::to_string(i)),
                      " Key" + std::to_string(i) + " = " + std::to_string(i))
                << count;
        EXPECT_EQ(LineOf(changes, 5, "Key" + std::to_string(count)), "no change") << count;
        EXPECT_EQ(LineOf(changes, 6, "Key0"), "no change") << count;
    }
}

TEST(IniChanges, ALineThatIsWrittenAgainIsTheLastOneWhateverItsLength) {
    IniChanges changes;
    Add(changes, 1, "x", "one");
    Add(changes, 1, "y", "other");
    for (const std::string& value : {std::string("longer than before"), std::string("short"),
                                     std::string(200'000, 'x'), std::string(100'000, 'y'), std::string()}) {
        for (const std::string& key : {std::string("x"), std::string("y")}) {
            changes.Rewrite(*changes.Find(1, key), ' ' + key + '=' + value, true, false);
            ASSERT_EQ(LineOf(changes, 1, key), ' ' + key + '=' + value);
        }
        ASSERT_EQ(LineOf(changes, 1, "x"), " x=" + value) << "not touched by the other";
    }
    EXPECT_EQ(changes.Size(), 2U);
}

TEST(IniChanges, WhatWasDroppedWithItsSectionIsGoneAndTheSectionCanBeWrittenAgain) {
    for (const int count : {1, 16, 17, 1000}) {
        IniChanges changes;
        Add(changes, 2, "x", "other");
        for (int i = 0; i < count; ++i)
            Add(changes, 1, "Key" + std::to_string(i), std::to_string(i));
        changes.Drop(1);
        changes.Drop(3);
        EXPECT_EQ(changes.FirstOf(1), IniChanges::none);
        EXPECT_EQ(LineOf(changes, 1, "Key0"), "no change");
        EXPECT_EQ(LineOf(changes, 2, "x"), " x = other");
        for (int i = 0; i < count; ++i)
            Add(changes, 1, "Key" + std::to_string(i), "new");
        for (int i = 0; i < count; ++i)
            ASSERT_EQ(LineOf(changes, 1, "kEY" + std::to_string(i)), " Key" + std::to_string(i) + " = new");
        EXPECT_EQ(changes[changes.FirstOf(1)].section, 1U);
    }
}
