// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/pages/frmVarTripat.h"

#include "output/ui/PageParts.h"
#include "sky/Functions.h"
#include "text/GenLabel.h"

namespace {

// The signs struck by a body in sign 1..12.
inline constexpr std::array<std::array<int, 3>, 12> kVedha{{
    {4, 7, 10}, {3, 6, 9}, {2, 8, 11}, {1, 7, 10}, {6, 9, 12}, {2, 5, 11},
    {1, 4, 10}, {1, 4, 7}, {2, 5, 8},  {1, 4, 7},  {3, 6, 12}, {5, 8, 11},
}};

// The Tri-pataka sign of a body; the Lagna stands in its own sign.
int triSign(const clsVarsha &v, int j) { return j == 0 ? v.Annual().Sign(0) : v.TriSign(j); }

// The cell of field f (1..12) on the square of four by four, fields running clockwise from the
// top left corner.
QRect fieldRect(int f, int x, int y, int side)
{
    static constexpr std::array<std::array<int, 2>, 12> kCells{{
        {0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}, {3, 3}, {2, 3}, {1, 3}, {0, 3}, {0, 2}, {0, 1},
    }};
    const auto &c = kCells[static_cast<size_t>(f - 1)];
    return QRect(x + c[0] * side, y + c[1] * side, side, side);
}

} // namespace

const std::array<int, 3> &frmVarTripat::VedhaSigns(int s) { return kVedha[static_cast<size_t>(Norm12(s) - 1)]; }

QString frmVarTripat::Vedhas(const clsVarsha &v, int i)
{
    QStringList names;
    const std::array<int, 3> &struck = VedhaSigns(triSign(v, i));
    for (int j = 0; j <= 9; ++j)
        for (int s : struck)
            if (triSign(v, j) == s)
                names << v.Annual().PlanetName(j);
    return names.join(QLatin1Char(' '));
}

void frmVarTripat::fillYear(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    yearTitle(v, VarshaLabel(a, "Tripataka"));
    addLabel(QRect(30, 56, 700, 22), a.Person().Name(), SubHead, Qt::AlignCenter);

    // The wheel: field f bears the sign f after the Lagna's, field 12 the Lagna's own.
    const int side = 110, x0 = 160, y0 = 96;
    const int lagna = a.Sign(0);
    std::array<QStringList, 13> names;
    names[12] << a.PlanetName(0);
    for (int i = 1; i <= 9; ++i)
        names[static_cast<size_t>(Norm12(v.TriSign(i) - lagna))] << a.PlanetName(i);
    for (int f = 1; f <= 12; ++f) {
        const QRect r = fieldRect(f, x0, y0, side);
        addRect(r);
        addLabel(QRect(r.left() + 4, r.top() + 2, side - 8, 18), QString::number(Norm12(lagna + f)), SmallBold, Qt::AlignLeft | Qt::AlignTop);
        QLabel *l = addLabel(r.adjusted(4, 20, -4, -4), names[static_cast<size_t>(f)].join(QLatin1Char(' ')), Small, Qt::AlignCenter);
        l->setWordWrap(true);
        l->setObjectName(QStringLiteral("lblField%1").arg(f));
    }
    QLabel *centre = addLabel(QRect(x0 + side, y0 + side, 2 * side, 2 * side), VarshaLabel(a, "Tripataka"), SubHead, Qt::AlignCenter);
    centre->setWordWrap(true);

    // The vedhas, in the order Moon, Lagna, Sun .. Saturn.
    const int top = y0 + 4 * side + 24;
    addLabel(QRect(30, top, 700, 24), VarshaLabel(a, "TriVedHead"), SubHead, Qt::AlignCenter);
    const Table t = addTable(150, top + 28, {150, 310}, 22, {GenLabel(QStringLiteral("TPlanets"), a), VarshaLabel(a, "TriSigHead")}, 8,
                             Small, true);
    static constexpr std::array<int, 8> kOrder{7, 0, 1, 2, 3, 4, 5, 6};
    for (size_t row = 0; row < kOrder.size(); ++row) {
        const int body = kOrder[row];
        t.cell(static_cast<int>(row), 0)->setText(a.PlanetNameFull(body));
        const QString struck = Vedhas(v, body);
        t.cell(static_cast<int>(row), 1)->setText(struck.isEmpty() ? QStringLiteral("-") : struck);
    }
    QLabel *note = addLabel(QRect(60, t.rect.bottom() + 16, 640, 60), VarshaLabel(a, "TriSigText"), EnglishSmall, Qt::AlignLeft | Qt::AlignTop);
    note->setWordWrap(true);
}
