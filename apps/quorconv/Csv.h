#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorconv {

/// What stands between the fields of a line: "comma" as RFC 4180 has it, or what spreadsheets write where the
/// comma is the decimal sign. Never guessed.
enum class CsvSeparator : char { Comma = ',', Semicolon = ';', Tab = '\t' };

/// Appends a field as CSV has it (RFC 4180): in quotes where it has a separator, a quote or a line break.
void AppendCsvField(std::string& text, std::string_view field, CsvSeparator separator);

/// A CSV text that cannot be read.
struct CsvError {
    std::size_t line;
    std::wstring text;
};

/// The separators, with the words by which a command line names them.
struct CsvSeparatorName {
    CsvSeparator separator;
    const wchar_t* name;
};
inline constexpr CsvSeparatorName csvSeparators[] = {
    {CsvSeparator::Comma, L"comma"}, {CsvSeparator::Semicolon, L"semicolon"}, {CsvSeparator::Tab, L"tab"}};

/// Reads a CSV text (RFC 4180; line ends may be LF alone, and a byte-order mark may stand first) and calls
/// `use` with each row and the line in which it begins. Empty lines are no rows. Raises CsvError.
void ReadCsv(std::string_view text, CsvSeparator separator,
             const std::function<void(const std::vector<std::wstring>& fields, std::size_t line)>& use);

/// The fields of its first row; none where it cannot be read with that separator.
[[nodiscard]] std::vector<std::wstring> FirstCsvRow(std::string_view text, CsvSeparator separator);

} // namespace quorconv
