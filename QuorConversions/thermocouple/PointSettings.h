#pragma once

#include "QuorConversions/controls/ListControl.h"
#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/core/SpareArray.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace QuorConversions {

/// A settings class with points: temperatures, each with a second value. Derived classes publish its members
/// under the name of that second value.
class QUORCONVERSIONS_EXPORT PointSettings : public SettingsObject {
public:
    void ClearSpareValues() override;

protected:
    /// A temperature with its second value: a voltage or an offset, in the units of the settings.
    struct Point {
        double temperature = 0.0; ///< in the unit of TempScale
        double value = 0.0;       ///< in the unit of ValueScale
    };

    /// `valuesKey` names the second value in files; `valueScale` is its unit at first.
    PointSettings(std::shared_ptr<Platform> platform, const SettingsTraits& traits, std::int16_t maxPoints,
                  const wchar_t* valuesKey, const wchar_t* valueScale);

    /// How many points there are; valid indices are below it.
    [[nodiscard]] std::int16_t NumPoints() const { return m_points.Count(); }
    /// Sets the count. A value above the greatest one is ignored. A negative one is stored and then raises 9
    /// "Subscript out of range".
    void SetNumPoints(std::int16_t value);
    /// Fills a list with the counts that can be chosen, each with its number as item data. Selects nothing.
    void FillPointsCombo(ListControl& ctrl) const;

    /// The unit texts beside the values; they convert nothing. Another text is a change.
    [[nodiscard]] const std::wstring& TempScale() const { return m_tempScale; }
    void SetTempScale(const std::wstring& value) { Assign(m_tempScale, value); }
    [[nodiscard]] const std::wstring& ValueScale() const { return m_valueScale; }
    void SetValueScale(const std::wstring& value) { Assign(m_valueScale, value); }

    /// How the dialog shows temperatures and second values (see ValueFormatter.h). Never a change, not in
    /// files.
    [[nodiscard]] const std::wstring& TempFormat() const { return m_tempFormat; }
    void SetTempFormat(std::wstring value) { m_tempFormat = std::move(value); }
    [[nodiscard]] const std::wstring& PointValueFormat() const { return m_valueFormat; }
    void SetPointValueFormat(std::wstring value) { m_valueFormat = std::move(value); }

    /// Whether there is a point with that index, from 0.
    [[nodiscard]] bool IsValidPoint(std::int32_t index) const { return m_points.IsValid(index); }
    /// The temperature and the second value of a point, in the units of TempScale and ValueScale. An invalid
    /// index raises "Index out of range" (0x800401F5), and nothing is stored.
    [[nodiscard]] double Temperatures(std::int32_t index) const { return m_points.At(index).temperature; }
    void SetTemperatures(std::int32_t index, double value) { Assign(m_points.At(index).temperature, value); }
    [[nodiscard]] double PointValues(std::int32_t index) const { return m_points.At(index).value; }
    void SetPointValues(std::int32_t index, double value) { Assign(m_points.At(index).value, value); }

    /// Write and read the count under "NumPoints".
    void WriteNumPoints(RecordWriter& record) const;
    void ReadNumPoints(RecordReader& record);
    /// Write and read "Temperatures0", the second value 0, "Temperatures1" and so on.
    void WritePoints(RecordWriter& record) const;
    void ReadPoints(RecordReader& record);

private:
    std::int16_t m_maxPoints;
    const wchar_t* m_valuesKey;
    SpareArray<Point> m_points;
    std::wstring m_tempScale = L"\u00B0C";
    std::wstring m_valueScale;
    std::wstring m_tempFormat;
    std::wstring m_valueFormat;
};

} // namespace QuorConversions
