#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

class frmTCPolynomialSettingsTest : public DialogTest<CQuorTCPolynomial> {
protected:
    frmTCPolynomialSettingsTest() : DialogTest(CONV_TCPOLYNOMIAL) {
        settings->SetNumCoefficients(3);
        settings->SetCoefficients(TC_POLY_C1, 0.25);
        settings->SetmV25C(0.75);
        settings->SetChanged(false);
    }
};

} // namespace

TEST_F(frmTCPolynomialSettingsTest, ShowsTheCoefficientsInOneFormatAndNoVoltageAtFirst) {
    settings->SetValueFormat(L"0.000");
    Look([](const Person& person) {
        EXPECT_EQ(OnScreen(person), std::wstring(L"TC Polynomial Settings\n"
                                                 L"TC Polynomial:\n"
                                                 L"  C0: [0.000]\n"
                                                 L"  C1: [0.250]\n"
                                                 L"  C2: [0.000]\n") +
                                        buttonsOnScreen);
        EXPECT_FALSE(IsVisible(person, L"lblmv25C"));
        EXPECT_FALSE(IsVisible(person, L"txtmv25C"));
        EXPECT_EQ(person.Sees().HelpContext(), 10115);
    });
}

TEST_F(frmTCPolynomialSettingsTest, NumbersSixteenRows) {
    settings->SetNumCoefficients(16);
    Look([](const Person& person) {
        EXPECT_EQ(Visible(person, L"lblCoefficients"),
                  (Texts{L"C0:", L"C1:", L"C2:", L"C3:", L"C4:", L"C5:", L"C6:", L"C7:", L"C8:", L"C9:",
                         L"C10:", L"C11:", L"C12:", L"C13:", L"C14:", L"C15:"}));
        EXPECT_EQ(Visible(person, L"txtCoefficients").size(), 16U);
    });
}

TEST_F(frmTCPolynomialSettingsTest, ShowsTheVoltageAboveTheCoefficientsInItsOwnFormat) {
    settings->SetShowmV25C(true);
    settings->SetmV25CFormat(L"0.0000");
    settings->SetValueFormat(L"0.000");
    EditAndTake([](Person& person) {
        EXPECT_TRUE(person.Screen().starts_with(L"TC Polynomial Settings\nTC Polynomial:\n"
                                                L"  mV (25C): [0.7500]\n  C0: [0.000]\n"));
        EXPECT_EQ(person.Focused(), L"txtmv25C");
        person.Type(L"mV (25C)", L"1.5");
        person.Tab();
        EXPECT_EQ(person.Focused(), L"txtCoefficients(0)");
        EXPECT_EQ(person.Reads(L"txtmv25C"), L"1.5000");
    });
    EXPECT_EQ(settings->mV25C(), 1.5);
}

TEST_F(frmTCPolynomialSettingsTest, DoesNotGatherTheHiddenVoltage) {
    EditAndTake([](Person&) {});
    EXPECT_EQ(settings->mV25C(), 0.75);
    EXPECT_FALSE(settings->Changed());
}

TEST_F(frmTCPolynomialSettingsTest, TakesAnyValue) {
    settings->SetShowmV25C(true);
    EditAndTake([](Person& person) {
        person.Type(L"mV (25C)", L"e");
        person.Type(L"C1", L"0");
    });
    EXPECT_EQ(settings->mV25C(), 0.0);
    EXPECT_EQ(settings->Coefficients(TC_POLY_C1), 0.0);
}

TEST_F(frmTCPolynomialSettingsTest, EnablesNothingButCancelAndHelpWhereNothingMayBeEdited) {
    settings->SetShowmV25C(true);
    settings->SetAllowEdit(false);
    Look([](const Person& person) {
        EXPECT_EQ(EnabledControls(person), (Texts{L"cmdOKCancelHelp(1)", L"cmdOKCancelHelp(2)"}));
    });
}
