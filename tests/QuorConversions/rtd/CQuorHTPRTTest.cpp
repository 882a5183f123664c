#include "QuorConversions/rtd/CQuorHTPRT.h"

#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

using namespace QuorConversions;
using Support::ErrorReport;
using Support::indexOutOfRange;
using Support::Lines;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::Records;
using Support::ScriptedPlatform;

namespace {

class CQuorHTPRTTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorHTPRT> htprt = Support::FreshSettings<CQuorHTPRT>(CONV_HTPRT, platform);
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
    const Records record = {
        {{L"Probe", L"Version"}, L"1.0"},           {{L"Probe", L"NumCoefficients"}, std::int16_t{3}},
        {{L"Probe", L"Coefficients0"}, 0.25},       {{L"Probe", L"Coefficients1"}, -1.2345e-4},
        {{L"Probe", L"Coefficients2"}, 6.78901e-6},
    };

    bool Read(std::int16_t count) {
        memory->values = record;
        memory->Set(L"Probe", L"NumCoefficients", count);
        return htprt->ReadFromFile(ini, L"", L"Probe");
    }
};

template <class T>
concept HasSettableCount = requires(T& object) {
    object.SetNumCoefficients(std::int16_t{1});
};
static_assert(!HasSettableCount<CQuorHTPRT>, "the count follows the class and its files");

} // namespace

TEST_F(CQuorHTPRTTest, IsNewWithThreeCoefficientsOfZero) {
    EXPECT_EQ(htprt->NumCoefficients(), 3);
    for (const auto index : {HTPRT_RTPW, HTPRT_A, HTPRT_B}) {
        EXPECT_EQ(htprt->Coefficients(index), 0.0);
        EXPECT_EQ(htprt->ValueFormat(index), L"");
    }
    EXPECT_FALSE(htprt->Changed());
    EXPECT_TRUE(htprt->AllowEdit());
    EXPECT_EQ(htprt->GetName(), L"High Temperature PRT");
    EXPECT_EQ(htprt->FileExtension(), L"hpt");
    EXPECT_EQ(htprt->SectionName(), L"High Temp PRT"); // short on purpose
}

TEST_F(CQuorHTPRTTest, RefusesAnIndexOutsideItsThreeCoefficients) {
    for (const std::int32_t index : {-1, 3, 4}) {
        SCOPED_TRACE(index);
        EXPECT_QUOR_ERROR((void)htprt->Coefficients(index), indexOutOfRange, L"CQuorHTPRT",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(htprt->SetCoefficients(index, 1.0), indexOutOfRange, L"CQuorHTPRT",
                          L"Index out of range");
        EXPECT_QUOR_ERROR((void)htprt->ValueFormat(index), indexOutOfRange, L"CQuorHTPRT",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(htprt->SetValueFormat(index, L"0"), indexOutOfRange, L"CQuorHTPRT",
                          L"Index out of range");
    }
    EXPECT_FALSE(htprt->Changed());
}

TEST_F(CQuorHTPRTTest, IsChangedByAnotherCoefficientOnly) {
    htprt->SetCoefficients(HTPRT_RTPW, 0.0);
    htprt->SetValueFormat(HTPRT_RTPW, L"0.0000");
    EXPECT_EQ(htprt->ValueFormat(HTPRT_RTPW), L"0.0000");
    EXPECT_FALSE(htprt->Changed());
    htprt->SetCoefficients(HTPRT_RTPW, 0.25);
    EXPECT_TRUE(htprt->Changed());
}

TEST_F(CQuorHTPRTTest, WritesItsKeysInOrderAndNoFormats) {
    htprt->SetCoefficients(HTPRT_RTPW, 0.25);
    htprt->SetCoefficients(HTPRT_B, -0.125);
    htprt->SetValueFormat(HTPRT_B, L"0.0");
    htprt->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(memory->operations, (Lines{L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                                         L"WriteInteger NumCoefficients=3 comment \"\"",
                                         L"WriteDouble Coefficients0=0.25 comment \"\"",
                                         L"WriteDouble Coefficients1=0 comment \"\"",
                                         L"WriteDouble Coefficients2=-0.125 comment \"\"", L"Release"}));
    EXPECT_TRUE(htprt->Changed());
}

TEST_F(CQuorHTPRTTest, ReadsItsKeysInOrder) {
    EXPECT_TRUE(Read(3));
    EXPECT_EQ(memory->operations,
              (Lines{L"Section \"Probe\"", L"ReadInteger NumCoefficients", L"ReadDouble Coefficients0",
                     L"ReadDouble Coefficients1", L"ReadDouble Coefficients2"}));
    EXPECT_EQ(htprt->Coefficients(HTPRT_RTPW), 0.25);
    EXPECT_EQ(htprt->Coefficients(HTPRT_A), -1.2345e-4);
    EXPECT_EQ(htprt->Coefficients(HTPRT_B), 6.78901e-6);
}

TEST_F(CQuorHTPRTTest, KeepsItsOwnValueForEachMissingKey) {
    Records own = record;
    for (std::int32_t i = 0; i < 3; ++i)
        own[{L"Probe", L"Coefficients" + std::to_wstring(i)}] = i + 10.5;
    Support::ExpectOwnValueForEachMissingKey(
        *platform, [this] { return Support::NewSettings<CQuorHTPRT>(CONV_HTPRT, platform); }, own, record);
}

TEST_F(CQuorHTPRTTest, TakesTwoCoefficientsFromAFileAndRefusesB) {
    EXPECT_TRUE(Read(2));
    EXPECT_EQ(htprt->NumCoefficients(), 2);
    EXPECT_QUOR_ERROR((void)htprt->Coefficients(HTPRT_B), indexOutOfRange, L"CQuorHTPRT",
                      L"Index out of range");
}

TEST_F(CQuorHTPRTTest, FindsTheSpareSlotAgainWhenAFileBringsTheCountBack) {
    EXPECT_TRUE(Read(3));
    htprt->SetValueFormat(HTPRT_A, L"0.00");
    EXPECT_TRUE(Read(1));
    htprt->SetChanged(false);
    memory->values = {{{L"Probe", L"NumCoefficients"}, std::int16_t{3}}};
    EXPECT_FALSE(htprt->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(htprt->Coefficients(HTPRT_A), -1.2345e-4);
    EXPECT_EQ(htprt->ValueFormat(HTPRT_A), L"0.00");
    EXPECT_EQ(htprt->Coefficients(HTPRT_B), 0.0);
    EXPECT_TRUE(htprt->Changed()); // by the count
}

TEST_F(CQuorHTPRTTest, ReportsACountAboveThreeAndKeepsWhatItReached) {
    EXPECT_FALSE(Read(4));
    EXPECT_EQ(MessageTexts(*platform), (Lines{ErrorReport(Support::readingSettings, indexOutOfRange,
                                                          L"Index out of range", L"CQuorHTPRT")}));
    EXPECT_EQ(htprt->NumCoefficients(), 4);
    EXPECT_EQ(htprt->Coefficients(HTPRT_B), 6.78901e-6);
    EXPECT_QUOR_ERROR((void)htprt->Coefficients(3), indexOutOfRange, L"CQuorHTPRT", L"Index out of range");
}

TEST_F(CQuorHTPRTTest, ReportsTheSurplusCountAgainWhenItIsWritten) {
    EXPECT_FALSE(Read(4));
    memory->values.clear();
    memory->operations.clear();
    htprt->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(platform->Messages().back().text,
              ErrorReport(Support::writingSettings, indexOutOfRange, L"Index out of range", L"CQuorHTPRT"));
    EXPECT_EQ(memory->Double(L"Probe", L"Coefficients2"), 6.78901e-6);
    EXPECT_EQ(memory->operations.back(), L"Release"); // the store is not left held
}

TEST_F(CQuorHTPRTTest, ReportsANegativeCountAndFindsItsValuesAgain) {
    EXPECT_TRUE(Read(3));
    htprt->SetChanged(false);
    EXPECT_FALSE(Read(-1));
    EXPECT_EQ(MessageTexts(*platform),
              (Lines{ErrorReport(Support::readingSettings, 9, L"Subscript out of range", L"CQuorHTPRT")}));
    EXPECT_EQ(htprt->NumCoefficients(), -1);
    EXPECT_TRUE(htprt->Changed());
    EXPECT_QUOR_ERROR((void)htprt->Coefficients(HTPRT_RTPW), indexOutOfRange, L"CQuorHTPRT",
                      L"Index out of range");

    memory->values = {{{L"Probe", L"NumCoefficients"}, std::int16_t{3}}};
    EXPECT_FALSE(htprt->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(htprt->Coefficients(HTPRT_B), 6.78901e-6);
}
