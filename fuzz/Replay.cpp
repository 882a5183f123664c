// Shows each file of the corpus to a target once, as the fuzzer would. Usage: REPLAY FOLDER...

#include "fuzz/Claim.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    std::size_t files = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream stream(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
            // The target must not look at a byte behind the input: an exact copy lets the sanitizer see it.
            const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
            std::cout << entry.path().filename().string() << std::endl; // before it may crash
            static_cast<void>(LLVMFuzzerTestOneInput(input.data(), input.size()));
            ++files;
        }
    }
    std::cout << files << " inputs\n";
    return files == 0 ? 1 : 0;
}
