#include "QuorConversions/rtd/CQuorWT90.h"

#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

#include <cmath>
#include <limits>

using namespace QuorConversions;
using Support::Lines;
using Support::MemoryIniFile;
using Support::Records;
using Support::ScriptedPlatform;

namespace {

class CQuorWT90Test : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorWT90> wt90 = Support::FreshSettings<CQuorWT90>(CONV_WT90, platform);
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
};

} // namespace

TEST_F(CQuorWT90Test, IsNewWithAnRTPWOfZero) {
    EXPECT_EQ(wt90->RTPW(), 0.0);
    EXPECT_EQ(wt90->RTPWFormat(), L"");
    EXPECT_FALSE(wt90->Changed());
    EXPECT_TRUE(wt90->AllowEdit());
    EXPECT_EQ(wt90->GetName(), L"W(T90)");
    EXPECT_EQ(wt90->FileExtension(), L"w90");
    EXPECT_EQ(wt90->SectionName(), L"W(T90)");
}

TEST_F(CQuorWT90Test, IsChangedByAnotherRTPWOnly) {
    wt90->SetRTPW(0.0);
    wt90->SetRTPWFormat(L"0.0000");
    EXPECT_EQ(wt90->RTPWFormat(), L"0.0000");
    EXPECT_FALSE(wt90->Changed());
    wt90->SetRTPW(25.5);
    EXPECT_EQ(wt90->RTPW(), 25.5);
    EXPECT_TRUE(wt90->Changed());
}

TEST_F(CQuorWT90Test, DoesNotStoreAZeroOfTheOtherSign) {
    wt90->SetRTPW(-0.0);
    EXPECT_FALSE(std::signbit(wt90->RTPW()));
    memory->Set(L"Probe", L"RTPW", -0.0);
    EXPECT_TRUE(wt90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_FALSE(std::signbit(wt90->RTPW()));
    EXPECT_FALSE(wt90->Changed());
}

TEST_F(CQuorWT90Test, TakesNaNForItselfAndForNoNumber) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    wt90->SetRTPW(nan);
    EXPECT_TRUE(std::isnan(wt90->RTPW()));
    EXPECT_TRUE(wt90->Changed());
    wt90->SetChanged(false);
    wt90->SetRTPW(nan);
    EXPECT_FALSE(wt90->Changed());
    wt90->SetRTPW(0.0);
    EXPECT_EQ(wt90->RTPW(), 0.0);
    EXPECT_TRUE(wt90->Changed());
}

TEST_F(CQuorWT90Test, WritesRTPWBehindTheVersionAndNoFormat) {
    wt90->SetRTPW(25.5);
    wt90->SetRTPWFormat(L"0.0000");
    wt90->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(memory->operations, (Lines{L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                                         L"WriteDouble RTPW=25.5 comment \"\"", L"Release"}));
    EXPECT_TRUE(wt90->Changed());
}

TEST_F(CQuorWT90Test, ReadsRTPWThroughItsSetter) {
    memory->Set(L"Probe", L"RTPW", 25.5);
    EXPECT_TRUE(wt90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(memory->operations, (Lines{L"Section \"Probe\"", L"ReadDouble RTPW"}));
    EXPECT_EQ(wt90->RTPW(), 25.5);
    EXPECT_TRUE(wt90->Changed());
    wt90->SetChanged(false);
    EXPECT_TRUE(wt90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_FALSE(wt90->Changed());
}

TEST_F(CQuorWT90Test, KeepsItsOwnRTPWForAMissingKey) {
    const Records file = {{{L"Probe", L"Version"}, L"1.0"}, {{L"Probe", L"RTPW"}, 25.5}};
    const Records own = {{{L"Probe", L"Version"}, L"1.0"}, {{L"Probe", L"RTPW"}, 100.25}};
    Support::ExpectOwnValueForEachMissingKey(
        *platform, [this] { return Support::NewSettings<CQuorWT90>(CONV_WT90, platform); }, own, file);
}

TEST_F(CQuorWT90Test, TakesWhatAStoreLeavesForAMissingKey) {
    memory->scribblesOnMissingKeys = true;
    EXPECT_FALSE(wt90->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(wt90->RTPW(), 7.5);
    EXPECT_TRUE(wt90->Changed());
}
