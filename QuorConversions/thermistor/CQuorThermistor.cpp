#include "QuorConversions/thermistor/CQuorThermistor.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits thermistorTraits{L"CQuorThermistor", IDS_THERMISTOR, L"thr", L"Thermistor"};

/// A direction that is neither is shown as T(R).
std::wstring Direction(std::int32_t convType) {
    return TableText(convType == TCT_THRMR_T ? IDS_R_OF_T : IDS_T_OF_R);
}

} // namespace

CQuorThermistor::CQuorThermistor(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : CoefficientSettings(std::move(platform), thermistorTraits, THRM_A3) {
    ResizeCoefficients(THRM_A3 + 1);
    SetChanged(false);
}

std::wstring CQuorThermistor::ConvName(std::int32_t vData) const {
    const std::int32_t convType = vData == currentValue ? m_convType : vData;
    const bool named = convType == TCT_THRMT_R || convType == TCT_THRMR_T;
    return TableText(IDS_THERMISTOR) + L" " + (named ? Direction(convType) : std::wstring{});
}

std::wstring CQuorThermistor::GetName() const {
    return TableText(IDS_THERMISTOR) + L" " + Direction(m_convType);
}

void CQuorThermistor::WriteRecord(RecordWriter& record) const {
    record.Integer(convTypeKey, m_convType);
    WriteCount(record);
    WriteCoefficients(record);
}

void CQuorThermistor::ReadRecord(RecordReader& record) {
    const std::int32_t stored = record.Integer(convTypeKey, m_convType);
    if (stored != m_convType) {
        ShowMessage(IDS_WRONG_THERMISTOR_DIRECTION, ReplaceTildes(TableText(IDS_WRONG_THERMISTOR_DIRECTION),
                                                                  GetName() + L"|" + Direction(stored)));
        return;
    }
    ResizeCoefficients(ReadCount(record));
    ReadCoefficients(record);
}

} // namespace QuorConversions
