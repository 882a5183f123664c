#include "apps/quorconv/commands/Rows.h"

#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Steps.h"

namespace quorconv {
namespace {

class Apply final : public Command {
    std::wstring m_path;
    std::optional<std::wstring> m_from;
    ValueRules m_rules;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.Maybe(
            "STEPS", m_from, Meaning::File,
            "A file with one step per line: new, set, copy, rename, retype, remove, with their arguments\n"
            "except the file, each for one probe by its name: no patterns, and no options but --replace of\n"
            "copy; put names with blanks in double quotes, and \\\" and \\\\ inside them for \" and \\;\n"
            "\"#\" begins a comment.\n"
            "Without it the standard input");
        m_rules.Declare(arguments);
        m_rules.DeclareDrop(arguments);
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        return RunSteps(m_path, m_from.value_or(standardInput), StepLanguage::Commands, m_rules, m_isDryRun);
    }
};

} // namespace

const CommandRow applyRow{
    "apply",
    "Carry out several steps in one file: all of them, or none",
    {"quorconv apply laboratory.ini <steps.txt",
     "echo 'set \"Probe 9 PRT-1182\" Coefficients0=100.0123' | quorconv apply laboratory.ini --dry-run"},
    Create<Apply>};

} // namespace quorconv
