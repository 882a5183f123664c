#include "apps/quorconv/Batch.h"

#include "QuorProbeFile/ProbeFileError.h"
#include "apps/quorconv/Failure.h"

namespace quorconv {

void Batch::Do(const std::function<std::wstring()>& place, const std::function<void()>& piece) {
    Problem failure;
    try {
        return piece();
    } catch (const Problem& problem) {
        failure = problem;
    } catch (const UsageError& error) {
        failure = {error.text};
    } catch (const QuorProbeFile::ProbeFileError&) { // raised before anything was written
        failure = CurrentFailure();
    }
    ++m_wrong;
    const std::wstring at = place();
    m_failures.push_back((at.empty() ? L"" : m_from + L":" + at + L": ") + failure.text);
    for (const std::wstring& reason : failure.reasons)
        m_failures.push_back(L"  " + reason);
}

void Batch::RequireFine() const {
    if (m_failures.empty())
        return;
    const bool isOne = m_wrong == 1;
    throw Problem{m_path + L": nothing was written, because " +
                      (isOne ? L"a line of " + m_from + L" is wrong"
                             : std::to_wstring(m_wrong) + L" lines of " + m_from + L" are wrong"),
                  m_failures};
}

void Batch::Forget() {
    m_failures.clear();
    m_wrong = 0;
}

} // namespace quorconv
