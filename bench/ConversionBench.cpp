// What a host pays for one conversion object.

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "bench/Allocations.h"

#include <benchmark/benchmark.h>

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
    const std::size_t before = Bench::Allocations();
    for (auto _ : state)
        MakeCvdProbe();
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(Bench::Allocations() - before),
                                                       benchmark::Counter::kAvgIterations);
}
BENCHMARK(CreateSetDestroyCvd);

} // namespace
