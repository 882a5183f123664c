#include "QuorConversions/rtd/CQuorPT100.h"

#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

using namespace QuorConversions;
using Support::indexOutOfRange;
using Support::Lines;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::Records;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

class CQuorPT100Test : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorPT100> pt100 = std::make_shared<CQuorPT100>(platform);
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
};

} // namespace

TEST_F(CQuorPT100Test, IsNewWithOneCoefficientOfZero) {
    EXPECT_EQ(pt100->NumCoefficients(), 1);
    EXPECT_EQ(pt100->MaxCoefficients(), 1);
    EXPECT_EQ(pt100->Coefficients(PT100_R0), 0.0);
    EXPECT_EQ(pt100->ValueFormat(PT100_R0), L"");
    EXPECT_FALSE(pt100->Changed());
    EXPECT_TRUE(pt100->AllowEdit());
    EXPECT_EQ(pt100->GetName(), L"PT100");
    EXPECT_EQ(pt100->FileExtension(), L"pt1");
}

TEST_F(CQuorPT100Test, IsMadeByAHostWithoutAPlatform) {
    CQuorPT100 headless;
    headless.SetCoefficients(PT100_R0, 100.02);
    EXPECT_EQ(headless.Coefficients(PT100_R0), 100.02);
}

TEST_F(CQuorPT100Test, IsChangedByAnotherCoefficientOrCountOnly) {
    pt100->SetCoefficients(PT100_R0, 0.0);
    pt100->SetNumCoefficients(1);
    pt100->SetValueFormat(PT100_R0, L"0.00");
    EXPECT_EQ(pt100->ValueFormat(PT100_R0), L"0.00");
    EXPECT_FALSE(pt100->Changed());
    pt100->SetCoefficients(PT100_R0, 100.02);
    EXPECT_TRUE(pt100->Changed());
    pt100->SetChanged(false);
    pt100->SetNumCoefficients(2);
    EXPECT_TRUE(pt100->Changed());
}

TEST_F(CQuorPT100Test, RefusesAnIndexOutsideItsCount) {
    for (const std::int32_t index : {-1, 1}) {
        SCOPED_TRACE(index);
        EXPECT_QUOR_ERROR((void)pt100->Coefficients(index), indexOutOfRange, L"CQuorPT100",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(pt100->SetCoefficients(index, 1.0), indexOutOfRange, L"CQuorPT100",
                          L"Index out of range");
        EXPECT_QUOR_ERROR((void)pt100->ValueFormat(index), indexOutOfRange, L"CQuorPT100",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(pt100->SetValueFormat(index, L"0"), indexOutOfRange, L"CQuorPT100",
                          L"Index out of range");
    }
}

TEST_F(CQuorPT100Test, SavesItselfInTheSectionOfCallendarVanDusen) {
    platform->ChooseFile(L"C:\\probes\\spare.pt1");
    platform->MakeIniFilesWith([this] { return memory; });
    pt100->SetCoefficients(PT100_R0, 100.25);
    std::wstring name;
    EXPECT_TRUE(pt100->SaveFileAs(0, name));
    EXPECT_EQ(memory->operations,
              (Lines{L"FileName \"C:\\probes\\spare.pt1\"", L"Section \"Callendar-Van Dusen\"", L"Hold",
                     L"WriteString Version=\"1.0\"", L"WriteInteger NumCoefficients=1 comment \"\"",
                     L"WriteDouble Coefficients0=100.25 comment \"\"", L"Release"}));
}

TEST_F(CQuorPT100Test, KeepsItsOwnValueForEachMissingKey) {
    const Records file = {{{L"Probe", L"Version"}, L"1.0"},
                          {{L"Probe", L"NumCoefficients"}, std::int16_t{1}},
                          {{L"Probe", L"Coefficients0"}, 100.25}};
    Records own = file;
    own[{L"Probe", L"Coefficients0"}] = 99.5;
    Support::ExpectOwnValueForEachMissingKey(
        *platform, [this] { return std::make_shared<CQuorPT100>(platform); }, own, file);
}

TEST_F(CQuorPT100Test, TakesAllFourValuesOfACallendarVanDusenSection) {
    memory->values = {{{L"P", L"NumCoefficients"}, std::int16_t{4}},
                      {{L"P", L"UsePolynomial"}, true},
                      {{L"P", L"Coefficients0"}, 100.25},
                      {{L"P", L"Coefficients1"}, 0.00385},
                      {{L"P", L"Coefficients2"}, 1.5},
                      {{L"P", L"Coefficients3"}, 0.125}};
    EXPECT_TRUE(pt100->ReadFromFile(ini, L"", L"P"));
    EXPECT_EQ(memory->operations,
              (Lines{L"Section \"P\"", L"ReadInteger NumCoefficients", L"ReadDouble Coefficients0",
                     L"ReadDouble Coefficients1", L"ReadDouble Coefficients2", L"ReadDouble Coefficients3"}));
    EXPECT_EQ(pt100->NumCoefficients(), 4);
    EXPECT_EQ(pt100->MaxCoefficients(), 1);
    EXPECT_EQ(pt100->Coefficients(PT100_R0), 100.25);
    EXPECT_EQ(pt100->Coefficients(3), 0.125);
}

TEST_F(CQuorPT100Test, TakesANegativeCountOfAFileAndTellsOnce) {
    pt100->SetCoefficients(PT100_R0, 100.25);
    memory->Set(L"P", L"NumCoefficients", std::int16_t{-1});
    EXPECT_FALSE(pt100->ReadFromFile(ini, L"", L"P"));
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage}));
    EXPECT_EQ(pt100->NumCoefficients(), -1);
    EXPECT_QUOR_ERROR((void)pt100->Coefficients(PT100_R0), indexOutOfRange, L"CQuorPT100",
                      L"Index out of range");
    pt100->SetNumCoefficients(1);
    EXPECT_EQ(pt100->Coefficients(PT100_R0), 100.25);
}
