#include "QuorConversions/rtd/CQuorCVD.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits cvdTraits{L"CQuorCVD", IDS_CALLENDAR_VAN_DUSEN, L"cvd", L"Callendar-Van Dusen"};

} // namespace

CQuorCVD::CQuorCVD(CreationKey /*key*/, std::shared_ptr<Platform> platform)
    : CoefficientSettings(std::move(platform), cvdTraits, anyIndex) {
    SetNumCoefficients(MaxCoefficients());
    SetChanged(false);
}

void CQuorCVD::WriteRecord(RecordWriter& record) const {
    WriteCount(record);
    record.Boolean(usePolynomialKey, m_usePolynomial);
    WriteCoefficients(record);
}

void CQuorCVD::ReadRecord(RecordReader& record) {
    SetNumCoefficients(ReadCount(record));
    m_usePolynomial = record.Boolean(usePolynomialKey, m_usePolynomial);
    ReadCoefficients(record);
}

} // namespace QuorConversions
