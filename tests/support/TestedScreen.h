#pragma once

#include "toolkits/scripted/Screen.h"

#include <memory>

namespace Support {

/// The screen on which the dialogs are tested: each test program of the dialogs has its own.
std::shared_ptr<QuorConversions::Scripted::Screen> TestedScreen();

} // namespace Support
