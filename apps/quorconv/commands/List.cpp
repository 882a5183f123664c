#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Json.h"
#include "apps/quorconv/Probe.h"
#include "apps/quorconv/Progress.h"

#include <iostream>
#include <utility>

namespace quorconv {

using QuorIniFile::ToPrintable;
using QuorProbeFile::ProbeEntry;

namespace {

class List final : public Command {
    std::wstring m_path;
    bool m_isJson = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.Flag("--json", m_isJson, "Print a JSON array of section, type, code, name and line");
    }

    ExitCode Run() override {
        HostFile file(m_path);
        const bool isFine = TellUnreadable(*file);
        const char* separator = "[";
        Progress progress(L"probes", file->Probes().size(), Progress::Results::InBetween);
        for (const ProbeEntry& probe : file->Probes()) {
            progress.Step();
            if (m_isJson)
                std::cout << std::exchange(separator, ",");
            (m_isJson ? PrintJson : Print)(file, probe);
        }
        if (m_isJson)
            std::cout << (*separator == '[' ? "[]\n" : "\n]\n");
        return isFine ? fine : problemFound;
    }

    static void Print(HostFile& file, const ProbeEntry& probe) {
        std::cout << ToPrintable(probe.section) << '\t'
                  << ToPrintable(probe.type ? TypeName(*probe.type) : L"?") << '\t'
                  << ToPrintable(probe.type ? file->ConversionName(probe) : L"?") << '\n';
    }

    static void PrintJson(HostFile& file, const ProbeEntry& probe) {
        std::cout << "\n  {\"section\": " << JsonText(probe.section);
        if (probe.type)
            std::cout << ", \"code\": " << *probe.type << ", \"type\": " << JsonText(TypeName(*probe.type))
                      << ", \"name\": " << JsonText(file->ConversionName(probe));
        else
            std::cout << ", \"code\": null, \"type\": null, \"name\": null";
        std::cout << ", \"line\": " << probe.line << '}';
    }
};

} // namespace

const CommandRow listRow{
    "list",
    "List the probes of a file: section, type, name, with tabs between them; a tab in a name is\n"
    "printed as \\t, and --json prints every name so that it can be read back",
    {"quorconv list laboratory.ini", "quorconv list laboratory.ini --json"},
    Create<List>};

} // namespace quorconv
