#pragma once

#include "QuorRegistryII/Export.h"

#include <string>
#include <string_view>

namespace QuorRegistryII {

/// Where a host stores what belongs to the user rather than to a probe: named values in named sections.
/// The conversions hold it and pass it on; the dialogs store their positions in it.
class QUORREGISTRYII_EXPORT Registry {
public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry();

    /// Reads the value `name` of `section`. Found: `value` receives what was written; returns True.
    /// Not found: `value` is unchanged; returns False. Raises QuorError if it cannot be read.
    [[nodiscard]] virtual bool ReadValue(std::wstring_view section, std::wstring_view name,
                                         std::wstring& value) = 0;
    /// Stores `value` as `name` in `section` for later runs. Raises QuorError if it cannot be stored.
    virtual void WriteValue(std::wstring_view section, std::wstring_view name, std::wstring_view value) = 0;
};

} // namespace QuorRegistryII
