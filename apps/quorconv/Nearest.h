#pragma once

#include <string>
#include <vector>

namespace quorconv {

/// "; did you mean "list"?" with the one of the known words that is nearest to what was typed, in any case of
/// letters; empty where none is near.
[[nodiscard]] std::wstring DidYouMean(const std::wstring& typed, const std::vector<std::wstring>& known);

} // namespace quorconv
