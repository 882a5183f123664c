#pragma once

#include "QuorConversions/dialogs/CoefficientDialog.h"
#include "QuorConversions/rtd/CQuorCVD.h"

namespace QuorConversions {

/// Edits Callendar-Van Dusen coefficients. In the polynomial form they are labelled A, B and C, and any value
/// is taken; otherwise all but the object's last one must not be 0.
class frmCVDSettings final : public CoefficientDialog<CQuorCVD> {
public:
    frmCVDSettings(CQuorCVD& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    void PrepareControls() override;
    bool ValidateSettings() override;
};

} // namespace QuorConversions
