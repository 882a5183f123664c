#include "tests/toolkits/win32/Win32Screen.h"

#include "tests/support/TestedScreen.h"
#include "toolkits/win32/Win32Dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <commctrl.h>
#include <exception>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace QuorConversions;
using Scripted::InputDriver;
using Win32Toolkit::Win32Dialog;

namespace Support {
namespace {

struct Watched {
    std::function<bool()> isIt;
    std::function<void()> action;
};

std::map<UINT_PTR, Watched>& AllWatched() {
    static std::map<UINT_PTR, Watched> all;
    return all;
}

void CALLBACK OnTimer(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
    const auto found = AllWatched().find(timer);
    if (found == AllWatched().end() || !found->second.isIt())
        return;
    KillTimer(nullptr, timer);
    const auto action = std::move(found->second.action);
    AllWatched().erase(found);
    action();
}

INPUT KeyInput(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    const bool isExtended = (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE;
    input.ki.dwFlags = flags | (isExtended ? KEYEVENTF_EXTENDEDKEY : 0U);
    return input;
}

void Send(std::vector<INPUT> inputs) {
    EXPECT_EQ(SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)), inputs.size());
}

/// A mouse event at a point of the screen.
INPUT MouseInput(POINT at, DWORD flags, int wheel = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    // The screen is 65536 units wide and high; the middle of a pixel is aimed at.
    input.mi.dx = (at.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (at.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    input.mi.mouseData = static_cast<DWORD>(wheel);
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE;
    return input;
}

POINT Middle(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right / 2, client.bottom / 2};
}

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

std::wstring ItemOf(HWND list, int item) {
    const auto index = static_cast<WPARAM>(item);
    std::wstring text(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, index, 0)) + 1, L'\0');
    SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

/// The captions of the tabs that a control of the system has, and their numbers in the model.
std::vector<std::pair<std::wstring, std::size_t>> TabsOf(HWND window) {
    std::vector<std::pair<std::wstring, std::size_t>> tabs;
    const auto count = SendMessageW(window, TCM_GETITEMCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        wchar_t text[200] = {};
        TCITEMW item{};
        item.mask = TCIF_TEXT | TCIF_PARAM;
        item.pszText = text;
        item.cchTextMax = 200;
        SendMessageW(window, TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        tabs.emplace_back(text, static_cast<std::size_t>(item.lParam));
    }
    return tabs;
}

void ExpectShows(HWND window, const Control& control) {
    EXPECT_EQ(IsWindowVisible(window) != FALSE, control.IsShown());
    if (control.IsShown()) {
        EXPECT_EQ(IsWindowEnabled(window) != FALSE, control.Enabled());
    }
    switch (control.Kind()) {
    case ControlKind::Label:
    case ControlKind::PushButton:
    case ControlKind::Frame:
        EXPECT_EQ(TextOf(window), control.Caption());
        break;
    case ControlKind::TextBox: {
        const auto& box = static_cast<const TextBox&>(control);
        EXPECT_EQ(TextOf(window), box.Text());
        DWORD start = 0;
        DWORD end = 0;
        SendMessageW(window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(start, box.SelStart());
        EXPECT_EQ(end, box.SelStart() + box.SelLength());
        break;
    }
    case ControlKind::DropDownList: {
        const auto& list = static_cast<const DropDownList&>(control);
        EXPECT_EQ(SendMessageW(window, CB_GETCURSEL, 0, 0), list.ListIndex());
        ASSERT_EQ(SendMessageW(window, CB_GETCOUNT, 0, 0), list.ListCount());
        for (std::int32_t item = 0; item < list.ListCount(); ++item)
            EXPECT_EQ(ItemOf(window, item), list.List(item));
        break;
    }
    case ControlKind::TabStrip: {
        const auto& strip = static_cast<const TabStrip&>(control);
        std::vector<std::pair<std::wstring, std::size_t>> expected;
        for (std::size_t tab = 0; tab < strip.Tabs().size(); ++tab)
            if (strip.Tabs()[tab].present)
                expected.emplace_back(strip.Tabs()[tab].caption, tab);
        const auto tabs = TabsOf(window);
        ASSERT_EQ(tabs, expected);
        const auto selected = SendMessageW(window, TCM_GETCURSEL, 0, 0);
        if (tabs.empty()) {
            EXPECT_EQ(selected, -1);
            break;
        }
        ASSERT_GE(selected, 0);
        EXPECT_EQ(tabs[static_cast<std::size_t>(selected)].second, strip.Selected());
        break;
    }
    }
}

} // namespace

void WhenTrue(std::function<bool()> isIt, std::function<void()> action) {
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
    AllWatched()[timer] = {std::move(isIt), std::move(action)};
}

void HandleInput() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        Win32Dialog::Dispatch(message);
}

void PressKey(WORD key, WORD modifier) {
    std::vector<INPUT> inputs = {KeyInput(key, 0), KeyInput(key, KEYEVENTF_KEYUP)};
    if (modifier != 0) {
        inputs.insert(inputs.begin(), KeyInput(modifier, 0));
        inputs.push_back(KeyInput(modifier, KEYEVENTF_KEYUP));
    }
    Send(std::move(inputs));
    HandleInput();
}

void SendKey(WORD key) { Send({KeyInput(key, 0), KeyInput(key, KEYEVENTF_KEYUP)}); }

void TypeCharacter(wchar_t character) {
    SendCharacter(character);
    HandleInput();
}

void SendCharacter(wchar_t character) {
    std::vector<INPUT> inputs(2);
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wScan = character;
        input.ki.dwFlags = KEYEVENTF_UNICODE;
    }
    inputs[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    Send(std::move(inputs));
}

void ClickAt(HWND window, POINT at) {
    ClientToScreen(window, &at);
    Send({MouseInput(at, MOUSEEVENTF_MOVE), MouseInput(at, MOUSEEVENTF_LEFTDOWN),
          MouseInput(at, MOUSEEVENTF_LEFTUP)});
    HandleInput();
}

void TurnWheelOver(HWND window) {
    POINT at = Middle(window);
    ClientToScreen(window, &at);
    Send({MouseInput(at, MOUSEEVENTF_MOVE), MouseInput(at, MOUSEEVENTF_WHEEL, -WHEEL_DELTA)});
    HandleInput();
}

void SetClipboard(const std::wstring& text) {
    BOOL isOpen = FALSE;
    for (int tries = 0; tries < 100 && !isOpen; ++tries) {
        isOpen = OpenClipboard(nullptr);
        if (!isOpen)
            Sleep(10); // another program has it for a moment
    }
    ASSERT_TRUE(isOpen);
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

HWND WindowOf(const Dialog& dialog) {
    return reinterpret_cast<HWND>(static_cast<std::intptr_t>(dialog.WindowHandle()));
}

HWND WindowOf(const Control& control) {
    const Dialog& dialog = control.Owner();
    const HWND content = GetWindow(WindowOf(dialog), GW_CHILD);
    int id = Win32Toolkit::firstControlId;
    for (const auto& candidate : dialog.Controls()) {
        if (candidate.get() == &control)
            return GetDlgItem(content, id);
        ++id;
    }
    return nullptr;
}

HWND AdviceLineOf(const Dialog& dialog) {
    return GetDlgItem(GetWindow(WindowOf(dialog), GW_CHILD), Win32Toolkit::adviceId);
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

HWND SystemDialog() {
    HWND found = nullptr;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            if (!IsWindowVisible(window) || !IsWindowEnabled(window) || ClassOf(window) != L"#32770")
                return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

void BringToFront(HWND window) {
    for (int tries = 0; tries < 100 && GetForegroundWindow() != window; ++tries) {
        SetForegroundWindow(window);
        HandleInput();
        if (GetForegroundWindow() != window)
            Sleep(10);
    }
    EXPECT_EQ(GetForegroundWindow(), window);
}

void ExpectShowsTheModel(const Dialog& dialog) {
    EXPECT_EQ(TextOf(WindowOf(dialog)), dialog.Title());
    std::map<int, HWND> windows; // looked up at once: each look-up by id walks through all of them
    EnumChildWindows(
        GetWindow(WindowOf(dialog), GW_CHILD),
        [](HWND window, LPARAM result) -> BOOL {
            reinterpret_cast<std::map<int, HWND>*>(result)->emplace(GetDlgCtrlID(window), window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    int id = Win32Toolkit::firstControlId;
    for (const auto& control : dialog.Controls()) {
        const auto found = windows.find(id++);
        if (control->Kind() == ControlKind::Frame && control->Caption().empty())
            continue; // it has no window
        const HWND window = found == windows.end() ? nullptr : found->second;
        ASSERT_NE(window, nullptr) << "no window shows " << testing::PrintToString(control->Name());
        SCOPED_TRACE(testing::PrintToString(control->Name()));
        ExpectShows(window, *control);
    }
    if (dialog.ActiveControl() && dialog.ActiveControl()->IsUsable()) {
        EXPECT_EQ(GetFocus(), WindowOf(*dialog.ActiveControl()))
            << testing::PrintToString(dialog.ActiveControl()->Name()) << " has the focus";
    }
}

void Win32InputDriver::Key(WORD key, WORD modifier) const {
    BringToFront(WindowOf(m_dialog));
    PressKey(key, modifier);
    Look();
}

void Win32InputDriver::Look() const {
    if (m_dialog.IsOpen())
        ExpectShowsTheModel(m_dialog);
}

void Win32InputDriver::GoTo(Control& control) {
    BringToFront(WindowOf(m_dialog));
    const HWND window = WindowOf(control);
    if (!IsWindowVisible(window) || !control.TakesFocus())
        return; // there is nothing to go to
    if (control.Kind() == ControlKind::TextBox)
        ClickAt(window, Middle(window));
    else
        for (std::size_t step = 0; step < m_dialog.Controls().size() && GetFocus() != window; ++step)
            Key(VK_TAB);
    Look();
}

void Win32InputDriver::SelectAll() { Key('A', VK_CONTROL); }

void Win32InputDriver::Press(std::int16_t keyAscii) {
    static const std::map<std::int16_t, std::pair<WORD, WORD>> named = {
        {3, {'C', VK_CONTROL}},  {22, {'V', VK_CONTROL}}, {24, {'X', VK_CONTROL}},
        {26, {'Z', VK_CONTROL}}, {8, {VK_BACK, 0}},       {13, {VK_RETURN, 0}},
    };
    if (const auto found = named.find(keyAscii); found != named.end())
        return Key(found->second.first, found->second.second);
    BringToFront(WindowOf(m_dialog));
    TypeCharacter(static_cast<wchar_t>(keyAscii));
    Look();
}

void Win32InputDriver::Paste(const std::wstring& text) {
    SetClipboard(text);
    Key('V', VK_CONTROL);
}

void Win32InputDriver::Tab(bool backwards) { Key(VK_TAB, backwards ? VK_SHIFT : 0); }

void Win32InputDriver::Escape() { Key(VK_ESCAPE); }

void Win32InputDriver::Help() { Key(VK_F1); }

void Win32InputDriver::Click(PushButton& button) {
    BringToFront(WindowOf(m_dialog));
    ClickAt(WindowOf(button), Middle(WindowOf(button)));
    Look();
}

void Win32InputDriver::Choose(DropDownList& list, std::int32_t index) {
    GoTo(list);
    Send({MouseInput({0, 0}, MOUSEEVENTF_MOVE)}); // a list that opens under the pointer selects what is there
    PressKey(VK_DOWN, VK_MENU);                   // opens it
    PressKey(VK_HOME);
    for (std::int32_t i = 0; i < index; ++i)
        PressKey(VK_DOWN);
    Key(VK_RETURN);
}

void Win32InputDriver::SelectTab(TabStrip& tabs, std::size_t tab) {
    BringToFront(WindowOf(m_dialog));
    const HWND window = WindowOf(tabs);
    WPARAM at = 0;
    for (const auto& shown : TabsOf(window))
        if (shown.second != tab)
            ++at;
        else
            break;
    RECT place{};
    SendMessageW(window, TCM_GETITEMRECT, at, reinterpret_cast<LPARAM>(&place));
    ClickAt(window, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    Look();
}

void Win32InputDriver::MoveTo(std::int32_t left, std::int32_t top) {
    SetWindowPos(WindowOf(m_dialog), nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    HandleInput();
}

void Win32InputDriver::Close() {
    PostMessageW(WindowOf(m_dialog), WM_SYSCOMMAND, SC_CLOSE, 0); // as the close box does
    HandleInput();
    Look();
}

void Win32Screen::Run(Dialog& dialog, DialogInput& input, const std::function<void(InputDriver&)>& act) {
    std::exception_ptr failure;
    WhenTrue([&dialog] { return IsWindowVisible(WindowOf(dialog)) != FALSE; },
             [&] {
                 BringToFront(WindowOf(dialog));
                 ExpectShowsTheModel(dialog);
                 try {
                     Win32InputDriver driver(dialog);
                     act(driver);
                 } catch (...) { // it must not pass through the message loop
                     failure = std::current_exception();
                 }
                 if (dialog.IsOpen())
                     input.Close();
             });
    m_platform.RunDialog(dialog, input);
    if (failure)
        std::rethrow_exception(failure);
}

void Win32Screen::ShowMessage(const MessageRequest& request, const std::function<void()>& whileShown) {
    WhenTrue([] { return SystemDialog() != nullptr; },
             [&] {
                 const HWND box = SystemDialog();
                 std::wstring text = request.text;
                 std::replace(text.begin(), text.end(), L'\r', L'\n');
                 EXPECT_EQ(TextOf(box), request.title);
                 EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), text);
                 EXPECT_EQ(GetDlgItem(box, IDHELP) != nullptr && IsWindowVisible(GetDlgItem(box, IDHELP)),
                           !request.helpFile.empty());
                 whileShown();
                 SetForegroundWindow(box);
                 SendKey(VK_RETURN);
             });
    m_platform.ShowMessage(request);
}

std::shared_ptr<Scripted::Screen> TestedScreen() { return std::make_shared<Win32Screen>(); }

} // namespace Support
