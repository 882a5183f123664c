#include "QuorConversions/dialogs/frmTCTypeXSettings.h"

#include <algorithm>

namespace QuorConversions {

frmTCTypeXSettings::frmTCTypeXSettings(CQuorTCTypeX& settings, std::shared_ptr<Platform> platform)
    : PointDialog(settings, std::move(platform), L"frmTCTypeXSettings", 10117,
                  {L"lblOffset", L"txtOffset", L"lblOffsetUnits", IDS_OFFSET, &CQuorTCTypeX::Offsets,
                   &CQuorTCTypeX::SetOffsets, &CQuorTCTypeX::OffsetScale, &CQuorTCTypeX::OffsetFormat}),
      m_type(MakeChoice(
          L"lblTCType", L"cboTCType", [this](ListControl& list) { Object().FillTCTypeNameCombo(list); },
          [this] { return Object().TCType(); },
          [this](std::int32_t type) { Object().SetTCType(ETCType{type}); })) {
    for (const std::int32_t index : {TCTYPEX_DC1, TCTYPEX_DC2}) {
        const std::wstring element = L"(" + std::to_wstring(index) + L")";
        m_dc.push_back(&AddField(
            L"lblCoefficients" + element, L"txtCoefficients" + element,
            [this, index] { return Object().Coefficients(index); },
            [this, index](double value) { Object().SetCoefficients(index, value); },
            [this] { return Object().ValueFormat(); }));
    }
    AddPoints(TCTYPEX_T3 + 1);
}

void frmTCTypeXSettings::SetCaptions() {
    m_type.label.SetCaption(TableText(IDS_TYPE) + L":");
    for (std::size_t i = 0; i < m_dc.size(); ++i)
        m_dc[i]->label.SetCaption(TableText(IDS_DC) + std::to_wstring(i + 1) + L":");
    PointDialog::SetCaptions();
}

void frmTCTypeXSettings::LoadControls() {
    ShowChoice(m_type);
    UpdateDCRows(); // a type that is not in the list raises no Click
    for (const Field* const dc : m_dc) {
        AllowEditing({&dc->label, &dc->box});
        ShowValue(*dc);
    }
    PointDialog::LoadControls();
    // The object has no point for these rows: whatever is typed there could not be stored.
    for (std::size_t i = 0; i < Rows().size(); ++i) {
        const PointRow& row = Rows()[i];
        if (!HasPoint(i))
            for (Control* const control : std::initializer_list<Control*>{
                     &row.point, &row.temperature.box, &row.tempUnits, &row.second.box, &row.secondUnits})
                control->SetEnabled(false);
    }
}

bool frmTCTypeXSettings::GatherSettings() {
    (void)StoreChoice(m_type); // without a selection the type stays, and the validation refuses it
    for (const Field* const dc : m_dc)
        StoreValue(*dc); // also while they are hidden
    StorePoints();
    return true;
}

bool frmTCTypeXSettings::ValidateSettings() {
    return m_type.list.HasSelection() || Refuse(IDS_SELECT_TC_TYPE, &m_type.list);
}

bool frmTCTypeXSettings::IsGathered(const Field& field) const {
    return std::find(m_dc.begin(), m_dc.end(), &field) != m_dc.end() || PointDialog::IsGathered(field);
}

void frmTCTypeXSettings::OnChoice(Control& /*control*/) { UpdateDCRows(); }

void frmTCTypeXSettings::UpdateDCRows() {
    const std::int32_t type = m_type.list.SelectedData(TCTYPE_NONE);
    const bool usesDC = type == TCTYPE_R || type == TCTYPE_S || type == TCTYPE_AUPT;
    for (const Field* const dc : m_dc)
        SetVisible(*dc, usesDC && Object().ShowDCCoefs());
}

} // namespace QuorConversions
