#include "apps/quorconv/CommandLine.h"

#include "QuorIniFile/Utf8.h"
#include "apps/quorconv/Command.h"
#include "apps/quorconv/Nearest.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <iostream>
#include <iterator>
#include <string_view>
#include <utility>

namespace quorconv {

using QuorIniFile::ToPrintable;

namespace {

/// The text of an argument or of an exception, in whatever encoding, for the terminal.
std::string PrintableBytes(std::string_view bytes) { return ToPrintable(QuorIniFile::DecodeBytes(bytes)); }

std::wstring Wide(const std::string& argument) {
    if (auto text = QuorIniFile::FromUtf8(argument))
        return *std::move(text);
    throw UsageError{L"an argument is not UTF-8 text: " + QuorIniFile::DecodeBytes(argument)};
}

/// Puts the declarations of a command into the parser, and what was parsed into the command's variables.
class ParsedArguments final : public Arguments {
public:
    explicit ParsedArguments(CLI::App& app) : m_app(app) {}

    /// To be called when the command line was parsed.
    void Take() const {
        for (const auto& take : m_takes)
            take();
    }

    void One(const std::string& name, std::wstring& value, Meaning /*meaning*/,
             const std::string& what) override {
        std::string& text = m_texts.emplace_back();
        m_app.add_option(name, text, what)->required();
        m_takes.emplace_back([&] { value = Wide(text); });
    }
    void Maybe(const std::string& name, std::optional<std::wstring>& value, Meaning /*meaning*/,
               const std::string& what) override {
        TakeIfThere(m_app.add_option(name, m_texts.emplace_back(), what), value);
    }
    void Rest(const std::string& name, std::vector<std::wstring>& values, int least, Meaning /*meaning*/,
              const std::string& what) override {
        TakeAll(m_app.add_option(name, m_lists.emplace_back(), what)->required(least > 0), values);
    }
    void Flag(const std::string& name, bool& value, const std::string& what) override {
        m_app.add_flag(name, value, what);
    }
    void Option(const std::string& name, const std::string& valueName, std::optional<std::wstring>& value,
                Meaning /*meaning*/, const std::string& what) override {
        TakeIfThere(m_app.add_option(name, m_texts.emplace_back(), what)->type_name(valueName), value);
    }
    void Options(const std::string& name, const std::string& valueName, std::vector<std::wstring>& values,
                 Meaning /*meaning*/, const std::string& what) override {
        TakeAll(m_app.add_option(name, m_lists.emplace_back(), what)
                    ->type_name(valueName)
                    ->allow_extra_args(false),
                values);
    }
    void Choice(const std::string& name, std::wstring& value, const std::vector<std::string>& choices,
                const std::string& what) override {
        std::string& text = m_texts.emplace_back(choices.front());
        std::string words;
        for (const std::string& choice : choices)
            words += (words.empty() ? "" : "|") + choice;
        m_app.add_option(name, text, what)->type_name(words);
        m_takes.emplace_back([&, name, choices] {
            if (std::find(choices.begin(), choices.end(), text) == choices.end()) {
                std::vector<std::wstring> known;
                known.reserve(choices.size());
                for (const std::string& choice : choices)
                    known.push_back(Wide(choice));
                throw UsageError{Wide(name) + L": there is no \"" + Wide(text) + L"\"" +
                                 DidYouMean(Wide(text), known)};
            }
            value = Wide(text);
        });
    }

private:
    void TakeIfThere(CLI::Option* option, std::optional<std::wstring>& value) {
        m_takes.emplace_back([option, &value, &text = m_texts.back()] {
            if (option->count() > 0)
                value = Wide(text);
        });
    }
    void TakeAll(const CLI::Option* /*option*/, std::vector<std::wstring>& values) {
        m_takes.emplace_back([&values, &list = m_lists.back()] {
            for (const std::string& text : list)
                values.push_back(Wide(text));
        });
    }

    CLI::App& m_app;
    std::deque<std::string> m_texts;
    std::deque<std::vector<std::string>> m_lists;
    std::vector<std::function<void()>> m_takes;
};

/// Takes the declarations down.
class ListedArguments final : public Arguments {
public:
    std::vector<Argument> list;

    void One(const std::string& name, std::wstring& /*value*/, Meaning meaning,
             const std::string& what) override {
        list.push_back({name, {}, meaning, {}, what, true});
    }
    void Maybe(const std::string& name, std::optional<std::wstring>& /*value*/, Meaning meaning,
               const std::string& what) override {
        list.push_back({name, {}, meaning, {}, what});
    }
    void Rest(const std::string& name, std::vector<std::wstring>& /*values*/, int least, Meaning meaning,
              const std::string& what) override {
        list.push_back({name + "...", {}, meaning, {}, what, least > 0});
    }
    void Flag(const std::string& name, bool& /*value*/, const std::string& what) override {
        list.push_back({name, {}, Meaning::Text, {}, what});
    }
    void Option(const std::string& name, const std::string& valueName, std::optional<std::wstring>& /*value*/,
                Meaning meaning, const std::string& what) override {
        list.push_back({name, valueName, meaning, {}, what});
    }
    void Options(const std::string& name, const std::string& valueName, std::vector<std::wstring>& /*values*/,
                 Meaning meaning, const std::string& what) override {
        list.push_back({name, valueName, meaning, {}, what});
    }
    void Choice(const std::string& name, std::wstring& /*value*/, const std::vector<std::string>& choices,
                const std::string& what) override {
        std::string words;
        for (const std::string& choice : choices)
            words += (words.empty() ? "" : "|") + choice;
        list.push_back({name, words, Meaning::Choice, choices, what});
    }
};

/// Whether all that was printed has arrived. A buffer that could not be emptied on the way is told by the
/// error of the file alone.
bool IsPrinted() { return std::cout.flush() && std::ferror(stdout) == 0; }

int Failed(const Problem& failure, ExitCode code) {
    PrintFailure(failure);
    return code;
}

/// The options of a command, or of the program: "--json".
std::vector<std::wstring> OptionNames(const CLI::App& app) {
    std::vector<std::wstring> names;
    for (const CLI::Option* const option : app.get_options())
        for (const std::string& name : option->get_lnames())
            names.push_back(Wide("--" + name));
    return names;
}

/// A first argument that is neither a command nor an option: CLI11 would tell it as one too many, or ask for
/// a command.
void RequireCommand(int argc, const char* const* argv, const CLI::App& app) {
    if (argc < 2 || argv[1][0] == '\0')
        return;
    const bool isOption = argv[1][0] == '-';
    std::vector<std::wstring> names = isOption ? OptionNames(app) : std::vector<std::wstring>();
    if (isOption)
        names.emplace_back(L"-h");
    else
        for (const CommandRow* const row : Commands())
            names.push_back(Wide(row->name));
    const std::wstring given = QuorIniFile::DecodeBytes(argv[1]);
    if (std::find(names.begin(), names.end(), given) == names.end())
        throw UsageError{std::wstring(isOption ? L"there is no option \"" : L"there is no command \"") +
                         given + L"\"" + DidYouMean(given, names)};
}

/// An argument too many that begins with "-": a mistyped option of a command.
void RequireOptions(const CLI::App& command) {
    for (const std::string& argument : command.remaining()) {
        if (argument.size() < 2 || argument.front() != '-')
            continue;
        const std::wstring given = QuorIniFile::DecodeBytes(argument.substr(0, argument.find('=')));
        std::wstring meant = DidYouMean(given, OptionNames(command));
        if (meant.empty())
            meant = L"; \"--\" goes before names that begin with \"-\"";
        throw UsageError{std::wstring(L"the command \"")
                             .append(Wide(command.get_name()))
                             .append(L"\" has no option \"")
                             .append(given)
                             .append(L"\"")
                             .append(meant)};
    }
}

class CommandLine {
public:
    CommandLine() {
        m_app.require_subcommand(1);
        m_app.set_version_flag("--version", std::string("quorconv ") + version);
        m_app.failure_message([](const CLI::App* app, const CLI::Error& error) { // it repeats arguments
            const CLI::Error printable(error.get_name(), PrintableBytes(error.what()), error.get_exit_code());
            return CLI::FailureMessage::simple(app, printable);
        });
        m_app.footer(std::string(exitCodes) + "\n" + standardStreams +
                     "\n\"quorconv COMMAND --help\" shows an example of each command.");
        for (const CommandRow* const row : Commands()) {
            CLI::App* const app = m_app.add_subcommand(row->name, row->what);
            std::string footer = row->examples.back() ? "Examples:" : "Example:";
            for (const char* const example : row->examples)
                footer += example ? std::string("\n  ") + example : "";
            app->footer(footer);
            app->callback([this, row] { m_chosen = row; });
            m_commands.push_back(row->create());
            m_commands.back()->Declare(m_arguments.emplace_back(*app));
        }
    }

    int Run(int argc, const char* const* argv) {
        RequireCommand(argc, argv, m_app);
        try {
            m_app.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            for (const CLI::App* const command : m_app.get_subcommands())
                RequireOptions(*command);
            // Help and version are asked for as "errors" with the code 0.
            return m_app.exit(error) == 0 ? fine : wrongUsage;
        }
        const auto at = static_cast<std::size_t>(std::find(Commands().begin(), Commands().end(), m_chosen) -
                                                 Commands().begin());
        m_arguments[at].Take();
        try {
            const ExitCode code = m_commands[at]->Run();
            if (!IsPrinted())
                throw Problem{L"the results cannot be written"};
            return code;
        } catch (const UsageError&) {
            throw;
        } catch (...) {
            return Failed(CurrentFailure(), m_commands[at]->Failure());
        }
    }

private:
    CLI::App m_app{whatItDoes, "quorconv"};
    const CommandRow* m_chosen = nullptr;
    std::vector<std::unique_ptr<Command>> m_commands; // beside those of the table
    std::deque<ParsedArguments> m_arguments;          // likewise
};

} // namespace

int RunCommandLine(int argc, const char* const* argv) {
    try {
        const int code = CommandLine().Run(argc, argv);
        if (code == fine && !IsPrinted()) // of a help
            return Failed({L"the results cannot be written"}, problemFound);
        return code;
    } catch (const UsageError& error) {
        return Failed({error.text, error.reasons}, wrongUsage);
    } catch (...) {
        return Failed(CurrentFailure(), problemFound);
    }
}

std::vector<DeclaredCommand> DeclaredCommands() {
    std::vector<DeclaredCommand> commands;
    for (const CommandRow* const row : Commands()) {
        ListedArguments arguments;
        row->create()->Declare(arguments);
        commands.push_back({row->name, row->what, std::move(arguments.list), {}});
        std::copy_if(row->examples.begin(), row->examples.end(), std::back_inserter(commands.back().examples),
                     [](const char* example) { return example != nullptr; });
    }
    return commands;
}

} // namespace quorconv
