#include "QuorConversions/rtd/CQuorITS90.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits its90Traits{L"CQuorITS90", IDS_ITS_90, L"i90", L"ITS-90"};

} // namespace

CQuorITS90::CQuorITS90(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : SettingsObject(std::move(platform), its90Traits) {
    m_lowRange = std::make_shared<CQuorITS90LowRange>(CreationKey{}, HostPlatform());
    m_highRange = std::make_shared<CQuorITS90HighRange>(CreationKey{}, HostPlatform());
}

void CQuorITS90::SetRegistry(std::shared_ptr<QuorRegistryII::Registry>& vData) {
    SettingsObject::SetRegistry(vData);
    m_lowRange->SetRegistry(vData);
    m_highRange->SetRegistry(vData);
}

bool CQuorITS90::Changed() const {
    return SettingsObject::Changed() || m_lowRange->Changed() || m_highRange->Changed();
}

void CQuorITS90::SetChanged(bool value) {
    SettingsObject::SetChanged(value);
    m_lowRange->SetChanged(value);
    m_highRange->SetChanged(value);
}

void CQuorITS90::ClearSpareValues() {
    m_lowRange->ClearSpareValues();
    m_highRange->ClearSpareValues();
}

void CQuorITS90::WriteRecord(RecordWriter& record) const {
    record.Double(rtpwKey, m_rtpw);
    record.Nested(highRangeName, *m_highRange);
    record.Nested(lowRangeName, *m_lowRange);
}

void CQuorITS90::ReadRecord(RecordReader& record) {
    SetRTPW(record.Double(rtpwKey, m_rtpw));
    record.Nested(highRangeName, *m_highRange);
    record.Nested(lowRangeName, *m_lowRange);
}

} // namespace QuorConversions
