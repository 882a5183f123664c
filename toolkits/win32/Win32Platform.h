#pragma once

#include "QuorConversions/platform/HeadlessPlatform.h"

#include <cstdint>
#include <optional>
#include <string>

namespace QuorConversions::Win32Toolkit {

/// The platform of a host with windows of the system: dialogs with its controls in its font and at its scale,
/// message boxes, file dialogs, the busy pointer, and the decimal separator of the user's regional settings.
/// All of it is used in the thread of the host's windows. Where no window can be shown, in a session without
/// a screen, it is the headless one.
///
/// A help topic is a page of its own, which opens in the browser: the file "10100.html" in the folder of the
/// help file, or in the help file itself when that is a folder.
class Win32Platform : public HeadlessPlatform {
public:
    /// `helpFolder` has the help pages that are shown while no help file is set.
    explicit Win32Platform(std::wstring helpFolder = {}) : m_helpFolder(std::move(helpFolder)) {}
    ~Win32Platform() override;

    void RunDialog(Dialog& dialog, DialogInput& input) override;
    void ShowMessage(const MessageRequest& request) override;
    /// The owner of the file dialog is a window handle of the system.
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
    /// Command 1 opens the page for `data` and returns 1. If there is no such page, or nothing that opens it,
    /// a message says so and the result is 0, as for every other command.
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    [[nodiscard]] std::wstring DecimalSeparator() override;
    [[nodiscard]] EMousePointer MousePointer() const override { return m_pointer; }
    void SetMousePointer(EMousePointer shape) override;

protected:
    /// Opens a page in the program that the user has for such pages. Raises QuorError if there is none.
    virtual void OpenPage(const std::wstring& path);

private:
    std::wstring m_helpFolder;
    EMousePointer m_pointer = POINTER_DEFAULT;
    void* m_pointerBefore = nullptr; // the shape of the host, an HCURSOR
};

} // namespace QuorConversions::Win32Toolkit
