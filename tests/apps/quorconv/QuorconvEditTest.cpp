#include "tests/apps/quorconv/Quorconv.h"
#include "tests/support/Environment.h"

namespace {

/// Runs of "quorconv edit" on the file "host.ini".
class QuorconvEditTest : public QuorconvTest {
protected:
    const std::string before = "; The host's own file\n"
                               "[Probe 1]\n"
                               "Version=1.0\n"
                               "ConversionType=2\n"
                               "[Probe 1 - Settings]\n"
                               "Version=1.0\n"
                               "NumCoefficients=4\n"
                               "UsePolynomial=False\n"
                               "; as calibrated\n"
                               "Coefficients0=100.0\n"
                               "Coefficients1=3.9083E-3\n"
                               "Coefficients2=1.5\n"
                               "Coefficients3=0\n"
                               "[Probe 2]\n"
                               "ConversionType=10\n";

    void SetUp() override { folder.Write("host.ini", before); }

    /// The arguments that play `script` in the dialog of "Probe 1".
    [[nodiscard]] std::vector<std::string> Playing(const std::string& script) const {
        folder.Write("steps.txt", script);
        return {"edit", "host.ini", "Probe 1", "--script", "steps.txt"};
    }
    void ExpectGoneWrong(const std::string& script, const std::string& complaints) const {
        ExpectRefused(Playing(script),
                      "quorconv: host.ini: [Probe 1]: the dialog did not go as the script says\n" +
                          complaints);
        EXPECT_EQ(folder.Read("host.ini"), before) << script;
    }
};

const std::string shown = "Callendar-Van Dusen Settings\n"
                          "Callendar-Van Dusen:\n"
                          "  R0: [100]\n"
                          "  ALPHA: [0.0039083]\n"
                          "  DELTA: [1.5]\n"
                          "  BETA: [0]\n"
                          "  <OK>\n"
                          "  <Cancel>\n"
                          "  <Help>\n"
                          "  <Open>\n"
                          "  <Save As>\n";

} // namespace

TEST_F(QuorconvEditTest, WritesWhatWasTypedAndAcceptedAndNothingElse) {
    ExpectFine(Playing("type R0 100.0123\nclick OK\n"));
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "=100.0\n", "=100.0123\n"));
}

TEST_F(QuorconvEditTest, WritesTheNumberThatAPasteMeans) {
    ExpectFine(Playing("paste R0 = 1 234.5 \u03A9 into R0\nexpect advice Pasted as 1234.5\nclick OK\n"));
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "=100.0\n", "=1234.5\n"));
}

TEST_F(QuorconvEditTest, WritesNothingWhenTheDialogAdvisesWhatTheScriptDoesNotExpect) {
    const std::string refusal = "quorconv: host.ini: [Probe 1]: nothing was written, because of advice that "
                                "the script does not expect\n";
    const std::string separator = "The decimal separator here is the point";
    ExpectRefused(Playing("type R0 100,5\nclick OK"),
                  refusal + "  " + separator + " (line 1: type R0 100,5)\n");
    ExpectRefused(Playing("paste 100,012 into R0\ntype ALPHA 0.0039\nclick OK"),
                  refusal + "  Nothing pasted: 100,012 can be read in two ways (line 1: paste 100,012 into "
                            "R0)\n");
    EXPECT_EQ(folder.Read("host.ini"), before);
    ExpectFine(Playing("type R0 100,5\nescape"));
    EXPECT_EQ(folder.Read("host.ini"), before);
}

TEST_F(QuorconvEditTest, PrintsAndExpectsWhatTheDialogAdvises) {
    const std::string advice = "Nothing pasted: 100,012 can be read in two ways";
    ExpectFine(Playing("paste 100,012 into R0\nexpect advice " + advice + "\nshow\nescape"),
               Replaced(shown, "[100]", "[100] ! " + advice));
    ExpectGoneWrong("expect advice Not a number: 0 would be stored\nescape",
                    "  there is no advice \"Not a number: 0 would be stored\"\n"
                    "  in line 1: expect advice Not a number: 0 would be stored\n"
                    "  the dialog \"Callendar-Van Dusen Settings\" was left open\n");
}

TEST_F(QuorconvEditTest, WritesNothingThatWasCancelled) {
    for (const std::string leave : {"click Cancel", "escape"})
        ExpectFine(Playing("type R0 100.0123\n" + leave));
    EXPECT_EQ(folder.Read("host.ini"), before);
}

TEST_F(QuorconvEditTest, StoresNothingOfADialogThatIsClosedByItsFrame) {
    ExpectFine(Playing("type R0 100.0123\nclose"));
    EXPECT_EQ(folder.Read("host.ini"), before);
}

TEST_F(QuorconvEditTest, ShowsTheDialogAsTextAndWritesNothing) {
    ExpectFine({"edit", "host.ini", "Probe 1", "--show"}, shown);
    EXPECT_EQ(folder.Read("host.ini"), before);
}

TEST_F(QuorconvEditTest, ShowsTheDialogAsItOpensAndThenPlaysTheScript) {
    auto arguments = Playing("type R0 99.5\nshow\nclick OK\n");
    arguments.emplace_back("--show");
    ExpectFine(arguments, shown + Replaced(shown, "[100]", "[99.5]"));
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "=100.0\n", "=99.5\n"));
}

TEST_F(QuorconvEditTest, EditsAProbeOfEveryType) {
    const struct {
        const char* type;
        const char* script;
        const char* line; // that the file then holds
    } cases[] = {
        {"i90",
         "type RTPW 25.5\nchoose Select low range to use Range 4 (83K to 273K)\n"
         "expect advice Not a number: 0 would be stored\ntype A[4] -1e-4",
         "Coefficients0=-1e-04"},
        {"i68", "type R0 100\ntype ALPHA 0.0039\ntype DELTA 1.5", "Coefficients2=1.5"},
        {"cvd", "type R0 100\ntype ALPHA 0.0039\ntype DELTA 1.5", "Coefficients2=1.5"},
        {"pt1", "type R0 100.5", "Coefficients0=100.5"},
        {"hpt", "type RTPW 2.5\ntype A 1\ntype B 3", "Coefficients2=3"},
        {"w90", "type RTPW 25.5", "RTPW=25.5"},
        {"thr", "type A3 1e-7", "Coefficients3=1e-07"},
        {"ply", "type A4 7", "Coefficients4=7"},
        {"tcp", "type C15 0.5", "Coefficients15=0.5"},
        {"tct", "choose Number of points 2\ntype Voltage 2 4.5", "Voltages1=4.5"},
        {"tcx", "choose Type S\ntype DC2 0.25\ntype Offset 3 1", "Offsets2=1"},
        {"ttp", "choose Type T\ntype C3 8", "Coefficients3=8"},
    };
    for (const auto& [type, script, line] : cases) {
        SCOPED_TRACE(type);
        const std::string file = std::string("new-") + type + ".ini";
        ExpectFine({"new", file, "P", type});
        folder.Write("steps.txt", std::string(script) + "\nclick OK\n");
        ExpectFine({"edit", file, "P", "--script", "steps.txt"});
        EXPECT_NE(folder.Read(file).find(std::string("\n") + line + "\n"), std::string::npos)
            << folder.Read(file);
    }
}

TEST_F(QuorconvEditTest, EditsAStandAloneFile) {
    ExpectFine({"new", "a.pt1", "Callendar-Van Dusen", "pt1"});
    folder.Write("steps.txt", "type R0 100.5\nclick OK");
    ExpectFine({"edit", "a.pt1", "Callendar-Van Dusen", "--script", "steps.txt"});
    EXPECT_EQ(folder.Read("a.pt1"),
              "[Callendar-Van Dusen]\nVersion=1.0\nNumCoefficients=1\nCoefficients0=100.5\n");
}

TEST_F(QuorconvEditTest, SavesToAnotherFileAndOpensIt) {
    ExpectFine(Playing("type R0 7.5\nfile saved.cvd\nclick Save As\nclick Cancel"));
    EXPECT_EQ(folder.Read("host.ini"), before);
    ExpectFine(Playing("file saved.cvd\nclick Open\nshow\nclick OK"), Replaced(shown, "[100]", "[7.5]"));
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "=100.0\n", "=7.5\n"));
}

TEST_F(QuorconvEditTest, GoesOnAfterAMessageThatTheScriptExpects) {
    ExpectFine(Playing("type R0 0\nexpect Enter valid values for all coefficients.\nclick OK\n"
                       "type R0 8\nclick OK\n"));
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "=100.0\n", "=8\n"));
}

TEST_F(QuorconvEditTest, WritesNothingWhenTheDialogGoesOtherwise) {
    const std::string leftOpen = "  the dialog \"Callendar-Van Dusen Settings\" was left open\n";
    ExpectGoneWrong("type R0 0\nclick OK\nescape",
                    "  there was the message \"Enter valid values for all coefficients.\"\n"
                    "  in line 2: click OK\n" +
                        leftOpen);
    ExpectGoneWrong("type R0 7\ntype R1 7\nclick OK",
                    "  there is no \"R1\" in this dialog\n  in line 2: type R1 7\n" + leftOpen);
    ExpectGoneWrong("type R0 7\n", leftOpen);
    ExpectGoneWrong("# nothing\n", leftOpen);
    ExpectGoneWrong("expect Boo\ntype R0 7\nclick OK",
                    "  there was no message \"Boo\"\n  in line 1: expect Boo\n");
    ExpectGoneWrong("expect Boo\ntype R0 7\nclick OK\ntype R0 8\nclick OK",
                    "  there was no message \"Boo\"\n  in line 1: expect Boo\n");
    ExpectGoneWrong("file a.cvd\ntype R0 7\nclick OK", "  there was no file dialog for \"a.cvd\"\n");
    ExpectGoneWrong("type R0 7\nclick OK\ntype R0 8\nclick OK",
                    "  the dialog is closed\n  in line 3: type R0 8\n");
}

TEST_F(QuorconvEditTest, CountsTheLinesOfTheScriptAlone) {
    auto arguments = Playing("# remark\nclick Apply\n");
    arguments.emplace_back("--show");
    const Outcome run = Quorconv(arguments);
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.err.find("\n  in line 2: click Apply\n"), std::string::npos) << run.err;
}

TEST_F(QuorconvEditTest, RefusesAScriptThatItCannotRead) {
    ExpectRefused(Playing("type R0 7\n\npress OK\n"),
                  "quorconv: steps.txt: line 3: there is no command \"press\"\n");
    ExpectRefused(Playing(""), "quorconv: steps.txt: there is nothing in this file\n");
    ExpectRefused(Playing("type"), "quorconv: steps.txt: line 1: \"type\" needs more\n");
    ExpectRefused({"edit", "host.ini", "Probe 1", "--script", "none.txt"},
                  "quorconv: File not found: none.txt\n");
    EXPECT_EQ(folder.Read("host.ini"), before);
}

TEST_F(QuorconvEditTest, RefusesWhatHasNoDialog) {
    ExpectRefused({"edit", "host.ini", "Probe 2", "--show"},
                  "quorconv: host.ini: [Probe 2]: CONV_OHMS has no settings\n");
    EXPECT_EQ(Quorconv({"edit", "host.ini", "Probe 3", "--show"}).code, 1);
    ExpectRefused({"edit", "missing.ini", "Probe 1", "--show"}, "quorconv: File not found: missing.ini\n");
}

TEST_F(QuorconvEditTest, TellsThatNobodyCanClickHere) {
    Support::SetVariable("DISPLAY", nullptr);
    Support::SetVariable("WAYLAND_DISPLAY", nullptr);
    Support::SetVariable("QT_QPA_PLATFORM", nullptr);
    const Outcome run = Quorconv({"edit", "host.ini", "Probe 1"});
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.err.find("quorconv: edit needs --script FILE or --show here: "), 0U) << run.err;
    EXPECT_NE(run.err.find(". A script has a command a line:\n  type R0 100.0123\n  click OK\n"),
              std::string::npos)
        << run.err;
    EXPECT_EQ(Quorconv({"edit", "host.ini"}).code, 2);
    EXPECT_EQ(folder.Read("host.ini"), before);
}

TEST_F(QuorconvEditTest, ATabEndsANameWithBlanksInADiff) {
    const std::string file = "[P]\nConversionType=14\n[P - Settings]\nRTPW=25.5\n";
    folder.Write("my lab.ini", file);
    ExpectFine({"set", "my lab.ini", "P", "RTPW=1", "--dry-run"},
               "--- my lab.ini\t\n+++ my lab.ini\t\n@@ -1,4 +1,4 @@\n [P]\n ConversionType=14\n"
               " [P - Settings]\n-RTPW=25.5\n+RTPW=1\n");
    ExpectShell("quorconv set 'my lab.ini' P RTPW=1 --dry-run | patch -s -p0 && cat 'my lab.ini'",
                Replaced(file, "25.5", "1"));
}

TEST_F(QuorconvEditTest, AFileThatMustNotGrowIsAFailureThatIsTold) {
    ExpectFine({"new", "a.ini", "P", "w90", "RTPW=1"});
    const std::string written = "; " + std::string(2000, 'x') + "\n" + folder.Read("a.ini");
    folder.Write("a.ini", written);
    const Outcome run = Shell("ulimit -f 1; quorconv set a.ini P RTPW=2 2>&1 | cat; exit ${PIPESTATUS[0]}");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "quorconv: Disk full: a.ini: File too large\n");
    EXPECT_EQ(folder.Read("a.ini"), written);
}
