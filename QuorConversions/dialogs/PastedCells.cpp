#include "QuorConversions/dialogs/PastedCells.h"

#include <algorithm>

namespace QuorConversions {
namespace {

constexpr std::wstring_view edges = L"\t\n\v\f\u0085\u2028\u2029\r \u00A0\u2009\u200B\u202F\uFEFF";
constexpr std::wstring_view lineEnds = L"\n\u0085\u2028\u2029\r";

/// Takes what stands in front of the next of `dividers`, and the divider; CR and LF are one.
std::wstring_view TakeUpTo(std::wstring_view& text, std::wstring_view dividers) {
    const auto end = text.find_first_of(dividers);
    const std::wstring_view part = text.substr(0, end);
    if (end == std::wstring_view::npos)
        text = {};
    else
        text.remove_prefix(end + (text.substr(end).starts_with(L"\r\n") ? 2 : 1));
    return part;
}

/// Whether a line has nothing in a column.
bool IsEmptyAt(const std::vector<std::wstring_view>& line, std::size_t column) {
    return column >= line.size() || line[column].find_first_not_of(edges) == std::wstring_view::npos;
}

/// Takes away the first and the last columns in which none of several lines has anything: the edges of what
/// was copied from a spreadsheet. An empty column between others, or at the beginning of a single line, may
/// be a value that is missing.
void DropEmptyEdges(PastedCells& cells) {
    const auto isEmpty = [&cells](std::size_t column) {
        return std::all_of(cells.begin(), cells.end(),
                           [&](const auto& line) { return IsEmptyAt(line, column); });
    };
    if (cells.size() == 1)
        return;
    std::size_t end = 1;
    for (const auto& line : cells)
        end = std::max(end, line.size());
    while (end > 1 && isEmpty(end - 1))
        --end;
    std::size_t begin = 0;
    while (begin + 1 < end && isEmpty(begin))
        ++begin;
    for (auto& line : cells) {
        line.resize(std::min(end, line.size()));
        line.erase(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(std::min(begin, line.size())));
        if (line.empty()) // it remains an empty cell
            line.emplace_back();
    }
}

using BoxRow = std::vector<TextBox*>;

/// The boxes that can be edited, row by row, from the row of `first` to the end of its list or grid.
std::vector<BoxRow> RowsFrom(const TextBox& first) {
    std::vector<BoxRow> rows;
    for (const Frame::Row& controls : static_cast<const Frame*>(first.Parent())->Rows()) {
        const bool begins = std::find(controls.begin(), controls.end(), &first) != controls.end();
        const bool isShown =
            std::any_of(controls.begin(), controls.end(), [](const Control* c) { return c && c->IsShown(); });
        if ((rows.empty() && !begins) || !isShown)
            continue;
        BoxRow boxes;
        for (Control* const control : controls)
            if (control && control->Kind() == ControlKind::TextBox && control->IsUsable())
                boxes.push_back(static_cast<TextBox*>(control));
        if (!rows.empty() && boxes.size() != rows.front().size())
            break;
        rows.push_back(std::move(boxes));
    }
    return rows;
}

} // namespace

PastedCells SplitIntoCells(std::wstring_view text) {
    const auto begin = text.find_first_not_of(edges);
    if (begin == std::wstring_view::npos)
        return {};
    text = text.substr(0, text.find_last_not_of(edges) + 1);
    // Before a single cell nothing counts. Before several, an empty cell counts: without it all the others
    // would stand in the wrong places.
    if (text.find_first_of(L"\t\n\u0085\u2028\u2029\r", begin) == std::wstring_view::npos)
        text.remove_prefix(begin);
    PastedCells cells;
    while (!text.empty()) {
        std::wstring_view line = TakeUpTo(text, lineEnds);
        auto& row = cells.emplace_back();
        for (bool last = false; !last;) { // an empty line is an empty cell
            last = line.find(L'\t') == std::wstring_view::npos;
            row.push_back(TakeUpTo(line, L"\t"));
        }
    }
    DropEmptyEdges(cells);
    return cells;
}

std::optional<CellPlace> EmptyCell(const PastedCells& cells) {
    for (std::size_t line = 0; line < cells.size(); ++line)
        for (std::size_t column = 0; column < cells[line].size(); ++column)
            if (IsEmptyAt(cells[line], column))
                return CellPlace{line + 1, column + 1};
    return std::nullopt;
}

std::optional<std::vector<TextBox*>> BoxesFor(const PastedCells& cells, const TextBox& first) {
    if (!first.Parent())
        return std::nullopt;
    const std::vector<BoxRow> rows = RowsFrom(first);
    const auto firstInRow = std::find(rows.front().begin(), rows.front().end(), &first);
    const bool isGrid = rows.front().size() > 1;
    const auto column = static_cast<std::size_t>(firstInRow - rows.front().begin());
    std::vector<TextBox*> boxes;
    for (std::size_t line = 0; line < cells.size(); ++line)
        for (std::size_t cell = 0; cell < cells[line].size(); ++cell) {
            const std::size_t row = isGrid ? line : boxes.size();
            const std::size_t place = isGrid ? column + cell : 0;
            if (row >= rows.size() || place >= rows[row].size())
                return std::nullopt;
            boxes.push_back(rows[row][place]);
        }
    return boxes;
}

} // namespace QuorConversions
