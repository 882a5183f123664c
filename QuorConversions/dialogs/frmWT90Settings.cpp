#include "QuorConversions/dialogs/frmWT90Settings.h"

namespace QuorConversions {

frmWT90Settings::frmWT90Settings(CQuorWT90& settings, std::shared_ptr<Platform> platform)
    : SettingsDialog(settings, std::move(platform), L"frmWT90Settings", 10118),
      m_object(settings),
      m_rtpw(AddField(
          L"lblRTPW", L"txtRTPW", [this] { return m_object.RTPW(); },
          [this](double value) { m_object.SetRTPW(value); }, [this] { return m_object.RTPWFormat(); },
          PastedUnit::Ohm)) {}

void frmWT90Settings::SetCaptions() {
    m_rtpw.label.SetCaption(TableText(IDS_RTPW) + L":");
    SettingsDialog::SetCaptions();
}

void frmWT90Settings::LoadControls() {
    AllowEditing({&m_rtpw.label, &m_rtpw.box});
    SettingsDialog::LoadControls();
    ShowValue(m_rtpw);
}

bool frmWT90Settings::GatherSettings() {
    StoreValue(m_rtpw);
    return true;
}

bool frmWT90Settings::ValidateSettings() {
    return m_object.RTPW() != 0.0 || Refuse(IDS_ENTER_RTPW, &m_rtpw.box);
}

} // namespace QuorConversions
