#pragma once

#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeFileError.h"
#include "QuorProbeFile/ProbeNames.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace QuorProbeFile {

/// The sections of a file, to check for many names whether a new probe can have them: what is written for it
/// must not be read as part of another probe, nor other sections as its settings.
///
/// It is public for hosts that check names before they write: names in a list of their own, where the same
/// save may free other names. ProbeFile::Write and Rename check by themselves.
class QUORPROBEFILE_EXPORT TakenNames {
public:
    /// Why a new probe cannot have a name.
    struct Obstacle {
        EProbeFileError code; ///< the reason
        std::wstring other;   ///< as ProbeFileError::Other
    };

    /// Adds a section of the file, whether it belongs to a probe or not. Do not add one that is removed or
    /// renamed.
    void Add(const std::wstring& section);

    /// Why a new probe cannot have that name; nothing if it can:
    /// - PROBE_BAD_NAME: a section cannot have it,
    /// - PROBE_NAME_IS_TAKEN: a section has it,
    /// - PROBE_NAME_OF_SETTINGS: it is that of settings of the probe `other`; `isProbe` is asked whether a
    /// name is
    ///   that of a probe,
    /// - PROBE_SETTINGS_ARE_TAKEN: the section `other` would become part of its settings.
    [[nodiscard]] std::optional<Obstacle>
    ObstacleTo(std::wstring_view name, const std::function<bool(std::wstring_view)>& isProbe) const;

    /// A section that is named like settings of that probe; nothing if there is none.
    [[nodiscard]] std::optional<std::wstring> SettingsOf(std::wstring_view probe) const;

private:
    NameSet m_sections;
    NameMap<std::wstring> m_settings; // by the probe whose settings they would be, the first of each
};

} // namespace QuorProbeFile
