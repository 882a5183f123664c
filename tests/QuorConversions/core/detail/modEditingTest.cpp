#include "QuorConversions/core/detail/modEditing.h"

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

/// A box, a list of ranges and a button, and what was clicked.
class SmallDialog : public Dialog {
public:
    SmallDialog() : Dialog(L"frmSmall") {
        AddItemWithData(list, L"<none>", -1);
        AddItemWithData(list, L"Range 1", 1);
        AddItemWithData(list, L"Range 2", 2);
    }
    TextBox& box = Add<TextBox>(L"txtBox");
    DropDownList& list = Add<DropDownList>(L"cboList");
    PushButton& button = Add<PushButton>(L"cmdOK");
    int clicks = 0;

private:
    void OnClick(Control& /*control*/) override { ++clicks; }
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

TEST(EnterToTab, MovesTheFocusOnAndSwallowsTheKey) {
    SmallDialog dialog;
    dialog.SetFocus(dialog.box);
    std::int16_t key = 13;
    EnterToTab(key, dialog, nullptr, true);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(dialog.ActiveControl(), &dialog.list);
}

TEST(EnterToTab, EnablesTheButtonFirstWhenItIsAskedTo) {
    for (const bool enable : {false, true}) {
        SmallDialog dialog;
        dialog.list.SetEnabled(false);
        dialog.button.SetEnabled(false);
        dialog.SetFocus(dialog.box);
        std::int16_t key = 13;
        EnterToTab(key, dialog, &dialog.button, enable);
        EXPECT_EQ(dialog.button.Enabled(), enable);
        EXPECT_EQ(dialog.ActiveControl() == &dialog.button, enable) << "the focus can go there by now";
        EXPECT_EQ(dialog.clicks, 0);
    }
}

TEST(EnterToTab, LetsOtherKeysPass) {
    SmallDialog dialog;
    dialog.button.SetEnabled(false);
    dialog.SetFocus(dialog.box);
    for (const int other : {0, 1, 9, 10, 12, 14, 32, 49, -13}) {
        auto key = static_cast<std::int16_t>(other);
        EnterToTab(key, dialog, &dialog.button, true);
        EXPECT_EQ(key, other);
    }
    EXPECT_EQ(dialog.ActiveControl(), &dialog.box);
    EXPECT_FALSE(dialog.button.Enabled());
}

TEST(SelectAllText, SelectsTheTextOfTheControlThatHasTheFocus) {
    SmallDialog dialog;
    dialog.box.SetText(L"100.5");
    dialog.box.SetSelection(2, 1);
    SelectAllText(dialog);
    EXPECT_EQ(dialog.box.SelLength(), 1U) << "nothing has the focus";
    dialog.SetFocus(dialog.button);
    SelectAllText(dialog);
    EXPECT_EQ(dialog.box.SelLength(), 1U) << "a button has no text to select";
    dialog.SetFocus(dialog.box);
    SelectAllText(dialog);
    EXPECT_EQ(dialog.box.SelStart(), 0U);
    EXPECT_EQ(dialog.box.SelLength(), 5U);
}

TEST(SelectItemByData, SelectsTheFirstItemWithThatDataWhichIsAClick) {
    SmallDialog dialog;
    AddItemWithData(dialog.list, L"Range 1 again", 1);
    SelectItemByData(dialog.list, 1);
    EXPECT_EQ(dialog.list.ListIndex(), 1);
    EXPECT_EQ(dialog.clicks, 1);
    SelectItemByData(dialog.list, 7);
    EXPECT_EQ(dialog.list.ListIndex(), 1) << "the selection stays";
    EXPECT_EQ(dialog.clicks, 1);
    SelectItemByData(dialog.list, -1);
    EXPECT_EQ(dialog.list.ListIndex(), 0);
    EXPECT_EQ(dialog.clicks, 2);
}
