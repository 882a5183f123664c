#include "toolkits/scripted/Person.h"

#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/DecimalSeparator.h"
#include "tests/support/Objects.h"

using namespace QuorConversions;
using QuorConversions::Scripted::CannotDo;
using QuorConversions::Scripted::Person;
using QuorConversions::Scripted::ScriptedPlatform;

namespace {

class PersonTest : public testing::Test {
protected:
    Support::FreshDecimalSeparator fresh;
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorCVD> cvd = Support::NewSettings<CQuorCVD>(CONV_CVD, platform);
};

/// Expects that a person cannot do something, and why.
#define EXPECT_CANNOT(statement, why)                                                                        \
    try {                                                                                                    \
        statement;                                                                                           \
        ADD_FAILURE() << "it could be done";                                                                 \
    } catch (const CannotDo& error) {                                                                        \
        EXPECT_EQ(error.text, why);                                                                          \
    }

} // namespace

TEST_F(PersonTest, KnowsBoxesByTheirLabelAndByTheirNameInTheCode) {
    platform->InDialog([](Person& person) {
        person.Type(L"R0", L"100.5");
        person.Type(L"txtCoefficients(1)", L"0.25");
        EXPECT_EQ(person.Reads(L"txtCoefficients(0)"), L"100.5");
        EXPECT_EQ(person.Reads(L"ALPHA"), L"0.25");
        EXPECT_EQ(person.Focused(), L"txtCoefficients(1)");
        person.Escape();
    });
    EXPECT_FALSE(cvd->Edit());
}

TEST_F(PersonTest, KnowsTheBoxesOfAGridByHeadingAndNumber) {
    const auto table = Support::NewSettings<CQuorTCTable>(CONV_TCTABLE, platform);
    platform->InDialog([](Person& person) {
        person.Type(L"Temperature 2", L"20");
        person.Type(L"Voltage 10", L"4.5");
        EXPECT_EQ(person.Focused(), L"txtVoltage(9)");
        EXPECT_EQ(person.Reads(L"txtTemperature(1)"), L"20");
        person.Choose(L"Number of points", L"9");
        EXPECT_EQ(person.Reads(L"cboNumPoints"), L"9");
        EXPECT_CANNOT(person.Type(L"Voltage 10", L"5"), L"\"Voltage 10\" is hidden");
        person.Escape();
    });
    EXPECT_FALSE(table->Edit());
}

TEST_F(PersonTest, TurnsToPagesAndFindsTheBoxOfTheOneThatIsShown) {
    const auto its90 = Support::NewSettings<CQuorITS90>(CONV_ITS90, platform);
    its90->LowRange()->SetRange(ITS90_RANGE_4);
    its90->HighRange()->SetRange(ITS90_RANGE_7);
    its90->LowRange()->SetShowCoefRange(false);
    its90->HighRange()->SetShowCoefRange(false);
    platform->InDialog([](Person& person) {
        person.Type(L"A", L"1");
        person.TurnTo(L"High Range");
        person.Type(L"A", L"2");
        EXPECT_EQ(person.Reads(L"txtLowCoefficient(0)"), L"1");
        EXPECT_EQ(person.Reads(L"txtHighCoefficient(0)"), L"2");
        EXPECT_CANNOT(person.TurnTo(L"Middle Range"), L"there is no page \"Middle Range\"");
        person.Escape();
    });
    EXPECT_FALSE(its90->Edit());
}

TEST_F(PersonTest, CannotDoWhatTheDialogDoesNotOffer) {
    cvd->SetNumCoefficients(3);
    platform->InDialog([](Person& person) {
        EXPECT_CANNOT(person.Type(L"R1", L"1"), L"there is no \"R1\" in this dialog");
        EXPECT_CANNOT(person.Type(L"BETA", L"1"), L"\"BETA\" is hidden");
        EXPECT_CANNOT(person.Type(L"OK", L"1"), L"\"OK\" is no text box");
        EXPECT_CANNOT(person.Click(L"R0"), L"\"R0\" is no button");
        EXPECT_CANNOT(person.Choose(L"R0", L"1"), L"\"R0\" is no list");
        EXPECT_CANNOT((void)person.Reads(L"R1"), L"there is no \"R1\" in this dialog");
        person.Escape();
    });
    EXPECT_FALSE(cvd->Edit());
    EXPECT_TRUE(platform->NothingLeft());
}

TEST_F(PersonTest, CannotChooseWhatAListDoesNotOffer) {
    const auto thermocouple = Support::NewSettings<CQuorTCTypeX>(CONV_TCTYPEX, platform);
    platform->InDialog([](Person& person) {
        EXPECT_CANNOT(person.Choose(L"Type", L"Q"), L"\"Type\" does not offer \"Q\"");
        EXPECT_EQ(person.Reads(L"Type"), L"K");
        person.Escape();
    });
    EXPECT_FALSE(thermocouple->Edit());
}

TEST_F(PersonTest, CannotUseWhatIsDisabled) {
    cvd->SetAllowEdit(false);
    platform->InDialog([](Person& person) {
        EXPECT_CANNOT(person.Click(L"OK"), L"\"OK\" is disabled");
        EXPECT_CANNOT(person.Type(L"R0", L"1"), L"\"R0\" is disabled");
        person.Escape();
    });
    EXPECT_FALSE(cvd->Edit());
}

// What followed the click that closed the dialog was once done to nobody, without a word.
TEST_F(PersonTest, CannotDoAnythingInADialogThatIsClosed) {
    platform->InDialog([](Person& person) {
        person.Close();
        for (const auto& action : std::vector<std::function<void()>>{
                 [&] { person.Type(L"R0", L"1"); }, [&] { person.TypeHere(L"1"); }, [&] { person.Press(8); },
                 [&] { person.Tab(); }, [&] { person.Escape(); }, [&] { person.Close(); },
                 [&] { person.GoTo(L"R0"); }, [&] { person.Click(L"OK"); }})
            EXPECT_CANNOT(action(), L"the dialog is closed");
    });
    EXPECT_TRUE(cvd->Edit());
}

TEST_F(PersonTest, TypesAtTheSelectionAndErasesBackwards) {
    platform->InDialog([](Person& person) {
        constexpr std::int16_t backspace = 8;
        person.Type(L"R0", L"12x3");
        person.Press(backspace);
        EXPECT_EQ(person.Reads(L"R0"), L"12");
        person.TypeHere(L"4e1");
        EXPECT_EQ(person.Reads(L"R0"), L"124e1");
        person.Tab();
        person.Tab(true);
        person.TypeHere(L"7");
        EXPECT_EQ(person.Reads(L"R0"), L"7") << "the text was selected when the box got the focus";
        person.Tab();
        person.Tab(true);
        person.Press(backspace);
        EXPECT_EQ(person.Reads(L"R0"), L"");
        person.Press(backspace);
        EXPECT_EQ(person.Reads(L"R0"), L"");
        person.Escape();
    });
    EXPECT_FALSE(cvd->Edit());
}

TEST_F(PersonTest, SeesTheWholeDialogAsText) {
    cvd->SetNumCoefficients(2);
    cvd->SetCoefficients(CVD_R0, 100.5);
    platform->InDialog([](Person& person) {
        EXPECT_EQ(person.Screen(), L"Callendar-Van Dusen Settings\n"
                                   L"Callendar-Van Dusen:\n"
                                   L"  R0: [100.5]\n"
                                   L"  ALPHA: [0]\n"
                                   L"  <OK>\n"
                                   L"  <Cancel>\n"
                                   L"  <Help>\n"
                                   L"  <Open>\n"
                                   L"  <Save As>\n"
                                   L"hidden: lblCoefficients(2) lblCoefficients(3) txtCoefficients(2) "
                                   L"txtCoefficients(3)\n");
        person.Escape();
    });
    EXPECT_FALSE(cvd->Edit());
}

TEST_F(PersonTest, SeesARowAsALineWhateverTheTextsOfAFileHold) {
    const auto table = Support::NewSettings<CQuorTCTable>(CONV_TCTABLE, platform);
    table->SetTempScale(L"\x1B[31m\r\n\u202E\u00B0C\\n");
    platform->InDialog([](Person& person) {
        EXPECT_NE(person.Screen().find(L"\\u{1B}[31m\\r\\n\\u{202E}\u00B0C\\n"), std::wstring::npos)
            << testing::PrintToString(person.Screen());
        EXPECT_EQ(person.Screen().find(L'\x1B'), std::wstring::npos);
        EXPECT_EQ(person.Screen().find(L'\r'), std::wstring::npos);
        person.Escape();
    });
    EXPECT_FALSE(table->Edit());
}

TEST_F(PersonTest, SeesWhatIsDisabledInParentheses) {
    cvd->SetNumCoefficients(4);
    cvd->SetAllowEdit(false);
    platform->InDialog([](Person& person) {
        EXPECT_EQ(person.Screen(), L"Callendar-Van Dusen Settings\n"
                                   L"Callendar-Van Dusen:\n"
                                   L"  (R0:) ([0])\n"
                                   L"  (ALPHA:) ([0])\n"
                                   L"  (DELTA:) ([0])\n"
                                   L"  (BETA:) ([0])\n"
                                   L"  (<OK>)\n"
                                   L"  <Cancel>\n"
                                   L"  <Help>\n"
                                   L"  (<Open>)\n"
                                   L"  (<Save As>)\n");
        person.Escape();
    });
    EXPECT_FALSE(cvd->Edit());
}

TEST_F(PersonTest, IsMissedWhereADialogCameUnforeseen) {
    EXPECT_FALSE(cvd->Edit()) << "it is left by Cancel";
    EXPECT_EQ(platform->Complaints(),
              std::vector<std::wstring>{L"nobody is there for the dialog \"Callendar-Van Dusen Settings\""});
}

TEST_F(PersonTest, LeavesADialogOpenAtTheirOwnRisk) {
    platform->InDialog([](Person& person) { person.Type(L"R0", L"1"); });
    EXPECT_FALSE(cvd->Edit()) << "it is left by Cancel";
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 0.0);
    EXPECT_EQ(platform->Complaints(),
              std::vector<std::wstring>{L"the dialog \"Callendar-Van Dusen Settings\" was left open"});
    EXPECT_FALSE(platform->NothingLeft());
}
