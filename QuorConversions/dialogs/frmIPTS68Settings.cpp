#include "QuorConversions/dialogs/frmIPTS68Settings.h"

namespace QuorConversions {

frmIPTS68Settings::frmIPTS68Settings(CQuorIPTS68& settings, std::shared_ptr<Platform> platform)
    : CoefficientDialog(settings, std::move(platform), L"frmIPTS68Settings", 10111) {
    AddChoice(
        L"lblScale", L"cboScale", [this](ListControl& list) { Object().FillScaleCombo(list); },
        [this] { return Object().IPTS68Scale(); },
        [this](std::int32_t scale) { Object().SetIPTS68Scale(EIPTS68Scale{scale}); });
    AddRows(IPTS68_C4 + 1);
    SetUnits({PastedUnit::Ohm, PastedUnit::PerDegree});
}

void frmIPTS68Settings::SetCaptions() {
    ChoiceRow().label.SetCaption(TableText(IDS_SCALE) + L":");
    LabelRows({IDS_R0, IDS_ALPHA, IDS_DELTA, IDS_A4, IDS_C4});
    CoefficientDialog::SetCaptions();
}

void frmIPTS68Settings::LoadControls() {
    CoefficientDialog::LoadControls();
    ChoiceRow().label.SetVisible(Object().ScaleEnabled());
    ChoiceRow().list.SetVisible(Object().ScaleEnabled());
}

bool frmIPTS68Settings::GatherSettings() {
    // Without a selection the scale stays, and the validation refuses it.
    if (Object().ScaleEnabled() && ChoiceRow().list.Visible())
        (void)StoreChoice(ChoiceRow());
    return CoefficientDialog::GatherSettings();
}

bool frmIPTS68Settings::ValidateSettings() {
    const auto scale = Object().IPTS68Scale();
    if (Object().ScaleEnabled() && scale != SCALE_ITS90 && scale != SCALE_IPTS68)
        return Refuse(IDS_SELECT_SCALE, &ChoiceRow().list);
    return RequireNonZero(IPTS68_DELTA + 1);
}

} // namespace QuorConversions
