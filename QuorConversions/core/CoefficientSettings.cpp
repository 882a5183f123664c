#include "QuorConversions/core/CoefficientSettings.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {

CoefficientSettings::CoefficientSettings(std::shared_ptr<Platform> platform, const SettingsTraits& traits,
                                         std::int32_t highestIndex)
    : SettingsObject(std::move(platform), traits), m_slots(traits.className, highestIndex) {}

void CoefficientSettings::ClearSpareValues() {
    m_slots.ClearSpare([](Slot& slot) { slot.value = 0.0; });
}

void CoefficientSettings::ResizeCoefficients(std::int16_t count) {
    if (count == m_slots.Count())
        return;
    SetChanged(true);
    m_slots.Resize(count);
}

void CoefficientSettings::SetNumCoefficients(std::int16_t value) {
    if (value == m_slots.Count())
        return;
    SetChanged(true);
    m_slots.SetCount(value);
}

void CoefficientSettings::WriteCount(RecordWriter& record) const {
    record.Integer(numCoefficientsKey, NumCoefficients());
}

std::int16_t CoefficientSettings::ReadCount(RecordReader& record) const {
    return record.Count(numCoefficientsKey, NumCoefficients());
}

void CoefficientSettings::WriteCoefficients(RecordWriter& record) const {
    for (std::int32_t i = 0; i < NumCoefficients(); ++i)
        record.Double(IndexedKey(coefficientsKey, i), Coefficients(i));
}

void CoefficientSettings::ReadCoefficients(RecordReader& record) {
    if (NumCoefficients() < 0)
        record.Fail(); // where it is refused with an error, that happens only when the count changes
    for (std::int32_t i = 0; i < NumCoefficients(); ++i) {
        const double current = m_slots.IsValid(i) ? Coefficients(i) : 0.0; // refused only when it is stored
        SetCoefficients(i, record.Double(IndexedKey(coefficientsKey, i), current));
    }
}

} // namespace QuorConversions
