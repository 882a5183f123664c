#include "QuorProbeFile/TakenNames.h"

#include "QuorIniFile/IniStore.h"

namespace QuorProbeFile {

void TakenNames::Add(const std::wstring& section) {
    m_sections.insert(section);
    for (const std::wstring_view probe : PossibleOwners(section))
        m_settings.emplace(probe, section);
}

std::optional<TakenNames::Obstacle>
TakenNames::ObstacleTo(std::wstring_view name, const std::function<bool(std::wstring_view)>& isProbe) const {
    if (!QuorIniFile::IniStore::CanNameSection(name))
        return Obstacle{PROBE_BAD_NAME, {}};
    if (!m_sections.empty() && m_sections.contains(name))
        return Obstacle{PROBE_NAME_IS_TAKEN, {}};
    for (const std::wstring_view probe : PossibleOwners(name)) {
        if (isProbe(probe))
            return Obstacle{PROBE_NAME_OF_SETTINGS, std::wstring(probe)};
    }
    if (auto settings = SettingsOf(name))
        return Obstacle{PROBE_SETTINGS_ARE_TAKEN, *std::move(settings)};
    return std::nullopt;
}

std::optional<std::wstring> TakenNames::SettingsOf(std::wstring_view probe) const {
    if (m_settings.empty()) // as in nearly all files; the hash of a name takes its time
        return std::nullopt;
    const auto settings = m_settings.find(probe);
    return settings == m_settings.end() ? std::nullopt : std::optional(settings->second);
}

} // namespace QuorProbeFile
