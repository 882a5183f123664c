#pragma once

#include "QuorConversions/Export.h"

namespace QuorConversions {

/// The next GetDecimalSeparator asks its platform, as the first one of a process does. In the test build
/// only.
QUORCONVERSIONS_EXPORT void ForgetDecimalSeparator();

} // namespace QuorConversions

namespace Support {

/// As long as it lives, the process has no decimal separator of an earlier test; nor of this one afterwards.
class FreshDecimalSeparator {
public:
    FreshDecimalSeparator() { QuorConversions::ForgetDecimalSeparator(); }
    FreshDecimalSeparator(const FreshDecimalSeparator&) = delete;
    FreshDecimalSeparator& operator=(const FreshDecimalSeparator&) = delete;
    ~FreshDecimalSeparator() { QuorConversions::ForgetDecimalSeparator(); }
};

} // namespace Support
