// SPDX-License-Identifier: AGPL-3.0-or-later
// Every topic page of every mode, opened as the main window opens it: the page is made, fills
// itself from the session's chart and shows its part. One benchmark per topic, named by mode and
// page, so a page that joins a mode's list is measured without touching this file. Each iteration
// opens the page on a freshly cast chart, because a chart keeps what it has worked out once (sun
// events, names, the ashtakavarga); the cast itself is not timed.
#include "BenchSupport.h"
#include "output/TopicList.h"
#include "output/ui/TopicPage.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"
#include "text/TextDB.h"
#include "varsha/AnnualReading.h"

#include "app/TopicPages.h"

#include <QApplication>
#include <QDir>
#include <QLocale>

#include <memory>

namespace {

const char *modeName(int mode)
{
    switch (mode) {
    case 1: return "Horoscope";
    case 2: return "Marriage";
    case 3: return "Muhurtha";
    case 4: return "Varshaphala";
    default: return "?";
    }
}

// The bride of the Marriage mode: Mumbai, 2 March 1983, 6.10 Indian time.
void fillMumbai(clsPerson &p)
{
    p.setName(QStringLiteral("Bench Bride"));
    p.setDay(2);
    p.setMonth(3);
    p.setYear(1983);
    p.setHour(6);
    p.setMinutes(10);
    p.setGMTDIFF(QStringLiteral("5.5"));
    p.setLatDeg(19);
    p.setLatMT(4);
    p.setTextNS(QStringLiteral("N"));
    p.setLongDeg(72);
    p.setLongMT(53);
    p.setTextEW(QStringLiteral("E"));
}

std::unique_ptr<clsPlanets> cast(const QSqlDatabase &db, void (*fill)(clsPerson &))
{
    auto chart = std::make_unique<clsPlanets>();
    chart->setTextDB(db, QSqlDatabase());
    fill(chart->Person());
    chart->Calculate();
    return chart;
}

// The session the entry screen's Generate leaves for a mode: the couple's charts in Marriage,
// the native's chart in the others (with the reading's year in Varshaphala).
void generate(int mode, const QSqlDatabase &db)
{
    SessionGlobals &s = Session();
    s.ReleaseCharts();
    s.ProgMode = mode;
    if (mode == 2) {
        s.BoyPlanets = cast(db, fillDelhi);
        s.GalPlanets = cast(db, fillMumbai);
        s.VarshaPlanets = std::make_unique<clsPlanets>();
        s.VarshaPlanets->setTextDB(db, QSqlDatabase());
    } else {
        s.CurPlanets = cast(db, fillDelhi);
        if (mode == 4) {
            s.VarshaYear = 30;
            MakeVarsha();
        }
    }
}

QSqlDatabase &textDB()
{
    static QSqlDatabase db;
    return db;
}

void BM_OpenPage(benchmark::State &state, int mode, const TopicEntry &topic)
{
    if (!textDB().isOpen()) {
        state.SkipWithError("no English text database");
        return;
    }
    std::unique_ptr<TopicPage> page;
    for (auto _ : state) {
        state.PauseTiming();
        page.reset();
        generate(mode, textDB());
        state.ResumeTiming();
        page.reset(CreateTopicPage(topic.Page));
        page->Load();
        if (topic.PageArg > 0)
            page->MakePage(topic.PageArg);
    }
    page.reset();
    Session().ReleaseCharts();
}

// One year of the annual reading as the year list makes it: the annual chart cast and read,
// alone and with all nine annual pages filled. The birth chart is cast outside the timing.
void BM_AnnualYear(benchmark::State &state, bool withPages)
{
    if (!textDB().isOpen()) {
        state.SkipWithError("no English text database");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        generate(1, textDB());
        Session().ProgMode = 4;
        Session().VarshaYear = 30;
        state.ResumeTiming();
        MakeVarsha();
        if (withPages)
            for (const TopicEntry &topic : TopicsForMode(4, true)) {
                std::unique_ptr<TopicPage> page(CreateTopicPage(topic.Page));
                page->Load();
            }
    }
    ReleaseVarsha();
    Session().ReleaseCharts();
}

// One benchmark per topic of every mode's full list whose page exists.
void registerPages()
{
    benchmark::RegisterBenchmark("Varshaphala/CastYear", BM_AnnualYear, false)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Varshaphala/CastYearAndNinePages", BM_AnnualYear, true)->Unit(benchmark::kMillisecond);
    for (int mode = 1; mode <= 4; ++mode) {
        for (const TopicEntry &topic : TopicsForMode(mode, true)) {
            if (topic.Page.isEmpty())
                continue;
            std::unique_ptr<TopicPage> probe(CreateTopicPage(topic.Page));
            if (!probe)
                continue;
            QString name = QStringLiteral("%1/%2").arg(QLatin1String(modeName(mode)), topic.Page);
            if (topic.PageArg > 0)
                name += QStringLiteral("/%1").arg(topic.PageArg);
            benchmark::RegisterBenchmark(name.toStdString().c_str(), BM_OpenPage, mode, topic)->Unit(benchmark::kMillisecond);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    RegisterTopicPages();
    QApplication app(argc, argv);
    if (qEnvironmentVariableIsEmpty("ORBANTA_STUFF"))
        qputenv("ORBANTA_STUFF", QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../STUFF")).toUtf8());
    QTemporaryDir dir;
    AppSettings::setStoreFile(dir.filePath(QStringLiteral("bench.ini")));
    OpenTextDB(QStringLiteral("ENGLISH"), textDB());
    Session().TextDB = textDB();
    registerPages();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    ReleaseVarsha();
    Session().ReleaseCharts();
    Session().TextDB = QSqlDatabase();
    CloseTextDB(textDB());
    return 0;
}
