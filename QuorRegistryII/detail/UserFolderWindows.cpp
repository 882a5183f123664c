#include "QuorRegistryII/detail/UserFolder.h"

#include <algorithm>

#include <windows.h>

namespace QuorRegistryII {

std::optional<std::wstring> UserFolder() {
    const wchar_t* const variable = L"APPDATA";
    std::wstring folder(::GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    folder.resize(::GetEnvironmentVariableW(variable, folder.data(), static_cast<DWORD>(folder.size())));
    const auto isSeparator = [](wchar_t c) { return c == L'\\' || c == L'/'; };
    const bool isOfDrive = folder.size() > 2 && folder[1] == L':' && isSeparator(folder[2]);
    const bool isOfNetwork = folder.size() > 2 && isSeparator(folder[0]) && isSeparator(folder[1]);
    return isOfDrive || isOfNetwork ? std::optional(folder) : std::nullopt;
}

bool IsFileName(std::wstring_view name) {
    // The system drops points and blanks at the end of a name: "." and ".." are none either.
    const auto isAllowed = [](wchar_t c) {
        return c >= L' ' && std::wstring_view(L"\\/:*?\"<>|").find(c) == std::wstring_view::npos;
    };
    return !name.empty() && name.back() != L'.' && name.back() != L' ' &&
           std::all_of(name.begin(), name.end(), isAllowed);
}

} // namespace QuorRegistryII
