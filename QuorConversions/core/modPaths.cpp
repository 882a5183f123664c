#include "QuorConversions/core/modPaths.h"

#include <filesystem>

namespace QuorConversions {
namespace {

/// How many characters the folder takes, separator included.
std::size_t FolderLength(std::wstring_view path) noexcept {
    auto separator = path.rfind(L'\\');
    if (separator == std::wstring_view::npos && std::filesystem::path::preferred_separator == '/')
        separator = path.rfind(L'/');
    return separator == std::wstring_view::npos ? 0 : separator + 1;
}

/// A path that is too long to copy has no parts: the callers never see an error of these helpers.
std::wstring Copy(std::wstring_view part) noexcept {
    try {
        return std::wstring(part);
    } catch (...) {
        return {};
    }
}

} // namespace

std::wstring GetFolderPart(std::wstring_view path) noexcept {
    return Copy(path.substr(0, FolderLength(path)));
}

std::wstring GetFileNamePart(std::wstring_view path) noexcept {
    return Copy(path.substr(FolderLength(path)));
}

std::wstring GetExtensionPart(std::wstring_view path) noexcept {
    const auto fileName = path.substr(FolderLength(path));
    const auto point = fileName.rfind(L'.');
    return point == std::wstring_view::npos ? std::wstring{} : Copy(fileName.substr(point + 1));
}

} // namespace QuorConversions
