#include "apps/quorconv/commands/Rows.h"

#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Records.h"
#include "apps/quorconv/Steps.h"

namespace quorconv {
namespace {

class Retype final : public Command {
    std::wstring m_path;
    std::wstring m_section;
    std::wstring m_type;
    std::vector<std::wstring> m_values;
    ValueRules m_rules;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.One("SECTION", m_section, Meaning::Section, "The section of the probe");
        arguments.One("TYPE", m_type, Meaning::Type,
                      "A code (2), an enumerator (CONV_CVD) or a file extension (cvd)");
        arguments.Rest(
            "KEY=VALUE", m_values, 0, Meaning::Assignment,
            "Values; the others are those of a new probe, the old ones go, and keys of your own stay");
        m_rules.Declare(arguments);
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        const auto assignments = Assignments(m_values);
        HostFile file(m_path);
        file.Edit(m_isDryRun, [&] {
            RequireReadable(*file);
            Duplicates(*file).Require(m_section);
            RetypeProbe(*file, m_section, m_type, assignments, m_rules);
        });
        return fine;
    }
};

} // namespace

const CommandRow retypeRow{"retype",
                           "Give a probe another conversion type, with new settings",
                           {"quorconv retype laboratory.ini \"Probe 9 PRT-1182\" pt1 Coefficients0=100.0123"},
                           Create<Retype>};

} // namespace quorconv
