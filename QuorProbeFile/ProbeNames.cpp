#include "QuorProbeFile/ProbeNames.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorProbeFile/ProbeTypes.h"

namespace QuorProbeFile {

std::wstring SettingsSection(std::wstring_view probe) {
    std::wstring section;
    section.reserve(probe.size() + settingsMark.size());
    return section.append(probe).append(settingsMark);
}

namespace {

/// Whether the name of a section goes on so behind that of a probe.
bool IsSettings(std::wstring_view rest) {
    return EqualFolded(rest.substr(0, settingsMark.size()), settingsMark) &&
           (rest.size() == settingsMark.size() || rest.substr(settingsMark.size()).starts_with(nestedMark));
}

} // namespace

bool HoldsSettingsOf(std::wstring_view section, std::wstring_view probe) {
    return section.size() > probe.size() && EqualFolded(section.substr(0, probe.size()), probe) &&
           IsSettings(section.substr(probe.size()));
}

std::vector<std::wstring_view> PossibleOwners(std::wstring_view section) {
    std::vector<std::wstring_view> owners;
    for (std::size_t at = section.find(nestedMark); at != std::wstring_view::npos;
         at = section.find(nestedMark, at + 1)) {
        if (IsSettings(section.substr(at)))
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
