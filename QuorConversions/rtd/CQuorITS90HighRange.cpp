#include "QuorConversions/rtd/CQuorITS90HighRange.h"

#include <iterator>

namespace QuorConversions {

const CQuorITS90Range::Row CQuorITS90HighRange::rows[] = {
    {ITS90_NORANGE, IDS_NO_RANGE, 0},  {ITS90_RANGE_5, IDS_RANGE_5, 2},   {ITS90_RANGE_6, IDS_RANGE_6, 4},
    {ITS90_RANGE_7, IDS_RANGE_7, 3},   {ITS90_RANGE_8, IDS_RANGE_8, 2},   {ITS90_RANGE_9, IDS_RANGE_9, 2},
    {ITS90_RANGE_10, IDS_RANGE_10, 1}, {ITS90_RANGE_11, IDS_RANGE_11, 1},
};

// Range 5 reaches below the triple point of water too; a disabled high range is one that does not.
const CQuorITS90Range::Side CQuorITS90HighRange::side = {
    L"CQuorITS90HighRange", ITS90_RANGE_5, ITS90_RANGE_11, ITS90_RANGE_6,
    ITS90_HIGH_D,           rows,          std::size(rows)};

CQuorITS90HighRange::CQuorITS90HighRange(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : CQuorITS90Range(std::move(platform), side) {}

} // namespace QuorConversions
