#pragma once

#include <string>
#include <string_view>

namespace quorconv {

/// What `diff -u` prints of two texts, which `patch` takes: lines that only one of them has, with three
/// lines around them. Empty for the same text. An old text that is empty is a file that is not there.
[[nodiscard]] std::string UnifiedDiff(const std::string& name, std::string_view before,
                                      std::string_view after);

} // namespace quorconv
