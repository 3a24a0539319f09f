// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Shared pieces of the benchmark programs: the birth they cast and their main().

#include "sky/AppSettings.h"
#include "sky/clsPerson.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

// Delhi, 15 August 1980, 14.35 Indian time.
inline void fillDelhi(clsPerson &p)
{
    p.setName(QStringLiteral("Bench"));
    p.setDay(15);
    p.setMonth(8);
    p.setYear(1980);
    p.setHour(14);
    p.setMinutes(35);
    p.setGMTDIFF(QStringLiteral("5.5"));
    p.setLatDeg(28);
    p.setLatMT(38);
    p.setTextNS(QStringLiteral("N"));
    p.setLongDeg(77);
    p.setLongMT(12);
    p.setTextEW(QStringLiteral("E"));
}

// Runs the registered benchmarks with the settings store in a throw-away file, under an
// application of the given kind (QApplication for the programs that draw pages).
template <typename App = QCoreApplication> int RunBenchmarks(int argc, char **argv)
{
    App app(argc, argv);
    QTemporaryDir dir;
    AppSettings::setStoreFile(dir.filePath(QStringLiteral("bench.ini")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
