#pragma once

#include "QuorRegistryII/Registry.h"

#include <QString>

#include <functional>
#include <memory>

namespace ProbeSetup {

/// What the window remembers from one run to the next: texts under names, in a registry. Nothing that it
/// cannot read or write keeps anybody from working.
class WindowSettings {
public:
    /// `registry` may be null: nothing is remembered then. `fail` is told why a value cannot be written.
    WindowSettings(std::shared_ptr<QuorRegistryII::Registry> registry,
                   std::function<void(const QString&)> fail);

    /// Empty for a name that has no value, or none that can be read.
    [[nodiscard]] QString Read(const wchar_t* name) const;
    void Write(const wchar_t* name, const QString& value);

private:
    std::shared_ptr<QuorRegistryII::Registry> m_registry;
    std::function<void(const QString&)> m_fail;
};

} // namespace ProbeSetup
