#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What the fuzzer calls with every input that it has made up, and the replay with every file of the corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace Fuzz {

/// Ends the process with a word about what does not hold: the fuzzer keeps the input then.
inline void Claim(bool holds, const char* what, const char* file = __builtin_FILE(),
                  int line = __builtin_LINE()) {
    if (holds)
        return;
    std::fprintf(stderr, "%s:%d: this does not hold: %s\n", file, line, what);
    std::abort();
}

inline std::string_view Bytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace Fuzz
