#pragma once

#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/SharedValueFormat.h"
#include "QuorConversions/thermocouple/ETCPolynomialCoefficients.h"
#include "QuorConversions/thermocouple/TCTypeCatalogue.h"

namespace QuorConversions {

/// A standard thermocouple type with a deviation polynomial of at most four coefficients. It has the types B,
/// C, E, J, K, L, M, N, R, S, T and U. Stand-alone files: "ttp". On purpose they have the same section as
/// those of CQuorTCPolynomial, "Thermocouple Polynomial".
class QUORCONVERSIONS_EXPORT CQuorTCTypePoly final : public CoefficientSettings, private SharedValueFormat {
public:
    /// An object of TCTYPE_B with four coefficients, all 0. Without a platform it is headless: messages go to
    /// the diagnostic stream.
    explicit CQuorTCTypePoly(std::shared_ptr<Platform> platform = nullptr);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// How many coefficients there are; 4 at first. There is no upper limit, but no index above 3 is valid. A
    /// negative value is stored and then raises 9 "Subscript out of range".
    using CoefficientSettings::NumCoefficients;
    void SetNumCoefficients(std::int16_t value) { ResizeCoefficients(value); }
    /// A coefficient, in the unit that ETCPolynomialCoefficients gives; any double is accepted. The index
    /// (TC_POLY_C0 to TC_POLY_C3) must be below NumCoefficients; otherwise "Index out of range" (0x800401F5)
    /// is raised and nothing is stored.
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows all coefficients. Never a change, not in files.
    using SharedValueFormat::ValueFormat, SharedValueFormat::SetValueFormat;
    /// The standard thermocouple type; TCTYPE_B at first (a conversion sets TCTYPE_E). Any value is stored.
    [[nodiscard]] ETCType TCType() const { return m_type; }
    void SetTCType(ETCType value) { Assign(m_type, value); }
    /// The name of a type, such as "K", of the current one for -2; "<unknown>" for one that the class does
    /// not have.
    [[nodiscard]] std::wstring GetTCTypeName(std::int32_t tc) const;
    /// Fills a list with the types that have names, each with its value as item data. Selects nothing.
    void FillTCTypeNameCombo(ListControl& ctrl) const;

    using SettingsObject::Edit;
    /// As GetTCTypeName, but "TC Type " and the name for -2. Without an argument: for -2.
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
