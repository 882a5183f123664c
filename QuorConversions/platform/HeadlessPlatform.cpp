#include "QuorConversions/platform/HeadlessPlatform.h"

#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <iostream>

namespace QuorConversions {

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
    // Nothing in it is worth more than one copy: the pointer shape is given back by everyone who takes it.
    static const std::shared_ptr<Platform> headless = std::make_shared<HeadlessPlatform>();
    return headless;
}

} // namespace QuorConversions
