// How much memory a process needs that loads a host file, beside the size of the file. Usage: QuorPeak FILE
// SECTION

#include "QuorIniFile/IniStore.h"

#include <filesystem>
#include <iostream>
#include <string>

#include <sys/resource.h>

namespace {

double PeakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: QuorPeak FILE SECTION\n";
        return 2;
    }
    const std::string file = argv[1];
    const std::string section = argv[2];
    const auto size = static_cast<double>(std::filesystem::file_size(file));
    const double before = PeakMemory();
    QuorIniFile::IniStore store;
    store.SetFileName(std::wstring(file.begin(), file.end()));
    store.SetSection(std::wstring(section.begin(), section.end()));
    std::wstring version;
    if (!store.ReadString(L"Version", version))
        return 1;
    std::cout << "Loading " << size / 1e6 << " MB takes " << (PeakMemory() - before) / size
              << " times the file in memory at the peak, " << PeakMemory() / size
              << " with the whole process\n";
    return 0;
}
