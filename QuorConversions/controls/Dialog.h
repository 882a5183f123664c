#pragma once

#include "QuorConversions/controls/Controls.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace QuorConversions {

class DialogInput;

/// Is informed when a dialog changes. A dialog has one listener at a time.
class QUORCONVERSIONS_EXPORT DialogListener {
public:
    DialogListener() = default;
    DialogListener(const DialogListener&) = delete;
    DialogListener& operator=(const DialogListener&) = delete;
    virtual ~DialogListener();

    /// Text, caption, selection, items, tabs, enabled or visible state of a control may have changed.
    virtual void OnControlChanged(const Control& control) = 0;
    /// Another control has the focus; null if none has.
    virtual void OnFocusMoved(const Control* focused) = 0;
    /// Dialog::Title has changed.
    virtual void OnTitleChanged() = 0;
    /// The dialog was hidden: the modal loop must end.
    virtual void OnHidden() = 0;
};

/// A modal dialog as a model: named controls in tab order, which of them has the focus, and what each event
/// does. It knows no toolkit and no pixels.
class QUORCONVERSIONS_EXPORT Dialog {
public:
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    virtual ~Dialog();

    /// The name of the class of dialog: "frmCVDSettings".
    [[nodiscard]] const std::wstring& Name() const { return m_name; }
    /// The title of the window, in the language of the string table.
    [[nodiscard]] const std::wstring& Title() const { return m_title; }
    void SetTitle(std::wstring value);
    /// The context number of the dialog's help topic; 0 if it has none.
    [[nodiscard]] std::int32_t HelpContext() const { return m_helpContext; }
    void SetHelpContext(std::int32_t value) { m_helpContext = value; }

    /// All controls, in tab order.
    [[nodiscard]] const std::vector<std::unique_ptr<Control>>& Controls() const { return m_controls; }
    /// The control with that name; null if there is none.
    [[nodiscard]] Control* Find(std::wstring_view name) const;
    /// The frames and button groups of the dialog, from left to right.
    [[nodiscard]] const std::vector<const Frame*>& Columns() const { return m_columns; }
    /// The button that the Escape key presses; null if there is none. No button responds to the Enter key.
    [[nodiscard]] const PushButton* CancelButton() const { return m_cancelButton; }

    /// The boxes whose advice should be shown: of those on the screen, which are marked, the one with the
    /// focus if it has advice, otherwise the first; and all that are hidden or on another page.
    [[nodiscard]] std::vector<const TextBox*> AdvisedBoxes() const;
    /// The first of them; null if there is no advice.
    [[nodiscard]] const TextBox* AdvisedBox() const {
        const auto boxes = AdvisedBoxes();
        return boxes.empty() ? nullptr : boxes.front();
    }

    /// The button that the F1 key presses; null if there is none.
    [[nodiscard]] const PushButton* HelpButton() const { return m_helpButton; }

    /// The position of a window, in the toolkit's units.
    struct Placement {
        std::int32_t left = 0; ///< of its left edge
        std::int32_t top = 0;  ///< of its top edge
    };
    /// Where the window is; nothing if not known, as at first. The toolkit keeps it up to date.
    [[nodiscard]] const std::optional<Placement>& Place() const { return m_place; }
    void SetPlace(std::optional<Placement> value) { m_place = value; }
    /// The handle of the window while it is shown; 0 otherwise. The toolkit sets it.
    [[nodiscard]] std::int32_t WindowHandle() const { return m_windowHandle; }
    void SetWindowHandle(std::int32_t value) { m_windowHandle = value; }

    /// Whether the dialog is still open; False once it was hidden, and for good.
    [[nodiscard]] bool IsOpen() const { return m_open; }
    /// The control that has the focus; null before the first one has received it.
    [[nodiscard]] Control* ActiveControl() const { return m_active; }
    /// Moves the focus, with LostFocus and GotFocus. Does nothing and returns False if the control is hidden
    /// or disabled or takes no focus.
    bool SetFocus(Control& control);
    /// Moves the focus to the next control in tab order, as the Tab key does; backwards as Shift+Tab does.
    void FocusNext(bool backwards = false);

    /// Sets the listener, which must outlive the dialog or be replaced; null for none.
    void SetListener(DialogListener* listener) { m_listener = listener; }

protected:
    /// A dialog without controls; `name` is that of its class.
    explicit Dialog(std::wstring name) : m_name(std::move(name)) {}

    /// Adds a control of the class T at the end of the tab order; with an index, as an element of a control
    /// array.
    template <class T>
    T& Add(std::wstring name) {
        auto control = std::make_unique<T>(*this, std::move(name));
        T& added = *control;
        m_controls.push_back(std::move(control));
        return added;
    }
    /// Adds an element of a control array: its name is `name` with the index.
    template <class T>
    T& Add(std::wstring name, std::size_t index) {
        return Add<T>(std::move(name) + L"(" + std::to_wstring(index) + L")");
    }
    /// Adds a control array, indices from 0.
    template <class T>
    std::vector<T*> AddArray(const std::wstring& name, std::size_t count) {
        std::vector<T*> controls;
        for (std::size_t index = 0; index < count; ++index)
            controls.push_back(&Add<T>(name, index));
        return controls;
    }
    /// Adds a frame or group of buttons to the right of the others.
    void AddColumn(const Frame& frame) { m_columns.push_back(&frame); }
    /// Which button the Escape key presses, and which the F1 key.
    void SetCancelButton(const PushButton& button) { m_cancelButton = &button; }
    void SetHelpButton(const PushButton& button) { m_helpButton = &button; }
    /// Closes the dialog, which ends the modal loop.
    void Hide();
    /// By which the toolkit that runs the dialog reports what the user does.
    [[nodiscard]] DialogInput Input();

    /// The window has become the active one, for the first time or again.
    virtual void OnActivate() {}
    /// A button was pressed, or an item or a tab was selected.
    virtual void OnClick(Control& /*control*/) {}
    /// A control has received the focus.
    virtual void OnGotFocus(Control& /*control*/) {}
    /// A control has lost the focus.
    virtual void OnLostFocus(Control& /*control*/) {}
    /// A key with a character code was pressed in a box. `keyAscii` may be replaced; 0 discards the key.
    virtual void OnKeyPress(TextBox& /*box*/, std::int16_t& /*keyAscii*/) {}
    /// The user has changed the text of a box.
    virtual void OnEdit(TextBox& /*box*/) {}
    /// Text is pasted into a box or dropped on it. By default it replaces the selection.
    virtual void OnPaste(TextBox& box, const std::wstring& text) { box.ReplaceSelection(text); }
    /// The user closes the window by its frame.
    virtual void OnClose() { Hide(); }

private:
    friend class Control;
    friend class DialogInput;
    friend class DropDownList;
    friend class TabStrip;

    void Notify(const Control& control) const;

    std::wstring m_name;
    std::wstring m_title;
    std::int32_t m_helpContext = 0;
    std::vector<std::unique_ptr<Control>> m_controls;
    std::vector<const Frame*> m_columns;
    const PushButton* m_cancelButton = nullptr;
    const PushButton* m_helpButton = nullptr;
    Control* m_active = nullptr;
    std::optional<Placement> m_place;
    std::int32_t m_windowHandle = 0;
    bool m_open = true;
    DialogListener* m_listener = nullptr;
};

/// By which a toolkit reports what the user did. Only the code that runs a dialog receives one. What the user
/// cannot do is ignored: a click on a disabled button, a key in a hidden box.
class QUORCONVERSIONS_EXPORT DialogInput {
public:
    /// The window has become the active one. The first control in tab order gets the focus if none has it.
    void Activate();
    /// A push button was pressed. It receives the focus first, as from a mouse click.
    void Click(PushButton& button);
    /// An item was chosen, from 0.
    void Choose(DropDownList& list, std::int32_t index);
    /// A tab was chosen, from 0.
    void SelectTab(TabStrip& tabs, std::size_t tab);
    /// The user moved the focus to a control.
    void Focus(Control& control);
    /// The Tab key was pressed, with Shift if `backwards`.
    void Tab(bool backwards = false) { m_dialog.FocusNext(backwards); }
    /// The code of a key that types a character: the 16 bits of the character, negative beyond 0x7FFF. What
    /// has more than 16 bits is U+FFFD, which stands for a character that cannot be shown.
    [[nodiscard]] static constexpr std::int16_t KeyAsciiOf(char32_t character) {
        return static_cast<std::int16_t>(character > 0xFFFF ? 0xFFFD : character);
    }
    /// A key with a character code was pressed in the box that has the focus. Returns the key to use instead,
    /// or 0 for none. The toolkit then changes the text as that key does, and reports it by Edit.
    [[nodiscard]] std::int16_t KeyPress(std::int16_t keyAscii);
    /// The user has changed the text or the selection of a box.
    void Edit(TextBox& box, std::wstring text, std::size_t selStart, std::size_t selLength);
    /// Text was pasted into a box or dropped on it; the box receives the focus. The dialog decides what is
    /// inserted, and may fill the following boxes as well.
    void Paste(TextBox& box, const std::wstring& text);
    /// The Escape key was pressed.
    void Escape() { Press(m_dialog.CancelButton()); }
    /// The F1 key was pressed.
    void Help() { Press(m_dialog.HelpButton()); }
    /// The user closed the window by its frame.
    void Close();

private:
    friend class Dialog;
    explicit DialogInput(Dialog& dialog) : m_dialog(dialog) {}

    /// Presses a button by its key, which leaves the focus where it is.
    void Press(const PushButton* button);

    Dialog& m_dialog;
};

} // namespace QuorConversions
