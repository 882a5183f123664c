#include "QuorIniFile/detail/IniError.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace QuorIniFile {
namespace {

struct NumberedText {
    std::int32_t number;
    std::wstring_view text;
};

#define QUOR_INI_ERROR(number, name, text) static_assert(ERR_##name == (number));
#include "QuorIniFile/IniTexts.def"

constexpr NumberedText standardTexts[] = {
#define QUOR_INI_ERROR(number, name, text) {number, text},
#include "QuorIniFile/IniTexts.def"
};

constexpr NumberedText causeTexts[] = {
    {INI_CAUSE_NONE, L""},
#define QUOR_INI_CAUSE(number, name, text) {number, text},
#include "QuorIniFile/IniTexts.def"
};

template <std::size_t size>
std::wstring_view FindText(std::int32_t number, const NumberedText (&texts)[size],
                           std::wstring_view otherwise) {
    const auto* const found = std::find_if(std::begin(texts), std::end(texts),
                                           [number](const auto& entry) { return entry.number == number; });
    return found != std::end(texts) ? found->text : otherwise;
}

} // namespace

QuorError FileError(EErrorNumber number, std::wstring_view fileName, EIniCause cause,
                    std::vector<std::wstring> values) {
    IniCause all{cause, std::wstring(fileName), std::move(values)};
    std::wstring description = Describe(number, all);
    return {number, L"QuorIniFile", std::move(description), std::move(all)};
}

QuorError FileError(EErrorNumber number, std::wstring_view fileName, std::wstring_view words) {
    if (words.empty())
        return FileError(number, fileName, INI_CAUSE_NONE);
    return FileError(number, fileName, INI_CAUSE_SYSTEM, {std::wstring(words)});
}

std::wstring Describe(std::int32_t number, const IniCause& cause) {
    return Describe(FindText(number, standardTexts, L"Error"), FindText(cause.code, causeTexts, L""), cause);
}

std::wstring Describe(std::wstring_view standardText, std::wstring_view causeText, const IniCause& cause) {
    std::wstring description(standardText);
    description.append(L": ").append(cause.fileName);
    if (!causeText.empty())
        description.append(L": ").append(FillTildes(causeText, cause.values));
    return description;
}

std::wstring FillTildes(std::wstring_view text, const std::vector<std::wstring>& values) {
    std::wstring result;
    auto next = values.begin();
    for (const wchar_t character : text) {
        if (character != L'~')
            result += character;
        else if (next != values.end())
            result += *next++;
    }
    return result;
}

} // namespace QuorIniFile
