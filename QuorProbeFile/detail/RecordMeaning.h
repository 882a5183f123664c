#pragma once

#include "QuorProbeFile/RecordValue.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Which keys of a section say what others beside them mean: "UsePolynomial" of Callendar-Van Dusen makes
// "Coefficients1" ALPHA or A, and beyond "NumCoefficients" there are none.
namespace QuorProbeFile {

/// Whether there are keys that `key` gives their meaning.
[[nodiscard]] bool GivesMeaning(std::wstring_view key);

/// Whether `key` means one thing where `deciding` has the value `a`, and another one, or nothing, where it
/// has `b`, which is not the same. A count that is missing or cannot be read is none.
[[nodiscard]] bool HasOtherMeaning(std::wstring_view key, std::wstring_view deciding,
                                   const std::optional<Value>& a, const std::optional<Value>& b);

/// The keys that a record has with the value `before` of the count `key`, and not with `now`. None when `key`
/// is no count.
[[nodiscard]] std::vector<std::wstring> KeysBeyond(std::wstring_view key, const Value& now,
                                                   const std::optional<Value>& before);

} // namespace QuorProbeFile
