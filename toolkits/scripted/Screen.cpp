#include "toolkits/scripted/Screen.h"

namespace QuorConversions::Scripted {

void Screen::Run(Dialog& dialog, DialogInput& input, const std::function<void(InputDriver&)>& act) {
    dialog.SetWindowHandle(1); // any window will do as the owner of a file dialog
    input.Activate();
    ModelInputDriver driver(dialog, input);
    act(driver);
    dialog.SetWindowHandle(0);
}

void Screen::ShowMessage(const MessageRequest& /*request*/, const std::function<void()>& whileShown) {
    whileShown();
}

} // namespace QuorConversions::Scripted
