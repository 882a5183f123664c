// Sections as a whole: listed, removed, renamed, and what becomes of that when the file is saved.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace fs = std::filesystem;
using namespace QuorIniFile;

namespace {

using SectionNames = std::vector<std::wstring>;

class IniStoreSections : public testing::Test {
protected:
    IniStoreSections() { store->SetFileName(folder.Name("a.ini")); }
    void File(std::string_view bytes) const { folder.Write("a.ini", bytes); }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }
    void Put(const wchar_t* section, const wchar_t* key, std::int16_t value) const {
        store->SetSection(section);
        store->WriteInteger(key, value, L"");
    }
    template <class Action>
    std::wstring Refusal(const Action& action) const {
        try {
            action();
        } catch (const QuorError& error) {
            EXPECT_EQ(error.Source(), L"QuorIniFile");
            std::wstring text = error.Description();
            const std::wstring name = folder.Name("a.ini");
            if (const auto at = text.find(name); at != std::wstring::npos)
                text.replace(at, name.size(), L"a.ini");
            return std::to_wstring(error.Number()) + L' ' + text;
        }
        return L"no refusal";
    }

    TempFolder folder;
    std::unique_ptr<IniStore> store = std::make_unique<IniStore>();
};

} // namespace

TEST_F(IniStoreSections, StandInTheOrderOfTheFileAndNewOnesBehindThem) {
    File("top=1\n[K\xC3\xB6ln]\n[B]\n[b]\n[broken\n[A]\n");
    store->Hold();
    Put(L"New", L"x", 1);
    EXPECT_EQ(store->Sections(), (SectionNames{L"Köln", L"B", L"A", L"New"}));
}

TEST_F(IniStoreSections, ArePlainWhenEachHeaderIsClosedAndTheOnlyOneOfItsName) {
    const std::pair<const char*, bool> files[] = {
        {"", true},
        {"x=1\n[A]\nx=[A]\n; [A]\n[A - Settings]\n[K\xC3\xB6ln]\n", true},
        {"[A]\n[B]\n[a]\n", false},
        {"[A]\n[A]\n[A]\n", false},
        {"[K\xC3\xB6ln]\n\xFF=1\n[K\xF6ln]\n", false}, // one spelling is UTF-8, the other Latin-1
        {"[A]\n[B\n[C\nx=1\n[D]\n", false},
        {"[", false},
    };
    for (const auto& [bytes, isPlain] : files) {
        File(bytes);
        store->Reload();
        EXPECT_EQ(store->HasPlainHeaders(), isPlain) << bytes;
    }
    File("[A]\n[B]\n");
    store->Reload();
    store->Hold();
    Put(L"C", L"x", 1);
    store->RenameSection(L"B", L"D");
    Put(L"B", L"x", 1);
    store->RemoveSection(L"A");
    Put(L"A", L"x", 1);
    EXPECT_TRUE(store->HasPlainHeaders());
    store->Discard();
    store->SetFileName(folder.Name("missing.ini"));
    EXPECT_THROW(static_cast<void>(store->HasPlainHeaders()), QuorError);
}

TEST_F(IniStoreSections, OfAFileThatIsNotThereAreAnError) {
    EXPECT_EQ(Refusal([&] { static_cast<void>(store->Sections()); }), L"53 File not found: a.ini");
    store->RemoveSection(L"A");
    EXPECT_FALSE(fs::exists(folder.Path("a.ini"))) << "there was nothing to remove";
}

TEST_F(IniStoreSections, AreRemovedAndRenamedWhenTheCallReturns) {
    File("[A]\nx=1\n\n[B] ; remark\ny=2\n");
    store->RemoveSection(L"a");
    EXPECT_EQ(File(), "[B] ; remark\ny=2\n");
    store->RenameSection(L"b", L"Köln");
    EXPECT_EQ(File(), "[K\xC3\xB6ln] ; remark\ny=2\n");
    store->RemoveSection(L"C");
    EXPECT_EQ(store->Sections(), SectionNames{L"Köln"});
}

TEST_F(IniStoreSections, TakeTheEncodingOfTheFile) {
    File("[A]\nx=\xE4\n");
    store->RenameSection(L"A", L"Köln");
    EXPECT_EQ(File(), "[K\xF6ln]\nx=\xE4\n");
}

TEST_F(IniStoreSections, AreChangedTogetherWithWhatIsHeld) {
    File("[A]\nx=1\n\n[B]\ny=2\n");
    const std::string old = File();
    store->Hold();
    Put(L"A", L"x", 5);
    store->RenameSection(L"A", L"C");
    store->RemoveSection(L"B");
    Put(L"C", L"z", 6);
    EXPECT_EQ(File(), old);
    store->Release();
    EXPECT_EQ(File(), "[C]\nx=5\nz=6\n");
}

TEST_F(IniStoreSections, GiveTheSelectedNameAnotherSectionWhenTheyAreRenamed) {
    File("[A]\nx=1\n\n[B]\nx=2\n");
    store->SetSection(L"A");
    std::int16_t value = 0;
    ASSERT_TRUE(store->ReadInteger(L"x", value));
    store->Hold();
    store->RenameSection(L"A", L"C");
    EXPECT_FALSE(store->ReadInteger(L"x", value));
    store->RenameSection(L"B", L"A");
    EXPECT_TRUE(store->ReadInteger(L"x", value));
    EXPECT_EQ(value, 2);
    store->Release();
}

TEST_F(IniStoreSections, KeepTheirNamesWhenTheNewOneCannotBe) {
    const std::string text = "[A]\nx=1\n\n[B]\ny=2\n";
    File(text);
    EXPECT_EQ(Refusal([&] { store->RenameSection(L"A", L"b"); }),
              L"75 Path/File access error: a.ini: There is a section \"b\" already");
    EXPECT_EQ(Refusal([&] { store->RenameSection(L"C", L"D"); }),
              L"75 Path/File access error: a.ini: There is no section \"C\"");
    EXPECT_EQ(Refusal([&] { store->RenameSection(L"A", L"C\nD"); }),
              L"75 Path/File access error: a.ini: No section can have the name \"C\nD\"");
    EXPECT_EQ(File(), text);
}

TEST_F(IniStoreSections, AreRemovedAndRenamedInTheFileThatAnotherProgramHasChanged) {
    File("[A]\nx=1\n\n[B]\ny=2\n");
    store->Hold();
    store->RemoveSection(L"A");
    store->RenameSection(L"B", L"C");
    File("[New]\nz=3\n\n[B]\ny=4\nw=5\n\n[A]\nx=6\n");
    store->Release();
    EXPECT_EQ(File(), "[New]\nz=3\n\n[C]\ny=4\nw=5\n");
}

TEST_F(IniStoreSections, TakeNoNameThatAnotherProgramHasGivenMeanwhile) {
    File("[A]\nx=1\n");
    store->Hold();
    store->RenameSection(L"A", L"C");
    const std::string theirs = "[A]\nx=1\n\n[C]\ny=4\n";
    File(theirs);
    EXPECT_EQ(Refusal([&] { store->Release(); }),
              L"75 Path/File access error: a.ini: There is a section \"C\" already");
    store->Discard();
    EXPECT_EQ(store->Sections(), (SectionNames{L"A", L"C"}));
    store.reset();
    EXPECT_EQ(File(), theirs);
}

TEST_F(IniStoreSections, OfWhichOnlyAPartWasWrittenAreNotSavedWhereAnotherProgramHasRemovedThem) {
    const std::wstring refusal =
        L"75 Path/File access error: a.ini: Another program has removed or renamed the "
        L"section \"Probe 1\", of which only a part was written";
    for (const std::string theirs : {"[B]\nz=3\n", "[B]\nz=3\n\n[Probe 2]\nx=1\ny=2\n", "; nothing else\n"}) {
        SCOPED_TRACE(theirs);
        File("[Probe 1]\nx=1\ny=2\n\n[B]\nz=3\n");
        store->Hold();
        Put(L"probe 1", L"x", 5);
        Put(L"B", L"z", 6);
        File(theirs);
        EXPECT_EQ(Refusal([&] { store->Reload(); }), refusal);
        EXPECT_EQ(Refusal([&] { store->Release(); }), refusal);
        EXPECT_EQ(File(), theirs);

        store->SetSection(L"Probe 1");
        std::int16_t value = 0;
        EXPECT_TRUE(store->ReadInteger(L"x", value));
        EXPECT_EQ(value, 5) << "what was written is kept";
        EXPECT_EQ(Refusal([&] { Put(L"B", L"z", 7); }), refusal);
        store->Discard();
        store->Release();
        EXPECT_EQ(File(), theirs);
        EXPECT_EQ(Refusal([&] { Put(L"New", L"z", 8); }), L"no refusal");
        store->Discard();
    }
}

TEST_F(IniStoreSections, OfWhichOnlyAPartWasWrittenAreNotSavedByTheEndOfTheStore) {
    File("[A]\nx=1\ny=2\n");
    store->Hold();
    Put(L"A", L"x", 5);
    File("[B]\n");
    store.reset();
    EXPECT_EQ(File(), "[B]\n");
}

TEST_F(IniStoreSections, OfWhichNoKeyWasLeftOutComeBackWhereAnotherProgramHasRemovedThem) {
    File("[A]\nx=1\nY=2\nx=3\n\n[B]\nz=3\n");
    store->Hold();
    Put(L"A", L"y", 2);
    Put(L"A", L"x", 5);
    Put(L"A", L"new", 6);
    File("[B]\nz=4\n");
    store->Release();
    EXPECT_EQ(File(), "[B]\nz=4\n\n[A]\nY=2\nx=5\nnew=6\n");
}

TEST_F(IniStoreSections, ThatWereRemovedAndWrittenAnewComeBackWhereAnotherProgramHasRemovedThem) {
    File("[A]\nx=1\ny=2\n\n[B]\nz=3\n");
    store->Hold();
    store->RemoveSection(L"A");
    Put(L"A", L"x", 5);
    File("[B]\nz=3\n");
    store->Release();
    EXPECT_EQ(File(), "[B]\nz=3\n\n[A]\nx=5\n");
}

TEST_F(IniStoreSections, OfWhichOnlyAPartWasWrittenAreToldByTheirOldNameWhenTheyWereRenamed) {
    File("[A]\nx=1\ny=2\n");
    store->Hold();
    store->RenameSection(L"A", L"C");
    Put(L"C", L"x", 5);
    File("[B]\nx=1\ny=2\n");
    EXPECT_EQ(
        Refusal([&] { store->Release(); }),
        L"75 Path/File access error: a.ini: Another program has removed or renamed the section \"A\", of "
        L"which only a part was written");
    EXPECT_EQ(File(), "[B]\nx=1\ny=2\n");
}

TEST_F(IniStoreSections, OfAFileThatWasEmptiedBeginAnewWithWhatWasWritten) {
    for (const std::string theirs : {"", "\xEF\xBB\xBF", "\xEF\xBB\xBF\r\n \t\r\n"}) {
        File("[A]\nx=1\ny=2\n");
        store->Hold();
        Put(L"A", L"x", 5);
        File(theirs);
        store->Release();
        EXPECT_EQ(File(), theirs + (theirs.ends_with('\n') ? "\r\n[A]\r\nx=5\r\n" : "[A]\nx=5\n"));
    }
}

TEST_F(IniStoreSections, ThatWereDiscardedAreNeverSaved) {
    const std::string text = "[A]\nx=1\n";
    File(text);
    store->Hold();
    store->RemoveSection(L"A");
    Put(L"B", L"y", 2);
    store->Discard();
    store->Release();
    EXPECT_EQ(store->Sections(), SectionNames{L"A"});
    store->Hold();
    store->RemoveSection(L"A");
    store->Discard();
    store.reset();
    EXPECT_EQ(File(), text);
}

TEST_F(IniStoreSections, TheirRefusalsHaveACauseAndANameForPrograms) {
    File("[A]\n[B]\n");
    const auto causeOf = [&](const wchar_t* from, const wchar_t* to) {
        try {
            store->RenameSection(from, to);
        } catch (const QuorError& error) {
            EXPECT_EQ(error.Cause()->fileName, folder.Name("a.ini"));
            return std::pair(error.Cause()->code, error.Cause()->values);
        }
        return std::pair(INI_CAUSE_NONE, SectionNames{});
    };
    EXPECT_EQ(causeOf(L"A", L"b"), std::pair(INI_CAUSE_SECTION_EXISTS, SectionNames{L"b"}));
    EXPECT_EQ(causeOf(L"C", L"D"), std::pair(INI_CAUSE_NO_SUCH_SECTION, SectionNames{L"C"}));
    EXPECT_EQ(causeOf(L"A", L"C\nD"), std::pair(INI_CAUSE_BAD_SECTION_NAME, SectionNames{L"C\nD"}));
}
