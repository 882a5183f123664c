#include "QuorConversions/dialogs/frmThermistorSettings.h"

namespace QuorConversions {

frmThermistorSettings::frmThermistorSettings(CQuorThermistor& settings, std::shared_ptr<Platform> platform)
    : CoefficientDialog(settings, std::move(platform), L"frmThermistorSettings", 10114) {
    AddRows(THRM_A3 + 1);
}

void frmThermistorSettings::SetCaptions() {
    NumberRows(TableText(IDS_A));
    CoefficientDialog::SetCaptions();
}

void frmThermistorSettings::LoadControls() {
    NumberRows(TableText(Object().ConvType() == TCT_THRMT_R ? IDS_A : IDS_B));
    CoefficientDialog::LoadControls();
}

} // namespace QuorConversions
