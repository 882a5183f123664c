#pragma once

#include <string>
#include <string_view>

// How the sections and keys of records are called.
namespace ProbeRecords {

/// `text` with ASCII capitals made small.
[[nodiscard]] std::wstring Folded(std::wstring text);
/// Whether two names mean one section or key: they are the same in any case of ASCII letters.
[[nodiscard]] bool SameName(std::wstring_view a, std::wstring_view b);

/// What stands between the name of a section and that of a record nested in it.
inline constexpr std::wstring_view nestedMark = L" - ";
/// What follows the name of a probe in that of the section of its settings.
inline constexpr std::wstring_view settingsMark = L" - Settings";

/// The section in which a probe of a host keeps its settings: "P - Settings".
[[nodiscard]] std::wstring SettingsSection(std::wstring_view probe);
/// Whether the settings of `probe` stand in `section`, or below it: "P - Settings", "P - Settings - Low
/// Range".
[[nodiscard]] bool HoldsSettingsOf(std::wstring_view section, std::wstring_view probe);

} // namespace ProbeRecords
