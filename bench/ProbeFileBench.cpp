// What the commands of quorconv need for a host's file of 100,000 probes, beside what the store alone needs
// for it in the same run: each figure is the fastest of some processes. Ends with 1 when a limit is missed.
// Usage: QuorProbeFileBench QUORCONV FOLDER [ROUNDS]

#include "QuorIniFile/IniStore.h"
#include "bench/Workload.h"

#include <algorithm>
#include <array>
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

/// Runs a function in a process of its own, which ends with `code`, without its output.
Cost Measure(const std::function<void()>& run, int code = 0) {
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
    if (child < 0 || ::wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) ||
        WEXITSTATUS(status) != code)
        throw std::runtime_error("a measured process has failed");
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return {time.count(), static_cast<double>(usage.ru_maxrss) * 1024};
}

Cost Fastest(int rounds, const std::function<void()>& run, int code = 0) {
    Cost best;
    for (int round = 0; round < rounds; ++round) {
        const Cost cost = Measure(run, code);
        best = {std::min(best.milliseconds, cost.milliseconds), std::max(best.bytes, cost.bytes)};
    }
    return best;
}

/// A run of a program, whose input is a file.
std::function<void()> Program(std::vector<std::string> arguments, const std::string& input = "/dev/null") {
    return [arguments = std::move(arguments), input]() mutable {
        ::dup2(::open(input.c_str(), O_RDONLY), STDIN_FILENO);
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        ::execv(pointers[0], pointers.data());
        ::_exit(127);
    };
}

/// Gives a file what a program prints.
void Keep(std::vector<std::string> arguments, const std::string& path) {
    Measure([&] {
        ::dup2(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDOUT_FILENO);
        Program(std::move(arguments))();
    });
}

/// What the time of a command is compared with: what the store alone needs for the same file.
enum Yardstick { LOAD, TYPED_READ, BUILD_AND_SAVE };
constexpr const char* yardsticks[] = {"load", "typed read", "build and save"};

/// What a command of quorconv may need at most.
struct Limit {
    const char* command;
    Yardstick beside;
    double time;   ///< of the yardstick; of "set" beyond the store's own edit
    double memory; ///< of the size of the file
};
constexpr Limit limits[] = {
    {"list", LOAD, 8, 3},
    {"get", LOAD, 3, 4},
    {"show", LOAD, 3, 3},
    {"set", LOAD, 3, 3},
    {"check", LOAD, 40, 3},
    {"diff", TYPED_READ, 6, 4}, // three times that of both files
    {"export --jsonl", TYPED_READ, 2, 4},
    {"export --csv", TYPED_READ, 2, 4},
    {"put --json", BUILD_AND_SAVE, 2, 4},
    {"put --csv", BUILD_AND_SAVE, 2, 4},
    {"apply", BUILD_AND_SAVE, 3, 4},
};

/// Prints costs beside their limits.
class Table {
public:
    Table(double fileSize, std::array<double, 3> milliseconds)
        : m_fileSize(fileSize), m_milliseconds(milliseconds) {}

    void Add(const std::string& command, const Cost& cost, double beyond = 0) {
        const Limit& limit = *std::find_if(std::begin(limits), std::end(limits),
                                           [&](const Limit& one) { return command == one.command; });
        const double time = cost.milliseconds / m_milliseconds[limit.beside];
        const double memory = cost.bytes / m_fileSize;
        const double most = limit.time + beyond;
        const bool isMissed = time > most || memory > limit.memory;
        m_isMissed = m_isMissed || isMissed;
        std::cout << std::fixed << std::setprecision(1) << std::setw(14) << command << std::setw(9)
                  << cost.milliseconds << " ms " << std::setw(6) << time << " x the "
                  << yardsticks[limit.beside] << " (at most " << most << "), " << std::setw(4) << memory
                  << " x the file in memory (at most " << limit.memory << ')' << (isMissed ? ": MISSED" : "")
                  << std::endl;
    }
    [[nodiscard]] bool IsMissed() const { return m_isMissed; }

private:
    double m_fileSize;
    std::array<double, 3> m_milliseconds;
    bool m_isMissed = false;
};

/// Reads or writes all values of the workload through the store, each by its type.
void ReadAll(QuorIniFile::IniStore& store, std::size_t probes) {
    double sum = 0;
    for (std::size_t probe = 0; probe < probes; ++probe) {
        const std::string section = Bench::Workload::Section(probe);
        const std::string settings = Bench::Workload::SettingsSection(probe);
        std::int16_t number = 0;
        bool flag = false;
        store.SetSection(std::wstring(section.begin(), section.end()));
        bool isFine = store.ReadInteger(L"ConversionType", number);
        store.SetSection(std::wstring(settings.begin(), settings.end()));
        isFine = store.ReadInteger(L"NumCoefficients", number) && isFine;
        isFine = store.ReadBoolean(L"UsePolynomial", flag) && isFine;
        for (const wchar_t* const key :
             {L"Coefficients0", L"Coefficients1", L"Coefficients2", L"Coefficients3"}) {
            double value = 0;
            isFine = store.ReadDouble(key, value) && isFine;
            sum += value;
        }
        if (!isFine)
            ::_exit(1);
    }
    std::cout << sum;
}

void WriteAll(QuorIniFile::IniStore& store, const Bench::Workload& workload) {
    store.Hold();
    for (std::size_t probe = 0; probe < workload.Probes(); ++probe) {
        const std::string section = Bench::Workload::Section(probe);
        const std::string settings = Bench::Workload::SettingsSection(probe);
        store.SetSection(std::wstring(section.begin(), section.end()));
        store.WriteString(L"Version", L"1.0");
        store.WriteInteger(L"ConversionType", 2, L"");
        store.SetSection(std::wstring(settings.begin(), settings.end()));
        store.WriteString(L"Version", L"1.0");
        store.WriteInteger(L"NumCoefficients", 4, L"");
        store.WriteBoolean(L"UsePolynomial", false);
        for (std::size_t index = 0; index < 4; ++index)
            store.WriteDouble(L"Coefficients" + std::to_wstring(index), workload.CoefficientsOf(probe)[index],
                              L"");
    }
    store.Release();
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: QuorProbeFileBench QUORCONV FOLDER [ROUNDS]\n";
        return 2;
    }
    const std::string quorconv = argv[1];
    const std::filesystem::path folder = argv[2];
    const std::filesystem::path path = folder / "probes.ini";
    const Bench::Workload workload(100000);
    const int rounds = argc > 3 ? std::atoi(argv[3]) : 5;
    {
        std::ofstream file(path, std::ios::binary);
        workload.WriteTo(file);
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
    const std::size_t probes = workload.Probes();
    const Cost read =
        Fastest(rounds, store([probes](QuorIniFile::IniStore& present) { ReadAll(present, probes); }));
    const std::filesystem::path made = folder / "made.ini";
    const Cost build = Fastest(rounds, [&] {
        std::filesystem::remove(made);
        QuorIniFile::IniStore fresh;
        fresh.SetFileName(made.wstring());
        WriteAll(fresh, workload);
    });
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

    const std::string other = (folder / "other.ini").string();
    const std::string json = (folder / "probes.jsonl").string();
    const std::string csv = (folder / "probes.csv").string();
    const std::string steps = (folder / "steps.txt").string();
    Keep({quorconv, "export", file, "--jsonl"}, json);
    Keep({quorconv, "export", file, "--csv", "--type", "cvd"}, csv);
    {
        std::ofstream lines(steps, std::ios::binary);
        for (std::size_t probe = 0; probe < probes; ++probe)
            lines << "set \"" << Bench::Workload::Section(probe) << "\" Coefficients0=" << probe << ".5\n";
    }
    const auto copied = [&](const std::string& from, const std::function<void()>& run) {
        Cost best;
        for (int round = 0; round < rounds; ++round) {
            std::filesystem::remove(other);
            if (!from.empty())
                std::filesystem::copy_file(from, other);
            const Cost cost = Measure(run);
            best = {std::min(best.milliseconds, cost.milliseconds), std::max(best.bytes, cost.bytes)};
        }
        return best;
    };

    std::cout << std::fixed << std::setprecision(1) << "A file of " << size / 1e6
              << " MB; by the store: load " << load.milliseconds << " ms, typed read " << read.milliseconds
              << " ms, build and save " << build.milliseconds << " ms, edit of one value "
              << edit.milliseconds << " ms; quorconv alone starts in " << start.milliseconds << " ms\n";
    std::cout << "In memory: load " << load.bytes / size << ", build and save " << build.bytes / size
              << " x the file\n";
    Table table(size, {load.milliseconds, read.milliseconds, build.milliseconds});
    const std::pair<const char*, std::vector<std::string>> reading[] = {
        {"list", {quorconv, "list", file}},
        {"get", {quorconv, "get", file, "Probe 99999", "Coefficients0"}},
        {"show", {quorconv, "show", file, "Probe 99999"}},
        {"check", {quorconv, "check", file}},
        {"export --jsonl", {quorconv, "export", file, "--jsonl"}},
        {"export --csv", {quorconv, "export", file, "--csv", "--type", "cvd"}},
    };
    for (const auto& [command, arguments] : reading)
        table.Add(command, Fastest(rounds, Program(arguments)));
    table.Add("set", set, edit.milliseconds / load.milliseconds);
    table.Add("put --json", copied("", Program({quorconv, "put", other, "--json"}, json)));
    table.Add("put --csv", copied("", Program({quorconv, "put", other, "--csv"}, csv)));
    table.Add("apply", copied(file, Program({quorconv, "apply", other}, steps)));
    // Now each probe of the other file has got another value.
    table.Add("diff", Fastest(rounds, Program({quorconv, "diff", file, other}), 1));
    return table.IsMissed() ? 1 : 0;
}
