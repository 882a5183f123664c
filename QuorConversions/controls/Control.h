#pragma once

#include "QuorConversions/Export.h"

#include <cstdint>
#include <string>

namespace QuorConversions {

class Dialog;

/// What a control is.
enum class ControlKind { Label, PushButton, TextBox, DropDownList, Frame, TabStrip };

/// A control of a dialog: its state, without pixels. Anyone may read it; the dialog's own code changes it;
/// only a toolkit, which holds the dialog's DialogInput, reports what the user did. Controls belong to their
/// dialog and live as long as it does.
class QUORCONVERSIONS_EXPORT Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    /// The class of the control.
    [[nodiscard]] ControlKind Kind() const { return m_kind; }
    /// The name in the code, with the index in a control array: "txtCoefficients(2)".
    [[nodiscard]] const std::wstring& Name() const { return m_name; }

    /// The text on the control; "&" precedes the access key.
    [[nodiscard]] const std::wstring& Caption() const { return m_caption; }
    void SetCaption(std::wstring value);
    /// Whether the control is enabled itself; the user can act on it if it is also shown: IsUsable.
    [[nodiscard]] bool Enabled() const { return m_enabled; }
    void SetEnabled(bool value);
    /// Whether the control is visible itself; it may nevertheless be in a hidden frame: IsShown.
    [[nodiscard]] bool Visible() const { return m_visible; }
    void SetVisible(bool value);

    /// Whether the control is on the screen: it is visible, and so are the frames around it.
    [[nodiscard]] bool IsShown() const;
    /// Whether the user can act on it.
    [[nodiscard]] bool IsUsable() const { return m_enabled && IsShown(); }
    /// Whether it can have the focus at all: it is neither a label nor a frame.
    [[nodiscard]] bool TakesFocus() const {
        return m_kind != ControlKind::Label && m_kind != ControlKind::Frame;
    }

    /// The dialog to which the control belongs.
    [[nodiscard]] Dialog& Owner() const { return m_owner; }
    /// The frame around it; null if it is directly in the dialog.
    [[nodiscard]] const Control* Parent() const { return m_parent; }

protected:
    /// A control of `owner`, enabled and visible, without a caption.
    Control(Dialog& owner, ControlKind kind, std::wstring name);
    /// Informs the dialog's listener that the control has changed.
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
