#include "QuorConversions/controls/ControlNames.h"

#include <algorithm>
#include <utility>

namespace QuorConversions {
namespace {

bool IsHeadings(const Frame::Row& row) {
    return row.size() > 1 && !row.front() && std::all_of(row.begin(), row.end(), [](const Control* c) {
               return !c || c->Kind() == ControlKind::Label;
           });
}

bool TakesFocus(const Frame::Row& row, std::size_t column) {
    return column < row.size() && row[column] && row[column]->TakesFocus();
}

bool IsLabel(const Frame::Row& row, std::size_t column) {
    return column < row.size() && row[column] && row[column]->Kind() == ControlKind::Label;
}

/// What a row gives names to: a label names the next control; in a grid of points the label that begins the
/// row names, with the heading above, each box of the row.
void NameRow(const Frame::Row& row, const Frame::Row* headings, std::vector<ControlName>& names) {
    const Label* first = nullptr;
    const Label* nearest = nullptr;
    for (std::size_t column = 0; column < row.size(); ++column) {
        if (IsLabel(row, column)) {
            nearest = static_cast<const Label*>(row[column]);
            first = first ? first : nearest;
        }
        if (!TakesFocus(row, column) || !first)
            continue;
        const bool inGrid = headings && column < headings->size() && (*headings)[column];
        // The label behind a box is its unit, unless it names the box behind it.
        const bool hasUnits = IsLabel(row, column + 1) && (inGrid || !TakesFocus(row, column + 2));
        names.push_back(
            {row[column],
             inGrid ? SpokenCaption((*headings)[column]->Caption()) + L" " + SpokenCaption(first->Caption())
                    : SpokenCaption(nearest->Caption()),
             hasUnits ? row[column + 1]->Caption() : std::wstring{}, inGrid ? first : nearest});
    }
}

} // namespace

std::wstring SpokenCaption(std::wstring caption) {
    std::erase(caption, L'&');
    if (!caption.empty() && caption.back() == L':')
        caption.pop_back();
    return caption;
}

std::vector<ControlName> ControlNames(const Dialog& dialog) {
    std::vector<ControlName> names;
    for (const auto& control : dialog.Controls()) {
        if (control->Kind() == ControlKind::PushButton)
            names.push_back({control.get(), SpokenCaption(control->Caption()), {}, nullptr});
        if (control->Kind() != ControlKind::Frame)
            continue;
        const Frame::Row* headings = nullptr;
        for (const Frame::Row& row : static_cast<const Frame&>(*control).Rows()) {
            if (IsHeadings(row))
                headings = &row;
            else
                NameRow(row, headings, names);
        }
    }
    return names;
}

} // namespace QuorConversions
