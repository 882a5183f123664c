#pragma once

#include "QuorProbeFile/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace QuorProbeFile {

/// A value of a record, with the kind that the library gave it.
using Value = std::variant<std::wstring, std::int16_t, double, bool>;

/// How a value stands in a file, but text as it is.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring ToText(const Value& value);
/// `text` as a value of the kind of `kind`, exactly; nothing when it is not wholly one.
[[nodiscard]] QUORPROBEFILE_EXPORT std::optional<Value> ParseAs(const Value& kind, const std::wstring& text);
/// What a text that ParseAs refuses should have been: "is not a number", ...
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring WhatIsWrong(const Value& kind, const std::wstring& text);
/// Bit for bit for numbers, so that -0.0 is not 0.0, but NaN is NaN.
[[nodiscard]] QUORPROBEFILE_EXPORT bool SameValue(const Value& a, const Value& b);

} // namespace QuorProbeFile
