#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <cstddef>
#include <vector>

namespace ProbeSetup {

/// Probes on the clipboard: as the text of an INI file, so that they go into another window of Probe Setup,
/// into an editor and into a mail, and come from there.
class ProbeClipboard {
public:
    /// Raises what ProbeDocument::TextOf raises.
    static void Copy(ProbeDocument& document, const std::vector<std::size_t>& probes);
    /// Adds the probes of the clipboard; their places. Raises what ProbeDocument::AddFrom raises.
    static std::vector<std::size_t> Paste(ProbeDocument& document);
};

} // namespace ProbeSetup
