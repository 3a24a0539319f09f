// SPDX-License-Identifier: AGPL-3.0-or-later
// A full Shadbala fill (the thirty-one figures of the seven planets) and the chart casts behind
// it: the sunrise, sunset and the night of the birth day, the next sunrise, the walk back to the
// start of the Sun's year and the search for its entry into its sign.
#include "BenchSupport.h"
#include "sky/clsPlanets.h"
#include "strength/clsShadBala.h"

namespace {

// Casts the bench birth; the cast itself isn't counted.
void castDelhi(clsPlanets &chart)
{
    fillDelhi(chart.Person());
    chart.Calculate();
}

// A fresh chart each time: what a page costs when it opens on a new chart.
void BM_ShadbalaFill(benchmark::State &state)
{
    long casts = 0;
    for (auto _ : state) {
        state.PauseTiming();
        clsPlanets chart;
        castDelhi(chart);
        state.ResumeTiming();
        const long before = clsPlanets::CalculateCount();
        clsShadBala sb(chart);
        benchmark::DoNotOptimize(sb.FigureTable());
        casts = clsPlanets::CalculateCount() - before;
    }
    state.counters["casts"] = static_cast<double>(casts);
}
BENCHMARK(BM_ShadbalaFill)->Unit(benchmark::kMillisecond);

// A new object on a chart whose sun events are already known: the year walk and the month search
// are cast again, the sun events are not.
void BM_ShadbalaFillSunKnown(benchmark::State &state)
{
    clsPlanets chart;
    castDelhi(chart);
    clsShadBala(chart).FigureTable();
    long casts = 0;
    for (auto _ : state) {
        const long before = clsPlanets::CalculateCount();
        clsShadBala sb(chart);
        benchmark::DoNotOptimize(sb.FigureTable());
        casts = clsPlanets::CalculateCount() - before;
    }
    state.counters["casts"] = static_cast<double>(casts);
}
BENCHMARK(BM_ShadbalaFillSunKnown)->Unit(benchmark::kMillisecond);

// The same object filled again: the figures alone, with no cast at all.
void BM_ShadbalaFillAgain(benchmark::State &state)
{
    clsPlanets chart;
    castDelhi(chart);
    clsShadBala sb(chart);
    sb.FigureTable();
    long casts = 0;
    for (auto _ : state) {
        const long before = clsPlanets::CalculateCount();
        benchmark::DoNotOptimize(sb.FigureTable());
        casts = clsPlanets::CalculateCount() - before;
    }
    state.counters["casts"] = static_cast<double>(casts);
}
BENCHMARK(BM_ShadbalaFillAgain)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv) { return RunBenchmarks(argc, argv); }
