#pragma once

#include "QuorConversions/controls/Controls.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace QuorConversions {

class DialogInput;

/// Follows what a dialog shows. One follows at a time.
class QUORCONVERSIONS_EXPORT DialogListener {
public:
    DialogListener() = default;
    DialogListener(const DialogListener&) = delete;
    DialogListener& operator=(const DialogListener&) = delete;
    virtual ~DialogListener();

    /// Text, caption, selection, items, tabs, enabled or visible state of a control may be another one now.
    virtual void OnControlChanged(const Control& control) = 0;
    virtual void OnFocusMoved(const Control* focused) = 0;
    virtual void OnTitleChanged() = 0;
    /// The dialog was hidden: the modal loop is to end.
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
    [[nodiscard]] const std::wstring& Title() const { return m_title; }
    void SetTitle(std::wstring value);
    [[nodiscard]] std::int32_t HelpContext() const { return m_helpContext; }
    void SetHelpContext(std::int32_t value) { m_helpContext = value; }

    /// All controls, in tab order.
    [[nodiscard]] const std::vector<std::unique_ptr<Control>>& Controls() const { return m_controls; }
    /// The control of that name; null when there is none.
    [[nodiscard]] Control* Find(std::wstring_view name) const;
    /// The frames and button groups of the dialog, from left to right.
    [[nodiscard]] const std::vector<const Frame*>& Columns() const { return m_columns; }
    /// The button that the Escape key presses; null when there is none. No button answers the Enter key.
    [[nodiscard]] const PushButton* CancelButton() const { return m_cancelButton; }

    /// The boxes whose advice is to be shown: of those on the screen, which are marked, the one that has the
    /// focus, when it has any, or else the first one; and all that are hidden, or on another page.
    [[nodiscard]] std::vector<const TextBox*> AdvisedBoxes() const;
    /// The first of them; null when there is no advice.
    [[nodiscard]] const TextBox* AdvisedBox() const {
        const auto boxes = AdvisedBoxes();
        return boxes.empty() ? nullptr : boxes.front();
    }

    /// The button that the F1 key presses; null when there is none.
    [[nodiscard]] const PushButton* HelpButton() const { return m_helpButton; }

    /// Where the window stands, in the toolkit's units; nothing known at first. A toolkit keeps them up to
    /// date.
    struct Placement {
        std::int32_t left = 0;
        std::int32_t top = 0;
    };
    [[nodiscard]] const std::optional<Placement>& Place() const { return m_place; }
    void SetPlace(std::optional<Placement> value) { m_place = value; }
    /// The handle of the window while it is shown; 0 otherwise. The toolkit sets it.
    [[nodiscard]] std::int32_t WindowHandle() const { return m_windowHandle; }
    void SetWindowHandle(std::int32_t value) { m_windowHandle = value; }

    [[nodiscard]] bool IsOpen() const { return m_open; }
    /// The control that has the focus; null before the first one has got it.
    [[nodiscard]] Control* ActiveControl() const { return m_active; }
    /// Moves the focus, with LostFocus and GotFocus. False, and nothing happens, when the control is hidden
    /// or disabled or takes no focus.
    bool SetFocus(Control& control);
    /// Moves the focus to the next control in tab order, as the Tab key does; backwards as with Shift.
    void FocusNext(bool backwards = false);

    void SetListener(DialogListener* listener) { m_listener = listener; }

protected:
    explicit Dialog(std::wstring name) : m_name(std::move(name)) {}

    template <class T>
    T& Add(std::wstring name) {
        auto control = std::make_unique<T>(*this, std::move(name));
        T& added = *control;
        m_controls.push_back(std::move(control));
        return added;
    }
    template <class T>
    T& Add(std::wstring name, std::size_t index) {
        return Add<T>(std::move(name) + L"(" + std::to_wstring(index) + L")");
    }
    /// A control array, indices from 0.
    template <class T>
    std::vector<T*> AddArray(const std::wstring& name, std::size_t count) {
        std::vector<T*> controls;
        for (std::size_t index = 0; index < count; ++index)
            controls.push_back(&Add<T>(name, index));
        return controls;
    }
    void AddColumn(const Frame& frame) { m_columns.push_back(&frame); }
    void SetCancelButton(const PushButton& button) { m_cancelButton = &button; }
    void SetHelpButton(const PushButton& button) { m_helpButton = &button; }
    /// Ends the modal loop.
    void Hide();
    /// What the dialog's own code hands to the toolkit that runs it.
    [[nodiscard]] DialogInput Input();

    // What the events do. Activate comes each time the window becomes the active one.
    virtual void OnActivate() {}
    virtual void OnClick(Control& /*control*/) {}
    virtual void OnGotFocus(Control& /*control*/) {}
    virtual void OnLostFocus(Control& /*control*/) {}
    /// `keyAscii` may be replaced; 0 swallows the key.
    virtual void OnKeyPress(TextBox& /*box*/, std::int16_t& /*keyAscii*/) {}
    /// The user has changed the text of a box.
    virtual void OnEdit(TextBox& /*box*/) {}
    /// A text comes into a box from the clipboard, or is dropped on it: by itself, in the place of the
    /// selection.
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

/// By which a toolkit reports what the user did. Only whoever runs a dialog gets one. What the user cannot do
/// is refused quietly: a click on a disabled button, a key in a hidden box.
class QUORCONVERSIONS_EXPORT DialogInput {
public:
    /// The window has become the active one. The first control in tab order gets the focus if none has it.
    void Activate();
    /// A push button was pressed. It gets the focus first, as a mouse click gives it.
    void Click(PushButton& button);
    /// An item was chosen.
    void Choose(DropDownList& list, std::int32_t index);
    void SelectTab(TabStrip& tabs, std::size_t tab);
    void Focus(Control& control);
    void Tab(bool backwards = false) { m_dialog.FocusNext(backwards); }
    /// A key with a character code was pressed in the box that has the focus. Returns the key that counts:
    /// another one, or 0 for none. The toolkit then does to the text what that key does, and reports it by
    /// Edit.
    [[nodiscard]] std::int16_t KeyPress(std::int16_t keyAscii);
    /// The text or the selection of a box is what the user has made it.
    void Edit(TextBox& box, std::wstring text, std::size_t selStart, std::size_t selLength);
    /// A text is pasted into a box, or dropped on it, which gets the focus. The box decides what becomes of
    /// it, and may fill the boxes behind it, too.
    void Paste(TextBox& box, const std::wstring& text);
    /// The Escape key.
    void Escape() { Press(m_dialog.CancelButton()); }
    /// The F1 key.
    void Help() { Press(m_dialog.HelpButton()); }
    /// The window's own close box.
    void Close();

private:
    friend class Dialog;
    explicit DialogInput(Dialog& dialog) : m_dialog(dialog) {}

    /// Presses a button by its key, which leaves the focus where it is.
    void Press(const PushButton* button);

    Dialog& m_dialog;
};

} // namespace QuorConversions
