// What a person never notices: a dialog opened, loaded, gathered, validated and closed.

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <benchmark/benchmark.h>

namespace {

using namespace QuorConversions;
using Scripted::Person;
using Scripted::ScriptedPlatform;

void EditAndPressOK(benchmark::State& state, EQuorConversionType type, void (*fill)(SettingsObject&)) {
    for (auto _ : state) {
        state.PauseTiming(); // a platform of its own, because it remembers all that it has seen
        const auto platform = std::make_shared<ScriptedPlatform>();
        CQuorConversion conversion(platform);
        conversion.SetConversionType(type);
        fill(*conversion.Settings());
        platform->InDialog([](Person& person) { person.Click(L"cmdOKCancelHelp(0)"); });
        state.ResumeTiming();
        if (!conversion.Edit() || !platform->NothingLeft())
            state.SkipWithError("the dialog was not accepted");
    }
}

void FillCvd(SettingsObject& settings) {
    auto& cvd = static_cast<CQuorCVD&>(settings);
    for (std::int32_t i = CVD_R0; i <= CVD_BETA; ++i)
        cvd.SetCoefficients(i, 100.0123 / (i + 3));
}

void FillIts90(SettingsObject& settings) {
    auto& its90 = static_cast<CQuorITS90&>(settings);
    its90.SetRTPW(25.48317);
    its90.LowRange()->SetRange(ITS90_RANGE_1);
    for (std::int32_t i = ITS90_LOW_A; i <= ITS90_LOW_C5; ++i)
        its90.LowRange()->SetCoefficients(i, -2.3502171E-4 / (i + 3));
    its90.HighRange()->SetRange(ITS90_RANGE_6);
    for (std::int32_t i = ITS90_HIGH_A; i <= ITS90_HIGH_D; ++i)
        its90.HighRange()->SetCoefficients(i, -2.3389E-4 / (i + 3));
}

BENCHMARK_CAPTURE(EditAndPressOK, CVD, CONV_CVD, FillCvd)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(EditAndPressOK, ITS90, CONV_ITS90, FillIts90)->Unit(benchmark::kMicrosecond);

} // namespace
