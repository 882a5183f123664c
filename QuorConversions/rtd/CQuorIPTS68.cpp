#include "QuorConversions/rtd/CQuorIPTS68.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits ipts68Traits{L"CQuorIPTS68", IDS_IPTS_68, L"i68", L"IPTS-68"};

} // namespace

CQuorIPTS68::CQuorIPTS68(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : CoefficientSettings(std::move(platform), ipts68Traits, IPTS68_C4) {
    ResizeCoefficients(IPTS68_C4 + 1);
    SetChanged(false);
}

std::wstring CQuorIPTS68::IPTS68ScaleName(std::int32_t vData) const {
    switch (vData == currentValue ? m_scale : vData) {
    case SCALE_ITS90:
        return TableText(IDS_ITS_90);
    case SCALE_IPTS68:
        return TableText(IDS_IPTS_68);
    default:
        return {};
    }
}

void CQuorIPTS68::FillScaleCombo(ListControl& ctrl) const {
    ctrl.Clear();
    for (const EIPTS68Scale scale : {SCALE_ITS90, SCALE_IPTS68})
        AddItemWithData(ctrl, IPTS68ScaleName(scale), scale);
}

void CQuorIPTS68::WriteRecord(RecordWriter& record) const {
    record.Integer(ipts68ScaleKey, m_scale);
    WriteCount(record);
    WriteCoefficients(record);
}

void CQuorIPTS68::ReadRecord(RecordReader& record) {
    SetIPTS68Scale(EIPTS68Scale{record.Integer(ipts68ScaleKey, m_scale)});
    ResizeCoefficients(ReadCount(record));
    ReadCoefficients(record);
}

} // namespace QuorConversions
