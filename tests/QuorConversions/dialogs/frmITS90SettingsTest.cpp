#include "QuorConversions/rtd/CQuorITS90.h"

#include "tests/support/DecimalSeparator.h"
#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

const wchar_t* const rtpwMessage = L"Enter a valid RTPW value.";
const wchar_t* const rangeMessage =
    L"Select either a high range, low range or both and enter the appropriate coefficients.";
const wchar_t* const selectNoneNote =
    L"To use Range 5 for temperatures above 0 C, select <none> as the High Range on the High Range tab.";
const wchar_t* const sameValuesNote =
    L"To use Range 5 for temperatures above 0 C, use the same values for the High Range A and B coefficients "
    L"and set any C or D coefficients to 0.";
const wchar_t* const range1 = L"Range 1 (13K to 273K)";
const wchar_t* const range2 = L"Range 2 (24K to 273K)";
const wchar_t* const range4 = L"Range 4 (83K to 273K)";
const wchar_t* const range5 = L"Range 5 (234K to 302K)";

void Fill(CQuorITS90Range& range, EITS90RangeNumber number, const std::vector<double>& values) {
    range.SetRange(number);
    for (std::size_t i = 0; i < values.size(); ++i)
        range.SetCoefficients(static_cast<std::int32_t>(i), values[i]);
}

std::vector<double> Values(const CQuorITS90Range& range) {
    std::vector<double> values;
    for (std::int32_t i = 0; i < range.NumCoefficients(); ++i)
        values.push_back(range.Coefficients(i));
    return values;
}

void SetLimits(CQuorITS90Range& range, EITS90RangeNumber min, EITS90RangeNumber max) {
    range.SetMinRange(min);
    range.SetMaxRange(max);
}

Texts Tabs(const Person& person) {
    Texts tabs;
    for (const auto& tab : dynamic_cast<const TabStrip&>(ControlOf(person, L"tabRange")).Tabs())
        if (tab.present)
            tabs.push_back(tab.caption);
    return tabs;
}

/// The note, when it is visible.
std::wstring Note(const Person& person) {
    return IsVisible(person, L"lblRange5Coefs") ? person.Reads(L"lblRange5Coefs") : L"";
}

class frmITS90SettingsTest : public DialogTest<CQuorITS90> {
protected:
    frmITS90SettingsTest()
        : DialogTest(CONV_ITS90), low(*settings->LowRange()), high(*settings->HighRange()) {
        settings->SetRTPW(25.5);
        Fill(low, ITS90_RANGE_4, {-0.25, 0.125});
        Fill(high, ITS90_RANGE_7, {-0.5, 0.75, 0.5});
        settings->SetChanged(false);
    }

    CQuorITS90Range& low;
    CQuorITS90Range& high;
};

} // namespace

TEST_F(frmITS90SettingsTest, ShowsThePageOfTheSelectedTab) {
    Edit([](Person& person) {
        EXPECT_EQ(OnScreen(person), std::wstring(L"ITS-90 Settings\n"
                                                 L"ITS-90:\n"
                                                 L"  RTPW: [25.5]\n"
                                                 L"  /Low Range\\ High Range\n"
                                                 L"    Select low range to use: [Range 4 (83K to 273K) v]\n"
                                                 L"    A[4]: [-0.25]\n"
                                                 L"    B[4]: [0.125]\n") +
                                        buttonsOnScreen);
        person.TurnTo(L"High Range");
        EXPECT_EQ(OnScreen(person), std::wstring(L"ITS-90 Settings\n"
                                                 L"ITS-90:\n"
                                                 L"  RTPW: [25.5]\n"
                                                 L"  Low Range /High Range\\\n"
                                                 L"    Select high range to use: [Range 7 (273K to 933K) v]\n"
                                                 L"    A[7]: [-0.5]\n"
                                                 L"    B[7]: [0.75]\n"
                                                 L"    C[7]: [0.5]\n") +
                                        buttonsOnScreen);
        person.TurnTo(L"Low Range");
        EXPECT_TRUE(IsVisible(person, L"framRange(0)"));
        EXPECT_FALSE(IsVisible(person, L"framRange(1)"));
        EXPECT_EQ(person.Reads(L"framRange(0)"), L"") << "a page has no caption";
        EXPECT_EQ(person.Sees().HelpContext(), 10110);
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, TabsOverTheShownPageOnly) {
    Edit([](Person& person) {
        EXPECT_EQ(TabOrder(person),
                  (Texts{L"txtRTPW", L"tabRange", L"cboLowRange", L"txtLowCoefficient(0)",
                         L"txtLowCoefficient(1)", L"cmdOKCancelHelp(0)", L"cmdOKCancelHelp(1)",
                         L"cmdOKCancelHelp(2)", L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)"}));
        person.TurnTo(L"High Range");
        EXPECT_EQ(TabOrder(person),
                  (Texts{L"tabRange", L"cboHighRange", L"txtHighCoefficient(0)", L"txtHighCoefficient(1)",
                         L"txtHighCoefficient(2)", L"cmdOKCancelHelp(0)", L"cmdOKCancelHelp(1)",
                         L"cmdOKCancelHelp(2)", L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)", L"txtRTPW"}));
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, OffersTheRangesOfEachSide) {
    Look([](const Person& person) {
        EXPECT_EQ(Items(person, L"cboLowRange"),
                  (Texts{L"<none>", range1, range2, L"Range 3 (54K to 273K)", range4, range5}));
        EXPECT_EQ(Items(person, L"cboHighRange"),
                  (Texts{L"<none>", range5, L"Range 6 (273K to 1234K)", L"Range 7 (273K to 933K)",
                         L"Range 8 (273K to 692K)", L"Range 9 (273K to 505K)", L"Range 10 (273K to 429K)",
                         L"Range 11 (273K to 302K)"}));
    });
}

TEST_F(frmITS90SettingsTest, NumbersTheLowRowsByTheRangeAndTheCCoefficientsAmongThemselves) {
    const struct {
        EITS90RangeNumber range;
        Texts labels;
        Texts plain;
    } cases[] = {
        {ITS90_NORANGE, {}, {}},
        {ITS90_RANGE_1,
         {L"A[1]:", L"B[1]:", L"C[1]:", L"C[2]:", L"C[3]:", L"C[4]:", L"C[5]:"},
         {L"A:", L"B:", L"C[1]:", L"C[2]:", L"C[3]:", L"C[4]:", L"C[5]:"}},
        {ITS90_RANGE_2,
         {L"A[2]:", L"B[2]:", L"C[1]:", L"C[2]:", L"C[3]:"},
         {L"A:", L"B:", L"C[1]:", L"C[2]:", L"C[3]:"}},
        {ITS90_RANGE_3, {L"A[3]:", L"B[3]:", L"C[1]:"}, {L"A:", L"B:", L"C[1]:"}},
        {ITS90_RANGE_4, {L"A[4]:", L"B[4]:"}, {L"A:", L"B:"}},
        {ITS90_RANGE_5, {L"A[5]:", L"B[5]:"}, {L"A:", L"B:"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.range);
        low.SetRange(c.range);
        for (const bool numbered : {true, false}) {
            low.SetShowCoefRange(numbered);
            Look([&](const Person& person) {
                EXPECT_EQ(Visible(person, L"lblLowCoefficient"), numbered ? c.labels : c.plain);
                EXPECT_EQ(Visible(person, L"txtLowCoefficient").size(), c.labels.size());
            });
        }
    }
}

TEST_F(frmITS90SettingsTest, NumbersAllHighRowsByTheRange) {
    const struct {
        EITS90RangeNumber range;
        Texts labels;
        Texts plain;
    } cases[] = {
        {ITS90_NORANGE, {}, {}},
        {ITS90_RANGE_5, {L"A[5]:", L"B[5]:"}, {L"A:", L"B:"}},
        {ITS90_RANGE_6, {L"A[6]:", L"B[6]:", L"C[6]:", L"D[6]:"}, {L"A:", L"B:", L"C:", L"D:"}},
        {ITS90_RANGE_7, {L"A[7]:", L"B[7]:", L"C[7]:"}, {L"A:", L"B:", L"C:"}},
        {ITS90_RANGE_8, {L"A[8]:", L"B[8]:"}, {L"A:", L"B:"}},
        {ITS90_RANGE_9, {L"A[9]:", L"B[9]:"}, {L"A:", L"B:"}},
        {ITS90_RANGE_10, {L"A[10]:"}, {L"A:"}},
        {ITS90_RANGE_11, {L"A[11]:"}, {L"A:"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.range);
        high.SetRange(c.range);
        for (const bool numbered : {true, false}) {
            high.SetShowCoefRange(numbered);
            Look([&](const Person& person) {
                EXPECT_EQ(Visible(person, L"lblHighCoefficient"), numbered ? c.labels : c.plain);
                EXPECT_EQ(Visible(person, L"txtHighCoefficient").size(), c.labels.size());
            });
        }
    }
}

TEST_F(frmITS90SettingsTest, HasNoRowsForARangeThatTheSideDoesNotKnow) {
    SetLimits(low, ITS90_RANGE_1, ITS90_RANGE_7);
    low.SetRange(ITS90_RANGE_6);
    EditAndTake([](Person& person) { EXPECT_EQ(Visible(person, L"lblLowCoefficient"), Texts{}); });
    EXPECT_EQ(low.Range(), ITS90_RANGE_6);
}

TEST_F(frmITS90SettingsTest, ShowsEachValueInItsFormatAndAgainWhenItsBoxIsLeft) {
    settings->SetRTPWFormat(L"0.0000");
    low.SetValueFormat(L"0.000");
    high.SetValueFormat(L"0.00E+00");
    Edit([](Person& person) {
        EXPECT_EQ(person.Reads(L"txtRTPW"), L"25.5000");
        EXPECT_EQ(person.Reads(L"txtLowCoefficient(0)"), L"-0.250");
        EXPECT_EQ(person.Reads(L"txtHighCoefficient(0)"), L"-5.00E-01");
        person.Type(L"txtRTPW", L"1");
        person.Type(L"txtLowCoefficient(0)", L"2");
        person.TurnTo(L"High Range");
        person.Type(L"txtHighCoefficient(0)", L"3");
        person.Tab();
        EXPECT_EQ(person.Reads(L"txtRTPW"), L"1.0000");
        EXPECT_EQ(person.Reads(L"txtLowCoefficient(0)"), L"2.000");
        EXPECT_EQ(person.Reads(L"txtHighCoefficient(0)"), L"3.00E+00");
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, ShowsTheNoteForRange5InTheWordsThatFitTheHighRange) {
    const struct {
        const char* name;
        EITS90RangeNumber lowMin, lowMax, highMin, highMax;
        bool allowChangeHigh;
        const wchar_t* note;
    } cases[] = {
        {"the high range may be changed", ITS90_RANGE_1, ITS90_RANGE_5, ITS90_RANGE_6, ITS90_RANGE_11, true,
         selectNoneNote},
        {"the high range may not be changed", ITS90_RANGE_1, ITS90_RANGE_5, ITS90_RANGE_6, ITS90_RANGE_11,
         false, sameValuesNote},
        {"there is no high range", ITS90_RANGE_1, ITS90_RANGE_5, ITS90_NORANGE, ITS90_NORANGE, true, L""},
        {"only the lower high limit is none", ITS90_RANGE_1, ITS90_RANGE_5, ITS90_NORANGE, ITS90_RANGE_7,
         true, selectNoneNote},
        {"only the upper high limit is none", ITS90_RANGE_1, ITS90_RANGE_5, ITS90_RANGE_6, ITS90_NORANGE,
         true, selectNoneNote},
        {"both sides meet at 5", ITS90_RANGE_1, ITS90_RANGE_5, ITS90_RANGE_5, ITS90_RANGE_11, true, L""},
        {"both sides meet at 5, unchangeable", ITS90_RANGE_5, ITS90_RANGE_5, ITS90_RANGE_5, ITS90_RANGE_11,
         false, L""},
        {"the low side goes past 5", ITS90_RANGE_1, ITS90_RANGE_6, ITS90_RANGE_5, ITS90_RANGE_11, true,
         selectNoneNote},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        low.SetRange(ITS90_NORANGE);
        SetLimits(low, c.lowMin, c.lowMax);
        low.SetRange(ITS90_RANGE_5);
        high.SetRange(ITS90_NORANGE);
        SetLimits(high, c.highMin, c.highMax);
        high.SetAllowChangeRange(c.allowChangeHigh);
        Look([&](const Person& person) { EXPECT_EQ(Note(person), c.note); });
    }
}

TEST_F(frmITS90SettingsTest, HidesTheNoteForAnyOtherRange) {
    high.SetMinRange(ITS90_RANGE_6);
    Edit([](Person& person) {
        for (const wchar_t* const other : {L"<none>", range1, range2, L"Range 3 (54K to 273K)", range4}) {
            person.Choose(L"cboLowRange", range5);
            EXPECT_EQ(Note(person), selectNoneNote);
            person.Choose(L"cboLowRange", other);
            EXPECT_EQ(Note(person), L"");
        }
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, HidesAllRowsForNone) {
    Edit([](Person& person) {
        person.Choose(L"cboLowRange", L"<none>");
        EXPECT_EQ(Visible(person, L"lblLowCoefficient"), Texts{});
        EXPECT_EQ(Visible(person, L"txtLowCoefficient"), Texts{});
        person.TurnTo(L"High Range");
        person.Choose(L"cboHighRange", L"<none>");
        EXPECT_EQ(Visible(person, L"lblHighCoefficient"), Texts{});
        EXPECT_EQ(Visible(person, L"txtHighCoefficient"), Texts{});
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, GathersBothPagesWhicheverIsShown) {
    EditAndTake([](Person& person) {
        person.Type(L"txtRTPW", L"25.6");
        person.Type(L"A[4]", L"0.1");
        person.TurnTo(L"High Range");
        person.Choose(L"cboHighRange", L"Range 10 (273K to 429K)");
        person.Type(L"A[10]", L"0.2");
    });
    EXPECT_EQ(settings->RTPW(), 25.6);
    EXPECT_EQ(Values(low), (std::vector<double>{0.1, 0.125}));
    EXPECT_EQ(high.Range(), ITS90_RANGE_10);
    EXPECT_EQ(Values(high), std::vector<double>{0.2});
    EXPECT_TRUE(settings->Changed());
}

TEST_F(frmITS90SettingsTest, RefillsOnlyTheRowsThatTheObjectHasWhenARangeIsChosen) {
    EditAndTake([](Person& person) {
        person.Choose(L"cboLowRange", range1);
        EXPECT_EQ(Visible(person, L"txtLowCoefficient"),
                  (Texts{L"-0.25", L"0.125", L"", L"", L"", L"", L""}));
        person.Type(L"A[1]", L"9");
        person.Type(L"C[1]", L"7");
        person.Choose(L"cboLowRange", range2);
        EXPECT_EQ(Visible(person, L"txtLowCoefficient"), (Texts{L"-0.25", L"0.125", L"7", L"", L""}));
    });
    EXPECT_EQ(low.Range(), ITS90_RANGE_2);
    EXPECT_EQ(Values(low), (std::vector<double>{-0.25, 0.125, 7, 0, 0}));
}

TEST_F(frmITS90SettingsTest, TellsOfTheRowsOfARangeThatIsNotStoredYet) {
    const FreshDecimalSeparator fresh;
    const auto empty = L"Not a number: 0 would be stored";
    low.SetRange(ITS90_NORANGE);
    Edit([&](Person& person) {
        EXPECT_FALSE(person.SeesAdvice(empty));
        person.Choose(L"cboLowRange", range4);
        EXPECT_EQ(Visible(person, L"txtLowCoefficient"), (Texts{L"", L""}));
        EXPECT_EQ(person.Advice(L"A[4]"), empty);
        EXPECT_EQ(person.Advice(L"B[4]"), empty);
        person.Type(L"A[4]", L"0,00385");
        EXPECT_EQ(person.Reads(L"A[4]"), L"000385");
        EXPECT_EQ(person.Advice(L"A[4]"), L"The decimal separator here is the point");
        person.Paste(L"A[4]", L"10.000");
        EXPECT_EQ(person.Advice(L"A[4]"), L"Pasted as 10.000");
        person.Type(L"A[4]", L"1E");
        EXPECT_EQ(person.Advice(L"A[4]"), L"Only 1 of 1E would be stored");
        EXPECT_EQ(person.Advice(L"B[4]"), empty);
        person.Choose(L"cboLowRange", L"<none>");
        EXPECT_FALSE(person.SeesAdvice(empty)) << "nothing of the rows is stored then";
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, ForgetsWhatItToldOfARowThatAFileEmpties) {
    const FreshDecimalSeparator fresh;
    low.SetRange(ITS90_NORANGE);
    NextFileHolds([](CQuorITS90& opened) { opened.LowRange()->SetRange(ITS90_NORANGE); });
    Edit([&](Person& person) {
        person.Choose(L"cboLowRange", range4);
        person.Type(L"A[4]", L"1/2");
        EXPECT_EQ(person.Advice(L"A[4]"), L"\"/\" cannot be typed here");
        person.Click(L"Open");
        person.Choose(L"cboLowRange", range4);
        EXPECT_EQ(person.Advice(L"A[4]"), L"Not a number: 0 would be stored");
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, RefillsTheRowsWhenTheSelectedRangeIsChosenAgain) {
    Edit([](Person& person) {
        person.Type(L"A[4]", L"9");
        person.Choose(L"cboLowRange", range4);
        EXPECT_EQ(person.Reads(L"A[4]"), L"-0.25");
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, KeepsTheValuesOfHiddenRowsWhileTheDialogIsOpen) {
    Fill(low, ITS90_RANGE_1, {1, 2, 3, 4, 5, 6, 7});
    Edit([](Person& person) {
        person.Choose(L"cboLowRange", range4);
        EXPECT_EQ(Visible(person, L"txtLowCoefficient"), (Texts{L"1", L"2"}));
        person.Choose(L"cboLowRange", range1);
        EXPECT_EQ(Visible(person, L"txtLowCoefficient"), (Texts{L"1", L"2", L"3", L"4", L"5", L"6", L"7"}));
        person.Choose(L"cboLowRange", range4);
        person.Click(L"Cancel");
    });
    EXPECT_EQ(Values(low), (std::vector<double>{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(frmITS90SettingsTest, DoesNotGatherHiddenRows) {
    low.SetRange(ITS90_RANGE_5);
    low.SetMaxRange(ITS90_RANGE_4); // so that no item is selected, and the range of the object counts
    EditAndTake([&](Person& person) {
        Fill(low, ITS90_RANGE_1, {1, 2, 3, 4, 5, 6, 7}); // by the host, while two rows are shown
        person.Type(L"txtLowCoefficient(0)", L"9");
    });
    EXPECT_EQ(Values(low), (std::vector<double>{9, 0.125, 3, 4, 5, 6, 7}));
}

TEST_F(frmITS90SettingsTest, KeepsAStoredRangeThatItsListDoesNotOffer) {
    low.SetRange(ITS90_RANGE_5);
    low.SetMaxRange(ITS90_RANGE_4);
    EditAndTake([](Person& person) {
        EXPECT_EQ(person.Reads(L"cboLowRange"), L"") << "nothing is selected";
        EXPECT_EQ(Visible(person, L"lblLowCoefficient"), (Texts{L"A[5]:", L"B[5]:"}));
        EXPECT_EQ(Visible(person, L"txtLowCoefficient"), (Texts{L"-0.25", L"0.125"}));
        person.Type(L"A[5]", L"3");
    });
    EXPECT_EQ(low.Range(), ITS90_RANGE_5);
    EXPECT_EQ(Values(low), (std::vector<double>{3, 0.125}));
}

TEST_F(frmITS90SettingsTest, ShowsNothingOfTheOldObjectAfterOpen) {
    Fill(low, ITS90_RANGE_1, {1, 2, 3, 4, 5, 6, 7});
    NextFileHolds([](CQuorITS90& file) {
        file.SetRTPW(100);
        Fill(*file.LowRange(), ITS90_RANGE_4, {0.5, 0.25});
        Fill(*file.HighRange(), ITS90_RANGE_11, {0.125});
    });
    Edit([](Person& person) {
        person.TurnTo(L"High Range");
        person.Click(L"Open");
        EXPECT_TRUE(IsVisible(person, L"framRange(1)")) << "the page stays";
        EXPECT_EQ(person.Reads(L"txtRTPW"), L"100");
        EXPECT_EQ(Visible(person, L"lblHighCoefficient"), Texts{L"A[11]:"});
        EXPECT_EQ(Visible(person, L"txtHighCoefficient"), Texts{L"0.125"});
        EXPECT_EQ(person.Reads(L"cboLowRange"), range4);
        person.TurnTo(L"Low Range");
        person.Choose(L"cboLowRange", range1);
        EXPECT_EQ(Visible(person, L"txtLowCoefficient"), (Texts{L"0.5", L"0.25", L"", L"", L"", L"", L""}));
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, GathersNothingOfASideThatIsNotEnabled) {
    low.SetRangeEnabled(false); // selects range 1
    Fill(low, ITS90_RANGE_1, {1, 2, 3, 4, 5, 6, 7});
    EditAndTake([](Person& person) {
        EXPECT_EQ(person.Reads(L"cboLowRange"), range1);
        EXPECT_TRUE(IsEnabled(person, L"cboLowRange"));
        person.Type(L"txtRTPW", L"26");
        person.Type(L"A[1]", L"9");
        person.Choose(L"cboLowRange", range4);
        person.Type(L"B[4]", L"9");
        person.TurnTo(L"High Range");
        person.Type(L"A[7]", L"8");
    });
    EXPECT_EQ(settings->RTPW(), 26);
    EXPECT_EQ(low.Range(), ITS90_RANGE_1);
    EXPECT_EQ(Values(low), (std::vector<double>{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(Values(high), (std::vector<double>{8, 0.75, 0.5}));
}

TEST_F(frmITS90SettingsTest, GathersTheLowSideWhereTheHighOneIsNotEnabled) {
    high.SetRangeEnabled(false); // selects range 6
    EditAndTake([](Person& person) {
        person.Type(L"A[4]", L"9");
        person.TurnTo(L"High Range");
        person.Choose(L"cboHighRange", L"<none>");
    });
    EXPECT_EQ(high.Range(), ITS90_RANGE_6);
    EXPECT_EQ(Values(high), (std::vector<double>{-0.5, 0.75, 0.5, 0}));
    EXPECT_EQ(Values(low), (std::vector<double>{9, 0.125}));
}

TEST_F(frmITS90SettingsTest, RefusesARTPWOfZeroBeforeAnythingElse) {
    low.SetRange(ITS90_NORANGE);
    high.SetRange(ITS90_NORANGE);
    ExpectRefusal(rtpwMessage, L"txtRTPW", [](Person& person) { person.Type(L"txtRTPW", L"0"); });
    EXPECT_EQ(settings->RTPW(), 0.0);
}

TEST_F(frmITS90SettingsTest, TakesARTPWThatIsNoNumberForZero) {
    for (const wchar_t* const text : {L"e", L"-", L".", L"+-5"}) {
        settings->SetRTPW(25.5);
        ExpectRefusal(rtpwMessage, L"txtRTPW", [&](Person& person) { person.Type(L"txtRTPW", text); });
    }
}

TEST_F(frmITS90SettingsTest, ReturnsToRTPWFromEitherPage) {
    ExpectRefusal(rtpwMessage, L"txtRTPW", [](Person& person) {
        person.Type(L"txtRTPW", L"0");
        person.TurnTo(L"High Range");
    });
}

TEST_F(frmITS90SettingsTest, RefusesNoneOnBothPagesAndLeavesTheFocusWhereItIs) {
    ExpectRefusal(rangeMessage, L"cmdOKCancelHelp(0)", [](Person& person) {
        person.Choose(L"cboLowRange", L"<none>");
        person.TurnTo(L"High Range");
        person.Choose(L"cboHighRange", L"<none>");
    });
    EXPECT_EQ(low.Range(), ITS90_NORANGE);
    EXPECT_EQ(high.Range(), ITS90_NORANGE);
}

TEST_F(frmITS90SettingsTest, TakesNoneOnOnePage) {
    EditAndTake([](Person& person) { person.Choose(L"cboLowRange", L"<none>"); });
    EXPECT_EQ(low.Range(), ITS90_NORANGE);
    EXPECT_EQ(high.Range(), ITS90_RANGE_7);
    EditAndTake([](Person& person) {
        person.Choose(L"cboLowRange", range4);
        person.TurnTo(L"High Range");
        person.Choose(L"cboHighRange", L"<none>");
    });
    EXPECT_EQ(low.Range(), ITS90_RANGE_4);
    EXPECT_EQ(high.Range(), ITS90_NORANGE);
}

TEST_F(frmITS90SettingsTest, TakesZeroCoefficients) {
    EditAndTake([](Person& person) {
        person.Type(L"A[4]", L"0");
        person.Type(L"B[4]", L"-");
    });
    EXPECT_EQ(Values(low), (std::vector<double>{0, 0}));
}

TEST_F(frmITS90SettingsTest, TakesOutTheTabOfASideWithoutRangesAndShowsTheOtherSidesPage) {
    const struct {
        const char* name;
        bool lowRanges, highRanges;
        Texts tabs;
    } cases[] = {
        {"both", true, true, {L"Low Range", L"High Range"}},
        {"high only", false, true, {L"High Range"}},
        {"low only", true, false, {L"Low Range"}},
        {"neither", false, false, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        SetLimits(low, c.lowRanges ? ITS90_RANGE_1 : ITS90_NORANGE,
                  c.lowRanges ? ITS90_RANGE_5 : ITS90_NORANGE);
        SetLimits(high, c.highRanges ? ITS90_RANGE_5 : ITS90_NORANGE,
                  c.highRanges ? ITS90_RANGE_11 : ITS90_NORANGE);
        Look([&](const Person& person) {
            EXPECT_EQ(Tabs(person), c.tabs);
            EXPECT_EQ(IsVisible(person, L"framRange(0)"), c.lowRanges);
            EXPECT_EQ(IsVisible(person, L"framRange(1)"), c.highRanges && !c.lowRanges);
        });
    }
}

TEST_F(frmITS90SettingsTest, ShowsTheHighPageAgainWhenItsOnlyTabIsClicked) {
    SetLimits(low, ITS90_NORANGE, ITS90_NORANGE);
    Edit([](Person& person) {
        person.TurnTo(L"High Range");
        EXPECT_TRUE(IsVisible(person, L"framRange(1)"));
        EXPECT_FALSE(IsVisible(person, L"framRange(0)"));
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, KeepsTheTabOfASideOfWhichOneLimitIsARange) {
    SetLimits(low, ITS90_NORANGE, ITS90_RANGE_5);
    SetLimits(high, ITS90_RANGE_6, ITS90_NORANGE);
    Look([](const Person& person) { EXPECT_EQ(Tabs(person), (Texts{L"Low Range", L"High Range"})); });
}

TEST_F(frmITS90SettingsTest, DisablesTheListOfARangeThatMayNotBeChangedAndLeavesItsRowsEditable) {
    low.SetAllowChangeRange(false);
    Look([](const Person& person) {
        EXPECT_FALSE(IsEnabled(person, L"lblLowRange"));
        EXPECT_FALSE(IsEnabled(person, L"cboLowRange"));
        EXPECT_TRUE(IsEnabled(person, L"lblLowCoefficient(0)"));
        EXPECT_TRUE(IsEnabled(person, L"txtLowCoefficient(0)"));
        EXPECT_TRUE(IsEnabled(person, L"lblHighRange"));
        EXPECT_TRUE(IsEnabled(person, L"cboHighRange"));
    });
    low.SetAllowChangeRange(true);
    high.SetAllowChangeRange(false);
    Look([](const Person& person) {
        EXPECT_TRUE(IsEnabled(person, L"cboLowRange"));
        EXPECT_FALSE(IsEnabled(person, L"lblHighRange"));
        EXPECT_FALSE(IsEnabled(person, L"cboHighRange"));
        EXPECT_TRUE(IsEnabled(person, L"txtHighCoefficient(0)"));
    });
}

TEST_F(frmITS90SettingsTest, EnablesNoShownValueAndNoListWhereNothingMayBeEdited) {
    settings->SetAllowEdit(false);
    Edit([](Person& person) {
        person.TurnTo(L"High Range");
        for (const wchar_t* const name :
             {L"lblRTPW", L"txtRTPW", L"lblLowRange", L"cboLowRange", L"lblHighRange", L"cboHighRange",
              L"lblLowCoefficient(0)", L"txtLowCoefficient(1)", L"lblHighCoefficient(2)",
              L"txtHighCoefficient(2)", L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)", L"cmdOKCancelHelp(0)"})
            EXPECT_FALSE(IsEnabled(person, name)) << testing::PrintToString(std::wstring(name));
        EXPECT_TRUE(IsEnabled(person, L"tabRange")) << "both pages can be looked at";
        person.Click(L"Cancel");
    });
}

TEST_F(frmITS90SettingsTest, ReportsARangeThatTheHostForbadeMeanwhileAndStaysOpen) {
    platform->ExpectMessage(
        Scripted::OnOneLine(ErrorReport(L"attempting to gather settings", -2147221002,
                                        L"ITS-90 range out of range.", L"CQuorITS90LowRange")));
    EXPECT_FALSE(Edit([&](Person& person) {
        person.Choose(L"cboLowRange", range1);
        low.SetMinRange(ITS90_RANGE_2);
        person.Type(L"txtRTPW", L"26");
        person.Click(L"OK");
        EXPECT_TRUE(person.Sees().IsOpen());
        person.Click(L"Cancel");
    }));
    EXPECT_EQ(low.Range(), ITS90_RANGE_4);
    EXPECT_EQ(settings->RTPW(), 26) << "what was gathered before stays";
}

TEST_F(frmITS90SettingsTest, ShowsAnITSSR5AsItsFixedRange5) {
    settings = NewSettings<CQuorITS90>(CONV_ITSSR5, platform);
    EditAndTake([](Person& person) {
        EXPECT_EQ(OnScreen(person),
                  std::wstring(L"ITS-90 Settings\n"
                               L"ITS-90:\n"
                               L"  RTPW: [0]\n"
                               L"  /Low Range\\\n"
                               L"    (Select low range to use:) ([Range 5 (234K to 302K) v])\n"
                               L"    A[5]: [0]\n"
                               L"    B[5]: [0]\n") +
                      buttonsOnScreen);
        person.Type(L"txtRTPW", L"25.5");
        person.Type(L"A[5]", L"1e-4");
        person.Type(L"B[5]", L"2e-4");
    });
    EXPECT_EQ(settings->LowRange()->Range(), ITS90_RANGE_5);
    EXPECT_EQ(Values(*settings->LowRange()), (std::vector<double>{1e-4, 2e-4}));
    EXPECT_EQ(settings->HighRange()->Range(), ITS90_NORANGE);
}

namespace {

/// A toolkit whose drawing fails once, when the first low coefficient is shown.
class FailingToolkit : public ScriptedPlatform, private DialogListener {
public:
    bool okEnabled = true;

    void RunDialog(Dialog& dialog, DialogInput& input) override {
        dialog.SetListener(this);
        input.Activate();
        dialog.SetListener(nullptr);
        okEnabled = dialog.Find(L"cmdOKCancelHelp(0)")->Enabled();
        input.Escape();
    }

private:
    void OnControlChanged(const Control& control) override {
        if (control.Name() == L"txtLowCoefficient(0)" && !static_cast<const TextBox&>(control).Text().empty())
            throw std::runtime_error("cannot draw");
    }
    void OnFocusMoved(const Control* /*focused*/) override {}
    void OnTitleChanged() override {}
    void OnHidden() override {}
};

} // namespace

TEST(frmITS90SettingsLoading, LetsNobodyAcceptRowsThatItCouldNotFill) {
    const auto platform = std::make_shared<FailingToolkit>();
    const auto its90 = Support::NewSettings<CQuorITS90>(CONV_ITS90, platform);
    its90->LowRange()->SetRange(ITS90_RANGE_4);
    its90->LowRange()->SetCoefficients(ITS90_LOW_A, -2.1E-4);
    EXPECT_FALSE(its90->Edit());
    EXPECT_FALSE(platform->okEnabled);
    EXPECT_EQ(platform->Messages().size(), 1U);
    EXPECT_EQ(its90->LowRange()->Coefficients(ITS90_LOW_A), -2.1E-4);
}
