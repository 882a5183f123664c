#include "QuorConversions/rtd/CQuorCVD.h"

#include "QuorConversions/rtd/CQuorPT100.h"
#include "tests/support/Objects.h"

using namespace QuorConversions;
using Support::indexOutOfRange;
using Support::MemoryIniFile;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

class CQuorCVDTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorCVD> cvd = Support::NewSettings<CQuorCVD>(CONV_CVD, platform);
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
};

} // namespace

TEST_F(CQuorCVDTest, IsNewWithFourCoefficientsOfZero) {
    EXPECT_EQ(cvd->NumCoefficients(), 4);
    EXPECT_EQ(cvd->MaxCoefficients(), 4);
    for (const auto index : {CVD_R0, CVD_ALPHA, CVD_DELTA, CVD_BETA}) {
        EXPECT_EQ(cvd->Coefficients(index), 0.0);
        EXPECT_EQ(cvd->ValueFormat(index), L"");
    }
    EXPECT_FALSE(cvd->UsePolynomial());
    EXPECT_FALSE(cvd->Changed());
    EXPECT_TRUE(cvd->AllowEdit());
    EXPECT_EQ(cvd->GetName(), L"Callendar-Van Dusen");
}

TEST_F(CQuorCVDTest, IsChangedByAnotherValueOnly) {
    cvd->SetCoefficients(CVD_ALPHA, 0.0);
    EXPECT_FALSE(cvd->Changed());
    cvd->SetCoefficients(CVD_ALPHA, 0.00385055);
    EXPECT_TRUE(cvd->Changed());
}

TEST_F(CQuorCVDTest, IsNeverChangedByDisplaySettings) {
    cvd->SetUsePolynomial(true);
    cvd->SetValueFormat(CVD_R0, L"0.0000");
    EXPECT_FALSE(cvd->Changed());
}

TEST_F(CQuorCVDTest, KeepsItsSpareSlotWhenItShrinksAndGrows) {
    for (std::int32_t i = 0; i < 4; ++i)
        cvd->SetCoefficients(i, i + 1.0);
    cvd->SetValueFormat(2, L"0.00");
    cvd->SetNumCoefficients(2);
    cvd->SetNumCoefficients(4);
    EXPECT_EQ(cvd->Coefficients(0), 1.0);
    EXPECT_EQ(cvd->Coefficients(1), 2.0);
    EXPECT_EQ(cvd->Coefficients(2), 3.0);
    EXPECT_EQ(cvd->ValueFormat(2), L"0.00");
    EXPECT_EQ(cvd->Coefficients(3), 0.0);
}

TEST_F(CQuorCVDTest, RefusesAnIndexOutsideItsCount) {
    cvd->SetNumCoefficients(3);
    EXPECT_QUOR_ERROR((void)cvd->Coefficients(CVD_BETA), indexOutOfRange, L"CQuorCVD", L"Index out of range");
    EXPECT_QUOR_ERROR(cvd->SetCoefficients(-1, 1.0), indexOutOfRange, L"CQuorCVD", L"Index out of range");
    EXPECT_QUOR_ERROR((void)cvd->ValueFormat(3), indexOutOfRange, L"CQuorCVD", L"Index out of range");
    EXPECT_QUOR_ERROR(cvd->SetValueFormat(3, L"0"), indexOutOfRange, L"CQuorCVD", L"Index out of range");
}

TEST_F(CQuorCVDTest, TakesANegativeCountSilentlyAndFindsItsValuesAgain) {
    cvd->SetCoefficients(CVD_R0, 100.0);
    cvd->SetNumCoefficients(-5);
    EXPECT_EQ(cvd->NumCoefficients(), -5);
    EXPECT_QUOR_ERROR((void)cvd->Coefficients(CVD_R0), indexOutOfRange, L"CQuorCVD", L"Index out of range");
    cvd->SetNumCoefficients(4);
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 100.0);
}

TEST_F(CQuorCVDTest, WritesItsKeysInOrderWithEmptyComments) {
    cvd->SetCoefficients(CVD_R0, 100.5);
    cvd->SetUsePolynomial(true);
    cvd->WriteToFile(ini, L"", L"Probe 1");
    EXPECT_EQ(memory->operations,
              (std::vector<std::wstring>{
                  L"Section \"Probe 1\"", L"Hold", L"WriteString Version=\"1.0\"",
                  L"WriteInteger NumCoefficients=4 comment \"\"", L"WriteBoolean UsePolynomial=True",
                  L"WriteDouble Coefficients0=100.5 comment \"\"",
                  L"WriteDouble Coefficients1=0 comment \"\"", L"WriteDouble Coefficients2=0 comment \"\"",
                  L"WriteDouble Coefficients3=0 comment \"\"", L"Release"}));
}

TEST_F(CQuorCVDTest, TellsOnceOfAMissingKeyAndTakesTheOthers) {
    cvd->SetCoefficients(CVD_R0, 100.0);
    cvd->SetCoefficients(CVD_DELTA, 1.5);
    cvd->WriteToFile(ini, L"", L"Probe");
    memory->Remove(L"Probe", L"Coefficients2");
    auto other = Support::NewSettings<CQuorCVD>(CONV_CVD, platform);
    other->SetCoefficients(CVD_DELTA, 9.0);
    EXPECT_FALSE(other->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(other->Coefficients(CVD_R0), 100.0);
    EXPECT_EQ(other->Coefficients(CVD_DELTA), 9.0); // its own value stands
    ASSERT_EQ(platform->Messages().size(), 1U);
    EXPECT_EQ(platform->Messages()[0].text, versionMessage);
    EXPECT_EQ(platform->Messages()[0].title, L"Quor Scientific");
    EXPECT_EQ(platform->Messages()[0].icon, ICON_INFORMATION);
}
