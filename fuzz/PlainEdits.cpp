#include "fuzz/PlainEdits.h"

#include "fuzz/Claim.h"

#include <algorithm>
#include <utility>

namespace Fuzz {
namespace {

using namespace QuorIniFile;

bool IsHeader(const PlainIni::Line& line) {
    return line.parsed.kind == IniLineKind::Section || line.parsed.kind == IniLineKind::BrokenSection;
}

/// A header line with another name.
std::string WithName(const PlainIni::Line& line, std::string_view name) {
    std::string content(line.content);
    const auto at = static_cast<std::size_t>(line.parsed.name.data() - line.content.data());
    return content.replace(at, line.parsed.name.size(), name);
}

/// How a section may be spelled in that text; nothing when no file could give the name back.
std::optional<std::string> Spelling(const std::wstring& name, std::string_view text) {
    std::optional<std::string> spelling = NameToWrite(name, EncodingOf(text));
    return spelling && IsSectionName(*spelling) ? spelling : std::nullopt;
}

/// The first of the lines above `line` that belong to it: comments, unless they open the text.
std::size_t WithCommentsAbove(const std::vector<PlainIni::Line>& lines, std::size_t line) {
    std::size_t first = line;
    while (first > 0 && lines[first - 1].parsed.kind == IniLineKind::Comment)
        --first;
    return first == 0 ? line : first;
}

/// What goes with a header line: the lines down to the last one that is neither blank nor a comment, with the
/// comments that touch that one, and the blank lines behind these.
struct Body {
    std::size_t end = 0, endOfBlanks = 0;
};
Body BodyBelow(const std::vector<PlainIni::Line>& lines, std::size_t header) {
    std::size_t limit = header + 1;
    while (limit < lines.size() && !IsHeader(lines[limit]))
        ++limit;
    if (limit < lines.size())
        limit = WithCommentsAbove(lines, limit);
    const auto is = [&lines](std::size_t line, IniLineKind kind) { return lines[line].parsed.kind == kind; };
    Body body{limit, 0};
    while (body.end > header + 1 &&
           (is(body.end - 1, IniLineKind::Blank) || is(body.end - 1, IniLineKind::Comment)))
        --body.end;
    while (body.end < limit && is(body.end, IniLineKind::Comment))
        ++body.end;
    body.endOfBlanks = body.end;
    while (body.endOfBlanks < limit && is(body.endOfBlanks, IniLineKind::Blank))
        ++body.endOfBlanks;
    return body;
}

/// Every line of the text stands in `after`, in its order, but for those that go; between them stand the
/// added ones and no others.
template <class Lines>
void ClaimLines(const PlainIni& before, const Lines& expected, const PlainIni& after) {
    const auto isBelowBackslash = [&](const PlainIni::Line& line) {
        return &line != &after.Lines().front() && (&line)[-1].parsed.kind != IniLineKind::Section &&
               (&line)[-1].content.ends_with('\\');
    };
    std::size_t added = 0;
    std::size_t blanks = 0;
    const auto countAdded = [&](const PlainIni::Line& line) {
        Claim(!isBelowBackslash(line) || line.parsed.kind != IniLineKind::Key,
              "no new key continues a value that ends in a backslash");
        ++(line.parsed.kind == IniLineKind::Blank ? blanks : added);
    };
    // A blank line keeps a new key apart from a value that ends in a backslash, or did when the key was
    // added, and keeps whatever is below it apart from a value that ends in one now. Which of those lines are
    // new, and which the text had, nobody can tell.
    std::size_t apart = 0;
    for (std::size_t number = 1; number < after.Lines().size(); ++number) {
        const PlainIni::Line& line = after.Lines()[number - 1];
        const bool isAboveKey = after.Lines()[number].parsed.kind == IniLineKind::Key;
        apart += line.parsed.kind == IniLineKind::Blank && (isAboveKey || isBelowBackslash(line)) ? 1 : 0;
    }
    const bool hasLastEnd = before.Lines().empty() || !before.Lines().back().end.empty();
    auto next = after.Lines().begin();
    for (std::size_t number = 0; number < before.Lines().size(); ++number) {
        if (expected.gone.contains(number))
            continue;
        const PlainIni::Line& line = before.Lines()[number];
        const bool isRewritten = expected.rewritten.contains(number);
        const auto header = expected.headers.find(number);
        const std::string_view content = header == expected.headers.end() ? line.content : header->second;
        const auto isThisLine = [&](const PlainIni::Line& other) {
            // A last line without an end gets one when something follows, and another one may become the
            // last.
            const bool isLast = &other == &after.Lines().back() && !hasLastEnd;
            if (!line.end.empty() && other.end != line.end && !isLast)
                return false;
            return isRewritten
                       ? other.parsed.kind == IniLineKind::Key && other.parsed.name == line.parsed.name
                       : other.content == content;
        };
        const bool mustFollow = line.mustFollow && !expected.gone.contains(number - 1);
        Claim(!mustFollow || (next != after.Lines().end() && isThisLine(*next)),
              "nothing comes between a value and the lines that continue it");
        for (; next != after.Lines().end() && !isThisLine(*next); ++next)
            countAdded(*next);
        Claim(next != after.Lines().end(), "a line that nobody wrote or removed stands where it stood");
        ++next;
    }
    std::for_each(next, after.Lines().end(), countAdded);
    Claim(added == expected.added && blanks <= expected.mostBlanks + apart,
          "nothing is added but what was written, nothing removed is left");
    if (!before.Lines().empty() && !after.Lines().empty())
        Claim(after.Lines().back().end.empty() != hasLastEnd, "a text whose last line has no end stays one");
}

} // namespace

PlainEdits::PlainEdits(std::string_view text) : m_text(text) {
    const PlainIni plain(m_text);
    for (const std::string_view name : plain.Names()) {
        const std::wstring folded = Folded(DecodeBytes(name));
        m_inText[folded] = m_sections.size();
        m_sections.push_back({std::string(name), folded, folded});
    }
}

std::size_t PlainEdits::Find(const std::wstring& name) const {
    const auto section =
        std::find_if(m_sections.begin(), m_sections.end(), [folded = Folded(name)](const Section& candidate) {
            return !candidate.isRemoved && candidate.called == folded;
        });
    return section == m_sections.end() ? none : static_cast<std::size_t>(section - m_sections.begin());
}

std::vector<std::wstring> PlainEdits::Names() const {
    std::vector<std::wstring> names;
    for (const Section& section : m_sections) {
        if (!section.isRemoved)
            names.push_back(DecodeBytes(section.name));
    }
    return names;
}

void PlainEdits::Write(const Edit& edit) {
    if (!Has(edit.section)) {
        std::vector<Section*> old;
        for (Section& section : m_sections) {
            if (!section.isNew &&
                section.called == Folded(edit.section)) // a new one that was removed is gone
                old.push_back(&section);
        }
        if (old.empty()) {
            m_sections.push_back({Spelling(edit.section, m_text).value(), Folded(edit.section), {}});
            m_sections.back().isNew = true;
        } else {
            m_isVague = m_isVague || old.size() > 1;
            old.front()->isRemoved = false;
            old.front()->isEmptied = true;
        }
    }
    Edit& written = m_written[edit.Place()];
    written = edit;
    written.section = DecodeBytes(m_sections[Find(edit.section)].name);
}

void PlainEdits::Remove(const std::wstring& name) {
    const std::size_t number = Find(name);
    if (number == none)
        return;
    m_sections[number].isRemoved = true;
    if (!m_sections[number].isNew)
        m_moves.push_back({name, std::nullopt});
    std::erase_if(m_written, [&](const auto& written) { return written.first.first == Folded(name); });
}

bool PlainEdits::Rename(const std::wstring& from, const std::wstring& to) {
    const std::size_t number = Find(from);
    const auto spelling = Spelling(to, m_text);
    if (number == none || !spelling || (Has(to) && Find(to) != number))
        return false;
    Section& section = m_sections[number];
    const PlainIni old(m_text);
    const std::set<std::size_t> gone = LinesThatGo(old);
    for (std::size_t line = 0; line < old.Lines().size(); ++line) {
        if (OfHeader(old.Lines()[line]) != &section || gone.contains(line))
            continue;
        const std::string header = WithName(old.Lines()[line], *spelling);
        if (ClassifyLine(header).name != *spelling)
            return false;
    }
    if (!section.isNew)
        m_moves.push_back({from, to});
    section.name = *spelling;
    section.called = Folded(to);
    section.isRenamed = true;
    for (auto written = m_written.lower_bound({Folded(from), {}});
         written != m_written.end() && written->first.first == Folded(from);) {
        auto node = m_written.extract(written++);
        node.mapped().section = to;
        node.key() = node.mapped().Place();
        m_written.insert(std::move(node));
    }
    return true;
}

bool PlainEdits::AreAllOf(const Section& section) const {
    if (section.isNew || section.isEmptied)
        return true;
    const PlainIni old(m_text);
    return std::all_of(old.Keys().begin(), old.Keys().end(), [&](const auto& key) {
        const auto& [name, line] = key;
        return name.first != section.inText || m_written.contains({section.called, name.second});
    });
}

PlainEdits::Merged PlainEdits::In(std::string_view others) const {
    PlainEdits there(others);
    const std::vector<PlainIni::Line> lines = PlainIni(others).Lines();
    const bool isEmptied = std::all_of(lines.begin(), lines.end(), [](const PlainIni::Line& line) {
        return line.content.find_first_not_of(" \t\r") == std::string_view::npos;
    });
    // The names, here, of sections that are gone there: what bears such a name there is somebody else's.
    std::set<std::wstring> gone;
    for (const auto& [from, to] : m_moves) {
        if (gone.erase(Folded(from)) != 0 || !there.Has(from)) {
            if (to)
                gone.insert(Folded(*to));
        } else if (!to) {
            there.Remove(from);
        } else if (!there.Rename(from, *to)) {
            return {std::nullopt, IniConflict::Kind::NameIsTaken};
        }
    }
    for (const auto& [place, edit] : m_written) {
        if (!isEmptied && !there.Has(edit.section) && !AreAllOf(m_sections[Find(edit.section)]))
            return {std::nullopt, IniConflict::Kind::SectionIsGone};
        there.Write(edit);
    }
    there.m_isVague = there.m_isVague || m_isVague;
    return {std::move(there), std::nullopt};
}

const PlainEdits::Section* PlainEdits::OfHeader(const PlainIni::Line& line) const {
    if (line.parsed.kind != IniLineKind::Section)
        return nullptr;
    return &m_sections[m_inText.at(Folded(DecodeBytes(line.parsed.name)))];
}

std::set<std::size_t> PlainEdits::LinesThatGo(const PlainIni& old) const {
    const std::vector<PlainIni::Line>& lines = old.Lines();
    std::set<std::size_t> gone;
    std::set<const Section*> seen;
    for (std::size_t number = 0; number < lines.size(); ++number) {
        const Section* const section = OfHeader(lines[number]);
        if (!section)
            continue;
        const bool isFirst = seen.insert(section).second;
        const bool staysEmpty = section->isEmptied && !section->isRemoved && isFirst;
        if (!section->isRemoved && !section->isEmptied)
            continue;
        const Body body = BodyBelow(lines, number);
        const std::size_t first = staysEmpty ? number + 1 : WithCommentsAbove(lines, number);
        for (std::size_t line = first; line < (staysEmpty ? body.end : body.endOfBlanks); ++line)
            gone.insert(line);
    }
    // At the end of the text a blank line goes that was added with the last section.
    if (gone.contains(lines.size() - 1)) {
        std::size_t first = lines.size() - 1;
        while (first > 0 && gone.contains(first - 1))
            --first;
        if (first > 0 && lines[first - 1].parsed.kind == IniLineKind::Blank)
            gone.insert(first - 1);
    }
    return gone;
}

PlainEdits::Lines PlainEdits::ExpectedLines(const PlainIni& old) const {
    Lines expected;
    expected.gone = LinesThatGo(old);
    for (std::size_t number = 0; number < old.Lines().size(); ++number) {
        const Section* const section = OfHeader(old.Lines()[number]);
        if (section && section->isRenamed)
            expected.headers[number] = WithName(old.Lines()[number], section->name);
    }
    std::set<std::wstring> added;
    for (const auto& [place, edit] : m_written) {
        const Section& section = m_sections[Find(edit.section)];
        const auto line = old.Keys().find({section.inText, place.second});
        if (!section.isNew && !section.isEmptied && line != old.Keys().end())
            expected.rewritten.insert(line->second);
        else
            expected.added += 1;
        if (section.isNew)
            added.insert(place.first);
    }
    expected.added += added.size(); // their headers
    expected.mostBlanks = added.size();
    // The blank line above the last section may be that of a value that ends in a backslash: it stays above a
    // new key.
    for (const std::size_t number : expected.gone) {
        const PlainIni::Line& line = old.Lines()[number];
        const bool isOfValue = line.mustFollow && !expected.gone.contains(number - 1);
        expected.mostBlanks += isOfValue && line.parsed.kind == IniLineKind::Blank ? 1 : 0;
    }
    return expected;
}

void PlainEdits::ClaimKeys(const PlainIni& old, const PlainIni& now) const {
    for (const auto& [place, edit] : m_written) {
        const auto value = now.Value(place);
        Claim(value && Spells(*value, edit), "what was written is there");
    }
    std::size_t added = m_written.size();
    std::size_t kept = 0;
    for (const Section& section : m_sections) {
        if (section.isNew || section.isRemoved || section.isEmptied)
            continue;
        for (auto key = old.Keys().lower_bound({section.inText, {}});
             key != old.Keys().end() && key->first.first == section.inText; ++key) {
            const PlainIni::Place place(section.called, key->first.second);
            ++kept;
            if (m_written.contains(place))
                --added;
            else
                Claim(now.Value(place) == old.Lines()[key->second].parsed.value,
                      "no other value has changed");
        }
    }
    Claim(now.Keys().size() == kept + added, "no other key has come to light");
}

void PlainEdits::ClaimMade(std::string_view after) const {
    if (m_isVague)
        return;
    const std::string_view mark = std::string_view(m_text).substr(0, MarkLength(m_text));
    Claim(after.starts_with(mark), "the byte-order mark stays");
    const PlainIni old(m_text);
    const PlainIni now(after);
    std::vector<std::wstring> expected = Names();
    std::vector<std::wstring> names;
    for (const std::string_view name : now.Names())
        names.push_back(DecodeBytes(name));
    std::sort(expected.begin(), expected.end());
    std::sort(names.begin(), names.end());
    Claim(names == expected, "there are the sections that have to be there, and no others");
    ClaimKeys(old, now);
    ClaimLines(old, ExpectedLines(old), now);
}

} // namespace Fuzz
