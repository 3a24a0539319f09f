// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/PrintRun.h"

#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/TextPage.h"
#include "session/Session.h"
#include "varsha/AnnualReading.h"

#include <QCoreApplication>

int WalkSteps(const QList<PrintStep> &steps, PageCache &pages, PageOutput &out, const PrintRunHooks &hooks)
{
    int drawn = 0;
    for (int i = 0; i < steps.size(); ++i) {
        const PrintStep &step = steps[i];
        TopicPage *page = pages.load(step.Page);
        if (page) {
            out.BeginStep(step);
            if (step.MakePage > 0)
                page->MakePage(step.MakePage);
            if (step.Kind == StepKind::Text) {
                if (auto *text = qobject_cast<TextPage *>(page))
                    out.OutputTextPage(*text);
            } else {
                out.OutputPage(*page);
                ++Output().PageCounter;
            }
            ++drawn;
            if (step.Key == QLatin1String("FrontPage") && out.Mode() == 1 && hooks.frontPageDone)
                hooks.frontPageDone();
        }
        if (hooks.progress)
            hooks.progress(static_cast<int>(100.0 * (i + 1) / steps.size()));
        QCoreApplication::processEvents();
    }
    return drawn;
}

int WalkAnnualYears(const QList<PrintStep> &steps, PageCache &pages, PageOutput &out, int firstAge, int count, const PrintRunHooks &hooks,
                    QString *error)
{
    SessionGlobals &s = Session();
    const int kept = s.VarshaYear;
    int drawn = 0;
    for (int i = 0; i < count && !Output().PrintAbort; ++i) {
        pages.UnloadPages();
        s.VarshaYear = firstAge + i;
        const QString failed = MakeVarsha();
        if (!failed.isEmpty()) {
            if (error)
                *error = failed;
            break;
        }
        PrintRunHooks yearHooks = hooks;
        if (hooks.progress)
            yearHooks.progress = [&hooks, i, count](int percent) { hooks.progress((100 * i + percent) / count); };
        drawn += WalkSteps(steps, pages, out, yearHooks);
    }
    pages.UnloadPages();
    s.VarshaYear = kept;
    MakeVarsha();
    return drawn;
}
