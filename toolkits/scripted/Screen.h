#pragma once

#include "QuorConversions/platform/Platform.h"
#include "toolkits/scripted/InputDriver.h"

#include <functional>

namespace QuorConversions::Scripted {

/// On what a scripted platform shows its dialogs and messages. This one has no pixels: the model itself is
/// what a person sees.
class Screen {
public:
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    /// Shows the dialog, and lets `act` act on it, which leaves it.
    virtual void Run(Dialog& dialog, DialogInput& input, const std::function<void(InputDriver&)>& act);
    /// Shows the message, and calls `whileShown` before it is closed.
    virtual void ShowMessage(const MessageRequest& request, const std::function<void()>& whileShown);
};

} // namespace QuorConversions::Scripted
