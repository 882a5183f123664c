#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeWarning.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Json.h"
#include "apps/quorconv/Nearest.h"
#include "apps/quorconv/Progress.h"
#include "apps/quorconv/Records.h"
#include "apps/quorconv/Selection.h"

#include <algorithm>
#include <iostream>
#include <set>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace quorconv {

using namespace QuorProbeFile;
using QuorIniFile::ToPrintable;

namespace {

/// The short words by which programs tell problems apart; those of warnings stand in their own table.
const std::pair<EProbeProblem, const wchar_t*> problemIds[] = {
    {PROBLEM_SECTION_MISSING, L"section-missing"},
    {PROBLEM_KEY_MISSING, L"key-missing"},
    {PROBLEM_VALUE_UNREADABLE, L"value-unreadable"},
    {PROBLEM_UNKNOWN_TYPE, L"unknown-type"},
    {PROBLEM_RECORD_REFUSED, L"record-refused"},
    {PROBLEM_VALUE_REFUSED, L"value-refused"},
    {PROBLEM_VALUE_REPLACED, L"value-replaced"},
    {PROBLEM_UNKNOWN_KEY, L"unknown-key"},
    {PROBLEM_DUPLICATE_KEY, L"duplicate-key"},
    {PROBLEM_DUPLICATE_SECTION, L"duplicate-section"},
    {PROBLEM_UNCLOSED_HEADER, L"unclosed-header"},
    {PROBLEM_MALFORMED_LINE, L"malformed-line"},
    {PROBLEM_KEPT_FILE, L"kept-file"},
    {PROBLEM_INTERRUPTED_SAVE, L"interrupted-save"},
    {PROBLEM_LINE_ENDS_IN_CR, L"line-ends-in-cr"},
};

/// That of a warning about a file as a whole.
constexpr const wchar_t* mixedEncodingId = L"mixed-encoding";

std::wstring IdOf(const ProbeProblem& problem) {
    if (const ProbeWarning* const warning = FindWarning(problem.kind))
        return warning->id;
    const auto* const found = std::find_if(std::begin(problemIds), std::end(problemIds),
                                           [&](const auto& row) { return row.first == problem.kind; });
    return found == std::end(problemIds) ? std::to_wstring(problem.kind) : found->second;
}

/// One problem of a file, or what keeps the file from being read.
struct Finding {
    std::wstring file;
    std::size_t line = 0;
    std::wstring section;
    std::wstring key;
    std::wstring id;
    std::wstring text;
    bool isWarning = false;
};

/// "[section] key: text"
std::wstring Told(const Finding& finding) {
    if (finding.section.empty())
        return finding.text;
    return L"[" + finding.section + L"] " + (finding.key.empty() ? L"" : finding.key + L": ") + finding.text;
}

/// How findings are printed.
class Report {
public:
    Report() = default;
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;
    virtual ~Report() = default;
    virtual void Print(const Finding& finding) = 0;
    virtual void Finish() {}
};

class TextReport final : public Report {
    void Print(const Finding& finding) override {
        std::cout << ToPrintable(finding.file) << ':';
        if (finding.line != 0)
            std::cout << finding.line << ':';
        std::cout << ' ';
        if (finding.isWarning)
            std::cout << (m_isColoured ? "\x1B[33mwarning:\x1B[0m " : "warning: ");
        else if (m_isColoured)
            std::cout << "\x1B[31m";
        std::cout << ToPrintable(Told(finding));
        if (finding.isWarning)
            std::cout << ToPrintable(L" [" + finding.id + L"]");
        else if (m_isColoured)
            std::cout << "\x1B[0m";
        std::cout << '\n';
    }
    bool m_isColoured = ShowsColour(Stream::Output);
};

/// As compilers do, for editors that go to a line.
class CompilerReport final : public Report {
    void Print(const Finding& finding) override {
        std::cout << ToPrintable(finding.file) << ':' << std::max<std::size_t>(finding.line, 1)
                  << ":1: " << (finding.isWarning ? "warning: " : "error: ")
                  << ToPrintable(Told(finding) + L" [" + finding.id + L"]") << '\n';
    }
};

/// Workflow commands, which a build server shows beside the line.
class WorkflowReport final : public Report {
    /// The characters that would end a value or the command.
    static std::string Escaped(const std::wstring& text, bool isProperty) {
        std::string escaped;
        for (const char character : ToPrintable(text)) {
            if (character == '%')
                escaped += "%25";
            else if (isProperty && character == ':')
                escaped += "%3A";
            else if (isProperty && character == ',')
                escaped += "%2C";
            else
                escaped += character;
        }
        return escaped;
    }
    void Print(const Finding& finding) override {
        std::cout << (finding.isWarning ? "::warning file=" : "::error file=") << Escaped(finding.file, true)
                  << ",line=" << std::max<std::size_t>(finding.line, 1)
                  << ",title=" << Escaped(finding.id, true) << "::" << Escaped(Told(finding), false) << '\n';
    }
};

class JsonReport final : public Report {
    void Print(const Finding& finding) override {
        std::cout << (std::exchange(m_isFirst, false) ? "[\n  " : ",\n  ")
                  << "{\"file\": " << JsonText(finding.file) << ", \"line\": " << finding.line
                  << ", \"section\": " << JsonText(finding.section) << ", \"key\": " << JsonText(finding.key)
                  << ", \"id\": " << JsonText(finding.id)
                  << ", \"severity\": " << (finding.isWarning ? "\"warning\"" : "\"error\"")
                  << ", \"text\": " << JsonText(finding.text) << '}';
    }
    void Finish() override { std::cout << (m_isFirst ? "[]\n" : "\n]\n"); }
    bool m_isFirst = true;
};

template <class R>
std::unique_ptr<Report> Make() {
    return std::make_unique<R>();
}

const struct {
    const char* name;
    std::unique_ptr<Report> (*make)();
} formats[] = {{"text", Make<TextReport>},
               {"gcc", Make<CompilerReport>},
               {"github", Make<WorkflowReport>},
               {"json", Make<JsonReport>}};

class Check final : public Command {
    std::vector<std::wstring> m_paths;
    Selection m_selection;
    std::vector<std::wstring> m_ignoredIds;
    std::wstring m_format;
    bool m_isStrict = false;
    bool m_isJson = false;

    void Declare(Arguments& arguments) override {
        arguments.Rest("FILE", m_paths, 1, Meaning::File, "The files");
        arguments.Flag("--strict", m_isStrict, "Exit with 1 for warnings too");
        arguments.Options("--ignore", "ID", m_ignoredIds, Meaning::Warning,
                          "Do not report warnings with that ID; may be repeated");
        arguments.Options("--section", "SECTION", m_selection.patterns, Meaning::Section,
                          "Only that probe, or those that match a pattern with * and ?; may be repeated");
        m_selection.DeclareType(arguments);
        arguments.Choice("--format", m_format, {"text", "gcc", "github", "json"},
                         "How problems are printed: for people, as a compiler, for a build server, as JSON");
        arguments.Flag("--json", m_isJson, "The same as --format json");
    }

    ExitCode Run() override {
        const std::set<std::wstring> ignored = Ignored();
        if (m_isJson)
            m_format = L"json";
        const auto* const format =
            std::find_if(std::begin(formats), std::end(formats),
                         [&](const auto& known) { return m_format == QuorIniFile::DecodeBytes(known.name); });
        const auto report = format->make();
        if (m_selection.type)
            static_cast<void>(RequireType(*m_selection.type));
        bool isFine = true;
        for (const std::wstring& path : m_paths) {
            for (const Finding& finding : FindingsOrWhyNone(path)) {
                if (finding.isWarning && ignored.contains(finding.id))
                    continue;
                isFine = isFine && finding.isWarning && !m_isStrict;
                report->Print(finding);
            }
        }
        report->Finish();
        if (IsSelecting())
            TellCount(m_count, L"probe", "checked");
        return isFine ? fine : problemFound;
    }

    [[nodiscard]] bool IsSelecting() const { return m_selection.type || !m_selection.patterns.empty(); }

    /// Those of a file, or what keeps it from being checked: the others are checked, and the report has an
    /// end.
    [[nodiscard]] std::vector<Finding> FindingsOrWhyNone(const std::wstring& path) {
        try {
            return Findings(path);
        } catch (const QuorIniFile::QuorError& error) {
            return {{path, 0, L"", L"", L"file-unreadable", WithoutFile(error.Description(), path)}};
        } catch (const Problem& problem) {
            return {{path, 0, L"", L"", L"file-unreadable", WithoutFile(problem.text, path)}};
        }
    }

    /// A failure without the file, which each finding names already: "path: what", "what: path: why" or
    /// "what: path".
    static std::wstring WithoutFile(std::wstring text, const std::wstring& path) {
        if (text.starts_with(path + L": "))
            return text.substr(path.size() + 2);
        const auto at = text.find(L": " + path);
        const auto end = at + 2 + path.size();
        if (at != std::wstring::npos && (end == text.size() || text[end] == L':'))
            text.erase(at, end - at);
        return text;
    }

    /// The sections that are to be checked, folded; what names no probe goes into `findings`.
    [[nodiscard]] std::unordered_set<std::wstring> Chosen(HostFile& file, const std::wstring& path,
                                                          std::vector<Finding>& findings) const {
        std::unordered_set<std::wstring> chosen;
        const auto choose = [&](const Selection& selection) {
            for (const std::wstring& section : selection.In(*file)) {
                if (file->Find(section))
                    chosen.insert(Folded(section));
                else
                    findings.push_back({path, 0, section, L"", L"probe-missing",
                                        file->Store()->HasSection(section)
                                            ? L"the section is not the record of a probe"
                                            : L"there is no such section"});
            }
        };
        if (m_selection.patterns.empty())
            choose(m_selection);
        for (const std::wstring& pattern : m_selection.patterns) {
            try {
                choose({{pattern}, m_selection.type});
            } catch (const Problem& problem) { // no probe is like it
                findings.push_back({path, 0, L"", L"", L"probe-missing", WithoutFile(problem.text, path)});
            }
        }
        return chosen;
    }

    [[nodiscard]] std::vector<Finding> Findings(const std::wstring& path) {
        HostFile file(path);
        std::vector<Finding> findings;
        std::unordered_set<std::wstring> chosen;
        if (IsSelecting())
            chosen = Chosen(file, path, findings);
        m_count += chosen.size();
        Progress progress(L"probes of " + path, file->Probes().size());
        for (const ProbeProblem& problem : file->Check([&progress] { progress.Step(); })) {
            if (!IsSelecting() || IsOf(problem.section, chosen))
                findings.push_back({path, problem.line, problem.section, problem.key, IdOf(problem),
                                    problem.text, problem.IsWarning()});
        }
        const std::string_view text = file->Text();
        if (const auto zero = text.find('\0'); zero != std::string_view::npos)
            findings.push_back({path, 1 + Count(text.substr(0, zero), '\n'), L"", L"", L"zero-byte",
                                L"there is a zero byte: this is no text", false});
        AddMixedEncoding(findings, path, text);
        return findings;
    }

    /// Tells the first line in UTF-8 of a file that has one in Latin-1, too.
    static void AddMixedEncoding(std::vector<Finding>& findings, const std::wstring& path,
                                 std::string_view text) {
        std::size_t inUtf8 = 0;
        std::size_t inLatin1 = 0;
        for (std::size_t number = 1; !text.empty() && (inUtf8 == 0 || inLatin1 == 0); ++number) {
            const std::string_view line = text.substr(0, text.find('\n'));
            text.remove_prefix(std::min(line.size() + 1, text.size()));
            if (std::all_of(line.begin(), line.end(),
                            [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
                continue;
            std::size_t& first = QuorIniFile::FromUtf8(line) ? inUtf8 : inLatin1;
            first = first == 0 ? number : first;
        }
        if (inUtf8 != 0 && inLatin1 != 0)
            findings.push_back(
                {path, inUtf8, L"", L"", mixedEncodingId,
                 L"the line is in UTF-8, and line " + std::to_wstring(inLatin1) +
                     L" is not: programs that take the file for one of the two misread the other",
                 true});
    }

    static std::size_t Count(std::string_view text, char character) {
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), character));
    }

    /// Whether a section is that of a probe, or of its settings.
    static bool IsOf(const std::wstring& section, const std::unordered_set<std::wstring>& probes) {
        const auto owners = PossibleOwners(section);
        return probes.contains(Folded(section)) ||
               std::any_of(owners.begin(), owners.end(), [&](const std::wstring_view owner) {
                   return probes.contains(Folded(std::wstring(owner)));
               });
    }

    [[nodiscard]] std::set<std::wstring> Ignored() const {
        for (const std::wstring& id : m_ignoredIds) {
            if (FindWarning(id) || id == mixedEncodingId)
                continue;
            std::vector<std::wstring> known{mixedEncodingId};
            for (const ProbeWarning& warning : Warnings())
                known.push_back(warning.id);
            throw UsageError{L"there is no warning \"" + id + L"\"; each ends with its id in brackets" +
                             DidYouMean(id, known)};
        }
        return {m_ignoredIds.begin(), m_ignoredIds.end()};
    }

    std::size_t m_count = 0;
};

} // namespace

const CommandRow checkRow{
    "check",
    "Check every probe of the files; each problem is a line FILE:LINE: [SECTION] KEY: ...,\n"
    "each implausible value FILE:LINE: warning: ... [ID]",
    {"quorconv check --strict *.ini", "quorconv check laboratory.ini --type cvd --json"},
    Create<Check>};

} // namespace quorconv
