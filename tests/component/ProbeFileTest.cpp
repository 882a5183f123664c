// The probes of a file from C: rows, reading into a conversion, writing one or many, and all numbers at once.

#include "tests/component/Component.h"
#include "tests/support/TempFolder.h"

#include <cmath>

namespace {

const std::string hostFile = "; the laboratory's file\n"
                             "[Instrument]\n"
                             "Channels=8\n"
                             "\n"
                             "[P]\n"
                             "Version=1.0\n"
                             "ConversionType=2\n"
                             "[P - Settings]\n"
                             "Version=1.0\n"
                             "NumCoefficients=4\n"
                             "UsePolynomial=True\n"
                             "Coefficients0=100.01 ; ohms\n"
                             "Coefficients1=0.0039083\n"
                             "Coefficients2=-5.775E-07\n"
                             "Coefficients3=-4.183E-12\n"
                             "[Q]\n"
                             "Version=1.0\n"
                             "ConversionType=14\n"
                             "[Q - Settings]\n"
                             "Version=1.0\n"
                             "RTPW=25.5\n";

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

class ProbeFileFromC : public ComponentTest {
protected:
    ProbeFileFromC() { m_folder.Write("host.ini", hostFile); }

    [[nodiscard]] std::string Path(const char* name = "host.ini") const {
        return m_folder.Path(name).string();
    }
    [[nodiscard]] std::string File(const char* name = "host.ini") const { return m_folder.Read(name); }
    void Put(const std::string& text) const { m_folder.Write("host.ini", text); }
    [[nodiscard]] Handle Open(const char* name = "host.ini") const {
        Handle file;
        EXPECT_EQ(quor_probe_file_create(Text(Path(name)), 0, &file), 0);
        return file;
    }
    /// The probe P of the file.
    [[nodiscard]] static Handle Read(quor_object file, const char* section = "P") {
        Handle conversion;
        std::int16_t whole = 0;
        EXPECT_EQ(quor_conversion_create(0, &conversion), 0);
        EXPECT_EQ(quor_probe_file_Read(file, Text(section), conversion, &whole), 0);
        EXPECT_EQ(whole, -1);
        return conversion;
    }
    static void SetR0(quor_object conversion, double ohms) {
        EXPECT_EQ(quor_cvd_put_Coefficients(SettingsOf(conversion), QUOR_CVD_R0, ohms), 0);
    }
    [[nodiscard]] static std::int32_t ErrorCode(quor_object file) {
        std::int32_t code = -1;
        EXPECT_EQ(quor_probe_file_get_ErrorCode(file, &code), 0);
        return code;
    }
    template <class Getter>
    [[nodiscard]] static std::string Row(Getter getter, quor_object object, std::int32_t index) {
        quor_text text{};
        EXPECT_EQ(getter(object, index, &text), 0);
        return Taken(text);
    }

private:
    TempFolder m_folder;
};

} // namespace

TEST_F(ProbeFileFromC, HasARowForEachProbe) {
    const Handle file = Open();
    std::int32_t count = 0;
    ASSERT_EQ(quor_probe_file_get_ProbeCount(file, &count), 0);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(Row(quor_probe_file_get_ProbeSection, file, 1), "Q");
    EXPECT_EQ(Row(quor_probe_file_get_ConversionName, file, 1), "W(T90)");
    std::int32_t type = 0, line = 0, place = 0;
    std::int16_t has = 0, standAlone = -1;
    ASSERT_EQ(quor_probe_file_get_ProbeType(file, 1, &type), 0);
    ASSERT_EQ(quor_probe_file_get_ProbeLine(file, 1, &line), 0);
    ASSERT_EQ(quor_probe_file_get_HasType(file, 1, &has), 0);
    ASSERT_EQ(quor_probe_file_get_IsStandAlone(file, 1, &standAlone), 0);
    EXPECT_EQ(type, QUOR_CONV_WT90);
    EXPECT_EQ(line, 16);
    EXPECT_EQ(has, -1);
    EXPECT_EQ(standAlone, 0);
    ASSERT_EQ(quor_probe_file_FindProbe(file, Text("q"), &place), 0);
    EXPECT_EQ(place, 1);
    ASSERT_EQ(quor_probe_file_FindProbe(file, Text("Instrument"), &place), 0);
    EXPECT_EQ(place, -1);

    EXPECT_EQ(quor_probe_file_get_ProbeSection(file, 2, nullptr), QUOR_ERROR_SUBSCRIPT);
    EXPECT_EQ(LastError(), (Error{9, "quor", "There is no item 2: there are 2, from 0"}));
    EXPECT_EQ(quor_probe_file_get_ProbeSection(file, -1, nullptr), QUOR_ERROR_SUBSCRIPT);
}

TEST_F(ProbeFileFromC, ThatIsNotThereIsAnErrorUnlessItMayBeNew) {
    Handle file;
    EXPECT_EQ(quor_probe_file_create(Text(Path("new.ini")), 0, &file), 53);
    ASSERT_EQ(quor_probe_file_create(Text(Path("new.ini")), -1, &file), 0);
    std::int32_t count = -1;
    ASSERT_EQ(quor_probe_file_get_ProbeCount(file, &count), 0);
    EXPECT_EQ(count, 0);
    const Handle conversion = Conversion(QUOR_CONV_OHMS);
    ASSERT_EQ(quor_probe_file_Write(file, Text("R"), conversion), 0);
    EXPECT_EQ(File("new.ini"), "[R]\nVersion=1.0\nConversionType=10\n");
}

TEST_F(ProbeFileFromC, ReadsAProbeIntoAConversionAndWritesTheLineThatDiffers) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    SetR0(conversion, 100.0123);
    ASSERT_EQ(quor_probe_file_Write(file, Text("P"), conversion), 0);
    EXPECT_EQ(File(), Replaced(hostFile, "100.01 ;", "100.0123 ;"));
}

TEST_F(ProbeFileFromC, TellsWhatIsMissingKeyByKey) {
    Put(Replaced(hostFile, "RTPW=25.5\n", ""));
    const Handle file = Open();
    const Handle conversion = Conversion(QUOR_CONV_NONE);
    std::int16_t whole = -1;
    ASSERT_EQ(quor_probe_file_Read(file, Text("Q"), conversion, &whole), 0);
    EXPECT_EQ(whole, 0);
    std::int32_t count = 0, kind = 0, line = 0;
    ASSERT_EQ(quor_probe_file_get_ProblemCount(file, &count), 0);
    ASSERT_EQ(count, 1);
    ASSERT_EQ(quor_probe_file_get_ProblemKind(file, 0, &kind), 0);
    ASSERT_EQ(quor_probe_file_get_ProblemLine(file, 0, &line), 0);
    EXPECT_EQ(kind, QUOR_PROBLEM_KEY_MISSING);
    EXPECT_EQ(line, 19);
    EXPECT_EQ(Row(quor_probe_file_get_ProblemSection, file, 0), "Q - Settings");
    EXPECT_EQ(Row(quor_probe_file_get_ProblemKey, file, 0), "RTPW");
    EXPECT_EQ(Row(quor_probe_file_get_ProblemText, file, 0), "the key is missing");
    ASSERT_EQ(quor_probe_file_get_MessageCount(file, &count), 0);
    EXPECT_EQ(count, 2); // of the settings, and of the conversion that holds them
    for (std::int32_t i = 0; i < count; ++i)
        EXPECT_EQ(Row(quor_probe_file_get_Messages, file, i),
                  "Cannot read the selected settings file because the file version is incorrect.");

    ASSERT_EQ(quor_probe_file_Check(file, &count), 0);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(Row(quor_probe_file_get_ProblemKey, file, 0), "RTPW");
}

TEST_F(ProbeFileFromC, SaysWithACodeWhyAProbeCannotBeHad) {
    const Handle file = Open();
    const Handle conversion = Conversion(QUOR_CONV_CVD);
    EXPECT_EQ(quor_probe_file_Read(file, Text("Instrument"), conversion, nullptr), 75);
    EXPECT_EQ(ErrorCode(file), QUOR_PROBE_NO_RECORD);
    EXPECT_EQ(quor_probe_file_Rename(file, Text("P"), Text("Q")), 75);
    EXPECT_EQ(ErrorCode(file), QUOR_PROBE_NAME_IS_TAKEN);
    EXPECT_EQ(quor_probe_file_Copy(file, Text("P"), Text("Q")), 75);
    EXPECT_EQ(ErrorCode(file), QUOR_PROBE_OF_ANOTHER_TYPE);
    quor_text other{};
    ASSERT_EQ(quor_probe_file_get_ErrorOther(file, &other), 0);
    EXPECT_EQ(Taken(other), "CONV_WT90");
    EXPECT_EQ(quor_probe_file_Remove(file, Text("P")), 0);
    EXPECT_EQ(ErrorCode(file), 0);
    EXPECT_EQ(File().find("[P"), std::string::npos);
}

TEST_F(ProbeFileFromC, WritesTogetherWhatStandsBetweenHoldAndRelease) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    SetR0(conversion, 101);
    ASSERT_EQ(quor_probe_file_Write(file, Text("P"), conversion), 0);
    SetR0(conversion, 102); // the value of the moment in which it was written counts
    ASSERT_EQ(quor_probe_file_Write(file, Text("R"), conversion), 0);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("Q")), 0);
    ASSERT_EQ(quor_probe_file_Rename(file, Text("R"), Text("Q")), 0);
    EXPECT_EQ(File(), hostFile);
    ASSERT_EQ(quor_probe_file_Release(file), 0);

    const std::string settings =
        "Version=1.0\nNumCoefficients=4\nUsePolynomial=True\nCoefficients0=102\n"
        "Coefficients1=0.0039083\nCoefficients2=-5.775e-07\nCoefficients3=-4.183e-12\n";
    EXPECT_EQ(File(), Replaced(hostFile.substr(0, hostFile.find("[Q]")), "100.01 ;", "101 ;") +
                          "\n[Q]\nVersion=1.0\nConversionType=2\n\n[Q - Settings]\n" + settings);
}

TEST_F(ProbeFileFromC, WritesNothingOfABracketInWhichOneThingFails) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    SetR0(conversion, 101);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Write(file, Text("P"), conversion), 0);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("No probe")), 0);
    EXPECT_EQ(quor_probe_file_Release(file), 75);
    EXPECT_EQ(ErrorCode(file), QUOR_PROBE_NO_SUCH_SECTION);
    EXPECT_EQ(File(), hostFile);

    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("P")), 0);
    ASSERT_EQ(quor_probe_file_Abandon(file), 0);
    ASSERT_EQ(quor_probe_file_Release(file), 0); // of nothing
    EXPECT_EQ(File(), hostFile);

    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("P")), 0);
    ASSERT_EQ(quor_probe_file_Abandon(file), 0);
    EXPECT_EQ(quor_probe_file_Release(file), 75);
    EXPECT_EQ(LastError(), (Error{75, "quor", Path() + ": nothing is written: a bracket was abandoned"}));
    EXPECT_EQ(File(), hostFile);
}

TEST_F(ProbeFileFromC, RefusesASectionThatCostsAFacadeItsCoefficientsWhenItReadsByItself) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    std::int16_t whole = -1;
    EXPECT_EQ(quor_probe_file_Read(file, Text("Z"), conversion, &whole), 75);
    EXPECT_EQ(ErrorCode(file), QUOR_PROBE_NO_SUCH_SECTION);
    quor_EQuorConversionType type = 0;
    ASSERT_EQ(quor_conversion_get_ConversionType(conversion, &type), 0);
    EXPECT_EQ(type, QUOR_CONV_CVD);

    testing::internal::CaptureStderr();
    ASSERT_EQ(quor_conversion_ReadFromFile(conversion, nullptr, Text(Path()), Text("Z"), &whole), 0);
    EXPECT_TRUE(testing::internal::GetCapturedStderr().starts_with(
        "Quor Scientific: Cannot read the selected settings file because the file version is incorrect."));
    EXPECT_EQ(whole, 0);
    ASSERT_EQ(quor_conversion_get_ConversionType(conversion, &type), 0);
    EXPECT_EQ(type, QUOR_CONV_ITS90);
}

TEST_F(ProbeFileFromC, AWriteThatFailsIsAnErrorOfProbeFileAndAMessageOfAFacade) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    ASSERT_EQ(quor_probe_file_SaveAs(file, Text(Path("no folder/a.ini"))), 76);
    testing::internal::CaptureStderr();
    ASSERT_EQ(quor_conversion_WriteToFile(conversion, nullptr, Text(Path("no folder/a.ini")), Text("P")), 0);
    EXPECT_TRUE(testing::internal::GetCapturedStderr().starts_with(
        "Quor Scientific: An error occurred while attempting to write settings."));
}

TEST_F(ProbeFileFromC, LeavesWhatOthersHaveChangedAndTellsConflicts) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    Put(Replaced(hostFile, "0.0039083", "0.0039")); // another program, another coefficient
    SetR0(conversion, 101);
    std::int16_t written = 0;
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, &written), 0);
    EXPECT_EQ(written, -1);
    EXPECT_EQ(File(), Replaced(Replaced(hostFile, "0.0039083", "0.0039"), "100.01 ;", "101 ;"));

    Put(Replaced(hostFile, "100.01 ;", "103 ;"));
    SetR0(conversion, 102);
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, &written), 0);
    EXPECT_EQ(written, 0);
    std::int32_t count = 0;
    ASSERT_EQ(quor_probe_file_get_ConflictCount(file, &count), 0);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(Row(quor_probe_file_get_ConflictSection, file, 0), "P - Settings");
    EXPECT_EQ(Row(quor_probe_file_get_ConflictKey, file, 0), "Coefficients0");
    EXPECT_EQ(Row(quor_probe_file_get_ConflictRead, file, 0), "101");
    EXPECT_EQ(Row(quor_probe_file_get_ConflictTheirs, file, 0), "103");
    EXPECT_EQ(Row(quor_probe_file_get_ConflictOurs, file, 0), "102");

    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, &written), 0);
    EXPECT_EQ(written, -1);
    EXPECT_EQ(quor_probe_file_Release(file), 75);
    EXPECT_EQ(LastError(),
              (Error{75, "QuorProbeFile",
                     Path() + ": [P - Settings] Coefficients0: another program has changed the value "
                              "meanwhile"}));
    ASSERT_EQ(quor_probe_file_get_ConflictCount(file, &count), 0);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(File(), Replaced(hostFile, "100.01 ;", "103 ;"));
}

TEST_F(ProbeFileFromC, WritesTheChangesOfTwoConversionsInTurnAndNeitherTakesBackTheOthers) {
    const Handle file = Open();
    const Handle one = Read(file);
    const Handle other = Read(file);
    const auto change = [&](quor_object conversion, std::int32_t index, double value) {
        EXPECT_EQ(quor_cvd_put_Coefficients(SettingsOf(conversion), index, value), 0);
        std::int16_t differs = 0;
        EXPECT_EQ(quor_probe_file_Differs(file, Text("P"), conversion, &differs), 0);
        EXPECT_EQ(differs, -1);
        std::int16_t written = 0;
        EXPECT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, &written), 0);
        EXPECT_EQ(written, -1);
        EXPECT_EQ(quor_probe_file_Differs(file, Text("P"), conversion, &differs), 0);
        EXPECT_EQ(differs, 0);
    };
    for (const char* const r0 : {"101", "102", "103"}) {
        change(one, QUOR_CVD_R0, std::stod(r0));
        change(other, QUOR_CVD_ALPHA, std::stod(r0) / 1000);
        EXPECT_EQ(File(), Replaced(Replaced(hostFile, "100.01 ;", std::string(r0) + " ;"), "0.0039083",
                                   "0." + std::string(r0)));
    }
}

TEST_F(ProbeFileFromC, WritesChangesSeveralTimesInOneBracketUponWhatWasWrittenBefore) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    const Handle added = Read(file);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    SetR0(added, 200);
    ASSERT_EQ(quor_probe_file_Write(file, Text("R"), added), 0);
    for (const double r0 : {101.0, 102.0}) {
        SetR0(conversion, r0);
        SetR0(added, r0 + 100);
        ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, nullptr), 0);
        ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("R"), added, nullptr), 0);
    }
    EXPECT_EQ(File(), hostFile);
    ASSERT_EQ(quor_probe_file_Release(file), 0);
    SetR0(conversion, 103);
    SetR0(added, 203);
    std::int16_t written = 0;
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, &written), 0);
    EXPECT_EQ(written, -1);
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("R"), added, &written), 0);
    EXPECT_EQ(written, -1);
    EXPECT_EQ(File(), Replaced(hostFile, "100.01 ;", "103 ;") +
                          "\n[R]\nVersion=1.0\nConversionType=2\n\n[R - Settings]\nVersion=1.0\n"
                          "NumCoefficients=4\nUsePolynomial=True\nCoefficients0=203\n"
                          "Coefficients1=0.0039083\nCoefficients2=-5.775e-07\nCoefficients3=-4.183e-12\n");
}

TEST_F(ProbeFileFromC, OneConversionServesSeveralProbesInABracket) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    SetR0(conversion, 101);
    ASSERT_EQ(quor_probe_file_Write(file, Text("S"), conversion), 0);
    const std::string both = File();
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    for (const char* const section : {"P", "S"}) {
        ASSERT_EQ(quor_probe_file_Read(file, Text(section), conversion, nullptr), 0);
        SetR0(conversion, 102);
        ASSERT_EQ(quor_probe_file_WriteChanges(file, Text(section), conversion, nullptr), 0);
    }
    ASSERT_EQ(quor_probe_file_Release(file), 0);
    EXPECT_EQ(File(), Replaced(Replaced(both, "100.01 ;", "102 ;"), "=101\n", "=102\n"));
}

TEST_F(ProbeFileFromC, WhatABracketWritesIsKnownByItsConversionUnderWhateverNameItHasThen) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    const Handle other = Read(file); // R0 = 100.01, of which C is made
    ASSERT_EQ(quor_probe_file_Write(file, Text("C"), other), 0);
    SetR0(conversion, 99);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Write(file, Text("A"), conversion), 0);
    ASSERT_EQ(quor_probe_file_Rename(file, Text("A"), Text("B")), 0);
    ASSERT_EQ(quor_probe_file_Rename(file, Text("C"), Text("A")), 0);
    ASSERT_EQ(quor_probe_file_Release(file), 0);
    SetR0(conversion, 100.01); // as in what is called A now
    std::int16_t answer = 0;
    ASSERT_EQ(quor_probe_file_Differs(file, Text("B"), conversion, &answer), 0);
    EXPECT_EQ(answer, -1);
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("B"), conversion, &answer), 0);
    EXPECT_EQ(answer, -1);
    EXPECT_EQ(File().find("=99\n"), std::string::npos);
}

TEST_F(ProbeFileFromC, ChangesOfABracketGoIntoWhatItHasWrittenAndRenamed) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    SetR0(conversion, 99);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Write(file, Text("A"), conversion), 0);
    ASSERT_EQ(quor_probe_file_Rename(file, Text("A"), Text("B")), 0);
    SetR0(conversion, 98);
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("B"), conversion, nullptr), 0);
    ASSERT_EQ(quor_probe_file_Release(file), 0);
    EXPECT_NE(
        File().find("[B - Settings]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=True\nCoefficients0=98\n"),
        std::string::npos);
}

TEST_F(ProbeFileFromC, WhatIsCopiedOverAProbeThatABracketHasWrittenIsNobodysChange) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    SetR0(conversion, 99);
    ASSERT_EQ(quor_cvd_put_Coefficients(SettingsOf(conversion), QUOR_CVD_ALPHA, 0.0039), 0);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Write(file, Text("A"), conversion), 0);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("A")), 0);
    ASSERT_EQ(quor_probe_file_Copy(file, Text("P"), Text("A")), 0);
    ASSERT_EQ(quor_probe_file_Release(file), 0);
    ASSERT_EQ(quor_cvd_put_Coefficients(SettingsOf(conversion), QUOR_CVD_DELTA, -5E-7), 0);
    std::int16_t written = 0;
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("A"), conversion, &written), 0);
    EXPECT_EQ(written, -1);
    const std::string text = File();
    EXPECT_EQ(text.substr(text.find("[A - Settings]")),
              "[A - Settings]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=True\nCoefficients0=100.01\n"
              "Coefficients1=0.0039083\nCoefficients2=-5e-07\nCoefficients3=-4.183e-12\n");
}

TEST_F(ProbeFileFromC, OfTwoConversionsThatABracketWritesToOneProbeTheFirstTakesNothingBack) {
    const Handle file = Open();
    const Handle first = Read(file);
    const Handle last = Read(file);
    SetR0(first, 101);
    SetR0(last, 102);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Write(file, Text("P"), first), 0);
    ASSERT_EQ(quor_probe_file_Write(file, Text("P"), last), 0);
    ASSERT_EQ(quor_probe_file_Release(file), 0);
    const std::string written = Replaced(hostFile, "100.01 ;", "102 ;");
    EXPECT_EQ(File(), written);
    std::int16_t answer = -1;
    ASSERT_EQ(quor_probe_file_Differs(file, Text("P"), first, &answer), 0);
    EXPECT_EQ(answer, 0);
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("P"), first, &answer), 0);
    EXPECT_EQ(answer, -1);
    EXPECT_EQ(File(), written);
}

TEST_F(ProbeFileFromC, ABracketThatFailsLeavesWhatCountsAsRead) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    SetR0(conversion, 101);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, nullptr), 0);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("No probe")), 0);
    EXPECT_EQ(quor_probe_file_Release(file), 75);
    EXPECT_EQ(File(), hostFile);
    std::int16_t written = 0;
    ASSERT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, &written), 0);
    EXPECT_EQ(written, -1);
    EXPECT_EQ(File(), Replaced(hostFile, "100.01 ;", "101 ;"));
}

TEST_F(ProbeFileFromC, WritesNothingThatNoFileGivesBackInABracketOrWithoutOne) {
    const Handle file = Open();
    const Handle conversion = Read(file);
    quor_cvd_put_NumCoefficients(SettingsOf(conversion), -1);
    const auto writes = [&] {
        EXPECT_EQ(quor_probe_file_Write(file, Text("P"), conversion), 75);
        EXPECT_EQ(ErrorCode(file), QUOR_PROBE_INCONSISTENT);
        EXPECT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, nullptr), 75);
        EXPECT_EQ(ErrorCode(file), QUOR_PROBE_INCONSISTENT);
    };
    writes();
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    writes();
    ASSERT_EQ(quor_probe_file_Release(file), 0);
    EXPECT_EQ(File(), hostFile);
}

TEST_F(ProbeFileFromC, AConversionThatRefusesToBeWrittenHasItsCodeInABracketToo) {
    Put("[T]\nConversionType=20\n[T - Settings]\nTCType=4\nNumCoefficients=16\n");
    Handle conversion;
    ASSERT_EQ(quor_conversion_create(0, &conversion), 0);
    ASSERT_EQ(quor_conversion_ReadFromFile(conversion, nullptr, Text(Path()), Text("T"), nullptr), 0);
    const Handle file = Open();
    for (const bool isInBracket : {false, true}) {
        if (isInBracket) {
            ASSERT_EQ(quor_probe_file_Hold(file), 0);
        }
        EXPECT_NE(quor_probe_file_Write(file, Text("New"), conversion), 0);
        EXPECT_EQ(ErrorCode(file), QUOR_PROBE_CANNOT_BE_WRITTEN);
    }
    EXPECT_NE(quor_probe_file_Differs(file, Text("T"), conversion, nullptr), 0);
    EXPECT_EQ(ErrorCode(file), QUOR_PROBE_CANNOT_BE_WRITTEN);
    EXPECT_EQ(LastError().description.find(Path() + ": [T]"), 0U) << LastError().description;
}

TEST_F(ProbeFileFromC, TheChangesOfAConversionThatItHasNeitherReadNorWrittenAreNotKnown) {
    const Handle file = Open();
    const Handle other = Open();
    const Handle conversion = Read(other);
    std::int16_t written = 0;
    EXPECT_EQ(quor_probe_file_WriteChanges(file, Text("P"), conversion, &written), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(LastError(), (Error{5, "quor", "This object has neither read nor written the conversion"}));
    std::int16_t differs = -1;
    ASSERT_EQ(quor_probe_file_Differs(file, Text("P"), conversion, &differs), 0);
    EXPECT_EQ(differs, 0) << "of such a one the probe in the file counts";
    EXPECT_EQ(File(), hostFile);
}

TEST_F(ProbeFileFromC, AFileThatReleaseNeedsAndThatIsGoneIsAnError) {
    const Handle file = Open();
    Handle source = Open();
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_CopyFrom(file, source, Text("P"), Text("R")), 0);
    source.Release();
    EXPECT_EQ(quor_probe_file_Release(file), QUOR_ERROR_NO_OBJECT);
    EXPECT_EQ(LastError(), (Error{91, "quor", "A file that Release has to read was released before"}));
    EXPECT_EQ(File(), hostFile);
}

TEST_F(ProbeFileFromC, SeesThatAnotherProgramHasWrittenAndLoadsIt) {
    const Handle file = Open();
    std::int16_t changed = -1;
    ASSERT_EQ(quor_probe_file_get_Changed(file, &changed), 0);
    EXPECT_EQ(changed, 0);
    Put(hostFile + "[R]\nVersion=1.0\nConversionType=10\n");
    ASSERT_EQ(quor_probe_file_get_Changed(file, &changed), 0);
    EXPECT_EQ(changed, -1);
    ASSERT_EQ(quor_probe_file_SaveAs(file, Text(Path("copy.ini"))), 0);
    EXPECT_EQ(File("copy.ini"), hostFile);
    ASSERT_EQ(quor_probe_file_Reload(file), 0);
    std::int32_t count = 0;
    ASSERT_EQ(quor_probe_file_get_ProbeCount(file, &count), 0);
    EXPECT_EQ(count, 3);
}

TEST_F(ProbeFileFromC, GivesItsStoreForTheOtherSections) {
    const Handle file = Open();
    Handle store;
    ASSERT_EQ(quor_probe_file_get_Store(file, &store), 0);
    ASSERT_EQ(quor_inifile_put_Section(store, Text("Instrument")), 0);
    std::int16_t channels = 0, found = 0;
    ASSERT_EQ(quor_inifile_ReadInteger(store, Text("Channels"), &channels, &found), 0);
    EXPECT_EQ(found, -1);
    EXPECT_EQ(channels, 8);
}

TEST_F(ProbeFileFromC, GivesTheNumbersOfAllProbesAtOnce) {
    Put(hostFile +
        "[No type]\nConversionType=x\n[Short]\nConversionType=14\n[R]\nVersion=1.0\nConversionType=10\n");
    Handle table;
    {
        const Handle file = Open();
        ASSERT_EQ(quor_probe_file_ReadAll(file, &table), 0);
    }
    quor_text sections{}, keys{};
    ASSERT_EQ(quor_probe_table_get_Sections(table, &sections), 0);
    ASSERT_EQ(quor_probe_table_get_KeyLists(table, &keys), 0);
    EXPECT_EQ(Taken(sections), "P\nQ\nNo type\nShort\nR\n");
    EXPECT_EQ(Taken(keys),
              "NumCoefficients\tUsePolynomial\tCoefficients0\tCoefficients1\tCoefficients2\tCoefficients3\n"
              "RTPW\n\n");
    const auto numbers = [&](auto getter) {
        quor_int32s given{};
        EXPECT_EQ(getter(table, &given), 0);
        return std::vector<std::int32_t>(given.values, given.values + given.size);
    };
    using Numbers = std::vector<std::int32_t>;
    EXPECT_EQ(numbers(quor_probe_table_get_Types), (Numbers{2, 14, -1, 14, 10}));
    const Numbers problems = numbers(quor_probe_table_get_ProblemCounts);
    ASSERT_EQ(problems.size(), 5U);
    EXPECT_EQ(problems[0], 0);
    EXPECT_EQ(problems[2], -1);
    EXPECT_GT(problems[3], 0);
    EXPECT_EQ(numbers(quor_probe_table_get_KeyListOf), (Numbers{0, 1, 2, 1, 2}));
    EXPECT_EQ(numbers(quor_probe_table_get_ValueEnds), (Numbers{6, 7, 7, 8, 8}));
    quor_doubles values{};
    ASSERT_EQ(quor_probe_table_get_Values(table, &values), 0);
    ASSERT_EQ(values.size, 8U);
    EXPECT_EQ(std::vector<double>(values.values, values.values + 7),
              (std::vector<double>{4, 1, 100.01, 0.0039083, -5.775E-07, -4.183E-12, 25.5}));
    EXPECT_TRUE(std::isnan(values.values[7]));
}

TEST_F(ProbeFileFromC, NumbersThatCannotBeReadAreNotNumbersAmongThoseOfAllProbes) {
    const auto values = [&](const std::string& text) {
        Put(text);
        Handle table;
        EXPECT_EQ(quor_probe_file_ReadAll(Open(), &table), 0);
        quor_doubles given{};
        EXPECT_EQ(quor_probe_table_get_Values(table, &given), 0);
        std::string told;
        for (std::size_t place = 0; place < given.size; ++place)
            told += std::isnan(given.values[place]) ? "-" : "1";
        return told;
    };
    EXPECT_EQ(values(hostFile), "1111111");
    EXPECT_EQ(values(Replaced(hostFile, "100.01 ; ohms", "100,01")), "11-1111");
    EXPECT_EQ(values(Replaced(hostFile, "UsePolynomial=True\n", "")), "1-11111");
    EXPECT_EQ(values(Replaced(hostFile, "[Q - Settings]", "[Elsewhere]")), "111111-");
    EXPECT_EQ(values(Replaced(hostFile, "NumCoefficients=4", "NumCoefficients=-4")).substr(0, 4), "----");
    EXPECT_EQ(values("[P]\nConversionType=0\n[P - Settings]\nRTPW=25.5\n"
                     "[P - Settings - Low Range]\nRange=9\nCoefficients0=1\nCoefficients1=2\n")
                  .find('1'),
              std::string::npos);
    EXPECT_EQ(values("[P]\nConversionType=0\n[P - Settings]\nRTPW=25.5\n"
                     "[P - Settings - Low Range]\nRange=4\n"
                     "Coefficients0=1\nCoefficients1=x\n"
                     "[P - Settings - High Range]\nRange=11\nCoefficients0=1\n"),
              "11111-");
}

TEST_F(ProbeFileFromC, SaysWhetherAConversionDiffersFromItsProbeAsItIsRead) {
    Put(Replaced(hostFile, "RTPW=25.5\n", "")); // which is read as 0
    const Handle file = Open();
    const auto differs = [&](const char* section, quor_object conversion) {
        std::int16_t result = 1;
        EXPECT_EQ(quor_probe_file_Differs(file, Text(section), conversion, &result), 0);
        return result != 0;
    };
    const Handle cvd = Read(file);
    EXPECT_FALSE(differs("P", cvd));
    ASSERT_EQ(quor_cvd_put_UsePolynomial(SettingsOf(cvd), 0), 0); // which marks nothing as changed
    EXPECT_TRUE(differs("P", cvd));
    EXPECT_FALSE(differs("Q", Conversion(QUOR_CONV_WT90)));
    EXPECT_TRUE(differs("Q", Conversion(QUOR_CONV_OHMS)));
}

TEST_F(ProbeFileFromC, OverwritesNothingThatAnotherProgramHasSavedWhereThatIsRequired) {
    const Handle file = Open();
    const Handle read = Read(file);
    const Handle anew = Conversion(QUOR_CONV_CVD);
    const auto write = [&](const char* section, quor_object conversion) {
        EXPECT_EQ(quor_probe_file_Hold(file), 0);
        EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text(section), conversion), 0);
        EXPECT_EQ(quor_probe_file_Write(file, Text(section), anew), 0);
        return quor_probe_file_Release(file);
    };
    const auto isRefused = [&](const char* section, quor_object conversion) {
        const std::string before = File();
        EXPECT_EQ(write(section, conversion), 75);
        EXPECT_EQ(LastError().description,
                  Path() + ": [" + section +
                      "]: another program has changed, added or removed the probe meanwhile");
        std::int32_t count = 0;
        EXPECT_EQ(quor_probe_file_get_ConflictCount(file, &count), 0);
        EXPECT_EQ(count, 1);
        EXPECT_EQ(Row(quor_probe_file_get_ConflictSection, file, 0), section);
        EXPECT_EQ(Row(quor_probe_file_get_ConflictKey, file, 0), "");
        EXPECT_EQ(File(), before);
    };
    Put(Replaced(hostFile, "100.01 ; ohms", "101"));
    for (const quor_object conversion :
         {quor_object{anew}, quor_object{read}, quor_object{anew}}) // a failure has read nothing
        isRefused("P", conversion);
    EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("P"), anew), 75); // it looks at once
    const auto load = [&] {
        EXPECT_EQ(quor_probe_file_Reload(file), 0);
        EXPECT_EQ(Row(quor_probe_file_get_ProbeSection, file, 1), "Q");
    };
    load();
    Put(hostFile + "[R]\nVersion=1.0\nConversionType=10\n");
    isRefused("R", anew);
    isRefused("R", anew);
    load();
    Put(hostFile.substr(0, hostFile.find("[Q]")));
    isRefused("Q", anew);

    Put(Replaced(hostFile, "100.01 ; ohms", "1.0001E2 ; of a calibration")); // the same number
    EXPECT_EQ(write("P", read), 0);
    EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("P"), anew), 0); // as it was written
    EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("P"), read), 75);
    EXPECT_EQ(write("R", read), 0); // the record is that of P
    EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("R"), anew), 0);
}

TEST_F(ProbeFileFromC, AfterABracketThatFailedAllProbesCountAsTheHostKnowsThem) {
    const Handle file = Open();
    const Handle anew = Conversion(QUOR_CONV_CVD);
    const auto remove = [&](const char* section) {
        EXPECT_EQ(quor_probe_file_Hold(file), 0);
        EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text(section), anew), 0);
        EXPECT_EQ(quor_probe_file_Remove(file, Text(section)), 0);
        return quor_probe_file_Release(file);
    };
    const std::string theirs = Replaced(Replaced(hostFile, "100.01 ;", "101 ;"), "25.5", "25.4");
    Put(theirs);
    EXPECT_EQ(remove("P"), 75);
    EXPECT_EQ(remove("Q"), 75) << "which the first bracket did not name";
    EXPECT_EQ(LastError().description,
              Path() + ": [Q]: another program has changed, added or removed the probe meanwhile");
    EXPECT_EQ(File(), theirs);
    const Handle read = Read(file, "Q"); // of the current file
    EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("Q"), read), 0);
    EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("P"), anew), 75)
        << "a look at Q shows nothing of P";
    ASSERT_EQ(quor_probe_file_Reload(file), 0);
    EXPECT_EQ(remove("P"), 0);
    EXPECT_EQ(File(), theirs.substr(0, theirs.find("[P]")) + theirs.substr(theirs.find("[Q]")));
}

TEST_F(ProbeFileFromC, WhatTheStoreLoadsWhenItIsWrittenIsNotKnownToTheHost) {
    const Handle file = Open();
    const Handle anew = Conversion(QUOR_CONV_CVD);
    Handle store;
    ASSERT_EQ(quor_probe_file_get_Store(file, &store), 0);
    ASSERT_EQ(quor_inifile_put_Section(store, Text("Instrument")), 0);
    Put(Replaced(hostFile, "25.5", "25.4"));
    ASSERT_EQ(quor_inifile_WriteInteger(store, Text("Channels"), 9, Text("")), 0);
    EXPECT_EQ(File(), Replaced(Replaced(hostFile, "25.5", "25.4"), "=8", "=9"));
    EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("P"), anew), 0);
    EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("Q"), anew), 75);
}

TEST_F(ProbeFileFromC, SeesAChangeOfARecordThatCannotBeRead) {
    for (const auto& [line, change] : {std::pair{"Coefficients1=0.0039083", "Coefficients1=n/a"},
                                       std::pair{"NumCoefficients=4", "NumCoefficients=-4"},
                                       std::pair{"ConversionType=2", "ConversionType=cvd"}}) {
        const std::string broken = Replaced(hostFile, line, change);
        for (const auto& [from, to] : {std::pair{std::string(change), std::string(change) + "1"},
                                       std::pair{std::string("=-5.775E-07"), std::string("=-5.8E-07")}}) {
            Put(broken);
            const Handle file = Open();
            const Handle anew = Conversion(QUOR_CONV_CVD);
            Put(Replaced(broken, from, to));
            EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("P"), anew), 75) << change << to;
            Put(broken);
            EXPECT_EQ(quor_probe_file_RequireUnchanged(file, Text("P"), anew), 0) << change << to;
        }
    }
}

TEST_F(ProbeFileFromC, RemovesManyInABracketAndEachOnce) {
    const Handle file = Open();
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    for (const char* const section : {"P", "Q", "p"})
        ASSERT_EQ(quor_probe_file_Remove(file, Text(section)), 0);
    EXPECT_EQ(quor_probe_file_Release(file), 75);
    EXPECT_EQ(ErrorCode(file), QUOR_PROBE_NO_SUCH_SECTION);
    EXPECT_EQ(File(), hostFile);
    ASSERT_EQ(quor_probe_file_Hold(file), 0);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("P")), 0);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("Q")), 0);
    ASSERT_EQ(quor_probe_file_Release(file), 0);
    EXPECT_EQ(File(), hostFile.substr(0, hostFile.find("\n[P]")));
}

TEST_F(ProbeFileFromC, FindsProbesInTheFileAsItIsAfterAWrite) {
    const Handle file = Open();
    const auto place = [&](const char* section) {
        std::int32_t result = 0;
        EXPECT_EQ(quor_probe_file_FindProbe(file, Text(section), &result), 0);
        return result;
    };
    EXPECT_EQ(place("Q"), 1);
    ASSERT_EQ(quor_probe_file_Remove(file, Text("P")), 0);
    EXPECT_EQ(place("Q"), 0);
    EXPECT_EQ(place("P"), -1);
    Put(hostFile);
    ASSERT_EQ(quor_probe_file_Reload(file), 0);
    EXPECT_EQ(place("Q"), 1);
}
