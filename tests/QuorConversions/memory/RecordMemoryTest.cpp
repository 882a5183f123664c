// A lack of memory at each allocation of a save and a load of a record: the file is the old one or the
// complete new one, the object is what it was, and the next save goes well.

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorIniFile/IniStore.h"
#include "tests/support/FailingMemory.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace QuorConversions;
using Support::FailingMemory;

namespace {

/// Counts the messages.
class CountingPlatform : public HeadlessPlatform {
public:
    void ShowMessage(const MessageRequest& /*request*/) override { ++messages; }
    int messages = 0;
};

/// An ITS-90 conversion with a record of four sections in "host.ini".
class Laboratory {
public:
    Laboratory() {
        folder.Write("host.ini", "; mine\n");
        conversion.SetConversionType(CONV_ITS90);
        its90 = SettingsAs<CQuorITS90>(conversion);
        its90->LowRange()->SetRange(ITS90_RANGE_4);
        its90->SetRTPW(25.5);
        Save();
        before = File();
        its90->SetRTPW(99.25);
        its90->LowRange()->SetCoefficients(0, -2.5e-4);
        conversion.SetChanged(true);
    }
    void Save() const { SaveInto(nullptr); }
    void SaveInto(std::shared_ptr<INIFile> iniFile) const { conversion.WriteToFile(iniFile, name, section); }
    [[nodiscard]] bool Load() {
        std::shared_ptr<INIFile> none;
        return conversion.ReadFromFile(none, name, section);
    }
    [[nodiscard]] std::string File() const { return folder.Read("host.ini"); }

    TempFolder folder;
    std::wstring name = folder.Name("host.ini");
    std::wstring section = L"Probe, whose name is not a short one";
    std::shared_ptr<CountingPlatform> platform = std::make_shared<CountingPlatform>();
    CQuorConversion conversion{platform};
    std::shared_ptr<CQuorITS90> its90;
    std::string before;
};

std::string CompleteFile() {
    const Laboratory laboratory;
    laboratory.Save();
    return laboratory.File();
}

} // namespace

TEST(RecordMemory, ASaveWithoutMemoryLeavesTheOldFileOrTheCompleteNewOne) {
    const std::string complete = CompleteFile();
    for (const bool lasting : {false, true}) {
        std::size_t at = 0;
        std::size_t oldFiles = 0;
        for (bool failed = true; failed; ++at) {
            const Laboratory laboratory;
            ASSERT_NE(laboratory.before, complete);
            FailingMemory memory(at, lasting);
            laboratory.Save();
            memory.Restore();
            failed = memory.HasFailed();
            const std::string file = laboratory.File();
            ASSERT_TRUE(file == complete || (failed && file == laboratory.before)) << at << ": " << file;
            oldFiles += file == laboratory.before ? 1 : 0;
            // Where there is no memory at all there is none for the message either.
            EXPECT_TRUE(lasting || file == complete || laboratory.platform->messages > 0) << at;
            EXPECT_EQ(laboratory.its90->RTPW(), 99.25);
            EXPECT_TRUE(laboratory.conversion.Changed());
            laboratory.Save();
            ASSERT_EQ(laboratory.File(), complete) << at;
            EXPECT_EQ(laboratory.folder.Files(), std::vector<std::string>{"host.ini"});
        }
        EXPECT_GT(oldFiles, 50U);
    }
}

TEST(RecordMemory, ABracketThatHoldsARecordWithoutMemoryIsSavedWholeOrNotAtAll) {
    const std::string complete = CompleteFile() + "\n[Display]\nColour=blue\n";
    std::size_t refused = 0;
    std::size_t at = 0;
    for (bool failed = true; failed; ++at) {
        const Laboratory laboratory;
        const auto store = std::make_shared<QuorIniFile::IniStore>();
        store->SetFileName(laboratory.name);
        store->Hold();
        store->SetSection(L"Display");
        store->WriteString(L"Colour", L"blue");
        FailingMemory memory(at, false);
        laboratory.SaveInto(store);
        memory.Restore();
        failed = memory.HasFailed();
        try {
            store->Release();
            ASSERT_EQ(laboratory.File(), complete) << at;
        } catch (const QuorError& error) {
            EXPECT_EQ(error.Number(), 75);
            ASSERT_EQ(laboratory.File(), laboratory.before) << at;
            ++refused;
        }
    }
    EXPECT_GT(refused, 20U);
}

TEST(RecordMemory, ALoadWithoutMemoryIsNoSuccessUnlessAllWasRead) {
    for (const bool lasting : {false, true}) {
        std::size_t failures = 0;
        for (bool failed = true; failed;) {
            Laboratory laboratory;
            FailingMemory memory(failures, lasting);
            const bool loaded = laboratory.Load();
            memory.Restore();
            failed = memory.HasFailed();
            failures += failed ? 1 : 0;
            EXPECT_TRUE(loaded || failed);
            if (loaded) {
                EXPECT_EQ(laboratory.its90->RTPW(), 25.5) << failures;
                EXPECT_EQ(laboratory.its90->LowRange()->Coefficients(0), 0.0) << failures;
            }
            EXPECT_EQ(laboratory.File(), laboratory.before);
            EXPECT_TRUE(laboratory.Load()) << failures;
            EXPECT_EQ(SettingsAs<CQuorITS90>(laboratory.conversion)->RTPW(), 25.5);
        }
        EXPECT_GT(failures, 10U);
    }
}
