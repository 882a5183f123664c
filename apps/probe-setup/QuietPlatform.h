#pragma once

#include "QuorConversions/platform/Platform.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ProbeSetup {

/// The host's platform, which can be kept quiet while the document works through many probes: messages are
/// collected then instead of shown, and the pointer stays as it is.
class QuietPlatform final : public QuorConversions::Platform {
public:
    /// Keeps the platform quiet as long as it lives. They nest; each has the messages of its own time.
    class Quiet {
    public:
        explicit Quiet(QuietPlatform& platform);
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;
        ~Quiet();
        struct Message {
            std::wstring text;   ///< on one line
            std::int32_t textId; ///< of the string table
        };
        [[nodiscard]] const std::vector<Message>& Messages() const { return m_messages; }

    private:
        friend class QuietPlatform;
        QuietPlatform& m_platform;
        Quiet* m_outer;
        std::vector<Message> m_messages;
    };

    explicit QuietPlatform(std::shared_ptr<QuorConversions::Platform> host) : m_host(std::move(host)) {}

    [[nodiscard]] std::shared_ptr<QuorIniFile::INIFile> CreateIniFile() override;
    void RunDialog(QuorConversions::Dialog& dialog, QuorConversions::DialogInput& input) override;
    void ShowMessage(const QuorConversions::MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring>
    AskForFile(const QuorConversions::FileRequest& request) override;
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    [[nodiscard]] std::wstring DecimalSeparator() override;
    [[nodiscard]] QuorConversions::EMousePointer MousePointer() const override;
    void SetMousePointer(QuorConversions::EMousePointer shape) override;

private:
    std::shared_ptr<QuorConversions::Platform> m_host;
    Quiet* m_quiet = nullptr;
};

} // namespace ProbeSetup
