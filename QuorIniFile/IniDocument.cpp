#include "QuorIniFile/IniDocument.h"

#include "QuorIniFile/IniValue.h"

#include <algorithm>
#include <new>
#include <tuple>
#include <utility>

namespace QuorIniFile {
namespace {

constexpr std::size_t npos = std::string::npos;
constexpr std::size_t largeSection = 4096; // bytes from which on an index beats looking through

std::uint64_t HashOf(std::string_view nameInFile) {
    std::string buffer;
    return HashName(CanonicalName(nameInFile, buffer));
}

/// One key may be changed in many sections: the odd factor keeps these apart.
std::uint64_t HashOf(IniDocument::Section section, std::string_view key) {
    return HashName(key) ^ (section * 0x9E3779B97F4A7C15U);
}

// The end of a text that is being put together. `start` is the length of its byte-order mark.

std::string_view LineEndOf(std::string_view text) {
    const std::size_t end = text.rfind('\n');
    return end != npos && end > 0 && text[end - 1] == '\r' ? "\r\n" : "\n";
}

/// Adds a line with the line end of the line before. A text whose last line has no end stays one.
void AppendLine(std::string& text, std::size_t start, std::string_view line) {
    const std::string_view end = LineEndOf(text);
    if (text.size() > start && text.back() != '\n')
        text.append(end).append(line);
    else
        text.append(line).append(end);
}

bool EndsInBlankLine(std::string_view text) {
    if (text.ends_with('\n'))
        text.remove_suffix(text.ends_with("\r\n") ? 2 : 1);
    return ClassifyLine(text.substr(text.rfind('\n') + 1)).kind == IniLineKind::Blank;
}

/// Adds the header of a section, parted by a blank line from what stands before.
void AppendHeader(std::string& text, std::size_t start, std::string_view name) {
    std::string header = '[' + std::string(name) + ']';
    if (text.size() > start && !EndsInBlankLine(std::string_view(text).substr(start)))
        header.insert(0, LineEndOf(text));
    AppendLine(text, start, header);
}

} // namespace

IniDocument::IniDocument(std::string text) : m_text(std::move(text)) { IndexSections(); }

void IniDocument::IndexSections() {
    // Headers are rare: looking for their bracket is quicker than looking at every line.
    const std::size_t start = MarkLength(m_text);
    for (std::size_t at = start; (at = m_text.find('[', at)) != npos;) {
        const std::size_t line = LineStart(at);
        if (line != start && m_text[line - 1] != '\n') {
            ++at;
            continue;
        }
        const IniCut cut = CutLine(m_text, at);
        const IniLine header = ClassifyLine(cut.line);
        const auto number = static_cast<Section>(m_sections.size());
        if (number == nameless)
            throw std::bad_alloc();
        SectionSpan span{at + 1, cut.next, nameless};
        if (header.kind == IniLineKind::Section && header.name.size() < nameless)
            span.nameLength = static_cast<std::uint32_t>(header.name.size());
        m_sections.push_back(span);
        if (span.nameLength != nameless) {
            std::string buffer;
            const std::string_view name = CanonicalName(header.name, buffer);
            const std::uint64_t hash = HashName(name);
            if (!m_sectionNames.Find(hash, [&](Section other) { return SameName(Name(other), name); }))
                m_sectionNames.Add(hash, number);
        }
        at = cut.next;
    }
}

IniEncoding IniDocument::Encoding() const {
    if (!m_encoding)
        m_encoding = EncodingOf(m_text);
    return *m_encoding;
}

std::string_view IniDocument::Name(Section section) const {
    if (IsNew(section))
        return m_newSections[section - m_sections.size()];
    const SectionSpan& span = m_sections[section];
    return std::string_view(m_text).substr(span.name, span.nameLength);
}

std::size_t IniDocument::BodyEnd(Section section) const {
    // Blanks before the '[' of the next header do no harm: they look like a blank line.
    return section + std::size_t{1} < m_sections.size() ? m_sections[section + 1].name - 1 : m_text.size();
}

bool IniDocument::IsLarge(Section section) const {
    return BodyEnd(section) - m_sections[section].body > largeSection;
}

std::size_t IniDocument::LineStart(std::size_t at) const {
    const std::size_t start = MarkLength(m_text);
    while (at > start && (m_text[at - 1] == ' ' || m_text[at - 1] == '\t'))
        --at;
    return at;
}

std::optional<IniDocument::Section> IniDocument::FindSection(std::string_view name) const {
    return m_sectionNames.Find(HashName(name),
                               [&](Section section) { return SameName(Name(section), name); });
}

IniDocument::Section IniDocument::AddSection(std::string_view name) {
    const std::size_t number = m_sections.size() + m_newSections.size();
    if (number >= nameless)
        throw std::bad_alloc();
    m_sectionNames.Reserve(number + 1);
    m_newSections.emplace_back(name);
    m_sectionNames.Add(HashOf(name), static_cast<Section>(number));
    return static_cast<Section>(number);
}

const IniDocument::KeyIndex& IniDocument::KeysOf(Section section) const {
    const auto known = m_keyIndexes.find(section);
    if (known != m_keyIndexes.end())
        return known->second;

    KeyIndex index;
    const std::string_view body = std::string_view(m_text).substr(0, BodyEnd(section));
    for (std::size_t at = m_sections[section].body; at < body.size();) {
        const IniCut cut = CutLine(body, at);
        const IniLine line = ClassifyLine(cut.line);
        if (line.kind == IniLineKind::Key && line.name.size() < nameless)
            index.keys.push_back({static_cast<std::size_t>(line.name.data() - m_text.data()),
                                  static_cast<std::uint32_t>(line.name.size())});
        at = cut.next;
    }
    if (index.keys.size() >= nameless)
        throw std::bad_alloc();
    index.names.Reserve(index.keys.size());
    const auto name = [&](std::uint32_t key) {
        return body.substr(index.keys[key].name, index.keys[key].nameLength);
    };
    for (std::uint32_t key = 0; key < index.keys.size(); ++key) {
        std::string buffer;
        const std::string_view canonical = CanonicalName(name(key), buffer);
        const std::uint64_t hash = HashName(canonical);
        if (!index.names.Find(hash, [&](std::uint32_t other) { return SameName(name(other), canonical); }))
            index.names.Add(hash, key);
    }
    return m_keyIndexes.emplace(section, std::move(index)).first->second;
}

std::optional<std::uint32_t> IniDocument::FindChange(Section section, std::string_view key,
                                                     std::uint64_t hash) const {
    return m_changedKeys.Find(hash, [&](std::uint32_t number) {
        const Change& change = m_changes[number];
        return change.section == section && SameName(ClassifyLine(change.text).name, key);
    });
}

std::size_t IniDocument::FindLine(Section section, std::string_view key) const {
    if (IsNew(section))
        return npos;
    const std::string_view body = std::string_view(m_text).substr(0, BodyEnd(section));
    if (IsLarge(section)) {
        const KeyIndex& index = KeysOf(section);
        const auto found = index.names.Find(HashName(key), [&](std::uint32_t number) {
            return SameName(body.substr(index.keys[number].name, index.keys[number].nameLength), key);
        });
        return found ? LineStart(index.keys[*found].name) : npos;
    }
    for (std::size_t at = m_sections[section].body; at < body.size();) {
        const IniCut cut = CutLine(body, at);
        const IniLine line = ClassifyLine(cut.line);
        if (line.kind == IniLineKind::Key && SameName(line.name, key))
            return at;
        at = cut.next;
    }
    return npos;
}

std::optional<IniLine> IniDocument::FindKey(Section section, std::string_view key) const {
    if (Written()) {
        if (const auto change = FindChange(section, key, HashOf(section, key)))
            return ClassifyLine(m_changes[*change].text);
    }
    const std::size_t line = FindLine(section, key);
    if (line == npos)
        return std::nullopt;
    return ClassifyLine(CutLine(m_text, line).line);
}

void IniDocument::Write(Section section, std::string_view key, std::string_view spelling,
                        const IniNewValue& value) {
    const std::uint64_t hash = HashOf(section, key);
    if (const auto number = FindChange(section, key, hash)) {
        Change& change = m_changes[*number];
        std::string line = RewriteLine(change.text, value);
        m_differing -= Differs(change) ? 1 : 0;
        change.text = std::move(line);
        change.isText = value.isText;
        change.hasComment = !value.isText && (change.hasComment || !value.comment.empty());
        m_differing += Differs(change) ? 1 : 0;
        return;
    }
    const std::size_t at = FindLine(section, key);
    const std::string added = std::string(spelling) + '=';
    const std::string_view present = at == npos ? std::string_view(added) : CutLine(m_text, at).line;
    std::string line = RewriteLine(present, value);
    if (m_changes.size() >= nameless)
        throw std::bad_alloc();
    m_changedKeys.Reserve(m_changes.size() + 1); // so that nothing fails between the two
    m_changes.push_back({section, value.isText, !value.comment.empty(), at, std::move(line)});
    m_changedKeys.Add(hash, static_cast<std::uint32_t>(m_changes.size() - 1));
    m_differing += Differs(m_changes.back()) ? 1 : 0;
}

bool IniDocument::Differs(const Change& change) const {
    return change.line == npos || CutLine(m_text, change.line).line != change.text;
}

void IniDocument::ForgetWrites() {
    m_changes.clear();
    m_changedKeys = {};
}

std::size_t IniDocument::BehindLastKey(Section section) const {
    if (IsNew(section))
        return m_text.size();
    std::size_t behind = m_sections[section].body;
    if (IsLarge(section)) {
        const KeyIndex& index = KeysOf(section);
        return index.keys.empty() ? behind : CutLine(m_text, index.keys.back().name).next;
    }
    const std::string_view body = std::string_view(m_text).substr(0, BodyEnd(section));
    for (std::size_t at = behind; at < body.size();) {
        const IniCut cut = CutLine(body, at);
        at = cut.next;
        if (ClassifyLine(cut.line).kind == IniLineKind::Key)
            behind = at;
    }
    return behind;
}

std::vector<IniDocument::Placed> IniDocument::PlacedChanges() const {
    std::unordered_map<Section, std::size_t> ends;
    std::vector<Placed> placed;
    placed.reserve(m_changes.size());
    for (const Change& change : m_changes) {
        std::size_t at = change.line;
        if (at == npos) {
            const auto [end, isFirst] = ends.try_emplace(change.section, 0);
            if (isFirst)
                end->second = BehindLastKey(change.section);
            at = end->second;
        }
        placed.push_back({at, &change});
    }
    // New sections follow what is added at the end of the last old one; keys keep the order of their writing.
    std::stable_sort(placed.begin(), placed.end(), [](const Placed& a, const Placed& b) {
        return std::tie(a.at, a.change->section) < std::tie(b.at, b.change->section);
    });
    return placed;
}

std::string IniDocument::Text() const {
    const std::size_t start = MarkLength(m_text);
    const std::vector<Placed> placed = PlacedChanges();
    std::size_t size = m_text.size();
    for (const Placed& piece : placed)
        size += piece.change->text.size() + 2;
    std::string text;
    text.reserve(size);

    std::size_t copied = 0;
    std::optional<Section> opened;
    for (const auto& [at, change] : placed) {
        text.append(m_text, copied, at - copied);
        copied = at;
        if (change->line != npos) {
            text += change->text;
            copied += CutLine(m_text, at).line.size();
            continue;
        }
        if (IsNew(change->section) && opened != change->section)
            AppendHeader(text, start, Name(change->section));
        opened = change->section;
        AppendLine(text, start, change->text);
    }
    return text.append(m_text, copied);
}

void IniDocument::ApplyChangesTo(IniDocument& other) const {
    // What was spelled for this text is spelled anew for one of another encoding.
    const auto nameFor = [&other](std::string_view name) {
        return IsAscii(name) ? std::string(name)
                             : NameToWrite(DecodeBytes(name), other.Encoding()).value_or(std::string(name));
    };
    const auto textFor = [&other](std::string_view text) {
        return IsAscii(text) ? std::string(text) : EncodeText(DecodeText(text), other.Encoding());
    };
    for (const Change& change : m_changes) {
        std::string buffer;
        const std::string_view name = CanonicalName(Name(change.section), buffer);
        std::optional<Section> section = other.FindSection(name);
        if (!section)
            section = other.AddSection(nameFor(Name(change.section)));

        const IniLine line = ClassifyLine(change.text);
        const IniCommentedValue parts = SplitComment(line.value);
        IniNewValue value{change.isText ? textFor(line.value) : std::string(parts.plain), change.isText, {}};
        if (change.hasComment)
            value.comment = parts.comment;
        std::string keyBuffer;
        other.Write(*section, CanonicalName(line.name, keyBuffer), nameFor(line.name), value);
    }
}

} // namespace QuorIniFile
