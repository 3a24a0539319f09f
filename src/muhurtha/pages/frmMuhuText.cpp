// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/pages/frmMuhuText.h"

#include "muhurtha/clsMuhurtha.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"

#include <QTextCursor>
#include <QTextEdit>

namespace {
// The page's words, from the text database of the session's language.
QString mw(const char *key)
{
    const clsPlanets *c = Session().CurPlanets.get();
    return c ? c->GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("MuhuPage")).toString() : QString();
}
} // namespace

void frmMuhuText::fill()
{
    Title(mw("AnalysisTitle"));
    const clsMuhurtha *m = Session().Muhurtha.get();
    if (!m || !m->HasResult()) {
        PutText(mw("NoSearch"));
        return;
    }
    PutHead(mw("BestMoment"));
    PutText(mw("BestText")
                .arg(m->MuhuName(), m->StartDate().toString(QStringLiteral("dd/MM/yyyy")), m->EndDate().toString(QStringLiteral("dd/MM/yyyy")),
                     m->BestMuhuDate().toString(QStringLiteral("dddd, d MMMM yyyy")), m->BestMuhuTime(), m->BestMuhuScore())
                .arg(m->MaxPossibleScore())
                .arg(QString::number(m->BestMuhuPercent(), 'f', 2))
                .arg(m->SampleCount()));

    PutHead(mw("ElementsHead"));
    const auto hits = clsMuhurtha::SplitFructElems(m->BestMuhuFructElems());
    if (hits.empty())
        PutText(mw("NoElements"));
    QStringList lines;
    for (const MuhuElementHit &h : hits) {
        const QString name = m->GetMuhuName(h.code);
        lines << mw("ElementLine").arg(name.isEmpty() ? h.code : name, h.code,
                                                          h.points > 0 ? QStringLiteral("+%1").arg(h.points) : QString::number(h.points));
    }
    if (!lines.isEmpty())
        PutText(lines.join(QLatin1Char('\n')));

    if (m->LagnaStartChart() && m->LagnaEndChart()) {
        PutHead(mw("RisingHead"));
        PutText(mw("RisingText")
                    .arg(clsMuhurtha::MomentText(*m->LagnaStartChart()), clsMuhurtha::MomentText(*m->LagnaEndChart())));
    }

    PutHead(mw("OtherMoments"));
    QStringList day;
    for (long i = 1; i <= m->GetBestDayMuhusCount(); ++i)
        day << QStringLiteral("%1: %2").arg(m->GetDayMuhuTime(i), QString::number(m->GetDayMuhuScore(i)));
    PutText(day.join(QLatin1Char('\n')));

    const QString reading = m->PredictionText();
    if (!reading.isEmpty()) {
        PutHead(mw("Reading"));
        PutText(reading);
    }
    rtfText->moveCursor(QTextCursor::Start);
}
