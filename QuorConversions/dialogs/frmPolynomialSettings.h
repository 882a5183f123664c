#pragma once

#include "QuorConversions/dialogs/CoefficientDialog.h"
#include "QuorConversions/polynomial/CQuorPolynomial.h"

namespace QuorConversions {

/// Edits the coefficients of a polynomial; any value is taken.
class frmPolynomialSettings final : public CoefficientDialog<CQuorPolynomial> {
public:
    frmPolynomialSettings(CQuorPolynomial& settings, std::shared_ptr<Platform> platform);

private:
    void PrepareControls() override { NumberRows(Object().CoefficientLabelPrefix()); }
};

} // namespace QuorConversions
