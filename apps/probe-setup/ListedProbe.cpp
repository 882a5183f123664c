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

void ListedProbe::SwapContent(ProbeContent& other) {
    std::swap(content, other);
    content.replacesRecord = !isNew && content.type != typeInFile;
}

void ListedProbe::SetSaved() {
    nameInFile.reset();
    isNew = false;
    typeInFile = content.type;
    content.replacesRecord = false;
    if (content.conversion)
        content.conversion->SetChanged(false);
}

void ListedProbe::SetNew() {
    nameInFile.reset();
    isNew = true;
    typeInFile.reset();
    content.replacesRecord = false;
}

} // namespace ProbeSetup
