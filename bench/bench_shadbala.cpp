// SPDX-License-Identifier: AGPL-3.0-or-later
// A full Shadbala table (the thirty-one figures of seven planets) on a freshly cast chart, and the
// chart casts behind it: the sunrise, sunset and night of the birth day, the next sunrise, the
// Sun's entry into its sign and the start of its year.
#include "BenchSupport.h"
#include "sky/clsPlanets.h"
#include "strength/clsShadBala.h"

namespace {

void fillTable(clsShadBala &sb)
{
    for (int p = 1; p <= 7; ++p) {
        int q = p;
        for (int part = 1; part <= 6; ++part)
            benchmark::DoNotOptimize(sb.GetSubSthanaBala(part, p));
        benchmark::DoNotOptimize(sb.DinaRatriBala(p));
        benchmark::DoNotOptimize(sb.SBNataUnnataBala(p));
        benchmark::DoNotOptimize(sb.SBPakshaBala(p));
        benchmark::DoNotOptimize(sb.SBTriBhagaBala(p));
        benchmark::DoNotOptimize(sb.VarshaBala(q));
        benchmark::DoNotOptimize(sb.MaasBala(q));
        benchmark::DoNotOptimize(sb.SBVaraBala(p));
        benchmark::DoNotOptimize(sb.SBHoraBala(p));
        benchmark::DoNotOptimize(sb.SBAyanaBala(q));
        benchmark::DoNotOptimize(sb.SBYuddhaBala(2, p));
        benchmark::DoNotOptimize(sb.TotalShadBala(p));
        benchmark::DoNotOptimize(sb.RupaShadbala(p));
    }
}

void BM_ShadbalaTable(benchmark::State &state)
{
    long casts = 0;
    for (auto _ : state) {
        clsPlanets chart;
        fillDelhi(chart.Person());
        chart.Calculate();
        const long before = clsPlanets::CalculateCount();
        clsShadBala sb(chart);
        fillTable(sb);
        casts = clsPlanets::CalculateCount() - before;
    }
    state.counters["casts"] = static_cast<double>(casts);
}
BENCHMARK(BM_ShadbalaTable)->Unit(benchmark::kMillisecond);

// The same table when the chart's sun events are already known: what the strengths cost alone.
void BM_ShadbalaTableWarm(benchmark::State &state)
{
    clsPlanets chart;
    fillDelhi(chart.Person());
    chart.Calculate();
    {
        clsShadBala warm(chart);
        fillTable(warm);
    }
    for (auto _ : state) {
        clsShadBala sb(chart);
        fillTable(sb);
    }
}
BENCHMARK(BM_ShadbalaTableWarm)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) { return RunBenchmarks(argc, argv); }
