#pragma once

#include "QuorRegistryII/Export.h"
#include "QuorRegistryII/Registry.h"

#include <string>
#include <string_view>

namespace QuorRegistryII {

/// The built-in registry: an INI file of the application, by default in the user's configuration folder.
/// Each call reads the current file, so that all registries of an application agree.
class QUORREGISTRYII_EXPORT FileRegistry final : public Registry {
public:
    /// Keeps the values in the file `application`.ini in `folder`. Without a folder: in the folder
    /// `application` below $XDG_CONFIG_HOME (if that is an absolute path), otherwise below $HOME/.config;
    /// on Windows below %APPDATA%.
    /// Raises 52 for a name that no file can have, and 76 if the user has no such folder.
    explicit FileRegistry(std::wstring_view application, std::wstring_view folder = {});

    /// The path of the file, which need not exist yet.
    [[nodiscard]] const std::wstring& FileName() const { return m_fileName; }

    /// As Registry::ReadValue; False also if there is no file yet. Raises QuorError if the file cannot be
    /// read.
    [[nodiscard]] bool ReadValue(std::wstring_view section, std::wstring_view name,
                                 std::wstring& value) override;
    /// As Registry::WriteValue; durable when it returns. Creates the file and the missing folders, the latter
    /// accessible to the user only.
    void WriteValue(std::wstring_view section, std::wstring_view name, std::wstring_view value) override;

private:
    std::wstring m_fileName;
};

} // namespace QuorRegistryII
