#pragma once

#include <cstdint>

namespace QuorConversions {

/// Ids of the string table by name: IDS_<name> of each row of resources/strings.def.
enum EStringId : std::int32_t {
#define QUOR_STRING(id, name, text) IDS_##name = id,
#include "QuorConversions/resources/strings.def"
#undef QUOR_STRING
};

} // namespace QuorConversions
