#include "toolkits/scripted/ScriptedPlatform.h"

#include <gtest/gtest.h>

using namespace QuorConversions;
using QuorConversions::Scripted::ScriptedPlatform;

TEST(ScriptedPlatformTest, AnswersFileDialogsInTheOrderOfTheScriptAndThenCancels) {
    ScriptedPlatform platform;
    platform.ChooseFile(L"one.cvd");
    platform.CancelFile();
    platform.ChooseFile(L"two.cvd");
    EXPECT_EQ(platform.AskForFile({}), L"one.cvd");
    EXPECT_EQ(platform.AskForFile({}), std::nullopt);
    EXPECT_EQ(platform.AskForFile({}), L"two.cvd");
    EXPECT_EQ(platform.AskForFile({}), std::nullopt);
    EXPECT_EQ(platform.FileRequests().size(), 4U);
}

TEST(ScriptedPlatformTest, KeepsEverythingThatHappenedInOrder) {
    ScriptedPlatform platform;
    platform.WhileMessageIsShown([&] { platform.Note(L"inside"); });
    platform.SetMousePointer(POINTER_HOURGLASS);
    platform.ShowMessage({L"Hello", L"Title", ICON_INFORMATION, L"", 0});
    FileRequest request;
    request.title = L"Open PT100 File";
    (void)platform.AskForFile(request);
    platform.CallHelp(L"quor.hlp", 1, 10100);
    EXPECT_EQ(platform.Events(), (std::vector<std::wstring>{L"pointer 11", L"message Hello", L"inside",
                                                            L"file dialog Open PT100 File", L"help 10100"}));
    EXPECT_EQ(platform.MousePointer(), POINTER_HOURGLASS);
}
