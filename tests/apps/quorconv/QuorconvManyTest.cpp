// Commands for many probes and for many changes at once.

#include "tests/apps/quorconv/Quorconv.h"

namespace {

/// Runs on "host.ini", which has three probes of two types.
class QuorconvManyTest : public QuorconvTest {
protected:
    const std::string before = "; The host's own file\n"
                               "[Instrument]\n"
                               "Channels=4\n"
                               "\n"
                               "[Bath A]\n"
                               "Version=1.0\n"
                               "ConversionType=14\n"
                               "\n"
                               "[Bath A - Settings]\n"
                               "Version=1.0\n"
                               "RTPW=25.5 ; ohms\n"
                               "\n"
                               "[Bath B]\n"
                               "Version=1.0\n"
                               "ConversionType=14\n"
                               "\n"
                               "[Bath B - Settings]\n"
                               "Version=1.0\n"
                               "RTPW=100.0\n"
                               "\n"
                               "[Oven]\n"
                               "Version=1.0\n"
                               "ConversionType=19\n"
                               "\n"
                               "[Oven - Settings]\n"
                               "Version=1.0\n"
                               "NumCoefficients=1\n"
                               "Coefficients0=100.02\n";

    void SetUp() override { folder.Write("host.ini", before); }

    void ExpectUnchanged() const { EXPECT_EQ(folder.Read("host.ini"), before); }
};

} // namespace

TEST_F(QuorconvManyTest, PrintsOneValueAndNothingElse) {
    ExpectFine({"get", "host.ini", "Bath A", "RTPW"}, "25.5\n");
    ExpectFine({"get", "host.ini", "oven", "coefficients0"}, "100.02\n");
    ExpectFine({"get", "host.ini", "Oven", "ConversionType"}, "19\n");
    ExpectRefused({"get", "host.ini", "Bath A", "RTWP"},
                  "quorconv: host.ini: [Bath A] RTWP: there is no such key in this record; did you mean "
                  "\"RTPW\"?\n");
    ExpectRefused({"get", "host.ini", "Oven", "R0"},
                  "quorconv: host.ini: [Oven] R0: there is no such key in this record; did you mean "
                  "\"Coefficients0\"?\n");
    ExpectRefused({"get", "host.ini", "Instrument", "Channels"},
                  "quorconv: host.ini: [Instrument]: the section is not the record of a probe\n");
}

TEST_F(QuorconvManyTest, TellsTheNearestCommandTypeAndKey) {
    ExpectRefused({"lsit", "host.ini"}, "quorconv: there is no command \"lsit\"; did you mean \"list\"?\n",
                  2);
    ExpectRefused({"frobnicate"}, "quorconv: there is no command \"frobnicate\"\n", 2);
    ExpectRefused({"--verison"}, "quorconv: there is no option \"--verison\"; did you mean \"--version\"?\n",
                  2);
    ExpectRefused({"show", "host.ini", "--jsno"},
                  "quorconv: the command \"show\" has no option \"--jsno\"; did you mean \"--json\"?\n", 2);
    ExpectRefused({"set", "host.ini", "Oven", "Coefficients0=1", "--dryrun"},
                  "quorconv: the command \"set\" has no option \"--dryrun\"; did you mean \"--dry-run\"?\n",
                  2);
    ExpectRefused({"check", "host.ini", "--formt=gcc"},
                  "quorconv: the command \"check\" has no option \"--formt\"; did you mean \"--format\"?\n",
                  2);
    ExpectRefused({"get", "host.ini", "-x", "RTPW"},
                  "quorconv: the command \"get\" has no option \"-x\"; \"--\" goes before names that begin "
                  "with \"-\"\n",
                  2);
    ExpectRefused({"get", "--", "host.ini", "-x", "RTPW"},
                  "quorconv: host.ini: [-x]: there is no such section\n");
    ExpectUnchanged();
    ExpectRefused({"explain", "cdv"},
                  "quorconv: \"cdv\" is no conversion type; the command \"types\" lists them; did you mean "
                  "\"cvd\"?\n",
                  2);
    ExpectRefused(
        {"set", "host.ini", "Oven", "Coeficients0=1"},
        "quorconv: host.ini: [Oven] Coeficients0: there is no such key in a record of this type; did "
        "you mean \"Coefficients0\"?\n");
    ExpectRefused(
        {"check", "host.ini", "--ignore", "r0-not-positve"},
        "quorconv: there is no warning \"r0-not-positve\"; each ends with its id in brackets; did you "
        "mean \"r0-not-positive\"?\n",
        2);
}

TEST_F(QuorconvManyTest, SetsAValueOfAllProbesThatAreLikeAPattern) {
    ExpectShell("quorconv set host.ini 'bath *' RTPW=25.4", "", "quorconv: 2 probes set\n");
    EXPECT_EQ(folder.Read("host.ini"),
              Replaced(Replaced(before, "RTPW=25.5 ; ohms", "RTPW=25.4 ; ohms"), "RTPW=100.0", "RTPW=25.4"));
}

TEST_F(QuorconvManyTest, SetsAValueOfAllProbesOfAType) {
    ExpectShell("quorconv set host.ini '*' --type pt1 Coefficients0=99.98", "", "quorconv: 1 probe set\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "=100.02", "=99.98"));
    ExpectRefused({"set", "host.ini", "Bath*", "--type", "pt1", "Coefficients0=1"},
                  "quorconv: host.ini: no probe of the type pt1 is like \"Bath*\"\n");
    ExpectRefused({"set", "host.ini", "Bath?", "RTPW=1"}, "quorconv: host.ini: no probe is like \"Bath?\"\n");
}

TEST_F(QuorconvManyTest, SetsNothingOfSeveralProbesWhenOneOfThemCannotTakeIt) {
    ExpectRefused({"set", "host.ini", "*", "RTPW=25.4"},
                  "quorconv: host.ini: [Oven] RTPW: there is no such key in a record of this type\n");
    ExpectUnchanged();
}

TEST_F(QuorconvManyTest, TakesANameThatStandsInTheFileForThatOneWhateverItsLetters) {
    ExpectFine({"new", "host.ini", "Bath *", "w90", "RTPW=1"});
    const std::string withStar = folder.Read("host.ini");
    ExpectShell("quorconv set host.ini 'bath *' RTPW=2", "", "quorconv: 1 probe set\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(withStar, "RTPW=1\n", "RTPW=2\n"));
}

TEST_F(QuorconvManyTest, WorksOnSeveralFilesAndTellsHowManyProbesItTouched) {
    folder.Write("other.ini", before);
    ExpectShell("quorconv set host.ini 'Bath A' --also other.ini RTPW=25.4", "", "quorconv: 2 probes set\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "25.5", "25.4"));
    EXPECT_EQ(folder.Read("other.ini"), Replaced(before, "25.5", "25.4"));
    ExpectShell("quorconv show host.ini 'B*A' --also other.ini",
                "# host.ini\n\n[Bath A] CONV_WT90 W(T90)\nRTPW=25.4\n"
                "\n# other.ini\n\n[Bath A] CONV_WT90 W(T90)\nRTPW=25.4\n",
                "quorconv: 2 probes shown\n");
    ExpectShell("quorconv check --section 'Bath *' host.ini other.ini", "", "quorconv: 4 probes checked\n");
}

TEST_F(QuorconvManyTest, RemovesProbesWithTheirSettings) {
    ExpectFine({"remove", "host.ini", "Bath A"});
    const auto start = before.find("[Bath A]");
    EXPECT_EQ(folder.Read("host.ini"), before.substr(0, start) + before.substr(before.find("[Bath B]")));
    folder.Write("host.ini", before);
    ExpectShell("quorconv remove host.ini '*' --type w90", "", "quorconv: 2 probes removed\n");
    EXPECT_EQ(folder.Read("host.ini"), before.substr(0, start) + before.substr(before.find("[Oven]")));
    ExpectRefused({"remove", "host.ini", "Oven", "Bath A"},
                  "quorconv: host.ini: [Bath A]: there is no such section\n");
    ExpectRefused({"remove", "host.ini", "Instrument"},
                  "quorconv: host.ini: [Instrument]: the section is not the record of a probe\n");
}

TEST_F(QuorconvManyTest, RemovesNoSectionThatIsNamedLikeTheSettingsOfAProbeWithoutAny) {
    const std::string host = "[O - Settings]\nLamp=1\n";
    folder.Write("host.ini", "[O]\nConversionType=10\n" + host + "[Q]\nConversionType=10\n");
    ExpectShell("quorconv remove host.ini O Q", "", "quorconv: 2 probes removed\n");
    EXPECT_EQ(folder.Read("host.ini"), host);
}

TEST_F(QuorconvManyTest, RenamesAProbeWithTheSectionsOfItsSettings) {
    ExpectFine({"rename", "host.ini", "Oven", "Oven 2"});
    EXPECT_EQ(folder.Read("host.ini"),
              Replaced(Replaced(before, "[Oven]", "[Oven 2]"), "[Oven - Settings]", "[Oven 2 - Settings]"));
    ExpectRefused({"rename", "host.ini", "Oven 2", "Bath A"},
                  "quorconv: host.ini: [Bath A]: there is a section of this name already\n");
}

TEST_F(QuorconvManyTest, GivesAProbeAnotherTypeWithNewSettings) {
    ExpectFine({"retype", "host.ini", "Oven", "w90", "RTPW=25.6"});
    const auto start = before.find("[Oven]");
    EXPECT_EQ(folder.Read("host.ini"), before.substr(0, start) +
                                           "[Oven]\nVersion=1.0\nConversionType=14\n\n"
                                           "[Oven - Settings]\nVersion=1.0\nRTPW=25.6\n");
    ExpectRefused({"retype", "host.ini", "Instrument", "w90"},
                  "quorconv: host.ini: [Instrument]: the section is not the record of a probe\n");
    ExpectRefused({"retype", "host.ini", "Oven", "w90"},
                  "quorconv: host.ini: [Oven]: the probe already has this type; its values would be lost\n");
    ExpectRefused({"retype", "host.ini", "Oven 9", "w90"},
                  "quorconv: host.ini: [Oven 9]: there is no such section\n");
}

TEST_F(QuorconvManyTest, AProbeOfAnotherTypeKeepsTheKeysThatAreNoValuesOfItsType) {
    const std::string old = "[P]\nVersion=1.0\nConversionType=2\nBath=3\n\n[P - Settings]\nVersion=1.0\n"
                            "NumCoefficients=1\nUsePolynomial=0\nDue=2027 ; mine\nCoefficients0=100\n"
                            "Coefficients7=1\nNote=\"K 17\"\nNote=2\nPart=00123 ; asset\nOn=True ; by M\n"
                            "Big=12345678901234567891 ; sticker\n";
    folder.Write("a.ini", old);
    ExpectFine({"retype", "a.ini", "p", "w90", "RTPW=25"});
    const std::string now = "[P]\nVersion=1.0\nConversionType=14\nBath=3\n\n[P - Settings]\nVersion=1.0\n"
                            "RTPW=25\nDue=2027 ; mine\nNote=\"K 17\"\nPart=00123 ; asset\nOn=True ; by M\n"
                            "Big=12345678901234567891 ; sticker\n";
    EXPECT_EQ(folder.Read("a.ini"), now);
    folder.Write("base.ini", old);
    folder.Write("ours.ini", old);
    folder.Write("theirs.ini", Replaced(now, "Due=2027 ; mine\n", "")); // by a program that keeps no such key
    ExpectShell("quorconv merge base.ini ours.ini theirs.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_EQ(folder.Read("ours.ini"), now);
    ExpectRefused(
        {"retype", "base.ini", "P", "CONV_OHMS"},
        "quorconv: base.ini: [P]: CONV_OHMS has no settings, and keys beside the values would be lost "
        "with them\n  [P - Settings] Due=2027 ; mine\n  [P - Settings] Note=\"K 17\"\n"
        "  [P - Settings] Part=00123 ; asset\n"
        "  [P - Settings] On=True ; by M\n"
        "  [P - Settings] Big=12345678901234567891 ; sticker\n");
    EXPECT_EQ(folder.Read("base.ini"), old);
}

TEST_F(QuorconvManyTest, CopiesAllProbesThatAreLikeAPatternAndAsksBeforeItWritesOverOne) {
    ExpectShell("quorconv copy host.ini 'Bath*' other.ini", "", "quorconv: 2 probes copied\n");
    ExpectFine({"list", "other.ini"}, "Bath A\tCONV_WT90\tW(T90)\nBath B\tCONV_WT90\tW(T90)\n");
    ExpectFine({"set", "other.ini", "Bath A", "RTPW=1"});
    const std::string other = folder.Read("other.ini");
    ExpectRefused({"copy", "host.ini", "Bath A", "other.ini"},
                  "quorconv: other.ini: [Bath A]: there is a probe in this section already; --replace writes "
                  "over it\n");
    EXPECT_EQ(folder.Read("other.ini"), other);
    ExpectFine({"copy", "host.ini", "Bath A", "other.ini", "--replace"});
    EXPECT_EQ(folder.Read("other.ini"), Replaced(other, "RTPW=1\n", "RTPW=25.5\n"));
}

TEST_F(QuorconvManyTest, TakesNoNumberThatIsNoneUnlessItIsAllowed) {
    for (const std::string text : {"NaN", "Infinity", "-Infinity"}) {
        ExpectRefused({"set", "host.ini", "Oven", "Coefficients0=" + text},
                      "quorconv: host.ini: [Oven] Coefficients0: " + text +
                          " gives no temperature; --allow-nan stores it\n");
        ExpectRefused({"new", "host.ini", "P", "w90", "RTPW=" + text},
                      "quorconv: host.ini: [P] RTPW: " + text +
                          " gives no temperature; --allow-nan stores it\n");
    }
    ExpectUnchanged();
    ExpectFine({"set", "host.ini", "Oven", "Coefficients0=NaN", "--allow-nan"});
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "=100.02", "=NaN"));
}

TEST_F(QuorconvManyTest, RefusesNamesThatAFileCannotGiveBackAndSaysWhy) {
    const struct {
        const char* name;
        const char* reason;
    } cases[] = {
        {"", "a name needs a character"},
        {"N]2", "a \"]\" ends the name in the file"},
        {"#c", "what begins so is a comment to other programs"},
        {";c", "what begins so is a comment to other programs"},
        {"N\n2", "it has a line break"},
        {" N", "blanks around it would be lost in the file"},
    };
    for (const auto& [name, reason] : cases) {
        const std::string printed = std::string(name) == "N\n2" ? "N\\n2" : name;
        const std::string said =
            "quorconv: host.ini: [" + printed + "]: no section can have this name: " + reason + "\n";
        ExpectRefused({"new", "host.ini", name, "w90", "RTPW=1"}, said);
        ExpectRefused({"rename", "host.ini", "Oven", name}, said);
        ExpectRefused({"copy", "host.ini", "Oven", "host.ini", name}, said);
    }
    ExpectUnchanged();
}

TEST_F(QuorconvManyTest, PrintsTheUnifiedDiffOfADryRunAndWritesNothing) {
    const std::string head = "--- host.ini\n+++ host.ini\n";
    ExpectFine({"set", "host.ini", "Bath A", "RTPW=25.4", "--dry-run"}, head + "@@ -8,7 +8,7 @@\n"
                                                                               " \n"
                                                                               " [Bath A - Settings]\n"
                                                                               " Version=1.0\n"
                                                                               "-RTPW=25.5 ; ohms\n"
                                                                               "+RTPW=25.4 ; ohms\n"
                                                                               " \n"
                                                                               " [Bath B]\n"
                                                                               " Version=1.0\n");
    ExpectFine({"set", "host.ini", "Bath A", "RTPW=25.5", "--dry-run"});
    ExpectFine({"rename", "host.ini", "Oven", "O", "--dry-run"}, head + "@@ -18,11 +18,11 @@\n"
                                                                        " Version=1.0\n"
                                                                        " RTPW=100.0\n"
                                                                        " \n"
                                                                        "-[Oven]\n"
                                                                        "+[O]\n"
                                                                        " Version=1.0\n"
                                                                        " ConversionType=19\n"
                                                                        " \n"
                                                                        "-[Oven - Settings]\n"
                                                                        "+[O - Settings]\n"
                                                                        " Version=1.0\n"
                                                                        " NumCoefficients=1\n"
                                                                        " Coefficients0=100.02\n");
    ExpectFine({"new", "none.ini", "O", "10", "--dry-run"},
               "--- /dev/null\n+++ none.ini\n@@ -0,0 +1,3 @@\n+[O]\n+Version=1.0\n+ConversionType=10\n");
    ExpectUnchanged();
    EXPECT_EQ(folder.Files(), (std::vector<std::string>{".err", ".out", "host.ini"}));
}

TEST_F(QuorconvManyTest, PrintsADiffThatPatchTurnsIntoTheWrittenFile) {
    folder.Write("steps.txt", "remove \"Bath A\"\nset \"Bath B\" RTPW=99.5\nnew Channel cvd\n"
                              "retype Oven ply\nrename \"Bath B\" Bath\n");
    const Outcome patched = Shell("quorconv apply host.ini steps.txt --dry-run 2>said >change.diff\n"
                                  "cat said; cp host.ini patched.ini; patch -s patched.ini change.diff\n"
                                  "quorconv apply host.ini steps.txt; cmp host.ini patched.ini");
    EXPECT_EQ(patched.out, "quorconv: 5 steps would be done\n");
    EXPECT_EQ(patched.err, "quorconv: 5 steps done\n");
    EXPECT_EQ(patched.code, 0);
    ExpectFine({"list", "host.ini"}, "Bath\tCONV_WT90\tW(T90)\nOven\tCONV_POLYNOMIAL\tPolynomial\n"
                                     "Channel\tCONV_CVD\tCallendar-Van Dusen\n");
}

TEST_F(QuorconvManyTest, DoesTheStepsOfAFileTogether) {
    ExpectShell("quorconv apply host.ini <<'end'\n"
                "# new certificates\n"
                "\n"
                "set \"Bath A\" RTPW=25.4 # as of May\n"
                "copy Oven \"Oven 2\"\n"
                "set \"Oven 2\" Coefficients0=100.03\n"
                "copy \"Oven 2\" Oven --replace\n"
                "remove \"Oven 2\"\n"
                "end",
                "", "quorconv: 5 steps done\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(Replaced(before, "25.5", "25.4"), "100.02", "100.03"));
}

TEST_F(QuorconvManyTest, RemovesAndRenamesStepByStep) {
    ExpectShell("quorconv apply host.ini <<'end'\n"
                "rename Oven Kiln\n"
                "rename \"Bath A\" Oven\n"
                "rename \"Bath B\" \"Bath A\"\n"
                "rename \"Bath A\" \"Bath B\"\n"
                "remove Kiln\n"
                "rename \"Bath B\" Kiln\n"
                "remove Kiln\n"
                "end",
                "", "quorconv: 7 steps done\n");
    ExpectFine({"list", "host.ini"}, "Oven\tCONV_WT90\tW(T90)\n");
}

TEST_F(QuorconvManyTest, TellsEachWrongRemovalAndNewNameWithItsLine) {
    folder.Write("steps.txt",
                 "remove Oven\nremove Stove\nremove Oven\nremove \"Bath A\n"
                 "rename \"Bath A\" \"Bath B\"\nrename \"Bath A\" \"x]\"\nrename \"Bath B\" B\n");
    ExpectRefused(
        {"apply", "host.ini", "steps.txt"},
        "quorconv: host.ini: nothing was written, because 5 lines of steps.txt are wrong\n"
        "  steps.txt:2: host.ini: [Stove]: there is no such section\n"
        "  steps.txt:3: host.ini: [Oven]: there is no such section\n"
        "  steps.txt:4: a double quote is not closed\n"
        "  steps.txt:5: host.ini: [Bath B]: there is a section of this name already\n"
        "  steps.txt:6: host.ini: [x]]: no section can have this name: a \"]\" ends the name in the file\n");
    ExpectUnchanged();
}

TEST_F(QuorconvManyTest, TellsEachWrongStepWithItsLineAndDoesNoneOfThem) {
    const auto refused = [&](const std::string& steps, const std::string& said) {
        folder.Write("steps.txt", steps);
        ExpectRefused({"apply", "host.ini", "steps.txt"}, said);
        ExpectUnchanged();
    };
    refused("set Oven Coefficients0=1\nsett Oven Coefficients0=1\nset Oven\nset \"Oven\n",
            "quorconv: host.ini: nothing was written, because 3 lines of steps.txt are wrong\n"
            "  steps.txt:2: there is no step \"sett\"; did you mean \"set\"?\n"
            "  steps.txt:3: set SECTION KEY=VALUE... expected\n"
            "  steps.txt:4: a double quote is not closed\n");
    refused(
        "set Oven Coefficients0=1\nset Oven Coefficients0=1,5\nset \"Bath A\" Coefficients0=1\n",
        "quorconv: host.ini: nothing was written, because 2 lines of steps.txt are wrong\n"
        "  steps.txt:2: host.ini: [Oven] Coefficients0: \"1,5\" is not a number; the decimal separator is a "
        "point\n"
        "  steps.txt:3: host.ini: [Bath A] Coefficients0: there is no such key in a record of this type\n");
    refused("set Oven Coefficients0=1\nremove Bath\nset Bath RTPW=1\n",
            "quorconv: host.ini: nothing was written, because 2 lines of steps.txt are wrong\n"
            "  steps.txt:2: host.ini: [Bath]: there is no such section\n"
            "  steps.txt:3: host.ini: [Bath]: there is no such section\n");
}

TEST_F(QuorconvManyTest, GuessesNoEncodingOfStepsWhichWouldGiveProbesWrongNames) {
    folder.Write("steps.txt",
                 "# a caf\xE9\nrename Oven \"K\xC3\xBChler\"\nset Oven Coefficients0=1 # \xB0\n");
    ExpectRefused({"apply", "host.ini", "steps.txt"},
                  "quorconv: host.ini: nothing was written, because 2 lines of steps.txt are wrong\n"
                  "  steps.txt:1: the text is not UTF-8\n"
                  "  steps.txt:3: the text is not UTF-8\n");
    ExpectRefused({"edit", "host.ini", "Oven", "--script", "steps.txt"},
                  "quorconv: steps.txt: the text is not UTF-8\n");
    ExpectUnchanged();
}

TEST_F(QuorconvManyTest, AStepIsForOneProbeAndSaysSoOfAPattern) {
    ExpectShell("printf 'set \"Bath*\" RTPW=1\\nremove \"Bath ?\"\\n' | quorconv apply host.ini", "",
                "quorconv: host.ini: nothing was written, because 2 lines of - are wrong\n"
                "  -:1: [Bath*]: no probe has this name; a step is for one probe, and takes no pattern\n"
                "  -:2: [Bath ?]: no probe has this name; a step is for one probe, and takes no pattern\n",
                1);
    EXPECT_EQ(folder.Read("host.ini"), before);
    ExpectShell(
        "printf 'rename \"Bath A\" \"B*\"\\nset \"B*\" RTPW=1\\nremove \"B*\"\\n' | quorconv apply host.ini",
        "",
        "quorconv: 3 steps done\n"); // which is a name, too
}

TEST_F(QuorconvManyTest, SetsWhatTheLinesOfAFileSay) {
    ExpectShell("printf '\"Bath A\" RTPW=25.4\\nOven Coefficients0=99.9\\n' | quorconv set host.ini --from -",
                "", "quorconv: 2 steps done\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(Replaced(before, "25.5", "25.4"), "100.02", "99.9"));
    ExpectRefused({"set", "host.ini", "Oven", "Coefficients0=1", "--from", "-"},
                  "quorconv: with --from the file alone says what is set\n", 2);
    ExpectRefused({"set", "host.ini"}, "quorconv: SECTION and KEY=VALUE expected, or --from FILE\n", 2);
}

TEST_F(QuorconvManyTest, ReadsTheStandardInputAndWritesTheStandardOutputForADash) {
    ExpectShell("quorconv list - <host.ini", "Bath A\tCONV_WT90\tW(T90)\nBath B\tCONV_WT90\tW(T90)\n"
                                             "Oven\tCONV_PT100R0\tPT100\n");
    ExpectShell("quorconv get - Oven Coefficients0 <host.ini", "100.02\n");
    ExpectShell("quorconv set - Oven Coefficients0=99.9 <host.ini", Replaced(before, "100.02", "99.9"));
    ExpectShell("quorconv rename - Oven O <host.ini | quorconv remove - O | quorconv remove - 'Bath?B'",
                before.substr(0, before.find("\n[Bath B]")), "quorconv: 1 probe removed\n");
    ExpectShell("sed s/25.5/x/ host.ini | quorconv check -",
                "-:11: [Bath A - Settings] RTPW: \"x\" is not a number\n", "", 1);
    ExpectShell("printf 'type RTPW 7\\nclick OK\\n' | quorconv edit host.ini 'Bath A' --script -", "");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "25.5", "7"));
    ExpectShell("quorconv copy - Oven - P <host.ini | quorconv get - P Coefficients0", "100.02\n");
    ExpectShell("printf 'type RTPW 8\\nclick OK\\n' >steps.txt\n"
                "quorconv edit - 'Bath A' --script steps.txt <host.ini | quorconv get - 'Bath A' RTPW",
                "8\n");
    ExpectShell("printf 'show\\nescape\\n' >steps.txt\n"
                "quorconv edit - 'Bath A' --script steps.txt <host.ini 2>shown | cmp - host.ini",
                "");
    EXPECT_TRUE(folder.Read("shown").starts_with("W(T90) Settings\n")) << folder.Read("shown");
    ExpectShell("quorconv edit - 'Bath A' <host.ini", "",
                "quorconv: edit needs a file, or --script: a dialog waits for the user\n", 2);
    ExpectShell("quorconv diff - - <host.ini", "",
                "quorconv: \"-\" can be given only once: the standard input can be read only once\n", 2);
}

TEST_F(QuorconvManyTest, ShowsTheProbesThatCanBeReadAndFailsAtTheEnd) {
    folder.Write("host.ini", Replaced(before, "RTPW=100.0", "RTPW=100,0"));
    ExpectShell("quorconv show host.ini",
                "[Bath A] CONV_WT90 W(T90)\nRTPW=25.5\n\n"
                "[Oven] CONV_PT100R0 PT100\nNumCoefficients=1\nCoefficients0=100.02\n",
                "quorconv: host.ini: [Bath B]: the record cannot be read\n"
                "  line 19: [Bath B - Settings] RTPW: \"100,0\" is not a number; the decimal separator is a "
                "point\n",
                1);
    const Outcome json = Quorconv({"show", "host.ini", "--jsonl"});
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(json.out,
              "{\"section\": \"Bath A\", \"code\": 14, \"type\": \"CONV_WT90\", \"name\": \"W(T90)\", "
              "\"settings\": {\"RTPW\": 25.5}}\n"
              "{\"section\": \"Oven\", \"code\": 19, \"type\": \"CONV_PT100R0\", \"name\": \"PT100\", "
              "\"settings\": {\"NumCoefficients\": 1, \"Coefficients\": [{\"name\": \"R0\", "
              "\"value\": 100.02}]}}\n");
}

TEST_F(QuorconvManyTest, ChecksForPeopleEditorsBuildServersAndPrograms) {
    folder.Write("a,b.ini",
                 Replaced(Replaced(before, "RTPW=25.5 ; ohms", "RTPW=x"), "RTPW=100.0", "RTPW=-1"));
    const Outcome json = Quorconv({"check", "--json", "a,b.ini", "none.ini"});
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(
        json.out,
        "[\n  {\"file\": \"a,b.ini\", \"line\": 11, \"section\": \"Bath A - Settings\", \"key\": \"RTPW\", "
        "\"id\": \"value-unreadable\", \"severity\": \"error\", \"text\": \"\\\"x\\\" is not a number\"},\n"
        "  {\"file\": \"a,b.ini\", \"line\": 19, \"section\": \"Bath B - Settings\", \"key\": \"RTPW\", "
        "\"id\": \"rtpw-not-positive\", \"severity\": \"warning\", \"text\": \"RTPW is -1; limit: above "
        "0\"},\n"
        "  {\"file\": \"none.ini\", \"line\": 0, \"section\": \"\", \"key\": \"\", \"id\": "
        "\"file-unreadable\", \"severity\": \"error\", \"text\": \"File not found\"}\n]\n");
    EXPECT_EQ(Quorconv({"check", "--format", "gcc", "a,b.ini"}).out,
              "a,b.ini:11:1: error: [Bath A - Settings] RTPW: \"x\" is not a number [value-unreadable]\n"
              "a,b.ini:19:1: warning: [Bath B - Settings] RTPW: RTPW is -1; limit: above 0 "
              "[rtpw-not-positive]\n");
    EXPECT_EQ(
        Quorconv({"check", "--format", "github", "a,b.ini"}).out,
        "::error file=a%2Cb.ini,line=11,title=value-unreadable::[Bath A - Settings] RTPW: \"x\" is not a "
        "number\n"
        "::warning file=a%2Cb.ini,line=19,title=rtpw-not-positive::[Bath B - Settings] RTPW: RTPW is -1; "
        "limit: above 0\n");
    ExpectFine({"check", "--json", "host.ini"}, "[]\n");
    ExpectRefused({"check", "--format", "gc", "host.ini"},
                  "quorconv: --format: there is no \"gc\"; did you mean \"gcc\"?\n", 2);
}

TEST_F(QuorconvManyTest, ChecksTheProbesOfATypeAlone) {
    folder.Write("host.ini", Replaced(before, "RTPW=25.5 ; ohms", "RTPW=x"));
    ExpectShell("quorconv check host.ini --type pt1", "", "quorconv: 1 probe checked\n");
    ExpectShell("quorconv check host.ini --type w90",
                "host.ini:11: [Bath A - Settings] RTPW: \"x\" is not a number\n",
                "quorconv: 2 probes checked\n", 1);
}

TEST_F(QuorconvManyTest, ASectionToCheckThatIsNotThereIsNoSuccess) {
    ExpectShell("quorconv check --section 'Oven 9' host.ini", "host.ini: [Oven 9] there is no such section\n",
                "quorconv: 0 probes checked\n", 1);
    ExpectShell("quorconv check --section 'Oven*9' --section Oven --format gcc host.ini",
                "host.ini:1:1: error: no probe is like \"Oven*9\" [probe-missing]\n",
                "quorconv: 1 probe checked\n", 1);
}

TEST_F(QuorconvManyTest, EachFileIsCheckedAndTheReportHasItsEndWhenOneHasNoSuchProbe) {
    folder.Write("none.ini", "[Instrument]\n");
    folder.Write("bad.ini", Replaced(before, "RTPW=25.5 ; ohms", "RTPW=x"));
    ExpectShell(
        "quorconv check --json host.ini none.ini bad.ini --section 'Bath A' --section Instrument",
        "[\n  {\"file\": \"host.ini\", \"line\": 0, \"section\": \"Instrument\", \"key\": \"\", "
        "\"id\": \"probe-missing\", \"severity\": \"error\", \"text\": \"the section is not the "
        "record of a probe\"},\n"
        "  {\"file\": \"none.ini\", \"line\": 0, \"section\": \"Bath A\", \"key\": \"\", \"id\": "
        "\"probe-missing\", \"severity\": \"error\", \"text\": \"there is no such section\"},\n"
        "  {\"file\": \"none.ini\", \"line\": 0, \"section\": \"Instrument\", \"key\": \"\", \"id\": "
        "\"probe-missing\", \"severity\": \"error\", \"text\": \"the section is not the record of a "
        "probe\"},\n"
        "  {\"file\": \"bad.ini\", \"line\": 0, \"section\": \"Instrument\", \"key\": \"\", \"id\": "
        "\"probe-missing\", \"severity\": \"error\", \"text\": \"the section is not the record of a "
        "probe\"},\n"
        "  {\"file\": \"bad.ini\", \"line\": 11, \"section\": \"Bath A - Settings\", \"key\": "
        "\"RTPW\", \"id\": \"value-unreadable\", \"severity\": \"error\", \"text\": \"\\\"x\\\" is not "
        "a number\"}\n]\n",
        "quorconv: 2 probes checked\n", 1);
}

TEST_F(QuorconvManyTest, AMistypedTypeOnTheCommandLineIsWrongUsageOfEveryCommand) {
    folder.Write("in.csv", "section,RTPW\nP,1\n");
    const std::string told = "quorconv: \"w9\" is no conversion type; the command \"types\" lists them; did "
                             "you mean \"w90\"?\n";
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{"show", "host.ini", "--type", "w9"},
                                               {"check", "none.ini", "host.ini", "--type", "w9", "--json"},
                                               {"export", "host.ini", "--csv", "--type", "w9"},
                                               {"set", "host.ini", "*", "RTPW=1", "--type", "w9"},
                                               {"new", "host.ini", "P", "w9"},
                                               {"retype", "host.ini", "Oven", "w9"},
                                               {"put", "host.ini", "in.csv", "--csv", "--type", "w9"},
                                               {"explain", "w9"}})
        ExpectRefused(arguments, told, 2);
    ExpectUnchanged();
}

TEST_F(QuorconvManyTest, TellsNoCountOfProbesBesideAnErrorOrWhenNothingWasPrinted) {
    ExpectRefused({"show", "host.ini", "x*"}, "quorconv: host.ini: no probe is like \"x*\"\n");
    const std::string told = "quorconv: the results cannot be written\n";
    ExpectShell("quorconv export host.ini --jsonl >/dev/full", "", told, 1);
    ExpectShell("quorconv show host.ini '*' >/dev/full", "", told, 1);
    ExpectShell("quorconv set - '*' --type w90 RTPW=1 <host.ini >/dev/full", "", told, 1);
}

TEST_F(QuorconvManyTest, ColoursATerminalAloneAndOnlyWhereColoursAreWanted) {
    folder.Write("host.ini", Replaced(before, "RTPW=25.5 ; ohms", "RTPW=x"));
    const std::string plain = "host.ini:11: [Bath A - Settings] RTPW: \"x\" is not a number";
    const std::string terminal = "script -qec 'quorconv check host.ini' /dev/null </dev/null | tr -d '\\r'";
    ExpectShell("TERM=xterm; export TERM; unset NO_COLOR; " + terminal,
                "host.ini:11: \x1B[31m[Bath A - Settings] RTPW: \"x\" is not a number\x1B[0m\n");
    ExpectShell("TERM=xterm NO_COLOR=1; export TERM NO_COLOR; " + terminal, plain + "\n");
    ExpectShell("TERM=dumb; export TERM; unset NO_COLOR; " + terminal, plain + "\n");
    ExpectShell("TERM=xterm quorconv check host.ini", plain + "\n", "", 1);
}

TEST_F(QuorconvManyTest, TellsOnATerminalHowFarAWorkOfMoreThanASecondIs) {
    std::string probes;
    std::string steps;
    for (int i = 0; i < 5000; ++i) {
        probes += "[P" + std::to_string(i) + "]\nConversionType=10\n";
        const std::string number = std::to_string(i / 2); // each probe twice: no two steps are done together
        steps += i % 2 == 0 ? "rename P" + number + " Q\n" : "rename Q R" + number + "\n";
    }
    folder.Write("many.ini", probes);
    folder.Write("steps.txt", steps);
    const Outcome run =
        Shell("export TERM=xterm\n"
              "script -qefc 'quorconv apply many.ini steps.txt' shown </dev/null >/dev/null &\n"
              "for i in {1..600}; do grep -qa 'of 5000 steps' shown && break; sleep 0.1; done\n"
              "kill $!; wait; tr '\\r' '\\n' <shown | grep -aom1 '^[0-9]* of 5000 steps'");
    EXPECT_NE(run.out.find(" of 5000 steps\n"), std::string::npos) << run.out << run.err;
    EXPECT_EQ(folder.Read("many.ini"), probes) << "it was ended before it was done";
}

TEST_F(QuorconvManyTest, ExplainsWhatARecordHoldsAndEachKey) {
    ExpectFine({"explain", "w90"}, "CONV_WT90 (14): W(T90)\n"
                                   "Stand-alone files: .w90, section [W(T90)]\n"
                                   "\n"
                                   "RTPW\n"
                                   "  meaning  Resistance at the triple point of water, 273.16 K\n"
                                   "  unit     ohm\n"
                                   "  range    any number\n"
                                   "  usual    above 0\n"
                                   "  default  0\n");
    ExpectFine({"explain", "cvd", "delta"}, "\nCoefficients2 (DELTA), with UsePolynomial=False\n"
                                            "  meaning  Callendar's coefficient\n"
                                            "  unit     \xC2\xB0"
                                            "C\n"
                                            "  range    any number\n"
                                            "  usual    0.75 to 3\n"
                                            "  default  0\n");
    ExpectFine({"explain", "CONV_OHMS"}, "CONV_OHMS (10): Ohms\nA record of this type has no settings.\n");
    ExpectRefused({"explain", "cvd", "GAMMA"}, "quorconv: CONV_CVD: there is no key \"GAMMA\"\n");
    ExpectRefused({"explain", "cvd", ""}, "quorconv: CONV_CVD: there is no key \"\"\n");
    ExpectRefused({"explain", ""}, "quorconv: \"\" is no conversion type; the command \"types\" lists them\n",
                  2);
}

TEST_F(QuorconvManyTest, AProbeWhoseTypeCannotBeReadIsNotPassedOverByAType) {
    const std::string file = "[A]\nConversionType=14\n[A - Settings]\nRTPW=25.5\n"
                             "[B]\nConversionType=14x\n[B - Settings]\nRTPW=25.6\n";
    folder.Write("a.ini", file);
    const std::string what = "quorconv: a.ini: [B]: the conversion type cannot be read: \"14x\"\n";
    ExpectShell("quorconv show a.ini --type w90", "[A] CONV_WT90 W(T90)\nRTPW=25.5\n",
                what + "quorconv: 1 probe shown\n", 1);
    ExpectShell("quorconv export a.ini --csv --type w90", "section,type,RTPW [ohm]\r\nA,CONV_WT90,25.5\r\n",
                what + "quorconv: 1 probe exported\n", 1);
    ExpectRefused({"set", "a.ini", "*", "--type", "w90", "RTPW=1"}, what);
    ExpectRefused({"remove", "a.ini", "*", "--type", "w90"}, what);
    ExpectRefused({"copy", "a.ini", "*", "--type", "w90", "b.ini"}, what);
    EXPECT_EQ(folder.Read("a.ini"), file);
}

TEST_F(QuorconvManyTest, AQuoteBehindAClosingOneIsNoQuoteInside) {
    folder.Write("a.ini", "[ab]\nConversionType=14\n[ab - Settings]\nRTPW=25.5\n"
                          "[a\"b\\]\nConversionType=14\n[a\"b\\ - Settings]\nRTPW=25.5\n");
    const std::string written = folder.Read("a.ini");
    folder.Write("steps.txt", "set \"a\"\"b\" RTPW=1\n");
    ExpectRefused({"apply", "a.ini", "steps.txt"},
                  "quorconv: a.ini: nothing was written, because a line of steps.txt is wrong\n"
                  "  steps.txt:1: a double quote follows a closing one; inside quotes it is written \\\"\n");
    EXPECT_EQ(folder.Read("a.ini"), written);
    folder.Write("steps.txt", "set \"a\\\"b\\\\\" RTPW=1\n");
    ExpectShell("quorconv apply a.ini steps.txt", "", "quorconv: 1 step done\n");
    EXPECT_EQ(folder.Read("a.ini"), written.substr(0, written.size() - 5) + "1\n");
}
