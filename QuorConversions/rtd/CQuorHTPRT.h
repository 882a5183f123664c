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
    /// Made by a conversion of the type CONV_HTPRT, with three coefficients, all 0.
    CQuorHTPRT(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// 3, unless a file had another count.
    using CoefficientSettings::NumCoefficients;
    /// A coefficient, in the unit that EHTPRTCoefficients gives; any double is accepted. The index must be
    /// below NumCoefficients; otherwise "Index out of range" (0x800401F5) is raised and nothing is stored.
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows a coefficient; index and errors as for Coefficients. Never a change, not in
    /// files.
    using CoefficientSettings::ValueFormat, CoefficientSettings::SetValueFormat;

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;
};

} // namespace QuorConversions
