#include "QuorIniFile/detail/IniText.h"

#include "QuorIniFile/detail/IniValue.h"
#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <new>
#include <utility>

namespace QuorIniFile {
namespace {

/// A section with more keys has an index of them.
constexpr std::size_t few = 32;

/// The keys of a section with more bytes are kept, because reading them again is worth avoiding.
constexpr std::size_t shortSection = 4096;

/// So many sections are indexed at once.
constexpr std::size_t atOnce = 16;

/// The tag of a name that may be spelled in several ways.
constexpr std::uint32_t anyTag = 0;

/// A number, seldom the same, that names have in common when they differ in the case of ASCII letters only:
/// looking at it first saves looking at most names.
template <class Unit>
std::uint32_t TagOf(std::basic_string_view<Unit> name) {
    if (name.empty())
        return 1;
    constexpr std::uint32_t small = 0x20; // the bit in which capital and small letters differ
    const auto first = static_cast<std::uint32_t>(name.front()) | small;
    const auto last = static_cast<std::uint32_t>(name.back()) | small;
    return static_cast<std::uint32_t>(name.size() << 16U) ^ (first << 8U) ^ last;
}

/// Whether two names as they stand in a text are the same one.
bool AreAlike(std::string_view a, std::string_view b) {
    std::string buffer;
    return a == b || SameName(a, CanonicalName(b, buffer));
}

std::uint64_t HashInText(std::string_view name) {
    std::string buffer;
    return HashName(CanonicalName(name, buffer));
}

// Lines of a text.

bool IsHeader(IniLineKind kind) { return kind == IniLineKind::Section || kind == IniLineKind::BrokenSection; }

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

/// The header line that starts at a '['. Nearly all end with their only ']', behind the name.
HeaderCut CutHeader(std::string_view text, std::size_t at) {
    const IniCut cut = CutLine(text, at);
    if (cut.line.find(']') == cut.line.size() - 1)
        return {{IniLineKind::Section, cut.line.substr(1, cut.line.size() - 2), {}}, cut.next};
    return {ClassifyLine(cut.line), cut.next};
}

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

/// Where the comments start that touch a header from above, unless they open the text.
std::size_t StartWithComments(std::string_view text, std::size_t header) {
    const std::size_t line = LineStart(text, header);
    std::size_t start = line;
    while (start > MarkLength(text) && KindAt(text, LineAbove(text, start)) == IniLineKind::Comment)
        start = LineAbove(text, start);
    return start > MarkLength(text) ? start : line;
}

/// Where the keys of a body end, with the comments that touch the last one.
std::size_t EndOfKeys(std::string_view text, std::size_t start, std::size_t end) {
    std::size_t behind = start; // the last line that is a key, or was meant to be one
    for (std::size_t at = start; at < end;) {
        const IniCut cut = CutLine(text, at);
        const IniLine line = ClassifyLine(cut.line);
        at = cut.next;
        if (line.kind != IniLineKind::Blank && line.kind != IniLineKind::Comment)
            behind = at;
    }
    return EndOfAll(IniLineKind::Comment, text, behind, end);
}

/// Where a new key stands: below the last value of the section whose first line starts at `start`, with the
/// lines that continue it.
std::size_t BehindLastValue(std::string_view text, std::size_t start) {
    std::size_t behind = start;
    IniContinuation continuation;
    for (std::size_t at = start; at < text.size();) {
        const IniCut cut = CutLine(text, at);
        const IniLine line = ClassifyLine(cut.line);
        if (IsHeader(line.kind))
            break;
        at = cut.next;
        if (continuation.IsPartOfValue(cut.line, line.kind))
            behind = at;
    }
    return behind;
}

// The end of a text that is being put together. `start` is the length of its byte-order mark.

std::string_view LineEndOf(std::string_view text) {
    const std::size_t end = text.rfind('\n');
    return end != npos && end > 0 && text[end - 1] == '\r' ? "\r\n" : "\n";
}

/// Adds a line with the line end of the line before, and tells where it starts. A text whose last line has no
/// end stays one.
std::size_t AppendLine(std::string& text, std::size_t start, std::string_view line) {
    const std::string_view end = LineEndOf(text);
    if (text.size() > start && text.back() != '\n') {
        // A last CR belongs to the value before it: LF alone would make both a line end.
        text.append(text.back() == '\r' ? "\r\n" : end).append(line);
        return text.size() - line.size();
    }
    text.append(line).append(end);
    return text.size() - line.size() - end.size();
}

/// Whether the last line of `text` is one of a value and ends in a backslash.
bool EndsInBackslash(std::string_view text, std::size_t start) {
    if (text.ends_with('\n'))
        text.remove_suffix(text.ends_with("\r\n") ? 2 : 1);
    if (!text.ends_with('\\'))
        return false;
    const std::size_t above = text.rfind('\n');
    return !IsHeader(ClassifyLine(text.substr(above == npos ? start : above + 1)).kind);
}

/// The same for a key line. Below a value that ends in a backslash it gets a blank line above: programs that
/// continue such a value on the next line would take the key for a part of it.
std::size_t AppendKeyLine(std::string& text, std::size_t start, std::string_view line) {
    if (!EndsInBackslash(text, start))
        return AppendLine(text, start, line);
    const std::string_view blank = LineEndOf(text);
    return AppendLine(text, start, std::string(blank).append(line)) + blank.size();
}

/// What a line needs below that is rewritten, from `start` to `end`, as `line`: a blank line where it ends in
/// a backslash and did not before, above whatever stands there but an indented line. For a part of a line
/// nothing.
std::string_view BlankLineBelow(std::string_view text, std::size_t start, std::size_t end,
                                std::string_view line) {
    if (!line.ends_with('\\') || text.substr(start, end - start).ends_with('\\'))
        return {};
    const std::string_view below = text.substr(end);
    const std::size_t lineEnd = below.starts_with("\r\n") ? 2 : below.starts_with('\n') ? 1 : 0;
    if (lineEnd == 0 || lineEnd == below.size() || KindAt(text, end + lineEnd) == IniLineKind::Blank)
        return {};
    if (below[lineEnd] == ' ' ||
        below[lineEnd] == '\t') // it continues the value, which nothing parts it from
        return {};
    return below.substr(0, lineEnd);
}

// What was spelled for another text is spelled anew for this one, which may have another encoding.

std::string NameFor(IniText& text, std::string_view name) {
    if (IsAscii(name))
        return std::string(name);
    return NameToWrite(DecodeBytes(name), text.Encoding()).value_or(std::string(name));
}

std::string TextFor(IniText& text, std::optional<std::string_view> present, std::string_view value) {
    const std::wstring decoded = DecodeText(value);
    if (present && DecodeText(*present) == decoded)
        return std::string(SplitTextComment(*present).plain);
    return EncodeText(decoded, IsAscii(decoded) ? IniEncoding::Utf8 : text.Encoding());
}

std::string CommentFor(IniText& text, std::string_view comment, IniEncoding encoding) {
    return IsAscii(comment) || encoding == text.Encoding()
               ? std::string(comment)
               : FormatComment(DecodeBytes(comment.substr(1)), text.Encoding());
}

} // namespace

IniText::IniText(std::string text) : m_text(std::move(text)), m_base(m_text.size()) {}

IniEncoding IniText::Encoding() {
    if (!m_encoding)
        m_encoding = EncodingOf(ReadText());
    return *m_encoding;
}

// Sections -------------------------------------------------------------------------------------------------

/// Gives the next header that matters a number. False when there is none.
bool IniText::ReadOn() {
    for (;;) {
        const std::size_t at = FindHeader(m_text, m_next);
        if (at == npos) {
            m_next = m_text.size();
            return false;
        }
        const auto number = static_cast<Section>(m_headers.size());
        if (at >= none || number == none) // a file that is loaded is not that large
            throw std::bad_alloc();
        const auto [line, next] = CutHeader(m_text, at);
        Header header{static_cast<std::uint32_t>(at + 1), none, none, false};
        if (line.kind == IniLineKind::Section)
            header.nameLength = static_cast<std::uint32_t>(line.name.size());
        const bool counts = !IsRedundant(header);
        if (counts) {
            if (m_headers.size() == m_headers.capacity())
                MakeRoomForHeaders(next);
            m_headers.push_back(header);
        }
        m_next = next;
        if (counts)
            return true;
    }
}

/// Makes room for as many headers as the text has if the rest of it is like the part before `next`, but for
/// not too many: it may not be.
void IniText::MakeRoomForHeaders(std::size_t next) {
    constexpr std::size_t mostGrowth = 8;
    const std::size_t count = m_headers.size() + 1;
    const std::size_t likely = count * (m_text.size() / next + 1);
    const std::size_t room = std::clamp(likely, count * 2, count * mostGrowth);
    m_headers.reserve(room);
    m_names.Reserve(room - m_headers.size());
}

/// Indexes the names of all sections that have a number. The index of a large file is not in the cache of the
/// processor: several places in it are asked for at once.
void IniText::Index() {
    std::array<std::uint64_t, atOnce> hashes{};
    while (m_indexed < m_headers.size()) {
        const std::size_t begin = m_indexed;
        const std::size_t end = std::min(m_headers.size(), begin + atOnce);
        for (std::size_t at = begin; at < end; ++at) {
            if (m_headers[at].nameLength == none)
                continue;
            hashes[at - begin] = HashInText(NameInText(static_cast<Section>(at)));
            m_names.WillFind(hashes[at - begin]);
        }
        for (; m_indexed < end; ++m_indexed)
            IndexOne(static_cast<Section>(m_indexed), hashes[m_indexed - begin]);
    }
}

void IniText::IndexOne(Section section, std::uint64_t hash) {
    Header& header = m_headers[section];
    if (header.nameLength == none)
        return;
    const std::string_view name = NameInText(section);
    const auto first = m_names.Find(hash, [&](Section other) { return AreAlike(NameInText(other), name); });
    if (!first)
        m_names.Add(hash, section);
    else if (NameInText(*first) != name)
        m_headers[*first].hasOtherSpellings = true;
    header.first = first.value_or(section);
}

void IniText::ReadAllHeaders() {
    while (ReadOn())
        ;
    Index();
}

/// Whether nobody can find the section of that header, nor the one before it, whose end it marks: both have
/// no name, or that of the one before them.
bool IniText::IsRedundant(const Header& header) const {
    const auto isAlike = [&](const Header& other) {
        return other.nameLength == header.nameLength &&
               (header.nameLength == none ||
                std::string_view(m_text).substr(other.name, other.nameLength) ==
                    std::string_view(m_text).substr(header.name, header.nameLength));
    };
    const std::size_t count = m_headers.size();
    if (header.nameLength == none)
        return count > 0 && isAlike(m_headers[count - 1]);
    return count > 1 && isAlike(m_headers[count - 1]) && isAlike(m_headers[count - 2]);
}

std::string_view IniText::NameInText(Section section) const {
    return std::string_view(m_text).substr(m_headers[section].name, m_headers[section].nameLength);
}

/// The name as it stands now.
std::string_view IniText::Name(Section section) const {
    const Edit* const edit = EditOf(section);
    return edit ? std::string_view(edit->name) : NameInText(section);
}

const IniText::Edit* IniText::EditOf(Section section) const {
    if (m_edits.empty()) // as almost always
        return nullptr;
    const auto edit = m_edits.find(section);
    return edit == m_edits.end() ? nullptr : &edit->second;
}

/// Whether the text has no keys that count for the section.
bool IniText::IsRemoved(Section section) const {
    const Edit* const edit = EditOf(section);
    return edit && edit->isRemoved;
}

/// Whether the text with all changes has the section.
bool IniText::IsThere(Section section) const {
    if (!IsRemoved(section))
        return true;
    const auto changes = m_changes.find(section);
    return changes != m_changes.end() && !changes->second.empty();
}

bool IniText::IsFound(Section section, std::wstring_view name) const {
    return m_headers[section].first == section && SameName(Name(section), name) && IsThere(section);
}

std::optional<IniText::Section> IniText::FindSection(std::wstring_view name) {
    Index();
    // Hosts walk through their files: the next section is the likeliest one.
    const Section next = m_asked + 1;
    if (next == m_headers.size()) {
        for (std::size_t read = 0; read < atOnce && ReadOn(); ++read)
            ;
        Index();
    }
    if (next < m_headers.size() && IsFound(next, name))
        return m_asked = next;
    const auto known =
        m_names.Find(HashName(name), [&](Section section) { return SameName(Name(section), name); });
    if (known && !IsThere(*known))
        return std::nullopt;
    if (known)
        return m_asked = *known;
    for (auto section = static_cast<Section>(m_headers.size()); ReadOn(); ++section) {
        if (m_headers[section].nameLength != none && SameName(NameInText(section), name))
            return m_asked = section;
    }
    return std::nullopt;
}

/// The section that was given that name last and has it still, whether it is there or was removed.
std::optional<IniText::Section> IniText::FindNamed(std::string_view canonicalName) const {
    return m_names.Find(HashName(canonicalName),
                        [&](Section section) { return SameName(Name(section), canonicalName); });
}

/// Takes a name back from a section; a removed one that had it before has it again.
void IniText::GiveUpName(std::string_view canonicalName, Section section) noexcept {
    const std::uint64_t hash = HashName(canonicalName);
    m_names.Remove(hash, section);
    const auto hidden = m_hidden.find(section);
    if (hidden == m_hidden.end() || hidden->second == none)
        return;
    m_names.Add(hash, hidden->second); // into the place that was left
    hidden->second = none;
}

/// Makes the text as long as it was, without what was added since.
void IniText::TakeBack(std::size_t length) noexcept {
    m_text.resize(length);
    for (; !m_headers.empty() && m_headers.back().name > length; m_headers.pop_back()) {
        const auto section = static_cast<Section>(m_headers.size() - 1);
        m_kept.erase(section);
        m_changes.erase(section);
        m_edits.erase(section);
        m_hidden.erase(section);
    }
    while (!m_starts.empty() && m_starts.back() >= length)
        m_starts.pop_back();
    while (!m_texts.empty() && m_texts.back() >= length)
        m_texts.pop_back();
    if (m_starts.empty())
        m_firstAdded = none;
    m_indexed = std::min(m_indexed, m_headers.size());
    m_next = length;
    m_asked = none;
    m_keysOf = none;
}

IniText::Section IniText::AddSection(std::string_view name, std::wstring_view key, std::string_view spelling,
                                     const IniNewValue& value) {
    ReadAllHeaders();
    std::string buffer;
    const std::string_view canonical = CanonicalName(name, buffer);
    const auto removed = m_edits.empty() ? std::nullopt : FindNamed(canonical);
    if (removed) {
        Write(*removed, key, spelling, value);
        return *removed;
    }
    const std::size_t start = m_text.size();
    const auto section = static_cast<Section>(m_headers.size());
    constexpr std::size_t lineEndsAndBrackets = 6;
    if (start + name.size() + lineEndsAndBrackets >= none || section == none)
        throw std::bad_alloc();
    m_names.Reserve(1);
    try {
        // The blank line is added even where the text ends in one, so that the removal of the section knows
        // how many lines were added.
        const std::size_t mark = MarkLength(m_text);
        const std::string_view blank = start > mark ? LineEndOf(m_text) : std::string_view();
        m_line.assign(blank).append(1, '[').append(name).append(1, ']');
        const std::size_t bracket = AppendLine(m_text, mark, m_line) + blank.size();
        m_headers.push_back({static_cast<std::uint32_t>(bracket + 1), static_cast<std::uint32_t>(name.size()),
                             section, false});
        m_starts.push_back(start);
        if (m_firstAdded == none)
            m_firstAdded = section;
        m_next = m_text.size();
        ReadKeys(section);
        AppendKey(m_keys, spelling, value);
    } catch (...) {
        TakeBack(start);
        throw;
    }
    m_names.Add(HashName(canonical), section);
    m_indexed = m_headers.size();
    m_isWritten = true;
    return section;
}

std::vector<std::string_view> IniText::SectionNames() {
    ReadAllHeaders();
    std::vector<std::string_view> names;
    for (Section section = 0; section < m_headers.size(); ++section) {
        if (m_headers[section].first == section && IsThere(section))
            names.push_back(Name(section));
    }
    return names;
}

bool IniText::HasPlainHeaders() {
    ReadAllHeaders();
    for (Section section = 0; section < m_headers.size(); ++section) {
        if (m_headers[section].first != section)
            return false;
    }
    return true;
}

/// The edit of a section, for a change to be made; `move` is noted where the section was read.
IniText::Edit& IniText::EditFor(Section section, Move move) {
    if (!IsAdded(section))
        m_moves.push_back(std::move(move));
    try {
        return m_edits.try_emplace(section, Edit{false, std::string(Name(section))}).first->second;
    } catch (...) {
        if (!IsAdded(section))
            m_moves.pop_back();
        throw;
    }
}

void IniText::RemoveSection(Section section) {
    ReadAllHeaders();
    std::string buffer;
    const std::string_view name = CanonicalName(Name(section), buffer);
    EditFor(section, {std::string(name), std::nullopt}).isRemoved = true;
    m_isWritten = true;
    const auto changes = m_changes.find(section);
    if (changes != m_changes.end()) {
        m_differing -= static_cast<std::size_t>(
            std::count_if(changes->second.begin(), changes->second.end(),
                          [&](const Change& change) { return Differs(section, change); }));
        m_changes.erase(changes);
    }
    m_kept.erase(section);
    m_keysOf = none;
    if (!IsAdded(section))
        return;
    GiveUpName(name, section);
    while (!m_starts.empty() && IsRemoved(static_cast<Section>(m_headers.size() - 1)))
        TakeBack(m_starts.back());
}

bool IniText::RenameSection(Section section, std::string_view name) {
    // What stands behind the name in a header does not matter: a name reads back in each header or in none.
    if (!IsSectionName(name))
        return false;
    ReadAllHeaders();
    std::string spelling(name);
    std::string fromBuffer;
    std::string toBuffer;
    const std::string from(CanonicalName(Name(section), fromBuffer));
    const std::string_view to = CanonicalName(name, toBuffer);
    const auto removed = FindNamed(to);
    m_names.Reserve(1);
    m_hidden.try_emplace(section, none);
    Edit& edit = EditFor(section, {from, spelling});
    // Nothing can fail from here on.
    m_isWritten = true;
    edit.name = std::move(spelling);
    if (!SameName(from, to)) {
        GiveUpName(from, section);
        if (removed) {
            m_names.Remove(HashName(to), *removed);
            m_hidden.find(section)->second = *removed;
        }
        m_names.Add(HashName(to), section);
    }
    if (!edit.isRemoved && edit.name == NameInText(section) && !m_headers[section].hasOtherSpellings)
        m_edits.erase(section);
    return true;
}

// Keys -----------------------------------------------------------------------------------------------------

/// The text in which a section ends: what was added is no part of those that were read.
std::string_view IniText::TextUpTo(Section section) const { return IsAdded(section) ? m_text : ReadText(); }

/// Where the line behind the header starts.
std::size_t IniText::Begin(Section section) const {
    return CutLine(TextUpTo(section), m_headers[section].name).next;
}

IniText::Keys& IniText::KeysOf(Section section) {
    if (m_keysOf == section)
        return m_keys;
    if (!m_kept.empty()) {
        const auto kept = m_kept.find(section);
        if (kept != m_kept.end())
            return kept->second;
    }
    ReadKeys(section);
    if (m_keys.length <= shortSection && !m_keys.isIndexed)
        return m_keys;
    Keys& kept = m_kept[section];
    kept = std::exchange(m_keys, {});
    m_keysOf = none;
    return kept;
}

/// Finds the keys of a section in the text and among its changes.
void IniText::ReadKeys(Section section) {
    m_keysOf = none;
    m_keys.list.clear();
    m_keys.changes = nullptr;
    if (std::exchange(m_keys.isIndexed, false))
        m_keys.names = {};
    const std::string_view text = TextUpTo(section);
    const std::size_t begin = Begin(section);
    const std::size_t end = IsRemoved(section) ? begin : text.size();
    std::size_t at = begin;
    while (at < end) {
        if (text[at] == '\n') { // as there may be millions
            ++at;
            continue;
        }
        const IniCut cut = CutLine(text, at);
        const IniLine line = ClassifyLine(cut.line);
        if (IsHeader(line.kind))
            break;
        if (line.kind == IniLineKind::Key) {
            Key& key = m_keys.list.emplace_back(); // in its place: a copy of each would take longer
            Describe(key, cut.line, line);
            key.start = static_cast<std::uint32_t>(at);
            if (m_keys.list.size() > few) {
                const Key last = key;
                m_keys.list.pop_back();
                AddKey(m_keys, last, false);
            }
        }
        at = cut.next;
    }
    m_keys.length = at - begin;
    m_next = std::max(m_next, at); // no header stands before it
    if (!m_changes.empty())
        ReadChanges(section);
    m_keysOf = section;
}

/// Puts the lines that were written in the place of those that stand in the text, or behind them.
void IniText::ReadChanges(Section section) {
    const auto found = m_changes.find(section);
    if (found == m_changes.end())
        return;
    m_keys.changes = &found->second;
    for (std::uint32_t number = 0; number < found->second.size(); ++number) {
        const Change& change = found->second[number];
        Key changed;
        changed.start = change.start;
        changed.change = number;
        Describe(changed, change.line, ClassifyLine(change.line));
        if (change.start == none)
            AddKey(m_keys, changed, true);
        else
            *std::lower_bound(m_keys.list.begin(), m_keys.list.end(), change.start,
                              [](const Key& key, std::uint32_t start) { return key.start < start; }) =
                changed;
    }
}

/// Notes in `key` where name and value stand in its line.
void IniText::Describe(Key& key, std::string_view line, const IniLine& parsed) {
    if (line.size() >= none)
        throw std::bad_alloc();
    const auto offset = [line](std::string_view part) {
        return static_cast<std::uint32_t>(part.data() - line.data());
    };
    key.name = offset(parsed.name);
    key.nameLength = static_cast<std::uint32_t>(parsed.name.size());
    key.value = offset(parsed.value);
    key.valueLength = static_cast<std::uint32_t>(parsed.value.size());
    key.tag = IsAscii(parsed.name) ? TagOf(parsed.name) : anyTag;
}

/// The index of the names of many keys: the first of each name.
void IniText::IndexKeys(Keys& keys) const {
    keys.names.Clear();
    for (std::uint32_t number = 0; number < keys.list.size(); ++number) {
        const std::string_view name = NameOf(keys, keys.list[number]);
        if (!FindIndexed(keys, name, HashInText(name)))
            keys.names.Add(HashInText(name), number);
    }
    keys.isIndexed = true;
}

std::optional<std::uint32_t> IniText::FindIndexed(const Keys& keys, std::string_view name,
                                                  std::uint64_t hash) const {
    return keys.names.Find(
        hash, [&](std::uint32_t other) { return AreAlike(NameOf(keys, keys.list[other]), name); });
}

/// Adds a key whose line can be read already. Of many keys the ones that are not the first of their name are
/// left out; few are all kept.
void IniText::AddKey(Keys& keys, const Key& key, bool isFirst) const {
    if (keys.list.size() < few) {
        keys.list.push_back(key);
        return;
    }
    const std::string_view name = NameOf(keys, key);
    if (!isFirst && name == NameOf(keys, keys.list.back())) // as in a file of one name
        return;
    if (!keys.isIndexed)
        IndexKeys(keys);
    const std::uint64_t hash = HashInText(name);
    if (!isFirst && FindIndexed(keys, name, hash))
        return;
    if (keys.list.size() == none)
        throw std::bad_alloc();
    keys.names.Reserve(1);
    keys.list.push_back(key);
    keys.names.Add(hash, static_cast<std::uint32_t>(keys.list.size() - 1));
}

/// The start of the bytes of a line as it is now.
const char* IniText::BytesOf(const Keys& keys, const Key& key) const {
    return key.change == none ? m_text.data() + key.start : (*keys.changes)[key.change].line.data();
}

std::string_view IniText::NameOf(const Keys& keys, const Key& key) const {
    return {BytesOf(keys, key) + key.name, key.nameLength};
}

std::string_view IniText::ValueOf(const Keys& keys, const Key& key) const {
    return {BytesOf(keys, key) + key.value, key.valueLength};
}

/// The first key of that name; null for none.
IniText::Key* IniText::FindKey(Keys& keys, std::wstring_view name) const {
    if (keys.isIndexed) {
        const auto number = keys.names.Find(
            HashName(name), [&](std::uint32_t key) { return SameName(NameOf(keys, keys.list[key]), name); });
        return number ? &keys.list[*number] : nullptr;
    }
    const std::uint32_t tag = TagOf(name);
    for (Key& key : keys.list) {
        if ((key.tag == tag || key.tag == anyTag) && SameName(NameOf(keys, key), name))
            return &key;
    }
    return nullptr;
}

std::optional<std::string_view> IniText::FindValue(Section section, std::wstring_view key) {
    Keys& keys = KeysOf(section);
    const Key* const found = FindKey(keys, key);
    return found ? std::optional(ValueOf(keys, *found)) : std::nullopt;
}

/// A key line as it stands in the text.
std::string_view IniText::LineInText(Section section, std::uint32_t start) const {
    return CutLine(TextUpTo(section), start).line;
}

/// Whether a line is to be another one than in the text.
bool IniText::Differs(Section section, const Change& change) const {
    return change.start == none || change.line != LineInText(section, change.start);
}

/// The change of a key; of one of an added section that stands in the text as it was written, what its
/// change would be.
IniText::Change IniText::ChangeOf(Section section, const Keys& keys, const Key& key) const {
    if (key.change != none)
        return (*keys.changes)[key.change];
    const bool isText = std::binary_search(m_texts.begin(), m_texts.end(), key.start);
    return {key.start, isText, IsAdded(section) && !isText, std::string(LineInText(section, key.start))};
}

void IniText::Write(Section section, std::wstring_view key, std::string_view spelling,
                    const IniNewValue& value) {
    Keys& keys = KeysOf(section);
    if (Key* const present = FindKey(keys, key))
        Rewrite(section, keys, *present, value);
    else
        WriteNew(section, spelling, value);
    m_isWritten = true;
}

void IniText::WriteNew(Section section, std::string_view spelling, const IniNewValue& value) {
    Keys& keys = KeysOf(section);
    if (IsAdded(section) && section + std::size_t{1} == m_headers.size() && !keys.changes)
        AppendKey(keys, spelling, value);
    else
        InsertKey(section, keys, spelling, value);
    m_isWritten = true;
}

/// The changes of a section, for another one to be added.
IniText::Changes& IniText::ChangesFor(Section section, Keys& keys) {
    if (!keys.changes)
        keys.changes = &m_changes[section];
    return *keys.changes;
}

void IniText::Rewrite(Section section, Keys& keys, Key& key, const IniNewValue& value) {
    Change change = ChangeOf(section, keys, key);
    change.isText = value.isText;
    change.hasComment = !value.isText && (change.hasComment || !value.comment.empty());
    change.line = RewriteLine(change.line, value);
    Key rewritten = key;
    Describe(rewritten, change.line, ClassifyLine(change.line));
    Changes& changes = ChangesFor(section, keys);
    if (key.change == none) {
        rewritten.change = static_cast<std::uint32_t>(changes.size());
        changes.push_back(std::move(change));
    } else {
        m_differing -= Differs(section, changes[key.change]) ? 1 : 0;
        changes[key.change] = std::move(change);
    }
    key = rewritten;
    m_differing += Differs(section, changes[key.change]) ? 1 : 0;
}

/// Adds a key behind the last one of its section, for the next save.
void IniText::InsertKey(Section section, Keys& keys, std::string_view spelling, const IniNewValue& value) {
    Key key = ComposeLine(spelling, value);
    Changes& changes = ChangesFor(section, keys);
    key.change = static_cast<std::uint32_t>(changes.size());
    changes.push_back({none, value.isText, !value.isText, m_line});
    try {
        AddKey(keys, key, true);
    } catch (...) {
        changes.pop_back();
        throw;
    }
    ++m_differing;
}

/// Makes the line of a new key.
IniText::Key IniText::ComposeLine(std::string_view spelling, const IniNewValue& value) {
    m_line.assign(spelling).push_back('=');
    m_line.append(value.bytes);
    if (!value.comment.empty())
        m_line.append(1, ' ').append(value.comment);
    Key key;
    Describe(key, m_line,
             {IniLineKind::Key, std::string_view(m_line).substr(0, spelling.size()),
              std::string_view(m_line).substr(spelling.size() + 1)});
    return key;
}

/// Adds a key at the end of the text, which is that of its section.
void IniText::AppendKey(Keys& keys, std::string_view spelling, const IniNewValue& value) {
    const std::size_t length = m_text.size();
    try {
        Key key = ComposeLine(spelling, value);
        const std::size_t start = AppendKeyLine(m_text, MarkLength(m_text), m_line);
        if (start >= none)
            throw std::bad_alloc();
        key.start = static_cast<std::uint32_t>(start);
        if (value.isText)
            m_texts.push_back(key.start);
        AddKey(keys, key, true);
        m_next = m_text.size();
    } catch (...) {
        TakeBack(length);
        throw;
    }
}

// Saving and merging ---------------------------------------------------------------------------------------

/// The headers of the text as it was read.
std::vector<IniText::Place> IniText::Places() const {
    std::vector<Place> places;
    std::size_t known = 0;
    for (std::size_t at = 0; (at = FindHeader(ReadText(), at)) != npos; at = places.back().next) {
        while (known + 1 < m_headers.size() && m_headers[known + 1].name <= at + 1)
            ++known;
        places.push_back({at, CutHeader(ReadText(), at).next, m_headers[known].first});
    }
    return places;
}

/// What the lines that were written make of the text.
void IniText::AddChanges(std::vector<Patch>& patches) const {
    patches.reserve(m_differing);
    for (const auto& [section, changes] : m_changes) {
        std::size_t place = npos; // of new lines
        for (const Change& change : changes) {
            if (change.start != none) {
                const std::string_view old = LineInText(section, change.start);
                if (change.line != old)
                    patches.push_back({change.start, change.start + old.size(), &change.line, false});
                continue;
            }
            if (place == npos)
                place =
                    IsRemoved(section) ? Begin(section) : BehindLastValue(TextUpTo(section), Begin(section));
            patches.push_back({place, place, &change.line, true});
        }
    }
}

/// What all changes but additions at the end make of the text, in its order; what is added stands before
/// what is removed in the same place.
std::vector<IniText::Patch> IniText::Patches() const {
    std::vector<Patch> patches;
    AddChanges(patches);
    if (!m_edits.empty()) {
        AddEditsOfRead(patches);
        AddEditsOfAdded(patches);
    }
    const auto isBefore = [](const Patch& a, const Patch& b) {
        return a.start != b.start ? a.start < b.start : a.isLine && !b.isLine;
    };
    if (!std::is_sorted(patches.begin(), patches.end(), isBefore))
        std::stable_sort(patches.begin(), patches.end(), isBefore);
    // The blank line above a section that goes may be that of a value: it stays above a new key.
    for (std::size_t number = 0; number + 1 < patches.size(); ++number) {
        if (patches[number + 1].isLine && patches[number + 1].start < patches[number].end) {
            patches[number].start = patches[number + 1].start;
            std::swap(patches[number], patches[number + 1]);
        }
    }
    return patches;
}

void IniText::AddRenaming(std::vector<Patch>& patches, std::size_t name, std::size_t length,
                          const Edit& edit) const {
    if (std::string_view(m_text).substr(name, length) != edit.name)
        patches.push_back({name, name + length, &edit.name, false});
}

/// What goes with a removed section, of which another place than the first is never kept.
IniText::Patch IniText::RemovalOf(const std::vector<Place>& places, std::size_t number, bool isKept) const {
    const std::string_view text = ReadText();
    const Place& place = places[number];
    const std::size_t end =
        number + 1 < places.size() ? StartWithComments(text, places[number + 1].start) : text.size();
    Patch gone;
    gone.start = isKept ? place.next : StartWithComments(text, place.start);
    gone.end = EndOfKeys(text, place.next, end);
    if (!isKept)
        gone.end = EndOfAll(IniLineKind::Blank, text, gone.end, end);
    return gone;
}

/// What removals and new names make of the text as it was read.
void IniText::AddEditsOfRead(std::vector<Patch>& patches) const {
    const std::string_view text = ReadText();
    const std::vector<Place> places = Places();
    std::vector<Patch> removed; // where extents touch, they are one
    for (std::size_t number = 0; number < places.size(); ++number) {
        const Place& place = places[number];
        const Edit* const edit = place.section == none ? nullptr : EditOf(place.section);
        if (!edit)
            continue;
        const bool isKept =
            !edit->isRemoved || (place.start + 1 == m_headers[place.section].name && IsThere(place.section));
        if (isKept)
            AddRenaming(patches, place.start + 1, CutHeader(text, place.start).header.name.size(), *edit);
        if (!edit->isRemoved)
            continue;
        const Patch gone = RemovalOf(places, number, isKept);
        if (!removed.empty() && gone.start <= removed.back().end)
            removed.back().end = std::max(removed.back().end, gone.end);
        else if (gone.start < gone.end)
            removed.push_back(gone);
    }
    // At the end of the text one blank line goes along, which stands there since the last section was added.
    if (!removed.empty() && removed.back().end == text.size()) {
        const std::size_t above = LineAbove(text, removed.back().start);
        if (KindAt(text, above) == IniLineKind::Blank)
            removed.back().start = above;
    }
    patches.insert(patches.end(), removed.begin(), removed.end());
}

/// The same for the sections that were added.
void IniText::AddEditsOfAdded(std::vector<Patch>& patches) const {
    for (const auto& [section, edit] : m_edits) {
        if (!IsAdded(section))
            continue;
        const Header& header = m_headers[section];
        if (edit.isRemoved) // another one follows
            patches.push_back({header.name - 1U, m_headers[section + 1].name - 1U, nullptr, false});
        else
            AddRenaming(patches, header.name, header.nameLength, edit);
    }
}

std::optional<std::string> IniText::ComposedText() const {
    if (m_differing == 0 && m_edits.empty())
        return std::nullopt;
    const std::vector<Patch> patches = Patches();
    std::size_t size = m_text.size();
    for (const Patch& patch : patches)
        size += patch.bytes ? patch.bytes->size() + 4 : 0; // with a line end, and that of a blank line above
    std::string text;
    text.reserve(size);
    const std::size_t mark = MarkLength(m_text);
    auto patch = patches.begin();
    const auto copy = [&](std::size_t from, std::size_t to) {
        for (; patch != patches.end() && patch->end <= to; ++patch) {
            text.append(m_text, from, patch->start - from);
            if (patch->isLine)
                AppendKeyLine(text, mark, *patch->bytes);
            else if (patch->bytes)
                text.append(*patch->bytes)
                    .append(BlankLineBelow(m_text, patch->start, patch->end, *patch->bytes));
            from = patch->end;
        }
        text.append(m_text, from, to - from);
    };
    copy(0, m_base);
    // The last line had no end and was removed, and now another one is the last.
    const bool hasNewLast =
        !m_edits.empty() && m_base > mark && m_text[m_base - 1] != '\n' && text.ends_with('\n');
    if (m_starts.empty()) {
        if (hasNewLast) // a text whose last line has no end stays one
            text.erase(text.size() - LineEndOf(text).size());
        return text;
    }
    // The first section of a text has no blank line above. Nor does a line need the end that the removed one
    // got when the section was added.
    const bool isFirst = text.size() <= mark;
    const std::size_t added = hasNewLast ? m_text.find('\n', m_base) + 1 : m_base;
    copy(isFirst ? m_headers[m_firstAdded].name - 1U : added, m_text.size());
    return text;
}

void IniText::TakeAsRead() noexcept {
    m_base = m_text.size();
    m_firstAdded = none;
    m_starts.clear();
    m_texts.clear();
    m_keysOf = none;
    m_kept.clear();
    m_changes.clear();
    m_hidden.clear();
    m_moves.clear();
    m_isWritten = false;
}

/// Whether each key that a section has in the text was written, so that its changes are all of it.
bool IniText::IsWrittenWhole(Section section, Keys& keys) const {
    return IsAdded(section) || std::all_of(keys.list.begin(), keys.list.end(), [&](const Key& key) {
               return key.change != none || FindKey(keys, DecodeBytes(NameOf(keys, key)))->change != none;
           });
}

/// The sections in which something may have been written, in their order.
std::vector<IniText::Section> IniText::SectionsThatMayBeWritten() const {
    std::vector<Section> sections;
    for (const auto& [section, changes] : m_changes) {
        if (!IsAdded(section))
            sections.push_back(section);
    }
    std::sort(sections.begin(), sections.end());
    for (Section section = m_firstAdded; section < m_headers.size(); ++section) {
        if (IsThere(section))
            sections.push_back(section);
    }
    return sections;
}

/// The keys that were written, in the order of that: of an added section all.
std::vector<IniText::Key> IniText::WrittenKeys(Section section, const Keys& keys) const {
    if (IsAdded(section))
        return keys.list;
    std::vector<Key> written;
    std::copy_if(keys.list.begin(), keys.list.end(), std::back_inserter(written),
                 [](const Key& key) { return key.change != none; });
    std::sort(written.begin(), written.end(), [](const Key& a, const Key& b) { return a.change < b.change; });
    return written;
}

std::optional<IniConflict> IniText::ApplyChangesTo(IniText& other) {
    const bool isEmpty = other.ReadText().find_first_not_of(" \t\r\n", MarkLength(other.ReadText())) == npos;
    if (auto conflict = ApplyMovesTo(other))
        return conflict;
    for (const Section section : SectionsThatMayBeWritten()) {
        Keys& keys = KeysOf(section);
        std::optional<Section> there = other.FindSection(DecodeBytes(Name(section)));
        for (const Key& key : WrittenKeys(section, keys)) {
            // Some of its keys without the others would be half a section.
            if (!there && !isEmpty && !IsWrittenWhole(section, keys))
                return IniConflict{IniConflict::Kind::SectionIsGone, std::string(NameInText(section))};
            const std::wstring name = DecodeBytes(NameOf(keys, key));
            const std::string_view bytes = ValueOf(keys, key);
            const Change change = ChangeOf(section, keys, key);
            IniNewValue value{{}, change.isText, {}};
            if (change.isText)
                value.bytes = TextFor(other, there ? other.FindValue(*there, name) : std::nullopt, bytes);
            else
                value.bytes = SplitComment(bytes).plain;
            if (change.hasComment)
                value.comment = CommentFor(other, SplitComment(bytes).comment, Encoding());
            const std::string spelling = NameFor(other, NameOf(keys, key));
            if (there)
                other.Write(*there, name, spelling, value);
            else
                there = other.AddSection(NameFor(other, Name(section)), name, spelling, value);
        }
    }
    return std::nullopt;
}

/// The removals and renamings alone.
std::optional<IniConflict> IniText::ApplyMovesTo(IniText& other) const {
    // Names that sections have here which are gone there. What has such a name there is somebody else's.
    IniNameSet gone;
    for (const Move& move : m_moves) {
        const auto known = gone.find(move.from);
        const bool isGone = known != gone.end();
        if (isGone)
            gone.erase(known);
        const std::optional<Section> section =
            isGone ? std::nullopt : other.FindSection(DecodeBytes(move.from));
        if (!section) {
            std::string buffer;
            if (move.to)
                gone.emplace(CanonicalName(*move.to, buffer));
            continue;
        }
        if (!move.to) {
            other.RemoveSection(*section);
            continue;
        }
        std::string name = NameFor(other, *move.to);
        const std::optional<Section> holder = other.FindSection(DecodeBytes(name));
        if ((holder && holder != section) || !other.RenameSection(*section, name))
            return IniConflict{IniConflict::Kind::NameIsTaken, std::move(name)};
    }
    return std::nullopt;
}

} // namespace QuorIniFile
