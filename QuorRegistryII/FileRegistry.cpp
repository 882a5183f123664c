#include "QuorRegistryII/FileRegistry.h"

#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <utility>

using QuorIniFile::QuorError;

namespace QuorRegistryII {
namespace {

[[noreturn]] void Raise(std::int32_t number, std::wstring description) {
    throw QuorError(number, L"QuorRegistryII", std::move(description));
}

/// The absolute path that an environment variable holds, or nothing.
std::optional<std::wstring> PathFrom(const char* variable) {
    const char* const path =
        std::getenv(variable); // NOLINT(concurrency-mt-unsafe): the library starts no threads
    return path != nullptr && *path == '/' ? QuorIniFile::FromUtf8(path) : std::nullopt;
}

std::wstring ConfigurationFolder() {
    if (auto folder = PathFrom("XDG_CONFIG_HOME"))
        return *std::move(folder);
    if (const auto home = PathFrom("HOME"))
        return *home + L"/.config";
    Raise(QuorIniFile::ERR_PATH_NOT_FOUND,
          L"Path not found: the user's configuration folder, because HOME is not set");
}

} // namespace

FileRegistry::FileRegistry(std::wstring_view application, std::wstring_view folder) {
    if (application.empty() || application == L"." || application == L".." ||
        application.find_first_of(std::wstring_view(L"/\0", 2)) != std::wstring_view::npos)
        Raise(QuorIniFile::ERR_BAD_FILE_NAME, L"Bad file name or number: " + std::wstring(application));
    m_fileName =
        folder.empty() ? ConfigurationFolder().append(L"/").append(application) : std::wstring(folder);
    m_fileName.append(L"/").append(application).append(L".ini");
}

bool FileRegistry::ReadValue(std::wstring_view section, std::wstring_view name, std::wstring& value) {
    QuorIniFile::IniStore store;
    store.SetFileName(m_fileName);
    store.SetSection(section);
    try {
        return store.ReadString(name, value);
    } catch (const QuorError& error) {
        if (error.Number() == QuorIniFile::ERR_FILE_NOT_FOUND)
            return false;
        throw;
    }
}

void FileRegistry::WriteValue(std::wstring_view section, std::wstring_view name, std::wstring_view value) {
    QuorIniFile::IniStore store;
    store.SetFileName(m_fileName);
    store.MakeFolder();
    store.SetSection(section);
    store.WriteString(name, value);
}

} // namespace QuorRegistryII
