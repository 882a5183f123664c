#pragma once

#include "QuorConversions/dialogs/CoefficientDialog.h"
#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"

namespace QuorConversions {

/// Edits a thermocouple polynomial and, where the object shows it, its voltage at 25 degrees Celsius; any
/// value is taken.
class frmTCPolynomialSettings final : public CoefficientDialog<CQuorTCPolynomial> {
public:
    frmTCPolynomialSettings(CQuorTCPolynomial& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    void LoadControls() override;
    bool GatherSettings() override;

    Field* m_mV25C;
};

} // namespace QuorConversions
