// SPDX-License-Identifier: AGPL-3.0-or-later
// Start-up: from main() to the entry screen on view, as the program starts without arguments
// (the application, the splash's stages, the main window shown and painted), on the offscreen
// platform with a user data folder of its own.
//
// A start happens once per process, so BM_StartToEntryScreen runs this program again as a child
// for each iteration; the child times itself from the first line of its main() and prints the
// figure, which becomes the iteration's time. The counter "process_ms" adds the launch of the
// executable (loading the libraries) and its exit. BM_SplashAndMainWindow repeats the
// program's own part inside one running application, without Qt's start.
#include "sky/AppSettings.h"
#include "session/ui/MessageBoxSink.h"
#include "session/ui/frmMessage.h"
#include "session/ui/frmSplash.h"

#include "app/TopicPages.h"
#include "app/mdiMother.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QLocale>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWindow>

#include <cstdio>

namespace {

constexpr const char *kChildFlag = "--start-once";

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("Orbanta"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORBANTA_VERSION));
}

// The splash with its stages, then the main window until its first paint is done.
bool splashAndMainWindow()
{
    frmSplash splash;
    splash.show();
    const bool loaded = splash.DoLoad();
    splash.close();
    if (!loaded)
        return false;
    mdiMother main;
    main.show();
    QWindow *window = main.windowHandle();
    while (!window || !window->isExposed()) {
        QApplication::processEvents();
        window = main.windowHandle();
    }
    QApplication::processEvents();
    return true;
}

// What main() does before the event loop, timed from its first line. Prints the nanoseconds.
int startOnce(int argc, char **argv)
{
    QElapsedTimer timer;
    timer.start();
    QLocale::setDefault(QLocale::c());
    RegisterTopicPages();
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    nameApplication();
    MessageBoxSink boxes;
    const ScopedMessageSink answerWithBoxes(&boxes);
    if (!splashAndMainWindow())
        return 1;
    std::printf("%lld\n", static_cast<long long>(timer.nsecsElapsed()));
    return 0;
}

// Why a start would stop at a message box on this machine, or empty when it won't.
QString modalBoxAhead()
{
    const QScreen *screen = QApplication::primaryScreen();
    if (screen && frmMessage::LowResolutionWanted(screen->geometry().width()))
        return QStringLiteral("the screen is too small: the start would ask about the resolution");
    const QStringList families = QFontDatabase::families();
    for (const QString &family : {QStringLiteral("FreeSerif"), QStringLiteral("DejaVu Sans")})
        if (!families.contains(family))
            return QStringLiteral("font %1 is not installed: the start would say so in a message box").arg(family);
    return {};
}

void BM_StartToEntryScreen(benchmark::State &state)
{
    if (const QString why = modalBoxAhead(); !why.isEmpty()) {
        state.SkipWithError(why.toStdString().c_str());
        return;
    }
    const auto runChild = [](qint64 *reported, qint64 *wall) {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QElapsedTimer timer;
        timer.start();
        child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kChildFlag)});
        const bool done = child.waitForFinished(60000) && child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0;
        *wall = timer.nsecsElapsed();
        bool ok = false;
        *reported = child.readAllStandardOutput().trimmed().toLongLong(&ok);
        return done && ok;
    };
    // The first start of a fresh user folder copies the records database into it; time the
    // starts after it, as a user meets them every day.
    qint64 reported = 0, wall = 0;
    if (!runChild(&reported, &wall)) {
        state.SkipWithError("the program did not reach its entry screen");
        return;
    }
    double wallSum = 0;
    for (auto _ : state) {
        if (!runChild(&reported, &wall)) {
            state.SkipWithError("the program did not reach its entry screen");
            return;
        }
        state.SetIterationTime(reported / 1e9);
        wallSum += wall / 1e6;
    }
    state.counters["process_ms"] = benchmark::Counter(wallSum, benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_StartToEntryScreen)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_SplashAndMainWindow(benchmark::State &state)
{
    if (const QString why = modalBoxAhead(); !why.isEmpty()) {
        state.SkipWithError(why.toStdString().c_str());
        return;
    }
    for (auto _ : state) {
        if (!splashAndMainWindow()) {
            state.SkipWithError("the splash stopped the start");
            return;
        }
    }
}
BENCHMARK(BM_SplashAndMainWindow)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 1 && qstrcmp(argv[1], kChildFlag) == 0)
        return startOnce(argc, argv);

    // A home of its own, which the children inherit: their settings, their copy of the records
    // database and their caches start empty and are thrown away at the end.
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale::c());
    RegisterTopicPages();
    QApplication app(argc, argv);
    nameApplication();
    if (qEnvironmentVariableIsEmpty("ORBANTA_STUFF"))
        qputenv("ORBANTA_STUFF", QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../STUFF")).toUtf8());
    // The set-up wizard has been through once, as on any start but the first; the window never
    // asks on closing.
    AppSettings::setValue(QStringLiteral("Settings"), QStringLiteral("DoneSetup"), true);
    mdiMother::setAskOnExit(false);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
