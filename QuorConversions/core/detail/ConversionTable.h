#pragma once

// Not for hosts: settings objects come into being through the facade.

#include "QuorConversions/core/EQuorConversionType.h"
#include "QuorConversions/core/SettingsObject.h"

#include <cstdint>
#include <memory>

namespace QuorConversions {

/// What belongs to one conversion type.
struct ConversionTypeRow {
    EQuorConversionType code;
    /// The string-table entry of the name, or 0 where a new settings object names the type.
    std::int32_t name;
    const wchar_t* enumerator;
    /// Makes an object of the type's class; null for a type without settings.
    std::shared_ptr<SettingsObject> (*create)(const std::shared_ptr<Platform>& platform);
    /// What the facade sets up in its own object, through the setters; null for nothing.
    void (*setUp)(SettingsObject& settings);
};

/// The row of a code; null for a code that is no conversion type. Defined with the table, above the classes,
/// so that the facade knows them by their contract alone.
[[nodiscard]] const ConversionTypeRow* FindConversionType(std::int32_t code);

} // namespace QuorConversions
