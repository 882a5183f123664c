#pragma once

#include "QuorRegistryII/Export.h"
#include "QuorRegistryII/Registry.h"

#include <string>
#include <string_view>

namespace QuorRegistryII {

/// The built-in registry: an INI file of the application, by default in the user's configuration folder.
/// Each call looks at the file anew, so that all registries of an application agree.
class QUORREGISTRYII_EXPORT FileRegistry final : public Registry {
public:
    /// Keeps the values in `folder` in a file named after `application`, with the extension "ini". Without a
    /// folder: in the folder named after the application below $XDG_CONFIG_HOME (where that is an absolute
    /// path) or else below $HOME/.config.
    /// Raises 52 for a name that no file can have, and 76 when the user has no such folder.
    explicit FileRegistry(std::wstring_view application, std::wstring_view folder = {});

    [[nodiscard]] const std::wstring& FileName() const { return m_fileName; }

    /// False also when there is no file yet. Raises QuorError when there is one that cannot be read.
    [[nodiscard]] bool ReadValue(std::wstring_view section, std::wstring_view name,
                                 std::wstring& value) override;
    /// Durable when it returns. Creates the file and, for the user alone, the folders that are missing.
    void WriteValue(std::wstring_view section, std::wstring_view name, std::wstring_view value) override;

private:
    std::wstring m_fileName;
};

} // namespace QuorRegistryII
