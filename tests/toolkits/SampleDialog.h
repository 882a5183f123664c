#pragma once

#include "QuorConversions/controls/Dialog.h"
#include "QuorConversions/platform/Platform.h"

#include <functional>
#include <string>
#include <vector>

namespace Support {

using namespace QuorConversions;

/// A dialog of which the toolkit knows nothing: every kind of control, labels with access keys, items with
/// "&" and characters beyond 0xFFFF, a grid of points, tabs with a page each. It tells what happens to it,
/// and does what a test wants.
class SampleDialog : public Dialog {
public:
    SampleDialog() : Dialog(L"frmSample") {
        SetTitle(L"Sample Settings");
        probe.SetCaption(L"&Probe:");
        lblName.SetCaption(L"&Name:");
        lblR0.SetCaption(L"&R0:");
        lblR0Units.SetCaption(L"\u03A9");
        lblKind.SetCaption(L"&Kind:");
        kind.AddItem(L"ice & water");
        kind.AddItem(L"&zinc");
        kind.AddItem(L"\U0001F321 bath");
        tabs.AddTab(L"&Low");
        tabs.AddTab(L"Middle");
        tabs.AddTab(L"&High");
        low.SetCaption(L"Low:");
        high.SetCaption(L"High:");
        note.SetCaption(
            L"This page has no points, and this sentence is long enough to need more than one line.");
        lblTemperature.SetCaption(L"Temperature");
        lblVoltage.SetCaption(L"Voltage");
        probe.AddRow({&lblName, &name});
        probe.AddRow({&lblR0, &r0, &lblR0Units});
        probe.AddRow({&lblKind, &kind});
        probe.AddRow({&tabs});
        low.AddRow({nullptr, &lblTemperature, nullptr, &lblVoltage, nullptr});
        for (std::size_t i = 0; i < points.size(); ++i) {
            points[i]->SetCaption(std::to_wstring(i + 1));
            temperatureUnits[i]->SetCaption(L"\u00B0C");
            voltageUnits[i]->SetCaption(L"mV");
            low.AddRow({points[i], temperatures[i], temperatureUnits[i], voltages[i], voltageUnits[i]});
        }
        high.AddRow({&note});
        high.SetVisible(false);
        probe.AddRow({&low});
        probe.AddRow({&high});
        AddColumn(probe);
        ok.SetCaption(L"&OK");
        cancel.SetCaption(L"&Cancel");
        more.SetCaption(L"&More");
        for (PushButton* const button : {&ok, &cancel, &more})
            buttons.AddRow({button});
        AddColumn(buttons);
        SetCancelButton(cancel);
    }

    void RunOn(Platform& platform) {
        DialogInput input = Input();
        platform.RunDialog(*this, input);
    }
    using Dialog::Hide;
    using Dialog::SetHelpButton;

    std::vector<std::wstring> events; ///< "click cmdOK", "got txtName", "close"
    std::function<void(Control&)> onClick = [](Control&) {};
    std::function<void(Control&)> onGotFocus = [](Control&) {};
    std::function<void(Control&)> onLostFocus = [](Control&) {};
    std::function<void(std::int16_t&)> onKeyPress = [](std::int16_t&) {};
    std::function<void()> onActivate = [] {};
    std::function<void(TextBox&)> onEdit = [](TextBox&) {};
    std::function<void(TextBox&, const std::wstring&)> onPaste = [](TextBox& box, const std::wstring& text) {
        box.ReplaceSelection(text);
    };
    std::function<void()> onClose = [this] { Hide(); };

    Frame& probe = Add<Frame>(L"framProbe");
    Label& lblName = Add<Label>(L"lblName");
    TextBox& name = Add<TextBox>(L"txtName");
    Label& lblR0 = Add<Label>(L"lblR0");
    TextBox& r0 = Add<TextBox>(L"txtR0");
    Label& lblR0Units = Add<Label>(L"lblR0Units");
    Label& lblKind = Add<Label>(L"lblKind");
    DropDownList& kind = Add<DropDownList>(L"cboKind");
    TabStrip& tabs = Add<TabStrip>(L"tabPages");
    Frame& low = Add<Frame>(L"framLow");
    Label& lblTemperature = Add<Label>(L"lblTemperature");
    Label& lblVoltage = Add<Label>(L"lblVoltage");
    std::vector<Label*> points = AddArray<Label>(L"lblPoint", 2);
    std::vector<TextBox*> temperatures = AddArray<TextBox>(L"txtTemperature", 2);
    std::vector<Label*> temperatureUnits = AddArray<Label>(L"lblTempUnits", 2);
    std::vector<TextBox*> voltages = AddArray<TextBox>(L"txtVoltage", 2);
    std::vector<Label*> voltageUnits = AddArray<Label>(L"lblVoltUnits", 2);
    Frame& high = Add<Frame>(L"framHigh");
    Label& note = Add<Label>(L"lblNote");
    PushButton& ok = Add<PushButton>(L"cmdOK");
    PushButton& cancel = Add<PushButton>(L"cmdCancel");
    PushButton& more = Add<PushButton>(L"cmdMore");
    Frame& buttons = Add<Frame>(L"framButtons");

private:
    void OnActivate() override {
        events.emplace_back(L"activate");
        onActivate();
    }
    void OnClick(Control& control) override {
        events.push_back(L"click " + control.Name());
        onClick(control);
        if (&control == &tabs) {
            low.SetVisible(tabs.Selected() == 0);
            high.SetVisible(tabs.Selected() == 2);
        }
        if (&control == &ok || &control == &cancel)
            Hide();
    }
    void OnGotFocus(Control& control) override {
        events.push_back(L"got " + control.Name());
        if (control.Kind() == ControlKind::TextBox) {
            auto& box = static_cast<TextBox&>(control);
            box.SetSelection(0, box.Text().size());
        }
        onGotFocus(control);
    }
    void OnLostFocus(Control& control) override {
        events.push_back(L"lost " + control.Name());
        onLostFocus(control);
    }
    void OnKeyPress(TextBox& /*box*/, std::int16_t& keyAscii) override {
        if (keyAscii == 13) {
            FocusNext();
            keyAscii = 0;
        }
        onKeyPress(keyAscii);
    }
    void OnEdit(TextBox& box) override { onEdit(box); }
    void OnPaste(TextBox& box, const std::wstring& text) override { onPaste(box, text); }
    void OnClose() override {
        events.emplace_back(L"close");
        onClose();
    }
};

} // namespace Support
