#pragma once

#include "QuorConversions/dialogs/CoefficientDialog.h"
#include "QuorConversions/rtd/CQuorIPTS68.h"

namespace QuorConversions {

/// Edits IPTS-68 coefficients, of which R0, ALPHA and DELTA must not be 0, and the scale where the object
/// offers it.
class frmIPTS68Settings final : public CoefficientDialog<CQuorIPTS68> {
public:
    frmIPTS68Settings(CQuorIPTS68& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    void LoadControls() override;
    bool GatherSettings() override;
    bool ValidateSettings() override;
};

} // namespace QuorConversions
