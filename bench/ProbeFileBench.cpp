// What quorconv needs for a host's file of 100,000 probes, beside the load of that file by the store alone in
// the same run: each figure is the fastest of some processes. Usage: QuorProbeFileBench QUORCONV FOLDER
// [ROUNDS]

#include "QuorIniFile/IniStore.h"
#include "bench/Workload.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iomanip>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Cost {
    double milliseconds = 1e9;
    double bytes = 0; // at the peak
};

/// Runs a function in a process of its own, without its output.
Cost Measure(const std::function<void()>& run) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child == 0) {
        const int nothing = ::open("/dev/null", O_WRONLY);
        ::dup2(nothing, STDOUT_FILENO);
        run();
        ::_exit(0);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || ::wait4(child, &status, 0, &usage) != child || status != 0)
        throw std::runtime_error("a measured process has failed");
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return {time.count(), static_cast<double>(usage.ru_maxrss) * 1024};
}

Cost Fastest(int rounds, const std::function<void()>& run) {
    Cost best;
    for (int round = 0; round < rounds; ++round) {
        const Cost cost = Measure(run);
        best = {std::min(best.milliseconds, cost.milliseconds), std::max(best.bytes, cost.bytes)};
    }
    return best;
}

std::function<void()> Program(std::vector<std::string> arguments) {
    return [arguments = std::move(arguments)]() mutable {
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        ::execv(pointers[0], pointers.data());
        ::_exit(127);
    };
}

void Print(const char* what, const Cost& cost, const Cost& load, double size, double most) {
    std::cout << std::fixed << std::setprecision(1) << std::setw(8) << what << std::setw(9)
              << cost.milliseconds << " ms " << std::setw(7) << cost.milliseconds / load.milliseconds
              << " x the load (at most " << most << "), " << std::setw(4) << cost.bytes / size
              << " x the file in memory (at most 3.0)\n";
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: QuorProbeFileBench QUORCONV FOLDER [ROUNDS]\n";
        return 2;
    }
    const std::string quorconv = argv[1];
    const std::filesystem::path path = std::filesystem::path(argv[2]) / "probes.ini";
    const int rounds = argc > 3 ? std::atoi(argv[3]) : 5;
    {
        std::ofstream file(path, std::ios::binary);
        Bench::Workload(100000).WriteTo(file);
    }
    const auto size = static_cast<double>(std::filesystem::file_size(path));
    const std::string file = path.string();
    const std::wstring name = path.wstring();
    const auto store = [&name](auto use) {
        return [&name, use] {
            QuorIniFile::IniStore present;
            present.SetFileName(name);
            present.SetSection(L"Probe 99999 - Settings");
            use(present);
        };
    };

    const Cost start = Fastest(rounds, Program({quorconv, "--version"}));
    const Cost load = Fastest(rounds, store([](QuorIniFile::IniStore& present) {
                                  double value = 0;
                                  if (!present.ReadDouble(L"Coefficients0", value))
                                      ::_exit(1);
                              }));
    // Each round writes another value, the same ones as quorconv below.
    double written = 1;
    const auto next = [&written] { return written += 0.5; };
    Cost edit;
    Cost set;
    for (int round = 0; round < rounds; ++round) {
        const double value = next();
        const Cost one = Measure(store([value](QuorIniFile::IniStore& present) {
            present.Edit([&] { present.WriteDouble(L"Coefficients0", value, L""); });
        }));
        edit.milliseconds = std::min(edit.milliseconds, one.milliseconds);
        const Cost other = Measure(
            Program({quorconv, "set", file, "Probe 99999", "Coefficients0=" + std::to_string(next())}));
        set = {std::min(set.milliseconds, other.milliseconds), std::max(set.bytes, other.bytes)};
    }
    const double mostOfSet = edit.milliseconds / load.milliseconds + 3;

    std::cout << std::fixed << std::setprecision(1) << "A file of " << size / 1e6
              << " MB; its load by the store " << load.milliseconds << " ms, its edit " << edit.milliseconds
              << " ms; quorconv alone starts in " << start.milliseconds << " ms\n";
    Print("list", Fastest(rounds, Program({quorconv, "list", file})), load, size, 8);
    Print("show", Fastest(rounds, Program({quorconv, "show", file, "Probe 99999"})), load, size, 3);
    Print("set", set, load, size, mostOfSet);
    Print("check", Fastest(rounds, Program({quorconv, "check", file})), load, size, 40);
    return 0;
}
