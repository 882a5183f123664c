#include "apps/quorconv/Json.h"

#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/ValueText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace quorconv {

std::string JsonText(std::wstring_view text) {
    std::string json = "\"";
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
    return json + '"';
}

std::string JsonNumber(double number) {
    const std::wstring text = QuorIniFile::ToValueText(number);
    if (!std::isfinite(number))
        return JsonText(text);
    std::string json(text.begin(), text.end());
    // Programs that take a whole number for an integer lose the sign of -0.
    return json == "-0" ? "-0.0" : json;
}

const JsonValue* JsonValue::Find(std::wstring_view name) const {
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&](const auto& member) { return member.first == name; });
    return found == members.end() ? nullptr : &found->second;
}

namespace {

class Reader {
public:
    explicit Reader(std::string_view text) : m_text(text) {
        if (m_text.starts_with("\xEF\xBB\xBF"))
            m_at = m_lineStart = 3;
    }

    void ReadObjects(const std::function<void(const JsonValue&)>& use) {
        SkipBlanks();
        if (Peek() == '[') {
            ++m_at;
            ReadList([&] { use(ReadObject()); });
            SkipBlanks();
            if (m_at < m_text.size())
                Fail(L"nothing may follow the list");
            return;
        }
        for (; m_at < m_text.size(); SkipBlanks())
            use(ReadObject());
    }

private:
    static constexpr std::size_t mostMembers = 1000;
    static constexpr int deepest = 20; // nobody needs more, and a hostile text no more stack

    [[noreturn]] void Fail(std::wstring text) const {
        throw JsonError{m_line, m_at - m_lineStart + 1, std::move(text)};
    }

    [[nodiscard]] char Peek() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }

    void SkipBlanks() {
        for (; m_at < m_text.size(); ++m_at) {
            const char character = m_text[m_at];
            if (character == '\n') {
                ++m_line;
                m_lineStart = m_at + 1;
            } else if (character != ' ' && character != '\t' && character != '\r') {
                return;
            }
        }
    }

    void Expect(char character) {
        SkipBlanks();
        if (Peek() != character)
            Fail(L"'" + std::wstring(1, static_cast<wchar_t>(character)) + L"' expected");
        ++m_at;
    }

    /// The items of a list whose "[" was read.
    void ReadList(const std::function<void()>& readItem) {
        SkipBlanks();
        if (Peek() == ']') {
            ++m_at;
            return;
        }
        while (true) {
            readItem();
            SkipBlanks();
            if (Peek() == ']') {
                ++m_at;
                return;
            }
            Expect(',');
        }
    }

    JsonValue ReadObject() {
        SkipBlanks();
        if (Peek() != '{')
            Fail(L"an object expected: '{'");
        return ReadValue(0);
    }

    JsonValue ReadValue(int depth) {
        SkipBlanks();
        JsonValue value;
        value.line = m_line;
        value.column = m_at - m_lineStart + 1;
        if (depth > deepest)
            Fail(L"values are nested too deeply");
        switch (Peek()) {
        case '{':
            value.kind = JsonValue::Kind::Object;
            ReadMembers(value, depth);
            break;
        case '[':
            value.kind = JsonValue::Kind::List;
            ++m_at;
            ReadList([&] { value.items.push_back(ReadValue(depth + 1)); });
            break;
        case '"':
            value.kind = JsonValue::Kind::Text;
            value.text = ReadText();
            break;
        default:
            ReadWord(value);
        }
        return value;
    }

    void ReadMembers(JsonValue& value, int depth) {
        ++m_at;
        SkipBlanks();
        if (Peek() == '}') {
            ++m_at;
            return;
        }
        while (true) {
            SkipBlanks();
            if (Peek() != '"')
                Fail(L"a name in quotes expected");
            const std::size_t start = m_at;
            std::wstring name = ReadText();
            if (value.members.size() == mostMembers)
                Fail(L"an object has no more than 1000 members here");
            if (value.Find(name)) {
                m_at = start;
                Fail(L"the name \"" + name + L"\" stands twice");
            }
            Expect(':');
            JsonValue member = ReadValue(depth + 1);
            value.members.emplace_back(std::move(name), std::move(member));
            SkipBlanks();
            if (Peek() == '}') {
                ++m_at;
                return;
            }
            Expect(',');
        }
    }

    void ReadWord(JsonValue& value) {
        const std::size_t end =
            std::min(m_text.find_first_not_of(
                         "0123456789+-.eEabcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", m_at),
                     m_text.size());
        const std::string_view word = m_text.substr(m_at, end - m_at);
        if (word == "true" || word == "false") {
            value.kind = JsonValue::Kind::Boolean;
            value.flag = word == "true";
        } else if (word == "null") {
            value.kind = JsonValue::Kind::Null;
        } else if (IsNumber(word)) {
            value.kind = JsonValue::Kind::Number;
            value.text.assign(word.begin(), word.end());
        } else {
            Fail(word.empty() ? L"a value expected"
                              : L"\"" + QuorIniFile::DecodeBytes(word) +
                                    L"\" is no JSON value; texts stand in quotes");
        }
        m_at = end;
    }

    /// By the rules of JSON: no leading zeros, no sign "+", digits on both sides of the point.
    static bool IsNumber(std::string_view word) {
        std::size_t at = 0;
        const auto digits = [&] {
            const std::size_t begin = at;
            while (at < word.size() && word[at] >= '0' && word[at] <= '9')
                ++at;
            return at - begin;
        };
        if (at < word.size() && word[at] == '-')
            ++at;
        const std::size_t first = at;
        const std::size_t whole = digits();
        if (whole == 0 || (whole > 1 && word[first] == '0'))
            return false;
        if (at < word.size() && word[at] == '.') {
            ++at;
            if (digits() == 0)
                return false;
        }
        if (at < word.size() && (word[at] == 'e' || word[at] == 'E')) {
            ++at;
            if (at < word.size() && (word[at] == '+' || word[at] == '-'))
                ++at;
            if (digits() == 0)
                return false;
        }
        return at == word.size();
    }

    std::uint32_t ReadHex() {
        std::uint32_t code = 0;
        for (int i = 0; i < 4; ++i, ++m_at) {
            constexpr std::string_view digits = "0123456789abcdef";
            const char lower = static_cast<char>(Peek() | 0x20);
            const auto digit = Peek() == '\0' ? std::string_view::npos : digits.find(lower);
            if (digit == std::string_view::npos)
                Fail(L"four hexadecimal digits expected");
            code = code * 16 + static_cast<std::uint32_t>(digit);
        }
        return code;
    }

    std::wstring ReadText() {
        const std::size_t start = m_at++;
        std::wstring text;
        std::string bytes; // since the last escape
        const auto addBytes = [&] {
            const auto part = QuorIniFile::FromUtf8(bytes);
            if (!part) {
                m_at = start;
                Fail(L"the text is not UTF-8");
            }
            text += *part;
            bytes.clear();
        };
        for (;; ++m_at) {
            if (m_at >= m_text.size() || static_cast<unsigned char>(m_text[m_at]) < 0x20) {
                m_at = std::min(m_at, m_text.size());
                Fail(L"the text is not closed by a quote in its line");
            }
            const char character = m_text[m_at];
            if (character == '"')
                break;
            if (character != '\\') {
                bytes += character;
                continue;
            }
            ++m_at;
            constexpr std::string_view names = "\"\\/bfnrt";
            constexpr std::string_view meant = "\"\\/\b\f\n\r\t";
            if (const auto escape = names.find(Peek()); Peek() != '\0' && escape != std::string_view::npos) {
                bytes += meant[escape];
                continue;
            }
            if (Peek() != 'u')
                Fail(L"there is no such escape");
            addBytes();
            ++m_at;
            text += ReadEscaped();
            --m_at; // the last digit; the loop goes on behind it
        }
        ++m_at;
        addBytes();
        return text;
    }

    /// The character of "\uXXXX", of which two may make one.
    wchar_t ReadEscaped() {
        std::uint32_t code = ReadHex();
        constexpr std::uint32_t high = 0xD800;
        constexpr std::uint32_t low = 0xDC00;
        if (code >= high && code < low && m_text.substr(m_at, 2) == "\\u") {
            m_at += 2;
            const std::uint32_t second = ReadHex();
            if (second < low || second > 0xDFFF)
                Fail(L"half a character");
            code = 0x10000 + ((code - high) << 10U) + (second - low);
        }
        if (code >= high && code <= 0xDFFF)
            Fail(L"half a character");
        return static_cast<wchar_t>(code);
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_line = 1;
    std::size_t m_lineStart = 0;
};

} // namespace

void ReadJsonObjects(std::string_view text, const std::function<void(const JsonValue&)>& use) {
    Reader(text).ReadObjects(use);
}

} // namespace quorconv
