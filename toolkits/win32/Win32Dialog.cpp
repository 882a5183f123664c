#include "toolkits/win32/Win32Dialog.h"

#include "QuorConversions/controls/ControlNames.h"
#include "QuorConversions/resources/StringIds.h"
#include "QuorConversions/resources/StringTable.h"
#include "QuorIniFile/QuorError.h"
#include "toolkits/win32/Arrangement.h"

#include <algorithm>
#include <array>
#include <commctrl.h>
#include <cwctype>
#include <memory>
#include <ole2.h>
#include <utility>

#include <oleacc.h>

extern "C" IMAGE_DOS_HEADER __ImageBase; // NOLINT: the module that this code is linked to

namespace QuorConversions::Win32Toolkit {
namespace {

constexpr const wchar_t* frameClass = L"QuorConversionsDialog";
constexpr const wchar_t* contentClass = L"QuorConversionsDialogContent";
constexpr DWORD frameStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;
constexpr DWORD frameStyleEx = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

constexpr UINT arrangeMessage = WM_APP;
constexpr UINT chooseMessage = WM_APP + 1;

// Character codes of keys.
constexpr WPARAM selectAllKey = 1;
constexpr WPARAM copyKey = 3;
constexpr WPARAM pasteKey = 22;
constexpr WPARAM cutKey = 24;
constexpr std::array<WPARAM, 6> editingKeys = {copyKey, 8, 13, pasteKey, cutKey, 26};

[[nodiscard]] HINSTANCE Module() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

/// Whether a message of a key comes from one that is held down.
[[nodiscard]] bool IsRepeated(const MSG& message) { return (message.lParam & 0x40000000) != 0; }

[[nodiscard]] bool IsDown(int key) { return GetKeyState(key) < 0; }

void RegisterClasses(WNDPROC frame, WNDPROC content) {
    WNDCLASSEXW described{};
    described.cbSize = sizeof(described);
    described.hInstance = Module();
    described.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    described.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
    described.lpfnWndProc = frame;
    described.lpszClassName = frameClass;
    RegisterClassExW(&described); // fails when another dialog has registered it
    described.lpfnWndProc = content;
    described.lpszClassName = contentClass;
    RegisterClassExW(&described);
}

/// A DLL that is unloaded must leave no class. This fails while another dialog uses it.
void UnregisterClasses() {
    UnregisterClassW(frameClass, Module());
    UnregisterClassW(contentClass, Module());
}

[[nodiscard]] std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void SetTextOf(HWND window, const std::wstring& text) {
    if (TextOf(window) != text)
        SetWindowTextW(window, text.c_str());
}

/// The colour in which a tab control draws its pages, which depends on the theme.
[[nodiscard]] COLORREF PageColourOf(HWND tabs) {
    RECT client{};
    GetClientRect(tabs, &client);
    const HDC screen = GetDC(tabs);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap =
        CreateCompatibleBitmap(screen, static_cast<int>(client.right), static_cast<int>(client.bottom));
    const HGDIOBJ before = SelectObject(memory, bitmap);
    FillRect(memory, &client, GetSysColorBrush(COLOR_3DFACE));
    SendMessageW(tabs, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), PRF_CLIENT | PRF_ERASEBKGND);
    constexpr int insideEdge = 6;
    const COLORREF colour =
        GetPixel(memory, static_cast<int>(client.right) / 2, static_cast<int>(client.bottom) - insideEdge);
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(tabs, screen);
    return colour == CLR_INVALID ? GetSysColor(COLOR_3DFACE) : colour;
}

/// The access key of a caption, in upper case; 0 for none.
[[nodiscard]] wchar_t AccessKeyOf(const std::wstring& caption) {
    for (std::size_t at = caption.find(L'&'); at != std::wstring::npos && at + 1 < caption.size();
         at = caption.find(L'&', at + 2))
        if (caption[at + 1] != L'&')
            return static_cast<wchar_t>(std::towupper(caption[at + 1]));
    return 0;
}

[[nodiscard]] bool IsIn(const Control& control, const Control& frame) {
    for (const Control* around = control.Parent(); around; around = around->Parent())
        if (around == &frame)
            return true;
    return false;
}

/// Whether the control and all frames around it are enabled: a group disables what it contains.
[[nodiscard]] bool IsEnabled(const Control& control) {
    for (const Control* at = &control; at; at = at->Parent())
        if (!at->Enabled())
            return false;
    return true;
}

/// The windows of this thread take no input while a modal dialog is shown.
class OthersDisabled {
public:
    explicit OthersDisabled(HWND shown) : m_shown(shown) {
        EnumThreadWindows(GetCurrentThreadId(), Disable, reinterpret_cast<LPARAM>(this));
    }
    OthersDisabled(const OthersDisabled&) = delete;
    OthersDisabled& operator=(const OthersDisabled&) = delete;
    ~OthersDisabled() {
        for (const HWND window : m_windows)
            EnableWindow(window, TRUE);
    }

private:
    static BOOL CALLBACK Disable(HWND window, LPARAM self) {
        auto& others = *reinterpret_cast<OthersDisabled*>(self);
        if (window != others.m_shown && IsWindowVisible(window) && IsWindowEnabled(window)) {
            others.m_windows.push_back(window);
            EnableWindow(window, FALSE);
        }
        return TRUE;
    }

    HWND m_shown;
    std::vector<HWND> m_windows;
};

/// A flag, or what is being done, for as long as a scope lasts.
template <class T>
class While {
public:
    While(T& state, T during) : m_state(state), m_before(std::exchange(state, during)) {}
    While(const While&) = delete;
    While& operator=(const While&) = delete;
    ~While() { m_state = m_before; }

private:
    T& m_state;
    T m_before;
};

} // namespace

Win32Dialog::Win32Dialog(Dialog& dialog, DialogInput& input, HWND owner)
    : m_dialog(dialog), m_input(input), m_owner(owner) {
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_TAB_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    RegisterClasses(FrameProcedure, ContentProcedure);
    m_window = CreateWindowExW(frameStyleEx, frameClass, dialog.Title().c_str(), frameStyle, 0, 0, 100, 100,
                               m_owner, nullptr, Module(), nullptr);
    if (m_window)
        m_content = CreateWindowExW(WS_EX_CONTROLPARENT, contentClass, L"", WS_CHILD | WS_VISIBLE, 0, 0, 100,
                                    100, m_window, nullptr, Module(), nullptr);
    if (!m_content) {
        if (m_window)
            DestroyWindow(m_window);
        UnregisterClasses();
        throw QuorIniFile::QuorError(QuorIniFile::ERR_CANNOT_CREATE, L"Win32Toolkit",
                                     TableText(IDS_NO_SCREEN));
    }
    for (const HWND window : {m_window, m_content})
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_dialog.SetWindowHandle(static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(m_window)));
}

Win32Dialog::~Win32Dialog() {
    if (m_window) {
        Detach();
        DestroyWindow(m_window);
    }
    if (m_font)
        DeleteObject(m_font);
    UnregisterClasses();
}

void Win32Dialog::Run() {
    // The dialog fills its controls when it becomes active. Before it is drawn, nobody has to watch.
    m_input.Activate();
    if (!m_dialog.IsOpen())
        return;
    SetTextOf(m_window, m_dialog.Title());
    TakeFont();
    CreateViews();
    m_dialog.SetListener(this);
    PutInPlace();
    {
        const OthersDisabled others(m_window);
        ShowWindow(m_window, SW_SHOW);
        SetForegroundWindow(m_window);
        while (m_window && m_dialog.IsOpen() && !m_failure) {
            MSG message{};
            if (GetMessageW(&message, nullptr, 0, 0) == 0) { // the host ends
                PostQuitMessage(static_cast<int>(message.wParam));
                break;
            }
            Dispatch(message);
        }
    }
    if (!m_window)
        Report([&] { m_input.Close(); });
    RECT place{};
    if (m_shownAt && GetWindowRect(m_window, &place) &&
        (place.left != m_shownAt->x || place.top != m_shownAt->y))
        m_dialog.SetPlace(
            Dialog::Placement{static_cast<std::int32_t>(place.left), static_cast<std::int32_t>(place.top)});
    m_dialog.SetListener(nullptr);
    ShowWindow(m_window, SW_HIDE); // its owner, which takes input again, becomes the active window
    if (m_owner)
        SetActiveWindow(m_owner);
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void Win32Dialog::Dispatch(const MSG& message) {
    auto* const dialog = message.hwnd ? DialogOf(GetAncestor(message.hwnd, GA_ROOT)) : nullptr;
    if (dialog && dialog->TakesKey(message))
        return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

// Keys

bool Win32Dialog::TakesKey(const MSG& message) {
    if (message.message == WM_KEYDOWN || message.message == WM_CHAR)
        ReportChoices();
    if (!m_window)
        return true;
    Control* const focused = ControlOf(message.hwnd);
    const ControlKind kind = focused ? focused->Kind() : ControlKind::Frame;
    if (message.message == WM_SYSCHAR)
        return PressAccessKey(static_cast<wchar_t>(message.wParam));
    if (message.message == WM_CHAR && kind == ControlKind::PushButton && message.wParam > L' ')
        return PressAccessKey(static_cast<wchar_t>(message.wParam));
    if (message.message != WM_KEYDOWN)
        return false;
    const bool isListOpen =
        kind == ControlKind::DropDownList && SendMessageW(message.hwnd, CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    switch (message.wParam) {
    case VK_TAB:
        if (IsDown(VK_CONTROL))
            TurnPage(IsDown(VK_SHIFT));
        else
            Report([&] { m_input.Tab(IsDown(VK_SHIFT)); });
        return true;
    case VK_RETURN:
        if (isListOpen || kind == ControlKind::TextBox) // a box passes the key on to the model
            return false;
        if (kind != ControlKind::PushButton)
            Report([&] { m_input.Tab(); });
        else if (!IsRepeated(message)) // a held key, which has come through the boxes, presses no button
            Report([&] { m_input.Click(static_cast<PushButton&>(*focused)); });
        return true;
    case VK_ESCAPE:
        if (isListOpen)
            return false;
        if (!IsRepeated(message)) // a held key, which has closed a message, does not cancel the dialog, too
            Report([&] { m_input.Escape(); });
        return true;
    case VK_F1:
        if (!IsRepeated(message))
            Report([&] { m_input.Help(); });
        return true;
    default:
        return false;
    }
}

bool Win32Dialog::PressAccessKey(wchar_t key) {
    const auto wanted = static_cast<wchar_t>(std::towupper(key));
    const std::vector<ControlName> names = ControlNames(m_dialog);
    const auto& controls = m_dialog.Controls();
    const auto active = std::find_if(controls.begin(), controls.end(), [&](const auto& control) {
        return control.get() == m_dialog.ActiveControl();
    });
    const auto start = static_cast<std::size_t>(active - controls.begin()); // at the end if there is none
    for (std::size_t step = 1; step <= controls.size(); ++step) {
        Control& control = *controls[(start + step) % controls.size()];
        if (!control.IsShown())
            continue;
        if (control.Kind() == ControlKind::TabStrip && control.Enabled()) {
            auto& tabs = static_cast<TabStrip&>(control);
            for (std::size_t tab = 0; tab < tabs.Tabs().size(); ++tab)
                if (tabs.Tabs()[tab].present && AccessKeyOf(tabs.Tabs()[tab].caption) == wanted) {
                    Report([&] { m_input.SelectTab(tabs, tab); });
                    return true;
                }
        }
        if (AccessKeyOf(control.Caption()) != wanted)
            continue;
        Control* target = &control;
        if (control.Kind() == ControlKind::Label) {
            const auto named = std::find_if(names.begin(), names.end(),
                                            [&](const ControlName& name) { return name.label == &control; });
            target = named == names.end() ? nullptr : named->control;
        } else if (control.Kind() == ControlKind::Frame) {
            const auto first = std::find_if(controls.begin(), controls.end(), [&](const auto& inner) {
                return inner->TakesFocus() && inner->IsUsable() && IsIn(*inner, control);
            });
            target = first == controls.end() ? nullptr : first->get();
        }
        if (!target || !target->IsUsable())
            continue;
        if (target->Kind() == ControlKind::PushButton)
            Report([&] { m_input.Click(static_cast<PushButton&>(*target)); });
        else
            Report([&] { m_input.Focus(*target); });
        return true;
    }
    return false;
}

void Win32Dialog::TurnPage(bool backwards) {
    for (const auto& control : m_dialog.Controls()) {
        if (control->Kind() != ControlKind::TabStrip || !control->IsUsable())
            continue;
        auto& tabs = static_cast<TabStrip&>(*control);
        const std::size_t count = tabs.Tabs().size();
        for (std::size_t step = 1; step < count; ++step) {
            const std::size_t tab = (tabs.Selected() + (backwards ? count - step : step)) % count;
            if (tabs.Tabs()[tab].present)
                return Report([&] { m_input.SelectTab(tabs, tab); });
        }
    }
}

// Windows

Win32Dialog* Win32Dialog::DialogOf(HWND window) {
    // The windows of the host, and of another copy of this code, have data of their own there.
    const auto procedure = reinterpret_cast<WNDPROC>(GetClassLongPtrW(window, GCLP_WNDPROC));
    return procedure == FrameProcedure || procedure == ContentProcedure
               ? reinterpret_cast<Win32Dialog*>(GetWindowLongPtrW(window, GWLP_USERDATA))
               : nullptr;
}

LRESULT CALLBACK Win32Dialog::FrameProcedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    auto* const dialog = DialogOf(window);
    return dialog ? dialog->Guarded([&] { return dialog->OnFrame(message, w, l); })
                  : DefWindowProcW(window, message, w, l);
}

LRESULT CALLBACK Win32Dialog::ContentProcedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    auto* const dialog = DialogOf(window);
    return dialog ? dialog->Guarded([&] { return dialog->OnContent(message, w, l); })
                  : DefWindowProcW(window, message, w, l);
}

LRESULT CALLBACK Win32Dialog::ControlProcedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    auto& self = *DialogOf(GetParent(window)); // until Detach gives the control its own procedure back
    const View& view = self.m_views[static_cast<std::size_t>(GetDlgCtrlID(window) - firstControlId)];
    return self.Guarded([&] { return self.OnControl(view, message, w, l); });
}

template <class Handle>
LRESULT Win32Dialog::Guarded(Handle&& handle) noexcept {
    try {
        return std::forward<Handle>(handle)();
    } catch (...) {
        Fail();
        return 0;
    }
}

LRESULT Win32Dialog::OnFrame(UINT message, WPARAM w, LPARAM l) {
    switch (message) {
    case WM_CLOSE:
        Report([&] { m_input.Close(); });
        return 0;
    case WM_DESTROY:
        OnDestroyed();
        return 0;
    case WM_ACTIVATE:
        if (LOWORD(w) != WA_INACTIVE && m_dialog.IsOpen()) {
            Report([&] { m_input.Activate(); });
            FocusActiveControl();
        }
        return 0;
    case WM_SETFOCUS:
        FocusActiveControl();
        return 0;
    case WM_VSCROLL: {
        SCROLLINFO bar{sizeof(bar), SIF_ALL, 0, 0, 0, 0, 0};
        GetScrollInfo(m_window, SB_VERT, &bar);
        const int page = static_cast<int>(bar.nPage);
        const int line = page / 10;
        const std::map<int, int> steps = {{SB_LINEUP, bar.nPos - line},   {SB_LINEDOWN, bar.nPos + line},
                                          {SB_PAGEUP, bar.nPos - page},   {SB_PAGEDOWN, bar.nPos + page},
                                          {SB_THUMBTRACK, bar.nTrackPos}, {SB_THUMBPOSITION, bar.nTrackPos}};
        if (const auto step = steps.find(LOWORD(w)); step != steps.end())
            ScrollTo(step->second);
        return 0;
    }
    case WM_MOUSEWHEEL: {
        RECT content{};
        GetWindowRect(m_content, &content);
        MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&content), 2);
        const int notch = GetSystemMetrics(SM_CYHSCROLL) * 3;
        ScrollTo(static_cast<int>(-content.top) - GET_WHEEL_DELTA_WPARAM(w) * notch / WHEEL_DELTA);
        return 0;
    }
    case WM_DPICHANGED: {
        const auto& suggested = *reinterpret_cast<const RECT*>(l);
        SetWindowPos(m_window, nullptr, suggested.left, suggested.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        [[fallthrough]];
    }
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
        if (!m_views.empty()) {
            TakeFont();
            m_contentSize = {};
            ArrangeSoon();
        }
        return 0;
    default:
        return DefWindowProcW(m_window, message, w, l);
    }
}

LRESULT Win32Dialog::OnContent(UINT message, WPARAM w, LPARAM l) {
    switch (message) {
    case WM_COMMAND:
        OnCommand(LOWORD(w), HIWORD(w));
        return 0;
    case WM_NOTIFY: {
        const auto& header = *reinterpret_cast<const NMHDR*>(l);
        Control* const control = ControlOf(header.hwndFrom);
        if (control && header.code == TCN_SELCHANGE && !m_isFollowing) {
            TCITEMW item{};
            item.mask = TCIF_PARAM;
            const auto selected = SendMessageW(header.hwndFrom, TCM_GETCURSEL, 0, 0);
            if (SendMessageW(header.hwndFrom, TCM_GETITEMW, static_cast<WPARAM>(selected),
                             reinterpret_cast<LPARAM>(&item)) != FALSE)
                Report([&] {
                    m_input.SelectTab(static_cast<TabStrip&>(*control),
                                      static_cast<std::size_t>(item.lParam));
                });
        }
        return 0;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN: {
        const COLORREF ground = GroundOf(reinterpret_cast<HWND>(l));
        SetBkColor(reinterpret_cast<HDC>(w), ground);
        SetTextColor(reinterpret_cast<HDC>(w), GetSysColor(COLOR_BTNTEXT));
        SetDCBrushColor(reinterpret_cast<HDC>(w), ground);
        return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
    }
    case WM_CTLCOLOREDIT: {
        // A box with advice has the colours of a tool tip, which can be read in every theme.
        const Control* const control = ControlOf(reinterpret_cast<HWND>(l));
        const bool isAdvised = control && control->Kind() == ControlKind::TextBox &&
                               !static_cast<const TextBox*>(control)->Advice().empty();
        const int ground = isAdvised ? COLOR_INFOBK : COLOR_WINDOW;
        SetBkColor(reinterpret_cast<HDC>(w), GetSysColor(ground));
        SetTextColor(reinterpret_cast<HDC>(w), GetSysColor(isAdvised ? COLOR_INFOTEXT : COLOR_WINDOWTEXT));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(ground));
    }
    case arrangeMessage:
        m_arrangesSoon = false;
        Arrange();
        return 0;
    case chooseMessage:
        ReportChoices();
        return 0;
    case WM_MOUSEWHEEL:
        return SendMessageW(m_window, message, w, l);
    default:
        return DefWindowProcW(m_content, message, w, l);
    }
}

void Win32Dialog::OnCommand(int id, int code) {
    const std::size_t index = static_cast<std::size_t>(id) - firstControlId;
    if (index >= m_views.size() || m_isFollowing)
        return;
    Control& control = *m_views[index].control;
    const HWND window = m_views[index].window;
    if (control.Kind() == ControlKind::PushButton && code == BN_CLICKED)
        Report([&] { m_input.Click(static_cast<PushButton&>(control)); });
    if (control.Kind() == ControlKind::TextBox && code == EN_CHANGE)
        ReportEdit(static_cast<TextBox&>(control), window);
    if (control.Kind() != ControlKind::DropDownList)
        return;
    // A list that is open reports each item that the arrow keys pass. Chosen is the one with which it closes;
    // it is reported once and when the list is closed, since a message may follow from it, but before
    // anything that comes after it.
    auto& list = static_cast<DropDownList&>(control);
    const bool isOpen = SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    if (code == CBN_SELENDOK || (code == CBN_SELCHANGE && !isOpen)) {
        if (!IsChosen(list))
            m_chosen.push_back(&list);
        PostMessageW(m_content, chooseMessage, 0, 0);
    }
    if (code == CBN_SELENDCANCEL && !IsChosen(list)) // a list that loses the focus reports it, too
        SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(list.ListIndex()), 0);
}

bool Win32Dialog::IsChosen(const DropDownList& list) const {
    return std::find(m_chosen.begin(), m_chosen.end(), &list) != m_chosen.end();
}

void Win32Dialog::ReportChoices() noexcept {
    if (m_reportsChoices) // a choice moves the focus, which is reported, too
        return;
    const While<bool> reporting(m_reportsChoices, true);
    while (!m_chosen.empty()) {
        DropDownList& list = *m_chosen.front();
        m_chosen.erase(m_chosen.begin());
        const auto selected = SendMessageW(WindowOf(list), CB_GETCURSEL, 0, 0);
        if (selected >= 0)
            Try([&] { m_input.Choose(list, static_cast<std::int32_t>(selected)); });
    }
}

LRESULT Win32Dialog::OnControl(const View& view, UINT message, WPARAM w, LPARAM l) {
    Control& control = *view.control;
    if (message == WM_MOUSEWHEEL && GetFocus() != view.window)
        return SendMessageW(m_window, message, w, l); // the wheel scrolls the window instead
    const LRESULT result = control.Kind() == ControlKind::TextBox
                               ? OnBox(view, static_cast<TextBox&>(control), message, w, l)
                               : CallWindowProcW(view.system, view.window, message, w, l);
    if (message == WM_SETFOCUS)
        Report([&] { m_input.Focus(control); });
    return result;
}

LRESULT Win32Dialog::OnBox(const View& view, TextBox& box, UINT message, WPARAM w, LPARAM l) {
    const HWND window = view.window;
    switch (message) {
    case WM_CHAR: {
        if (w == selectAllKey) {
            SendMessageW(window, EM_SETSEL, 0, -1);
            ReportEdit(box, window);
            return 0;
        }
        const bool isEditing = std::find(editingKeys.begin(), editingKeys.end(), w) != editingKeys.end();
        if (!isEditing && (w < L' ' || w == 127)) // what no key of the model is
            return 0;
        std::int16_t counts = 0;
        Report([&] { counts = m_input.KeyPress(static_cast<std::int16_t>(w)); });
        if (counts == 0 || counts == 13) // a line of text knows no Enter
            return 0;
        w = static_cast<std::uint16_t>(counts);
        if (w == pasteKey) {
            PasteInto(box, window);
            return 0;
        }
        break;
    }
    case WM_KEYDOWN: // the older keys for the same
        if (w == VK_INSERT && (IsDown(VK_SHIFT) || IsDown(VK_CONTROL)))
            return SendMessageW(window, WM_CHAR, IsDown(VK_SHIFT) ? pasteKey : copyKey, l);
        if (w == VK_DELETE && IsDown(VK_SHIFT))
            return SendMessageW(window, WM_CHAR, cutKey, l);
        break;
    case WM_PASTE:
        PasteInto(box, window);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:          // also where another click came shortly before
        if (GetFocus() != window) { // the click that goes to a box leaves its text selected
            SetFocus(window);
            return 0;
        }
        break;
    default:
        break;
    }
    const LRESULT result = CallWindowProcW(view.system, window, message, w, l);
    const bool movesCursor = message == WM_CHAR || message == WM_KEYDOWN || message == WM_LBUTTONDOWN ||
                             message == WM_LBUTTONUP || message == WM_LBUTTONDBLCLK || message == WM_UNDO ||
                             message == WM_CUT || message == WM_CLEAR ||
                             (message == WM_MOUSEMOVE && (w & MK_LBUTTON) != 0);
    if (movesCursor && !m_isFollowing)
        ReportEdit(box, window);
    return result;
}

void Win32Dialog::ReportEdit(TextBox& box, HWND window) {
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    std::wstring text = TextOf(window);
    if (text == box.Text() && start == box.SelStart() && end - start == box.SelLength())
        return;
    Report([&] {
        const While<const Control*> reporting(m_reporting, &box);
        m_input.Edit(box, std::move(text), start, end - start);
    });
}

void Win32Dialog::PasteInto(TextBox& box, HWND window) {
    std::wstring text;
    bool isOpen = OpenClipboard(m_window) != FALSE;
    for (int tries = 1; !isOpen && tries < 5; ++tries) { // another program may have it for a moment
        Sleep(10);                                       // ms
        isOpen = OpenClipboard(m_window) != FALSE;
    }
    if (!isOpen)
        return;
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* const characters = static_cast<const wchar_t*>(GlobalLock(data))) {
            // Nothing makes a program end its text with a zero.
            const wchar_t* const last = characters + GlobalSize(data) / sizeof(wchar_t);
            text.assign(characters, std::find(characters, last, L'\0'));
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    ReportEdit(box, window);
    const While<bool> pasting(m_isPasting, true);
    Report([&] { m_input.Paste(box, text); });
}

// What the windows show

void Win32Dialog::CreateViews() {
    const auto& controls = m_dialog.Controls();
    m_views.resize(controls.size());
    for (std::size_t i = 0; i < controls.size(); ++i) {
        Control& control = *controls[i];
        m_views[i].control = &control;
        m_views[i].window = CreateView(control, firstControlId + static_cast<int>(i));
        if (m_views[i].window && control.TakesFocus())
            m_views[i].system = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
                m_views[i].window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ControlProcedure)));
    }
    // What stands in a group or on a page is drawn over it: the outermost comes last.
    for (auto view = m_views.rbegin(); view != m_views.rend(); ++view)
        if (view->window &&
            (view->control->Kind() == ControlKind::TabStrip || view->control->Kind() == ControlKind::Frame))
            SetWindowPos(view->window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    m_adviceLine = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX, 0, 0, 0,
                                   0, m_content, reinterpret_cast<HMENU>(static_cast<INT_PTR>(adviceId)),
                                   Module(), nullptr);
    SendMessageW(m_adviceLine, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), FALSE);
    Arrange(); // a box that had no width yet would scroll its text away
    for (View& view : m_views)
        Follow(view);
    NameViews();
    ShowAdvice();
}

void Win32Dialog::NameViews() const {
    void* service = nullptr;
    if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                                &service)))
        return; // the thread of this host uses no COM: readers find the label beside a box themselves
    const auto release = [](IAccPropServices* names) { names->Release(); };
    const std::unique_ptr<IAccPropServices, decltype(release)> names(static_cast<IAccPropServices*>(service));
    for (const ControlName& name : ControlNames(m_dialog)) {
        const std::wstring spoken = name.units.empty() ? name.name : name.name + L", " + name.units;
        if (name.label) // a button says its own caption
            names->SetHwndPropStr(WindowOf(*name.control), static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                  PROPID_ACC_NAME, spoken.c_str());
    }
}

HWND Win32Dialog::CreateView(const Control& control, int id) const {
    const wchar_t* kind = L"STATIC";
    DWORD style = 0;
    DWORD styleEx = 0;
    switch (control.Kind()) {
    case ControlKind::Label: {
        // An "&" is an access key only where there is something to go to.
        const auto names = ControlNames(m_dialog);
        const bool isName = std::any_of(names.begin(), names.end(),
                                        [&](const ControlName& name) { return name.label == &control; });
        style = SS_LEFT | (isName ? 0U : DWORD{SS_NOPREFIX});
        break;
    }
    case ControlKind::PushButton:
        kind = L"BUTTON";
        style = BS_PUSHBUTTON;
        break;
    case ControlKind::TextBox:
        kind = L"EDIT";
        style = ES_AUTOHSCROLL | ES_RIGHT;
        styleEx = WS_EX_CLIENTEDGE;
        break;
    case ControlKind::DropDownList:
        kind = L"COMBOBOX";
        style = CBS_DROPDOWNLIST | WS_VSCROLL;
        break;
    case ControlKind::TabStrip:
        kind = WC_TABCONTROLW;
        style = WS_CLIPSIBLINGS;
        break;
    case ControlKind::Frame:
        if (control.Caption().empty())
            return nullptr;
        kind = L"BUTTON";
        style = BS_GROUPBOX | WS_CLIPSIBLINGS;
        break;
    }
    const HWND window = CreateWindowExW(styleEx, kind, L"", WS_CHILD | style, 0, 0, 0, 0, m_content,
                                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), Module(), nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), FALSE);
    return window;
}

void Win32Dialog::Follow(View& view) {
    if (!view.window)
        return;
    const Control& control = *view.control;
    {
        const While<bool> following(m_isFollowing, true);
        switch (control.Kind()) {
        case ControlKind::Label:
        case ControlKind::PushButton:
        case ControlKind::Frame:
            SetTextOf(view.window, control.Caption());
            break;
        case ControlKind::TextBox:
            FollowText(static_cast<const TextBox&>(control), view.window);
            break;
        case ControlKind::DropDownList:
            FollowItems(static_cast<const DropDownList&>(control), view.window);
            break;
        case ControlKind::TabStrip:
            FollowTabs(static_cast<const TabStrip&>(control), view.window);
            break;
        }
    }
    const bool isShown = control.IsShown();
    const bool isEnabled = IsEnabled(control);
    if ((!isShown || !isEnabled) && GetFocus() == view.window)
        SetFocus(m_window); // keys go on to the dialog
    if (isEnabled != view.wasEnabled)
        EnableWindow(view.window, isEnabled);
    if (isShown != view.wasShown)
        ShowWindow(view.window, isShown ? SW_SHOWNA : SW_HIDE);
    view.wasEnabled = isEnabled;
    view.wasShown = isShown;
}

void Win32Dialog::FollowText(const TextBox& box, HWND window) {
    InvalidateRect(window, nullptr, TRUE); // its colour says whether there is advice
    if (m_reporting == &box)
        return;
    if (TextOf(window) != box.Text()) {
        if (m_isPasting) { // a step that Undo takes back
            SendMessageW(window, EM_SETSEL, 0, -1);
            SendMessageW(window, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(box.Text().c_str()));
        } else {
            SetWindowTextW(window, box.Text().c_str());
        }
    }
    SendMessageW(window, EM_SETSEL, box.SelStart(), static_cast<LPARAM>(box.SelStart() + box.SelLength()));
}

void Win32Dialog::FollowItems(const DropDownList& list, HWND window) {
    const auto itemText = [&](std::int32_t item) {
        const auto index = static_cast<WPARAM>(item);
        std::wstring text(static_cast<std::size_t>(SendMessageW(window, CB_GETLBTEXTLEN, index, 0)) + 1, 0);
        SendMessageW(window, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        return text;
    };
    bool isSame = SendMessageW(window, CB_GETCOUNT, 0, 0) == list.ListCount();
    for (std::int32_t item = 0; isSame && item < list.ListCount(); ++item)
        isSame = itemText(item) == list.List(item);
    if (!isSame) {
        SendMessageW(window, CB_RESETCONTENT, 0, 0);
        for (std::int32_t item = 0; item < list.ListCount(); ++item)
            SendMessageW(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(list.List(item).c_str()));
    }
    if (!isSame)
        m_chosen.erase(std::remove(m_chosen.begin(), m_chosen.end(), &list), m_chosen.end());
    if (!IsChosen(list) && SendMessageW(window, CB_GETCURSEL, 0, 0) != list.ListIndex())
        SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(list.ListIndex()), 0);
}

void Win32Dialog::FollowTabs(const TabStrip& tabs, HWND window) {
    // Each tab of the system has its number in the model.
    const auto numberAt = [&](int at) {
        TCITEMW item{};
        item.mask = TCIF_PARAM;
        SendMessageW(window, TCM_GETITEMW, static_cast<WPARAM>(at), reinterpret_cast<LPARAM>(&item));
        return static_cast<std::size_t>(item.lParam);
    };
    int at = 0;
    for (std::size_t tab = 0; tab < tabs.Tabs().size(); ++tab) {
        const bool isThere = at < SendMessageW(window, TCM_GETITEMCOUNT, 0, 0) && numberAt(at) == tab;
        if (isThere && !tabs.Tabs()[tab].present)
            SendMessageW(window, TCM_DELETEITEM, static_cast<WPARAM>(at), 0);
        if (!tabs.Tabs()[tab].present)
            continue;
        std::wstring caption = tabs.Tabs()[tab].caption;
        TCITEMW item{};
        item.mask = TCIF_TEXT | TCIF_PARAM;
        item.pszText = caption.data();
        item.lParam = static_cast<LPARAM>(tab);
        if (!isThere)
            SendMessageW(window, TCM_INSERTITEMW, static_cast<WPARAM>(at), reinterpret_cast<LPARAM>(&item));
        if (tab == tabs.Selected() && SendMessageW(window, TCM_GETCURSEL, 0, 0) != at)
            SendMessageW(window, TCM_SETCURSEL, static_cast<WPARAM>(at), 0);
        ++at;
    }
}

void Win32Dialog::ShowAdvice() {
    const std::vector<ControlName> names = ControlNames(m_dialog);
    std::wstring text;
    for (const TextBox* const box : m_dialog.AdvisedBoxes())
        for (const ControlName& name : names)
            if (name.control == box)
                text += (text.empty() ? L"" : L"\n") + name.name + L": " + box->Advice();
    if (text == m_advice)
        return;
    m_advice = text;
    SetWindowTextW(m_adviceLine, text.c_str());
    NotifyWinEvent(EVENT_SYSTEM_ALERT, m_adviceLine, OBJID_CLIENT, CHILDID_SELF); // for screen readers
    ArrangeSoon();
}

COLORREF Win32Dialog::GroundOf(HWND window) const {
    RECT place{};
    GetWindowRect(window, &place);
    for (const View& view : m_views) {
        if (view.control->Kind() != ControlKind::TabStrip || !view.wasShown || view.window == window)
            continue;
        RECT page{};
        GetWindowRect(view.window, &page);
        RECT both{};
        if (IntersectRect(&both, &page, &place) && EqualRect(&both, &place))
            return m_pageColour;
    }
    return GetSysColor(COLOR_3DFACE);
}

HWND Win32Dialog::WindowOf(const Control& control) const {
    const auto view = std::find_if(m_views.begin(), m_views.end(),
                                   [&](const View& candidate) { return candidate.control == &control; });
    return view == m_views.end() ? nullptr : view->window;
}

Control* Win32Dialog::ControlOf(HWND window) const {
    const auto index = static_cast<std::size_t>(GetDlgCtrlID(window)) - firstControlId;
    return index < m_views.size() && m_views[index].window == window ? m_views[index].control : nullptr;
}

// Place and size

void Win32Dialog::TakeFont() {
    const UINT dpi = GetDpiForWindow(m_window);
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, dpi);
    const HFONT before = std::exchange(m_font, CreateFontIndirectW(&metrics.lfMessageFont));
    for (const View& view : m_views)
        if (view.window)
            SendMessageW(view.window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), TRUE);
    if (m_adviceLine)
        SendMessageW(m_adviceLine, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), TRUE);
    if (before)
        DeleteObject(before);
}

void Win32Dialog::ArrangeSoon() {
    if (!std::exchange(m_arrangesSoon, true))
        PostMessageW(m_content, arrangeMessage, 0, 0);
}

void Win32Dialog::Arrange() {
    bool hasMoved = m_contentSize.cx == 0; // in a new font all is drawn anew
    const HDC dc = GetDC(m_content);
    const HGDIOBJ before = SelectObject(dc, m_font);
    // Rows that come and go do not make the window smaller.
    const Arrangement arrangement(m_dialog, dc, m_contentSize, m_advice);
    SelectObject(dc, before);
    ReleaseDC(m_content, dc);
    m_contentSize = arrangement.Size();

    const auto put = [&](HWND window, const RECT& place, LONG more) {
        RECT now{};
        GetWindowRect(window, &now);
        MapWindowPoints(nullptr, m_content, reinterpret_cast<POINT*>(&now), 2);
        now.bottom = more == 0 ? now.bottom : place.bottom; // a list has the height that it wants
        if (!hasMoved && EqualRect(&now, &place))
            return;
        hasMoved = true;
        SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top + more, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    };
    for (const View& view : m_views)
        if (const RECT* const place = view.window ? arrangement.PlaceOf(*view.control) : nullptr) {
            // The height of a list is that of what opens below it, too.
            const bool isList = view.control->Kind() == ControlKind::DropDownList;
            put(view.window, *place, isList ? 10 * (place->bottom - place->top) : 0);
        }
    put(m_adviceLine, arrangement.AdvicePlace(), 0);
    if (!hasMoved)
        return; // an advice that changes while somebody types makes nothing flicker
    for (const View& view : m_views)
        if (view.control->Kind() == ControlKind::TabStrip && view.control->IsShown())
            m_pageColour = PageColourOf(view.window);

    const UINT dpi = GetDpiForWindow(m_window);
    RECT frame{};
    AdjustWindowRectExForDpi(&frame, frameStyle, FALSE, frameStyleEx, dpi);
    const RECT room = Room();
    const LONG highest = (room.bottom - room.top) - (frame.bottom - frame.top);
    const bool scrolls = m_contentSize.cy > highest;
    const LONG bar = scrolls ? GetSystemMetricsForDpi(SM_CXVSCROLL, dpi) : 0;
    const LONG height = scrolls ? highest : m_contentSize.cy;
    SetWindowPos(m_window, nullptr, 0, 0, m_contentSize.cx + bar + (frame.right - frame.left),
                 height + (frame.bottom - frame.top), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SCROLLINFO range{sizeof(range),
                     SIF_PAGE | SIF_RANGE,
                     0,
                     static_cast<int>(m_contentSize.cy) - 1,
                     static_cast<UINT>(height),
                     0,
                     0};
    SetScrollInfo(m_window, SB_VERT, &range, TRUE);
    ShowScrollBar(m_window, SB_VERT, scrolls);
    RECT content{};
    GetWindowRect(m_content, &content);
    MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&content), 2);
    SetWindowPos(m_content, nullptr, 0, 0, m_contentSize.cx, m_contentSize.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ScrollTo(static_cast<int>(-content.top));
    InvalidateRect(m_content, nullptr, TRUE);
    if (m_shownAt)
        MoveOnScreen();
}

RECT Win32Dialog::Room() const {
    // A screen may be gone since the place was remembered: then it is the nearest one.
    const auto& place = m_dialog.Place();
    HMONITOR screen = MonitorFromWindow(m_shownAt || !m_owner ? m_window : m_owner, MONITOR_DEFAULTTONEAREST);
    if (!m_shownAt && place)
        screen = MonitorFromPoint({place->left, place->top}, MONITOR_DEFAULTTONEAREST);
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(screen, &info);
    return info.rcWork;
}

void Win32Dialog::PutInPlace() {
    RECT window{};
    GetWindowRect(m_window, &window);
    RECT around = Room();
    if (m_owner && IsWindowVisible(m_owner))
        GetWindowRect(m_owner, &around);
    POINT at{(around.left + around.right - (window.right - window.left)) / 2,
             (around.top + around.bottom - (window.bottom - window.top)) / 2};
    if (const auto& place = m_dialog.Place())
        at = {place->left, place->top};
    SetWindowPos(m_window, nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    MoveOnScreen();
    GetWindowRect(m_window, &window);
    m_shownAt = POINT{window.left, window.top};
}

void Win32Dialog::MoveOnScreen() {
    RECT window{};
    GetWindowRect(m_window, &window);
    const RECT room = Room();
    const LONG left =
        std::clamp(window.left, room.left, std::max(room.left, room.right - (window.right - window.left)));
    const LONG top =
        std::clamp(window.top, room.top, std::max(room.top, room.bottom - (window.bottom - window.top)));
    if (left == window.left && top == window.top)
        return;
    SetWindowPos(m_window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (m_shownAt) { // it is not the user who moves it
        m_shownAt->x += left - window.left;
        m_shownAt->y += top - window.top;
    }
}

void Win32Dialog::ScrollTo(int top) {
    RECT client{};
    GetClientRect(m_window, &client);
    const int most = std::max(0, static_cast<int>(m_contentSize.cy - client.bottom));
    const int at = std::clamp(top, 0, most);
    SetWindowPos(m_content, nullptr, 0, -at, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    SCROLLINFO position{sizeof(position), SIF_POS, 0, 0, 0, at, 0};
    SetScrollInfo(m_window, SB_VERT, &position, TRUE);
}

void Win32Dialog::ScrollToFocus() {
    const Control* const active = m_dialog.ActiveControl();
    const HWND window = active ? WindowOf(*active) : nullptr;
    if (!window)
        return;
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, m_content, reinterpret_cast<POINT*>(&place), 2);
    RECT content{};
    GetWindowRect(m_content, &content);
    MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&content), 2);
    RECT client{};
    GetClientRect(m_window, &client);
    const int edge = GetSystemMetrics(SM_CYHSCROLL);
    if (place.top + content.top < 0)
        ScrollTo(static_cast<int>(place.top) - edge);
    else if (place.bottom + content.top > client.bottom)
        ScrollTo(static_cast<int>(place.bottom - client.bottom) + edge);
}

void Win32Dialog::FocusActiveControl() {
    Control* const active = m_dialog.ActiveControl();
    if (const HWND window = active && active->IsUsable() ? WindowOf(*active) : nullptr)
        SetFocus(window);
    else if (GetFocus() != m_window)
        SetFocus(m_window);
}

// What the model says

void Win32Dialog::Report(const std::function<void()>& report) noexcept {
    ReportChoices();
    Try(report);
}

void Win32Dialog::Try(const std::function<void()>& report) noexcept {
    if (m_failure)
        return; // the dialog has ended; what its window still does on its way out is not the user's
    try {
        report();
    } catch (...) {
        Fail();
    }
}

void Win32Dialog::Fail() noexcept {
    if (!m_failure)
        m_failure = std::current_exception();
    OnHidden();
}

void Win32Dialog::Detach() {
    m_dialog.SetListener(nullptr);
    m_dialog.SetWindowHandle(0);
    for (const View& view : m_views)
        if (view.system)
            SetWindowLongPtrW(view.window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(view.system));
    for (const HWND window : {m_window, m_content})
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
}

void Win32Dialog::OnDestroyed() {
    Detach();
    for (View& view : m_views)
        view.window = nullptr;
    m_chosen.clear();
    m_window = m_content = m_adviceLine = nullptr;
    OnHidden();
}

void Win32Dialog::OnControlChanged(const Control& control) {
    const bool isFrame = control.Kind() == ControlKind::Frame;
    for (View& view : m_views) {
        if (view.control != &control && !(isFrame && IsIn(*view.control, control)))
            continue;
        const bool wasShown = view.wasShown;
        Follow(view);
        if (control.Kind() != ControlKind::TextBox || view.wasShown != wasShown)
            ArrangeSoon(); // the text of a box takes no other room
    }
    if (control.Kind() == ControlKind::Label)
        NameViews();
    ShowAdvice();
}

void Win32Dialog::OnFocusMoved(const Control* focused) {
    const HWND window = focused ? WindowOf(*focused) : nullptr;
    if (window && GetFocus() != window && GetActiveWindow() == m_window)
        SetFocus(window);
    ScrollToFocus();
    ShowAdvice();
}

void Win32Dialog::OnTitleChanged() { SetTextOf(m_window, m_dialog.Title()); }

void Win32Dialog::OnHidden() {
    PostMessageW(m_window, WM_NULL, 0, 0); // wakes the loop, also when the window is gone
}

} // namespace QuorConversions::Win32Toolkit
