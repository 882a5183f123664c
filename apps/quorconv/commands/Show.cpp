#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/ProbeJson.h"
#include "apps/quorconv/Progress.h"
#include "apps/quorconv/Records.h"
#include "apps/quorconv/Selection.h"

#include <iostream>
#include <utility>

namespace quorconv {

using namespace QuorProbeFile;
using QuorIniFile::ToPrintable;

namespace {

class Show final : public Command {
    std::wstring m_path;
    std::vector<std::wstring> m_also;
    Selection m_selection;
    bool m_isJson = false;
    bool m_isJsonLines = false;
    const char* m_separator = "";
    ProbeReader m_reader;
    ProbeToJson m_json{false};
    ProbeToJson m_jsonItem{false, 2}; // of an array
    ProbeToJson m_jsonLine{true};

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.Rest("SECTION", m_selection.patterns, 0, Meaning::Section,
                       "The sections of probes, or patterns with * and ?; without it, all probes");
        m_selection.DeclareType(arguments);
        arguments.Options("--also", "FILE", m_also, Meaning::File,
                          "Also those of that file; may be repeated. JSON does not say which file a\n"
                          "probe is from, and \"put\" refuses two of one name");
        arguments.Flag("--json", m_isJson, "Print JSON: an object for one section, an array for more");
        arguments.Flag("--jsonl", m_isJsonLines, "Print JSON Lines: one object per line");
    }

    ExitCode Run() override {
        std::vector<std::wstring> paths{m_path};
        paths.insert(paths.end(), m_also.begin(), m_also.end());
        const bool isArray = m_isJson && !m_isJsonLines && (m_selection.IsMany() || paths.size() > 1);
        bool isFine = true;
        std::size_t count = 0;
        for (const std::wstring& path : paths) {
            try {
                isFine = ShowFile(path, paths.size() > 1, isArray, count) && isFine;
            } catch (const UsageError&) {
                throw;
            } catch (...) {
                PrintFailure(CurrentFailure());
                isFine = false;
            }
        }
        if (isArray && *m_separator != '\0')
            std::cout << "\n]\n";
        else if (isArray && isFine)
            std::cout << "[]\n";
        const bool isSelected = m_selection.type || !m_selection.patterns.empty();
        if (m_selection.IsMany() && isSelected && (isFine || count > 0))
            TellCount(count, L"probe", "shown");
        return isFine ? fine : problemFound;
    }

    /// False when one of its probes cannot be read, which is told.
    bool ShowFile(const std::wstring& path, bool hasTitle, bool isInArray, std::size_t& count) {
        HostFile file(path);
        if (hasTitle && !m_isJson && !m_isJsonLines)
            std::cout << std::exchange(m_separator, "\n") << "# " << ToPrintable(path) << "\n";
        const auto sections = m_selection.In(*file);
        Progress progress(L"probes", sections.size(), Progress::Results::InBetween);
        bool isFine = !m_selection.IsMany() || TellUnreadable(*file);
        const Duplicates duplicates(*file);
        for (const std::wstring& section : sections) {
            duplicates.Tell(section);
            progress.Step();
            const bool isShown = ShowProbe(*file, section, isInArray);
            count += isShown ? 1U : 0U;
            isFine = isFine && isShown;
        }
        return isFine;
    }

    /// False when it cannot be read, which is told.
    bool ShowProbe(ProbeFile& file, const std::wstring& section, bool isInArray) {
        try {
            const ProbeValues& probe = m_reader.Read(file, section);
            if (m_isJsonLines) {
                std::cout << m_jsonLine.Text(probe) << '\n';
            } else if (isInArray) {
                const std::string& text = m_jsonItem.Text(probe); // which may fail
                std::cout << (*std::exchange(m_separator, ",") != '\0' ? "," : "[") << "\n  " << text;
            } else if (m_isJson) {
                std::cout << m_json.Text(probe) << '\n';
            } else {
                std::cout << std::exchange(m_separator, "\n");
                PrintProbe(probe);
            }
            return true;
        } catch (const UsageError&) {
            throw;
        } catch (...) {
            PrintFailure(CurrentFailure());
            return false;
        }
    }

    static void PrintProbe(const ProbeValues& probe) {
        std::cout << ToPrintable(L"[" + probe.section + L"] " + TypeName(probe.code) + L" " + probe.name)
                  << '\n';
        for (const auto& entry : probe.entries)
            std::cout << ToPrintable(entry.path + L"=" + ToText(entry.value)) << '\n';
    }
};

} // namespace

const CommandRow showRow{
    "show",
    "Show the settings of probes; those that cannot be read are reported, the others shown",
    {"quorconv show laboratory.ini \"Probe 9 PRT-1182\" --json",
     "quorconv show laboratory.ini \"*PRT*\" --type cvd"},
    Create<Show>};

} // namespace quorconv
