#include "QuorConversions/rtd/CQuorHTPRT.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

const wchar_t* const coefficientsMessage = L"Enter valid values for all coefficients.";

class frmHTPRTSettingsTest : public DialogTest<CQuorHTPRT> {
protected:
    frmHTPRTSettingsTest() : DialogTest(CONV_HTPRT) { Set(0.25, -0.5, 0.75); }
    void Set(double rtpw, double a, double b) {
        settings->SetCoefficients(HTPRT_RTPW, rtpw);
        settings->SetCoefficients(HTPRT_A, a);
        settings->SetCoefficients(HTPRT_B, b);
    }
};

} // namespace

TEST_F(frmHTPRTSettingsTest, ShowsThreeLabelledCoefficientsEachInItsFormat) {
    settings->SetValueFormat(HTPRT_A, L"0.000");
    Look([](const Person& person) {
        EXPECT_EQ(person.Screen(), std::wstring(L"High Temperature PRT Settings\n"
                                                L"High Temperature PRT:\n"
                                                L"  RTPW: [0.25]\n"
                                                L"  A: [-0.500]\n"
                                                L"  B: [0.75]\n") +
                                       buttonsOnScreen);
        EXPECT_EQ(person.Sees().HelpContext(), 10113);
    });
}

TEST_F(frmHTPRTSettingsTest, ReformatsEachBoxByItsOwnFormat) {
    settings->SetValueFormat(HTPRT_A, L"0.000");
    settings->SetValueFormat(HTPRT_B, L"0.0");
    Edit([](Person& person) {
        person.Type(L"A", L"2");
        person.Type(L"B", L"2");
        person.Type(L"RTPW", L"2.50");
        person.Tab();
        EXPECT_EQ(All(person, L"txtCoefficients"), (Texts{L"2.50", L"2.000", L"2.0"}));
        person.Click(L"Cancel");
    });
}

TEST_F(frmHTPRTSettingsTest, RefusesTheFirstZero) {
    const struct {
        double rtpw, a, b;
        const wchar_t* focus;
    } cases[] = {
        {0, 0, 0, L"txtCoefficients(0)"}, {0, 1, 1, L"txtCoefficients(0)"},
        {1, 0, 1, L"txtCoefficients(1)"}, {1, 0, 0, L"txtCoefficients(1)"},
        {1, 1, 0, L"txtCoefficients(2)"}, {1, 1, -0.0, L"txtCoefficients(2)"},
    };
    for (const auto& c : cases) {
        Set(c.rtpw, c.a, c.b);
        ExpectRefusal(coefficientsMessage, c.focus);
    }
}

TEST_F(frmHTPRTSettingsTest, RefusesSaveAsLikeOK) {
    Set(1, 0, 1);
    platform->ExpectMessage(coefficientsMessage);
    Edit([](Person& person) {
        person.Click(L"Save As");
        EXPECT_EQ(person.Focused(), L"txtCoefficients(1)");
        person.Click(L"Cancel");
    });
    EXPECT_TRUE(platform->FileRequests().empty());
}

TEST_F(frmHTPRTSettingsTest, SelectsTheTextOfTheBoxThatIsAtFault) {
    Set(1, 0, 1);
    settings->SetValueFormat(HTPRT_A, L"0.00");
    platform->ExpectMessage(coefficientsMessage);
    Edit([](Person& person) {
        person.Click(L"OK");
        const auto& box = dynamic_cast<const TextBox&>(ControlOf(person, L"txtCoefficients(1)"));
        EXPECT_EQ(box.SelStart(), 0U);
        EXPECT_EQ(box.SelLength(), 4U);
        person.TypeHere(L"7");
        EXPECT_EQ(person.Reads(L"A"), L"7");
        person.Click(L"OK");
    });
    EXPECT_EQ(settings->Coefficients(HTPRT_A), 7.0);
}
