#pragma once

#include "QuorConversions/Export.h"

#include <cstdint>

namespace QuorConversions {

/// The conversion types. The values are stored in files; they are only ever added to.
enum EQuorConversionType : std::int32_t {
    CONV_NONE = -1,
    CONV_ITS90 = 0,
    CONV_IPTS68 = 1,
    CONV_CVD = 2,
    CONV_HTPRT = 3,
    CONV_POLYNOMIAL = 4,
    CONV_THERMISTORT_R = 5,
    CONV_THERMISTORR_T = 6,
    CONV_TCPOLYNOMIAL = 7,
    CONV_TCTABLE = 8,
    CONV_TCTYPEX = 9,
    CONV_OHMS = 10,
    CONV_VOLTS = 11,
    CONV_IEC751 = 12,
    CONV_YSI400 = 13,
    CONV_WT90 = 14,
    CONV_RATIO = 15,
    CONV_PT100 = 16, ///< has no settings object
    CONV_ITSSR5 = 17,
    CONV_THERMISTOR_OHMS = 18,
    CONV_PT100R0 = 19, ///< has a CQuorPT100
    CONV_TCTYPEPOLY = 20,
};

/// The name of a code in the enumeration ("CONV_CVD"), for scripts; null for a code without one.
[[nodiscard]] QUORCONVERSIONS_EXPORT const wchar_t* ConversionEnumerator(std::int32_t code);

} // namespace QuorConversions
