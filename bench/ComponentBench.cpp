// What the C interface costs: the same property read and set through C++, through its typed function, and by
// name.

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "component/quor.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>

namespace {

using namespace QuorConversions;

void ReadCoefficientCpp(benchmark::State& state) {
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    auto cvd = SettingsAs<CQuorCVD>(conversion);
    for (auto _ : state) {
        benchmark::DoNotOptimize(cvd);
        benchmark::DoNotOptimize(cvd->Coefficients(CVD_BETA));
    }
}
BENCHMARK(ReadCoefficientCpp);

/// The handle of a CVD object.
class Cvd {
public:
    Cvd() {
        if (quor_conversion_create(0, &m_conversion) != 0 ||
            quor_conversion_put_ConversionType(m_conversion, QUOR_CONV_CVD) != 0 ||
            quor_conversion_get_Settings(m_conversion, &m_cvd) != 0)
            throw std::runtime_error("no CVD object");
    }
    Cvd(const Cvd&) = delete;
    Cvd& operator=(const Cvd&) = delete;
    ~Cvd() {
        quor_release(m_cvd);
        quor_release(m_conversion);
    }
    [[nodiscard]] quor_object Conversion() const { return m_conversion; }
    [[nodiscard]] quor_object Get() const { return m_cvd; }

private:
    quor_object m_conversion = 0;
    quor_object m_cvd = 0;
};

void ReadCoefficientTyped(benchmark::State& state) {
    const Cvd cvd;
    double value = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(quor_cvd_get_Coefficients(cvd.Get(), QUOR_CVD_BETA, &value));
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(ReadCoefficientTyped);

void ReadCoefficientByName(benchmark::State& state) {
    const Cvd cvd;
    std::int32_t id = 0;
    if (quor_id_of_name(cvd.Get(), quor_text_of("Coefficients"), &id) != 0)
        throw std::runtime_error("no member");
    quor_value index{};
    index.kind = QUOR_INT32;
    index.as.int32 = QUOR_CVD_BETA;
    quor_value result{};
    for (auto _ : state) {
        benchmark::DoNotOptimize(quor_invoke(cvd.Get(), id, QUOR_GET, &index, 1, &result));
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(ReadCoefficientByName);

void FindNumberOfName(benchmark::State& state) {
    const Cvd cvd;
    std::int32_t id = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(quor_id_of_name(cvd.Get(), quor_text_of("Coefficients"), &id));
}
BENCHMARK(FindNumberOfName);

void WriteCoefficientCpp(benchmark::State& state) {
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    auto cvd = SettingsAs<CQuorCVD>(conversion);
    double value = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(cvd);
        cvd->SetCoefficients(CVD_BETA, value += 1);
    }
}
BENCHMARK(WriteCoefficientCpp);

void WriteCoefficientTyped(benchmark::State& state) {
    const Cvd cvd;
    double value = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(quor_cvd_put_Coefficients(cvd.Get(), QUOR_CVD_BETA, value += 1));
}
BENCHMARK(WriteCoefficientTyped);

/// A settings object that the host has a handle of already, given out once more.
void GetSettingsTyped(benchmark::State& state) {
    const Cvd cvd;
    for (auto _ : state) {
        quor_object settings = 0;
        benchmark::DoNotOptimize(quor_conversion_get_Settings(cvd.Conversion(), &settings));
        quor_release(settings);
    }
}
BENCHMARK(GetSettingsTyped);

} // namespace
