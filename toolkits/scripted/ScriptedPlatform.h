#pragma once

#include "QuorConversions/platform/Platform.h"
#include "toolkits/scripted/Person.h"
#include "toolkits/scripted/Screen.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace QuorConversions::Scripted {

/// The text of a message with single blanks for its line breaks.
[[nodiscard]] std::wstring OnOneLine(const std::wstring& text);

/// A platform for tests and scripts: file dialogs are answered beforehand, everything that a person would see
/// or hear is recorded, and nothing ever blocks. A file dialog without an answer is cancelled.
class ScriptedPlatform : public Platform {
public:
    explicit ScriptedPlatform(std::shared_ptr<Screen> screen = std::make_shared<Screen>())
        : m_screen(std::move(screen)) {}

    struct HelpCall {
        std::wstring helpFile;
        std::uint32_t command;
        std::int32_t data;
    };

    /// The next file dialogs are answered with `path`, or cancelled, in the order of these calls.
    void ChooseFile(std::wstring path) { m_answers.emplace_back(std::move(path)); }
    void CancelFile() { m_answers.emplace_back(std::nullopt); }
    /// What the person does in the next dialog, in the order of these calls. A dialog that they leave open,
    /// or for which nobody is there, is left by Cancel; that is a complaint.
    void InDialog(std::function<void(Person&)> action) { m_dialogs.push_back(std::move(action)); }
    /// From now on a message, or a file dialog, that was not announced is a complaint.
    void ExpectNoMessages() { m_expectsMessages = true; }
    /// The next message is to say `text`, with blanks for its line breaks.
    void ExpectMessage(std::wstring text);
    /// What went otherwise than announced.
    [[nodiscard]] const std::vector<std::wstring>& Complaints() const { return m_complaints; }
    /// Complains of each file dialog and message that was announced and has not come.
    void ComplainOfWhatDidNotCome();
    /// How many of the announced messages have not come yet.
    [[nodiscard]] std::size_t MessagesToCome() const { return m_expected.size(); }
    /// What the dialog has advised while the last script was played, without that which the script expected;
    /// each with the line after which it came.
    [[nodiscard]] const std::vector<std::wstring>& UnexpectedAdvice() const { return m_advice; }
    void TellAdvice(std::wstring text) { m_advice.push_back(std::move(text)); }
    void ForgetAdvice() { m_advice.clear(); }
    void Complain(std::wstring text) { m_complaints.push_back(std::move(text)); }
    /// Whether all answers, dialogs and expected messages were used up, without a complaint.
    [[nodiscard]] bool NothingLeft() const {
        return m_complaints.empty() && m_answers.empty() && m_dialogs.empty() && m_expected.empty();
    }
    /// Makes the INI-file objects from now on; without it they are built-in stores.
    void MakeIniFilesWith(std::function<std::shared_ptr<QuorIniFile::INIFile>()> factory) {
        m_iniFiles = std::move(factory);
    }
    void SetDecimalSeparator(std::wstring separator) { m_separator = std::move(separator); }
    /// Runs inside each message box, as host code can.
    void WhileMessageIsShown(std::function<void()> action) { m_whileShown = std::move(action); }

    /// Adds a line of the caller's own to Events, to show what happened before and after it.
    void Note(std::wstring line) { m_events.push_back(std::move(line)); }

    [[nodiscard]] const std::vector<MessageRequest>& Messages() const { return m_messages; }
    [[nodiscard]] const std::vector<FileRequest>& FileRequests() const { return m_fileRequests; }
    [[nodiscard]] const std::vector<HelpCall>& HelpCalls() const { return m_helpCalls; }
    /// Everything in order, a line each: "pointer 11", "message TEXT", "file dialog TITLE", "help DATA",
    /// "dialog TITLE", "ini file".
    [[nodiscard]] const std::vector<std::wstring>& Events() const { return m_events; }

    [[nodiscard]] std::shared_ptr<QuorIniFile::INIFile> CreateIniFile() override;
    void RunDialog(Dialog& dialog, DialogInput& input) override;
    void ShowMessage(const MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    [[nodiscard]] EMousePointer MousePointer() const override { return m_pointer; }
    void SetMousePointer(EMousePointer shape) override;
    [[nodiscard]] std::wstring DecimalSeparator() override { return m_separator; }

private:
    /// Lets the next person act on the dialog.
    void Act(Dialog& dialog, InputDriver& driver);

    std::shared_ptr<Screen> m_screen;
    std::deque<std::optional<std::wstring>> m_answers;
    std::deque<std::function<void(Person&)>> m_dialogs;
    std::wstring m_separator = L".";
    bool m_expectsMessages = false;
    std::deque<std::wstring> m_expected;
    std::vector<std::wstring> m_complaints;
    std::vector<std::wstring> m_advice;
    std::function<std::shared_ptr<QuorIniFile::INIFile>()> m_iniFiles;
    std::function<void()> m_whileShown;
    EMousePointer m_pointer = POINTER_DEFAULT;
    std::vector<MessageRequest> m_messages;
    std::vector<FileRequest> m_fileRequests;
    std::vector<HelpCall> m_helpCalls;
    std::vector<std::wstring> m_events;
};

} // namespace QuorConversions::Scripted
