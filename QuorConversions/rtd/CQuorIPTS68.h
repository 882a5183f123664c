#pragma once

#include "QuorConversions/controls/ListControl.h"
#include "QuorConversions/core/CoefficientSettings.h"
#include "QuorConversions/core/CreationKey.h"

namespace QuorConversions {

/// Indices of the coefficients of CQuorIPTS68.
enum EIPTS68Coefficients : std::int32_t {
    IPTS68_R0 = 0,    ///< resistance at 0 degrees Celsius, ohms
    IPTS68_ALPHA = 1, ///< 1/degree Celsius
    IPTS68_DELTA = 2, ///< degrees Celsius
    IPTS68_A4 = 3,    ///< deviation coefficient below 0 degrees Celsius, 1/degree Celsius
    IPTS68_C4 = 4,    ///< deviation coefficient below 0 degrees Celsius, 1/degree Celsius^4
};

/// The temperature scale on which the instrument reports.
enum EIPTS68Scale : std::int32_t { SCALE_ITS90 = 0, SCALE_IPTS68 = 1 };

/// A platinum resistance thermometer characterised on the IPTS-68 scale. Stand-alone files: "i68".
class QUORCONVERSIONS_EXPORT CQuorIPTS68 final : public CoefficientSettings {
public:
    /// Made by a conversion of the type CONV_IPTS68, with five coefficients, all 0, and SCALE_ITS90.
    CQuorIPTS68(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// Whether the dialog offers the choice of the scale; False at first. Setting it is never a change.
    [[nodiscard]] bool ScaleEnabled() const { return m_scaleEnabled; }
    void SetScaleEnabled(bool value) { m_scaleEnabled = value; }
    /// 5, unless a file had another count.
    using CoefficientSettings::NumCoefficients;
    /// The scale on which the instrument reports; SCALE_ITS90 at first. Any value is stored; only SCALE_ITS90
    /// and SCALE_IPTS68 have names.
    [[nodiscard]] EIPTS68Scale IPTS68Scale() const { return m_scale; }
    void SetIPTS68Scale(EIPTS68Scale value) { Assign(m_scale, value); }
    /// The name of a scale; of the current one for -2; empty for a value without a name.
    [[nodiscard]] std::wstring IPTS68ScaleName(std::int32_t vData) const;
    /// A coefficient, in the unit that EIPTS68Coefficients gives; any double is accepted. The index must be
    /// below NumCoefficients; otherwise "Index out of range" (0x800401F5) is raised and nothing is stored.
    using CoefficientSettings::Coefficients, CoefficientSettings::SetCoefficients;
    /// How the dialog shows a coefficient; index and errors as for Coefficients. Never a change, not in
    /// files.
    using CoefficientSettings::ValueFormat, CoefficientSettings::SetValueFormat;
    /// Fills a list with the two scales, each with its value as item data. Selects nothing.
    void FillScaleCombo(ListControl& ctrl) const;

    using SettingsObject::Edit, SettingsObject::GetName;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    bool m_scaleEnabled = false;
    EIPTS68Scale m_scale = SCALE_ITS90;
};

} // namespace QuorConversions
