#pragma once

#include "QuorConversions/controls/Dialog.h"
#include "QuorConversions/core/ValueFormatter.h"
#include "QuorConversions/platform/Platform.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace QuorConversions {

// Numbers that a person types. The key filters are no validators: they let pass what can stand in a number,
// anywhere and as often as it is typed; the text is judged as a whole when a dialog gathers its values.

/// The separator that GetDecimalSeparator gives; empty until it has asked a platform.
[[nodiscard]] std::wstring& ProcessDecimalSeparator();

/// The user's decimal separator, one character. The first call in the process asks `platform`; nobody asks
/// again, and a platform that gives none, or raises, has ".".
[[nodiscard]] const std::wstring& GetDecimalSeparator(Platform& platform);

/// The separators for values that are shown: the user's decimal one, and "," for groups, or "." where "," is
/// taken.
[[nodiscard]] NumberSeparators UserSeparators(Platform& platform);

/// Swallows a key that cannot stand in a number without exponent, by setting it to 0. Digits, signs,
/// `separator`, and backspace, Enter, copy, paste, cut and undo pass; a point becomes the separator.
void FilterNumericKey(std::int16_t& keyAscii, std::wstring_view separator);
/// The same for a number with exponent: "e" and "E" pass, too.
void FilterNumericKeyExp(std::int16_t& keyAscii, std::wstring_view separator);

/// `text` with a point for every `separator`, as the parsing of numbers expects it.
[[nodiscard]] std::wstring ToPointDecimal(std::wstring text, std::wstring_view separator);

// The same keys and boxes, in a dialog.

/// The Enter key moves the focus to the next control, as Tab does, and is swallowed; before that it enables
/// `button` when there is one and `enableButton` says so. Other keys pass.
void EnterToTab(std::int16_t& keyAscii, Dialog& dialog, PushButton* button, bool enableButton);

/// Selects the whole text of the control that has the focus; nothing happens when it has none.
void SelectAllText(Dialog& dialog);

/// Selects the first item whose data is `value`, which raises Click; without one the selection stays.
void SelectItemByData(DropDownList& list, std::int32_t value);

} // namespace QuorConversions
