#pragma once

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>

/// A text with the first `from` in it replaced; there must be one.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

/// What a run of the program printed, and how it ended.
struct Outcome {
    int code;
    std::string out;
    std::string err;
};

/// Runs quorconv in a folder of the test's own, as a script would.
class QuorconvTest : public testing::Test {
protected:
    TempFolder folder;

    [[nodiscard]] Outcome Quorconv(const std::vector<std::string>& arguments) const {
        std::string command = "cd '" + folder.Path().string() + "' && '" QUORCONV "'";
        for (const std::string& argument : arguments)
            command += " '" + argument + "'";
        const int status = std::system((command + " >.out 2>.err").c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.Read(".out"), folder.Read(".err")};
    }

    /// The commands that the help of the program lists.
    [[nodiscard]] std::vector<std::string> Commands() const {
        std::istringstream lines(Quorconv({"--help"}).out);
        std::vector<std::string> commands;
        bool isList = false;
        for (std::string line; std::getline(lines, line);) {
            if (isList && line.starts_with("  ") && line.size() > 2 && line[2] != ' ')
                commands.push_back(line.substr(2, line.find(' ', 2) - 2));
            isList = isList || line == "Subcommands:";
        }
        return commands;
    }

    /// Runs a line as a shell does; "quorconv" is the program.
    [[nodiscard]] Outcome Shell(const std::string& line) const {
        const std::string path = std::filesystem::path(QUORCONV).parent_path().string();
        folder.Write(".line",
                     "PATH='" + path + "':$PATH\ncd '" + folder.Path().string() + "'\n" + line + "\n");
        const std::string script = folder.Path(".line").string();
        const std::string out = folder.Path(".out").string();
        const std::string err = folder.Path(".err").string();
        const int status = std::system(("bash '" + script + "' >'" + out + "' 2>'" + err + "'").c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.Read(".out"), folder.Read(".err")};
    }
    void ExpectShell(const std::string& line, const std::string& out, const std::string& err = "",
                     int code = 0) const {
        const Outcome run = Shell(line);
        EXPECT_EQ(run.code, code) << line;
        EXPECT_EQ(run.out, out) << line;
        EXPECT_EQ(run.err, err) << line;
    }

    /// Expects a run that is fine, prints `out` and has nothing to say besides.
    void ExpectFine(const std::vector<std::string>& arguments, const std::string& out = "") const {
        const Outcome run = Quorconv(arguments);
        EXPECT_EQ(run.code, 0);
        EXPECT_EQ(run.out, out);
        EXPECT_EQ(run.err, "");
    }

    /// Expects a run that does nothing, prints nothing and says `err`.
    void ExpectRefused(const std::vector<std::string>& arguments, const std::string& err,
                       int code = 1) const {
        const Outcome run = Quorconv(arguments);
        EXPECT_EQ(run.code, code);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, err);
    }
};
