#pragma once

#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/core/SharedValueFormat.h"

namespace QuorConversions {

/// Indices of the coefficients of CQuorPolynomial, one for each power. The unit of A[i] is that of the result
/// divided by the i-th power of that of the reading.
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

/// A general polynomial of order 4 to 10 with one coefficient for each power. Stand-alone files: "ply".
class QUORCONVERSIONS_EXPORT CQuorPolynomial final : public CoefficientSettings, private SharedValueFormat {
public:
    /// Made by a conversion of the type CONV_POLYNOMIAL, of order 4 with all coefficients 0.
    CQuorPolynomial(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// How many coefficients there are: Order + 1.
    using CoefficientSettings::NumCoefficients;
    /// The order of the polynomial; 4 at first. A value outside MinOrder to MaxOrder is ignored.
    [[nodiscard]] std::int16_t Order() const { return m_order; }
    void SetOrder(std::int16_t value);
    /// The limits of Order, 4 and 10.
    [[nodiscard]] std::int16_t MinOrder() const { return 4; }  // NOLINT: a property of the interface
    [[nodiscard]] std::int16_t MaxOrder() const { return 10; } // NOLINT: a property of the interface
    /// A coefficient, in the unit that EPolynomialCoefficients gives; any double is accepted. The index must
    /// be below NumCoefficients; otherwise "Index out of range" (0x800401F5) is raised and nothing is stored.
    using CoefficientSettings::SetCoefficients, CoefficientSettings::Coefficients;
    /// How the dialog shows all coefficients. Never a change, not in files.
    using SharedValueFormat::SetValueFormat, SharedValueFormat::ValueFormat;

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

    /// The letter in the labels of the dialog; "A" at first gives "A0", "A1" and so on. Setting it is never a
    /// change.
    [[nodiscard]] const std::wstring& CoefficientLabelPrefix() const { return m_labelPrefix; }
    void SetCoefficientLabelPrefix(std::wstring value) { m_labelPrefix = std::move(value); }

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    std::int16_t m_order = 0;
    std::wstring m_labelPrefix = L"A";
};

} // namespace QuorConversions
