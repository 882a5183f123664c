#pragma once

namespace QuorConversions {

/// Most settings classes are public but come into being only through the facade, and the ITS-90 ranges only
/// through their owner: their constructors ask for this key, which nobody else can make.
class CreationKey {
    CreationKey() = default; // NOLINT(modernize-use-equals-default): private on purpose, not an aggregate
    friend struct ConversionTable;
    friend class CQuorITS90;
};

} // namespace QuorConversions
