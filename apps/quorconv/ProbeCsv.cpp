#include "apps/quorconv/ProbeCsv.h"

#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/ValueText.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/quorconv/Csv.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/Nearest.h"
#include "apps/quorconv/Selection.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <unordered_set>

namespace quorconv {

using namespace QuorConversions;
using namespace QuorProbeFile;
using QuorIniFile::ToUtf8;

namespace {

constexpr const wchar_t* sectionColumn = L"section";
constexpr const wchar_t* typeColumn = L"type";

/// "Coefficients1 [ALPHA, 1/degC or A, 1/degC]", with a degree sign.
std::wstring ColumnName(EQuorConversionType type, const std::wstring& path) {
    std::wstring described;
    for (const RecordKey& key : RecordKeys(type)) {
        if (!EqualFolded(key.path, path))
            continue;
        const std::wstring both = key.name + (key.name.empty() || key.unit.empty() ? L"" : L", ") + key.unit;
        if (!both.empty())
            described += (described.empty() ? L"" : L" or ") + both;
    }
    return path + (described.empty() ? L"" : L" [" + described + L"]");
}

} // namespace

void CsvStyle::Declare(Arguments& arguments) {
    arguments.Choice("--decimal", decimal, {"point", "comma"}, "The decimal separator of the table");
    std::vector<std::string> names;
    for (const CsvSeparatorName& one : csvSeparators)
        names.push_back(ToUtf8(one.name));
    arguments.Choice("--separator", separator, names, "The separator between the fields of the table");
}

void CsvStyle::RequireNone() const {
    if (Decimal() != DecimalSign::Point || Separator() != CsvSeparator::Comma)
        throw UsageError{L"--decimal and --separator are for --csv"};
}

DecimalSign CsvStyle::Decimal() const {
    return decimal == L"comma" ? DecimalSign::Comma : DecimalSign::Point;
}

CsvSeparator CsvStyle::Separator() const {
    return std::find_if(std::begin(csvSeparators), std::end(csvSeparators),
                        [this](const CsvSeparatorName& one) { return separator == one.name; })
        ->separator;
}

void CsvTable::AddField(std::string_view field) {
    const std::size_t length = m_fields.size();
    AppendCsvField(m_fields, field, m_separator);
    m_lengths.push_back(static_cast<std::uint32_t>(m_fields.size() - length));
}

std::size_t CsvTable::LayoutOf(const ProbeValues& probe) {
    const auto known = m_layoutOf.find(probe.shape);
    if (known != m_layoutOf.end())
        return known->second;
    Paths paths;
    for (const RecordImage::Entry& entry : probe.entries)
        paths.push_back(entry.path);
    const auto found = std::find(m_layouts.begin(), m_layouts.end(), paths);
    const auto layout = static_cast<std::size_t>(found - m_layouts.begin());
    if (found == m_layouts.end())
        m_layouts.push_back(std::move(paths));
    if (probe.shape != 0)
        m_layoutOf[probe.shape] = layout;
    return layout;
}

void CsvTable::Add(const ProbeValues& probe) {
    m_rows.push_back(LayoutOf(probe));
    AddField(ToUtf8(probe.section));
    for (const RecordImage::Entry& entry : probe.entries) {
        const double* const number = std::get_if<double>(&entry.value);
        if (number && m_decimal == DecimalSign::Point) { // which needs no quotes with any separator
            const std::size_t length = m_fields.size();
            QuorIniFile::AppendValueText(m_fields, *number);
            m_lengths.push_back(static_cast<std::uint32_t>(m_fields.size() - length));
            continue;
        }
        std::string field = ToUtf8(ToText(entry.value));
        if (number)
            std::replace(field.begin(), field.end(), '.', ',');
        AddField(field);
    }
}

/// In the order of the keys in records; keys that the reference does not have come last.
CsvTable::Paths CsvTable::Columns() const {
    Paths columns;
    std::unordered_set<std::wstring> used;
    Paths further;
    for (const Paths& paths : m_layouts)
        for (const std::wstring& path : paths)
            if (used.insert(path).second)
                further.push_back(path);
    for (const RecordKey& key : RecordKeys(m_type))
        if (m_rows.empty() ? std::find(columns.begin(), columns.end(), key.path) == columns.end()
                           : used.erase(key.path) > 0)
            columns.push_back(key.path);
    std::copy_if(further.begin(), further.end(), std::back_inserter(columns),
                 [&](const std::wstring& path) { return used.contains(path); });
    return columns;
}

void CsvTable::Print(std::ostream& out) const {
    const char separator = static_cast<char>(m_separator);
    const Paths columns = Columns();
    std::string line = ToUtf8(sectionColumn) + separator + ToUtf8(typeColumn);
    for (const std::wstring& column : columns)
        AppendCsvField(line += separator, ToUtf8(ColumnName(m_type, column)), m_separator);
    out << line << "\r\n";
    std::unordered_map<std::wstring_view, std::size_t> places; // of the columns, by their keys
    for (const std::wstring& column : columns)
        places.emplace(column, places.size());
    std::vector<std::vector<std::size_t>> placesOf(m_layouts.size()); // the column of each key of a layout
    for (std::size_t layout = 0; layout < m_layouts.size(); ++layout)
        for (const std::wstring& path : m_layouts[layout])
            placesOf[layout].push_back(places.at(path));
    const std::string type = ToUtf8(TypeName(m_type));
    std::size_t at = 0;
    auto length = m_lengths.begin();
    const auto next = [&] {
        const std::string_view field = std::string_view(m_fields).substr(at, *length++);
        at += field.size();
        return field;
    };
    std::vector<std::string_view> fields(columns.size());
    constexpr std::size_t atOnce = std::size_t{1} << 16U;
    line.clear();
    for (const std::size_t layout : m_rows) {
        line.append(next());
        line.append(1, separator).append(type);
        std::fill(fields.begin(), fields.end(), std::string_view());
        for (const std::size_t place : placesOf[layout])
            fields[place] = next();
        for (const std::string_view field : fields)
            line.append(1, separator).append(field);
        line.append("\r\n");
        if (line.size() > atOnce) {
            out << line;
            line.clear();
        }
    }
    out << line;
}

namespace {

/// The columns of a table, by its first line.
class Columns {
public:
    Columns(const std::vector<std::wstring>& names, const std::wstring& type, const std::wstring& place)
        : m_place(place) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (names[i].empty() && IsEmptyFrom(names, i)) {
                m_further = names.size() - i;
                break;
            }
            if (names[i].empty())
                Fail(1, i, L"the column has no name");
            const auto bracket = names[i].find(L" [");
            Column column{names[i].substr(0, bracket), names[i], nullptr};
            for (const Column& before : m_columns)
                if (EqualFolded(before.key, column.key))
                    Fail(1, i, L"the column occurs twice");
            if (column.key == sectionColumn)
                m_section = i;
            else if (column.key == typeColumn)
                m_type = i;
            m_columns.push_back(std::move(column));
        }
        if (m_section == none)
            throw Problem{place + L"1: there is no column \"section\""};
        if (m_type == none && type.empty())
            throw Problem{place + L"1: there is no column \"type\", and no --type says it"};
    }

    /// Valid until the next call.
    [[nodiscard]] const GivenProbe& Read(const std::vector<std::wstring>& fields, std::size_t line,
                                         const std::wstring& type, DecimalSign decimal) {
        if (fields.size() != m_columns.size() + m_further)
            throw Problem{m_place + std::to_wstring(line) + L": the line has " +
                          std::to_wstring(fields.size()) + L" fields, and the first one has " +
                          std::to_wstring(m_columns.size() + m_further)};
        for (std::size_t i = m_columns.size(); i < fields.size(); ++i)
            if (!fields[i].empty())
                Fail(line, i, L"there is a value in a column that has no name");
        if (std::all_of(fields.begin(), fields.end(), [](const std::wstring& f) { return f.empty(); }))
            throw Problem{m_place + std::to_wstring(line) + L": all fields of the line are empty"};
        m_probe.section = fields[m_section];
        RequireType(m_type == none ? type : fields[m_type], line, type);
        m_probe.empty.clear();
        m_probe.emptyTexts.clear();
        std::size_t given = 0;
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            if (i == m_section || i == m_type)
                continue;
            const RecordKey* const key = m_columns[i].record;
            if (fields[i].empty()) {
                m_probe.empty.push_back(m_columns[i].key);
                if (key && std::holds_alternative<std::wstring>(key->initial))
                    m_probe.emptyTexts.push_back(m_columns[i].key);
                continue;
            }
            if (given == m_probe.values.size())
                m_probe.values.emplace_back();
            Assignment& assignment = m_probe.values[given++];
            assignment.key = m_columns[i].key;
            assignment.value = fields[i];
            const Value kind = key ? key->initial : Value(0.0);
            if (std::holds_alternative<double>(kind))
                RequirePoint(assignment.value, line, i, decimal);
            assignment.parsed = ParseAs(kind, assignment.value);
            if (!assignment.parsed)
                Fail(line, i, WhatIsWrong(kind, fields[i]));
        }
        m_probe.values.resize(given);
        return m_probe;
    }

    /// Whether the first line is wrong, which was raised: nothing can be read then.
    [[nodiscard]] bool AreWrong() const { return m_isWrong; }

private:
    static bool IsEmptyFrom(const std::vector<std::wstring>& fields, std::size_t first) {
        return std::all_of(fields.begin() + static_cast<std::ptrdiff_t>(first), fields.end(),
                           [](const std::wstring& field) { return field.empty(); });
    }
    void RequireType(const std::wstring& name, std::size_t line, const std::wstring& type) {
        if (m_checked && name == m_probe.type)
            return;
        const TypeInfo* const info = ParseType(name);
        if (!info || info->code == CONV_NONE)
            Fail(line, m_type == none ? m_section : m_type, L"\"" + name + L"\" is no conversion type");
        if (m_type != none && !type.empty() && ParseType(type) != info)
            Fail(line, m_type, L"\"" + name + L"\" is not the type of --type " + type);
        m_isWrong = true;
        RequireKeys(info->code);
        m_isWrong = false;
        m_probe.type = name;
    }

    /// Gives the text of a number a point. Raises for one that has another decimal sign than the table.
    void RequirePoint(std::wstring& text, std::size_t line, std::size_t column, DecimalSign decimal) const {
        if (decimal == DecimalSign::Comma) {
            if (text.find(L'.') != std::wstring::npos)
                Fail(line, column, L"\"" + text + L"\" has a point, and the decimal sign is a comma");
            std::replace(text.begin(), text.end(), L',', L'.');
        } else if (text.find(L',') != std::wstring::npos) {
            Fail(line, column,
                 L"\"" + text + L"\" is not a number; the decimal sign is a point without --decimal comma");
        }
    }
    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    struct Column {
        std::wstring key;
        std::wstring name;
        const RecordKey* record = nullptr; // of the type that was checked last; null for a further item
    };

    [[noreturn]] void Fail(std::size_t line, std::size_t column, const std::wstring& text) const {
        throw Problem{m_place + std::to_wstring(line) + L": column " + std::to_wstring(column + 1) +
                      (column < m_columns.size() ? L" (" + m_columns[column].key + L")" : L"") + L": " +
                      text};
    }

    /// Whether each column is a key of that type, under its own name and unit.
    void RequireKeys(EQuorConversionType type) {
        if (m_checked == type)
            return;
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            if (i == m_section || i == m_type)
                continue;
            Column& column = m_columns[i];
            const RecordKey* const key = FindRecordKey(type, column.key, RecordForm::Any);
            column.record = key;
            if (!MayHaveKey(type, column.key)) {
                std::vector<std::wstring> known{sectionColumn, typeColumn};
                for (const RecordKey& one : RecordKeys(type))
                    known.push_back(one.path);
                Fail(1, i,
                     L"a record of the type " + TypeName(type) + L" has no such key" +
                         DidYouMean(column.key, known));
            }
            const std::wstring meant = ColumnName(type, key ? key->path : column.key);
            if (column.name != column.key && !EqualFolded(column.name, meant))
                Fail(1, i, L"\"" + column.name + L"\" is not \"" + meant + L"\"");
        }
        m_checked = type;
    }

    std::wstring m_place;
    GivenProbe m_probe; // of the line that was read last
    std::vector<Column> m_columns;
    std::size_t m_further = 0; // at the end, without a name, as spreadsheets leave them: empty in every line
    std::size_t m_section = none;
    std::size_t m_type = none;
    std::optional<EQuorConversionType> m_checked;
    bool m_isWrong = false;
};

} // namespace

namespace {

/// Ends a failure of a table that another separator would make one with a column "section".
std::wstring MeantSeparator(std::string_view text, CsvSeparator separator) {
    const auto hasSection = [text](CsvSeparator other) {
        const auto names = FirstCsvRow(text, other);
        return std::find(names.begin(), names.end(), sectionColumn) != names.end();
    };
    if (hasSection(separator))
        return {};
    for (const CsvSeparatorName& other : csvSeparators)
        if (hasSection(other.separator))
            return std::wstring(L"; \"--separator ") + other.name + L"\" reads a table like this";
    return {};
}

} // namespace

void ReadProbeTable(std::string_view text, const std::wstring& place, const CsvStyle& style,
                    const std::wstring& type, Batch& batch,
                    const std::function<void(const GivenProbe&, std::size_t line)>& use) {
    const auto toldAlready = [] { return std::wstring(); };
    const DecimalSign decimal = style.Decimal();
    std::optional<Columns> columns;
    batch.Do(toldAlready, [&] {
        try {
            ReadCsv(text, style.Separator(), [&](const std::vector<std::wstring>& fields, std::size_t line) {
                if (!columns)
                    columns.emplace(fields, type, place);
                else if (!columns->AreWrong())
                    batch.Do(toldAlready, [&] { use(columns->Read(fields, line, type, decimal), line); });
            });
        } catch (const CsvError& error) {
            throw Problem{place + std::to_wstring(error.line) + L": " + error.text +
                          MeantSeparator(text, style.Separator())};
        } catch (const Problem& problem) { // of the first line
            throw Problem{problem.text + MeantSeparator(text, style.Separator()), problem.reasons};
        }
        if (!columns)
            throw Problem{place + L"1: there is no line of column names"};
    });
}

} // namespace quorconv
