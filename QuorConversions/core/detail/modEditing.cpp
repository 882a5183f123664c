#include "QuorConversions/core/detail/modEditing.h"

#include <algorithm>

namespace QuorConversions {
namespace {

/// What passes whatever the separator; the control codes are copy, backspace, Enter, paste, cut and undo.
constexpr std::wstring_view numericKeys = L"0123456789-+\x03\x08\x0D\x16\x18\x1A";

std::wstring AskForSeparator(Platform& platform) {
    try {
        return platform.DecimalSeparator().substr(0, 1);
    } catch (...) { // a number can be typed all the same
        return {};
    }
}

} // namespace

std::wstring& ProcessDecimalSeparator() {
    static std::wstring separator;
    return separator;
}

const std::wstring& GetDecimalSeparator(Platform& platform) {
    std::wstring& separator = ProcessDecimalSeparator();
    if (separator.empty())
        separator = AskForSeparator(platform);
    if (separator.empty())
        separator = L".";
    return separator;
}

NumberSeparators UserSeparators(Platform& platform) {
    const std::wstring& decimal = GetDecimalSeparator(platform);
    return {decimal, decimal == L"," ? L"." : L","};
}

void FilterNumericKey(std::int16_t& keyAscii, std::wstring_view separator) {
    const auto key = static_cast<wchar_t>(static_cast<std::uint16_t>(keyAscii));
    if (key == L'.')
        keyAscii = static_cast<std::int16_t>(static_cast<std::uint16_t>(separator.front()));
    else if (key != separator.front() && numericKeys.find(key) == std::wstring_view::npos)
        keyAscii = 0;
}

void FilterNumericKeyExp(std::int16_t& keyAscii, std::wstring_view separator) {
    if (keyAscii != L'e' && keyAscii != L'E')
        FilterNumericKey(keyAscii, separator);
}

std::wstring ToPointDecimal(std::wstring text, std::wstring_view separator) {
    std::replace(text.begin(), text.end(), separator.front(), L'.');
    return text;
}

void EnterToTab(std::int16_t& keyAscii, Dialog& dialog, PushButton* button, bool enableButton) {
    constexpr std::int16_t enter = 13;
    if (keyAscii != enter)
        return;
    if (button && enableButton)
        button->SetEnabled(true);
    dialog.FocusNext();
    keyAscii = 0;
}

void SelectAllText(Dialog& dialog) {
    Control* const active = dialog.ActiveControl();
    if (active && active->Kind() == ControlKind::TextBox) {
        auto& box = static_cast<TextBox&>(*active);
        box.SetSelection(0, box.Text().size());
    }
}

void SelectItemByData(DropDownList& list, std::int32_t value) {
    const std::int32_t count = list.ListCount();
    for (std::int32_t index = 0; index < count; ++index)
        if (list.ItemData(index) == value)
            return list.SetListIndex(index);
}

} // namespace QuorConversions
