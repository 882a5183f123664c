#include "QuorIniFile/detail/IniError.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace QuorIniFile {
namespace {

constexpr std::pair<EErrorNumber, std::wstring_view> texts[] = {
    {ERR_BAD_FILE_NAME, L"Bad file name or number"},
    {ERR_FILE_NOT_FOUND, L"File not found"},
    {ERR_DEVICE_IO, L"Device I/O error"},
    {ERR_DISK_FULL, L"Disk full"},
    {ERR_PERMISSION_DENIED, L"Permission denied"},
    {ERR_PATH_FILE_ACCESS, L"Path/File access error"},
    {ERR_PATH_NOT_FOUND, L"Path not found"},
};

} // namespace

QuorError FileError(EErrorNumber number, std::wstring_view fileName, std::wstring_view cause) {
    const auto* const text = std::find_if(std::begin(texts), std::end(texts),
                                          [number](const auto& entry) { return entry.first == number; });
    std::wstring description(text != std::end(texts) ? text->second : L"Error");
    description.append(L": ").append(fileName);
    if (!cause.empty())
        description.append(L": ").append(cause);
    return {number, L"QuorIniFile", std::move(description)};
}

} // namespace QuorIniFile
