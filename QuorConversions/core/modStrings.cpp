#include "QuorConversions/core/modStrings.h"

namespace QuorConversions {
namespace {

std::wstring_view Trimmed(std::wstring_view text) {
    const auto first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

} // namespace

std::wstring ReplaceTildes(std::wstring_view textTemplate, std::wstring_view values) {
    std::wstring result;
    for (const wchar_t character : textTemplate) {
        if (character != L'~') {
            result += character;
            continue;
        }
        const auto bar = values.find(L'|');
        result += Trimmed(values.substr(0, bar));
        values = bar == std::wstring_view::npos ? std::wstring_view{} : values.substr(bar + 1);
    }
    return result;
}

} // namespace QuorConversions
