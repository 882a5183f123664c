#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
#include "QuorIniFile/INIFile.h"
#include "QuorProbeFile/ProbeEntry.h"
#include "QuorProbeFile/ProbeProblem.h"
#include "QuorProbeFile/detail/ReadLog.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

/// What the library tells the user while a record is read, kept instead of shown.
class MessageCollector final : public QuorConversions::HeadlessPlatform {
public:
    struct Message {
        std::wstring text;       ///< on one line
        std::size_t readsBefore; ///< how many reads there had been
        bool isVersion;          ///< it tells of missing keys
    };

    explicit MessageCollector(std::shared_ptr<ReadLog> reads) : m_reads(std::move(reads)) {}
    [[nodiscard]] const std::vector<Message>& Messages() const { return m_messages; }
    void ShowMessage(const QuorConversions::MessageRequest& request) override;

private:
    std::shared_ptr<ReadLog> m_reads;
    std::vector<Message> m_messages;
};

/// Makes `to`, which has default values, a conversion of the type of `from` that refuses the same ranges of
/// the ITS-90; a default range that is refused is none. Nothing for another type.
void TakeLimits(QuorConversions::CQuorConversion& to, const QuorConversions::CQuorConversion& from);

/// A record, read by the library into a conversion that nobody sees: its values, what was looked for, and
/// what the library had to say.
class RecordReading {
public:
    /// Reads the record `entry` of the file `path`, which `file` is bound to. The type of a stand-alone one
    /// is found out. What `host`, if it is of that type, refuses is refused here, too: ranges outside its
    /// limits.
    RecordReading(const std::shared_ptr<QuorIniFile::INIFile>& file, std::wstring_view path,
                  const ProbeEntry& entry, const QuorConversions::CQuorConversion* host = nullptr);
    /// Reads the record `entry`, which is of the type that it says.
    RecordReading(const std::shared_ptr<QuorIniFile::INIFile>& file, const ProbeEntry& entry);

    [[nodiscard]] const QuorConversions::CQuorConversion& Conversion() const { return *m_conversion; }
    [[nodiscard]] std::shared_ptr<QuorConversions::SettingsObject> Settings() const {
        return m_conversion->Settings();
    }
    [[nodiscard]] const std::vector<ReadLog::Read>& Reads() const { return m_reads->Reads(); }
    [[nodiscard]] const std::vector<MessageCollector::Message>& Messages() const {
        return m_messages->Messages();
    }
    /// Whether the record says its type. The library takes one that does not for an ITS-90 calibration.
    [[nodiscard]] bool HasType() const;
    /// Whether a key that was looked for is missing or cannot be read.
    [[nodiscard]] bool LacksKeys() const;

private:
    void Read(const std::shared_ptr<QuorIniFile::INIFile>& file, const ProbeEntry& entry,
              const QuorConversions::CQuorConversion* host = nullptr);

    bool m_standAlone;
    std::shared_ptr<ReadLog> m_reads;
    std::shared_ptr<MessageCollector> m_messages;
    std::unique_ptr<QuorConversions::CQuorConversion> m_conversion;
};

} // namespace QuorProbeFile
