#pragma once

#include "fuzz/PlainIni.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Fuzz {

/// What somebody does to a file, one line each:
///     Section|Key|s|any text
///     Section|Key|d|100.02;a remark     (or eight bytes, which are the double)
///     Section|Key|i|-12;a remark
///     Section|Key|b|1
///     Section||R|                       removes the section
///     Section|New name|N|               gives the section another name
///     ||S|                              saves what was done so far
///     ||D|                              forgets what was done since
///     ||L|                              loads the file anew
///     ||X|[Other]                       another program appends a line to the file
///     ||H|                              another program leaves half of the file, the second one
///     ||U|                              another program turns the file into UTF-16 or UTF-16 into UTF-8
struct Edit {
    std::wstring section, key;
    char kind = 's';
    std::string bytes; // as they stand in the line
    std::variant<std::wstring, double, std::int16_t, bool> value;
    std::wstring comment;

    [[nodiscard]] PlainIni::Place Place() const { return {Folded(section), Folded(key)}; }
};

/// An input: a file, and behind the last line "~~~~" what is done to it. Without such a line a few edits are
/// made that suit any file.
struct EditedFile {
    std::string text;
    std::vector<Edit> edits;
};
[[nodiscard]] EditedFile ParseInput(std::string_view input);

/// Whether the bytes behind a key spell the value of an edit.
[[nodiscard]] bool Spells(std::string_view value, const Edit& edit);

} // namespace Fuzz
