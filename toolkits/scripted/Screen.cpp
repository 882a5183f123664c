#include "toolkits/scripted/Screen.h"

namespace QuorConversions::Scripted {

void Screen::Run(Dialog& dialog, DialogInput& input, const std::function<void(Hands&)>& act) {
    dialog.SetWindowHandle(1); // any window will do as the owner of a file dialog
    input.Activate();
    ModelHands hands(dialog, input);
    act(hands);
    dialog.SetWindowHandle(0);
}

void Screen::ShowMessage(const MessageRequest& /*request*/, const std::function<void()>& whileShown) {
    whileShown();
}

} // namespace QuorConversions::Scripted
