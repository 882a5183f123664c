#pragma once

#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/core/SettingsObject.h"

namespace QuorConversions {

/// A probe whose readings are reported as the resistance ratio W(T90): it has only its resistance at the
/// triple point of water. Stand-alone files: "w90".
class QUORCONVERSIONS_EXPORT CQuorWT90 final : public SettingsObject {
public:
    /// Made by a conversion of the type CONV_WT90, with RTPW 0.
    CQuorWT90(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// Resistance at the triple point of water, ohms; any double is accepted. A value equal to the stored
    /// one, such as a zero with the other sign, is not stored.
    [[nodiscard]] double RTPW() const { return m_rtpw; }
    void SetRTPW(double value) { AssignDifferent(m_rtpw, value); }
    /// How the dialog shows RTPW (see ValueFormatter.h). Setting it is never a change, and files do not have
    /// it.
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
