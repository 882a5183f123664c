#include "QuorConversions/thermocouple/PointSettings.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {

PointSettings::PointSettings(std::shared_ptr<Platform> platform, const SettingsTraits& traits,
                             std::int16_t maxPoints, const wchar_t* valuesKey, const wchar_t* valueScale)
    : SettingsObject(std::move(platform), traits),
      m_maxPoints(maxPoints),
      m_valuesKey(valuesKey),
      m_points(traits.className, maxPoints - 1),
      m_valueScale(valueScale) {
    m_points.Resize(maxPoints);
}

void PointSettings::ClearSpareValues() {
    m_points.ClearSpare([](Point& point) { point = {}; });
}

void PointSettings::SetNumPoints(std::int16_t value) {
    if (value > m_maxPoints || value == m_points.Count())
        return;
    SetChanged(true);
    m_points.Resize(value);
}

void PointSettings::FillPointsCombo(ListControl& ctrl) const {
    ctrl.Clear();
    for (std::int32_t count = 1; count <= m_maxPoints; ++count)
        AddItemWithData(ctrl, std::to_wstring(count), count);
}

void PointSettings::WriteNumPoints(RecordWriter& record) const { record.Integer(numPointsKey, NumPoints()); }

void PointSettings::ReadNumPoints(RecordReader& record) {
    SetNumPoints(record.Count(numPointsKey, NumPoints()));
}

void PointSettings::WritePoints(RecordWriter& record) const {
    for (std::int32_t i = 0; i < NumPoints(); ++i) {
        record.Double(IndexedKey(temperaturesKey, i), Temperatures(i));
        record.Double(IndexedKey(m_valuesKey, i), PointValues(i));
    }
}

void PointSettings::ReadPoints(RecordReader& record) {
    if (NumPoints() < 0)
        record.Fail(); // the count is refused with an error only when it changes
    for (std::int32_t i = 0; i < NumPoints(); ++i) {
        SetTemperatures(i, record.Double(IndexedKey(temperaturesKey, i), Temperatures(i)));
        SetPointValues(i, record.Double(IndexedKey(m_valuesKey, i), PointValues(i)));
    }
}

} // namespace QuorConversions
