// SPDX-License-Identifier: AGPL-3.0-or-later
// The atlas look-ups of the entry screen and the command line over the whole shipped
// gazetteer, and the zone history of one birth.
#include "session/AtlasLookup.h"
#include "session/ZoneHistory.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

// data/atlas of the source tree, or the folder named by ORBANTA_ATLAS_DIR.
QString atlasFolder()
{
    if (const char *dir = std::getenv("ORBANTA_ATLAS_DIR"))
        return QString::fromLocal8Bit(dir);
    return QFileInfo(QStringLiteral(__FILE__)).dir().filePath(QStringLiteral("../data/atlas"));
}

const AtlasLookup &atlas()
{
    static const AtlasLookup loaded = [] {
        AtlasLookup a;
        QString error;
        if (!a.Load(atlasFolder(), &error))
            qFatal("%s", qPrintable(error));
        return a;
    }();
    return loaded;
}

void BM_AtlasLoad(benchmark::State &state)
{
    for (auto _ : state) {
        AtlasLookup a;
        benchmark::DoNotOptimize(a.Load(atlasFolder()));
    }
}
BENCHMARK(BM_AtlasLoad)->Unit(benchmark::kMillisecond);

// Typing in the place list: the first 50 names that start with the text.
void BM_PrefixSearch(benchmark::State &state)
{
    const AtlasLookup &a = atlas();
    for (auto _ : state)
        benchmark::DoNotOptimize(a.FindPlaces(QStringLiteral("Del"), QString(), 50));
}
BENCHMARK(BM_PrefixSearch)->Unit(benchmark::kMicrosecond);

// Name and country prefixes, as the entry screen's place list asks.
void BM_PrefixSearchInCountry(benchmark::State &state)
{
    const AtlasLookup &a = atlas();
    for (auto _ : state)
        benchmark::DoNotOptimize(a.FindPlaces(QStringLiteral("ra"), QStringLiteral("India"), 50));
}
BENCHMARK(BM_PrefixSearchInCountry)->Unit(benchmark::kMicrosecond);

// The worst case: every place of a country, the whole gazetteer walked.
void BM_AllPlacesOfCountry(benchmark::State &state)
{
    const AtlasLookup &a = atlas();
    for (auto _ : state)
        benchmark::DoNotOptimize(a.FindPlaces(QString(), QStringLiteral("India")));
}
BENCHMARK(BM_AllPlacesOfCountry)->Unit(benchmark::kMicrosecond);

void BM_ResolvePlace(benchmark::State &state)
{
    const AtlasLookup &a = atlas();
    for (auto _ : state)
        benchmark::DoNotOptimize(a.Resolve(QStringLiteral("London, United Kingdom")));
}
BENCHMARK(BM_ResolvePlace)->Unit(benchmark::kMicrosecond);

void BM_ZoneHistory(benchmark::State &state)
{
    const ZoneHistory zone(QStringLiteral("Europe/London"));
    for (auto _ : state)
        benchmark::DoNotOptimize(zone.At(QDate(1969, 12, 25), QTime(12, 0)));
}
BENCHMARK(BM_ZoneHistory)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
