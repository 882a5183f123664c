#include "QuorConversions/dialogs/frmTCPolynomialSettings.h"

namespace QuorConversions {

frmTCPolynomialSettings::frmTCPolynomialSettings(CQuorTCPolynomial& settings,
                                                 std::shared_ptr<Platform> platform)
    : CoefficientDialog(settings, std::move(platform), L"frmTCPolynomialSettings", 10115) {
    m_mV25C = &AddField(
        L"lblmv25C", L"txtmv25C", [this] { return Object().mV25C(); },
        [this](double value) { Object().SetmV25C(value); }, [this] { return Object().mV25CFormat(); },
        PastedUnit::Millivolt);
    AddRows(TC_POLY_C15 + 1);
}

void frmTCPolynomialSettings::SetCaptions() {
    m_mV25C->label.SetCaption(TableText(IDS_MV_25C) + L":");
    NumberRows(TableText(IDS_C));
    CoefficientDialog::SetCaptions();
}

void frmTCPolynomialSettings::LoadControls() {
    SetVisible(*m_mV25C, Object().ShowmV25C());
    AllowEditing({&m_mV25C->label, &m_mV25C->box});
    if (Object().ShowmV25C())
        ShowValue(*m_mV25C);
    CoefficientDialog::LoadControls();
}

bool frmTCPolynomialSettings::GatherSettings() {
    if (Object().ShowmV25C() && m_mV25C->box.Visible())
        StoreValue(*m_mV25C);
    return CoefficientDialog::GatherSettings();
}

} // namespace QuorConversions
