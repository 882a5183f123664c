// Two files beside each other: diff and merge.

#include "tests/apps/quorconv/Quorconv.h"

#include <algorithm>
#include <filesystem>

namespace {

class QuorconvCompareTest : public QuorconvTest {
protected:
    const std::string base = "; Base\n"
                             "[A]\nVersion=1.0\nConversionType=2\n"
                             "\n[A - Settings]\nVersion=1.0\nNumCoefficients=2\nUsePolynomial=False\n"
                             "Coefficients0=100\nCoefficients1=0.00385\n"
                             "\n[B]\nVersion=1.0\nConversionType=14\n"
                             "\n[B - Settings]\nVersion=1.0\nRTPW=25.5\n";

    void SetUp() override {
        for (const char* const name : {"base.ini", "ours.ini", "theirs.ini"})
            folder.Write(name, base);
    }

    void ExpectConflicts(const std::string& conflicts) const {
        const std::string ours = folder.Read("ours.ini");
        ExpectRefused(
            {"merge", "base.ini", "ours.ini", "theirs.ini"},
            "quorconv: ours.ini: nothing was written, because both files have changed the same value\n" +
                conflicts);
        EXPECT_EQ(folder.Read("ours.ini"), ours);
    }
};

} // namespace

TEST_F(QuorconvCompareTest, FindsNoDifferenceInOtherSpellingsAndOrders) {
    folder.Write("theirs.ini", "[B]\nConversionType=14\n[B - Settings]\nRTPW=25.50 ; ohms\n"
                               "[a]\nConversionType=2\n[a - Settings]\nNumCoefficients=2\nUsePolynomial=0\n"
                               "Coefficients0=1E2\nCoefficients1=3.85E-3\n");
    ExpectFine({"diff", "base.ini", "theirs.ini"});
    ExpectFine({"diff", "--json", "base.ini", "theirs.ini"}, "[]\n");
}

TEST_F(QuorconvCompareTest, TellsWhatDiffersByProbeAndValueAndEndsAsDiffDoes) {
    ExpectFine({"set", "theirs.ini", "A", "Coefficients0=100.5", "NumCoefficients=3"});
    ExpectFine({"rename", "theirs.ini", "B", "C"});
    const Outcome text = Quorconv({"diff", "base.ini", "theirs.ini"});
    EXPECT_EQ(text.code, 1);
    EXPECT_EQ(text.out, "  [A] NumCoefficients: 2 -> 3\n"
                        "  [A] Coefficients0: 100 -> 100.5\n"
                        "  [A] Coefficients2: (none) -> 0\n"
                        "- [B] CONV_WT90\n"
                        "+ [C] CONV_WT90\n");
    EXPECT_EQ(text.err, "");
    const Outcome json = Quorconv({"diff", "base.ini", "theirs.ini", "--json"});
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(
        json.out,
        "[\n"
        "  {\"section\": \"A\", \"change\": \"changed\", \"key\": \"NumCoefficients\", \"before\": \"2\", "
        "\"after\": \"3\"},\n"
        "  {\"section\": \"A\", \"change\": \"changed\", \"key\": \"Coefficients0\", \"before\": \"100\", "
        "\"after\": \"100.5\"},\n"
        "  {\"section\": \"A\", \"change\": \"changed\", \"key\": \"Coefficients2\", \"before\": null, "
        "\"after\": \"0\"},\n"
        "  {\"section\": \"B\", \"change\": \"removed\", \"type\": \"CONV_WT90\"},\n"
        "  {\"section\": \"C\", \"change\": \"added\", \"type\": \"CONV_WT90\"}\n]\n");
    ExpectFine({"retype", "theirs.ini", "A", "pt1", "Coefficients0=100"});
    ExpectShell("quorconv diff base.ini - <theirs.ini",
                "  [A] ConversionType: CONV_CVD -> CONV_PT100R0\n- [B] CONV_WT90\n+ [C] CONV_WT90\n", "", 1);
}

TEST_F(QuorconvCompareTest, EndsWithTwoWhenItCannotCompare) {
    ExpectRefused({"diff", "base.ini", "none.ini"}, "quorconv: File not found: none.ini\n", 2);
    folder.Write("theirs.ini", Replaced(base, "25.5", "x"));
    ExpectRefused({"diff", "base.ini", "theirs.ini"},
                  "quorconv: theirs.ini: [B]: the record cannot be read\n"
                  "  line 19: [B - Settings] RTPW: \"x\" is not a number\n",
                  2);
}

TEST_F(QuorconvCompareTest, TellsANumberFromItsNeighbourAndZeroFromMinusZero) {
    folder.Write("ours.ini", Replaced(base, "25.5", "0.1"));
    folder.Write("theirs.ini", Replaced(base, "25.5", "0.10000000000000002"));
    ExpectShell("quorconv diff ours.ini theirs.ini", "  [B] RTPW: 0.1 -> 0.10000000000000002\n", "", 1);
    folder.Write("ours.ini", Replaced(base, "0.00385", "0"));
    folder.Write("theirs.ini", Replaced(base, "0.00385", "-0"));
    ExpectShell("quorconv diff ours.ini theirs.ini", "  [A] Coefficients1: 0 -> -0\n", "", 1);
}

TEST_F(QuorconvCompareTest, MergesWhatOnlyOneOfTheFilesHasChanged) {
    ExpectFine({"set", "ours.ini", "A", "Coefficients0=100.5"});
    ExpectFine({"new", "ours.ini", "Ours", "10"});
    ExpectFine({"set", "theirs.ini", "A", "Coefficients1=0.0039"});
    ExpectFine({"set", "theirs.ini", "B", "RTPW=25.4"});
    ExpectFine({"new", "theirs.ini", "Theirs", "w90", "RTPW=7"});
    const std::string ours = folder.Read("ours.ini");
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 3 probes merged\n");
    EXPECT_EQ(folder.Read("ours.ini"),
              Replaced(Replaced(ours, "0.00385", "0.0039"), "25.5", "25.4") +
                  "\n[Theirs]\nVersion=1.0\nConversionType=14\n\n[Theirs - Settings]\nVersion=1.0\nRTPW=7\n");
    const std::string merged = folder.Read("ours.ini");
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 0 probes merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), merged);
}

TEST_F(QuorconvCompareTest, MergesWhatTheOtherFileHasRemovedAndRetyped) {
    ExpectFine({"remove", "theirs.ini", "A"});
    ExpectFine({"retype", "theirs.ini", "B", "pt1", "Coefficients0=100"});
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "",
                "quorconv: 1 probe merged\nquorconv: 1 probe removed\n");
    EXPECT_EQ(Quorconv({"diff", "ours.ini", "theirs.ini"}).code, 0);
}

TEST_F(QuorconvCompareTest, NamesEachConflictAndWritesNothing) {
    ExpectFine({"set", "ours.ini", "A", "Coefficients0=101", "Coefficients1=1"});
    ExpectFine({"set", "theirs.ini", "A", "Coefficients0=102", "Coefficients1=1"});
    ExpectFine({"set", "theirs.ini", "B", "RTPW=1"});
    ExpectConflicts("  [A] Coefficients0: 100 is 101 here and 102 in theirs.ini\n");
    ExpectFine({"remove", "ours.ini", "B"});
    ExpectConflicts("  [A] Coefficients0: 100 is 101 here and 102 in theirs.ini\n"
                    "  [B]: removed here, changed in theirs.ini\n");
    ExpectFine({"remove", "theirs.ini", "A"});
    ExpectConflicts("  [B]: removed here, changed in theirs.ini\n"
                    "  [A]: changed here, removed in theirs.ini\n");
}

TEST_F(QuorconvCompareTest, NamesAConflictOfTypesOfSizesAndOfNewProbes) {
    ExpectFine({"retype", "theirs.ini", "B", "pt1", "Coefficients0=100"});
    ExpectFine({"set", "ours.ini", "B", "RTPW=1"});
    ExpectConflicts("  [B] ConversionType: changed in one file, and the record in the other\n");
    folder.Write("theirs.ini", base);
    ExpectFine({"set", "theirs.ini", "A", "NumCoefficients=1", "--drop"});
    ExpectFine({"set", "ours.ini", "A", "Coefficients0=101"});
    ExpectConflicts(
        "  [A] NumCoefficients: changed in theirs.ini, and other values of the probe in the other file\n");
    folder.Write("theirs.ini", base);
    ExpectFine({"new", "ours.ini", "N", "10"});
    ExpectFine({"new", "theirs.ini", "N", "11"});
    ExpectConflicts("  [N]: added in both files, with different values\n");
}

TEST_F(QuorconvCompareTest, AFlagOfOneFileAndValuesOfTheOtherAreAConflict) {
    ExpectFine({"set", "theirs.ini", "A", "UsePolynomial=True", "--drop"});
    ExpectFine({"set", "ours.ini", "A", "Coefficients1=0.0039"});
    ExpectConflicts(
        "  [A] UsePolynomial: changed in theirs.ini, and other values of the probe in the other file\n");
    folder.Write("ours.ini", base);
    folder.Write("theirs.ini", base);
    ExpectFine({"set", "ours.ini", "A", "NumCoefficients=3"});
    ExpectFine({"set", "theirs.ini", "A", "Coefficients0=101"});
    ExpectConflicts("  [A] NumCoefficients: changed here, and other values of the probe in the other file\n");
}

TEST_F(QuorconvCompareTest, AFlagOfOneFileAndAValueOfTheOtherThatItSaysNothingOfAreMerged) {
    ExpectFine({"set", "theirs.ini", "A", "UsePolynomial=True", "--drop"});
    ExpectFine({"set", "ours.ini", "A", "Coefficients0=101"}); // R0 with the flag and without it
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_NE(folder.Read("ours.ini").find("UsePolynomial=True\nCoefficients0=101"), std::string::npos)
        << folder.Read("ours.ini");
    ExpectFine({"set", "base.ini", "A", "Coefficients1=0.0039"});
    folder.Write("theirs.ini", folder.Read("base.ini"));
    folder.Write("ours.ini", folder.Read("base.ini"));
    for (const char* const file : {"ours.ini", "theirs.ini"}) // which both have changed alike
        ExpectFine({"set", file, "A", "UsePolynomial=True", "--drop"});
    ExpectFine({"set", "theirs.ini", "A", "Coefficients1=0.0040"});
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
}

TEST_F(QuorconvCompareTest, NaNAndInfinityAreMergedOnlyWhereTheyAreAllowed) {
    folder.Write("theirs.ini", Replaced(Replaced(base, "=100\n", "=NaN\n"), "25.5", "-Infinity"));
    const std::string end = " of theirs.ini, which gives no temperature; --allow-nan stores it\n";
    ExpectConflicts("  [A] Coefficients0: 100 would become NaN" + end +
                    "  [B] RTPW: 25.5 would become -Infinity" + end);
    folder.Write("theirs.ini", base + "\n[C]\nVersion=1.0\nConversionType=14\n"
                                      "\n[C - Settings]\nVersion=1.0\nRTPW=NaN\n");
    ExpectConflicts("  [C] RTPW: (none) would become NaN" + end);
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini --allow-nan", "", "quorconv: 1 probe merged\n");
    ExpectShell("quorconv get ours.ini C RTPW", "NaN\n", "");
    folder.Write("base.ini", folder.Read("ours.ini")); // a NaN that was there stays, and goes
    ExpectFine({"set", "theirs.ini", "B", "RTPW=25.6"});
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    ExpectFine({"set", "theirs.ini", "C", "RTPW=25.7"});
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    ExpectShell("quorconv get ours.ini C RTPW", "25.7\n", "");
}

TEST_F(QuorconvCompareTest, AnotherFileThatIsEmptyOrDamagedRemovesNothing) {
    folder.Write("theirs.ini", "");
    Outcome refused = Quorconv({"merge", "base.ini", "ours.ini", "theirs.ini"});
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.err, "quorconv: theirs.ini: there is no probe in this file; nothing was written\n");
    std::string damaged = base;
    std::replace(damaged.begin(), damaged.end(), '\n', '\r');
    folder.Write("theirs.ini", damaged);
    refused = Quorconv({"merge", "base.ini", "ours.ini", "theirs.ini"});
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.err,
              "quorconv: theirs.ini: not all of this file can be read\n"
              "  line 1: the line ends in a lone carriage return; what follows it cannot be read\n");
    EXPECT_EQ(Quorconv({"diff", "ours.ini", "theirs.ini"}).code, 2);
    EXPECT_EQ(folder.Read("ours.ini"), base);
}

TEST_F(QuorconvCompareTest, ShowsWhatAMergeWouldWrite) {
    ExpectFine({"set", "theirs.ini", "B", "RTPW=25.4"});
    const Outcome run = Quorconv({"merge", "base.ini", "ours.ini", "theirs.ini", "--dry-run"});
    EXPECT_EQ(run.code, 0);
    EXPECT_NE(run.out.find("-RTPW=25.5\n+RTPW=25.4\n"), std::string::npos) << run.out;
    EXPECT_EQ(run.err, "quorconv: 1 probe would be merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), base);
}

TEST_F(QuorconvCompareTest, MergesNothingWhereAProbeOccursTwice) {
    const std::string twice = base + "\n[A]\nConversionType=2\n";
    folder.Write("ours.ini", twice);
    folder.Write("theirs.ini", base.substr(base.find("[B]")));
    ExpectRefused({"merge", "base.ini", "ours.ini", "theirs.ini"},
                  "quorconv: ours.ini: nothing was written, because probes occur twice\n"
                  "  line 21: [A] occurs twice; the first is in line 2\n");
    EXPECT_EQ(folder.Read("ours.ini"), twice);
}

TEST_F(QuorconvCompareTest, PatternsLeaveNoProbeOfADamagedFileOutInSilence) {
    std::string damaged = base;
    damaged.replace(damaged.find("[A]"), 3, "[A");
    folder.Write("theirs.ini", damaged);
    const std::string what = "  line 2: the header has no \"]\"; what is below it cannot be read\n";
    const std::string refused =
        "quorconv: theirs.ini: not all of this file can be read, and nothing was written\n" + what;
    ExpectRefused({"copy", "theirs.ini", "*", "new.ini"}, refused);
    ExpectRefused({"remove", "theirs.ini", "*"}, refused);
    ExpectRefused({"set", "theirs.ini", "*", "RTPW=25.4"}, refused);
    const Outcome exported = Quorconv({"export", "theirs.ini", "--csv", "--type", "w90"});
    EXPECT_EQ(exported.code, 1);
    EXPECT_EQ(exported.err, "quorconv: theirs.ini: not all of this file can be read\n" + what +
                                "quorconv: 1 probe exported\n");
    EXPECT_EQ(folder.Read("theirs.ini"), damaged);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("new.ini")));
}

TEST_F(QuorconvCompareTest, AnEmptyResultIsAResult) {
    ExpectShell("printf '[a]\\nConversionType=0\\n' | quorconv remove - a", "", "");
}

TEST_F(QuorconvCompareTest, ADamagedTypeOfTheOtherFileTakesNoSettingsAway) {
    folder.Write("theirs.ini", Replaced(base, "ConversionType=2", "ConversionType=99"));
    ExpectConflicts("  [A] ConversionType: 99 in theirs.ini is the code of no conversion type\n");
    folder.Write("theirs.ini", Replaced(base, "ConversionType=2", "ConversionType=10"));
    ExpectConflicts("  [A] ConversionType: CONV_OHMS in theirs.ini has no settings, but [A - Settings] is "
                    "still there\n");
    folder.Write("theirs.ini", base);
    ExpectFine({"retype", "theirs.ini", "A", "10"}); // which takes the settings out
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
}

TEST_F(QuorconvCompareTest, AProbeOfWhichTheOtherFileHasLostALineIsNotRemoved) {
    folder.Write("theirs.ini", Replaced(base, "ConversionType=2\n", ""));
    ExpectConflicts("  [A]: is no probe any more in theirs.ini, but [A] is still there\n");
    folder.Write("theirs.ini", Replaced(base, "[A]\nVersion=1.0\nConversionType=2\n", ""));
    ExpectConflicts("  [A]: is no probe any more in theirs.ini, but [A - Settings] is still there\n");
    const std::string host = "\n[O]\nConversionType=10\n\n[O - Settings]\nLamp=1\n";
    folder.Write("base.ini", base + host);
    folder.Write("ours.ini", base + host);
    folder.Write("theirs.ini", base + "\n[O - Settings]\nLamp=1\n"); // a section of the host's own
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "",
                "quorconv: 0 probes merged\nquorconv: 1 probe removed\n");
    EXPECT_EQ(folder.Read("ours.ini"), base + "\n[O - Settings]\nLamp=1\n");
}

TEST_F(QuorconvCompareTest, KeysThatNoRecordHasGoWithAProbeOnlyAsTheBaseHasThem) {
    const std::string own = base + "Due=2025-05\n";
    folder.Write("base.ini", own);
    folder.Write("ours.ini", Replaced(own, "2025-05", "2026-05"));
    folder.Write("theirs.ini", own);
    ExpectFine({"remove", "theirs.ini", "B"});
    ExpectConflicts("  [B]: keys beside its values were changed here, and the probe removed in theirs.ini\n");
    folder.Write("theirs.ini", own);
    ExpectFine({"retype", "theirs.ini", "B", "pt1", "Coefficients0=100"});
    ExpectConflicts(
        "  [B]: keys beside its values were changed here, and the probe given another type in theirs.ini\n");
    folder.Write("theirs.ini", own);
    ExpectFine({"remove", "theirs.ini", "B"});
    folder.Write("ours.ini", Replaced(own, "RTPW=25.5", "rtpw=2.55E1 ; ohms")); // the same number
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "",
                "quorconv: 0 probes merged\nquorconv: 1 probe removed\n");
}

TEST_F(QuorconvCompareTest, AGreaterCountOfTheOtherFileWritesOverNoValueThatStandsHereBeyondIt) {
    const std::string beyond = Replaced(base, "0.00385\n", "0.00385\nCoefficients2=1.5\n");
    const std::string greater =
        Replaced(Replaced(beyond, "NumCoefficients=2", "NumCoefficients=3"), "=1.5", "=1.6");
    folder.Write("theirs.ini", greater);
    folder.Write("ours.ini", beyond);
    ExpectConflicts("  [A] Coefficients2: 1.5 stands here beyond the count, and would become 1.6 of "
                    "theirs.ini\n");
    folder.Write("ours.ini", Replaced(beyond, "25.5", "25.4"));
    folder.Write("base.ini", beyond); // from which only theirs has changed the value
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), Replaced(greater, "25.5", "25.4"));
}

TEST_F(QuorconvCompareTest, AProbeThatTheOtherFileHasOnlyRenamedIsRenamedWhereItStands) {
    ExpectFine({"rename", "theirs.ini", "A", "PRT 1"});
    const std::string ours =
        "; ours\n[A] ; bath 3\nVersion=1.0\nConversionType=2\nDue=2026-05\n"
        "\n[A - Settings]\nNumCoefficients=2\nUsePolynomial=0\nCoefficients0=1E2 ; ohms\n"
        "Coefficients1=0.003850\nCoefficients2=1.5\n"
        "\n[B]\nVersion=1.0\nConversionType=14\n"
        "\n[B - Settings]\nVersion=1.0\nRTPW=25.5\n";
    folder.Write("ours.ini", ours);
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "",
                "quorconv: 0 probes merged\nquorconv: 1 probe renamed\n");
    EXPECT_EQ(folder.Read("ours.ini"), Replaced(Replaced(ours, "[A]", "[PRT 1]"), "[A - S", "[PRT 1 - S"));
}

TEST_F(QuorconvCompareTest,
       AProbeThatTheOtherFileHasRenamedAndChangedIsRenamedAndKeepsWhatItHasBesideItsValues) {
    const std::string own =
        "; bath 3\n[A]\nVersion=1.0\nConversionType=2\nDue=2026-05\n"
        "\n[A - Settings]\nVersion=1.0\nNumCoefficients=3\nUsePolynomial=False\nCoefficients0=100 ; ohms\n"
        "Coefficients1=0.00385\nCoefficients2=1.5\nCoefficients3=0.25\nCertificate=K17\n";
    for (const char* const name : {"base.ini", "ours.ini", "theirs.ini"})
        folder.Write(name, own);
    ExpectFine({"rename", "theirs.ini", "A", "PRT 1"});
    ExpectFine({"set", "theirs.ini", "PRT 1", "Coefficients0=100.2"});
    const std::string merged = folder.Read("theirs.ini");
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "",
                "quorconv: 1 probe merged\nquorconv: 1 probe renamed\n");
    EXPECT_EQ(folder.Read("ours.ini"), merged);
    folder.Write("theirs.ini", Replaced(Replaced(merged, "; bath 3\n", ""), "2026-05", "2027-05"));
    folder.Write("ours.ini", own);
    ExpectFine({"set", "ours.ini", "A", "Coefficients2=1.6"}); // which theirs have not changed
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "",
                "quorconv: 1 probe merged\nquorconv: 1 probe renamed\n");
    EXPECT_EQ(folder.Read("ours.ini"), Replaced(Replaced(merged, "2026-05", "2027-05"), "1.5", "1.6"));
    folder.Write("ours.ini", own);
    ExpectFine({"set", "ours.ini", "A", "Coefficients0=100.3"});
    ExpectConflicts("  [A] Coefficients0: 100 is 100.3 here and 100.2 in theirs.ini\n");
}

TEST_F(QuorconvCompareTest, WhatTheOtherFileHasChangedOfAProbeThatIsRenamedHereIsMergedUnderItsNewName) {
    const std::string three = Replaced(Replaced(base, "NumCoefficients=2", "NumCoefficients=3"), "0.00385\n",
                                       "0.00385\nCoefficients2=1.5\n");
    for (const char* const name : {"base.ini", "ours.ini", "theirs.ini"})
        folder.Write(name, three);
    ExpectFine({"rename", "ours.ini", "A", "One"});
    folder.Write("ours.ini", Replaced(folder.Read("ours.ini"), "[One]\n", "; bath 3\n[One]\n"));
    ExpectFine({"set", "theirs.ini", "A", "Coefficients1=0.0039"});
    const std::string ours = folder.Read("ours.ini");
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), Replaced(ours, "0.00385", "0.0039"));
    // One that is only like it may be another thermometer with the same nominal values, or with a number of
    // its own, to which nothing of this one may get.
    for (const std::string& other :
         {Replaced(ours, "=100\n", "=100.5\n"), Replaced(ours, "[One]\n", "[One]\nSerial=2002\n")}) {
        folder.Write("ours.ini", other);
        ExpectConflicts("  [A]: removed here, changed in theirs.ini\n");
    }
    // So may one that has a single value, which many have.
    const std::string single =
        "[A]\nVersion=1.0\nConversionType=14\n\n[A - Settings]\nVersion=1.0\nRTPW=25.5\n";
    folder.Write("single.ini", single);
    folder.Write("ours.ini", Replaced(Replaced(single, "[A]", "[One]"), "[A -", "[One -"));
    folder.Write("theirs.ini", Replaced(single, "25.5", "25.6"));
    ExpectRefused({"merge", "single.ini", "ours.ini", "theirs.ini"},
                  "quorconv: ours.ini: nothing was written, because both files have changed the same value\n"
                  "  [A]: removed here, changed in theirs.ini\n");
    folder.Write("theirs.ini", three);
    // Renamed alike in both.
    folder.Write("theirs.ini", three);
    ExpectFine({"rename", "theirs.ini", "A", "One"});
    folder.Write("ours.ini", ours);
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 0 probes merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), ours);
    // And differently.
    ExpectFine({"rename", "theirs.ini", "One", "Two"});
    ExpectConflicts("  [A]: renamed to [One] here, to [Two] in theirs.ini\n");
}

TEST_F(QuorconvCompareTest, OwnKeysThatWouldGoBecauseNobodyCanTellTheNewNameAreAConflict) {
    const std::string probe = "[A]\nConversionType=14\nDue=2026-05\n[A - Settings]\nRTPW=25.5\n";
    const std::string other = "[C]\nConversionType=14\n[C - Settings]\nRTPW=25.5\n";
    folder.Write("base.ini", probe);
    folder.Write("ours.ini", probe);
    folder.Write("theirs.ini", other + Replaced(Replaced(other, "[C", "[D"), "[C", "[D"));
    ExpectConflicts("  [A]: has keys beside its values, and may be [C] in theirs.ini or another one\n");
    const std::string due = Replaced(other, "=14\n", "=14\nDue=2026-05\n");
    folder.Write("theirs.ini", due + Replaced(Replaced(due, "[C", "[D"), "[C", "[D"));
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "",
                "quorconv: 2 probes merged\nquorconv: 1 probe removed\n"); // both have its keys
    EXPECT_EQ(Quorconv({"get", "ours.ini", "D", "RTPW"}).out, "25.5\n");
    EXPECT_NE(folder.Read("ours.ini").find("[D]\nVersion=1.0\nConversionType=14\nDue=2026-05\n"),
              std::string::npos)
        << folder.Read("ours.ini");
}

TEST_F(QuorconvCompareTest, MergesKeysThatNoRecordHas) {
    const std::string due = base + "Due=2025-05\nCoefficients1=7\n";
    folder.Write("base.ini", due);
    folder.Write("ours.ini", Replaced(due, "25.5", "25.4"));
    folder.Write("theirs.ini", Replaced(due, "2025-05", "2026-05") +
                                   "\n[N]\nVersion=1.0\nConversionType=14\nDue=2027-05\n"
                                   "\n[N - Settings]\nVersion=1.0\nRTPW=7\nCertificate=K17\n");
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 2 probes merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), Replaced(folder.Read("theirs.ini"), "25.5", "25.4"));
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 0 probes merged\n");
    folder.Write("ours.ini", Replaced(due, "2025-05", "2028-05"));
    ExpectConflicts("  [B]: keys beside its values were changed here and in theirs.ini\n");
    folder.Write("ours.ini", Replaced(due, "=14\n", "=14\nBath=3\n"));
    folder.Write("theirs.ini", Replaced(due, "2025-05", "2026-05"));
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_EQ(folder.Read("ours.ini"),
              Replaced(Replaced(due, "=14\n", "=14\nBath=3\n"), "2025-05", "2026-05"));
    folder.Write("ours.ini", Replaced(due, "2025-05", "2027-05"));
    folder.Write("theirs.ini", due + "Certificate=K17\n");
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), Replaced(due, "2025-05", "2027-05") + "Certificate=K17\n");
    folder.Write("ours.ini", due);
    folder.Write("theirs.ini", base); // a file that was put from a table, say
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 0 probes merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), due);
}

TEST_F(QuorconvCompareTest, OfAnOwnKeyThatStandsTwiceTheFirstLineIsMergedAndALineThatIsNoKeyIsNot) {
    const std::string due = base + "Due=2026\nDue=1\n";
    folder.Write("base.ini", due);
    folder.Write("ours.ini", due);
    folder.Write("theirs.ini", Replaced(due, "Due=2026", "Due=2027"));
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), folder.Read("theirs.ini"));
    folder.Write("base.ini", base);
    folder.Write("ours.ini", base);
    folder.Write("theirs.ini", base + "garbage\n");
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 0 probes merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), base);
}

TEST_F(QuorconvCompareTest, MergesKeysThatNoRecordHasOfAStandAloneFile) {
    const std::string text = "[Callendar-Van Dusen]\nVersion=1.0\nNumCoefficients=2\nUsePolynomial=False\n"
                             "Coefficients0=100\nCoefficients1=0.0039\nDue=2025-05\nBath=3\n";
    folder.Write("base.cvd", text);
    folder.Write("ours.cvd", Replaced(Replaced(text, "Bath=3", "Bath=4"), "=100", "=100.5"));
    folder.Write("theirs.cvd", Replaced(text, "2025-05", "2026-05"));
    ExpectShell("quorconv merge base.cvd ours.cvd theirs.cvd", "", "quorconv: 1 probe merged\n");
    EXPECT_EQ(folder.Read("ours.cvd"),
              Replaced(Replaced(Replaced(text, "Bath=3", "Bath=4"), "=100", "=100.5"), "2025-05", "2026-05"));
}

TEST_F(QuorconvCompareTest, AProbeIsNotRemovedAsLongAsTheOtherFileHasAnySectionOfItsSettings) {
    ExpectFine({"new", "base.ini", "P", "i90", "RTPW=25.5", "High Range/Range=6"});
    const std::string all = folder.Read("base.ini");
    folder.Write("ours.ini", all);
    const auto begin = all.find("[P]");
    folder.Write("theirs.ini", all.substr(0, begin) + all.substr(all.find("[P - Settings - ")));
    ExpectConflicts(
        "  [P]: is no probe any more in theirs.ini, but [P - Settings - High Range] is still there\n");
}

TEST_F(QuorconvCompareTest, AProbeThatOneFileHasRenamedAndTheOtherHasRemovedIsAConflict) {
    ExpectFine({"rename", "ours.ini", "A", "C"});
    ExpectFine({"remove", "theirs.ini", "A"});
    ExpectConflicts("  [A]: renamed to [C] here, removed in theirs.ini\n");
    const std::string ours = folder.Read("ours.ini");
    folder.Write("ours.ini", folder.Read("theirs.ini"));
    folder.Write("theirs.ini", ours);
    ExpectConflicts("  [A]: renamed to [C] in theirs.ini, removed here\n");
}

TEST_F(QuorconvCompareTest, ASectionOfTheHostBesideATypeWithoutSettingsIsNoDamage) {
    const std::string ohms = "[O]\nConversionType=10\n[O - Settings]\nLamp=1\n";
    folder.Write("base.ini", ohms);
    folder.Write("ours.ini", ohms);
    folder.Write("theirs.ini", Replaced(ohms, "=10", "=11"));
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_NE(folder.Read("ours.ini").find("ConversionType=11\n"), std::string::npos);
}

TEST_F(QuorconvCompareTest, OfProbesThatAreTheSameNoneIsTakenForTheOtherRenamed) {
    const std::string two = "[A]\nConversionType=10\n\n[B]\nConversionType=10\n";
    folder.Write("base.ini", two);
    folder.Write("ours.ini", two);
    folder.Write("theirs.ini", "[C]\nConversionType=10\n");
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "",
                "quorconv: 1 probe merged\nquorconv: 2 probes removed\n");
    folder.Write("ours.ini", Replaced(two, "=10\n\n", "=10\nDue=2026-05\n\n"));
    ExpectConflicts("  [A]: keys beside its values were changed here, and the probe removed in theirs.ini\n");
}
