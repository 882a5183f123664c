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

// How the sections and keys of records are called.
namespace QuorProbeFile {

// Two names mean one section or key when they are the same in any case of ASCII letters.
using QuorIniFile::EqualFolded;
using QuorIniFile::Folded;

/// Hashes names so that those which differ in the case of ASCII letters alone are one.
struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::wstring_view name) const { return QuorIniFile::HashName(name); }
};
/// Compares names without the case of ASCII letters.
struct NameEqual {
    using is_transparent = void;
    bool operator()(std::wstring_view a, std::wstring_view b) const { return EqualFolded(a, b); }
};
/// Tables of names, which no file can make slow: see HashName.
template <class Value>
using NameMap = std::unordered_map<std::wstring, Value, NameHash, NameEqual>;
using NameSet = std::unordered_set<std::wstring, NameHash, NameEqual>;

using QuorConversions::nestedMark;
using QuorConversions::settingsMark;

/// The section in which a probe of a host keeps its settings: "P - Settings".
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring SettingsSection(std::wstring_view probe);
/// Whether the settings of `probe` stand in `section`, or below it: "P - Settings", "P - Settings - Low
/// Range".
[[nodiscard]] QUORPROBEFILE_EXPORT bool HoldsSettingsOf(std::wstring_view section, std::wstring_view probe);
/// The parts of `section` that are the name of a probe if its settings stand there: of "A - Settings - Low
/// Range" it is "A". The views point into `section`.
[[nodiscard]] QUORPROBEFILE_EXPORT std::vector<std::wstring_view> PossibleOwners(std::wstring_view section);
/// The path of a key in a RecordImage of the settings that stand in the section `settings`: behind "High
/// Range/" or the like in a nested section; empty for a section that is not of these settings.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring PathOf(std::wstring_view settings, std::wstring_view section,
                                                       std::wstring_view key);
/// The section in which a stand-alone settings file with the extension of `path` keeps its record; nothing
/// for any other file.
[[nodiscard]] QUORPROBEFILE_EXPORT std::optional<std::wstring> StandAloneSection(std::wstring_view path);

} // namespace QuorProbeFile
