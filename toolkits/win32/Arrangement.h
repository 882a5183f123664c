#pragma once

#include "QuorConversions/controls/Dialog.h"

#include <map>
#include <string>
#include <vector>
#include <windows.h>

namespace QuorConversions::Win32Toolkit {

/// Where the controls of a dialog stand, in pixels of the content of its window: the rows and columns of the
/// model, in the font of a device context and in the distances that Windows recommends for it. Hidden
/// controls take no room.
class Arrangement {
public:
    /// Measures the texts of the dialog with the font that is selected in `dc`. The content becomes at least
    /// as large as `atLeast`; `advice` stands below the first column.
    Arrangement(const Dialog& dialog, HDC dc, SIZE atLeast, const std::wstring& advice);

    [[nodiscard]] SIZE Size() const { return m_size; }
    /// The place of a control that is shown; null for one that is hidden, and for a frame without a caption.
    [[nodiscard]] const RECT* PlaceOf(const Control& control) const;
    [[nodiscard]] const RECT& AdvicePlace() const { return m_advice; }

private:
    /// Dialog units, of which four are as wide as a letter, and eight as high as a line.
    [[nodiscard]] int X(int units) const { return MulDiv(units, m_letterWidth, 4); }
    [[nodiscard]] int Y(int units) const { return MulDiv(units, m_lineHeight, 8); }
    [[nodiscard]] int WidthOfText(const std::wstring& text) const;
    [[nodiscard]] int HeightOfText(const std::wstring& text, int width) const;
    [[nodiscard]] SIZE Natural(const Control& control) const;
    [[nodiscard]] std::vector<int> ColumnWidths(const Frame& frame) const;
    [[nodiscard]] int WidthOf(const Frame& frame) const;
    /// Places what stands in the frame and returns the height that it takes.
    int Place(const Frame& frame, int left, int top, int width);
    int PlaceAlone(const Control& control, int left, int top, int width);
    int PlaceRow(const Frame::Row& row, int left, int top, const std::vector<int>& widths);

    HDC m_dc;
    int m_letterWidth = 0;
    int m_lineHeight = 0;
    SIZE m_size{};
    RECT m_advice{};
    std::map<const Control*, RECT> m_places;
};

} // namespace QuorConversions::Win32Toolkit
