#include "QuorConversions/core/modMessages.h"

#include "QuorConversions/core/detail/BusyPointer.h"
#include "QuorIniFile/IniCause.h"
#include "QuorIniFile/Utf8.h"

#include <new>

namespace QuorConversions {
namespace {

std::wstring WideText(const char* text) {
    if (auto wide = QuorIniFile::FromUtf8(text))
        return *std::move(wide);
    // Text of another encoding: its ASCII part is still worth reading.
    std::wstring ascii;
    for (; *text != '\0'; ++text)
        ascii += static_cast<unsigned char>(*text) < 0x80 ? static_cast<wchar_t>(*text) : L'?';
    return ascii;
}

/// The entry that says what an error number of the store means; 0 where there is none.
std::int32_t ErrorTextId(std::int32_t error) {
    switch (error) {
#define QUOR_INI_ERROR(number, name, text)                                                                   \
    case number:                                                                                             \
        return IDS_##name;
#include "QuorIniFile/IniTexts.def"
    default:
        return 0;
    }
}

/// The entry of a cause of the store's; 0 where there is none.
std::int32_t CauseTextId(std::int32_t cause) {
    switch (cause) {
#define QUOR_INI_CAUSE(number, name, text)                                                                   \
    case number:                                                                                             \
        return IDS_INI_##name;
#include "QuorIniFile/IniTexts.def"
    default:
        return 0;
    }
}

void Show(Platform& platform, const MessageRequest& request) {
    SetPointer(platform, POINTER_DEFAULT);
    platform.ShowMessage(request);
}

} // namespace

QuorError CurrentError(const std::wstring& source) {
    using namespace QuorIniFile;
    try {
        throw;
    } catch (const QuorError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return {ERR_OUT_OF_MEMORY, source, TableText(IDS_OUT_OF_MEMORY)};
    } catch (const std::exception& error) {
        std::wstring text = WideText(error.what());
        return {ERR_UNEXPECTED, source, text.empty() ? TableText(IDS_SYSTEM_ERROR) : std::move(text)};
    } catch (...) {
        return {ERR_UNEXPECTED, source, TableText(IDS_SYSTEM_ERROR)};
    }
}

std::wstring DescriptionOf(const QuorError& error) {
    const QuorIniFile::IniCause* const cause = error.Cause();
    const std::int32_t numberId = cause ? ErrorTextId(error.Number()) : 0;
    if (numberId == 0)
        return error.Description();
    const std::int32_t causeId = CauseTextId(cause->code);
    return QuorIniFile::Describe(TableText(numberId), causeId != 0 ? TableText(causeId) : L"", *cause);
}

void ReportError(Platform& platform, const QuorError& error, const std::wstring& context,
                 const std::wstring& title, const std::wstring& helpFile, std::int32_t helpContext) noexcept {
    try {
        MessageRequest request{TableText(IDS_ERROR_OCCURRED_WHILE) + L" " + context + L".\r",
                               title,
                               ICON_CRITICAL,
                               helpFile,
                               helpContext,
                               IDS_ERROR_OCCURRED_WHILE};
        if (error.Number() != 0) {
            request.text += L"\r" + TableText(IDS_ERROR_WORD) + L": " + std::to_wstring(error.Number()) +
                            L" - " + DescriptionOf(error);
            if (!error.Source().empty())
                request.text += L"\r(" + error.Source() + L")";
            if (helpFile.empty() && !error.HelpFile().empty()) {
                request.helpFile = error.HelpFile();
                request.helpContext = error.HelpContext();
            }
        }
        Show(platform, request);
    } catch (...) { // a message that cannot be shown must not replace the error that it reports
    }
}

void ShowMessage(Platform& platform, const std::wstring& text, const std::wstring& title,
                 const std::wstring& helpFile, std::int32_t helpContext, std::int32_t textId) noexcept {
    try {
        Show(platform, {text, title, ICON_INFORMATION, helpFile, helpContext, textId});
    } catch (...) { // as above
    }
}

void ShowMessage(Platform& platform, EStringId id) { ShowMessage(platform, id, TableText(id)); }

void ShowMessage(Platform& platform, EStringId id, const std::wstring& text) {
    ShowMessage(platform, text, TableText(IDS_MESSAGE_TITLE), {}, 0, id);
}

} // namespace QuorConversions
