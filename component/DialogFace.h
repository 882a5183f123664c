#pragma once

#include "QuorConversions/controls/Dialog.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace QuorConversions::Component {

/// ControlKind with a number for other languages. Numbers are only added.
enum EControlKind : std::int32_t {
    CONTROL_LABEL = 0,
    CONTROL_PUSH_BUTTON = 1,
    CONTROL_TEXT_BOX = 2,
    CONTROL_DROP_DOWN_LIST = 3,
    CONTROL_FRAME = 4,
    CONTROL_TAB_STRIP = 5,
};

class DialogFace;

/// A control of a dialog that runs, as a host reads it. A member that its kind does not have raises 438, an
/// index that is none 9, and everything 91 once the dialog has ended.
class ControlFace {
public:
    ControlFace(DialogFace& owner, const Control& control) : m_owner(&owner), m_control(&control) {}

    [[nodiscard]] std::wstring Name() const { return Get().Name(); }
    [[nodiscard]] EControlKind Kind() const { return static_cast<EControlKind>(Get().Kind()); }
    [[nodiscard]] std::wstring Caption() const { return Get().Caption(); }
    [[nodiscard]] bool Enabled() const { return Get().Enabled(); }
    [[nodiscard]] bool Visible() const { return Get().Visible(); }
    [[nodiscard]] bool IsShown() const { return Get().IsShown(); }
    [[nodiscard]] bool IsUsable() const { return Get().IsUsable(); }
    [[nodiscard]] std::shared_ptr<ControlFace> Parent() const;
    [[nodiscard]] std::wstring Text() const;
    [[nodiscard]] std::wstring Advice() const;
    [[nodiscard]] std::int32_t SelStart() const;
    [[nodiscard]] std::int32_t SelLength() const;
    [[nodiscard]] std::int32_t ListCount() const;
    [[nodiscard]] std::wstring List(std::int32_t index) const;
    [[nodiscard]] std::int32_t ItemData(std::int32_t index) const;
    [[nodiscard]] std::int32_t ListIndex() const;
    [[nodiscard]] std::int32_t RowCount() const;
    [[nodiscard]] std::int32_t RowLength(std::int32_t row) const;
    [[nodiscard]] std::shared_ptr<ControlFace> RowControls(std::int32_t row, std::int32_t place) const;
    [[nodiscard]] std::int32_t TabCount() const;
    [[nodiscard]] std::wstring TabCaption(std::int32_t index) const;
    [[nodiscard]] bool TabPresent(std::int32_t index) const;
    [[nodiscard]] std::int32_t SelectedTab() const;

    /// The control itself.
    [[nodiscard]] const Control& Get() const;
    /// The dialog has ended.
    void End() { m_control = nullptr; }

private:
    template <class T>
    [[nodiscard]] const T& As(ControlKind kind) const;
    [[nodiscard]] const Frame::Row& Row(std::int32_t row) const;
    [[nodiscard]] const TabStrip::Tab& Tab(std::int32_t index) const;

    DialogFace* m_owner;
    const Control* m_control;
};

/// A dialog that runs, as a host reads it, with what the host reports into it. Controls are those of this
/// dialog (error 5), of the kind that the event needs (13).
class DialogFace {
public:
    DialogFace(Dialog& dialog, DialogInput& input) : m_dialog(&dialog), m_input(&input) {}

    [[nodiscard]] std::wstring Name() const { return Get().Name(); }
    [[nodiscard]] std::wstring Title() const { return Get().Title(); }
    [[nodiscard]] std::int32_t HelpContext() const { return Get().HelpContext(); }
    [[nodiscard]] std::int32_t ControlCount() const;
    [[nodiscard]] std::shared_ptr<ControlFace> Controls(std::int32_t index);
    [[nodiscard]] std::shared_ptr<ControlFace> FindControl(std::wstring_view name);
    [[nodiscard]] std::int32_t ColumnCount() const;
    [[nodiscard]] std::shared_ptr<ControlFace> Columns(std::int32_t index);
    [[nodiscard]] std::shared_ptr<ControlFace> CancelButton() { return FaceOf(Get().CancelButton()); }
    [[nodiscard]] std::shared_ptr<ControlFace> HelpButton() { return FaceOf(Get().HelpButton()); }
    [[nodiscard]] std::shared_ptr<ControlFace> AdvisedBox() { return FaceOf(Get().AdvisedBox()); }
    [[nodiscard]] std::int32_t WindowHandle() const { return Get().WindowHandle(); }
    void SetWindowHandle(std::int32_t value) { Get().SetWindowHandle(value); }
    [[nodiscard]] bool HasPlace() const { return Get().Place().has_value(); }
    [[nodiscard]] std::int32_t Left() const { return Get().Place().value_or(Dialog::Placement{}).left; }
    [[nodiscard]] std::int32_t Top() const { return Get().Place().value_or(Dialog::Placement{}).top; }
    void SetPlace(std::int32_t left, std::int32_t top) { Get().SetPlace(Dialog::Placement{left, top}); }
    [[nodiscard]] bool IsOpen() const { return Get().IsOpen(); }
    [[nodiscard]] std::shared_ptr<ControlFace> ActiveControl() { return FaceOf(Get().ActiveControl()); }
    void Activate() { Input().Activate(); }
    void Click(const ControlFace& button);
    void Choose(const ControlFace& list, std::int32_t index);
    void SelectTab(const ControlFace& tabs, std::int32_t index);
    void Focus(const ControlFace& control);
    void PressTab(bool backwards) { Input().Tab(backwards); }
    [[nodiscard]] std::int16_t KeyPress(std::int16_t keyAscii) { return Input().KeyPress(keyAscii); }
    void EditText(const ControlFace& box, std::wstring text, std::int32_t selStart, std::int32_t selLength);
    void Paste(const ControlFace& box, const std::wstring& text);
    void Escape() { Input().Escape(); }
    void Help() { Input().Help(); }
    void Close() { Input().Close(); }

    /// The one face of a control; null for null.
    [[nodiscard]] std::shared_ptr<ControlFace> FaceOf(const Control* control);
    /// The dialog has ended: from now on this object and those of the controls raise 91.
    void End();

private:
    [[nodiscard]] Dialog& Get() const;
    [[nodiscard]] DialogInput& Input() const;
    template <class T>
    [[nodiscard]] T& Own(const ControlFace& face, ControlKind kind) const;

    Dialog* m_dialog;
    DialogInput* m_input;
    std::unordered_map<const Control*, std::shared_ptr<ControlFace>> m_faces;
};

} // namespace QuorConversions::Component
