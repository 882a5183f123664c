#include "toolkits/scripted/ScriptedPlatform.h"

namespace QuorConversions::Scripted {

std::wstring OnOneLine(const std::wstring& text) {
    std::wstring line;
    for (const wchar_t character : text)
        if (character != L'\r')
            line += character;
        else if (!line.empty() && line.back() != L' ')
            line += L' ';
    return line;
}

std::shared_ptr<QuorIniFile::INIFile> ScriptedPlatform::CreateIniFile() {
    m_events.emplace_back(L"ini file");
    return m_iniFiles ? m_iniFiles() : Platform::CreateIniFile();
}

void ScriptedPlatform::ExpectMessage(std::wstring text) {
    m_expectsMessages = true;
    m_expected.push_back(std::move(text));
}

void ScriptedPlatform::ComplainOfWhatDidNotCome() {
    for (const std::wstring& message : m_expected)
        Complain(L"there was no message \"" + message + L"\"");
    for (const auto& file : m_answers)
        Complain(L"there was no file dialog for \"" + file.value_or(L"") + L"\"");
}

void ScriptedPlatform::RunDialog(Dialog& dialog, DialogInput& input) {
    m_events.push_back(L"dialog " + dialog.Title());
    m_screen->Run(dialog, input, [&](InputDriver& driver) {
        Act(dialog, driver);
        driver.Escape();
    });
}

void ScriptedPlatform::Act(Dialog& dialog, InputDriver& driver) {
    if (m_dialogs.empty()) {
        Complain(L"nobody is there for the dialog \"" + dialog.Title() + L"\"");
        return;
    }
    const auto action = std::move(m_dialogs.front());
    m_dialogs.pop_front();
    Person person(dialog, driver);
    try {
        action(person);
    } catch (const CannotDo& error) {
        Complain(error.text);
    }
    if (dialog.IsOpen())
        Complain(L"the dialog \"" + dialog.Title() + L"\" was left open");
}

void ScriptedPlatform::ShowMessage(const MessageRequest& request) {
    m_events.push_back(L"message " + request.text);
    m_messages.push_back(request);
    if (m_expectsMessages) {
        const std::wstring text = OnOneLine(request.text);
        if (m_expected.empty() || m_expected.front() != text)
            Complain(L"there was the message \"" + text + L"\"");
        else
            m_expected.pop_front();
    }
    m_screen->ShowMessage(request, [this] {
        if (m_whileShown)
            m_whileShown();
    });
}

std::optional<std::wstring> ScriptedPlatform::AskForFile(const FileRequest& request) {
    m_events.push_back(L"file dialog " + request.title);
    m_fileRequests.push_back(request);
    if (m_answers.empty()) {
        if (m_expectsMessages)
            Complain(L"there was the file dialog \"" + request.title + L"\"");
        return std::nullopt;
    }
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
