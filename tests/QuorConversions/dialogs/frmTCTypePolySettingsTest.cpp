#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

const wchar_t* const typeMessage = L"Select a valid thermocouple type.";

class frmTCTypePolySettingsTest : public DialogTest<CQuorTCTypePoly> {
protected:
    frmTCTypePolySettingsTest() : DialogTest(CONV_TCTYPEPOLY) {
        settings->SetTCType(TCTYPE_K);
        settings->SetCoefficients(TC_POLY_C1, 0.25);
        settings->SetChanged(false);
    }
};

} // namespace

TEST_F(frmTCTypePolySettingsTest, ShowsTheTypeAboveFourCoefficientsInOneFormat) {
    settings->SetValueFormat(L"0.00");
    Edit([](Person& person) {
        EXPECT_EQ(person.Screen(), std::wstring(L"TC Type K Settings\n"
                                                L"TC Type K:\n"
                                                L"  Type: [K v]\n"
                                                L"  C0: [0.00]\n"
                                                L"  C1: [0.25]\n"
                                                L"  C2: [0.00]\n"
                                                L"  C3: [0.00]\n") +
                                       buttonsOnScreen);
        EXPECT_EQ(person.Sees().HelpContext(), 10146);
        EXPECT_EQ(Items(person, L"cboTCType"),
                  (Texts{L"B", L"C", L"E", L"J", L"K", L"L", L"M", L"N", L"R", L"S", L"T", L"U"}));
        EXPECT_EQ(person.Focused(), L"cboTCType");
        person.Tab();
        EXPECT_EQ(person.Focused(), L"txtCoefficients(0)");
        person.Click(L"Cancel");
    });
}

TEST_F(frmTCTypePolySettingsTest, StoresTheChosenTypeAndTheCoefficients) {
    EditAndTake([&](Person& person) {
        person.Choose(L"Type", L"U");
        EXPECT_EQ(settings->TCType(), TCTYPE_K) << "not before OK";
        person.Type(L"C1", L"0");
        person.Type(L"C3", L"-2e-9");
    });
    EXPECT_EQ(settings->TCType(), TCTYPE_U);
    EXPECT_EQ(settings->Coefficients(TC_POLY_C1), 0.0);
    EXPECT_EQ(settings->Coefficients(TC_POLY_C3), -2e-9);
}

TEST_F(frmTCTypePolySettingsTest, RefusesAnObjectWhoseTypeIsNotOfferedAndKeepsIt) {
    for (const ETCType type : {TCTYPE_NONE, TCTYPE_AUPT, ETCType{13}, ETCType{-2}}) {
        SCOPED_TRACE(type);
        settings->SetTCType(type);
        settings->SetChanged(false);
        ExpectRefusal(typeMessage, L"cboTCType", [](Person& person) {
            EXPECT_EQ(person.Reads(L"cboTCType"), L"") << "nothing is selected";
            EXPECT_EQ(Visible(person, L"txtCoefficients").size(), 4U);
        });
        EXPECT_EQ(settings->TCType(), type);
        EXPECT_FALSE(settings->Changed());
    }
}

TEST_F(frmTCTypePolySettingsTest, StoresWhatWasTypedAlsoWhereNoTypeIsSelected) {
    settings->SetTCType(TCTYPE_AUPT);
    ExpectRefusal(typeMessage, L"cboTCType", [](Person& person) {
        person.Type(L"C0", L"-1.5");
        person.Type(L"C3", L"2e-9");
    });
    EXPECT_EQ(settings->TCType(), TCTYPE_AUPT);
    EXPECT_EQ(settings->Coefficients(TC_POLY_C0), -1.5);
    EXPECT_EQ(settings->Coefficients(TC_POLY_C1), 0.25);
    EXPECT_EQ(settings->Coefficients(TC_POLY_C3), 2e-9);
    EXPECT_TRUE(settings->Changed());
}

TEST_F(frmTCTypePolySettingsTest, SelectsTheTypeOfTheFileThatIsOpened) {
    NextFileHolds([](CQuorTCTypePoly& file) { file.SetTCType(TCTYPE_L); });
    EditAndTake([](Person& person) {
        person.Click(L"Open");
        EXPECT_EQ(person.Reads(L"cboTCType"), L"L");
    });
    EXPECT_EQ(settings->TCType(), TCTYPE_L);
}
