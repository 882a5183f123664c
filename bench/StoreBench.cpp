// What a host pays for its file of probes. The files are those of QuorWorkload: N.ini, N probes, in the
// folder that the environment names in QUOR_WORKLOADS.

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorIniFile/IniStore.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

using namespace QuorConversions;

std::filesystem::path Workload(std::int64_t probes) {
    const char* const folder = std::getenv("QUOR_WORKLOADS");
    return std::filesystem::path(folder ? folder : ".") / (std::to_string(probes) + ".ini");
}

std::shared_ptr<QuorIniFile::IniStore> LoadedStore(const std::filesystem::path& path) {
    auto store = std::make_shared<QuorIniFile::IniStore>();
    store->SetFileName(path.wstring());
    store->SetSection(L"Probe 0");
    std::wstring version;
    if (!store->ReadString(L"Version", version))
        throw std::runtime_error("the workload cannot be read");
    return store;
}

/// Ten probes, spread over the whole file: the same number of warm records in a small file and in a large
/// one.
std::wstring SectionOf(std::int64_t round, std::int64_t probes) {
    return L"Probe " + std::to_wstring(round % 10 * (probes / 10));
}

CQuorConversion& CvdProbe() {
    static CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    return conversion;
}

void WriteRecordIntoHeldStore(benchmark::State& state) {
    const std::int64_t probes = state.range(0);
    const std::filesystem::path copy = Workload(probes).replace_extension("written");
    std::filesystem::copy_file(Workload(probes), copy, std::filesystem::copy_options::overwrite_existing);
    const std::shared_ptr<QuorIniFile::IniStore> store = LoadedStore(copy);
    std::shared_ptr<INIFile> iniFile = store;
    store->Hold();
    auto& cvd = static_cast<CQuorCVD&>(*CvdProbe().Settings());
    std::int64_t round = 0;
    for (auto _ : state) {
        cvd.SetCoefficients(CVD_R0, 100.0 + static_cast<double>(round) / 1024.0);
        CvdProbe().WriteToFile(iniFile, L"", SectionOf(round++, probes));
    }
    store->Release();
}
BENCHMARK(WriteRecordIntoHeldStore)->Arg(10)->Arg(100000)->Unit(benchmark::kMicrosecond);

void ReadRecord(benchmark::State& state) {
    const std::int64_t probes = state.range(0);
    std::shared_ptr<INIFile> iniFile = LoadedStore(Workload(probes));
    std::int64_t round = 0;
    for (auto _ : state)
        if (!CvdProbe().ReadFromFile(iniFile, L"", SectionOf(round++, probes)))
            state.SkipWithError("a record cannot be read");
}
BENCHMARK(ReadRecord)->Arg(10)->Arg(100000)->Unit(benchmark::kMicrosecond);

/// The floor: the bytes of the file, and where its lines end.
void ReadAndScanLines(benchmark::State& state) {
    const std::filesystem::path path = Workload(state.range(0));
    for (auto _ : state) {
        std::string bytes(std::filesystem::file_size(path), '\0');
        std::ifstream(path, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        std::size_t lines = 0;
        const char* const end = bytes.data() + bytes.size();
        for (const char* at = bytes.data(); at != end; ++lines) {
            const void* const lineEnd = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
            at = lineEnd ? static_cast<const char*>(lineEnd) + 1 : end;
        }
        benchmark::DoNotOptimize(lines);
    }
}
BENCHMARK(ReadAndScanLines)->Arg(100000)->Unit(benchmark::kMillisecond);

void LoadHostFile(benchmark::State& state) {
    const std::filesystem::path path = Workload(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(LoadedStore(path));
}
BENCHMARK(LoadHostFile)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace
