// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/pages/frmAshtak.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

using namespace Ashtakavarga;

namespace {
// The seven planets in the order of the page: Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn.
inline constexpr std::array<int, 7> kSeven{1, 7, 4, 2, 5, 3, 6};
} // namespace

void frmAshtak::fill()
{
    const clsPlanets &c = chart();
    const auto gen = [&c](const char *head) { return GenLabel(QString::fromLatin1(head), c); };
    lblTitle->setText(gen("AshtakPage"));
    addLabel(QRect(30, 56, 700, 20), c.Person().Name(), SmallBold, Qt::AlignCenter);

    // Block 1: every table, with the seven planets' total beside them.
    QStringList heads{gen("Rashi")};
    for (int p : kSeven)
        heads << c.PlanetNameFull(p);
    heads << gen("Total") << c.PlanetNameFull(8) << c.PlanetNameFull(0);
    addLabel(QRect(45, 78, 670, 22), gen("AshtVarga"), SubHead, Qt::AlignCenter);
    const Table all = addTable(45, 102, {94, 56, 56, 56, 60, 56, 56, 56, 56, 56, 68}, 19, heads, 12, Small, true);

    addLabel(QRect(20, 368, 350, 22), gen("TrikonShodhan"), SubHead, Qt::AlignCenter);
    addLabel(QRect(390, 368, 350, 22), gen("EkadhShodhan"), SubHead, Qt::AlignCenter);
    QStringList short7{gen("Rashi")};
    for (int p : kSeven)
        short7 << c.PlanetName(p);
    const QList<int> narrow{84, 38, 38, 38, 38, 38, 38, 38};
    const Table trikona = addTable(20, 392, narrow, 19, short7, 12, Small, true);
    const Table ekadhi = addTable(390, 392, narrow, 19, short7, 12, Small, true);

    for (int s = 1; s <= 12; ++s) {
        const QString sign = c.ConvertRashi(s);
        all.cell(s - 1, 0)->setText(sign);
        trikona.cell(s - 1, 0)->setText(sign);
        ekadhi.cell(s - 1, 0)->setText(sign);
    }

    const std::array<bool, 13> occupied = OccupiedSigns(c);
    std::array<int, 13> total{};
    for (size_t i = 0; i < kSeven.size(); ++i) {
        const int p = kSeven[i];
        for (int g = 0; g < 8; ++g)
            c.AshComp(Flags(p, g), c.PlanetRashiNum(kGivers[static_cast<size_t>(g)]));
        Signs a{};
        for (int s = 1; s <= 12; ++s)
            a[static_cast<size_t>(s)] = c.Ashtak(s);
        const Signs t = TrikonaShodhan(a);
        const Signs e = EkadhipatyaShodhan(t, occupied);
        for (int s = 1; s <= 12; ++s) {
            all.cell(s - 1, static_cast<int>(i) + 1)->setText(QString::number(a[static_cast<size_t>(s)]));
            trikona.cell(s - 1, static_cast<int>(i) + 1)->setText(QString::number(t[static_cast<size_t>(s)]));
            ekadhi.cell(s - 1, static_cast<int>(i) + 1)->setText(QString::number(e[static_cast<size_t>(s)]));
            total[static_cast<size_t>(s)] += a[static_cast<size_t>(s)];
            c.setAshtak(s, 0);
        }
        m_g[static_cast<size_t>(p)] = e;
    }
    // Rahu's and the Lagna's tables stand beside the total, unreduced.
    for (auto [table, column] : {std::pair{8, 9}, std::pair{0, 10}}) {
        for (int g = 0; g < 8; ++g)
            c.AshComp(Flags(table, g), c.PlanetRashiNum(kGivers[static_cast<size_t>(g)]));
        for (int s = 1; s <= 12; ++s) {
            all.cell(s - 1, column)->setText(QString::number(c.Ashtak(s)));
            c.setAshtak(s, 0);
        }
    }
    for (int s = 1; s <= 12; ++s)
        all.cell(s - 1, 8)->setText(QString::number(total[static_cast<size_t>(s)]));

    // The Shodhya Pinda of each planet from its reduced table.
    addLabel(QRect(180, 654, 400, 22), gen("ShodhyaPinda"), SubHead, Qt::AlignCenter);
    const Table pinda = addTable(180, 678, {100, 100, 100, 100}, 20, {gen("Pinda"), gen("Rasi"), gen("Graha"), gen("Shodhya")}, 7,
                                 Body, true);
    for (size_t i = 0; i < kSeven.size(); ++i) {
        const int p = kSeven[i];
        const Signs &g = m_g[static_cast<size_t>(p)];
        const int rasi = RasiPinda(g), graha = GrahaPinda(g, c);
        pinda.cell(static_cast<int>(i), 0)->setText(c.PlanetName(p));
        pinda.cell(static_cast<int>(i), 1)->setText(QString::number(rasi));
        pinda.cell(static_cast<int>(i), 2)->setText(QString::number(graha));
        pinda.cell(static_cast<int>(i), 3)->setText(QString::number(rasi + graha));
    }
}

frmBhinnaAshtak::frmBhinnaAshtak(int part, QWidget *parent)
    : TopicPage(part == 1 ? QStringLiteral("frmBhinnaAshtak") : QStringLiteral("frmBhinnaAshtak2"), parent), m_part(part)
{
}

void frmBhinnaAshtak::fill()
{
    const clsPlanets &c = chart();
    const auto gen = [&c](const char *head) { return GenLabel(QString::fromLatin1(head), c); };
    lblTitle->setText(gen("BhinnAsht") + (m_part == 1 ? QStringLiteral(" - 1") : QStringLiteral(" - 2")));
    // The givers as the grids list them: Saturn, Jupiter, Mars, Sun, Venus, Mercury, Moon, Lagna.
    static constexpr std::array<int, 8> kRows{6, 5, 4, 1, 3, 2, 7, 0};
    static constexpr std::array<int, 4> kFirst{6, 5, 4, 1}, kSecond{3, 2, 7, 0};
    const std::array<int, 4> &tables = m_part == 1 ? kFirst : kSecond;
    const int lagna = c.PlanetRashiNum(0);
    const QList<int> widths{82, 50, 50, 50, 50, 50, 50, 50, 50, 50, 50, 50, 50};

    int y = 58;
    for (int table : tables) {
        addLabel(QRect(40, y, 680, 20), c.PlanetNameFull(table), SubHead, Qt::AlignCenter);
        const Table grid = addTable(40, y + 22, widths, 17, {}, 11, Small, true);
        grid.cell(0, 0)->setText(gen("Signs"));
        grid.cell(1, 0)->setText(gen("Houses"));
        grid.cell(10, 0)->setText(gen("Total"));
        for (int s = 1; s <= 12; ++s) {
            grid.cell(0, s)->setText(QString::number(s));
            grid.cell(1, s)->setText(GetRomanNumeral(Norm12(s - lagna + 1)));
        }
        for (size_t r = 0; r < kRows.size(); ++r) {
            const int giver = kRows[r];
            const size_t g = static_cast<size_t>(std::find(kGivers.begin(), kGivers.end(), giver) - kGivers.begin());
            grid.cell(static_cast<int>(r) + 2, 0)->setText(c.PlanetName(giver));
            // BhinnAshComp: a point "o", none "-", sign by sign as the tally counts them.
            const Signs marks = Marks(Flags(table, static_cast<int>(g)), c.PlanetRashiNum(giver));
            for (int s = 1; s <= 12; ++s)
                grid.cell(static_cast<int>(r) + 2, s)->setText(marks[static_cast<size_t>(s)] ? QStringLiteral("o") : QStringLiteral("-"));
        }
        // The last row counts the points of each column by reading its cells.
        for (int s = 1; s <= 12; ++s) {
            int points = 0;
            for (int r = 2; r < 10; ++r)
                points += grid.cell(r, s)->text() == QLatin1String("o") ? 1 : 0;
            grid.cell(10, s)->setText(QString::number(points));
        }
        y += 22 + 11 * 17 + 22;
    }
}
