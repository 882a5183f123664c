#pragma once

#include "QuorConversions/controls/Dialog.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace QuorConversions::Scripted {

/// How what a person does reaches the dialog in front of them: through the model itself, or through the
/// windows, keys and mouse of a toolkit.
class InputDriver {
public:
    InputDriver() = default;
    InputDriver(const InputDriver&) = delete;
    InputDriver& operator=(const InputDriver&) = delete;
    virtual ~InputDriver() = default;

    /// Goes to a control.
    virtual void GoTo(Control& control) = 0;
    /// Selects the text of the box that has the focus.
    virtual void SelectAll() = 0;
    /// Presses a key that has a character code.
    virtual void Press(std::int16_t keyAscii) = 0;
    /// Copies the text elsewhere and pastes it into the box that has the focus.
    virtual void Paste(const std::wstring& text) = 0;
    virtual void Tab(bool backwards) = 0;
    virtual void Escape() = 0;
    /// Presses F1.
    virtual void Help() = 0;
    virtual void Click(PushButton& button) = 0;
    virtual void Choose(DropDownList& list, std::int32_t index) = 0;
    virtual void SelectTab(TabStrip& tabs, std::size_t tab) = 0;
    /// Moves the window.
    virtual void MoveTo(std::int32_t left, std::int32_t top) = 0;
    /// Closes the window by its own close box.
    virtual void Close() = 0;
};

/// The driver that reaches into the model: it does to a text what its key does, as a toolkit would.
class ModelInputDriver final : public InputDriver {
public:
    ModelInputDriver(Dialog& dialog, DialogInput& input) : m_dialog(dialog), m_input(input) {}

    void GoTo(Control& control) override { m_input.Focus(control); }
    void SelectAll() override;
    void Press(std::int16_t keyAscii) override;
    void Paste(const std::wstring& text) override;
    void Tab(bool backwards) override { m_input.Tab(backwards); }
    void Escape() override { m_input.Escape(); }
    void Help() override { m_input.Help(); }
    void Click(PushButton& button) override { m_input.Click(button); }
    void Choose(DropDownList& list, std::int32_t index) override { m_input.Choose(list, index); }
    void SelectTab(TabStrip& tabs, std::size_t tab) override { m_input.SelectTab(tabs, tab); }
    void MoveTo(std::int32_t left, std::int32_t top) override {
        m_dialog.SetPlace(Dialog::Placement{left, top});
    }
    void Close() override { m_input.Close(); }

private:
    [[nodiscard]] TextBox* ActiveBox() const;

    Dialog& m_dialog;
    DialogInput& m_input;
    std::pair<const TextBox*, std::wstring> m_before; ///< a box, and its text before the last change
};

} // namespace QuorConversions::Scripted
