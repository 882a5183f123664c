#pragma once

#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/RecordValue.h"

#include <optional>
#include <string_view>

namespace QuorProbeFile {

/// Whether the value of `key` means another thing, or nothing, once `deciding` has become `after`, which was
/// `before`: "UsePolynomial" of Callendar-Van Dusen makes "Coefficients1" ALPHA or A, and beyond
/// "NumCoefficients" there are no coefficients. Of two changes of one record that is true of, one side may
/// not have made the one and another side the other. Both are keys of one type of conversion, by their paths
/// as RecordImage has them; a value that is missing is none.
[[nodiscard]] QUORPROBEFILE_EXPORT bool ChangesMeaning(std::wstring_view deciding,
                                                       const std::optional<Value>& before,
                                                       const std::optional<Value>& after,
                                                       std::wstring_view key);

} // namespace QuorProbeFile
