#include "QuorConversions/thermocouple/CQuorTCTypeX.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits tcTypeXTraits{L"CQuorTCTypeX", IDS_TC_TYPE, L"tcx", L"Thermocouple Type"};

// C, L, M and U are members of the enumeration that this class neither names nor offers.
constexpr TCTypeCatalogue typesWithPoints{
    {L"B", nullptr, L"E", L"J", L"K", nullptr, nullptr, L"N", L"R", L"S", L"T", nullptr, L"AuPt"}};

} // namespace

CQuorTCTypeX::CQuorTCTypeX(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : PointSettings(std::move(platform), tcTypeXTraits, TCTYPEX_T3 + 1, offsetsKey, L"\u00B0C"),
      m_coefficients(tcTypeXTraits.className, TCTYPEX_DC2) {
    m_coefficients.Resize(TCTYPEX_DC2 + 1);
}

std::wstring CQuorTCTypeX::GetTCTypeName(std::int32_t tc) const {
    return GetName(tc == currentValue ? m_type : tc);
}

void CQuorTCTypeX::FillTCTypeNameCombo(ListControl& ctrl) const { typesWithPoints.Fill(ctrl); }

bool CQuorTCTypeX::CheckPoint(std::int32_t index) const {
    if (IsValidPoint(index))
        return true;
    ShowMessage(IDS_TC_TYPE_INDEX, TableText(IDS_TC_TYPE_INDEX) + std::to_wstring(index));
    return false;
}

double CQuorTCTypeX::Temperatures(std::int32_t index) const {
    return CheckPoint(index) ? PointSettings::Temperatures(index) : 0.0;
}

void CQuorTCTypeX::SetTemperatures(std::int32_t index, double value) {
    if (CheckPoint(index))
        PointSettings::SetTemperatures(index, value);
}

double CQuorTCTypeX::Offsets(std::int32_t index) const {
    return CheckPoint(index) ? PointValues(index) : 0.0;
}

void CQuorTCTypeX::SetOffsets(std::int32_t index, double value) {
    if (CheckPoint(index))
        SetPointValues(index, value);
}

std::wstring CQuorTCTypeX::GetName(std::int32_t tc) const { return typesWithPoints.Name(tc, m_type); }

std::wstring CQuorTCTypeX::GetName() const { return GetName(currentValue); }

void CQuorTCTypeX::WriteRecord(RecordWriter& record) const {
    record.Integer(tcTypeKey, m_type);
    WriteNumPoints(record);
    record.Text(tempScaleKey, TempScale());
    record.Text(offsetScaleKey, OffsetScale());
    WritePoints(record);
    for (const std::int32_t i : {TCTYPEX_DC1, TCTYPEX_DC2})
        record.Double(IndexedKey(coefficientsKey, i), Coefficients(i));
}

void CQuorTCTypeX::ReadRecord(RecordReader& record) {
    SetTCType(ETCType{record.Integer(tcTypeKey, m_type)});
    ReadNumPoints(record);
    SetTempScale(record.Text(tempScaleKey, TempScale()));
    SetOffsetScale(record.Text(offsetScaleKey, OffsetScale()));
    ReadPoints(record);
    for (const std::int32_t i : {TCTYPEX_DC1, TCTYPEX_DC2})
        SetCoefficients(i, record.Double(IndexedKey(coefficientsKey, i), Coefficients(i)));
}

} // namespace QuorConversions
