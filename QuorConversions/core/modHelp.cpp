#include "QuorConversions/core/modHelp.h"

#include "QuorConversions/core/detail/BusyPointer.h"

#include <utility>

namespace QuorConversions {
namespace {

std::wstring& LibraryHelpFile() {
    static std::wstring helpFile;
    return helpFile;
}

} // namespace

const std::wstring& HelpFile() { return LibraryHelpFile(); }

void SetHelpFile(std::wstring helpFile) { LibraryHelpFile() = std::move(helpFile); }

std::int32_t ShowHelp(Platform& platform, std::uint32_t command, std::int32_t data) noexcept {
    std::int32_t result = 0;
    SetPointer(platform, POINTER_HOURGLASS);
    try {
        result = platform.CallHelp(HelpFile(), command, data);
    } catch (...) { // help that does not open is told by the result
    }
    // Not the remembered shape: whoever asks for help is not busy any more.
    SetPointer(platform, POINTER_DEFAULT);
    return result;
}

std::int32_t ShowHelpTopic(Platform& platform, std::int32_t contextId) noexcept {
    return ShowHelp(platform, helpCommandContext, contextId);
}

} // namespace QuorConversions
