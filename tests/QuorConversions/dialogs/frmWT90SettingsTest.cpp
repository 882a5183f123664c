#include "QuorConversions/rtd/CQuorWT90.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

const wchar_t* const rtpwMessage = L"Enter a valid RTPW value.";

class frmWT90SettingsTest : public DialogTest<CQuorWT90> {
protected:
    frmWT90SettingsTest() : DialogTest(CONV_WT90) { settings->SetRTPW(25.5); }
};

} // namespace

TEST_F(frmWT90SettingsTest, ShowsRTPWInItsFormat) {
    settings->SetRTPWFormat(L"0.000");
    Edit([](Person& person) {
        EXPECT_EQ(person.Screen(),
                  std::wstring(L"W(T90) Settings\nW(T90):\n  RTPW: [25.500]\n") + buttonsOnScreen);
        EXPECT_EQ(person.Focused(), L"txtRTPW");
        person.Type(L"RTPW", L"26");
        person.Tab();
        EXPECT_EQ(person.Reads(L"txtRTPW"), L"26.000");
        EXPECT_EQ(person.Sees().HelpContext(), 10118);
        person.Click(L"Cancel");
    });
}

TEST_F(frmWT90SettingsTest, StoresWhatIsTyped) {
    EditAndTake([](Person& person) { person.Type(L"RTPW", L"-100.0625"); });
    EXPECT_EQ(settings->RTPW(), -100.0625);
}

TEST_F(frmWT90SettingsTest, RefusesZero) {
    for (const wchar_t* const text : {L"0", L"-0", L"e", L"1e-400"})
        ExpectRefusal(rtpwMessage, L"txtRTPW", [&](Person& person) { person.Type(L"RTPW", text); });
    EXPECT_EQ(settings->RTPW(), 0.0) << "what was gathered stays";
}

TEST_F(frmWT90SettingsTest, EnablesNothingButCancelAndHelpWhereNothingMayBeEdited) {
    settings->SetAllowEdit(false);
    Look([](const Person& person) {
        EXPECT_EQ(EnabledControls(person), (Texts{L"cmdOKCancelHelp(1)", L"cmdOKCancelHelp(2)"}));
    });
}
