// An edit: read, change and write as one turn under the lock.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using Names = std::vector<std::string>;

namespace {

constexpr const char* held = "Path/File access error: a.ini: No edit can begin between Hold and Release";
constexpr const char* abandoned =
    "Path/File access error: a.ini: A record could not be written whole, so nothing was saved";

class IniStoreEdit : public testing::Test {
protected:
    IniStoreEdit() {
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(L"A");
    }
    void File(std::string_view bytes) const { folder.Write("a.ini", bytes); }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }
    void Put(const wchar_t* key, std::int16_t value) { store.WriteInteger(key, value, L""); }
    [[nodiscard]] std::int16_t Get(const wchar_t* key) {
        std::int16_t value = -1;
        EXPECT_TRUE(store.ReadInteger(key, value));
        return value;
    }
    void Add(const wchar_t* key, std::int16_t number) {
        Put(key, static_cast<std::int16_t>(Get(key) + number));
    }
    [[nodiscard]] auto Inode() const { return StampOf(folder.Name("a.ini")).inode; }
    /// What `action` raises, with the file's name alone in place of its path; "" when it raises nothing.
    template <class Action>
    [[nodiscard]] std::string RaisedBy(const Action& action, std::int32_t number) const {
        try {
            action();
        } catch (const QuorError& error) {
            EXPECT_EQ(error.Number(), number);
            std::string text = error.what();
            const std::string path = (folder.Path() / "").string();
            const auto at = text.find(path);
            return at == std::string::npos ? text : text.erase(at, path.size());
        }
        return "";
    }

    TempFolder folder;
    Support::InterceptedFiles files;
    IniStore store{files};
};

} // namespace

TEST_F(IniStoreEdit, ReadsTheFileAsItIsNowAndSavesWhatIsWrittenTogether) {
    File("[A]\nx=1\ny=1\n");
    EXPECT_EQ(Get(L"x"), 1);
    File("; theirs\n[A]\nx=7\ny=1\n");
    store.Edit([&] {
        Add(L"x", 1);
        Add(L"y", 1);
        EXPECT_EQ(File(), "; theirs\n[A]\nx=7\ny=1\n") << "nothing is saved before the end";
        EXPECT_EQ(folder.Files().size(), 2U) << "the lock is held";
    });
    EXPECT_EQ(File(), "; theirs\n[A]\nx=8\ny=2\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
    EXPECT_EQ(Get(L"x"), 8);
    EXPECT_FALSE(store.FileChanged());
    Put(L"x", 9);
    EXPECT_EQ(File(), "; theirs\n[A]\nx=9\ny=2\n") << "a write is durable at once again";
}

TEST_F(IniStoreEdit, SavesRemovedAndRenamedSectionsToo) {
    File("[A]\nx=1\n[B]\ny=1\n");
    store.Edit([&] {
        store.RemoveSection(L"A");
        store.RenameSection(L"B", L"C");
        EXPECT_EQ(File(), "[A]\nx=1\n[B]\ny=1\n");
    });
    EXPECT_EQ(File(), "[C]\ny=1\n");
}

TEST_F(IniStoreEdit, ThatWritesNothingDifferentLeavesTheFileAlone) {
    File("[A]\nx=1 ; ohms\n");
    const auto before = Inode();
    store.Edit([] {});
    store.Edit([&] { EXPECT_EQ(Get(L"x"), 1); });
    store.Edit([&] { Put(L"x", 1); });
    store.Edit([&] {
        Put(L"x", 2);
        Put(L"x", 1);
    });
    EXPECT_EQ(Inode(), before);
    EXPECT_EQ(File(), "[A]\nx=1 ; ohms\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST_F(IniStoreEdit, MakesAFileThatDoesNotExistWhenItWrites) {
    store.Edit([] {});
    EXPECT_EQ(folder.Files(), Names{});
    EXPECT_EQ(RaisedBy([&] { store.Edit([&] { static_cast<void>(Get(L"x")); }); }, 53),
              "File not found: a.ini");
    EXPECT_EQ(folder.Files(), Names{});
    store.Edit([&] {
        Put(L"x", 1);
        Add(L"x", 1);
    });
    EXPECT_EQ(File(), "[A]\nx=2\n");
}

TEST_F(IniStoreEdit, ThatRaisesSavesNothingAndForgetsWhatItWrote) {
    File("[A]\nx=1\n");
    EXPECT_THROW(store.Edit([&] {
        Put(L"x", 2);
        store.Hold();
        throw std::runtime_error("not so");
    }),
                 std::runtime_error);
    EXPECT_EQ(File(), "[A]\nx=1\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
    EXPECT_EQ(Get(L"x"), 1);
    Put(L"y", 3);
    EXPECT_EQ(File(), "[A]\nx=1\ny=3\n") << "and what it held is not held any more";
}

TEST_F(IniStoreEdit, ThatAbandonsSavesNothingAndRaisesAtItsEnd) {
    File("[A]\nx=1\n");
    for (const bool holds : {false, true}) {
        EXPECT_EQ(RaisedBy(
                      [&] {
                          store.Edit([&] {
                              if (holds)
                                  store.Hold();
                              Put(L"x", 2);
                              store.Abandon();
                              Put(L"x", 3);
                          });
                      },
                      75),
                  abandoned);
        EXPECT_EQ(File(), "[A]\nx=1\n");
        EXPECT_EQ(Get(L"x"), 1);
    }
    store.Edit([&] { Put(L"x", 4); });
    EXPECT_EQ(File(), "[A]\nx=4\n");
}

TEST_F(IniStoreEdit, BracketsInsideItSaveNothingAndEndWithIt) {
    File("[A]\nx=1\n");
    store.Edit([&] {
        store.Release();
        store.Hold();
        Put(L"x", 2);
        store.Release();
        store.Release();
        Put(L"y", 2);
        EXPECT_EQ(File(), "[A]\nx=1\n");
        store.Hold();
        Put(L"z", 2);
    });
    EXPECT_EQ(File(), "[A]\nx=2\ny=2\nz=2\n");
    Put(L"x", 3);
    EXPECT_EQ(File(), "[A]\nx=3\ny=2\nz=2\n");
}

TEST_F(IniStoreEdit, CannotBeginBetweenHoldAndRelease) {
    File("[A]\nx=1\n");
    store.Hold();
    Put(L"x", 2);
    bool called = false;
    EXPECT_EQ(RaisedBy([&] { store.Edit([&] { called = true; }); }, 75), held);
    EXPECT_FALSE(called);
    EXPECT_EQ(File(), "[A]\nx=1\n");
    store.Release();
    EXPECT_EQ(File(), "[A]\nx=2\n");
}

TEST_F(IniStoreEdit, InsideAnotherOneIsAPartOfThat) {
    File("[A]\nx=1\n");
    store.Edit([&] {
        store.Edit([&] { Add(L"x", 1); });
        EXPECT_EQ(File(), "[A]\nx=1\n");
        Add(L"x", 1);
    });
    EXPECT_EQ(File(), "[A]\nx=3\n");
}

TEST_F(IniStoreEdit, InsideAnotherOneThatRaisesLeavesNothingToSave) {
    File("[A]\nx=1\n");
    const auto edit = [&] {
        store.Edit([&] {
            Put(L"y", 1);
            try {
                store.Edit([&] {
                    Put(L"x", 2);
                    throw std::runtime_error("half of it");
                });
            } catch (const std::runtime_error&) {
                Put(L"z", 1);
            }
        });
    };
    EXPECT_EQ(RaisedBy(edit, 75), abandoned);
    EXPECT_EQ(File(), "[A]\nx=1\n");
}

TEST_F(IniStoreEdit, BeginsAndEndsWithTheSectionThatWasSelected) {
    File("[A]\nx=1\n[B]\nx=5\n");
    store.Edit([&] {
        EXPECT_EQ(store.Section(), L"A");
        Add(L"x", 1);
        store.SetSection(L"B");
        Add(L"x", 1);
    });
    EXPECT_EQ(store.Section(), L"A");
    EXPECT_EQ(Get(L"x"), 2);
    EXPECT_THROW(store.Edit([&] {
        store.SetSection(L"B");
        throw std::runtime_error("not so");
    }),
                 std::runtime_error);
    EXPECT_EQ(Get(L"x"), 2);
    EXPECT_EQ(File(), "[A]\nx=2\n[B]\nx=6\n");
}

TEST_F(IniStoreEdit, DiscardInsideItForgetsAndReloadKeepsWhatItHasWritten) {
    File("[A]\nx=1\n");
    store.Edit([&] {
        Put(L"x", 2);
        store.Abandon();
        store.Discard();
        EXPECT_EQ(Get(L"x"), 1);
        Put(L"y", 2);
        store.Reload();
        EXPECT_EQ(Get(L"y"), 2);
        EXPECT_EQ(File(), "[A]\nx=1\n");
    });
    EXPECT_EQ(File(), "[A]\nx=1\ny=2\n");
}

TEST_F(IniStoreEdit, WhatIsReadAgainInsideItIsReplacedOnlyAsItWasRead) {
    for (const bool discards : {false, true}) {
        File("[A]\nx=1\n");
        int calls = 0;
        store.Edit([&] {
            if (++calls == 1) { // a program that takes no lock
                folder.Write("b.ini", "; theirs\n[A]\nx=5\n");
                fs::rename(folder.Path("b.ini"), folder.Path("a.ini"));
                discards ? store.Discard() : store.Reload();
            }
            Add(L"x", 1);
        });
        EXPECT_EQ(calls, 2);
        EXPECT_EQ(File(), "; theirs\n[A]\nx=6\n");
    }
}

TEST_F(IniStoreEdit, CannotGoOnInAnotherFile) {
    File("[A]\nx=1\n");
    const auto edit = [&] {
        store.Edit([&] {
            Put(L"x", 2);
            store.SetFileName(folder.Name("a.ini"));
            store.SetFileName(folder.Name("b.ini"));
        });
    };
    EXPECT_EQ(RaisedBy(edit, 75), "Path/File access error: a.ini: An edit of it has not ended");
    EXPECT_EQ(store.FileName(), folder.Name("a.ini"));
    EXPECT_EQ(File(), "[A]\nx=1\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST_F(IniStoreEdit, SavesFirstWhatAnEarlierSaveHasFailedFor) {
    File("[A]\nx=1\ny=1\n");
    folder.SetMode("a.ini", 0444);
    EXPECT_EQ(RaisedBy([&] { Put(L"x", 2); }, 70), "Permission denied: a.ini: The file is read-only");
    bool called = false;
    EXPECT_EQ(RaisedBy([&] { store.Edit([&] { called = true; }); }, 70),
              "Permission denied: a.ini: The file is read-only");
    EXPECT_FALSE(called);
    folder.SetMode("a.ini", 0644);
    EXPECT_THROW(store.Edit([&] {
        EXPECT_EQ(File(), "[A]\nx=2\ny=1\n");
        Add(L"y", 1);
        throw std::runtime_error("not so");
    }),
                 std::runtime_error);
    EXPECT_EQ(File(), "[A]\nx=2\ny=1\n");
}

TEST_F(IniStoreEdit, ThatCannotBeSavedForgetsWhatItWrote) {
    File("[A]\nx=1\n");
    folder.SetMode("a.ini", 0444);
    EXPECT_EQ(RaisedBy([&] { store.Edit([&] { Add(L"x", 1); }); }, 70),
              "Permission denied: a.ini: The file is read-only");
    EXPECT_EQ(Get(L"x"), 1);
    folder.SetMode("a.ini", 0644);
    Put(L"y", 1);
    EXPECT_EQ(File(), "[A]\nx=1\ny=1\n");
    store.Edit([&] { Add(L"x", 1); });
    EXPECT_EQ(File(), "[A]\nx=2\ny=1\n");
}

TEST_F(IniStoreEdit, OfAFileThatCannotBeLoadedLeavesTheStoreAsItWas) {
    File("[A]\nx=1\n");
    EXPECT_EQ(Get(L"x"), 1);
    const std::string utf16("[\0A\0]\0", 6);
    File(utf16);
    bool called = false;
    EXPECT_EQ(RaisedBy([&] { store.Edit([&] { called = true; }); }, 75),
              "Path/File access error: a.ini: The file is UTF-16 text without a byte-order mark");
    EXPECT_FALSE(called);
    EXPECT_EQ(Get(L"x"), 1);
    EXPECT_EQ(File(), utf16);
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST_F(IniStoreEdit, WithoutAFileNameIsABadFileName) {
    IniStore unnamed;
    EXPECT_EQ(RaisedBy([&] { unnamed.Edit([] {}); }, 52), "Bad file name or number: ");
}
