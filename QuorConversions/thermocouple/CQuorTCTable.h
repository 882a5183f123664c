#pragma once

#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/thermocouple/PointSettings.h"

namespace QuorConversions {

/// Indices of the points of CQuorTCTable; both groups are the same ten.
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
    /// Made by a conversion of the type CONV_TCTABLE, with ten points, all 0.
    CQuorTCTable(CreationKey key, std::shared_ptr<Platform> platform);

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;
    using SettingsObject::FilePath, SettingsObject::SetFilePath;

    /// How many points there are; 10 at first. A value above 10 is ignored; a negative one is stored and then
    /// raises 9 "Subscript out of range".
    using PointSettings::NumPoints, PointSettings::SetNumPoints;
    /// The temperature and the voltage of a point, in the units of TempScale and VoltageScale; any double is
    /// accepted. The index must be below NumPoints; otherwise "Index out of range" (0x800401F5) is raised and
    /// nothing is stored.
    using PointSettings::Temperatures, PointSettings::SetTemperatures;
    [[nodiscard]] double Voltages(std::int32_t index) const { return PointValues(index); }
    void SetVoltages(std::int32_t index, double value) { SetPointValues(index, value); }
    /// How the dialog shows temperatures and voltages (see ValueFormatter.h). Setting a format is never a
    /// change, and files do not have it.
    using PointSettings::TempFormat, PointSettings::SetTempFormat;
    [[nodiscard]] const std::wstring& VoltageFormat() const { return PointValueFormat(); }
    void SetVoltageFormat(std::wstring value) { SetPointValueFormat(std::move(value)); }
    /// The unit texts beside temperatures and voltages; they convert nothing and are not stored in files.
    /// Another text is a change.
    using PointSettings::TempScale, PointSettings::SetTempScale;
    [[nodiscard]] const std::wstring& VoltageScale() const { return ValueScale(); }
    void SetVoltageScale(const std::wstring& value) { SetValueScale(value); }

    using SettingsObject::Edit, SettingsObject::GetName;
    /// Fills a list with "1" to "10", each with its number as item data.
    using PointSettings::FillPointsCombo;

    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;
};

} // namespace QuorConversions
