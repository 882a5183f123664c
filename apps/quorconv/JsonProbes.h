#pragma once

#include "apps/quorconv/Json.h"
#include "apps/quorconv/Records.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorconv {

/// Where a text or a number stands that can be another one without any other effect.
struct PlaceInObject {
    std::size_t offset = 0;
    std::size_t length = 0;
    std::size_t value = 0; ///< the number of the value of the probe; or that of the section, which is none
};

/// Reads the probes of a JSON text, objects as ProbeToJson writes them. One that differs from one before it
/// in its section and its numbers alone is read by that one, many times as fast.
class JsonProbes {
public:
    /// The text must outlive this.
    explicit JsonProbes(std::string_view text) : m_text(text), m_objects(text) {}
    /// Moves to the next object. False after the last one. Raises JsonError for a text that is no JSON.
    [[nodiscard]] bool Next();
    /// Where it starts.
    [[nodiscard]] std::size_t Offset() const { return m_offset; }
    /// What it says; valid until Next is called. Raises JsonError for what no such object has: an unknown
    /// member or key, a coefficient under the name of another one, a code under the name of another one, a
    /// value of another kind.
    [[nodiscard]] const GivenProbe& Read();

private:
    /// An object that was read, with what stands around its section and its numbers.
    struct Pattern {
        GivenProbe probe;
        std::vector<PlaceInObject> places;
        std::vector<std::string> common; // before the first place, ..., behind the last one
    };
    [[nodiscard]] static std::size_t Match(Pattern& pattern, std::string_view text);
    void Learn(const GivenProbe& probe, std::vector<PlaceInObject> places);

    std::string_view m_text;
    JsonObjects m_objects;
    std::size_t m_offset = 0;
    std::optional<JsonValue> m_object;                // that the parser has read; nothing when a pattern has
    GivenProbe m_probe;                               // of that object
    std::vector<std::unique_ptr<Pattern>> m_patterns; // that of the last object comes first
};

} // namespace quorconv
