#pragma once

#include "QuorConversions/platform/Platform.h"

namespace QuorConversions {

/// Shows the hourglass for as long as it lives and then puts back the pointer that it found, on every path.
/// A platform that cannot tell or set its pointer spoils nothing else: its errors are dropped.
class BusyPointer {
public:
    explicit BusyPointer(Platform& platform) noexcept;
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
    ~BusyPointer();

private:
    Platform& m_platform;
    EMousePointer m_remembered = POINTER_DEFAULT;
};

/// Sets the pointer; errors of the platform are dropped.
void SetPointer(Platform& platform, EMousePointer shape) noexcept;

} // namespace QuorConversions
