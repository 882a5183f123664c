// The values of probes, read off their dialogs, which nobody sees.

#include "apps/probe-setup/ProbeValues.h"
#include "apps/probe-setup/TypeChoice.h"
#include "tests/apps/probe-setup/DocumentTest.h"

#include <gtest/gtest.h>

#include <set>

using namespace ProbeSetup;
using namespace QuorConversions;
using Texts = std::vector<std::wstring>;

class ProbeValuesTest : public DocumentTest {
protected:
    /// "page|name|text|units" of each.
    [[nodiscard]] Texts Values(std::size_t probe) {
        Texts lines;
        for (const ProbeValue& value : ValuesOf(document.Conversion(probe), *screen))
            lines.push_back(value.page + L"|" + value.name + L"|" + value.text + L"|" + value.units);
        return lines;
    }
};

TEST_F(ProbeValuesTest, HaveTheNamesOfTheDialogAllDigitsAndUnits) {
    Open();
    EXPECT_EQ(Values(0), (Texts{L"|R0|100|\u03A9", L"|ALPHA|0.0039083|\u00B0C\u207B\u00B9",
                                L"|DELTA|1.5|\u00B0C", L"|BETA|0|\u00B0C"}));
    EXPECT_EQ(Values(1), Texts{});
    EXPECT_EQ(screen->Complaints(), Texts{}) << "nothing was shown";
}

TEST_F(ProbeValuesTest, OfTheItsNinetyStandUnderTheirTabs) {
    Open("[P]\nConversionType=0\n[P - Settings]\nRTPW=25.4831712345678\n"
         "[P - Settings - High Range]\nRange=10\nCoefficients0=-1.5E-4\n"
         "[P - Settings - Low Range]\nRange=4\nCoefficients0=-2.3E-4\nCoefficients1=1.1E-5\n");
    const Texts values = Values(0);
    ASSERT_EQ(values.size(), 6U);
    EXPECT_EQ(values[0], L"|RTPW|25.4831712345678|\u03A9");
    EXPECT_EQ(values[1].substr(0, 10), L"Low Range|");
    EXPECT_EQ(values[2], L"Low Range|A[4]|-0.00023|");
    EXPECT_EQ(values[3], L"Low Range|B[4]|0.000011|");
    EXPECT_EQ(values[4].substr(0, 11), L"High Range|");
    EXPECT_EQ(values[5], L"High Range|A[10]|-0.00015|");
}

TEST(TypeChoiceTest, OffersBothFormsAndEachLetterAsTheObjectsDo) {
    const std::vector<TypeChoice> all = TypeChoice::All();
    std::set<std::optional<bool>> forms;
    std::size_t points = 0;
    std::size_t polynomials = 0;
    for (const TypeChoice& choice : all) {
        if (choice.type == CONV_CVD)
            forms.insert(choice.polynomial);
        points += choice.type == CONV_TCTYPEX ? 1 : 0;
        polynomials += choice.type == CONV_TCTYPEPOLY ? 1 : 0;
        CQuorConversion conversion;
        choice.ApplyTo(conversion);
        const TypeChoice chosen = TypeChoice::Of(conversion);
        EXPECT_EQ(chosen.type, choice.type);
        EXPECT_EQ(chosen.polynomial, choice.polynomial);
        EXPECT_EQ(chosen.letter, choice.letter);
    }
    EXPECT_EQ(forms, (std::set<std::optional<bool>>{false, true}));
    EXPECT_EQ(all.size(), 21U + 1U + points - 1U + polynomials - 1U);
    EXPECT_GE(points, 8U);
    EXPECT_GE(polynomials, 8U);
}

TEST(TypeChoiceTest, SetsTheRangesOfTheItsNinety) {
    TypeChoice choice(CONV_ITS90);
    choice.low = ITS90_RANGE_4;
    choice.high = ITS90_RANGE_7;
    CQuorConversion conversion;
    choice.ApplyTo(conversion);
    EXPECT_EQ(TypeChoice::Of(conversion), choice);
    const std::vector<RangeChoice> low = RangeChoices(IR_LOWRANGE);
    ASSERT_EQ(low.size(), 6U);
    EXPECT_EQ(low.front().range, ITS90_NORANGE);
    EXPECT_EQ(low[1].name, L"Range 1 (13K to 273K)");
    EXPECT_EQ(RangeChoices(IR_HIGHRANGE).back().range, ITS90_RANGE_11);
}
