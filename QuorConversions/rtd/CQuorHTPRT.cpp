#include "QuorConversions/rtd/CQuorHTPRT.h"

#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

// The section keeps its short form, which is not the display name, for the files that exist.
constexpr SettingsTraits htprtTraits{L"CQuorHTPRT", IDS_HIGH_TEMPERATURE_PRT, L"hpt", L"High Temp PRT"};

} // namespace

CQuorHTPRT::CQuorHTPRT(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : CoefficientSettings(std::move(platform), htprtTraits, HTPRT_B) {
    ResizeCoefficients(HTPRT_B + 1);
    SetChanged(false);
}

void CQuorHTPRT::WriteRecord(RecordWriter& record) const {
    WriteCount(record);
    WriteCoefficients(record);
}

void CQuorHTPRT::ReadRecord(RecordReader& record) {
    ResizeCoefficients(ReadCount(record));
    ReadCoefficients(record);
}

} // namespace QuorConversions
