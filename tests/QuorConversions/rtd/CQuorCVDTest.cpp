#include "QuorConversions/rtd/CQuorCVD.h"

#include "QuorConversions/rtd/CQuorPT100.h"
#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

#include <cmath>
#include <limits>

using namespace QuorConversions;
using Support::indexOutOfRange;
using Support::Lines;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::Records;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

class CQuorCVDTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorCVD> cvd = Support::FreshSettings<CQuorCVD>(CONV_CVD, platform);
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
    const Records record = {
        {{L"Probe", L"Version"}, L"1.0"},           {{L"Probe", L"NumCoefficients"}, std::int16_t{4}},
        {{L"Probe", L"UsePolynomial"}, true},       {{L"Probe", L"Coefficients0"}, 100.02},
        {{L"Probe", L"Coefficients1"}, 0.00385055}, {{L"Probe", L"Coefficients2"}, 1.4999},
        {{L"Probe", L"Coefficients3"}, 0.10863},
    };
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
    EXPECT_EQ(cvd->FileExtension(), L"cvd");
    EXPECT_EQ(cvd->SectionName(), L"Callendar-Van Dusen");
}

TEST_F(CQuorCVDTest, IsChangedByAnotherValueOnly) {
    cvd->SetCoefficients(CVD_ALPHA, 0.0);
    EXPECT_FALSE(cvd->Changed());
    cvd->SetCoefficients(CVD_ALPHA, 0.00385055);
    EXPECT_TRUE(cvd->Changed());
}

TEST_F(CQuorCVDTest, TakesNaNForItselfAndForNoNumber) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::tuple<const char*, double, double, bool> cases[] = {
        {"a number and NaN", 1.5, nan, true},
        {"NaN and NaN", nan, nan, false},
        {"NaN and a number", nan, 1.5, true},
        {"infinities of one sign", INFINITY, INFINITY, false},
        {"infinities of both signs", INFINITY, -INFINITY, true},
        {"neighbours", 1.5, std::nextafter(1.5, 2.0), true},
        {"zeros of both signs", 0.0, -0.0, false},
    };
    for (const auto& [name, stored, value, changed] : cases) {
        SCOPED_TRACE(name);
        cvd->SetCoefficients(CVD_DELTA, stored);
        cvd->SetChanged(false);
        cvd->SetCoefficients(CVD_DELTA, value);
        EXPECT_EQ(cvd->Changed(), changed);
        EXPECT_EQ(std::signbit(cvd->Coefficients(CVD_DELTA)), std::signbit(value));
    }
}

TEST_F(CQuorCVDTest, IsNeverChangedByDisplaySettings) {
    cvd->SetUsePolynomial(true);
    cvd->SetValueFormat(CVD_R0, L"0.0000");
    EXPECT_TRUE(cvd->UsePolynomial());
    EXPECT_EQ(cvd->ValueFormat(CVD_R0), L"0.0000");
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

TEST_F(CQuorCVDTest, IsChangedByAnotherCountOnly) {
    cvd->SetNumCoefficients(4);
    EXPECT_FALSE(cvd->Changed());
    cvd->SetNumCoefficients(6);
    EXPECT_TRUE(cvd->Changed());
    EXPECT_EQ(cvd->MaxCoefficients(), 4);
    cvd->SetCoefficients(5, 0.5); // the count alone limits the index
    EXPECT_EQ(cvd->Coefficients(5), 0.5);
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
    cvd->SetChanged(false);
    cvd->SetNumCoefficients(-5);
    EXPECT_EQ(cvd->NumCoefficients(), -5);
    EXPECT_TRUE(cvd->Changed());
    EXPECT_QUOR_ERROR((void)cvd->Coefficients(CVD_R0), indexOutOfRange, L"CQuorCVD", L"Index out of range");
    cvd->SetNumCoefficients(4);
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 100.0);
}

TEST_F(CQuorCVDTest, WritesItsKeysInOrderWithEmptyComments) {
    cvd->SetCoefficients(CVD_R0, 100.5);
    cvd->SetValueFormat(CVD_R0, L"0.0000"); // never written
    cvd->SetUsePolynomial(true);
    cvd->WriteToFile(ini, L"", L"Probe 1");
    EXPECT_EQ(memory->operations,
              (std::vector<std::wstring>{
                  L"Section \"Probe 1\"", L"Hold", L"WriteString Version=\"1.0\"",
                  L"WriteInteger NumCoefficients=4 comment \"\"", L"WriteBoolean UsePolynomial=True",
                  L"WriteDouble Coefficients0=100.5 comment \"\"",
                  L"WriteDouble Coefficients1=0 comment \"\"", L"WriteDouble Coefficients2=0 comment \"\"",
                  L"WriteDouble Coefficients3=0 comment \"\"", L"Release"}));
    EXPECT_TRUE(cvd->Changed()); // a save does not clear it
}

TEST_F(CQuorCVDTest, WritesAsManyCoefficientsAsTheLargestCountSays) {
    cvd->SetNumCoefficients(32767);
    cvd->SetCoefficients(32766, 0.5);
    cvd->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(memory->Double(L"Probe", L"Coefficients32766"), 0.5);
    EXPECT_FALSE(memory->Has(L"Probe", L"Coefficients32767"));
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorCVDTest, WritesANegativeCountWithoutCoefficients) {
    cvd->SetNumCoefficients(-32768);
    cvd->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(memory->values, (Records{{{L"Probe", L"Version"}, L"1.0"},
                                       {{L"Probe", L"NumCoefficients"}, std::int16_t{-32768}},
                                       {{L"Probe", L"UsePolynomial"}, false}}));
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorCVDTest, ReadsItsKeysInOrder) {
    memory->values = record;
    EXPECT_TRUE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(memory->operations,
              (Lines{L"Section \"Probe\"", L"ReadInteger NumCoefficients", L"ReadBoolean UsePolynomial",
                     L"ReadDouble Coefficients0", L"ReadDouble Coefficients1", L"ReadDouble Coefficients2",
                     L"ReadDouble Coefficients3"}));
    EXPECT_TRUE(cvd->UsePolynomial());
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 100.02);
    EXPECT_EQ(cvd->Coefficients(CVD_BETA), 0.10863);
}

TEST_F(CQuorCVDTest, IsChangedByReadingAnotherCoefficientOrCountOnly) {
    memory->values = record;
    EXPECT_TRUE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_TRUE(cvd->Changed());
    cvd->SetChanged(false);
    memory->Set(L"Probe", L"UsePolynomial", false);
    EXPECT_TRUE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_FALSE(cvd->UsePolynomial());
    EXPECT_FALSE(cvd->Changed());
    memory->Set(L"Probe", L"NumCoefficients", std::int16_t{3});
    EXPECT_TRUE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_TRUE(cvd->Changed());
}

TEST_F(CQuorCVDTest, KeepsItsOwnValueForEachMissingKey) {
    Records own = record;
    own[{L"Probe", L"UsePolynomial"}] = false;
    for (std::int32_t i = 0; i < 4; ++i)
        own[{L"Probe", L"Coefficients" + std::to_wstring(i)}] = i + 10.5;
    Support::ExpectOwnValueForEachMissingKey(
        *platform, [this] { return Support::NewSettings<CQuorCVD>(CONV_CVD, platform); }, own, record);
}

TEST_F(CQuorCVDTest, ReadsAsManyCoefficientsAsItHasWhereTheCountIsMissing) {
    cvd->SetNumCoefficients(2);
    memory->values = record;
    memory->Remove(L"Probe", L"NumCoefficients");
    EXPECT_FALSE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(cvd->NumCoefficients(), 2);
    EXPECT_EQ(cvd->Coefficients(CVD_ALPHA), 0.00385055);
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage}));
}

TEST_F(CQuorCVDTest, TakesWhatAStoreLeavesInTheVariablesOfMissingKeys) {
    memory->scribblesOnMissingKeys = true; // it leaves 1, True and 7.5
    EXPECT_FALSE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(cvd->NumCoefficients(), 1);
    EXPECT_TRUE(cvd->UsePolynomial());
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 7.5);
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage}));
}

TEST_F(CQuorCVDTest, TakesANegativeCountOfAFileAndTellsOnce) {
    memory->values = record;
    memory->Set(L"Probe", L"NumCoefficients", std::int16_t{-32768});
    EXPECT_FALSE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(cvd->NumCoefficients(), -32768);
    EXPECT_TRUE(cvd->UsePolynomial()); // the reading went on
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage}));
}

TEST_F(CQuorCVDTest, AttemptsEveryKeyOfTheLargestCountAndTellsOnce) {
    memory->values = record;
    memory->Set(L"Probe", L"NumCoefficients", std::int16_t{32767});
    EXPECT_FALSE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(memory->operations.back(), L"ReadDouble Coefficients32766");
    EXPECT_EQ(cvd->Coefficients(CVD_BETA), 0.10863);
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage}));
}

TEST_F(CQuorCVDTest, ReadsAPT100SectionButForUsePolynomial) {
    CQuorPT100 pt100(platform);
    pt100.SetCoefficients(PT100_R0, 100.25);
    pt100.WriteToFile(ini, L"", L"Callendar-Van Dusen");
    cvd->SetUsePolynomial(true);
    EXPECT_FALSE(cvd->ReadFromFile(ini, L"", L"Callendar-Van Dusen"));
    EXPECT_EQ(cvd->NumCoefficients(), 1);
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 100.25);
    EXPECT_TRUE(cvd->UsePolynomial()); // its own value stands
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage}));
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
