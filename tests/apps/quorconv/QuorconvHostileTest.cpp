// Every command on hostile names, files, numbers and outputs: it does its work, or says why not and leaves
// all files as they were.

#include "tests/apps/quorconv/Quorconv.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// A command with its arguments. Those in braces may be hostile: {file} is a file of probes, {input} another
/// file that is read, {section} the name of a probe, {new} the name of a new one, {number} a number, {word}
/// any other text. The strings have the exit codes for the hostile cases below, a digit for each in their
/// order.
struct Call {
    std::vector<std::string> arguments;
    std::string input = {}; ///< what stands in {input}
    std::map<std::string, std::string> codes = {};
};

struct Case {
    std::string what;
    std::string value;
};

std::string Long(std::size_t length, char character) {
    std::string text;
    text.resize(length, character);
    return text;
}

const std::map<std::string, std::vector<Case>> cases{
    {"{section}",
     {{"empty", ""},
      {"with a bracket", "N]2"},
      {"a comment", "#c"},
      {"with a line break", "A\nB"},
      {"a pattern", "*"},
      {"a pattern of nothing", "Q?"},
      {"of a host's section", "Host"},
      {"of settings", "P - Settings"},
      {"100 kB", Long(100000, 'x')},
      {"no UTF-8", "\xFF\xFE"},
      {"like an option", "-x"},
      {"a pattern of 50 stars", "*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*b"}}},
    {"{new}",
     {{"empty", ""},
      {"with a bracket", "N]2"},
      {"a comment", "#c"},
      {"with a line break", "A\nB"},
      {"with blanks around", " N "},
      {"of a host's section", "Host"},
      {"of settings", "P - Settings"},
      {"no UTF-8", "\xFF\xFE"},
      {"like an option", "-x"},
      {"a pattern", "N*?"},
      {"100 kB", Long(100000, 'x')}}},
    {"{number}",
     {{"no number", "nan"},
      {"infinite", "-inf"},
      {"too large", "1e999"},
      {"too small", "1e-999"},
      {"with a comma", "1,5"},
      {"hexadecimal", "0x1p3"},
      {"empty", ""},
      {"two numbers", "1 2"},
      {"other digits", "\xEF\xBC\x91"},
      {"no UTF-8", "\xFF"},
      {"100 kB", Long(100000, '9')},
      {"of 100,000 decimals", "0." + Long(100000, '3')}}},
    {"{file}",
     {{"missing", "none.ini"},
      {"in no folder", "none/none.ini"},
      {"a folder", "folder"},
      {"a link to itself", "loop.ini"},
      {"that nobody may read", "secret.ini"},
      {"empty", "empty.ini"},
      {"binary", "binary.ini"},
      {"UTF-16", "utf16.ini"},
      {"half of UTF-16", "half.ini"},
      {"with a zero byte", "zero.ini"},
      {"with a line of 3 MB", "long.ini"},
      {"a pipe", "pipe.ini"},
      {"a device", "/dev/full"},
      {"that nobody may write", "frozen.ini"},
      {"with an empty name", ""},
      {"with a name of 100 kB", Long(100000, 'f')}}},
    {"{input}",
     {{"missing", "none.txt"},
      {"a folder", "folder"},
      {"a link to itself", "loop.ini"},
      {"that nobody may read", "secret.ini"},
      {"empty", "empty.ini"},
      {"binary", "binary.ini"},
      {"UTF-16", "utf16.ini"},
      {"with a line of 3 MB", "long.ini"},
      {"a device without end", "/dev/zero"},
      {"with an empty name", ""}}},
    {"{folder}",
     {{"missing", "none"}, {"a file", "empty.ini"}, {"a link to itself", "loop.ini"}, {"empty", ""}}},
    {"{word}",
     {{"empty", ""},
      {"unknown", "frobnicate"},
      {"with a line break", "A\nB"},
      {"no UTF-8", "\xFF"},
      {"like an option", "--frobnicate"},
      {"100 kB", Long(100000, 'x')}}},
};

const std::map<std::string, std::string> usual{
    {"{file}", "host.ini"}, {"{input}", "input.txt"}, {"{section}", "P"},    {"{new}", "New"},
    {"{number}", "25.4"},   {"{word}", ""},           {"{folder}", "folder"}};

const std::string steps = "set \"{section}\" RTPW={number}\nnew \"{new}\" w90 RTPW={number}\n";
const std::string lines = "{section} RTPW={number}\n";
const std::string table = "section,type,RTPW\n{section},w90,{number}\n{new},w90,{number}\n";
const std::string json = R"({"section": "{section}", "type": "CONV_WT90", "settings": {"RTPW": {number}}})";
const std::string script = "type RTPW {number}\nclick OK\n";

const std::vector<Call> calls{
    // looking
    {{"types", "{word}"}, "", {{"{word}", "222222"}}},
    {{"explain", "{word}"}, "", {{"{word}", "222222"}}},
    {{"explain", "cvd", "{word}"}, "", {{"{word}", "111221"}}},
    {{"list", "{file}"}, "", {{"{file}", "1111101011011011"}}},
    {{"list", "{file}", "--json"}, "", {{"{file}", "1111101011011011"}}},
    {{"get", "{file}", "{section}", "RTPW"},
     "",
     {{"{file}", "1111111010011011"}, {"{section}", "111111111221"}}},
    {{"get", "host.ini", "P", "{word}"}, "", {{"{word}", "111221"}}},
    {{"show", "{file}", "{section}"}, "", {{"{file}", "1111111010011011"}, {"{section}", "111101111221"}}},
    {{"show", "{file}", "--json"}, "", {{"{file}", "1111101011011011"}}},
    {{"check", "{file}", "--section", "{section}"},
     "",
     {{"{file}", "1111111011011011"}, {"{section}", "111101111211"}}},
    {{"check", "{file}", "--json"}, "", {{"{file}", "1111101011011011"}}},
    {{"check", "host.ini", "--format", "{word}"}, "", {{"{word}", "222222"}}},
    {{"diff", "{file}", "same.ini"}, "", {{"{file}", "2222212022022022"}}},
    {{"diff", "same.ini", "{file}", "--json"}, "", {{"{file}", "2222212022022022"}}},
    // changing
    {{"new", "{file}", "{new}", "w90", "RTPW={number}"},
     "",
     {{"{file}", "0111101011011111"}, {"{new}", "11111112200"}, {"{number}", "111111111210"}}},
    {{"new", "host.ini", "New", "{word}"}, "", {{"{word}", "222222"}}},
    {{"set", "{file}", "{section}", "RTPW={number}"},
     "",
     {{"{file}", "1111111010011111"}, {"{section}", "111101111221"}, {"{number}", "111111111210"}}},
    {{"set", "host.ini", "P", "{word}"}, "", {{"{word}", "222222"}}},
    {{"set", "{file}", "--from", "{input}"},
     lines,
     {{"{file}", "1111111011011111"},
      {"{input}", "1111111111"},
      {"{section}", "110111111111"},
      {"{number}", "111111111110"}}},
    {{"edit", "{file}", "{section}", "--script", "{input}"},
     script,
     {{"{file}", "1111111010011111"},
      {"{input}", "1111111111"},
      {"{section}", "111111111221"},
      {"{number}", "111111111111"}}},
    {{"copy", "{file}", "{section}", "other.ini", "{new}"},
     "",
     {{"{file}", "1111111011011011"}, {"{section}", "111122111222"}, {"{new}", "11111112200"}}},
    {{"copy", "same.ini", "P", "{file}", "New"}, "", {{"{file}", "0111101011011111"}}},
    {{"rename", "{file}", "{section}", "{new}"},
     "",
     {{"{file}", "1111111011011111"}, {"{section}", "111111111221"}, {"{new}", "11111102200"}}},
    {{"retype", "{file}", "{section}", "pt1", "Coefficients0={number}"},
     "",
     {{"{file}", "1111111011011111"}, {"{section}", "111111111221"}, {"{number}", "111111111210"}}},
    {{"retype", "host.ini", "P", "{word}"}, "", {{"{word}", "222222"}}},
    {{"remove", "{file}", "{section}"}, "", {{"{file}", "1111111010011111"}, {"{section}", "111101111221"}}},
    {{"apply", "{file}", "{input}"},
     steps,
     {{"{file}", "1111111011011111"},
      {"{input}", "1111111111"},
      {"{section}", "111111111111"},
      {"{new}", "11111111000"},
      {"{number}", "111111111110"}}},
    {{"merge", "{file}", "same.ini", "other.ini"}, "", {{"{file}", "1111111011011011"}}},
    {{"merge", "same.ini", "{file}", "other.ini"}, "", {{"{file}", "1111111011011111"}}},
    {{"merge", "other.ini", "base.ini", "{file}"}, "", {{"{file}", "1111111011011011"}}},
    // in and out
    {{"export", "{file}", "{section}", "--jsonl"},
     "",
     {{"{file}", "1111111011011011"}, {"{section}", "111101111221"}}},
    {{"export", "{file}", "--csv", "--type", "w90"}, "", {{"{file}", "1111101011011011"}}},
    {{"export", "host.ini", "--csv", "--type", "{word}"}, "", {{"{word}", "222222"}}},
    {{"put", "{file}", "{input}", "--json"},
     json,
     {{"{file}", "0111101011011111"},
      {"{input}", "1111111111"},
      {"{section}", "111100110100"},
      {"{number}", "111111111110"}}},
    {{"put", "{file}", "{input}", "--csv"},
     table,
     {{"{file}", "0111101011011111"},
      {"{input}", "1111111111"},
      {"{section}", "111100110100"},
      {"{new}", "11111111000"},
      {"{number}", "111111111110"}}},
    // for shells and packages
    {{"completion", "{word}"}, "", {{"{word}", "222222"}}},
    {{"manual", "{folder}"}, "", {{"{folder}", "1112"}}},
};

/// The words in braces that a call has.
std::set<std::string> SlotsOf(const Call& call) {
    std::set<std::string> slots;
    for (const auto& [slot, value] : usual) {
        const auto has = [slot = slot](const std::string& text) {
            return text.find(slot) != std::string::npos;
        };
        if (has(call.input) || std::any_of(call.arguments.begin(), call.arguments.end(), has))
            slots.insert(slot);
    }
    return slots;
}

class QuorconvHostileTest : public QuorconvTest, public testing::WithParamInterface<std::string> {
protected:
    const std::string host =
        "; The host's own file\n[Host]\nChannels=4\n\n"
        "[P]\nVersion=1.0\nConversionType=14\n\n[P - Settings]\nVersion=1.0\nRTPW=25.5\n";

    void SetUp() override {
        for (const char* const name : {"host.ini", "same.ini", "secret.ini", "frozen.ini"})
            folder.Write(name, host);
        for (const char* const name : {"other.ini", "base.ini"})
            folder.Write(name, Replaced(host, "25.5", "25.3"));
        folder.Write("empty.ini", "");
        folder.Write("binary.ini", std::string("\x7F"
                                               "ELF\2\1\1\0\0\0[P]\xFF\xFE\x80\n",
                                               17));
        std::string wide = "\xFF\xFE";
        for (const char character : host)
            wide += {character, '\0'};
        folder.Write("utf16.ini", wide);
        folder.Write("half.ini", wide + "x");
        folder.Write("zero.ini", host + std::string("[Z]\nx=\0\n", 8));
        folder.Write("long.ini", host + "[Z]\nx=" + Long(3000000, 'x') + "\n");
        std::filesystem::create_directory(folder.Path("folder"));
        std::filesystem::create_symlink("loop.ini", folder.Path("loop.ini"));
        ASSERT_EQ(::mkfifo(folder.Path("pipe.ini").c_str(), 0600), 0);
        m_files = Snapshot();
        folder.SetMode("secret.ini", 0);
        folder.SetMode("frozen.ini", 0444);
    }

    using Files = std::map<std::string, std::string>;

    /// What stands in the files; those that nobody may read never change.
    [[nodiscard]] Files Snapshot() const {
        Files files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
            const std::string name = entry.path().lexically_relative(folder.Path()).string();
            if (name.front() != '.' && name != "secret.ini" && name != "input.txt")
                files[name] = std::filesystem::is_regular_file(entry.symlink_status())
                                  ? folder.Read(name)
                                  : std::string("no file");
        }
        return files;
    }

    void Restore() const {
        const Files now = Snapshot();
        for (const auto& [name, bytes] : now)
            if (!m_files.contains(name))
                std::filesystem::remove(folder.Path(name));
        for (const auto& [name, bytes] : m_files)
            if (!now.contains(name) || now.at(name) != bytes)
                folder.Write(name, bytes);
    }

    /// Runs a call with that value for one of its words, as somebody who may not read and write everything.
    [[nodiscard]] Outcome Run(const Call& call, const std::string& slot, const std::string& value,
                              const std::string& streams = ">.out </dev/null") const {
        const auto filled = [&](std::string text) {
            for (const auto& [name, ordinary] : usual)
                for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos;) {
                    const std::string& with = name == slot ? value : ordinary;
                    text.replace(at, name.size(), with);
                    at += with.size();
                }
            return text;
        };
        folder.Write("input.txt", filled(call.input));
        std::string command = "cd '" + folder.Path().string() + "' && ";
        if (::geteuid() == 0)
            command += "exec setpriv --bounding-set -dac_override,-dac_read_search "
                       "--inh-caps -dac_override,-dac_read_search ";
        command += "'" QUORCONV "'";
        for (const std::string& argument : call.arguments)
            command += " '" + filled(argument) + "'";
        folder.Write(".out", "");
        const int status = std::system((command + " " + streams + " 2>.err").c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.Read(".out"), folder.Read(".err")};
    }

    [[nodiscard]] bool MayWrite() const {
        return Quorconv({GetParam(), "--help"}).out.find("--dry-run") != std::string::npos;
    }

    /// What every run has to hold, whatever it was given.
    void ExpectOrderly(const Outcome& run, bool mayWrite) const {
        EXPECT_TRUE(run.code >= 0 && run.code <= 2) << run.code;
        for (const char* const sign : {"Sanitizer", "runtime error", "terminate called"})
            EXPECT_EQ(run.err.find(sign), std::string::npos);
        if (run.code != 0) {
            EXPECT_TRUE(!run.err.empty() || !run.out.empty()) << "no reason";
        }
        std::set<std::string> told;
        std::istringstream reasons(run.err);
        for (std::string line; std::getline(reasons, line);)
            EXPECT_TRUE(told.insert(line).second) << "told twice: " << line.substr(0, 200);
        if (run.code != 0 || !mayWrite) {
            EXPECT_TRUE(Snapshot() == m_files) << "a file is not as it was";
        }
    }

    Files m_files;
};

std::string Shown(const Call& call) {
    std::string line = "quorconv";
    for (const std::string& argument : call.arguments)
        line += " " + argument;
    return line;
}

std::vector<std::string> CommandsOfCalls() {
    std::vector<std::string> commands;
    for (const Call& call : calls)
        if (std::find(commands.begin(), commands.end(), call.arguments.front()) == commands.end())
            commands.push_back(call.arguments.front());
    return commands;
}

} // namespace

TEST_P(QuorconvHostileTest, DoesItsWorkOrSaysWhyNotAndLeavesAllFilesAsTheyWere) {
    const bool mayWrite = MayWrite();
    for (const Call& call : calls) {
        if (call.arguments.front() != GetParam())
            continue;
        std::set<std::string> expected;
        for (const auto& [slot, codes] : call.codes) {
            expected.insert(slot);
            std::string got;
            for (const Case& one : cases.at(slot)) {
                SCOPED_TRACE(Shown(call) + ": " + slot + " " + one.what);
                const Outcome run = Run(call, slot, one.value);
                ExpectOrderly(run, mayWrite);
                got += static_cast<char>('0' + run.code);
                Restore();
            }
            EXPECT_EQ(got, codes) << Shown(call) << ": " << slot;
        }
        EXPECT_EQ(expected, SlotsOf(call)) << Shown(call);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, QuorconvHostileTest, testing::ValuesIn(CommandsOfCalls()),
                         [](const auto& command) { return command.param; });

TEST_P(QuorconvHostileTest, EndsWithAFailureWhenItsResultsCannotBeWritten) {
    for (const Call& call : calls) {
        if (call.arguments.front() != GetParam())
            continue;
        const Outcome fine = Run(call, "", "");
        Restore();
        const Outcome full = Run(call, "", "", ">/dev/full </dev/null");
        Restore();
        const int failure = GetParam() == "diff" ? 2 : 1;
        EXPECT_EQ(full.code, fine.out.empty() || fine.code == 2 ? fine.code : failure) << Shown(call);
        if (!fine.out.empty()) {
            EXPECT_NE(full.err.find("quorconv: the results cannot be written\n"), std::string::npos)
                << Shown(call) << ": " << full.err;
        }
    }
}

TEST_P(QuorconvHostileTest, PrintsOfEachChangeTheDiffThatPatchMakesIt) {
    for (Call call : calls) {
        if (call.arguments.front() != GetParam() || !MayWrite())
            continue;
        const Outcome written = Run(call, "", "");
        const Files after = Snapshot();
        Restore();
        if (written.code != 0)
            continue;
        call.arguments.emplace_back("--dry-run");
        const Outcome dry = Run(call, "", "");
        EXPECT_EQ(dry.code, 0) << Shown(call) << ": " << dry.err;
        EXPECT_TRUE(dry.out.starts_with("--- ")) << Shown(call) << ": " << dry.out;
        EXPECT_TRUE(Snapshot() == m_files) << Shown(call) << " has written";
        folder.Write(".diff", dry.out);
        EXPECT_EQ(Shell("patch -s -p0 <.diff").err, "") << Shown(call);
        EXPECT_TRUE(Snapshot() == after) << Shown(call) << ": the diff is another change";
        Restore();
    }
}

TEST_P(QuorconvHostileTest, TakesTheStandardInputForEachFileAndPrintsWhatItWouldWriteThere) {
    for (const Call& call : calls) {
        if (call.arguments.front() != GetParam() || !SlotsOf(call).contains("{file}"))
            continue;
        const Outcome named = Run(call, "", "");
        Files after = Snapshot();
        const std::string written =
            after["host.ini"] == m_files.at("host.ini") ? std::string() : after["host.ini"];
        after["host.ini"] = m_files.at("host.ini");
        Restore();
        const Outcome piped = Run(call, "{file}", "-", ">.out <host.ini");
        EXPECT_EQ(piped.code, named.code) << Shown(call) << ": " << piped.err;
        std::string expected = named.out + written;
        for (std::size_t at = 0; (at = expected.find("host.ini", at)) != std::string::npos;)
            expected.replace(at, 8, "-");
        EXPECT_EQ(piped.out, expected) << Shown(call);
        EXPECT_TRUE(Snapshot() == after) << Shown(call);
        Restore();
    }
}

using QuorconvCallsTest = QuorconvTest;

TEST_F(QuorconvCallsTest, AreOfEveryCommandThatTheHelpLists) {
    const std::vector<std::string> called = CommandsOfCalls();
    const std::vector<std::string> listed = Commands();
    EXPECT_EQ(std::set<std::string>(called.begin(), called.end()),
              std::set<std::string>(listed.begin(), listed.end()));
}
