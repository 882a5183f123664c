#pragma once

#include "QuorConversions/QuorConversions.h"
#include "QuorIniFile/QuorIniFile.h"
#include "QuorRegistryII/QuorRegistryII.h"
#include "component/DialogFace.h"
#include "component/ProbeFileFace.h"

namespace QuorConversions::Component {

/// A list of classes.
template <class... Class>
struct Classes {};

} // namespace QuorConversions::Component
