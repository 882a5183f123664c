#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"

#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"
#include "tests/support/Records.h"

using namespace QuorConversions;
using Support::Int;
using Support::MemoryIniFile;
using Support::OnlyMessage;
using Support::Record;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

class CQuorTCTypePolyTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorTCTypePoly> typePoly = std::make_shared<CQuorTCTypePoly>(platform);
    const Record own{{L"TCType", Int(TCTYPE_E)},
                     {L"NumCoefficients", Int(2)},
                     {L"Coefficients0", 1.0},
                     {L"Coefficients1", 2.0}};
    const Record other{{L"TCType", Int(TCTYPE_U)},
                       {L"NumCoefficients", Int(2)},
                       {L"Coefficients0", 0.015},
                       {L"Coefficients1", -1e-4}};
};

} // namespace

TEST_F(CQuorTCTypePolyTest, IsMadeByAHostAsTypeBWithFourCoefficients) {
    EXPECT_EQ(typePoly->TCType(), TCTYPE_B);
    EXPECT_EQ(typePoly->GetName(-2), L"TC Type B");
    EXPECT_EQ(typePoly->NumCoefficients(), 4);
    EXPECT_EQ(typePoly->ValueFormat(), L"");
    EXPECT_TRUE(typePoly->AllowEdit());
    EXPECT_FALSE(typePoly->Changed());
}

TEST_F(CQuorTCTypePolyTest, WritesItsKeysInOrderWithEmptyComments) {
    typePoly->SetTCType(TCTYPE_U);
    typePoly->SetCoefficients(TC_POLY_C1, -0.5);
    typePoly->SetValueFormat(L"0.00");
    EXPECT_EQ(Support::OperationsOfWriting(*typePoly),
              (std::vector<std::wstring>{
                  L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                  L"WriteInteger TCType=11 comment \"\"", L"WriteInteger NumCoefficients=4 comment \"\"",
                  L"WriteDouble Coefficients0=0 comment \"\"", L"WriteDouble Coefficients1=-0.5 comment \"\"",
                  L"WriteDouble Coefficients2=0 comment \"\"", L"WriteDouble Coefficients3=0 comment \"\"",
                  L"Release"}));
}

TEST_F(CQuorTCTypePolyTest, ReadsItsKeysInOrderAndNoVersion) {
    const auto store = Support::StoreWith(other);
    EXPECT_TRUE(Support::ReadFrom(*typePoly, store));
    EXPECT_EQ(store->operations,
              (std::vector<std::wstring>{L"Section \"Probe\"", L"ReadInteger TCType",
                                         L"ReadInteger NumCoefficients", L"ReadDouble Coefficients0",
                                         L"ReadDouble Coefficients1"}));
    EXPECT_EQ(typePoly->TCType(), TCTYPE_U);
    EXPECT_EQ(typePoly->NumCoefficients(), 2);
    EXPECT_EQ(typePoly->Coefficients(TC_POLY_C1), -1e-4);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorTCTypePolyTest, KeepsItsOwnValueForEachMissingKey) {
    Support::ExpectOwnValueForEachMissingKey(*typePoly, *platform, own, other);
}

TEST_F(CQuorTCTypePolyTest, TakesWhatTheStoreLeavesForEachMissingValue) {
    Support::ExpectWhatTheStoreLeavesForEachMissingValue(*typePoly, own, other);
}

TEST_F(CQuorTCTypePolyTest, IsChangedByReadingAnotherValue) {
    Support::ExpectChangeByEachOtherStoredValue(*typePoly, own, other);
}

TEST_F(CQuorTCTypePolyTest, SharesItsFilesWithTheThermocouplePolynomialAsFarAsTheKeysMatch) {
    const auto file = std::make_shared<MemoryIniFile>();
    platform->MakeIniFilesWith([&] { return file; });
    platform->ChooseFile(L"probe.ttp");
    typePoly->SetCoefficients(TC_POLY_C3, 0.5);
    std::wstring filename;
    ASSERT_TRUE(typePoly->SaveFileAs(0, filename));
    EXPECT_TRUE(file->Has(L"Thermocouple Polynomial", L"TCType"));
    const auto polynomial = Support::NewSettings<CQuorTCPolynomial>(CONV_TCPOLYNOMIAL, platform);
    EXPECT_TRUE(polynomial->OpenFile(0, filename));
    EXPECT_EQ(OnlyMessage(*platform), versionMessage); // there is no "mV(25C)"
    EXPECT_EQ(polynomial->NumCoefficients(), 4);
    EXPECT_EQ(polynomial->Coefficients(TC_POLY_C3), 0.5);
}
