#include "apps/quorconv/commands/Rows.h"

#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/ProbeCsv.h"
#include "apps/quorconv/ProbeJson.h"
#include "apps/quorconv/Progress.h"
#include "apps/quorconv/Selection.h"

#include <iostream>

namespace quorconv {
namespace {

class Export final : public Command {
    std::wstring m_path;
    Selection m_selection;
    CsvStyle m_style;
    bool m_isCsv = false;
    bool m_isJsonLines = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file");
        arguments.Rest("SECTION", m_selection.patterns, 0, Meaning::Section,
                       "The sections of probes, or patterns with * and ?; without it, all probes");
        m_selection.DeclareType(arguments);
        arguments.Flag("--csv", m_isCsv, "A table of the probes of one --type: RFC 4180, a line a probe");
        arguments.Flag("--jsonl", m_isJsonLines, "JSON Lines: an object a line, of all types");
        m_style.Declare(arguments);
    }

    ExitCode Run() override {
        if (m_isCsv == m_isJsonLines)
            throw UsageError{L"--csv or --jsonl expected"};
        if (m_isJsonLines)
            m_style.RequireNone();
        if (m_isCsv && !m_selection.type)
            throw UsageError{L"--csv needs --type: the columns are the keys of one type"};
        HostFile file(m_path);
        const auto sections = m_selection.In(*file);
        Progress progress(L"probes", sections.size(),
                          m_isCsv ? Progress::Results::AtTheEnd : Progress::Results::InBetween);
        std::optional<CsvTable> table;
        if (m_isCsv)
            table.emplace(RequireType(*m_selection.type).code, m_style);
        bool isFine = TellUnreadable(*file);
        std::size_t count = 0;
        ProbeReader reader;
        ProbeToJson json(true);
        const Duplicates duplicates(*file);
        for (const std::wstring& section : sections) {
            progress.Step();
            duplicates.Tell(section);
            try {
                const ProbeValues& probe = reader.Read(*file, section);
                if (table)
                    table->Add(probe);
                else
                    std::cout << json.Text(probe) << '\n';
                ++count;
            } catch (...) {
                PrintFailure(CurrentFailure());
                isFine = false;
            }
        }
        if (table)
            table->Print(std::cout);
        TellCount(count, L"probe", "exported");
        return isFine ? fine : problemFound;
    }
};

} // namespace

const CommandRow exportRow{"export",
                           "Print probes for other programs: as a CSV table, or as JSON Lines",
                           {"quorconv export laboratory.ini --csv --type cvd >certificates.csv",
                            "quorconv export laboratory.ini --jsonl >laboratory.jsonl"},
                           Create<Export>};

} // namespace quorconv
