#include "toolkits/scripted/Person.h"

#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <utility>

namespace QuorConversions::Scripted {
namespace {

/// A caption as it is spoken of: without access key and colon.
std::wstring Spoken(std::wstring caption) {
    std::erase(caption, L'&');
    if (!caption.empty() && caption.back() == L':')
        caption.pop_back();
    return caption;
}

struct Named {
    std::wstring name;
    Control* control;
};

/// What a row gives names to: a label names the next control; the label that begins a row of points names,
/// with the heading above, each box of the row.
void NameRow(const Frame::Row& row, const Frame::Row* headings, std::vector<Named>& names) {
    const Control* label = nullptr;
    for (std::size_t column = 0; column < row.size(); ++column) {
        Control* const control = row[column];
        if (!control)
            continue;
        if (control->Kind() == ControlKind::Label) {
            if (!label)
                label = control;
            continue;
        }
        if (!control->TakesFocus() || !label)
            continue;
        const bool inGrid = headings && column < headings->size() && (*headings)[column];
        names.push_back({inGrid ? Spoken((*headings)[column]->Caption()) + L" " + label->Caption()
                                : Spoken(label->Caption()),
                         control});
    }
}

bool IsHeadings(const Frame::Row& row) {
    return row.size() > 1 && !row.front() && std::all_of(row.begin(), row.end(), [](const Control* c) {
               return !c || c->Kind() == ControlKind::Label;
           });
}

std::vector<Named> NamesOf(const Dialog& dialog) {
    std::vector<Named> names;
    for (const auto& control : dialog.Controls()) {
        if (control->Kind() == ControlKind::PushButton)
            names.push_back({Spoken(control->Caption()), control.get()});
        if (control->Kind() != ControlKind::Frame)
            continue;
        const Frame::Row* headings = nullptr;
        for (const Frame::Row& row : static_cast<const Frame&>(*control).Rows()) {
            if (IsHeadings(row))
                headings = &row;
            else
                NameRow(row, headings, names);
        }
    }
    return names;
}

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
        break;
    case ControlKind::DropDownList:
        text = L"[" + TextOf(control) + L" v]";
        break;
    case ControlKind::PushButton:
        text = L"<" + Spoken(control.Caption()) + L">";
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
        screen += indent + frame.Caption() + L"\n";
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
            screen.append(indent).append(L" ").append(line).append(L"\n");
    }
}

} // namespace

CannotDo::CannotDo(const std::wstring& what) : std::runtime_error(QuorIniFile::ToUtf8(what)), text(what) {}

DialogInput& Person::Input() const {
    if (!m_dialog.IsOpen())
        throw CannotDo(L"the dialog is closed");
    return m_input;
}

Control& Person::Find(std::wstring_view name) const {
    if (Control* const control = m_dialog.Find(name))
        return *control;
    Control* hidden = nullptr;
    for (const Named& named : NamesOf(m_dialog)) {
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
    Input().Focus(target);
    target.SetSelection(0, target.Text().size());
    TypeHere(text);
}

void Person::TypeHere(std::wstring_view text) {
    for (const wchar_t character : text)
        if (static_cast<std::uint32_t>(character) <= 0x7FFF) // no key has a greater code
            Press(static_cast<std::int16_t>(character));
}

void Person::Press(std::int16_t keyAscii) {
    constexpr std::int16_t backspace = 8;
    const std::int16_t key = Input().KeyPress(keyAscii);
    Control* const active = m_dialog.ActiveControl();
    const bool changesText = key == backspace || key >= 32; // copy and the like have no clipboard here
    if (!changesText || !active || active->Kind() != ControlKind::TextBox)
        return;
    auto& box = static_cast<TextBox&>(*active);
    std::wstring text = box.Text();
    std::size_t at = box.SelStart();
    const std::size_t selected = box.SelLength();
    if (key == backspace && selected == 0 && at > 0)
        text.erase(--at, 1);
    else if (key == backspace || key >= 32)
        text.erase(at, selected);
    if (key >= 32)
        text.insert(at++, 1, static_cast<wchar_t>(key));
    Input().Edit(box, std::move(text), at, 0);
}

void Person::GoTo(std::wstring_view control) { Input().Focus(Find(control)); }

void Person::Choose(std::wstring_view list, std::wstring_view item) {
    auto& target = Find<DropDownList>(list, ControlKind::DropDownList, L"list");
    for (std::int32_t index = 0; index < target.ListCount(); ++index)
        if (target.List(index) == item)
            return Input().Choose(target, index);
    throw CannotDo(L"\"" + std::wstring(list) + L"\" does not offer \"" + std::wstring(item) + L"\"");
}

void Person::TurnTo(std::wstring_view tab) {
    for (const auto& control : m_dialog.Controls()) {
        if (control->Kind() != ControlKind::TabStrip || !control->IsUsable())
            continue;
        auto& strip = static_cast<TabStrip&>(*control);
        for (std::size_t i = 0; i < strip.Tabs().size(); ++i)
            if (strip.Tabs()[i].present && strip.Tabs()[i].caption == tab)
                return Input().SelectTab(strip, i);
    }
    throw CannotDo(L"there is no page \"" + std::wstring(tab) + L"\"");
}

void Person::Click(std::wstring_view button) {
    Input().Click(Find<PushButton>(button, ControlKind::PushButton, L"button"));
}

std::wstring Person::Reads(std::wstring_view control) const { return TextOf(Find(control)); }

std::wstring Person::Focused() const {
    return m_dialog.ActiveControl() ? m_dialog.ActiveControl()->Name() : std::wstring{};
}

std::wstring Person::Screen() const {
    std::wstring screen = m_dialog.Title() + L"\n";
    for (const Frame* const column : m_dialog.Columns())
        DrawFrame(*column, L"", screen);
    std::wstring hidden;
    for (const auto& control : m_dialog.Controls())
        if (!control->Visible())
            hidden += L" " + control->Name();
    return hidden.empty() ? screen : screen + L"hidden:" + hidden + L"\n";
}

std::vector<std::wstring> Person::Names() const {
    std::vector<std::wstring> names;
    for (Named& named : NamesOf(m_dialog))
        names.push_back(std::move(named.name));
    return names;
}

} // namespace QuorConversions::Scripted
