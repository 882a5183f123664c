#include "component/DialogFace.h"

#include "component/Errors.h"

#include <cstddef>
#include <utility>

namespace QuorConversions::Component {
namespace {

static_assert(static_cast<std::int32_t>(ControlKind::Label) == CONTROL_LABEL &&
              static_cast<std::int32_t>(ControlKind::PushButton) == CONTROL_PUSH_BUTTON &&
              static_cast<std::int32_t>(ControlKind::TextBox) == CONTROL_TEXT_BOX &&
              static_cast<std::int32_t>(ControlKind::DropDownList) == CONTROL_DROP_DOWN_LIST &&
              static_cast<std::int32_t>(ControlKind::Frame) == CONTROL_FRAME &&
              static_cast<std::int32_t>(ControlKind::TabStrip) == CONTROL_TAB_STRIP);

[[noreturn]] void ThrowEnded() { Throw(QUOR_ERROR_NO_OBJECT, L"The dialog has ended"); }

void CheckItem(const DropDownList& list, std::int32_t index) {
    if (index < 0 || index >= list.ListCount())
        ThrowSubscript(index, static_cast<std::size_t>(list.ListCount()));
}

} // namespace

// ---- ControlFace

const Control& ControlFace::Get() const {
    if (!m_control)
        ThrowEnded();
    return *m_control;
}

template <class T>
const T& ControlFace::As(ControlKind kind) const {
    if (Get().Kind() != kind)
        Throw(QUOR_ERROR_NO_MEMBER, L"A control of the kind of " + Get().Name() + L" has no such member");
    return static_cast<const T&>(Get());
}

std::shared_ptr<ControlFace> ControlFace::Parent() const { return m_owner->FaceOf(Get().Parent()); }

std::wstring ControlFace::Text() const { return As<TextBox>(ControlKind::TextBox).Text(); }

std::wstring ControlFace::Advice() const { return As<TextBox>(ControlKind::TextBox).Advice(); }

std::int32_t ControlFace::SelStart() const {
    return static_cast<std::int32_t>(As<TextBox>(ControlKind::TextBox).SelStart());
}

std::int32_t ControlFace::SelLength() const {
    return static_cast<std::int32_t>(As<TextBox>(ControlKind::TextBox).SelLength());
}

std::int32_t ControlFace::ListCount() const {
    return As<DropDownList>(ControlKind::DropDownList).ListCount();
}

std::wstring ControlFace::List(std::int32_t index) const {
    const auto& list = As<DropDownList>(ControlKind::DropDownList);
    CheckItem(list, index);
    return list.List(index);
}

std::int32_t ControlFace::ItemData(std::int32_t index) const {
    const auto& list = As<DropDownList>(ControlKind::DropDownList);
    CheckItem(list, index);
    return list.ItemData(index);
}

std::int32_t ControlFace::ListIndex() const {
    return As<DropDownList>(ControlKind::DropDownList).ListIndex();
}

std::int32_t ControlFace::RowCount() const {
    return static_cast<std::int32_t>(As<Frame>(ControlKind::Frame).Rows().size());
}

const Frame::Row& ControlFace::Row(std::int32_t row) const {
    return At(As<Frame>(ControlKind::Frame).Rows(), row);
}

std::int32_t ControlFace::RowLength(std::int32_t row) const {
    return static_cast<std::int32_t>(Row(row).size());
}

std::shared_ptr<ControlFace> ControlFace::RowControls(std::int32_t row, std::int32_t place) const {
    return m_owner->FaceOf(At(Row(row), place));
}

std::int32_t ControlFace::TabCount() const {
    return static_cast<std::int32_t>(As<TabStrip>(ControlKind::TabStrip).Tabs().size());
}

const TabStrip::Tab& ControlFace::Tab(std::int32_t index) const {
    return At(As<TabStrip>(ControlKind::TabStrip).Tabs(), index);
}

std::wstring ControlFace::TabCaption(std::int32_t index) const { return Tab(index).caption; }

bool ControlFace::TabPresent(std::int32_t index) const { return Tab(index).present; }

std::int32_t ControlFace::SelectedTab() const {
    return static_cast<std::int32_t>(As<TabStrip>(ControlKind::TabStrip).Selected());
}

// ---- DialogFace

Dialog& DialogFace::Get() const {
    if (!m_dialog)
        ThrowEnded();
    return *m_dialog;
}

DialogInput& DialogFace::Input() const {
    static_cast<void>(Get());
    return *m_input;
}

std::shared_ptr<ControlFace> DialogFace::FaceOf(const Control* control) {
    if (!control)
        return nullptr;
    std::shared_ptr<ControlFace>& face = m_faces[control];
    if (!face)
        face = std::make_shared<ControlFace>(*this, *control);
    return face;
}

void DialogFace::End() {
    m_dialog = nullptr;
    for (const auto& [control, face] : m_faces)
        face->End();
    m_faces.clear();
}

std::int32_t DialogFace::ControlCount() const { return static_cast<std::int32_t>(Get().Controls().size()); }

std::shared_ptr<ControlFace> DialogFace::Controls(std::int32_t index) {
    return FaceOf(At(Get().Controls(), index).get());
}

std::shared_ptr<ControlFace> DialogFace::FindControl(std::wstring_view name) {
    return FaceOf(Get().Find(name));
}

std::int32_t DialogFace::ColumnCount() const { return static_cast<std::int32_t>(Get().Columns().size()); }

std::shared_ptr<ControlFace> DialogFace::Columns(std::int32_t index) {
    return FaceOf(At(Get().Columns(), index));
}

template <class T>
T& DialogFace::Own(const ControlFace& face, ControlKind kind) const {
    const Control& control = face.Get();
    if (&control.Owner() != &Get())
        Throw(QUOR_ERROR_ARGUMENT, L"The control belongs to another dialog");
    if (control.Kind() != kind)
        Throw(QUOR_ERROR_TYPE, control.Name() + L" is a control of another kind");
    return static_cast<T&>(const_cast<Control&>(control)); // NOLINT: the dialog, which is not const, owns it
}

void DialogFace::Click(const ControlFace& button) {
    Input().Click(Own<PushButton>(button, ControlKind::PushButton));
}

void DialogFace::Choose(const ControlFace& list, std::int32_t index) {
    auto& chosen = Own<DropDownList>(list, ControlKind::DropDownList);
    CheckItem(chosen, index);
    Input().Choose(chosen, index);
}

void DialogFace::SelectTab(const ControlFace& tabs, std::int32_t index) {
    auto& strip = Own<TabStrip>(tabs, ControlKind::TabStrip);
    static_cast<void>(At(strip.Tabs(), index));
    Input().SelectTab(strip, static_cast<std::size_t>(index));
}

void DialogFace::Focus(const ControlFace& control) {
    Input().Focus(Own<Control>(control, control.Get().Kind()));
}

void DialogFace::EditText(const ControlFace& box, std::wstring text, std::int32_t selStart,
                          std::int32_t selLength) {
    auto& edited = Own<TextBox>(box, ControlKind::TextBox);
    if (selStart < 0 || selLength < 0)
        Throw(QUOR_ERROR_SUBSCRIPT, L"The selection is negative");
    Input().Edit(edited, std::move(text), static_cast<std::size_t>(selStart),
                 static_cast<std::size_t>(selLength));
}

void DialogFace::Paste(const ControlFace& box, const std::wstring& text) {
    Input().Paste(Own<TextBox>(box, ControlKind::TextBox), text);
}

} // namespace QuorConversions::Component
