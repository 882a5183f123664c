#include "QuorIniFile/detail/IniExtents.h"

#include "QuorIniFile/detail/IniFormat.h"

#include <algorithm>

namespace QuorIniFile {
namespace {

IniLineKind KindAt(std::string_view text, std::size_t line) {
    return ClassifyLine(CutLine(text, line).line).kind;
}

/// Where the line that holds a place starts.
std::size_t LineStart(std::string_view text, std::size_t at) {
    const std::size_t opening = MarkLength(text);
    while (at > opening && text[at - 1] != '\n')
        --at;
    return at;
}

/// Where the line above a line starts; the line itself when it is the first.
std::size_t LineAbove(std::string_view text, std::size_t line) {
    return line > MarkLength(text) ? LineStart(text, line - 1) : line;
}

/// Where the lines of that kind end that start at `line`.
std::size_t EndOfAll(IniLineKind kind, std::string_view text, std::size_t line, std::size_t end) {
    while (line < end && KindAt(text, line) == kind)
        line = CutLine(text, line).next;
    return line;
}

std::size_t StartWithComments(std::string_view text, const IniHeader& header) {
    const std::size_t line = LineStart(text, header.start);
    std::size_t start = line;
    while (start > MarkLength(text) && KindAt(text, LineAbove(text, start)) == IniLineKind::Comment)
        start = LineAbove(text, start);
    return start > MarkLength(text) ? start : line;
}

/// Where the text of a section ends, without the comments of the next one.
std::size_t EndOf(std::string_view text, const std::vector<IniHeader>& headers, std::size_t number) {
    return number + 1 < headers.size() ? StartWithComments(text, headers[number + 1]) : text.size();
}

} // namespace

IniExtent BodyExtent(std::string_view text, const std::vector<IniHeader>& headers, std::size_t number) {
    const std::size_t start = headers[number].next;
    const std::size_t end = EndOf(text, headers, number);
    std::size_t behind = start; // the last line that is a key, or was meant to be one
    for (std::size_t at = start; at < end;) {
        const IniLineKind kind = KindAt(text, at);
        at = CutLine(text, at).next;
        if (kind != IniLineKind::Blank && kind != IniLineKind::Comment)
            behind = at;
    }
    return {start, EndOfAll(IniLineKind::Comment, text, behind, end)};
}

IniExtent SectionExtent(std::string_view text, const std::vector<IniHeader>& headers, std::size_t number) {
    const std::size_t end = EndOf(text, headers, number);
    return {StartWithComments(text, headers[number]),
            EndOfAll(IniLineKind::Blank, text, BodyExtent(text, headers, number).end, end)};
}

std::vector<IniExtent> JoinExtents(std::string_view text, std::vector<IniExtent> extents) {
    std::sort(extents.begin(), extents.end(),
              [](const IniExtent& a, const IniExtent& b) { return a.start < b.start; });
    std::vector<IniExtent> joined;
    for (const IniExtent& extent : extents) {
        if (!joined.empty() && extent.start <= joined.back().end)
            joined.back().end = std::max(joined.back().end, extent.end);
        else
            joined.push_back(extent);
    }
    if (!joined.empty() && joined.back().end == text.size()) {
        const std::size_t above = LineAbove(text, joined.back().start);
        if (KindAt(text, above) == IniLineKind::Blank)
            joined.back().start = above;
    }
    return joined;
}

} // namespace QuorIniFile
