// SPDX-License-Identifier: AGPL-3.0-or-later
// The moving sky's tick, as the timer runs it: step the clock, cast the chart, repaint the
// canvas and the values, with the window shown on the offscreen platform. The rate is the
// benchmark's items per second; the animation wants at least 20.
#include "BenchSupport.h"
#include "muhurtha/ui/frmVisualTransits.h"

#include <QRadioButton>
#include "sky/clsPlanets.h"

#include <QApplication>

namespace {

void BM_TransitTick(benchmark::State &state, int unitButton)
{
    clsPlanets natal;
    fillDelhi(natal.Person());
    natal.Calculate();
    frmVisualTransits sky(natal);
    sky.resize(820, 480);
    sky.show();
    QRadioButton *units[] = {sky.optMins, sky.optDays, sky.optCenturies};
    units[unitButton]->setChecked(true);
    sky.setMoment(QDateTime(QDate(2026, 1, 1), QTime(6, 0), Qt::UTC));
    QApplication::processEvents();
    for (auto _ : state) {
        sky.Tick();
        // The repaint the tick asked for, done now.
        QApplication::processEvents();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(BM_TransitTick, minutes, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_TransitTick, days, 1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_TransitTick, centuries, 2)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return RunBenchmarks<QApplication>(argc, argv);
}
