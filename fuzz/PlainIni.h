#pragma once

#include "QuorIniFile/detail/IniFormat.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Fuzz {

/// `name` with ASCII letters in small: the one way in which names that differ are still the same.
[[nodiscard]] std::wstring Folded(std::wstring name);

/// A text read the plain way: line by line, with a map. It says what the indexed document has to find.
/// It points into the text, which must outlive it.
class PlainIni {
public:
    struct Line {
        std::string_view content, end; // end: "\n", "\r\n" or, on the last line, nothing
        QuorIniFile::IniLine parsed;
        bool mustFollow = false; // the line above: a value that began there, or above it, goes on below
    };
    /// Section and key, both folded.
    using Place = std::pair<std::wstring, std::wstring>;

    explicit PlainIni(std::string_view text);

    [[nodiscard]] const std::vector<Line>& Lines() const { return m_lines; }
    /// The number of the line that counts for each key: the first of its name in the first section of its
    /// name.
    [[nodiscard]] const std::map<Place, std::size_t>& Keys() const { return m_keys; }
    /// The names of the sections as they stand in the text, in its order; of a name that stands several times
    /// the first.
    [[nodiscard]] const std::vector<std::string_view>& Names() const { return m_names; }
    /// The value behind a key, as it stands in the text.
    [[nodiscard]] std::optional<std::string_view> Value(const Place& place) const;

private:
    /// Says of each line whether a value goes on from the line above.
    void MarkContinuedValues();

    std::vector<Line> m_lines;
    std::set<std::wstring> m_sections; // their folded names
    std::vector<std::string_view> m_names;
    std::map<Place, std::size_t> m_keys;
};

} // namespace Fuzz
