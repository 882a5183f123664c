#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorProbeFile/RecordAsRead.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quorconv {

/// Keeps what the library tells the user.
class MessageLog final : public QuorConversions::Scripted::ScriptedPlatform {
public:
    /// Each on one line.
    [[nodiscard]] const std::vector<std::wstring>& Messages() const { return m_messages; }
    void Forget() { m_messages.clear(); }
    void ShowMessage(const QuorConversions::MessageRequest& request) override;
    /// Nobody sees it, and a record of each change of it would cost a tenth of the time of a command.
    void SetMousePointer(QuorConversions::EMousePointer /*shape*/) override {}

private:
    std::vector<std::wstring> m_messages;
};

/// The enumerator of a type, or the code of one that is none.
[[nodiscard]] std::wstring TypeName(std::int32_t code);

/// A conversion that a command works on, and the section that it is of.
class Probe {
public:
    explicit Probe(std::wstring section);

    [[nodiscard]] const std::wstring& Section() const { return m_section; }
    [[nodiscard]] QuorConversions::CQuorConversion& Conversion() { return *m_conversion; }
    [[nodiscard]] const QuorConversions::CQuorConversion& Conversion() const { return *m_conversion; }
    [[nodiscard]] QuorConversions::SettingsObject* Settings() const { return m_conversion->Settings().get(); }
    /// The name of the conversion: its settings' own, or its type's where it has none.
    [[nodiscard]] std::wstring Name() const;
    [[nodiscard]] std::wstring TypeName() const { return quorconv::TypeName(m_conversion->ConversionType()); }

    /// The record as the conversion was read from it, by ReadProbeWithSettings; else that of no probe.
    [[nodiscard]] QuorProbeFile::RecordAsRead& Record() { return m_record; }

    [[nodiscard]] const std::vector<std::wstring>& Messages() const { return m_messages->Messages(); }
    void ForgetMessages() { m_messages->Forget(); }
    /// The screen on which the library shows its dialogs.
    [[nodiscard]] QuorConversions::Scripted::ScriptedPlatform& Screen() { return *m_messages; }

private:
    std::wstring m_section;
    std::shared_ptr<MessageLog> m_messages;
    std::unique_ptr<QuorConversions::CQuorConversion> m_conversion;
    QuorProbeFile::RecordAsRead m_record;
};

} // namespace quorconv
