#pragma once

#include "QuorRegistryII/Export.h"

#include <string>
#include <string_view>

namespace QuorRegistryII {

/// Where a host keeps what belongs to the user rather than to a probe: named values in named sections.
/// The conversions hold and pass it on; the dialogs keep their placement in it.
class QUORREGISTRYII_EXPORT Registry {
public:
    Registry() = default;
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry();

    /// Found: `value` receives what was written; returns true.
    /// Not found: `value` keeps what it held; returns false.
    [[nodiscard]] virtual bool ReadValue(std::wstring_view section, std::wstring_view name,
                                         std::wstring& value) = 0;
    /// Keeps `value` for later runs. Raises QuorError when it cannot be kept.
    virtual void WriteValue(std::wstring_view section, std::wstring_view name, std::wstring_view value) = 0;
};

} // namespace QuorRegistryII
