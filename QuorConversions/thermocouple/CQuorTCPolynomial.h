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
    CQuorTCPolynomial(CreationKey key, std::shared_ptr<Platform> platform);

    /// How the dialog shows mV25C. Setting it is never a change.
    [[nodiscard]] const std::wstring& mV25CFormat() const { return m_mV25CFormat; }
    void SetmV25CFormat(std::wstring value) { m_mV25CFormat = std::move(value); }
    /// Voltage at 25 degrees Celsius, millivolts. A value equal to the stored one is not stored again.
    [[nodiscard]] double mV25C() const { return m_mV25C; }
    void SetmV25C(double value) { AssignDifferent(m_mV25C, value); }
    /// Whether the dialog shows mV25C; False at first. Setting it is never a change; files hold mV25C always.
    [[nodiscard]] bool ShowmV25C() const { return m_showmV25C; }
    void SetShowmV25C(bool value) { m_showmV25C = value; }

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// 16 at first. There is no upper limit, yet no index above 15 is valid. A negative value is stored and
    /// then raises 9 "Subscript out of range".
    using CoefficientSettings::NumCoefficients;
    void SetNumCoefficients(std::int16_t value) { ResizeCoefficients(value); }
    /// Index: ETCPolynomialCoefficients, below NumCoefficients. Raises "Index out of range".
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows all coefficients.
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
