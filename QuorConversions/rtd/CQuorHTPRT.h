#pragma once

#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/CreationKey.h"

namespace QuorConversions {

/// Indices of the coefficients of CQuorHTPRT.
enum EHTPRTCoefficients : std::int32_t {
    HTPRT_RTPW = 0, ///< resistance at the triple point of water, ohms
    HTPRT_A = 1,    ///< dimensionless
    HTPRT_B = 2,    ///< dimensionless
};

/// A high-temperature platinum resistance thermometer: its resistance at the triple point of water and two
/// coefficients of its deviation function. Stand-alone files: "hpt".
class QUORCONVERSIONS_EXPORT CQuorHTPRT final : public CoefficientSettings {
public:
    CQuorHTPRT(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// 3 unless a file held another count.
    using CoefficientSettings::NumCoefficients;
    /// Index: EHTPRTCoefficients, below NumCoefficients. Raises "Index out of range".
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// Index as for Coefficients.
    using CoefficientSettings::ValueFormat, CoefficientSettings::SetValueFormat;

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;
};

} // namespace QuorConversions
