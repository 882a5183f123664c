#pragma once

#include "QuorConversions/platform/Platform.h"

namespace QuorConversions {

/// The platform of a host that has no screen: a logger, a service, a script. Messages go to the diagnostic
/// stream as UTF-8, file dialogs are cancelled, there is no help, and nothing ever blocks.
class QUORCONVERSIONS_EXPORT HeadlessPlatform : public Platform {
public:
    void ShowMessage(const MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    [[nodiscard]] EMousePointer MousePointer() const override { return m_pointer; }
    void SetMousePointer(EMousePointer shape) override { m_pointer = shape; }

private:
    EMousePointer m_pointer = POINTER_DEFAULT;
};

/// The platform that an object gets when its host names none.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::shared_ptr<Platform> DefaultPlatform();

} // namespace QuorConversions
