#include "QuorConversions/controls/Dialog.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace QuorConversions;

namespace {

using Texts = std::vector<std::wstring>;

/// Two boxes, a list and tabs on a page of their own, a label, and two buttons; it tells what happens to it.
class TestDialog : public Dialog {
public:
    TestDialog() : Dialog(L"frmTest") { SetCancelButton(cancel); }

    Texts events;
    Label& label = Add<Label>(L"lblOne");
    TextBox& one = Add<TextBox>(L"txtOne");
    TextBox& two = Add<TextBox>(L"txtTwo");
    Frame& page = Add<Frame>(L"framPage");
    DropDownList& list = Add<DropDownList>(L"cboList");
    TabStrip& tabs = Add<TabStrip>(L"tabRange");
    PushButton& ok = Add<PushButton>(L"cmdOK");
    PushButton& cancel = Add<PushButton>(L"cmdCancel");
    std::int16_t typed = 0; ///< what a key becomes, 0 for itself

    using Dialog::Input;
    std::vector<TextBox*> MoreBoxes() { return AddArray<TextBox>(L"txtMore", 2); }

private:
    void OnActivate() override { events.emplace_back(L"activate"); }
    void OnClick(Control& control) override { events.push_back(L"click " + control.Name()); }
    void OnGotFocus(Control& control) override { events.push_back(L"got " + control.Name()); }
    void OnLostFocus(Control& control) override { events.push_back(L"lost " + control.Name()); }
    void OnEdit(TextBox& box) override { events.push_back(L"edit " + box.Name()); }
    void OnKeyPress(TextBox& box, std::int16_t& keyAscii) override {
        events.push_back(L"key " + box.Name());
        if (typed != 0)
            keyAscii = typed;
    }
};

/// Tells what it is told.
class Follower : public DialogListener {
public:
    Texts told;
    void OnControlChanged(const Control& control) override { told.push_back(control.Name()); }
    void OnFocusMoved(const Control* focused) override { told.push_back(L"focus " + focused->Name()); }
    void OnTitleChanged() override { told.emplace_back(L"title"); }
    void OnHidden() override { told.emplace_back(L"hidden"); }
};

class DialogTest : public testing::Test {
protected:
    TestDialog dialog;
    DialogInput user = dialog.Input();

    /// The events since the last call.
    Texts Events() { return std::exchange(dialog.events, {}); }
    void FillList() {
        AddItemWithData(dialog.list, L"none", -1);
        AddItemWithData(dialog.list, L"first", 1);
        AddItemWithData(dialog.list, L"second", 2);
    }
};

} // namespace

// The focus

TEST_F(DialogTest, GivesTheFocusToTheFirstControlThatTakesItBeforeItActivates) {
    user.Activate();
    EXPECT_EQ(dialog.ActiveControl(), &dialog.one);
    EXPECT_EQ(Events(), (Texts{L"got txtOne", L"activate"}));
    user.Activate();
    EXPECT_EQ(Events(), Texts{L"activate"});
}

TEST_F(DialogTest, TellsTheControlThatIsLeftBeforeTheOneThatIsEntered) {
    EXPECT_TRUE(dialog.SetFocus(dialog.one));
    EXPECT_TRUE(dialog.SetFocus(dialog.ok));
    EXPECT_EQ(Events(), (Texts{L"got txtOne", L"lost txtOne", L"got cmdOK"}));
}

TEST_F(DialogTest, TellsNothingOfTheFocusThatAControlHasAlready) {
    EXPECT_TRUE(dialog.SetFocus(dialog.one));
    EXPECT_TRUE(dialog.SetFocus(dialog.one));
    EXPECT_EQ(Events(), Texts{L"got txtOne"});
}

TEST_F(DialogTest, KeepsTheFocusWhereTheOtherControlCannotTakeIt) {
    dialog.page.AddRow({&dialog.list});
    dialog.page.SetVisible(false);
    dialog.two.SetEnabled(false);
    dialog.ok.SetVisible(false);
    EXPECT_TRUE(dialog.SetFocus(dialog.one));
    for (Control* const control : std::initializer_list<Control*>{&dialog.label, &dialog.page, &dialog.list,
                                                                  &dialog.two, &dialog.ok}) {
        EXPECT_FALSE(dialog.SetFocus(*control));
        user.Focus(*control);
        EXPECT_EQ(dialog.ActiveControl(), &dialog.one);
    }
    EXPECT_EQ(Events(), Texts{L"got txtOne"});
}

TEST_F(DialogTest, MovesTheFocusRoundInTabOrderPastWhatCannotTakeIt) {
    dialog.two.SetEnabled(false);
    dialog.cancel.SetVisible(false);
    Texts forwards;
    Texts backwards;
    for (int i = 0; i < 5; ++i) {
        user.Tab();
        forwards.push_back(dialog.ActiveControl()->Name());
    }
    EXPECT_EQ(forwards, (Texts{L"txtOne", L"cboList", L"tabRange", L"cmdOK", L"txtOne"}));
    for (int i = 0; i < 4; ++i) {
        user.Tab(true);
        backwards.push_back(dialog.ActiveControl()->Name());
    }
    EXPECT_EQ(backwards, (Texts{L"cmdOK", L"tabRange", L"cboList", L"txtOne"}));
}

TEST_F(DialogTest, BeginsWithTheLastControlWhenTheFirstTabIsBackwards) {
    user.Tab(true);
    EXPECT_EQ(dialog.ActiveControl(), &dialog.cancel);
}

TEST_F(DialogTest, HasNoFocusWhereNothingCanTakeIt) {
    for (const auto& control : dialog.Controls())
        control->SetEnabled(false);
    user.Activate();
    user.Tab(true);
    EXPECT_EQ(dialog.ActiveControl(), nullptr);
    EXPECT_EQ(Events(), Texts{L"activate"});
}

// What the user does

TEST_F(DialogTest, GivesAButtonTheFocusBeforeItsClick) {
    user.Focus(dialog.one);
    user.Click(dialog.ok);
    EXPECT_EQ(Events(), (Texts{L"got txtOne", L"lost txtOne", L"got cmdOK", L"click cmdOK"}));
}

TEST_F(DialogTest, RefusesQuietlyWhatTheUserCannotDo) {
    FillList();
    dialog.tabs.AddTab(L"Low");
    dialog.tabs.AddTab(L"High");
    user.Focus(dialog.one);
    for (const auto& control : dialog.Controls())
        control->SetEnabled(false);
    (void)Events();
    user.Click(dialog.ok);
    user.Choose(dialog.list, 1);
    user.SelectTab(dialog.tabs, 1);
    user.Edit(dialog.two, L"5", 1, 0);
    user.Escape();
    EXPECT_EQ(user.KeyPress(L'1'), 0);
    EXPECT_EQ(Events(), Texts{});
    EXPECT_EQ(dialog.two.Text(), L"");
    EXPECT_EQ(dialog.list.ListIndex(), -1);
    EXPECT_EQ(dialog.tabs.Selected(), 0U);
    EXPECT_TRUE(dialog.IsOpen());
}

TEST_F(DialogTest, PassesKeysThroughTheDialogOnlyWhereABoxHasTheFocus) {
    EXPECT_EQ(user.KeyPress(L'1'), L'1');
    user.Focus(dialog.ok);
    EXPECT_EQ(user.KeyPress(L'1'), L'1');
    user.Focus(dialog.two);
    (void)Events();
    dialog.typed = L'7';
    EXPECT_EQ(user.KeyPress(L'1'), L'7');
    EXPECT_EQ(Events(), Texts{L"key txtTwo"});
}

TEST_F(DialogTest, PressesTheCancelButtonOnEscapeWithoutMovingTheFocus) {
    user.Focus(dialog.one);
    user.Escape();
    EXPECT_EQ(Events(), (Texts{L"got txtOne", L"click cmdCancel"}));
}

TEST_F(DialogTest, IsHiddenByItsFrameAndThenTakesNoMoreClicks) {
    user.Close();
    EXPECT_FALSE(dialog.IsOpen());
    user.Click(dialog.ok);
    user.Escape();
    user.Close();
    EXPECT_EQ(Events(), Texts{});
}

// Controls

TEST_F(DialogTest, FindsControlsByNameAndArraysByIndex) {
    const auto more = dialog.MoreBoxes();
    EXPECT_EQ(dialog.Find(L"cboList"), &dialog.list);
    EXPECT_EQ(dialog.Find(L"txtMore(0)"), more[0]);
    EXPECT_EQ(dialog.Find(L"txtMore(1)"), more[1]);
    EXPECT_EQ(dialog.Find(L"txtMore(2)"), nullptr);
    EXPECT_EQ(dialog.Find(L"txtMore"), nullptr);
}

TEST_F(DialogTest, ShowsAControlWhenItAndTheFramesAroundItAreVisible) {
    dialog.page.AddRow({&dialog.label, nullptr, &dialog.one});
    EXPECT_EQ(dialog.one.Parent(), &dialog.page);
    EXPECT_EQ(dialog.two.Parent(), nullptr);
    dialog.page.SetVisible(false);
    EXPECT_TRUE(dialog.one.Visible()) << "its own flag";
    EXPECT_FALSE(dialog.one.IsShown());
    EXPECT_FALSE(dialog.one.IsUsable());
    EXPECT_TRUE(dialog.two.IsUsable());
    dialog.page.SetVisible(true);
    dialog.one.SetVisible(false);
    EXPECT_FALSE(dialog.one.IsShown());
}

TEST_F(DialogTest, CutsASelectionToTheTextAndDropsItWithTheText) {
    dialog.one.SetText(L"12345");
    dialog.one.SetSelection(2, 99);
    EXPECT_EQ(dialog.one.SelStart(), 2U);
    EXPECT_EQ(dialog.one.SelLength(), 3U);
    dialog.one.SetSelection(9, 1);
    EXPECT_EQ(dialog.one.SelStart(), 5U);
    EXPECT_EQ(dialog.one.SelLength(), 0U);
    dialog.one.SetSelection(0, 5);
    dialog.one.SetText(L"1234567");
    EXPECT_EQ(dialog.one.SelStart(), 0U);
    EXPECT_EQ(dialog.one.SelLength(), 0U);
}

TEST_F(DialogTest, ClicksAListOnEverySelectionOfAnItem) {
    FillList();
    EXPECT_EQ(Events(), Texts{}) << "adding is no click";
    dialog.list.SetListIndex(1);
    dialog.list.SetListIndex(1);
    EXPECT_EQ(Events(), (Texts{L"click cboList", L"click cboList"})) << "also of the one selected already";
    dialog.list.SetEnabled(false);
    dialog.list.SetListIndex(2);
    EXPECT_EQ(Events(), Texts{L"click cboList"}) << "also of a disabled list";
    dialog.page.AddRow({&dialog.list});
    dialog.page.SetVisible(false);
    dialog.list.SetListIndex(0);
    EXPECT_EQ(Events(), Texts{L"click cboList"}) << "also on a hidden page";
    dialog.list.SetListIndex(-1);
    dialog.list.Clear();
    EXPECT_EQ(Events(), Texts{}) << "taking the selection away is no click";
}

TEST_F(DialogTest, ClicksAListThatTheUserChoosesFromAfterItGotTheFocus) {
    FillList();
    user.Choose(dialog.list, 2);
    EXPECT_EQ(Events(), (Texts{L"got cboList", L"click cboList"}));
    EXPECT_EQ(dialog.list.ListIndex(), 2);
}

TEST_F(DialogTest, KnowsTheDataOfTheSelectedItem) {
    FillList();
    EXPECT_FALSE(dialog.list.HasSelection());
    EXPECT_EQ(dialog.list.SelectedData(99), 99);
    dialog.list.SetListIndex(2);
    EXPECT_EQ(dialog.list.SelectedData(99), 2);
    AddItemWithData(dialog.list, L"third", 3);
    EXPECT_EQ(dialog.list.SelectedData(99), 2) << "adding selects nothing";
    dialog.list.Clear();
    EXPECT_EQ(dialog.list.ListCount(), 0);
    EXPECT_FALSE(dialog.list.HasSelection());
}

TEST_F(DialogTest, RaisesForItemsThatAListDoesNotHave) {
    FillList();
    for (const std::int32_t index : {3, 1000, -1}) {
        EXPECT_THROW((void)dialog.list.List(index), std::out_of_range);
        EXPECT_THROW((void)dialog.list.ItemData(index), std::out_of_range);
        EXPECT_THROW(dialog.list.SetItemData(index, 1), std::out_of_range);
    }
    EXPECT_THROW(dialog.list.SetListIndex(3), std::out_of_range);
    EXPECT_EQ(dialog.list.ListIndex(), -1);
}

TEST_F(DialogTest, KeepsTheNumbersOfTheTabsThatAreLeft) {
    for (const wchar_t* const caption : {L"a", L"b", L"c"})
        dialog.tabs.AddTab(caption);
    user.SelectTab(dialog.tabs, 1);
    EXPECT_EQ(Events(), (Texts{L"got tabRange", L"click tabRange"}));
    dialog.tabs.RemoveTab(1);
    EXPECT_EQ(dialog.tabs.Selected(), 0U) << "the first that is left";
    user.SelectTab(dialog.tabs, 1);
    EXPECT_EQ(dialog.tabs.Selected(), 0U);
    EXPECT_EQ(Events(), Texts{}) << "there is nothing to click";
    user.SelectTab(dialog.tabs, 2);
    EXPECT_EQ(dialog.tabs.Selected(), 2U);
    EXPECT_EQ(dialog.tabs.Tabs()[2].caption, L"c");
    dialog.tabs.RemoveTab(0);
    EXPECT_EQ(dialog.tabs.Selected(), 2U);
}

// The listener

TEST_F(DialogTest, TellsItsListenerWhatMayBeAnother) {
    Follower follower;
    dialog.SetListener(&follower);
    const auto told = [&] { return std::exchange(follower.told, {}); };
    dialog.label.SetCaption(L"R0:");
    EXPECT_EQ(told(), Texts{L"lblOne"});
    dialog.one.SetText(L"1");
    EXPECT_EQ(told(), Texts{L"txtOne"});
    dialog.one.SetSelection(0, 1);
    EXPECT_EQ(told(), Texts{L"txtOne"});
    dialog.ok.SetEnabled(false);
    EXPECT_EQ(told(), Texts{L"cmdOK"});
    dialog.page.SetVisible(false);
    EXPECT_EQ(told(), Texts{L"framPage"});
    dialog.list.AddItem(L"x");
    EXPECT_EQ(told(), Texts{L"cboList"});
    dialog.list.SetListIndex(0);
    EXPECT_EQ(told(), Texts{L"cboList"});
    dialog.list.Clear();
    EXPECT_EQ(told(), Texts{L"cboList"});
    dialog.tabs.AddTab(L"x");
    EXPECT_EQ(told(), Texts{L"tabRange"});
    dialog.tabs.Select(0);
    EXPECT_EQ(told(), Texts{L"tabRange"});
    dialog.tabs.RemoveTab(0);
    EXPECT_EQ(told(), Texts{L"tabRange"});
    dialog.SetTitle(L"x");
    EXPECT_EQ(told(), Texts{L"title"});
    user.Focus(dialog.two);
    EXPECT_EQ(told(), Texts{L"focus txtTwo"});
    user.Close();
    EXPECT_EQ(told(), Texts{L"hidden"});
    dialog.SetListener(nullptr);
    dialog.SetTitle(L"y");
    EXPECT_EQ(told(), Texts{});
}

// Pasting, and what is advised

TEST_F(DialogTest, PutsAPastedTextInThePlaceOfTheSelection) {
    dialog.one.SetText(L"probe 1");
    EXPECT_TRUE(dialog.SetFocus(dialog.one));
    dialog.one.SetSelection(0, 5);
    user.Paste(dialog.one, L"bath\n");
    EXPECT_EQ(dialog.one.Text(), L"bath\n 1");
    EXPECT_EQ(dialog.one.SelStart(), 5U);
    EXPECT_EQ(dialog.one.SelLength(), 0U);
}

TEST_F(DialogTest, BringsTheFocusToTheBoxThatATextIsDroppedOn) {
    EXPECT_TRUE(dialog.SetFocus(dialog.one));
    user.Paste(dialog.two, L"5");
    EXPECT_EQ(dialog.ActiveControl(), &dialog.two);
    EXPECT_EQ(dialog.two.Text(), L"5");
}

TEST_F(DialogTest, PastesNothingWhereNothingCanBeTyped) {
    dialog.one.SetEnabled(false);
    dialog.two.SetVisible(false);
    user.Paste(dialog.one, L"5");
    user.Paste(dialog.two, L"5");
    EXPECT_EQ(dialog.one.Text() + dialog.two.Text(), L"");
}

TEST_F(DialogTest, TellsAnEditOfTheTextButNotOfTheSelection) {
    user.Edit(dialog.one, L"5", 1, 0);
    user.Edit(dialog.one, L"5", 0, 1);
    EXPECT_EQ(Events(), Texts{L"edit txtOne"});
}

TEST_F(DialogTest, AdvisesOfTheBoxWithTheFocusFirst) {
    using Boxes = std::vector<const TextBox*>;
    EXPECT_EQ(dialog.AdvisedBoxes(), Boxes{});
    EXPECT_EQ(dialog.AdvisedBox(), nullptr);
    dialog.one.SetAdvice(L"one");
    dialog.two.SetAdvice(L"two");
    EXPECT_EQ(dialog.AdvisedBoxes(), Boxes{&dialog.one});
    EXPECT_TRUE(dialog.SetFocus(dialog.two));
    EXPECT_EQ(dialog.AdvisedBoxes(), Boxes{&dialog.two});
    EXPECT_TRUE(dialog.SetFocus(dialog.ok));
    EXPECT_EQ(dialog.AdvisedBoxes(), Boxes{&dialog.one});
    dialog.one.SetVisible(false);
    EXPECT_EQ(dialog.AdvisedBoxes(), (Boxes{&dialog.two, &dialog.one})) << "a hidden one is not marked";
    EXPECT_EQ(dialog.AdvisedBox(), &dialog.two);
}

TEST_F(DialogTest, TellsAdviceOnlyWhenItIsAnotherOne) {
    Follower follower;
    dialog.SetListener(&follower);
    dialog.one.SetAdvice(L"one");
    dialog.one.SetAdvice(L"one");
    EXPECT_EQ(follower.told, Texts{L"txtOne"});
    dialog.SetListener(nullptr);
}
