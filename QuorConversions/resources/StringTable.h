#pragma once

#include "QuorConversions/Export.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace QuorConversions {

/// The text of a string-table entry in another language; nothing for an entry that it does not hold.
using StringTable = std::function<std::optional<std::wstring>(std::int32_t id)>;

/// Puts `table` in front of the built-in one, for the whole process, so that a host can translate the
/// library. Texts are looked up at each use; an empty function gives the built-in texts back.
QUORCONVERSIONS_EXPORT void ReplaceStringTable(StringTable table);

/// The text of the entry `id` (101 to 212; above 1000 for the store's errors); empty text for an id without
/// an entry.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring TableText(std::int32_t id);

} // namespace QuorConversions
