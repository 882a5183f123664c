#include "QuorRegistryII/FileRegistry.h"

#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "QuorRegistryII/detail/UserFolder.h"

#include <cstdint>
#include <filesystem>
#include <utility>

using QuorIniFile::QuorError;

namespace QuorRegistryII {
namespace {

/// The error of that number about the file of an application.
QuorError FileError(std::int32_t number, std::wstring_view fileName, QuorIniFile::EIniCause code) {
    QuorIniFile::IniCause cause{code, std::wstring(fileName), {}};
    std::wstring description = QuorIniFile::Describe(number, cause);
    return {number, L"QuorRegistryII", std::move(description), std::move(cause)};
}

constexpr auto separator = static_cast<wchar_t>(std::filesystem::path::preferred_separator);

std::wstring ConfigurationFolder(const std::wstring& fileName) {
    if (auto folder = UserFolder())
        return *std::move(folder);
    throw FileError(QuorIniFile::ERR_PATH_NOT_FOUND, fileName, QuorIniFile::INI_CAUSE_NO_HOME);
}

} // namespace

FileRegistry::FileRegistry(std::wstring_view application, std::wstring_view folder) {
    if (!IsFileName(application))
        throw FileError(QuorIniFile::ERR_BAD_FILE_NAME, application, QuorIniFile::INI_CAUSE_NONE);
    const std::wstring fileName = std::wstring(application).append(L".ini");
    m_fileName = folder.empty() ? ConfigurationFolder(fileName).append(1, separator).append(application)
                                : std::wstring(folder);
    m_fileName.append(1, separator).append(fileName);
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
