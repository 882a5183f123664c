// What a paste does to the boxes of the dialogs, and what a person is told before values are stored.

#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "tests/support/DecimalSeparator.h"
#include "tests/support/DialogTest.h"
#include "tests/support/PasteRows.h"

#include <limits>

using namespace QuorConversions;
using namespace Support;

namespace {

/// R0, ALPHA, DELTA and BETA, at 100, 0.00385, 1.5 and 0.1.
class PasteTest : public DialogTest<CQuorCVD> {
protected:
    PasteTest() : DialogTest(CONV_CVD) {
        settings->SetNumCoefficients(4);
        for (std::int32_t i = 0; i < 4; ++i)
            settings->SetCoefficients(i, initial[i]);
    }
    static constexpr double initial[] = {100, 0.00385, 1.5, 0.1};
    FreshDecimalSeparator fresh;

    /// What the four boxes show.
    static Texts Boxes(const Person& person) { return All(person, L"txtCoefficients"); }
};

const Texts untouched = {L"100", L"0.00385", L"1.5", L"0.1"};

/// The points of a table: temperatures and voltages.
class PastedPointsTest : public DialogTest<CQuorTCTable> {
protected:
    PastedPointsTest() : DialogTest(CONV_TCTABLE) { settings->SetNumPoints(3); }
    FreshDecimalSeparator fresh;

    static Texts Points(const Person& person) {
        Texts points;
        for (std::size_t i = 0; i < 3; ++i)
            points.push_back(person.Reads(Element(L"txtTemperature", i)) + L" " +
                             person.Reads(Element(L"txtVoltage", i)));
        return points;
    }
};

bool IsOneCell(const PasteRow& row) {
    const std::wstring text = row.text;
    const auto first = text.find_first_not_of(L" \t\r\n\u0085\u2028\u2029");
    return first != std::wstring::npos && text.find_first_of(L"\t\r\n\u0085\u2028\u2029", first) >
                                              text.find_last_not_of(L" \t\r\n\u0085\u2028\u2029");
}

} // namespace

// One number

TEST_F(PasteTest, ABoxGetsTheNumberOfEveryTextOrStaysAsItIs) {
    for (const std::wstring separator : {L".", L",", L"\u066B"}) {
        const FreshDecimalSeparator another;
        platform->SetDecimalSeparator(separator);
        Edit([&](Person& person) {
            ForEachPaste([&](const PasteRow& row, const std::wstring& under, const std::wstring& number) {
                if (under != separator || !IsOneCell(row))
                    return;
                SCOPED_TRACE(testing::PrintToString(std::wstring(row.text)) + " under " +
                             testing::PrintToString(separator));
                person.Paste(L"R0", L"7");
                ASSERT_EQ(person.Reads(L"R0"), L"7");
                person.Paste(L"R0", row.text);
                const bool taken = row.outcome == isNumber || row.outcome == isTold;
                EXPECT_EQ(person.Reads(L"R0"), taken ? number : L"7");
                const std::wstring advice = person.Advice(L"R0");
                if (taken) {
                    EXPECT_EQ(advice, number == L"1E400"      ? L"1E400 is too large to be stored"
                                      : number == L"1E-400"   ? L"0 would be stored for 1E-400"
                                      : row.outcome == isTold ? L"Pasted as " + number
                                                              : L"");
                } else {
                    EXPECT_TRUE(advice.starts_with(L"Nothing pasted: "));
                    EXPECT_TRUE(advice.ends_with(row.outcome == isTwofold ? L" can be read in two ways"
                                                                          : L" is not a number"));
                }
            });
            person.Click(L"Cancel");
        });
    }
}

TEST_F(PasteTest, OKStoresTheVeryNumberThatWasPasted) {
    EditAndTake([](Person& person) {
        person.Paste(L"R0", L"R0 = 100.0123 \u03A9");
        person.Paste(L"ALPHA", L"3.9083 \u00D7 10\u207B\u00B3 \u00B0C\u207B\u00B9");
        person.Paste(L"DELTA", L"\u22122.3502171E-4");
        person.Paste(L"BETA", L"1 234.5");
    });
    EXPECT_EQ(settings->Coefficients(0), 100.0123);
    EXPECT_EQ(settings->Coefficients(1), 3.9083e-3);
    EXPECT_EQ(settings->Coefficients(2), -2.3502171e-4);
    EXPECT_EQ(settings->Coefficients(3), 1234.5);
}

TEST_F(PasteTest, ANumberTakesThePlaceOfThePartThatIsSelected) {
    Edit([](Person& person) {
        auto& box = dynamic_cast<TextBox&>(*person.Sees().Find(L"txtCoefficients(0)"));
        person.Type(L"R0", L"100.01");
        box.SetSelection(1, 2);
        person.PasteHere(L"2 ohm");
        EXPECT_EQ(person.Reads(L"R0"), L"12.01");
        box.SetSelection(1, 1);
        person.PasteHere(L"2.5");
        EXPECT_EQ(person.Reads(L"R0"), L"12.01");
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: 12.5.01 is not a number");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ANumberTakesThePlaceOfTheWholeTextWhereNothingIsSelected) {
    Edit([](Person& person) {
        person.Type(L"R0", L"100.0");
        person.PasteHere(L"25.5");
        EXPECT_EQ(person.Reads(L"R0"), L"25.5");
        person.Type(L"R0", L"-");
        person.PasteHere(L"25.5");
        EXPECT_EQ(person.Reads(L"R0"), L"-25.5") << "but a sign that was typed stays";
        person.Type(L"R0", L"-");
        person.PasteHere(L"-25.5");
        EXPECT_EQ(person.Reads(L"R0"), L"-25.5");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ARefusedTextIsQuotedOnOneLineAndNotWithoutEnd) {
    Edit([](Person& person) {
        person.Paste(L"R0", std::wstring(100, L'x') + L"|\u001B");
        EXPECT_EQ(person.Advice(L"R0"),
                  L"Nothing pasted: " + std::wstring(40, L'x') + L"... is not a number");
        person.Paste(L"R0", L"a|\u001Bb");
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: a\u00A6\\u{1B}b is not a number");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, NothingIsPastedWhereNothingMayBeEdited) {
    settings->SetAllowEdit(false);
    Edit([](Person& person) {
        EXPECT_THROW(person.Paste(L"R0", L"7"), Scripted::CannotDo);
        EXPECT_EQ(Boxes(person), untouched);
        person.Click(L"Cancel");
    });
}

// Several numbers

TEST_F(PasteTest, SeveralLinesFillTheBoxesOfAListFromThereOn) {
    Edit([](Person& person) {
        person.Paste(L"ALPHA", L"0.0039\r\n1,6E0\r\n\u22120.2\r\n");
        EXPECT_EQ(Boxes(person), (Texts{L"100", L"0.0039", L"1.6E0", L"-0.2"}));
        EXPECT_EQ(person.Focused(), L"txtCoefficients(1)");
        person.Paste(L"R0", L"\uFEFF\n7\n\u00A0\n");
        EXPECT_EQ(person.Reads(L"R0"), L"7") << "blank lines at the edges are no cells";
        person.Paste(L"R0", L"1\t2\n3\t4");
        EXPECT_EQ(Boxes(person), (Texts{L"1", L"2", L"3", L"4"}));
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, OneCellThatIsNoNumberKeepsAllOthersOut) {
    Edit([](Person& person) {
        person.Paste(L"R0", L"1\n100,012\n3");
        EXPECT_EQ(Boxes(person), untouched);
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: 100,012 can be read in two ways");
        person.Paste(L"R0", L"R0\t1");
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: R0 is not a number");
        person.Paste(L"R0", L"1\n\n3");
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: \"\" is not a number");
        EXPECT_EQ(Boxes(person), untouched);
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, NumbersForWhichThereIsNoBoxKeepAllOthersOut) {
    settings->SetNumCoefficients(3);
    Edit([](Person& person) {
        person.Paste(L"ALPHA", L"1\n2\n3");
        EXPECT_EQ(Visible(person, L"txtCoefficients"), (Texts{L"100", L"0.00385", L"1.5"}));
        EXPECT_EQ(person.Advice(L"ALPHA"), L"Nothing pasted: there is no room for 3 numbers");
        person.Paste(L"ALPHA", L"1\n2");
        EXPECT_EQ(Visible(person, L"txtCoefficients"), (Texts{L"100", L"1", L"2"}));
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        person.Click(L"Cancel");
    });
}

TEST_F(PastedPointsTest, ColumnsAndLinesFillTheGridAsTheyStand) {
    EditAndTake([](Person& person) {
        person.Paste(L"Temperature 1", L"0\t0\r\n100\t4.096\r\n200\t8.138\r\n");
        EXPECT_EQ(Points(person), (Texts{L"0 0", L"100 4.096", L"200 8.138"}));
        person.Paste(L"Voltage 2", L"5\n6\n");
        EXPECT_EQ(Points(person), (Texts{L"0 0", L"100 5", L"200 6"}));
        person.Paste(L"Temperature 3", L"300\t7");
        EXPECT_EQ(Points(person), (Texts{L"0 0", L"100 5", L"300 7"}));
    });
    EXPECT_EQ(settings->Temperatures(2), 300);
    EXPECT_EQ(settings->Voltages(2), 7);
}

TEST_F(PastedPointsTest, NoColumnOrLineGoesPastTheGrid) {
    Edit([](Person& person) {
        const Texts before = Points(person);
        for (const auto& [box, text] :
             {std::pair(L"Voltage 1", L"1\t2"), std::pair(L"Temperature 2", L"1\n2\n3"),
              std::pair(L"Temperature 1", L"1\t2\t3"), std::pair(L"Temperature 1", L"1\t\n2\t")}) {
            person.Paste(box, text);
            EXPECT_EQ(Points(person), before);
            EXPECT_TRUE(person.Advice(box).starts_with(L"Nothing pasted: "));
        }
        person.Click(L"Cancel");
    });
}

// What would be stored

TEST_F(PasteTest, WhatIsTypedIsJudgedWhileItIsTyped) {
    Edit([](Person& person) {
        person.Type(L"R0", L"1");
        EXPECT_EQ(person.Advice(L"R0"), L"");
        person.TypeHere(L"E");
        EXPECT_EQ(person.Advice(L"R0"), L"Only 1 of 1E would be stored");
        EXPECT_TRUE(person.SeesAdvice(L"Only 1 of 1E would be stored"));
        person.TypeHere(L"3");
        EXPECT_EQ(person.Advice(L"R0"), L"");
        person.Type(L"R0", L"-");
        EXPECT_EQ(person.Advice(L"R0"), L"Not a number: 0 would be stored");
        person.Type(L"R0", L"1e999");
        EXPECT_EQ(person.Advice(L"R0"), L"1e999 is too large to be stored");
        person.Type(L"R0", L"1e-999");
        EXPECT_EQ(person.Advice(L"R0"), L"0 would be stored for 1e-999");
        person.Type(L"R0", L"0e-999");
        EXPECT_EQ(person.Advice(L"R0"), L"");
        person.Type(L"R0", L"1-5");
        person.Tab();
        EXPECT_EQ(person.Advice(L"R0"), L"Only 1 of 1-5 would be stored") << "also when the box is left";
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ACommaThatIsSwallowedIsToldUntilTheSeparatorComes) {
    const std::wstring advice = L"The decimal separator here is the point";
    Edit([&](Person& person) {
        person.Type(L"ALPHA", L"0,00385");
        EXPECT_EQ(person.Reads(L"ALPHA"), L"000385");
        EXPECT_EQ(person.Advice(L"ALPHA"), advice);
        person.Tab();
        EXPECT_EQ(person.Advice(L"ALPHA"), advice);
        person.Type(L"ALPHA", L"0.00385");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        person.Type(L"ALPHA", L"0,");
        EXPECT_EQ(person.Advice(L"ALPHA"), advice);
        person.TypeHere(L".5");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        person.Type(L"ALPHA", L"0,");
        person.Paste(L"ALPHA", L"5");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ACommaIsTheSeparatorWhereItIs) {
    platform->SetDecimalSeparator(L",");
    Edit([](Person& person) {
        person.Type(L"ALPHA", L"0,00385");
        EXPECT_EQ(person.Reads(L"ALPHA"), L"0,00385");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, AnotherSeparatorIsToldAsItIs) {
    platform->SetDecimalSeparator(L"\u066B");
    Edit([](Person& person) {
        person.Type(L"ALPHA", L"0,5");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"The decimal separator here is \u066B");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, WhatAFormatDoesToAValueThatNobodyTouchesIsTold) {
    settings->SetCoefficients(0, 1.239);
    settings->SetValueFormat(0, L"0.00");
    settings->SetCoefficients(1, 1234.5);
    settings->SetValueFormat(1, L"#,##0.00");
    settings->SetCoefficients(2, 1.25);
    settings->SetValueFormat(2, L"0.00");
    settings->SetCoefficients(3, std::numeric_limits<double>::quiet_NaN());
    Edit([](Person& person) {
        EXPECT_EQ(Boxes(person), (Texts{L"1.24", L"1,234.50", L"1.25", L"NaN"}));
        EXPECT_EQ(person.Advice(L"R0"), L"1.24 would be stored for 1.239");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"1 would be stored for 1234.5");
        EXPECT_EQ(person.Advice(L"DELTA"), L"");
        EXPECT_EQ(person.Advice(L"BETA"), L"") << "without a format it stays as it is";
        person.Type(L"R0", L"1.5");
        EXPECT_EQ(person.Advice(L"R0"), L"");
        person.Type(L"R0", L"1.239");
        EXPECT_EQ(person.Advice(L"R0"), L"1.24 would be stored for 1.239") << "when the box is left";
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, AdviceChangesNothingOfWhatOKDoes) {
    settings->SetUsePolynomial(true); // zeros are taken
    EditAndTake([](Person& person) {
        person.Type(L"R0", L"1E");
        person.Type(L"A", L"-");
        EXPECT_TRUE(person.SeesAdvice(L"Only 1 of 1E would be stored"));
        EXPECT_TRUE(person.SeesAdvice(L"Not a number: 0 would be stored"));
    });
    EXPECT_EQ(settings->Coefficients(0), 1);
    EXPECT_EQ(settings->Coefficients(1), 0);
}

TEST_F(PasteTest, NothingIsAdvisedWhereNothingCanBeStored) {
    settings->SetCoefficients(0, 1.239);
    settings->SetValueFormat(0, L"0.00");
    settings->SetAllowEdit(false);
    Look([](const Person& person) { EXPECT_EQ(person.Advice(L"R0"), L""); });
}

TEST_F(PasteTest, TheScreenShowsTheAdviceBehindItsBox) {
    Edit([](Person& person) {
        person.Type(L"R0", L"1E");
        EXPECT_NE(person.Screen().find(L"  R0: [1E] ! Only 1 of 1E would be stored\n"), std::wstring::npos);
        person.Click(L"Cancel");
    });
}

// Keys that every dialog has

TEST_F(PasteTest, F1IsHelpAndLeavesTheFocusWhereItIs) {
    Edit([this](Person& person) {
        person.GoTo(L"ALPHA");
        person.Help();
        EXPECT_EQ(person.Focused(), L"txtCoefficients(1)");
        ASSERT_EQ(platform->HelpCalls().size(), 1U);
        EXPECT_EQ(platform->HelpCalls().front().data, 10100);
        person.Click(L"Cancel");
    });
}
