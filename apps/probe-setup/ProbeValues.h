#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/platform/Platform.h"

#include <string>
#include <vector>

namespace ProbeSetup {

/// A value of a probe, as its dialog shows it.
struct ProbeValue {
    std::wstring page; ///< the tab on which it stands, "Low Range"; empty where the dialog has none
    std::wstring name; ///< "R0", "Temperature 2"
    std::wstring text; ///< with all its digits, in the notation of the user's country
    std::wstring
        units; ///< beside the box, or those that are customary for the value; empty for a plain number
    friend bool operator==(const ProbeValue&, const ProbeValue&) = default;
};

/// The values of a conversion, in the order of its dialog, which is not shown: what stands in the dialog, as
/// it is called there. None for a conversion without settings. `host` tells the decimal separator.
[[nodiscard]] std::vector<ProbeValue> ValuesOf(const QuorConversions::CQuorConversion& conversion,
                                               QuorConversions::Platform& host);

} // namespace ProbeSetup
