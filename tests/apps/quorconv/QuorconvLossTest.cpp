// No command loses or misreads a value without being told to.

#include "tests/apps/quorconv/Quorconv.h"

namespace {

class QuorconvLossTest : public QuorconvTest {
protected:
    const std::string lost = " values of the probe would be lost; use --drop to allow it\n";
};

} // namespace

TEST_F(QuorconvLossTest, ASmallerCountNamesTheValuesThatItWouldLeaveOut) {
    ExpectFine({"new", "a.ini", "C", "cvd", "Coefficients0=100", "Coefficients2=1.5", "Coefficients3=0.1"});
    ExpectFine({"new", "a.ini", "T", "tct", "NumPoints=2", "Temperatures1=5", "Voltages1=0.25"});
    const std::string before = folder.Read("a.ini");
    ExpectRefused({"set", "a.ini", "C", "NumCoefficients=2"},
                  "quorconv: a.ini: [C]" + lost + "  Coefficients2=1.5\n  Coefficients3=0.1\n");
    ExpectRefused({"set", "a.ini", "T", "NumPoints=1"},
                  "quorconv: a.ini: [T]" + lost + "  Temperatures1=5\n  Voltages1=0.25\n");
    EXPECT_EQ(folder.Read("a.ini"), before);
    ExpectFine({"set", "a.ini", "T", "NumPoints=1", "--drop"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(before, "NumPoints=2", "NumPoints=1"));
}

TEST_F(QuorconvLossTest, AnotherRangeNamesTheCoefficientsThatItDoesNotHave) {
    ExpectFine({"new", "a.ini", "P", "i90", "High Range/Range=6", "High Range/Coefficients0=1e-3",
                "High Range/Coefficients3=2e-3"});
    const std::string before = folder.Read("a.ini");
    ExpectRefused({"set", "a.ini", "P", "High Range/Range=8"},
                  "quorconv: a.ini: [P]" + lost + "  High Range/Coefficients3=0.002\n");
    ExpectRefused({"set", "a.ini", "*", "--type", "i90", "High Range/Range=-1"},
                  "quorconv: a.ini: [P]" + lost +
                      "  High Range/Coefficients0=0.001\n  High Range/Coefficients3=0.002\n");
    EXPECT_EQ(folder.Read("a.ini"), before);
    ExpectFine({"set", "a.ini", "P", "High Range/Range=8", "--drop"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(before, "Range=6", "Range=8"));
}

TEST_F(QuorconvLossTest, AFlagTypeScaleOrRangeThatGivesOtherValuesAnotherMeaningNamesThem) {
    ExpectFine(
        {"new", "a.ini", "C", "cvd", "Coefficients0=100", "Coefficients1=0.00385", "Coefficients2=1.5"});
    ExpectFine({"new", "a.ini", "T", "tcx", "TCType=4", "NumPoints=1", "Temperatures0=5", "Offsets0=0.25"});
    ExpectFine({"new", "a.ini", "I", "i90", "High Range/Range=6", "High Range/Coefficients0=1e-3"});
    const std::string before = folder.Read("a.ini");
    const std::string other =
        " values of the probe would change their meaning; enter them again, or use --drop to allow it\n";
    ExpectRefused({"set", "a.ini", "C", "UsePolynomial=True"},
                  "quorconv: a.ini: [C]" + other +
                      "  Coefficients1=0.00385, by UsePolynomial=True\n"
                      "  Coefficients2=1.5, by UsePolynomial=True\n");
    ExpectRefused({"set", "a.ini", "C", "UsePolynomial=True", "Coefficients1=0.0039"},
                  "quorconv: a.ini: [C]" + other + "  Coefficients2=1.5, by UsePolynomial=True\n");
    ExpectRefused({"set", "a.ini", "T", "TCType=5"}, "quorconv: a.ini: [T]" + other +
                                                         "  Temperatures0=5, by TCType=5\n"
                                                         "  Offsets0=0.25, by TCType=5\n");
    ExpectRefused({"set", "a.ini", "T", "OffsetScale=F"},
                  "quorconv: a.ini: [T]" + other + "  Offsets0=0.25, by OffsetScale=F\n");
    ExpectRefused({"set", "a.ini", "I", "High Range/Range=8"},
                  "quorconv: a.ini: [I]" + other +
                      "  High Range/Coefficients0=0.001, by High Range/Range=8\n");
    ExpectShell("echo 'set C UsePolynomial=True' | quorconv apply a.ini", "",
                "quorconv: a.ini: nothing was written, because a line of - is wrong\n  -:1: a.ini: [C]" +
                    Replaced(other, "\n", "") +
                    "\n    Coefficients1=0.00385, by UsePolynomial=True\n"
                    "    Coefficients2=1.5, by UsePolynomial=True\n",
                1);
    EXPECT_EQ(folder.Read("a.ini"), before);
    ExpectFine({"set", "a.ini", "C", "UsePolynomial=True", "Coefficients1=0.0039", "Coefficients2=1.5"});
    EXPECT_EQ(folder.Read("a.ini"),
              Replaced(Replaced(before, "UsePolynomial=False", "UsePolynomial=True"), "0.00385", "0.0039"));
    folder.Write("a.ini", before);
    ExpectFine({"set", "a.ini", "C", "UsePolynomial=True", "--drop"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(before, "UsePolynomial=False", "UsePolynomial=True"));
}

TEST_F(QuorconvLossTest, ARecordThatIsRefusedForItsCountIsMendedByTheCountAlone) {
    const std::string file = "[C]\nVersion=1.0\nConversionType=2\n"
                             "[C - Settings]\nVersion=1.0\nNumCoefficients=-1\nUsePolynomial=False\n"
                             "Coefficients0=100.01 ; ohms\nCoefficients1=0.003850\nCoefficients2=1.5\n";
    folder.Write("a.ini", file);
    for (const std::string values : {"NumCoefficients=-2", "NumCoefficients=x", "Coefficients0=1"}) {
        const Outcome refused = Quorconv({"set", "a.ini", "C", values});
        EXPECT_EQ(refused.code, 1) << values;
        EXPECT_TRUE(refused.err.starts_with("quorconv: a.ini: [C]: the record cannot be read\n"))
            << refused.err;
        EXPECT_EQ(folder.Read("a.ini"), file) << values;
    }
    ExpectFine({"set", "a.ini", "C", "NumCoefficients=3"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(file, "=-1", "=3"));
    folder.Write("a.ini", file);
    ExpectRefused({"set", "a.ini", "C", "Coefficients0=100.02", "NumCoefficients=2"},
                  "quorconv: a.ini: [C]" + lost + "  Coefficients2=1.5\n");
    EXPECT_EQ(folder.Read("a.ini"), file);
    ExpectFine({"set", "a.ini", "C", "Coefficients0=100.02", "NumCoefficients=2", "--drop"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(Replaced(file, "=-1", "=2"), "100.01", "100.02"));
}

TEST_F(QuorconvLossTest, AFlagThatTheRecordLacksChangesNoMeaningWhenItIsGiven) {
    const std::string file = "[C]\nVersion=1.0\nConversionType=2\n"
                             "[C - Settings]\nVersion=1.0\nNumCoefficients=3\n"
                             "Coefficients0=100.01\nCoefficients1=0.0039\nCoefficients2=-5e-7\n";
    folder.Write("a.ini", file);
    ExpectFine({"set", "a.ini", "C", "UsePolynomial=True"});
    EXPECT_EQ(folder.Read("a.ini"), file + "UsePolynomial=True\n");
}

TEST_F(QuorconvLossTest, AGreaterCountDoesNotWriteOverValuesThatASmallerOneHasLeftInTheFile) {
    const std::string file = "[C]\nConversionType=2\n[C - Settings]\nNumCoefficients=2\nUsePolynomial=0\n"
                             "Coefficients0=100\nCoefficients1=0.0039\nCoefficients2=1.5\n";
    folder.Write("a.ini", file);
    ExpectRefused({"set", "a.ini", "C", "NumCoefficients=3"},
                  "quorconv: a.ini: [C]" + lost + "  Coefficients2=1.5\n");
    EXPECT_EQ(folder.Read("a.ini"), file);
    ExpectFine({"set", "a.ini", "C", "NumCoefficients=3", "Coefficients2=1.5"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(file, "NumCoefficients=2", "NumCoefficients=3"));
}

TEST_F(QuorconvLossTest, StepsAndTablesNameTheirLineWhenTheyWouldLoseValues) {
    ExpectFine({"new", "a.ini", "C", "cvd", "Coefficients3=1"});
    const std::string before = folder.Read("a.ini");
    ExpectShell("printf 'set C Coefficients0=1\nset C NumCoefficients=1\n' | quorconv apply a.ini", "",
                "quorconv: a.ini: nothing was written, because a line of - is wrong\n"
                "  -:2: a.ini: [C]" +
                    lost + "    Coefficients3=1\n",
                1);
    ExpectShell("printf 'section,type,NumCoefficients\nC,cvd,1\n' | quorconv put a.ini --csv", "",
                "quorconv: a.ini: nothing was written, because a line of - is wrong\n"
                "  -:2: a.ini: [C]" +
                    lost + "    Coefficients3=1\n",
                1);
    EXPECT_EQ(folder.Read("a.ini"), before);
    ExpectShell("printf 'section,type,NumCoefficients\nC,cvd,1\n' | quorconv put a.ini --csv --drop", "",
                "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("a.ini"), Replaced(before, "NumCoefficients=4", "NumCoefficients=1"));
}

TEST_F(QuorconvLossTest, SeveralFilesAreTriedBeforeTheFirstOneIsSaved) {
    ExpectFine({"new", "a.ini", "P", "w90", "RTPW=1"});
    ExpectFine({"new", "b.ini", "Q", "w90", "RTPW=1"});
    const std::string a = folder.Read("a.ini");
    ExpectRefused({"set", "a.ini", "P", "--also", "b.ini", "RTPW=2"},
                  "quorconv: b.ini: [P]: there is no such section\n");
    ExpectRefused({"remove", "a.ini", "P", "--also", "b.ini"},
                  "quorconv: b.ini: [P]: there is no such section\n");
    ExpectRefused({"set", "a.ini", "P", "--also", "./a.ini", "RTPW=2"},
                  "quorconv: the file is named twice: ./a.ini\n", 2);
    EXPECT_EQ(folder.Read("a.ini"), a);
}

TEST_F(QuorconvLossTest, TwoNamesForOneProbeAreAConflict) {
    ExpectFine({"new", "base.ini", "P", "w90", "RTPW=25.5"});
    folder.Write("ours.ini", folder.Read("base.ini"));
    folder.Write("theirs.ini", folder.Read("base.ini"));
    ExpectFine({"rename", "ours.ini", "P", "P 1"});
    ExpectFine({"rename", "theirs.ini", "P", "P one"});
    const std::string ours = folder.Read("ours.ini");
    ExpectRefused({"merge", "base.ini", "ours.ini", "theirs.ini"},
                  "quorconv: ours.ini: nothing was written, because both files have changed the same value\n"
                  "  [P]: renamed to [P 1] here, to [P one] in theirs.ini\n");
    EXPECT_EQ(folder.Read("ours.ini"), ours);
    ExpectFine({"rename", "theirs.ini", "P one", "p 1"});
    EXPECT_EQ(Quorconv({"merge", "base.ini", "ours.ini", "theirs.ini"}).code, 0);
    EXPECT_EQ(folder.Read("ours.ini"), ours);
}

TEST_F(QuorconvLossTest, TwoNamesForOneProbeAreAConflictAlsoWhereOneOfItsValuesWasChanged) {
    ExpectFine(
        {"new", "base.ini", "P", "cvd", "Coefficients0=100.1", "Coefficients1=0.00385", "Coefficients2=1.5"});
    folder.Write("ours.ini", folder.Read("base.ini"));
    folder.Write("theirs.ini", folder.Read("base.ini"));
    ExpectFine({"rename", "ours.ini", "P", "P 1"});
    ExpectFine({"rename", "theirs.ini", "P", "P one"});
    ExpectFine({"set", "theirs.ini", "P one", "Coefficients0=100.2"});
    const std::string ours = folder.Read("ours.ini");
    ExpectRefused({"merge", "base.ini", "ours.ini", "theirs.ini"},
                  "quorconv: ours.ini: nothing was written, because both files have changed the same value\n"
                  "  [P]: renamed to [P 1] here, to [P one] in theirs.ini\n");
    EXPECT_EQ(folder.Read("ours.ini"), ours);
    ExpectFine({"set", "theirs.ini", "P one", "Coefficients1=0.0039", "Coefficients2=1.6"}); // another probe
    ExpectRefused({"merge", "base.ini", "ours.ini", "theirs.ini"},
                  "quorconv: ours.ini: nothing was written, because both files have changed the same value\n"
                  "  [P]: renamed to [P 1] here, removed in theirs.ini\n");
    ExpectRefused(
        {"merge", "base.ini", "theirs.ini", "ours.ini"},
        "quorconv: theirs.ini: nothing was written, because both files have changed the same value\n"
        "  [P]: renamed to [P 1] in ours.ini, removed here\n");
}

TEST_F(QuorconvLossTest, NothingIsAddedToAFileThatCannotBeReadWholly) {
    folder.Write("lost.ini", "[A\nVersion=1.0\nConversionType=14\n");
    folder.Write("zero.ini", std::string("\x7F"
                                         "ELF\0\0\n",
                                         7));
    ExpectFine({"new", "good.ini", "A", "w90", "RTPW=1"});
    folder.Write("in.csv", "section,type,RTPW\nA,w90,1\n");
    const std::string refused = ": not all of this file can be read, and nothing was written\n";
    const std::string unclosed = "quorconv: lost.ini" + refused +
                                 "  line 1: the header has no \"]\"; what is below it cannot be read\n";
    const std::string zero = "quorconv: zero.ini" + refused + "  there are zero bytes: this is no text\n";
    for (const std::string command :
         {"new FILE A w90 RTPW=1", "put FILE in.csv --csv", "copy good.ini A FILE"}) {
        ExpectShell("quorconv " + Replaced(command, "FILE", "lost.ini"), "", unclosed, 1);
        ExpectShell("quorconv " + Replaced(command, "FILE", "zero.ini"), "", zero, 1);
    }
    ExpectShell("echo new A w90 RTPW=1 | quorconv apply zero.ini", "", zero, 1);
    ExpectShell("quorconv diff good.ini lost.ini", "",
                "quorconv: lost.ini: not all of this file can be read\n"
                "  line 1: the header has no \"]\"; what is below it cannot be read\n",
                2);
}

TEST_F(QuorconvLossTest, ATableOfASpreadsheetIsReadByItsOwnSeparatorAloneAndNeverGuessed) {
    const std::string table = "section;type;RTPW\nA;w90;25,5\n";
    folder.Write("in.csv", table);
    const std::string head = "quorconv: a.ini: nothing was written, because a line of in.csv is wrong\n";
    ExpectRefused({"put", "a.ini", "in.csv", "--csv"},
                  head +
                      "  in.csv:1: there is no column \"section\"; \"--separator semicolon\" reads a table "
                      "like this\n");
    ExpectRefused({"put", "a.ini", "in.csv", "--csv", "--separator", "semicolon"},
                  head + "  in.csv:2: column 3 (RTPW): \"25,5\" is not a number; the decimal sign is a point "
                         "without --decimal comma\n");
    ExpectShell("quorconv put a.ini in.csv --csv --separator semicolon --decimal comma", "",
                "quorconv: 1 probe put\n");
    ExpectShell("quorconv export a.ini --csv --type w90 --separator semicolon --decimal comma",
                "section;type;RTPW [ohm]\r\nA;CONV_WT90;25,5\r\n", "quorconv: 1 probe exported\n");
    ExpectShell(
        "quorconv export a.ini --csv --type w90 --separator tab | quorconv put b.ini --csv --separator tab",
        "", "quorconv: 1 probe exported\nquorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("a.ini"), folder.Read("b.ini"));
    const std::string hint = "; \"--separator semicolon\" reads a table like this\n";
    folder.Write("in.csv", "\"section\";\"type\"\n");
    ExpectRefused({"put", "a.ini", "in.csv", "--csv"},
                  head +
                      "  in.csv:1: column 1: a comma or the end of the line expected after the field in "
                      "quotes" +
                      hint);
    folder.Write("in.csv", "section;type;Coefficients1 [ALPHA, 1/\xC2\xB0"
                           "C or A, 1/\xC2\xB0"
                           "C]\nA;cvd;0,00385\n"); // its names have commas
    ExpectRefused({"put", "a.ini", "in.csv", "--csv"},
                  head + "  in.csv:1: there is no column \"section\"" + hint);
    folder.Write("in.csv", "section;type;\"RTPW [ohm]\"\nA;w90;1\n");
    ExpectRefused(
        {"put", "a.ini", "in.csv", "--csv"},
        head + "  in.csv:1: a quote inside a field: put the whole field in quotes and double the quote" +
            hint);
    folder.Write("in.csv", "name;type\nA;w90\n"); // no separator makes a table of it
    ExpectRefused({"put", "a.ini", "in.csv", "--csv"}, head + "  in.csv:1: there is no column \"section\"\n");
}

TEST_F(QuorconvLossTest, EachWrongLineOfATableAndEachWrongStepIsTold) {
    folder.Write("in.csv", "section,type,RTPW\nA,w90,1\n,,\nB,w90,x\nC,w99,2\n");
    ExpectRefused({"put", "a.ini", "in.csv", "--csv"},
                  "quorconv: a.ini: nothing was written, because 3 lines of in.csv are wrong\n"
                  "  in.csv:3: all fields of the line are empty\n"
                  "  in.csv:4: column 3 (RTPW): \"x\" is not a number\n"
                  "  in.csv:5: column 2 (type): \"w99\" is no conversion type\n");
    ExpectFine({"new", "a.ini", "A", "w90", "RTPW=1"});
    folder.Write("steps.txt", "\xEF\xBB\xBFremove X\nset A RTPW=3\nrename Y Z\nset A R0=1\n");
    const std::string before = folder.Read("a.ini");
    ExpectRefused({"apply", "a.ini", "steps.txt"},
                  "quorconv: a.ini: nothing was written, because 3 lines of steps.txt are wrong\n"
                  "  steps.txt:1: a.ini: [X]: there is no such section\n"
                  "  steps.txt:3: a.ini: [Y]: there is no such section\n"
                  "  steps.txt:4: a.ini: [A] R0: there is no such key in a record of this type\n");
    EXPECT_EQ(folder.Read("a.ini"), before);
}

TEST_F(QuorconvLossTest, AnEmptyStandardInputIsNoSuccess) {
    ExpectFine({"new", "a.ini", "A", "w90", "RTPW=1"});
    for (const std::string command :
         {"list -", "export - --jsonl", "apply a.ini", "set a.ini --from -", "put a.ini --json"})
        ExpectShell("quorconv " + command + " </dev/null", "",
                    "quorconv: -: there is nothing in the standard input\n", 1);
    ExpectShell("quorconv check - </dev/null", "-: there is nothing in the standard input\n", "", 1);
    ExpectShell("quorconv new - A w90 RTPW=1 </dev/null", folder.Read("a.ini"));
}

TEST_F(QuorconvLossTest, NothingAtAllInAnInputIsNoSuccessAndAnExplicitNothingIsOne) {
    ExpectFine({"new", "a.ini", "A", "w90", "RTPW=1"});
    for (const char* const nothing : {"", "\n", " \t\r\n\n", "\xEF\xBB\xBF\r\n"}) {
        folder.Write("in", nothing);
        for (const std::string command : {"apply a.ini", "set a.ini --from", "put a.ini --json",
                                          "put a.ini --csv", "edit a.ini A --script"}) {
            ExpectShell("quorconv " + command + " in", "", "quorconv: in: there is nothing in this file\n",
                        1);
            ExpectShell("quorconv " + command + " - <in", "",
                        "quorconv: -: there is nothing in the standard input\n", 1);
        }
        ExpectShell("quorconv list - <in", "", "quorconv: -: there is nothing in the standard input\n", 1);
    }
    folder.Write("steps.txt", "# nothing to do\n");
    folder.Write("in.json", "[]\n");
    folder.Write("in.csv", "section,type\n");
    ExpectShell("quorconv apply a.ini steps.txt", "", "quorconv: 0 steps done\n");
    ExpectShell("quorconv set a.ini --from steps.txt", "", "quorconv: 0 steps done\n");
    ExpectShell("quorconv put a.ini in.json --json", "", "quorconv: 0 probes put\n");
    ExpectShell("quorconv put a.ini in.csv --csv", "", "quorconv: 0 probes put\n");
}

TEST_F(QuorconvLossTest, ShownJsonIsWholeOrNothing) {
    ExpectFine({"new", "a.ini", "A", "10"});
    ExpectRefused({"show", "--json", "none.ini"}, "quorconv: File not found: none.ini\n");
    ExpectShell("quorconv show --json none.ini --also a.ini",
                "[\n  {\n    \"section\": \"A\",\n    \"code\": 10,\n    \"type\": \"CONV_OHMS\",\n    "
                "\"name\": \"Ohms\",\n    \"settings\": {}\n  }\n]\n",
                "quorconv: File not found: none.ini\n", 1);
    folder.Write(
        "in.json",
        R"({"section": "A", "type": "cvd", "settings": {"Coefficients": [{"value": 1}, {"value": 1e400}]}})");
    ExpectRefused({"put", "b.ini", "in.json", "--json"},
                  "quorconv: b.ini: nothing was written, because a line of in.json is wrong\n"
                  "  in.json:1:87: settings/Coefficients[1]/value: the number is too large for a double\n");
}

TEST_F(QuorconvLossTest, SectionsThatStandTwiceAreNamedByDiff) {
    ExpectFine({"new", "a.ini", "A", "w90", "RTPW=1"});
    folder.Write("b.ini", folder.Read("a.ini") + "[A - Settings]\nRTPW=2\n[Host]\n[Host]\n");
    ExpectShell(
        "quorconv diff a.ini b.ini", "",
        "quorconv: b.ini:8: [A - Settings]: the section occurs twice; the one in line 5 is compared\n");
}

TEST_F(QuorconvLossTest, CheckWarnsOfAThermocoupleTypeThatThereIsNot) {
    const std::string file = "[A]\nConversionType=9\n[A - Settings]\nTCType=77\nNumPoints=0\nTempScale=K\n"
                             "OffsetScale=K\nCoefficients0=0\nCoefficients1=0\n";
    folder.Write("a.ini", file);
    const std::string warning =
        "a.ini:4: warning: [A - Settings] TCType: TCType is 77; limit: -1 to 12 [unknown-code]\n";
    ExpectFine({"check", "a.ini"}, warning);
    ExpectShell("quorconv check --strict a.ini", warning, "", 1);
    ExpectFine({"check", "a.ini", "--ignore", "unknown-code"});
    ExpectFine({"set", "a.ini", "A", "OffsetScale=C"}); // what stands there already stays
    EXPECT_EQ(folder.Read("a.ini"), Replaced(file, "OffsetScale=K", "OffsetScale=C"));
}

TEST_F(QuorconvLossTest, ADryRunOfAnEditPrintsWhatTheDialogWouldWrite) {
    ExpectFine({"new", "a.ini", "A", "w90", "RTPW=1"});
    const std::string before = folder.Read("a.ini");
    folder.Write("steps.txt", "type RTPW 25.5\nclick OK\n");
    const Outcome run = Quorconv({"edit", "a.ini", "A", "--script", "steps.txt", "--dry-run"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_NE(run.out.find("\n-RTPW=1\n+RTPW=25.5\n"), std::string::npos) << run.out;
    EXPECT_EQ(folder.Read("a.ini"), before);
    ExpectFine({"edit", "a.ini", "A", "--script", "steps.txt"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(before, "RTPW=1\n", "RTPW=25.5\n"));
}

TEST_F(QuorconvLossTest, CopiesFromSeveralFilesAndNeverTwoProbesIntoOne) {
    ExpectFine({"new", "a.ini", "A", "w90", "RTPW=1"});
    ExpectFine({"new", "b.ini", "B", "w90", "RTPW=2"});
    ExpectShell("quorconv copy a.ini '*' c.ini --also b.ini", "", "quorconv: 2 probes copied\n");
    ExpectFine({"list", "c.ini"}, "A\tCONV_WT90\tW(T90)\nB\tCONV_WT90\tW(T90)\n");
    ExpectFine({"rename", "b.ini", "B", "a"});
    const std::string before = folder.Read("c.ini");
    ExpectRefused({"copy", "a.ini", "*", "c.ini", "--also", "b.ini", "--replace"},
                  "quorconv: b.ini: [a]: a probe of this name stands in several of the files\n");
    EXPECT_EQ(folder.Read("c.ini"), before);
}

TEST_F(QuorconvLossTest, OfAKeyThatIsGivenTwiceNeitherValueIsTaken) {
    ExpectFine({"new", "a.ini", "P", "w90", "RTPW=25.5"});
    const std::string before = folder.Read("a.ini");
    ExpectRefused({"set", "a.ini", "P", "RTPW=1", "rtpw=2"}, "quorconv: rtpw: the key is given twice\n", 2);
    ExpectRefused({"new", "a.ini", "Q", "w90", "RTPW=1", "RTPW=2"},
                  "quorconv: RTPW: the key is given twice\n", 2);
    ExpectShell("echo 'set P RTPW=1 RTPW=1' | quorconv apply a.ini", "",
                "quorconv: a.ini: nothing was written, because a line of - is wrong\n"
                "  -:1: RTPW: the key is given twice\n",
                1);
    EXPECT_EQ(folder.Read("a.ini"), before);
}

TEST_F(QuorconvLossTest, ACopyHasTheKeysThatNoRecordHasAndTheValuesBeyondTheCount) {
    folder.Write("a.ini", "[P]\nConversionType=2\nDue=2026-05\n\n"
                          "[P - Settings]\nNumCoefficients=2\nUsePolynomial=0\nCoefficients0=100\n"
                          "Coefficients1=0.0039\nCoefficients2=1.50\nCertificate=K17\n");
    const std::string copy = "Version=1.0\nConversionType=2\nDue=2026-05\n\n"
                             "[Q - Settings]\nVersion=1.0\nNumCoefficients=2\nUsePolynomial=False\n"
                             "Coefficients0=100\nCoefficients1=0.0039\nCoefficients2=1.50\n"
                             "Certificate=K17\n";
    ExpectFine({"copy", "a.ini", "P", "b.ini", "Q"});
    EXPECT_EQ(folder.Read("b.ini"), "[Q]\n" + copy);
    ExpectShell("echo 'copy P Q' | quorconv apply a.ini --dry-run | grep '^+[^+]' | cut -c 2-",
                Replaced("[Q]\n" + copy, "\n\n", "\n"), "quorconv: 1 step would be done\n");
    ExpectFine({"copy", "a.ini", "P", "c.cvd", "Callendar-Van Dusen"});
    EXPECT_NE(folder.Read("c.cvd").find("Coefficients2=1.50\nCertificate=K17\n"), std::string::npos)
        << folder.Read("c.cvd");
    ExpectFine({"copy", "c.cvd", "Callendar-Van Dusen", "d.ini", "Q"});
    EXPECT_NE(folder.Read("d.ini").find("Coefficients2=1.50\n"), std::string::npos) << folder.Read("d.ini");
    folder.Write("e.ini", Replaced("[P]\n" + Replaced(copy, "[Q", "[P"), "1.50", "1.6"));
    ExpectFine({"copy", "a.ini", "P", "e.ini", "--replace"});
    EXPECT_EQ(folder.Read("e.ini"), "[P]\n" + Replaced(copy, "[Q", "[P"));
}

TEST_F(QuorconvLossTest, ACopyOfAProbeWithoutSettingsTakesNoSectionOfTheHostAlong) {
    folder.Write("a.ini", "[O]\nConversionType=10\nDue=2026-05\n[O - Settings]\nLamp=1\n");
    ExpectFine({"copy", "a.ini", "O", "b.ini"});
    EXPECT_EQ(folder.Read("b.ini"), "[O]\nVersion=1.0\nConversionType=10\nDue=2026-05\n");
    const std::string other = "[O]\nVersion=1.0\nConversionType=10\n[O - Settings]\nLamp=2\n";
    folder.Write("b.ini", other);
    ExpectFine({"copy", "a.ini", "O", "b.ini", "--replace"});
    EXPECT_EQ(folder.Read("b.ini"), Replaced(other, "=10\n", "=10\nDue=2026-05\n"));
}

TEST_F(QuorconvLossTest, AProbeThatOccursTwiceIsToldWhereItIsReadAndRefusedWhereItIsWritten) {
    const std::string file = "[P]\nConversionType=14\n[P - Settings]\nRTPW=25.5\n"
                             "[Q]\nConversionType=14\n[Q - Settings]\nRTPW=7\n[P - Settings]\nRTPW=25.6\n";
    folder.Write("a.ini", file);
    const std::string told =
        "quorconv: a.ini:9: [P - Settings]: the section occurs twice; the one in line 3 is read\n";
    ExpectShell("quorconv get a.ini P RTPW", "25.5\n", told);
    ExpectShell("quorconv show a.ini P", "[P] CONV_WT90 W(T90)\nRTPW=25.5\n", told);
    ExpectShell("quorconv export a.ini --csv --type w90",
                "section,type,RTPW [ohm]\r\nP,CONV_WT90,25.5\r\nQ,CONV_WT90,7\r\n",
                told + "quorconv: 2 probes exported\n");
    const std::string what = "a.ini: nothing was written, because the probe occurs twice";
    const std::string line = "line 9: [P - Settings] occurs twice; the first is in line 3\n";
    const std::string refused = "quorconv: " + what + "\n  " + line;
    ExpectRefused({"set", "a.ini", "P", "RTPW=1"}, refused);
    ExpectRefused({"copy", "a.ini", "P", "b.ini"}, refused);
    ExpectRefused({"rename", "a.ini", "P", "R"}, refused);
    ExpectRefused({"retype", "a.ini", "P", "pt1"}, refused);
    ExpectRefused({"remove", "a.ini", "P"}, refused);
    ExpectRefused({"remove", "a.ini", "*"}, refused);
    ExpectRefused({"copy", "a.ini", "Q", "a.ini", "p", "--replace"}, refused);
    ExpectShell("quorconv export a.ini --csv --type w90 2>/dev/null | quorconv put a.ini --csv", "",
                "quorconv: a.ini: nothing was written, because a line of - is wrong\n  -:2: " + what +
                    "\n    " + line,
                1);
    ExpectShell("echo 'set P RTPW=1' | quorconv apply a.ini", "",
                "quorconv: a.ini: nothing was written, because a line of - is wrong\n  -:1: " + what +
                    "\n    " + line,
                1);
    EXPECT_EQ(folder.Read("a.ini"), file);
    ExpectFine({"set", "a.ini", "Q", "RTPW=8"});
}

TEST_F(QuorconvLossTest, ACopyHasTheFirstOfTwoLinesOfAKeyWhichIsTheOneThatIsRead) {
    folder.Write("a.ini", "[P]\nConversionType=2\nDue=5\nDue=1\nConversionType=3\n\n"
                          "[P - Settings]\nNumCoefficients=2\nUsePolynomial=0\nCoefficients0=100.0\n"
                          "Coefficients1=0.0039\ncoefficients0=999.0\nNumCoefficients=7\n");
    const std::string copy = "Version=1.0\nConversionType=2\nDue=5\n\n"
                             "[Q - Settings]\nVersion=1.0\nNumCoefficients=2\nUsePolynomial=False\n"
                             "Coefficients0=100\nCoefficients1=0.0039\n";
    ExpectFine({"copy", "a.ini", "P", "b.ini", "Q"});
    EXPECT_EQ(folder.Read("b.ini"), "[Q]\n" + copy);
    ExpectShell("echo 'copy P Q' | quorconv apply a.ini --dry-run | grep '^+[^+]' | cut -c 2-",
                Replaced("[Q]\n" + copy, "\n\n", "\n"), "quorconv: 1 step would be done\n");
    folder.Write("empty.ini", "");
    folder.Write("c.ini", "");
    ExpectShell("quorconv merge empty.ini c.ini a.ini", "", "quorconv: 1 probe merged\n");
    EXPECT_EQ(folder.Read("c.ini"), Replaced("[P]\n" + copy, "[Q", "[P"));
}

TEST_F(QuorconvLossTest, ACountThatMendsARecordLeavesNoValueOutWithoutDrop) {
    const std::string table =
        "[T]\nVersion=1.0\nConversionType=8\n\n[T - Settings]\nVersion=1.0\nNumPoints=20\n"
        "Temperatures0=0\nVoltages0=0\nTemperatures1=10\nVoltages1=0.4\n"
        "Temperatures2=20\nVoltages2=0.8\n";
    folder.Write("a.ini", table);
    ExpectRefused({"set", "a.ini", "T", "NumPoints=2"},
                  "quorconv: a.ini: [T] values of the probe would be lost; use --drop to allow it\n"
                  "  Temperatures2=20\n  Voltages2=0.8\n");
    EXPECT_EQ(folder.Read("a.ini"), table);
    ExpectFine({"set", "a.ini", "T", "NumPoints=3"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(table, "=20\nTemp", "=3\nTemp"));
    folder.Write("a.ini", table);
    ExpectFine({"set", "a.ini", "T", "NumPoints=2", "--drop"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(table, "=20\nTemp", "=2\nTemp"));
}

TEST_F(QuorconvLossTest, ARecordOfWhichAValueWouldBeAnotherOneIsRefusedAndMendedByThatValue) {
    for (const std::string order : {"-5", "99"}) {
        const std::string file =
            "[P]\nVersion=1.0\nConversionType=4\n\n[P - Settings]\nVersion=1.0\nOrder=" + order +
            "\nCoefficients0=1\nCoefficients1=2\nCoefficients2=3\n"
            "Coefficients3=4\nCoefficients4=5\n";
        folder.Write("a.ini", file);
        const std::string refusal = "a.ini: [P]: the record cannot be read\n"
                                    "  line 7: [P - Settings] Order: the value " +
                                    order + " is not accepted" +
                                    (order == "99" ? "; 4 would be used\n" : "\n");
        for (const auto& command :
             std::vector<std::vector<std::string>>{{"show", "a.ini", "P"},
                                                   {"show", "a.ini", "P", "--jsonl"},
                                                   {"get", "a.ini", "P", "Order"},
                                                   {"set", "a.ini", "P", "Coefficients0=7"}})
            ExpectRefused(command, "quorconv: " + refusal);
        ExpectShell("quorconv export a.ini --jsonl", "",
                    "quorconv: " + refusal + "quorconv: 0 probes exported\n", 1);
        ExpectFine({"set", "a.ini", "P", "Order=4"});
        EXPECT_EQ(folder.Read("a.ini"), Replaced(file, "Order=" + order, "Order=4"));
        folder.Write("a.ini", file);
        folder.Write("in.csv", "section,Order,Coefficients1\nP,4,8\n");
        ExpectShell("quorconv put a.ini in.csv --csv --type ply", "", "quorconv: 1 probe put\n");
        EXPECT_EQ(folder.Read("a.ini"), Replaced(Replaced(file, "Order=" + order, "Order=4"), "1=2", "1=8"));
        const std::string good = Replaced(file, "Order=" + order, "Order=4");
        folder.Write("good.ini", good);
        folder.Write("a.ini", file);
        ExpectRefused({"merge", "good.ini", "good.ini", "a.ini"}, "quorconv: " + refusal);
        EXPECT_EQ(folder.Read("good.ini"), good);
    }
    const std::string table =
        "[T]\nConversionType=9\n[T - "
        "Settings]\nTCType=4\nCoefficients0=0\nCoefficients1=0\nNumPoints=11\nTempScale=C\n"
        "OffsetScale=C\n";
    folder.Write("t.ini", table);
    EXPECT_EQ(Quorconv({"set", "t.ini", "T", "NumPoints=0"}).err, "");
    EXPECT_EQ(folder.Read("t.ini"), Replaced(table, "=11", "=0"));
}

TEST_F(QuorconvLossTest, AKeyThatIsMissingOrRefusedIsGivenUnderAnySpellingOfTheSection) {
    folder.Write("a.ini", "[Probe]\nConversionType=14\n[Probe - Settings]\n");
    ExpectShell("echo 'set pROBE RTPW=25.5' | quorconv apply a.ini", "", "quorconv: 1 step done\n");
    ExpectFine({"get", "a.ini", "Probe", "RTPW"}, "25.5\n");
    const std::string file = "[P]\nConversionType=4\n[P - Settings]\nOrder=-1\nCoefficients0=1\n"
                             "Coefficients1=2\nCoefficients2=3\nCoefficients3=4\nCoefficients4=5\n";
    folder.Write("b.ini", file);
    folder.Write("in.csv", "section,Order\np,4\n");
    ExpectShell("quorconv put b.ini in.csv --csv --type ply", "", "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("b.ini"), Replaced(file, "-1", "4"));
}

TEST_F(QuorconvLossTest, ATableThatChangesAFlagOrAScaleAloneGivesNoValuesAnotherMeaning) {
    ExpectFine({"new", "a.ini", "C", "cvd", "Coefficients0=100", "Coefficients1=0.00385", "Coefficients2=1.5",
                "Coefficients3=0"});
    const std::string before = folder.Read("a.ini");
    const std::string meaning =
        "a.ini: [C] values of the probe would change their meaning; enter them again, or use --drop to "
        "allow it\n    Coefficients1=0.00385, by UsePolynomial=True\n"
        "    Coefficients2=1.5, by UsePolynomial=True\n";
    ExpectShell("quorconv export a.ini --csv --type cvd | sed s/False/True/ >t.csv; "
                "quorconv put a.ini t.csv --csv",
                "",
                "quorconv: 1 probe exported\n"
                "quorconv: a.ini: nothing was written, because a line of t.csv is wrong\n  t.csv:2: " +
                    meaning,
                1);
    ExpectShell(
        "quorconv show a.ini C --json | sed s/false/true/ | grep -v name | quorconv put a.ini - --json", "",
        "quorconv: a.ini: nothing was written, because a line of - is wrong\n  -:1:1: " + meaning, 1);
    EXPECT_EQ(folder.Read("a.ini"), before);
    // New values, of which two are as they were and mean the same in both forms, or nothing.
    ExpectShell("sed -i 's/0.00385/0.0039/; s/1.5/-5.8e-7/' t.csv; quorconv put a.ini t.csv --csv", "",
                "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("a.ini"),
              Replaced(Replaced(Replaced(before, "False", "True"), "0.00385", "0.0039"), "1.5", "-5.8e-07"));
    ExpectFine({"new", "a.ini", "T", "tcx", "TCType=4", "NumPoints=1", "Temperatures0=5", "Offsets0=0.25",
                "TempScale=C", "OffsetScale=C"});
    const std::string points = folder.Read("a.ini");
    ExpectShell(
        "printf 'section,TempScale,Temperatures0\nT,F,5\n' >s.csv; "
        "quorconv put a.ini s.csv --csv --type tcx",
        "",
        "quorconv: a.ini: nothing was written, because a line of s.csv is wrong\n  s.csv:2: a.ini: [T] "
        "values of the probe would change their meaning; enter them again, or use --drop to allow it\n"
        "    Temperatures0=5, by TempScale=F\n",
        1);
    EXPECT_EQ(folder.Read("a.ini"), points);
    ExpectShell("quorconv put a.ini s.csv --csv --type tcx --drop", "", "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("a.ini"), Replaced(points, "TempScale=C", "TempScale=F"));
}
