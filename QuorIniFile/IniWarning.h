#pragma once

#include "QuorIniFile/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// What may be wrong with a line of an INI file. The store reads and saves such a file all the same. Hosts
/// keep these numbers: they are only added to.
enum class IniWarningKind : std::int32_t {
    DuplicateKey = 1,     // a key of that name stands above it in the section; that one is read
    DuplicateSection = 2, // a section of that name stands above it; that one is read, and no key of this one
    UnclosedHeader = 3,   // a header without "]": no key below it is read, down to the next header
    MalformedLine = 4,    // no header, no key=value, no comment, not blank
    KeyAboveSections = 5, // a key above the first header, which nobody can read
    LineEndsInCr = 6, // a header or key behind a carriage return alone, which ends no line: nobody reads it
};

/// A line of an INI file in which something may be wrong.
struct IniWarning {
    IniWarningKind kind = IniWarningKind::MalformedLine;
    std::size_t line = 0;  // from 1
    std::size_t first = 0; // of a duplicate: the line of the one that is read; else 0
    /// The name in the header above the line; of a duplicate section the name in the header that is read.
    /// Empty above the first header, where the header has no "]", and where a line that is a header ends in a
    /// carriage return alone.
    std::wstring section;
    std::wstring key; // as it stands in the line; empty where the line is no key

    bool operator==(const IniWarning&) const = default;
};

/// All warnings of a text, in the order of its lines. Keys that nobody can read, below a duplicate header or
/// an unclosed one, are not compared with each other. One pass over the text.
[[nodiscard]] QUORINIFILE_EXPORT std::vector<IniWarning> WarningsOf(std::string_view text);

} // namespace QuorIniFile
