// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/pages/frmMuhuCover.h"

#include "chartdraw/ChartFill.h"
#include "chartdraw/ui/Kundali.h"
#include "muhurtha/clsMuhurtha.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"

namespace {
// The page's words, from the text database of the session's language.
QString mw(const char *key)
{
    const clsPlanets *c = Session().CurPlanets.get();
    return c ? c->GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("MuhuPage")).toString() : QString();
}
QString clock(double t) { return QString::asprintf("%05.2f", t); }
QString day(const QDate &d) { return d.toString(QStringLiteral("dddd, dd/MM/yyyy")); }
} // namespace

void frmMuhuCover::fill()
{
    lblTitle->setText(mw("Title"));
    const clsMuhurtha *m = Session().Muhurtha.get();
    if (!m || !m->HasResult()) {
        addLabel(QRect(30, 80, 700, 30), mw("NoSearch"), Body);
        return;
    }
    const clsPerson &place = chart().Person();
    const Facts act{
        {mw("Act"), m->MuhuName()},
        {mw("Category"), m->MuhuCategory()},
        {mw("Place"), place.PLOB().isEmpty() ? QStringLiteral("-") : place.GetBirthPlace()},
        {mw("LatLong"), place.GetLatitudeFull() + QStringLiteral(" / ") + place.GetLongitudeFull()},
        {mw("Zone"), place.GMTDIFF()},
        {mw("From"), m->StartDate().toString(QStringLiteral("dd/MM/yyyy"))},
        {mw("To"), m->EndDate().toString(QStringLiteral("dd/MM/yyyy"))},
        {mw("ClockTimes"), clock(m->TimeStart()) + QLatin1Char(' ') + mw("ToWord") + QLatin1Char(' ') + clock(m->TimeEnd())},
        {mw("Moments"), QString::number(m->SampleCount())},
    };
    addFacts(30, 70, 140, 190, mw("TheSearch"), act);

    Facts best{
        {mw("Date"), day(m->BestMuhuDate())},
        {mw("Time"), m->BestMuhuTime()},
        {mw("Score"), m->BestMuhuScore() + QLatin1Char(' ') + mw("OfWord") + QLatin1Char(' ') + QString::number(m->MaxPossibleScore())},
        {mw("Percentage"), QString::number(m->BestMuhuPercent(), 'f', 2) + QStringLiteral(" %")},
    };
    if (m->LagnaStartChart() && m->LagnaEndChart()) {
        best.append({mw("LagnaRises"), clsMuhurtha::MomentText(*m->LagnaStartChart())});
        best.append({mw("LagnaSets"), clsMuhurtha::MomentText(*m->LagnaEndChart())});
    }
    best.append({mw("ElementsFired"), QString::number(clsMuhurtha::SplitFructElems(m->BestMuhuFructElems()).size())});
    addFacts(400, 70, 120, 220, mw("BestMoment"), best);

    if (const clsPlanets *b = m->BestChart()) {
        Kundali *k = addChart(QRect(190, 330, 380, 380), mw("BestChart"));
        k->setObjectName(QStringLiteral("kunMuhurtha"));
        FillVargaKundali(k->model(), *b, 1, true);
    }

    const long n = m->GetBestDayMuhusCount();
    addLabel(QRect(30, 735, 700, 24), mw("BestDay") + QStringLiteral(", ") + day(m->BestMuhuDate()), SubHead, Qt::AlignHCenter | Qt::AlignVCenter);
    const Table t = addTable(230, 765, {150, 150}, 24, {mw("Time"), mw("Score")}, static_cast<int>(n), Body);
    for (long i = 1; i <= n; ++i) {
        t.cell(static_cast<int>(i - 1), 0)->setText(m->GetDayMuhuTime(i));
        t.cell(static_cast<int>(i - 1), 1)->setText(QString::number(m->GetDayMuhuScore(i)));
    }
}
