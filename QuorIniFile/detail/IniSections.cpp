#include "QuorIniFile/detail/IniSections.h"

#include "QuorIniFile/detail/IniFormat.h"

#include <algorithm>
#include <new>
#include <string>

namespace QuorIniFile {
namespace {

/// The next '[' at the start of a line. Headers are rare: looking for their bracket is quicker than looking
/// at every line.
std::size_t FindHeader(std::string_view text, std::size_t from) {
    const std::size_t start = MarkLength(text);
    for (std::size_t at = std::max(from, start); (at = text.find('[', at)) != npos; ++at) {
        std::size_t line = at;
        while (line > start && (text[line - 1] == ' ' || text[line - 1] == '\t'))
            --line;
        if (line == start || text[line - 1] == '\n')
            return at;
    }
    return npos;
}

struct HeaderCut {
    IniLine header;
    std::size_t next = 0; // where the line behind it starts
};

/// The header line that starts at a '['. Nearly all have their line end right behind the ']', or no ']' at
/// all: one look at each character tells.
HeaderCut CutHeader(std::string_view text, std::size_t at) {
    std::size_t end = at + 1;
    while (end < text.size() && text[end] != ']' && text[end] != '\n')
        ++end;
    if (end < text.size() && text[end] == '\n')
        return {{IniLineKind::BrokenSection, {}, {}}, end + 1};
    if (end + 1 < text.size() && text[end + 1] == '\n')
        return {{IniLineKind::Section, text.substr(at + 1, end - at - 1), {}}, end + 2};
    const IniCut cut = CutLine(text, at);
    return {ClassifyLine(cut.line), cut.next};
}

} // namespace

std::vector<IniHeader> AllHeaders(std::string_view text) {
    std::vector<IniHeader> headers;
    for (std::size_t at = 0; (at = FindHeader(text, at)) != npos; at = headers.back().next) {
        const auto [header, next] = CutHeader(text, at);
        headers.push_back({at, next, std::nullopt});
        if (header.kind == IniLineKind::Section)
            headers.back().name = header.name;
    }
    return headers;
}

std::string_view IniSections::Name(std::string_view text, Section section) const {
    return Name(text, m_spans[section]);
}

bool IniSections::IsNamed(std::string_view text, std::size_t section, std::string_view name) const {
    return m_spans[section].nameLength != nameless &&
           SameName(Name(text, static_cast<Section>(section)), name);
}

std::optional<IniSections::Section> IniSections::Find(std::string_view text, std::string_view name) {
    if (m_questions < fewQuestions) {
        ++m_questions;
        return m_asked = Search(text, 0, name);
    }
    // Hosts walk through their files: the next section is the likeliest one.
    const std::size_t next = m_asked ? *m_asked + std::size_t{1} : 0;
    if ((next < m_spans.size() || ReadOn(text)) && IsNamed(text, next, name)) {
        Index(text);
        if (m_spans[next].isFirst)
            return m_asked = static_cast<Section>(next);
    }
    Index(text);
    const std::size_t known = m_spans.size();
    if (known == 0)
        return m_asked = Search(text, 0, name);
    const auto found =
        m_names.Find(HashName(name), [&](Section section) { return SameName(Name(text, section), name); });
    const auto section = found ? found : Search(text, known, name);
    if (section)
        m_asked = section;
    return section;
}

std::optional<IniSections::Section> IniSections::Search(std::string_view text, std::size_t from,
                                                        std::string_view name) {
    for (std::size_t section = from; section < m_spans.size() || ReadOn(text); ++section) {
        if (IsNamed(text, section, name))
            return static_cast<Section>(section);
    }
    return std::nullopt;
}

bool IniSections::CanBeFound(std::string_view text, Section section) {
    Index(text);
    return m_spans[section].isFirst;
}

bool IniSections::HasOtherSpellings(std::string_view text, Section section) {
    static_cast<void>(Count(text));
    Index(text);
    return m_spans[section].hasOtherSpellings;
}

std::size_t IniSections::Count(std::string_view text) {
    while (ReadOn(text))
        ;
    return m_spans.size();
}

std::size_t IniSections::Begin(std::string_view text, Section section) const {
    return CutLine(text, m_spans[section].name).next;
}

std::size_t IniSections::End(std::string_view text, Section section) {
    const std::size_t next = section + std::size_t{1};
    // Blanks before the '[' of the next header do no harm: they look like a blank line.
    return next < m_spans.size() || ReadOn(text) ? m_spans[next].name - 1 : text.size();
}

bool IniSections::ReadOn(std::string_view text) {
    for (;;) {
        const std::size_t at = FindHeader(text, m_next);
        if (at == npos) {
            m_next = text.size();
            return false;
        }
        if (at >= nameless) // a file that is loaded is not that large
            throw std::bad_alloc();
        const auto [header, next] = CutHeader(text, at);
        Span span{static_cast<std::uint32_t>(at + 1), nameless, false, false};
        if (header.kind == IniLineKind::Section && header.name.size() < nameless)
            span.nameLength = static_cast<std::uint32_t>(header.name.size());
        const bool counts = !IsOneOfMany(text, span);
        if (counts)
            m_spans.push_back(span);
        m_next = next;
        if (counts)
            return true;
    }
}

bool IniSections::IsOneOfMany(std::string_view text, const Span& span) const {
    const auto isAlike = [&](const Span& other) {
        return other.nameLength == span.nameLength &&
               (span.nameLength == nameless || Name(text, other) == Name(text, span));
    };
    const std::size_t count = m_spans.size();
    if (span.nameLength == nameless)
        return count > 0 && isAlike(m_spans[count - 1]);
    return count > 1 && isAlike(m_spans[count - 1]) && isAlike(m_spans[count - 2]);
}

void IniSections::Index(std::string_view text) {
    if (m_indexed == m_spans.size())
        return;
    std::string buffer;
    for (; m_indexed < m_spans.size(); ++m_indexed) {
        Span& span = m_spans[m_indexed];
        if (span.nameLength == nameless)
            continue;
        const auto number = static_cast<Section>(m_indexed);
        const std::string_view name = CanonicalName(Name(text, number), buffer);
        const std::uint64_t hash = HashName(name);
        const auto first =
            m_names.Find(hash, [&](Section other) { return SameName(Name(text, other), name); });
        if (first) {
            if (Name(text, *first) != Name(text, number))
                m_spans[*first].hasOtherSpellings = true;
            continue;
        }
        m_names.Add(hash, number);
        span.isFirst = true;
    }
}

} // namespace QuorIniFile
