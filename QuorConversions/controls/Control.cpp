#include "QuorConversions/controls/Control.h"

#include "QuorConversions/controls/Dialog.h"

#include <utility>

namespace QuorConversions {

Control::Control(Dialog& owner, ControlKind kind, std::wstring name)
    : m_owner(owner), m_kind(kind), m_name(std::move(name)) {}

Control::~Control() = default;

void Control::SetCaption(std::wstring value) {
    m_caption = std::move(value);
    Notify();
}

void Control::SetEnabled(bool value) {
    m_enabled = value;
    Notify();
}

void Control::SetVisible(bool value) {
    m_visible = value;
    Notify();
}

bool Control::IsShown() const { return m_visible && (!m_parent || m_parent->IsShown()); }

void Control::Notify() const { m_owner.Notify(*this); }

} // namespace QuorConversions
