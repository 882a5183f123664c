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

/// A platinum resistance thermometer described by the Callendar-Van Dusen equation (IEC 60751), with R0,
/// alpha, delta and beta or with R0, A, B and C. Stand-alone files: "cvd".
class QUORCONVERSIONS_EXPORT CQuorCVD final : public CoefficientSettings {
public:
    /// Made by a conversion of the type CONV_CVD, with four coefficients, all 0.
    CQuorCVD(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;

    /// 4 at first. Any value is accepted; with a negative one every index is invalid.
    using CoefficientSettings::NumCoefficients, CoefficientSettings::SetNumCoefficients;
    /// A coefficient, in the unit that ECVDCoefficients gives; any double is accepted. The index must be
    /// below NumCoefficients; otherwise "Index out of range" (0x800401F5) is raised and nothing is stored.
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// Whether the coefficients are R0, A, B, C (True) or R0, alpha, delta, beta (False, as at first).
    /// Setting it converts nothing and is never a change.
    [[nodiscard]] bool UsePolynomial() const { return m_usePolynomial; }
    void SetUsePolynomial(bool value) { m_usePolynomial = value; }
    /// How the dialog shows a coefficient; index and errors as for Coefficients. Never a change, not in
    /// files.
    using CoefficientSettings::ValueFormat, CoefficientSettings::SetValueFormat;
    /// The greatest useful number of coefficients.
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
