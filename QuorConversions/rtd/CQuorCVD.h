#pragma once

#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/CreationKey.h"

namespace QuorConversions {

/// Indices of the coefficients of CQuorCVD.
enum ECVDCoefficients : std::int32_t {
    CVD_R0 = 0,    ///< resistance at 0 degrees Celsius, ohms
    CVD_ALPHA = 1, ///< 1/degree Celsius; A, of the same unit, in the polynomial form
    CVD_DELTA = 2, ///< degrees Celsius; B, in 1/degree Celsius^2, in the polynomial form
    CVD_BETA = 3,  ///< degrees Celsius; C, in 1/degree Celsius^4, in the polynomial form
};

/// A platinum resistance thermometer described by the Callendar-Van Dusen equation (IEC 60751), by R0, alpha,
/// delta and beta or by R0, A, B and C. Stand-alone files: "cvd".
class QUORCONVERSIONS_EXPORT CQuorCVD final : public CoefficientSettings {
public:
    CQuorCVD(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;

    /// 4 at first. Any value is taken; a negative one refuses every index until a valid one is set.
    using CoefficientSettings::NumCoefficients, CoefficientSettings::SetNumCoefficients;
    /// Index: ECVDCoefficients, below NumCoefficients. Raises "Index out of range".
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// Whether the coefficients are those of the polynomial form. Setting it is never a change.
    [[nodiscard]] bool UsePolynomial() const { return m_usePolynomial; }
    void SetUsePolynomial(bool value) { m_usePolynomial = value; }
    /// Index as for Coefficients.
    using CoefficientSettings::ValueFormat, CoefficientSettings::SetValueFormat;
    [[nodiscard]] std::int16_t MaxCoefficients() const { return 4; } // NOLINT: a property of the interface

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    bool m_usePolynomial = false;
};

} // namespace QuorConversions
