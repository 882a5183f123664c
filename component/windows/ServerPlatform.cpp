#include "component/windows/ServerPlatform.h"

#include <algorithm>
#include <cstdint>

#include <ole2.h>

#include <commdlg.h>

namespace QuorConversions::Automation {
namespace {

constexpr std::size_t longestPath = 32768; // characters

/// "description|pattern" as the system has it: each with a zero behind it, and one more at the end.
std::wstring SystemFilter(std::wstring filter) {
    std::replace(filter.begin(), filter.end(), L'|', L'\0');
    filter.push_back(L'\0');
    return filter;
}

} // namespace

void ServerPlatform::ShowMessage(const MessageRequest& request) {
    const UINT icon = request.icon == ICON_CRITICAL ? MB_ICONSTOP : MB_ICONINFORMATION;
    const int pressed = MessageBoxW(GetActiveWindow(), request.text.c_str(), request.title.c_str(),
                                    MB_OK | MB_TASKMODAL | icon);
    if (pressed <= 0) // no box could be shown
        HeadlessPlatform::ShowMessage(request);
}

std::optional<std::wstring> ServerPlatform::AskForFile(const FileRequest& request) {
    std::wstring path = request.fileName;
    path.resize(longestPath);
    const std::wstring filter = SystemFilter(request.filter);
    OPENFILENAMEW asked{};
    asked.lStructSize = sizeof(asked);
    asked.hwndOwner = reinterpret_cast<HWND>(static_cast<std::intptr_t>(request.owner));
    asked.lpstrFilter = filter.c_str();
    asked.lpstrFile = path.data();
    asked.nMaxFile = static_cast<DWORD>(path.size());
    asked.lpstrInitialDir = request.folder.empty() ? nullptr : request.folder.c_str();
    asked.lpstrTitle = request.title.c_str();
    asked.lpstrDefExt = request.defaultExtension.c_str();
    asked.Flags = request.flags;
    const BOOL isChosen =
        request.kind == FileDialogKind::Open ? GetOpenFileNameW(&asked) : GetSaveFileNameW(&asked);
    if (!isChosen)
        return std::nullopt;
    return std::wstring(path.c_str());
}

} // namespace QuorConversions::Automation
