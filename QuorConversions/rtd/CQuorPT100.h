#pragma once

#include "QuorConversions/core/CoefficientSettings.h"

namespace QuorConversions {

/// Index of the coefficient of CQuorPT100.
enum EPT100Coefficients : std::int32_t {
    PT100_R0 = 0, ///< resistance at 0 degrees Celsius, ohms
};

/// A PT100 probe that is characterised by its R0 alone. Stand-alone files: "pt1". On purpose they share the
/// section "Callendar-Van Dusen" with CQuorCVD, so that either class can read the other's keys.
class QUORCONVERSIONS_EXPORT CQuorPT100 final : public CoefficientSettings {
public:
    /// Without a platform the object is headless: messages go to the diagnostic stream.
    explicit CQuorPT100(std::shared_ptr<Platform> platform = nullptr);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;

    /// 1 at first. Any value is taken; a negative one refuses every index until a valid one is set.
    using CoefficientSettings::NumCoefficients, CoefficientSettings::SetNumCoefficients;
    /// Index: EPT100Coefficients, below NumCoefficients. Raises "Index out of range".
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// Index as for Coefficients.
    using CoefficientSettings::ValueFormat, CoefficientSettings::SetValueFormat;
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
