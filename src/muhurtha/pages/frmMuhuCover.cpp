// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/pages/frmMuhuCover.h"

#include "chartdraw/ChartFill.h"
#include "chartdraw/ui/Kundali.h"
#include "muhurtha/clsMuhurtha.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"

namespace {
QString clock(double t) { return QString::asprintf("%05.2f", t); }
QString day(const QDate &d) { return d.toString(QStringLiteral("dddd, dd/MM/yyyy")); }
} // namespace

void frmMuhuCover::fill()
{
    lblTitle->setText(QStringLiteral("Muhurtha"));
    const clsMuhurtha *m = Session().Muhurtha.get();
    if (!m || !m->HasResult()) {
        addLabel(QRect(30, 80, 700, 30), QStringLiteral("No Muhurtha has been searched."), Body);
        return;
    }
    const clsPerson &place = chart().Person();
    const Facts act{
        {QStringLiteral("Act"), m->MuhuName()},
        {QStringLiteral("Category"), m->MuhuCategory()},
        {QStringLiteral("Place"), place.PLOB().isEmpty() ? QStringLiteral("-") : place.GetBirthPlace()},
        {QStringLiteral("Latitude / Longitude"), place.GetLatitudeFull() + QStringLiteral(" / ") + place.GetLongitudeFull()},
        {QStringLiteral("Zone (GMT)"), place.GMTDIFF()},
        {QStringLiteral("From"), m->StartDate().toString(QStringLiteral("dd/MM/yyyy"))},
        {QStringLiteral("To"), m->EndDate().toString(QStringLiteral("dd/MM/yyyy"))},
        {QStringLiteral("Clock times"), clock(m->TimeStart()) + QStringLiteral(" to ") + clock(m->TimeEnd())},
        {QStringLiteral("Moments cast"), QString::number(m->SampleCount())},
    };
    addFacts(30, 70, 140, 190, QStringLiteral("The search"), act);

    Facts best{
        {QStringLiteral("Date"), day(m->BestMuhuDate())},
        {QStringLiteral("Time"), m->BestMuhuTime()},
        {QStringLiteral("Score"), m->BestMuhuScore() + QStringLiteral(" of ") + QString::number(m->MaxPossibleScore())},
        {QStringLiteral("Percentage"), QString::number(m->BestMuhuPercent(), 'f', 2) + QStringLiteral(" %")},
    };
    if (m->LagnaStartChart() && m->LagnaEndChart()) {
        best.append({QStringLiteral("Lagna rises"), clsMuhurtha::MomentText(*m->LagnaStartChart())});
        best.append({QStringLiteral("Lagna sets"), clsMuhurtha::MomentText(*m->LagnaEndChart())});
    }
    best.append({QStringLiteral("Elements fired"), QString::number(clsMuhurtha::SplitFructElems(m->BestMuhuFructElems()).size())});
    addFacts(400, 70, 120, 220, QStringLiteral("The best moment"), best);

    if (const clsPlanets *b = m->BestChart()) {
        Kundali *k = addChart(QRect(190, 330, 380, 380), QStringLiteral("Chart of the best moment"));
        k->setObjectName(QStringLiteral("kunMuhurtha"));
        FillVargaKundali(k->model(), *b, 1, true);
    }

    const long n = m->GetBestDayMuhusCount();
    addLabel(QRect(30, 735, 700, 24), QStringLiteral("Moments of the best day, ") + day(m->BestMuhuDate()), SubHead, Qt::AlignHCenter | Qt::AlignVCenter);
    const Table t = addTable(230, 765, {150, 150}, 24, {QStringLiteral("Time"), QStringLiteral("Score")}, static_cast<int>(n), Body);
    for (long i = 1; i <= n; ++i) {
        t.cell(static_cast<int>(i - 1), 0)->setText(m->GetDayMuhuTime(i));
        t.cell(static_cast<int>(i - 1), 1)->setText(QString::number(m->GetDayMuhuScore(i)));
    }
}
