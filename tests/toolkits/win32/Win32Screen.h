#pragma once

#include "toolkits/scripted/Screen.h"
#include "toolkits/win32/Win32Platform.h"

#include <functional>
#include <string>
#include <windows.h>

namespace Support {

/// Calls `action` in the message loop that runs when `isIt` is true for the first time.
void WhenTrue(std::function<bool()> isIt, std::function<void()> action);

/// Gives all messages that wait to their windows, and what these send meanwhile.
void HandleInput();

/// Presses a key of the keyboard, with modifiers such as VK_SHIFT, and handles what follows.
void PressKey(WORD key, WORD modifier = 0);
/// Types a character, whatever keyboard there is.
void TypeCharacter(wchar_t character);
/// The same for a window whose own message loop handles it: a message box, a file dialog.
void SendKey(WORD key);
void SendCharacter(wchar_t character);
/// Clicks into a window, at a point of its client area.
void ClickAt(HWND window, POINT at);
/// Turns the mouse wheel over a window, one notch towards the hand.
void TurnWheelOver(HWND window);
void SetClipboard(const std::wstring& text);

/// The window of a dialog, and that of one of its controls; null if it has none.
[[nodiscard]] HWND WindowOf(const QuorConversions::Dialog& dialog);
[[nodiscard]] HWND WindowOf(const QuorConversions::Control& control);
[[nodiscard]] HWND AdviceLineOf(const QuorConversions::Dialog& dialog);
[[nodiscard]] std::wstring TextOf(HWND window);
/// The message box, or the file dialog, that this thread shows; null for none.
[[nodiscard]] HWND SystemDialog();
void BringToFront(HWND window);

/// Expects that each window shows what its control says.
void ExpectShowsTheModel(const QuorConversions::Dialog& dialog);

/// The driver with keyboard and mouse.
class Win32InputDriver final : public QuorConversions::Scripted::InputDriver {
public:
    explicit Win32InputDriver(QuorConversions::Dialog& dialog) : m_dialog(dialog) {}

    void GoTo(QuorConversions::Control& control) override;
    void SelectAll() override;
    void Press(std::int16_t keyAscii) override;
    void Paste(const std::wstring& text) override;
    void Tab(bool backwards) override;
    void Escape() override;
    void Help() override;
    void Click(QuorConversions::PushButton& button) override;
    void Choose(QuorConversions::DropDownList& list, std::int32_t index) override;
    void SelectTab(QuorConversions::TabStrip& tabs, std::size_t tab) override;
    void MoveTo(std::int32_t left, std::int32_t top) override;
    void Close() override;

private:
    void Key(WORD key, WORD modifier = 0) const;
    void Look() const;

    QuorConversions::Dialog& m_dialog;
};

/// A screen with windows of the system.
class Win32Screen final : public QuorConversions::Scripted::Screen {
public:
    void Run(QuorConversions::Dialog& dialog, QuorConversions::DialogInput& input,
             const std::function<void(QuorConversions::Scripted::InputDriver&)>& act) override;
    void ShowMessage(const QuorConversions::MessageRequest& request,
                     const std::function<void()>& whileShown) override;

private:
    QuorConversions::Win32Toolkit::Win32Platform m_platform;
};

} // namespace Support
