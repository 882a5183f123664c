// What quorconv needs for a host's file of 100,000 probes, beside the load of that file by the store alone in
// the same run: each figure is the fastest of some processes. Ends with 1 when a limit is missed. Usage:
// QuorProbeFileBench QUORCONV FOLDER [ROUNDS]

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
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
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

/// What a command of quorconv may need at most.
struct Limit {
    const char* command;
    double time;   ///< of the load of the file by the store alone; of "set" beyond the store's own edit
    double memory; ///< of the size of the file
};
constexpr Limit limits[] = {
    {"list", 8, 3},
    {"show", 3, 3},
    {"set", 3, 3},
    {"check", 40, 3},
};

/// Prints the figure of a command; whether it is within its limit.
bool IsWithin(const char* command, const Cost& cost, const Cost& load, double beyond, double size) {
    const Limit& limit = *std::find_if(std::begin(limits), std::end(limits),
                                       [&](const Limit& one) { return command == std::string(one.command); });
    const double time = cost.milliseconds / load.milliseconds;
    const double memory = cost.bytes / size;
    const double most = limit.time + beyond;
    const bool isWithin = time <= most && memory <= limit.memory;
    std::cout << std::fixed << std::setprecision(1) << std::setw(8) << command << std::setw(9)
              << cost.milliseconds << " ms " << std::setw(7) << time << " x the load (at most " << most
              << "), " << std::setw(4) << memory << " x the file in memory (at most " << limit.memory << ")"
              << (isWithin ? "\n" : ": MISSED\n");
    return isWithin;
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
    std::cout << std::fixed << std::setprecision(1) << "A file of " << size / 1e6
              << " MB; its load by the store " << load.milliseconds << " ms, its edit " << edit.milliseconds
              << " ms; quorconv alone starts in " << start.milliseconds << " ms\n";
    bool isWithin = IsWithin("set", set, load, edit.milliseconds / load.milliseconds, size);
    const std::pair<const char*, std::vector<std::string>> reading[] = {
        {"list", {quorconv, "list", file}},
        {"show", {quorconv, "show", file, "Probe 99999"}},
        {"check", {quorconv, "check", file}},
    };
    for (const auto& [command, arguments] : reading)
        isWithin = IsWithin(command, Fastest(rounds, Program(arguments)), load, 0, size) && isWithin;
    return isWithin ? 0 : 1;
}
