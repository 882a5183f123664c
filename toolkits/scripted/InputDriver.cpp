#include "toolkits/scripted/InputDriver.h"

#include <string>
#include <utility>

namespace QuorConversions::Scripted {

TextBox* ModelInputDriver::ActiveBox() const {
    Control* const active = m_dialog.ActiveControl();
    return active && active->Kind() == ControlKind::TextBox ? static_cast<TextBox*>(active) : nullptr;
}

void ModelInputDriver::SelectAll() {
    if (TextBox* const box = ActiveBox())
        box->SetSelection(0, box->Text().size());
}

void ModelInputDriver::Press(std::int16_t keyAscii) {
    constexpr std::int16_t backspace = 8;
    constexpr std::int16_t undo = 26;
    const std::int16_t key = m_input.KeyPress(keyAscii);
    TextBox* const box = ActiveBox();
    const bool changesText =
        key == backspace || key == undo || key >= 32; // copy and the like have no clipboard here
    if (!changesText || !box)
        return;
    std::wstring text = box->Text();
    const auto before = std::exchange(m_before, {box, text});
    if (key == undo) {
        if (before.first == box)
            m_input.Edit(*box, before.second, before.second.size(), 0);
        return;
    }
    std::size_t at = box->SelStart();
    const std::size_t selected = box->SelLength();
    if (key == backspace && selected == 0 && at > 0)
        text.erase(--at, 1);
    else if (key == backspace || key >= 32)
        text.erase(at, selected);
    if (key >= 32)
        text.insert(at++, 1, static_cast<wchar_t>(key));
    m_input.Edit(*box, std::move(text), at, 0);
}

void ModelInputDriver::Paste(const std::wstring& text) {
    if (TextBox* const box = ActiveBox()) {
        m_before = {box, box->Text()};
        m_input.Paste(*box, text);
    }
}

} // namespace QuorConversions::Scripted
