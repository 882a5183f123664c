#pragma once

#include "QuorIniFile/detail/IniSections.h"

#include <cstddef>
#include <string_view>
#include <vector>

// Which lines of a text go with a section that is removed. Pure functions; `headers` are all of the text.
namespace QuorIniFile {

/// A part of a text.
struct IniExtent {
    std::size_t start = 0, end = 0;
};

/// The header, the comments that touch it from above, and what follows down to the last key, the comments
/// that touch that one and blank lines. Comments that stand apart stay, and so do those that touch the next
/// header, and those that open the text, for these may speak of the whole of it.
[[nodiscard]] IniExtent SectionExtent(std::string_view text, const std::vector<IniHeader>& headers,
                                      std::size_t number);

/// What goes when a section loses its keys and keeps its header.
[[nodiscard]] IniExtent BodyExtent(std::string_view text, const std::vector<IniHeader>& headers,
                                   std::size_t number);

/// `extents` in the order of the text, as one where they touch; at the end of the text with one blank
/// line above, which stands there since the last section was added.
[[nodiscard]] std::vector<IniExtent> JoinExtents(std::string_view text, std::vector<IniExtent> extents);

} // namespace QuorIniFile
