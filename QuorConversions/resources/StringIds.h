#pragma once

#include <cstdint>

namespace QuorConversions {

/// Ids of the string table by name: IDS_<name> of each row of resources/strings.def. IDS_<name> and
/// IDS_INI_<name> are also the texts of the store's error numbers and causes, QuorIniFile/IniTexts.def.
enum EStringId : std::int32_t {
#define QUOR_STRING(id, name, text) IDS_##name = id,
#include "QuorConversions/resources/strings.def"
#undef QUOR_STRING
};

} // namespace QuorConversions
