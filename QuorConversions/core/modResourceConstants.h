#pragma once

// The ids of the string table by name, for all that stands on the core.
#include "QuorConversions/resources/StringIds.h"
