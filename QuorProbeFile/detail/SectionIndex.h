#pragma once

#include "QuorIniFile/IniLines.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

/// The sections that a walk through a file has passed, by their names in any case of ASCII letters. It looks
/// at the text itself and lives as long as the walk. (A table of its own: with hundreds of thousands of
/// sections the nodes of a standard one take longer than the walk.)
class SectionIndex {
public:
    struct Section {
        QuorIniFile::IniLines::Place header; ///< the first one of that name
        std::uint32_t keys = 0;              ///< how many key lines it has, but for "Version"
        std::uint32_t malformed = 0;         ///< how many lines are no keys
    };

    /// Adds the section whose header the walk is at; null when there is one of that name already.
    Section* Add(const QuorIniFile::IniLines& header);
    /// Null when there is none of that name.
    [[nodiscard]] const Section* Find(std::wstring_view name) const;
    [[nodiscard]] bool IsEmpty() const { return m_entries.empty(); }

private:
    struct Entry {
        std::string_view name;
        std::uint64_t hash;
        Section section;
    };
    /// The slot in which the name is, or would be.
    [[nodiscard]] std::size_t SlotOf(std::string_view name, std::uint64_t hash) const;
    void Grow();

    std::deque<Entry> m_entries;        // which never moves: it may be a third of the file
    std::vector<std::uint32_t> m_slots; // numbers of entries, from 1; 0 is free
    std::deque<std::string> m_spelled;  // names outside ASCII, which may be spelled in two ways, in one
};

} // namespace QuorProbeFile
