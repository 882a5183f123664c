#pragma once

#include "QuorConversions/Export.h"
#include "QuorConversions/controls/ListControl.h"

#include <array>
#include <cstdint>
#include <string>

namespace QuorConversions {

/// The standard thermocouple types.
enum ETCType : std::int32_t {
    TCTYPE_NONE = -1,
    TCTYPE_B = 0,
    TCTYPE_C = 1,
    TCTYPE_E = 2,
    TCTYPE_J = 3,
    TCTYPE_K = 4,
    TCTYPE_L = 5,
    TCTYPE_M = 6,
    TCTYPE_N = 7,
    TCTYPE_R = 8,
    TCTYPE_S = 9,
    TCTYPE_T = 10,
    TCTYPE_U = 11,
    TCTYPE_AUPT = 12,
};

/// The thermocouple types of one class. The letters are the same in every language.
struct TCTypeCatalogue {
    /// The name of each type from TCTYPE_B to TCTYPE_AUPT; null for one that the class does not have.
    std::array<const wchar_t*, 13> names;

    /// The name of `type`, or, for -2, "TC Type " and the name of `current`. TCTYPE_NONE has an empty name; a
    /// type that the class does not have is "<unknown>", without the prefix.
    [[nodiscard]] std::wstring Name(std::int32_t type, std::int32_t current) const;
    /// Fills a list with the names, each with its value as item data. Selects nothing.
    void Fill(ListControl& ctrl) const;
};

} // namespace QuorConversions
