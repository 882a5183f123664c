#include "apps/quorconv/commands/Rows.h"

#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Records.h"
#include "apps/quorconv/Selection.h"

#include <algorithm>

namespace quorconv {
namespace {

class Remove final : public Command {
    std::wstring m_path;
    std::vector<std::wstring> m_also;
    Selection m_selection;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.Rest("SECTION", m_selection.patterns, 1, Meaning::Section,
                       "The sections of the probes, or patterns with * and ?");
        m_selection.DeclareType(arguments);
        arguments.Options("--also", "FILE", m_also, Meaning::File, "The same in that file; may be repeated");
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        std::vector<std::wstring> paths{m_path};
        paths.insert(paths.end(), m_also.begin(), m_also.end());
        const std::size_t count = EditFiles(paths, m_isDryRun, [&](QuorProbeFile::ProbeFile& file) {
            if (m_selection.IsMany())
                RequireReadable(file);
            const auto sections = m_selection.In(file);
            if (m_selection.type)
                RequireTypes(file, sections);
            const Duplicates duplicates(file);
            for (const std::wstring& section : sections)
                duplicates.Require(section);
            file.Remove(sections);
            return sections.size();
        });
        if (m_selection.IsMany() || paths.size() > 1)
            TellCount(count, L"probe", m_isDryRun ? "would be removed" : "removed");
        return fine;
    }

    /// Raises Problem for a probe whose type cannot be read: nobody knows whether it is meant by a type.
    static void RequireTypes(QuorProbeFile::ProbeFile& file, const std::vector<std::wstring>& sections) {
        for (const QuorProbeFile::ProbeEntry& probe : file.Probes())
            if (!probe.type && std::find(sections.begin(), sections.end(), probe.section) != sections.end())
                static_cast<void>(ReadProbe(file, probe.section)); // which tells what is wrong with it
    }
};

} // namespace

const CommandRow removeRow{"remove",
                           "Remove probes with their settings; comments set apart by a blank line stay",
                           {"quorconv remove laboratory.ini \"Probe 9 PRT-1182\"",
                            "quorconv remove laboratory.ini \"*\" --type tct --dry-run"},
                           Create<Remove>};

} // namespace quorconv
