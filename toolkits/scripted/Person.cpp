#include "toolkits/scripted/Person.h"

#include "QuorConversions/controls/ControlNames.h"
#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <utility>

namespace QuorConversions::Scripted {

using QuorIniFile::EscapeControls;

namespace {

std::wstring TextOf(const Control& control) {
    switch (control.Kind()) {
    case ControlKind::TextBox:
        return static_cast<const TextBox&>(control).Text();
    case ControlKind::DropDownList: {
        const auto& list = static_cast<const DropDownList&>(control);
        return list.HasSelection() ? list.List(list.ListIndex()) : std::wstring{};
    }
    default:
        return control.Caption();
    }
}

/// How a control looks on paper.
std::wstring Drawn(const Control& control) {
    std::wstring text;
    switch (control.Kind()) {
    case ControlKind::TextBox:
        text = L"[" + TextOf(control) + L"]";
        if (const std::wstring& advice = static_cast<const TextBox&>(control).Advice(); !advice.empty())
            text += L" ! " + advice;
        break;
    case ControlKind::DropDownList:
        text = L"[" + TextOf(control) + L" v]";
        break;
    case ControlKind::PushButton:
        text = L"<" + SpokenCaption(control.Caption()) + L">";
        break;
    case ControlKind::TabStrip: {
        const auto& tabs = static_cast<const TabStrip&>(control);
        for (std::size_t tab = 0; tab < tabs.Tabs().size(); ++tab)
            if (tabs.Tabs()[tab].present)
                text += (text.empty() ? L"" : L" ") + (tab == tabs.Selected()
                                                           ? L"/" + tabs.Tabs()[tab].caption + L"\\"
                                                           : tabs.Tabs()[tab].caption);
        break;
    }
    default:
        text = control.Caption();
    }
    return control.Enabled() ? text : L"(" + text + L")";
}

void DrawFrame(const Frame& frame, const std::wstring& indent, std::wstring& screen) {
    if (!frame.Caption().empty())
        screen += indent + EscapeControls(frame.Caption()) + L"\n";
    for (const Frame::Row& row : frame.Rows()) {
        std::wstring line;
        for (const Control* const control : row) {
            if (!control || !control->IsShown())
                continue;
            if (control->Kind() == ControlKind::Frame)
                DrawFrame(static_cast<const Frame&>(*control), indent + L"  ", screen);
            else
                line += L" " + Drawn(*control);
        }
        if (!line.empty())
            screen.append(indent).append(L" ").append(EscapeControls(line)).append(L"\n");
    }
}

} // namespace

CannotDo::CannotDo(const std::wstring& what) : std::runtime_error(QuorIniFile::ToUtf8(what)), text(what) {}

InputDriver& Person::OnOpenDialog() const {
    if (!m_dialog.IsOpen())
        throw CannotDo(L"the dialog is closed");
    return m_driver;
}

Control& Person::Find(std::wstring_view name) const {
    if (Control* const control = m_dialog.Find(name))
        return *control;
    Control* hidden = nullptr;
    for (const ControlName& named : ControlNames(m_dialog)) {
        if (named.name != name)
            continue;
        if (named.control->IsShown())
            return *named.control;
        hidden = named.control;
    }
    if (hidden)
        return *hidden;
    throw CannotDo(L"there is no \"" + std::wstring(name) + L"\" in this dialog");
}

template <class T>
T& Person::Find(std::wstring_view name, ControlKind kind, const wchar_t* what) const {
    Control& control = Find(name);
    if (control.Kind() != kind)
        throw CannotDo(L"\"" + std::wstring(name) + L"\" is no " + what);
    if (!control.IsShown())
        throw CannotDo(L"\"" + std::wstring(name) + L"\" is hidden");
    if (!control.Enabled())
        throw CannotDo(L"\"" + std::wstring(name) + L"\" is disabled");
    return static_cast<T&>(control);
}

void Person::Type(std::wstring_view box, std::wstring_view text) {
    auto& target = Find<TextBox>(box, ControlKind::TextBox, L"text box");
    OnOpenDialog().GoTo(target);
    OnOpenDialog().SelectAll();
    TypeHere(text);
}

void Person::Paste(std::wstring_view box, const std::wstring& text) {
    auto& target = Find<TextBox>(box, ControlKind::TextBox, L"text box");
    OnOpenDialog().GoTo(target);
    OnOpenDialog().SelectAll();
    OnOpenDialog().Paste(text);
}

void Person::TypeHere(std::wstring_view text) {
    for (const wchar_t character : text)
        Press(DialogInput::KeyAsciiOf(static_cast<char32_t>(character)));
}

void Person::GoTo(std::wstring_view control) { OnOpenDialog().GoTo(Find(control)); }

void Person::Choose(std::wstring_view list, std::wstring_view item) {
    auto& target = Find<DropDownList>(list, ControlKind::DropDownList, L"list");
    for (std::int32_t index = 0; index < target.ListCount(); ++index)
        if (target.List(index) == item)
            return OnOpenDialog().Choose(target, index);
    throw CannotDo(L"\"" + std::wstring(list) + L"\" does not offer \"" + std::wstring(item) + L"\"");
}

void Person::TurnTo(std::wstring_view tab) {
    for (const auto& control : m_dialog.Controls()) {
        if (control->Kind() != ControlKind::TabStrip || !control->IsUsable())
            continue;
        auto& strip = static_cast<TabStrip&>(*control);
        for (std::size_t i = 0; i < strip.Tabs().size(); ++i)
            if (strip.Tabs()[i].present && strip.Tabs()[i].caption == tab)
                return OnOpenDialog().SelectTab(strip, i);
    }
    throw CannotDo(L"there is no page \"" + std::wstring(tab) + L"\"");
}

void Person::Click(std::wstring_view button) {
    OnOpenDialog().Click(Find<PushButton>(button, ControlKind::PushButton, L"button"));
}

std::wstring Person::Reads(std::wstring_view control) const { return TextOf(Find(control)); }

std::wstring Person::Advice(std::wstring_view box) const {
    const Control& control = Find(box);
    if (control.Kind() != ControlKind::TextBox)
        throw CannotDo(L"\"" + std::wstring(box) + L"\" is no text box");
    return static_cast<const TextBox&>(control).Advice();
}

std::set<BoxAdvice> Person::AllAdvice() const {
    std::set<BoxAdvice> all;
    for (const auto& control : m_dialog.Controls()) {
        if (control->Kind() != ControlKind::TextBox)
            continue;
        if (const std::wstring& advice = static_cast<const TextBox&>(*control).Advice(); !advice.empty())
            all.emplace(control->Name(), advice);
    }
    return all;
}

bool Person::SeesAdvice(std::wstring_view advice) const {
    const auto all = AllAdvice();
    return std::any_of(all.begin(), all.end(), [&](const auto& one) { return one.second == advice; });
}

std::wstring Person::Focused() const {
    return m_dialog.ActiveControl() ? m_dialog.ActiveControl()->Name() : std::wstring{};
}

std::wstring Person::Screen() const {
    std::wstring screen = EscapeControls(m_dialog.Title()) + L"\n";
    for (const Frame* const column : m_dialog.Columns())
        DrawFrame(*column, L"", screen);
    for (const TextBox* const box : m_dialog.AdvisedBoxes())
        for (const ControlName& named : ControlNames(m_dialog))
            if (named.control == box && !box->IsShown()) // the others stand beside their boxes
                screen += EscapeControls(L"! " + named.name + L": " + box->Advice()) + L"\n";
    std::wstring hidden;
    for (const auto& control : m_dialog.Controls())
        if (!control->Visible())
            hidden += L" " + control->Name();
    return hidden.empty() ? screen : screen + L"hidden:" + hidden + L"\n";
}

std::vector<std::wstring> Person::Names() const {
    std::vector<std::wstring> names;
    for (ControlName& named : ControlNames(m_dialog))
        names.push_back(std::move(named.name));
    return names;
}

} // namespace QuorConversions::Scripted
