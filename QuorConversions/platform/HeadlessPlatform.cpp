#include "QuorConversions/platform/HeadlessPlatform.h"

#include "QuorConversions/resources/StringIds.h"
#include "QuorConversions/resources/StringTable.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <iostream>

namespace QuorConversions {

void HeadlessPlatform::RunDialog(Dialog& /*dialog*/, DialogInput& /*input*/) {
    throw QuorIniFile::QuorError(QuorIniFile::ERR_CANNOT_CREATE, L"HeadlessPlatform",
                                 TableText(IDS_NO_SCREEN));
}

void HeadlessPlatform::ShowMessage(const MessageRequest& request) {
    std::wstring line = request.title + L": " + request.text + L"\n";
    std::replace(line.begin(), line.end(), L'\r', L'\n');
    std::cerr << QuorIniFile::ToUtf8(line) << std::flush;
}

std::optional<std::wstring> HeadlessPlatform::AskForFile(const FileRequest& /*request*/) {
    return std::nullopt;
}

std::int32_t HeadlessPlatform::CallHelp(const std::wstring& /*helpFile*/, std::uint32_t /*command*/,
                                        std::int32_t /*data*/) {
    return 0;
}

std::shared_ptr<Platform> DefaultPlatform() {
    static const std::shared_ptr<Platform> headless = std::make_shared<HeadlessPlatform>();
    return headless;
}

} // namespace QuorConversions
