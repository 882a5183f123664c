#pragma once

#include "QuorConversions/Export.h"
#include "QuorConversions/core/modResourceConstants.h"
#include "QuorConversions/resources/StringTable.h"

#include <string>
#include <string_view>

namespace QuorConversions {

/// The text of a string-table entry with each "~" filled, from left to right, by the next of `values`.
/// `values` are separated by "|" and trimmed of blanks at both ends. Surplus values are ignored; a "~" for
/// which no value is left becomes empty text. A "|" in the template means nothing.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring ReplaceTildes(std::wstring_view textTemplate,
                                                                std::wstring_view values);

} // namespace QuorConversions
