#pragma once

#include "QuorConversions/Export.h"
#include "QuorConversions/platform/Platform.h"

#include <cstdint>
#include <string>

namespace QuorConversions {

/// The help file of the whole library in this process; empty until a host sets it.
[[nodiscard]] QUORCONVERSIONS_EXPORT const std::wstring& HelpFile();
QUORCONVERSIONS_EXPORT void SetHelpFile(std::wstring helpFile);

/// The help-engine command that shows the topic with a context number.
inline constexpr std::uint32_t helpCommandContext = 1;

/// Calls the help engine on the library's help file, with the hourglass pointer. Returns the engine's result,
/// 0 on failure; never raises.
QUORCONVERSIONS_EXPORT std::int32_t ShowHelp(Platform& platform, std::uint32_t command,
                                             std::int32_t data) noexcept;
/// Shows the topic with the context number `contextId`. Result as in ShowHelp.
QUORCONVERSIONS_EXPORT std::int32_t ShowHelpTopic(Platform& platform, std::int32_t contextId) noexcept;

} // namespace QuorConversions
