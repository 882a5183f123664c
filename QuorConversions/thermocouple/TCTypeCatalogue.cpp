#include "QuorConversions/thermocouple/TCTypeCatalogue.h"

#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/core/modStrings.h"

namespace QuorConversions {

std::wstring TCTypeCatalogue::Name(std::int32_t type, std::int32_t current) const {
    const bool isCurrent = type == currentValue;
    if (isCurrent)
        type = current;
    std::wstring prefix = isCurrent ? TableText(IDS_TC_TYPE) + L" " : L"";
    if (type == TCTYPE_NONE)
        return prefix;
    const auto index = static_cast<std::size_t>(type);
    const wchar_t* const name =
        index < names.size() ? names[index] : nullptr; // a negative type is a huge index
    return name ? prefix + name : TableText(IDS_UNKNOWN);
}

void TCTypeCatalogue::Fill(ListControl& ctrl) const {
    ctrl.Clear();
    for (std::size_t type = 0; type < names.size(); ++type)
        if (names[type])
            AddItemWithData(ctrl, names[type], static_cast<std::int32_t>(type));
}

} // namespace QuorConversions
