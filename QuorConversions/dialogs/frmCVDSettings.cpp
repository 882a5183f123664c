#include "QuorConversions/dialogs/frmCVDSettings.h"

namespace QuorConversions {

frmCVDSettings::frmCVDSettings(CQuorCVD& settings, std::shared_ptr<Platform> platform)
    : CoefficientDialog(settings, std::move(platform), L"frmCVDSettings", 10100) {
    AddRows(CVD_BETA + 1);
    SetUnits({PastedUnit::Ohm, PastedUnit::PerDegree});
}

void frmCVDSettings::SetCaptions() {
    LabelRows({IDS_R0, IDS_ALPHA, IDS_DELTA, IDS_BETA});
    CoefficientDialog::SetCaptions();
}

void frmCVDSettings::PrepareControls() {
    if (!Object().UsePolynomial())
        return;
    LabelRows({IDS_A, IDS_B, IDS_C}, CVD_ALPHA);
    SetUnits({PastedUnit::Ohm, PastedUnit::PerDegree, PastedUnit::PerDegree2, PastedUnit::PerDegree4});
}

bool frmCVDSettings::ValidateSettings() {
    const auto last = std::max(Object().NumCoefficients() - 1, 0);
    return Object().UsePolynomial() || RequireNonZero(static_cast<std::size_t>(last));
}

} // namespace QuorConversions
