#include "QuorConversions/controls/Controls.h"

#include "QuorConversions/controls/Dialog.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace QuorConversions {

void TextBox::SetText(std::wstring value) {
    m_text = std::move(value);
    m_selStart = 0;
    m_selLength = 0;
    Notify();
}

void TextBox::SetSelection(std::size_t start, std::size_t length) {
    m_selStart = std::min(start, m_text.size());
    m_selLength = std::min(length, m_text.size() - m_selStart);
    Notify();
}

void TextBox::ReplaceSelection(std::wstring_view text) {
    m_text.replace(m_selStart, m_selLength, text);
    m_selStart += text.size();
    m_selLength = 0;
    Notify();
}

void TextBox::SetAdvice(std::wstring value) {
    if (value == m_advice)
        return;
    m_advice = std::move(value);
    Notify();
}

void DropDownList::Clear() {
    m_items.clear();
    m_listIndex = -1;
    Notify();
}

void DropDownList::AddItem(std::wstring_view text) {
    m_items.push_back({std::wstring(text), 0});
    Notify();
}

void DropDownList::SetItemData(std::int32_t index, std::int32_t data) {
    m_items.at(static_cast<std::size_t>(index)).data = data;
}

const std::wstring& DropDownList::List(std::int32_t index) const {
    return m_items.at(static_cast<std::size_t>(index)).text;
}

std::int32_t DropDownList::ItemData(std::int32_t index) const {
    return m_items.at(static_cast<std::size_t>(index)).data;
}

void DropDownList::SetListIndex(std::int32_t index) {
    if (index >= ListCount())
        throw std::out_of_range("a list has no such item");
    m_listIndex = std::max(index, -1);
    Notify();
    if (HasSelection())
        Owner().OnClick(*this);
}

std::int32_t DropDownList::SelectedData(std::int32_t none) const {
    return HasSelection() ? ItemData(m_listIndex) : none;
}

void Frame::AddRow(Row row) {
    for (Control* const control : row)
        if (control)
            control->m_parent = this;
    m_rows.push_back(std::move(row));
}

void TabStrip::AddTab(std::wstring caption) {
    m_tabs.push_back({std::move(caption), true});
    Notify();
}

void TabStrip::RemoveTab(std::size_t tab) {
    m_tabs.at(tab).present = false;
    if (m_selected == tab) {
        const auto left = std::find_if(m_tabs.begin(), m_tabs.end(), [](const Tab& t) { return t.present; });
        if (left != m_tabs.end())
            m_selected = static_cast<std::size_t>(left - m_tabs.begin());
    }
    Notify();
}

void TabStrip::Select(std::size_t tab) {
    if (!m_tabs.at(tab).present)
        return;
    m_selected = tab;
    Notify();
    Owner().OnClick(*this);
}

} // namespace QuorConversions
