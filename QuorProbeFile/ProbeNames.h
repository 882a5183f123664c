#pragma once

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/AsciiCase.h"
#include "QuorProbeFile/Export.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

// The names of the sections and keys of records.
namespace QuorProbeFile {

// Two names mean the same section or key if they are equal when the case of ASCII letters is ignored.
using QuorIniFile::EqualFolded;
using QuorIniFile::Folded;

/// Hashes names, ignoring the case of ASCII letters.
struct NameHash {
    /// Allows look-ups without a copy of the name.
    using is_transparent = void;
    /// The hash of a name: see HashName.
    std::size_t operator()(std::wstring_view name) const { return QuorIniFile::HashName(name); }
};
/// Compares names, ignoring the case of ASCII letters.
struct NameEqual {
    /// Allows look-ups without a copy of the name.
    using is_transparent = void;
    /// Whether two names mean the same section or key.
    bool operator()(std::wstring_view a, std::wstring_view b) const { return EqualFolded(a, b); }
};
/// Tables of names; no file can make them slow: see HashName.
template <class Value>
using NameMap = std::unordered_map<std::wstring, Value, NameHash, NameEqual>;
using NameSet = std::unordered_set<std::wstring, NameHash, NameEqual>;

using QuorConversions::nestedMark;
using QuorConversions::settingsMark;

/// The section with the settings of a probe in a host's file: "P - Settings".
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring SettingsSection(std::wstring_view probe);
/// Whether `section` has settings of `probe`: "P - Settings", "P - Settings - Low Range".
[[nodiscard]] QUORPROBEFILE_EXPORT bool HoldsSettingsOf(std::wstring_view section, std::wstring_view probe);
/// The names of the probes to which `section` would belong if it has settings: "A" for "A - Settings - Low
/// Range". The views point into `section`.
[[nodiscard]] QUORPROBEFILE_EXPORT std::vector<std::wstring_view> PossibleOwners(std::wstring_view section);
/// The path of a key in a RecordImage of the settings in the section `settings`: with "High Range/" or the
/// like before it in a nested section; empty for a section that is not part of these settings.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring PathOf(std::wstring_view settings, std::wstring_view section,
                                                       std::wstring_view key);
/// The section of the record in a stand-alone settings file with the extension of `path`; nothing for any
/// other file.
[[nodiscard]] QUORPROBEFILE_EXPORT std::optional<std::wstring> StandAloneSection(std::wstring_view path);

} // namespace QuorProbeFile
