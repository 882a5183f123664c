#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Records.h"
#include "apps/quorconv/Selection.h"
#include "apps/quorconv/System.h"
#include "toolkits/scripted/Script.h"

#include <iostream>

namespace quorconv {

namespace Scripted = QuorConversions::Scripted;

namespace {

UsageError NeedsScript(const std::wstring& why) {
    return {L"edit needs --script FILE or --show here: " + why + L". A script has a command a line:",
            {L"type R0 100.0123", L"click OK"}};
}

/// Goes on as probe-edit, the program with the windows.
[[noreturn]] void BecomeProbeEdit(const std::wstring& path, const std::wstring& section) {
    // A name may begin with "-".
    BecomeProgram("probe-edit", {"--", QuorIniFile::ToUtf8(path), QuorIniFile::ToUtf8(section)});
    throw NeedsScript(L"the program \"probe-edit\" is not installed; the package \"probe-setup\" has it");
}

class Edit final : public Command {
    std::wstring m_path;
    std::wstring m_section;
    std::optional<std::wstring> m_script;
    bool m_show = false;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.One("SECTION", m_section, Meaning::Section, "The section of the probe");
        arguments.Option(
            "--script", "FILE", m_script, Meaning::File,
            "What the user does, one command per line: type R0 100.0123, choose Type K, click OK;\n"
            "without it the dialog opens on the screen");
        arguments.Flag("--show", m_show, "Print the dialog as text, as it opens");
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        if (m_script || m_show)
            Play();
        else if (m_path == standardInput)
            throw UsageError{L"edit needs a file, or --script: a dialog waits for the user"};
        else if (m_isDryRun)
            throw UsageError{L"--dry-run needs --script: a person sees in the dialog what will be written"};
        else if (HasDisplay())
            BecomeProbeEdit(m_path, m_section);
        else
            throw NeedsScript(L"there is no display");
        return fine;
    }

    void Play() {
        HostFile file(m_path);
        Probe probe = ReadProbeToEdit(*file, SpelledInFile(*file, m_section));
        if (PlayOn(probe))
            Write(probe, file);
        else if (m_path == standardInput && m_script)
            file.Edit(m_isDryRun, [] {}); // what comes next in a pipe gets the file as it was
    }

    /// Whether the user of the script has pressed OK.
    bool PlayOn(Probe& probe) {
        std::wstring commands = m_show ? L"show\n" : L"";
        commands += m_script ? ReadText(*m_script) : L"escape";
        const std::size_t added = m_show ? 1 : 0; // lines that the script does not have
        std::ostream& out = m_path == standardInput && m_script ? std::cerr : std::cout; // beside the file
        try {
            Scripted::Script(commands, added).PlayOn(probe.Screen(), [&out](const std::wstring& screen) {
                out << QuorIniFile::ToUtf8(screen);
            });
        } catch (const Scripted::ScriptError& error) {
            throw Problem{m_script.value_or(L"") + L": " + error.text};
        }
        const bool accepted = probe.Settings()->Edit();
        if (const auto& complaints = probe.Screen().Complaints(); !complaints.empty())
            throw Problem{Place(m_path, m_section) + L": the dialog did not go as the script says",
                          complaints};
        if (!accepted)
            return false;
        if (const auto& advice = probe.Screen().UnexpectedAdvice(); !advice.empty())
            throw Problem{Place(m_path, m_section) +
                              L": nothing was written, because of advice that the script does not expect",
                          advice};
        return true;
    }

    void Write(Probe& probe, HostFile& read) const {
        if (m_path == standardInput) {
            read.Edit(m_isDryRun, [&] { WriteEdited(probe, *read); });
            return;
        }
        HostFile now(m_path);
        if (m_isDryRun)
            now.Edit(true, [&] { WriteEdited(probe, *now); });
        else
            WriteEdited(probe,
                        *now); // no part of an edit, which may be repeated: what was written counts as read
    }
};

} // namespace

const CommandRow editRow{"edit",
                         "Edit a probe in its dialog, on the screen or by a script",
                         {"quorconv edit laboratory.ini \"Probe 9 PRT-1182\" --show",
                          "printf 'type R0 100.0123\\nclick OK\\n' | quorconv edit laboratory.ini \"Probe 9 "
                          "PRT-1182\" --script -"},
                         Create<Edit>};

} // namespace quorconv
