#pragma once

#include "QuorConversions/Export.h"

#include <cstdint>
#include <string>

namespace QuorConversions {

class Dialog;

enum class ControlKind { Label, PushButton, TextBox, DropDownList, Frame, TabStrip };

/// A control of a dialog: its state, without pixels. Anyone may read it; the dialog's own code changes it;
/// only a toolkit, which holds the dialog's DialogInput, reports what the user did. Controls belong to their
/// dialog and live as long as it.
class QUORCONVERSIONS_EXPORT Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    [[nodiscard]] ControlKind Kind() const { return m_kind; }
    /// The name in the code; an element of a control array has its index behind it: "txtCoefficients(2)".
    [[nodiscard]] const std::wstring& Name() const { return m_name; }

    /// What stands on the control; "&" marks the access key that follows it.
    [[nodiscard]] const std::wstring& Caption() const { return m_caption; }
    void SetCaption(std::wstring value);
    [[nodiscard]] bool Enabled() const { return m_enabled; }
    void SetEnabled(bool value);
    /// The control's own flag: also True on a page that is not shown.
    [[nodiscard]] bool Visible() const { return m_visible; }
    void SetVisible(bool value);

    /// Whether the control is on the screen: it and the frames around it are visible.
    [[nodiscard]] bool IsShown() const;
    /// Whether the user can act on it.
    [[nodiscard]] bool IsUsable() const { return m_enabled && IsShown(); }
    /// Whether it can have the focus at all: not a label, not a frame.
    [[nodiscard]] bool TakesFocus() const {
        return m_kind != ControlKind::Label && m_kind != ControlKind::Frame;
    }

    [[nodiscard]] Dialog& Owner() const { return m_owner; }
    /// The frame around it; null for a control that stands in the dialog itself.
    [[nodiscard]] const Control* Parent() const { return m_parent; }

protected:
    Control(Dialog& owner, ControlKind kind, std::wstring name);
    void Notify() const;

private:
    friend class Frame;

    Dialog& m_owner;
    ControlKind m_kind;
    std::wstring m_name;
    std::wstring m_caption;
    const Control* m_parent = nullptr;
    bool m_enabled = true;
    bool m_visible = true;
};

} // namespace QuorConversions
