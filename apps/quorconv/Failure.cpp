#include "apps/quorconv/Failure.h"

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeFileError.h"

#include <algorithm>
#include <exception>
#include <iostream>

namespace quorconv {

using QuorProbeFile::ProbeProblem;

std::vector<std::wstring> Reasons(const std::vector<std::wstring>& messages,
                                  const std::vector<ProbeProblem>& problems) {
    std::vector<std::wstring> reasons;
    const auto add = [&](std::wstring reason) {
        if (std::find(reasons.begin(), reasons.end(), reason) == reasons.end())
            reasons.push_back(std::move(reason));
    };
    for (const ProbeProblem& problem : problems)
        add(L"line " + std::to_wstring(problem.line) + L": [" + problem.section + L"] " +
            (problem.key.empty() ? L"" : problem.key + L": ") + problem.text);
    if (reasons.empty())
        std::for_each(messages.begin(), messages.end(), add);
    return reasons;
}

Problem CurrentFailure() {
    try {
        throw;
    } catch (const Problem& problem) {
        return problem;
    } catch (const QuorProbeFile::ProbeFileError& error) {
        return {error.Description(), Reasons(error.Messages(), error.Problems())};
    } catch (const QuorIniFile::QuorError& error) {
        return {error.Description()};
    } catch (const std::exception& error) {
        return {QuorIniFile::DecodeBytes(error.what())};
    }
}

void PrintFailure(const Problem& failure, const char* program) {
    std::cout.flush();
    std::cerr << program << ": " << QuorIniFile::ToPrintable(failure.text) << '\n';
    for (const std::wstring& reason : failure.reasons)
        std::cerr << "  " << QuorIniFile::ToPrintable(reason) << '\n';
}

} // namespace quorconv
