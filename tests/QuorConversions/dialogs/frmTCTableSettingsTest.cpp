#include "QuorConversions/thermocouple/CQuorTCTable.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

using Points = std::vector<std::pair<double, double>>;

class frmTCTableSettingsTest : public DialogTest<CQuorTCTable> {
protected:
    frmTCTableSettingsTest() : DialogTest(CONV_TCTABLE) {
        Set(*settings, {{0, 0}, {100, 4.096}, {200, 8.138}});
        settings->SetChanged(false);
    }
    static void Set(CQuorTCTable& table, const Points& points) {
        table.SetNumPoints(static_cast<std::int16_t>(points.size()));
        for (std::size_t i = 0; i < points.size(); ++i) {
            table.SetTemperatures(static_cast<std::int32_t>(i), points[i].first);
            table.SetVoltages(static_cast<std::int32_t>(i), points[i].second);
        }
    }
    [[nodiscard]] Points Stored() const {
        Points points;
        for (std::int32_t i = 0; i < settings->NumPoints(); ++i)
            points.emplace_back(settings->Temperatures(i), settings->Voltages(i));
        return points;
    }
};

const wchar_t* const rowArrays[] = {L"lblPoint", L"txtTemperature", L"lblTempUnits", L"txtVoltage",
                                    L"lblVoltageUnits"};

} // namespace

TEST_F(frmTCTableSettingsTest, ShowsAsManyPointsAsTheTableHas) {
    settings->SetTempFormat(L"0.0");
    settings->SetVoltageFormat(L"0.0000");
    settings->SetTempScale(L"K");
    settings->SetVoltageScale(L"uV");
    Look([](const Person& person) {
        EXPECT_EQ(OnScreen(person), std::wstring(L"TC Table Settings\n"
                                                 L"TC Table:\n"
                                                 L"  Number of points: [3 v]\n"
                                                 L"  Temperature Voltage\n"
                                                 L"  1 [0.0] K [0.0000] uV\n"
                                                 L"  2 [100.0] K [4.0960] uV\n"
                                                 L"  3 [200.0] K [8.1380] uV\n") +
                                        buttonsOnScreen);
        EXPECT_EQ(All(person, L"lblPoint"),
                  (Texts{L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"10"}));
        EXPECT_EQ(All(person, L"lblTempUnits"), Texts(10, L"K"));
        EXPECT_EQ(All(person, L"lblVoltageUnits"), Texts(10, L"uV"));
        EXPECT_EQ(person.Sees().HelpContext(), 10116);
    });
}

TEST_F(frmTCTableSettingsTest, TabsRowByRow) {
    settings->SetNumPoints(2);
    Edit([](Person& person) {
        EXPECT_EQ(TabOrder(person),
                  (Texts{L"cboNumPoints", L"txtTemperature(0)", L"txtVoltage(0)", L"txtTemperature(1)",
                         L"txtVoltage(1)", L"cmdOKCancelHelp(0)", L"cmdOKCancelHelp(1)",
                         L"cmdOKCancelHelp(2)", L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)"}));
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTableSettingsTest, StoresWhatIsTypedAndReformatsEachColumnByItsOwnFormat) {
    settings->SetTempFormat(L"0.0");
    settings->SetVoltageFormat(L"0.000");
    EditAndTake([](Person& person) {
        person.Type(L"Temperature 2", L"99.25");
        person.Type(L"Voltage 2", L"4.1");
        person.Tab();
        EXPECT_EQ(person.Reads(L"Temperature 2"), L"99.3");
        EXPECT_EQ(person.Reads(L"Voltage 2"), L"4.100");
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {99.3, 4.1}, {200, 8.138}}));
}

TEST_F(frmTCTableSettingsTest, ShowsExactlyTheRowsOfTheChosenCount) {
    Edit([](Person& person) {
        EXPECT_EQ(Items(person, L"cboNumPoints"),
                  (Texts{L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"10"}));
        for (std::size_t count = 1; count <= 10; ++count) {
            person.Choose(L"Number of points", std::to_wstring(count));
            for (const wchar_t* const array : rowArrays)
                EXPECT_EQ(Visible(person, array).size(), count);
        }
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTableSettingsTest, ShowsZeroInTheFormatOfTheColumnForPointsThatTheTableDoesNotHave) {
    settings->SetTempFormat(L"0.0");
    settings->SetVoltageFormat(L"0.00");
    settings->SetNumPoints(1);
    settings->SetChanged(false);
    EditAndTake([](Person& person) {
        person.Choose(L"Number of points", L"3");
        EXPECT_EQ(Visible(person, L"txtTemperature"), (Texts{L"0.0", L"0.0", L"0.0"}));
        EXPECT_EQ(Visible(person, L"txtVoltage"), (Texts{L"0.00", L"0.00", L"0.00"}));
        person.Type(L"Voltage 2", L"7");
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {0, 7}, {0, 0}}));
}

TEST_F(frmTCTableSettingsTest, BringsHiddenValuesBackWhenMorePointsAreChosenAgain) {
    EditAndTake([](Person& person) {
        person.Type(L"Temperature 3", L"210");
        person.Choose(L"Number of points", L"1");
        EXPECT_EQ(Visible(person, L"txtTemperature"), Texts{L"0"});
        person.Choose(L"Number of points", L"3");
        EXPECT_EQ(Visible(person, L"txtTemperature"), (Texts{L"0", L"100", L"210"}));
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {100, 4.096}, {210, 8.138}}));
}

TEST_F(frmTCTableSettingsTest, LeavesTheTableAloneUntilOKShrinksIt) {
    EditAndTake([&](Person& person) {
        person.Choose(L"Number of points", L"2");
        EXPECT_EQ(settings->NumPoints(), 3);
        EXPECT_FALSE(settings->Changed());
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {100, 4.096}}));
    EXPECT_TRUE(settings->Changed());
}

TEST_F(frmTCTableSettingsTest, TakesPointsBackFromTheBoxesAfterSaveAsShrankTheTable) {
    platform->CancelFile();
    EditAndTake([&](Person& person) {
        person.Choose(L"Number of points", L"1");
        person.Click(L"Save As");
        EXPECT_EQ(settings->NumPoints(), 1) << "what was gathered stays, also when no file was chosen";
        person.Choose(L"Number of points", L"3");
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {100, 4.096}, {200, 8.138}}));
}

TEST_F(frmTCTableSettingsTest, TakesAnyValueAlsoATemperatureOfZero) {
    Set(*settings, {{100, 0}, {100, 0}});
    EditAndTake([](Person& person) {
        person.Type(L"Temperature 1", L"0");
        person.Type(L"Temperature 2", L"e");
        person.Type(L"Voltage 2", L"-1");
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {0, -1}}));
}

TEST_F(frmTCTableSettingsTest, HasNoRowsForATableWithoutPointsAndKeepsItsCount) {
    settings->SetNumPoints(0);
    for (const std::int16_t count : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{-32768}}) {
        if (count < 0) // the count is stored although it is refused
            EXPECT_QUOR_ERROR(settings->SetNumPoints(count), 9, L"CQuorTCTable", L"Subscript out of range");
        settings->SetChanged(false);
        EditAndTake([](Person& person) {
            EXPECT_EQ(person.Reads(L"cboNumPoints"), L"");
            for (const wchar_t* const array : rowArrays)
                EXPECT_EQ(Visible(person, array), Texts{});
        });
        EXPECT_EQ(settings->NumPoints(), count);
        EXPECT_FALSE(settings->Changed());
    }
}

TEST_F(frmTCTableSettingsTest, GivesPointsToATableThatHadNone) {
    settings->SetNumPoints(0);
    EditAndTake([](Person& person) {
        person.Choose(L"cboNumPoints", L"1");
        person.Type(L"Temperature 1", L"25");
    });
    EXPECT_EQ(Stored(), (Points{{25, 0}}));
}

TEST_F(frmTCTableSettingsTest, ShowsNothingOfTheOldTableAfterOpen) {
    NextFileHolds([](CQuorTCTable& file) { Set(file, {{-5, -0.2}}); });
    EditAndTake([](Person& person) {
        person.Click(L"Open");
        EXPECT_EQ(person.Reads(L"cboNumPoints"), L"1");
        EXPECT_EQ(Visible(person, L"txtTemperature"), Texts{L"-5"});
        person.Choose(L"Number of points", L"3");
        EXPECT_EQ(Visible(person, L"txtTemperature"), (Texts{L"-5", L"0", L"0"}));
        EXPECT_EQ(Visible(person, L"txtVoltage"), (Texts{L"-0.2", L"0", L"0"}));
    });
    EXPECT_EQ(Stored(), (Points{{-5, -0.2}, {0, 0}, {0, 0}}));
}

TEST_F(frmTCTableSettingsTest, SelectsNothingAfterOpenOfATableWithoutPoints) {
    NextFileHolds([](CQuorTCTable& file) { file.SetNumPoints(0); });
    EditAndTake([](Person& person) {
        person.Click(L"Open");
        EXPECT_EQ(person.Reads(L"cboNumPoints"), L"");
        EXPECT_EQ(Visible(person, L"txtTemperature"), Texts{});
    });
    EXPECT_EQ(settings->NumPoints(), 0);
}

TEST_F(frmTCTableSettingsTest, DoesNotGatherRowsThatWereHiddenWhenTheHostAddedPoints) {
    settings->SetNumPoints(0);
    EditAndTake([&](Person&) { Set(*settings, {{1, 2}, {3, 4}}); });
    EXPECT_EQ(Stored(), (Points{{1, 2}, {3, 4}}));
}

TEST_F(frmTCTableSettingsTest, TakesTheShownRowsAlthoughTheHostTookPointsAway) {
    EditAndTake([&](Person& person) {
        settings->SetNumPoints(1);
        person.Type(L"Temperature 3", L"201");
    });
    EXPECT_EQ(Stored(), (Points{{0, 0}, {100, 4.096}, {201, 8.138}}));
}

TEST_F(frmTCTableSettingsTest, EnablesNothingButCancelAndHelpWhereNothingMayBeEdited) {
    settings->SetAllowEdit(false);
    Look([](const Person& person) {
        EXPECT_EQ(EnabledControls(person), (Texts{L"cmdOKCancelHelp(1)", L"cmdOKCancelHelp(2)"}));
    });
}
