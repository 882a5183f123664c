#pragma once

#include "apps/quorconv/Json.h"
#include "apps/quorconv/Probe.h"
#include "apps/quorconv/Records.h"

#include <string>
#include <vector>

namespace quorconv {

/// A probe as a JSON object, without a line break at its end; in one line, or indented by that many blanks.
/// docs/probe.schema.json describes it.
[[nodiscard]] std::string ToJson(const Probe& probe, bool inOneLine, int indent = 0);

/// What a JSON object says of a probe: its section, its type, and its values by the keys of its record.
struct JsonProbe {
    std::wstring section;
    std::wstring type; ///< an enumerator
    std::vector<Assignment> values;
};

/// Reads an object as ToJson writes it. Raises JsonError for what no such object has: an unknown member or
/// key, a coefficient under the name of another one, a code under the name of another one, a value of another
/// kind. `path` names the file for failures of types.
[[nodiscard]] JsonProbe ReadJsonProbe(const JsonValue& object);

/// The JSON Schema of that object, made from the reference of the records.
[[nodiscard]] std::string JsonSchema();

} // namespace quorconv
