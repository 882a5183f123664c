#pragma once

#include <string_view>

namespace QuorConversions {

/// Whether a name that stands in front of a number ("a4", "R(TPW)", "R(0 °C)", "Coefficient A") is that of a
/// box whose label says `label` ("A[4]", "RTPW", "R0", "A"). Case, brackets and the unit behind a name do not
/// count; a Greek letter is its English name.
[[nodiscard]] bool IsNameOf(std::wstring_view label, std::wstring_view name);

} // namespace QuorConversions
