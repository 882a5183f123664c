#pragma once

#include <cstddef>

namespace Bench {

/// How often the program has asked the heap for memory so far.
[[nodiscard]] std::size_t Allocations();

} // namespace Bench
