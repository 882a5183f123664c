#include "QuorConversions/polynomial/CQuorPolynomial.h"

#include "tests/support/Records.h"

using namespace QuorConversions;
using Support::indexOutOfRange;
using Support::Int;
using Support::OnlyMessage;
using Support::Record;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

class CQuorPolynomialTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorPolynomial> polynomial =
        Support::NewSettings<CQuorPolynomial>(CONV_POLYNOMIAL, platform);
};

/// A record whose coefficients are first, first + 1 and so on.
Record Polynomial(int order, int coefficients, double first) {
    Record record{{L"Order", Int(order)}};
    for (int i = 0; i < coefficients; ++i)
        record[L"Coefficients" + std::to_wstring(i)] = first + i;
    return record;
}

template <class T>
concept CountCanBeSet = requires(T& settings) {
    settings.SetNumCoefficients(std::int16_t{2});
};

} // namespace

TEST_F(CQuorPolynomialTest, IsNewWithOrderFourAndCoefficientsOfZero) {
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_POLYNOMIAL);
    const auto fresh = SettingsAs<CQuorPolynomial>(conversion);
    EXPECT_EQ(fresh->Order(), 4);
    EXPECT_EQ(fresh->NumCoefficients(), 5);
    EXPECT_EQ(fresh->MinOrder(), 4);
    EXPECT_EQ(fresh->MaxOrder(), 10);
    for (std::int32_t i = POLY_A0; i <= POLY_A4; ++i)
        EXPECT_EQ(fresh->Coefficients(i), 0.0);
    EXPECT_EQ(fresh->CoefficientLabelPrefix(), L"A");
    EXPECT_EQ(fresh->ValueFormat(), L"");
    EXPECT_EQ(fresh->GetName(), L"Polynomial");
    EXPECT_TRUE(fresh->AllowEdit());
    EXPECT_FALSE(fresh->Changed());
}

TEST_F(CQuorPolynomialTest, IgnoresAnOrderOutsideItsLimits) {
    polynomial->SetOrder(6);
    polynomial->SetChanged(false);
    for (const int order : {3, 11, 0, -1, 32767, -32768}) {
        SCOPED_TRACE(order);
        polynomial->SetOrder(Int(order));
        EXPECT_EQ(polynomial->Order(), 6);
        EXPECT_EQ(polynomial->NumCoefficients(), 7);
        EXPECT_FALSE(polynomial->Changed());
    }
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorPolynomialTest, HasOneCoefficientMoreThanItsOrder) {
    polynomial->SetOrder(10);
    EXPECT_TRUE(polynomial->Changed());
    EXPECT_EQ(polynomial->NumCoefficients(), 11);
    polynomial->SetCoefficients(POLY_A10, 2.5);
    EXPECT_EQ(polynomial->Coefficients(POLY_A10), 2.5);
    EXPECT_FALSE(CountCanBeSet<CQuorPolynomial>);
}

TEST_F(CQuorPolynomialTest, IsChangedByAnotherOrderOnly) {
    polynomial->SetOrder(4);
    EXPECT_FALSE(polynomial->Changed());
    polynomial->SetOrder(5);
    EXPECT_TRUE(polynomial->Changed());
}

TEST_F(CQuorPolynomialTest, IsChangedByAnotherCoefficientOnly) {
    Support::ExpectAMarkForADifferenceOnly(
        *polynomial, [&] { return polynomial->Coefficients(POLY_A4); },
        [&](double value) { polynomial->SetCoefficients(POLY_A4, value); });
}

TEST_F(CQuorPolynomialTest, IsNeverChangedByDisplaySettings) {
    polynomial->SetCoefficientLabelPrefix(L"");
    polynomial->SetValueFormat(L"0.0000");
    EXPECT_EQ(polynomial->CoefficientLabelPrefix(), L"");
    EXPECT_EQ(polynomial->ValueFormat(), L"0.0000");
    EXPECT_FALSE(polynomial->Changed());
}

TEST_F(CQuorPolynomialTest, KeepsItsSpareSlotWhenItsOrderFallsAndRises) {
    polynomial->SetOrder(6);
    for (std::int32_t i = POLY_A0; i <= POLY_A6; ++i)
        polynomial->SetCoefficients(i, i + 1.0);
    polynomial->SetOrder(4);
    EXPECT_EQ(polynomial->Coefficients(POLY_A4), 5.0);
    polynomial->SetOrder(6);
    for (std::int32_t i = POLY_A0; i <= POLY_A5; ++i)
        EXPECT_EQ(polynomial->Coefficients(i), i + 1.0);
    EXPECT_EQ(polynomial->Coefficients(POLY_A6), 0.0);
}

TEST_F(CQuorPolynomialTest, RefusesAnIndexAboveItsOrder) {
    struct Case {
        std::int16_t order;
        std::int32_t index;
    };
    for (const Case& c : {Case{4, 5}, {4, -1}, {10, 11}, {4, 65536}}) {
        SCOPED_TRACE(testing::Message() << "order " << c.order << ", index " << c.index);
        polynomial->SetOrder(c.order);
        polynomial->SetChanged(false);
        EXPECT_QUOR_ERROR((void)polynomial->Coefficients(c.index), indexOutOfRange, L"CQuorPolynomial",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(polynomial->SetCoefficients(c.index, 1.0), indexOutOfRange, L"CQuorPolynomial",
                          L"Index out of range");
        EXPECT_FALSE(polynomial->Changed());
    }
    polynomial->SetOrder(5);
    EXPECT_EQ(polynomial->Coefficients(5), 0.0); // the refused value went nowhere
}

TEST_F(CQuorPolynomialTest, WritesItsOrderAndItsCoefficientsWithEmptyComments) {
    polynomial->SetCoefficients(POLY_A1, -0.25);
    polynomial->SetCoefficients(POLY_A4, 1e-20);
    polynomial->SetCoefficientLabelPrefix(L"C");
    polynomial->SetValueFormat(L"0.00");
    EXPECT_EQ(Support::OperationsOfWriting(*polynomial),
              (std::vector<std::wstring>{
                  L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                  L"WriteInteger Order=4 comment \"\"", L"WriteDouble Coefficients0=0 comment \"\"",
                  L"WriteDouble Coefficients1=-0.25 comment \"\"",
                  L"WriteDouble Coefficients2=0 comment \"\"", L"WriteDouble Coefficients3=0 comment \"\"",
                  L"WriteDouble Coefficients4=9.9999999999999995e-21 comment \"\"", L"Release"}));
}

TEST_F(CQuorPolynomialTest, ReadsItsOrderBeforeItsCoefficientsAndNoVersion) {
    polynomial->SetOrder(10);
    const auto store = Support::StoreWith(Polynomial(5, 11, 1.0));
    EXPECT_TRUE(Support::ReadFrom(*polynomial, store));
    EXPECT_EQ(store->operations,
              (std::vector<std::wstring>{L"Section \"Probe\"", L"ReadInteger Order",
                                         L"ReadDouble Coefficients0", L"ReadDouble Coefficients1",
                                         L"ReadDouble Coefficients2", L"ReadDouble Coefficients3",
                                         L"ReadDouble Coefficients4", L"ReadDouble Coefficients5"}));
    EXPECT_EQ(Support::Held(*polynomial), Polynomial(5, 6, 1.0));
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorPolynomialTest, KeepsItsOrderWhenTheStoredOneIsOutsideItsLimits) {
    polynomial->SetOrder(5);
    polynomial->SetChanged(false);
    for (const int stored : {3, 11, -1, 32767, -32768}) {
        SCOPED_TRACE(stored);
        EXPECT_TRUE(Support::Load(*polynomial, Polynomial(stored, 12, stored)));
        EXPECT_EQ(Support::Held(*polynomial), Polynomial(5, 6, stored));
    }
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorPolynomialTest, KeepsItsOwnValueForEachMissingKey) {
    Support::ExpectOwnValueForEachMissingKey(*polynomial, *platform, Polynomial(5, 6, 1.0),
                                             Polynomial(5, 6, 11.0));
}

TEST_F(CQuorPolynomialTest, TakesWhatTheStoreLeavesForAMissingCoefficientAndIgnoresAnOrderOfOne) {
    const Record record = Polynomial(5, 6, 11.0);
    Support::ExpectWhatTheStoreLeavesForEachMissingValue(*polynomial, Polynomial(5, 6, 1.0), record);
    const auto store = Support::StoreWith(record);
    store->Remove(L"Probe", L"Order");
    store->scribblesOnMissingKeys = true; // leaves 1
    EXPECT_FALSE(Support::ReadFrom(*polynomial, store));
    EXPECT_EQ(Support::Held(*polynomial), record);
}

TEST_F(CQuorPolynomialTest, IsChangedByReadingAnotherValueOrAnotherOrder) {
    Support::ExpectChangeByEachOtherStoredValue(*polynomial, Polynomial(4, 5, 1.0), Polynomial(4, 5, 11.0));
    ASSERT_TRUE(Support::Load(*polynomial, Polynomial(4, 5, 0.0)));
    polynomial->SetOrder(5);
    polynomial->SetChanged(false);
    ASSERT_TRUE(Support::Load(*polynomial, Polynomial(4, 5, 0.0)));
    EXPECT_TRUE(polynomial->Changed());
}

TEST_F(CQuorPolynomialTest, TellsOnceOfSeveralMissingCoefficientsOfAHigherOrder) {
    EXPECT_FALSE(Support::Load(*polynomial, Polynomial(10, 5, 1.0)));
    EXPECT_EQ(OnlyMessage(*platform), versionMessage);
    EXPECT_EQ(polynomial->Order(), 10);
    EXPECT_EQ(polynomial->Coefficients(POLY_A4), 5.0);
    EXPECT_EQ(polynomial->Coefficients(POLY_A10), 0.0);
}
