#pragma once

#include "apps/quorconv/Json.h"
#include "apps/quorconv/ProbeReader.h"
#include "apps/quorconv/Records.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace quorconv {

/// Makes JSON objects of probes, without a line break at their ends; in one line, or indented by that many
/// blanks. docs/probe.schema.json describes them.
class ProbeToJson {
public:
    explicit ProbeToJson(bool inOneLine, int indent = 0) : m_inOneLine(inOneLine), m_indent(indent) {}
    /// Raises Problem for a probe whose type nobody knows. Valid until the next call.
    [[nodiscard]] const std::string& Text(const ProbeValues& probe);

private:
    /// What the objects of probes of one shape have in common, and between that their own values.
    struct Pattern {
        std::vector<std::string> common;
        std::vector<std::size_t> entries;
    };
    [[nodiscard]] Pattern PatternOf(const ProbeValues& probe) const;

    bool m_inOneLine;
    int m_indent;
    std::unordered_map<std::size_t, Pattern> m_patterns; // by their shapes
    std::string m_text;
};

/// The JSON Schema of that object, made from the reference of the records.
[[nodiscard]] std::string JsonSchema();

} // namespace quorconv
