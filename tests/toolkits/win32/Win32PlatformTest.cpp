#include "toolkits/win32/Win32Platform.h"

#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/rtd/CQuorPT100.h"
#include "QuorIniFile/QuorError.h"
#include "tests/support/TempFolder.h"
#include "tests/toolkits/SampleDialog.h"
#include "tests/toolkits/win32/Win32Screen.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using namespace QuorConversions;
using Support::SystemDialog;
using Support::TextOf;
using Support::WhenTrue;
using Win32Toolkit::Win32Platform;

namespace {

constexpr std::uint32_t openFlags = 0x281804;
constexpr std::uint32_t saveFlags = 0x280806;

/// Opens no browser.
class RecordingPlatform : public Win32Platform {
public:
    using Win32Platform::Win32Platform;
    std::vector<std::wstring> pages;

protected:
    void OpenPage(const std::wstring& path) override { pages.push_back(path); }
};

class Win32PlatformTest : public testing::Test {
protected:
    /// The next box or file dialog of the system is left by `key` after `act` has looked at it.
    void InSystemDialog(WORD key, const std::function<void(HWND)>& act) {
        WhenTrue([] { return SystemDialog() != nullptr; },
                 [this, key, act] {
                     ++shown;
                     const HWND window = SystemDialog();
                     SetForegroundWindow(window);
                     act(window);
                     Support::SendKey(key);
                 });
    }
    /// Types a path into the file dialog.
    static void TypePath(const std::wstring& path) {
        for (const wchar_t character : path)
            Support::SendCharacter(character);
    }

    TempFolder folder;
    RecordingPlatform platform;
    int shown = 0;
};

} // namespace

TEST_F(Win32PlatformTest, ShowsAMessageWithItsTitleLinesAndIcon) {
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_ESCAPE}}) {
        InSystemDialog(key, [](HWND box) {
            EXPECT_EQ(TextOf(box), L"Quor Scientific");
            EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), L"<b>Files</b> (*.a&b)\n\n100 %");
            EXPECT_EQ(GetDlgItem(box, IDCANCEL), nullptr);
        });
        platform.ShowMessage({L"<b>Files</b> (*.a&b)\r\r100 %", L"Quor Scientific", ICON_CRITICAL, L"", 0});
    }
    EXPECT_EQ(shown, 2);
}

TEST_F(Win32PlatformTest, AsksForAFileInAFolderAndLeavesTheCurrentFolderOfTheHost) {
    folder.Write("probe.pt1", "x");
    const std::filesystem::path before = std::filesystem::current_path();
    FileRequest request{FileDialogKind::Open,
                        L"Open PT100 File",
                        L"PT100 Files (*.pt1)|*.pt1",
                        L"pt1",
                        L"*.pt1",
                        folder.Path().wstring(),
                        openFlags,
                        0};
    InSystemDialog(VK_RETURN, [](HWND window) {
        EXPECT_EQ(TextOf(window), L"Open PT100 File");
        TypePath(L"probe.pt1");
    });
    const auto chosen = platform.AskForFile(request);
    ASSERT_TRUE(chosen);
    EXPECT_TRUE(std::filesystem::equivalent(*chosen, folder.Path("probe.pt1")));
    EXPECT_EQ(std::filesystem::current_path(), before);

    InSystemDialog(VK_ESCAPE, [](HWND) {});
    EXPECT_EQ(platform.AskForFile(request), std::nullopt);

    request.kind = FileDialogKind::Save;
    request.flags = saveFlags;
    InSystemDialog(VK_RETURN, [](HWND) { TypePath(L"new"); });
    const auto saved = platform.AskForFile(request);
    ASSERT_TRUE(saved);
    EXPECT_EQ(std::filesystem::path(*saved).filename(), L"new.pt1") << "with the extension of its kind";
    EXPECT_EQ(shown, 3);
}

TEST_F(Win32PlatformTest, OpensThePageOfATopicBesideTheHelpFileOrInItsFolder) {
    folder.Write("10100.html", "<p>Callendar-Van Dusen</p>");
    folder.Write("index.html", "<p>Help</p>");
    const std::wstring page = folder.Path("10100.html").wstring();
    EXPECT_EQ(platform.CallHelp(folder.Path("index.html").wstring(), helpCommandContext, 10100), 1);
    EXPECT_EQ(platform.CallHelp(folder.Path().wstring(), helpCommandContext, 10100), 1);
    RecordingPlatform withPages(folder.Path().wstring());
    EXPECT_EQ(withPages.CallHelp(L"", helpCommandContext, 10100), 1);
    ASSERT_EQ(platform.pages.size(), 2U);
    for (const std::wstring& opened : {platform.pages[0], platform.pages[1], withPages.pages.at(0)})
        EXPECT_TRUE(std::filesystem::equivalent(opened, page)) << testing::PrintToString(opened);
}

TEST_F(Win32PlatformTest, OpensTheTopicOfAMessageByF1AndGoesOnShowingIt) {
    folder.Write("10145.html", "<p>Reading settings</p>");
    InSystemDialog(VK_ESCAPE, [](HWND box) {
        // The button calls the same, but not under Wine.
        ASSERT_NE(GetDlgItem(box, IDHELP), nullptr);
        Support::SendKey(VK_F1);
        Support::SendKey(VK_F1);
    });
    platform.ShowMessage(
        {L"The probe is missing", L"Quor Scientific", ICON_CRITICAL, folder.Path().wstring(), 10145});
    EXPECT_EQ(shown, 1);
    ASSERT_EQ(platform.pages.size(), 2U) << "the box is still there for the second key";
    for (const std::wstring& opened : platform.pages)
        EXPECT_TRUE(std::filesystem::equivalent(opened, folder.Path("10145.html")))
            << testing::PrintToString(opened);
}

TEST_F(Win32PlatformTest, SaysThatATopicHasNoPage) {
    InSystemDialog(VK_RETURN, [](HWND box) {
        const std::wstring text = TextOf(GetDlgItem(box, 0xFFFF));
        EXPECT_TRUE(text.starts_with(L"An error occurred while attempting to display help topic."))
            << testing::PrintToString(text);
        EXPECT_NE(text.find(L"10999.html"), std::wstring::npos) << testing::PrintToString(text);
    });
    EXPECT_EQ(platform.CallHelp(folder.Path().wstring(), helpCommandContext, 10999), 0);
    EXPECT_EQ(platform.CallHelp(folder.Path().wstring(), 2, 10999), 0) << "another command shows nothing";
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(platform.pages.empty());
}

TEST_F(Win32PlatformTest, NamesItsFolderOfHelpWhenThatIsMissing) {
    RecordingPlatform withoutPages((folder.Path() / "help").wstring());
    InSystemDialog(VK_RETURN, [](HWND box) {
        const std::wstring text = TextOf(GetDlgItem(box, 0xFFFF));
        EXPECT_NE(text.find(L"help\\10100.html"), std::wstring::npos) << testing::PrintToString(text);
    });
    EXPECT_EQ(withoutPages.CallHelp(L"", helpCommandContext, 10100), 0);
    EXPECT_EQ(shown, 1);
}

TEST_F(Win32PlatformTest, AsksAgainWithoutANameThatCannotBeAFile) {
    const FileRequest request{FileDialogKind::Save,
                              L"Save PT100 File As",
                              L"PT100 Files (*.pt1)|*.pt1",
                              L"pt1",
                              L"probe<1>|.pt1",
                              folder.Path().wstring(),
                              saveFlags,
                              0};
    InSystemDialog(VK_RETURN, [](HWND) {
        Support::PressKey('A', VK_CONTROL);
        TypePath(L"probe");
    });
    const auto saved = platform.AskForFile(request);
    ASSERT_TRUE(saved);
    EXPECT_EQ(std::filesystem::path(*saved).filename(), L"probe.pt1");
}

TEST_F(Win32PlatformTest, WaitsForNobodyInASessionWithoutAScreen) {
    folder.Write("10100.html", "<p>Callendar-Van Dusen</p>");
    const HWINSTA visible = GetProcessWindowStation();
    const HWINSTA hidden = CreateWindowStationW(L"QuorService", 0, WINSTA_ALL_ACCESS, nullptr);
    ASSERT_TRUE(hidden);
    ASSERT_TRUE(SetProcessWindowStation(hidden));
    testing::internal::CaptureStderr();
    platform.ShowMessage({L"The probe is missing", L"Quor Scientific", ICON_CRITICAL, L"", 0});
    const std::string printed = testing::internal::GetCapturedStderr();
    const FileRequest request{FileDialogKind::Open,
                              L"Open",
                              L"PT100 Files|*.pt1",
                              L"pt1",
                              L"",
                              folder.Path().wstring(),
                              openFlags,
                              0};
    const auto chosen = platform.AskForFile(request);
    const auto help = platform.CallHelp(folder.Path().wstring(), helpCommandContext, 10100);
    Support::SampleDialog dialog;
    EXPECT_THROW(dialog.RunOn(platform), QuorIniFile::QuorError);
    ASSERT_TRUE(SetProcessWindowStation(visible));
    CloseWindowStation(hidden);
    EXPECT_EQ(printed, "Quor Scientific: The probe is missing\n");
    EXPECT_EQ(chosen, std::nullopt);
    EXPECT_EQ(help, 0);
    EXPECT_TRUE(platform.pages.empty());
}

TEST_F(Win32PlatformTest, TakesTheDecimalSeparatorFromTheRegionalSettings) {
    wchar_t before[8] = {};
    ASSERT_GT(GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before, 8), 0);
    for (const wchar_t* const separator : {L",", L".", L"\u066B"}) {
        ASSERT_TRUE(SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator));
        EXPECT_EQ(platform.DecimalSeparator(), separator);
    }
    EXPECT_TRUE(SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before));
}

TEST_F(Win32PlatformTest, ShowsTheBusyPointerAndGivesBackWhatItFound) {
    const HCURSOR hosts = LoadCursorW(nullptr, IDC_CROSS);
    SetCursor(hosts);
    platform.SetMousePointer(POINTER_HOURGLASS);
    platform.SetMousePointer(POINTER_HOURGLASS);
    EXPECT_EQ(platform.MousePointer(), POINTER_HOURGLASS);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    platform.SetMousePointer(POINTER_DEFAULT);
    EXPECT_EQ(GetCursor(), hosts);
    {
        Win32Platform busy;
        busy.SetMousePointer(POINTER_HOURGLASS);
    }
    EXPECT_EQ(GetCursor(), hosts) << "also when it goes";
}

TEST_F(Win32PlatformTest, SavesAndOpensSettingsThroughItsDialogs) {
    const auto shared = std::make_shared<Win32Platform>();
    CQuorPT100 saved(shared);
    saved.SetFilePath(folder.Path().wstring());
    saved.SetCoefficients(0, 100.02);
    std::wstring file;
    InSystemDialog(VK_RETURN, [](HWND) { TypePath(L"probe"); });
    EXPECT_TRUE(saved.SaveFileAs(0, file));
    EXPECT_EQ(std::filesystem::path(file).filename(), L"probe.pt1");
    CQuorPT100 opened(shared);
    opened.SetFilePath(folder.Path().wstring());
    file.clear();
    InSystemDialog(VK_RETURN, [](HWND) { TypePath(L"probe.pt1"); });
    EXPECT_TRUE(opened.OpenFile(0, file));
    EXPECT_EQ(opened.Coefficients(0), 100.02);
}
