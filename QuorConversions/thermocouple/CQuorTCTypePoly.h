#pragma once

#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/SharedValueFormat.h"
#include "QuorConversions/thermocouple/ETCPolynomialCoefficients.h"
#include "QuorConversions/thermocouple/TCTypeCatalogue.h"

namespace QuorConversions {

/// A standard thermocouple type corrected by a deviation polynomial of at most four coefficients. It knows
/// the types B, C, E, J, K, L, M, N, R, S, T and U. Stand-alone files: "ttp". On purpose they share the
/// section "Thermocouple Polynomial" with CQuorTCPolynomial.
class QUORCONVERSIONS_EXPORT CQuorTCTypePoly final : public CoefficientSettings, private SharedValueFormat {
public:
    /// Without a platform the object is headless: messages go to the diagnostic stream.
    explicit CQuorTCTypePoly(std::shared_ptr<Platform> platform = nullptr);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// 4 at first. There is no upper limit, yet no index above 3 is valid. A negative value is stored and
    /// then raises 9 "Subscript out of range".
    using CoefficientSettings::NumCoefficients;
    void SetNumCoefficients(std::int16_t value) { ResizeCoefficients(value); }
    /// Index: TC_POLY_C0 to TC_POLY_C3, below NumCoefficients. Raises "Index out of range".
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows all coefficients.
    using SharedValueFormat::ValueFormat, SharedValueFormat::SetValueFormat;
    /// TCTYPE_B at first; any value is stored.
    [[nodiscard]] ETCType TCType() const { return m_type; }
    void SetTCType(ETCType value) { Assign(m_type, value); }
    /// The plain name of a type; of the current one for -2.
    [[nodiscard]] std::wstring GetTCTypeName(std::int32_t tc) const;
    /// Fills a list with the types that have names, each with its value as item data. Selects nothing.
    void FillTCTypeNameCombo(ListControl& ctrl) const;

    using SettingsObject::Edit;
    /// The plain name of a type; of the current one, behind "TC Type ", for -2. Without an argument: for -2.
    [[nodiscard]] std::wstring GetName(std::int32_t tc) const;
    [[nodiscard]] std::wstring GetName() const override;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    ETCType m_type = TCTYPE_B;
};

} // namespace QuorConversions
