#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"

#include "tests/support/Records.h"

using namespace QuorConversions;
using Support::Int;
using Support::Record;
using Support::ScriptedPlatform;

namespace {

class CQuorTCPolynomialTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorTCPolynomial> polynomial =
        Support::NewSettings<CQuorTCPolynomial>(CONV_TCPOLYNOMIAL, platform);
    const Record own{{L"mV(25C)", 1.0},
                     {L"NumCoefficients", Int(3)},
                     {L"Coefficients0", 2.0},
                     {L"Coefficients1", 3.0},
                     {L"Coefficients2", 4.0}};
    const Record other{{L"mV(25C)", 0.9925},
                       {L"NumCoefficients", Int(3)},
                       {L"Coefficients0", 20.0},
                       {L"Coefficients1", 30.0},
                       {L"Coefficients2", 40.0}};
};

} // namespace

TEST_F(CQuorTCPolynomialTest, IsNewWithSixteenCoefficientsAndAHiddenVoltageOfZero) {
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_TCPOLYNOMIAL);
    const auto fresh = SettingsAs<CQuorTCPolynomial>(conversion);
    EXPECT_EQ(fresh->NumCoefficients(), 16);
    EXPECT_EQ(fresh->Coefficients(TC_POLY_C15), 0.0);
    EXPECT_EQ(fresh->mV25C(), 0.0);
    EXPECT_FALSE(fresh->ShowmV25C());
    EXPECT_EQ(fresh->mV25CFormat(), L"");
    EXPECT_EQ(fresh->ValueFormat(), L"");
    EXPECT_EQ(fresh->GetName(), L"TC Polynomial");
    EXPECT_TRUE(fresh->AllowEdit());
    EXPECT_FALSE(fresh->Changed());
}

TEST_F(CQuorTCPolynomialTest, StoresAndMarksADifferentVoltageOnly) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Step {
        double value;
        bool marks;
    };
    for (const Step& step : {Step{0.0, false},
                             {-0.0, false},
                             {0.9925, true},
                             {0.9925, false},
                             {nan, true},
                             {nan, false},
                             {0.0, true}}) {
        SCOPED_TRACE(step.value);
        polynomial->SetChanged(false);
        polynomial->SetmV25C(step.value);
        EXPECT_EQ(polynomial->Changed(), step.marks);
        EXPECT_FALSE(std::signbit(polynomial->mV25C())); // -0.0 is no difference and is not stored
        EXPECT_EQ(std::isnan(polynomial->mV25C()), std::isnan(step.value));
    }
}

TEST_F(CQuorTCPolynomialTest, IsNeverChangedByDisplaySettings) {
    polynomial->SetShowmV25C(true);
    polynomial->SetmV25CFormat(L"0.000");
    EXPECT_TRUE(polynomial->ShowmV25C());
    EXPECT_EQ(polynomial->mV25CFormat(), L"0.000");
    EXPECT_EQ(polynomial->ValueFormat(), L"");
    EXPECT_FALSE(polynomial->Changed());
}

TEST_F(CQuorTCPolynomialTest, WritesItsKeysInOrderWhetherOrNotTheVoltageIsShown) {
    polynomial->SetNumCoefficients(3);
    polynomial->SetmV25C(0.75);
    polynomial->SetCoefficients(TC_POLY_C2, -1.5);
    const std::vector<std::wstring> operations{L"Section \"Probe\"",
                                               L"Hold",
                                               L"WriteString Version=\"1.0\"",
                                               L"WriteDouble mV(25C)=0.75 comment \"\"",
                                               L"WriteInteger NumCoefficients=3 comment \"\"",
                                               L"WriteDouble Coefficients0=0 comment \"\"",
                                               L"WriteDouble Coefficients1=0 comment \"\"",
                                               L"WriteDouble Coefficients2=-1.5 comment \"\"",
                                               L"Release"};
    EXPECT_EQ(Support::OperationsOfWriting(*polynomial), operations);
    polynomial->SetShowmV25C(true);
    EXPECT_EQ(Support::OperationsOfWriting(*polynomial), operations);
}

TEST_F(CQuorTCPolynomialTest, ReadsItsKeysInOrderAndNoVersion) {
    const auto store = Support::StoreWith(other);
    EXPECT_TRUE(Support::ReadFrom(*polynomial, store));
    EXPECT_EQ(store->operations,
              (std::vector<std::wstring>{L"Section \"Probe\"", L"ReadDouble mV(25C)",
                                         L"ReadInteger NumCoefficients", L"ReadDouble Coefficients0",
                                         L"ReadDouble Coefficients1", L"ReadDouble Coefficients2"}));
    EXPECT_EQ(polynomial->mV25C(), 0.9925);
    EXPECT_EQ(polynomial->NumCoefficients(), 3);
    EXPECT_EQ(polynomial->Coefficients(TC_POLY_C2), 40.0);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorTCPolynomialTest, KeepsItsOwnValueForEachMissingKey) {
    Support::ExpectOwnValueForEachMissingKey(*polynomial, *platform, own, other);
}

TEST_F(CQuorTCPolynomialTest, TakesWhatTheStoreLeavesForEachMissingValue) {
    Support::ExpectWhatTheStoreLeavesForEachMissingValue(*polynomial, own, other);
}

TEST_F(CQuorTCPolynomialTest, IsChangedByReadingAnotherValue) {
    Support::ExpectChangeByEachOtherStoredValue(*polynomial, own, other);
}
