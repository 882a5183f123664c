#include "apps/quorconv/JsonProbes.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/ValueText.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/quorconv/Nearest.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <map>
#include <set>
#include <system_error>
#include <utility>

namespace quorconv {

using namespace QuorConversions;
using namespace QuorProbeFile;

namespace {

using Kind = JsonValue::Kind;

[[noreturn]] void Fail(const JsonValue& at, std::wstring text) {
    throw JsonError{at.offset, std::move(text)};
}

const JsonValue& Require(const JsonValue& object, const wchar_t* name, Kind kind, const wchar_t* what) {
    const JsonValue* const member = object.Find(name);
    if (!member)
        Fail(object, std::wstring(L"\"") + name + L"\" is missing");
    if (member->kind != kind)
        Fail(*member, std::wstring(L"\"") + name + L"\" is not " + what);
    return *member;
}

void RequireMembers(const JsonValue& object, std::initializer_list<std::wstring_view> known) {
    for (std::size_t at = 0; at < object.names.size(); ++at) {
        const std::wstring& name = object.names[at];
        const JsonValue& value = object.members[at];
        if (std::find(known.begin(), known.end(), name) == known.end())
            Fail(value, L"there is no member \"" + name + L"\" here" +
                            DidYouMean(name, {known.begin(), known.end()}));
    }
}

/// The keys of a type; of lists without their index.
const std::set<std::wstring>& KnownKeys(EQuorConversionType type) {
    static std::map<EQuorConversionType, std::set<std::wstring>> all;
    const auto [keys, isNew] = all.try_emplace(type);
    if (isNew)
        for (const RecordKey& key : RecordKeys(type))
            keys->second.insert(key.index < 0 ? key.path : key.list);
    return keys->second;
}

/// Reads the settings of a probe.
class SettingsReader {
public:
    SettingsReader(EQuorConversionType type, RecordForm form)
        : m_type(type), m_form(form), m_known(KnownKeys(type)) {}

    void Read(const JsonValue& object, const std::wstring& prefix) {
        for (std::size_t at = 0; at < object.names.size(); ++at) {
            const std::wstring& name = object.names[at];
            const JsonValue& value = object.members[at];
            const std::wstring path = prefix + name;
            const auto nested = prefix.empty() ? m_known.lower_bound(path + L"/") : m_known.end();
            const bool isNested = nested != m_known.end() && nested->starts_with(path + L"/");
            if (isNested) {
                if (value.kind != Kind::Object)
                    Fail(value, L"\"" + path + L"\" is not an object");
                Read(value, path + L"/");
            } else if (!m_known.contains(path) ||
                       name.find(L'/') != std::wstring::npos) { // it stands in an object
                Fail(value, L"there is no key \"" + path + L"\" in a record of this type" +
                                DidYouMean(path, {m_known.begin(), m_known.end()}));
            } else if (FindRecordKey(m_type, path + L"0", RecordForm::Any)) {
                ReadList(value, path);
            } else {
                Add(path, value, FindRecordKey(m_type, path, m_form));
            }
        }
    }

    std::vector<Assignment> values;
    std::vector<PlaceInObject> numbers;

private:
    void ReadList(const JsonValue& list, const std::wstring& path) {
        if (list.kind != Kind::List)
            Fail(list, L"\"" + path + L"\" is not a list");
        for (std::size_t i = 0; i < list.items.size(); ++i) {
            const JsonValue& item = list.items[i];
            if (item.kind != Kind::Object)
                Fail(item, L"an object of \"name\" and \"value\" expected");
            RequireMembers(item, {L"name", L"value"});
            const std::wstring key = path + std::to_wstring(i);
            const RecordKey* const known = FindRecordKey(m_type, key, m_form);
            const JsonValue* const name = item.Find(L"name");
            if (name && (!known || name->kind != Kind::Text || name->text != known->name))
                Fail(*name, key + L" is not " +
                                (name->kind == Kind::Text ? L"\"" + name->text + L"\"" : L"of that name") +
                                (known ? L" but \"" + known->name + L"\"" : L""));
            const JsonValue* const value = item.Find(L"value");
            if (!value)
                Fail(item, L"\"value\" is missing");
            Add(key, *value, known);
        }
    }

    void Add(const std::wstring& key, const JsonValue& value, const RecordKey* known) {
        const Value kind = known ? known->initial : Value(0.0);
        if (known && !known->choices.empty())
            AddCode(key, value, *known);
        else if (std::holds_alternative<std::wstring>(kind))
            AddText(key, Expect(key, value, Kind::Text, L"a text"));
        else if (std::holds_alternative<bool>(kind))
            AddText(key, Expect(key, value, Kind::Boolean, L"true or false"));
        else if (std::holds_alternative<double>(kind) && IsNotFinite(value))
            AddText(key, value);
        else
            AddNumber(key,
                      Expect(key, value, Kind::Number,
                             std::holds_alternative<double>(kind)
                                 ? L"a number, \"NaN\", \"Infinity\" or \"-Infinity\""
                                 : L"a whole number"),
                      kind);
    }

    void AddCode(const std::wstring& key, const JsonValue& value, const RecordKey& known) {
        static_cast<void>(Expect(key, value, Kind::Object, L"an object of \"code\" and \"name\""));
        RequireMembers(value, {L"code", L"name"});
        const JsonValue& code = Require(value, L"code", Kind::Number, L"a number");
        const JsonValue* const name = value.Find(L"name");
        const auto number = QuorIniFile::IntegerOf(code.text);
        if (name && (name->kind != Kind::Text || !number || ChoiceName(known, *number) != name->text))
            Fail(*name, key + L": the name is not that of the code " + code.text);
        AddNumber(key, code, known.initial);
    }

    static bool IsNotFinite(const JsonValue& value) {
        return value.kind == Kind::Text &&
               (value.text == L"NaN" || value.text == L"Infinity" || value.text == L"-Infinity");
    }

    static const JsonValue& Expect(const std::wstring& key, const JsonValue& value, Kind kind,
                                   const std::wstring& what) {
        if (value.kind != kind)
            Fail(value, key + L": " + what + L" expected");
        return value;
    }

    /// A text, or a flag, as an assignment has it.
    void AddText(const std::wstring& key, const JsonValue& value) {
        values.push_back({key, value.kind != Kind::Boolean ? value.text : value.flag ? L"True" : L"False"});
    }

    void AddNumber(const std::wstring& key, const JsonValue& value, const Value& kind) {
        if (!ParseAs(kind, value.text))
            Fail(value, key + L": " + WhatIsWrong(kind, value.text));
        if (std::holds_alternative<double>(kind))
            numbers.push_back({value.offset, value.text.size(), values.size()});
        values.push_back({key, value.text});
    }

    EQuorConversionType m_type;
    RecordForm m_form;
    const std::set<std::wstring>& m_known;
};

constexpr std::size_t ofSection = static_cast<std::size_t>(-1);

GivenProbe ReadObject(const JsonValue& object, std::vector<PlaceInObject>& places) {
    RequireMembers(object, {L"section", L"code", L"type", L"name", L"settings"});
    GivenProbe probe;
    const JsonValue& section = Require(object, L"section", Kind::Text, L"a text");
    probe.section = section.text;
    const JsonValue& type = Require(object, L"type", Kind::Text, L"a text");
    const TypeInfo* const info = ParseType(type.text);
    if (!info || info->enumerator != type.text || info->code == CONV_NONE) {
        std::vector<std::wstring> known;
        for (const TypeInfo& one : Types())
            known.push_back(one.enumerator);
        Fail(type, L"\"" + type.text + L"\" is no conversion type" + DidYouMean(type.text, known));
    }
    probe.type = info->enumerator;
    if (object.Find(L"name"))
        static_cast<void>(Require(object, L"name", Kind::Text, L"a text"));
    const JsonValue* const code = object.Find(L"code");
    if (code && (code->kind != Kind::Number || QuorIniFile::IntegerOf(code->text) != info->code))
        Fail(*code, L"the code of " + info->enumerator + L" is " + std::to_wstring(info->code));
    const JsonValue& settings = Require(object, L"settings", Kind::Object, L"an object");
    const JsonValue* const flag = settings.Find(usePolynomialKey);
    const RecordForm form = !flag || flag->kind != Kind::Boolean ? RecordForm::AlphaDeltaBeta
                            : flag->flag                         ? RecordForm::Polynomial
                                                                 : RecordForm::AlphaDeltaBeta;
    SettingsReader reader(info->code, form);
    reader.Read(settings, L"");
    const auto& keys = RecordKeys(info->code);
    const bool hasForms = std::any_of(keys.begin(), keys.end(),
                                      [](const RecordKey& key) { return key.form != RecordForm::Any; });
    const JsonValue* const coefficients = settings.Find(coefficientsKey);
    if (hasForms && !flag && coefficients && coefficients->items.size() > 1) // R0 is the same in both
        Fail(settings, L"\"UsePolynomial\" is missing, which says what the coefficients are");
    probe.values = std::move(reader.values);
    places = std::move(reader.numbers);
    places.push_back({section.offset + 1, section.text.size(), ofSection}); // behind its quote
    return probe;
}

std::size_t CountDigits(std::string_view text) {
    std::size_t count = 0;
    while (count < text.size() && text[count] >= '0' && text[count] <= '9')
        ++count;
    return count;
}

/// The length of the number at the start of a text; 0 for what is none, or one of so many digits that it may
/// be too large.
std::size_t NumberLength(std::string_view text) {
    constexpr std::size_t mostDigits = 40;
    constexpr std::size_t mostOfExponent = 2;
    std::size_t at = text.starts_with('-') ? 1 : 0;
    const std::size_t whole = CountDigits(text.substr(at));
    if (whole == 0 || whole > mostDigits || (whole > 1 && text[at] == '0'))
        return 0;
    at += whole;
    if (text.substr(at).starts_with('.')) {
        const std::size_t fraction = CountDigits(text.substr(at + 1));
        if (fraction == 0)
            return 0;
        at += 1 + fraction;
    }
    if (text.substr(at).starts_with('e') || text.substr(at).starts_with('E')) {
        ++at;
        at += text.substr(at).starts_with('-') || text.substr(at).starts_with('+') ? 1 : 0;
        const std::size_t exponent = CountDigits(text.substr(at));
        if (exponent == 0 || exponent > mostOfExponent)
            return 0;
        at += exponent;
    }
    return at;
}

/// The length of the text up to its quote, all of it as it is meant, in ASCII; nothing for any other text.
std::optional<std::size_t> PlainLength(std::string_view text) {
    const auto isPlain = [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; };
    std::size_t length = 0;
    while (length < text.size() && isPlain(text[length]))
        ++length;
    return text.substr(length).starts_with('"') ? std::optional(length) : std::nullopt;
}

/// The length of what stands in a place; nothing if it needs the parser.
std::optional<std::size_t> LengthOf(const PlaceInObject& place, std::string_view text) {
    if (place.value == ofSection)
        return PlainLength(text);
    const std::size_t length = NumberLength(text);
    return length > 0 ? std::optional(length) : std::nullopt;
}

} // namespace

/// Reads an object by that of a pattern, and returns its length; 0 if they differ in more than its places.
std::size_t JsonProbes::Match(Pattern& pattern, std::string_view text) {
    std::size_t at = 0;
    for (std::size_t i = 0; i <= pattern.places.size(); ++i) {
        if (!text.substr(at).starts_with(pattern.common[i]))
            return 0;
        at += pattern.common[i].size();
        if (i == pattern.places.size())
            break;
        PlaceInObject& place = pattern.places[i];
        const auto length = LengthOf(place, text.substr(at));
        if (!length)
            return 0;
        place.offset = at;
        place.length = *length;
        at += *length;
    }
    for (const PlaceInObject& place : pattern.places) {
        const std::string_view bytes = text.substr(place.offset, place.length);
        if (place.value == ofSection) {
            pattern.probe.section.assign(bytes.begin(), bytes.end());
            continue;
        }
        Assignment& assignment = pattern.probe.values[place.value];
        assignment.value.assign(bytes.begin(), bytes.end());
        double number = 0.0;
        const auto read = std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
        assignment.parsed = read.ec == std::errc() ? std::optional<Value>(number) : std::nullopt;
    }
    return at;
}

/// Makes a pattern of the object that the parser has just read.
void JsonProbes::Learn(const GivenProbe& probe, std::vector<PlaceInObject> places) {
    constexpr std::size_t mostPlaces = 64;
    constexpr std::size_t mostPatterns = 32;
    if (places.size() > mostPlaces)
        return;
    std::erase_if(places, [&](const PlaceInObject& place) {
        return LengthOf(place, m_text.substr(place.offset)) != place.length;
    });
    std::sort(places.begin(), places.end(),
              [](const PlaceInObject& a, const PlaceInObject& b) { return a.offset < b.offset; });
    auto pattern = std::make_unique<Pattern>(Pattern{probe, places, {}});
    std::size_t at = m_offset;
    for (const PlaceInObject& place : places) {
        pattern->common.emplace_back(m_text.substr(at, place.offset - at));
        at = place.offset + place.length;
    }
    pattern->common.emplace_back(m_text.substr(at, m_objects.Offset() - at));
    m_patterns.insert(m_patterns.begin(), std::move(pattern));
    if (m_patterns.size() > mostPatterns)
        m_patterns.pop_back();
}

bool JsonProbes::Next() {
    const std::string_view rest = m_objects.Next();
    m_offset = m_objects.Offset();
    m_object.reset();
    if (rest.empty())
        return false;
    for (auto known = m_patterns.begin(); known != m_patterns.end(); ++known) {
        if (const std::size_t length = Match(**known, rest)) {
            m_objects.Pass(length);
            std::rotate(m_patterns.begin(), known, known + 1);
            return true;
        }
    }
    m_object = m_objects.Read();
    return true;
}

const GivenProbe& JsonProbes::Read() {
    if (!m_object)
        return m_patterns.front()->probe;
    std::vector<PlaceInObject> places;
    m_probe = ReadObject(*m_object, places);
    Learn(m_probe, std::move(places));
    return m_probe;
}

} // namespace quorconv
