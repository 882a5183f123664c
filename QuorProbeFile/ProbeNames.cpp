#include "QuorProbeFile/ProbeNames.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorProbeFile/ProbeTypes.h"

#include <algorithm>

namespace QuorProbeFile {

namespace {

wchar_t Fold(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; }

} // namespace

std::wstring Folded(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), Fold);
    return text;
}

bool SameName(std::wstring_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return Fold(x) == Fold(y); });
}

std::wstring SettingsSection(std::wstring_view probe) { return std::wstring(probe).append(settingsMark); }

bool HoldsSettingsOf(std::wstring_view section, std::wstring_view probe) {
    const std::size_t length = probe.size() + settingsMark.size();
    return section.size() >= length && SameName(section.substr(0, probe.size()), probe) &&
           SameName(section.substr(probe.size(), settingsMark.size()), settingsMark) &&
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
