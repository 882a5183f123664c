#include "apps/quorconv/ProbeJson.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/ValueText.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/Nearest.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <set>
#include <utility>

namespace quorconv {

using namespace QuorConversions;
using namespace QuorProbeFile;

namespace {

/// Of "Coefficients12" the list and the index, of an indexed key; the index -1 for any other. A view into the
/// key, or of the name of the list.
struct Indexed {
    std::wstring_view list;
    int index = -1;
};

Indexed SplitIndex(std::wstring_view key) {
    static const std::wstring_view lists[] = {coefficientsKey, temperaturesKey, voltagesKey, offsetsKey};
    for (const std::wstring_view list : lists) {
        if (key.size() > list.size() && key.starts_with(list)) {
            const std::wstring_view digits = key.substr(list.size());
            const bool isPlain = digits.find_first_not_of(L"0123456789") == std::wstring_view::npos &&
                                 (digits.size() == 1 || digits.front() != L'0');
            const auto index = isPlain ? QuorIniFile::IntegerOf(digits) : std::nullopt;
            if (index)
                return {list, *index};
        }
    }
    return {key, -1};
}

constexpr std::size_t sectionPlace = static_cast<std::size_t>(-1);

/// Writes the members of objects and the items of lists, each on a line of its own or all in one.
class Writer {
public:
    Writer(bool inOneLine, int indent) : m_inOneLine(inOneLine), m_depth(indent / 2) {}

    void Open(char bracket) {
        text += bracket;
        ++m_depth;
        m_isFirst = true;
    }
    void Close(char bracket) {
        --m_depth;
        if (!m_isFirst)
            NewLine();
        text += bracket;
        m_isFirst = false;
    }
    void Item() {
        if (!m_isFirst)
            text += m_inOneLine ? ", " : ",";
        NewLine();
        m_isFirst = false;
    }
    void Name(std::wstring_view name) {
        Item();
        text.append(JsonText(name)).append(": ");
    }
    void Member(std::wstring_view name, const std::string& value) {
        Name(name);
        text += value;
    }

    /// A place for an entry, of which the probes of a shape have values of their own; or for the section.
    void Place(std::size_t entry) {
        common.push_back(std::exchange(text, {}));
        entries.push_back(entry);
    }
    /// The value of an entry; `key` is null for one in a list.
    void Value(std::size_t entry, const QuorProbeFile::Value& value, const RecordKey* key) {
        if (const bool* const flag = std::get_if<bool>(&value))
            text += *flag ? "true" : "false";
        else if (const std::int16_t* const number = std::get_if<std::int16_t>(&value))
            Code(*number, key);
        else
            Place(entry);
    }

    std::string text; // behind the last place
    std::vector<std::string> common;
    std::vector<std::size_t> entries;

private:
    void Code(std::int16_t number, const RecordKey* key) {
        const std::wstring name = key ? ChoiceName(*key, number) : L"";
        const bool isCode = key && !key->choices.empty();
        text.append(isCode ? "{\"code\": " : "").append(std::to_string(number));
        if (!name.empty())
            text.append(", \"name\": ").append(JsonText(name));
        text.append(isCode ? "}" : "");
    }
    void NewLine() {
        if (!m_inOneLine)
            text.append(1, '\n').append(static_cast<std::size_t>(m_depth) * 2, ' ');
    }
    bool m_inOneLine;
    int m_depth;
    bool m_isFirst = true;
};

/// Writes the entries of one record, in their order; those of one list stand together where the first of
/// them stands.
void WriteEntries(Writer& writer, EQuorConversionType type, RecordForm form, const std::wstring& prefix,
                  const std::vector<RecordImage::Entry>& entries, std::size_t first, std::size_t last) {
    std::vector<Indexed> keys; // from the first entry on
    for (std::size_t at = first; at < last; ++at)
        keys.push_back(SplitIndex(std::wstring_view(entries[at].path).substr(prefix.size())));
    std::vector<std::wstring_view> written;
    for (std::size_t at = first; at < last; ++at) {
        const Indexed& key = keys[at - first];
        if (key.index < 0) {
            writer.Name(key.list);
            writer.Value(at, entries[at].value, FindRecordKey(type, entries[at].path, form));
            continue;
        }
        if (std::find(written.begin(), written.end(), key.list) != written.end())
            continue;
        written.push_back(key.list);
        writer.Name(key.list);
        writer.Open('[');
        for (std::size_t item = at; item < last; ++item) {
            if (keys[item - first].index < 0 || keys[item - first].list != key.list)
                continue;
            const RecordKey* const known = FindRecordKey(type, entries[item].path, form);
            writer.Item();
            writer.text += "{";
            if (known && !known->name.empty())
                writer.text.append("\"name\": ").append(JsonText(known->name)).append(", ");
            writer.text += "\"value\": ";
            writer.Value(item, entries[item].value, nullptr);
            writer.text += '}';
        }
        writer.Close(']');
    }
}

std::wstring PrefixOf(const std::wstring& path) {
    const auto slash = path.find(L'/');
    return slash == std::wstring::npos ? L"" : path.substr(0, slash + 1);
}

} // namespace

ProbeToJson::Pattern ProbeToJson::PatternOf(const ProbeValues& probe) const {
    const EQuorConversionType type{probe.code};
    if (!QuorProbeFile::FindType(type))
        throw Problem{L"[" + probe.section + L"] ConversionType: " + TypeName(type) +
                      L" is the code of no conversion type"};
    Writer writer(m_inOneLine, m_indent);
    writer.Open('{');
    writer.Name(L"section");
    writer.Place(sectionPlace);
    writer.Member(L"code", std::to_string(probe.code));
    writer.Member(L"type", JsonText(TypeName(type)));
    writer.Member(L"name", JsonText(probe.name));
    writer.Name(L"settings");
    writer.Open('{');
    const auto& entries = probe.entries;
    const RecordForm form = FormOf(entries);
    for (std::size_t first = 0, last = 0; first < entries.size(); first = last) {
        const std::wstring prefix = PrefixOf(entries[first].path);
        while (last < entries.size() && PrefixOf(entries[last].path) == prefix)
            ++last;
        if (!prefix.empty()) {
            writer.Name(prefix.substr(0, prefix.size() - 1));
            writer.Open('{');
        }
        WriteEntries(writer, type, form, prefix, entries, first, last);
        if (!prefix.empty())
            writer.Close('}');
    }
    writer.Close('}');
    writer.Close('}');
    writer.common.push_back(std::move(writer.text));
    return {std::move(writer.common), std::move(writer.entries)};
}

const std::string& ProbeToJson::Text(const ProbeValues& probe) {
    constexpr std::size_t mostPatterns = 100;
    if (m_patterns.size() == mostPatterns)
        m_patterns.clear();
    const auto [known, isNew] = m_patterns.try_emplace(probe.shape);
    Pattern& pattern = known->second;
    if (isNew || probe.shape == 0)
        pattern = PatternOf(probe);
    m_text = pattern.common.front();
    for (std::size_t place = 0; place < pattern.entries.size(); ++place) {
        const std::size_t entry = pattern.entries[place];
        const double* const number =
            entry == sectionPlace ? nullptr : std::get_if<double>(&probe.entries[entry].value);
        if (number)
            AppendJsonNumber(m_text, *number);
        else
            AppendJsonText(m_text, entry == sectionPlace
                                       ? probe.section
                                       : std::get<std::wstring>(probe.entries[entry].value));
        m_text += pattern.common[place + 1];
    }
    return m_text;
}

namespace {

const char* const schemaHead = R"({
  "$schema": "https://json-schema.org/draft/2020-12/schema",
  "$id": "probe.schema.json",
  "title": "A probe, as \"quorconv show --json\" prints it and \"quorconv put --json\" takes it",
  "$comment": "Made by \"quorconv explain --json-schema\".",
  "oneOf": [
    {"$ref": "#/$defs/probe"},
    {"type": "array", "items": {"$ref": "#/$defs/probe"}}
  ],
  "$defs": {
    "number": {"oneOf": [{"type": "number"}, {"enum": ["NaN", "Infinity", "-Infinity"]}]},
    "count": {"type": "integer", "minimum": -32768, "maximum": 32767},
    "item": {
      "type": "object",
      "properties": {"name": {"type": "string"}, "value": {"$ref": "#/$defs/number"}},
      "required": ["value"],
      "additionalProperties": false
    },
    "probe": {
      "type": "object",
      "properties": {
        "section": {"type": "string", "minLength": 1, "pattern": "^[^\\]\\r\\n]*$"},
        "code": {"type": "integer"},
        "type": {"enum": [TYPES]},
        "name": {"type": "string"},
        "settings": {"type": "object"}
      },
      "required": ["section", "type", "settings"],
      "additionalProperties": false,
      "allOf": [)";

std::string Description(const RecordKey& key) {
    return "\"description\": " + JsonText(key.meaning + (key.unit.empty() ? L"" : L", in " + key.unit));
}

/// The schema of a value that is no list.
std::string ValueSchema(const RecordKey& key) {
    if (!key.choices.empty()) {
        std::string choices;
        for (const RecordChoice& choice : key.choices)
            choices += std::string(choices.empty() ? "" : ", ") +
                       "{\"properties\": {\"code\": {\"const\": " + std::to_string(choice.code) +
                       "}, \"name\": {\"const\": " + JsonText(choice.name) + "}}}";
        return R"({"type": "object", "required": ["code"], "additionalProperties": false, "properties": )"
               R"({"code": {"$ref": "#/$defs/count"}, "name": {"type": "string"}}, "if": {"required": ["name"]}, )"
               R"("then": {"oneOf": [)" +
               choices + "]}}";
    }
    struct Visitor {
        std::string operator()(const std::wstring& /*value*/) const { return R"({"type": "string"})"; }
        std::string operator()(bool /*value*/) const { return R"({"type": "boolean"})"; }
        std::string operator()(double /*value*/) const { return R"({"$ref": "#/$defs/number"})"; }
        std::string operator()(std::int16_t /*value*/) const { return R"({"$ref": "#/$defs/count"})"; }
    };
    std::string schema = std::visit(Visitor{}, key.initial);
    schema.insert(1, Description(key) + ", ");
    return schema;
}

/// The schema of the settings, or of a nested record, whose keys begin with `prefix`.
class SettingsSchema {
public:
    SettingsSchema(EQuorConversionType type, RecordForm form, std::wstring prefix = {})
        : m_type(type), m_form(form), m_prefix(std::move(prefix)) {
        for (const RecordKey& key : RecordKeys(type))
            if (key.path.starts_with(m_prefix) && (key.form == form || key.form == RecordForm::Any))
                Take(key);
    }

    [[nodiscard]] std::string Text() const {
        std::string schema;
        for (const auto& [name, value] : m_members) {
            schema += (schema.empty() ? "" : ", ") + JsonText(name) + ": ";
            const auto list = m_lists.find(name);
            schema += list == m_lists.end()
                          ? value
                          : R"({"type": "array", "items": {"$ref": "#/$defs/item"}, "prefixItems": [)" +
                                list->second + "]}";
        }
        return R"({"type": "object", "additionalProperties": false, "properties": {)" + schema + "}}";
    }

private:
    void Take(const RecordKey& key) {
        const std::wstring inner = key.path.substr(m_prefix.size());
        const auto slash = inner.find(L'/');
        if (slash != std::wstring::npos && m_prefix.empty())
            Add(inner.substr(0, slash), SettingsSchema(m_type, m_form, inner.substr(0, slash + 1)).Text());
        else if (key.index >= 0)
            AddItem(key);
        else if (std::holds_alternative<bool>(key.initial))
            Add(inner, m_form == RecordForm::Polynomial ? R"({"const": true})" : R"({"const": false})");
        else
            Add(inner, ValueSchema(key));
    }
    void Add(const std::wstring& name, const std::string& schema) {
        if (std::none_of(m_members.begin(), m_members.end(),
                         [&](const auto& one) { return one.first == name; }))
            m_members.emplace_back(name, schema);
    }
    void AddItem(const RecordKey& key) {
        const std::wstring list = key.list.substr(m_prefix.size());
        std::string& items = m_lists[list];
        items += (items.empty() ? "" : ", ") +
                 std::string(R"({"$ref": "#/$defs/item", "properties": {"name": {"const": )") +
                 JsonText(key.name) + "}, \"value\": {" + Description(key) + "}}}";
        Add(list, "");
    }

    EQuorConversionType m_type;
    RecordForm m_form;
    std::wstring m_prefix;
    std::vector<std::pair<std::wstring, std::string>> m_members; // in their order
    std::map<std::wstring, std::string> m_lists;                 // the schemas of their items
};

} // namespace

std::string JsonSchema() {
    std::string types;
    std::string rules; // what follows from a type
    for (const TypeInfo& type : Types()) {
        if (type.code == CONV_NONE)
            continue;
        types += (types.empty() ? "" : ", ") + JsonText(type.enumerator);
        const bool hasForms = std::any_of(RecordKeys(type.code).begin(), RecordKeys(type.code).end(),
                                          [](const RecordKey& key) { return key.form != RecordForm::Any; });
        // A record that does not say its form is of that which a new one has.
        const std::string settings =
            hasForms
                ? R"({"if": {"required": ["UsePolynomial"], "properties": {"UsePolynomial": {"const": true}}},)"
                  "\n          \"then\": " +
                      SettingsSchema(type.code, RecordForm::Polynomial).Text() + ",\n          \"else\": " +
                      SettingsSchema(type.code, RecordForm::AlphaDeltaBeta).Text() + "}"
                : SettingsSchema(type.code, RecordForm::Any).Text();
        rules += std::string(rules.empty() ? "" : ",") +
                 "\n        {\"if\": {\"properties\": {\"type\": {\"const\": " + JsonText(type.enumerator) +
                 "}}}, \"then\": {\"properties\": {\"code\": {\"const\": " + std::to_string(type.code) +
                 "}, \"settings\":\n          " + settings + "}}}";
    }
    std::string schema = schemaHead;
    schema.replace(schema.find("TYPES"), 5, types);
    return schema + rules + "\n      ]\n    }\n  }\n}\n";
}

} // namespace quorconv
