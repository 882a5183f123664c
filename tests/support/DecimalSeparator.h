#pragma once

#include "QuorConversions/core/detail/modEditing.h"

namespace Support {

/// As long as it lives, the process has no decimal separator of an earlier test; nor of this one afterwards.
class FreshDecimalSeparator {
public:
    FreshDecimalSeparator() { QuorConversions::ProcessDecimalSeparator().clear(); }
    FreshDecimalSeparator(const FreshDecimalSeparator&) = delete;
    FreshDecimalSeparator& operator=(const FreshDecimalSeparator&) = delete;
    ~FreshDecimalSeparator() { QuorConversions::ProcessDecimalSeparator().clear(); }
};

} // namespace Support
