#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorIniFile/IniStore.h"
#include "apps/records/ProbeFile.h"
#include "apps/records/ReadLog.h"
#include "apps/records/Types.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <memory>
#include <string>
#include <vector>

namespace quorconv {

/// Keeps what the library tells the user, and which read had come last by then.
class MessageLog final : public QuorConversions::Scripted::ScriptedPlatform {
public:
    struct Message {
        std::wstring text; ///< on one line
        std::size_t readsBefore;
    };

    explicit MessageLog(std::shared_ptr<ProbeRecords::ReadLog> reads) : m_reads(std::move(reads)) {}
    [[nodiscard]] const std::vector<Message>& Messages() const { return m_messages; }
    void Forget() { m_messages.clear(); }
    void ShowMessage(const QuorConversions::MessageRequest& request) override;

private:
    std::shared_ptr<ProbeRecords::ReadLog> m_reads;
    std::vector<Message> m_messages;
};

/// A store bound to the file `path`.
[[nodiscard]] std::shared_ptr<QuorIniFile::IniStore> StoreOf(const std::wstring& path);

/// The message that tells of missing keys.
[[nodiscard]] bool IsVersionMessage(const MessageLog::Message& message);

/// A record of a file, or a place for one, with the conversion that belongs there.
class Probe {
public:
    /// Stands on a store that is bound to the file `path`; the probes of one file share it.
    Probe(std::shared_ptr<QuorIniFile::INIFile> store, std::wstring path, ProbeRecords::Record record);

    /// Reads the record. What went wrong stands in Messages() and Reads() afterwards.
    void Read();
    /// Makes the probe one of `type`, with default values.
    void SetType(const ProbeRecords::TypeInfo& type);
    /// Writes the record into `iniFile`; false when that failed, which Messages() tells then.
    [[nodiscard]] bool Write(std::shared_ptr<QuorIniFile::INIFile> iniFile);

    [[nodiscard]] const std::shared_ptr<QuorIniFile::INIFile>& Store() const { return m_store; }
    [[nodiscard]] const ProbeRecords::Record& Where() const { return m_record; }
    [[nodiscard]] QuorConversions::CQuorConversion& Conversion() { return *m_conversion; }
    [[nodiscard]] const QuorConversions::CQuorConversion& Conversion() const { return *m_conversion; }
    [[nodiscard]] QuorConversions::SettingsObject* Settings() const { return m_conversion->Settings().get(); }
    /// The name of the conversion: its settings' own, or its type's where it has none.
    [[nodiscard]] std::wstring Name() const;
    /// Whether the record says its type. The library takes one that does not for an ITS-90 calibration.
    [[nodiscard]] bool HasType() const;
    /// Whether a key that was looked for is missing or cannot be read.
    [[nodiscard]] bool LacksKeys() const;
    /// The enumerator of the type, or the code of one that is none.
    [[nodiscard]] std::wstring TypeName() const;

    /// The section of the settings: that of the record itself when it stands alone.
    [[nodiscard]] std::wstring SettingsSection() const;
    /// The path by which an image of the settings knows what was read; empty for what is not of the settings.
    [[nodiscard]] std::wstring PathOf(const ProbeRecords::ReadLog::Read& read) const;

    [[nodiscard]] const std::vector<ProbeRecords::ReadLog::Read>& Reads() const { return m_reads->Reads(); }
    [[nodiscard]] const std::vector<MessageLog::Message>& Messages() const { return m_messages->Messages(); }
    void ForgetMessages() { m_messages->Forget(); }
    /// The screen on which the library shows its dialogs.
    [[nodiscard]] QuorConversions::Scripted::ScriptedPlatform& Screen() { return *m_messages; }

private:
    void StartAnew();

    std::shared_ptr<QuorIniFile::INIFile> m_store;
    std::wstring m_path;
    ProbeRecords::Record m_record;
    std::shared_ptr<ProbeRecords::ReadLog> m_reads;
    std::shared_ptr<MessageLog> m_messages;
    std::unique_ptr<QuorConversions::CQuorConversion> m_conversion;
};

} // namespace quorconv
