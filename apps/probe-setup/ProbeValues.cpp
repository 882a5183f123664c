#include "apps/probe-setup/ProbeValues.h"

#include "QuorConversions/controls/ControlNames.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
#include "QuorProbeFile/RecordImage.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <set>
#include <utility>

namespace ProbeSetup {

using namespace QuorConversions;
using QuorProbeFile::RecordImage;

namespace {

/// The customary units of values beside which a dialog shows none.
struct CustomaryUnits {
    const wchar_t* dialog; // its name; null for any
    const wchar_t* value;
    const wchar_t* units;
};
constexpr CustomaryUnits customaryUnits[] = {
    {nullptr, L"RTPW", L"\u03A9"},
    {nullptr, L"R0", L"\u03A9"},
    {nullptr, L"ALPHA", L"\u00B0C\u207B\u00B9"},
    {nullptr, L"DELTA", L"\u00B0C"},
    {nullptr, L"BETA", L"\u00B0C"},
    {nullptr, L"A4", L"\u00B0C\u207B\u00B9"},
    {nullptr, L"C4", L"\u00B0C\u207B\u2074"},
    {L"frmCVDSettings", L"A", L"\u00B0C\u207B\u00B9"},
    {L"frmCVDSettings", L"B", L"\u00B0C\u207B\u00B2"},
    {L"frmCVDSettings", L"C", L"\u00B0C\u207B\u2074"},
};

std::wstring UnitsOf(const Dialog& dialog, const ControlName& value) {
    if (!value.units.empty())
        return value.units;
    const auto* const found = std::find_if(
        std::begin(customaryUnits), std::end(customaryUnits), [&](const CustomaryUnits& customary) {
            return value.name == customary.value && (!customary.dialog || dialog.Name() == customary.dialog);
        });
    return found == std::end(customaryUnits) ? std::wstring() : found->units;
}

/// What a box or a list shows; nothing for other controls.
const std::wstring* TextOf(const Control& control) {
    if (control.Kind() == ControlKind::TextBox)
        return &static_cast<const TextBox&>(control).Text();
    if (control.Kind() != ControlKind::DropDownList)
        return nullptr;
    const auto& list = static_cast<const DropDownList&>(control);
    return list.HasSelection() ? &list.List(list.ListIndex()) : nullptr;
}

/// Reads what a dialog shows, from tab to tab, and cancels it.
class DialogReader final : public HeadlessPlatform {
public:
    explicit DialogReader(Platform& host) : m_host(host) {}

    void RunDialog(Dialog& dialog, DialogInput& input) override {
        input.Activate();
        TabStrip* tabs = nullptr;
        for (const auto& control : dialog.Controls()) {
            if (control->Kind() == ControlKind::TabStrip && control->IsShown())
                tabs = static_cast<TabStrip*>(control.get());
        }
        Read(dialog, {}, tabs);
        for (std::size_t tab = 0; tabs && tab < tabs->Tabs().size(); ++tab) {
            if (!tabs->Tabs()[tab].present)
                continue;
            input.SelectTab(*tabs, tab);
            Read(dialog, SpokenCaption(tabs->Tabs()[tab].caption), nullptr);
        }
        input.Escape();
    }
    void ShowMessage(const MessageRequest& /*request*/) override {}
    [[nodiscard]] std::wstring DecimalSeparator() override { return m_host.DecimalSeparator(); }

    std::vector<ProbeValue> values;

private:
    /// Takes what was not taken yet, up to the control `end`; null for all.
    void Read(const Dialog& dialog, const std::wstring& page, const Control* end) {
        std::set<const Control*> before;
        for (const auto& control : dialog.Controls()) {
            if (control.get() == end)
                break;
            before.insert(control.get());
        }
        for (const ControlName& value : ControlNames(dialog)) {
            const std::wstring* const text = TextOf(*value.control);
            if (text && value.control->IsShown() && before.contains(value.control) &&
                m_taken.insert(value.control).second)
                values.push_back({page, value.name, *text, UnitsOf(dialog, value)});
        }
    }

    Platform& m_host;
    std::set<const Control*> m_taken;
};

} // namespace

std::vector<ProbeValue> ValuesOf(const CQuorConversion& conversion, Platform& host) {
    const auto settings = conversion.Settings();
    if (!settings)
        return {};
    const auto reader = std::make_shared<DialogReader>(host);
    CQuorConversion copy(reader);
    copy.SetConversionType(conversion.ConversionType());
    RecordImage::Apply(RecordImage::Of(*settings), *copy.Settings());
    copy.SetAllowEdit(false);
    copy.Edit();
    return std::move(reader->values);
}

} // namespace ProbeSetup
