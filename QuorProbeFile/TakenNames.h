#pragma once

#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeFileError.h"
#include "QuorProbeFile/ProbeNames.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace QuorProbeFile {

/// The sections of a file, to ask for many names whether a new probe can have them: nobody may read what is
/// written of it as another's, nor the sections of others as its settings.
class QUORPROBEFILE_EXPORT TakenNames {
public:
    /// Why a new probe cannot have a name.
    struct Obstacle {
        EProbeFileError code;
        std::wstring other; ///< as ProbeFileError has it
    };

    /// Adds a section of the file, that of a probe or any other. One that goes, or moves, is not added.
    void Add(const std::wstring& section);

    /// What keeps a new probe from getting that name:
    /// - PROBE_BAD_NAME: no section can have it,
    /// - PROBE_NAME_IS_TAKEN: it is that of a section,
    /// - PROBE_NAME_OF_SETTINGS: it is that of settings of a probe, `other`, which `isProbe` tells from
    /// others,
    /// - PROBE_SETTINGS_ARE_TAKEN: a section, `other`, would be part of its settings.
    /// Nothing when it can get it.
    [[nodiscard]] std::optional<Obstacle>
    ObstacleTo(std::wstring_view name, const std::function<bool(std::wstring_view)>& isProbe) const;

    /// The section that is called like settings of that probe; nothing when there is none.
    [[nodiscard]] std::optional<std::wstring> SettingsOf(std::wstring_view probe) const;

private:
    NameSet m_sections;
    NameMap<std::wstring> m_settings; // by the probe whose settings they would be, the first of each
};

} // namespace QuorProbeFile
