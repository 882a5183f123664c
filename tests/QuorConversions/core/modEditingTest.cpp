#include "QuorConversions/core/modEditing.h"

#include "QuorConversions/platform/HeadlessPlatform.h"
#include "tests/support/DecimalSeparator.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace QuorConversions;

namespace {

/// A user with these regional settings, who counts how often they are asked for.
class RegionalPlatform : public HeadlessPlatform {
public:
    explicit RegionalPlatform(std::wstring separator) : m_separator(std::move(separator)) {}
    std::wstring DecimalSeparator() override {
        ++timesAsked;
        return m_separator;
    }
    int timesAsked = 0;

private:
    std::wstring m_separator;
};

class FailingPlatform : public HeadlessPlatform {
public:
    std::wstring DecimalSeparator() override { throw std::runtime_error("no regional settings"); }
};

class modEditingTest : public testing::Test {
protected:
    Support::FreshDecimalSeparator fresh;
};

std::int16_t Filtered(std::int16_t key, const wchar_t* separator) {
    FilterNumericKey(key, separator);
    return key;
}

std::int16_t FilteredExp(std::int16_t key, const wchar_t* separator) {
    FilterNumericKeyExp(key, separator);
    return key;
}

} // namespace

TEST_F(modEditingTest, AsksForTheSeparatorOnceInAProcess) {
    RegionalPlatform german(L",");
    RegionalPlatform english(L".");
    EXPECT_EQ(GetDecimalSeparator(german), L",");
    EXPECT_EQ(GetDecimalSeparator(german), L",");
    EXPECT_EQ(GetDecimalSeparator(english), L",");
    EXPECT_EQ(german.timesAsked, 1);
    EXPECT_EQ(english.timesAsked, 0);
}

TEST_F(modEditingTest, TakesTheFirstCharacterOfTheSeparator) {
    RegionalPlatform platform(L",0");
    EXPECT_EQ(GetDecimalSeparator(platform), L",");
}

TEST_F(modEditingTest, HasAPointWhereThePlatformGivesNoSeparator) {
    RegionalPlatform silent(L"");
    EXPECT_EQ(GetDecimalSeparator(silent), L".");
    EXPECT_EQ(GetDecimalSeparator(silent), L".");
    EXPECT_EQ(silent.timesAsked, 1);
}

TEST_F(modEditingTest, HasAPointWhereThePlatformFails) {
    FailingPlatform failing;
    EXPECT_EQ(GetDecimalSeparator(failing), L".");
    RegionalPlatform german(L",");
    EXPECT_EQ(GetDecimalSeparator(german), L".");
    EXPECT_EQ(german.timesAsked, 0);
}

TEST_F(modEditingTest, HasAPointOnAPlatformThatSaysNothingOfIt) {
    HeadlessPlatform headless;
    EXPECT_EQ(GetDecimalSeparator(headless), L".");
}

TEST_F(modEditingTest, GroupsWithAPointWhereTheCommaIsTheDecimalSeparator) {
    RegionalPlatform german(L",");
    EXPECT_EQ(FormatValue(1234.5, L"#,##0.00", UserSeparators(german)), L"1.234,50");
}

TEST_F(modEditingTest, GroupsWithACommaOtherwise) {
    RegionalPlatform english(L".");
    EXPECT_EQ(FormatValue(1234.5, L"#,##0.00", UserSeparators(english)), L"1,234.50");
}

TEST(FilterNumericKey, LetsTheCharactersOfANumberPassAndNoOtherKey) {
    const std::string passing = "0123456789+-.\x03\x08\x0D\x16\x18\x1A";
    ASSERT_EQ(passing.size(), 19U);
    for (int key = -32768; key <= 32767; ++key) {
        const auto code = static_cast<std::int16_t>(key);
        const bool passes = key > 0 && key < 128 && passing.find(static_cast<char>(key)) != std::string::npos;
        EXPECT_EQ(Filtered(code, L"."), passes ? code : 0) << key;
        EXPECT_EQ(FilteredExp(code, L"."), passes || key == 'e' || key == 'E' ? code : 0) << key;
    }
}

TEST(FilterNumericKey, TypesTheUsersSeparatorForAPoint) {
    for (int key = -32768; key <= 32767; ++key) {
        const auto code = static_cast<std::int16_t>(key);
        const std::int16_t expected = key == '.' || key == ',' ? std::int16_t{','} : Filtered(code, L".");
        EXPECT_EQ(Filtered(code, L","), expected) << key;
    }
    EXPECT_EQ(FilteredExp('.', L","), ',');
    EXPECT_EQ(FilteredExp('e', L","), 'e');
    EXPECT_EQ(Filtered(',', L"."), 0);
    EXPECT_EQ(Filtered('.', L"\u066B"), 0x066B);
    EXPECT_EQ(Filtered(0x066B, L"\u066B"), 0x066B);
}

TEST(ToPointDecimal, PutsAPointForEverySeparator) {
    EXPECT_EQ(ToPointDecimal(L"1,5", L","), L"1.5");
    EXPECT_EQ(ToPointDecimal(L"1,5,5", L","), L"1.5.5");
    EXPECT_EQ(ToPointDecimal(L"1.5", L","), L"1.5");
    EXPECT_EQ(ToPointDecimal(L"1,5", L"."), L"1,5");
    EXPECT_EQ(ToPointDecimal(L"", L","), L"");
}
