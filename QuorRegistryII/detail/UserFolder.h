#pragma once

#include <optional>
#include <string>
#include <string_view>

// What the registry asks of the operating system.
namespace QuorRegistryII {

/// The folder in which the programs of this user keep their settings; nothing when it is not known.
[[nodiscard]] std::optional<std::wstring> UserFolder();

/// Whether a file can have that name, which is then no path.
[[nodiscard]] bool IsFileName(std::wstring_view name);

} // namespace QuorRegistryII
