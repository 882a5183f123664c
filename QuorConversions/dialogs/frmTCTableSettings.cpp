#include "QuorConversions/dialogs/frmTCTableSettings.h"

namespace QuorConversions {

frmTCTableSettings::frmTCTableSettings(CQuorTCTable& settings, std::shared_ptr<Platform> platform)
    : PointDialog(settings, std::move(platform), L"frmTCTableSettings", 10116,
                  {L"lblVoltage", L"txtVoltage", L"lblVoltageUnits", IDS_VOLTAGE, &CQuorTCTable::Voltages,
                   &CQuorTCTable::SetVoltages, &CQuorTCTable::VoltageScale, &CQuorTCTable::VoltageFormat}),
      m_numPoints(MakeChoice(
          L"lblNumPoints", L"cboNumPoints", [this](ListControl& list) { Object().FillPointsCombo(list); },
          [this] { return Object().NumPoints(); },
          [this](std::int32_t count) { Object().SetNumPoints(static_cast<std::int16_t>(count)); })) {
    AddPoints(TCTABLE_T10 + 1);
}

void frmTCTableSettings::SetCaptions() {
    m_numPoints.label.SetCaption(TableText(IDS_NUMBER_OF_POINTS) + L":");
    PointDialog::SetCaptions();
}

void frmTCTableSettings::LoadControls() {
    ShowChoice(m_numPoints);
    UpdatePointRows(); // a count that is not in the list raises no Click
    PointDialog::LoadControls();
}

bool frmTCTableSettings::GatherSettings() {
    (void)StoreChoice(m_numPoints); // without a selection the count stays
    StorePoints();
    return true;
}

void frmTCTableSettings::OnChoice(Control& /*control*/) { UpdatePointRows(); }

void frmTCTableSettings::UpdatePointRows() {
    const std::int32_t count = m_numPoints.list.SelectedData(0);
    for (std::size_t i = 0; i < Rows().size(); ++i) {
        const PointRow& row = Rows()[i];
        const bool isPoint = static_cast<std::int32_t>(i) < count;
        SetVisible(row.temperature, isPoint);
        SetVisible(row.second, isPoint);
        row.tempUnits.SetVisible(isPoint);
        row.secondUnits.SetVisible(isPoint);
    }
}

} // namespace QuorConversions
