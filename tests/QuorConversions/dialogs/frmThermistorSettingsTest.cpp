#include "QuorConversions/thermistor/CQuorThermistor.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

class frmThermistorSettingsTest : public DialogTest<CQuorThermistor> {
protected:
    frmThermistorSettingsTest() : DialogTest(CONV_THERMISTORT_R) {}
};

} // namespace

TEST_F(frmThermistorSettingsTest, ShowsFourCoefficientsInOneFormat) {
    settings->SetCoefficients(THRM_A1, 0.25);
    settings->SetValueFormat(L"0.00");
    Look([](const Person& person) {
        EXPECT_EQ(person.Screen(), std::wstring(L"Thermistor T(R) Settings\n"
                                                L"Thermistor T(R):\n"
                                                L"  A0: [0.00]\n"
                                                L"  A1: [0.25]\n"
                                                L"  A2: [0.00]\n"
                                                L"  A3: [0.00]\n") +
                                       buttonsOnScreen);
        EXPECT_EQ(person.Sees().HelpContext(), 10114);
    });
}

TEST_F(frmThermistorSettingsTest, LettersTheCoefficientsByTheDirection) {
    const Texts a{L"A0:", L"A1:", L"A2:", L"A3:"};
    const Texts b{L"B0:", L"B1:", L"B2:", L"B3:"};
    for (const auto& [direction, labels] : {std::pair{TCT_THRMT_R, a},
                                            {TCT_THRMR_T, b},
                                            {EThermistorConvType{2}, b},
                                            {EThermistorConvType{-1}, b}}) {
        settings->SetConvType(direction);
        Look([&](const Person& person) { EXPECT_EQ(All(person, L"lblCoefficients"), labels); });
    }
}

TEST_F(frmThermistorSettingsTest, LettersThemAgainWhenAFileIsOpened) {
    for (const auto& [direction, label] : {std::pair{TCT_THRMR_T, L"B0:"}, {TCT_THRMT_R, L"A0:"}}) {
        NextFileHolds([&](CQuorThermistor& file) { file.SetConvType(direction); });
        Edit([&](Person& person) {
            settings->SetConvType(direction); // by the host
            EXPECT_NE(person.Reads(L"lblCoefficients(0)"), label);
            person.Click(L"Open");
            EXPECT_EQ(person.Reads(L"lblCoefficients(0)"), label);
            person.Click(L"Cancel");
        });
    }
}

TEST_F(frmThermistorSettingsTest, TakesAnyValue) {
    settings->SetCoefficients(THRM_A3, 1);
    EditAndTake([](Person& person) {
        person.Type(L"A0", L"-5e-3");
        person.Type(L"A3", L"e");
    });
    EXPECT_EQ(settings->Coefficients(THRM_A0), -5e-3);
    EXPECT_EQ(settings->Coefficients(THRM_A3), 0.0);
}
