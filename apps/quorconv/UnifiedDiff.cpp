#include "apps/quorconv/UnifiedDiff.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <vector>

namespace quorconv {
namespace {

using Lines = std::vector<std::string_view>;

/// With their ends.
Lines SplitLines(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

/// Lines [first, last) of a text.
struct Block {
    std::size_t first;
    std::size_t last;
    [[nodiscard]] bool IsEmpty() const { return first == last; }
};

/// Which lines of two texts are the same ones, found by the lines that stand once in each of them (such as
/// headers of sections): what stands between two such lines is compared by itself. That takes no longer with
/// the number of changes.
class Comparison {
public:
    Comparison(const Lines& a, const Lines& b)
        : m_a(a), m_b(b), isOnlyInA(a.size(), true), isOnlyInB(b.size(), true) {
        std::vector<std::pair<Block, Block>> open{{{0, a.size()}, {0, b.size()}}};
        while (!open.empty()) {
            auto [blockA, blockB] = open.back();
            open.pop_back();
            while (!blockA.IsEmpty() && !blockB.IsEmpty() && a[blockA.first] == b[blockB.first])
                Match(blockA.first++, blockB.first++);
            while (!blockA.IsEmpty() && !blockB.IsEmpty() && a[blockA.last - 1] == b[blockB.last - 1])
                Match(--blockA.last, --blockB.last);
            if (blockA.IsEmpty() || blockB.IsEmpty())
                continue;
            const auto anchors = Anchors(blockA, blockB);
            if (anchors.empty()) {
                MatchSmall(blockA, blockB);
                continue;
            }
            Block restA = blockA;
            Block restB = blockB;
            for (const auto& [lineA, lineB] : anchors) {
                Match(lineA, lineB);
                open.emplace_back(Block{restA.first, lineA}, Block{restB.first, lineB});
                restA.first = lineA + 1;
                restB.first = lineB + 1;
            }
            open.emplace_back(restA, restB);
        }
    }

private:
    const Lines& m_a;
    const Lines& m_b;

public:
    std::vector<bool> isOnlyInA;
    std::vector<bool> isOnlyInB;

private:
    using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

    void Match(std::size_t lineA, std::size_t lineB) {
        isOnlyInA[lineA] = false;
        isOnlyInB[lineB] = false;
    }

    /// The longest row, ascending in both, of lines that stand once in each block.
    [[nodiscard]] Pairs Anchors(Block blockA, Block blockB) const {
        struct Count {
            std::size_t inA = 0;
            std::size_t inB = 0;
            std::size_t lineB = 0;
        };
        std::unordered_map<std::string_view, Count> counts;
        for (std::size_t i = blockA.first; i < blockA.last; ++i)
            ++counts[m_a[i]].inA;
        for (std::size_t i = blockB.first; i < blockB.last; ++i) {
            Count& count = counts[m_b[i]];
            ++count.inB;
            count.lineB = i;
        }
        Pairs once;
        for (std::size_t i = blockA.first; i < blockA.last; ++i) {
            const Count& count = counts[m_a[i]];
            if (count.inA == 1 && count.inB == 1)
                once.emplace_back(i, count.lineB);
        }
        // The longest ascending row: the piles of the card game, each card with the one below it.
        std::vector<std::size_t> piles;
        std::vector<std::size_t> below(once.size());
        for (std::size_t i = 0; i < once.size(); ++i) {
            const auto pile =
                std::lower_bound(piles.begin(), piles.end(), once[i].second,
                                 [&](std::size_t top, std::size_t line) { return once[top].second < line; });
            below[i] = pile == piles.begin() ? once.size() : *(pile - 1);
            if (pile == piles.end())
                piles.push_back(i);
            else
                *pile = i;
        }
        Pairs row;
        for (std::size_t at = piles.empty() ? once.size() : piles.back(); at < once.size(); at = below[at])
            row.push_back(once[at]);
        std::reverse(row.begin(), row.end());
        return row;
    }

    /// The longest common row of two small blocks; large ones count as replaced.
    void MatchSmall(Block blockA, Block blockB) {
        const std::size_t rows = blockA.last - blockA.first;
        const std::size_t columns = blockB.last - blockB.first;
        constexpr std::size_t largest = 1U << 20U;
        if (rows > largest / columns)
            return;
        std::vector<std::size_t> length((rows + 1) * (columns + 1), 0);
        const auto at = [&](std::size_t i, std::size_t j) -> std::size_t& {
            return length[i * (columns + 1) + j];
        };
        for (std::size_t i = rows; i-- > 0;)
            for (std::size_t j = columns; j-- > 0;)
                at(i, j) = m_a[blockA.first + i] == m_b[blockB.first + j]
                               ? at(i + 1, j + 1) + 1
                               : std::max(at(i + 1, j), at(i, j + 1));
        for (std::size_t i = 0, j = 0; i < rows && j < columns;) {
            if (m_a[blockA.first + i] == m_b[blockB.first + j])
                Match(blockA.first + i++, blockB.first + j++);
            else if (at(i + 1, j) >= at(i, j + 1))
                ++i;
            else
                ++j;
        }
    }
};

/// "12,7": the first line and the number of lines of a hunk.
std::string Range(std::size_t first, std::size_t count) {
    std::string text = std::to_string(count == 0 ? first : first + 1);
    return count == 1 ? text : text + "," + std::to_string(count);
}

void AddLine(std::string& hunk, char sign, std::string_view line) {
    hunk += sign;
    hunk += line;
    if (!line.ends_with('\n'))
        hunk += "\n\\ No newline at end of file\n";
}

/// Goes through both texts, and puts their hunks together.
class HunkWriter {
public:
    HunkWriter(const Lines& a, const Lines& b) : m_a(a), m_b(b), m_comparison(a, b) {}

    /// The next hunk; empty when there is no further one.
    [[nodiscard]] std::string Next() {
        const std::size_t same = SkipSame(static_cast<std::size_t>(-1));
        if (IsAtEnd())
            return {};
        const std::size_t leading = std::min(same, around);
        const std::size_t firstA = m_i - leading;
        const std::size_t firstB = m_j - leading;
        m_hunk.clear();
        AddContext(firstA, m_i);
        do {
            AddChange();
        } while (AddContextBelow());
        return "@@ -" + Range(firstA, m_i - firstA) + " +" + Range(firstB, m_j - firstB) + " @@\n" + m_hunk;
    }

private:
    static constexpr std::size_t around = 3;

    [[nodiscard]] bool IsAtEnd() const { return m_i == m_a.size() && m_j == m_b.size(); }
    [[nodiscard]] bool IsSame() const {
        return m_i < m_a.size() && m_j < m_b.size() && !m_comparison.isOnlyInA[m_i] &&
               !m_comparison.isOnlyInB[m_j];
    }
    /// Goes over lines that both have, `most` of them; how many these were.
    std::size_t SkipSame(std::size_t most) {
        std::size_t same = 0;
        for (; same < most && IsSame(); ++same)
            ++m_i, ++m_j;
        return same;
    }
    void AddContext(std::size_t first, std::size_t last) {
        for (std::size_t line = first; line < last; ++line)
            AddLine(m_hunk, ' ', m_a[line]);
    }
    void AddChange() {
        while (m_i < m_a.size() && m_comparison.isOnlyInA[m_i])
            AddLine(m_hunk, '-', m_a[m_i++]);
        while (m_j < m_b.size() && m_comparison.isOnlyInB[m_j])
            AddLine(m_hunk, '+', m_b[m_j++]);
    }
    /// Adds the lines below a change; all of them, and true, where the next change is so near that it belongs
    /// into the same hunk.
    bool AddContextBelow() {
        const std::size_t start = m_i;
        const std::size_t same = SkipSame(2 * around + 1);
        const bool goesOn = same <= 2 * around && !IsAtEnd();
        const std::size_t kept = goesOn ? same : std::min(same, around);
        m_i -= same - kept;
        m_j -= same - kept;
        AddContext(start, m_i);
        return goesOn;
    }

    const Lines& m_a;
    const Lines& m_b;
    Comparison m_comparison;
    std::size_t m_i = 0; // the next line of each
    std::size_t m_j = 0;
    std::string m_hunk;
};

} // namespace

std::string UnifiedDiff(const std::string& name, std::string_view before, std::string_view after) {
    if (before == after)
        return {};
    const Lines a = SplitLines(before);
    const Lines b = SplitLines(after);
    HunkWriter hunks(a, b);
    // A tab ends a name that has blanks, for programs that apply the diff.
    const std::string header = name + (name.find(' ') == std::string::npos ? "\n" : "\t\n");
    std::string diff = "--- " + (before.empty() ? "/dev/null\n" : header) + "+++ " + header;
    for (std::string hunk = hunks.Next(); !hunk.empty(); hunk = hunks.Next())
        diff += hunk;
    return diff;
}

} // namespace quorconv
