#include "QuorIniFile/IniTextReader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

using QuorIniFile::IniTextReader;

namespace {

TEST(IniTextReader, ReadsValuesByTheRulesOfTheStore) {
    IniTextReader text("[P]\r\nR0 = 100.25 ; ohms\r\nCount=7\nOn=-1\nName=\"A ; B\" ; note\n"
                       "[p]\nR0=1\n[Q]\nR0=2\nR0=3\n");
    double number = 0;
    EXPECT_TRUE(text.Read(L"P", L"R0", number));
    EXPECT_EQ(number, 100.25);
    EXPECT_TRUE(text.Read(L"q", L"r0", number));
    EXPECT_EQ(number, 2) << "the first one counts, in any case of letters";
    std::int16_t count = 0;
    EXPECT_TRUE(text.Read(L"P", L"Count", count));
    EXPECT_EQ(count, 7);
    bool isOn = false;
    EXPECT_TRUE(text.Read(L"P", L"On", isOn));
    EXPECT_TRUE(isOn);
    std::wstring name;
    EXPECT_TRUE(text.Read(L"P", L"Name", name));
    EXPECT_EQ(name, L"A ; B");
}

TEST(IniTextReader, LeavesTheVariableWhereThereIsNoValueOfThatKind) {
    IniTextReader text("[P]\nR0=100,25\n");
    double number = 5;
    EXPECT_FALSE(text.Read(L"P", L"R0", number));
    EXPECT_FALSE(text.Read(L"P", L"R1", number));
    EXPECT_FALSE(text.Read(L"Q", L"R0", number));
    EXPECT_EQ(number, 5);
    IniTextReader none("");
    EXPECT_FALSE(none.Read(L"P", L"R0", number));
}

} // namespace
