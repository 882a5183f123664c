#include "apps/quorconv/Nearest.h"

#include "QuorProbeFile/ProbeNames.h"

#include <algorithm>
#include <cstddef>

namespace quorconv {
namespace {

/// How many letters have to be added, removed, replaced or exchanged with their neighbour to make one word of
/// the other.
std::size_t Distance(const std::wstring& a, const std::wstring& b) {
    std::vector<std::size_t> twoAbove(b.size() + 1);
    std::vector<std::size_t> above(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        twoAbove.swap(above);
        above.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            row[j] =
                std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (a[i - 1] == b[j - 1] ? 0U : 1U)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], twoAbove[j - 2] + 1);
        }
    }
    return row[b.size()];
}

} // namespace

std::wstring DidYouMean(const std::wstring& typed, const std::vector<std::wstring>& known) {
    constexpr std::size_t longest = 200; // nobody mistypes more than that
    if (typed.empty() || typed.size() > longest)
        return {};
    const std::wstring folded = QuorProbeFile::Folded(typed);
    const std::wstring* nearest = nullptr;
    std::size_t least = std::max<std::size_t>(2, typed.size() / 4 + 1); // a word that far is another one
    for (const std::wstring& word : known) {
        if (word.empty() || word.size() > longest)
            continue;
        const std::size_t distance = Distance(folded, QuorProbeFile::Folded(word));
        if (distance < least) {
            least = distance;
            nearest = &word;
        }
    }
    return nearest ? L"; did you mean \"" + *nearest + L"\"?" : L"";
}

} // namespace quorconv
