#pragma once

#include "QuorConversions/dialogs/SettingsDialog.h"
#include "QuorConversions/rtd/CQuorWT90.h"

namespace QuorConversions {

/// Edits the RTPW of a W(T90) probe, which must not be 0.
class frmWT90Settings final : public SettingsDialog {
public:
    frmWT90Settings(CQuorWT90& settings, std::shared_ptr<Platform> platform);

private:
    void SetCaptions() override;
    void LoadControls() override;
    bool GatherSettings() override;
    bool ValidateSettings() override;

    CQuorWT90& m_object;
    Field& m_rtpw;
};

} // namespace QuorConversions
