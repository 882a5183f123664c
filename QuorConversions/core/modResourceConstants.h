#pragma once

// The ids of the string table by name, for everything that builds on the core.
#include "QuorConversions/resources/StringIds.h"
