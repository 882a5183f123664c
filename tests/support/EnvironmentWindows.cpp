#include "tests/support/Environment.h"

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): _putenv_s is not in cstdlib

namespace Support {

// An empty value removes it.
void SetVariable(const char* name, const char* value) { ::_putenv_s(name, value != nullptr ? value : ""); }

} // namespace Support
