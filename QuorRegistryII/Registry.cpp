#include "QuorRegistryII/Registry.h"

namespace QuorRegistryII {

Registry::~Registry() = default;

} // namespace QuorRegistryII
