#pragma once

#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/thermocouple/PointSettings.h"
#include "QuorConversions/thermocouple/TCTypeCatalogue.h"

namespace QuorConversions {

/// Indices of the points and DC coefficients of CQuorTCTypeX; the first two groups address the same three
/// points.
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

/// A standard thermocouple type corrected by up to three deviation points and two deviation coefficients
/// (DC). It knows the types B, E, J, K, N, R, S, T and AuPt. Stand-alone files: "tcx".
class QUORCONVERSIONS_EXPORT CQuorTCTypeX final : public PointSettings {
public:
    CQuorTCTypeX(CreationKey key, std::shared_ptr<Platform> platform);

    /// Whether the dialog shows the DC coefficients; True at first. Never a change; files hold them always.
    [[nodiscard]] bool ShowDCCoefs() const { return m_showDCCoefs; }
    void SetShowDCCoefs(bool value) { m_showDCCoefs = value; }

    using SettingsObject::AllowEdit, SettingsObject::SetAllowEdit;
    using SettingsObject::SetRegistry, SettingsObject::Registry;
    using SettingsObject::Changed, SettingsObject::SetChanged;

    /// Unit texts beside the values; they convert nothing. Another text is a change.
    using PointSettings::TempScale, PointSettings::SetTempScale;
    [[nodiscard]] const std::wstring& OffsetScale() const { return ValueScale(); }
    void SetOffsetScale(const std::wstring& value) { SetValueScale(value); }
    using SettingsObject::FilePath, SettingsObject::SetFilePath;
    /// TCTYPE_NONE at first; any value is stored.
    [[nodiscard]] ETCType TCType() const { return m_type; }
    void SetTCType(ETCType value) { Assign(m_type, value); }
    /// The plain name of a type; of the current one for -2.
    [[nodiscard]] std::wstring GetTCTypeName(std::int32_t tc) const;
    /// Fills a list with the types that have names, each with its value as item data. Selects nothing.
    void FillTCTypeNameCombo(ListControl& ctrl) const;

    /// 3 at first. A value above 3 is ignored; a negative one is stored and then raises 9 "Subscript out of
    /// range".
    using PointSettings::NumPoints, PointSettings::SetNumPoints;
    /// Index: ETCTypeXCoefficients, below NumPoints. For any other the user is told "TC type index out of
    /// range: " and the index; nothing is stored, and 0.0 is returned. On purpose nothing is raised here.
    [[nodiscard]] double Temperatures(std::int32_t index) const;
    void SetTemperatures(std::int32_t index, double value);
    /// Index: TCTYPEX_DC1 or TCTYPEX_DC2. Raises "Index out of range" (0x800401F5) for any other.
    [[nodiscard]] double Coefficients(std::int32_t index) const { return m_coefficients.At(index); }
    void SetCoefficients(std::int32_t index, double value) { Assign(m_coefficients.At(index), value); }
    /// As Temperatures.
    [[nodiscard]] double Offsets(std::int32_t index) const;
    void SetOffsets(std::int32_t index, double value);
    /// How the dialog shows temperatures, DC coefficients and offsets. Setting a format is never a change.
    using PointSettings::TempFormat, PointSettings::SetTempFormat;
    [[nodiscard]] const std::wstring& ValueFormat() const { return m_coefficientFormat; }
    void SetValueFormat(std::wstring value) { m_coefficientFormat = std::move(value); }
    [[nodiscard]] const std::wstring& OffsetFormat() const { return PointValueFormat(); }
    void SetOffsetFormat(std::wstring value) { SetPointValueFormat(std::move(value)); }

    using SettingsObject::Edit;
    /// The plain name of a type; of the current one, behind "TC Type ", for -2. Without an argument: for -2.
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
