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
#include <unordered_map>
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

std::wstring FieldText(const Value& value, DecimalSign decimal) {
    std::wstring text = ToText(value);
    if (decimal == DecimalSign::Comma && std::holds_alternative<double>(value))
        std::replace(text.begin(), text.end(), L'.', L',');
    return text;
}

bool HaveSameKeys(const std::vector<RecordImage::Entry>& a, const std::vector<RecordImage::Entry>& b) {
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(),
        [](const RecordImage::Entry& x, const RecordImage::Entry& y) { return x.path == y.path; });
}

} // namespace

void CsvTable::Add(const Probe& probe) {
    m_rows.push_back({probe.Section(), {}});
    if (probe.Settings())
        m_rows.back().entries = RecordImage::Of(*probe.Settings())->Entries();
}

// NOLINTNEXTLINE(readability-function-cognitive-complexity): the head and the lines of one table
std::string CsvTable::Text() const {
    // The columns in the order of the keys in records; keys that the reference does not have come last.
    std::vector<std::wstring> columns;
    std::unordered_map<std::wstring, std::size_t> places;
    const auto addColumn = [&](const std::wstring& path) {
        if (places.emplace(path, columns.size()).second)
            columns.push_back(path);
    };
    std::unordered_set<std::wstring> used;
    std::vector<std::wstring> further;
    const std::vector<RecordImage::Entry>* above = nullptr; // most records of a type have the same keys
    for (const Row& row : m_rows) {
        if (above && HaveSameKeys(*above, row.entries))
            continue;
        above = &row.entries;
        for (const auto& entry : row.entries)
            if (used.insert(entry.path).second)
                further.push_back(entry.path);
    }
    for (const RecordKey& key : RecordKeys(m_type))
        if (m_rows.empty() || used.contains(key.path))
            addColumn(key.path);
    std::for_each(further.begin(), further.end(), addColumn);

    std::string text = ToUtf8(sectionColumn) + "," + ToUtf8(typeColumn);
    for (const std::wstring& column : columns)
        text += "," + CsvField(ToUtf8(ColumnName(m_type, column)));
    text += "\r\n";
    const std::string type = ToUtf8(TypeName(m_type));
    above = nullptr;
    std::vector<std::size_t> columnsOfEntries;
    std::vector<std::string> fields(columns.size());
    for (const Row& row : m_rows) {
        if (!above || !HaveSameKeys(*above, row.entries)) {
            columnsOfEntries.clear();
            for (const auto& entry : row.entries)
                columnsOfEntries.push_back(places.at(entry.path));
            fields.assign(columns.size(), "");
            above = &row.entries;
        }
        for (std::size_t i = 0; i < row.entries.size(); ++i)
            fields[columnsOfEntries[i]] = CsvField(ToUtf8(FieldText(row.entries[i].value, m_decimal)));
        text += CsvField(ToUtf8(row.section)) + "," + type;
        for (const std::string& field : fields)
            text.append(1, ',').append(field);
        text += "\r\n";
    }
    return text;
}

namespace {

/// The columns of a table, by its first line.
class Columns {
public:
    Columns(const std::vector<std::wstring>& names, const std::wstring& type, const std::wstring& place)
        : m_place(place) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            const auto bracket = names[i].find(L" [");
            Column column{names[i].substr(0, bracket), names[i]};
            for (const Column& before : m_columns)
                if (EqualFolded(before.key, column.key))
                    Fail(1, i, L"the column stands twice");
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

    [[nodiscard]] CsvProbe Read(const std::vector<std::wstring>& fields, std::size_t line,
                                const std::wstring& type, DecimalSign decimal) {
        if (fields.size() != m_columns.size())
            throw Problem{m_place + std::to_wstring(line) + L": the line has " +
                          std::to_wstring(fields.size()) + L" fields, and the first one has " +
                          std::to_wstring(m_columns.size())};
        CsvProbe probe{line, fields[m_section], m_type == none ? type : fields[m_type], {}, {}};
        const TypeInfo* const info = ParseType(probe.type);
        if (!info || info->code == CONV_NONE)
            Fail(line, m_type == none ? m_section : m_type, L"\"" + probe.type + L"\" is no conversion type");
        RequireKeys(info->code);
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (i == m_section || i == m_type)
                continue;
            const RecordKey* const key = FindRecordKey(info->code, m_columns[i].key, RecordForm::Any);
            // An empty field is no value, but of a text, which may be empty.
            if (fields[i].empty() && !(key && std::holds_alternative<std::wstring>(key->initial)))
                continue;
            const bool isNumber = !key || std::holds_alternative<double>(key->initial);
            std::wstring text = fields[i];
            if (isNumber && decimal == DecimalSign::Comma) {
                if (text.find(L'.') != std::wstring::npos)
                    Fail(line, i, L"\"" + text + L"\" has a point, and the decimal sign is a comma");
                std::replace(text.begin(), text.end(), L',', L'.');
            } else if (isNumber && text.find(L',') != std::wstring::npos) {
                Fail(line, i,
                     L"\"" + text +
                         L"\" is not a number; the decimal sign is a point without --decimal comma");
            }
            if (key && !ParseAs(key->initial, text))
                Fail(line, i, WhatIsWrong(key->initial, text));
            probe.values.push_back({m_columns[i].key, std::move(text)});
            probe.columns.push_back(i + 1);
        }
        return probe;
    }

private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    struct Column {
        std::wstring key;
        std::wstring name;
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
            const Column& column = m_columns[i];
            const RecordKey* const key = FindRecordKey(type, column.key, RecordForm::Any);
            if (!key && !IsFurtherItem(type, column.key)) {
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

    /// A coefficient past those of the equation, which some records may have.
    static bool IsFurtherItem(EQuorConversionType type, const std::wstring& key) {
        const auto digits = key.find_last_not_of(L"0123456789") + 1;
        return digits < key.size() && FindRecordKey(type, key.substr(0, digits) + L"0", RecordForm::Any);
    }

    std::wstring m_place;
    std::vector<Column> m_columns;
    std::size_t m_section = none;
    std::size_t m_type = none;
    std::optional<EQuorConversionType> m_checked;
};

} // namespace

void ReadProbeTable(std::string_view text, const std::wstring& place, DecimalSign decimal,
                    const std::wstring& type, const std::function<void(const CsvProbe&)>& use) {
    std::optional<Columns> columns;
    try {
        ReadCsv(text, [&](const std::vector<std::wstring>& fields, std::size_t line) {
            if (!columns)
                columns.emplace(fields, type, place);
            else
                use(columns->Read(fields, line, type, decimal));
        });
    } catch (const CsvError& error) {
        throw Problem{place + std::to_wstring(error.line) + L": " + error.text};
    }
    if (!columns)
        throw Problem{place + L"1: there is no line of column names"};
}

} // namespace quorconv
