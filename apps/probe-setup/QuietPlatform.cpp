#include "apps/probe-setup/QuietPlatform.h"

#include <algorithm>
#include <utility>

namespace ProbeSetup {

using namespace QuorConversions;

QuietPlatform::Quiet::Quiet(QuietPlatform& platform)
    : m_platform(platform), m_outer(std::exchange(platform.m_quiet, this)) {}

QuietPlatform::Quiet::~Quiet() { m_platform.m_quiet = m_outer; }

std::shared_ptr<QuorIniFile::INIFile> QuietPlatform::CreateIniFile() { return m_host->CreateIniFile(); }

void QuietPlatform::RunDialog(Dialog& dialog, DialogInput& input) { m_host->RunDialog(dialog, input); }

void QuietPlatform::ShowMessage(const MessageRequest& request) {
    if (!m_quiet) {
        m_host->ShowMessage(request);
        return;
    }
    std::wstring text = request.text;
    std::replace(text.begin(), text.end(), L'\r', L' ');
    m_quiet->m_messages.push_back({std::move(text), request.textId});
}

std::optional<std::wstring> QuietPlatform::AskForFile(const FileRequest& request) {
    return m_host->AskForFile(request);
}

std::int32_t QuietPlatform::CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) {
    return m_host->CallHelp(helpFile, command, data);
}

std::wstring QuietPlatform::DecimalSeparator() { return m_host->DecimalSeparator(); }

EMousePointer QuietPlatform::MousePointer() const { return m_host->MousePointer(); }

void QuietPlatform::SetMousePointer(EMousePointer shape) {
    if (!m_quiet)
        m_host->SetMousePointer(shape);
}

} // namespace ProbeSetup
