#pragma once

// All that a host needs of the registry component.
#include "QuorRegistryII/FileRegistry.h"
#include "QuorRegistryII/Registry.h"
