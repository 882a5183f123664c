// quorconv: probe records in INI files, from the command line.

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeFileError.h"
#include "QuorProbeFile/ProbeWarning.h"
#include "apps/quorconv/Commands.h"

#ifdef QUORCONV_HAS_WINDOWS
#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtSession.h"
#endif

#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using quorconv::Assignment;
using QuorIniFile::ToPrintable;

enum ExitCode : int { fine = 0, problemFound = 1, wrongUsage = 2 };

/// A mistake in the command line. The text is printable: what it repeats of the arguments is escaped.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The text of an argument or of an exception, in whatever encoding, for the terminal.
std::string PrintableBytes(std::string_view bytes) { return ToPrintable(QuorIniFile::DecodeBytes(bytes)); }

std::wstring Wide(const std::string& argument) {
    if (auto text = QuorIniFile::FromUtf8(argument))
        return *std::move(text);
    throw UsageError("an argument is not UTF-8 text: " + PrintableBytes(argument));
}

std::vector<std::wstring> Wide(const std::vector<std::string>& arguments) {
    std::vector<std::wstring> texts;
    texts.reserve(arguments.size());
    for (const std::string& argument : arguments)
        texts.push_back(Wide(argument));
    return texts;
}

std::vector<Assignment> Assignments(const std::vector<std::string>& arguments) {
    std::vector<Assignment> assignments;
    for (const std::wstring& text : Wide(arguments)) {
        const auto equals = text.find(L'=');
        if (equals == std::wstring::npos || equals == 0)
            throw UsageError("KEY=VALUE expected: " + ToPrintable(text));
        assignments.push_back({text.substr(0, equals), text.substr(equals + 1)});
    }
    return assignments;
}

/// The command line: one subcommand a command, each with an example.
class CommandLine {
public:
    CommandLine() {
        m_app.require_subcommand(1);
        m_app.set_version_flag("--version", "quorconv " QUORCONV_VERSION);
        m_app.failure_message([](const CLI::App* app, const CLI::Error& error) { // it repeats arguments
            const CLI::Error printable(error.get_name(), PrintableBytes(error.what()), error.get_exit_code());
            return CLI::FailureMessage::simple(app, printable);
        });
        m_app.footer("Exit codes: 0 fine, 1 a problem was found, 2 wrong usage.\n"
                     "\"quorconv COMMAND --help\" shows an example of each command.");

        Add("types", "List the conversion types: code, enumerator, name, file extension", "quorconv types",
            [] {
                quorconv::ListTypes();
                return fine;
            });

        auto* list = Add("list", "List the probes of a file: section, type, name",
                         "quorconv list laboratory.ini", [this] {
                             quorconv::ListProbes(Wide(m_file));
                             return fine;
                         });
        AddFile(list);

        auto* show = Add("show", "Show the settings of a probe, or of all probes of a file",
                         "quorconv show laboratory.ini \"Probe 1\" --json", [this] {
                             const std::wstring section = Wide(m_section);
                             quorconv::ShowProbes(Wide(m_file),
                                                  m_hasSection->count() > 0 ? &section : nullptr, m_asJson);
                             return fine;
                         });
        AddFile(show);
        m_hasSection =
            show->add_option("SECTION", m_section, "The section of the probe; without it, all probes");
        show->add_flag("--json", m_asJson, "Print JSON: an object for one probe, an array for all");

        auto* create = Add(
            "new", "Add a probe to a file, which is created when it does not exist",
            "quorconv new laboratory.ini \"Probe 7\" cvd Coefficients0=100.012 UsePolynomial=True", [this] {
                quorconv::NewProbe(Wide(m_file), Wide(m_section), Wide(m_type), Assignments(m_assignments));
                return fine;
            });
        AddFile(create);
        AddSection(create);
        create->add_option("TYPE", m_type, "A code (2), an enumerator (CONV_CVD) or a file extension (cvd)")
            ->required();
        create->add_option("KEY=VALUE", m_assignments, "Values, by the keys that \"show\" prints");

        auto* set =
            Add("set", "Change values of a probe",
                "quorconv set laboratory.ini \"Probe 1\" \"Low Range/Coefficients0\"=-2.1E-4", [this] {
                    quorconv::SetValues(Wide(m_file), Wide(m_section), Assignments(m_assignments));
                    return fine;
                });
        AddFile(set);
        AddSection(set);
        set->add_option("KEY=VALUE", m_assignments, "Values, by the keys that \"show\" prints")->required();

        auto* edit = Add("edit", "Edit a probe in its dialog, on the screen or as a script says",
                         "quorconv edit laboratory.ini \"Probe 1\" --script steps.txt", [this] {
                             if (m_script.empty() && !m_show)
                                 return EditOnTheScreen();
                             const std::wstring script = Wide(m_script);
                             quorconv::EditProbe(Wide(m_file), Wide(m_section),
                                                 m_script.empty() ? nullptr : &script, m_show);
                             return fine;
                         });
        AddFile(edit);
        AddSection(edit);
        edit->add_option(
            "--script", m_script,
            "What the person does, a command a line: type R0 100.0123, choose Type K, click OK;\n"
            "without it the dialog opens on the screen");
        edit->add_flag("--show", m_show, "Print the dialog as text, as it opens");

        auto* copy =
            Add("copy", "Copy a probe to a section of the same or another file",
                "quorconv copy prt-1188.cvd \"Callendar-Van Dusen\" laboratory.ini \"Probe 1\"", [this] {
                    quorconv::CopyProbe(Wide(m_file), Wide(m_section), Wide(m_toFile), Wide(m_toSection));
                    return fine;
                });
        copy->add_option("FILE", m_file, "The file to copy from")->required();
        copy->add_option("SECTION", m_section, "The section to copy from")->required();
        copy->add_option("TO-FILE", m_toFile, "The file to copy to")->required();
        copy->add_option("TO-SECTION", m_toSection, "The section to copy to")->required();

        auto* check =
            Add("check",
                "Check every probe of the files; each problem is a line FILE:LINE: [SECTION] KEY: ...,\n"
                "each value that can hardly be meant FILE:LINE: warning: ... [ID]",
                "quorconv check laboratory.ini *.cvd",
                [this] { return quorconv::CheckFiles(Wide(m_files), Warnings()) ? fine : problemFound; });
        check->add_option("FILE", m_files, "The files")->required();
        check->add_flag("--strict", m_isStrict, "End with 1 for a warning, too");
        check
            ->add_option("--ignore", m_ignored,
                         "Do not tell the warnings of that ID; may stand several times")
            ->type_name("ID")
            ->allow_extra_args(false);
    }

    int Run(int argc, const char* const* argv) {
        try {
            m_app.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            // Help and version are asked for as "errors" with the code 0.
            return m_app.exit(error) == 0 ? fine : wrongUsage;
        }
        return m_command();
    }

private:
    CLI::App* Add(const std::string& name, const std::string& description, const std::string& example,
                  std::function<ExitCode()> run) {
        CLI::App* const command = m_app.add_subcommand(name, description);
        command->footer("Example:\n  " + example);
        command->callback([this, run = std::move(run)] { m_command = run; });
        return command;
    }
    void AddFile(CLI::App* command) { command->add_option("FILE", m_file, "The INI file")->required(); }
    void AddSection(CLI::App* command) {
        command->add_option("SECTION", m_section, "The section of the probe")->required();
    }

    /// What the command line says of warnings.
    [[nodiscard]] quorconv::WarningChoice Warnings() const {
        quorconv::WarningChoice choice{m_isStrict, {}};
        for (const std::wstring& id : Wide(m_ignored)) {
            if (!QuorProbeFile::FindWarning(id))
                throw UsageError("there is no warning \"" + ToPrintable(id) +
                                 "\"; each ends with its id in brackets");
            choice.ignored.insert(id);
        }
        return choice;
    }

    [[nodiscard]] ExitCode EditOnTheScreen() const {
#ifdef QUORCONV_HAS_WINDOWS
        if (QuorConversions::QtToolkit::HasDisplay()) {
            const QuorConversions::QtToolkit::QtSession session("quorconv");
            quorconv::EditProbeOn(session.Platform(), Wide(m_file), Wide(m_section));
            return fine;
        }
        const char* const why = "there is no display";
#else
        const char* const why = "this quorconv was built without windows";
#endif
        throw UsageError(std::string("edit needs --script FILE or --show here: ") + why +
                         ". A script has a command a line:\n"
                         "  type R0 100.0123\n"
                         "  click OK");
    }

    CLI::App m_app{"Probe records in INI files: look at them, change them, keep them right.", "quorconv"};
    std::function<ExitCode()> m_command;
    std::string m_file;
    std::string m_section;
    std::string m_type;
    std::string m_toFile;
    std::string m_toSection;
    std::vector<std::string> m_assignments;
    std::vector<std::string> m_files;
    std::vector<std::string> m_ignored;
    std::string m_script;
    bool m_asJson = false;
    bool m_isStrict = false;
    bool m_show = false;
    CLI::Option* m_hasSection = nullptr;
};

/// A text for the terminal, with each reason on a line of its own.
std::string Lines(const std::wstring& text, const std::vector<std::wstring>& reasons) {
    std::string lines = ToPrintable(text);
    for (const std::wstring& reason : reasons)
        lines += "\n  " + ToPrintable(reason);
    return lines;
}

/// `text` is printable.
int Failed(const std::string& text, ExitCode code) {
    std::cerr << "quorconv: " << text << '\n';
    return code;
}

} // namespace

int main(int argc, char** argv) {
    try {
        const int code = CommandLine().Run(argc, argv);
        if (!std::cout.flush())
            return Failed("the results cannot be written", problemFound);
        return code;
    } catch (const UsageError& error) {
        return Failed(error.what(), wrongUsage);
    } catch (const quorconv::Problem& problem) {
        return Failed(Lines(problem.text, problem.reasons), problemFound);
    } catch (const QuorProbeFile::ProbeFileError& error) {
        return Failed(Lines(error.Description(), quorconv::Reasons(error.Messages(), error.Problems())),
                      problemFound);
    } catch (const std::exception& error) {
        return Failed(PrintableBytes(error.what()), problemFound);
    }
}
