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
    Label(Dialog& owner, std::wstring name) : Control(owner, ControlKind::Label, std::move(name)) {}
};

/// A button with a caption. What a click does is the dialog's.
class QUORCONVERSIONS_EXPORT PushButton final : public Control {
public:
    PushButton(Dialog& owner, std::wstring name) : Control(owner, ControlKind::PushButton, std::move(name)) {}
};

/// A single line of text with a selection.
class QUORCONVERSIONS_EXPORT TextBox final : public Control {
public:
    TextBox(Dialog& owner, std::wstring name) : Control(owner, ControlKind::TextBox, std::move(name)) {}

    [[nodiscard]] const std::wstring& Text() const { return m_text; }
    /// The selection becomes empty, at the start, as in every text box whose text is set.
    void SetText(std::wstring value);
    [[nodiscard]] std::size_t SelStart() const { return m_selStart; }
    [[nodiscard]] std::size_t SelLength() const { return m_selLength; }
    /// Cut to the text.
    void SetSelection(std::size_t start, std::size_t length);
    /// Puts `text` in the place of the selection; the cursor stands behind it.
    void ReplaceSelection(std::wstring_view text);
    /// What the user is told of the text before it is stored: "Not a number: 0 would be stored". Empty
    /// mostly; it changes nothing.
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
    DropDownList(Dialog& owner, std::wstring name)
        : Control(owner, ControlKind::DropDownList, std::move(name)) {}

    void Clear() override;
    void AddItem(std::wstring_view text) override;
    [[nodiscard]] std::int32_t NewIndex() const override { return ListCount() - 1; }
    void SetItemData(std::int32_t index, std::int32_t data) override;

    [[nodiscard]] std::int32_t ListCount() const { return static_cast<std::int32_t>(m_items.size()); }
    /// Both raise std::out_of_range for an index that is none.
    [[nodiscard]] const std::wstring& List(std::int32_t index) const;
    [[nodiscard]] std::int32_t ItemData(std::int32_t index) const;
    /// The selected item, -1 for none.
    [[nodiscard]] std::int32_t ListIndex() const { return m_listIndex; }
    /// Selects an item, or none (-1). Raises Click on every selection of an item, also of the one that is
    /// selected already, and also while the list is disabled or hidden.
    void SetListIndex(std::int32_t index);
    [[nodiscard]] bool HasSelection() const { return m_listIndex >= 0; }
    /// The data of the selected item; `none` when there is none.
    [[nodiscard]] std::int32_t SelectedData(std::int32_t none) const;

private:
    struct Item {
        std::wstring text;
        std::int32_t data = 0;
    };
    std::vector<Item> m_items;
    std::int32_t m_listIndex = -1;
};

/// A group of controls in rows. In a row stand, from left to right, a label, the control that it names, the
/// unit behind it, and so on; an empty place is null. Rows of one frame share their columns. A label names
/// the next control of its row that takes the focus.
class QUORCONVERSIONS_EXPORT Frame final : public Control {
public:
    using Row = std::vector<Control*>;

    Frame(Dialog& owner, std::wstring name) : Control(owner, ControlKind::Frame, std::move(name)) {}

    void AddRow(Row row);
    [[nodiscard]] const std::vector<Row>& Rows() const { return m_rows; }

private:
    std::vector<Row> m_rows;
};

/// Tabs that switch between pages. A tab that is taken out keeps its place, so that the others keep their
/// number.
class QUORCONVERSIONS_EXPORT TabStrip final : public Control {
public:
    /// A tab, also one that was taken out.
    struct Tab {
        std::wstring caption;
        bool present = true;
    };

    TabStrip(Dialog& owner, std::wstring name) : Control(owner, ControlKind::TabStrip, std::move(name)) {}

    void AddTab(std::wstring caption);
    [[nodiscard]] const std::vector<Tab>& Tabs() const { return m_tabs; }
    /// Takes a tab out; when it was the selected one, the first that is left is selected.
    void RemoveTab(std::size_t tab);
    /// The selected tab, from 0, counted over all tabs, taken out or not.
    [[nodiscard]] std::size_t Selected() const { return m_selected; }
    /// Selects a tab that is present and raises Click.
    void Select(std::size_t tab);

private:
    std::vector<Tab> m_tabs;
    std::size_t m_selected = 0;
};

} // namespace QuorConversions
