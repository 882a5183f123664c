#include "QuorConversions/thermocouple/CQuorTCTypeX.h"

#include "tests/support/Records.h"

using namespace QuorConversions;
using Support::indexOutOfRange;
using Support::Int;
using Support::Record;
using Support::ScriptedPlatform;

namespace {

class CQuorTCTypeXTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorTCTypeX> typeX = Support::NewSettings<CQuorTCTypeX>(CONV_TCTYPEX, platform);
    const Record own{{L"TCType", Int(TCTYPE_K)}, {L"NumPoints", Int(2)},  {L"TempScale", L"K"},
                     {L"OffsetScale", L"mK"},    {L"Temperatures0", 1.0}, {L"Offsets0", 2.0},
                     {L"Temperatures1", 3.0},    {L"Offsets1", 4.0},      {L"Coefficients0", 5.0},
                     {L"Coefficients1", 6.0}};
    const Record other{{L"TCType", Int(TCTYPE_R)}, {L"NumPoints", Int(2)},    {L"TempScale", L"\u00B0F"},
                       {L"OffsetScale", L""},      {L"Temperatures0", 231.9}, {L"Offsets0", 0.12},
                       {L"Temperatures1", 419.5},  {L"Offsets1", -0.31},      {L"Coefficients0", 1e-6},
                       {L"Coefficients1", -2e-9}};
};

} // namespace

TEST_F(CQuorTCTypeXTest, IsNewWithoutATypeUntilTheFacadeSetsOne) {
    EXPECT_EQ(CQuorConversion(platform).ConversionName(CONV_TCTYPEX), L"TC Type ");
}

TEST_F(CQuorTCTypeXTest, IsNewWithThreePointsAndShowsItsDCCoefficients) {
    EXPECT_EQ(typeX->NumPoints(), 3);
    EXPECT_EQ(typeX->Coefficients(TCTYPEX_DC1), 0.0);
    EXPECT_EQ(typeX->Coefficients(TCTYPEX_DC2), 0.0);
    EXPECT_TRUE(typeX->ShowDCCoefs());
    EXPECT_EQ(typeX->ValueFormat(), L"");
    EXPECT_TRUE(typeX->AllowEdit());
}

TEST_F(CQuorTCTypeXTest, TellsTheUserOfAPointOutsideItsCountAndRaisesNothing) {
    typeX->SetNumPoints(2);
    typeX->SetChanged(false);
    struct Case {
        std::int32_t index;
        const wchar_t* message;
    };
    for (const Case& c : {Case{2, L"TC type index out of range: 2"},
                          {5, L"TC type index out of range: 5"},
                          {-1, L"TC type index out of range: -1"},
                          {65536, L"TC type index out of range: 65536"}}) {
        const std::size_t shownBefore = platform->Messages().size();
        EXPECT_EQ(typeX->Temperatures(c.index), 0.0);
        EXPECT_EQ(typeX->Offsets(c.index), 0.0);
        typeX->SetTemperatures(c.index, 1.0);
        typeX->SetOffsets(c.index, 1.0);
        ASSERT_EQ(platform->Messages().size(), shownBefore + 4);
        for (std::size_t i = shownBefore; i < shownBefore + 4; ++i) {
            EXPECT_EQ(platform->Messages()[i].text, c.message);
            EXPECT_EQ(platform->Messages()[i].title, L"Quor Scientific");
            EXPECT_EQ(platform->Messages()[i].icon, ICON_INFORMATION);
        }
    }
    EXPECT_FALSE(typeX->Changed());
    typeX->SetNumPoints(3);
    EXPECT_EQ(typeX->Temperatures(TCTYPEX_T3), 0.0); // the refused values went nowhere
    EXPECT_EQ(typeX->Offsets(TCTYPEX_ADJ3), 0.0);
}

TEST_F(CQuorTCTypeXTest, RaisesForADCCoefficientThatDoesNotExistWhateverTheNumberOfPoints) {
    typeX->SetNumPoints(0);
    typeX->SetChanged(false);
    for (const std::int32_t index : {-1, 2, 3, 65536}) {
        SCOPED_TRACE(index);
        EXPECT_QUOR_ERROR((void)typeX->Coefficients(index), indexOutOfRange, L"CQuorTCTypeX",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(typeX->SetCoefficients(index, 1.0), indexOutOfRange, L"CQuorTCTypeX",
                          L"Index out of range");
    }
    EXPECT_FALSE(typeX->Changed());
    EXPECT_TRUE(platform->Messages().empty());
    EXPECT_EQ(typeX->Coefficients(TCTYPEX_DC2), 0.0);
}

TEST_F(CQuorTCTypeXTest, IsChangedByAnotherDCCoefficientOnly) {
    Support::ExpectAMarkForADifferenceOnly(
        *typeX, [&] { return typeX->Coefficients(TCTYPEX_DC2); },
        [&](double value) { typeX->SetCoefficients(TCTYPEX_DC2, value); });
}

TEST_F(CQuorTCTypeXTest, IsNeverChangedByDisplaySettings) {
    typeX->SetShowDCCoefs(false);
    typeX->SetValueFormat(L"0.0000");
    EXPECT_FALSE(typeX->ShowDCCoefs());
    EXPECT_EQ(typeX->ValueFormat(), L"0.0000");
    EXPECT_EQ(typeX->TempFormat(), L"");
    EXPECT_EQ(typeX->OffsetFormat(), L"");
    EXPECT_FALSE(typeX->Changed());
}

TEST_F(CQuorTCTypeXTest, WritesItsKeysInOrderWhetherOrNotTheDCCoefficientsAreShown) {
    ASSERT_TRUE(Support::Load(*typeX, own));
    typeX->SetTempFormat(L"0.0");
    const std::vector<std::wstring> operations{L"Section \"Probe\"",
                                               L"Hold",
                                               L"WriteString Version=\"1.0\"",
                                               L"WriteInteger TCType=4 comment \"\"",
                                               L"WriteInteger NumPoints=2 comment \"\"",
                                               L"WriteString TempScale=\"K\"",
                                               L"WriteString OffsetScale=\"mK\"",
                                               L"WriteDouble Temperatures0=1 comment \"\"",
                                               L"WriteDouble Offsets0=2 comment \"\"",
                                               L"WriteDouble Temperatures1=3 comment \"\"",
                                               L"WriteDouble Offsets1=4 comment \"\"",
                                               L"WriteDouble Coefficients0=5 comment \"\"",
                                               L"WriteDouble Coefficients1=6 comment \"\"",
                                               L"Release"};
    EXPECT_EQ(Support::OperationsOfWriting(*typeX), operations);
    typeX->SetShowDCCoefs(false);
    EXPECT_EQ(Support::OperationsOfWriting(*typeX), operations);
}

TEST_F(CQuorTCTypeXTest, ReadsItsKeysInOrderAndNoVersion) {
    const auto store = Support::StoreWith(other);
    EXPECT_TRUE(Support::ReadFrom(*typeX, store));
    EXPECT_EQ(store->operations,
              (std::vector<std::wstring>{
                  L"Section \"Probe\"", L"ReadInteger TCType", L"ReadInteger NumPoints",
                  L"ReadString TempScale", L"ReadString OffsetScale", L"ReadDouble Temperatures0",
                  L"ReadDouble Offsets0", L"ReadDouble Temperatures1", L"ReadDouble Offsets1",
                  L"ReadDouble Coefficients0", L"ReadDouble Coefficients1"}));
    EXPECT_EQ(typeX->TCType(), TCTYPE_R);
    EXPECT_EQ(typeX->NumPoints(), 2);
    EXPECT_EQ(typeX->TempScale(), L"\u00B0F");
    EXPECT_EQ(typeX->OffsetScale(), L"");
    EXPECT_EQ(typeX->Temperatures(TCTYPEX_T2), 419.5);
    EXPECT_EQ(typeX->Offsets(TCTYPEX_ADJ2), -0.31);
    EXPECT_EQ(typeX->Coefficients(TCTYPEX_DC2), -2e-9);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorTCTypeXTest, KeepsItsOwnValueForEachMissingKey) {
    Support::ExpectOwnValueForEachMissingKey(*typeX, *platform, own, other);
}

TEST_F(CQuorTCTypeXTest, TakesWhatTheStoreLeavesForEachMissingValue) {
    Support::ExpectWhatTheStoreLeavesForEachMissingValue(*typeX, own, other);
}

TEST_F(CQuorTCTypeXTest, IsChangedByReadingAnotherValue) {
    Support::ExpectChangeByEachOtherStoredValue(*typeX, own, other);
}

TEST_F(CQuorTCTypeXTest, TrimsTheNameOfATypelessProbeInTheTitleOfAFileDialogOnly) {
    typeX->SetTCType(TCTYPE_NONE);
    std::wstring filename;
    EXPECT_FALSE(typeX->OpenFile(0, filename)); // cancelled
    ASSERT_EQ(platform->FileRequests().size(), 1U);
    EXPECT_EQ(platform->FileRequests()[0].title, L"Open TC Type File");
    EXPECT_EQ(platform->FileRequests()[0].filter, L"TC Type  Files (*.tcx)|*.tcx");
}
