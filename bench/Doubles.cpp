// Every random bit pattern of a double comes back from its text. Usage: QuorDoubles [COUNT], ten million
// without one.

#include "QuorIniFile/IniValue.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <random>

int main(int argc, char** argv) {
    const long count = argc > 1 ? std::atol(argv[1]) : 10'000'000;
    std::mt19937_64 random(std::random_device{}());
    for (long i = 0; i < count; ++i) {
        const std::uint64_t bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        const std::string text = QuorIniFile::FormatDouble(value);
        const auto back = QuorIniFile::ParseDouble(text);
        const bool same =
            back && (std::isnan(value) ? std::isnan(*back) : std::memcmp(&value, &*back, sizeof value) == 0);
        if (!same) {
            std::cout << "lost: " << std::hex << bits << " written as " << text << '\n';
            return 1;
        }
    }
    std::cout << count << " random doubles came back bit for bit\n";
    return 0;
}
