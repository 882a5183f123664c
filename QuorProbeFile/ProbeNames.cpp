#include "QuorProbeFile/ProbeNames.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorProbeFile/ProbeTypes.h"

namespace QuorProbeFile {

std::wstring SettingsSection(std::wstring_view probe) {
    std::wstring section;
    section.reserve(probe.size() + settingsMark.size());
    return section.append(probe).append(settingsMark);
}

bool HoldsSettingsOf(std::wstring_view section, std::wstring_view probe) {
    const std::size_t length = probe.size() + settingsMark.size();
    return section.size() >= length && EqualFolded(section.substr(0, probe.size()), probe) &&
           EqualFolded(section.substr(probe.size(), settingsMark.size()), settingsMark) &&
           (section.size() == length || section.substr(length).starts_with(nestedMark));
}

std::vector<std::wstring_view> PossibleOwners(std::wstring_view section) {
    std::vector<std::wstring_view> owners;
    for (std::size_t at = section.find(nestedMark); at != std::wstring_view::npos;
         at = section.find(nestedMark, at + 1)) {
        if (HoldsSettingsOf(section, section.substr(0, at)))
            owners.push_back(section.substr(0, at));
    }
    return owners;
}

std::wstring PathOf(std::wstring_view settings, std::wstring_view section, std::wstring_view key) {
    if (section == settings)
        return std::wstring(key);
    const std::wstring nested = std::wstring(settings).append(nestedMark);
    return section.starts_with(nested)
               ? std::wstring(section.substr(nested.size())).append(1, L'/').append(key)
               : std::wstring{};
}

std::optional<std::wstring> StandAloneSection(std::wstring_view path) {
    const auto types = TypesOfExtension(QuorConversions::GetExtensionPart(path));
    return types.empty() ? std::nullopt : std::optional(types.front()->section);
}

} // namespace QuorProbeFile
