#include "apps/quorconv/commands/Rows.h"

#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Progress.h"
#include "apps/quorconv/Selection.h"
#include "apps/quorconv/Steps.h"

#include <memory>

namespace quorconv {

using QuorProbeFile::ProbeFile;

namespace {

class Copy final : public Command {
    std::wstring m_from;
    std::wstring m_to;
    std::optional<std::wstring> m_name;
    std::wstring m_section;
    std::vector<std::wstring> m_also;
    Selection m_selection;
    bool m_replaces = false;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_from, Meaning::File, "The file to copy from");
        arguments.One("SECTION", m_section, Meaning::Section,
                      "The section to copy from, or a pattern with * and ? for several");
        arguments.One("TO-FILE", m_to, Meaning::File, "The file to copy to");
        arguments.Maybe("TO-SECTION", m_name, Meaning::Text,
                        "The section to copy to; without it the probes keep their names");
        m_selection.DeclareType(arguments);
        arguments.Options("--also", "FILE", m_also, Meaning::File,
                          "Copy those of that file too; can be given several times");
        arguments.Flag("--replace", m_replaces, "Replace existing probes of the same type");
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        m_selection.patterns = {m_section};
        if (m_name && m_selection.IsMany())
            throw UsageError{L"several probes keep their names: no TO-SECTION"};
        if (m_name && !m_also.empty())
            throw UsageError{L"probes of several files keep their names: no TO-SECTION"};
        if (!m_also.empty() && !m_selection.IsMany())
            throw UsageError{L"--also is for a pattern: one probe is copied from one file"};
        HostFile to(m_to, ProbeFile::Opening::OrNew);
        std::vector<std::unique_ptr<HostFile>> others;
        std::vector<HostFile*> sources;
        std::vector<std::wstring> paths{m_from};
        paths.insert(paths.end(), m_also.begin(), m_also.end());
        for (const std::wstring& path : paths) {
            const bool isTarget = path == standardInput && m_to == standardInput;
            sources.push_back(isTarget ? &to : others.emplace_back(std::make_unique<HostFile>(path)).get());
        }
        std::size_t count = 0;
        to.Edit(m_isDryRun, [&] {
            RequireReadable(*to);
            const Duplicates there(*to);
            QuorProbeFile::NameSet copied;
            Progress progress(L"probes", 0);
            for (HostFile* const from : sources) {
                RequireReadable(**from);
                const Duplicates duplicates(**from);
                QuorProbeFile::NameMap<std::wstring> names;
                for (const std::wstring& section : m_selection.In(**from)) {
                    progress.Step();
                    if (!copied.insert(section).second)
                        throw Problem{Place((*from)->Path(), section) +
                                      L": a probe of this name stands in several of the files"};
                    duplicates.Require(section);
                    const std::wstring name = m_name.value_or(section);
                    there.Require(name);
                    CopyProbe(**from, section, *to, name, m_replaces);
                    names.emplace(section, name);
                }
                CopyOtherKeys(**from, names, *to);
            }
            count = copied.size();
        });
        if (m_selection.IsMany() || !m_also.empty())
            TellCount(count, L"probe", m_isDryRun ? "would be copied" : "copied");
        return fine;
    }
};

} // namespace

const CommandRow copyRow{
    "copy",
    "Copy a probe, or all that match a pattern, to the same or another file; values go as they are",
    {"quorconv copy prt-1188.cvd \"Callendar-Van Dusen\" laboratory.ini \"Probe 38\"",
     "quorconv copy laboratory.ini \"*\" --type cvd platinum.ini"},
    Create<Copy>};

} // namespace quorconv
