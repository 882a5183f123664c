#pragma once

#include "QuorConversions/controls/Control.h"
#include "QuorConversions/controls/ListControl.h"

#include <functional>
#include <string>
#include <vector>

namespace QuorConversions {

/// A text that the user cannot change.
class QUORCONVERSIONS_EXPORT Label final : public Control {
public:
    /// A label without a caption, for Dialog::Add.
    Label(Dialog& owner, std::wstring name) : Control(owner, ControlKind::Label, std::move(name)) {}
};

/// A button with a caption. The dialog decides what a click does.
class QUORCONVERSIONS_EXPORT PushButton final : public Control {
public:
    /// A button without a caption, for Dialog::Add.
    PushButton(Dialog& owner, std::wstring name) : Control(owner, ControlKind::PushButton, std::move(name)) {}
};

/// A single line of text with a selection.
class QUORCONVERSIONS_EXPORT TextBox final : public Control {
public:
    /// An empty box, for Dialog::Add.
    TextBox(Dialog& owner, std::wstring name) : Control(owner, ControlKind::TextBox, std::move(name)) {}

    /// What the box contains. Setting it empties the selection and moves it to the start.
    [[nodiscard]] const std::wstring& Text() const { return m_text; }
    void SetText(std::wstring value);
    /// Where the selection starts, from 0, and its length, in characters of Text.
    [[nodiscard]] std::size_t SelStart() const { return m_selStart; }
    [[nodiscard]] std::size_t SelLength() const { return m_selLength; }
    /// Selects characters of Text; positions beyond its end mean the end.
    void SetSelection(std::size_t start, std::size_t length);
    /// Replaces the selection with `text` and puts the cursor after it.
    void ReplaceSelection(std::wstring_view text);
    /// What the user should know about the text before it is stored: "Not a number: 0 would be stored".
    /// Usually empty; it has no effect on the text.
    [[nodiscard]] const std::wstring& Advice() const { return m_advice; }
    void SetAdvice(std::wstring value);

private:
    friend class DialogInput;
    std::wstring m_text;
    std::wstring m_advice;
    std::size_t m_selStart = 0;
    std::size_t m_selLength = 0;
};

/// A list of items, each with a number of its own, of which one or none is selected.
class QUORCONVERSIONS_EXPORT DropDownList final : public Control, public ListControl {
public:
    /// An empty list, for Dialog::Add.
    DropDownList(Dialog& owner, std::wstring name)
        : Control(owner, ControlKind::DropDownList, std::move(name)) {}

    /// Removes all items; nothing is selected then.
    void Clear() override;
    /// Adds an item with the number 0 at the end.
    void AddItem(std::wstring_view text) override;
    /// The index of the item that was added last, from 0; -1 if there is none.
    [[nodiscard]] std::int32_t NewIndex() const override { return ListCount() - 1; }
    /// Sets the number of an item. Raises std::out_of_range for an invalid index.
    void SetItemData(std::int32_t index, std::int32_t data) override;

    /// How many items there are.
    [[nodiscard]] std::int32_t ListCount() const { return static_cast<std::int32_t>(m_items.size()); }
    /// The text, and the number, of an item, from 0. Raise std::out_of_range for an invalid index.
    [[nodiscard]] const std::wstring& List(std::int32_t index) const;
    [[nodiscard]] std::int32_t ItemData(std::int32_t index) const;
    /// The selected item, -1 for none.
    [[nodiscard]] std::int32_t ListIndex() const { return m_listIndex; }
    /// Selects an item, or none (-1). Causes Click on every selection of an item, even of the one that is
    /// already selected, and even while the list is disabled or hidden.
    void SetListIndex(std::int32_t index);
    /// Whether an item is selected.
    [[nodiscard]] bool HasSelection() const { return m_listIndex >= 0; }
    /// The number of the selected item; `none` if none is selected.
    [[nodiscard]] std::int32_t SelectedData(std::int32_t none) const;

private:
    struct Item {
        std::wstring text;
        std::int32_t data = 0;
    };
    std::vector<Item> m_items;
    std::int32_t m_listIndex = -1;
};

/// A group of controls in rows. A row has, from left to right, a label, the control that it names, the unit,
/// and so on; an empty cell is null. The rows of a frame share their columns. A label names the next control
/// of its row that takes the focus.
class QUORCONVERSIONS_EXPORT Frame final : public Control {
public:
    /// The cells of a row, from left to right.
    using Row = std::vector<Control*>;

    /// A frame without rows, for Dialog::Add.
    Frame(Dialog& owner, std::wstring name) : Control(owner, ControlKind::Frame, std::move(name)) {}

    /// Adds a row at the bottom. Its controls become visible and invisible with the frame.
    void AddRow(Row row);
    /// The rows, from top to bottom.
    [[nodiscard]] const std::vector<Row>& Rows() const { return m_rows; }

private:
    std::vector<Row> m_rows;
};

/// Tabs that switch between pages. A tab that is removed keeps its place, so that the others keep their
/// numbers.
class QUORCONVERSIONS_EXPORT TabStrip final : public Control {
public:
    /// A tab, or one that was removed.
    struct Tab {
        std::wstring caption; ///< the text on it
        bool present = true;  ///< whether it is shown; False once it was removed
    };

    /// A strip without tabs, for Dialog::Add.
    TabStrip(Dialog& owner, std::wstring name) : Control(owner, ControlKind::TabStrip, std::move(name)) {}

    /// Adds a tab at the end.
    void AddTab(std::wstring caption);
    /// All tabs, from left to right, including those that were removed.
    [[nodiscard]] const std::vector<Tab>& Tabs() const { return m_tabs; }
    /// Removes a tab, from 0; if it was selected, the first remaining one is selected.
    void RemoveTab(std::size_t tab);
    /// The selected tab, from 0, counting removed ones.
    [[nodiscard]] std::size_t Selected() const { return m_selected; }
    /// Selects a tab that is present and causes Click.
    void Select(std::size_t tab);

private:
    std::vector<Tab> m_tabs;
    std::size_t m_selected = 0;
};

} // namespace QuorConversions
