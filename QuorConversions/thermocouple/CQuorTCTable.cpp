#include "QuorConversions/thermocouple/CQuorTCTable.h"

#include "QuorConversions/core/RecordNames.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits tcTableTraits{L"CQuorTCTable", IDS_TC_TABLE, L"tct", L"Thermocouple Table"};

} // namespace

CQuorTCTable::CQuorTCTable(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : PointSettings(std::move(platform), tcTableTraits, TCTABLE_T10 + 1, voltagesKey, L"mV") {}

void CQuorTCTable::WriteRecord(RecordWriter& record) const {
    WriteNumPoints(record);
    WritePoints(record);
}

void CQuorTCTable::ReadRecord(RecordReader& record) {
    ReadNumPoints(record);
    ReadPoints(record);
}

} // namespace QuorConversions
