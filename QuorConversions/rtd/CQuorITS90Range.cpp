#include "QuorConversions/rtd/CQuorITS90Range.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

#include <algorithm>

namespace QuorConversions {

CQuorITS90Range::CQuorITS90Range(std::shared_ptr<Platform> platform, const Side& side)
    : QuorObject(std::move(platform), side.className),
      m_side(side),
      m_minRange(side.minRange),
      m_maxRange(side.maxRange),
      m_coefficients(side.className, side.highestIndex) {}

void CQuorITS90Range::SetRangeEnabled(bool value) {
    if (value == m_rangeEnabled)
        return;
    SetChanged(true);
    m_rangeEnabled = value;
    if (!value)
        SetRange(std::max(m_minRange, m_side.firstOfItsOwn));
}

const CQuorITS90Range::Row* CQuorITS90Range::FindRow(std::int32_t range) const {
    const Row* const end = m_side.rows + m_side.rowCount;
    const Row* const row = std::find_if(m_side.rows, end, [range](const Row& r) { return r.range == range; });
    return row == end ? nullptr : row;
}

std::wstring CQuorITS90Range::RangeName(std::int32_t vData) const {
    const Row* const row = FindRow(vData == currentValue ? m_range : vData);
    return row ? TableText(row->name) : std::wstring{};
}

std::int16_t CQuorITS90Range::CoefficientsOf(std::int32_t range) const {
    const Row* const row = FindRow(range);
    return row ? row->count : std::int16_t{0};
}

void CQuorITS90Range::SetRange(EITS90RangeNumber value) {
    if (value == m_range)
        return;
    if (value != ITS90_NORANGE && (value < m_minRange || value > m_maxRange))
        throw Error(QuorIniFile::ERR_RANGE_OUT_OF_RANGE, IDS_RANGE_OUT_OF_RANGE);
    SetChanged(true);
    m_range = value;
    const std::int16_t count = CoefficientsOf(value);
    if (count != m_coefficients.Count())
        m_coefficients.Resize(count);
}

void CQuorITS90Range::ClearSpareValues() {
    m_coefficients.ClearSpare([](double& value) { value = 0.0; });
}

void CQuorITS90Range::FillRangeCombo(ListControl& ctrl) const {
    ctrl.Clear();
    AddItemWithData(ctrl, RangeName(ITS90_NORANGE), ITS90_NORANGE);
    if (m_maxRange == ITS90_NORANGE)
        return;
    for (std::int32_t range = m_minRange; range <= m_maxRange; ++range)
        AddItemWithData(ctrl, RangeName(range), range);
}

void CQuorITS90Range::WriteRecord(RecordWriter& record) const {
    record.Integer(rangeKey, m_range);
    for (std::int32_t i = 0; i < NumCoefficients(); ++i)
        record.Double(IndexedKey(coefficientsKey, i), Coefficients(i));
}

void CQuorITS90Range::ReadRecord(RecordReader& record) {
    SetRange(EITS90RangeNumber{record.Integer(rangeKey, m_range)});
    for (std::int32_t i = 0; i < NumCoefficients(); ++i)
        SetCoefficients(i, record.Double(IndexedKey(coefficientsKey, i), Coefficients(i)));
}

} // namespace QuorConversions
