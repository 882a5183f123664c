// Writes the host file on which the benchmarks run. Usage: QuorWorkload PROBES > FILE
//
// Each probe is a facade record of type 2 in two sections, with doubles of full precision; every tenth
// section has a comment. 100,000 probes make about 25 MB. The same number of probes always makes the same
// file.

#include "QuorIniFile/IniValue.h"

#include <cstdlib>
#include <iostream>
#include <random>

int main(int argc, char** argv) {
    const long probes = argc == 2 ? std::atol(argv[1]) : 0;
    if (probes <= 0) {
        std::cerr << "usage: QuorWorkload PROBES\n";
        return 2;
    }
    std::mt19937_64 random(20261121);
    std::uniform_real_distribution<double> coefficient(-1000.0, 1000.0);
    for (long probe = 0; probe < probes; ++probe) {
        if (probe % 5 == 0)
            std::cout << "; certificate " << 4000 + probe << ", calibrated at five fixed points\n";
        std::cout << "[Probe " << probe << "]\nVersion=1.0\nConversionType=2\n\n[Probe " << probe
                  << " - Settings]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=False\n";
        for (int i = 0; i < 4; ++i)
            std::cout << "Coefficients" << i << '=' << QuorIniFile::FormatDouble(coefficient(random)) << '\n';
        std::cout << '\n';
    }
    return std::cout.flush() ? 0 : 1;
}
