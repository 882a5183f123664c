#include "QuorConversions/platform/HeadlessPlatform.h"

#include "QuorConversions/resources/StringIds.h"
#include "QuorConversions/resources/StringTable.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"

#include <iostream>
#include <string>
#include <string_view>

namespace QuorConversions {

void HeadlessPlatform::RunDialog(Dialog& /*dialog*/, DialogInput& /*input*/) {
    throw QuorIniFile::QuorError(QuorIniFile::ERR_CANNOT_CREATE, L"HeadlessPlatform",
                                 TableText(IDS_NO_SCREEN));
}

void HeadlessPlatform::ShowMessage(const MessageRequest& request) {
    std::string lines = QuorIniFile::ToPrintable(request.title) + ": ";
    std::wstring_view rest = request.text;
    for (std::size_t end = rest.find(L'\r'); end != std::wstring_view::npos; end = rest.find(L'\r')) {
        lines.append(QuorIniFile::ToPrintable(rest.substr(0, end))).append("\n");
        rest.remove_prefix(end + 1);
        if (!rest.starts_with(L'\r')) // an empty line stays empty
            lines += "  ";
    }
    std::cerr << lines + QuorIniFile::ToPrintable(rest) + "\n" << std::flush;
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
