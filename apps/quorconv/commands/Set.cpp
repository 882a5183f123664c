#include "apps/quorconv/commands/Rows.h"

#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Progress.h"
#include "apps/quorconv/Records.h"
#include "apps/quorconv/Selection.h"
#include "apps/quorconv/Steps.h"

namespace quorconv {
namespace {

class Set final : public Command {
    std::wstring m_path;
    std::optional<std::wstring> m_pattern;
    std::vector<std::wstring> m_values;
    std::vector<std::wstring> m_also;
    std::optional<std::wstring> m_from;
    Selection m_selection;
    ValueRules m_rules;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.Maybe("SECTION", m_pattern, Meaning::Section,
                        "The section of the probe, or a pattern with * and ? for several");
        arguments.Rest("KEY=VALUE", m_values, 0, Meaning::Assignment,
                       "Values, by the keys that \"show\" prints");
        m_selection.DeclareType(arguments);
        arguments.Options("--also", "FILE", m_also, Meaning::File, "The same in that file; may be repeated");
        arguments.Option("--from", "FILE", m_from, Meaning::File,
                         "A file with lines SECTION KEY=VALUE..., all of which are carried out, or none;\n"
                         "SECTION is a name, no pattern; put names with blanks in double quotes");
        m_rules.Declare(arguments);
        m_rules.DeclareDrop(arguments);
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        if (m_from) {
            if (m_pattern || !m_values.empty() || !m_also.empty() || m_selection.type)
                throw UsageError{L"with --from the file alone says what is set"};
            return RunSteps(m_path, *m_from, StepLanguage::Settings, m_rules, m_isDryRun);
        }
        if (!m_pattern || m_values.empty())
            throw UsageError{L"SECTION and KEY=VALUE expected, or --from FILE"};
        const auto assignments = Assignments(m_values);
        m_selection.patterns = {*m_pattern};
        std::vector<std::wstring> paths{m_path};
        paths.insert(paths.end(), m_also.begin(), m_also.end());
        const std::size_t count = EditFiles(paths, m_isDryRun, [&](QuorProbeFile::ProbeFile& file) {
            if (m_selection.IsMany())
                RequireReadable(file);
            const auto sections = m_selection.In(file);
            const Duplicates duplicates(file);
            Progress progress(L"probes of " + file.Path(), sections.size());
            for (const std::wstring& section : sections) {
                progress.Step();
                duplicates.Require(section);
                SetValues(file, section, assignments, m_rules);
            }
            return sections.size();
        });
        if (m_selection.IsMany() || paths.size() > 1)
            TellCount(count, L"probe", m_isDryRun ? "would be set" : "set");
        return fine;
    }
};

} // namespace

const CommandRow setRow{
    "set",
    "Change values of a probe, or of all probes that match a pattern",
    {"quorconv set laboratory.ini \"Probe 1 CSP-0417\" \"Low Range/Coefficients0\"=-2.1E-4",
     "quorconv set laboratory.ini \"*\" --type pt1 Coefficients0=100 --dry-run"},
    Create<Set>};

} // namespace quorconv
