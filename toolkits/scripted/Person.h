#pragma once

#include "QuorConversions/controls/Dialog.h"
#include "toolkits/scripted/InputDriver.h"

#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace QuorConversions::Scripted {

/// What a person cannot do with the dialog in front of them: there is no such control, it is hidden, it is
/// disabled, the dialog is closed.
struct CannotDo : std::runtime_error {
    explicit CannotDo(const std::wstring& what);
    std::wstring text;
};

/// The name of a box in the code, and what the dialog advises of its text.
using BoxAdvice = std::pair<std::wstring, std::wstring>;

/// A user written down: sees what is on the screen, and does with it what people do. Controls are named as
/// they see them: by the label beside them ("R0", without the colon), by the heading above them and the
/// number of the row
/// ("Temperature 2"), by their own caption ("OK", without the access key); or by their name in the code
/// ("txtCoefficients(0)").
class Person {
public:
    Person(Dialog& dialog, InputDriver& driver) : m_dialog(dialog), m_driver(driver) {}

    /// Goes to a text box, which selects its text, and types over it.
    void Type(std::wstring_view box, std::wstring_view text);
    /// Types at the place of the selection of the box that has the focus.
    void TypeHere(std::wstring_view text);
    /// Goes to a text box, which selects its text, and pastes what was copied elsewhere.
    void Paste(std::wstring_view box, const std::wstring& text);
    /// Pastes at the place of the selection of the box that has the focus.
    void PasteHere(const std::wstring& text) { OnOpenDialog().Paste(text); }
    /// Presses a key that has a character code, 13 for Enter, 8 for Backspace.
    void Press(std::int16_t keyAscii) { OnOpenDialog().Press(keyAscii); }
    void Tab(bool backwards = false) { OnOpenDialog().Tab(backwards); }
    void Escape() { OnOpenDialog().Escape(); }
    /// Presses F1.
    void Help() { OnOpenDialog().Help(); }
    /// Goes to a control.
    void GoTo(std::wstring_view control);
    /// Chooses the item with that text.
    void Choose(std::wstring_view list, std::wstring_view item);
    /// Goes to the page with that tab.
    void TurnTo(std::wstring_view tab);
    void Click(std::wstring_view button);
    /// Moves the window.
    void MoveTo(std::int32_t left, std::int32_t top) { m_driver.MoveTo(left, top); }
    /// Closes the window by its own close box.
    void Close() { OnOpenDialog().Close(); }

    [[nodiscard]] const Dialog& Sees() const { return m_dialog; }
    /// The text of a box, the selected item of a list, the caption of anything else.
    [[nodiscard]] std::wstring Reads(std::wstring_view control) const;
    /// The name in the code of the control that has the focus; empty for none.
    [[nodiscard]] std::wstring Focused() const;
    /// What the dialog advises of the text of a box; empty for nothing.
    [[nodiscard]] std::wstring Advice(std::wstring_view box) const;
    /// What it advises, of all boxes.
    [[nodiscard]] std::set<BoxAdvice> AllAdvice() const;
    /// Whether the dialog gives this advice of any box.
    [[nodiscard]] bool SeesAdvice(std::wstring_view advice) const;
    /// The whole dialog as text: its title, and a line a row with what stands in it; advice stands behind its
    /// box, after "!". Disabled controls stand
    /// in parentheses; what is hidden is listed behind, by name. Control characters of what stands there,
    /// from a file perhaps, are escaped: a row stays a line, and the text can be printed on a terminal.
    [[nodiscard]] std::wstring Screen() const;

    /// The controls that a person can name here, by those names.
    [[nodiscard]] std::vector<std::wstring> Names() const;

private:
    /// Only an open dialog can be acted on.
    [[nodiscard]] InputDriver& OnOpenDialog() const;
    [[nodiscard]] Control& Find(std::wstring_view name) const;
    template <class T>
    [[nodiscard]] T& Find(std::wstring_view name, ControlKind kind, const wchar_t* what) const;

    Dialog& m_dialog;
    InputDriver& m_driver;
};

} // namespace QuorConversions::Scripted
