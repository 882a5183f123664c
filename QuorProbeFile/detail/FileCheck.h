#pragma once

#include "QuorIniFile/IniStore.h"
#include "QuorProbeFile/ProbeEntry.h"
#include "QuorProbeFile/ProbeProblem.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// All problems of a file and of its probes, in the order of the lines, and then those beside the file. Calls
/// `afterEach` after each probe.
[[nodiscard]] std::vector<ProbeProblem> CheckFile(const std::shared_ptr<QuorIniFile::IniStore>& store,
                                                  const std::wstring& path,
                                                  const std::vector<ProbeEntry>& probes,
                                                  const std::vector<std::size_t>& lostSections,
                                                  const std::function<void()>& afterEach);

} // namespace QuorProbeFile
