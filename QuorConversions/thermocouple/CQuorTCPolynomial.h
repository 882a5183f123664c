#pragma once

#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/core/SharedValueFormat.h"
#include "QuorConversions/thermocouple/ETCPolynomialCoefficients.h"

namespace QuorConversions {

/// A thermocouple described by a polynomial of up to sixteen coefficients and its voltage at 25 degrees
/// Celsius. Stand-alone files: "tcp".
class QUORCONVERSIONS_EXPORT CQuorTCPolynomial final : public CoefficientSettings, private SharedValueFormat {
public:
    /// Made by a conversion of the type CONV_TCPOLYNOMIAL, with sixteen coefficients, all 0.
    CQuorTCPolynomial(CreationKey key, std::shared_ptr<Platform> platform);

    /// How the dialog shows mV25C (see ValueFormatter.h). Setting it is never a change, and files do not have
    /// it.
    [[nodiscard]] const std::wstring& mV25CFormat() const { return m_mV25CFormat; }
    void SetmV25CFormat(std::wstring value) { m_mV25CFormat = std::move(value); }
    /// Voltage at 25 degrees Celsius with the reference junction at 0 degrees, millivolts; any double is
    /// accepted. A value equal to the stored one, such as a zero with the other sign, is not stored.
    [[nodiscard]] double mV25C() const { return m_mV25C; }
    void SetmV25C(double value) { AssignDifferent(m_mV25C, value); }
    /// Whether the dialog shows mV25C; False at first. Setting it is never a change; files always have mV25C.
    [[nodiscard]] bool ShowmV25C() const { return m_showmV25C; }
    void SetShowmV25C(bool value) { m_showmV25C = value; }

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// How many coefficients there are; 16 at first. There is no upper limit, but no index above 15 is valid.
    /// A negative value is stored and then raises 9 "Subscript out of range".
    using CoefficientSettings::NumCoefficients;
    void SetNumCoefficients(std::int16_t value) { ResizeCoefficients(value); }
    /// A coefficient, in the unit that ETCPolynomialCoefficients gives; any double is accepted. The index
    /// must be below NumCoefficients; otherwise "Index out of range" (0x800401F5) is raised and nothing is
    /// stored.
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows all coefficients. Never a change, not in files.
    using SharedValueFormat::ValueFormat, SharedValueFormat::SetValueFormat;

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    double m_mV25C = 0.0;
    bool m_showmV25C = false;
    std::wstring m_mV25CFormat;
};

} // namespace QuorConversions
