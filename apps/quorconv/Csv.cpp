#include "apps/quorconv/Csv.h"

#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorconv {

void AppendCsvField(std::string& text, std::string_view field, CsvSeparator separator) {
    const auto isSpecial = [separator](char c) {
        return c == static_cast<char>(separator) || c == '"' || c == '\r' || c == '\n';
    };
    if (std::none_of(field.begin(), field.end(), isSpecial)) {
        text += field;
        return;
    }
    text += '"';
    for (const char character : field) {
        if (character == '"')
            text += '"';
        text += character;
    }
    text += '"';
}

namespace {

/// The grammar of RFC 4180.
class CsvReader {
public:
    CsvReader(std::string_view text, CsvSeparator separator)
        : m_text(text), m_separator(static_cast<char>(separator)) {
        if (m_text.starts_with("\xEF\xBB\xBF"))
            m_text.remove_prefix(3);
    }

    [[nodiscard]] bool IsAtEnd() const { return m_at >= m_text.size(); }
    [[nodiscard]] std::size_t Line() const { return m_line; }

    /// The fields of the next row; none of an empty line. Valid until the next call.
    const std::vector<std::wstring>& Row() {
        std::size_t count = 0;
        bool isEmpty = true;
        do {
            if (count == m_fields.size())
                m_fields.emplace_back();
            isEmpty = isEmpty && !Is('"');
            if (Is('"'))
                Decode(QuotedField(count), m_fields[count]);
            else
                Decode(PlainField(), m_fields[count]);
            isEmpty = isEmpty && m_fields[count].empty();
            ++count;
        } while (Skip(m_separator));
        m_fields.resize(count);
        const bool hasCr = Skip('\r');
        if (!IsAtEnd() && !Is('\n') && hasCr)
            Fail(L"the line ends in a lone carriage return; save the table with line ends LF or CR LF");
        if (!IsAtEnd() && !Is('\n'))
            FailQuoted(std::wstring(L"a ") + Name(m_separator) +
                       L" or the end of the line expected after the field in quotes" +
                       (m_line > m_quotedLine ? L", which ends in line " + std::to_wstring(m_line) : L""));
        ++m_at;
        ++m_line;
        if (isEmpty && count == 1)
            m_fields.clear();
        return m_fields;
    }

private:
    [[noreturn]] void Fail(std::wstring what) const { throw CsvError{m_line, std::move(what)}; }
    [[nodiscard]] bool Is(char character) const { return !IsAtEnd() && m_text[m_at] == character; }
    bool Skip(char character) {
        const bool isThere = Is(character);
        m_at += isThere ? 1U : 0U;
        return isThere;
    }

    /// Tells the place where the last field in quotes begins: a quote is missing there, not where it shows.
    [[noreturn]] void FailQuoted(const std::wstring& what) const {
        throw CsvError{m_quotedLine, L"column " + std::to_wstring(m_quotedColumn + 1) + L": " + what};
    }

    std::string QuotedField(std::size_t column) {
        m_quotedLine = m_line;
        m_quotedColumn = column;
        std::string field;
        for (++m_at;; ++m_at) {
            if (IsAtEnd())
                FailQuoted(L"the quote that begins the field is not closed");
            if (m_text[m_at] == '"') {
                if (m_at + 1 == m_text.size() || m_text[m_at + 1] != '"')
                    break;
                ++m_at;
            }
            m_line += m_text[m_at] == '\n' ? 1U : 0U;
            field += m_text[m_at];
        }
        ++m_at;
        return field;
    }

    std::string_view PlainField() {
        const std::size_t start = m_at;
        for (; !IsAtEnd() && !Is(m_separator) && !Is('\r') && !Is('\n'); ++m_at) {
            if (Is('"'))
                Fail(L"a quote inside a field: put the whole field in quotes and double the quote");
        }
        return m_text.substr(start, m_at - start);
    }

    void Decode(std::string_view bytes, std::wstring& text) const {
        unsigned char all = 0;
        for (const char byte : bytes)
            all |= static_cast<unsigned char>(byte);
        if (all < 0x80) {
            text.assign(bytes.begin(), bytes.end()); // as nearly all are
            return;
        }
        auto decoded = QuorIniFile::FromUtf8(bytes);
        if (!decoded)
            Fail(L"the text is not UTF-8; save the table as \"CSV UTF-8\"");
        text = *std::move(decoded);
    }

    static const wchar_t* Name(char separator) {
        return std::find_if(std::begin(csvSeparators), std::end(csvSeparators),
                            [separator](const CsvSeparatorName& one) {
                                return static_cast<char>(one.separator) == separator;
                            })
            ->name;
    }

    std::string_view m_text;
    char m_separator;
    std::size_t m_line = 1;
    std::size_t m_at = 0;
    std::size_t m_quotedLine = 1; // of the last field in quotes
    std::size_t m_quotedColumn = 0;
    std::vector<std::wstring> m_fields;
};

} // namespace

void ReadCsv(std::string_view text, CsvSeparator separator,
             const std::function<void(const std::vector<std::wstring>& fields, std::size_t line)>& use) {
    CsvReader reader(text, separator);
    while (!reader.IsAtEnd()) {
        const std::size_t line = reader.Line();
        if (const auto& fields = reader.Row(); !fields.empty())
            use(fields, line);
    }
}

std::vector<std::wstring> FirstCsvRow(std::string_view text, CsvSeparator separator) {
    try {
        CsvReader reader(text, separator);
        while (!reader.IsAtEnd())
            if (const auto& fields = reader.Row(); !fields.empty())
                return fields;
    } catch (const CsvError&) { // then it has none
    }
    return {};
}

} // namespace quorconv
