#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/Record.h"

namespace QuorConversions {
namespace {

constexpr SettingsTraits tcTypePolyTraits{L"CQuorTCTypePoly", IDS_TC_TYPE, L"ttp",
                                          thermocouplePolynomialSection};

// The reverse of the class with deviation points: C, L, M and U are known here, gold against platinum is not.
constexpr TCTypeCatalogue typesWithPolynomial{
    {L"B", L"C", L"E", L"J", L"K", L"L", L"M", L"N", L"R", L"S", L"T", L"U", nullptr}};

} // namespace

CQuorTCTypePoly::CQuorTCTypePoly(std::shared_ptr<Platform> platform)
    : CoefficientSettings(std::move(platform), tcTypePolyTraits, TC_POLY_C3) {
    SetNumCoefficients(TC_POLY_C3 + 1);
    SetChanged(false);
}

std::wstring CQuorTCTypePoly::GetTCTypeName(std::int32_t tc) const {
    return GetName(tc == currentValue ? m_type : tc);
}

void CQuorTCTypePoly::FillTCTypeNameCombo(ListControl& ctrl) const { typesWithPolynomial.Fill(ctrl); }

std::wstring CQuorTCTypePoly::GetName(std::int32_t tc) const { return typesWithPolynomial.Name(tc, m_type); }

std::wstring CQuorTCTypePoly::GetName() const { return GetName(currentValue); }

void CQuorTCTypePoly::WriteRecord(RecordWriter& record) const {
    record.Integer(tcTypeKey, m_type);
    WriteCount(record);
    WriteCoefficients(record);
}

void CQuorTCTypePoly::ReadRecord(RecordReader& record) {
    SetTCType(ETCType{record.Integer(tcTypeKey, m_type)});
    SetNumCoefficients(ReadCount(record));
    ReadCoefficients(record);
}

} // namespace QuorConversions
