#pragma once

#include <cstdint>

namespace QuorConversions {

/// Indices of the coefficients of CQuorTCPolynomial, of which CQuorTCTypePoly has the first four. C[i] is in
/// millivolts per degree Celsius to the i-th power.
enum ETCPolynomialCoefficients : std::int32_t {
    TC_POLY_C0 = 0,
    TC_POLY_C1 = 1,
    TC_POLY_C2 = 2,
    TC_POLY_C3 = 3,
    TC_POLY_C4 = 4,
    TC_POLY_C5 = 5,
    TC_POLY_C6 = 6,
    TC_POLY_C7 = 7,
    TC_POLY_C8 = 8,
    TC_POLY_C9 = 9,
    TC_POLY_C10 = 10,
    TC_POLY_C11 = 11,
    TC_POLY_C12 = 12,
    TC_POLY_C13 = 13,
    TC_POLY_C14 = 14,
    TC_POLY_C15 = 15,
};

} // namespace QuorConversions
