#pragma once

#include "QuorConversions/controls/Controls.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace QuorConversions {

/// The cells of a text: lines, each divided at tabs.
using PastedCells = std::vector<std::vector<std::wstring_view>>;

/// Splits a text at tabs and line ends only; those at its end, and before a single cell, divide nothing. Of
/// several lines, the first and the last columns that are empty on every one are none. The cells live as long
/// as `text`.
[[nodiscard]] PastedCells SplitIntoCells(std::wstring_view text);

/// The place of a cell, counted from 1.
struct CellPlace {
    std::size_t line;
    std::size_t column;
};

/// The first cell in which there is nothing but blanks; nothing if there is none.
[[nodiscard]] std::optional<CellPlace> EmptyCell(const PastedCells& cells);

/// The boxes that several cells go into, the cells one line after the other, when the first one goes into
/// `first`. In a grid a cell goes as far to the right and down as it stands in the text; in a list of single
/// boxes each cell goes into the next box. Rows that are hidden do not count; the list or grid ends where a
/// row has another number of boxes. Nothing when there is no room.
[[nodiscard]] std::optional<std::vector<TextBox*>> BoxesFor(const PastedCells& cells, const TextBox& first);

} // namespace QuorConversions
