#pragma once

#include "QuorConversions/platform/Platform.h"

namespace QuorConversions {

/// The platform of a host without a screen: a logger, a service, a script. Messages go to the diagnostic
/// stream as UTF-8, "TITLE: TEXT"; further lines are indented, and control characters are escaped
/// (ToPrintable), so that a name in a message cannot look like another message. File dialogs are cancelled,
/// settings dialogs fail, there is no help, and nothing ever blocks.
class QUORCONVERSIONS_EXPORT HeadlessPlatform : public Platform {
public:
    /// Raises QuorError: without a screen there is no dialog.
    void RunDialog(Dialog& dialog, DialogInput& input) override;
    void ShowMessage(const MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    /// There is no pointer, and nothing is stored: one headless platform serves all objects.
    [[nodiscard]] EMousePointer MousePointer() const override { return POINTER_DEFAULT; }
    void SetMousePointer(EMousePointer /*shape*/) override {}
};

/// The platform of an object whose host passes none: a HeadlessPlatform.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::shared_ptr<Platform> DefaultPlatform();

} // namespace QuorConversions
