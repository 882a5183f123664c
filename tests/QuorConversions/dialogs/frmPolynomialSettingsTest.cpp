#include "QuorConversions/polynomial/CQuorPolynomial.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

class frmPolynomialSettingsTest : public DialogTest<CQuorPolynomial> {
protected:
    frmPolynomialSettingsTest() : DialogTest(CONV_POLYNOMIAL) {}
};

} // namespace

TEST_F(frmPolynomialSettingsTest, ShowsACoefficientAPowerInOneFormat) {
    settings->SetCoefficients(POLY_A1, 0.25);
    settings->SetValueFormat(L"0.00");
    Look([](const Person& person) {
        EXPECT_EQ(OnScreen(person), std::wstring(L"Polynomial Settings\n"
                                                 L"Polynomial:\n"
                                                 L"  A0: [0.00]\n"
                                                 L"  A1: [0.25]\n"
                                                 L"  A2: [0.00]\n"
                                                 L"  A3: [0.00]\n"
                                                 L"  A4: [0.00]\n") +
                                        buttonsOnScreen);
        EXPECT_EQ(person.Sees().HelpContext(), 10112);
    });
}

TEST_F(frmPolynomialSettingsTest, LabelsAllElevenRowsByThePrefixAsItIs) {
    for (const std::wstring prefix : {L"A", L" c ", L"", L"&x:"}) {
        settings->SetCoefficientLabelPrefix(prefix);
        Texts labels;
        for (int i = 0; i <= 10; ++i)
            labels.push_back(prefix + std::to_wstring(i) + L":");
        Look([&](const Person& person) { EXPECT_EQ(All(person, L"lblCoefficients"), labels); });
    }
}

TEST_F(frmPolynomialSettingsTest, KeepsTheLabelsItOpenedWith) {
    NextFileHolds([](CQuorPolynomial&) {});
    Edit([&](Person& person) {
        settings->SetCoefficientLabelPrefix(L"X");
        person.Click(L"Open");
        EXPECT_EQ(person.Reads(L"lblCoefficients(0)"), L"A0:");
        person.Click(L"Cancel");
    });
}

TEST_F(frmPolynomialSettingsTest, ShowsOneRowMoreThanTheOrder) {
    for (const std::int16_t order : {std::int16_t{4}, std::int16_t{7}, std::int16_t{10}}) {
        settings->SetOrder(order);
        Look([&](const Person& person) {
            EXPECT_EQ(Visible(person, L"lblCoefficients").size(), static_cast<std::size_t>(order) + 1);
            EXPECT_EQ(Visible(person, L"txtCoefficients").size(), static_cast<std::size_t>(order) + 1);
        });
    }
}

TEST_F(frmPolynomialSettingsTest, ShowsTheRowsOfTheFileThatIsOpened) {
    NextFileHolds([](CQuorPolynomial& file) {
        file.SetOrder(6);
        file.SetCoefficients(POLY_A6, 6.5);
    });
    EditAndTake([](Person& person) {
        person.Click(L"Open");
        EXPECT_EQ(Visible(person, L"txtCoefficients"), (Texts{L"0", L"0", L"0", L"0", L"0", L"0", L"6.5"}));
        person.Type(L"A5", L"5.5");
    });
    EXPECT_EQ(settings->Coefficients(POLY_A5), 5.5);
    EXPECT_EQ(settings->Coefficients(POLY_A6), 6.5);
}

TEST_F(frmPolynomialSettingsTest, TakesAnyValue) {
    settings->SetCoefficients(POLY_A4, 1);
    EditAndTake([](Person& person) {
        person.Type(L"A0", L"-1e300");
        person.Type(L"A4", L"e");
    });
    EXPECT_EQ(settings->Coefficients(POLY_A0), -1e300);
    EXPECT_EQ(settings->Coefficients(POLY_A4), 0.0);
}
