#pragma once

#include "QuorConversions/dialogs/CoefficientDialog.h"
#include "QuorConversions/thermistor/CQuorThermistor.h"

namespace QuorConversions {

/// Edits thermistor coefficients; any value is taken. Their letter follows the direction.
class frmThermistorSettings final : public CoefficientDialog<CQuorThermistor> {
public:
    frmThermistorSettings(CQuorThermistor& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    void LoadControls() override;
};

} // namespace QuorConversions
