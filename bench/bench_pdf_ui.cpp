// SPDX-License-Identifier: AGPL-3.0-or-later
// A full horoscope of every topic the program has, written to a PDF file, as 'orbanta pdf' does:
// the pages load and fill, then each is drawn.
#include "BenchSupport.h"
#include "output/PrintTree.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"
#include "text/TextDB.h"

#include "app/TopicPages.h"

#include <QApplication>
#include <QDir>

namespace {

void BM_FullHoroscopePdf(benchmark::State &state)
{
    if (qEnvironmentVariableIsEmpty("ORBANTA_STUFF"))
        qputenv("ORBANTA_STUFF", QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../STUFF")).toUtf8());
    QTemporaryDir dir;
    QSqlDatabase db;
    if (!OpenTextDB(QStringLiteral("ENGLISH"), db)) {
        state.SkipWithError("no English text database");
        return;
    }
    const QStringList keys = PrintKeys(1, false);
    const QSet<QString> all(keys.begin(), keys.end());
    int pagesWritten = 0;
    for (auto _ : state) {
        auto chart = std::make_unique<clsPlanets>();
        chart->setTextDB(db, QSqlDatabase());
        fillDelhi(chart->Person());
        chart->Calculate();
        Session().ProgMode = 1;
        Session().TextDB = db;
        Session().CurPlanets = std::move(chart);
        clsPDFExporter pdf;
        pdf.filename = dir.filePath(QStringLiteral("bench.pdf"));
        pdf.StartExport();
        Output() = OutputState{};
        PageCache pages;
        PageOutput out(nullptr, nullptr, &pdf);
        WalkSteps(SelectedSteps(1, false, all), pages, out);
        pages.UnloadPages();
        pdf.FinishFile();
        pagesWritten = pdf.surface().PageCount();
        Session().ReleaseCharts();
    }
    state.counters["pages"] = pagesWritten;
    Session().TextDB = QSqlDatabase();
    CloseTextDB(db);
}
BENCHMARK(BM_FullHoroscopePdf)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    RegisterTopicPages();
    return RunBenchmarks<QApplication>(argc, argv);
}
