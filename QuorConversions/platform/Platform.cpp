#include "QuorConversions/platform/Platform.h"

#include "QuorIniFile/IniStore.h"

namespace QuorConversions {

Platform::~Platform() = default;

std::shared_ptr<QuorIniFile::INIFile> Platform::CreateIniFile() {
    return std::make_shared<QuorIniFile::IniStore>();
}

std::wstring Platform::DecimalSeparator() { return L"."; }

} // namespace QuorConversions
