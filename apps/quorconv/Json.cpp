#include "apps/quorconv/Json.h"

#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/ValueText.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorconv {

std::string JsonText(std::wstring_view text) {
    std::string json;
    AppendJsonText(json, text);
    return json;
}

void AppendJsonText(std::string& json, std::wstring_view text) {
    const auto isPlain = [](wchar_t c) { return c >= L' ' && c <= L'~' && c != L'"' && c != L'\\'; };
    if (std::all_of(text.begin(), text.end(), isPlain)) { // as nearly all are
        json += '"';
        for (const wchar_t character : text)
            json += static_cast<char>(character);
        json += '"';
        return;
    }
    json += '"';
    for (const char character : QuorIniFile::ToUtf8(text)) {
        constexpr std::string_view digits = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(character);
        switch (character) {
        case '"':
        case '\\':
            json += '\\';
            json += character;
            break;
        case '\n':
            json += "\\n";
            break;
        case '\r':
            json += "\\r";
            break;
        case '\t':
            json += "\\t";
            break;
        default:
            if (byte < 0x20 || byte == 0x7F) {
                json += "\\u00";
                json += digits[byte >> 4U];
                json += digits[byte & 0xFU];
            } else {
                json += character;
            }
        }
    }
    json += '"';
}

void AppendJsonNumber(std::string& json, double number) {
    const bool isText = !std::isfinite(number);
    json.append(isText ? "\"" : "");
    QuorIniFile::AppendValueText(json, number);
    json.append(isText ? "\"" : "");
    // Programs that take a whole number for an integer lose the sign of -0.
    if (number == 0.0 && std::signbit(number))
        json += ".0";
}

const JsonValue* JsonValue::Find(std::wstring_view name) const {
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? nullptr : &members[static_cast<std::size_t>(found - names.begin())];
}

namespace {

/// Makes a value of what the parser finds, and finds the places of its parts in the text.
class Builder {
public:
    /// The text starts at `offset` of a longer one.
    Builder(std::string_view text, std::size_t offset, rapidjson::MemoryStream& stream)
        : m_text(text), m_offset(offset), m_stream(stream) {}

    /// The object that was read.
    [[nodiscard]] JsonValue& Object() { return m_object; }

    // What the parser calls; "true" lets it go on.
    bool Null() { return Add(Value(JsonValue::Kind::Null)); }
    bool Bool(bool flag) {
        JsonValue value = Value(JsonValue::Kind::Boolean);
        value.flag = flag;
        return Add(std::move(value));
    }
    bool RawNumber(const char* digits, rapidjson::SizeType length, bool /*copy*/) {
        JsonValue value = Value(JsonValue::Kind::Number);
        value.text.assign(digits, digits + length);
        return Add(std::move(value));
    }
    bool String(const char* bytes, rapidjson::SizeType length, bool /*copy*/) {
        JsonValue value = Value(JsonValue::Kind::Text);
        value.text = Wide({bytes, length});
        return Add(std::move(value));
    }
    bool Key(const char* bytes, rapidjson::SizeType length, bool /*copy*/) {
        FindPlace();
        JsonValue& object = m_open.back();
        std::wstring name = Wide({bytes, length});
        if (object.members.size() == mostMembers)
            Fail(L"an object has no more than 1000 members here");
        if (object.Find(name))
            Fail(L"the name \"" + name + L"\" occurs twice");
        object.names.push_back(std::move(name));
        object.members.emplace_back();
        return true;
    }
    bool StartObject() { return Open(JsonValue::Kind::Object); }
    bool StartArray() { return Open(JsonValue::Kind::List); }
    bool EndObject(rapidjson::SizeType /*members*/) { return Close(); }
    bool EndArray(rapidjson::SizeType /*items*/) { return Close(); }
    // Numbers come as they are spelled, by RawNumber.
    static bool Int(int /*number*/) { return false; }
    static bool Uint(unsigned /*number*/) { return false; }
    static bool Int64(std::int64_t /*number*/) { return false; }
    static bool Uint64(std::uint64_t /*number*/) { return false; }
    static bool Double(double /*number*/) { return false; }

    /// The names and indices that lead to the value that is being read: "settings/Coefficients[2]/value".
    [[nodiscard]] std::wstring Path() const {
        std::wstring path;
        for (const JsonValue& open : m_open) {
            if (open.kind == JsonValue::Kind::List)
                path += L"[" + std::to_wstring(open.items.size()) + L"]";
            else if (!open.names.empty())
                path += (path.empty() ? L"" : L"/") + open.names.back();
        }
        return path;
    }

private:
    static constexpr std::size_t mostMembers = 1000;
    static constexpr std::size_t deepest = 20; // nobody needs more, and a hostile text no more stack

    [[noreturn]] void Fail(std::wstring text) const { throw JsonError{m_offset + m_at, std::move(text)}; }

    static std::wstring Wide(std::string_view bytes) {
        return *QuorIniFile::FromUtf8(bytes); // the parser has looked at the encoding
    }

    /// Goes to where that begins of which the parser has just read the end.
    void FindPlace() {
        m_at = std::min(m_text.find_first_not_of(" \t\r\n,:", m_end), m_text.size());
        m_end = m_stream.Tell();
    }

    JsonValue Value(JsonValue::Kind kind) {
        FindPlace();
        JsonValue value;
        value.kind = kind;
        value.offset = m_offset + m_at;
        return value;
    }

    bool Open(JsonValue::Kind kind) {
        JsonValue value = Value(kind);
        if (m_open.empty() && kind != JsonValue::Kind::Object)
            Fail(L"an object expected");
        if (m_open.size() > deepest)
            Fail(L"values are nested too deeply");
        m_open.push_back(std::move(value));
        return true;
    }

    bool Close() {
        FindPlace();
        JsonValue value = std::move(m_open.back());
        m_open.pop_back();
        return Add(std::move(value));
    }

    bool Add(JsonValue value) {
        if (m_open.empty() && value.kind != JsonValue::Kind::Object)
            Fail(L"an object expected");
        if (m_open.empty())
            m_object = std::move(value);
        else if (m_open.back().kind == JsonValue::Kind::List)
            m_open.back().items.push_back(std::move(value));
        else
            m_open.back().members.back() = std::move(value);
        return true;
    }

    std::string_view m_text;
    std::size_t m_offset;
    rapidjson::MemoryStream& m_stream;
    std::vector<JsonValue> m_open;
    JsonValue m_object;
    std::size_t m_end = 0; // of what was read last
    std::size_t m_at = 0;  // where that starts
};

/// What is wrong, in words that end a sentence.
std::wstring ReasonOf(rapidjson::ParseErrorCode code) {
    // "Missing a comma or '}' after an object member." is a sentence.
    const std::string_view what = rapidjson::GetParseError_En(code);
    std::wstring reason(what.begin(), what.end() - 1);
    reason.front() = QuorIniFile::Small(reason.front());
    return reason;
}

} // namespace

void JsonObjects::SkipBlanks() { m_at = std::min(m_text.find_first_not_of(" \t\r\n", m_at), m_text.size()); }

bool JsonObjects::Skip(char character) {
    if (m_at == m_text.size() || m_text[m_at] != character)
        return false;
    ++m_at;
    SkipBlanks();
    return true;
}

std::string_view JsonObjects::Next() {
    if (m_at == 0 && m_text.starts_with("\xEF\xBB\xBF"))
        m_at = 3;
    SkipBlanks();
    const bool isFirst = !std::exchange(m_isBehindOne, true);
    if (isFirst && m_at == m_text.size())
        throw JsonError{m_at, L"an object or a list of objects expected"};
    m_isList = m_isList || (isFirst && Skip('['));
    if (!m_isList)
        return m_text.substr(m_at);
    if (!Skip(']')) {
        if (!isFirst && !Skip(','))
            throw JsonError{m_at, ReasonOf(rapidjson::kParseErrorArrayMissCommaOrSquareBracket)};
        return m_at < m_text.size() ? m_text.substr(m_at) : throw JsonError{m_at, L"invalid value"};
    }
    if (m_at < m_text.size())
        throw JsonError{m_at, L"nothing may follow the list"};
    return {};
}

JsonValue JsonObjects::Read() {
    constexpr unsigned flags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag |
                               rapidjson::kParseStopWhenDoneFlag;
    const std::string_view text = m_text.substr(m_at);
    rapidjson::MemoryStream stream(text.data(), text.size());
    Builder builder(text, m_at, stream);
    rapidjson::Reader reader;
    if (!reader.Parse<flags>(stream, builder))
        throw JsonError{m_at + std::min(reader.GetErrorOffset(), text.size()),
                        reader.GetParseErrorCode() == rapidjson::kParseErrorNumberTooBig
                            ? builder.Path() + L": the number is too large for a double"
                            : ReasonOf(reader.GetParseErrorCode())};
    m_at += stream.Tell();
    return std::move(builder.Object());
}

std::wstring TextPlaces::At(std::size_t offset) {
    if (offset < m_at)
        *this = TextPlaces(m_text);
    for (; m_at < offset; ++m_at) {
        if (m_text[m_at] == '\n') {
            ++m_line;
            m_start = m_at + 1;
        }
    }
    return std::to_wstring(m_line) + L":" + std::to_wstring(offset - m_start + 1);
}

} // namespace quorconv
