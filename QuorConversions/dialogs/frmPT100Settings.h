#pragma once

#include "QuorConversions/dialogs/CoefficientDialog.h"
#include "QuorConversions/rtd/CQuorPT100.h"

namespace QuorConversions {

/// Edits the R0 of a PT100; any value is taken.
class frmPT100Settings final : public CoefficientDialog<CQuorPT100> {
public:
    frmPT100Settings(CQuorPT100& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
};

} // namespace QuorConversions
