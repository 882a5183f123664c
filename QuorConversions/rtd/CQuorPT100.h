#pragma once

#include "QuorConversions/core/CoefficientSettings.h"

namespace QuorConversions {

/// Index of the coefficient of CQuorPT100.
enum EPT100Coefficients : std::int32_t {
    PT100_R0 = 0, ///< resistance at 0 degrees Celsius, ohms
};

/// A PT100 probe that is characterised by its R0 alone. Stand-alone files: "pt1". On purpose they have the
/// same section as those of CQuorCVD, "Callendar-Van Dusen", so that each class can read the other's keys.
class QUORCONVERSIONS_EXPORT CQuorPT100 final : public CoefficientSettings {
public:
    /// An object with one coefficient, 0. Without a platform it is headless: messages go to the diagnostic
    /// stream.
    explicit CQuorPT100(std::shared_ptr<Platform> platform = nullptr);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;

    /// 1 at first. Any value is accepted; with a negative one every index is invalid.
    using CoefficientSettings::NumCoefficients, CoefficientSettings::SetNumCoefficients;
    /// A coefficient, in the unit that EPT100Coefficients gives; any double is accepted. The index must be
    /// below NumCoefficients; otherwise "Index out of range" (0x800401F5) is raised and nothing is stored.
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows a coefficient; index and errors as for Coefficients. Never a change, not in
    /// files.
    using CoefficientSettings::ValueFormat, CoefficientSettings::SetValueFormat;
    /// The greatest useful number of coefficients.
    [[nodiscard]] std::int16_t MaxCoefficients() const { return 1; } // NOLINT: a property of the interface

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;
};

} // namespace QuorConversions
