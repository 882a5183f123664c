#pragma once

#include "QuorConversions/rtd/CQuorITS90Range.h"

namespace QuorConversions {

/// Indices of the coefficients of a high range, all dimensionless.
enum EITS90HighRangeCoefficients : std::int32_t {
    ITS90_HIGH_A = 0,
    ITS90_HIGH_B = 1,
    ITS90_HIGH_C = 2,
    ITS90_HIGH_D = 3,
};

/// The sub-range above the triple point of water: ranges 5 to 11.
class QUORCONVERSIONS_EXPORT CQuorITS90HighRange final : public CQuorITS90Range {
public:
    /// Made by CQuorITS90, with no range selected.
    CQuorITS90HighRange(CreationKey key, std::shared_ptr<Platform> platform);

private:
    static const Row rows[];
    static const Side side;
};

} // namespace QuorConversions
