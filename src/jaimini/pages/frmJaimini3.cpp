// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/pages/frmJaimini3.h"

#include "jaimini/clsJaimini.h"
#include "jaimini/pages/JaiminiPage.h"
#include "text/GenLabel.h"

#include <array>

namespace {
constexpr int kRow = 25;
constexpr int kLeft = 20;

struct SphutaRow
{
    const char *head;
    int which, kind;
};
inline constexpr std::array<SphutaRow, 6> kSphutas{{
    {"BeejaSphutaMain", 1, 1},
    {"BeejaAux1", 2, 1},
    {"BeejaAux2", 3, 1},
    {"KshetraMain", 1, 2},
    {"KshetraAux1", 2, 2},
    {"KshetraAux2", 3, 2},
}};
} // namespace

void frmJaimini3::fill()
{
    const clsPlanets &c = chart();
    lblTitle->setText(JaiminiLabel(c, "Sphuta"));
    const clsJaimini jm(c);

    // The Sphutas: sign and degrees within it.
    int y = 60;
    addLabel(QRect(kLeft, y, 720, 24), JaiminiLabel(c, "SphutaHead"), SubHead);
    y += 28;
    const Table sphutas = addTable(kLeft + 110, y, {260, 140, 100}, kRow,
                                   {JaiminiLabel(c, "SphutaName"), JaiminiLabel(c, "SphutaSign"), JaiminiLabel(c, "SphutaDeg")},
                                   static_cast<int>(kSphutas.size()), Small, true);
    for (size_t i = 0; i < kSphutas.size(); ++i) {
        const int r = static_cast<int>(i);
        const double x = jm.SphutasLongi(kSphutas[i].which, kSphutas[i].kind);
        sphutas.cell(r, 0)->setText(JaiminiLabel(c, kSphutas[i].head));
        sphutas.cell(r, 1)->setText(c.ConvertToDegNoVal(x));
        sphutas.cell(r, 2)->setText(clsPlanets::ConvertValNoDeg(x));
    }
    sphutaCells = sphutas.cells;

    // The karakas: the eight chara karakas, and the three lists of seven side by side.
    y = sphutas.rect.bottom() + 18;
    addLabel(QRect(kLeft, y, 720, 24), JaiminiLabel(c, "Karakas"), SubHead);
    y += 28;
    const Table ashta = addTable(kLeft, y, {150, 110}, kRow,
                                 {JaiminiLabel(c, "AshtaChara"), GenLabel(QStringLiteral("TPlanets"), c)}, 8, Small, true);
    for (int i = 1; i <= 8; ++i) {
        ashta.cell(i - 1, 0)->setText(c.GetHeadValue(1, i, QStringLiteral("JaiminiAshtaKarak")).toString());
        ashta.cell(i - 1, 1)->setText(c.PlanetNameFull(jm.AshtaCharaKaraka(i)));
    }
    ashtaCells = ashta.cells;
    const Table sapta = addTable(kLeft + 280, y, {140, 100, 100, 100}, kRow,
                                 {JaiminiLabel(c, "KarakaRank"), JaiminiLabel(c, "SaptaChara"), JaiminiLabel(c, "SaptaSthira"),
                                  JaiminiLabel(c, "SaptaBhava")},
                                 7, Small, true);
    for (int i = 1; i <= 7; ++i) {
        sapta.cell(i - 1, 0)->setText(c.GetHeadValue(1, i, QStringLiteral("JaiminiSaptaKarak")).toString());
        sapta.cell(i - 1, 1)->setText(c.PlanetNameFull(jm.SaptaCharaKaraka(i)));
        sapta.cell(i - 1, 2)->setText(c.PlanetNameFull(clsJaimini::SaptaSthiraKaraka(i)));
        sapta.cell(i - 1, 3)->setText(c.PlanetNameFull(jm.SaptaBhavaKaraka(i)));
    }
    saptaCells = sapta.cells;

    // The sign aspects.
    y = ashta.rect.bottom() + 18;
    addLabel(QRect(kLeft, y, 720, 24), JaiminiLabel(c, "JaimAspects"), SubHead);
    y += 28;
    const Table aspects = addTable(kLeft, y, {110, 250, 200, 160}, kRow,
                                   {JaiminiLabel(c, "AspSign"), JaiminiLabel(c, "FrontAspect"), JaiminiLabel(c, "LatAspect"),
                                    JaiminiLabel(c, "SignPlanets")},
                                   12, Small, true);
    for (int s = 1; s <= 12; ++s) {
        QStringList in;
        for (int p = 0; p <= 9; ++p)
            if (c.PlanetSign(p) == s)
                in << c.PlanetNameSmall(p);
        aspects.cell(s - 1, 0)->setText(c.ConvertRashi(s));
        aspects.cell(s - 1, 1)->setText(jm.FrontalAspectName(s));
        aspects.cell(s - 1, 2)->setText(jm.LateralAspectName(s));
        aspects.cell(s - 1, 3)->setText(in.join(QLatin1Char(' ')));
    }
    aspectCells = aspects.cells;
}
