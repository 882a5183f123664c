#include "QuorIniFile/detail/IniChanges.h"

#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniKeys.h"

#include <new>
#include <utility>

namespace QuorIniFile {
namespace {

/// Sections are mostly written one after the other: so they stand in the index too.
std::uint64_t HashOf(std::uint32_t section) { return section; }

/// One key may be written in many sections: the odd factor keeps these apart.
std::uint64_t HashOf(std::uint32_t section, std::string_view key) {
    return HashName(key) ^ (section * 0x9E3779B97F4A7C15U);
}

} // namespace

std::optional<std::uint32_t> IniChanges::ChainOf(std::uint32_t section) const {
    if (m_asked != none && m_chains[m_asked].section == section)
        return m_asked;
    const auto chain = m_chainOfSection.Find(
        HashOf(section), [&](std::uint32_t number) { return m_chains[number].section == section; });
    if (chain)
        m_asked = *chain;
    return chain;
}

std::uint32_t IniChanges::FirstOf(std::uint32_t section) const {
    const auto chain = ChainOf(section);
    return chain ? m_chains[*chain].first : none;
}

bool IniChanges::IsNamed(const Change& change, std::string_view key) const {
    return SameName(Name(change), key);
}

std::optional<std::uint32_t> IniChanges::Find(std::uint32_t section, std::string_view key) const {
    const auto chain = ChainOf(section);
    if (!chain)
        return std::nullopt;
    if (m_chains[*chain].count > few) {
        return m_keys.Find(HashOf(section, key), [&](std::uint32_t number) {
            return m_changes[number].section == section && IsNamed(m_changes[number], key);
        });
    }
    const std::uint32_t tag = TagOfName(key);
    for (std::uint32_t number = m_chains[*chain].first; number != none; number = m_changes[number].next) {
        if (m_changes[number].tag == tag && IsNamed(m_changes[number], key))
            return number;
    }
    return std::nullopt;
}

void IniChanges::Put(Change& change, std::string_view line) {
    const bool isLast = change.start + change.length == m_lines.size();
    if (line.size() <= change.length || isLast) {
        m_lines.replace(change.start, isLast ? change.length : line.size(), line);
        m_wasted += isLast ? 0 : change.length - line.size();
    } else {
        const std::size_t start = m_lines.size();
        m_lines += line;
        m_wasted += change.length;
        change.start = start;
    }
    change.length = line.size();
}

void IniChanges::Add(Change change, std::string_view key, std::string_view line, std::string_view name) {
    const auto nameOffset = static_cast<std::size_t>(name.data() - line.data());
    if (m_changes.size() >= none || nameOffset >= none || name.size() >= none)
        throw std::bad_alloc();
    const auto number = static_cast<std::uint32_t>(m_changes.size());
    auto chain = ChainOf(change.section);
    // Whatever may fail comes first.
    if (!chain) {
        m_chainOfSection.Reserve(1);
        m_chains.push_back({change.section});
        chain = m_asked = static_cast<std::uint32_t>(m_chains.size() - 1);
        m_chainOfSection.Add(HashOf(change.section), *chain);
    }
    Chain& written = m_chains[*chain];
    if (written.count == few && !written.isIndexed)
        IndexChain(written);
    if (written.isIndexed)
        m_keys.Reserve(1);
    m_changes.push_back(change);
    Change& added = m_changes.back();
    added.start = m_lines.size();
    added.tag = TagOfName(key);
    added.nameOffset = static_cast<std::uint32_t>(nameOffset);
    added.nameLength = static_cast<std::uint32_t>(name.size());
    try {
        Put(added, line);
    } catch (...) {
        m_changes.pop_back();
        throw;
    }
    if (written.last == none)
        written.first = number;
    else
        m_changes[written.last].next = number;
    written.last = number;
    if (++written.count > few)
        m_keys.Add(HashOf(change.section, key), number);
}

void IniChanges::IndexChain(Chain& chain) {
    m_keys.Reserve(few + 1);
    for (std::uint32_t number = chain.first; number != none; number = m_changes[number].next) {
        std::string buffer;
        const Change& change = m_changes[number];
        m_keys.Add(HashOf(chain.section, CanonicalName(Name(change), buffer)), number);
    }
    chain.isIndexed = true;
}

void IniChanges::Rewrite(std::uint32_t number, std::string_view line, bool isText, bool hasComment) {
    // A host that writes one value a million times before it saves needs the memory of one.
    constexpr std::size_t little = 65536;
    if (m_wasted > little && m_wasted > m_lines.size() / 2)
        ThrowOutWaste();
    Change& change = m_changes[number];
    Put(change, line);
    change.isText = isText;
    change.hasComment = hasComment;
}

void IniChanges::Drop(std::uint32_t section) noexcept {
    const auto number = ChainOf(section);
    if (!number)
        return;
    Chain& chain = m_chains[*number];
    for (std::uint32_t dropped = chain.first; dropped != none;) {
        Change& change = m_changes[dropped];
        dropped = change.next;
        m_wasted += change.length;
        change = {};
        change.section = none;
    }
    chain = {section};
}

void IniChanges::ThrowOutWaste() {
    std::string lines;
    lines.reserve(m_lines.size() - m_wasted);
    for (Change& change : m_changes) {
        const std::size_t start = lines.size();
        lines += Line(change);
        change.start = start;
    }
    m_lines = std::move(lines);
    m_wasted = 0;
}

} // namespace QuorIniFile
