#pragma once

#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeText.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace QuorProbeFile {

/// A value of a record, with the type that the library uses for it.
using Value = std::variant<std::wstring, std::int16_t, double, bool>;

/// The spelling of a value in a file, except that text is unchanged.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring ToText(const Value& value);
/// The value of the same type as `kind` that the whole of `text` spells; nothing if it spells none.
[[nodiscard]] QUORPROBEFILE_EXPORT std::optional<Value> ParseAs(const Value& kind, const std::wstring& text);
/// Why ParseAs refuses a text: "is not a number", ...
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring WhatIsWrong(const Value& kind, const std::wstring& text);
/// The same, for programs that word it in another language.
[[nodiscard]] QUORPROBEFILE_EXPORT ProbePhrase PhraseOfWrong(const Value& kind, const std::wstring& text);
/// Whether two values are the same; numbers are compared bit for bit, so -0.0 is not 0.0, but NaN is NaN.
[[nodiscard]] QUORPROBEFILE_EXPORT bool SameValue(const Value& a, const Value& b);
/// The same, but -0.0 is 0.0: settings that hold one of them keep it when they are given the other.
[[nodiscard]] QUORPROBEFILE_EXPORT bool IsTaken(const Value& given, const Value& held);

} // namespace QuorProbeFile
