#include "QuorConversions/rtd/CQuorITS90.h"

#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <type_traits>

using namespace QuorConversions;
using Support::ErrorReport;
using Support::Lines;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::Records;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

using Registry = QuorRegistryII::Registry;

class NoRegistry : public Registry {
public:
    bool ReadValue(std::wstring_view /*section*/, std::wstring_view /*name*/,
                   std::wstring& /*value*/) override {
        return false;
    }
    void WriteValue(std::wstring_view /*section*/, std::wstring_view /*name*/,
                    std::wstring_view /*value*/) override {}
};

/// A registry that tells when nobody refers to it any more.
std::shared_ptr<Registry> TellingRegistry(const wchar_t* name, Lines& told) {
    static NoRegistry registry;
    return {&registry, [name, &told](Registry*) { told.emplace_back(name); }};
}

class CQuorITS90Test : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorITS90> its90 = Support::FreshSettings<CQuorITS90>(CONV_ITS90, platform);
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
    /// A high range 9 and a low range 5, two coefficients each.
    const Records records = {
        {{L"Probe", L"Version"}, L"1.0"},
        {{L"Probe", L"RTPW"}, 25.5},
        {{L"Probe - High Range", L"Version"}, L"1.0"},
        {{L"Probe - High Range", L"Range"}, std::int16_t{9}},
        {{L"Probe - High Range", L"Coefficients0"}, -1.5e-4},
        {{L"Probe - High Range", L"Coefficients1"}, -2.5e-5},
        {{L"Probe - Low Range", L"Version"}, L"1.0"},
        {{L"Probe - Low Range", L"Range"}, std::int16_t{5}},
        {{L"Probe - Low Range", L"Coefficients0"}, -3.5e-4},
        {{L"Probe - Low Range", L"Coefficients1"}, -4.5e-5},
    };

    std::shared_ptr<CQuorITS90LowRange> low = its90->LowRange();
    std::shared_ptr<CQuorITS90HighRange> high = its90->HighRange();
};

static_assert(!std::is_default_constructible_v<CreationKey>, "only the facade makes these classes");

} // namespace

TEST_F(CQuorITS90Test, IsNewWithoutRanges) {
    EXPECT_EQ(its90->RTPW(), 0.0);
    EXPECT_EQ(its90->RTPWFormat(), L"");
    EXPECT_TRUE(its90->AllowEdit());
    EXPECT_FALSE(its90->Changed());
    EXPECT_EQ(low->Range(), ITS90_NORANGE);
    EXPECT_EQ(high->Range(), ITS90_NORANGE);
    EXPECT_EQ(its90->GetName(), L"ITS-90");
    EXPECT_EQ(its90->FileExtension(), L"i90");
    EXPECT_EQ(its90->SectionName(), L"ITS-90");
}

TEST_F(CQuorITS90Test, IsChangedByAChangeOfEitherRange) {
    low->SetRange(ITS90_RANGE_2);
    EXPECT_TRUE(its90->Changed());
    EXPECT_FALSE(high->Changed());
    its90->SetChanged(false);
    EXPECT_FALSE(low->Changed());
    EXPECT_FALSE(its90->Changed());
    high->SetRange(ITS90_RANGE_6);
    EXPECT_TRUE(its90->Changed());
    EXPECT_FALSE(low->Changed());
}

TEST_F(CQuorITS90Test, SetsAndClearsTheMarkOfBothRanges) {
    for (const bool value : {true, false}) {
        its90->SetChanged(value);
        EXPECT_EQ(its90->Changed(), value);
        EXPECT_EQ(low->Changed(), value);
        EXPECT_EQ(high->Changed(), value);
    }
}

TEST_F(CQuorITS90Test, KeepsItsOwnMarkWhenARangeIsCleared) {
    its90->SetChanged(true);
    low->SetChanged(false);
    high->SetChanged(false);
    EXPECT_TRUE(its90->Changed());
}

TEST_F(CQuorITS90Test, MarksBothRangesChangedByAnotherRTPWOnly) {
    its90->SetRTPW(0.0);
    EXPECT_FALSE(its90->Changed());
    its90->SetRTPW(25.5);
    EXPECT_EQ(its90->RTPW(), 25.5);
    EXPECT_TRUE(its90->Changed());
    EXPECT_TRUE(low->Changed());
    EXPECT_TRUE(high->Changed());
}

TEST_F(CQuorITS90Test, StoresANegativeZeroWithoutAMarkAndTakesNaNForItself) {
    its90->SetRTPW(-0.0);
    EXPECT_TRUE(std::signbit(its90->RTPW()));
    EXPECT_FALSE(its90->Changed());
    its90->SetRTPW(std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(its90->Changed());
    its90->SetChanged(false);
    its90->SetRTPW(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(its90->Changed());
    its90->SetRTPW(25.5);
    EXPECT_TRUE(its90->Changed());
}

TEST_F(CQuorITS90Test, KeepsReadOnlyAndFormatToItselfAndUnchanged) {
    its90->SetAllowEdit(false);
    its90->SetRTPWFormat(L"0.0000");
    EXPECT_FALSE(its90->AllowEdit());
    EXPECT_EQ(its90->RTPWFormat(), L"0.0000");
    EXPECT_TRUE(low->AllowChangeRange());
    EXPECT_TRUE(high->AllowChangeRange());
    EXPECT_TRUE(low->RangeEnabled());
    EXPECT_TRUE(high->RangeEnabled());
    EXPECT_EQ(high->ValueFormat(), L"");
    EXPECT_FALSE(its90->Changed());
}

TEST_F(CQuorITS90Test, PassesTheRegistryOnToBothRanges) {
    const std::shared_ptr<Registry> registry = std::make_shared<NoRegistry>();
    std::shared_ptr<Registry> argument = registry;
    its90->SetRegistry(argument);
    EXPECT_EQ(argument, registry);
    EXPECT_EQ(its90->Registry(), registry);
    EXPECT_EQ(low->Registry(), registry);
    EXPECT_EQ(high->Registry(), registry);
    argument = nullptr;
    its90->SetRegistry(argument);
    EXPECT_EQ(its90->Registry(), nullptr);
    EXPECT_EQ(low->Registry(), nullptr);
    EXPECT_EQ(high->Registry(), nullptr);
}

TEST_F(CQuorITS90Test, ReleasesItsLowRangeThenItsHighRangeThenItsRegistry) {
    Lines told;
    const auto give = [&told](QuorObject& object, const wchar_t* name) {
        std::shared_ptr<Registry> registry = TellingRegistry(name, told);
        object.SetRegistry(registry);
    };
    give(*its90, L"own"); // goes to the ranges too, so theirs come after it
    give(*high, L"high");
    give(*low, L"low");
    low = nullptr;
    high = nullptr;
    its90 = nullptr;
    EXPECT_EQ(told, (Lines{L"low", L"high", L"own"}));
}

TEST_F(CQuorITS90Test, WritesTheHighRangeBeforeTheLowOneInSectionsOfTheirOwn) {
    its90->SetRTPW(25.5);
    high->SetRange(ITS90_RANGE_10);
    high->SetCoefficients(ITS90_HIGH_A, -0.25);
    its90->WriteToFile(ini, L"", L"Probe 1");
    EXPECT_EQ(memory->operations,
              (Lines{L"Section \"Probe 1\"", L"Hold", L"WriteString Version=\"1.0\"",
                     L"WriteDouble RTPW=25.5 comment \"\"", //
                     L"Section \"Probe 1 - High Range\"", L"Hold", L"WriteString Version=\"1.0\"",
                     L"WriteInteger Range=10 comment \"\"", L"WriteDouble Coefficients0=-0.25 comment \"\"",
                     L"Release", //
                     L"Section \"Probe 1 - Low Range\"", L"Hold", L"WriteString Version=\"1.0\"",
                     L"WriteInteger Range=-1 comment \"\"", L"Release", //
                     L"Release"}));
    EXPECT_TRUE(its90->Changed());
}

TEST_F(CQuorITS90Test, SavesItselfThroughOneIniFileInThreeSections) {
    platform->ChooseFile(L"C:\\probes\\spare.i90");
    platform->MakeIniFilesWith([this] { return memory; });
    std::wstring name;
    EXPECT_TRUE(its90->SaveFileAs(0, name));
    Lines places;
    for (const std::wstring& line : memory->operations)
        if (line.rfind(L"FileName", 0) == 0 || line.rfind(L"Section", 0) == 0 ||
            line.rfind(L"WriteString", 0) == 0)
            places.push_back(line);
    EXPECT_EQ(places, (Lines{L"FileName \"C:\\probes\\spare.i90\"", //
                             L"Section \"ITS-90\"", L"WriteString Version=\"1.0\"",
                             L"Section \"ITS-90 - High Range\"", L"WriteString Version=\"1.0\"",
                             L"Section \"ITS-90 - Low Range\"", L"WriteString Version=\"1.0\""}));
    const auto& events = platform->Events();
    EXPECT_EQ(std::count(events.begin(), events.end(), L"ini file"), 1);
}

TEST_F(CQuorITS90Test, ReadsTheHighRangeBeforeTheLowOne) {
    memory->values = records;
    EXPECT_TRUE(its90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(memory->operations,
              (Lines{L"Section \"Probe\"", L"ReadDouble RTPW", //
                     L"Section \"Probe - High Range\"", L"ReadInteger Range", L"ReadDouble Coefficients0",
                     L"ReadDouble Coefficients1", //
                     L"Section \"Probe - Low Range\"", L"ReadInteger Range", L"ReadDouble Coefficients0",
                     L"ReadDouble Coefficients1"}));
    EXPECT_EQ(its90->RTPW(), 25.5);
    EXPECT_EQ(high->Range(), ITS90_RANGE_9);
    EXPECT_EQ(high->Coefficients(ITS90_HIGH_B), -2.5e-5);
    EXPECT_EQ(low->Range(), ITS90_RANGE_5);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_A), -3.5e-4);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorITS90Test, IsChangedByReadingOtherValuesOnly) {
    memory->values = records;
    EXPECT_TRUE(its90->ReadFromFile(ini, L"", L"Probe"));
    its90->SetChanged(false);
    EXPECT_TRUE(its90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_FALSE(its90->Changed());
    memory->Set(L"Probe", L"RTPW", 26.0);
    EXPECT_TRUE(its90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_TRUE(low->Changed()); // by RTPW
    EXPECT_TRUE(high->Changed());
}

TEST_F(CQuorITS90Test, KeepsItsOwnValueForEachMissingKey) {
    Records own = records;
    own[{L"Probe", L"RTPW"}] = 100.25;
    own[{L"Probe - High Range", L"Range"}] = std::int16_t{8};
    own[{L"Probe - High Range", L"Coefficients0"}] = 1.0;
    own[{L"Probe - High Range", L"Coefficients1"}] = 2.0;
    own[{L"Probe - Low Range", L"Range"}] = std::int16_t{4};
    own[{L"Probe - Low Range", L"Coefficients0"}] = 3.0;
    own[{L"Probe - Low Range", L"Coefficients1"}] = 4.0;
    Support::ExpectOwnValueForEachMissingKey(
        *platform, [this] { return Support::NewSettings<CQuorITS90>(CONV_ITS90, platform); }, own, records);
}

TEST_F(CQuorITS90Test, TellsOncePerRecordOfAnEmptyFile) {
    EXPECT_FALSE(its90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage, versionMessage, versionMessage}));
}

TEST_F(CQuorITS90Test, TellsThreeTimesOfOneBadRangeReadThroughTheFacade) {
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_ITS90);
    conversion.WriteToFile(ini, L"", L"Probe");
    memory->Remove(L"Probe - Settings - Low Range", L"Range");
    EXPECT_FALSE(conversion.ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(MessageTexts(*platform), (Lines{versionMessage, versionMessage, versionMessage}));
}

TEST_F(CQuorITS90Test, ReportsARangeThatItsSideRefusesAndReadsTheOther) {
    memory->values = records;
    memory->Set(L"Probe - High Range", L"Range", std::int16_t{4});
    EXPECT_FALSE(its90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(MessageTexts(*platform),
              (Lines{ErrorReport(Support::readingSettings, -2147221002, L"ITS-90 range out of range.",
                                 L"CQuorITS90HighRange"),
                     versionMessage}));
    EXPECT_EQ(its90->RTPW(), 25.5);
    EXPECT_EQ(high->Range(), ITS90_NORANGE);
    EXPECT_EQ(low->Range(), ITS90_RANGE_5);
}

TEST_F(CQuorITS90Test, KeepsRange5OfITSSR5WhenAForeignFileHoldsOtherRanges) {
    its90 = Support::NewSettings<CQuorITS90>(CONV_ITSSR5, platform);
    memory->values = records;
    memory->Set(L"Probe - High Range", L"Range", std::int16_t{6});
    memory->Set(L"Probe - Low Range", L"Range", std::int16_t{7});
    EXPECT_FALSE(its90->ReadFromFile(ini, L"", L"Probe"));
    const auto refused = [](const wchar_t* source) {
        return ErrorReport(Support::readingSettings, -2147221002, L"ITS-90 range out of range.", source);
    };
    EXPECT_EQ(MessageTexts(*platform),
              (Lines{refused(L"CQuorITS90HighRange"), refused(L"CQuorITS90LowRange"), versionMessage}));
    EXPECT_EQ(its90->LowRange()->Range(), ITS90_RANGE_5);
    EXPECT_EQ(its90->HighRange()->Range(), ITS90_NORANGE);
}

TEST_F(CQuorITS90Test, WritesTheLowRangeAfterTheHighOneHasFailed) {
    memory->failAt = 7; // the range number of the high range
    its90->WriteToFile(ini, L"", L"Probe");
    ASSERT_EQ(memory->operations.at(7), L"WriteInteger Range=-1 comment \"\"");
    EXPECT_EQ(MessageTexts(*platform), (Lines{ErrorReport(Support::writingSettings, 57,
                                                          L"Device I/O error: memory", L"QuorIniFile")}));
    EXPECT_TRUE(memory->Has(L"Probe - Low Range", L"Range"));
    EXPECT_FALSE(memory->Has(L"Probe - High Range", L"Range"));
}

TEST_F(CQuorITS90Test, ReportsACodeThatDoesNotFitOnceAndFromItsRange) {
    low->SetMaxRange(EITS90RangeNumber{70000});
    low->SetRange(EITS90RangeNumber{70000});
    its90->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(MessageTexts(*platform),
              (Lines{ErrorReport(Support::writingSettings, 6, L"Overflow", L"CQuorITS90LowRange")}));
}

TEST_F(CQuorITS90Test, TakesTheRTPWThatAStoreLeavesForAMissingKey) {
    memory->scribblesOnMissingKeys = true;
    EXPECT_FALSE(its90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(its90->RTPW(), 7.5);
}
