#pragma once

#include "QuorConversions/core/NumberFromPaste.h"
#include "QuorConversions/core/ValueFormatter.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace QuorConversions {

// What a person is told of a number in a box before it is stored. Empty text where nothing is to be told.

/// Of a text in a box. `format` is the value format that the text gets when the box is left; empty for none.
[[nodiscard]] std::wstring AdviceOnText(const std::wstring& text, std::wstring_view format,
                                        const NumberSeparators& separators);
/// Of `text` as a format shows `value`, which nobody has changed.
[[nodiscard]] std::wstring AdviceOnShownValue(double value, const std::wstring& text,
                                              const NumberSeparators& separators);
/// Of a key that was swallowed, though it is a decimal separator in other countries.
[[nodiscard]] std::wstring AdviceOnSeparator(const NumberSeparators& separators);
/// Of keys that cannot be typed into a number.
[[nodiscard]] std::wstring AdviceOnMissingKeys(std::wstring_view keys);
/// Of a text that was not pasted.
[[nodiscard]] std::wstring AdviceOnRefusedPaste(std::wstring_view text, PasteRefusal refusal);
/// Of cells that were not pasted.
[[nodiscard]] std::wstring AdviceOnNoRoom(std::size_t cells);
/// Of cells of which one is empty, at that place, counted from 1.
[[nodiscard]] std::wstring AdviceOnEmptyCell(std::size_t line, std::size_t column);
/// Of a number that was read from a text with another reading.
[[nodiscard]] std::wstring AdviceOnPasted(const std::wstring& number);
/// Of a number that the text says to be of something else than the box: "B = -5.775E-7", "25.5 mV".
[[nodiscard]] std::wstring AdviceOnPastedFrom(std::wstring_view text);
/// Both; either may be empty.
[[nodiscard]] std::wstring JoinAdvice(const std::wstring& first, const std::wstring& second);

} // namespace QuorConversions
