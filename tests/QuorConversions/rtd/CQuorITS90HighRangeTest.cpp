// What holds for both ranges is in CQuorITS90RangeTest.cpp.

#include "QuorConversions/rtd/CQuorITS90HighRange.h"

#include "QuorConversions/rtd/CQuorITS90.h"
#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

using namespace QuorConversions;
using Support::MemoryIniFile;
using Support::ScriptedPlatform;

namespace {

class CQuorITS90HighRangeTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorITS90HighRange> high =
        Support::NewSettings<CQuorITS90>(CONV_ITS90, platform)->HighRange();
};

} // namespace

TEST_F(CQuorITS90HighRangeTest, KeepsCInTheSpareSlotFromRange6To8AndBack) {
    high->SetRange(ITS90_RANGE_6);
    for (const std::int32_t index : {ITS90_HIGH_A, ITS90_HIGH_B, ITS90_HIGH_C, ITS90_HIGH_D})
        high->SetCoefficients(index, index + 1.0);
    high->SetRange(ITS90_RANGE_8);
    high->SetRange(ITS90_RANGE_6);
    EXPECT_EQ(high->Coefficients(ITS90_HIGH_A), 1.0);
    EXPECT_EQ(high->Coefficients(ITS90_HIGH_B), 2.0);
    EXPECT_EQ(high->Coefficients(ITS90_HIGH_C), 3.0);
    EXPECT_EQ(high->Coefficients(ITS90_HIGH_D), 0.0);
}

TEST_F(CQuorITS90HighRangeTest, SelectsItsLowestRangeWhenDisabledButNeverOneBelow6) {
    const std::pair<EITS90RangeNumber, EITS90RangeNumber> cases[] = {
        {ITS90_NORANGE, ITS90_RANGE_6}, {ITS90_RANGE_5, ITS90_RANGE_6},   {ITS90_RANGE_6, ITS90_RANGE_6},
        {ITS90_RANGE_7, ITS90_RANGE_7}, {ITS90_RANGE_11, ITS90_RANGE_11},
    };
    for (const auto& [minRange, selected] : cases) {
        SCOPED_TRACE(minRange);
        high->SetRangeEnabled(true);
        high->SetMinRange(minRange);
        high->SetRangeEnabled(false);
        EXPECT_EQ(high->Range(), selected);
    }
}

TEST_F(CQuorITS90HighRangeTest, ReportsWhatAStoreLeavesInTheVariableWhereItIsNoRangeOfItsOwn) {
    auto memory = std::make_shared<MemoryIniFile>();
    memory->scribblesOnMissingKeys = true; // it leaves 1, a low range
    std::shared_ptr<INIFile> ini = memory;
    EXPECT_FALSE(high->ReadFromFile(ini, L"", L"R"));
    EXPECT_EQ(high->Range(), ITS90_NORANGE);
    EXPECT_EQ(Support::MessageTexts(*platform),
              (Support::Lines{Support::ErrorReport(Support::readingSettings, -2147221002,
                                                   L"ITS-90 range out of range.", L"CQuorITS90HighRange")}));
}
