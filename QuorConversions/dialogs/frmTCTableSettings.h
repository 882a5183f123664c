#pragma once

#include "QuorConversions/dialogs/PointDialog.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"

namespace QuorConversions {

/// Edits a thermocouple table: as many points as are chosen. Any value is taken.
class frmTCTableSettings final : public PointDialog<CQuorTCTable> {
public:
    frmTCTableSettings(CQuorTCTable& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    void LoadControls() override;
    bool GatherSettings() override;
    void OnChoice(Control& control) override;
    /// Shows as many rows as points are chosen.
    void UpdatePointRows();

    Choice m_numPoints;
};

} // namespace QuorConversions
