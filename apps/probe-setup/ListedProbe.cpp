#include "apps/probe-setup/ListedProbe.h"

#include <utility>

namespace ProbeSetup {

std::vector<std::wstring> ReadProblems::Lines() const {
    std::vector<std::wstring> lines = keys;
    lines.insert(lines.end(), messages.begin(), messages.end());
    return lines;
}

void ListedProbe::SetName(std::wstring newName) {
    if (!isNew && !nameInFile)
        nameInFile = name;
    name = std::move(newName);
    if (name == nameInFile)
        nameInFile.reset();
}

} // namespace ProbeSetup
