#include "QuorConversions/platform/HeadlessPlatform.h"

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/rtd/CQuorPT100.h"
#include "QuorIniFile/IniStore.h"
#include "tests/support/MemoryIniFile.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

using namespace QuorConversions;
using Support::MemoryIniFile;

namespace {

/// Keeps what the process would have printed.
class HeadlessPlatformTest : public testing::Test {
protected:
    void TearDown() override {
        std::cerr.rdbuf(m_cerr);
        std::cout.rdbuf(m_cout);
    }

    std::ostringstream diagnostics;
    std::ostringstream results;
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;

private:
    std::streambuf* m_cerr = std::cerr.rdbuf(diagnostics.rdbuf());
    std::streambuf* m_cout = std::cout.rdbuf(results.rdbuf());
};

} // namespace

TEST_F(HeadlessPlatformTest, PutsTheMessagesOfAnObjectWithoutAPlatformIntoTheDiagnostics) {
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    EXPECT_FALSE(conversion.Settings()->ReadFromFile(ini, L"", L"Nowhere"));
    EXPECT_EQ(diagnostics.str(), "Quor Scientific: Cannot read the selected settings file because the file "
                                 "version is incorrect.\n");
    EXPECT_EQ(results.str(), "");
}

TEST_F(HeadlessPlatformTest, IndentsTheFurtherLinesOfAnErrorReport) {
    memory->failAt = 0;
    CQuorPT100().WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(diagnostics.str(), "Quor Scientific: An error occurred while attempting to write settings.\n\n"
                                 "  Error: 57 - Device I/O error: memory\n  (QuorIniFile)\n");
    EXPECT_EQ(results.str(), "");
}

TEST_F(HeadlessPlatformTest, EscapesWhatATerminalOrALogWouldObey) {
    HeadlessPlatform().ShowMessage({L"\x1B]0;Owned\a \x9B"
                                    L"31m\u202E\t\nQuor Scientific: fine",
                                    L"Quor\n\rScientific", ICON_INFORMATION, L"", 0});
    EXPECT_EQ(diagnostics.str(), "Quor\\n\\rScientific: \\u{1B}]0;Owned\\u{7} "
                                 "\\u{9B}31m\\u{202E}\\t\\nQuor Scientific: fine\n");
}

TEST_F(HeadlessPlatformTest, LetsNoFileNamePassForAnotherMessage) {
    std::shared_ptr<INIFile> store = std::make_shared<QuorIniFile::IniStore>();
    store->SetFileName(L"none\rQuor Scientific: fine\n\x1B[2J/a.ini");
    CQuorPT100().WriteToFile(store, L"", L"Probe");
    EXPECT_EQ(diagnostics.str(), "Quor Scientific: An error occurred while attempting to write settings.\n\n"
                                 "  Error: 76 - Path not found: none\n"
                                 "  Quor Scientific: fine\\n\\u{1B}[2J/a.ini\n"
                                 "  (QuorIniFile)\n");
}

TEST_F(HeadlessPlatformTest, SpeaksUtf8) {
    HeadlessPlatform().ShowMessage({L"20 \u00B0C \U0001F321", L"Quor Scientific", ICON_INFORMATION, L"", 0});
    EXPECT_EQ(diagnostics.str(), "Quor Scientific: 20 \xC2\xB0"
                                 "C \xF0\x9F\x8C\xA1\n");
}

TEST_F(HeadlessPlatformTest, CancelsEveryFileDialogWithoutAWord) {
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    std::wstring filename;
    EXPECT_FALSE(conversion.Settings()->OpenFile(0, filename));
    EXPECT_FALSE(conversion.Settings()->SaveFileAs(0, filename));
    EXPECT_EQ(filename, L"");
    EXPECT_EQ(diagnostics.str() + results.str(), "");
}

TEST_F(HeadlessPlatformTest, HasNoHelp) {
    EXPECT_EQ(HeadlessPlatform().CallHelp(L"quor.hlp", 1, 10100), 0);
    EXPECT_EQ(diagnostics.str() + results.str(), "");
}

TEST_F(HeadlessPlatformTest, HasNoPointerThatCouldKeepAShape) {
    HeadlessPlatform platform;
    platform.SetMousePointer(POINTER_HOURGLASS);
    EXPECT_EQ(platform.MousePointer(), POINTER_DEFAULT);
}
