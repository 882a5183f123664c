#include "QuorConversions/dialogs/MissingKeys.h"

#include "QuorConversions/core/NumberFromPaste.h"
#include "QuorConversions/dialogs/Advice.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace QuorConversions {
namespace {

/// What groups the digits of a number and can be left out.
bool Groups(wchar_t c) {
    return std::wstring_view(L" '\u00A0\u2009\u202F\u2019").find(c) != std::wstring_view::npos;
}

} // namespace

void MissingKeys::OnKey(const TextBox& box, wchar_t pressed, wchar_t taken,
                        const NumberSeparators& separators) {
    const std::wstring before = box.Text().substr(0, box.SelStart());
    if (taken == 0 && Groups(pressed) && !before.empty() && IsAsciiDigit(before.back()))
        return;
    const bool replacesText = box.SelLength() == box.Text().size();
    if (replacesText && !m_isAheadOfText)
        Clear();
    m_isAheadOfText = replacesText && taken == 0; // what is typed next replaces the text, without this key
    constexpr std::size_t most = 100;             // of a key that is held down
    if (pressed != taken && m_keys.size() < most)
        m_keys.push_back({pressed, taken != 0, before});
    if (taken == 0)
        Judge(box.Text(), separators);
}

void MissingKeys::OnText(const std::wstring& text, const NumberSeparators& separators) {
    if (text.empty())
        return Clear();
    // Deleted together with what stood in front of them.
    std::erase_if(m_keys, [&](const Key& key) {
        return key.before.starts_with(text) && (key.isTaken || text.size() < key.before.size());
    });
    Judge(text, separators);
}

void MissingKeys::Judge(const std::wstring& text, const NumberSeparators& separators) {
    std::wstring others;
    for (const Key& key : m_keys)
        if (!key.isTaken && key.pressed != L',')
            others += key.pressed == L' ' ? L'\u2423' : key.pressed; // the sign of a blank
    m_advice = JoinAdvice(MayBeAnother(text, separators) ? AdviceOnSeparator(separators) : std::wstring{},
                          others.empty() ? std::wstring{} : AdviceOnMissingKeys(others));
}

bool MissingKeys::MayBeAnother(const std::wstring& text, const NumberSeparators& separators) const {
    const wchar_t separator = separators.decimal.front();
    bool isComma = false;
    std::wstring typed;
    std::size_t at = 0;
    for (const Key& key : m_keys) {
        if (!key.isTaken && key.pressed != L',')
            continue;
        isComma |= !key.isTaken;
        const std::size_t place = key.before.size();
        if (place < at || !text.starts_with(key.before))
            return !m_advice.empty(); // edited elsewhere, it stays as doubtful as it was
        typed += text.substr(at, place - at);
        at = place + (key.isTaken ? 1 : 0);
        if (key.isTaken || !text.substr(place).starts_with(separator)) // else it was typed for that separator
            typed += key.pressed;
    }
    if (typed.empty() && at == 0 && !isComma)
        return false;
    typed += text.substr(at);
    const PastedNumber read = NumberFromPaste(typed, separators.decimal);
    if (!isComma) // the point that stands as the separator
        return read.isToBeTold;
    return text.find(separator) == std::wstring::npos || read.number != text;
}

} // namespace QuorConversions
