#include "toolkits/win32/Arrangement.h"

#include <algorithm>
#include <numeric>

namespace QuorConversions::Win32Toolkit {
namespace {

/// Between controls, and at the edges of a window or of a group, in dialog units.
constexpr int gap = 4;
constexpr int rowGap = 3;
constexpr int margin = 7;

/// As wide as the longest number: 17 digits, two signs, a separator and an exponent of three digits.
const wchar_t* const longestNumber = L"-8.8888888888888888E-888";

[[nodiscard]] bool HasCaption(const Frame& frame) { return !frame.Caption().empty(); }

[[nodiscard]] const Frame* AsFrame(const Control& control) {
    return control.Kind() == ControlKind::Frame ? static_cast<const Frame*>(&control) : nullptr;
}

/// The control of a row that has no other; null for a row of several.
[[nodiscard]] const Control* Alone(const Frame::Row& row) {
    const Control* only = nullptr;
    for (const Control* const control : row) {
        if (control && only)
            return nullptr;
        if (control)
            only = control;
    }
    return only;
}

[[nodiscard]] bool IsShown(const Frame::Row& row) {
    return std::any_of(row.begin(), row.end(),
                       [](const Control* control) { return control && control->IsShown(); });
}

/// Boxes and lists take the room that is left over.
[[nodiscard]] bool IsElastic(const Control& control) {
    return control.Kind() == ControlKind::TextBox || control.Kind() == ControlKind::DropDownList;
}

/// A frame without a caption below a tab strip is one of its pages.
[[nodiscard]] bool IsPage(const Frame::Row& row) {
    const Control* const only = Alone(row);
    return only && AsFrame(*only) && !HasCaption(*AsFrame(*only));
}

} // namespace

Arrangement::Arrangement(const Dialog& dialog, HDC dc, SIZE atLeast, const std::wstring& advice) : m_dc(dc) {
    const std::wstring letters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE size{};
    GetTextExtentPoint32W(m_dc, letters.c_str(), static_cast<int>(letters.size()), &size);
    m_letterWidth = static_cast<int>((size.cx / 26 + 1) / 2);
    TEXTMETRICW metrics{};
    GetTextMetricsW(m_dc, &metrics);
    m_lineHeight = static_cast<int>(metrics.tmHeight);

    const auto& columns = dialog.Columns();
    std::vector<int> widths;
    for (const Frame* const frame : columns)
        widths.push_back(WidthOf(*frame));
    int width = 2 * X(margin) + static_cast<int>(columns.size() - 1) * X(margin);
    width = std::accumulate(widths.begin(), widths.end(), width);
    const int left = std::max(0, static_cast<int>(atLeast.cx) - width);
    if (!widths.empty())
        widths.front() += left;
    width += left;

    int x = X(margin);
    int height = static_cast<int>(atLeast.cy);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        int taken = Place(*columns[i], x, Y(margin), widths[i]);
        if (i == 0) // a line that is always there, so that the rows do not move when it has a text
            taken += Y(rowGap) + std::max(m_lineHeight, HeightOfText(advice, widths[i]));
        height = std::max(height, taken + 2 * Y(margin));
        x += widths[i] + X(margin);
    }
    m_size = {width, height};
    if (columns.empty())
        return;
    const int adviceHeight = std::max(m_lineHeight, HeightOfText(advice, widths.front()));
    m_advice = {X(margin), height - Y(margin) - adviceHeight, X(margin) + widths.front(), height - Y(margin)};
    if (const auto first = m_places.find(columns.front()); first != m_places.end())
        first->second.bottom = m_advice.top - Y(rowGap);
}

const RECT* Arrangement::PlaceOf(const Control& control) const {
    const auto found = m_places.find(&control);
    return found == m_places.end() ? nullptr : &found->second;
}

int Arrangement::WidthOfText(const std::wstring& text) const {
    RECT place{};
    DrawTextW(m_dc, text.c_str(), static_cast<int>(text.size()), &place, DT_CALCRECT | DT_SINGLELINE);
    return static_cast<int>(place.right);
}

int Arrangement::HeightOfText(const std::wstring& text, int width) const {
    if (text.empty())
        return 0;
    RECT place{0, 0, width, 0};
    DrawTextW(m_dc, text.c_str(), static_cast<int>(text.size()), &place,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    return static_cast<int>(place.bottom);
}

SIZE Arrangement::Natural(const Control& control) const {
    const int boxWidth = WidthOfText(longestNumber) + X(6);
    switch (control.Kind()) {
    case ControlKind::Label:
        return {WidthOfText(control.Caption()) + 1, m_lineHeight};
    case ControlKind::PushButton:
        return {std::max(X(50), WidthOfText(control.Caption()) + X(12)), Y(14)};
    case ControlKind::TextBox:
        return {boxWidth, Y(12)};
    case ControlKind::DropDownList: {
        const auto& list = static_cast<const DropDownList&>(control);
        int width = boxWidth;
        for (std::int32_t item = 0; item < list.ListCount(); ++item)
            width = std::max(width, WidthOfText(list.List(item)) + X(6) + GetSystemMetrics(SM_CXVSCROLL));
        return {width, Y(14)};
    }
    case ControlKind::TabStrip: {
        int width = X(margin);
        for (const TabStrip::Tab& tab : static_cast<const TabStrip&>(control).Tabs())
            width += tab.present ? WidthOfText(tab.caption) + X(12) : 0;
        return {width, Y(14)};
    }
    case ControlKind::Frame:
        return {WidthOf(static_cast<const Frame&>(control)), 0};
    }
    return {};
}

std::vector<int> Arrangement::ColumnWidths(const Frame& frame) const {
    std::vector<int> widths;
    for (const Frame::Row& row : frame.Rows()) {
        if (Alone(row))
            continue;
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            if (row[column] && row[column]->IsShown())
                widths[column] = std::max(widths[column], static_cast<int>(Natural(*row[column]).cx));
    }
    return widths;
}

int Arrangement::WidthOf(const Frame& frame) const {
    const std::vector<int> columns = ColumnWidths(frame);
    int width = 0;
    for (const int column : columns)
        width += column > 0 ? column + (width > 0 ? X(gap) : 0) : 0;
    bool isOnPage = false;
    for (const Frame::Row& row : frame.Rows()) {
        const Control* const only = Alone(row);
        isOnPage = only && (only->Kind() == ControlKind::TabStrip || (isOnPage && IsPage(row)));
        // A sentence takes the lines that it needs, and makes the dialog no wider.
        if (only && only->IsShown() && only->Kind() != ControlKind::Label)
            width = std::max(width, static_cast<int>(Natural(*only).cx) +
                                        (isOnPage && IsPage(row) ? 2 * X(margin) : 0));
    }
    if (!HasCaption(frame))
        return width;
    return std::max(width, WidthOfText(frame.Caption())) + 2 * X(margin);
}

int Arrangement::Place(const Frame& frame, int left, int top, int width) {
    int y = top;
    int x = left;
    int inner = width;
    if (HasCaption(frame)) {
        x += X(margin);
        y += Y(11); // below the caption
        inner -= 2 * X(margin);
    }
    std::vector<int> widths = ColumnWidths(frame);
    std::vector<std::size_t> elastic;
    int free = inner;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        if (widths[column] > 0)
            free -= widths[column] + (free < inner ? X(gap) : 0);
        const auto isElastic = [&](const Frame::Row& row) {
            return !Alone(row) && column < row.size() && row[column] && row[column]->IsShown() &&
                   IsElastic(*row[column]);
        };
        if (std::any_of(frame.Rows().begin(), frame.Rows().end(), isElastic))
            elastic.push_back(column);
    }
    for (const std::size_t column : elastic)
        widths[column] += std::max(0, free) / static_cast<int>(elastic.size());

    const Control* tabs = nullptr; // while the rows are its pages
    const int start = y;
    const auto endPages = [&] {
        if (!tabs)
            return;
        y += Y(rowGap);
        m_places[tabs].bottom = y;
        tabs = nullptr;
    };
    for (const Frame::Row& row : frame.Rows()) {
        if (tabs && !IsPage(row))
            endPages();
        if (!IsShown(row))
            continue;
        y += y > start ? Y(rowGap) : 0;
        const Control* const only = Alone(row);
        if (only && tabs)
            y += PlaceAlone(*only, x + X(margin), y, inner - 2 * X(margin));
        else if (only)
            y += PlaceAlone(*only, x, y, inner);
        else
            y += PlaceRow(row, x, y, widths);
        if (only && only->Kind() == ControlKind::TabStrip)
            tabs = only;
    }
    endPages();
    if (HasCaption(frame)) {
        y += Y(margin);
        m_places[&frame] = {left, top, left + width, y};
    }
    return y - top;
}

int Arrangement::PlaceAlone(const Control& control, int left, int top, int width) {
    if (const Frame* const frame = AsFrame(control))
        return Place(*frame, left, top, width);
    const int height = control.Kind() == ControlKind::Label
                           ? std::max(m_lineHeight, HeightOfText(control.Caption(), width))
                           : static_cast<int>(Natural(control).cy);
    m_places[&control] = {left, top, left + width, top + height};
    return height;
}

int Arrangement::PlaceRow(const Frame::Row& row, int left, int top, const std::vector<int>& widths) {
    int height = 0;
    for (const Control* const control : row)
        if (control && control->IsShown())
            height = std::max(height, static_cast<int>(Natural(*control).cy));
    int x = left;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        if (widths[column] == 0)
            continue;
        const Control* const control = column < row.size() ? row[column] : nullptr;
        if (control && control->IsShown()) {
            if (const Frame* const frame = AsFrame(*control)) {
                height = std::max(height, Place(*frame, x, top, widths[column]));
            } else {
                const int own = static_cast<int>(Natural(*control).cy);
                const int y = top + (height - own) / 2;
                m_places[control] = {x, y, x + widths[column], y + own};
            }
        }
        x += widths[column] + X(gap);
    }
    return height;
}

} // namespace QuorConversions::Win32Toolkit
