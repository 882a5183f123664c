#pragma once

#include "QuorConversions/dialogs/PointDialog.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"

#include <vector>

namespace QuorConversions {

/// Edits a thermocouple type with deviation points and, for the types that use them, DC coefficients. A type
/// must be selected, of those that the class names.
class frmTCTypeXSettings final : public PointDialog<CQuorTCTypeX> {
public:
    frmTCTypeXSettings(CQuorTCTypeX& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    void LoadControls() override;
    bool GatherSettings() override;
    bool ValidateSettings() override;
    void OnChoice(Control& control) override;
    [[nodiscard]] bool IsGathered(const Field& field) const override;
    /// Shows the DC coefficients where the selected type uses them and the object shows them.
    void UpdateDCRows();

    Choice m_type;
    std::vector<Field*> m_dc;
};

} // namespace QuorConversions
