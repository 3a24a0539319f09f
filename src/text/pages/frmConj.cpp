// SPDX-License-Identifier: AGPL-3.0-or-later
#include "text/pages/frmConj.h"

#include "sky/clsPlanets.h"
#include "text/GenLabel.h"
#include "text/Readings.h"

#include <array>
#include <cmath>

namespace {
// The rows of the aspect table, in two halves of five.
inline constexpr std::array<int, 10> kTargets{1, 7, 4, 2, 5, 3, 6, 8, 9, 0};
} // namespace

void frmConj::fill()
{
    lblTitle->setText(GenLabel(QStringLiteral("PlConj"), chart()) + QStringLiteral(" - ") + chart().Person().Name());
    fillAspects(70);
    fillMatrix(300);
}

void frmConj::fillAspects(int y)
{
    const clsPlanets &c = chart();
    const auto head = [&c](const char *h) {
        return c.GetHeadValue(1, QString::fromLatin1(h), QStringLiteral("PARASPECTS")).toString();
    };
    addLabel(QRect(40, y, 680, 26), head("TITLE"), SubHead, Qt::AlignCenter);
    aspects = addTable(40, y + 30, {90, 250, 90, 250}, 26, {head("PLANET"), head("ASPBY"), head("PLANET"), head("ASPBY")}, 5,
                       Body);
    for (size_t i = 0; i < kTargets.size(); ++i) {
        const int target = kTargets[i];
        QStringList names;
        for (int p : ParashariAspectors(c, c.PlanetRashiNum(target)))
            names << c.PlanetName(p);
        const int row = static_cast<int>(i % 5);
        const int col = i < 5 ? 0 : 2;
        aspects.cell(row, col)->setText(c.PlanetName(target));
        aspects.cell(row, col + 1)->setText(names.isEmpty() ? head("NONE") : names.join(QLatin1Char(' ')));
    }
}

void frmConj::fillMatrix(int y)
{
    const clsPlanets &c = chart();
    addLabel(QRect(40, y, 680, 26), GenLabel(QStringLiteral("ConjuText"), c), SubHead, Qt::AlignCenter);
    QList<int> widths{68};
    QStringList heads{GenLabel(QStringLiteral("TPLanets"), c)};
    for (int p = 0; p <= 12; ++p) {
        widths << 47;
        heads << c.PlanetNameSmall(p);
    }
    matrix = addTable(40, y + 30, widths, 40, heads, 13, Small);
    for (int i = 0; i <= 12; ++i) {
        matrix.cell(i, 0)->setText(c.PlanetName(i));
        for (int j = 0; j <= 12; ++j) {
            if (i == j)
                continue;
            const double d = c.PlanetLongi(i) - c.PlanetLongi(j);
            matrix.cell(i, j + 1)->setText(QString::number(static_cast<int>(std::floor(std::fabs(d)))) + QLatin1Char('\n') +
                                           clsPlanets::FindRelation(d));
        }
    }
}
