#include "QuorConversions/core/modHelp.h"

#include "toolkits/scripted/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace QuorConversions;
using QuorConversions::Scripted::ScriptedPlatform;

namespace {

class NoHelp : public ScriptedPlatform {
public:
    std::int32_t CallHelp(const std::wstring&, std::uint32_t, std::int32_t) override {
        throw std::runtime_error("no help engine");
    }
};

class modHelpTest : public testing::Test {
protected:
    void SetUp() override { SetHelpFile(L"quor.hlp"); }
    void TearDown() override { SetHelpFile(L""); }
};

} // namespace

TEST_F(modHelpTest, CallsTheEngineOnTheHelpFileOfTheLibraryUnderTheHourglass) {
    ScriptedPlatform platform;
    EXPECT_EQ(ShowHelp(platform, 258, -7), 1);
    ASSERT_EQ(platform.HelpCalls().size(), 1U);
    EXPECT_EQ(platform.HelpCalls()[0].helpFile, L"quor.hlp");
    EXPECT_EQ(platform.HelpCalls()[0].command, 258U);
    EXPECT_EQ(platform.HelpCalls()[0].data, -7);
    EXPECT_EQ(platform.Events(), (std::vector<std::wstring>{L"pointer 11", L"help -7", L"pointer 0"}));
}

TEST_F(modHelpTest, ShowsATopicWithCommandOne) {
    ScriptedPlatform platform;
    EXPECT_EQ(ShowHelpTopic(platform, 10100), 1);
    EXPECT_EQ(platform.HelpCalls().at(0).command, 1U);
    EXPECT_EQ(platform.HelpCalls().at(0).data, 10100);
}

TEST_F(modHelpTest, LeavesTheDefaultPointerWhateverItFound) {
    ScriptedPlatform platform;
    platform.SetMousePointer(EMousePointer{5});
    ShowHelpTopic(platform, 10100);
    EXPECT_EQ(platform.MousePointer(), POINTER_DEFAULT);
}

TEST_F(modHelpTest, TellsAFailureByItsResultAlone) {
    NoHelp platform;
    EXPECT_EQ(ShowHelpTopic(platform, 10100), 0);
    EXPECT_EQ(platform.MousePointer(), POINTER_DEFAULT);
    EXPECT_TRUE(platform.Messages().empty());
}
