#include "apps/probe-setup/ProbeFinding.h"

#include "QuorProbeFile/ProbeNames.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <unordered_map>

namespace ProbeSetup {

using namespace QuorProbeFile;

namespace {

/// Whether that is wrong with lines that a save of other values leaves alone.
bool StaysInTheText(EProbeProblem kind) {
    constexpr std::array kinds{PROBLEM_UNKNOWN_KEY, PROBLEM_DUPLICATE_KEY, PROBLEM_DUPLICATE_SECTION,
                               PROBLEM_MALFORMED_LINE, PROBLEM_LINE_ENDS_IN_CR};
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

} // namespace

std::vector<ProbeFinding> FindingsOf(const std::vector<ProbeProblem>& problems,
                                     const std::vector<ListedProbe>& probes) {
    std::vector<ProbeFinding> findings;
    if (problems.empty()) // as for nearly all files
        return findings;
    std::unordered_map<std::wstring, std::size_t> places;
    for (std::size_t i = 0; i < probes.size(); ++i) {
        if (!probes[i].isNew)
            places.emplace(Folded(probes[i].Section()), i);
    }
    for (const ProbeProblem& problem : problems) {
        auto found = places.find(Folded(problem.section));
        bool isOfRecord = found != places.end();
        for (const std::wstring_view owner : PossibleOwners(problem.section)) {
            if (found != places.end())
                break;
            found = places.find(Folded(std::wstring(owner)));
            isOfRecord = isOfRecord || found != places.end();
        }
        if (!isOfRecord)
            findings.push_back({std::nullopt, problem});
        else if (const ListedProbe& probe = probes[found->second];
                 !probe.content.IsChanged() || (probe.IsMerged() && StaysInTheText(problem.kind)))
            findings.push_back({found->second, problem});
    }
    return findings;
}

} // namespace ProbeSetup
