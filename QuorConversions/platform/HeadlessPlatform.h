#pragma once

#include "QuorConversions/platform/Platform.h"

namespace QuorConversions {

/// The platform of a host that has no screen: a logger, a service, a script. Messages go to the diagnostic
/// stream as UTF-8, "TITLE: TEXT"; their further lines are indented, and control characters are escaped
/// (ToPrintable), so that no name in a message can pass for another message. File dialogs are cancelled,
/// settings dialogs fail, there is no help, and nothing ever blocks.
class QUORCONVERSIONS_EXPORT HeadlessPlatform : public Platform {
public:
    /// Raises: without a screen nobody can edit.
    void RunDialog(Dialog& dialog, DialogInput& input) override;
    void ShowMessage(const MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    /// There is no pointer, and nothing is kept: one headless platform serves all objects.
    [[nodiscard]] EMousePointer MousePointer() const override { return POINTER_DEFAULT; }
    void SetMousePointer(EMousePointer /*shape*/) override {}
};

/// The platform that an object gets when its host names none.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::shared_ptr<Platform> DefaultPlatform();

} // namespace QuorConversions
