#include "QuorConversions/dialogs/frmPT100Settings.h"

namespace QuorConversions {

frmPT100Settings::frmPT100Settings(CQuorPT100& settings, std::shared_ptr<Platform> platform)
    : CoefficientDialog(settings, std::move(platform), L"frmPT100Settings", 10145) {
    AddRows(PT100_R0 + 1);
    SetUnits({PastedUnit::Ohm});
}

void frmPT100Settings::SetCaptions() {
    LabelRows({IDS_R0});
    CoefficientDialog::SetCaptions();
}

} // namespace QuorConversions
