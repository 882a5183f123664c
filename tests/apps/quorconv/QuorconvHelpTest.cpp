// What the help says, and what a shell completes.

#include "tests/apps/quorconv/Quorconv.h"

#include <sstream>

namespace {

class QuorconvHelpTest : public QuorconvTest {
protected:
    /// The files that the examples name.
    void SetUp() override {
        for (const char* const name : {"laboratory.ini", "prt-1188.cvd"})
            std::filesystem::copy_file(std::filesystem::path(QUOR_SAMPLES) / name, folder.Path(name));
        const std::string laboratory = folder.Read("laboratory.ini");
        folder.Write("laboratory-2024.ini", laboratory);
        folder.Write("from-the-field.ini", Replaced(laboratory, "RTPW=25.48317", "RTPW=25.48319"));
        folder.Write("steps.txt", "");
    }

    [[nodiscard]] std::vector<std::string> ExamplesOf(const std::string& command) const {
        std::istringstream lines(Quorconv({command, "--help"}).out);
        std::vector<std::string> examples;
        bool isExample = false;
        for (std::string line; std::getline(lines, line);) {
            if (isExample && line.starts_with("  "))
                examples.push_back(line.substr(2));
            isExample = isExample || line.starts_with("Example");
        }
        return examples;
    }

    /// What bash completes at the end of a line.
    [[nodiscard]] std::string Completed(const std::string& words) const {
        const std::string completion =
            std::filesystem::path(QUORCONV).parent_path().string() + "/made/quorconv.bash";
        const Outcome run = Shell("source '" + completion + "'\nCOMP_WORDS=(" + words +
                                  ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\ncompopt() { :; "
                                  "}\n_quorconv\nprintf '%s\\n' \"${COMPREPLY[@]}\"");
        EXPECT_EQ(run.err, "");
        return run.out;
    }
};

} // namespace

TEST_F(QuorconvHelpTest, EachExampleOfEachCommandRuns) {
    const std::vector<std::string> commands = Commands();
    EXPECT_EQ(commands.size(), 20U);
    EXPECT_EQ(Shell(ExamplesOf("export").front()).code, 0); // the table that "put" reads
    for (const std::string& command : commands) {
        const auto examples = ExamplesOf(command);
        EXPECT_FALSE(examples.empty()) << command;
        for (const std::string& example : examples) {
            for (const std::string name : {"laboratory.ini", "copy.ini"})
                std::filesystem::remove(folder.Path(name));
            std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("laboratory.ini"));
            folder.Write("steps.txt", "set \"Probe 9 PRT-1182\" Coefficients0=100.5\n");
            const Outcome run = Shell(example);
            EXPECT_EQ(run.code, 0) << example << '\n' << run.err;
            EXPECT_NE(example.find("quorconv " + command), std::string::npos) << example;
        }
    }
}

TEST_F(QuorconvHelpTest, CompletesCommandsOptionsTypesAndChoices) {
    EXPECT_EQ(Completed("quorconv re"), "rename\nretype\nremove\n");
    EXPECT_EQ(Completed("quorconv check --s"), "--strict\n--section\n");
    EXPECT_EQ(Completed("quorconv check laboratory.ini --format g"), "gcc\ngithub\n");
    EXPECT_EQ(Completed("quorconv new laboratory.ini P tc"), "tcp\ntct\ntcx\n");
    EXPECT_EQ(Completed("quorconv show laboratory.ini --type CONV_T"),
              "CONV_THERMISTORT_R\nCONV_THERMISTORR_T\nCONV_TCPOLYNOMIAL\nCONV_TCTABLE\nCONV_TCTYPEX\n"
              "CONV_THERMISTOR_OHMS\nCONV_TCTYPEPOLY\n");
    EXPECT_EQ(Completed("quorconv show labo"), "laboratory-2024.ini\nlaboratory.ini\n");
}

TEST_F(QuorconvHelpTest, CompletesTheSectionsAndKeysOfTheFileThatIsNamed) {
    EXPECT_EQ(Completed("quorconv get laboratory.ini Probe\\ 9"), "Probe\\ 9\\ PRT-1182\n");
    EXPECT_EQ(Completed("quorconv get laboratory.ini '\"probe 9'"), "Probe 9 PRT-1182\n");
    EXPECT_EQ(Completed("quorconv get laboratory.ini '\"Probe 9 PRT-1182\"' Us"), "UsePolynomial\n");
    EXPECT_EQ(Completed("quorconv set laboratory.ini '\"Probe 9 PRT-1182\"' Coefficients0=1 Num"),
              "NumCoefficients=\n");
    EXPECT_EQ(Completed("quorconv explain hpt Num"), "NumCoefficients\n");
    EXPECT_EQ(Completed("quorconv get none.ini ''"), "\n");
    // A name in a file runs nothing: inside quotes those are not offered that the shell would take for more.
    folder.Write("hostile.ini", "[A$(touch pwn)]\nConversionType=10\n[A'; touch pwn]\nConversionType=10\n"
                                "[A b]\nConversionType=10\n");
    EXPECT_EQ(Completed("quorconv get hostile.ini '\"A'"), "A b\n");
    EXPECT_EQ(Completed("quorconv get hostile.ini \"'A\""), "A b\n");
    EXPECT_EQ(Completed("quorconv get hostile.ini A"),
              "A\\$\\(touch\\ pwn\\)\nA\\\'\\;\\ touch\\ pwn\nA\\ b\n");
}

TEST_F(QuorconvHelpTest, CompletesTheValueOfAnOptionBehindItsEqualsSignSplitByTheShellOrNot) {
    EXPECT_EQ(Completed("quorconv check laboratory.ini --format = g"), "gcc\ngithub\n");
    EXPECT_EQ(Completed("quorconv check laboratory.ini --format ="), "text\ngcc\ngithub\njson\n");
    EXPECT_EQ(Completed("quorconv check laboratory.ini --format=g"), "--format=gcc\n--format=github\n");
    EXPECT_EQ(Completed("quorconv export laboratory.ini --type = tc"), "tcp\ntct\ntcx\n");
    EXPECT_EQ(Completed("quorconv put laboratory.ini --decimal = c"), "comma\n");
    EXPECT_EQ(Completed("quorconv put laboratory.ini --separator=t"), "--separator=tab\n");
    EXPECT_EQ(Completed("quorconv show laboratory.ini --also = labo"),
              "laboratory-2024.ini\nlaboratory.ini\n");
    EXPECT_EQ(Completed("quorconv set laboratory.ini --from=ste"), "--from=steps.txt\n");
    EXPECT_EQ(Completed("quorconv edit laboratory.ini P --script = ste"), "steps.txt\n");
    EXPECT_EQ(Completed("quorconv check laboratory.ini --section = Probe\\ 9"), "Probe\\ 9\\ PRT-1182\n");
    const std::string probe9 = " '\"Probe 9 PRT-1182\"' ";
    EXPECT_EQ(Completed("quorconv set laboratory.ini --also = copy.ini" + probe9 + "Coefficients0 = 1 Num"),
              "NumCoefficients=\n");
    EXPECT_EQ(Completed("quorconv set laboratory.ini" + probe9 + "Coefficients0 ="), "\n");
    EXPECT_EQ(Completed("quorconv set laboratory.ini" + probe9 + "Coefficients0=Num"), "\n");
}

TEST_F(QuorconvHelpTest, CompletesTheKeysOfTheTypeThatIsTyped) {
    EXPECT_EQ(Completed("quorconv retype laboratory.ini '\"Probe 9 PRT-1182\"' pt1 C"), "Coefficients0=\n");
    EXPECT_EQ(Completed("quorconv new laboratory.ini X cvd C"),
              "Coefficients0=\nCoefficients1=\nCoefficients2=\nCoefficients3=\n");
    EXPECT_EQ(Completed("quorconv new laboratory.ini X i90 Low\\ Range/R"), "Low\\ Range/Range=\n");
    EXPECT_EQ(Completed("quorconv explain cvd A"), "A\nALPHA\n");
    EXPECT_EQ(Completed("quorconv explain cvd CO"),
              "Coefficients0\nCoefficients1\nCoefficients2\nCoefficients3\n");
    EXPECT_EQ(Completed("quorconv explain tcp m"), "mV\\(25C\\)\n");
    EXPECT_EQ(Completed("quorconv get laboratory.ini '\"Probe 9 PRT-1182\"' Conv"), "ConversionType\n");
}

TEST_F(QuorconvHelpTest, CompletesTheIdsOfWarningsAndTheNamesOfShells) {
    EXPECT_EQ(Completed("quorconv check laboratory.ini --ignore r0"), "r0-not-positive\n");
    EXPECT_EQ(Completed("quorconv completion b"), "bash\n");
}

TEST_F(QuorconvHelpTest, CompletesWhereNothingIsTypedYetAndWordsWithEscapedBlanks) {
    folder.Write("a.ini", "[abc]\nConversionType=14\n[abc - Settings]\nRTPW=1\n"
                          "[Bath 3]\nConversionType=14\n[Bath 3 - Settings]\nRTPW=1\n");
    EXPECT_EQ(Completed("quorconv get a.ini ''"), "abc\nBath\\ 3\n");
    EXPECT_EQ(Completed("quorconv get a.ini abc ''"), "RTPW\nConversionType\n");
    EXPECT_EQ(Completed("quorconv get a.ini 'Bath\\ '"), "Bath\\ 3\n");
}

TEST_F(QuorconvHelpTest, ComparisonsSayThatTheyLeaveOutSectionsOfTheInstrument) {
    EXPECT_NE(Quorconv({"diff", "--help"}).out.find("not sections of the instrument"), std::string::npos);
    EXPECT_NE(Quorconv({"merge", "--help"}).out.find("sections of the instrument stay as they are"),
              std::string::npos);
}
