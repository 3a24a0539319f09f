// SPDX-License-Identifier: AGPL-3.0-or-later
#include "dasha/pages/frmTribhagi.h"

#include "dasha/TribhagiDasha.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

#include <cmath>

namespace {
constexpr int kBlockW = 230, kBlockGap = 10, kRowH = 17;

QString date(const QDateTime &d) { return d.toString(QStringLiteral("dd/MM/yyyy")); }
} // namespace

void frmTribhagi::bhuktiBlock(int x, int y, const TribhagiMaha &maha)
{
    const clsPlanets &c = chart();
    addLabel(QRect(x, y, kBlockW, 20), c.VimName(maha.Period.Position), SmallBold, Qt::AlignCenter);
    const Table t = addTable(x, y + 21, {76, 77, 77}, kRowH, {}, 9, Small, true);
    const qsizetype skip = 9 - maha.Bhuktis.size();
    for (qsizetype i = 0; i < maha.Bhuktis.size(); ++i) {
        const TribhagiPeriod &b = maha.Bhuktis[i];
        const int row = static_cast<int>(skip + i);
        t.cell(row, 0)->setText(c.VimName(b.Position));
        t.cell(row, 1)->setText(date(b.Start));
        t.cell(row, 2)->setText(date(b.End));
    }
}

void frmTribhagi::fill()
{
    const clsPlanets &c = chart();
    const auto vim = [&c](const char *head) { return c.GetHeadValue(1, QString::fromLatin1(head), QStringLiteral("VimSot")).toString(); };
    const auto gen = [&c](const char *head) { return GenLabel(QString::fromLatin1(head), c); };
    lblTitle->setText(vim("Tribhagi"));
    addLabel(QRect(30, 60, 700, 22), c.Person().Name(), SubHead, Qt::AlignCenter);

    const auto mahas = Tribhagi::Mahas(c);
    const Table t = addTable(110, 88, {170, 150, 110, 110}, 21,
                             {gen("TPlanets"), c.GetHeadValue(1, QStringLiteral("Span"), QStringLiteral("Tribhagi")).toString(),
                              vim("From"), vim("To")},
                             9, Body, true);
    for (int i = 0; i < 9; ++i) {
        const TribhagiMaha &m = mahas[static_cast<size_t>(i)];
        // Years and months, the months taken whole (a hair of rounding is not a month short).
        const long months = static_cast<long>(std::floor(m.Years * 12 + 1e-9));
        t.cell(i, 0)->setText(c.VimName(m.Period.Position));
        t.cell(i, 1)->setText(QStringLiteral("%1 %2 %3 %4").arg(months / 12).arg(gen("YearSmall")).arg(months % 12).arg(gen("MonthSmall")));
        t.cell(i, 2)->setText(date(m.Period.Start));
        t.cell(i, 3)->setText(date(m.Period.End));
    }
    // The bhuktis of each Maha, three blocks a row.
    const int top = t.rect.bottom() + 20;
    for (int i = 0; i < 9; ++i)
        bhuktiBlock(30 + (i % 3) * (kBlockW + kBlockGap), top + (i / 3) * (21 + 9 * kRowH + 14), mahas[static_cast<size_t>(i)]);
    QLabel *note = addLabel(QRect(30, top + 3 * (21 + 9 * kRowH + 14) + 4, 700, 60),
                            c.GetHeadValue(1, QStringLiteral("Note"), QStringLiteral("Tribhagi")).toString(), Small,
                            Qt::AlignHCenter | Qt::AlignTop);
    note->setWordWrap(true);
}
