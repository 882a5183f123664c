// What holds for both ranges is in CQuorITS90RangeTest.cpp.

#include "QuorConversions/rtd/CQuorITS90LowRange.h"

#include "QuorConversions/rtd/CQuorITS90.h"
#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

using namespace QuorConversions;
using Support::MemoryIniFile;
using Support::ScriptedPlatform;

namespace {

class CQuorITS90LowRangeTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorITS90LowRange> low =
        Support::NewSettings<CQuorITS90>(CONV_ITS90, platform)->LowRange();
};

} // namespace

TEST_F(CQuorITS90LowRangeTest, KeepsC4InTheSpareSlotFromRange1To2AndBack) {
    low->SetRange(ITS90_RANGE_1);
    for (const std::int32_t index :
         {ITS90_LOW_A, ITS90_LOW_B, ITS90_LOW_C1, ITS90_LOW_C2, ITS90_LOW_C3, ITS90_LOW_C4, ITS90_LOW_C5})
        low->SetCoefficients(index, index + 1.0);
    low->SetRange(ITS90_RANGE_2);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_C3), 5.0);
    EXPECT_QUOR_ERROR((void)low->Coefficients(ITS90_LOW_C4), Support::indexOutOfRange, L"CQuorITS90LowRange",
                      L"Index out of range");
    low->SetRange(ITS90_RANGE_1);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_A), 1.0);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_C4), 6.0);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_C5), 0.0);
}

TEST_F(CQuorITS90LowRangeTest, SelectsItsLowestRangeWhenDisabled) {
    low->SetMinRange(ITS90_RANGE_3);
    low->SetRangeEnabled(false);
    EXPECT_EQ(low->Range(), ITS90_RANGE_3);
    EXPECT_EQ(low->NumCoefficients(), 3);
}

TEST_F(CQuorITS90LowRangeTest, SelectsNoRangeWhenDisabledWithoutALowestOne) {
    low->SetRange(ITS90_RANGE_2);
    low->SetMinRange(ITS90_NORANGE);
    low->SetRangeEnabled(false);
    EXPECT_EQ(low->Range(), ITS90_NORANGE);
}

TEST_F(CQuorITS90LowRangeTest, TakesWhatAStoreLeavesInTheVariableOfAMissingKey) {
    auto memory = std::make_shared<MemoryIniFile>();
    memory->scribblesOnMissingKeys = true; // it leaves 1 and 7.5
    std::shared_ptr<INIFile> ini = memory;
    EXPECT_FALSE(low->ReadFromFile(ini, L"", L"R"));
    EXPECT_EQ(low->Range(), ITS90_RANGE_1);
    EXPECT_EQ(low->NumCoefficients(), 7);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_A), 7.5);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_C5), 7.5);
    EXPECT_EQ(Support::MessageTexts(*platform), (Support::Lines{Support::versionMessage}));
}
