// Loads a file and reads each of its probes into a conversion, and prints the milliseconds that takes: what
// bench/read_probes.py is compared with. Usage: QuorProbesLoop FILE

#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorProbeFile/ProbeFile.h"

#include <chrono>
#include <filesystem>
#include <iostream>

using namespace QuorConversions;

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: QuorProbesLoop FILE\n";
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    QuorProbeFile::ProbeFile file(std::filesystem::path(argv[1]).wstring());
    CQuorConversion conversion;
    double sum = 0;
    for (const QuorProbeFile::ProbeEntry& probe : file.Probes()) {
        if (!file.Read(probe.section, conversion).IsWhole())
            return 1;
        const auto cvd = SettingsAs<CQuorCVD>(conversion);
        for (std::int32_t i = CVD_R0; i <= CVD_BETA; ++i)
            sum += cvd->Coefficients(static_cast<ECVDCoefficients>(i));
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::cout << time.count() << " ms, " << sum << '\n';
    return 0;
}
