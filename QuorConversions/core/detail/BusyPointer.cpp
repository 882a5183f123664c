#include "QuorConversions/core/detail/BusyPointer.h"

namespace QuorConversions {

BusyPointer::BusyPointer(Platform& platform) noexcept : m_platform(platform) {
    try {
        m_remembered = platform.MousePointer();
    } catch (...) { // the default shape is put back then
    }
    SetPointer(platform, POINTER_HOURGLASS);
}

BusyPointer::~BusyPointer() { SetPointer(m_platform, m_remembered); }

void SetPointer(Platform& platform, EMousePointer shape) noexcept {
    try {
        platform.SetMousePointer(shape);
    } catch (...) { // a wrong pointer shape is no reason to lose the call that shows it
    }
}

} // namespace QuorConversions
