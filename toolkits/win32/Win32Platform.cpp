#include "toolkits/win32/Win32Platform.h"

#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/resources/StringIds.h"
#include "QuorConversions/resources/StringTable.h"
#include "QuorIniFile/QuorError.h"
#include "toolkits/win32/Win32Dialog.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include <cderr.h>
#include <commdlg.h>
#include <shellapi.h>

namespace QuorConversions::Win32Toolkit {
namespace {

constexpr std::size_t longestPath = 32768; // characters

/// "description|pattern" as the system has it: each with a zero after it, and one more at the end.
std::wstring SystemFilter(std::wstring filter) {
    std::replace(filter.begin(), filter.end(), L'|', L'\0');
    filter.push_back(L'\0');
    return filter;
}

/// Whether anybody sees the windows of this process: a service has a session without a screen, where windows
/// are created, too, and wait for an answer for ever.
[[nodiscard]] bool HasScreen() {
    USEROBJECTFLAGS flags{};
    return GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof(flags), nullptr) ==
               FALSE ||
           (flags.dwFlags & WSF_VISIBLE) != 0;
}

/// A file dialog changes the current folder of the process, which is the host's.
class CurrentFolder {
public:
    CurrentFolder() : m_folder(longestPath, L'\0') {
        m_folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(m_folder.size()), m_folder.data()));
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { SetCurrentDirectoryW(m_folder.c_str()); }

private:
    std::wstring m_folder;
};

/// The message that is shown in this thread, and its platform: a message box passes nothing else to its
/// button Help than a number.
struct ShownMessage {
    Platform* platform;
    const MessageRequest* request;
};
thread_local const ShownMessage* shownMessage = nullptr;

void CALLBACK OnMessageHelp(HELPINFO* /*info*/) {
    try {
        if (shownMessage)
            shownMessage->platform->CallHelp(shownMessage->request->helpFile, helpCommandContext,
                                             shownMessage->request->helpContext);
    } catch (...) { // it must not pass through the code of the system; the message is still shown
    }
}

} // namespace

Win32Platform::~Win32Platform() { Win32Platform::SetMousePointer(POINTER_DEFAULT); }

void Win32Platform::RunDialog(Dialog& dialog, DialogInput& input) {
    if (!HasScreen())
        return HeadlessPlatform::RunDialog(dialog, input);
    Win32Dialog window(dialog, input, GetActiveWindow());
    window.Run();
}

void Win32Platform::ShowMessage(const MessageRequest& request) {
    if (!HasScreen())
        return HeadlessPlatform::ShowMessage(request);
    std::wstring text = request.text;
    std::replace(text.begin(), text.end(), L'\r', L'\n');
    MSGBOXPARAMSW box{};
    box.cbSize = sizeof(box);
    box.hwndOwner = GetActiveWindow();
    box.lpszText = text.c_str();
    box.lpszCaption = request.title.c_str();
    box.dwStyle = MB_OK | MB_TASKMODAL | (request.icon == ICON_CRITICAL ? MB_ICONSTOP : MB_ICONINFORMATION) |
                  (request.helpFile.empty() ? 0U : MB_HELP);
    box.dwContextHelpId = static_cast<DWORD_PTR>(request.helpContext);
    box.lpfnMsgBoxCallback = OnMessageHelp;
    const ShownMessage shown{this, &request};
    const ShownMessage* const before = std::exchange(shownMessage, &shown);
    const int pressed = MessageBoxIndirectW(&box);
    shownMessage = before;
    if (pressed <= 0) // no box could be shown
        HeadlessPlatform::ShowMessage(request);
}

std::optional<std::wstring> Win32Platform::AskForFile(const FileRequest& request) {
    if (!HasScreen())
        return HeadlessPlatform::AskForFile(request);
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
    const CurrentFolder folder;
    const auto ask = [&] {
        return (request.kind == FileDialogKind::Open ? GetOpenFileNameW(&asked) : GetSaveFileNameW(&asked)) !=
               FALSE;
    };
    bool isChosen = ask();
    if (!isChosen && CommDlgExtendedError() == FNERR_INVALIDFILENAME) { // the name that it should begin with
        path.assign(longestPath, L'\0');
        asked.lpstrFile = path.data();
        isChosen = ask();
    }
    if (isChosen)
        return std::wstring(path.c_str());
    const DWORD error = CommDlgExtendedError();
    if (error == CDERR_DIALOGFAILURE) // no dialog could be shown
        return HeadlessPlatform::AskForFile(request);
    if (error != 0)
        throw QuorIniFile::QuorError(QuorIniFile::ERR_PATH_FILE_ACCESS, L"Win32Toolkit",
                                     L"The file dialog of Windows has failed with error " +
                                         std::to_wstring(error));
    return std::nullopt; // cancelled
}

std::int32_t Win32Platform::CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) {
    if (command != helpCommandContext)
        return 0;
    if (!HasScreen())
        return HeadlessPlatform::CallHelp(helpFile, command, data);
    try {
        namespace fs = std::filesystem;
        fs::path folder = helpFile.empty() ? m_helpFolder : helpFile;
        if (std::error_code none; !helpFile.empty() && !fs::is_directory(folder, none))
            folder = folder.parent_path();
        const fs::path page = folder / (std::to_wstring(data) + L".html");
        if (std::error_code none; !fs::exists(page, none))
            throw QuorIniFile::QuorError(QuorIniFile::ERR_FILE_NOT_FOUND, L"Win32Toolkit",
                                         L"There is no help page " + page.wstring());
        OpenPage(page.wstring());
        return 1;
    } catch (...) {
        ReportError(*this, CurrentError(L"Win32Toolkit"), TableText(IDS_DISPLAYING_HELP),
                    TableText(IDS_MESSAGE_TITLE));
        return 0;
    }
}

void Win32Platform::OpenPage(const std::wstring& path) {
    const HINSTANCE result =
        ShellExecuteW(GetActiveWindow(), L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    constexpr std::intptr_t lastError = 32; // as it is documented
    if (reinterpret_cast<std::intptr_t>(result) <= lastError)
        throw QuorIniFile::QuorError(QuorIniFile::ERR_PATH_FILE_ACCESS, L"Win32Toolkit",
                                     L"No program opens " + path);
}

std::wstring Win32Platform::DecimalSeparator() {
    wchar_t separator[8] = {};
    const int size = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator, 8);
    return size > 1 ? std::wstring(separator) : HeadlessPlatform::DecimalSeparator();
}

void Win32Platform::SetMousePointer(EMousePointer shape) {
    const bool wasBusy = m_pointer == POINTER_HOURGLASS;
    const bool isBusy = shape == POINTER_HOURGLASS;
    m_pointer = shape;
    if (isBusy && !wasBusy)
        m_pointerBefore = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    if (wasBusy && !isBusy)
        SetCursor(static_cast<HCURSOR>(m_pointerBefore));
}

} // namespace QuorConversions::Win32Toolkit
