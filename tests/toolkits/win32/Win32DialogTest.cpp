#include "toolkits/win32/Win32Dialog.h"

#include "tests/toolkits/SampleDialog.h"
#include "tests/toolkits/win32/Win32Screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <commctrl.h>
#include <exception>
#include <ole2.h>
#include <stdexcept>

#include <oleacc.h>

using namespace QuorConversions;
using Support::ClickAt;
using Support::ExpectShowsTheModel;
using Support::HandleInput;
using Support::PressKey;
using Support::SampleDialog;
using Support::TextOf;
using Support::TypeCharacter;
using Support::WhenTrue;
using Support::WindowOf;
using Win32Toolkit::Win32Platform;

namespace {

using Texts = std::vector<std::wstring>;

/// With more boxes than a screen has lines.
class TallDialog : public SampleDialog {
public:
    TallDialog() {
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            labels[i]->SetCaption(L"Value " + std::to_wstring(i + 1));
            probe.AddRow({labels[i], boxes[i]});
        }
    }
    std::vector<Label*> labels = AddArray<Label>(L"lblMore", 100);
    std::vector<TextBox*> boxes = AddArray<TextBox>(L"txtMore", 100);
};

class TwoListsDialog : public SampleDialog {
public:
    TwoListsDialog() {
        for (const wchar_t* const item : {L"one", L"two", L"three"})
            second.AddItem(item);
        probe.AddRow({&second});
    }
    DropDownList& second = Add<DropDownList>(L"cboSecond");
};

RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

bool Contains(const RECT& outer, const RECT& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

RECT Room(HWND window) {
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

POINT MiddleOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right / 2, client.bottom / 2};
}

/// A dialog in its window, and keys and a mouse in front of it. What is pressed goes to the window in front,
/// as from the system.
class Win32DialogTest : public testing::Test {
protected:
    /// Runs a dialog while `act` acts on it. It is closed at the latest when that returns.
    void Run(SampleDialog& shown, const std::function<void()>& act) {
        std::exception_ptr failure;
        WhenTrue([&] { return IsWindowVisible(WindowOf(shown)) != FALSE; },
                 [&] {
                     Support::BringToFront(WindowOf(shown));
                     try {
                         act();
                     } catch (...) { // it must not pass through the message loop
                         failure = std::current_exception();
                     }
                     if (shown.IsOpen())
                         shown.Hide();
                 });
        shown.RunOn(platform);
        if (failure)
            std::rethrow_exception(failure);
    }
    void Run(const std::function<void()>& act) { Run(dialog, act); }

    static void Type(const std::wstring& text) {
        for (const wchar_t character : text)
            TypeCharacter(character);
    }
    static void Click(const Control& control) { ClickAt(WindowOf(control), MiddleOf(WindowOf(control))); }
    static std::wstring SelectedIn(const TextBox& box) {
        DWORD start = 0;
        DWORD end = 0;
        SendMessageW(WindowOf(box), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                     reinterpret_cast<LPARAM>(&end));
        return TextOf(WindowOf(box)).substr(start, end - start);
    }
    static void GoTo(Control& control) {
        SetFocus(WindowOf(control));
        ASSERT_EQ(control.Owner().ActiveControl(), &control);
    }
    bool SawEvent(const std::wstring& event) const {
        return std::find(dialog.events.begin(), dialog.events.end(), event) != dialog.events.end();
    }
    std::wstring Focused() const { return dialog.ActiveControl() ? dialog.ActiveControl()->Name() : L""; }

    Win32Platform platform;
    SampleDialog dialog;
};

} // namespace

// A dialog that nobody knows

TEST_F(Win32DialogTest, ShowsADialogThatItKnowsNothingOf) {
    dialog.kind.SetListIndex(0);
    dialog.name.SetText(L"\U0001F321 probe");
    Run([&] {
        ExpectShowsTheModel(dialog);
        EXPECT_EQ(TextOf(WindowOf(dialog.kind)), L"ice & water");
        EXPECT_EQ(TextOf(WindowOf(dialog.name)), L"\U0001F321 probe");
        EXPECT_EQ(TextOf(WindowOf(dialog)), L"Sample Settings");
    });
}

TEST_F(Win32DialogTest, DrawsEachControlWithThatOfTheSystem) {
    Run([&] {
        const auto classOf = [](const Control& control) {
            wchar_t name[64] = {};
            GetClassNameW(WindowOf(control), name, 64);
            return std::wstring(name);
        };
        EXPECT_EQ(classOf(dialog.lblName), L"Static");
        EXPECT_EQ(classOf(dialog.name), L"Edit");
        EXPECT_EQ(classOf(dialog.kind), L"ComboBox");
        EXPECT_EQ(classOf(dialog.tabs), L"SysTabControl32");
        EXPECT_EQ(classOf(dialog.ok), L"Button");
        EXPECT_EQ(classOf(dialog.probe), L"Button");
        EXPECT_EQ(GetWindowLongW(WindowOf(dialog.probe), GWL_STYLE) & BS_TYPEMASK, BS_GROUPBOX);
    });
}

TEST_F(Win32DialogTest, UsesTheFontOfTheSystemForMessages) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    ASSERT_TRUE(SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0));
    Run([&] {
        for (const Control* const control : std::initializer_list<const Control*>{
                 &dialog.lblName, &dialog.name, &dialog.kind, &dialog.tabs, &dialog.ok, &dialog.probe}) {
            LOGFONTW font{};
            const auto handle = reinterpret_cast<HFONT>(SendMessageW(WindowOf(*control), WM_GETFONT, 0, 0));
            ASSERT_NE(GetObjectW(handle, sizeof(font), &font), 0);
            EXPECT_STREQ(font.lfFaceName, metrics.lfMessageFont.lfFaceName);
            EXPECT_EQ(font.lfHeight, metrics.lfMessageFont.lfHeight);
        }
    });
}

TEST_F(Win32DialogTest, FollowsEveryChangeOfTheModel) {
    Run([&] {
        dialog.SetTitle(L"Other Settings");
        dialog.probe.SetCaption(L"Other:");
        dialog.lblName.SetCaption(L"Called:");
        dialog.ok.SetCaption(L"&Done");
        dialog.ok.SetEnabled(false);
        dialog.r0.SetVisible(false);
        dialog.voltages[0]->SetText(L"1.5");
        dialog.kind.Clear();
        dialog.kind.AddItem(L"one");
        dialog.kind.SetListIndex(0);
        dialog.tabs.RemoveTab(0);
        ExpectShowsTheModel(dialog);
        dialog.low.SetVisible(true);
        dialog.low.SetEnabled(false);
        EXPECT_FALSE(IsWindowEnabled(WindowOf(*dialog.temperatures[0])));
        dialog.low.SetVisible(false);
        EXPECT_FALSE(IsWindowVisible(WindowOf(*dialog.temperatures[0])));
        dialog.kind.SetListIndex(-1);
        EXPECT_EQ(SendMessageW(WindowOf(dialog.kind), CB_GETCURSEL, 0, 0), CB_ERR);
    });
}

// Keys

TEST_F(Win32DialogTest, MovesTheFocusThroughTheControlsInTheOrderOfTheModelAndRound) {
    Run([&] {
        Texts forwards;
        for (int i = 0; i < 12; ++i) {
            forwards.push_back(Focused());
            EXPECT_EQ(GetFocus(), WindowOf(*dialog.ActiveControl()));
            PressKey(VK_TAB);
        }
        EXPECT_EQ(forwards, (Texts{L"txtName", L"txtR0", L"cboKind", L"tabPages", L"txtTemperature(0)",
                                   L"txtTemperature(1)", L"txtVoltage(0)", L"txtVoltage(1)", L"cmdOK",
                                   L"cmdCancel", L"cmdMore", L"txtName"}));
        PressKey(VK_TAB, VK_SHIFT);
        EXPECT_EQ(Focused(), L"txtName");
        PressKey(VK_TAB, VK_SHIFT);
        EXPECT_EQ(Focused(), L"cmdMore");
    });
}

TEST_F(Win32DialogTest, PressesTheButtonOfAnAccessKey) {
    Run([&] {
        PressKey('M', VK_MENU);
        EXPECT_TRUE(SawEvent(L"click cmdMore"));
        EXPECT_EQ(Focused(), L"cmdMore");
        EXPECT_TRUE(dialog.IsOpen());
        PressKey('O', VK_MENU);
        EXPECT_TRUE(SawEvent(L"click cmdOK"));
        EXPECT_FALSE(dialog.IsOpen());
    });
}

TEST_F(Win32DialogTest, PressesTheButtonOfAnAccessKeyWithoutAltWhileAButtonHasTheFocus) {
    Run([&] {
        GoTo(dialog.ok);
        Type(L"m");
        EXPECT_TRUE(SawEvent(L"click cmdMore"));
        GoTo(dialog.name);
        dialog.events.clear();
        Type(L"m");
        EXPECT_FALSE(SawEvent(L"click cmdMore")) << "a box takes it for a character";
        EXPECT_EQ(dialog.name.Text(), L"m");
    });
}

TEST_F(Win32DialogTest, PressesNoButtonThatIsDisabledOrHidden) {
    dialog.ok.SetEnabled(false);
    dialog.more.SetVisible(false);
    Run([&] {
        PressKey('O', VK_MENU);
        PressKey('M', VK_MENU);
        Click(dialog.ok);
        EXPECT_FALSE(SawEvent(L"click cmdOK"));
        EXPECT_FALSE(SawEvent(L"click cmdMore"));
        EXPECT_EQ(Focused(), L"txtName");
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(Win32DialogTest, GoesToTheBoxWhoseLabelHasTheAccessKey) {
    dialog.r0.SetText(L"100.02");
    Run([&] {
        PressKey('R', VK_MENU);
        EXPECT_EQ(Focused(), L"txtR0");
        EXPECT_EQ(SelectedIn(dialog.r0), L"100.02");
        PressKey('K', VK_MENU);
        EXPECT_EQ(Focused(), L"cboKind");
        PressKey('N', VK_MENU);
        EXPECT_EQ(Focused(), L"txtName");
        EXPECT_EQ(dialog.r0.Text(), L"100.02");
        EXPECT_EQ(dialog.name.Text(), L"");
    });
}

TEST_F(Win32DialogTest, TurnsPagesByAccessKeyByControlTabAndByArrow) {
    Run([&] {
        PressKey('H', VK_MENU);
        EXPECT_EQ(dialog.tabs.Selected(), 2U);
        EXPECT_TRUE(IsWindowVisible(WindowOf(dialog.note)));
        EXPECT_FALSE(IsWindowVisible(WindowOf(*dialog.temperatures[0])));
        PressKey('L', VK_MENU);
        EXPECT_EQ(dialog.tabs.Selected(), 0U);
        EXPECT_TRUE(IsWindowVisible(WindowOf(*dialog.temperatures[0])));
        PressKey(VK_TAB, VK_CONTROL);
        EXPECT_EQ(dialog.tabs.Selected(), 1U);
        dialog.tabs.RemoveTab(2);
        PressKey(VK_TAB, VK_CONTROL);
        EXPECT_EQ(dialog.tabs.Selected(), 0U) << "the last one is not there any more";
        PressKey(VK_RIGHT);
        EXPECT_EQ(dialog.tabs.Selected(), 1U);
        ExpectShowsTheModel(dialog);
    });
}

TEST_F(Win32DialogTest, MovesOnWithEnterExceptFromAButtonWhichItPresses) {
    Run([&] {
        Texts path;
        for (int i = 0; i < 9; ++i) {
            path.push_back(Focused());
            PressKey(VK_RETURN);
        }
        EXPECT_EQ(path, (Texts{L"txtName", L"txtR0", L"cboKind", L"tabPages", L"txtTemperature(0)",
                               L"txtTemperature(1)", L"txtVoltage(0)", L"txtVoltage(1)", L"cmdOK"}));
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_EQ(dialog.events.back(), L"click cmdOK");
}

TEST_F(Win32DialogTest, CancelsWithEscapeFromEveryControl) {
    for (const wchar_t* const name : {L"txtR0", L"cboKind", L"tabPages", L"cmdOK"}) {
        SampleDialog escaped;
        Run(escaped, [&] {
            GoTo(*escaped.Find(name));
            PressKey(VK_ESCAPE);
            EXPECT_FALSE(escaped.IsOpen());
        });
        EXPECT_EQ(escaped.events.back(), L"click cmdCancel");
    }
}

TEST_F(Win32DialogTest, ClosesAnOpenListAtEscapeAndChoosesNothing) {
    dialog.kind.SetListIndex(0);
    dialog.events.clear();
    Run([&] {
        GoTo(dialog.kind);
        PressKey(VK_DOWN, VK_MENU);
        ASSERT_TRUE(SendMessageW(WindowOf(dialog.kind), CB_GETDROPPEDSTATE, 0, 0));
        PressKey(VK_DOWN);
        PressKey(VK_ESCAPE);
        EXPECT_FALSE(SendMessageW(WindowOf(dialog.kind), CB_GETDROPPEDSTATE, 0, 0));
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(dialog.kind.ListIndex(), 0);
        EXPECT_FALSE(SawEvent(L"click cboKind"));
        ExpectShowsTheModel(dialog);
    });
}

TEST_F(Win32DialogTest, ReportsTheItemWithWhichAListClosesOnce) {
    dialog.kind.SetListIndex(0);
    dialog.events.clear();
    Run([&] {
        GoTo(dialog.kind);
        dialog.events.clear();
        PressKey(VK_DOWN, VK_MENU);
        PressKey(VK_DOWN);
        PressKey(VK_DOWN);
        EXPECT_EQ(dialog.events, Texts{}) << "the list is still open";
        PressKey(VK_RETURN);
        EXPECT_EQ(dialog.kind.ListIndex(), 2);
        EXPECT_EQ(dialog.events, (Texts{L"click cboKind"}));
        PressKey(VK_UP);
        EXPECT_EQ(dialog.kind.ListIndex(), 1);
        EXPECT_EQ(dialog.events, (Texts{L"click cboKind", L"click cboKind"}));
        EXPECT_EQ(Focused(), L"cboKind");
    });
}

TEST_F(Win32DialogTest, ReportsWhatWasChosenInEachListBeforeTheClickThatFollows) {
    TwoListsDialog two;
    Run(two, [&] {
        const auto choose = [](const DropDownList& list, WPARAM item) { // as a program that reads the screen
            const HWND window = WindowOf(list);
            SendMessageW(window, CB_SETCURSEL, item, 0);
            SendMessageW(GetParent(window), WM_COMMAND,
                         MAKEWPARAM(GetDlgCtrlID(window), static_cast<WORD>(CBN_SELCHANGE)),
                         reinterpret_cast<LPARAM>(window));
        };
        choose(two.kind, 1);
        choose(two.second, 2);
        SendMessageW(WindowOf(two.ok), BM_CLICK, 0, 0);
    });
    EXPECT_EQ(two.kind.ListIndex(), 1);
    EXPECT_EQ(two.second.ListIndex(), 2);
    EXPECT_FALSE(two.IsOpen());
    const auto at = [&](const wchar_t* event) {
        return std::find(two.events.begin(), two.events.end(), event) - two.events.begin();
    };
    EXPECT_LT(at(L"click cboKind"), at(L"click cboSecond"));
    EXPECT_LT(at(L"click cboSecond"), at(L"click cmdOK"));
    EXPECT_EQ(two.events.back(), L"click cmdOK");
}

TEST_F(Win32DialogTest, PressesNothingByAKeyThatIsHeldDown) {
    dialog.SetHelpButton(dialog.more);
    Run([&] {
        constexpr LPARAM repeated = 0x40000001; // the key was down before
        const auto hold = [](const Control& control, WPARAM key) {
            PostMessageW(WindowOf(control), WM_KEYDOWN, key, repeated);
            HandleInput();
        };
        GoTo(dialog.kind);
        hold(dialog.kind, VK_RETURN);
        EXPECT_EQ(Focused(), L"tabPages") << "Enter goes on";
        GoTo(dialog.ok);
        dialog.events.clear();
        for (const WPARAM key : {VK_RETURN, VK_ESCAPE, VK_F1})
            hold(dialog.ok, key);
        EXPECT_EQ(dialog.events, Texts{});
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(Win32DialogTest, IsCancelledWhenItsOwnerIsDestroyed) {
    for (const bool refuses : {false, true}) {
        SampleDialog owned;
        if (refuses)
            owned.onClose = [] {};
        const HWND owner = CreateWindowExW(0, L"STATIC", L"Host", WS_POPUP | WS_VISIBLE, 0, 0, 200, 200,
                                           nullptr, nullptr, nullptr, nullptr);
        Support::BringToFront(owner);
        ASSERT_EQ(GetActiveWindow(), owner);
        const HWND other = CreateWindowExW(0, L"STATIC", L"Other", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                           nullptr, nullptr, nullptr, nullptr);
        SetActiveWindow(owner);
        WhenTrue([&] { return IsWindowVisible(WindowOf(owned)) != FALSE; }, [&] { DestroyWindow(owner); });
        owned.RunOn(platform);
        EXPECT_EQ(owned.events.back(), L"close");
        EXPECT_EQ(owned.IsOpen(), refuses);
        EXPECT_EQ(owned.WindowHandle(), 0);
        EXPECT_FALSE(owned.Place());
        EXPECT_TRUE(IsWindowEnabled(other));
        DestroyWindow(other);
    }
}

TEST_F(Win32DialogTest, PressesHelpByF1WhereverTheFocusIs) {
    dialog.SetHelpButton(dialog.more);
    Run([&] {
        for (Control* const control :
             std::initializer_list<Control*>{&dialog.name, &dialog.kind, &dialog.tabs, &dialog.ok}) {
            GoTo(*control);
            dialog.events.clear();
            PressKey(VK_F1);
            EXPECT_TRUE(SawEvent(L"click cmdMore"));
            EXPECT_EQ(dialog.ActiveControl(), control);
        }
    });
}

TEST_F(Win32DialogTest, PressesTheFocusedButtonWithSpace) {
    Run([&] {
        GoTo(dialog.more);
        PressKey(VK_SPACE);
        EXPECT_EQ(dialog.events.back(), L"click cmdMore");
        GoTo(dialog.ok);
        PressKey(VK_SPACE);
        EXPECT_FALSE(dialog.IsOpen());
    });
}

TEST_F(Win32DialogTest, TypesWhatTheModelPutsInThePlaceOfAKey) {
    dialog.onKeyPress = [](std::int16_t& keyAscii) {
        if (keyAscii == '.')
            keyAscii = ',';
        else if (keyAscii > '9')
            keyAscii = 0;
    };
    Run([&] {
        Type(L"1x.5");
        EXPECT_EQ(dialog.name.Text(), L"1,5");
        EXPECT_EQ(dialog.name.SelStart(), 3U);
        ExpectShowsTheModel(dialog);
    });
}

TEST_F(Win32DialogTest, BringsWhatIsPastedByKeyOrMenuToTheModelAndUndoesIt) {
    dialog.name.SetText(L"a");
    Run([&] {
        Support::SetClipboard(L"99.9746");
        PressKey('A', VK_CONTROL);
        PressKey('V', VK_CONTROL);
        EXPECT_EQ(dialog.name.Text(), L"99.9746");
        PressKey('Z', VK_CONTROL);
        EXPECT_EQ(dialog.name.Text(), L"a");
        PressKey('A', VK_CONTROL);
        PressKey(VK_INSERT, VK_SHIFT);
        EXPECT_EQ(dialog.name.Text(), L"99.9746");
        GoTo(dialog.r0);
        SendMessageW(WindowOf(dialog.r0), WM_PASTE, 0, 0); // as the menu of the box does
        EXPECT_EQ(dialog.r0.Text(), L"99.9746");
        ExpectShowsTheModel(dialog);
    });
}

TEST_F(Win32DialogTest, FollowsTheSelectionThatTheUserMakes) {
    dialog.name.SetText(L"100.02345");
    Run([&] {
        PressKey(VK_END);
        EXPECT_EQ(dialog.name.SelStart(), 9U);
        EXPECT_EQ(dialog.name.SelLength(), 0U);
        PressKey(VK_LEFT, VK_SHIFT);
        PressKey(VK_LEFT, VK_SHIFT);
        EXPECT_EQ(dialog.name.SelStart(), 7U);
        EXPECT_EQ(dialog.name.SelLength(), 2U);
        PressKey(VK_BACK);
        EXPECT_EQ(dialog.name.Text(), L"100.023");
        PressKey('A', VK_CONTROL);
        EXPECT_EQ(dialog.name.SelLength(), 7U);
        PressKey('X', VK_CONTROL);
        EXPECT_EQ(dialog.name.Text(), L"");
        PressKey('V', VK_CONTROL);
        EXPECT_EQ(dialog.name.Text(), L"100.023");
    });
}

// Screen readers

TEST_F(Win32DialogTest, NamesABoxByItsLabelHeadingAndUnit) {
    if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version"))
        GTEST_SKIP() << "Wine keeps no names for screen readers";
    ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    const auto spoken = [](const Control& control) {
        IAccessible* box = nullptr;
        BSTR name = nullptr;
        VARIANT self{};
        self.vt = VT_I4;
        self.lVal = CHILDID_SELF;
        if (FAILED(AccessibleObjectFromWindow(WindowOf(control), static_cast<DWORD>(OBJID_CLIENT),
                                              __uuidof(IAccessible), reinterpret_cast<void**>(&box))))
            return std::wstring();
        box->get_accName(self, &name);
        box->Release();
        std::wstring text = name ? name : L"";
        SysFreeString(name);
        return text;
    };
    Run([&] {
        EXPECT_EQ(spoken(dialog.r0), L"R0, \u03A9");
        EXPECT_EQ(spoken(*dialog.voltages[1]), L"Voltage 2, mV");
        dialog.lblR0.SetCaption(L"&RTPW:");
        EXPECT_EQ(spoken(dialog.r0), L"RTPW, \u03A9");
    });
    CoUninitialize();
}

// Advice

TEST_F(Win32DialogTest, ShowsTheAdviceOfABoxBelowTheBoxesWhichStayInTheirPlace) {
    Run([&] {
        const HWND line = Support::AdviceLineOf(dialog);
        EXPECT_EQ(TextOf(line), L"");
        const LONG top = PlaceOf(WindowOf(dialog.r0)).top;
        dialog.r0.SetAdvice(L"Only 1 of 1E would be stored");
        EXPECT_EQ(TextOf(line), L"R0: Only 1 of 1E would be stored");
        dialog.name.SetAdvice(L"Not a name");
        EXPECT_EQ(TextOf(line), L"Name: Not a name") << "of the box with the focus";
        PressKey(VK_TAB);
        EXPECT_EQ(TextOf(line), L"R0: Only 1 of 1E would be stored");
        EXPECT_EQ(PlaceOf(WindowOf(dialog.r0)).top, top);
        EXPECT_TRUE(IsWindowVisible(line));
        EXPECT_TRUE(Contains(PlaceOf(WindowOf(dialog)), PlaceOf(line)));
        dialog.r0.SetAdvice({});
        dialog.name.SetAdvice({});
        EXPECT_EQ(TextOf(line), L"");
    });
}

TEST_F(Win32DialogTest, MarksABoxWithAdviceByTheColoursOfAToolTip) {
    Run([&] {
        const HWND box = WindowOf(dialog.r0);
        const auto ground = [&] {
            HandleInput();
            const HDC dc = GetDC(box);
            const COLORREF colour = GetPixel(dc, 3, MiddleOf(box).y);
            ReleaseDC(box, dc);
            return colour;
        };
        EXPECT_EQ(ground(), GetSysColor(COLOR_WINDOW));
        dialog.r0.SetAdvice(L"Only 1 of 1E would be stored");
        EXPECT_EQ(ground(), GetSysColor(COLOR_INFOBK));
        dialog.r0.SetAdvice({});
        EXPECT_EQ(ground(), GetSysColor(COLOR_WINDOW));
    });
}

// The mouse

TEST_F(Win32DialogTest, SelectsAllOfABoxWithTheClickThatGoesToItAndPutsTheCursorWithTheNext) {
    dialog.r0.SetText(L"100.02345");
    Run([&] {
        Click(dialog.r0);
        EXPECT_EQ(Focused(), L"txtR0");
        EXPECT_EQ(SelectedIn(dialog.r0), L"100.02345");
        Sleep(GetDoubleClickTime() + 50); // what is clicked now is a click of its own
        RECT client{};
        GetClientRect(WindowOf(dialog.r0), &client);
        ClickAt(WindowOf(dialog.r0), {client.right - 2, client.bottom / 2});
        EXPECT_EQ(SelectedIn(dialog.r0), L"");
        EXPECT_EQ(dialog.r0.SelStart(), 9U);
    });
}

TEST_F(Win32DialogTest, GoesBackToABoxThatIsClickedTwiceInAShortTime) {
    dialog.r0.SetText(L"100.02345");
    Run([&] {
        Click(dialog.r0);
        PressKey(VK_TAB);
        EXPECT_EQ(Focused(), L"cboKind");
        Click(dialog.r0);
        EXPECT_EQ(Focused(), L"txtR0") << "for the system it is a double click";
        EXPECT_EQ(SelectedIn(dialog.r0), L"100.02345");
    });
}

TEST_F(Win32DialogTest, TurnsNoListWithTheWheelThatHasNoFocus) {
    dialog.kind.SetListIndex(0);
    Run([&] {
        Support::TurnWheelOver(WindowOf(dialog.kind));
        SendMessageW(WindowOf(dialog.kind), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
        EXPECT_EQ(dialog.kind.ListIndex(), 0);
        EXPECT_EQ(Focused(), L"txtName");
        ExpectShowsTheModel(dialog);
    });
}

// Its end

TEST_F(Win32DialogTest, ReportsThatItsFrameIsClosedAndPressesNoButton) {
    Run([&] {
        PressKey(VK_F4, VK_MENU);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_TRUE(SawEvent(L"close"));
    EXPECT_FALSE(SawEvent(L"click cmdCancel"));
}

TEST_F(Win32DialogTest, StaysOpenWhereTheModelDoesNotLetItsFrameClose) {
    dialog.onClose = [] {};
    Run([&] {
        PressKey(VK_F4, VK_MENU);
        EXPECT_TRUE(IsWindowVisible(WindowOf(dialog)));
    });
    EXPECT_TRUE(SawEvent(L"close"));
}

TEST_F(Win32DialogTest, NeverShowsADialogThatIsHiddenWhileItLoads) {
    dialog.onActivate = [&] {
        EXPECT_FALSE(IsWindowVisible(WindowOf(dialog)));
        dialog.Hide();
    };
    dialog.SetPlace(Dialog::Placement{9000, 9000});
    dialog.RunOn(platform);
    EXPECT_EQ(dialog.events, (Texts{L"got txtName", L"activate"}));
    EXPECT_EQ(dialog.WindowHandle(), 0);
    ASSERT_TRUE(dialog.Place());
    EXPECT_EQ(dialog.Place()->left, 9000) << "a window that was not there cannot have been moved";
}

TEST_F(Win32DialogTest, EndsWithTheFirstOfTheErrorsThatTheModelRaised) {
    dialog.onKeyPress = [&](std::int16_t&) {
        dialog.onLostFocus = dialog.onGotFocus = [](Control&) { throw std::runtime_error("the second"); };
        throw std::runtime_error("the first");
    };
    try {
        Run([&] {
            Type(L"1");
            PressKey(VK_TAB);
        });
        ADD_FAILURE() << "no error came out";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "the first");
    }
    EXPECT_EQ(dialog.WindowHandle(), 0);
    dialog.SetTitle(L"nobody follows it any more");
}

TEST_F(Win32DialogTest, EndsWithTheErrorOfAModelThatCannotLoad) {
    dialog.onActivate = [] { throw std::runtime_error("nothing to load"); };
    EXPECT_THROW(dialog.RunOn(platform), std::runtime_error);
    EXPECT_EQ(dialog.WindowHandle(), 0);
}

TEST_F(Win32DialogTest, ShowsADialogOverADialogWhichTakesNoInputMeanwhile) {
    SampleDialog inner;
    dialog.onClick = [&](Control& control) {
        if (&control != &dialog.more)
            return;
        Run(inner, [&] {
            EXPECT_EQ(GetWindow(WindowOf(inner), GW_OWNER), WindowOf(dialog));
            EXPECT_FALSE(IsWindowEnabled(WindowOf(dialog)));
            Type(L"7");
            PressKey(VK_ESCAPE);
        });
    };
    Run([&] {
        Click(dialog.more);
        EXPECT_FALSE(inner.IsOpen());
        EXPECT_EQ(inner.name.Text(), L"7");
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_TRUE(IsWindowEnabled(WindowOf(dialog)));
        Support::BringToFront(WindowOf(dialog));
        EXPECT_EQ(dialog.name.Text(), L"");
        EXPECT_EQ(Focused(), L"cmdMore");
        PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_FALSE(SawEvent(L"click cmdOK"));
}

TEST_F(Win32DialogTest, EndsWithTheHost) {
    Run([&] { PostQuitMessage(7); });
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the host must see it, too";
    EXPECT_EQ(message.wParam, 7U);
}

// Its place and size

TEST_F(Win32DialogTest, StandsWhereItStoodAndRemembersWhereItIsMoved) {
    dialog.SetPlace(Dialog::Placement{120, 240});
    Run([&] {
        EXPECT_EQ(PlaceOf(WindowOf(dialog)).left, 120);
        EXPECT_EQ(PlaceOf(WindowOf(dialog)).top, 240);
        SetWindowPos(WindowOf(dialog), nullptr, 300, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    });
    ASSERT_TRUE(dialog.Place());
    EXPECT_EQ(dialog.Place()->left, 300);
    EXPECT_EQ(dialog.Place()->top, 200);
}

TEST_F(Win32DialogTest, RemembersNoPlaceOfAWindowThatNobodyMoved) {
    Run([&] { PressKey(VK_ESCAPE); });
    EXPECT_FALSE(dialog.Place());
}

TEST_F(Win32DialogTest, StandsOnTheScreenAlsoWhereItsPlaceIsNotAndKeepsThePlaceInMind) {
    for (const auto& place :
         {Dialog::Placement{-900, -900}, Dialog::Placement{1270, 1010}, Dialog::Placement{20000, 20000}}) {
        SampleDialog away;
        away.SetPlace(place);
        Run(away, [&] { EXPECT_TRUE(Contains(Room(WindowOf(away)), PlaceOf(WindowOf(away)))); });
        ASSERT_TRUE(away.Place());
        EXPECT_EQ(away.Place()->left, place.left) << "nobody moved it: its screen may come back";
        EXPECT_EQ(away.Place()->top, place.top);
    }
}

TEST_F(Win32DialogTest, GrowsWithItsRowsAndNeverShrinks) {
    dialog.low.SetVisible(false);
    Run([&] {
        const RECT before = PlaceOf(WindowOf(dialog));
        dialog.low.SetVisible(true);
        HandleInput();
        const RECT grown = PlaceOf(WindowOf(dialog));
        EXPECT_GT(grown.bottom - grown.top, before.bottom - before.top);
        EXPECT_GE(grown.right - grown.left, before.right - before.left);
        dialog.low.SetVisible(false);
        HandleInput();
        EXPECT_EQ(PlaceOf(WindowOf(dialog)).bottom, grown.bottom);
    });
    EXPECT_FALSE(dialog.Place()) << "it was not the user who moved it";
}

TEST_F(Win32DialogTest, HasRoomForEachControlAndNoTwoOverlap) {
    Run([&] {
        std::vector<RECT> places;
        RECT client{};
        GetClientRect(WindowOf(dialog), &client);
        MapWindowPoints(WindowOf(dialog), nullptr, reinterpret_cast<POINT*>(&client), 2);
        for (const auto& control : dialog.Controls()) {
            if (!control->IsShown() || !WindowOf(*control))
                continue;
            SCOPED_TRACE(testing::PrintToString(control->Name()));
            const RECT place = PlaceOf(WindowOf(*control));
            EXPECT_GT(place.right, place.left);
            EXPECT_GT(place.bottom, place.top);
            EXPECT_TRUE(Contains(client, place));
            if (control->Kind() == ControlKind::Frame || control->Kind() == ControlKind::TabStrip)
                continue; // others stand in it
            for (const RECT& other : places) {
                RECT both{};
                EXPECT_FALSE(IntersectRect(&both, &place, &other));
            }
            places.push_back(place);
        }
        EXPECT_GT(places.size(), 10U);
    });
}

TEST_F(Win32DialogTest, ScrollsWhereTheScreenIsTooSmallAndShowsTheBoxThatHasTheFocus) {
    TallDialog tall;
    Run(tall, [&] {
        const HWND window = WindowOf(tall);
        EXPECT_TRUE(Contains(Room(window), PlaceOf(window)));
        const auto isSeen = [&](const Control& control) {
            return Contains(PlaceOf(window), PlaceOf(WindowOf(control)));
        };
        EXPECT_TRUE(isSeen(tall.name));
        EXPECT_FALSE(isSeen(*tall.boxes[99]));
        PressKey(VK_TAB, VK_SHIFT);
        EXPECT_EQ(tall.ActiveControl(), tall.boxes[99]);
        EXPECT_TRUE(isSeen(*tall.boxes[99])) << "by the Tab key";
        PressKey(VK_RETURN);
        EXPECT_EQ(tall.ActiveControl(), &tall.name);
        EXPECT_TRUE(isSeen(tall.name)) << "by Enter";
        EXPECT_TRUE(tall.SetFocus(*tall.boxes[60]));
        EXPECT_TRUE(isSeen(*tall.boxes[60])) << "by the model, as when it refuses a value";
        const LONG before = PlaceOf(WindowOf(*tall.boxes[60])).top;
        Support::TurnWheelOver(window);
        EXPECT_LT(PlaceOf(WindowOf(*tall.boxes[60])).top, before) << "by the wheel";
    });
}
