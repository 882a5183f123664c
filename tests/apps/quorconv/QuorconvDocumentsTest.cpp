// The examples of README and of the guide are run as they stand there, on the sample laboratory.

#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/resources/StringIds.h"
#include "QuorIniFile/Utf8.h"
#include "tests/apps/quorconv/Quorconv.h"

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace QuorConversions;
using QuorIniFile::ToUtf8;

namespace {

using Lines = std::vector<std::string>;

std::string TextOf(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    EXPECT_FALSE(text.str().empty()) << file;
    return text.str();
}

std::string Document(const char* name) { return TextOf(std::filesystem::path(QUOR_DOCUMENTS) / name); }

Lines LinesOf(const std::string& text) {
    Lines lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);)
        lines.push_back(line);
    return lines;
}

/// The indented block whose first line begins so, without its indent.
Lines Block(const std::string& document, const std::string& begin) {
    const std::string indent = "    ";
    Lines block;
    for (const std::string& line : LinesOf(document)) {
        const bool isIndented = line.starts_with(indent);
        if (!block.empty() && !isIndented)
            return block;
        if (isIndented && (!block.empty() || line.starts_with(indent + begin)))
            block.push_back(line.substr(indent.size()));
    }
    ADD_FAILURE() << "no block begins with " << begin;
    return block;
}

class QuorconvDocumentsTest : public QuorconvTest {
protected:
    void SetUp() override {
        std::filesystem::copy(QUOR_SAMPLES, folder.Path(), std::filesystem::copy_options::recursive);
        folder.Write("laboratory-2024.ini", folder.Read("laboratory.ini"));
        folder.Write("changes.txt", "set \"Probe 9 PRT-1182\" Coefficients0=100.0123\n");
        folder.Write("steps.txt", "escape\n");
    }
    /// Runs each line in the shell. All of them are fine, but for diff, which finds what they have changed.
    void ExpectCommandsToRun(const Lines& commands) const {
        const std::string bin = std::filesystem::path(QUORCONV).parent_path().string();
        for (const std::string& command : commands) {
            const std::string line = "cd '" + folder.Path().string() + "' && PATH='" + bin +
                                     "':\"$PATH\" && (" + command + ") >.out 2>.err";
            const int status = std::system(line.c_str());
            EXPECT_EQ(WEXITSTATUS(status), command.starts_with("quorconv diff") ? 1 : 0)
                << command << "\n"
                << folder.Read(".out") << folder.Read(".err");
        }
    }
};

} // namespace

TEST_F(QuorconvDocumentsTest, TheScriptOfTheGuideChangesR0OfItsProbeAndNothingElse) {
    std::string script;
    for (const std::string& line : Block(Document("docs/guide.md"), "paste "))
        script += line + "\n";
    folder.Write("steps.txt", script);
    const std::string before = folder.Read("laboratory.ini");
    ExpectFine({"edit", "laboratory.ini", "Probe 9 PRT-1182", "--script", "steps.txt"});
    EXPECT_EQ(folder.Read("laboratory.ini"), Replaced(before, "UsePolynomial=True\nCoefficients0=100.0\n",
                                                      "UsePolynomial=True\nCoefficients0=100.0123\n"));
}

TEST_F(QuorconvDocumentsTest, TheCommandsOfReadmeRunOneAfterTheOther) {
    const Lines commands = Block(Document("README.md"), "quorconv types");
    EXPECT_GE(commands.size(), 8U);
    ExpectCommandsToRun(commands);
}

TEST_F(QuorconvDocumentsTest, TheCommandsOfTheGuideRunOneAfterTheOther) {
    const Lines commands = Block(Document("docs/guide.md"), "quorconv list");
    EXPECT_GE(commands.size(), 5U);
    ExpectCommandsToRun(commands);
    ExpectCommandsToRun(Block(Document("docs/guide.md"), "quorconv export"));
}

TEST(Documents, TheGuideQuotesTheMessagesAsTheyAreShown) {
    std::vector<std::string> messages = {ToUtf8(ReplaceTildes(
        TableText(IDS_WRONG_THERMISTOR_DIRECTION),
        TableText(IDS_THERMISTOR) + L" " + TableText(IDS_T_OF_R) + L"|" + TableText(IDS_R_OF_T)))};
    for (const EStringId whole : {IDS_ENTER_COEFFICIENTS, IDS_ENTER_RTPW, IDS_SELECT_RANGE, IDS_SELECT_SCALE,
                                  IDS_SELECT_TC_TYPE, IDS_WRONG_FILE_VERSION})
        messages.push_back(ToUtf8(TableText(whole)));
    for (const EStringId context : {IDS_READING_SETTINGS, IDS_WRITING_SETTINGS})
        messages.push_back(ToUtf8(TableText(IDS_ERROR_OCCURRED_WHILE) + L" " + TableText(context) + L"."));
    const std::string guide = Document("docs/guide.md");
    for (const std::string& message : messages)
        EXPECT_NE(guide.find("\n| " + message + " |"), std::string::npos) << message;
    const std::string section = guide.substr(guide.find("\n## Messages\n"));
    const std::string table = section.substr(0, section.find("\n\nOK refuses"));
    EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), std::ptrdiff_t(messages.size()) + 6)
        << "no other message";
}
