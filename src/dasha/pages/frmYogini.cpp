// SPDX-License-Identifier: AGPL-3.0-or-later
#include "dasha/pages/frmYogini.h"

#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

namespace {
constexpr int kTableY = 130, kRowH = 24;

QString head(const clsPlanets &c, const char *key, const char *category)
{
    return c.GetHeadValue(1, QString::fromLatin1(key), QString::fromLatin1(category)).toString();
}
} // namespace

QString frmYogini::GetYears() const { return GenLabel(QStringLiteral("YearSmall"), chart()); }

void frmYogini::table(int x, const QList<int> &widths, const YoginiRows &rows, bool numbered)
{
    const clsPlanets &c = chart();
    QStringList heads{head(c, "Dasha", "YogText"), head(c, "Lord", "YogText"), head(c, "Span", "YogText"), head(c, "Ends", "YogText")};
    if (numbered)
        heads.prepend(QString());
    const Table t = addTable(x, kTableY, widths, kRowH, heads, static_cast<int>(rows.size()), Small, !numbered);
    const int col = numbered ? 1 : 0;
    for (size_t i = 0; i < rows.size(); ++i) {
        const YoginiPeriod &r = rows[i];
        const int row = static_cast<int>(i);
        if (numbered)
            t.cell(row, 0)->setText(QString::number(r.K));
        t.cell(row, col)->setText(c.GetHeadValue(1, r.K, QStringLiteral("YogiCycleName")).toString());
        t.cell(row, col + 1)->setText(c.GetHeadValue(1, r.K, QStringLiteral("YogiCycleLordName")).toString());
        // The first row runs for its balance at birth, the others whole.
        const QString years = i == 0 ? QString::number(r.Years, 'f', 2) : QString::number(r.Years, 'f', 0);
        t.cell(row, col + 2)->setText(years + QLatin1Char(' ') + GetYears());
        t.cell(row, col + 3)->setText(r.End.toString(QStringLiteral("dd/MM/yyyy")));
    }
}

void frmYogini::YoginiDashaJanm()
{
    const clsPlanets &c = chart();
    lblTitle->setText(head(c, "Title", "YogText"));
    addLabel(QRect(30, 56, 700, 22), c.Person().Name(), SubHead, Qt::AlignCenter);
    addLabel(QRect(22, 96, 350, 26), head(c, "Name", "YogText"), SubHead, Qt::AlignCenter);
    table(22, {30, 90, 80, 68, 82}, Yogini::YoginiDasha(c), true);
    QLabel *note = addLabel(QRect(22, kTableY + 17 * kRowH + 14, 350, 90), head(c, "Note", "YogText"), Small, Qt::AlignLeft | Qt::AlignTop);
    note->setWordWrap(true);
}

void frmYogini::ShatTrimshaDasha()
{
    const clsPlanets &c = chart();
    addLabel(QRect(396, 96, 340, 26), head(c, "Name", "ShatTrimsha"), SubHead, Qt::AlignCenter);
    table(396, {95, 80, 75, 90}, Yogini::ShatTrimshaDasha(c), false);
    int y = kTableY + 17 * kRowH + 14;
    for (const char *line : {"Line1", "Line2", "Line3"}) {
        QLabel *l = addLabel(QRect(396, y, 340, 36), head(c, line, "ShatTrimsha"), Small, Qt::AlignLeft | Qt::AlignTop);
        l->setWordWrap(true);
        y += 36;
    }
}

void frmYogini::fill()
{
    YoginiDashaJanm();
    ShatTrimshaDasha();
}
