// A host that keeps a store open while other programs work on the file.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "tests/QuorIniFile/RaisedBy.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/SimulatedDisk.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using Support::NumberRaisedBy;

namespace {

class IniStoreWatching : public testing::Test {
protected:
    IniStoreWatching() {
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(L"A");
    }
    void File(std::string_view bytes) const { folder.Write("a.ini", bytes); }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }
    /// The number under a key, -1 when there is none.
    std::int16_t Read(const wchar_t* key) {
        std::int16_t value = -1;
        static_cast<void>(store.ReadInteger(key, value));
        return value;
    }
    void Put(const wchar_t* key, std::int16_t value) { store.WriteInteger(key, value, L""); }

    TempFolder folder;
    IniStore store;
};

} // namespace

TEST_F(IniStoreWatching, AFileThatNobodyTouchesHasNotChanged) {
    File("[A]\nx=1\n");
    EXPECT_FALSE(store.FileChanged()) << "nothing was read yet";
    EXPECT_EQ(Read(L"x"), 1);
    EXPECT_FALSE(store.FileChanged());
    Put(L"x", 2);
    EXPECT_FALSE(store.FileChanged()) << "we have done that";
    store.Hold();
    Put(L"x", 3);
    EXPECT_FALSE(store.FileChanged()) << "what is held is not in the file";
}

TEST_F(IniStoreWatching, EveryOtherTextIsAChangeEvenOfTheSameLengthInTheSameMoment) {
    for (int round = 0; round < 50; ++round) {
        File("[A]\nx=1\n");
        store.Reload();
        EXPECT_EQ(Read(L"x"), 1);
        File("[A]\nx=2\n");
        ASSERT_TRUE(store.FileChanged());
    }
}

TEST(IniStoreWatchingASave, SeesWhatAnotherProgramMakesOfTheFileWhileTheFolderIsFlushed) {
    Support::SimulatedDisk disk(Support::SimulatedDisk::Files{{"/a.ini", "[A]\nx=1\n"}});
    Support::InterceptedFiles files(disk);
    IniStore store(files);
    store.SetFileName(L"/a.ini");
    store.SetSection(L"A");
    files.onCall = [&disk](std::string_view call) {
        if (call == "SyncFolder")
            disk.Rewrite("/a.ini", "[A]\nx=3\n");
        return 0;
    };
    store.WriteInteger(L"x", 2, L"");
    files.onCall = [](std::string_view) { return 0; };
    EXPECT_TRUE(store.FileChanged());
    store.WriteInteger(L"x", 2, L"");
    EXPECT_EQ(disk.Now().at("/a.ini"), "[A]\nx=2\n") << "what stood there for us is not what stands there";
}

TEST_F(IniStoreWatching, TheSameTextIsNoChangeHoweverItCame) {
    File("[A]\nx=1\n");
    EXPECT_EQ(Read(L"x"), 1);
    folder.SetMode("a.ini", 0600);
    EXPECT_FALSE(store.FileChanged());
    File("[A]\nx=1\n");
    EXPECT_FALSE(store.FileChanged());
    folder.Write("b.ini", "[A]\nx=1\n");
    fs::rename(folder.Path("b.ini"), folder.Path("a.ini"));
    EXPECT_FALSE(store.FileChanged());
}

TEST_F(IniStoreWatching, AFileThatComesOrGoesHasChanged) {
    EXPECT_EQ(NumberRaisedBy([&] { Read(L"x"); }), 53);
    EXPECT_FALSE(store.FileChanged());
    File("");
    EXPECT_TRUE(store.FileChanged()) << "an empty file is not a missing one";
    EXPECT_EQ(Read(L"x"), -1);
    EXPECT_FALSE(store.FileChanged());
    fs::remove(folder.Path("a.ini"));
    EXPECT_TRUE(store.FileChanged());
    store.Reload();
    EXPECT_FALSE(store.FileChanged());
    EXPECT_EQ(NumberRaisedBy([&] { Read(L"x"); }), 53);
}

TEST_F(IniStoreWatching, AllReadsSeeTheTextThatWasLoadedUntilItIsLoadedAnew) {
    File("[A]\nx=1\ny=1\n");
    EXPECT_EQ(Read(L"x"), 1);
    File("[A]\nx=2\ny=2\n");
    EXPECT_EQ(Read(L"y"), 1) << "never half of one text and half of the other";
    store.SetSection(L"B");
    store.SetSection(L"A");
    EXPECT_EQ(Read(L"y"), 1);
    store.Reload();
    EXPECT_EQ(Read(L"x"), 2);
    EXPECT_EQ(Read(L"y"), 2);
}

TEST_F(IniStoreWatching, ASaveThatFindsAnotherTextReadsItToo) {
    File("[A]\nx=1\ny=1\n");
    EXPECT_EQ(Read(L"x"), 1);
    File("[A]\nx=2\ny=2\n");
    Put(L"x", 3);
    EXPECT_EQ(Read(L"y"), 2);
    EXPECT_FALSE(store.FileChanged());
}

TEST_F(IniStoreWatching, LoadingAnewKeepsWhatWasNotSaved) {
    File("[A]\nx=1\ny=1\nz=1\n");
    store.Hold();
    Put(L"x", 2);
    Put(L"new", 3);
    Put(L"z", 1); // stands there already, and yet it was written
    File("; theirs\n[A]\nx=5\ny=5\nz=5\n[B]\nv=5\n");
    EXPECT_TRUE(store.FileChanged());
    store.Reload();
    EXPECT_FALSE(store.FileChanged());
    EXPECT_EQ(Read(L"x"), 2);
    EXPECT_EQ(Read(L"y"), 5);
    EXPECT_EQ(Read(L"z"), 1);
    EXPECT_EQ(Read(L"new"), 3);
    EXPECT_EQ(File(), "; theirs\n[A]\nx=5\ny=5\nz=5\n[B]\nv=5\n") << "loading saves nothing";
    store.Release();
    EXPECT_EQ(File(), "; theirs\n[A]\nx=2\ny=5\nz=1\nnew=3\n[B]\nv=5\n");
}

TEST_F(IniStoreWatching, WhereLoadingFailsTheObjectIsAsBefore) {
    File("[A]\nx=1\n");
    store.Hold();
    Put(L"y", 2);
    const std::string utf16("\0[\0A\0]", 6);
    File(utf16);
    EXPECT_TRUE(store.FileChanged());
    EXPECT_EQ(NumberRaisedBy([&] { store.Reload(); }), 75);
    EXPECT_EQ(Read(L"x"), 1);
    EXPECT_EQ(Read(L"y"), 2);
    EXPECT_EQ(NumberRaisedBy([&] { store.Release(); }), 75);
    EXPECT_EQ(File(), utf16);

    fs::remove(folder.Path("a.ini"));
    fs::create_directory(folder.Path("a.ini"));
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(store.FileChanged()); }), 75);
    EXPECT_EQ(NumberRaisedBy([&] { store.Reload(); }), 75);
    EXPECT_EQ(Read(L"y"), 2);
}

TEST_F(IniStoreWatching, BeforeTheFirstReadLoadingAnewDoesNothing) {
    EXPECT_NO_THROW(store.Reload());
    store.SetFileName(folder.Name("nowhere/a.ini"));
    EXPECT_NO_THROW(store.Reload());
    EXPECT_FALSE(store.FileChanged());
}
