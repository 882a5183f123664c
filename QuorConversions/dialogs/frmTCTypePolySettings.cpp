#include "QuorConversions/dialogs/frmTCTypePolySettings.h"

namespace QuorConversions {

frmTCTypePolySettings::frmTCTypePolySettings(CQuorTCTypePoly& settings, std::shared_ptr<Platform> platform)
    : CoefficientDialog(settings, std::move(platform), L"frmTCTypePolySettings", 10146) {
    AddChoice(
        L"lblTCType", L"cboTCType", [this](ListControl& list) { Object().FillTCTypeNameCombo(list); },
        [this] { return Object().TCType(); },
        [this](std::int32_t type) { Object().SetTCType(ETCType{type}); });
    AddRows(TC_POLY_C3 + 1);
}

void frmTCTypePolySettings::SetCaptions() {
    ChoiceRow().label.SetCaption(TableText(IDS_TYPE) + L":");
    NumberRows(TableText(IDS_C));
    CoefficientDialog::SetCaptions();
}

bool frmTCTypePolySettings::GatherSettings() {
    (void)StoreChoice(ChoiceRow()); // without a selection the type stays, and the validation refuses it
    return CoefficientDialog::GatherSettings();
}

bool frmTCTypePolySettings::ValidateSettings() {
    return ChoiceRow().list.HasSelection() || Refuse(IDS_SELECT_TC_TYPE, &ChoiceRow().list);
}

} // namespace QuorConversions
