#pragma once

#include "QuorConversions/rtd/CQuorITS90Range.h"

namespace QuorConversions {

/// Indices of the coefficients of a low range, all dimensionless.
enum EITS90LowRangeCoefficients : std::int32_t {
    ITS90_LOW_A = 0,
    ITS90_LOW_B = 1,
    ITS90_LOW_C1 = 2,
    ITS90_LOW_C2 = 3,
    ITS90_LOW_C3 = 4,
    ITS90_LOW_C4 = 5,
    ITS90_LOW_C5 = 6,
};

/// The sub-range below the triple point of water: ranges 1 to 5.
class QUORCONVERSIONS_EXPORT CQuorITS90LowRange final : public CQuorITS90Range {
public:
    /// Made by CQuorITS90, with no range selected.
    CQuorITS90LowRange(CreationKey key, std::shared_ptr<Platform> platform);

private:
    static const Row rows[];
    static const Side side;
};

} // namespace QuorConversions
