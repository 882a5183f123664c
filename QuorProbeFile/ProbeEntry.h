#pragma once

#include "QuorConversions/core/EQuorConversionType.h"

#include <cstddef>
#include <optional>
#include <string>

namespace QuorProbeFile {

/// A probe of a file.
struct ProbeEntry {
    /// The section of its record, named by the host, or that of a stand-alone settings file.
    std::wstring section;
    std::size_t line = 0; ///< of the section's header, from 1
    /// Its conversion type; nothing if the record has none, or one that cannot be read. It may be a code that
    /// is not a conversion type.
    std::optional<QuorConversions::EQuorConversionType> type = {};
    bool standAlone = false; ///< whether the section itself has the settings

    friend bool operator==(const ProbeEntry&, const ProbeEntry&) = default;
};

} // namespace QuorProbeFile
