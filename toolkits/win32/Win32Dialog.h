#pragma once

#include "QuorConversions/controls/Dialog.h"

#include <exception>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>
#include <windows.h>

namespace QuorConversions::Win32Toolkit {

/// The id of the window of the first control of a dialog in its parent; those of the others follow in the
/// order of Dialog::Controls. A frame without a caption has no window.
constexpr int firstControlId = 1000;
/// The id of the line that shows the advice.
constexpr int adviceId = 999;

/// A dialog of the library as a window of the system, for the one time that it is run. What the user does is
/// reported to the model; the windows show what the model says, and nothing else.
class Win32Dialog final : private DialogListener {
public:
    /// Creates the window, which is not shown yet. Raises QuorError where the system creates none, as in a
    /// session without a screen.
    Win32Dialog(Dialog& dialog, DialogInput& input, HWND owner);
    Win32Dialog(const Win32Dialog&) = delete;
    Win32Dialog& operator=(const Win32Dialog&) = delete;
    ~Win32Dialog() override;

    /// Shows the dialog until the model is hidden. Raises what the model has raised meanwhile.
    void Run();

    /// Gives a message of the queue of this thread to its window, or to the dialog when it is a key of the
    /// dialog.
    static void Dispatch(const MSG& message);

private:
    struct View {
        Control* control = nullptr;
        HWND window = nullptr;    ///< null for a frame without a caption
        WNDPROC system = nullptr; ///< what handles its messages otherwise, where this dialog sees them first
        bool wasShown = false;    ///< what the window shows now
        bool wasEnabled = true;
    };

    static LRESULT CALLBACK FrameProcedure(HWND window, UINT message, WPARAM w, LPARAM l);
    static LRESULT CALLBACK ContentProcedure(HWND window, UINT message, WPARAM w, LPARAM l);
    static LRESULT CALLBACK ControlProcedure(HWND window, UINT message, WPARAM w, LPARAM l);
    /// The dialog of a frame or of its content; null for any other window.
    [[nodiscard]] static Win32Dialog* DialogOf(HWND window);
    LRESULT OnFrame(UINT message, WPARAM w, LPARAM l);
    LRESULT OnContent(UINT message, WPARAM w, LPARAM l);
    LRESULT OnControl(const View& view, UINT message, WPARAM w, LPARAM l);
    LRESULT OnBox(const View& view, TextBox& box, UINT message, WPARAM w, LPARAM l);
    void OnCommand(int id, int code);
    /// A key that is the dialog's, whichever control has the focus.
    [[nodiscard]] bool TakesKey(const MSG& message);
    /// Does what the access key of a caption does. False if no caption has it.
    [[nodiscard]] bool PressAccessKey(wchar_t key);
    /// Turns to the next page that is present.
    void TurnPage(bool backwards);

    void CreateViews();
    /// Gives boxes and lists their names and units for screen readers, as those in a grid of points.
    void NameViews() const;
    [[nodiscard]] HWND CreateView(const Control& control, int id) const;
    /// Makes the window of a control show what the control says.
    void Follow(View& view);
    void FollowText(const TextBox& box, HWND window);
    void FollowItems(const DropDownList& list, HWND window);
    void FollowTabs(const TabStrip& tabs, HWND window);
    void ShowAdvice();
    void ReportEdit(TextBox& box, HWND window);
    void PasteInto(TextBox& box, HWND window);
    /// The colour on which a window is drawn: that of the dialog, or of the page on which it stands.
    [[nodiscard]] COLORREF GroundOf(HWND window) const;
    [[nodiscard]] HWND WindowOf(const Control& control) const;
    [[nodiscard]] Control* ControlOf(HWND window) const;

    /// Takes the font of the system, at the scale of the screen of the window.
    void TakeFont();
    /// Arranges the controls when all changes of the moment are made.
    void ArrangeSoon();
    void Arrange();
    /// The part of the screen that the window may take.
    [[nodiscard]] RECT Room() const;
    void PutInPlace();
    void MoveOnScreen();
    void ScrollTo(int top);
    void ScrollToFocus();
    void FocusActiveControl();

    /// Reports something to the model, after what was chosen in lists. The first exception ends the dialog,
    /// and Run raises it: none may pass through the system's code.
    void Report(const std::function<void()>& report) noexcept;
    void Try(const std::function<void()>& report) noexcept;
    /// Ends the dialog with the exception that is being handled.
    void Fail() noexcept;
    /// Runs what handles a message of a window. An exception ends the dialog.
    template <class Handle>
    [[nodiscard]] LRESULT Guarded(Handle&& handle) noexcept;
    /// Reports what was chosen in lists that have closed.
    void ReportChoices() noexcept;
    [[nodiscard]] bool IsChosen(const DropDownList& list) const;
    /// Lets go of the model, and of the messages of the windows.
    void Detach();
    /// The window is destroyed from outside, as with its owner: the dialog ends.
    void OnDestroyed();

    void OnControlChanged(const Control& control) override;
    void OnFocusMoved(const Control* focused) override;
    void OnTitleChanged() override;
    void OnHidden() override;

    Dialog& m_dialog;
    DialogInput& m_input;
    HWND m_owner;
    HWND m_window = nullptr;
    HWND m_content = nullptr; // moved where the screen is too small for it
    HWND m_adviceLine = nullptr;
    HFONT m_font = nullptr;
    std::vector<View> m_views; // as the controls of the model
    std::wstring m_advice;
    SIZE m_contentSize{};
    COLORREF m_pageColour = 0;
    std::optional<POINT> m_shownAt;
    std::vector<DropDownList*> m_chosen;  // lists whose choice is not reported yet, in order
    const Control* m_reporting = nullptr; // whose window is ahead of its control for a moment
    bool m_isFollowing = false;           // what the windows report then is not the user's
    bool m_reportsChoices = false;
    bool m_isPasting = false;
    bool m_arrangesSoon = false;
    std::exception_ptr m_failure;
};

} // namespace QuorConversions::Win32Toolkit
