#pragma once

#include "QuorConversions/platform/HeadlessPlatform.h"

namespace QuorConversions::Automation {

/// The platform of what hosts make by name: message boxes and file dialogs of the system. Where none can be
/// shown, in a session without a screen, it is the headless one. Settings dialogs need a toolkit: it has
/// none.
class ServerPlatform final : public HeadlessPlatform {
public:
    void ShowMessage(const MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
};

} // namespace QuorConversions::Automation
