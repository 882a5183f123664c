#pragma once

#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/core/SharedValueFormat.h"

namespace QuorConversions {

/// Indices of the coefficients of CQuorPolynomial: the coefficient of each power.
enum EPolynomialCoefficients : std::int32_t {
    POLY_A0 = 0,
    POLY_A1 = 1,
    POLY_A2 = 2,
    POLY_A3 = 3,
    POLY_A4 = 4,
    POLY_A5 = 5,
    POLY_A6 = 6,
    POLY_A7 = 7,
    POLY_A8 = 8,
    POLY_A9 = 9,
    POLY_A10 = 10,
};

/// A general polynomial of order 4 to 10 with one coefficient a power. Stand-alone files: "ply".
class QUORCONVERSIONS_EXPORT CQuorPolynomial final : public CoefficientSettings, private SharedValueFormat {
public:
    CQuorPolynomial(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// Order + 1.
    using CoefficientSettings::NumCoefficients;
    /// 4 at first. A value outside MinOrder to MaxOrder is ignored.
    [[nodiscard]] std::int16_t Order() const { return m_order; }
    void SetOrder(std::int16_t value);
    [[nodiscard]] std::int16_t MinOrder() const { return 4; }  // NOLINT: a property of the interface
    [[nodiscard]] std::int16_t MaxOrder() const { return 10; } // NOLINT: a property of the interface
    /// Index: EPolynomialCoefficients, below NumCoefficients. Raises "Index out of range".
    using CoefficientSettings::SetCoefficients, CoefficientSettings::Coefficients;
    /// How the dialog shows all coefficients.
    using SharedValueFormat::SetValueFormat, SharedValueFormat::ValueFormat;

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

    /// What the dialog's labels begin with: "A" gives "A0", "A1" and so on. Setting it is never a change.
    [[nodiscard]] const std::wstring& CoefficientLabelPrefix() const { return m_labelPrefix; }
    void SetCoefficientLabelPrefix(std::wstring value) { m_labelPrefix = std::move(value); }

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    std::int16_t m_order = 0;
    std::wstring m_labelPrefix = L"A";
};

} // namespace QuorConversions
