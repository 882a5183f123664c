#include "apps/quorconv/commands/Rows.h"

#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Records.h"
#include "apps/quorconv/Steps.h"

namespace quorconv {

using QuorProbeFile::ProbeFile;

namespace {

class New final : public Command {
    std::wstring m_path;
    std::wstring m_section;
    std::wstring m_type;
    std::vector<std::wstring> m_values;
    ValueRules m_rules;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.One("SECTION", m_section, Meaning::Text, "The section of the new probe");
        arguments.One("TYPE", m_type, Meaning::Type,
                      "A code (2), an enumerator (CONV_CVD) or a file extension (cvd)");
        arguments.Rest("KEY=VALUE", m_values, 0, Meaning::Assignment,
                       "Values, by the keys that \"explain TYPE\" lists; the others get the\n"
                       "defaults that it tells, mostly 0");
        m_rules.Declare(arguments);
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        const auto assignments = Assignments(m_values);
        static_cast<void>(RequireSettingsType(m_type));
        HostFile file(m_path, ProbeFile::Opening::OrNew);
        file.Edit(m_isDryRun, [&] {
            RequireReadable(*file);
            NewProbe(*file, m_section, m_type, assignments, m_rules);
        });
        return fine;
    }
};

} // namespace

const CommandRow newRow{"new",
                        "Add a probe to a file, which is created if it does not exist",
                        {"quorconv new laboratory.ini \"Probe 37\" pt1 Coefficients0=100.0123"},
                        Create<New>};

} // namespace quorconv
