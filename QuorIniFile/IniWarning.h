#pragma once

#include "QuorIniFile/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// What may be wrong with a line of an INI file. The store reads and saves such a file nevertheless. Hosts
/// may store these numbers: they are only added to.
enum class IniWarningKind : std::int32_t {
    DuplicateKey = 1,     ///< the section has a key of that name above; that one is read
    DuplicateSection = 2, ///< there is a section of that name above; that one is read, and no key of this one
    UnclosedHeader = 3,   ///< a header without "]": no key below it is read, down to the next header
    MalformedLine = 4,    ///< not a header, key=value or comment, and not blank
    KeyAboveSections = 5, ///< a key above the first header, which cannot be read
    LineEndsInCr = 6, ///< a header or key after a lone carriage return, which ends no line: it is not read
};

/// A line of an INI file in which something may be wrong.
struct IniWarning {
    IniWarningKind kind = IniWarningKind::MalformedLine; ///< what may be wrong
    std::size_t line = 0;                                ///< its number, from 1
    std::size_t first = 0; ///< for a duplicate: the line of the one that is read; otherwise 0
    /// The name in the header above the line; for a duplicate section the name in the header that is read.
    /// Empty above the first header, if the header has no "]", and if a line that is a header ends in a lone
    /// carriage return.
    std::wstring section;
    std::wstring key; ///< as the line spells it; empty if the line is not a key

    /// Whether all fields are equal.
    bool operator==(const IniWarning&) const = default;
};

/// All warnings for a text, in the order of its lines. Keys that cannot be read, below a duplicate or an
/// unclosed header, are not compared with each other. One pass over the text.
[[nodiscard]] QUORINIFILE_EXPORT std::vector<IniWarning> WarningsOf(std::string_view text);

} // namespace QuorIniFile
