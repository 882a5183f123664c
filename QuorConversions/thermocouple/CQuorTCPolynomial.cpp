#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits tcPolynomialTraits{L"CQuorTCPolynomial", IDS_TC_POLYNOMIAL, L"tcp",
                                            thermocouplePolynomialSection};

} // namespace

CQuorTCPolynomial::CQuorTCPolynomial(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : CoefficientSettings(std::move(platform), tcPolynomialTraits, TC_POLY_C15) {
    SetNumCoefficients(TC_POLY_C15 + 1);
    SetChanged(false);
}

void CQuorTCPolynomial::WriteRecord(RecordWriter& record) const {
    record.Double(mV25CKey, m_mV25C);
    WriteCount(record);
    WriteCoefficients(record);
}

void CQuorTCPolynomial::ReadRecord(RecordReader& record) {
    SetmV25C(record.Double(mV25CKey, m_mV25C));
    SetNumCoefficients(ReadCount(record));
    ReadCoefficients(record);
}

} // namespace QuorConversions
