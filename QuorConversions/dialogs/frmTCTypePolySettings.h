#pragma once

#include "QuorConversions/dialogs/CoefficientDialog.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"

namespace QuorConversions {

/// Edits a thermocouple type with a deviation polynomial. A type must be selected, of those that the
/// class names.
class frmTCTypePolySettings final : public CoefficientDialog<CQuorTCTypePoly> {
public:
    frmTCTypePolySettings(CQuorTCTypePoly& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    bool GatherSettings() override;
    bool ValidateSettings() override;
};

} // namespace QuorConversions
