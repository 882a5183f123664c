#include "QuorConversions/rtd/CQuorPT100.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

class frmPT100SettingsTest : public DialogTest<CQuorPT100> {
protected:
    frmPT100SettingsTest() : DialogTest(CONV_PT100R0) {}
};

} // namespace

TEST_F(frmPT100SettingsTest, ShowsR0InItsFormat) {
    settings->SetCoefficients(PT100_R0, 100.012);
    settings->SetValueFormat(PT100_R0, L"0.0000");
    Look([](const Person& person) {
        EXPECT_EQ(person.Screen(),
                  std::wstring(L"PT100 Settings\nPT100:\n  R0: [100.0120]\n") + buttonsOnScreen);
        EXPECT_EQ(person.Sees().HelpContext(), 10145);
    });
}

TEST_F(frmPT100SettingsTest, TakesAnyValue) {
    settings->SetCoefficients(PT100_R0, 100.0);
    for (const wchar_t* const text : {L"-1", L"0", L"e"})
        EditAndTake([&](Person& person) { person.Type(L"R0", text); });
    EXPECT_EQ(settings->Coefficients(PT100_R0), 0.0);
}

TEST_F(frmPT100SettingsTest, KeepsTheCoefficientsOfACallendarVanDusenFile) {
    settings->SetNumCoefficients(4);
    settings->SetCoefficients(3, 0.5);
    EditAndTake([](Person& person) { person.Type(L"R0", L"100"); });
    EXPECT_EQ(settings->NumCoefficients(), 4);
    EXPECT_EQ(settings->Coefficients(PT100_R0), 100.0);
    EXPECT_EQ(settings->Coefficients(3), 0.5);
}
