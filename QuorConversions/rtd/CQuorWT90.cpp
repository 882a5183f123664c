#include "QuorConversions/rtd/CQuorWT90.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits wt90Traits{L"CQuorWT90", IDS_W_T90, L"w90", L"W(T90)"};

} // namespace

CQuorWT90::CQuorWT90(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : SettingsObject(std::move(platform), wt90Traits) {}

void CQuorWT90::WriteRecord(RecordWriter& record) const { record.Double(rtpwKey, m_rtpw); }

void CQuorWT90::ReadRecord(RecordReader& record) { SetRTPW(record.Double(rtpwKey, m_rtpw)); }

} // namespace QuorConversions
