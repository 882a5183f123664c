#include "apps/quorconv/commands/Rows.h"

#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Steps.h"

namespace quorconv {
namespace {

class Rename final : public Command {
    std::wstring m_path;
    std::wstring m_section;
    std::wstring m_name;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.One("SECTION", m_section, Meaning::Section, "The section of the probe");
        arguments.One("NAME", m_name, Meaning::Text, "Its new name");
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        HostFile file(m_path);
        file.Edit(m_isDryRun, [&] {
            RequireReadable(*file);
            Duplicates(*file).Require(m_section);
            RenameProbe(*file, m_section, m_name);
        });
        return fine;
    }
};

} // namespace

const CommandRow renameRow{"rename",
                           "Rename a probe and the sections of its settings",
                           {"quorconv rename laboratory.ini \"Probe 9 PRT-1182\" \"Probe 9 PRT-1183\""},
                           Create<Rename>};

} // namespace quorconv
