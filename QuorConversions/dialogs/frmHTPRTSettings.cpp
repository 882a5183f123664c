#include "QuorConversions/dialogs/frmHTPRTSettings.h"

namespace QuorConversions {

frmHTPRTSettings::frmHTPRTSettings(CQuorHTPRT& settings, std::shared_ptr<Platform> platform)
    : CoefficientDialog(settings, std::move(platform), L"frmHTPRTSettings", 10113) {
    AddRows(HTPRT_B + 1);
    SetUnits({PastedUnit::Ohm});
}

void frmHTPRTSettings::SetCaptions() {
    LabelRows({IDS_RTPW, IDS_A, IDS_B});
    CoefficientDialog::SetCaptions();
}

} // namespace QuorConversions
