#pragma once

namespace QuorConversions {

/// Most settings objects are created only by a conversion, and the ITS-90 ranges only by their owner: their
/// constructors require this key, which no other class can create.
class CreationKey {
    CreationKey() = default; // NOLINT(modernize-use-equals-default): private on purpose, not an aggregate
    friend struct ConversionTable;
    friend class CQuorITS90;
};

} // namespace QuorConversions
