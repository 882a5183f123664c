#include "apps/quorconv/Csv.h"

#include "QuorIniFile/Utf8.h"

#include <utility>

namespace quorconv {

std::string CsvField(std::string_view field) {
    if (field.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(field);
    std::string quoted = "\"";
    for (const char character : field) {
        if (character == '"')
            quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

// NOLINTNEXTLINE(readability-function-cognitive-complexity): the grammar of RFC 4180 in one piece
void ReadCsv(std::string_view text,
             const std::function<void(const std::vector<std::wstring>& fields, std::size_t line)>& use) {
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    std::size_t line = 1;
    std::size_t at = 0;
    const auto fail = [&](const wchar_t* what) { throw CsvError{line, what}; };
    while (at < text.size()) {
        const std::size_t rowLine = line;
        std::vector<std::wstring> fields;
        bool isEmpty = true;
        for (bool goesOn = true; goesOn;) {
            std::string field;
            if (at < text.size() && text[at] == '"') {
                isEmpty = false;
                for (++at;; ++at) {
                    if (at >= text.size())
                        fail(L"a quote is not closed");
                    if (text[at] == '"') {
                        if (at + 1 == text.size() || text[at + 1] != '"')
                            break;
                        ++at;
                    }
                    line += text[at] == '\n' ? 1U : 0U;
                    field += text[at];
                }
                ++at;
            } else {
                while (at < text.size() && text[at] != ',' && text[at] != '\r' && text[at] != '\n') {
                    if (text[at] == '"')
                        fail(L"a quote inside a field: the whole field stands in quotes then, and the quote "
                             L"twice");
                    field += text[at++];
                }
            }
            auto decoded = QuorIniFile::FromUtf8(field);
            if (!decoded)
                fail(L"the text is not UTF-8");
            isEmpty = isEmpty && field.empty();
            fields.push_back(*std::move(decoded));
            goesOn = at < text.size() && text[at] == ',';
            at += goesOn ? 1U : 0U;
        }
        if (at < text.size() && text[at] == '\r')
            ++at;
        if (at < text.size() && text[at] != '\n')
            fail(L"a comma or the end of the line expected behind a field in quotes");
        ++at;
        if (fields.size() > 1 || !isEmpty)
            use(fields, rowLine);
        ++line;
    }
}

} // namespace quorconv
