#include "QuorConversions/controls/Dialog.h"

#include <algorithm>
#include <utility>

namespace QuorConversions {

DialogListener::~DialogListener() = default;

Dialog::~Dialog() = default;

void Dialog::SetTitle(std::wstring value) {
    m_title = std::move(value);
    if (m_listener)
        m_listener->OnTitleChanged();
}

Control* Dialog::Find(std::wstring_view name) const {
    const auto control = std::find_if(m_controls.begin(), m_controls.end(),
                                      [&](const auto& candidate) { return candidate->Name() == name; });
    return control == m_controls.end() ? nullptr : control->get();
}

bool Dialog::SetFocus(Control& control) {
    if (!control.TakesFocus() || !control.IsUsable())
        return false;
    if (&control == m_active)
        return true;
    if (Control* const left = std::exchange(m_active, &control))
        OnLostFocus(*left);
    if (m_listener)
        m_listener->OnFocusMoved(m_active);
    OnGotFocus(control);
    return true;
}

void Dialog::FocusNext(bool backwards) {
    const auto count = m_controls.size();
    const auto active = std::find_if(m_controls.begin(), m_controls.end(),
                                     [&](const auto& control) { return control.get() == m_active; });
    // Without a focus the first control is the next one.
    std::size_t at = active == m_controls.end() ? (backwards ? 0 : count - 1)
                                                : static_cast<std::size_t>(active - m_controls.begin());
    for (std::size_t step = 0; step < count; ++step) {
        at = (at + (backwards ? count - 1 : 1)) % count;
        if (SetFocus(*m_controls[at]))
            return;
    }
}

std::vector<const TextBox*> Dialog::AdvisedBoxes() const {
    const TextBox* shown = nullptr;
    std::vector<const TextBox*> hidden;
    for (const auto& control : m_controls) {
        if (control->Kind() != ControlKind::TextBox)
            continue;
        const auto* const box = static_cast<const TextBox*>(control.get());
        if (box->Advice().empty())
            continue;
        if (!box->IsShown())
            hidden.push_back(box);
        else if (!shown || box == m_active)
            shown = box;
    }
    if (shown)
        hidden.insert(hidden.begin(), shown);
    return hidden;
}

void Dialog::Hide() {
    m_open = false;
    if (m_listener)
        m_listener->OnHidden();
}

DialogInput Dialog::Input() { return DialogInput(*this); }

void Dialog::Notify(const Control& control) const {
    if (m_listener)
        m_listener->OnControlChanged(control);
}

void DialogInput::Activate() {
    if (!m_dialog.m_active)
        m_dialog.FocusNext();
    m_dialog.OnActivate();
}

void DialogInput::Click(PushButton& button) {
    if (m_dialog.IsOpen() && m_dialog.SetFocus(button))
        m_dialog.OnClick(button);
}

void DialogInput::Choose(DropDownList& list, std::int32_t index) {
    if (m_dialog.IsOpen() && m_dialog.SetFocus(list))
        list.SetListIndex(index);
}

void DialogInput::SelectTab(TabStrip& tabs, std::size_t tab) {
    if (m_dialog.IsOpen() && m_dialog.SetFocus(tabs))
        tabs.Select(tab);
}

void DialogInput::Focus(Control& control) {
    if (m_dialog.IsOpen())
        m_dialog.SetFocus(control);
}

std::int16_t DialogInput::KeyPress(std::int16_t keyAscii) {
    Control* const active = m_dialog.m_active;
    if (!active || active->Kind() != ControlKind::TextBox)
        return keyAscii;
    if (!active->IsUsable() || !m_dialog.IsOpen())
        return 0;
    m_dialog.OnKeyPress(static_cast<TextBox&>(*active), keyAscii);
    return keyAscii;
}

void DialogInput::Edit(TextBox& box, std::wstring text, std::size_t selStart, std::size_t selLength) {
    if (!box.IsUsable() || !m_dialog.IsOpen())
        return;
    const bool changes = text != box.Text();
    box.SetText(std::move(text));
    box.SetSelection(selStart, selLength);
    if (changes)
        m_dialog.OnEdit(box);
}

void DialogInput::Paste(TextBox& box, const std::wstring& text) {
    if (m_dialog.IsOpen() && !text.empty() && m_dialog.SetFocus(box))
        m_dialog.OnPaste(box, text);
}

void DialogInput::Press(const PushButton* button) {
    if (button && m_dialog.IsOpen() && button->IsUsable())
        m_dialog.OnClick(const_cast<PushButton&>(*button)); // NOLINT: the dialog's own button
}

void DialogInput::Close() {
    if (m_dialog.IsOpen())
        m_dialog.OnClose();
}

} // namespace QuorConversions
