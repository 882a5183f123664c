#include "QuorProbeFile/detail/SectionIndex.h"

#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/Utf8.h"

#include <algorithm>

namespace QuorProbeFile {

std::size_t SectionIndex::SlotOf(std::string_view name, std::uint64_t hash) const {
    const std::size_t last = m_slots.size() - 1;
    std::size_t slot = hash & last;
    for (; m_slots[slot] != 0; slot = (slot + 1) & last) {
        const Entry& entry = m_entries[m_slots[slot] - 1];
        if (entry.hash == hash && (entry.name == name || QuorIniFile::EqualFolded(entry.name, name)))
            break;
    }
    return slot;
}

void SectionIndex::Grow() {
    constexpr std::size_t first = 64;
    std::vector<std::uint32_t> slots(std::max(first, m_slots.size() * 2));
    const std::size_t last = slots.size() - 1;
    for (std::uint32_t number = 1; number <= m_entries.size(); ++number) {
        std::size_t slot = m_entries[number - 1].hash & last;
        while (slots[slot] != 0)
            slot = (slot + 1) & last;
        slots[slot] = number;
    }
    m_slots.swap(slots);
}

SectionIndex::Section* SectionIndex::Add(const QuorIniFile::IniLines& header) {
    std::string_view name = header.NameBytes();
    if (std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; }))
        name = m_spelled.emplace_back(QuorIniFile::ToUtf8(header.Name()));
    if (m_entries.size() * 2 >= m_slots.size())
        Grow();
    const std::uint64_t hash = QuorIniFile::HashName(name);
    const std::size_t slot = SlotOf(name, hash);
    if (m_slots[slot] != 0)
        return nullptr;
    m_entries.push_back({name, hash, {header.Here(), 0, 0}});
    m_slots[slot] = static_cast<std::uint32_t>(m_entries.size());
    return &m_entries.back().section;
}

const SectionIndex::Section* SectionIndex::Find(std::wstring_view name) const {
    if (m_entries.empty())
        return nullptr;
    const std::string wanted = QuorIniFile::ToUtf8(name);
    const std::size_t slot = SlotOf(wanted, QuorIniFile::HashName(wanted));
    return m_slots[slot] == 0 ? nullptr : &m_entries[m_slots[slot] - 1].section;
}

} // namespace QuorProbeFile
