#pragma once

#include "QuorProbeFile/ProbeProblem.h"
#include "apps/probe-setup/ListedProbe.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace QuorProbeFile {
class ProbeFile;
}

namespace ProbeSetup {

/// Something that is wrong with a probe of a document, or with the file around the probes.
struct ProbeFinding {
    std::optional<std::size_t> probe; ///< its place; nothing for what concerns none
    QuorProbeFile::ProbeProblem problem;
};

/// Tells of what a file has told of its probes what still stands in a document, and to which probe it
/// belongs.
[[nodiscard]] std::vector<ProbeFinding> FindingsOf(const std::vector<QuorProbeFile::ProbeProblem>& problems,
                                                   const std::vector<ListedProbe>& probes);

} // namespace ProbeSetup
