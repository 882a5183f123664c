#include "QuorProbeFile/detail/SectionIndex.h"

#include "QuorIniFile/Utf8.h"

#include <algorithm>

namespace QuorProbeFile {
namespace {

char Fold(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

} // namespace

std::size_t SectionIndex::Hash::operator()(std::string_view name) const {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(Fold(c))) * 0x100000001B3U;
    return static_cast<std::size_t>(hash);
}

bool SectionIndex::Equal::operator()(std::string_view a, std::string_view b) const {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Fold(x) == Fold(y); });
}

SectionIndex::Section* SectionIndex::Add(const QuorIniFile::IniLines& header) {
    std::string_view name = header.NameBytes();
    if (std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; }))
        name = m_spelled.emplace_back(QuorIniFile::ToUtf8(header.Name()));
    const auto [at, isNew] = m_sections.try_emplace(name, Section{header.Here(), 0, 0});
    return isNew ? &at->second : nullptr;
}

const SectionIndex::Section* SectionIndex::Find(std::wstring_view name) const {
    const auto found = m_sections.find(QuorIniFile::ToUtf8(name));
    return found == m_sections.end() ? nullptr : &found->second;
}

} // namespace QuorProbeFile
