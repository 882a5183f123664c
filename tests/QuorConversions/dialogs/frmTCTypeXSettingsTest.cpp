#include "QuorConversions/thermocouple/CQuorTCTypeX.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

const wchar_t* const typeMessage = L"Select a valid thermocouple type.";

class frmTCTypeXSettingsTest : public DialogTest<CQuorTCTypeX> {
protected:
    frmTCTypeXSettingsTest() : DialogTest(CONV_TCTYPEX) {
        settings->SetTCType(TCTYPE_S);
        settings->SetCoefficients(TCTYPEX_DC1, 0.5);
        settings->SetCoefficients(TCTYPEX_DC2, 0.25);
        for (const std::int32_t i : {0, 1, 2}) {
            settings->SetTemperatures(i, 100 * (i + 1));
            settings->SetOffsets(i, 0.125 * (i + 1));
        }
        settings->SetChanged(false);
    }
    using Points = std::vector<std::pair<double, double>>;
    [[nodiscard]] Points Stored() const {
        Points points;
        for (std::int32_t i = 0; i < settings->NumPoints(); ++i)
            points.emplace_back(settings->Temperatures(i), settings->Offsets(i));
        return points;
    }
};

const wchar_t* const rowArrays[] = {L"lblPoint", L"txtTemperature", L"lblTempUnits", L"txtOffset",
                                    L"lblOffsetUnits"};

} // namespace

TEST_F(frmTCTypeXSettingsTest, ShowsTypeDCCoefficientsAndThreePoints) {
    settings->SetTempFormat(L"0.0");
    settings->SetOffsetFormat(L"0.000");
    settings->SetValueFormat(L"0.00");
    settings->SetTempScale(L"K");
    settings->SetOffsetScale(L"mK");
    Look([](const Person& person) {
        EXPECT_EQ(person.Screen(), std::wstring(L"TC Type S Settings\n"
                                                L"TC Type S:\n"
                                                L"  Type: [S v]\n"
                                                L"  DC1: [0.50]\n"
                                                L"  DC2: [0.25]\n"
                                                L"  Temperature Offset\n"
                                                L"  1 [100.0] K [0.125] mK\n"
                                                L"  2 [200.0] K [0.250] mK\n"
                                                L"  3 [300.0] K [0.375] mK\n") +
                                       buttonsOnScreen);
        EXPECT_EQ(person.Sees().HelpContext(), 10117);
    });
}

TEST_F(frmTCTypeXSettingsTest, TabsFromTheTypeOverDCCoefficientsToThePoints) {
    Edit([](Person& person) {
        EXPECT_EQ(TabOrder(person),
                  (Texts{L"cboTCType", L"txtCoefficients(0)", L"txtCoefficients(1)", L"txtTemperature(0)",
                         L"txtOffset(0)", L"txtTemperature(1)", L"txtOffset(1)", L"txtTemperature(2)",
                         L"txtOffset(2)", L"cmdOKCancelHelp(0)", L"cmdOKCancelHelp(1)", L"cmdOKCancelHelp(2)",
                         L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)"}));
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTypeXSettingsTest, ShowsTheDCCoefficientsOfTheTypesThatUseThem) {
    Edit([](Person& person) {
        EXPECT_EQ(Items(person, L"cboTCType"),
                  (Texts{L"B", L"E", L"J", L"K", L"N", L"R", L"S", L"T", L"AuPt"}));
        for (const wchar_t* const type : {L"B", L"E", L"J", L"K", L"N", L"R", L"S", L"T", L"AuPt"}) {
            person.Choose(L"Type", type);
            const std::wstring name = type;
            const bool used = name == L"R" || name == L"S" || name == L"AuPt";
            EXPECT_EQ(Visible(person, L"lblCoefficients"), used ? (Texts{L"DC1:", L"DC2:"}) : Texts{});
            EXPECT_EQ(Visible(person, L"txtCoefficients"), used ? (Texts{L"0.5", L"0.25"}) : Texts{});
        }
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTypeXSettingsTest, HidesTheDCCoefficientsOfEveryTypeWhereTheObjectDoesNotShowThem) {
    settings->SetShowDCCoefs(false);
    Edit([](Person& person) {
        for (const wchar_t* const type : {L"K", L"R", L"S", L"AuPt"}) {
            person.Choose(L"Type", type);
            EXPECT_EQ(Visible(person, L"lblCoefficients"), Texts{});
            EXPECT_EQ(Visible(person, L"txtCoefficients"), Texts{});
        }
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTypeXSettingsTest, StoresWhatIsTyped) {
    EditAndTake([](Person& person) {
        person.Type(L"DC1", L"1e-6");
        person.Type(L"Temperature 3", L"419.527");
        person.Type(L"Offset 3", L"-0.31");
    });
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC1), 1e-6);
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC2), 0.25);
    EXPECT_EQ(Stored(), (Points{{100, 0.125}, {200, 0.25}, {419.527, -0.31}}));
    EXPECT_TRUE(settings->Changed());
}

TEST_F(frmTCTypeXSettingsTest, ReformatsEachBoxByItsOwnFormat) {
    settings->SetTempFormat(L"0.0");
    settings->SetOffsetFormat(L"0.000");
    settings->SetValueFormat(L"0.00");
    Edit([](Person& person) {
        for (const wchar_t* const box : {L"DC2", L"Temperature 1", L"Offset 1"})
            person.Type(box, L"2");
        person.Tab();
        EXPECT_EQ(person.Reads(L"DC2"), L"2.00");
        EXPECT_EQ(person.Reads(L"Temperature 1"), L"2.0");
        EXPECT_EQ(person.Reads(L"Offset 1"), L"2.000");
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTypeXSettingsTest, StoresTheDCCoefficientsAlsoWhenTheyAreHidden) {
    EditAndTake([](Person& person) {
        person.Type(L"DC1", L"7");
        person.Choose(L"Type", L"K");
        EXPECT_EQ(Visible(person, L"txtCoefficients"), Texts{});
    });
    EXPECT_EQ(settings->TCType(), TCTYPE_K);
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC1), 7.0);
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC2), 0.25);
}

TEST_F(frmTCTypeXSettingsTest, TakesZerosEverywhere) {
    EditAndTake([](Person& person) {
        for (const wchar_t* const box :
             {L"DC1", L"DC2", L"Temperature 1", L"Offset 1", L"Temperature 2", L"Offset 2", L"Temperature 3"})
            person.Type(box, L"0");
        person.Type(L"Offset 3", L"e");
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {0, 0}, {0, 0}}));
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC1), 0.0);
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC2), 0.0);
}

TEST_F(frmTCTypeXSettingsTest, RefusesAnObjectWhoseTypeIsNotOfferedAndKeepsIt) {
    for (const ETCType type :
         {TCTYPE_NONE, TCTYPE_C, TCTYPE_L, TCTYPE_M, TCTYPE_U, ETCType{13}, ETCType{-2}}) {
        SCOPED_TRACE(type);
        settings->SetTCType(type);
        settings->SetChanged(false);
        ExpectRefusal(typeMessage, L"cboTCType", [](Person& person) {
            EXPECT_EQ(person.Reads(L"cboTCType"), L"") << "nothing is selected";
            EXPECT_EQ(Visible(person, L"lblCoefficients"), Texts{});
            EXPECT_EQ(Visible(person, L"txtCoefficients"), Texts{});
        });
        EXPECT_EQ(settings->TCType(), type);
        EXPECT_FALSE(settings->Changed());
    }
}

TEST_F(frmTCTypeXSettingsTest, StoresWhatWasTypedAlsoWhereNoTypeIsSelected) {
    settings->SetTCType(TCTYPE_NONE);
    ExpectRefusal(typeMessage, L"cboTCType", [](Person& person) {
        person.Type(L"Temperature 1", L"0.01");
        person.Type(L"Offset 3", L"-0.5");
    });
    EXPECT_EQ(settings->TCType(), TCTYPE_NONE);
    EXPECT_EQ(Stored(), (Points{{0.01, 0.125}, {200, 0.25}, {300, -0.5}}));
    EXPECT_TRUE(settings->Changed());
}

TEST_F(frmTCTypeXSettingsTest, StoresTheDCCoefficientsInTheirFormatAlsoWhereNoTypeIsSelected) {
    settings->SetTCType(TCTYPE_L);
    settings->SetValueFormat(L"0.0");
    ExpectRefusal(typeMessage, L"cboTCType");
    EXPECT_EQ(settings->TCType(), TCTYPE_L);
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC1), 0.5);
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC2), 0.3) << "what the hidden box shows is stored";
}

TEST_F(frmTCTypeXSettingsTest, TellsOfAValueThatCannotBeStoredBeforeItLooksAtTheType) {
    settings->SetTCType(TCTYPE_NONE);
    platform->ExpectMessage(Scripted::OnOneLine(
        ErrorReport(L"attempting to gather settings", 6, L"Overflow", L"QuorConversions")));
    EXPECT_FALSE(Edit([](Person& person) {
        person.Type(L"Offset 1", L"1e999");
        person.Click(L"OK");
        person.Click(L"Cancel");
    }));
}

TEST_F(frmTCTypeXSettingsTest, TakesATypeThatIsChosenAfterTheRefusal) {
    settings->SetTCType(TCTYPE_L);
    platform->ExpectMessage(typeMessage);
    EXPECT_TRUE(Edit([](Person& person) {
        person.Click(L"OK");
        person.Choose(L"Type", L"AuPt");
        person.Click(L"OK");
    }));
    EXPECT_EQ(settings->TCType(), TCTYPE_AUPT);
}

TEST_F(frmTCTypeXSettingsTest, HidesTheDCCoefficientsAfterOpenOfAFileWhoseTypeIsNotOffered) {
    NextFileHolds([](CQuorTCTypeX& file) { file.SetTCType(TCTYPE_U); });
    Edit([](Person& person) {
        person.Click(L"Open");
        EXPECT_EQ(person.Reads(L"cboTCType"), L"");
        EXPECT_EQ(Visible(person, L"txtCoefficients"), Texts{});
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTypeXSettingsTest, ShowsDisabledZerosForPointsThatTheObjectDoesNotHaveAndTellsNobody) {
    settings->SetTempFormat(L"0.0");
    settings->SetOffsetFormat(L"0.00");
    settings->SetNumPoints(1);
    settings->SetChanged(false);
    EditAndTake([](Person& person) {
        EXPECT_EQ(Visible(person, L"txtTemperature"), (Texts{L"100.0", L"0.0", L"0.0"}));
        EXPECT_EQ(Visible(person, L"txtOffset"), (Texts{L"0.13", L"0.00", L"0.00"}));
        for (const wchar_t* const array : rowArrays) {
            EXPECT_TRUE(IsEnabled(person, Element(array, 0)));
            EXPECT_FALSE(IsEnabled(person, Element(array, 1)));
            EXPECT_FALSE(IsEnabled(person, Element(array, 2)));
        }
    });
    EXPECT_EQ(Stored(), (Points{{100, 0.13}})) << "what is shown is stored";
    EXPECT_EQ(settings->NumPoints(), 1);
}

TEST_F(frmTCTypeXSettingsTest, DisablesAllRowsOfAnObjectWithoutPointsAndTakesItByOK) {
    settings->SetNumPoints(0);
    for (const std::int16_t count : {std::int16_t{0}, std::int16_t{-1}}) {
        if (count < 0) // the count is stored although it is refused
            EXPECT_QUOR_ERROR(settings->SetNumPoints(count), 9, L"CQuorTCTypeX", L"Subscript out of range");
        settings->SetChanged(false);
        EditAndTake([](Person& person) {
            for (const std::size_t row : {0U, 1U, 2U}) {
                EXPECT_EQ(person.Reads(Element(L"txtTemperature", row)), L"0");
                EXPECT_FALSE(IsEnabled(person, Element(L"txtTemperature", row)));
                EXPECT_FALSE(IsEnabled(person, Element(L"txtOffset", row)));
            }
        });
        EXPECT_EQ(settings->NumPoints(), count);
        EXPECT_FALSE(settings->Changed());
    }
}

TEST_F(frmTCTypeXSettingsTest, KeepsDisabledPointsOutOfTheTabOrder) {
    settings->SetNumPoints(1);
    settings->SetTCType(TCTYPE_K);
    Edit([](Person& person) {
        EXPECT_EQ(TabOrder(person), (Texts{L"cboTCType", L"txtTemperature(0)", L"txtOffset(0)",
                                           L"cmdOKCancelHelp(0)", L"cmdOKCancelHelp(1)",
                                           L"cmdOKCancelHelp(2)", L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)"}));
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTypeXSettingsTest, EnablesTheRowsAgainWhenAFileHasTheirPoints) {
    settings->SetNumPoints(0);
    NextFileHolds([](CQuorTCTypeX& file) { file.SetTCType(TCTYPE_K); });
    EditAndTake([](Person& person) {
        EXPECT_FALSE(IsEnabled(person, L"txtTemperature(0)"));
        person.Click(L"Open");
        person.Type(L"Temperature 3", L"30");
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {0, 0}, {30, 0}}));
}

TEST_F(frmTCTypeXSettingsTest, DoesNotGatherRowsThatWereDisabledWhenTheHostAddedPoints) {
    settings->SetNumPoints(2);
    EditAndTake([&](Person&) {
        settings->SetNumPoints(3);
        settings->SetTemperatures(TCTYPEX_T3, 50);
        settings->SetOffsets(TCTYPEX_ADJ3, 0.5);
    });
    EXPECT_EQ(Stored(), (Points{{100, 0.125}, {200, 0.25}, {50, 0.5}}));
}

TEST_F(frmTCTypeXSettingsTest, LeavesOutRowsWhosePointsTheHostTookAway) {
    EditAndTake([&](Person& person) {
        person.Type(L"Temperature 3", L"30");
        settings->SetNumPoints(1);
    });
    EXPECT_EQ(Stored(), (Points{{100, 0.125}}));
}

TEST_F(frmTCTypeXSettingsTest, EnablesNothingButCancelAndHelpWhereNothingMayBeEdited) {
    settings->SetAllowEdit(false);
    for (const std::int16_t points : {std::int16_t{3}, std::int16_t{1}}) {
        settings->SetNumPoints(points);
        Look([](const Person& person) {
            EXPECT_EQ(EnabledControls(person), (Texts{L"cmdOKCancelHelp(1)", L"cmdOKCancelHelp(2)"}));
        });
    }
}

// A hidden value is stored in its format as a visible one is, and nobody saw it.
TEST_F(frmTCTypeXSettingsTest, TellsWhatAFormatDoesToDCCoefficientsThatAreHidden) {
    settings->SetTCType(TCTYPE_K);
    settings->SetCoefficients(TCTYPEX_DC1, 1.239);
    settings->SetCoefficients(TCTYPEX_DC2, 0.25);
    settings->SetValueFormat(L"0.00");
    EditAndTake([](Person& person) {
        const std::wstring line = L"\n! DC1: 1.24 would be stored for 1.239\n";
        EXPECT_NE(person.Screen().find(line), std::wstring::npos);
        EXPECT_TRUE(person.SeesAdvice(L"1.24 would be stored for 1.239"));
        person.Choose(L"Type", L"S");
        EXPECT_EQ(person.Screen().find(line), std::wstring::npos) << "it stands beside its box now";
        EXPECT_NE(person.Screen().find(L"  DC1: [1.24] ! 1.24 would be stored for 1.239\n"),
                  std::wstring::npos);
        person.Choose(L"Type", L"K");
        EXPECT_NE(person.Screen().find(line), std::wstring::npos);
    });
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC1), 1.24);
    EXPECT_EQ(settings->Coefficients(TCTYPEX_DC2), 0.25);
}
