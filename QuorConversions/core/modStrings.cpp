#include "QuorConversions/core/modStrings.h"

#include "QuorIniFile/IniCause.h"

#include <vector>

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
    std::vector<std::wstring> trimmed;
    for (std::size_t start = 0; start != std::wstring_view::npos;) {
        const auto bar = values.find(L'|', start);
        trimmed.emplace_back(Trimmed(values.substr(start, bar - start)));
        start = bar == std::wstring_view::npos ? bar : bar + 1;
    }
    return QuorIniFile::FillTildes(textTemplate, trimmed);
}

} // namespace QuorConversions
