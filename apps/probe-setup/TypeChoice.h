#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/rtd/CQuorITS90Range.h"
#include "QuorConversions/thermocouple/TCTypeCatalogue.h"

#include <optional>
#include <vector>

namespace ProbeSetup {

/// What a person chooses for a probe: a conversion type, and what its settings begin with, where technicians
/// take them for types of their own. What is not chosen is as in new settings.
struct TypeChoice {
    // NOLINTNEXTLINE(google-explicit-constructor): a type alone is a choice
    TypeChoice(QuorConversions::EQuorConversionType chosenType) : type(chosenType) {}

    QuorConversions::EQuorConversionType type;
    std::optional<bool> polynomial = {};                        ///< the form, for Callendar-Van Dusen
    std::optional<QuorConversions::ETCType> letter = {};        ///< for thermocouples of a standard type
    std::optional<QuorConversions::EITS90RangeNumber> low = {}; ///< for the ITS-90
    std::optional<QuorConversions::EITS90RangeNumber> high = {};

    /// All choices, the types in their order: each form and each letter by itself. The ranges are left open.
    [[nodiscard]] static std::vector<TypeChoice> All();
    /// That of a conversion.
    [[nodiscard]] static TypeChoice Of(const QuorConversions::CQuorConversion& conversion);
    /// Makes `conversion` a new one of the chosen type.
    void ApplyTo(QuorConversions::CQuorConversion& conversion) const;

    friend bool operator==(const TypeChoice&, const TypeChoice&) = default;
};

/// The ITS-90 ranges of one side that can be chosen, "none" first, with the names that the settings give
/// them.
struct RangeChoice {
    QuorConversions::EITS90RangeNumber range;
    std::wstring name;
};
[[nodiscard]] std::vector<RangeChoice> RangeChoices(QuorConversions::EITS90RangeHL side);

} // namespace ProbeSetup
