// What a host pays for one conversion object.

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/rtd/CQuorCVD.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

} // namespace

// The whole heap of the process is counted, so that the number of allocations is a figure and not an estimate.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace {

using namespace QuorConversions;

void MakeCvdProbe() {
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    auto& cvd = static_cast<CQuorCVD&>(*conversion.Settings());
    cvd.SetCoefficients(CVD_R0, 100.0123);
    cvd.SetCoefficients(CVD_ALPHA, 0.00385055);
    cvd.SetCoefficients(CVD_DELTA, 1.499786);
    cvd.SetCoefficients(CVD_BETA, 0.1086338);
    benchmark::DoNotOptimize(cvd);
}

void CreateSetDestroyCvd(benchmark::State& state) {
    MakeCvdProbe(); // the default platform is made once
    const std::size_t before = allocations;
    for (auto _ : state)
        MakeCvdProbe();
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations - before), benchmark::Counter::kAvgIterations);
}
BENCHMARK(CreateSetDestroyCvd);

} // namespace
