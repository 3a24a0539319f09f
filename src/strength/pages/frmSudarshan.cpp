// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/pages/frmSudarshan.h"

#include "chartdraw/ui/SudarshanChakra.h"
#include "output/ui/PageStyle.h"
#include "sky/clsPlanets.h"
#include "strength/Sudarshan.h"

void frmSudarshan::fill()
{
    const clsPlanets &c = chart();
    const auto note = [&c](const char *head) {
        return c.GetHeadValue(1, QString::fromLatin1(head), QStringLiteral("SUDARSHANCHAKRA")).toString();
    };
    lblTitle->setText(c.GetHeadValue(1, QStringLiteral("SUDARSHAN"), QStringLiteral("GEN")).toString());

    chkSudarshan = new SudarshanChakra(this);
    chkSudarshan->setGeometry(QRect(80, 64, 600, 600));
    StyleChart(chkSudarshan);
    chkSudarshan->show();
    const auto rings = SudarshanRings(c);
    for (int r = 0; r < SudarshanModel::kRings; ++r)
        for (int i = 0; i < SudarshanModel::kCells; ++i) {
            QStringList names;
            for (int p : rings[static_cast<size_t>(r)].planets[static_cast<size_t>(i)])
                names << c.PlanetName(p);
            chkSudarshan->rings().setCell(r, i, rings[static_cast<size_t>(r)].sign[static_cast<size_t>(i)], names.join(QLatin1Char(' ')));
        }

    // Which ring counts from which point, then the two notes, one below the other.
    const QStringList legend{note("Outer"), note("Middle"), note("Inner")};
    addLabel(QRect(60, 676, 640, 20), legend.join(QStringLiteral(";   ")), SmallBold, Qt::AlignCenter);
    int y = 708;
    for (const char *head : {"GEN1", "GEN2"}) {
        QLabel *l = addLabel(QRect(60, y, 640, 20), note(head), Small, Qt::AlignLeft | Qt::AlignTop);
        l->setWordWrap(true);
        l->resize(640, l->heightForWidth(640));
        y += l->height() + 12;
    }
}
