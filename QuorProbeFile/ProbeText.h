#pragma once

#include "QuorProbeFile/Export.h"

#include <cstdint>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// The texts of ProbeTexts.def, for programs that word them in another language. The numbers keep their
/// meaning for ever; new ones are only added.
enum EProbeText : std::int32_t {
#define QUOR_PROBE_TEXT(number, name, text) PROBE_TEXT_##name = (number),
#include "QuorProbeFile/ProbeTexts.def"
};

/// One of these texts, with what stands in the places of its "~": numbers, names, paths.
struct ProbePhrase {
    EProbeText text;                       ///< which text
    std::vector<std::wstring> values = {}; ///< one for each "~", from left to right
    friend bool operator==(const ProbePhrase&, const ProbePhrase&) = default;
};

/// The text as it stands in ProbeTexts.def, in English; empty for a number that is none.
[[nodiscard]] QUORPROBEFILE_EXPORT const char* EnglishText(EProbeText text);
/// Phrases in English, one right after the other.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring Describe(const std::vector<ProbePhrase>& phrases);

} // namespace QuorProbeFile
