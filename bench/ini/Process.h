#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

// What every program of this comparison tells about itself.
namespace Bench {

/// A figure of this process from the system, in bytes: "VmRSS" is its memory now, "VmHWM" the most it had.
inline long long MemoryFigure(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long long kilobytes = 0;
        if (word == name + ':' && status >> kilobytes)
            return kilobytes * 1024;
    }
    throw std::runtime_error("the system tells no " + name);
}

/// Forgets how much memory the process had at most until now.
inline void ForgetPeak() { std::ofstream("/proc/self/clear_refs") << '5' << std::flush; }

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return (values[(values.size() - 1) / 2] + values[values.size() / 2]) / 2;
}

class Stopwatch {
public:
    [[nodiscard]] double Seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

/// The answer of a worker: seconds of the first repetition and of the others, the sum over what was read, and
/// the memory taken for the first, in bytes.
inline void Answer(double first, double seconds, std::uint64_t sum, long long memory) {
    std::cout << "{\"first\": " << first << ", \"seconds\": " << seconds << ", \"sum\": \"" << sum
              << "\", \"memory\": " << memory << "}\n";
}

} // namespace Bench
