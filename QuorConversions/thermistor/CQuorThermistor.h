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

/// Indices of the coefficients of CQuorThermistor; both groups address the same four.
enum EThermistorCoefficients : std::int32_t {
    THRM_A0 = 0, ///< A0 to A3 are the names used with T(R)
    THRM_A1 = 1,
    THRM_A2 = 2,
    THRM_A3 = 3,
    THRM_B0 = 0, ///< B0 to B3 are the names used with R(T)
    THRM_B1 = 1,
    THRM_B2 = 2,
    THRM_B3 = 3,
};

/// A thermistor described by a polynomial of four coefficients in one of two directions. Stand-alone files:
/// "thr".
class QUORCONVERSIONS_EXPORT CQuorThermistor final : public CoefficientSettings, private SharedValueFormat {
public:
    CQuorThermistor(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// TCT_THRMT_R at first; any value is stored. A file is read only into an object of its own direction.
    [[nodiscard]] EThermistorConvType ConvType() const { return m_convType; }
    void SetConvType(EThermistorConvType value) { Assign(m_convType, value); }
    /// "Thermistor " and the direction; of the current one for -2; no direction for a value without a name.
    [[nodiscard]] std::wstring ConvName(std::int32_t vData) const;
    /// 4 unless a file held another count.
    using CoefficientSettings::NumCoefficients;
    /// Index: EThermistorCoefficients, below NumCoefficients. Raises "Index out of range".
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows all coefficients.
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
