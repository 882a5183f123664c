#pragma once

#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/core/SharedValueFormat.h"

namespace QuorConversions {

/// The direction of a thermistor polynomial.
enum EThermistorConvType : std::int32_t {
    TCT_THRMT_R = 0, ///< temperature from resistance, T(R)
    TCT_THRMR_T = 1, ///< resistance from temperature, R(T)
};

/// Indices of the coefficients of CQuorThermistor; both groups are the same four. With R in ohms and T in
/// kelvins those of T(R) are in 1/K, and B0 to B3 in 1, K, K^2 and K^3.
enum EThermistorCoefficients : std::int32_t {
    THRM_A0 = 0, ///< A0 to A3 are the names for T(R)
    THRM_A1 = 1,
    THRM_A2 = 2,
    THRM_A3 = 3,
    THRM_B0 = 0, ///< B0 to B3 are the names for R(T)
    THRM_B1 = 1,
    THRM_B2 = 2,
    THRM_B3 = 3,
};

/// A thermistor described by a polynomial of four coefficients in one of two directions. Stand-alone files:
/// "thr".
class QUORCONVERSIONS_EXPORT CQuorThermistor final : public CoefficientSettings, private SharedValueFormat {
public:
    /// Made by a conversion of the type CONV_THERMISTORT_R or CONV_THERMISTORR_T, with its direction and four
    /// coefficients, all 0.
    CQuorThermistor(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// The direction of the polynomial; TCT_THRMT_R at first, and any value is stored. A file is read only
    /// into an object of the same direction.
    [[nodiscard]] EThermistorConvType ConvType() const { return m_convType; }
    void SetConvType(EThermistorConvType value) { Assign(m_convType, value); }
    /// "Thermistor " and the name of a direction, of the current one for -2; without a direction for other
    /// values.
    [[nodiscard]] std::wstring ConvName(std::int32_t vData) const;
    /// 4, unless a file had another count.
    using CoefficientSettings::NumCoefficients;
    /// A coefficient, in the unit that EThermistorCoefficients gives; any double is accepted. The index must
    /// be below NumCoefficients; otherwise "Index out of range" (0x800401F5) is raised and nothing is stored.
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows all coefficients. Never a change, not in files.
    using SharedValueFormat::ValueFormat, SharedValueFormat::SetValueFormat;

    using SettingsObject::Edit;
    /// "Thermistor R(T)" for that direction, "Thermistor T(R)" for any other.
    [[nodiscard]] std::wstring GetName() const override;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    /// A record of the other direction is refused with a message; nothing is loaded then, and the reading
    /// still counts as complete.
    void ReadRecord(RecordReader& record) override;

    EThermistorConvType m_convType = TCT_THRMT_R;
};

} // namespace QuorConversions
