#pragma once

#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/rtd/CQuorITS90HighRange.h"
#include "QuorConversions/rtd/CQuorITS90LowRange.h"

namespace QuorConversions {

/// A platinum resistance thermometer calibrated on the ITS-90: its resistance at the triple point of water
/// and, in two owned objects, the sub-ranges with their deviation coefficients. Stand-alone files: "i90".
class QUORCONVERSIONS_EXPORT CQuorITS90 final : public SettingsObject {
public:
    /// Made by a conversion of the type CONV_ITS90 or CONV_ITSSR5, with RTPW 0 and no range selected
    /// (CONV_ITSSR5: range 5 as the low range).
    CQuorITS90(CreationKey key, std::shared_ptr<Platform> platform);

    /// Whether the dialog may change values; True at first. The ranges have no such member.
    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    /// Keeps the reference to the host's registry, which may be null, and passes it on to both ranges.
    void SetRegistry(std::shared_ptr<QuorRegistryII::Registry>& vData) override;
    using SettingsObject::Registry;
    /// Whether this object or one of its ranges has changed; setting it sets all three.
    [[nodiscard]] bool Changed() const override;
    void SetChanged(bool value) override;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// The sub-ranges above and below the triple point of water, never null. They live as long as this
    /// object, or as long as a host keeps a reference to one.
    [[nodiscard]] std::shared_ptr<CQuorITS90HighRange> HighRange() const { return m_highRange; }
    [[nodiscard]] std::shared_ptr<CQuorITS90LowRange> LowRange() const { return m_lowRange; }
    /// Resistance at the triple point of water, in the unit that the instrument uses (usually ohms); any
    /// double is accepted. A change marks both ranges changed as well.
    [[nodiscard]] double RTPW() const { return m_rtpw; }
    void SetRTPW(double value) { Assign(m_rtpw, value); }
    /// How the dialog shows RTPW (see ValueFormatter.h). Setting it is never a change, and files do not have
    /// it.
    [[nodiscard]] const std::wstring& RTPWFormat() const { return m_rtpwFormat; }
    void SetRTPWFormat(std::wstring value) { m_rtpwFormat = std::move(value); }

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

    void ClearSpareValues() override;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    double m_rtpw = 0.0;
    std::wstring m_rtpwFormat;
    // Destroyed in the reverse order: the low range first, then the high range.
    std::shared_ptr<CQuorITS90HighRange> m_highRange;
    std::shared_ptr<CQuorITS90LowRange> m_lowRange;
};

} // namespace QuorConversions
