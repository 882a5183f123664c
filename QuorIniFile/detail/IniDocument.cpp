#include "QuorIniFile/detail/IniDocument.h"

#include "QuorIniFile/detail/IniValue.h"
#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <new>
#include <tuple>
#include <utility>

namespace QuorIniFile {
namespace {

// The end of a text that is being put together. `start` is the length of its byte-order mark.

std::string_view LineEndOf(std::string_view text) {
    const std::size_t end = text.rfind('\n');
    return end != npos && end > 0 && text[end - 1] == '\r' ? "\r\n" : "\n";
}

/// Adds a line with the line end of the line before. A text whose last line has no end stays one.
void AppendLine(std::string& text, std::size_t start, std::string_view line) {
    const std::string_view end = LineEndOf(text);
    if (text.size() > start && text.back() != '\n')
        // A last CR belongs to the value before it: LF alone would make both a line end.
        text.append(text.back() == '\r' ? "\r\n" : end).append(line);
    else
        text.append(line).append(end);
}

/// Adds the header of a section below a blank line, unless it is the first line. The blank line is added even
/// where the text ends in one, so that the removal of the section knows how many lines were added:
/// JoinExtents.
void AppendHeader(std::string& text, std::size_t start, std::string_view name) {
    std::string header = '[' + std::string(name) + ']';
    if (text.size() > start)
        header.insert(0, LineEndOf(text));
    AppendLine(text, start, header);
}

// What was spelled for another text is spelled anew for that of a document, which may have another encoding.

std::string NameFor(const IniDocument& document, std::string_view name) {
    if (IsAscii(name))
        return std::string(name);
    return NameToWrite(DecodeBytes(name), document.Encoding()).value_or(std::string(name));
}

std::string TextFor(const IniDocument& document, const IniCommentedValue& text) {
    // Quotes that only told it from a comment may not be needed there.
    return IsAscii(text.plain) && text.comment.empty()
               ? std::string(text.plain)
               : EncodeText(DecodeText(text.plain), document.Encoding());
}

std::string CommentFor(const IniDocument& document, std::string_view comment, IniEncoding encoding) {
    return IsAscii(comment) || encoding == document.Encoding()
               ? std::string(comment)
               : FormatComment(DecodeBytes(comment.substr(1)), document.Encoding());
}

} // namespace

IniDocument::IniDocument(std::string text) : m_text(std::move(text)) {}

IniEncoding IniDocument::Encoding() const {
    if (!m_encoding)
        m_encoding = EncodingOf(m_text);
    return *m_encoding;
}

const IniDocument::Edit* IniDocument::EditOf(Section section) const {
    if (m_edits.empty()) // as almost always
        return nullptr;
    const auto edit = m_edits.find(section);
    return edit == m_edits.end() ? nullptr : &edit->second;
}

std::string_view IniDocument::Name(Section section) const {
    if (IsNew(section))
        return m_newSections[section - m_firstNew];
    const Edit* const edit = EditOf(section);
    return edit ? std::string_view(edit->name) : m_sections.Name(m_text, section);
}

bool IniDocument::IsThere(Section section) const {
    return HasKeysInText(section) || m_changes.FirstOf(section) != IniChanges::none;
}

bool IniDocument::HasKeysInText(Section section) const {
    if (IsNew(section))
        return false;
    const Edit* const edit = EditOf(section);
    return !edit || !edit->isRemoved;
}

std::optional<IniDocument::Section> IniDocument::FindSection(std::string_view name) const {
    if (m_newSections.empty() && m_edits.empty())
        return m_sections.Find(m_text, name);
    if (const auto given = LastGiven(name, HashName(name)); given && IsThere(*given))
        return given;
    const auto found = m_sections.Find(m_text, name);
    const bool isThere = found && SameName(Name(*found), name) && IsThere(*found);
    return isThere ? found : std::nullopt;
}

IniDocument::Section IniDocument::AddSection(std::string_view name) {
    std::string buffer;
    const std::string_view canonical = CanonicalName(name, buffer);
    const auto old = m_edits.empty() ? std::nullopt : m_sections.Find(m_text, canonical);
    if (old && SameName(Name(*old), canonical))
        return *old;
    const std::uint64_t hash = HashName(canonical);
    if (const auto given = LastGiven(canonical, hash))
        return *given;
    const std::size_t first = m_sections.Count(m_text);
    const std::size_t number = first + m_newSections.size();
    if (number >= IniChanges::none)
        throw std::bad_alloc();
    m_newSections.emplace_back(name); // should the next step fail, it never gets a key
    m_firstNew = static_cast<Section>(first);
    const auto given = m_given.empty() ? m_given.end() : m_given.find(canonical); // as almost always
    if (given != m_given.end())
        given->second.push_back(static_cast<Section>(number));
    else
        m_newNames.Add(hash, static_cast<Section>(number));
    return static_cast<Section>(number);
}

std::optional<IniDocument::Section> IniDocument::FindNew(std::string_view name, std::uint64_t hash) const {
    return m_newNames.Find(hash, [&](Section section) { return SameName(Name(section), name); });
}

std::optional<IniDocument::Section> IniDocument::LastGiven(std::string_view name, std::uint64_t hash) const {
    const auto found = m_given.empty() ? m_given.end() : m_given.find(name);
    if (found == m_given.end())
        return FindNew(name, hash);
    return found->second.empty() ? std::nullopt : std::optional(found->second.back());
}

std::vector<IniDocument::Section>& IniDocument::Given(std::string_view name) {
    const auto found = m_given.find(name);
    if (found != m_given.end())
        return found->second;
    std::vector<Section> sections;
    if (const auto section = FindNew(name, HashName(name)))
        sections.push_back(*section);
    return m_given.emplace(name, std::move(sections)).first->second;
}

void IniDocument::TakeBack(std::string_view name, Section section) noexcept {
    const auto found = m_given.find(name);
    if (found != m_given.end() && !found->second.empty() && found->second.back() == section)
        found->second.pop_back();
}

std::vector<std::string_view> IniDocument::SectionNames() const {
    std::vector<std::string_view> names;
    const std::size_t inText = m_sections.Count(m_text);
    for (Section section = 0; section < inText + m_newSections.size(); ++section) {
        if ((IsNew(section) || m_sections.CanBeFound(m_text, section)) && IsThere(section))
            names.push_back(Name(section));
    }
    return names;
}

IniDocument::Edit& IniDocument::Note(Section section, std::optional<std::string> to) {
    std::string buffer;
    m_moves.push_back({std::string(CanonicalName(Name(section), buffer)), std::move(to)});
    try {
        return m_edits.try_emplace(section, Edit{false, std::string(Name(section))}).first->second;
    } catch (...) {
        m_moves.pop_back();
        throw;
    }
}

void IniDocument::RemoveSection(Section section) {
    if (!IsNew(section))
        Note(section, std::nullopt).isRemoved = true;
    for (std::uint32_t number = m_changes.FirstOf(section); number != IniChanges::none;
         number = m_changes[number].next)
        m_differing -= Differs(m_changes[number]) ? 1 : 0;
    m_changes.Drop(section);
}

bool IniDocument::RenameSection(Section section, std::string_view name) {
    // What stands behind the name in a header does not matter: a name reads back in each header or in none.
    if (!IsSectionName(name))
        return false;
    std::string spelling(name);
    std::string buffer;
    const std::string from(CanonicalName(Name(section), buffer));
    const std::string to(CanonicalName(name, buffer));
    const bool isOld = IsSpelledInText(section, name);
    Given(from);
    Given(to).push_back(section);
    if (IsNew(section)) {
        m_newSections[section - m_firstNew] = std::move(spelling);
    } else {
        try {
            Edit& edit = Note(section, spelling);
            edit.name = std::move(spelling);
        } catch (...) {
            TakeBack(to, section);
            throw;
        }
        if (isOld)
            m_edits.erase(section);
    }
    TakeBack(from, section);
    return true;
}

bool IniDocument::IsSpelledInText(Section section, std::string_view name) const {
    return HasKeysInText(section) && name == m_sections.Name(m_text, section) &&
           !m_sections.HasOtherSpellings(m_text, section);
}

const IniKeys& IniDocument::KeysOf(Section section) const {
    if (m_keysOf == section)
        return m_keys;
    if (!m_longKeys.empty()) {
        const auto known = m_longKeys.find(section);
        if (known != m_longKeys.end())
            return known->second;
    }
    m_keysOf.reset();
    m_keys.Read(m_text, m_sections.Begin(m_text, section), m_sections.End(m_text, section));
    if (m_keys.AreLong())
        return m_longKeys.emplace(section, std::exchange(m_keys, {})).first->second;
    m_keysOf = section;
    return m_keys;
}

IniDocument::Key IniDocument::Look(Section section, std::string_view key) const {
    if (Written()) {
        if (const auto change = m_changes.Find(section, key))
            return {ClassifyLine(m_changes.Line(m_changes[*change])), change, IniChanges::newLine};
    }
    if (!HasKeysInText(section))
        return {};
    const auto found = KeysOf(section).Find(m_text, key);
    return found ? Key{found->line, std::nullopt, found->start} : Key();
}

void IniDocument::Write(Section section, std::string_view key, const Key& present, std::string_view spelling,
                        const IniNewValue& value) {
    const bool newComment = !value.isText && !value.comment.empty();
    if (present.change) {
        const IniChanges::Change& change = m_changes[*present.change];
        const std::string line = RewriteLine(m_changes.Line(change), value);
        const std::size_t others = m_differing - (Differs(change) ? 1 : 0);
        m_changes.Rewrite(*present.change, line, value.isText,
                          !value.isText && (change.hasComment || newComment));
        m_differing = others + (Differs(m_changes[*present.change]) ? 1 : 0);
        return;
    }
    IniChanges::Change change;
    change.section = section;
    change.line = present.start;
    change.isText = value.isText;
    change.hasComment = newComment;
    std::size_t nameOffset = 0;
    std::size_t nameLength = spelling.size();
    if (present.line) {
        const std::string_view old = CutLine(m_text, present.start).line;
        nameOffset = static_cast<std::size_t>(present.line->name.data() - old.data());
        nameLength = present.line->name.size();
        m_line = RewriteLine(old, value);
    } else {
        m_line.assign(spelling).append(1, '=').append(value.bytes);
        if (!value.comment.empty())
            m_line.append(1, ' ').append(value.comment);
    }
    m_changes.Add(change, key, m_line, std::string_view(m_line).substr(nameOffset, nameLength));
    m_differing += Differs(m_changes[m_changes.Size() - 1]) ? 1 : 0;
}

bool IniDocument::Differs(const IniChanges::Change& change) const {
    return change.line == IniChanges::newLine || CutLine(m_text, change.line).line != m_changes.Line(change);
}

void IniDocument::ForgetWrites() {
    m_changes = {};
    m_moves.clear();
}

std::vector<IniDocument::Placed> IniDocument::PlacedChanges() const {
    std::vector<Placed> placed;
    for (std::uint32_t number = 0; number < m_changes.Size(); ++number) {
        const IniChanges::Change& change = m_changes[number];
        if (change.section == IniChanges::none || IsNew(change.section))
            continue;
        std::size_t at = change.line;
        if (at == IniChanges::newLine)
            at = HasKeysInText(change.section) ? KeysOf(change.section).BehindLast()
                                               : m_sections.Begin(m_text, change.section);
        placed.push_back({at, &change});
    }
    // Keys keep the order of their writing.
    std::stable_sort(placed.begin(), placed.end(), [](const Placed& a, const Placed& b) {
        return std::tie(a.at, a.change->section) < std::tie(b.at, b.change->section);
    });
    return placed;
}

std::vector<IniDocument::Patch> IniDocument::Patches() const {
    std::vector<Patch> patches;
    if (m_edits.empty())
        return patches;
    std::vector<IniExtent> removed;
    const std::vector<IniHeader> headers = AllHeaders(m_text);
    for (std::size_t number = 0; number < headers.size(); ++number) {
        const auto& name = headers[number].name;
        std::string buffer;
        const auto section = name ? m_sections.Find(m_text, CanonicalName(*name, buffer)) : std::nullopt;
        const Edit* const edit = section ? EditOf(*section) : nullptr;
        if (!edit)
            continue;
        const bool isFirst = m_sections.Name(m_text, *section).data() == name->data();
        if (edit->isRemoved && !(isFirst && IsThere(*section))) {
            removed.push_back(SectionExtent(m_text, headers, number));
            continue;
        }
        if (edit->isRemoved)
            removed.push_back(BodyExtent(m_text, headers, number));
        if (name != edit->name) {
            const std::size_t start = headers[number].start + 1;
            patches.push_back({{start, start + name->size()}, edit->name});
        }
    }
    for (const IniExtent& extent : JoinExtents(m_text, std::move(removed)))
        patches.push_back({extent, {}});
    std::sort(patches.begin(), patches.end(),
              [](const Patch& a, const Patch& b) { return a.old.start < b.old.start; });
    return patches;
}

std::string IniDocument::Text() const {
    const std::size_t start = MarkLength(m_text);
    std::size_t size = m_text.size();
    for (std::size_t number = 0; number < m_changes.Size(); ++number)
        size += m_changes.Line(m_changes[number]).size() + 2;
    for (const std::string& name : m_newSections)
        size += name.size() + 6; // with brackets, two line ends of two bytes at most
    std::vector<Patch> patches = Patches();
    for (const Patch& patch : patches)
        size += patch.text.size();
    std::string text;
    text.reserve(size);

    std::size_t copied = 0;
    auto patch = patches.begin();
    // What is added stands before what is removed in the same place.
    const auto copyUpTo = [&](std::size_t end) {
        for (; patch != patches.end() && patch->old.start < end; ++patch) {
            if (patch->old.end > end) { // the blank line above the section that goes is that of a value
                patch->old.start = end;
                break;
            }
            text.append(m_text, copied, patch->old.start - copied).append(patch->text);
            copied = patch->old.end;
        }
        text.append(m_text, copied, end - copied);
        copied = end;
    };
    for (const auto& [at, change] : PlacedChanges()) {
        copyUpTo(at);
        if (change->line == IniChanges::newLine) {
            AppendLine(text, start, m_changes.Line(*change));
            continue;
        }
        text += m_changes.Line(*change);
        copied += CutLine(m_text, at).line.size();
    }
    copyUpTo(m_text.size());
    for (Section section = m_firstNew; section < m_firstNew + m_newSections.size(); ++section) {
        std::uint32_t number = m_changes.FirstOf(section);
        if (number != IniChanges::none)
            AppendHeader(text, start, Name(section));
        for (; number != IniChanges::none; number = m_changes[number].next)
            AppendLine(text, start, m_changes.Line(m_changes[number]));
    }
    // A text whose last line has no end stays one, also when that line was removed.
    if (!m_edits.empty() && m_text.size() > start && !m_text.ends_with('\n') && text.ends_with('\n'))
        text.erase(text.size() - LineEndOf(text).size());
    return text;
}

bool IniDocument::IsWrittenWhole(Section section) const {
    if (!HasKeysInText(section))
        return true;
    const std::vector<std::string_view> names = KeysOf(section).Names(m_text);
    return std::all_of(names.begin(), names.end(), [&](std::string_view name) {
        std::string buffer;
        return m_changes.Find(section, CanonicalName(name, buffer)).has_value();
    });
}

std::optional<IniConflict> IniDocument::ApplyChangesTo(IniDocument& other) const {
    const bool isEmpty =
        other.m_text.find_first_not_of(" \t\r\n", MarkLength(other.m_text)) == std::string::npos;
    if (auto conflict = ApplyMovesTo(other))
        return conflict;
    for (std::size_t number = 0; number < m_changes.Size(); ++number) {
        const IniChanges::Change& change = m_changes[number];
        if (change.section == IniChanges::none)
            continue;
        std::string buffer;
        const std::string_view name = CanonicalName(Name(change.section), buffer);
        std::optional<Section> section = other.FindSection(name);
        if (!section) {
            // Some of its keys without the others would be half a section.
            if (!isEmpty && !IsWrittenWhole(change.section))
                return IniConflict{IniConflict::Kind::SectionIsGone,
                                   std::string(m_sections.Name(m_text, change.section))};
            section = other.AddSection(NameFor(other, Name(change.section)));
        }

        const IniLine line = ClassifyLine(m_changes.Line(change));
        const IniCommentedValue parts =
            change.isText ? SplitTextComment(line.value) : SplitComment(line.value);
        IniNewValue value{
            change.isText ? TextFor(other, parts) : std::string(parts.plain), change.isText, {}};
        if (change.hasComment)
            value.comment = CommentFor(other, parts.comment, Encoding());
        std::string keyBuffer;
        other.Write(*section, CanonicalName(line.name, keyBuffer), NameFor(other, line.name), value);
    }
    return std::nullopt;
}

std::optional<IniConflict> IniDocument::ApplyMovesTo(IniDocument& other) const {
    // Names that sections have here which are gone there. What has such a name there is somebody else's.
    IniNameSet gone;
    for (const Move& move : m_moves) {
        const auto known = gone.find(move.from);
        const bool isGone = known != gone.end();
        if (isGone)
            gone.erase(known);
        const std::optional<Section> section = isGone ? std::nullopt : other.FindSection(move.from);
        std::string buffer;
        if (!section) {
            if (move.to)
                gone.emplace(CanonicalName(*move.to, buffer));
            continue;
        }
        if (!move.to) {
            other.RemoveSection(*section);
            continue;
        }
        std::string name = NameFor(other, *move.to);
        const std::optional<Section> holder = other.FindSection(CanonicalName(name, buffer));
        if ((holder && holder != section) || !other.RenameSection(*section, name))
            return IniConflict{IniConflict::Kind::NameIsTaken, std::move(name)};
    }
    return std::nullopt;
}

} // namespace QuorIniFile
