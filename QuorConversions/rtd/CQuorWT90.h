#pragma once

#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/core/SettingsObject.h"

namespace QuorConversions {

/// A probe whose readings are reported as the resistance ratio W(T90): only its resistance at the triple
/// point of water. Stand-alone files: "w90".
class QUORCONVERSIONS_EXPORT CQuorWT90 final : public SettingsObject {
public:
    CQuorWT90(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// Resistance at the triple point of water, ohms. A value equal to the stored one is not stored again.
    [[nodiscard]] double RTPW() const { return m_rtpw; }
    void SetRTPW(double value) { AssignDifferent(m_rtpw, value); }
    /// How the dialog shows RTPW. Setting it is never a change.
    [[nodiscard]] const std::wstring& RTPWFormat() const { return m_rtpwFormat; }
    void SetRTPWFormat(std::wstring value) { m_rtpwFormat = std::move(value); }

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    double m_rtpw = 0.0;
    std::wstring m_rtpwFormat;
};

} // namespace QuorConversions
