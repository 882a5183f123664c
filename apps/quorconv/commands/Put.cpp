#include "apps/quorconv/commands/Rows.h"

#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/Batch.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/JsonProbes.h"
#include "apps/quorconv/ProbeCsv.h"
#include "apps/quorconv/ProbeReader.h"
#include "apps/quorconv/Progress.h"
#include "apps/quorconv/Selection.h"
#include "apps/quorconv/Steps.h"

#include <algorithm>
#include <unordered_set>

namespace quorconv {

using namespace QuorProbeFile;

namespace {

/// Whether a section is there; a file that is still to be created has none.
bool HasSection(ProbeFile& file, const std::wstring& section) {
    try {
        return file.Store()->HasSection(section);
    } catch (const QuorIniFile::QuorError& error) {
        if (error.Number() != QuorIniFile::ERR_FILE_NOT_FOUND)
            throw;
        return false;
    }
}

/// Raises Problem when the section that is there holds a probe of another type, or none.
void RequireType(ProbeFile& file, const GivenProbe& given, const TypeInfo& type) {
    std::int16_t code = 0;
    file.Store()->SetSection(given.section);
    if (file.Store()->ReadInteger(QuorConversions::conversionTypeKey, code) && code == type.code)
        return;
    const Probe present = ReadProbe(file, given.section, given.values);
    if (present.Conversion().ConversionType() != type.code)
        throw Problem{Place(file.Path(), given.section) + L": there is a probe of another type (" +
                      present.TypeName() + L") in this section; \"retype\" changes that"};
}

/// Writes a probe: over one of the same type, whose other values stay, or a new one, of which each value
/// must be given. True when it was there.
bool PutProbe(ProbeFile& file, const GivenProbe& given, const ValueRules& rules) {
    const TypeInfo& type = RequireSettingsType(given.type);
    if (HasSection(file, given.section)) {
        RequireType(file, given, type);
        AssignInFile(file, given.section, given.values, rules);
        return true;
    }
    RequireName(file, given.section);
    if (given.emptyTexts.empty()) {
        WriteNewProbe(file, given.section, type.code, given.values, rules);
        return false;
    }
    std::vector<Assignment> values = given.values;
    for (const std::wstring& key : given.emptyTexts)
        values.push_back({key, L""});
    WriteNewProbe(file, given.section, type.code, values, rules);
    return false;
}

/// How many values a probe has kept because their fields are empty: it may lack values that others have.
std::size_t CountKept(ProbeReader& reader, ProbeFile& file, const GivenProbe& given) {
    if (given.empty.empty())
        return 0;
    const ProbeValues& probe = reader.Read(file, given.section);
    return static_cast<std::size_t>(
        std::count_if(given.empty.begin(), given.empty.end(), [&](const std::wstring& path) {
            return std::any_of(
                probe.entries.begin(), probe.entries.end(),
                [&](const RecordImage::Entry& value) { return EqualFolded(value.path, path); });
        }));
}

class Put final : public Command {
    std::wstring m_path;
    std::optional<std::wstring> m_from;
    std::optional<std::wstring> m_type;
    CsvStyle m_style;
    bool m_isJson = false;
    bool m_isCsv = false;
    ValueRules m_rules;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FILE", m_path, Meaning::File, "The INI file, which is created if it does not exist");
        arguments.Maybe("INPUT", m_from, Meaning::File, "The input file; without it, the standard input");
        arguments.Flag("--json", m_isJson,
                       "The input is JSON as \"show --json\" prints it: an object, an array, or JSON Lines");
        arguments.Flag("--csv", m_isCsv,
                       "The input is a table as \"export --csv\" prints it;\n"
                       "an empty field keeps the value of a probe that is there");
        arguments.Option("--type", "TYPE", m_type, Meaning::Type,
                         "The type of all probes of a table, which then needs no column for it");
        m_style.Declare(arguments);
        m_rules.Declare(arguments);
        m_rules.DeclareDrop(arguments);
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        if (m_isCsv == m_isJson)
            throw UsageError{L"--json or --csv expected"};
        if (m_isJson && m_type)
            throw UsageError{L"--type is for --csv; each probe in JSON has its own"};
        if (m_isJson)
            m_style.RequireNone();
        if (m_type)
            static_cast<void>(RequireSettingsType(*m_type));
        const std::wstring from = m_from.value_or(standardInput);
        const std::string text = ReadAll(from);
        std::size_t count = 0;
        std::size_t kept = 0;
        m_rules.completes = true;
        HostFile file(m_path, ProbeFile::Opening::OrNew);
        file.Edit(m_isDryRun, [&] {
            RequireReadable(*file);
            Batch batch(m_path, from);
            const Duplicates duplicates(*file);
            Progress progress(L"probes", 0);
            ProbeReader reader;
            std::unordered_set<std::wstring> sections;
            count = kept = 0;
            const auto put = [&](const GivenProbe& given, const std::function<std::wstring()>& place) {
                progress.Step();
                ++count;
                batch.Do(place, [&] {
                    RequireNew(sections, given.section);
                    duplicates.Require(given.section);
                    if (PutProbe(*file, given, m_rules))
                        kept += CountKept(reader, *file, given);
                });
            };
            if (m_isJson)
                ReadJson(text, batch, put);
            else
                ReadProbeTable(text, from + L":", m_style, m_type.value_or(L""), batch,
                               [&](const GivenProbe& given, std::size_t line) {
                                   put(given, [line] { return std::to_wstring(line); });
                               });
            batch.RequireFine();
        });
        TellCount(count, L"probe", m_isDryRun ? "would be put" : "put");
        if (kept > 0)
            TellCount(kept, L"value",
                      m_isDryRun ? "would be kept: the fields are empty" : "kept: the fields are empty");
        return fine;
    }

    /// Raises Problem for a section that occurs twice: one of its probes would be lost.
    static void RequireNew(std::unordered_set<std::wstring>& sections, const std::wstring& section) {
        if (!sections.insert(Folded(section)).second)
            throw Problem{L"[" + section + L"]: the section occurs twice"};
    }

    template <class Use>
    static void ReadJson(const std::string& text, Batch& batch, const Use& use) {
        JsonProbes probes(text);
        TextPlaces places(text);
        const auto tell = [&](const JsonError& error) {
            batch.Do([&] { return places.At(error.offset); }, [&] { throw Problem{error.text}; });
        };
        const auto place = [&] { return places.At(probes.Offset()); };
        try {
            while (probes.Next()) {
                try {
                    use(probes.Read(), place);
                } catch (const JsonError& error) {
                    tell(error);
                }
            }
        } catch (const JsonError& error) {
            tell(error);
        }
    }
};

} // namespace

const CommandRow putRow{"put",
                        "Write probes that another program has produced: all of them, or none; a new probe\n"
                        "needs every value, a probe that is there keeps those that are not given",
                        {"quorconv show laboratory.ini --json | quorconv put copy.ini --json",
                         "quorconv put laboratory.ini certificates.csv --csv --dry-run"},
                        Create<Put>};

} // namespace quorconv
