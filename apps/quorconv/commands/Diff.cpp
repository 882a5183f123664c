#include "apps/quorconv/commands/Rows.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/RecordValue.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Json.h"
#include "apps/quorconv/Probe.h"
#include "apps/quorconv/ProbeValues.h"
#include "apps/quorconv/Progress.h"

#include <algorithm>
#include <iostream>
#include <sstream>
#include <utility>

namespace quorconv {

using namespace QuorProbeFile;
using QuorIniFile::ToPrintable;

namespace {

class Diff final : public Command {
    std::wstring m_before;
    std::wstring m_after;
    bool m_isJson = false;
    bool m_isColoured = false;
    bool m_differs = false;
    std::ostringstream m_out; // what differs: a probe that cannot be read leaves no half of it

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_before, Meaning::File, "A file");
        arguments.One("OTHER", m_after, Meaning::File, "Another one");
        arguments.Flag("--json", m_isJson, "Print the differences as a JSON array");
    }

    /// Exit codes of a comparison: 0 the same, 1 different, 2 it could not be made.
    [[nodiscard]] ExitCode Failure() const override { return wrongUsage; }

    ExitCode Run() override {
        HostFile beforeFile(m_before);
        HostFile afterFile(m_after);
        const ProbeTable before(*beforeFile);
        const ProbeTable after(*afterFile);
        TellDuplicates(*beforeFile, before);
        TellDuplicates(*afterFile, after);
        m_isColoured = !m_isJson && ShowsColour(Stream::Output);
        Progress progress(L"probes", 0);
        before.ForEach([&](const std::wstring& section) {
            progress.Step();
            const ProbeValues& probe = before.Read(section);
            const ProbeValues* const now = after.Find(section);
            if (!now)
                PrintProbe('-', "removed", probe);
            else if (now->code != probe.code)
                Print(probe.section, QuorConversions::conversionTypeKey, TypeName(probe.code),
                      TypeName(now->code));
            else
                for (const ValueChange& change : ChangesOf(probe, *now))
                    Print(probe.section, change.key, TextOf(change.before), TextOf(change.after));
        });
        after.ForEach([&](const std::wstring& section) {
            progress.Step();
            if (!before.Has(section))
                PrintProbe('+', "added", after.Read(section));
        });
        if (m_isJson)
            m_out << (m_differs ? "\n]\n" : "[]\n");
        std::cout << m_out.view();
        return m_differs ? problemFound : fine;
    }

    /// Sections of probes that stand twice: only the first one is read, and compared.
    static void TellDuplicates(const ProbeFile& file, const ProbeTable& table) {
        for (const QuorIniFile::IniWarning& warning : table.Duplicates()) {
            if (table.IsOfProbe(warning.section))
                PrintFailure({file.Path() + L":" + std::to_wstring(warning.line) + L": [" + warning.section +
                              L"]: the section occurs twice; the one in line " +
                              std::to_wstring(warning.first) + L" is compared"});
        }
    }

    static std::optional<std::wstring> TextOf(const Value* value) {
        return value ? std::optional(ToText(*value)) : std::nullopt;
    }

    void BeginJson(const std::wstring& section, const char* change) {
        m_out << (std::exchange(m_differs, true) ? ",\n  " : "[\n  ") << "{\"section\": " << JsonText(section)
              << ", \"change\": \"" << change << '"';
    }

    void PrintProbe(char sign, const char* change, const ProbeValues& probe) {
        if (m_isJson) {
            BeginJson(probe.section, change);
            m_out << ", \"type\": " << JsonText(TypeName(probe.code)) << '}';
            return;
        }
        m_differs = true;
        const char* const colour = sign == '-' ? "\x1B[31m" : "\x1B[32m";
        m_out << (m_isColoured ? colour : "") << sign << ' '
              << ToPrintable(L"[" + probe.section + L"] " + TypeName(probe.code))
              << (m_isColoured ? "\x1B[0m\n" : "\n");
    }

    void Print(const std::wstring& section, const std::wstring& key,
               const std::optional<std::wstring>& before, const std::optional<std::wstring>& after) {
        if (m_isJson) {
            BeginJson(section, "changed");
            m_out << ", \"key\": " << JsonText(key)
                  << ", \"before\": " << (before ? JsonText(*before) : "null")
                  << ", \"after\": " << (after ? JsonText(*after) : "null") << '}';
            return;
        }
        m_differs = true;
        m_out << ToPrintable(L"  [" + section + L"] " + key + L": " + before.value_or(L"(none)") + L" -> " +
                             after.value_or(L"(none)"))
              << '\n';
    }
};

} // namespace

const CommandRow diffRow{
    "diff",
    "Compare two files by probes and values, not sections of the instrument; exits with 0 if they are "
    "equal, 1 if not",
    {"quorconv diff laboratory.ini laboratory-2024.ini"},
    Create<Diff>};

} // namespace quorconv
