// Writes the host file on which the benchmarks run. Usage: QuorWorkload PROBES [COMMENT MARK] > FILE

#include "bench/Workload.h"

#include <cstdlib>
#include <iostream>
#include <string_view>

int main(int argc, char** argv) {
    const long probes = argc == 2 || argc == 3 ? std::atol(argv[1]) : 0;
    const std::string_view mark = argc == 3 ? argv[2] : ";";
    if (probes <= 0 || (mark != ";" && mark != "#")) {
        std::cerr << "usage: QuorWorkload PROBES [;|#]\n";
        return 2;
    }
    Bench::Workload(static_cast<std::size_t>(probes)).WriteTo(std::cout, mark.front());
    return std::cout.flush() ? 0 : 1;
}
