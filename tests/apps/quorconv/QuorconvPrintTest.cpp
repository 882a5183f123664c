#include "tests/apps/quorconv/Quorconv.h"

namespace {

// What a terminal would obey: a window title, the start of the line, red letters, red letters once more by a
// single control character, and letters from right to left.
const std::string hostile = "\x1B]0;Owned\x07\r\x1B[31m\xC2\x9B"
                            "31m\xE2\x80\xAEZ";
const std::string printed = "\\u{1B}]0;Owned\\u{7}\\r\\u{1B}[31m\\u{9B}31m\\u{202E}Z";

/// Runs of quorconv on files whose names, sections, keys and values are hostile.
class QuorconvPrintTest : public QuorconvTest {
protected:
    const std::string file = "host " + hostile + ".ini";
    const std::string fileAsPrinted = "host " + printed + ".ini";

    /// A probe with text values, in the section `hostile`.
    [[nodiscard]] static std::string Record(const std::string& more = "") {
        return "[" + hostile +
               "]\nVersion=1.0\nConversionType=9\n"
               "[" +
               hostile + " - Settings]\nVersion=1.0\nTCType=4\nNumPoints=1\nTempScale=" + hostile +
               "\nOffsetScale=\"a\\u{9}b\\nc\\\\d\"\nTemperatures0=0.5\nOffsets0=0.25\n"
               "Coefficients0=1\nCoefficients1=2\n" +
               more;
    }

    void SetUp() override { folder.Write(file, Record()); }

    /// Expects that nothing in `text` moves a cursor or turns the direction of writing.
    static void ExpectPlain(const std::string& text) {
        for (std::size_t at = 0; at < text.size(); ++at) {
            const auto byte = static_cast<unsigned char>(text[at]);
            const unsigned next = at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0;
            EXPECT_TRUE(byte >= 0x20 || byte == '\n' || byte == '\t') << at << " of " << text;
            EXPECT_NE(byte, 0x7F) << at << " of " << text;
            EXPECT_FALSE(byte == 0xC2 && next >= 0x80 && next <= 0x9F) << at << " of " << text;
        }
        EXPECT_EQ(text.find("\xE2\x80\xAE"), std::string::npos) << text;
    }

    void ExpectPlainOutput(const std::vector<std::string>& arguments, int code, const std::string& out = "",
                           const std::string& err = "") const {
        const Outcome run = Quorconv(arguments);
        EXPECT_EQ(run.code, code);
        EXPECT_EQ(run.out, out);
        EXPECT_EQ(run.err, err);
        ExpectPlain(run.out);
        ExpectPlain(run.err);
    }
};

} // namespace

TEST_F(QuorconvPrintTest, ListsEscapedNamesBetweenTabsOfItsOwn) {
    folder.Write(file, Record() + "[A\tB\x7F]\nConversionType=10\n");
    ExpectPlainOutput({"list", file}, 0,
                      printed + "\tCONV_TCTYPEX\tTC Type K\nA\\tB\\u{7F}\tCONV_OHMS\tOhms\n");
}

TEST_F(QuorconvPrintTest, LeavesEverythingElseOfANameAsItIs) {
    folder.Write("a.ini", "[C:\\new \xC2\xB0 \xE2\x84\xA6 \\u{1B} \"q\"]\nConversionType=10\n");
    ExpectFine({"list", "a.ini"}, "C:\\new \xC2\xB0 \xE2\x84\xA6 \\u{1B} \"q\"\tCONV_OHMS\tOhms\n");
}

TEST_F(QuorconvPrintTest, ShowsEachValueOnALineOfItsOwn) {
    ExpectPlainOutput({"show", file, hostile}, 0,
                      "[" + printed +
                          "] CONV_TCTYPEX TC Type K\n"
                          "TCType=4\n"
                          "NumPoints=1\n"
                          "TempScale=" +
                          printed +
                          "\n"
                          "OffsetScale=a\\tb\\nc\\d\n"
                          "Temperatures0=0.5\n"
                          "Offsets0=0.25\n"
                          "Coefficients0=1\n"
                          "Coefficients1=2\n");
}

TEST_F(QuorconvPrintTest, ShowsJsonWithTheEscapesOfJson) {
    const std::string json = "\\u001b]0;Owned\\u0007\\r\\u001b[31m\xC2\x9B"
                             "31m\xE2\x80\xAEZ";
    ExpectFine({"show", file, hostile, "--json"}, "{\n"
                                                  "  \"section\": \"" +
                                                      json +
                                                      "\",\n"
                                                      "  \"code\": 9,\n"
                                                      "  \"type\": \"CONV_TCTYPEX\",\n"
                                                      "  \"name\": \"TC Type K\",\n"
                                                      "  \"settings\": {\n"
                                                      "    \"TCType\": {\"code\": 4, \"name\": \"K\"},\n"
                                                      "    \"NumPoints\": 1,\n"
                                                      "    \"TempScale\": \"" +
                                                      json +
                                                      "\",\n"
                                                      "    \"OffsetScale\": \"a\\tb\\nc\\\\d\",\n"
                                                      "    \"Temperatures\": [\n"
                                                      "      {\"name\": \"T1\", \"value\": 0.5}\n"
                                                      "    ],\n"
                                                      "    \"Offsets\": [\n"
                                                      "      {\"name\": \"ADJ1\", \"value\": 0.25}\n"
                                                      "    ],\n"
                                                      "    \"Coefficients\": [\n"
                                                      "      {\"name\": \"DC1\", \"value\": 1},\n"
                                                      "      {\"name\": \"DC2\", \"value\": 2}\n"
                                                      "    ]\n"
                                                      "  }\n"
                                                      "}\n");
}

TEST_F(QuorconvPrintTest, RefusesKeysAndValuesInOneLine) {
    const std::string place = "quorconv: " + fileAsPrinted + ": [" + printed + "] ";
    ExpectPlainOutput({"set", file, hostile, hostile + "\n\t=1"}, 1, "",
                      place + printed + "\\n\\t: there is no such key in a record of this type\n");
    ExpectPlainOutput({"set", file, hostile, "Offsets0=" + hostile + "\nquorconv: fine"}, 1, "",
                      place + "Offsets0: \"" + printed + "\\nquorconv: fine\" is not a number\n");
    ExpectPlainOutput({"set", file, "A\n" + hostile, "Offsets0=1"}, 1, "",
                      "quorconv: " + fileAsPrinted + ": [A\\n" + printed + "]: there is no such section\n");
    EXPECT_EQ(folder.Read(file), Record());
}

TEST_F(QuorconvPrintTest, TellsEachReasonInOneLine) {
    folder.Write(file, Replaced(Record(), "Offsets0=0.25\n", ""));
    ExpectPlainOutput({"show", file}, 1, "",
                      "quorconv: " + fileAsPrinted + ": [" + printed +
                          "]: the record cannot be read\n"
                          "  line 4: [" +
                          printed + " - Settings] Offsets0: the key is missing\n");
}

TEST_F(QuorconvPrintTest, RefusesToCopyAndToAddInOneLine) {
    ExpectPlainOutput({"copy", file, hostile + "\n", "b.ini", "P"}, 1, "",
                      "quorconv: " + fileAsPrinted + ": [" + printed + "\\n]: there is no such section\n");
    ExpectPlainOutput({"copy", "none\n" + hostile, "P", "b.ini", "P"}, 1, "",
                      "quorconv: File not found: none\\n" + printed + "\n");
    ExpectPlainOutput({"new", file, hostile, "cvd"}, 1, "",
                      "quorconv: " + fileAsPrinted + ": [" + printed +
                          "]: there is a probe in this section already\n");
    ExpectPlainOutput({"new", file, "P", hostile}, 2, "",
                      "quorconv: \"" + printed +
                          "\" is no conversion type; the command \"types\" lists them\n");
    ExpectPlainOutput({"new", "none/" + file, "P", "cvd"}, 1, "",
                      "quorconv: Path not found: none/" + fileAsPrinted + "\n");
}

TEST_F(QuorconvPrintTest, ChecksWithALineAProblem) {
    folder.Write(file, Record(hostile + "=1\n" + hostile + "=2\n"));
    const std::string section = ": [" + printed + " - Settings] ";
    ExpectPlainOutput({"check", file, "gone\n" + hostile}, 1,
                      fileAsPrinted + ":14" + section + printed +
                          ": unknown key: a record of this type and size does not hold it\n" + fileAsPrinted +
                          ":15" + section + printed +
                          ": the key occurs twice; the one in line 14 is read\n"
                          "gone\\n" +
                          printed + ": File not found\n");
    folder.Write(file, Replaced(Record(), "=0.25", "=" + hostile));
    ExpectPlainOutput({"check", file}, 1,
                      fileAsPrinted + ":11" + section + "Offsets0: \"" + printed + "\" is not a number\n");
}

TEST_F(QuorconvPrintTest, DrawsADialogInItsOwnLines) {
    const Outcome run = Quorconv({"edit", file, hostile, "--show"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_NE(run.out.find(printed), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("a\\tb\\nc\\d"), std::string::npos) << run.out;
    EXPECT_EQ(run.out.find('\t'), std::string::npos) << run.out;
    ExpectPlain(run.out);
}

TEST_F(QuorconvPrintTest, RepeatsLinesOfAScriptEscaped) {
    folder.Write("steps.txt", hostile + "\n");
    ExpectPlainOutput({"edit", file, hostile, "--script", "steps.txt"}, 1, "",
                      "quorconv: steps.txt: line 1: there is no command \"" + printed + "\"\n");
    folder.Write("steps.txt", "click " + hostile + "\n");
    ExpectPlainOutput({"edit", file, hostile, "--script", "steps.txt"}, 1, "",
                      "quorconv: " + fileAsPrinted + ": [" + printed +
                          "]: the dialog did not go as the script says\n"
                          "  there is no \"" +
                          printed +
                          "\" in this dialog\n"
                          "  in line 1: click " +
                          printed + "\n  the dialog \"TC Type K Settings\" was left open\n");
    ExpectPlainOutput({"edit", file, hostile, "--script", hostile + "\n"}, 1, "",
                      "quorconv: File not found: " + printed + "\\n\n");
}

TEST_F(QuorconvPrintTest, RepeatsArgumentsEscaped) {
    const std::string help = "Run with --help for more information.\n";
    ExpectPlainOutput({"types", hostile + "\nquorconv: fine"}, 2, "",
                      "The following argument was not expected: " + printed + "\\nquorconv: fine\n" + help);
    ExpectPlainOutput({"types", "\xFF\x9B"}, 2, "",
                      "The following argument was not expected: \xC3\xBF\\u{9B}\n" + help);
    ExpectPlainOutput({"set", file, hostile, hostile}, 2, "",
                      "quorconv: KEY=VALUE expected: " + printed + "\n");
    ExpectPlainOutput({"list", "\xFF\x1B\x9B.ini"}, 2, "",
                      "quorconv: an argument is not UTF-8 text: \xC3\xBF\\u{1B}\\u{9B}.ini\n");
}
