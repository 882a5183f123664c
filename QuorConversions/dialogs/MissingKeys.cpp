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
    const bool replacesText = box.SelLength() == box.Text().size();
    if (replacesText && !m_aheadFrom)
        m_aheadFrom = m_keys.size();
    if (taken != 0)
        DropReplaced(replacesText);
    else if (!replacesText)
        m_aheadFrom.reset();
    constexpr std::size_t most = 100; // of a key that is held down
    if (pressed != taken && m_keys.size() < most)
        m_keys.push_back({pressed, KindOf(pressed, taken), taken != 0, box.Text().substr(0, box.SelStart())});
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

void MissingKeys::OnPaste(const std::wstring& text, bool replacesText, const NumberSeparators& separators) {
    if (replacesText && !m_aheadFrom)
        return Clear();
    DropReplaced(replacesText);
    Judge(text, separators);
}

void MissingKeys::OnFormat() {
    m_separatorWas = m_separator;
    for (Key& key : m_keys)
        if (key.kind == Kind::Group && m_groups)
            key.kind = Kind::Other;
    std::erase_if(m_keys, [](const Key& key) { return key.kind != Kind::Other; });
    m_groups = false;
}

MissingKeys::Kind MissingKeys::KindOf(wchar_t pressed, wchar_t taken) {
    if (taken != 0 || pressed == L',')
        return Kind::Separator;
    return Groups(pressed) ? Kind::Group : Kind::Other;
}

void MissingKeys::DropReplaced(bool replacesText) {
    if (replacesText && m_aheadFrom) {
        const auto count = static_cast<std::ptrdiff_t>(std::min(*m_aheadFrom, m_keys.size()));
        MissingKeys ahead;
        ahead.m_keys.assign(m_keys.begin() + count, m_keys.end());
        *this = std::move(ahead);
    }
    m_aheadFrom.reset();
}

void MissingKeys::Judge(const std::wstring& text, const NumberSeparators& separators) {
    m_separator = m_separatorWas || SeparatorIsDoubtful(text, separators);
    m_groups = GroupsAreDoubtful(text, separators);
    std::wstring missing;
    for (const Key& key : m_keys)
        if (key.kind == Kind::Other || (key.kind == Kind::Group && m_groups))
            missing += key.pressed == L' ' ? L'\u2423' : key.pressed; // the sign of a blank
    m_advice = JoinAdvice(m_separator ? AdviceOnSeparator(separators) : std::wstring{},
                          missing.empty() ? std::wstring{} : AdviceOnMissingKeys(missing));
}

bool MissingKeys::Has(Kind kind) const {
    return std::any_of(m_keys.begin(), m_keys.end(), [&](const Key& key) { return key.kind == kind; });
}

std::optional<std::wstring> MissingKeys::WithKeys(Kind kind, const std::wstring& text,
                                                  wchar_t separator) const {
    std::wstring typed;
    std::size_t at = 0;
    for (const Key& key : m_keys) {
        if (key.kind != kind)
            continue;
        const std::size_t place = key.before.size();
        if (place < at || !text.starts_with(key.before))
            return std::nullopt;
        typed += text.substr(at, place - at);
        at = place + (key.isTaken ? 1 : 0);
        const bool isMended =
            key.pressed == L',' && !key.isTaken && text.substr(place).starts_with(separator);
        if (!isMended)
            typed += key.pressed;
    }
    return typed + text.substr(at);
}

bool MissingKeys::SeparatorIsDoubtful(const std::wstring& text, const NumberSeparators& separators) const {
    if (!Has(Kind::Separator))
        return false;
    const auto typed = WithKeys(Kind::Separator, text, separators.decimal.front());
    if (!typed)
        return m_separator; // edited elsewhere, it stays as doubtful as it was
    const PastedNumber read = NumberFromPaste(*typed, separators.decimal);
    if (std::all_of(m_keys.begin(), m_keys.end(),
                    [](const Key& key) { return key.isTaken || key.kind != Kind::Separator; }))
        return read.isToBeTold; // the point that stands as the separator
    return text.find(separators.decimal.front()) == std::wstring::npos || read.number != text;
}

bool MissingKeys::GroupsAreDoubtful(const std::wstring& text, const NumberSeparators& separators) const {
    if (!Has(Kind::Group))
        return false;
    const auto typed = WithKeys(Kind::Group, text, separators.decimal.front());
    return typed ? *typed != text && NumberFromPaste(*typed, separators.decimal).number != text : m_groups;
}

} // namespace QuorConversions
