// Several processes at one probe: no update of any of them is lost.

#include "tests/apps/quorconv/Quorconv.h"
#include "tests/support/Process.h"

namespace {

class QuorconvProcessesTest : public QuorconvTest {
protected:
    const std::string before = "; The host's own file\r\n"
                               "[Probe 1]\r\n"
                               "Version=1.0\r\n"
                               "ConversionType=2\r\n"
                               "[Probe 1 - Settings]\r\n"
                               "Version=1.0\r\n"
                               "NumCoefficients=4\r\n"
                               "UsePolynomial=False\r\n"
                               "; as calibrated\r\n"
                               "Coefficients0=100.01\r\n"
                               "Coefficients1=3.9083E-3\r\n"
                               "Coefficients2=1.50\r\n"
                               "Coefficients3=0\r\n";

    /// Runs shell commands in the folder, beside the test; $quorconv is the program.
    [[nodiscard]] Process Shell(const std::string& commands) const {
        return Process(
            {"sh", "-c", "quorconv='" QUORCONV "'; cd '" + folder.Path().string() + "'; " + commands});
    }

    /// Plays `edit` in the dialog of "Probe 1", and has `meanwhile` done while the dialog is open.
    [[nodiscard]] Outcome EditWhile(const std::string& edit, const std::function<void()>& meanwhile) const {
        // What it shows fills the pipe: it waits in its dialog until somebody reads.
        std::string script;
        for (int i = 0; i < 2000; ++i)
            script += "show\n";
        folder.Write("steps.txt", script + edit);
        Process process = Shell("exec \"$quorconv\" edit host.ini 'Probe 1' --script steps.txt 2>.err");
        std::string line = process.ReadLine();
        EXPECT_EQ(line, "Callendar-Van Dusen Settings");
        EXPECT_FALSE(process.HasEnded());
        meanwhile();
        for (int dialogs = 0; !line.empty(); line = process.ReadLine())
            dialogs += line == "Callendar-Van Dusen Settings" ? 1 : 0;
        const int code = process.Wait();
        return {code, "", folder.Read(".err")};
    }
};

} // namespace

TEST_F(QuorconvProcessesTest, EightProcessesThatSetKeysOfTheirOwnOfOneProbeLoseNoUpdate) {
    std::string keys;
    std::string expected;
    for (int i = 0; i < 96; ++i) {
        keys += "Coefficients" + std::to_string(i) + " = 0.50 ; ohms\r\n";
        expected += "Coefficients" + std::to_string(i) + " = " + std::to_string(i + 1) + " ; ohms\r\n";
    }
    const std::string head = before.substr(0, before.find("Coefficients0"));
    const std::string file = Replaced(head, "NumCoefficients=4", "NumCoefficients=96");
    folder.Write("host.ini", file + keys);
    std::vector<Process> processes;
    for (int i = 0; i < 8; ++i)
        processes.push_back(Shell("for n in $(seq " + std::to_string(12 * i) + " " +
                                  std::to_string(12 * i + 11) +
                                  "); do \"$quorconv\" set host.ini 'Probe 1' Coefficients$n=$((n + 1)) 2>&1 "
                                  "|| exit 1; done"));
    for (Process& process : processes) {
        EXPECT_EQ(process.ReadLine(), "");
        EXPECT_EQ(process.Wait(), 0);
    }
    EXPECT_EQ(folder.Read("host.ini"), file + expected);
    EXPECT_EQ(folder.Files(), (std::vector<std::string>{"host.ini"}));
}

TEST_F(QuorconvProcessesTest, OnlyOneOfEightProcessesAddsAProbeOfOneName) {
    folder.Write("host.ini", before);
    std::vector<Process> processes;
    for (int i = 0; i < 8; ++i)
        processes.push_back(Shell("exec \"$quorconv\" new host.ini 'Probe 2' pt1 Coefficients0=" +
                                  std::to_string(100 + i) + " 2>&1"));
    int added = -1;
    for (int i = 0; i < 8; ++i) {
        const std::string line = processes[i].ReadLine();
        if (processes[i].Wait() != 0) {
            EXPECT_EQ(line, "quorconv: host.ini: [Probe 2]: there is a probe in this section already");
            continue;
        }
        EXPECT_EQ(line, "");
        EXPECT_EQ(added, -1) << "two were told that theirs was added";
        added = i;
    }
    EXPECT_EQ(folder.Read("host.ini"),
              before +
                  "\r\n[Probe 2]\r\nVersion=1.0\r\nConversionType=19\r\n\r\n[Probe 2 - Settings]\r\n"
                  "Version=1.0\r\nNumCoefficients=1\r\nCoefficients0=" +
                  std::to_string(100 + added) + "\r\n");
}

TEST_F(QuorconvProcessesTest, AnEditKeepsWhatAnotherProcessChangesWhileTheDialogIsOpen) {
    folder.Write("host.ini", before);
    const Outcome edit = EditWhile("type R0 100.03\nclick OK", [&] {
        ExpectFine({"set", "host.ini", "Probe 1", "Coefficients1=0.004", "UsePolynomial=True", "--drop"});
    });
    EXPECT_EQ(edit.code, 0);
    EXPECT_EQ(edit.err, "");
    EXPECT_EQ(
        folder.Read("host.ini"),
        Replaced(Replaced(Replaced(before, "100.01", "100.03"), "3.9083E-3", "0.004"), "=False", "=True"));
}

TEST_F(QuorconvProcessesTest, AnEditOfTheSameKeyAsAnotherProcessIsToldAndNotWritten) {
    folder.Write("host.ini", before);
    const Outcome edit = EditWhile("type R0 100.03\ntype ALPHA 0.004\ntype DELTA 1.6\nclick OK", [&] {
        ExpectFine({"set", "host.ini", "Probe 1", "Coefficients0=100.02", "Coefficients2=1.7"});
    });
    EXPECT_EQ(edit.code, 1);
    EXPECT_EQ(edit.err,
              "quorconv: host.ini: [Probe 1 - Settings] Coefficients0: another program has changed it "
              "meanwhile from 100.01 to 100.02; yours is 100.03, and nothing was written\n"
              "  host.ini: [Probe 1 - Settings] Coefficients2: another program has changed it "
              "meanwhile from 1.5 to 1.7; yours is 1.6, and nothing was written\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(Replaced(before, "100.01", "100.02"), "1.50", "1.7"));
}

TEST_F(QuorconvProcessesTest, AnEditOfTheSameKeyToTheSameValueIsNoConflict) {
    folder.Write("host.ini", before);
    const Outcome edit = EditWhile("type R0 100.03\nclick OK", [&] {
        ExpectFine({"set", "host.ini", "Probe 1", "Coefficients0=100.03"});
    });
    EXPECT_EQ(edit.code, 0);
    EXPECT_EQ(edit.err, "");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "100.01", "100.03"));
}

TEST_F(QuorconvProcessesTest, AnEditOfAProbeThatIsRemovedMeanwhileOrGetsAnotherTypeIsTold) {
    folder.Write("host.ini", before);
    const std::string removed = "; The host's own file\r\n[Other]\r\n";
    const Outcome edit = EditWhile("type R0 100.03\nclick OK", [&] { folder.Write("host.ini", removed); });
    EXPECT_EQ(edit.code, 1);
    EXPECT_EQ(edit.err, "quorconv: host.ini: [Probe 1] ConversionType: another program has removed it "
                        "meanwhile, which was 2; yours is 2, and nothing was written\n"
                        "  host.ini: [Probe 1 - Settings] Coefficients0: another program has removed it "
                        "meanwhile, which was 100.01; yours is 100.03, and nothing was written\n");
    EXPECT_EQ(folder.Read("host.ini"), removed);

    folder.Write("host.ini", before);
    const std::string other = Replaced(before, "ConversionType=2", "ConversionType=4");
    const Outcome second = EditWhile("type R0 100.03\nclick OK", [&] { folder.Write("host.ini", other); });
    EXPECT_EQ(second.code, 1);
    EXPECT_EQ(second.err, "quorconv: host.ini: [Probe 1] ConversionType: another program has changed it "
                          "meanwhile from 2 to 4; yours is 2, and nothing was written\n");
    EXPECT_EQ(folder.Read("host.ini"), other);
}
