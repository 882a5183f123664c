#include "apps/probe-setup/ProbeDocument.h"

#include "QuorConversions/resources/StringTable.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "tests/apps/probe-setup/HostFile.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/Process.h"
#include "tests/support/Utf16.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <sys/stat.h>

namespace fs = std::filesystem;
using namespace ProbeSetup;
using namespace QuorConversions;
using QuorConversions::Scripted::Person;

namespace {

using Texts = std::vector<std::wstring>;

/// A document on the file "host.ini".
class ProbeDocumentTest : public HostFileTest {
protected:
    void Open(const std::string& text) {
        folder.Write("host.ini", text);
        Open();
    }
    void Open() { document.Open(folder.Name("host.ini")); }
    [[nodiscard]] Texts Names() const {
        Texts names;
        for (std::size_t i = 0; i < document.Count(); ++i)
            names.push_back(document.Name(i));
        return names;
    }
    [[nodiscard]] std::wstring NameOfConversion(std::size_t probe) const {
        return document.ConversionName(document.ConversionNumber(probe));
    }
    /// Edits a probe as a person would.
    bool Edit(std::size_t probe, std::function<void(Person&)> person) {
        screen->InDialog(std::move(person));
        const bool changed = document.Edit(probe);
        EXPECT_EQ(screen->Complaints(), Texts{});
        return changed;
    }
    static void TypeR0(Person& person) {
        person.Type(L"R0", L"100.0123");
        person.Click(L"OK");
    }
    /// Saves as the user does who has seen what another program has written, and agrees to replace it.
    void SaveOverOthers() {
        const DocumentError shown = ErrorOf([&] { document.Save(); });
        document.Save({shown.changed, shown.conflicts});
    }
    template <class Action>
    DocumentError ErrorOf(const Action& action) const {
        try {
            action();
        } catch (const DocumentError& error) {
            return error;
        } catch (const QuorError& error) {
            ADD_FAILURE() << error.what();
        }
        ADD_FAILURE() << "nothing was raised";
        return {};
    }
    template <class Action>
    std::int32_t NumberRaisedBy(const Action& action) const {
        try {
            action();
        } catch (const QuorError& error) {
            EXPECT_NE(error.Description().find(L"host.ini"), std::wstring::npos) << error.what();
            return error.Number();
        }
        return 0;
    }

    [[nodiscard]] double Alpha(std::size_t probe) {
        return dynamic_cast<const CQuorCVD&>(*document.Conversion(probe).Settings()).Coefficients(CVD_ALPHA);
    }
    /// A line each: the key, what was read, what the file holds, what the user wants.
    static Texts Lines(const std::vector<QuorProbeFile::RecordConflict>& conflicts) {
        const auto text = [](const auto& value) { return value ? QuorProbeFile::ToText(*value) : L"none"; };
        Texts lines;
        for (const auto& conflict : conflicts)
            lines.push_back(L"[" + conflict.section + L"] " + conflict.key + L": " + text(conflict.read) +
                            L", " + text(conflict.theirs) + L", " + QuorProbeFile::ToText(conflict.ours));
        return lines;
    }

    std::shared_ptr<Scripted::ScriptedPlatform> screen = std::make_shared<Scripted::ScriptedPlatform>();
    Support::InterceptedFiles files;
    ProbeDocument document{screen, nullptr, &files};
};

} // namespace

TEST_F(ProbeDocumentTest, ListsTheProbesInTheOrderOfTheFile) {
    Open();
    EXPECT_EQ(document.Path(), folder.Name("host.ini"));
    EXPECT_FALSE(document.IsReadOnly());
    EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2"}));
    EXPECT_EQ(document.Type(0), CONV_CVD);
    EXPECT_EQ(document.Type(1), CONV_OHMS);
    EXPECT_EQ(NameOfConversion(0), L"Callendar-Van Dusen");
    EXPECT_EQ(NameOfConversion(1), L"Ohms");
    EXPECT_FALSE(document.IsChanged(0));
    EXPECT_FALSE(document.Changed());
}

TEST_F(ProbeDocumentTest, NamesEveryConversionOfTheSampleLaboratoryAsQuorconvDoes) {
    fs::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("host.ini"),
                  fs::copy_options::overwrite_existing);
    Open();
    const std::string listed = Quorconv({"list", "host.ini"}).out;
    std::string ours;
    for (std::size_t i = 0; i < document.Count(); ++i)
        ours += QuorIniFile::ToUtf8(document.Name(i) + L"\t" + ConversionEnumerator(*document.Type(i)) +
                                    L"\t" + NameOfConversion(i) + L"\n");
    EXPECT_EQ(ours, listed);
    EXPECT_EQ(document.Count(), 29U);
}

TEST_F(ProbeDocumentTest, AFileThatCannotBeReadLeavesTheDocumentAsItWas) {
    Open();
    EXPECT_THROW(document.Open(folder.Name("missing.ini")), QuorError);
    folder.Write("wide.ini", std::string("\xFF\xFE[\0A", 5));
    EXPECT_THROW(document.Open(folder.Name("wide.ini")), QuorError);
    EXPECT_EQ(document.Count(), 2U);
    EXPECT_EQ(document.Path(), folder.Name("host.ini"));
}

TEST_F(ProbeDocumentTest, WhatIsNoSettingsFileIsToldWithTheLineThatShowsIt) {
    Open();
    const auto expectRefused = [&](const char* file, const std::string& text, const wchar_t* line) {
        folder.Write(file, text);
        const DocumentError error = ErrorOf([&] { document.Open(folder.Name(file)); });
        EXPECT_EQ(error.failure, Failure::NoSettingsFile) << file;
        EXPECT_EQ(error.file, folder.Name(file));
        EXPECT_EQ(error.details, Texts{line}) << file;
        EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2"})) << "the file that was open stays";
    };
    std::mt19937 random(20261122);
    std::string noise;
    while (noise.size() < 200'000)
        noise += static_cast<char>(random() & 0xFF);
    const std::size_t first = noise.find_first_of(std::string("\0\1\2\3\4\5\6\7", 8));
    const auto line = 1 + std::count(noise.begin(), noise.begin() + static_cast<std::ptrdiff_t>(first), '\n');
    ASSERT_EQ(line, 1);
    expectRefused("noise.ini", noise, L"1");
    expectRefused("picture.ini", "\x89PNG\r\n\x1A\n[IHDR]\nx=\1\n", L"4");
    expectRefused("letter.txt", "\nDear colleague,\nthe probes are in the other file.\n", L"2");
}

TEST_F(ProbeDocumentTest, AFileWithoutProbesThatIsOneOfSettingsIsOpened) {
    for (const char* const text : {"", "; nothing yet\n", "[Instrument]\nPort=COM3\nno value\n",
                                   "Port=COM3\n", "[Instrument]\r\nNote=a\tb\r\n\x1A"}) {
        Open(text);
        EXPECT_EQ(document.Count(), 0U) << text;
    }
    Open("[P]\nConversionType=10\nNote=\1\n");
    EXPECT_EQ(document.Count(), 1U) << "where there is a probe, it is a settings file";
}

TEST_F(ProbeDocumentTest, AnEditedProbeIsWrittenAsQuorconvSetWritesIt) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    EXPECT_TRUE(document.IsChanged(0));
    EXPECT_FALSE(document.IsChanged(1));
    EXPECT_EQ(File(), host) << "nothing is written before the save";
    document.Save();
    EXPECT_FALSE(document.Changed());
    const std::string ours = File();
    EXPECT_EQ(ours, Replaced(host, "=100.0\n", "=100.0123\n"));

    folder.Write("host.ini", host);
    ExpectFine({"set", "host.ini", "Probe 1", "Coefficients0=100.0123"});
    EXPECT_EQ(ours, File());
}

TEST_F(ProbeDocumentTest, AUtf16FileIsOpenedEditedAndSavedAsUtf16) {
    const auto utf16 = [](const std::string& text) { // of ASCII
        return Utf16Le(u"\uFEFF; \u00B0C, \u2126\r\n" + std::u16string(text.begin(), text.end()));
    };
    Open(utf16(host));
    EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2"}));
    EXPECT_TRUE(Edit(0, TypeR0));
    document.Rename(1, L"Probe 3");
    document.SaveCopyAs(folder.Name("copy.ini"));
    document.Save();
    const std::string saved =
        utf16(Replaced(Replaced(host, "=100.0\n", "=100.0123\n"), "Probe 2", "Probe 3"));
    EXPECT_EQ(File(), saved);
    EXPECT_EQ(folder.Read("copy.ini"), saved);
    EXPECT_FALSE(document.Changed());
}

TEST_F(ProbeDocumentTest, ACancelledDialogAndOneThatChangedNothingAreNoChange) {
    Open();
    EXPECT_FALSE(Edit(0, [](Person& person) { person.Click(L"OK"); }));
    EXPECT_FALSE(Edit(0, [](Person& person) {
        person.Type(L"R0", L"7");
        person.Escape();
    }));
    EXPECT_FALSE(Edit(0, [](Person& person) {
        person.Type(L"R0", L"0"); // refused, but gathered
        person.Click(L"OK");
        person.Click(L"Cancel");
    }));
    EXPECT_FALSE(document.Changed());
    const auto cvd = SettingsAs<CQuorCVD>(document.Conversion(0));
    ASSERT_TRUE(cvd);
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 100.0) << "what was typed before a cancel is gone";
}

TEST_F(ProbeDocumentTest, ANewProbeIsWrittenAsQuorconvNewWritesIt) {
    Open();
    const std::size_t probe = document.Add(L"Probe 3", CONV_PT100R0);
    EXPECT_EQ(probe, 2U);
    EXPECT_EQ(NameOfConversion(probe), L"PT100");
    EXPECT_TRUE(Edit(probe, [](Person& person) {
        person.Type(L"R0", L"100.5");
        person.Click(L"OK");
    }));
    document.Save();
    const std::string ours = File();

    folder.Write("host.ini", host);
    ExpectFine({"new", "host.ini", "Probe 3", "CONV_PT100R0", "Coefficients0=100.5"});
    EXPECT_EQ(ours, File());
}

TEST_F(ProbeDocumentTest, ADuplicateIsWrittenAsQuorconvCopyWritesIt) {
    Open();
    const std::size_t probe = document.Duplicate({0}).front();
    EXPECT_EQ(document.Name(probe), L"Probe 1 (2)");
    document.Save();
    const std::string ours = File();
    folder.Write("host.ini", host);
    ExpectFine({"copy", "host.ini", "Probe 1", "host.ini", "Probe 1 (2)"});
    EXPECT_EQ(ours, File());
}

TEST_F(ProbeDocumentTest, ANewDocumentIsSavedAsAFileOfItsOwn) {
    document.Add(L"Köln", CONV_CVD);
    document.SaveCopyAs(folder.Name("new.ini"));
    EXPECT_EQ(document.Path(), folder.Name("new.ini"));
    EXPECT_FALSE(document.Changed());
    ExpectFine({"new", "host2.ini", "Köln", "cvd"});
    EXPECT_EQ(folder.Read("new.ini"), folder.Read("host2.ini"));
    document.Rename(0, L"Bonn");
    document.Save();
    EXPECT_EQ(folder.Read("new.ini"),
              Replaced(Replaced(folder.Read("host2.ini"), "Köln", "Bonn"), "Köln", "Bonn"));
}

TEST_F(ProbeDocumentTest, ANewDocumentTakesThePlaceOfWhateverStandsThere) {
    folder.Write("new.ini", std::string("\xFF\xFE[\0A", 5)); // nothing that could be read
    folder.Write("new.ini.1", "[Other]\nConversionType=2\n");
    document.Add(L"Köln", CONV_OHMS);
    document.SaveCopyAs(folder.Name("new.ini"));
    EXPECT_EQ(folder.Read("new.ini"), "[Köln]\nVersion=1.0\nConversionType=10\n");
    EXPECT_EQ(folder.Read("new.ini.1"), "[Other]\nConversionType=2\n");
    EXPECT_FALSE(fs::exists(folder.Path("new.ini.2")));
}

TEST_F(ProbeDocumentTest, ANewDocumentThatCannotBeSavedNamesTheFileThatTheUserHasNamed) {
    document.Add(L"Köln", CONV_OHMS);
    try {
        document.SaveCopyAs(folder.Name("no folder/new.ini"));
        ADD_FAILURE() << "nothing was raised";
    } catch (const QuorError& error) {
        EXPECT_EQ(error.Number(), 76);
        EXPECT_EQ(error.Cause()->fileName, folder.Name("no folder/new.ini"));
    }
    EXPECT_EQ(document.Path(), L"");
    EXPECT_TRUE(document.Changed());
}

TEST_F(ProbeDocumentTest, ARenamedProbeTakesItsSettingsAlongAndNothingElseChanges) {
    const std::string ranges =
        host + "\n; low\n[Probe 1 - Settings - Low Range] ; kept\nx=1\n[Probe 10]\nx=1\n";
    Open(ranges);
    document.Rename(0, L"Probe A");
    EXPECT_TRUE(document.IsChanged(0));
    document.Save();
    std::string expected = Replaced(ranges, "[Probe 1]", "[Probe A]");
    expected = Replaced(expected, "[Probe 1 - Settings]", "[Probe A - Settings]");
    expected = Replaced(expected, "[Probe 1 - Settings - Low Range]", "[Probe A - Settings - Low Range]");
    EXPECT_EQ(File(), expected);
    EXPECT_TRUE(Edit(0, TypeR0)) << "the probe is found under its new name";
    document.Save();
    EXPECT_EQ(File(), Replaced(expected, "=100.0\n", "=100.0123\n"));
}

TEST_F(ProbeDocumentTest, ProbesMayChangeNamesAmongEachOther) {
    Open();
    document.Rename(0, L"between");
    document.Rename(1, L"probe 1");
    document.Rename(0, L"Probe 2");
    document.Save();
    std::string expected = Replaced(host, "[Probe 2]", "[probe 1]");
    expected = Replaced(expected, "[Probe 1]", "[Probe 2]");
    expected = Replaced(expected, "[Probe 1 - Settings]", "[Probe 2 - Settings]");
    EXPECT_EQ(File(), expected);
}

TEST_F(ProbeDocumentTest, ARemovedProbeGoesWithItsSettings) {
    Open();
    document.Remove({0});
    EXPECT_EQ(Names(), Texts{L"Probe 2"});
    EXPECT_TRUE(document.Changed());
    document.Save();
    EXPECT_EQ(
        File(),
        "; The host's own file\n\n[Instrument]\nPort=COM3\n\n[Probe 2]\nVersion=1.0\nConversionType=10\n");
}

TEST_F(ProbeDocumentTest, ANameOfARemovedProbeIsFreeAtOnce) {
    Open();
    document.Remove({0});
    document.Rename(0, L"Probe 1");
    document.Save();
    EXPECT_EQ(
        File(),
        "; The host's own file\n\n[Instrument]\nPort=COM3\n\n[Probe 1]\nVersion=1.0\nConversionType=10\n");
}

TEST_F(ProbeDocumentTest, ANewProbeIsSavedInTheLettersOfItsOwnWhereARemovedOneHadTheName) {
    Open();
    document.Remove({0});
    document.Add(L"PROBE 1", CONV_PT100R0);
    document.Save();
    EXPECT_EQ(Names(), (Texts{L"Probe 2", L"PROBE 1"}));
    const std::string saved = File();
    EXPECT_NE(saved.find("\n[PROBE 1]\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("\n[PROBE 1 - Settings]\n"), std::string::npos) << saved;
    EXPECT_EQ(saved.find("[Probe 1"), std::string::npos) << saved;
    Open();
    EXPECT_EQ(document.Find(L"probe 1"), document.Find(L"PROBE 1"));
    EXPECT_EQ(document.Name(document.Find(L"probe 1").value()), L"PROBE 1");
    EXPECT_FALSE(document.Changed());

    document.Remove({document.Find(L"PROBE 1").value()});
    document.Rename(0, L"pRobe 1");
    document.Save();
    EXPECT_EQ(File().find("[PROBE 1"), std::string::npos) << File();
    EXPECT_NE(File().find("[pRobe 1]"), std::string::npos) << File();
}

TEST_F(ProbeDocumentTest, ASectionThatIsCalledLikeSettingsOfAProbeWithoutAnyIsTheHosts) {
    const std::string theirs = "[P - Settings]\nChannel=4\n";
    Open("[P]\nVersion=1.0\nConversionType=10\n" + theirs);
    document.SetType({0}, CONV_CVD);
    const DocumentError error = ErrorOf([&] { document.Save(); });
    EXPECT_EQ(error.failure, Failure::CannotWrite);
    EXPECT_EQ(error.details,
              (Texts{L"P", folder.Name("host.ini") + L": [P]: the settings would stand in the section "
                                                     L"\"P - Settings\", which is there already"}));
    EXPECT_EQ(File(), "[P]\nVersion=1.0\nConversionType=10\n" + theirs);
    document.SetType({0}, CONV_VOLTS);
    document.Save();
    EXPECT_EQ(File(), "[P]\nVersion=1.0\nConversionType=11\n" + theirs);
    document.Remove({0});
    document.Save();
    EXPECT_EQ(File(), theirs);
}

TEST_F(ProbeDocumentTest, ANewProbeDoesNotGetTheHostsSectionThatIsCalledLikeItsSettings) {
    const std::string theirs = "[P - Settings]\nChannel=4\n";
    Open("[P]\nVersion=1.0\nConversionType=10\n" + theirs);
    EXPECT_EQ(document.CheckName(L"p", 0), NameProblem::None) << "the probe's own name, in other letters";
    document.Remove({0});
    EXPECT_EQ(document.CheckName(L"P"), NameProblem::SettingsSectionExists);
    EXPECT_EQ(document.FreeName(L"P"), L"P (2)");
    document.Save();
    EXPECT_EQ(document.CheckName(L"P"), NameProblem::SettingsSectionExists);
    static_cast<void>(document.Undo());
    document.SetType({0}, CONV_CVD); // of a probe that is to come back
    EXPECT_EQ(ErrorOf([&] { document.Save(); }).failure, Failure::CannotWrite);
    EXPECT_EQ(File(), theirs);
    document.SetType({0}, CONV_VOLTS);
    document.Save();
    EXPECT_EQ(File(), theirs + "\n[P]\nVersion=1.0\nConversionType=11\n");
}

TEST_F(ProbeDocumentTest, AnotherTypeTakesThePlaceOfTheOldSettings) {
    Open();
    document.SetType({0}, CONV_PT100R0);
    EXPECT_EQ(document.Type(0), CONV_PT100R0);
    EXPECT_TRUE(document.IsChanged(0));
    document.SetType({0}, CONV_PT100R0);
    document.SetType({1}, CONV_VOLTS);
    document.Save();
    const auto at = host.find("NumCoefficients");
    const auto end = host.find("\n\n[Probe 2]");
    std::string expected = host.substr(0, at) + "NumCoefficients=1\nCoefficients0=0" + host.substr(end);
    expected = Replaced(expected, "ConversionType=2\n", "ConversionType=19\n");
    expected = Replaced(expected, "ConversionType=10\n", "ConversionType=11\n");
    EXPECT_EQ(File(), expected);
    ExpectFine({"check", "host.ini", "--ignore", "r0-not-positive"}); // nobody has entered it yet

    document.SetType({0}, CONV_RATIO);
    document.Rename(0, L"Probe R");
    document.Save();
    EXPECT_EQ(File().find("Settings"), std::string::npos) << "a type without settings leaves none behind";
    ExpectFine({"check", "host.ini"});
}

TEST_F(ProbeDocumentTest, TellsWhyAProbeCannotHaveAName) {
    Open(host + "\n[Lost - Settings - Low Range]\nx=1\n");
    EXPECT_EQ(document.CheckName(L"Probe 3"), NameProblem::None);
    EXPECT_EQ(document.CheckName(L""), NameProblem::Empty);
    EXPECT_EQ(document.CheckName(L"a\nb"), NameProblem::CannotBeWritten);
    EXPECT_EQ(document.CheckName(L"PROBE 1"), NameProblem::ProbeExists);
    EXPECT_EQ(document.CheckName(L"PROBE 1", 0), NameProblem::None) << "its own name in other letters";
    EXPECT_EQ(document.CheckName(L"instrument"), NameProblem::SectionExists);
    EXPECT_EQ(document.CheckName(L"Probe 2 - Settings"), NameProblem::IsSettingsOfProbe);
    EXPECT_EQ(document.CheckName(L"Probe 2 - settings - High Range"), NameProblem::IsSettingsOfProbe);
    EXPECT_EQ(document.CheckName(L"Lost"), NameProblem::SettingsSectionExists);
    EXPECT_EQ(document.FreeName(L"Probe 1"), L"Probe 1 (2)");
    EXPECT_EQ(document.FreeName(L"Lost"), L"Lost (2)");
}

TEST_F(ProbeDocumentTest, AFileInLatin1GetsNoNameThatLatin1CannotSpell) {
    Open("; caf\xE9\n[P\xFC]\nConversionType=11\n");
    ASSERT_EQ(document.Count(), 1U);
    EXPECT_EQ(document.CheckName(L"P\u00B5"), NameProblem::None);
    EXPECT_EQ(document.CheckName(L"P\u03A9"), NameProblem::CannotBeSpelled);
    EXPECT_EQ(document.CheckName(L"P\u00FC", 0), NameProblem::None) << "its own name";
    EXPECT_EQ(document.FreeName(L"\u03A9-Meter 1183"), L"-Meter 1183");
    EXPECT_EQ(document.FreeName(L"P\u00FC\u03A9"), L"P\u00FC (2)");
    EXPECT_EQ(document.FreeName(L"\u03A9"), L"Probe");
}

TEST_F(ProbeDocumentTest, EveryStepCanBeTakenBackAndDoneAgain) {
    Open();
    document.Add(L"Probe 3", CONV_VOLTS);
    document.Rename(0, L"First");
    EXPECT_TRUE(Edit(0, TypeR0));
    document.SetType({0}, CONV_OHMS);
    document.Duplicate({1});
    document.Remove({0, 2});
    EXPECT_EQ(Names(), (Texts{L"Probe 2", L"Probe 2 (2)"}));

    std::vector<StepKind> undone;
    std::vector<Texts> lists{Names()};
    while (const auto kind = document.UndoKind()) {
        undone.push_back(*kind);
        document.Undo();
        lists.push_back(Names());
    }
    EXPECT_EQ(undone, (std::vector{StepKind::Remove, StepKind::Duplicate, StepKind::ChangeType,
                                   StepKind::Edit, StepKind::Rename, StepKind::Add}));
    EXPECT_EQ(lists[1], (Texts{L"First", L"Probe 2", L"Probe 3", L"Probe 2 (2)"}));
    EXPECT_EQ(lists[5], (Texts{L"Probe 1", L"Probe 2", L"Probe 3"}));
    EXPECT_EQ(lists[6], (Texts{L"Probe 1", L"Probe 2"}));
    EXPECT_FALSE(document.Changed());
    EXPECT_EQ(SettingsAs<CQuorCVD>(document.Conversion(0))->Coefficients(CVD_R0), 100.0);

    while (document.RedoKind())
        document.Redo();
    EXPECT_EQ(Names(), lists[0]);
    document.Undo();
    document.Undo();
    document.Undo();
    EXPECT_EQ(SettingsAs<CQuorCVD>(document.Conversion(0))->Coefficients(CVD_R0), 100.0123);
    document.Rename(1, L"Second");
    EXPECT_EQ(document.RedoKind(), std::nullopt) << "a new step ends what could be done again";
}

TEST_F(ProbeDocumentTest, AProbeThatTakesTheNameOfARemovedOneIsSpeltAsInTheList) {
    const auto expectSpelt = [this](const char* what) {
        document.Save();
        EXPECT_NE(File().find("[PROBE 1]\n"), std::string::npos) << what << '\n' << File();
        EXPECT_EQ(File().find("[Probe 1"), std::string::npos) << what << '\n' << File();
        Open();
        const auto probe = document.Find(L"Probe 1");
        ASSERT_TRUE(probe) << what;
        EXPECT_EQ(document.Name(*probe), L"PROBE 1") << what;
    };
    Open(host);
    document.Remove({0});
    document.Rename(0, L"PROBE 1");
    expectSpelt("renamed");
    Open(host);
    document.Remove({0});
    document.Add(L"PROBE 1", CONV_CVD);
    expectSpelt("added");
    Open(host);
    document.Remove({0});
    document.SetType({0}, CONV_CVD);
    document.Rename(0, L"PROBE 1");
    expectSpelt("renamed and of another type");
    Open(host);
    document.Rename(0, L"Other");
    document.Rename(1, L"PROBE 1");
    document.Rename(0, L"probe 2");
    document.Save();
    EXPECT_NE(File().find("[PROBE 1]\n"), std::string::npos) << File();
    EXPECT_NE(File().find("[probe 2 - Settings]\n"), std::string::npos) << File();
}

TEST_F(ProbeDocumentTest, ASaveKeepsTheHistory) {
    Open();
    document.Rename(0, L"First");
    document.Save();
    EXPECT_FALSE(document.Changed());
    EXPECT_EQ(document.UndoKind(), StepKind::Rename);
    document.Undo();
    EXPECT_TRUE(document.Changed());
    document.Save();
    EXPECT_EQ(File(), host);
}

TEST_F(ProbeDocumentTest, AFailedSaveKeepsEverything) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    document.Rename(0, L"First");
    document.Add(L"Probe 3", CONV_VOLTS);
    document.Remove({1});
    ASSERT_EQ(::chmod(folder.Path("host.ini").c_str(), 0444), 0);
    EXPECT_EQ(NumberRaisedBy([&] { document.Save(); }), QuorIniFile::ERR_PERMISSION_DENIED);
    EXPECT_EQ(File(), host);
    EXPECT_EQ(Names(), (Texts{L"First", L"Probe 3"}));
    EXPECT_TRUE(document.Changed());
    EXPECT_EQ(document.UndoKind(), StepKind::Remove);

    ASSERT_EQ(::chmod(folder.Path("host.ini").c_str(), 0644), 0);
    document.Save();
    std::string expected = host.substr(0, host.find("[Probe 2]"));
    expected = Replaced(expected, "[Probe 1]", "[First]");
    expected = Replaced(expected, "[Probe 1 - Settings]", "[First - Settings]");
    expected = Replaced(expected, "=100.0\n", "=100.0123\n");
    EXPECT_EQ(File(), expected + "[Probe 3]\nVersion=1.0\nConversionType=11\n");
}

TEST_F(ProbeDocumentTest, WhatWasNotSavedIsNotWrittenWhenTheDocumentEnds) {
    {
        ProbeDocument other(screen);
        other.Open(folder.Name("host.ini"));
        other.Remove({0});
        ASSERT_EQ(::chmod(folder.Path("host.ini").c_str(), 0444), 0);
        EXPECT_THROW(other.Save(), QuorError);
        ASSERT_EQ(::chmod(folder.Path("host.ini").c_str(), 0644), 0);
    }
    EXPECT_EQ(File(), host);
}

TEST_F(ProbeDocumentTest, WhatAnotherProgramHasWrittenMeanwhileSurvives) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    const std::string theirs = "[Probe 9]\nVersion=1.0\nConversionType=11\n\n" +
                               Replaced(Replaced(host, "COM3", "COM4"), "as calibrated", "new certificate");
    folder.Write("host.ini", theirs);
    document.Save();
    EXPECT_EQ(File(), Replaced(theirs, "=100.0\n", "=100.0123\n"));
    EXPECT_EQ(Names(), (Texts{L"Probe 9", L"Probe 1", L"Probe 2"})) << "their probe is in the list now";
    EXPECT_FALSE(document.Changed());
}

TEST_F(ProbeDocumentTest, ANameThatAnotherProgramHasUsedMeanwhileIsNotOverwritten) {
    Open();
    document.Add(L"Probe 3", CONV_OHMS);
    const std::string theirs = host + "\n[Probe 3]\nVersion=1.0\nConversionType=11\n";
    folder.Write("host.ini", theirs);
    const DocumentError error = ErrorOf([&] { document.Save(); });
    EXPECT_EQ(error.failure, Failure::NameIsTaken);
    EXPECT_EQ(error.file, folder.Name("host.ini"));
    EXPECT_EQ(error.details, Texts{L"Probe 3"});
    EXPECT_EQ(File(), theirs);
    const std::string leftover = theirs + "[Probe 4 - Settings - Low Range]\nRange=1\n";
    folder.Write("host.ini", leftover);
    document.Rename(2, L"Probe 4");
    EXPECT_EQ(ErrorOf([&] { document.Save(); }).details, Texts{L"Probe 4"}) << "it would get their settings";
    EXPECT_EQ(File(), leftover);
    const std::string probe = theirs + "[Probe 5]\nVersion=1.0\nConversionType=10\n";
    folder.Write("host.ini", probe);
    document.Rename(2, L"Probe 5 - Settings");
    EXPECT_EQ(ErrorOf([&] { document.Save(); }).details, Texts{L"Probe 5 - Settings"})
        << "it would stand where theirs may get its settings";
    EXPECT_EQ(File(), probe);
    document.Rename(2, L"Probe 4");
    folder.Write("host.ini", theirs);
    document.Save();
    EXPECT_EQ(File(), theirs + "\n[Probe 4]\nVersion=1.0\nConversionType=10\n");
    EXPECT_EQ(document.Count(), 4U);
}

TEST_F(ProbeDocumentTest, AFileThatIsGoneIsNotMadeAnewButAllProbesCanBeSavedElsewhere) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    fs::remove(folder.Path("host.ini"));
    EXPECT_EQ(NumberRaisedBy([&] { document.Save(); }), QuorIniFile::ERR_FILE_NOT_FOUND);
    document.SaveCopyAs(folder.Name("rescued.ini"));
    EXPECT_EQ(folder.Read("rescued.ini"), Replaced(host, "Coefficients0=100.0", "Coefficients0=100.0123"))
        << "with all that stood around the probes";
    EXPECT_TRUE(document.Changed()) << "its own file is gone still";
}

TEST_F(ProbeDocumentTest, WhatCannotBeReadOfAFileThatIsGoneIsSavedElsewhereAsItStood) {
    const std::string text = "; ours\n[P]\nConversionType=99\n[Q]\nConversionType=2\n[Q - Settings]\n"
                             "Coefficients0=1OO.02\n[R]\nConversionType=10\n";
    Open(text);
    document.Rename(2, L"S");
    fs::remove(folder.Path("host.ini"));
    document.SaveAs(folder.Name("rescued.ini"));
    EXPECT_EQ(folder.Read("rescued.ini"), Replaced(text, "[R]", "[S]"));
    EXPECT_FALSE(document.Changed());
    document.Undo();
    document.Save();
    EXPECT_EQ(folder.Read("rescued.ini"), text);
    EXPECT_FALSE(fs::exists(folder.Path("host.ini")));
}

TEST_F(ProbeDocumentTest, AFileThatCanBeReadNoMoreIsSavedElsewhereAsItStood) {
    Open();
    document.Rename(1, L"Second");
    fs::remove(folder.Path("host.ini"));
    fs::create_directory(folder.Path("host.ini"));
    EXPECT_NE(NumberRaisedBy([&] { document.SaveAs(folder.Name("host.ini")); }), 0);
    EXPECT_TRUE(document.Changed());
    document.SaveAs(folder.Name("rescued.ini"));
    EXPECT_EQ(folder.Read("rescued.ini"), Replaced(host, "[Probe 2]", "[Second]"));
}

TEST_F(ProbeDocumentTest, AllProbesCanBeSavedInThePlaceOfTheFileThatIsGone) {
    Open();
    document.Add(L"Probe 3", CONV_VOLTS);
    fs::remove(folder.Path("host.ini"));
    document.SaveCopyAs(folder.Name("./host.ini"));
    EXPECT_FALSE(document.Changed());
    EXPECT_EQ(document.CheckName(L"Instrument"), NameProblem::SectionExists) << "the host's own section";
    const std::string rescued = File();
    EXPECT_EQ(rescued, host + "\n[Probe 3]\nVersion=1.0\nConversionType=11\n");
    EXPECT_EQ(Quorconv({"list", "host.ini"}).out, "Probe 1\tCONV_CVD\tCallendar-Van Dusen\n"
                                                  "Probe 2\tCONV_OHMS\tOhms\n"
                                                  "Probe 3\tCONV_VOLTS\tVolts\n");
    document.SetType({1}, CONV_VOLTS);
    document.Save();
    EXPECT_EQ(File(), Replaced(rescued, "ConversionType=10", "ConversionType=11"));
}

TEST_F(ProbeDocumentTest, TheFileBehindALinkIsTheSameFileAlsoWhenItIsGone) {
    folder.Write("target.ini", host);
    fs::create_symlink("target.ini", folder.Path("link.ini"));
    document.Open(folder.Name("link.ini"));
    document.Add(L"Probe 3", CONV_VOLTS);
    document.SaveCopyAs(folder.Name("target.ini"));
    EXPECT_FALSE(document.Changed());
    document.Add(L"Probe 4", CONV_VOLTS);
    fs::remove(folder.Path("target.ini"));
    document.SaveCopyAs(folder.Name("target.ini"));
    EXPECT_FALSE(document.Changed());
}

TEST_F(ProbeDocumentTest, AnotherHardLinkIsAnotherFileAsFarAsASaveGoes) {
    Open();
    fs::create_hard_link(folder.Path("host.ini"), folder.Path("other.ini"));
    document.Rename(1, L"Second");
    document.SaveCopyAs(folder.Name("other.ini"));
    EXPECT_EQ(folder.Read("other.ini"), Replaced(host, "[Probe 2]", "[Second]"));
    EXPECT_EQ(File(), host);
    EXPECT_TRUE(document.Changed());
}

TEST_F(ProbeDocumentTest, ACopyHasTheChangesAndTheFileHasNot) {
    Open();
    document.Rename(1, L"Second");
    folder.Write("copy.ini", "old\n");
    document.SaveCopyAs(folder.Name("copy.ini"));
    EXPECT_EQ(folder.Read("copy.ini"), Replaced(host, "[Probe 2]", "[Second]"));
    EXPECT_EQ(File(), host);
    EXPECT_TRUE(document.Changed());
    EXPECT_EQ(document.Path(), folder.Name("host.ini"));
    EXPECT_EQ(document.UndoKind(), StepKind::Rename);
}

TEST_F(ProbeDocumentTest, AProbeThatCannotBeWrittenIsToldWithTheFileThatWasToGetIt) {
    // A record may claim a coefficient that its conversion does not have; it is never written again.
    const std::string text = "[Hot]\nVersion=1.0\nConversionType=3\n\n[Hot - Settings]\nVersion=1.0\n"
                             "NumCoefficients=4\nCoefficients0=25.5\nCoefficients1=1\nCoefficients2=2\n";
    Open(text);
    EXPECT_TRUE(Edit(0, [](Person& person) {
        person.Type(L"A", L"1.5");
        person.Click(L"OK");
    }));
    const auto expectRefused = [&](const DocumentError& error, const char* file) {
        EXPECT_EQ(error.failure, Failure::CannotWrite);
        EXPECT_EQ(error.file, folder.Name(file));
        ASSERT_GE(error.details.size(), 2U);
        EXPECT_EQ(error.details[0], L"Hot");
        EXPECT_NE(error.details[1].find(L"Index out of range"), std::wstring::npos)
            << QuorIniFile::ToUtf8(error.details[1]);
        EXPECT_EQ(File(), text);
    };
    expectRefused(ErrorOf([&] { document.Save(); }), "host.ini");
    expectRefused(ErrorOf([&] { document.SaveCopyAs(folder.Name("copy.ini")); }), "copy.ini");
    EXPECT_FALSE(fs::exists(folder.Path("copy.ini")));
    // Nor is another file replaced by what stood in its own one, which is gone.
    folder.Write("copy.ini", "; another laboratory's\n");
    fs::remove(folder.Path("host.ini"));
    const DocumentError error = ErrorOf([&] { document.SaveCopyAs(folder.Name("copy.ini")); });
    EXPECT_EQ(error.failure, Failure::CannotWrite);
    EXPECT_EQ(error.file, folder.Name("copy.ini"));
    EXPECT_EQ(folder.Read("copy.ini"), "; another laboratory's\n");
}

TEST_F(ProbeDocumentTest, AStandAloneFileBecomesAProbeAndAProbeAStandAloneFile) {
    Open();
    screen->ChooseFile(folder.Name("out.cvd"));
    EXPECT_EQ(document.Export(0, 7), folder.Name("out.cvd"));
    EXPECT_EQ(screen->FileRequests().back().owner, 7);
    EXPECT_EQ(screen->FileRequests().back().fileName, L"Probe 1.cvd");
    ExpectFine({"check", "out.cvd"});
    EXPECT_FALSE(document.Changed());
    EXPECT_EQ(document.Export(0, 7), std::nullopt) << "nobody chose a file";
    screen->ChooseFile(folder.Name("no folder/out.cvd"));
    const DocumentError error = ErrorOf([&] { document.Export(0, 7); });
    EXPECT_EQ(error.failure, Failure::CannotWrite);
    EXPECT_EQ(error.file, folder.Name("no folder/out.cvd"));
    EXPECT_TRUE(screen->Messages().empty()) << "told once, by the error";

    ASSERT_TRUE(ProbeDocument::IsStandAlone(folder.Name("out.cvd")));
    const std::size_t probe = document.Import(folder.Name("out.cvd"));
    EXPECT_EQ(document.Name(probe), L"out");
    EXPECT_EQ(document.Type(probe), CONV_CVD);
    document.Save();
    const std::string ours = File();
    folder.Write("host.ini", host);
    ExpectFine({"copy", "out.cvd", "Callendar-Van Dusen", "host.ini", "out"});
    EXPECT_EQ(ours, File());
}

TEST_F(ProbeDocumentTest, EveryStandAloneSampleCanBeImported) {
    std::size_t count = 0;
    for (const auto& file : fs::directory_iterator(QUOR_SAMPLES)) {
        if (file.path().extension() == ".ini" || !file.is_regular_file() ||
            file.path().extension() == ".md" || !file.path().has_extension() ||
            file.path().filename() == ".gitattributes")
            continue;
        EXPECT_TRUE(ProbeDocument::IsStandAlone(file.path().wstring())) << file.path();
        document.Import(file.path().wstring());
        ++count;
    }
    EXPECT_EQ(count, 12U);
    EXPECT_EQ(document.Count(), 12U);
}

TEST_F(ProbeDocumentTest, AFileThatIsNoStandAloneOneIsRefusedWithTheReason) {
    EXPECT_FALSE(ProbeDocument::IsStandAlone(folder.Name("host.ini")));
    EXPECT_EQ(ErrorOf([&] { document.Import(folder.Name("host.ini")); }).failure, Failure::NoStandAloneFile);
    folder.Write("short.cvd", "[Callendar-Van Dusen]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=False\n"
                              "Coefficients0=1\nCoefficients1=1\nCoefficients3=1,5\n");
    const DocumentError error = ErrorOf([&] { document.Import(folder.Name("short.cvd")); });
    EXPECT_EQ(error.failure, Failure::UnreadableRecord);
    EXPECT_EQ(error.details,
              (Texts{L"[Callendar-Van Dusen] Coefficients2", L"[Callendar-Van Dusen] Coefficients3"}));
    EXPECT_EQ(document.Count(), 0U);
    folder.Write("host.cvd", host);
    EXPECT_FALSE(ProbeDocument::IsStandAlone(folder.Name("host.cvd"))) << "a host keeps its probes there";
}

TEST_F(ProbeDocumentTest, WhatCannotBeReadOfARecordIsToldWithItsKeys) {
    Open("[P]\nConversionType=2\n[P - Settings]\nNumCoefficients=4\nUsePolynomial=False\n"
         "Coefficients0=100\nCoefficients1=x\nCoefficients2=1\n[Q]\nConversionType=CVD\n");
    EXPECT_EQ(document.CheckRecord(0).keys,
              (Texts{L"[P - Settings] Coefficients1", L"[P - Settings] Coefficients3"}));
    EXPECT_EQ(document.CheckRecord(0).messages, Texts{});
    EXPECT_EQ(document.CheckRecord(0).keys.size(), 2U) << "and as often as one asks";
    EXPECT_EQ(document.Type(1), std::nullopt);
    EXPECT_EQ(NameOfConversion(1), L"");
    EXPECT_EQ(document.CheckRecord(1).keys, Texts{L"[Q] ConversionType"});
    EXPECT_FALSE(document.HasSettings(1));
    EXPECT_TRUE(screen->Messages().empty()) << "the library has nobody to tell but the document";
    EXPECT_FALSE(document.Changed());
}

TEST_F(ProbeDocumentTest, WhatCannotBeReadIsNeverReplacedByDefaultsInACopy) {
    const std::string text = Replaced(host, "=3.9083E-3", "=3,9083E-3");
    Open(text);
    const Texts keys{L"[Probe 1 - Settings] Coefficients1"};
    const auto expectRefused = [&](const auto& action) {
        const DocumentError error = ErrorOf(action);
        EXPECT_EQ(error.failure, Failure::UnreadableRecord);
        EXPECT_EQ(error.file, folder.Name("host.ini"));
        EXPECT_EQ(error.details, keys);
    };
    expectRefused([&] { document.Duplicate({0}); });
    screen->ChooseFile(folder.Name("out.cvd"));
    expectRefused([&] { document.Export(0, 0); });
    EXPECT_FALSE(fs::exists(folder.Path("out.cvd")));
    EXPECT_FALSE(Edit(0, [](Person& person) { person.Click(L"Cancel"); }));
    EXPECT_EQ(document.CheckRecord(0).keys, keys) << "a look at the dialog does not mend the record";

    document.SaveCopyAs(folder.Name("copy.ini"));
    EXPECT_EQ(folder.Read("copy.ini"), text) << "with the text at hand nothing is lost";
    fs::remove(folder.Path("host.ini"));
    document.SaveCopyAs(folder.Name("rescued.ini"));
    EXPECT_EQ(folder.Read("rescued.ini"), text) << "which is still there when the file is not";

    EXPECT_TRUE(Edit(0, [](Person& person) {
        person.Type(L"ALPHA", L"3.9083E-3");
        person.Click(L"OK");
    }));
    EXPECT_TRUE(document.CheckRecord(0).IsEmpty()) << "the values are those of the dialog now";
    document.Duplicate({0});
    document.SaveCopyAs(folder.Name("rescued.ini"));
    EXPECT_NE(folder.Read("rescued.ini").find("[Probe 1 (2) - Settings]"), std::string::npos);
}

TEST_F(ProbeDocumentTest, ARescueAfterAFailedSaveStillHasTheValuesThatWereRead) {
    const std::string text =
        host + "\n[Probe 3]\nVersion=1.0\nConversionType=19\n\n[Probe 3 - Settings]\nVersion=1.0\n"
               "NumCoefficients=1\nCoefficients0=99.875\n";
    Open(text);
    document.Rename(1, L"Second");
    ASSERT_EQ(::chmod(folder.Path("host.ini").c_str(), 0444), 0);
    EXPECT_THROW(document.Save(), QuorError);
    fs::remove(folder.Path("host.ini"));
    document.SaveCopyAs(folder.Name("rescued.ini"));
    EXPECT_EQ(folder.Read("rescued.ini"), Replaced(text, "[Probe 2]", "[Second]"));
}

TEST_F(ProbeDocumentTest, AProbeOfAnUnknownTypeIsKeptButNotCopied) {
    const std::string text =
        host + "\n[New]\nVersion=1.0\nConversionType=25\n\n[New - Settings]\nLambda=1.25\n";
    Open(text);
    const DocumentError error = ErrorOf([&] { document.Duplicate({2}); });
    EXPECT_EQ(error.failure, Failure::UnknownType);
    EXPECT_EQ(error.details, (Texts{L"New", L"25"}));
    document.Rename(2, L"Newer");
    document.Save();
    EXPECT_EQ(File(), Replaced(Replaced(text, "[New]", "[Newer]"), "[New - ", "[Newer - "));
    fs::remove(folder.Path("host.ini"));
    document.SaveCopyAs(folder.Name("rescued.ini"));
    EXPECT_EQ(folder.Read("rescued.ini"),
              Replaced(Replaced(text, "[New]", "[Newer]"), "[New - ", "[Newer - "));
    document.Remove({2});
    document.SaveCopyAs(folder.Name("rescued.ini"));
    EXPECT_EQ(folder.Read("rescued.ini"), host);
}

TEST_F(ProbeDocumentTest, AFormThatADialogHasReadFromAFileIsAChangeOfItsOwn) {
    Open();
    folder.Write("same.cvd", "[Callendar-Van Dusen]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=True\n"
                             "Coefficients0=100\nCoefficients1=0.0039083\nCoefficients2=1.5\n"
                             "Coefficients3=0\n");
    screen->ChooseFile(folder.Name("same.cvd"));
    EXPECT_TRUE(Edit(0, [](Person& person) {
        person.Click(L"Open");
        person.Click(L"OK");
    }));
    document.Save();
    EXPECT_EQ(File(), Replaced(host, "UsePolynomial=False", "UsePolynomial=True"));
}

TEST_F(ProbeDocumentTest, NewerValuesOfAnotherProgramForTheSameKeysAreNotOverwrittenUnasked) {
    Open();
    EXPECT_TRUE(Edit(0, [](Person& person) {
        person.Type(L"R0", L"100.0123");
        person.Type(L"DELTA", L"1.6");
        person.Click(L"OK");
    }));
    const std::string theirs = Replaced(Replaced(Replaced(host, "=100.0\n", "=99.5\n"), "3.9083E-3", "0.004"),
                                        "Coefficients2=1.5\n", "");
    folder.Write("host.ini", theirs);
    const auto save = [&] { document.Save(); };
    const DocumentError error = ErrorOf(save);
    EXPECT_EQ(error.failure, Failure::ChangedByOthers);
    EXPECT_EQ(error.details, Texts{});
    EXPECT_EQ(Lines(error.conflicts), (Texts{L"[Probe 1 - Settings] Coefficients0: 100, 99.5, 100.0123",
                                             L"[Probe 1 - Settings] Coefficients2: 1.5, none, 1.6"}));
    EXPECT_EQ(File(), theirs);
    EXPECT_EQ(Lines(ErrorOf(save).conflicts), Lines(error.conflicts)) << "a second time too";
    EXPECT_TRUE(document.IsChanged(0));
    EXPECT_EQ(ErrorOf([&] { document.SaveCopyAs(folder.Name("copy.ini")); }).failure,
              Failure::ChangedByOthers);
    EXPECT_FALSE(fs::exists(folder.Path("copy.ini")));
    SaveOverOthers();
    EXPECT_EQ(File(), Replaced(Replaced(theirs, "=99.5\n", "=100.0123\n"), "Coefficients3=0\n",
                               "Coefficients3=0\nCoefficients2=1.6\n"))
        << "what they have written for other keys stays";
    EXPECT_EQ(Alpha(0), 0.004);
    EXPECT_FALSE(document.Changed());
}

TEST_F(ProbeDocumentTest, ASaveKeepsWhatAnotherProgramHasWrittenForOtherKeysOfTheProbe) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    ExpectFine({"set", "host.ini", "Probe 1", "Coefficients1=0.004"});
    document.Save();
    const std::string both = Replaced(Replaced(host, "=100.0\n", "=100.0123\n"), "3.9083E-3", "0.004");
    EXPECT_EQ(File(), both);
    EXPECT_EQ(Alpha(0), 0.004) << "the document shows what the file holds";
    EXPECT_FALSE(document.Changed());
    EXPECT_TRUE(Edit(0, [](Person& person) {
        person.Type(L"DELTA", L"1.6");
        person.Click(L"OK");
    }));
    document.Save();
    EXPECT_EQ(File(), Replaced(both, "=1.5\n", "=1.6\n"));
}

TEST_F(ProbeDocumentTest, TwoDocumentsThatEditKeysOfOneProbeKeepBoth) {
    ProbeDocument other{screen};
    Open();
    other.Open(folder.Name("host.ini"));
    EXPECT_TRUE(Edit(0, TypeR0));
    screen->InDialog([](Person& person) {
        person.Type(L"DELTA", L"1.6");
        person.Click(L"OK");
    });
    EXPECT_TRUE(other.Edit(0));
    other.Save();
    document.Save();
    EXPECT_EQ(File(), Replaced(Replaced(host, "=100.0\n", "=100.0123\n"), "=1.5\n", "=1.6\n"));
}

TEST_F(ProbeDocumentTest, AValueThatAnotherProgramHasGivenTheSameKeyTooIsNoConflict) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    const std::string theirs = Replaced(host, "=100.0\n", "=100.01230\n");
    folder.Write("host.ini", theirs);
    document.Save();
    EXPECT_EQ(File(), theirs);
    EXPECT_FALSE(document.Changed());
}

TEST_F(ProbeDocumentTest, WhatComesWhileTheUserIsAskedIsToldAnew) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    folder.Write("host.ini", Replaced(host, "=100.0\n", "=99.5\n"));
    const DocumentError shown = ErrorOf([&] { document.Save(); });
    const std::string newer = Replaced(host, "=100.0\n", "=99.25\n");
    folder.Write("host.ini", newer);
    const DocumentError error = ErrorOf([&] { document.Save({shown.changed, shown.conflicts}); });
    EXPECT_EQ(error.failure, Failure::ChangedByOthers);
    EXPECT_EQ(Lines(error.conflicts), Texts{L"[Probe 1 - Settings] Coefficients0: 100, 99.25, 100.0123"});
    EXPECT_EQ(File(), newer);
    document.Save({error.changed, error.conflicts});
    EXPECT_EQ(File(), Replaced(host, "=100.0\n", "=100.0123\n"));
}

TEST_F(ProbeDocumentTest, AProbeThatAnotherProgramHasGivenAnotherTypeIsWrittenWholeOnRequest) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    folder.Write("host.ini",
                 Replaced(Replaced(host, "ConversionType=2", "ConversionType=19"), "=1.5\n", "=7\n"));
    EXPECT_EQ(Lines(ErrorOf([&] { document.Save(); }).conflicts),
              Texts{L"[Probe 1] ConversionType: 2, 19, 2"});
    SaveOverOthers();
    EXPECT_EQ(File(), Replaced(host, "=100.0\n", "=100.0123\n"));
}

TEST_F(ProbeDocumentTest, ARenamedProbeWithNewValuesIsMergedUnderItsNewName) {
    Open();
    document.Rename(0, L"Probe A");
    EXPECT_TRUE(Edit(0, TypeR0));
    folder.Write("host.ini", Replaced(host, "=1.5\n", "=1.75\n"));
    document.Save();
    EXPECT_EQ(File(),
              Replaced(Replaced(Replaced(Replaced(host, "=1.5\n", "=1.75\n"), "=100.0\n", "=100.0123\n"),
                                "[Probe 1]", "[Probe A]"),
                       "[Probe 1 -", "[Probe A -"));
}

TEST_F(ProbeDocumentTest, AProgramThatTakesNoLockMayWriteOtherKeysAtAnyCallOfASaveAndBothAreKept) {
    files.flushes = false;
    const std::string theirs = Replaced(host, "=1.5\n", "=1.75\n");
    const std::string ours = Replaced(Replaced(host, "=100.0\n", "=100.0123\n"), "[Probe 2]", "[Probe B]");
    bool reached = true;
    for (std::size_t at = 0; reached; ++at) {
        Open(host);
        EXPECT_TRUE(Edit(0, TypeR0));
        document.Rename(1, L"Probe B");
        std::string expected = ours;
        std::size_t calls = 0;
        bool isRenamed = false;
        files.onCall = [&](std::string_view call) {
            // Between the last look at the file and its replacement nobody can be seen.
            if (calls++ == at && call != "Exchange") {
                folder.Write("host.ini", theirs);
                expected = isRenamed ? theirs : Replaced(ours, "=1.5\n", "=1.75\n");
            }
            isRenamed = isRenamed || call == "Exchange";
            return 0;
        };
        document.Save();
        files.onCall = [](std::string_view) { return 0; };
        reached = calls > at;
        EXPECT_EQ(File(), expected) << "call " << at;
    }
}

TEST_F(ProbeDocumentTest, AProgramThatTakesNoLockMayWriteTheSameKeyAtAnyCallOfASaveAndItIsTold) {
    files.flushes = false;
    const std::string theirs = Replaced(host, "=100.0\n", "=99\n");
    for (std::size_t at = 0;; ++at) {
        Open(host);
        EXPECT_TRUE(Edit(0, TypeR0));
        document.Rename(1, L"Probe B");
        std::size_t calls = 0;
        files.onCall = [&](std::string_view call) {
            if (calls++ == at && call != "Exchange")
                folder.Write("host.ini", theirs);
            return 0;
        };
        bool isTold = false;
        try {
            document.Save();
        } catch (const DocumentError& error) {
            isTold = true;
            EXPECT_EQ(Lines(error.conflicts),
                      Texts{L"[Probe 1 - Settings] Coefficients0: 100, 99, 100.0123"});
            EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe B"}));
            EXPECT_TRUE(document.IsChanged(0) && document.IsChanged(1));
            document.Undo();
            document.Undo();
            EXPECT_FALSE(document.Changed());
        }
        files.onCall = [](std::string_view) { return 0; };
        if (!isTold) { // it has come after the replacement, or not at all
            EXPECT_GT(at, 10U);
            break;
        }
        EXPECT_EQ(File(), theirs) << "call " << at;
    }
}

TEST_F(ProbeDocumentTest, ASaveThatTookInValuesOfOthersEndsTheHistoryAlsoWhenTheFileCannotBeReadThen) {
    const std::string saved = Replaced(Replaced(host, "=100.0\n", "=100.0123\n"), "=1.5\n", "=1.75\n");
    const auto refuse = [](std::string_view call) { return call == "Open" ? EACCES : 0; };
    const auto replace = [this](std::string_view /*call*/) {
        folder.Write("host.ini", "Good morning");
        return 0;
    };
    for (const std::function<int(std::string_view)>& afterSave :
         {std::function<int(std::string_view)>(refuse), std::function<int(std::string_view)>(replace)}) {
        Open(host);
        EXPECT_TRUE(Edit(0, TypeR0));
        folder.Write("host.ini", Replaced(host, "=1.5\n", "=1.75\n"));
        bool isSaved = false;
        files.onCall = [&](std::string_view call) {
            isSaved = isSaved || (files.openFiles == 0 && File() == saved); // the lock is given back
            return isSaved ? afterSave(call) : 0;
        };
        EXPECT_NO_THROW(document.Save());
        files.onCall = [](std::string_view) { return 0; };
        EXPECT_TRUE(isSaved);
        EXPECT_EQ(document.UndoKind(), std::nullopt) << "a save would write their old values";
        EXPECT_EQ(document.RedoKind(), std::nullopt);
        EXPECT_FALSE(document.Changed());
        EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2"}));
    }
}

TEST_F(ProbeDocumentTest, AProgramThatTakesTheLockWaitsForTheEndOfASave) {
    Open();
    EXPECT_TRUE(Edit(0, TypeR0));
    std::optional<Process> other;
    files.onCall = [&](std::string_view call) {
        if (call == "Read" && !other) { // the lock is taken
            other.emplace(std::vector<std::string>{QUORCONV, "set", folder.Path("host.ini").string(),
                                                   "Probe 1", "Coefficients2=1.75"});
        }
        return 0;
    };
    document.Save();
    ASSERT_TRUE(other);
    EXPECT_EQ(other->ReadLine(), "");
    EXPECT_EQ(other->Wait(), 0);
    EXPECT_EQ(File(), Replaced(Replaced(host, "=100.0\n", "=100.0123\n"), "=1.5\n", "=1.75\n"));
}

TEST_F(ProbeDocumentTest, NewerValuesOfAProbeThatGoesAreNotRemovedUnasked) {
    Open();
    const auto save = [&] { document.Save(); };
    const std::string theirs = Replaced(host, "=1.5\n", "=1.75\n");
    document.Remove({0});
    folder.Write("host.ini", theirs);
    const DocumentError error = ErrorOf(save);
    EXPECT_EQ(error.failure, Failure::ChangedByOthers);
    EXPECT_EQ(error.details, Texts{L"Probe 1"});
    EXPECT_EQ(File(), theirs);

    const std::string newer = Replaced(host, "=1.5\n", "=1.9\n"); // while the user is asked
    folder.Write("host.ini", newer);
    EXPECT_EQ(ErrorOf([&] { document.Save({error.changed, error.conflicts}); }).details, Texts{L"Probe 1"});
    EXPECT_EQ(File(), newer);

    document.Undo();
    document.Rename(0, L"Probe A");
    document.Save();
    EXPECT_NE(File().find("Coefficients2=1.9"), std::string::npos) << "a new name leaves their values alone";
}

TEST_F(ProbeDocumentTest, ARenamedProbeThatAnotherProgramHasRemovedDoesNotVanishUnasked) {
    Open();
    document.Rename(0, L"Probe A");
    const std::string theirs = "[Probe 2]\nVersion=1.0\nConversionType=10\n";
    folder.Write("host.ini", theirs);
    EXPECT_EQ(ErrorOf([&] { document.Save(); }).details, Texts{L"Probe A"});
    EXPECT_EQ(File(), theirs);
    EXPECT_EQ(document.Name(0), L"Probe A");
    SaveOverOthers();
    EXPECT_EQ(Names(), (Texts{L"Probe 2", L"Probe A"}));
    EXPECT_NE(File().find("[Probe A - Settings]"), std::string::npos) << File();
    EXPECT_NE(File().find("Coefficients1=0.0039083\n"), std::string::npos) << File();
}

TEST_F(ProbeDocumentTest, AFreeNameIsFoundAlsoForAWishThatNoNumberMakesFree) {
    Open();
    for (const wchar_t* const wish : {L"", L"  ", L"a\nb", L"[x];y", L"Probe 2 - Settings",
                                      L"Probe 2 - Settings - X", L"probe 1 - SETTINGS - a - b"}) {
        const std::wstring name = document.FreeName(wish);
        EXPECT_EQ(document.CheckName(name), NameProblem::None) << testing::PrintToString(name);
    }
    EXPECT_EQ(document.FreeName(L"Probe 2 - Settings - X"), L"Probe 2 (2)");
    EXPECT_EQ(document.FreeName(L"a\nb"), L"a b");
}

TEST_F(ProbeDocumentTest, ASectionOfTwoProbesIsNotTakenFromOneOfThem) {
    const std::string text =
        Replaced(host, "[Probe 1 - Settings]\n", "[Probe 1 - Settings]\nConversionType=12\n");
    const auto expectRefused = [&](const auto& change, const Texts& details) {
        Open(text);
        ASSERT_EQ(Names(), (Texts{L"Probe 1", L"Probe 1 - Settings", L"Probe 2"}));
        change();
        const DocumentError error = ErrorOf([&] { document.Save(); });
        EXPECT_EQ(error.failure, Failure::SharedSection);
        EXPECT_EQ(error.file, folder.Name("host.ini"));
        EXPECT_EQ(error.details, details);
        EXPECT_EQ(File(), text);
    };
    const Texts ofTheFirst{L"Probe 1 - Settings", L"Probe 1", L"Probe 1 - Settings"};
    const Texts ofTheSecond{L"Probe 1 - Settings", L"Probe 1 - Settings", L"Probe 1"};
    expectRefused([&] { document.Remove({0}); }, ofTheFirst);
    expectRefused([&] { document.Remove({1}); }, ofTheSecond);
    expectRefused([&] { document.Rename(0, L"Other"); },
                  {L"Probe 1 - Settings", L"Other", L"Probe 1 - Settings"});
    expectRefused([&] { document.SetType({0}, CONV_OHMS); }, ofTheFirst);
    expectRefused(
        [&] {
            document.Remove({0});
            document.Rename(0, L"Other");
        },
        {L"Probe 1 - Settings", L"Probe 1", L"Other"});

    Open(text);
    EXPECT_TRUE(Edit(0, TypeR0)) << "values can be changed all the same";
    document.SetType({1}, CONV_RATIO);
    document.Save();
    EXPECT_EQ(File(),
              Replaced(Replaced(text, "=100.0\n", "=100.0123\n"), "ConversionType=12", "ConversionType=15"));
    document.Remove({0, 1});
    document.Save();
    EXPECT_EQ(Names(), Texts{L"Probe 2"});
    EXPECT_EQ(File().find("[Probe 1"), std::string::npos) << File();
}

TEST_F(ProbeDocumentTest, AChangeThatLeavesNoTraceInTheTimeOfTheFileIsSeenAllTheSame) {
    for (int tries = 0; tries < 20; ++tries) { // some of them fall into one tick of the file system's clock
        Open(host);
        document.SetType({1}, CONV_VOLTS);
        const std::string theirs = Replaced(host, "ConversionType=10", "ConversionType=12");
        folder.Write("host.ini", theirs);
        EXPECT_EQ(ErrorOf([&] { document.Save(); }).failure, Failure::ChangedByOthers);
        ASSERT_EQ(File(), theirs);
    }
}

TEST_F(ProbeDocumentTest, ANameInOtherLettersOfTheSameCaseIsARename) {
    Open();
    document.Rename(0, L"PROBE 1");
    EXPECT_TRUE(document.IsChanged(0));
    document.Save();
    EXPECT_EQ(File(), Replaced(Replaced(host, "[Probe 1]", "[PROBE 1]"), "[Probe 1 -", "[PROBE 1 -"));
    document.Rename(0, L"probe 1");
    document.Undo();
    EXPECT_FALSE(document.IsChanged(0));
    EXPECT_EQ(document.Name(0), L"PROBE 1");
}

TEST_F(ProbeDocumentTest, AProbeWithoutANameCanGetOne) {
    const std::string text = host + "\n[]\nConversionType=10\n";
    Open(text);
    ASSERT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2", L""}));
    document.Rename(2, L"Probe 3");
    EXPECT_TRUE(document.IsChanged(2));
    document.Save();
    EXPECT_EQ(File(), Replaced(text, "[]", "[Probe 3]"));
}

TEST_F(ProbeDocumentTest, AProbeWhoseSettingsAreMissingIsToldAndLeftAlone) {
    const std::string text = host.substr(0, host.find("[Probe 1 - Settings]"));
    Open(text);
    EXPECT_EQ(document.CheckRecord(0).keys.size(), 6U);
    EXPECT_EQ(document.CheckRecord(0).keys.front(), L"[Probe 1 - Settings] NumCoefficients");
    EXPECT_EQ(ErrorOf([&] { document.Duplicate({0}); }).failure, Failure::UnreadableRecord);
    document.Rename(0, L"Probe A");
    document.Save();
    EXPECT_EQ(File(), Replaced(text, "[Probe 1]", "[Probe A]"));
}

TEST_F(ProbeDocumentTest, AReadOnlyFileOpensReadOnly) {
    ASSERT_EQ(::chmod(folder.Path("host.ini").c_str(), 0444), 0);
    Open();
    EXPECT_TRUE(document.IsReadOnly());
    screen->InDialog([](Person& person) {
        EXPECT_THROW(person.Type(L"R0", L"1"), Scripted::CannotDo);
        person.Click(L"Cancel");
    });
    EXPECT_FALSE(document.Edit(0));
}

TEST_F(ProbeDocumentTest, ManyProbesAreOpenedAndSavedWithoutReadingThem) {
    std::string text;
    for (int i = 0; i < 2000; ++i)
        text +=
            "[P" + std::to_string(i) + "]\nConversionType=2\n[P" + std::to_string(i) + " - Settings]\nx=1\n";
    Open(text);
    EXPECT_EQ(document.Count(), 2000U);
    std::vector<std::size_t> odd;
    for (std::size_t i = 1; i < 2000; i += 2)
        odd.push_back(i);
    document.Remove(odd);
    EXPECT_EQ(document.Name(999), L"P1998");
    document.Undo();
    EXPECT_EQ(document.Name(1999), L"P1999");
    document.Redo();
    document.Save();
    std::string expected;
    for (int i = 0; i < 2000; i += 2)
        expected +=
            "[P" + std::to_string(i) + "]\nConversionType=2\n[P" + std::to_string(i) + " - Settings]\nx=1\n";
    EXPECT_EQ(File(), expected);
}

TEST_F(ProbeDocumentTest, MissingKeysAreToldWithoutTheMessageThatSaysLessInEveryLanguage) {
    ReplaceStringTable([](std::int32_t id) -> std::optional<std::wstring> {
        return id == 119 ? std::optional<std::wstring>(L"Die Datei ist unlesbar.\rIhre Version stimmt nicht.")
                         : std::nullopt;
    });
    Open(Replaced(host, "Coefficients1=3.9083E-3\n", ""));
    const Texts messages = document.CheckRecord(0).messages;
    ReplaceStringTable({});
    EXPECT_EQ(document.CheckRecord(0).keys, Texts{L"[Probe 1 - Settings] Coefficients1"});
    EXPECT_EQ(messages, Texts{});
}

TEST_F(ProbeDocumentTest, ACopyThatFailsIsAnErrorAboutTheFileThatTheUserHasNamed) {
    Open();
    files.onCall = [](std::string_view call) { return call == "Sync" ? EIO : 0; };
    document.SetType({1}, CONV_VOLTS);
    try {
        document.SaveCopyAs(folder.Name("copy.ini"));
        ADD_FAILURE() << "nothing was raised";
    } catch (const QuorError& error) {
        EXPECT_EQ(error.Number(), 57);
        EXPECT_EQ(error.Description(), L"Device I/O error: " + folder.Name("copy.ini"));
        ASSERT_TRUE(error.Cause());
        EXPECT_EQ(error.Cause()->fileName, folder.Name("copy.ini"));
    }
    EXPECT_FALSE(fs::exists(folder.Path("copy.ini")));
}
