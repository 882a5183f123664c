#pragma once

#include "QuorConversions/controls/Controls.h"
#include "QuorConversions/core/ValueFormatter.h"

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
    /// The box has been left: what is typed next replaces the text.
    void OnLeave() { m_isAheadOfText = false; }

    /// What a person is told of them; empty where they make no difference: blanks and apostrophes behind a
    /// digit, and commas of thousands in front of the decimal separator.
    [[nodiscard]] const std::wstring& Advice() const { return m_advice; }

private:
    struct Key {
        wchar_t pressed;
        bool isTaken;        ///< as the decimal separator
        std::wstring before; ///< the text in front of it
    };

    void Clear() { *this = {}; }
    void Judge(const std::wstring& text, const NumberSeparators& separators);
    /// Whether the number that was typed with points and commas is another one than the text, or can be read
    /// as another one.
    [[nodiscard]] bool MayBeAnother(const std::wstring& text, const NumberSeparators& separators) const;

    std::vector<Key> m_keys;
    bool m_isAheadOfText = false; ///< the keys were pressed before the first character of the text to come
    std::wstring m_advice;
};

} // namespace QuorConversions
