#include "QuorConversions/rtd/CQuorIPTS68.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

const wchar_t* const coefficientsMessage = L"Enter valid values for all coefficients.";
const wchar_t* const scaleMessage = L"Select the IPTS-68 scale.";

class frmIPTS68SettingsTest : public DialogTest<CQuorIPTS68> {
protected:
    frmIPTS68SettingsTest() : DialogTest(CONV_IPTS68) { Set({100, 0.5, 1.5, 0, 0}); }
    void Set(const std::vector<double>& values) {
        for (std::size_t i = 0; i < values.size(); ++i)
            settings->SetCoefficients(static_cast<std::int32_t>(i), values[i]);
        settings->SetChanged(false);
    }
};

} // namespace

TEST_F(frmIPTS68SettingsTest, ShowsFiveLabelledCoefficientsAndNoScaleAtFirst) {
    settings->SetValueFormat(IPTS68_C4, L"0.00");
    Look([](const Person& person) {
        EXPECT_EQ(person.Screen(), std::wstring(L"IPTS-68 Settings\n"
                                                L"IPTS-68:\n"
                                                L"  R0: [100]\n"
                                                L"  ALPHA: [0.5]\n"
                                                L"  DELTA: [1.5]\n"
                                                L"  A4: [0]\n"
                                                L"  C4: [0.00]\n") +
                                       buttonsOnScreen + L"hidden: lblScale cboScale\n");
        EXPECT_EQ(person.Sees().HelpContext(), 10111);
    });
}

TEST_F(frmIPTS68SettingsTest, OffersTheScaleAboveTheCoefficients) {
    settings->SetScaleEnabled(true);
    settings->SetIPTS68Scale(SCALE_IPTS68);
    Edit([](Person& person) {
        EXPECT_TRUE(person.Screen().starts_with(L"IPTS-68 Settings\nIPTS-68:\n  Scale: [IPTS-68 v]\n  R0: "));
        EXPECT_EQ(Items(person, L"cboScale"), (Texts{L"ITS-90", L"IPTS-68"}));
        EXPECT_EQ(
            TabOrder(person),
            (Texts{L"cboScale", L"txtCoefficients(0)", L"txtCoefficients(1)", L"txtCoefficients(2)",
                   L"txtCoefficients(3)", L"txtCoefficients(4)", L"cmdOKCancelHelp(0)", L"cmdOKCancelHelp(1)",
                   L"cmdOKCancelHelp(2)", L"cmdOpenSaveAs(0)", L"cmdOpenSaveAs(1)"}));
        person.Click(L"Cancel");
    });
}

TEST_F(frmIPTS68SettingsTest, StoresTheChosenScale) {
    settings->SetScaleEnabled(true);
    EditAndTake([&](Person& person) {
        person.Choose(L"Scale", L"IPTS-68");
        EXPECT_EQ(settings->IPTS68Scale(), SCALE_ITS90) << "not before OK";
    });
    EXPECT_EQ(settings->IPTS68Scale(), SCALE_IPTS68);
    EXPECT_TRUE(settings->Changed());
}

TEST_F(frmIPTS68SettingsTest, RefusesAnUnknownScaleFirstAndKeepsIt) {
    settings->SetScaleEnabled(true);
    Set({0, 0, 0, 0, 0});
    for (const EIPTS68Scale scale : {EIPTS68Scale{2}, EIPTS68Scale{-1}, EIPTS68Scale{-2}}) {
        settings->SetIPTS68Scale(scale);
        ExpectRefusal(scaleMessage, L"cboScale");
        EXPECT_EQ(settings->IPTS68Scale(), scale);
    }
}

TEST_F(frmIPTS68SettingsTest, DoesNotLookAtTheScaleWhereItIsNotEnabled) {
    settings->SetIPTS68Scale(EIPTS68Scale{7});
    EditAndTake([](Person& person) { person.Type(L"A4", L"1"); });
    EXPECT_EQ(settings->IPTS68Scale(), 7);
    EXPECT_EQ(settings->Coefficients(IPTS68_A4), 1.0);
}

TEST_F(frmIPTS68SettingsTest, DoesNotGatherTheHiddenScale) {
    EditAndTake([&](Person&) { settings->SetIPTS68Scale(SCALE_IPTS68); });
    EXPECT_EQ(settings->IPTS68Scale(), SCALE_IPTS68);
}

TEST_F(frmIPTS68SettingsTest, RefusesTheFirstZeroAmongR0ALPHAAndDELTA) {
    const struct {
        std::vector<double> values;
        const wchar_t* focus;
    } cases[] = {
        {{0, 0, 0, 1, 1}, L"txtCoefficients(0)"},
        {{1, 0, 0, 1, 1}, L"txtCoefficients(1)"},
        {{1, 1, 0, 0, 0}, L"txtCoefficients(2)"},
    };
    for (const bool scaleEnabled : {false, true}) {
        settings->SetScaleEnabled(scaleEnabled);
        for (const auto& c : cases) {
            Set(c.values);
            ExpectRefusal(coefficientsMessage, c.focus);
        }
    }
}

TEST_F(frmIPTS68SettingsTest, TakesZerosForA4AndC4) {
    EditAndTake([](Person&) {});
    EXPECT_FALSE(settings->Changed());
}

TEST_F(frmIPTS68SettingsTest, EnablesNothingButCancelAndHelpWhereNothingMayBeEdited) {
    settings->SetAllowEdit(false);
    settings->SetScaleEnabled(true);
    Look([](const Person& person) {
        EXPECT_EQ(EnabledControls(person), (Texts{L"cmdOKCancelHelp(1)", L"cmdOKCancelHelp(2)"}));
    });
}
