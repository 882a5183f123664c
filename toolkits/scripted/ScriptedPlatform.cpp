#include "toolkits/scripted/ScriptedPlatform.h"

namespace QuorConversions::Scripted {

std::shared_ptr<QuorIniFile::INIFile> ScriptedPlatform::CreateIniFile() {
    m_events.emplace_back(L"ini file");
    return m_iniFiles ? m_iniFiles() : Platform::CreateIniFile();
}

void ScriptedPlatform::ShowMessage(const MessageRequest& request) {
    m_events.push_back(L"message " + request.text);
    m_messages.push_back(request);
    if (m_whileShown)
        m_whileShown();
}

std::optional<std::wstring> ScriptedPlatform::AskForFile(const FileRequest& request) {
    m_events.push_back(L"file dialog " + request.title);
    m_fileRequests.push_back(request);
    if (m_answers.empty())
        return std::nullopt;
    auto answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer;
}

std::int32_t ScriptedPlatform::CallHelp(const std::wstring& helpFile, std::uint32_t command,
                                        std::int32_t data) {
    m_events.push_back(L"help " + std::to_wstring(data));
    m_helpCalls.push_back({helpFile, command, data});
    return 1;
}

void ScriptedPlatform::SetMousePointer(EMousePointer shape) {
    m_events.push_back(L"pointer " + std::to_wstring(shape));
    m_pointer = shape;
}

} // namespace QuorConversions::Scripted
