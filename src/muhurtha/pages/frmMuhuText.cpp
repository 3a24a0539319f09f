// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/pages/frmMuhuText.h"

#include "muhurtha/clsMuhurtha.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"

#include <QTextCursor>
#include <QTextEdit>

void frmMuhuText::fill()
{
    Title(QStringLiteral("Muhurtha Analysis"));
    const clsMuhurtha *m = Session().Muhurtha.get();
    if (!m || !m->HasResult()) {
        PutText(QStringLiteral("No Muhurtha has been searched."));
        return;
    }
    PutHead(QStringLiteral("The best moment"));
    PutText(QStringLiteral("For %1, the best moment between %2 and %3 falls on %4 at %5. It scores %6 of the %7 points the act can "
                           "reach at such a moment, %8 percent, out of %9 moments cast.")
                .arg(m->MuhuName(), m->StartDate().toString(QStringLiteral("dd/MM/yyyy")), m->EndDate().toString(QStringLiteral("dd/MM/yyyy")),
                     m->BestMuhuDate().toString(QStringLiteral("dddd, d MMMM yyyy")), m->BestMuhuTime(), m->BestMuhuScore())
                .arg(m->MaxPossibleScore())
                .arg(QString::number(m->BestMuhuPercent(), 'f', 2))
                .arg(m->SampleCount()));

    PutHead(QStringLiteral("The elements that fired"));
    const auto hits = clsMuhurtha::SplitFructElems(m->BestMuhuFructElems());
    if (hits.empty())
        PutText(QStringLiteral("None of the act's elements fired at this moment."));
    QStringList lines;
    for (const MuhuElementHit &h : hits) {
        const QString name = m->GetMuhuName(h.code);
        lines << QStringLiteral("%1 (%2): %3 points").arg(name.isEmpty() ? h.code : name, h.code,
                                                          h.points > 0 ? QStringLiteral("+%1").arg(h.points) : QString::number(h.points));
    }
    if (!lines.isEmpty())
        PutText(lines.join(QLatin1Char('\n')));

    if (m->LagnaStartChart() && m->LagnaEndChart()) {
        PutHead(QStringLiteral("The rising sign"));
        PutText(QStringLiteral("The Lagna of the best moment rises at %1 and gives way to the next sign at %2. The central rite of "
                               "the act belongs inside this span.")
                    .arg(clsMuhurtha::MomentText(*m->LagnaStartChart()), clsMuhurtha::MomentText(*m->LagnaEndChart())));
    }

    PutHead(QStringLiteral("The other moments of the day"));
    QStringList day;
    for (long i = 1; i <= m->GetBestDayMuhusCount(); ++i)
        day << QStringLiteral("%1: %2").arg(m->GetDayMuhuTime(i), QString::number(m->GetDayMuhuScore(i)));
    PutText(day.join(QLatin1Char('\n')));

    const QString reading = m->PredictionText();
    if (!reading.isEmpty()) {
        PutHead(QStringLiteral("Reading"));
        PutText(reading);
    }
    rtfText->moveCursor(QTextCursor::Start);
}
