#pragma once

#include "QuorConversions/controls/Controls.h"
#include "QuorConversions/core/ValueFormatter.h"

#include <optional>
#include <string>
#include <vector>

namespace QuorConversions {

[[nodiscard]] inline bool IsAsciiDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

/// The keys that were pressed in a text box and are missing in its text, or stand there as another character:
/// the number that is left may not be the one that was meant. They are remembered until the text is replaced
/// or cleared.
class MissingKeys {
public:
    /// A printable key, before it changes the box. `taken` is the character that it types, 0 for none.
    void OnKey(const TextBox& box, wchar_t pressed, wchar_t taken, const NumberSeparators& separators);
    /// The text has been edited.
    void OnText(const std::wstring& text, const NumberSeparators& separators);
    /// A number has been pasted. `replacesText`: in the place of the whole text.
    void OnPaste(const std::wstring& text, bool replacesText, const NumberSeparators& separators);
    /// The format has changed the text, which is no longer what was typed: what is told now stays.
    void OnFormat();
    /// The box has been left: what is typed next replaces the text.
    void OnLeave() { m_aheadFrom.reset(); }

    /// What a person is told of them; empty where they make no difference: blanks and apostrophes that group
    /// digits, and commas of thousands in front of the decimal separator.
    [[nodiscard]] const std::wstring& Advice() const { return m_advice; }

private:
    enum class Kind {
        Separator, ///< a comma, or what was taken as the decimal separator
        Group,     ///< a blank or apostrophe
        Other
    };
    struct Key {
        wchar_t pressed;
        Kind kind;
        bool isTaken;        ///< as the decimal separator
        std::wstring before; ///< the text in front of it
    };

    [[nodiscard]] static Kind KindOf(wchar_t pressed, wchar_t taken);
    void Clear() { *this = {}; }
    /// Drops the keys of a text that is replaced, but for those that were pressed ahead of the new one.
    void DropReplaced(bool replacesText);
    void Judge(const std::wstring& text, const NumberSeparators& separators);
    [[nodiscard]] bool Has(Kind kind) const;
    /// The text with the keys of a kind where they were pressed; nothing where it has been edited elsewhere.
    [[nodiscard]] std::optional<std::wstring> WithKeys(Kind kind, const std::wstring& text,
                                                       wchar_t separator) const;
    /// Whether the number that was typed with points and commas is another one than the text, or can be read
    /// as another one.
    [[nodiscard]] bool SeparatorIsDoubtful(const std::wstring& text,
                                           const NumberSeparators& separators) const;
    /// Whether the number that was typed with blanks and apostrophes is another one than the text, or none.
    [[nodiscard]] bool GroupsAreDoubtful(const std::wstring& text, const NumberSeparators& separators) const;

    std::vector<Key> m_keys;
    std::optional<std::size_t> m_aheadFrom; ///< the first key that was pressed ahead of the text to come
    bool m_separatorWas = false;            ///< doubtful, before the format changed the text
    bool m_separator = false;               ///< it is doubtful
    bool m_groups = false;                  ///< they are doubtful
    std::wstring m_advice;
};

} // namespace QuorConversions
