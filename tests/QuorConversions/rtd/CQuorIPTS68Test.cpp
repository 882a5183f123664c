#include "QuorConversions/rtd/CQuorIPTS68.h"

#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

#include <cmath>

using namespace QuorConversions;
using Support::ErrorReport;
using Support::indexOutOfRange;
using Support::Lines;
using Support::ListRecorder;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::Records;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

class CQuorIPTS68Test : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorIPTS68> ipts68 = Support::FreshSettings<CQuorIPTS68>(CONV_IPTS68, platform);
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
    const Records record = {
        {{L"Probe", L"Version"}, L"1.0"},
        {{L"Probe", L"IPTS-68 scale"}, std::int16_t{1}},
        {{L"Probe", L"NumCoefficients"}, std::int16_t{5}},
        {{L"Probe", L"Coefficients0"}, 100.0},
        {{L"Probe", L"Coefficients1"}, 0.0039259668},
        {{L"Probe", L"Coefficients2"}, 1.4963},
        {{L"Probe", L"Coefficients3"}, -3.5e-7},
        {{L"Probe", L"Coefficients4"}, 2.25e-14},
    };
};

template <class T>
concept HasSettableCount = requires(T& object) {
    object.SetNumCoefficients(std::int16_t{1});
};
static_assert(!HasSettableCount<CQuorIPTS68>, "the count follows the class and its files");

} // namespace

TEST_F(CQuorIPTS68Test, IsNewWithFiveCoefficientsOfZeroInITS90) {
    EXPECT_EQ(ipts68->NumCoefficients(), 5);
    for (const auto index : {IPTS68_R0, IPTS68_ALPHA, IPTS68_DELTA, IPTS68_A4, IPTS68_C4}) {
        EXPECT_EQ(ipts68->Coefficients(index), 0.0);
        EXPECT_EQ(ipts68->ValueFormat(index), L"");
    }
    EXPECT_EQ(ipts68->IPTS68Scale(), SCALE_ITS90);
    EXPECT_FALSE(ipts68->ScaleEnabled());
    EXPECT_FALSE(ipts68->Changed());
    EXPECT_TRUE(ipts68->AllowEdit());
    EXPECT_EQ(ipts68->GetName(), L"IPTS-68");
    EXPECT_EQ(ipts68->FileExtension(), L"i68");
    EXPECT_EQ(ipts68->SectionName(), L"IPTS-68");
}

TEST_F(CQuorIPTS68Test, NamesItsTwoScalesAndNoOthers) {
    EXPECT_EQ(ipts68->IPTS68ScaleName(0), L"ITS-90");
    EXPECT_EQ(ipts68->IPTS68ScaleName(1), L"IPTS-68");
    for (const std::int32_t other : {-3, -1, 2, 70000})
        EXPECT_EQ(ipts68->IPTS68ScaleName(other), L"") << other;
    EXPECT_EQ(ipts68->IPTS68ScaleName(-2), L"ITS-90"); // the current one
    ipts68->SetIPTS68Scale(SCALE_IPTS68);
    EXPECT_EQ(ipts68->IPTS68ScaleName(-2), L"IPTS-68");
}

TEST_F(CQuorIPTS68Test, StoresAnyScale) {
    for (const std::int32_t scale : {7, -2, 70000}) {
        ipts68->SetIPTS68Scale(EIPTS68Scale{scale});
        EXPECT_EQ(ipts68->IPTS68Scale(), EIPTS68Scale{scale});
        EXPECT_EQ(ipts68->IPTS68ScaleName(-2), L"") << scale;
    }
}

TEST_F(CQuorIPTS68Test, IsChangedByAnotherScaleOrCoefficientOnly) {
    ipts68->SetIPTS68Scale(SCALE_ITS90);
    ipts68->SetCoefficients(IPTS68_C4, 0.0);
    EXPECT_FALSE(ipts68->Changed());
    ipts68->SetIPTS68Scale(SCALE_IPTS68);
    EXPECT_TRUE(ipts68->Changed());
    ipts68->SetChanged(false);
    ipts68->SetCoefficients(IPTS68_C4, 2.25e-14);
    EXPECT_TRUE(ipts68->Changed());
}

TEST_F(CQuorIPTS68Test, IsNeverChangedByDisplaySettings) {
    ipts68->SetScaleEnabled(true);
    ipts68->SetValueFormat(IPTS68_C4, L"0.0000E+00");
    EXPECT_TRUE(ipts68->ScaleEnabled());
    EXPECT_EQ(ipts68->ValueFormat(IPTS68_C4), L"0.0000E+00");
    EXPECT_FALSE(ipts68->Changed());
}

TEST_F(CQuorIPTS68Test, RefusesAnIndexOutsideItsFiveCoefficients) {
    for (const std::int32_t index : {-1, 5, 6}) {
        SCOPED_TRACE(index);
        EXPECT_QUOR_ERROR((void)ipts68->Coefficients(index), indexOutOfRange, L"CQuorIPTS68",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(ipts68->SetCoefficients(index, 1.0), indexOutOfRange, L"CQuorIPTS68",
                          L"Index out of range");
        EXPECT_QUOR_ERROR((void)ipts68->ValueFormat(index), indexOutOfRange, L"CQuorIPTS68",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(ipts68->SetValueFormat(index, L"0"), indexOutOfRange, L"CQuorIPTS68",
                          L"Index out of range");
    }
    EXPECT_FALSE(ipts68->Changed());
}

TEST_F(CQuorIPTS68Test, FillsAListWithItsTwoScales) {
    ListRecorder list;
    list.items = {{L"left from before", 99}};
    ipts68->FillScaleCombo(list);
    EXPECT_EQ(list.items, (std::vector<ListRecorder::Item>{{L"ITS-90", 0}, {L"IPTS-68", 1}}));
}

TEST_F(CQuorIPTS68Test, WritesItsScaleBeforeItsCoefficients) {
    ipts68->SetIPTS68Scale(SCALE_IPTS68);
    ipts68->SetScaleEnabled(true);
    ipts68->SetCoefficients(IPTS68_R0, 100.25);
    ipts68->SetCoefficients(IPTS68_C4, -0.5);
    ipts68->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(
        memory->operations,
        (Lines{L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
               L"WriteInteger IPTS-68 scale=1 comment \"\"", L"WriteInteger NumCoefficients=5 comment \"\"",
               L"WriteDouble Coefficients0=100.25 comment \"\"", L"WriteDouble Coefficients1=0 comment \"\"",
               L"WriteDouble Coefficients2=0 comment \"\"", L"WriteDouble Coefficients3=0 comment \"\"",
               L"WriteDouble Coefficients4=-0.5 comment \"\"", L"Release"}));
    EXPECT_TRUE(ipts68->Changed());
}

TEST_F(CQuorIPTS68Test, ReadsItsKeysInOrder) {
    memory->values = record;
    EXPECT_TRUE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(memory->operations,
              (Lines{L"Section \"Probe\"", L"ReadInteger IPTS-68 scale", L"ReadInteger NumCoefficients",
                     L"ReadDouble Coefficients0", L"ReadDouble Coefficients1", L"ReadDouble Coefficients2",
                     L"ReadDouble Coefficients3", L"ReadDouble Coefficients4"}));
    EXPECT_EQ(ipts68->IPTS68Scale(), SCALE_IPTS68);
    EXPECT_EQ(ipts68->Coefficients(IPTS68_ALPHA), 0.0039259668);
    EXPECT_EQ(ipts68->Coefficients(IPTS68_C4), 2.25e-14);
    EXPECT_TRUE(ipts68->Changed());

    ipts68->SetChanged(false);
    EXPECT_TRUE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_FALSE(ipts68->Changed()); // nothing differed
}

TEST_F(CQuorIPTS68Test, KeepsItsOwnValueForEachMissingKey) {
    Records own = record;
    own[{L"Probe", L"IPTS-68 scale"}] = std::int16_t{7};
    for (std::int32_t i = 0; i < 5; ++i)
        own[{L"Probe", L"Coefficients" + std::to_wstring(i)}] = i + 10.5;
    Support::ExpectOwnValueForEachMissingKey(
        *platform, [this] { return Support::NewSettings<CQuorIPTS68>(CONV_IPTS68, platform); }, own, record);
}

TEST_F(CQuorIPTS68Test, TakesTheScaleThatAStoreLeavesForAMissingKey) {
    memory->scribblesOnMissingKeys = true; // it leaves 1 and 7.5
    EXPECT_FALSE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(ipts68->IPTS68Scale(), SCALE_IPTS68);
    EXPECT_EQ(ipts68->NumCoefficients(), 1);
    EXPECT_EQ(ipts68->Coefficients(IPTS68_R0), 7.5);
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage}));
}

TEST_F(CQuorIPTS68Test, TakesASmallerCountFromAFileAndRefusesTheRest) {
    memory->values = record;
    memory->Set(L"Probe", L"NumCoefficients", std::int16_t{3});
    EXPECT_TRUE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(ipts68->NumCoefficients(), 3);
    EXPECT_EQ(ipts68->Coefficients(IPTS68_DELTA), 1.4963);
    EXPECT_QUOR_ERROR((void)ipts68->Coefficients(IPTS68_A4), indexOutOfRange, L"CQuorIPTS68",
                      L"Index out of range");
}

TEST_F(CQuorIPTS68Test, IsChangedByAnotherCountFromAFile) {
    memory->values = record;
    memory->Set(L"Probe", L"NumCoefficients", std::int16_t{3});
    EXPECT_TRUE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    ipts68->SetChanged(false);
    memory->Set(L"Probe", L"NumCoefficients", std::int16_t{2});
    EXPECT_TRUE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_TRUE(ipts68->Changed());
}

TEST_F(CQuorIPTS68Test, ReportsACountAboveFiveAndKeepsWhatItReached) {
    for (const std::int16_t count : {std::int16_t{6}, std::int16_t{32767}}) {
        SCOPED_TRACE(count);
        const std::size_t shown = platform->Messages().size();
        memory->values = record;
        memory->Set(L"Probe", L"NumCoefficients", count);
        memory->Set(L"Probe", L"Coefficients5", 6.0);
        EXPECT_FALSE(ipts68->ReadFromFile(ini, L"", L"Probe"));
        ASSERT_EQ(platform->Messages().size(), shown + 1);
        EXPECT_EQ(platform->Messages().back().text, ErrorReport(Support::readingSettings, indexOutOfRange,
                                                                L"Index out of range", L"CQuorIPTS68"));
        EXPECT_EQ(ipts68->NumCoefficients(), count);
        EXPECT_EQ(ipts68->Coefficients(IPTS68_C4), 2.25e-14);
    }
}

TEST_F(CQuorIPTS68Test, ReportsANegativeCountAndFindsItsValuesAgain) {
    memory->values = record;
    EXPECT_TRUE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    ipts68->SetChanged(false);
    memory->values = {{{L"Probe", L"IPTS-68 scale"}, std::int16_t{1}},
                      {{L"Probe", L"NumCoefficients"}, std::int16_t{-32768}}};
    EXPECT_FALSE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(MessageTexts(*platform),
              (Lines{ErrorReport(Support::readingSettings, 9, L"Subscript out of range", L"CQuorIPTS68")}));
    EXPECT_EQ(ipts68->NumCoefficients(), -32768);
    EXPECT_TRUE(ipts68->Changed());

    memory->Set(L"Probe", L"NumCoefficients", std::int16_t{5});
    EXPECT_FALSE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(ipts68->Coefficients(IPTS68_C4), 2.25e-14);
}

TEST_F(CQuorIPTS68Test, ReportsAScaleThatDoesNotFitIntoAFile) {
    for (const std::int32_t scale : {32768, 70000, -32769}) {
        SCOPED_TRACE(scale);
        const std::size_t shown = platform->Messages().size();
        ipts68->SetIPTS68Scale(EIPTS68Scale{scale});
        ipts68->WriteToFile(ini, L"", L"Probe");
        ASSERT_EQ(platform->Messages().size(), shown + 1);
        EXPECT_EQ(platform->Messages().back().text,
                  ErrorReport(Support::writingSettings, 6, L"Overflow", L"CQuorIPTS68"));
        EXPECT_FALSE(memory->Has(L"Probe", L"IPTS-68 scale"));
        EXPECT_FALSE(memory->Has(L"Probe", L"NumCoefficients")); // the error ended the save
    }
}

TEST_F(CQuorIPTS68Test, KeepsAScaleBeyond16BitsForAMissingKey) {
    ipts68->SetIPTS68Scale(EIPTS68Scale{70000});
    memory->values = record;
    memory->Remove(L"Probe", L"IPTS-68 scale");
    EXPECT_FALSE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(ipts68->IPTS68Scale(), EIPTS68Scale{70000});
    EXPECT_EQ(ipts68->Coefficients(IPTS68_R0), 100.0);
}
