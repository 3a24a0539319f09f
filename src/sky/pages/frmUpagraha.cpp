// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/pages/frmUpagraha.h"

#include "sky/Functions.h"
#include "sky/SunEvents.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

namespace {
constexpr int kRowH = 21;
const QList<int> kWidths{150, 100, 90, 100, 130, 50};
constexpr int kTableX = (TopicPage::kWidth - 620) / 2;

// "hh:mm" of an hh.mm clock.
QString clock(double hhmm)
{
    const long h = static_cast<long>(Fix(hhmm));
    return Two(h) + QLatin1Char(':') + Two(CLng(Frac(hhmm) * 100));
}
} // namespace

QString frmUpagraha::upa(const char *key) const
{
    return chart().GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("Upagraha")).toString();
}

int frmUpagraha::group(int y, const QString &heading, int first, int last, int mode)
{
    const clsPlanets &c = chart();
    const auto gen = [&c](const char *head) { return GenLabel(QString::fromLatin1(head), c); };
    addLabel(QRect(kTableX, y, 620, 24), heading, SubHead, Qt::AlignCenter);
    const QStringList heads{upa("Upagrahas"), gen("Rashi"), gen("Degrees"), upa("Lord"), gen("Nak"), gen("Pada")};
    const Table t = addTable(kTableX, y + 26, kWidths, kRowH, heads, last - first + 1, Small, true);
    for (int n = first; n <= last; ++n) {
        const double l = mode == 0 ? c.UpagrahaLongi(n) : c.UpagrahaLongiInMode(n, mode);
        const int row = n - first;
        t.cell(row, 0)->setText(c.UpagrahaName(n));
        t.cell(row, 1)->setText(c.ConvertToDegNoVal(l));
        t.cell(row, 2)->setText(clsPlanets::ConvertValNoDeg(l));
        t.cell(row, 3)->setText(c.PlanetNameFull(clsPlanets::SignLord(clsPlanets::UpagrahaSignOf(l))));
        t.cell(row, 4)->setText(c.GetNakshatraName(clsPlanets::NakshatraNum(l)));
        t.cell(row, 5)->setText(QString::number(clsPlanets::NakPadaNum(l)));
    }
    return t.rect.bottom() + 16;
}

void frmUpagraha::fill()
{
    const clsPlanets &c = chart();
    lblTitle->setText(upa("Title"));
    addLabel(QRect(30, 56, 700, 22), c.Person().Name(), SubHead, Qt::AlignCenter);

    int y = group(96, upa("SunUpaTable"), 1, 9, 0);
    if (c.DayPartsHaveSun()) {
        // Where the day parts are counted from.
        const QString when = upa(c.DayBirth() ? "ByDay" : "ByNight");
        addLabel(QRect(kTableX, y, 620, 20),
                 upa("SunRise") + QLatin1Char(' ') + clock(c.SunRiseTime()) + QStringLiteral("   ") + upa("SunSet") + QLatin1Char(' ') +
                     clock(c.SunSetTime()) + QStringLiteral("   ") + when,
                 Small, Qt::AlignCenter);
        y = group(y + 24, upa("UpaDayParaHead"), 10, 17, 2);
        y = group(y, upa("UpaDayKaliHead"), 10, 17, 1);
        QLabel *note = addLabel(QRect(kTableX, y, 620, 60), upa("SchoolNote"), Small, Qt::AlignHCenter | Qt::AlignTop);
        note->setWordWrap(true);
        return;
    }
    // No sunrise or no sunset: nothing to count the parts of the day from.
    SunDay kind = SunDay::Normal;
    for (int day : {0, -1, 1})
        if (kind == SunDay::Normal)
            kind = SunDayKind(c, day);
    QLabel *said = addLabel(QRect(kTableX, y + 10, 620, 24), upa(kind == SunDay::PolarNight ? "NoSunRise" : "NoSunSet"), SubHead,
                            Qt::AlignCenter);
    said->setObjectName(QStringLiteral("lblNoSun"));
    QLabel *why = addLabel(QRect(kTableX, y + 40, 620, 80), upa("NoDayParts"), Body, Qt::AlignHCenter | Qt::AlignTop);
    why->setWordWrap(true);
}
