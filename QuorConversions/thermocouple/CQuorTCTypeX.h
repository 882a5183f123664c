#pragma once

#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/thermocouple/PointSettings.h"
#include "QuorConversions/thermocouple/TCTypeCatalogue.h"

namespace QuorConversions {

/// Indices of the points and DC coefficients of CQuorTCTypeX; the first two groups are the same three points.
enum ETCTypeXCoefficients : std::int32_t {
    TCTYPEX_T1 = 0, ///< temperatures of the deviation points
    TCTYPEX_T2 = 1,
    TCTYPEX_T3 = 2,
    TCTYPEX_ADJ1 = 0, ///< offsets of the deviation points
    TCTYPEX_ADJ2 = 1,
    TCTYPEX_ADJ3 = 2,
    TCTYPEX_DC1 = 0, ///< DC coefficients
    TCTYPEX_DC2 = 1,
};

/// A standard thermocouple type with up to three deviation points and two deviation coefficients (DC). It has
/// the types B, E, J, K, N, R, S, T and AuPt. Stand-alone files: "tcx".
class QUORCONVERSIONS_EXPORT CQuorTCTypeX final : public PointSettings {
public:
    /// Made by a conversion of the type CONV_TCTYPEX, which sets TCTYPE_K, with three points, all 0.
    CQuorTCTypeX(CreationKey key, std::shared_ptr<Platform> platform);

    /// Whether the dialog shows the DC coefficients; True at first. Never a change; files always have them.
    [[nodiscard]] bool ShowDCCoefs() const { return m_showDCCoefs; }
    void SetShowDCCoefs(bool value) { m_showDCCoefs = value; }

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;

    /// The unit texts beside temperatures and offsets; they convert nothing. Another text is a change.
    using PointSettings::TempScale, PointSettings::SetTempScale;
    [[nodiscard]] const std::wstring& OffsetScale() const { return ValueScale(); }
    void SetOffsetScale(const std::wstring& value) { SetValueScale(value); }
    using SettingsObject::FilePath, SettingsObject::SetFilePath;
    /// The standard thermocouple type; TCTYPE_NONE at first (a conversion sets TCTYPE_K). Any value is
    /// stored.
    [[nodiscard]] ETCType TCType() const { return m_type; }
    void SetTCType(ETCType value) { Assign(m_type, value); }
    /// The name of a type, such as "K", of the current one for -2; "<unknown>" for one that the class does
    /// not have.
    [[nodiscard]] std::wstring GetTCTypeName(std::int32_t tc) const;
    /// Fills a list with the types that have names, each with its value as item data. Selects nothing.
    void FillTCTypeNameCombo(ListControl& ctrl) const;

    /// How many points there are; 3 at first. A value above 3 is ignored; a negative one is stored and then
    /// raises 9 "Subscript out of range".
    using PointSettings::NumPoints, PointSettings::SetNumPoints;
    /// The temperature of a point, in the unit of TempScale; any double is accepted. The index must be below
    /// NumPoints; otherwise the message "TC type index out of range: " with the index is shown, nothing is
    /// stored, and 0.0 is returned. On purpose nothing is raised.
    [[nodiscard]] double Temperatures(std::int32_t index) const;
    void SetTemperatures(std::int32_t index, double value);
    /// A DC coefficient, in the unit that the instrument defines. Any index but TCTYPEX_DC1 and TCTYPEX_DC2
    /// raises "Index out of range" (0x800401F5), and nothing is stored.
    [[nodiscard]] double Coefficients(std::int32_t index) const { return m_coefficients.At(index); }
    void SetCoefficients(std::int32_t index, double value) { Assign(m_coefficients.At(index), value); }
    /// The offset of a point, in the unit of OffsetScale; index and errors as for Temperatures.
    [[nodiscard]] double Offsets(std::int32_t index) const;
    void SetOffsets(std::int32_t index, double value);
    /// How the dialog shows temperatures, DC coefficients and offsets (see ValueFormatter.h). Setting a
    /// format is never a change, and files do not have it.
    using PointSettings::TempFormat, PointSettings::SetTempFormat;
    [[nodiscard]] const std::wstring& ValueFormat() const { return m_coefficientFormat; }
    void SetValueFormat(std::wstring value) { m_coefficientFormat = std::move(value); }
    [[nodiscard]] const std::wstring& OffsetFormat() const { return PointValueFormat(); }
    void SetOffsetFormat(std::wstring value) { SetPointValueFormat(std::move(value)); }

    using SettingsObject::Edit;
    /// As GetTCTypeName, but "TC Type " and the name for -2. Without an argument: for -2.
    [[nodiscard]] std::wstring GetName(std::int32_t tc) const;
    [[nodiscard]] std::wstring GetName() const override;
    using PointSettings::FillPointsCombo;
    using SettingsObject::OpenFile, SettingsObject::SaveFileAs;
    using SettingsObject::WriteToFile, SettingsObject::ReadFromFile;

private:
    /// Whether the index is valid; tells the user when it is not.
    [[nodiscard]] bool CheckPoint(std::int32_t index) const;
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    bool m_showDCCoefs = true;
    ETCType m_type = TCTYPE_NONE;
    SpareArray<double> m_coefficients;
    std::wstring m_coefficientFormat;
};

} // namespace QuorConversions
