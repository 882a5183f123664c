#pragma once

#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/thermocouple/PointSettings.h"

namespace QuorConversions {

/// Indices of the points of CQuorTCTable; both groups address the same ten.
enum ETCTableCoefficients : std::int32_t {
    TCTABLE_T1 = 0, ///< temperatures
    TCTABLE_T2 = 1,
    TCTABLE_T3 = 2,
    TCTABLE_T4 = 3,
    TCTABLE_T5 = 4,
    TCTABLE_T6 = 5,
    TCTABLE_T7 = 6,
    TCTABLE_T8 = 7,
    TCTABLE_T9 = 8,
    TCTABLE_T10 = 9,
    TCTABLE_ADJ1 = 0, ///< voltages
    TCTABLE_ADJ2 = 1,
    TCTABLE_ADJ3 = 2,
    TCTABLE_ADJ4 = 3,
    TCTABLE_ADJ5 = 4,
    TCTABLE_ADJ6 = 5,
    TCTABLE_ADJ7 = 6,
    TCTABLE_ADJ8 = 7,
    TCTABLE_ADJ9 = 8,
    TCTABLE_ADJ10 = 9,
};

/// A thermocouple described by a table of up to ten calibration points, each a temperature and the voltage
/// measured there. Stand-alone files: "tct".
class QUORCONVERSIONS_EXPORT CQuorTCTable final : public PointSettings {
public:
    CQuorTCTable(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// 10 at first. A value above 10 is ignored; a negative one is stored and then raises 9 "Subscript out of
    /// range".
    using PointSettings::NumPoints, PointSettings::SetNumPoints;
    /// Index: ETCTableCoefficients, below NumPoints. Raises "Index out of range" (0x800401F5). Any value is
    /// taken.
    using PointSettings::Temperatures, PointSettings::SetTemperatures;
    [[nodiscard]] double Voltages(std::int32_t index) const { return PointValues(index); }
    void SetVoltages(std::int32_t index, double value) { SetPointValues(index, value); }
    /// How the dialog shows temperatures and voltages. Setting a format is never a change.
    using PointSettings::TempFormat, PointSettings::SetTempFormat;
    [[nodiscard]] const std::wstring& VoltageFormat() const { return PointValueFormat(); }
    void SetVoltageFormat(std::wstring value) { SetPointValueFormat(std::move(value)); }
    /// Unit texts beside the values; they convert nothing and are not stored in files. Another text is a
    /// change.
    using PointSettings::TempScale, PointSettings::SetTempScale;
    [[nodiscard]] const std::wstring& VoltageScale() const { return ValueScale(); }
    void SetVoltageScale(const std::wstring& value) { SetValueScale(value); }

    using SettingsObject::Edit, SettingsObject::GetName;
    /// "1" to "10", each with its number as item data.
    using PointSettings::FillPointsCombo;

    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;
};

} // namespace QuorConversions
