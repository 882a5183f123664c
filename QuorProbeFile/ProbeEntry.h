#pragma once

#include "QuorConversions/core/EQuorConversionType.h"

#include <cstddef>
#include <optional>
#include <string>

namespace QuorProbeFile {

/// A probe of a file.
struct ProbeEntry {
    /// The section of its record, which a host has chosen, or that of a stand-alone settings file.
    std::wstring section;
    std::size_t line = 0; ///< of the section's header
    /// Its conversion type; nothing where the record says none that could be read. It may be a code that is
    /// no conversion type.
    std::optional<QuorConversions::EQuorConversionType> type = {};
    bool standAlone = false; ///< the section holds the settings themselves

    friend bool operator==(const ProbeEntry&, const ProbeEntry&) = default;
};

} // namespace QuorProbeFile
