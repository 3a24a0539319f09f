// SPDX-License-Identifier: AGPL-3.0-or-later
// Sunrise and sunset of a fresh chart, with the number of chart casts each one costs.
#include "BenchSupport.h"
#include "sky/clsPlanets.h"


#include <benchmark/benchmark.h>

namespace {

// One sun member on a chart that has just been cast: its first call, memo empty. The counter
// "casts" is the number of Calculate runs the call makes (the chart's own cast not counted).
template <double (clsPlanets::*member)() const> void sunMember(benchmark::State &state)
{
    long casts = 0;
    for (auto _ : state) {
        state.PauseTiming();
        clsPlanets chart;
        fillDelhi(chart.Person());
        chart.Calculate();
        const long before = clsPlanets::CalculateCount();
        state.ResumeTiming();
        benchmark::DoNotOptimize((chart.*member)());
        casts = clsPlanets::CalculateCount() - before;
    }
    state.counters["casts"] = static_cast<double>(casts);
}

void BM_SunRiseTime(benchmark::State &state)
{
    sunMember<&clsPlanets::SunRiseTime>(state);
}
void BM_SunSetTime(benchmark::State &state)
{
    sunMember<&clsPlanets::SunSetTime>(state);
}
void BM_NightDuration(benchmark::State &state)
{
    sunMember<&clsPlanets::NightDuration>(state);
}
BENCHMARK(BM_SunRiseTime);
BENCHMARK(BM_SunSetTime);
BENCHMARK(BM_NightDuration);

// The second call reads the memo.
void BM_SunRiseTimeKept(benchmark::State &state)
{
    clsPlanets chart;
    fillDelhi(chart.Person());
    chart.Calculate();
    chart.SunRiseTime();
    const long before = clsPlanets::CalculateCount();
    for (auto _ : state)
        benchmark::DoNotOptimize(chart.SunRiseTime());
    state.counters["casts"] = static_cast<double>(clsPlanets::CalculateCount() - before);
}
BENCHMARK(BM_SunRiseTimeKept);

} // namespace

int main(int argc, char **argv) { return RunBenchmarks(argc, argv); }
