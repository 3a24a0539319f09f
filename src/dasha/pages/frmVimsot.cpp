// SPDX-License-Identifier: AGPL-3.0-or-later
#include "dasha/pages/frmVimsot.h"

#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

namespace {
constexpr int kBlockW = 230, kBlockGap = 10, kRowH = 17;
QDateTime g_today;

QString date(const QDateTime &d) { return d.toString(QStringLiteral("dd/MM/yyyy")); }
} // namespace

void frmVimsot::subBlock(int x, int y, const DashaPeriod &parent, bool withEnd)
{
    const clsPlanets &c = chart();
    addLabel(QRect(x, y, kBlockW, 20), c.PlanetNameFull(parent.Lord), SmallBold, Qt::AlignCenter);
    const QList<int> widths = withEnd ? QList<int>{76, 77, 77} : QList<int>{115, 115};
    const Table t = addTable(x, y + 21, widths, kRowH, {}, 9, Small, true);
    const DashaLevel subs = Vimshottari::SubPeriods(parent);
    for (int i = 0; i < 9; ++i) {
        const DashaPeriod &s = subs[static_cast<size_t>(i)];
        t.cell(i, 0)->setText(withEnd ? c.PlanetNameSmall(s.Lord) : c.PlanetNameFull(s.Lord));
        t.cell(i, 1)->setText(date(s.Start));
        if (withEnd)
            t.cell(i, 2)->setText(date(Vimshottari::End(s)));
    }
}

void frmVimsot::fill()
{
    const clsPlanets &c = chart();
    const auto vim = [&c](const char *head) { return c.GetHeadValue(1, QString::fromLatin1(head), QStringLiteral("VimSot")).toString(); };
    lblTitle->setText(vim("Title"));
    const DashaLevel mahas = Vimshottari::Mahas(c);

    addLabel(QRect(30, 60, 700, 22), c.Person().Name(), SubHead, Qt::AlignCenter);
    const Table t = addTable(130, 88, {170, 120, 110, 110}, 21,
                             {GenLabel(QStringLiteral("TPlanets"), c), GenLabel(QStringLiteral("Years"), c), vim("From"), vim("To")}, 9,
                             Body, true);
    for (int i = 0; i < 9; ++i) {
        const DashaPeriod &m = mahas[static_cast<size_t>(i)];
        t.cell(i, 0)->setText(c.PlanetNameFull(m.Lord));
        t.cell(i, 1)->setText(QString::number(clsPlanets::GetVimSotPeriods(m.Lord)) + QLatin1Char(' ') + GenLabel(QStringLiteral("Years"), c));
        t.cell(i, 2)->setText(date(m.Start));
        t.cell(i, 3)->setText(date(Vimshottari::End(m)));
    }
    // The Antars of each Maha, three blocks a row.
    const int top = t.rect.bottom() + 20;
    for (int i = 0; i < 9; ++i)
        subBlock(30 + (i % 3) * (kBlockW + kBlockGap), top + (i / 3) * (21 + 9 * kRowH + 14), mahas[static_cast<size_t>(i)], false);
}

frmPratyan::frmPratyan(QWidget *parent) : frmVimsot(parent) { setObjectName(QStringLiteral("frmPratyan")); }

void frmPratyan::setToday(const QDateTime &today) { g_today = today; }

void frmPratyan::fill()
{
    const clsPlanets &c = chart();
    const auto vim = [&c](const char *head) { return c.GetHeadValue(1, QString::fromLatin1(head), QStringLiteral("VimSot")).toString(); };
    lblTitle->setText(c.GetHeadValue(1, QStringLiteral("TITLE"), QStringLiteral("PRATYAN")).toString());
    const DashaLevel mahas = Vimshottari::Mahas(c);
    const QDateTime today = g_today.isValid() ? g_today : QDateTime(QDate::currentDate(), QTime(0, 0), Qt::UTC);
    const int running = Vimshottari::RunningMaha(c, mahas, today);

    addLabel(QRect(30, 60, 700, 22), c.Person().Name(), SubHead, Qt::AlignCenter);
    // The Antars of the running Maha; with none running, the Mahas themselves.
    const DashaLevel top = running >= 0 ? Vimshottari::SubPeriods(mahas[static_cast<size_t>(running)]) : mahas;
    if (running >= 0)
        addLabel(QRect(30, 84, 700, 20), c.PlanetNameFull(mahas[static_cast<size_t>(running)].Lord), SmallBold, Qt::AlignCenter);
    const Table t = addTable(160, 106, {170, 110, 110}, 21, {GenLabel(QStringLiteral("TPlanets"), c), vim("From"), vim("To")}, 9, Body, true);
    for (int i = 0; i < 9; ++i) {
        const DashaPeriod &a = top[static_cast<size_t>(i)];
        t.cell(i, 0)->setText(c.PlanetNameFull(a.Lord));
        t.cell(i, 1)->setText(date(a.Start));
        t.cell(i, 2)->setText(date(Vimshottari::End(a)));
    }
    const int y0 = t.rect.bottom() + 20;
    for (int i = 0; i < 9; ++i)
        subBlock(30 + (i % 3) * (kBlockW + kBlockGap), y0 + (i / 3) * (21 + 9 * kRowH + 14), top[static_cast<size_t>(i)], true);
}
