#include "QuorConversions/dialogs/frmPolynomialSettings.h"

namespace QuorConversions {

frmPolynomialSettings::frmPolynomialSettings(CQuorPolynomial& settings, std::shared_ptr<Platform> platform)
    : CoefficientDialog(settings, std::move(platform), L"frmPolynomialSettings", 10112) {
    AddRows(POLY_A10 + 1);
}

} // namespace QuorConversions
