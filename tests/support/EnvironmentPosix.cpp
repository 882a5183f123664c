#include "tests/support/Environment.h"

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): setenv is not in cstdlib

namespace Support {

void SetVariable(const char* name, const char* value) {
    if (value != nullptr)
        ::setenv(name, value, 1);
    else
        ::unsetenv(name);
}

} // namespace Support
