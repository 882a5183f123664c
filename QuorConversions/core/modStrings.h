#pragma once

#include "QuorConversions/Export.h"
#include "QuorConversions/core/modResourceConstants.h"
#include "QuorConversions/resources/StringTable.h"

#include <string>
#include <string_view>

namespace QuorConversions {

/// The text of a string-table entry with each "~" replaced, from left to right, by the next of `values`. The
/// values are separated by "|"; blanks at both ends are removed. Surplus values are ignored; a "~" for which
/// no value is left is removed. A "|" in the template has no meaning.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring ReplaceTildes(std::wstring_view textTemplate,
                                                                std::wstring_view values);

} // namespace QuorConversions
