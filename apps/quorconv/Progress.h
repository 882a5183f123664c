#pragma once

#include "apps/quorconv/System.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

namespace quorconv {

/// Whether that is a terminal that shows colours; not where NO_COLOR is set.
[[nodiscard]] bool ShowsColour(Stream stream);

/// Tells on the standard error, where that is a terminal, how far a long work is: from its first second on.
class Progress {
public:
    /// Whether results are printed between the steps: on a terminal these tell how far it is.
    enum class Results : std::uint8_t { AtTheEnd, InBetween };

    /// `all` steps of that name; 0 where nobody knows how many there are.
    Progress(std::wstring what, std::size_t all, Results results = Results::AtTheEnd);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();
    void Step();

private:
    std::wstring m_what;
    std::size_t m_all;
    std::size_t m_done = 0;
    bool m_isTerminal;
    bool m_isShown = false;
    std::chrono::steady_clock::time_point m_next;
};

} // namespace quorconv
