#include "QuorConversions/rtd/CQuorPT100.h"

#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits pt100Traits{L"CQuorPT100", IDS_PT100, L"pt1", L"Callendar-Van Dusen"};

} // namespace

CQuorPT100::CQuorPT100(std::shared_ptr<Platform> platform)
    : CoefficientSettings(std::move(platform), pt100Traits, anyIndex) {
    SetNumCoefficients(MaxCoefficients());
    SetChanged(false);
}

void CQuorPT100::WriteRecord(RecordWriter& record) const {
    WriteCount(record);
    WriteCoefficients(record);
}

void CQuorPT100::ReadRecord(RecordReader& record) {
    SetNumCoefficients(ReadCount(record));
    ReadCoefficients(record);
}

} // namespace QuorConversions
