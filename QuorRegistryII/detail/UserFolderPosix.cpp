#include "QuorRegistryII/detail/UserFolder.h"

#include "QuorIniFile/Utf8.h"

#include <cstdlib>

namespace QuorRegistryII {
namespace {

/// The absolute path that an environment variable holds, or nothing.
std::optional<std::wstring> PathFrom(const char* variable) {
    const char* const path =
        std::getenv(variable); // NOLINT(concurrency-mt-unsafe): the library starts no threads
    return path != nullptr && *path == '/' ? QuorIniFile::FromUtf8(path) : std::nullopt;
}

} // namespace

std::optional<std::wstring> UserFolder() {
    if (auto folder = PathFrom("XDG_CONFIG_HOME"))
        return folder;
    if (const auto home = PathFrom("HOME"))
        return *home + L"/.config";
    return std::nullopt;
}

bool IsFileName(std::wstring_view name) {
    return !name.empty() && name != L"." && name != L".." &&
           name.find_first_of(std::wstring_view(L"/\0", 2)) == std::wstring_view::npos;
}

} // namespace QuorRegistryII
