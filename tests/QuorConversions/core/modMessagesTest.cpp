#include "QuorConversions/core/modMessages.h"

#include "QuorIniFile/detail/IniError.h"
#include "tests/support/Translation.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

using namespace QuorConversions;
using QuorConversions::Scripted::ScriptedPlatform;

namespace {

class NoMessageBox : public ScriptedPlatform {
public:
    void ShowMessage(const MessageRequest&) override { throw std::runtime_error("no screen"); }
};

class modMessagesTest : public testing::Test {
protected:
    const MessageRequest& Report(const QuorError& error, const std::wstring& helpFile = L"",
                                 std::int32_t helpContext = 0) {
        ReportError(platform, error, L"attempting to read settings", L"Quor Scientific", helpFile,
                    helpContext);
        return platform.Messages().at(platform.Messages().size() - 1);
    }

    ScriptedPlatform platform;
};

} // namespace

TEST_F(modMessagesTest, ReportsNumberDescriptionAndSource) {
    const MessageRequest& report = Report({-2147221003, L"CQuorCVD", L"Index out of range"});
    EXPECT_EQ(report.text, L"An error occurred while attempting to read settings.\r"
                           L"\rError: -2147221003 - Index out of range"
                           L"\r(CQuorCVD)");
    EXPECT_EQ(report.title, L"Quor Scientific");
    EXPECT_EQ(report.icon, ICON_CRITICAL);
    EXPECT_EQ(report.helpFile, L"");
}

TEST_F(modMessagesTest, ReportsAnErrorWithoutASourceWithoutAThirdPart) {
    EXPECT_EQ(Report({53, L"", L"File not found: x.ini"}).text,
              L"An error occurred while attempting to read settings.\r\rError: 53 - File not found: x.ini");
}

TEST_F(modMessagesTest, ReportsAnErrorWithNumber0ByTheFirstLineAlone) {
    const MessageRequest& report = Report({0, L"CQuorCVD", L"All is well", L"error.hlp", 12});
    EXPECT_EQ(report.text, L"An error occurred while attempting to read settings.\r");
    EXPECT_EQ(report.helpFile, L"");
}

TEST_F(modMessagesTest, OffersTheHelpOfTheErrorOnlyWhereTheCallerHasNone) {
    const QuorError withHelp{53, L"Host", L"File not found", L"error.hlp", 12};
    const QuorError withoutHelp{53, L"Host", L"File not found"};
    EXPECT_EQ(Report(withHelp).helpFile, L"error.hlp");
    EXPECT_EQ(platform.Messages().back().helpContext, 12);
    EXPECT_EQ(Report(withHelp, L"", 99).helpContext, 12);
    EXPECT_EQ(Report(withHelp, L"caller.hlp", 99).helpFile, L"caller.hlp");
    EXPECT_EQ(platform.Messages().back().helpContext, 99);
    EXPECT_EQ(Report(withoutHelp, L"caller.hlp", 99).helpFile, L"caller.hlp");
    EXPECT_EQ(platform.Messages().back().helpContext, 99);
}

TEST_F(modMessagesTest, ResetsThePointerBeforeItShowsAnything) {
    platform.SetMousePointer(POINTER_HOURGLASS);
    Report({0, L"", L""});
    ShowMessage(platform, L"Hello", L"Quor Scientific");
    EXPECT_EQ(platform.Events(),
              (std::vector<std::wstring>{L"pointer 11", L"pointer 0",
                                         L"message An error occurred while attempting to read settings.\r",
                                         L"pointer 0", L"message Hello"}));
}

TEST_F(modMessagesTest, ShowsAMessageWithTheInformationIconAndItsHelp) {
    ShowMessage(platform, L"Hello", L"Quor Scientific", L"quor.hlp", 10100);
    const MessageRequest& message = platform.Messages().at(0);
    EXPECT_EQ(message.text, L"Hello");
    EXPECT_EQ(message.title, L"Quor Scientific");
    EXPECT_EQ(message.icon, ICON_INFORMATION);
    EXPECT_EQ(message.helpFile, L"quor.hlp");
    EXPECT_EQ(message.helpContext, 10100);
}

TEST_F(modMessagesTest, NeverRaisesWhereNothingCanBeShown) {
    NoMessageBox nowhere;
    EXPECT_NO_THROW(ShowMessage(nowhere, L"Hello", L"Quor Scientific"));
    EXPECT_NO_THROW(ReportError(nowhere, {53, L"Host", L"File not found"}, L"x", L"Quor Scientific"));
}

TEST_F(modMessagesTest, WordsAnErrorOfTheStoreFromTheStringTable) {
    const QuorError error =
        QuorIniFile::FileError(QuorIniFile::ERR_PERMISSION_DENIED, L"P|~.ini",
                               QuorIniFile::INI_CAUSE_IN_USE_BY_STOPPED, {L"12 (a host)"});
    EXPECT_EQ(DescriptionOf(error), error.Description());
    EXPECT_EQ(Report(error).text,
              L"An error occurred while attempting to read settings.\r"
              L"\rError: 70 - Permission denied: P|~.ini: In use by process 12 (a host), which is stopped"
              L"\r(QuorIniFile)");

    ReplaceStringTable([](std::int32_t id) -> std::optional<std::wstring> {
        return id == 1070   ? std::optional<std::wstring>(L"Verboten")
               : id == 2042 ? std::optional<std::wstring>(L"~ steht")
                            : std::nullopt;
    });
    const std::wstring translated = Report(error).text;
    ReplaceStringTable({});
    EXPECT_EQ(translated, L"An error occurred while attempting to read settings.\r"
                          L"\rError: 70 - Verboten: P|~.ini: 12 (a host) steht"
                          L"\r(QuorIniFile)");
}

TEST_F(modMessagesTest, LeavesTheWordsOfEveryOtherErrorAlone) {
    const Support::Translation translation;
    EXPECT_EQ(DescriptionOf({53, L"Host", L"No such probe"}), L"No such probe");
    EXPECT_EQ(DescriptionOf(QuorIniFile::FileError(QuorIniFile::ERR_CANNOT_CREATE, L"a.ini")),
              L"Error: a.ini")
        << "the store has no text of its own for this number";
    EXPECT_EQ(DescriptionOf(QuorIniFile::FileError(QuorIniFile::ERR_FILE_NOT_FOUND, L"a.ini")),
              L"1053: a.ini")
        << "there is no cause to tell";
}

TEST_F(modMessagesTest, KnowsEachMessageByTheIdOfItsText) {
    EXPECT_EQ(Report({53, L"Host", L"File not found"}).textId, IDS_ERROR_OCCURRED_WHILE);
    ShowMessage(platform, L"Hello", L"Quor Scientific");
    EXPECT_EQ(platform.Messages().back().textId, 0);
    ShowMessage(platform, IDS_WRONG_FILE_VERSION);
    EXPECT_EQ(platform.Messages().back().textId, 119);
    EXPECT_EQ(platform.Messages().back().text,
              L"Cannot read the selected settings file because the file version is incorrect.");
    EXPECT_EQ(platform.Messages().back().title, L"Quor Scientific");
    EXPECT_EQ(platform.Messages().back().icon, ICON_INFORMATION);
    ShowMessage(platform, IDS_TC_TYPE_INDEX, L"TC type index out of range: 5");
    EXPECT_EQ(platform.Messages().back().textId, 134);
    EXPECT_EQ(platform.Messages().back().text, L"TC type index out of range: 5");
}
