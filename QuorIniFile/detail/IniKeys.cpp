#include "QuorIniFile/detail/IniKeys.h"

#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <new>
#include <string>
#include <utility>

namespace QuorIniFile {

std::uint32_t TagOfName(std::string_view name) {
    if (name.empty())
        return 0;
    constexpr unsigned small = 0x20; // the bit in which capital and small letters differ
    const auto first = static_cast<unsigned char>(name.front()) | small;
    const auto last = static_cast<unsigned char>(name.back()) | small;
    return static_cast<std::uint32_t>(name.size() << 16U) ^ (first << 8U) ^ last;
}

void IniKeys::Read(std::string_view text, std::size_t begin, std::size_t end) {
    m_keys.clear();
    if (std::exchange(m_isIndexed, false))
        m_names = {};
    while (end > begin && end < text.size() && (text[end - 1] == ' ' || text[end - 1] == '\t'))
        --end; // blanks in front of the next header are part of its line
    m_begin = begin;
    m_length = end - begin;
    m_behindLast = begin;
    const std::string_view body = text.substr(0, end);
    IniContinuation continuation;
    for (std::size_t at = begin; at < end;) {
        const IniCut cut = CutLine(body, at);
        const IniLine line = ClassifyLine(cut.line);
        at = cut.next;
        if (line.kind == IniLineKind::Key)
            Add(text, line);
        if (continuation.IsPartOfValue(cut.line, line.kind))
            m_behindLast = cut.next;
    }
}

void IniKeys::Add(std::string_view text, const IniLine& line) {
    if (line.name.size() >= tooLong)
        return;
    std::string buffer;
    const std::string_view name = IsAscii(line.name) ? line.name : CanonicalName(line.name, buffer);
    Key key{static_cast<std::size_t>(line.name.data() - text.data()),
            static_cast<std::uint32_t>(line.name.size()), TagOfName(name), tooLong, 0};
    const auto value = static_cast<std::size_t>(line.value.data() - line.name.data());
    if (value < tooLong && line.value.size() < tooLong) {
        key.value = static_cast<std::uint32_t>(value);
        key.valueLength = static_cast<std::uint32_t>(line.value.size());
    }
    if (m_keys.size() >= few && (Name(text, m_keys.back()) == line.name || !AddToIndex(text, name)))
        return;
    m_keys.push_back(key);
}

bool IniKeys::AddToIndex(std::string_view text, std::string_view name) {
    const auto addIfFirst = [&](std::string_view canonical, std::size_t number) {
        const std::uint64_t hash = HashName(canonical);
        if (m_names.Find(hash,
                         [&](std::uint32_t other) { return SameName(Name(text, m_keys[other]), canonical); }))
            return false;
        m_names.Add(hash, static_cast<std::uint32_t>(number));
        return true;
    };
    if (m_keys.size() >= tooLong)
        throw std::bad_alloc();
    if (!m_isIndexed) {
        m_isIndexed = true; // so that Read forgets it also when memory ends on the way
        for (std::size_t number = 0; number < few; ++number) {
            std::string buffer;
            static_cast<void>(addIfFirst(CanonicalName(Name(text, m_keys[number]), buffer), number));
        }
    }
    return addIfFirst(name, m_keys.size());
}

std::optional<IniKeys::Found> IniKeys::Find(std::string_view text, std::string_view name) const {
    const Key* found = nullptr;
    if (m_isIndexed) {
        const auto number = m_names.Find(
            HashName(name), [&](std::uint32_t key) { return SameName(Name(text, m_keys[key]), name); });
        if (number)
            found = &m_keys[*number];
    } else {
        const std::uint32_t tag = TagOfName(name);
        for (const Key& key : m_keys) {
            if (key.tag == tag && SameName(Name(text, key), name)) {
                found = &key;
                break;
            }
        }
    }
    if (!found)
        return std::nullopt;
    std::size_t start = found->name;
    while (start > m_begin && (text[start - 1] == ' ' || text[start - 1] == '\t'))
        --start;
    if (found->value == tooLong)
        return Found{start, ClassifyLine(CutLine(text, start).line)};
    return Found{
        start,
        {IniLineKind::Key, Name(text, *found), text.substr(found->name + found->value, found->valueLength)}};
}

std::vector<std::string_view> IniKeys::Names(std::string_view text) const {
    std::vector<std::string_view> names;
    names.reserve(m_keys.size());
    for (const Key& key : m_keys)
        names.push_back(Name(text, key));
    return names;
}

} // namespace QuorIniFile
