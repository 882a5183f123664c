#pragma once

#include "QuorIniFile/IniLines.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace QuorProbeFile {

/// The sections that a walk through a file has passed, by their names in any case of ASCII letters. It looks
/// at the text itself and lives as long as the walk.
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
    [[nodiscard]] bool IsEmpty() const { return m_sections.empty(); }

private:
    struct Hash {
        std::size_t operator()(std::string_view name) const;
    };
    struct Equal {
        bool operator()(std::string_view a, std::string_view b) const;
    };
    std::unordered_map<std::string_view, Section, Hash, Equal> m_sections;
    std::deque<std::string> m_spelled; // names outside ASCII, which may be spelled in two ways, in one
};

} // namespace QuorProbeFile
