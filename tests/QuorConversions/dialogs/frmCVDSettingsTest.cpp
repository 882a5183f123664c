#include "QuorConversions/rtd/CQuorCVD.h"

#include "tests/support/DialogTest.h"

using namespace QuorConversions;
using namespace Support;

namespace {

const wchar_t* const coefficientsMessage = L"Enter valid values for all coefficients.";

class frmCVDSettingsTest : public DialogTest<CQuorCVD> {
protected:
    frmCVDSettingsTest() : DialogTest(CONV_CVD) {
        Set({100.0, 0.00385, 1.5, 0.11});
        settings->SetChanged(false);
    }
    void Set(const std::vector<double>& values) {
        settings->SetNumCoefficients(static_cast<std::int16_t>(values.size()));
        for (std::size_t i = 0; i < values.size(); ++i)
            settings->SetCoefficients(static_cast<std::int32_t>(i), values[i]);
    }
    [[nodiscard]] std::vector<double> Values() const {
        std::vector<double> values;
        for (std::int32_t i = 0; i < settings->NumCoefficients(); ++i)
            values.push_back(settings->Coefficients(i));
        return values;
    }
};

} // namespace

TEST_F(frmCVDSettingsTest, ShowsFourLabelledCoefficients) {
    Look([](const Person& person) {
        EXPECT_EQ(person.Screen(), std::wstring(L"Callendar-Van Dusen Settings\n"
                                                L"Callendar-Van Dusen:\n"
                                                L"  R0: [100]\n"
                                                L"  ALPHA: [0.00385]\n"
                                                L"  DELTA: [1.5]\n"
                                                L"  BETA: [0.11]\n") +
                                       buttonsOnScreen);
        EXPECT_EQ(person.Sees().HelpContext(), 10100);
    });
}

TEST_F(frmCVDSettingsTest, ShowsEachCoefficientInItsOwnFormat) {
    settings->SetValueFormat(CVD_R0, L"0.000");
    settings->SetValueFormat(CVD_ALPHA, L"0.0E+00");
    Look([](const Person& person) {
        EXPECT_EQ(All(person, L"txtCoefficients"), (Texts{L"100.000", L"3.9E-03", L"1.5", L"0.11"}));
    });
}

TEST_F(frmCVDSettingsTest, StoresWhatIsTyped) {
    EditAndTake([](Person& person) {
        person.Type(L"R0", L"100.0123");
        person.Type(L"BETA", L"-1.2e-1");
    });
    EXPECT_EQ(Values(), (std::vector<double>{100.0123, 0.00385, 1.5, -0.12}));
    EXPECT_TRUE(settings->Changed());
}

TEST_F(frmCVDSettingsTest, LabelsThePolynomialFormByItsLetters) {
    settings->SetUsePolynomial(true);
    Look([](const Person& person) {
        EXPECT_EQ(All(person, L"lblCoefficients"), (Texts{L"R0:", L"A:", L"B:", L"C:"}));
    });
}

TEST_F(frmCVDSettingsTest, KeepsTheLabelsItOpenedWithWhenAFileIsOfTheOtherForm) {
    for (const bool polynomial : {false, true}) {
        settings->SetUsePolynomial(polynomial);
        NextFileHolds([&](CQuorCVD& file) { file.SetUsePolynomial(!polynomial); });
        Edit([&](Person& person) {
            const Texts labels = All(person, L"lblCoefficients");
            person.Click(L"Open");
            EXPECT_EQ(settings->UsePolynomial(), !polynomial);
            EXPECT_EQ(All(person, L"lblCoefficients"), labels);
            person.Click(L"Cancel");
        });
    }
}

TEST_F(frmCVDSettingsTest, RefusesTheFirstZeroAmongAllButTheLastCoefficient) {
    const struct {
        std::vector<double> values;
        const wchar_t* focus;
    } cases[] = {
        {{0, 0, 0, 0}, L"txtCoefficients(0)"},
        {{100, 0, 0, 0.1}, L"txtCoefficients(1)"},
        {{100, 0.1, 0, 0.1}, L"txtCoefficients(2)"},
        {{100, -0.0, 1, 1}, L"txtCoefficients(1)"},
        {{0, 0}, L"txtCoefficients(0)"},
        {{100, 0, 1}, L"txtCoefficients(1)"},
        {{100, 1, 1, 0, 1}, L"txtCoefficients(3)"}, // with a fifth, BETA is not the last one
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.values));
        Set(c.values);
        ExpectRefusal(coefficientsMessage, c.focus);
    }
}

TEST_F(frmCVDSettingsTest, TakesAZeroAsTheLastCoefficient) {
    for (const std::vector<double>& values : std::vector<std::vector<double>>{
             {100, 0.1, 1, 0}, {100, 0.1, 0}, {100, 0}, {0}, {}, {100, 1, 1, 1, 0, 0}}) {
        SCOPED_TRACE(testing::PrintToString(values));
        Set(values);
        EditAndTake([](Person&) {});
        EXPECT_EQ(Values(), values);
    }
}

TEST_F(frmCVDSettingsTest, TakesZerosInThePolynomialForm) {
    settings->SetUsePolynomial(true);
    Set({0, 0, 0, 0});
    EditAndTake([](Person&) {});
    EXPECT_EQ(Values(), (std::vector<double>{0, 0, 0, 0}));
}

TEST_F(frmCVDSettingsTest, TakesATextThatIsNoNumberForZeroAndRefusesIt) {
    ExpectRefusal(coefficientsMessage, L"txtCoefficients(2)",
                  [](Person& person) { person.Type(L"DELTA", L"e"); });
    EXPECT_EQ(Values(), (std::vector<double>{100, 0.00385, 0, 0.11})) << "what was gathered stays";
}

TEST_F(frmCVDSettingsTest, HidesTheRowsThatTheObjectDoesNotHave) {
    Set({100, 0.1});
    EditAndTake([](Person& person) {
        EXPECT_EQ(Visible(person, L"lblCoefficients"), (Texts{L"R0:", L"ALPHA:"}));
        EXPECT_EQ(Visible(person, L"txtCoefficients"), (Texts{L"100", L"0.1"}));
        EXPECT_EQ(TabOrder(person)[2], L"cmdOKCancelHelp(0)");
        person.Type(L"ALPHA", L"0.2");
    });
    EXPECT_EQ(Values(), (std::vector<double>{100, 0.2}));
}

TEST_F(frmCVDSettingsTest, KeepsTheCoefficientsThatItHasNoRowsFor) {
    Set({100, 0.1, 1, 0.1, 5, 6});
    EditAndTake([](Person& person) {
        EXPECT_EQ(Visible(person, L"txtCoefficients"), (Texts{L"100", L"0.1", L"1", L"0.1"}));
        person.Type(L"BETA", L"0.2");
    });
    EXPECT_EQ(Values(), (std::vector<double>{100, 0.1, 1, 0.2, 5, 6}));
}

TEST_F(frmCVDSettingsTest, ShowsTheRowsOfTheFileThatIsOpened) {
    Set({100, 0.1});
    NextFileHolds([](CQuorCVD& file) {
        file.SetNumCoefficients(3);
        file.SetCoefficients(CVD_DELTA, 1.49);
    });
    Edit([](Person& person) {
        person.Click(L"Open");
        EXPECT_EQ(Visible(person, L"txtCoefficients"), (Texts{L"0", L"0", L"1.49"}));
        person.Click(L"Cancel");
    });
}

TEST_F(frmCVDSettingsTest, DoesNotGatherRowsThatWereHiddenWhenTheHostAddedCoefficients) {
    Set({100, 0.1});
    EditAndTake([&](Person& person) {
        Set({100, 0.1, 1.5, 0.11});
        person.Type(L"R0", L"101");
    });
    EXPECT_EQ(Values(), (std::vector<double>{101, 0.1, 1.5, 0.11}));
}

TEST_F(frmCVDSettingsTest, LeavesOutRowsWhoseCoefficientsTheHostTookAway) {
    EditAndTake([&](Person& person) {
        person.Type(L"BETA", L"7");
        settings->SetNumCoefficients(2);
        person.Type(L"R0", L"101");
    });
    EXPECT_EQ(Values(), (std::vector<double>{101, 0.00385}));
}
