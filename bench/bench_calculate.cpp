// SPDX-License-Identifier: AGPL-3.0-or-later
// One chart cast, beside the bare ephemeris calls that it makes.
#include "BenchSupport.h"
#include "sky/clsPlanets.h"


#include <benchmark/benchmark.h>
#include <swephexp.h>

namespace {

void BM_Calculate(benchmark::State &state)
{
    for (auto _ : state) {
        clsPlanets chart;
        fillDelhi(chart.Person());
        chart.Calculate();
        benchmark::DoNotOptimize(chart.PlanetLongi(7));
    }
}
BENCHMARK(BM_Calculate);

// The library calls of one cast: two moments of eleven bodies, the houses, delta T and
// the Krishnamurti ayanamsa twice (the KP cusps and the KP Lagna).
void BM_EphemerisCallsOfOneCast(benchmark::State &state)
{
    for (auto _ : state) {
        double sum = 0;
        for (int moment = 0; moment < 2; ++moment) {
            const double hour = 9.0833333 + moment;
            double tjd = swe_julday(1980, 8, 15, hour, SE_GREG_CAL);
            swe_date_conversion(1980, 8, 15, hour, 'g', &tjd);
            for (int ipl = 0; ipl <= 10; ++ipl) {
                double xx[6];
                char serr[AS_MAXCH];
                swe_calc(tjd, ipl, 0, xx, serr);
                sum += xx[0];
            }
            if (moment == 0) {
                const double tjd2 = tjd - swe_deltat(tjd);
                double cusps[13], ascmc[10];
                swe_houses(tjd2, 28.6333, 77.2, 'P', cusps, ascmc);
                sum += cusps[1];
            }
        }
        for (int k = 0; k < 2; ++k) {
            double tjd = swe_julday(1980, 8, 15, 9.0833333, SE_GREG_CAL);
            swe_date_conversion(1980, 8, 15, 9.0833333, 'g', &tjd);
            swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
            sum += swe_get_ayanamsa(tjd);
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_EphemerisCallsOfOneCast);

} // namespace

int main(int argc, char **argv) { return RunBenchmarks(argc, argv); }
