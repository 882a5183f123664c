// What a paste does to the boxes of the dialogs, and what a person is told before values are stored.

#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "tests/support/DecimalSeparator.h"
#include "tests/support/DialogTest.h"
#include "tests/support/PasteRows.h"

#include <limits>
#include <tuple>
#include <utility>

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

/// R0 alone.
class PastedRowsTest : public DialogTest<CQuorCVD> {
protected:
    PastedRowsTest() : DialogTest(CONV_CVD) { settings->SetNumCoefficients(1); }
};

} // namespace

// One number

TEST_F(PastedRowsTest, ABoxGetsTheNumberOfEveryTextOrStaysAsItIs) {
    std::size_t pasted = 0;
    for (const std::wstring separator : {L".", L",", L"\u066B"}) {
        const FreshDecimalSeparator another;
        platform->SetDecimalSeparator(separator);
        Edit([&](Person& person) {
            ForEachPaste([&](const PasteRow& row, const std::wstring& under, const std::wstring& number) {
                if (under != separator)
                    return;
                ++pasted;
                SCOPED_TRACE(testing::PrintToString(std::wstring(row.text)) + " under " +
                             testing::PrintToString(separator));
                person.Paste(L"R0", L"7");
                ASSERT_EQ(person.Reads(L"R0"), L"7");
                ASSERT_EQ(person.Advice(L"R0"), L"");
                person.Paste(L"R0", row.text);
                EXPECT_EQ(person.Reads(L"R0"), IsTaken(row) ? number : L"7");
                // Of a clipboard without any text nothing comes.
                EXPECT_EQ(person.Advice(L"R0"), *row.text ? ExpectedAdvice(row, number) : L"");
            });
            person.Click(L"Cancel");
        });
    }
    EXPECT_GE(pasted, std::size(pasteRows)) << "every row, most of them under two separators";
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

TEST_F(PasteTest, DigitsTakeThePlaceOfThePartThatIsSelectedAndTheWholeIsTold) {
    Edit([](Person& person) {
        auto& box = dynamic_cast<TextBox&>(*person.Sees().Find(L"txtCoefficients(0)"));
        person.Type(L"R0", L"100.01");
        box.SetSelection(1, 2);
        person.PasteHere(L"2");
        EXPECT_EQ(person.Reads(L"R0"), L"12.01");
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted as 12.01");
        box.SetSelection(1, 1);
        person.PasteHere(L"2.5");
        EXPECT_EQ(person.Reads(L"R0"), L"12.01");
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted as 12.01. Nothing pasted: 12.5.01 is not a number");
        person.Type(L"R0", L"-0.00058");
        box.SetSelection(1, 7);
        person.PasteHere(L"0.1109");
        EXPECT_EQ(person.Reads(L"R0"), L"-0.1109");
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted as -0.1109");
        person.Type(L"R0", L"3.9083E-3");
        box.SetSelection(0, 6);
        person.PasteHere(L"25.5");
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted as 25.5E-3");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ANumberWithASignExponentUnitOrNameTakesThePlaceOfTheWholeText) {
    for (const auto& [typed, start, length, text, reads] :
         {std::tuple(L"0.00001284", 0, 9, L"1.3E-5", L"1.3E-5"),
          std::tuple(L"0.00001284", 0, 9, L"-1.5", L"-1.5"),
          std::tuple(L"-0.00058", 1, 7, L"R0 = 0.1109", L"0.1109"),
          std::tuple(L"-100.01", 1, 3, L"25.5 ohm", L"25.5")})
        Edit([&, typed = typed, start = start, length = length, text = text, reads = reads](Person& person) {
            auto& box = dynamic_cast<TextBox&>(*person.Sees().Find(L"txtCoefficients(0)"));
            person.Type(L"R0", typed);
            box.SetSelection(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
            person.PasteHere(text);
            EXPECT_EQ(person.Reads(L"R0"), reads);
            EXPECT_EQ(person.Advice(L"R0"), L"Pasted as " + std::wstring(reads));
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

// What the text says the number to be

TEST_F(PasteTest, ANumberUnderTheNameOfItsBoxIsPastedWithoutAWord) {
    for (const auto& [box, text] : {
             std::pair(L"R0", L"R0 = 101"),
             std::pair(L"R0", L"R\u2080 = 101 \u03A9"),
             std::pair(L"R0", L"r_0 [\u03A9]: 101"),
             std::pair(L"R0", L"R(0 \u00B0C) / ohm = 101"),
             std::pair(L"R0", L"R(273.15 K) = 101 \u03A9"),
             std::pair(L"ALPHA", L"\u03B1 = 3.85E-3 \u00B0C\u207B\u00B9"),
             std::pair(L"ALPHA", L"Coefficient alpha: 3.85E-3 K^-1"),
             std::pair(L"DELTA", L"\u03B4 = 1.6"),
             std::pair(L"BETA", L"Beta = 0.11"),
         })
        Edit([&, box = box, text = text](Person& person) {
            SCOPED_TRACE(testing::PrintToString(text));
            person.Paste(box, text);
            EXPECT_EQ(person.Advice(box), L"");
            EXPECT_NE(Boxes(person), untouched);
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, ANumberUnderAnotherNameIsPastedAndToldWhereFrom) {
    for (const wchar_t* const text :
         {L"\u03B1 = 3.85E-3", L"A = 3.9083E-3", L"R(TPW) = 100.0123", L"R1 = 100.0123", L"k = 2",
          L"U = 0.02", L"Serial: 417", L"t90: 30", L"R(100 \u00B0C) = 138.5"})
        Edit([&](Person& person) {
            person.Paste(L"R0", text);
            EXPECT_EQ(person.Advice(L"R0"), L"Pasted from " + std::wstring(text));
            EXPECT_NE(person.Reads(L"R0"), L"100");
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, ANumberInAnotherUnitIsPastedAndToldWhereFrom) {
    settings->SetUsePolynomial(true);
    for (const auto& [box, text, isTold] : {
             std::tuple(L"R0", L"25.5 mV", true),
             std::tuple(L"R0", L"25.5 \u00B0C", true),
             std::tuple(L"R0", L"R0/mV = 25.5", true),
             std::tuple(L"A", L"-5.775E-7 \u00B0C\u207B\u00B2", true),
             std::tuple(L"A", L"3.9083E-3 K^-1", false),
             std::tuple(L"B", L"-5.775E-7 1/\u00B0C", true),
             std::tuple(L"B", L"B = -5.775E-7 K^-2", false),
             std::tuple(L"C", L"-4.183E-12 \u00B0C\u207B\u2074", false),
         })
        Edit([&, box = box, text = text, isTold = isTold](Person& person) {
            person.Paste(box, text);
            EXPECT_EQ(person.Advice(box), isTold ? L"Pasted from " + std::wstring(text) : L"")
                << testing::PrintToString(text);
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, WhatWasToldOfAPasteIsToldUntilTheNumberIsChanged) {
    settings->SetValueFormat(0, L"0.00");
    Edit([](Person& person) {
        person.Paste(L"R0", L" B = 1.239 ");
        EXPECT_EQ(person.Advice(L"R0"),
                  L"1.24 would be stored for 1.239. Pasted from B = 1.239. Pasted as 1.239");
        person.Paste(L"R0", L"B = 1.24");
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted from B = 1.24");
        person.Tab();
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted from B = 1.24") << "also when the box is left";
        person.Type(L"R0", L"1.24");
        EXPECT_EQ(person.Advice(L"R0"), L"");
        person.Paste(L"ALPHA", L"B = 5");
        person.Paste(L"ALPHA", L"5");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, WhatWasToldOfAPasteIsForgottenWithTheNumber) {
    NextFileHolds([](CQuorCVD& cvd) {
        cvd.SetNumCoefficients(4);
        cvd.SetCoefficients(0, 25);
    });
    Edit([](Person& person) {
        person.Paste(L"R0", L"B = 1.24");
        person.Click(L"Open");
        EXPECT_EQ(person.Reads(L"R0"), L"25");
        EXPECT_EQ(person.Advice(L"R0"), L"");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, OfSeveralNumbersEachIsHeldAgainstItsOwnBox) {
    Edit([](Person& person) {
        person.Paste(L"R0", L"R0 = 100.0123\nDELTA = 1.5\nALPHA = 0.00385\nBETA = 0.1");
        EXPECT_EQ(Boxes(person), (Texts{L"100.0123", L"1.5", L"0.00385", L"0.1"}));
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted as 100.0123");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"Pasted from DELTA = 1.5. Pasted as 1.5");
        EXPECT_EQ(person.Advice(L"DELTA"), L"Pasted from ALPHA = 0.00385. Pasted as 0.00385");
        EXPECT_EQ(person.Advice(L"BETA"), L"Pasted as 0.1");
        person.Click(L"Cancel");
    });
}

class PastedRangeTest : public DialogTest<CQuorITS90> {
protected:
    PastedRangeTest() : DialogTest(CONV_ITS90) {
        settings->SetRTPW(25);
        settings->LowRange()->SetRange(ITS90_RANGE_4);
        settings->HighRange()->SetRange(ITS90_RANGE_7);
    }
    FreshDecimalSeparator fresh;
};

TEST_F(PastedRangeTest, TheNamesOfACertificateAreThoseOfTheRows) {
    for (const auto& [box, text, isTold] : {
             std::tuple(L"RTPW", L"R(TPW) = 25.5", false),
             std::tuple(L"RTPW", L"R_TPW = 25.5 \u03A9", false),
             std::tuple(L"RTPW", L"R(0.01 \u00B0C) = 25.5 \u03A9", false),
             std::tuple(L"RTPW", L"R(273,16 K) = 25.5", false),
             std::tuple(L"RTPW", L"R(H\u2082O) = 25.5", false),
             std::tuple(L"RTPW", L"R0 = 25.5", true),
             std::tuple(L"A[4]", L"a4 = -1.5E-4", false),
             std::tuple(L"A[4]", L"a\u2084 = -1.5E-4", false),
             std::tuple(L"A[4]", L"a_4 = -1.5E-4", false),
             std::tuple(L"A[4]", L"a(4): -1.5E-4", false),
             std::tuple(L"A[4]", L"a = -1.5E-4", false),
             std::tuple(L"A[4]", L"a8 = -1.5E-4", true),
             std::tuple(L"A[4]", L"b4 = -1.5E-4", true),
             std::tuple(L"B[4]", L"a4 = -1.5E-4", true),
         })
        Edit([&, box = box, text = text, isTold = isTold](Person& person) {
            person.Paste(box, text);
            EXPECT_EQ(person.Advice(box), isTold ? L"Pasted from " + std::wstring(text) : L"")
                << testing::PrintToString(text);
            person.Click(L"Cancel");
        });
}

TEST_F(PastedRangeTest, ALetterWithoutANumberNamesNoneOfSeveralRows) {
    settings->LowRange()->SetRange(ITS90_RANGE_1);
    Edit([](Person& person) {
        person.Paste(L"C[1]", L"c = 2E-6");
        EXPECT_EQ(person.Advice(L"C[1]"), L"Pasted from c = 2E-6");
        person.Paste(L"C[1]", L"c1 = 2E-6");
        EXPECT_EQ(person.Advice(L"C[1]"), L"");
        person.Click(L"Cancel");
    });
}

TEST_F(PastedPointsTest, AUnitIsHeldAgainstTheOneBehindTheBox) {
    Edit([](Person& person) {
        person.Paste(L"Temperature 1", L"25.5 \u00B0C");
        EXPECT_EQ(person.Advice(L"Temperature 1"), L"");
        person.Paste(L"Temperature 1", L"298.65 K");
        EXPECT_EQ(person.Advice(L"Temperature 1"), L"Pasted from 298.65 K");
        person.Paste(L"Voltage 1", L"4.0962 mV");
        EXPECT_EQ(person.Advice(L"Voltage 1"), L"");
        person.Paste(L"Voltage 1", L"25.5 \u00B0C");
        EXPECT_EQ(person.Advice(L"Voltage 1"), L"Pasted from 25.5 \u00B0C");
        person.Paste(L"Temperature 2", L"Temperature 2: 25");
        EXPECT_EQ(person.Advice(L"Temperature 2"), L"");
        person.Paste(L"Temperature 2", L"Temperature 3: 25");
        EXPECT_EQ(person.Advice(L"Temperature 2"), L"Pasted from Temperature 3: 25");
        person.Click(L"Cancel");
    });
}

TEST_F(PastedPointsTest, AUnitOfTheHostsOwnIsAnotherThanThoseThatAreRead) {
    settings->SetVoltageScale(L"\u00B5V");
    Edit([](Person& person) {
        person.Paste(L"Voltage 1", L"4.0962 mV");
        EXPECT_EQ(person.Advice(L"Voltage 1"), L"Pasted from 4.0962 mV");
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
        person.Paste(L"R0", L"1\t2\t3\t4");
        EXPECT_EQ(Boxes(person), (Texts{L"1", L"2", L"3", L"4"}));
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, OfSeveralCellsEachBoxTellsItsOwn) {
    Edit([](Person& person) {
        person.Paste(L"R0", L"100.01\t0.002"); // a value and its uncertainty
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted as 100.01");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"Pasted as 0.002");
        EXPECT_EQ(person.Advice(L"DELTA"), L"");
        person.Type(L"ALPHA", L"0.0039");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted as 100.01");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, AListTakesNoSeveralLinesWithSeveralColumns) {
    for (const wchar_t* const text : {L"1\t100.01\n2\t0.0039", L"1\t100.01\n0.0039"})
        Edit([&](Person& person) {
            person.Paste(L"R0", text);
            EXPECT_EQ(Boxes(person), untouched);
            EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: 1\\t100.01 can be read in two ways");
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, AColumnAtTheEdgeThatIsEmptyOnEveryLineIsNone) {
    for (const wchar_t* const text : {L"1.5\t\n2.5\t \n", L"\t1.5\n\t2.5", L"\t1.5\t\t\n \t2.5\t\t\n"})
        Edit([&](Person& person) {
            person.Paste(L"R0", text);
            EXPECT_EQ(Boxes(person), (Texts{L"1.5", L"2.5", L"1.5", L"0.1"})) << testing::PrintToString(text);
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, WhatAFormatDoesToSeveralPastedNumbersIsToldOfEachBeforeItIsStored) {
    for (std::int16_t index = 0; index < 3; ++index)
        settings->SetValueFormat(index, L"0.00");
    settings->SetValueFormat(3, L"#,##0.0");
    EditAndTake([](Person& person) {
        person.Paste(L"R0", L"1.2391\n2.25\n10.003\n1234.5");
        EXPECT_EQ(Boxes(person), (Texts{L"1.2391", L"2.25", L"10.00", L"1,234.5"}));
        EXPECT_EQ(person.Advice(L"R0"), L"1.24 would be stored for 1.2391. Pasted as 1.2391");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"Pasted as 2.25");
        EXPECT_EQ(person.Advice(L"DELTA"), L"10 would be stored for 10.003. Pasted as 10.003");
        EXPECT_EQ(person.Advice(L"BETA"), L"1 would be stored for 1234.5. Pasted as 1234.5");
        person.Type(L"BETA", L"0.5");
        EXPECT_EQ(person.Advice(L"BETA"), L"");
        EXPECT_EQ(person.Reads(L"R0"), L"1.24") << "the box was left";
        EXPECT_EQ(person.Advice(L"R0"), L"1.24 would be stored for 1.2391. Pasted as 1.2391")
            << "and still tells what it held";
        person.GoTo(L"DELTA");
        person.GoTo(L"ALPHA");
        EXPECT_EQ(person.Advice(L"DELTA"), L"10 would be stored for 10.003. Pasted as 10.003");
        person.Type(L"DELTA", L"10");
        EXPECT_EQ(person.Advice(L"DELTA"), L"");
    });
    EXPECT_EQ(settings->Coefficients(0), 1.24);
    EXPECT_EQ(settings->Coefficients(1), 2.25);
    EXPECT_EQ(settings->Coefficients(2), 10);
    EXPECT_EQ(settings->Coefficients(3), 0.5);
}

TEST_F(PasteTest, OneCellThatIsNoNumberKeepsAllOthersOut) {
    Edit([](Person& person) {
        person.Paste(L"R0", L"1\n100,012\n3");
        EXPECT_EQ(Boxes(person), untouched);
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: 100,012 can be read in two ways");
        person.Paste(L"R0", L"R0\t1");
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: R0 is not a number");
        person.Paste(L"R0", L"1\n\n3");
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: the cell in line 2, column 1 is empty");
        EXPECT_EQ(Boxes(person), untouched);
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ANumberThatADocumentBreaksOverLinesIsNotPastedInParts) {
    for (const auto& [text, part, why] : {std::tuple(L"3.9083E-\n3", L"3.9083E-", L"is not a number"),
                                          std::tuple(L"\u2212\n2.35E-4", L"\u2212", L"is not a number"),
                                          std::tuple(L"100.\n012", L"100.", L"can be read in two ways"),
                                          std::tuple(L"100\n.012", L".012", L"can be read in two ways"),
                                          std::tuple(L"100\n,012", L",012", L"can be read in two ways"),
                                          std::tuple(L"1.5\n5,\n6", L"5,", L"can be read in two ways"),
                                          std::tuple(L"0.0039\n083", L"083", L"can be read in two ways"),
                                          std::tuple(L"100\n012", L"012", L"can be read in two ways"),
                                          std::tuple(L"25.48\n317", L"317", L"can be read in two ways"),
                                          std::tuple(L"100.01\n1", L"1", L"can be read in two ways"),
                                          std::tuple(L"-4.183E-1\n2", L"2", L"can be read in two ways"),
                                          std::tuple(L"1E-1\n0", L"0", L"can be read in two ways"),
                                          std::tuple(L"A = 1E+1\n20", L"20", L"can be read in two ways")})
        Edit([&, text = text, part = part, why = why](Person& person) {
            person.Paste(L"R0", text);
            EXPECT_EQ(Boxes(person), untouched);
            EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: " + std::wstring(part) + L" " + why);
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, NumbersThatAreWholeByThemselvesMayFollowEachOther) {
    for (const auto& [text, first, second] :
         {std::tuple(L"0\n100", L"0", L"100"), std::tuple(L"100\n5", L"100", L"5"),
          std::tuple(L"1.5\n0", L"1.5", L"0"), std::tuple(L"100.01\n1000", L"100.01", L"1000"),
          std::tuple(L"100.01\n-1", L"100.01", L"-1"), std::tuple(L"3.9083E-3\n100", L"3.9083E-3", L"100"),
          std::tuple(L"3.9083E-03\n1", L"3.9083E-03", L"1"),
          std::tuple(L"3.9083E-3 K^-1\n1", L"3.9083E-3", L"1"), std::tuple(L"100.01 ohm\n1", L"100.01", L"1"),
          std::tuple(L"100.01\nALPHA = 1", L"100.01", L"1"), std::tuple(L"1 234\n567.5", L"1234", L"567.5")})
        Edit([&, text = text, first = first, second = second](Person& person) {
            person.Paste(L"R0", text);
            EXPECT_EQ(Boxes(person), (Texts{first, second, L"1.5", L"0.1"}));
            EXPECT_EQ(person.Advice(L"ALPHA"), L"Pasted as " + std::wstring(second));
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, FractionsWithoutAWholePartMayFollowEachOther) {
    Edit([](Person& person) {
        person.Paste(L"R0", L"100.1\n.0039\n1.5E0\n.11");
        EXPECT_EQ(Boxes(person), (Texts{L"100.1", L".0039", L"1.5E0", L".11"}));
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, AnEmptyCellBeforeTheOthersKeepsThemFromStandingInTheWrongBoxes) {
    for (const wchar_t* const text : {L"\n5\n6", L"\t5\n1\t6", L"\r\n\t5\t6", L" \n5\n6\n", L"\t5\t6"})
        Edit([&](Person& person) {
            person.Paste(L"R0", text);
            EXPECT_EQ(Boxes(person), untouched);
            EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: the cell in line 1, column 1 is empty")
                << testing::PrintToString(text);
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, AnEmptyCellBetweenOthersKeepsThemFromStandingInTheWrongBoxes) {
    Edit([](Person& person) {
        person.Paste(L"R0", L"100.01\t\u00A0\t1.5\t0.1");
        EXPECT_EQ(Boxes(person), untouched);
        EXPECT_EQ(person.Advice(L"R0"), L"Nothing pasted: the cell in line 1, column 2 is empty");
        person.Paste(L"R0", L"100.01\t0.0039\t\t");
        EXPECT_EQ(Boxes(person), (Texts{L"100.01", L"0.0039", L"1.5", L"0.1"})) << "at its end they are none";
        person.Click(L"Cancel");
    });
}

TEST_F(PastedPointsTest, AnEmptyColumnBetweenOthersKeepsThemFromStandingInTheWrongBoxes) {
    Edit([](Person& person) {
        const Texts before = Points(person);
        person.Paste(L"Temperature 1", L"0\t\t0\n100\t\t4.096");
        EXPECT_EQ(Points(person), before);
        EXPECT_EQ(person.Advice(L"Temperature 1"), L"Nothing pasted: the cell in line 1, column 2 is empty");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, WhatWasReadIsToldAlsoOfANumberOfSomethingElse) {
    Edit([](Person& person) {
        person.Paste(L"R0", L"B = 1.240");
        EXPECT_EQ(person.Advice(L"R0"), L"Pasted from B = 1.240. Pasted as 1.240");
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
        EXPECT_EQ(person.Advice(L"ALPHA"), L"Pasted as 1");
        person.Click(L"Cancel");
    });
}

TEST_F(PastedPointsTest, ColumnsAndLinesFillTheGridAsTheyStand) {
    EditAndTake([](Person& person) {
        person.Paste(L"Temperature 1", L"0\t0\r\n100\t4.096\r\n200\t8.138\r\n");
        EXPECT_EQ(Points(person), (Texts{L"0 0", L"100 4.096", L"200 8.138"}));
        person.Paste(L"Voltage 2", L"5\n6\n");
        EXPECT_EQ(Points(person), (Texts{L"0 0", L"100 5", L"200 6"}));
        EXPECT_EQ(person.Advice(L"Voltage 3"), L"Pasted as 6");
        person.Paste(L"Temperature 3", L"300\t7");
        EXPECT_EQ(Points(person), (Texts{L"0 0", L"100 5", L"300 7"}));
    });
    EXPECT_EQ(settings->Temperatures(2), 300);
    EXPECT_EQ(settings->Voltages(2), 7);
}

TEST_F(PastedPointsTest, RowNumbersInTheFirstColumnAreTold) {
    Edit([](Person& person) {
        person.Paste(L"Temperature 1", L"1\t100.5\n2\t200.5");
        EXPECT_EQ(person.Advice(L"Temperature 1"), L"Pasted as 1");
        EXPECT_EQ(person.Advice(L"Voltage 2"), L"Pasted as 200.5");
        person.Click(L"Cancel");
    });
}

TEST_F(PastedPointsTest, NoColumnOrLineGoesPastTheGrid) {
    Edit([](Person& person) {
        const Texts before = Points(person);
        for (const auto& [box, text] :
             {std::pair(L"Voltage 1", L"1\t2"), std::pair(L"Temperature 2", L"1\n2\n3"),
              std::pair(L"Temperature 1", L"1\t2\t3"), std::pair(L"Temperature 1", L"1\t2\n\t4")}) {
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

TEST_F(PasteTest, ACommaThatIsSwallowedIsToldUnlessItGroupsInFrontOfThePoint) {
    const std::wstring advice = L"The decimal separator here is the point";
    for (const auto& [typed, reads, isTold] : {
             std::tuple(L"1.234,5", L"1.2345", true),
             std::tuple(L"1.234,56", L"1.23456", true),
             std::tuple(L"1.000,012", L"1.000012", true),
             std::tuple(L"1,5.0", L"15.0", true),
             std::tuple(L"1,234,567", L"1234567", true),
             std::tuple(L"1,234.5", L"1234.5", false),
             std::tuple(L"-1,234,567.5E-3", L"-1234567.5E-3", false),
         })
        Edit([&, typed = typed, reads = reads, isTold = isTold](Person& person) {
            SCOPED_TRACE(testing::PrintToString(typed));
            person.Type(L"R0", typed);
            EXPECT_EQ(person.Reads(L"R0"), reads);
            EXPECT_EQ(person.Advice(L"R0"), isTold ? advice : L"");
            person.Tab();
            EXPECT_EQ(person.Advice(L"R0"), isTold ? advice : L"") << "also when the box is left";
            person.Type(L"R0", L"5");
            EXPECT_EQ(person.Advice(L"R0"), L"");
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, AKeyThatIsSwallowedIsToldUntilTheTextIsReplaced) {
    for (const auto& [typed, reads, keys] : {
             std::tuple(L"3.9083x103", L"3.9083103", L"x"),
             std::tuple(L"100(2)", L"1002", L"()"),
             std::tuple(L"1/2", L"12", L"/"),
             std::tuple(L"1:5", L"15", L":"),
             std::tuple(L"1\u00B75", L"15", L"\u00B7"),
             std::tuple(L"\u22125", L"5", L"\u2212"),
             std::tuple(L"\u20135", L"5", L"\u2013"),
             std::tuple(L"\uFF0D5", L"5", L"\uFF0D"),
             std::tuple(L"\uFF11\uFF125", L"5", L"\uFF11\uFF12"),
             std::tuple(L"5k\u03A9", L"5", L"k\u03A9"),
             std::tuple(L"50%", L"50", L"%"),
         })
        Edit([&, typed = typed, reads = reads, keys = keys](Person& person) {
            SCOPED_TRACE(testing::PrintToString(typed));
            const std::wstring advice = L"\"" + std::wstring(keys) + L"\" cannot be typed here";
            person.Type(L"R0", typed);
            EXPECT_EQ(person.Reads(L"R0"), reads);
            EXPECT_EQ(person.Advice(L"R0"), advice);
            person.TypeHere(L"7");
            EXPECT_EQ(person.Advice(L"R0"), advice);
            person.Tab();
            EXPECT_EQ(person.Advice(L"R0"), advice);
            person.Type(L"R0", L"7");
            EXPECT_EQ(person.Advice(L"R0"), L"");
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, SeveralBoxesTellOfTheirOwnKeys) {
    Edit([](Person& person) {
        person.Type(L"R0", L"1,5/2");
        person.Type(L"ALPHA", L"1(5");
        person.Type(L"R0", L"1,5/2");
        EXPECT_EQ(person.Advice(L"R0"),
                  L"The decimal separator here is the point. \"/\" cannot be typed here");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"\"(\" cannot be typed here");
        person.Paste(L"ALPHA", L"1(5");
        EXPECT_EQ(person.Advice(L"ALPHA"),
                  L"\"(\" cannot be typed here. Nothing pasted: 1(5 is not a number");
        person.Paste(L"ALPHA", L"15");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, AKeyThatIsSwallowedIsForgottenWhereItWouldHaveBeenDeleted) {
    constexpr std::int16_t backspace = 8;
    Edit([](Person& person) {
        person.Type(L"R0", L"12x3");
        person.Press(backspace);
        EXPECT_EQ(person.Advice(L"R0"), L"\"x\" cannot be typed here");
        person.Press(backspace);
        EXPECT_EQ(person.Reads(L"R0"), L"1");
        EXPECT_EQ(person.Advice(L"R0"), L"");
        person.TypeHere(L"x");
        person.Press(backspace);
        EXPECT_EQ(person.Advice(L"R0"), L"Not a number: 0 would be stored") << "the box is empty";
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, UndoBringsATextBackWithWhatWasToldOfIt) {
    constexpr std::int16_t backspace = 8;
    constexpr std::int16_t undo = 26;
    settings->SetValueFormat(3, L"0.00");
    Edit([](Person& person) {
        const auto comesBack = [&person](const std::wstring& box, const std::wstring& control,
                                         const std::wstring& text, const std::wstring& advice) {
            SCOPED_TRACE(testing::PrintToString(box));
            person.GoTo(box);
            dynamic_cast<TextBox&>(*person.Sees().Find(control)).SetSelection(0, text.size());
            EXPECT_EQ(person.Advice(box), advice);
            person.Press(backspace);
            EXPECT_EQ(person.Advice(box), L"Not a number: 0 would be stored");
            person.Press(undo);
            EXPECT_EQ(person.Reads(box), text);
            EXPECT_EQ(person.Advice(box), advice);
        };
        const std::wstring separator = L"The decimal separator here is the point";
        person.Type(L"ALPHA", L"0,00385");
        comesBack(L"ALPHA", L"txtCoefficients(1)", L"000385", separator);
        person.Paste(L"DELTA", L"10.000");
        comesBack(L"DELTA", L"txtCoefficients(2)", L"10.000", L"Pasted as 10.000");
        person.Type(L"BETA", L"1.239");
        person.GoTo(L"R0");
        comesBack(L"BETA", L"txtCoefficients(3)", L"1.24", L"1.24 would be stored for 1.239");
        person.Type(L"R0", L"5/2");
        person.Paste(L"R0", L"7");
        EXPECT_EQ(person.Advice(L"R0"), L"");
        person.Press(undo);
        EXPECT_EQ(person.Reads(L"R0"), L"52");
        EXPECT_EQ(person.Advice(L"R0"), L"\"/\" cannot be typed here");
        person.Type(L"R0", L"52");
        EXPECT_EQ(person.Advice(L"R0"), L"") << "the same text, without the key";
        person.Type(L"R0", L"5/");
        EXPECT_EQ(person.Advice(L"R0"), L"\"/\" cannot be typed here");
        person.Press(undo);
        EXPECT_EQ(person.Reads(L"R0"), L"52");
        EXPECT_EQ(person.Advice(L"R0"), L"") << "the key was pressed in another text";
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, BlanksAndApostrophesBetweenDigitsAreNotMissed) {
    for (const wchar_t* const typed : {L"1 234.5", L"1'234.5", L"1\u2019234.5", L"1\u00A0234.5"})
        Edit([&](Person& person) {
            person.Type(L"R0", typed);
            EXPECT_EQ(person.Reads(L"R0"), L"1234.5");
            EXPECT_EQ(person.Advice(L"R0"), L"");
            person.Click(L"Cancel");
        });
    Edit([&](Person& person) {
        person.Type(L"R0", L"1.5E 3");
        EXPECT_EQ(person.Advice(L"R0"), L"\"\u2423\" cannot be typed here");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ABlankOrApostropheThatGroupsNothingIsTold) {
    for (const auto& [typed, reads, key] :
         {std::tuple(L"3.9083 10E-3", L"3.908310E-3", L"\u2423"),
          std::tuple(L"12 34.5", L"1234.5", L"\u2423"), std::tuple(L"1'5", L"15", L"'"),
          std::tuple(L"100.01 2", L"100.012", L"\u2423"), std::tuple(L"1\u20195", L"15", L"\u2019")})
        Edit([&, typed = typed, reads = reads, key = key](Person& person) {
            SCOPED_TRACE(testing::PrintToString(typed));
            const std::wstring advice = L"\"" + std::wstring(key) + L"\" cannot be typed here";
            person.Type(L"R0", typed);
            EXPECT_EQ(person.Reads(L"R0"), reads);
            EXPECT_EQ(person.Advice(L"R0"), advice);
            person.Tab();
            EXPECT_EQ(person.Advice(L"R0"), advice);
            person.Type(L"R0", L"7");
            EXPECT_EQ(person.Advice(L"R0"), L"");
            person.Click(L"Cancel");
        });
}

TEST_F(PasteTest, ABlankAtTheEdgeOfANumberIsNotMissed) {
    for (const wchar_t* const typed : {L" 12.5", L"12.5 ", L" 1 234.5 "})
        Edit([&](Person& person) {
            person.Type(L"R0", typed);
            EXPECT_EQ(person.Advice(L"R0"), L"") << testing::PrintToString(typed);
            person.Click(L"Cancel");
        });
    Edit([](Person& person) {
        person.Type(L"R0", L"5 k\u03A9");
        EXPECT_EQ(person.Advice(L"R0"), L"\"k\u03A9\" cannot be typed here");
        person.TypeHere(L"7");
        EXPECT_EQ(person.Reads(L"R0"), L"57");
        EXPECT_EQ(person.Advice(L"R0"), L"\"\u2423k\u03A9\" cannot be typed here")
            << "it is at the edge no more";
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ABlankThatIsPressedAheadOfANewTextHidesNothingOfTheOldOne) {
    const std::wstring advice = L"The decimal separator here is the point";
    Edit([&](Person& person) {
        person.Type(L"ALPHA", L"0,00385");
        person.GoTo(L"R0");
        person.GoTo(L"ALPHA");
        person.TypeHere(L" ");
        EXPECT_EQ(person.Reads(L"ALPHA"), L"000385");
        EXPECT_EQ(person.Advice(L"ALPHA"), advice);
        person.TypeHere(L"5");
        EXPECT_EQ(person.Reads(L"ALPHA"), L"5");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"");
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, AMinusThatIsRefusedIsToldOfTheNumberThatIsPastedThen) {
    const std::wstring advice = L"\"\u2212\" cannot be typed here";
    Edit([&](Person& person) {
        person.GoTo(L"ALPHA");
        person.TypeHere(L"\u2212");
        person.PasteHere(L"0.00058");
        EXPECT_EQ(person.Reads(L"ALPHA"), L"0.00058");
        EXPECT_EQ(person.Advice(L"ALPHA"), advice);
        person.PasteHere(L"5");
        EXPECT_EQ(person.Reads(L"ALPHA"), L"5");
        EXPECT_EQ(person.Advice(L"ALPHA"), L"") << "it was meant for the number before";
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, ASeparatorStaysDoubtfulWhenTheFormatHasAddedDecimals) {
    const std::wstring advice = L"The decimal separator here is the point";
    constexpr std::int16_t backspace = 8;
    settings->SetValueFormat(0, L"0.00");
    Edit([&](Person& person) {
        person.Type(L"R0", L"1,234");
        person.GoTo(L"ALPHA");
        EXPECT_EQ(person.Reads(L"R0"), L"1234.00");
        EXPECT_EQ(person.Advice(L"R0"), advice);
        person.GoTo(L"R0");
        dynamic_cast<TextBox&>(*person.Sees().Find(L"txtCoefficients(0)")).SetSelection(7, 0);
        person.Press(backspace);
        EXPECT_EQ(person.Reads(L"R0"), L"1234.0");
        EXPECT_EQ(person.Advice(L"R0"), advice);
        person.Type(L"R0", L"1234.0");
        EXPECT_EQ(person.Advice(L"R0"), L"");
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

TEST_F(PasteTest, APointThatBecomesACommaIsToldWhereItCouldGroup) {
    platform->SetDecimalSeparator(L",");
    settings->SetValueFormat(0, L"0.00");
    Edit([](Person& person) {
        const std::wstring advice = L"The decimal separator here is ,";
        for (const auto& [typed, isTold] :
             {std::pair(L"10.000", true), std::pair(L"-1.234", true), std::pair(L"10.0", false),
              std::pair(L"0.123", false), std::pair(L"10.0001", false), std::pair(L"1.234E-7", false)}) {
            SCOPED_TRACE(testing::PrintToString(typed));
            person.Type(L"ALPHA", typed);
            EXPECT_EQ(person.Advice(L"ALPHA"), isTold ? advice : L"");
        }
        person.Type(L"R0", L"10.000");
        EXPECT_EQ(person.Reads(L"R0"), L"10,000");
        person.Tab();
        EXPECT_EQ(person.Reads(L"R0"), L"10,00");
        EXPECT_EQ(person.Advice(L"R0"), advice) << "also when the format has taken a digit away";
        person.Type(L"R0", L"10,000");
        EXPECT_EQ(person.Advice(L"R0"), L"");
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

TEST_F(PasteTest, WhatAFormatDidToAnotherTextIsForgottenWhereACommaWasRefused) {
    settings->SetValueFormat(0, L"0");
    Edit([](Person& person) {
        person.Type(L"R0", L"12.6");
        person.GoTo(L"ALPHA");
        EXPECT_EQ(person.Reads(L"R0"), L"13");
        EXPECT_EQ(person.Advice(L"R0"), L"13 would be stored for 12.6");
        person.Type(L"R0", L"13,5");
        EXPECT_EQ(person.Reads(L"R0"), L"135");
        person.GoTo(L"ALPHA");
        EXPECT_EQ(person.Advice(L"R0"), L"The decimal separator here is the point");
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

TEST_F(PasteTest, WhatAFormatHasDoneIsToldUntilItIsStored) {
    settings->SetCoefficients(0, 1.239);
    settings->SetValueFormat(0, L"0.00");
    settings->SetValueFormat(2, L"0.00");
    platform->CancelFile();
    const std::wstring advice = L"1.24 would be stored for 1.239";
    Edit([&](Person& person) {
        person.Type(L"DELTA", L"1.239");
        person.Type(L"BETA", L"1,5");
        EXPECT_EQ(person.Advice(L"R0"), advice);
        EXPECT_EQ(person.Advice(L"DELTA"), advice);
        person.Click(L"Save As");
        EXPECT_EQ(settings->Coefficients(0), 1.24);
        EXPECT_EQ(person.Advice(L"R0"), L"");
        EXPECT_EQ(person.Advice(L"DELTA"), L"");
        EXPECT_EQ(person.Advice(L"BETA"), L"The decimal separator here is the point");
        person.Click(L"Cancel");
    });
}

// A hidden value is stored in its format as a visible one is, and nobody saw it.
TEST_F(PastedRangeTest, WhatAFormatDoesOnThePageThatIsNotShownIsTold) {
    settings->HighRange()->SetCoefficients(ITS90_HIGH_A, 1.239);
    settings->HighRange()->SetValueFormat(L"0.00");
    const std::wstring line = L"\n! A[7]: 1.24 would be stored for 1.239\n";
    Edit([&](Person& person) {
        EXPECT_TRUE(person.SeesAdvice(L"1.24 would be stored for 1.239"));
        EXPECT_NE(person.Screen().find(line), std::wstring::npos) << "named: it has no row on this page";
        person.TurnTo(L"High Range");
        EXPECT_EQ(person.Screen().find(line), std::wstring::npos);
        EXPECT_NE(person.Screen().find(L"  A[7]: [1.24] ! 1.24 would be stored for 1.239\n"),
                  std::wstring::npos);
        person.Choose(L"Select high range to use", L"<none>");
        EXPECT_FALSE(person.SeesAdvice(L"1.24 would be stored for 1.239")) << "it is not stored then";
        person.Click(L"Cancel");
    });
}

TEST_F(PastedPointsTest, OfARowThatIsTakenAwayNothingIsTold) {
    Edit([](Person& person) {
        person.Type(L"Voltage 3", L"-");
        person.Choose(L"Number of points", L"2");
        EXPECT_FALSE(person.SeesAdvice(L"Not a number: 0 would be stored"));
        person.Choose(L"Number of points", L"3");
        EXPECT_TRUE(person.SeesAdvice(L"Not a number: 0 would be stored")) << "the row is there again";
        person.Click(L"Cancel");
    });
}

TEST_F(PasteTest, OfCoefficientsThatAreNotInUseNothingIsTold) {
    settings->SetCoefficients(3, 1.239);
    settings->SetValueFormat(3, L"0.00");
    settings->SetNumCoefficients(3);
    Edit([](Person& person) {
        EXPECT_FALSE(person.SeesAdvice(L"1.24 would be stored for 1.239"));
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
