#include "QuorConversions/polynomial/CQuorPolynomial.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits polynomialTraits{L"CQuorPolynomial", IDS_POLYNOMIAL, L"ply", L"Polynomial"};

} // namespace

CQuorPolynomial::CQuorPolynomial(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : CoefficientSettings(std::move(platform), polynomialTraits, POLY_A10) {
    SetOrder(MinOrder());
    SetChanged(false);
}

void CQuorPolynomial::SetOrder(std::int16_t value) {
    if (value < MinOrder() || value > MaxOrder() || value == m_order)
        return;
    SetChanged(true);
    m_order = value;
    ResizeCoefficients(static_cast<std::int16_t>(value + 1));
}

void CQuorPolynomial::WriteRecord(RecordWriter& record) const {
    record.Integer(orderKey, m_order);
    WriteCoefficients(record);
}

void CQuorPolynomial::ReadRecord(RecordReader& record) {
    SetOrder(record.Count(orderKey, m_order));
    ReadCoefficients(record);
}

} // namespace QuorConversions
