// What a dialog pays for one value in a box: shown under a format, and read back.

#include "QuorConversions/core/NumberText.h"
#include "QuorConversions/core/ValueFormatter.h"
#include "bench/Allocations.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

using namespace QuorConversions;

/// Coefficients of every size, from 100-odd ohms down to the fourth power of a temperature; none twice.
std::vector<double> Values() {
    std::vector<double> values;
    for (int i = 0; i < 256; ++i)
        for (const double size : {100.0123, -0.00385055, 1.499786, -5.775e-7})
            values.push_back(size * (1.0 + i / 1024.0));
    return values;
}

void FormatOneValue(benchmark::State& state, const wchar_t* format) {
    const std::vector<double> values = Values();
    const NumberSeparators separators;
    std::size_t next = 0;
    const std::size_t before = Bench::Allocations();
    for (auto _ : state)
        benchmark::DoNotOptimize(FormatValue(values[next++ % values.size()], format, separators));
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(Bench::Allocations() - before),
                                                       benchmark::Counter::kAvgIterations);
}
BENCHMARK_CAPTURE(FormatOneValue, FourDecimals, L"0.0000");
BENCHMARK_CAPTURE(FormatOneValue, NoFormat, L"");
BENCHMARK_CAPTURE(FormatOneValue, Standard, L"Standard");
BENCHMARK_CAPTURE(FormatOneValue, Scientific, L"Scientific");
BENCHMARK_CAPTURE(FormatOneValue, ThreeSections, L"0.0000;(0.0000);\"zero\"");

void ParseOneValue(benchmark::State& state) {
    std::vector<std::wstring> texts;
    for (const double value : Values())
        texts.push_back(FormatValue(value, L""));
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(ParseLeadingNumber(texts[next++ % texts.size()]));
}
BENCHMARK(ParseOneValue);

} // namespace
