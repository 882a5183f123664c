#pragma once

#include "QuorConversions/dialogs/CoefficientDialog.h"
#include "QuorConversions/rtd/CQuorHTPRT.h"

namespace QuorConversions {

/// Edits a high-temperature PRT: RTPW, A and B, none of which may be 0.
class frmHTPRTSettings final : public CoefficientDialog<CQuorHTPRT> {
public:
    frmHTPRTSettings(CQuorHTPRT& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    bool ValidateSettings() override { return RequireNonZero(Rows().size()); }
};

} // namespace QuorConversions
