// SPDX-License-Identifier: AGPL-3.0-or-later
// The electional search over one year at one place with the default clock times (06.00 to
// 18.00: five moments a day), for a common act and for the act whose rules need the sunrise.
#include "BenchSupport.h"
#include "muhurtha/MuhurthaSpan.h"
#include "muhurtha/clsMuhurtha.h"
#include "sky/clsPlanets.h"

#include <QDir>

namespace {

void searchYear(benchmark::State &state, const char *code)
{
    if (qEnvironmentVariableIsEmpty("ORBANTA_STUFF"))
        qputenv("ORBANTA_STUFF", QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../STUFF")).toUtf8());
    clsMuhurtha muhu;
    if (!muhu.IsOpen()) {
        state.SkipWithError("MUHU.DAT not found");
        return;
    }
    bool found = false;
    const MuhuAct act = muhu.ActByCode(QString::fromLatin1(code), found);
    if (!found) {
        state.SkipWithError("act not found");
        return;
    }
    clsPlanets place;
    fillDelhi(place.Person());
    place.Calculate();
    const long before = clsPlanets::CalculateCount();
    long searches = 0;
    for (auto _ : state) {
        muhu.CheckMuhurtha(act.name, act.category, QDate(2025, 1, 1), QDate(2025, 12, 31), kMuhuDefaultStart, kMuhuDefaultEnd, place);
        benchmark::DoNotOptimize(muhu.BestMuhuScoreValue());
        ++searches;
    }
    state.counters["moments"] = static_cast<double>(muhu.SampleCount());
    state.counters["casts"] = searches ? static_cast<double>(clsPlanets::CalculateCount() - before) / searches : 0;
}

void BM_MuhurthaYearHouseWarming(benchmark::State &state) { searchYear(state, "GRIHAPRAVESH"); }
BENCHMARK(BM_MuhurthaYearHouseWarming)->Unit(benchmark::kMillisecond);

void BM_MuhurthaYearSurgery(benchmark::State &state) { searchYear(state, "SHALYA"); }
BENCHMARK(BM_MuhurthaYearSurgery)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) { return RunBenchmarks(argc, argv); }
