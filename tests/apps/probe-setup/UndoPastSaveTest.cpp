// The history of a document outlives a save: what was saved can be taken back, and saved so.

#include "tests/apps/probe-setup/DocumentTest.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <sstream>

using namespace ProbeSetup;
using namespace QuorConversions;
using Texts = std::vector<std::wstring>;

class UndoPastSave : public DocumentTest {
protected:
    /// Does something, saves, takes it back and saves again: the file is what it was. Done again and saved,
    /// it is what it was after the first save.
    void ExpectComesBack(const std::function<void()>& action) {
        // In the notation of a save, so that values that come back stand there as before.
        std::string before = host;
        before.replace(before.find("100.0"), 5, "100");
        before.replace(before.find("3.9083E-3"), 9, "0.0039083");
        Open(before);
        action();
        ASSERT_TRUE(document.Changed());
        document.Save();
        EXPECT_FALSE(document.Changed());
        const std::string changed = File();
        ASSERT_NE(changed, before);
        while (document.UndoKind())
            static_cast<void>(document.Undo());
        EXPECT_TRUE(document.Changed());
        document.Save();
        EXPECT_FALSE(document.Changed());
        EXPECT_EQ(Read(File()), Read(before));
        while (document.RedoKind())
            static_cast<void>(document.Redo());
        EXPECT_TRUE(document.Changed());
        document.Save();
        EXPECT_EQ(Read(File()), Read(changed));
    }

private:
    /// The sections with their keys, in any order and without comments and blank lines, which go with a probe
    /// that is removed.
    static std::set<std::string> Read(const std::string& text) {
        std::set<std::string> lines;
        std::istringstream in(text);
        std::string section;
        for (std::string line; std::getline(in, line);) {
            if (line.empty() || line[0] == ';')
                continue;
            if (line[0] == '[')
                section = line;
            lines.insert(section + line);
        }
        return lines;
    }
};

TEST_F(UndoPastSave, TakesAnEditBack) {
    ExpectComesBack([this] { Edit(0, L"R0", L"100.0123"); });
    EXPECT_NE(File().find("; as calibrated\nCoefficients0=100.0123\n"), std::string::npos) << File();
}

TEST_F(UndoPastSave, TakesARenameBack) {
    ExpectComesBack([this] { document.Rename(0, L"Reference"); });
}

TEST_F(UndoPastSave, BringsARemovedProbeBack) {
    ExpectComesBack([this] { document.Remove({0}); });
}

TEST_F(UndoPastSave, TakesAnAddedProbeOutOfTheFile) {
    ExpectComesBack([this] { document.Add(L"Probe 3", CONV_PT100R0); });
}

TEST_F(UndoPastSave, GivesAProbeTheOldTypeAndValues) {
    ExpectComesBack([this] { document.SetType({0, 1}, CONV_RATIO); });
}

TEST_F(UndoPastSave, TakesManyStepsBack) {
    ExpectComesBack([this] {
        document.Rename(0, L"Reference");
        Edit(0, L"R0", L"99.5");
        document.Duplicate({0, 1});
        document.Remove({0});
        document.SetType({0}, CONV_VOLTS);
    });
}

TEST_F(UndoPastSave, AnEditThatIsTakenBackAndDoneAgainIsNoChange) {
    Open();
    Edit(0, L"R0", L"100.0123");
    document.Save();
    EXPECT_EQ(document.Undo(), std::vector<std::size_t>{0});
    EXPECT_TRUE(document.Changed());
    EXPECT_TRUE(document.IsChanged(0));
    static_cast<void>(document.Redo());
    EXPECT_FALSE(document.Changed());
    EXPECT_FALSE(document.IsChanged(0));
}

TEST_F(UndoPastSave, AnAddedProbeThatIsTakenBackGoesFromTheFileAlsoWhenSomethingElseIsDoneThen) {
    Open();
    document.Add(L"Probe 3", CONV_OHMS);
    document.Save();
    static_cast<void>(document.Undo());
    document.Rename(1, L"Ohms");
    document.Save();
    EXPECT_EQ(File().find("Probe 3"), std::string::npos) << File();
    EXPECT_FALSE(document.Changed());
    Open();
    EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Ohms"}));
}

TEST_F(UndoPastSave, ARecordThatCannotBeReadDoesNotComeBackFromASavedRemoval) {
    Open("[P]\nConversionType=2\n[Q]\nConversionType=10\n");
    document.Rename(1, L"R");
    document.Remove({0});
    document.Rename(0, L"S");
    document.Save();
    EXPECT_EQ(document.UndoKind(), StepKind::Rename);
    static_cast<void>(document.Undo());
    EXPECT_EQ(document.UndoKind(), std::nullopt) << "its values are lost, and so is what was before";
    EXPECT_EQ(Names(), Texts{L"R"});
    EXPECT_EQ(File(), "[S]\nConversionType=10\n");
}

TEST_F(UndoPastSave, DefaultsOfARecordThatCannotBeReadAreNotWrittenAsItsOldValues) {
    const std::string unreadable = "[P]\nConversionType=19\n[P - Settings]\nNumCoefficients=1\n"
                                   "Coefficients0=1OO.02\n";
    Open(unreadable);
    document.SetType({0}, CONV_TCTYPEX);
    document.Save();
    EXPECT_EQ(document.UndoKind(), std::nullopt) << "100 would be written, as if it had been there";

    Open(unreadable);
    Edit(0, L"R0", L"100.0123");
    document.Save();
    EXPECT_EQ(document.UndoKind(), std::nullopt);
}

TEST_F(UndoPastSave, ATypeThatIsNotKnownOrCannotBeReadDoesNotComeBackWithoutItsSettings) {
    Open("[P]\nConversionType=99\n[P - Settings]\nSecret=1.25\n[Q]\nConversionType=ten\n");
    document.SetType({0}, CONV_OHMS);
    document.Save();
    EXPECT_EQ(document.UndoKind(), std::nullopt);
    document.SetType({1}, CONV_OHMS);
    document.Save();
    EXPECT_EQ(document.UndoKind(), std::nullopt);
}

TEST_F(UndoPastSave, ASaveThatIsRefusedKeepsTheHistory) {
    const std::string unreadable = "[P]\nConversionType=2\n";
    Open(unreadable);
    document.Remove({0});
    document.Add(L"Probe 3", CONV_OHMS);
    folder.Write("host.ini", unreadable + "[probe 3]\nConversionType=11\n");
    EXPECT_EQ(FailureOf([&] { document.Save(); }), Failure::NameIsTaken);
    static_cast<void>(document.Undo());
    EXPECT_EQ(document.UndoKind(), StepKind::Remove);
    static_cast<void>(document.Undo());
    EXPECT_EQ(Names(), Texts{L"P"});
}

TEST_F(UndoPastSave, ValuesOfAnotherProgramEndTheHistory) {
    Open();
    Edit(0, L"R0", L"100.0123");
    folder.Write("host.ini", host + "[Probe 3]\nConversionType=11\n");
    document.Save();
    EXPECT_EQ(document.UndoKind(), std::nullopt);
    EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2", L"Probe 3"}));
}

TEST_F(UndoPastSave, SaveAsGoesOverToTheNewFileWithAllAroundTheProbes) {
    Open();
    Edit(0, L"R0", L"100.0123");
    document.SaveAs(folder.Name("other.ini"));
    EXPECT_EQ(document.Path(), folder.Name("other.ini"));
    EXPECT_FALSE(document.Changed());
    EXPECT_EQ(File(), host);
    std::string expected = host;
    expected.replace(expected.find("100.0"), 5, "100.0123");
    EXPECT_EQ(folder.Read("other.ini"), expected);
    EXPECT_EQ(document.CheckName(L"Instrument"), NameProblem::SectionExists)
        << "the host's section came along";
    static_cast<void>(document.Undo());
    document.Save();
    std::string back = folder.Read("other.ini");
    EXPECT_NE(back.find("Coefficients0=100\n"), std::string::npos) << back;
    EXPECT_EQ(File(), host);
}
