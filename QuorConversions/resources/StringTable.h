#pragma once

#include "QuorConversions/Export.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace QuorConversions {

/// The text of a string-table entry in another language; nothing for an entry that is not translated.
using StringTable = std::function<std::optional<std::wstring>(std::int32_t id)>;

/// Makes the library look in `table` before the built-in one, in the whole process, so that a host can
/// translate it. Texts are looked up at each use; an empty function restores the built-in texts.
QUORCONVERSIONS_EXPORT void ReplaceStringTable(StringTable table);

/// The text of the entry `id` (101 to 212; above 1000 for the store's errors); empty for an id without an
/// entry.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring TableText(std::int32_t id);

} // namespace QuorConversions
