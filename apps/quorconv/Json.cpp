#include "apps/quorconv/Json.h"

#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/ValueText.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cmath>

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

/// Makes values of what the parser finds, and finds their places in the text.
class Builder {
public:
    Builder(std::string_view text, rapidjson::MemoryStream& stream,
            const std::function<void(const JsonValue&)>& use)
        : m_text(text), m_stream(stream), m_use(use) {}

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

    [[nodiscard]] bool WasList() const { return m_wasList; }

    [[noreturn]] void FailAt(std::size_t offset, std::wstring text) {
        GoTo(offset);
        Fail(std::move(text));
    }

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

    [[noreturn]] void Fail(std::wstring text) const { throw JsonError{m_line, m_column, std::move(text)}; }

    static std::wstring Wide(std::string_view bytes) {
        return *QuorIniFile::FromUtf8(bytes); // the parser has looked at the encoding
    }

    void GoTo(std::size_t offset) {
        for (; m_at < offset; ++m_at) {
            const bool isEnd = m_text[m_at] == '\n';
            m_line += isEnd ? 1 : 0;
            m_column = isEnd ? 1 : m_column + 1;
        }
    }

    /// Goes to where that begins of which the parser has just read the end.
    void FindPlace() {
        GoTo(std::min(m_text.find_first_not_of(" \t\r\n,:", m_end), m_text.size()));
        m_end = m_stream.Tell();
    }

    JsonValue Value(JsonValue::Kind kind) {
        FindPlace();
        JsonValue value;
        value.kind = kind;
        value.line = m_line;
        value.column = m_column;
        return value;
    }

    bool Open(JsonValue::Kind kind) {
        JsonValue value = Value(kind);
        if (m_open.empty() && kind == JsonValue::Kind::List)
            m_wasList = true;
        else if (kind == JsonValue::Kind::List && IsOuter())
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
        return (m_open.empty() && m_wasList) || Add(std::move(value));
    }

    /// Whether what comes next is one of the objects that the text holds.
    [[nodiscard]] bool IsOuter() const { return m_open.empty() || (m_wasList && m_open.size() == 1); }

    bool Add(JsonValue value) {
        if (IsOuter() && value.kind != JsonValue::Kind::Object)
            throw JsonError{value.line, value.column, L"an object expected"};
        if (IsOuter())
            m_use(value);
        else if (m_open.back().kind == JsonValue::Kind::List)
            m_open.back().items.push_back(std::move(value));
        else
            m_open.back().members.back() = std::move(value);
        return true;
    }

    std::string_view m_text;
    rapidjson::MemoryStream& m_stream;
    const std::function<void(const JsonValue&)>& m_use;
    std::vector<JsonValue> m_open;
    bool m_wasList = false; // the text is a list
    std::size_t m_end = 0;  // of what was read last
    std::size_t m_at = 0;   // where m_line and m_column are
    std::size_t m_line = 1;
    std::size_t m_column = 1;
};

} // namespace

void ReadJsonObjects(std::string_view text, const std::function<void(const JsonValue&)>& use) {
    constexpr unsigned flags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag |
                               rapidjson::kParseStopWhenDoneFlag;
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    rapidjson::MemoryStream stream(text.data(), text.size());
    Builder builder(text, stream, use);
    const auto skipBlanks = [&] {
        rapidjson::SkipWhitespace(stream);
        return stream.Tell() < text.size();
    };
    if (!skipBlanks())
        builder.FailAt(text.size(), L"an object or a list of objects expected");
    while (skipBlanks()) {
        if (builder.WasList())
            builder.FailAt(stream.Tell(), L"nothing may follow the list");
        rapidjson::Reader reader;
        if (!reader.Parse<flags>(stream, builder)) {
            // "Missing a comma or } after an object member." is a sentence; here it ends one.
            const std::string_view what = rapidjson::GetParseError_En(reader.GetParseErrorCode());
            std::wstring reason(what.begin(), what.end() - 1);
            reason.front() = QuorIniFile::Small(reason.front());
            if (reader.GetParseErrorCode() == rapidjson::kParseErrorNumberTooBig)
                reason = builder.Path() + L": the number is too large for a double";
            builder.FailAt(std::min(reader.GetErrorOffset(), text.size()), std::move(reason));
        }
    }
}

} // namespace quorconv
