// When a save happens, what it does when another program has been at the file, and what is left when it
// fails.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "tests/QuorIniFile/RaisedBy.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using Support::NumberRaisedBy;

namespace {

class IniStoreSaving : public testing::Test {
protected:
    IniStoreSaving() {
        store->SetFileName(folder.Name("a.ini"));
        store->SetSection(L"A");
    }
    void File(std::string_view bytes) const { folder.Write("a.ini", bytes); }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }
    [[nodiscard]] bool Exists() const { return fs::exists(folder.Path("a.ini")); }
    void Put(const wchar_t* key, std::int16_t value) const { store->WriteInteger(key, value, L""); }

    TempFolder folder;
    std::unique_ptr<IniStore> store = std::make_unique<IniStore>();
};

} // namespace

TEST_F(IniStoreSaving, AWriteIsInTheFileWhenItReturns) {
    Put(L"x", 1);
    EXPECT_EQ(File(), "[A]\nx=1\n");
    Put(L"x", 2);
    EXPECT_EQ(File(), "[A]\nx=2\n");
}

TEST_F(IniStoreSaving, HeldWritesAreInTheFileAfterTheOutermostRelease) {
    store->Hold();
    Put(L"x", 1);
    store->Hold();
    Put(L"y", 2);
    store->Release();
    EXPECT_FALSE(Exists());
    std::int16_t value = 0;
    EXPECT_TRUE(store->ReadInteger(L"x", value)) << "the store itself sees what it holds";
    EXPECT_EQ(value, 1);
    store->Release();
    EXPECT_EQ(File(), "[A]\nx=1\ny=2\n");
}

TEST_F(IniStoreSaving, AReleaseWithoutAHoldIsIgnored) {
    store->Release();
    store->Hold();
    Put(L"x", 1);
    EXPECT_FALSE(Exists());
    store->Release();
    EXPECT_EQ(File(), "[A]\nx=1\n");
    Put(L"x", 2);
    EXPECT_EQ(File(), "[A]\nx=2\n");
}

TEST_F(IniStoreSaving, NothingIsSavedWhereNothingHasChanged) {
    File("[A]\nx=1\n");
    folder.SetMode("a.ini", 0444); // a save would be refused
    store->Hold();
    Put(L"x", 1);
    store->Release();
    Put(L"x", 1);
    EXPECT_EQ(File(), "[A]\nx=1\n");
}

TEST_F(IniStoreSaving, AHoldWithoutAWriteMakesNoFile) {
    store->Hold();
    store->Release();
    EXPECT_FALSE(Exists());
}

TEST_F(IniStoreSaving, WhatIsStillHeldIsSavedWhenTheStoreEnds) {
    store->Hold();
    Put(L"x", 1);
    store.reset();
    EXPECT_EQ(File(), "[A]\nx=1\n");
}

TEST_F(IniStoreSaving, AStoreThatCannotSaveAnyMoreEndsQuietly) {
    File("[A]\nx=1\n");
    store->Hold();
    Put(L"x", 2);
    folder.SetMode("a.ini", 0444);
    store.reset();
    EXPECT_EQ(File(), "[A]\nx=1\n");
    EXPECT_EQ(folder.Files().size(), 1U);
}

TEST_F(IniStoreSaving, AnotherFileNameSavesWhatIsPending) {
    store->Hold();
    Put(L"x", 1);
    store->SetFileName(folder.Name("a.ini"));
    EXPECT_FALSE(Exists()) << "the same name changes nothing";
    store->SetFileName(folder.Name("b.ini"));
    EXPECT_EQ(File(), "[A]\nx=1\n");
    Put(L"x", 2);
    EXPECT_FALSE(fs::exists(folder.Path("b.ini"))) << "still held";
    store->Release();
    EXPECT_EQ(folder.Read("b.ini"), "[A]\nx=2\n");
    EXPECT_EQ(File(), "[A]\nx=1\n");
}

TEST_F(IniStoreSaving, AFailedSaveKeepsTheFileNameAndTheChanges) {
    File("[A]\nx=1\n");
    store->Hold();
    Put(L"x", 2);
    folder.SetMode("a.ini", 0444);
    EXPECT_EQ(NumberRaisedBy([&] { store->SetFileName(folder.Name("b.ini")); }), 70);
    EXPECT_EQ(store->FileName(), folder.Name("a.ini"));
    EXPECT_EQ(NumberRaisedBy([&] { store->Release(); }), 70);
    EXPECT_EQ(File(), "[A]\nx=1\n");
    std::int16_t value = 0;
    EXPECT_TRUE(store->ReadInteger(L"x", value));
    EXPECT_EQ(value, 2);

    folder.SetMode("a.ini", 0644);
    Put(L"x", 2); // the value stands in memory already; it is the file that lacks it
    EXPECT_EQ(File(), "[A]\nx=2\n");
}

TEST_F(IniStoreSaving, AFolderThatDoesNotExistIsPathNotFoundUntilItExists) {
    store->SetFileName(folder.Name("later/a.ini"));
    EXPECT_EQ(NumberRaisedBy([&] { Put(L"x", 1); }), 76);
    fs::create_directory(folder.Path("later"));
    Put(L"y", 2);
    EXPECT_EQ(folder.Read("later/a.ini"), "[A]\nx=1\ny=2\n");
}

TEST_F(IniStoreSaving, AFolderInPlaceOfTheFileIsAnAccessError) {
    fs::create_directory(folder.Path("a.ini"));
    std::int16_t value = 0;
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(store->ReadInteger(L"x", value)); }), 75);
    EXPECT_EQ(NumberRaisedBy([&] { Put(L"x", 1); }), 75);
}

TEST_F(IniStoreSaving, WhatAnotherProgramHasWrittenSurvives) {
    File("[A]\nx=1\ny=1\n");
    store->Hold();
    Put(L"x", 2);
    Put(L"z", 3);
    File("; theirs\n[B]\nv=1\n[A]\ny=5\nx=4\nw=6\n");
    store->Release();
    EXPECT_EQ(File(), "; theirs\n[B]\nv=1\n[A]\ny=5\nx=2\nw=6\nz=3\n");
    std::int16_t value = 0;
    EXPECT_TRUE(store->ReadInteger(L"w", value)) << "the store has read the file anew";
    EXPECT_EQ(value, 6);
}

TEST_F(IniStoreSaving, AValueThatAnotherProgramHasReplacedIsWrittenAgain) {
    File("[A]\nx=1\ny=1\n");
    Put(L"x", 1);
    File("[A]\nx=22\ny=1\n");
    Put(L"x", 1);
    EXPECT_EQ(File(), "[A]\nx=1\ny=1\n");

    store->Hold();
    Put(L"x", 1);
    Put(L"y", 2);
    File("[A]\nx=333\ny=333\nz=333\n");
    store->Release();
    EXPECT_EQ(File(), "[A]\nx=1\ny=2\nz=333\n");

    fs::remove(folder.Path("a.ini"));
    Put(L"x", 1);
    EXPECT_EQ(File(), "[A]\nx=1\n");
}

TEST_F(IniStoreSaving, AHeldValueThatIsTakenBackSavesNothing) {
    File("[A]\nx=1 ; ohms\n");
    folder.SetMode("a.ini", 0444); // a save would be refused
    store->Hold();
    Put(L"x", 2);
    Put(L"x", 1);
    store->Release();
    EXPECT_EQ(File(), "[A]\nx=1 ; ohms\n");
}

TEST_F(IniStoreSaving, AFileThatAnotherProgramHasMadeInTheMeantimeSurvives) {
    store->Hold();
    Put(L"x", 1);
    File("[B]\ny=2\n");
    store->Release();
    EXPECT_EQ(File(), "[B]\ny=2\n\n[A]\nx=1\n");
}

TEST_F(IniStoreSaving, AFileThatAnotherProgramHasDeletedBeginsAnew) {
    File("[A]\nx=1\ny=2\n");
    store->Hold();
    Put(L"x", 3);
    fs::remove(folder.Path("a.ini"));
    store->Release();
    EXPECT_EQ(File(), "[A]\nx=3\n");
}

TEST_F(IniStoreSaving, AFileThatHasBecomeUtf16WithoutAMarkIsLeftAlone) {
    File("[A]\nx=1\n");
    store->Hold();
    Put(L"x", 2);
    const std::string utf16("[\0A\0]\0", 6);
    File(utf16);
    EXPECT_EQ(NumberRaisedBy([&] { store->Release(); }), 75);
    EXPECT_EQ(File(), utf16);
    File("[A]\nx=7\n");
    Put(L"y", 3);
    EXPECT_EQ(File(), "[A]\nx=2\ny=3\n") << "the changes were kept";
}

TEST_F(IniStoreSaving, WhatIsHeldIsSpelledInTheEncodingThatTheFileHasWhenItIsSaved) {
    const std::string latin1 = "; K\xF6ln\n[A]\nx=\xB0\n";
    const std::string utf8 = "; K\xC3\xB6ln\n[A]\nx=\xC2\xB0\n";
    const auto write = [this] {
        store->Hold();
        store->WriteString(L"x", L"20 \u00B0C");
        store->WriteString(L"\u00D6l", L"\u2126");
        store->WriteInteger(L"n", 1, L"at 20 \u00B0");
        store->SetSection(L"K\u00FChlung");
        store->WriteString(L"y", L"1");
        store->SetSection(L"A");
    };
    File(utf8);
    write();
    File(latin1);
    store->Release();
    EXPECT_EQ(File(), "; K\xF6ln\n[A]\nx=20 \xB0"
                      "C\n\xD6l=\"\\u{2126}\"\nn=1 ; at 20 \xB0\n\n[K\xFChlung]\ny=1\n");

    File(latin1);
    store->Reload();
    write();
    File(utf8);
    store->Release();
    EXPECT_EQ(File(), "; K\xC3\xB6ln\n[A]\nx=20 \xC2\xB0"
                      "C\n\xC3\x96l=\xE2\x84\xA6\nn=1 ; at 20 \xC2\xB0\n\n[K\xC3\xBChlung]\ny=1\n");
}

TEST_F(IniStoreSaving, AfterAnotherProgramHasWrittenTheSameNothingIsSaved) {
    File("[A]\nx=1\n");
    store->Hold();
    Put(L"x", 2);
    fs::remove(folder.Path("a.ini"));
    File("[A]\nx=2\n; theirs\n");
    folder.SetMode("a.ini", 0444); // a save would be refused
    store->Release();
    EXPECT_EQ(File(), "[A]\nx=2\n; theirs\n");
}

TEST_F(IniStoreSaving, TheFileBehindALinkIsSavedAndTheLinkStays) {
    folder.Write("real.ini", "[A]\nx=1\n");
    fs::create_symlink("real.ini", folder.Path("a.ini"));
    Put(L"x", 2);
    EXPECT_EQ(folder.Read("real.ini"), "[A]\nx=2\n");
    EXPECT_TRUE(fs::is_symlink(folder.Path("a.ini")));
}
