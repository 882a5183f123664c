#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

using namespace QuorIniFile;
namespace fs = std::filesystem;

namespace {

class IniStoreSaveAs : public testing::Test {
protected:
    void SetUp() override {
        folder.Write("a.ini", text);
        store.SetFileName(folder.Name("a.ini"));
    }
    template <class Call>
    static std::int32_t ErrorOf(const Call& call) {
        try {
            call();
            return 0;
        } catch (const QuorError& error) {
            return error.Number();
        }
    }

    const std::string text = "; mine\n[A]\nx=1\n";
    TempFolder folder;
    IniStore store;
};

} // namespace

TEST_F(IniStoreSaveAs, GivesAnotherFileTheTextAndStaysWithItsOwn) {
    folder.Write("b.ini", "something else");
    store.SaveAs(folder.Name("b.ini"));
    EXPECT_EQ(folder.Read("b.ini"), text);
    EXPECT_EQ(store.FileName(), folder.Name("a.ini"));
    EXPECT_EQ(folder.Files(), (std::vector<std::string>{"a.ini", "b.ini"}));
}

TEST_F(IniStoreSaveAs, TakesWhatIsHeldAlongAndKeepsItHeld) {
    store.Hold();
    store.SetSection(L"A");
    store.WriteInteger(L"x", 2, L"");
    store.SaveAs(folder.Name("b.ini"));
    EXPECT_EQ(folder.Read("b.ini"), "; mine\n[A]\nx=2\n");
    EXPECT_EQ(folder.Read("a.ini"), text);
    store.Release();
    EXPECT_EQ(folder.Read("a.ini"), "; mine\n[A]\nx=2\n");
}

TEST_F(IniStoreSaveAs, KeepsTheEncodingOfTheFile) {
    const std::string utf16("\xFF\xFE[\0A\0]\0\n\0x\0=\0\x39\x20\n\0", 18);
    folder.Write("a.ini", utf16);
    store.SaveAs(folder.Name("b.ini"));
    EXPECT_EQ(folder.Read("b.ini"), utf16);
}

TEST_F(IniStoreSaveAs, FollowsSymbolicLinks) {
    folder.Write("b.ini", "");
    fs::create_symlink("b.ini", folder.Path("link.ini"));
    store.SaveAs(folder.Name("link.ini"));
    EXPECT_EQ(folder.Read("b.ini"), text);
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.ini")));
}

TEST_F(IniStoreSaveAs, TheOwnFileIsSavedAsEverUponWhatOthersHaveWritten) {
    fs::create_symlink("a.ini", folder.Path("link.ini"));
    store.Hold();
    store.SetSection(L"A");
    store.WriteInteger(L"x", 2, L"");
    folder.Write("a.ini", "; theirs\n[A]\nx=1\ny=5\n");
    store.SaveAs(folder.Name("link.ini"));
    EXPECT_EQ(folder.Read("a.ini"), "; theirs\n[A]\nx=2\ny=5\n");
}

TEST_F(IniStoreSaveAs, TheOwnFileThatIsGoneGetsTheWholeText) {
    static_cast<void>(store.Sections());
    fs::remove(folder.Path("a.ini"));
    store.SaveAs(folder.Name("a.ini"));
    EXPECT_EQ(folder.Read("a.ini"), text);
    EXPECT_FALSE(store.FileChanged());
}

TEST_F(IniStoreSaveAs, AFailureLeavesTheOtherFileAndTheTextAsTheyWere) {
    EXPECT_EQ(ErrorOf([&] { store.SaveAs(folder.Name("missing/b.ini")); }), ERR_PATH_NOT_FOUND);
    EXPECT_EQ(ErrorOf([&] { store.SaveAs(folder.Path().wstring()); }), ERR_PATH_FILE_ACCESS);
    EXPECT_EQ(ErrorOf([&] { store.SaveAs(L""); }), ERR_BAD_FILE_NAME);
    EXPECT_EQ(ErrorOf([&] { store.Edit([&] { store.SaveAs(folder.Name("b.ini")); }); }),
              ERR_PATH_FILE_ACCESS);
    EXPECT_EQ(store.Sections(), std::vector<std::wstring>{L"A"});
    EXPECT_EQ(folder.Files(), std::vector<std::string>{"a.ini"});
}

TEST_F(IniStoreSaveAs, InAnEditAndAfterAnAbandonedRecordNothingIsSaved) {
    store.Edit([&] {
        store.SetSection(L"A");
        store.WriteInteger(L"x", 3, L"");
        EXPECT_EQ(ErrorOf([&] { store.SaveAs(folder.Name("b.ini")); }), ERR_PATH_FILE_ACCESS);
    });
    EXPECT_EQ(folder.Read("a.ini"), "; mine\n[A]\nx=3\n") << "the edit itself goes on";
    store.Hold();
    store.Hold();
    store.WriteInteger(L"x", 4, L"");
    store.Abandon();
    EXPECT_EQ(ErrorOf([&] { store.SaveAs(folder.Name("b.ini")); }), ERR_PATH_FILE_ACCESS);
    EXPECT_EQ(ErrorOf([&] { store.Release(); }), ERR_PATH_FILE_ACCESS);
    EXPECT_EQ(folder.Files(), std::vector<std::string>{"a.ini"});
}

TEST_F(IniStoreSaveAs, TellsItsOwnFileThroughLinksAndNotAnotherHardLink) {
    fs::create_symlink("a.ini", folder.Path("link.ini"));
    fs::create_hard_link(folder.Path("a.ini"), folder.Path("hard.ini"));
    fs::create_directory_symlink(folder.Path(), folder.Path("here"));
    EXPECT_TRUE(store.IsOwnFile(folder.Name("a.ini")));
    EXPECT_TRUE(store.IsOwnFile(folder.Name("link.ini")));
    EXPECT_TRUE(store.IsOwnFile(folder.Name("here/a.ini")));
    EXPECT_FALSE(store.IsOwnFile(folder.Name("hard.ini"))) << "a save parts the two";
    EXPECT_FALSE(store.IsOwnFile(folder.Name("b.ini")));
    fs::remove(folder.Path("a.ini"));
    EXPECT_TRUE(store.IsOwnFile(folder.Name("link.ini"))) << "also when it is gone";
}

TEST_F(IniStoreSaveAs, TellsWhetherASaveWouldBeRefused) {
    EXPECT_FALSE(store.IsReadOnly());
    fs::permissions(folder.Path("a.ini"), fs::perms::owner_read);
    EXPECT_TRUE(store.IsReadOnly());
    fs::permissions(folder.Path("a.ini"), fs::perms::owner_all);
    fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_TRUE(store.IsReadOnly()) << "a save puts a new file into the folder";
    fs::permissions(folder.Path(), fs::perms::owner_all);
    fs::remove(folder.Path("a.ini"));
    EXPECT_FALSE(store.IsReadOnly()) << "it would be created";
}
