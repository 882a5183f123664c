#include "QuorConversions/rtd/CQuorITS90LowRange.h"

#include <iterator>

namespace QuorConversions {

const CQuorITS90Range::Row CQuorITS90LowRange::rows[] = {
    {ITS90_NORANGE, IDS_NO_RANGE, 0}, {ITS90_RANGE_1, IDS_RANGE_1, 7}, {ITS90_RANGE_2, IDS_RANGE_2, 5},
    {ITS90_RANGE_3, IDS_RANGE_3, 3},  {ITS90_RANGE_4, IDS_RANGE_4, 2}, {ITS90_RANGE_5, IDS_RANGE_5, 2},
};

// Every range of this side may be selected when the range is disabled, so the lowest is whatever MinRange
// says.
const CQuorITS90Range::Side CQuorITS90LowRange::side = {
    L"CQuorITS90LowRange", ITS90_RANGE_1, ITS90_RANGE_5, lowestRange, ITS90_LOW_C5, rows, std::size(rows)};

CQuorITS90LowRange::CQuorITS90LowRange(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : CQuorITS90Range(std::move(platform), side) {}

} // namespace QuorConversions
