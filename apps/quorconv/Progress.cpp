#include "apps/quorconv/Progress.h"

#include "QuorIniFile/Utf8.h"

#include <cstdlib>
#include <iostream>
#include <utility>

namespace quorconv {

namespace {

constexpr auto pause = std::chrono::seconds(1);

} // namespace

bool ShowsColour(Stream stream) {
    const char* const noColour = std::getenv("NO_COLOR");
    return (noColour == nullptr || *noColour == '\0') && IsTerminal(stream);
}

Progress::Progress(std::wstring what, std::size_t all, Results results)
    : m_what(std::move(what)),
      m_all(all),
      m_isTerminal(IsTerminal(Stream::Error) &&
                   (results == Results::AtTheEnd || !IsTerminal(Stream::Output))),
      m_next(std::chrono::steady_clock::now() + pause) {}

Progress::~Progress() {
    if (m_isShown)
        std::cerr << "\r\x1B[K" << std::flush;
}

void Progress::Step() {
    ++m_done;
    if (!m_isTerminal || std::chrono::steady_clock::now() < m_next)
        return;
    m_next = std::chrono::steady_clock::now() + pause;
    m_isShown = true;
    std::cerr << '\r' << m_done << (m_all > 0 ? " of " + std::to_string(m_all) : "") << ' '
              << QuorIniFile::ToPrintable(m_what) << "\x1B[K" << std::flush;
}

} // namespace quorconv
