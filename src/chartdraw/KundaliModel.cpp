// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/KundaliModel.h"

namespace {
using LineRow = std::array<KundaliLine, 3>; // North, East, South
using BoxRow = std::array<KundaliRect, 3>;
struct NumberCell
{
    int left, top;
    bool shown;
};
using NumberRow = std::array<NumberCell, 3>;

// The eight inner lines of each style, Line1 to Line8; North draws only the first six.
inline constexpr std::array<LineRow, KundaliModel::kLines> kLinesTable{{
    {{{500, 0, 0, 500}, {375, 0, 375, 1000}, {250, 0, 250, 1000}}},
    {{{500, 0, 1000, 500}, {625, 0, 625, 1000}, {750, 0, 750, 1000}}},
    {{{0, 500, 500, 1000}, {0, 375, 1000, 375}, {0, 250, 1000, 250}}},
    {{{500, 1000, 1000, 500}, {0, 625, 1000, 625}, {0, 750, 1000, 750}}},
    {{{0, 0, 1000, 1000}, {0, 0, 375, 375}, {500, 0, 500, 250}}},
    {{{1000, 0, 0, 1000}, {1000, 1000, 625, 625}, {500, 750, 500, 1000}}},
    {{{0, 0, 0, 0}, {625, 375, 1000, 0}, {0, 500, 250, 500}}},
    {{{0, 0, 0, 0}, {0, 1000, 375, 625}, {750, 500, 1000, 500}}},
}};
static_assert(kLinesTable.size() == KundaliModel::kLines);

// The twelve text boxes: left, top, width, height. North counts houses, East and South signs.
inline constexpr std::array<BoxRow, KundaliModel::kCells> kPlanetBoxes{{
    {{{400, 100, 200, 300}, {385, 40, 225, 260}, {260, 70, 220, 170}}},
    {{{150, 20, 210, 120}, {210, 20, 150, 190}, {510, 70, 220, 170}}},
    {{{15, 160, 150, 180}, {10, 160, 150, 210}, {760, 70, 220, 170}}},
    {{{150, 350, 200, 300}, {10, 390, 250, 200}, {760, 320, 220, 170}}},
    {{{15, 660, 150, 180}, {10, 640, 160, 185}, {760, 570, 220, 170}}},
    {{{160, 840, 180, 145}, {210, 800, 150, 180}, {760, 820, 220, 170}}},
    {{{400, 600, 200, 300}, {390, 690, 220, 270}, {510, 820, 220, 170}}},
    {{{660, 830, 180, 150}, {640, 800, 150, 180}, {260, 820, 220, 170}}},
    {{{840, 660, 150, 180}, {830, 640, 150, 190}, {10, 820, 220, 170}}},
    {{{650, 350, 200, 300}, {690, 390, 290, 200}, {10, 570, 220, 170}}},
    {{{840, 160, 150, 180}, {840, 165, 150, 200}, {10, 320, 220, 170}}},
    {{{640, 20, 220, 120}, {640, 10, 150, 200}, {10, 70, 220, 170}}},
}};
static_assert(kPlanetBoxes.size() == KundaliModel::kCells);

// The twelve number boxes: left, top; East shows only four of them.
inline constexpr std::array<NumberRow, KundaliModel::kCells> kNumberBoxes{{
    {{{490, 40, true}, {400, 315, true}, {260, 10, true}}},
    {{{70, 10, true}, {0, 0, false}, {510, 10, true}}},
    {{{15, 60, true}, {0, 0, false}, {760, 10, true}}},
    {{{50, 480, true}, {330, 400, true}, {760, 260, true}}},
    {{{15, 880, true}, {0, 0, false}, {760, 510, true}}},
    {{{70, 920, true}, {0, 0, false}, {760, 760, true}}},
    {{{490, 910, true}, {400, 630, true}, {510, 760, true}}},
    {{{890, 920, true}, {0, 0, false}, {260, 760, true}}},
    {{{940, 880, true}, {0, 0, false}, {15, 760, true}}},
    {{{920, 480, true}, {635, 400, true}, {15, 510, true}}},
    {{{940, 70, true}, {0, 0, false}, {15, 260, true}}},
    {{{900, 10, true}, {0, 0, false}, {15, 10, true}}},
}};
static_assert(kNumberBoxes.size() == KundaliModel::kCells);

// Nominal size of a number box: room for two digits in the usual number fonts.
constexpr int kNumberWidth = 60;
constexpr int kNumberHeight = 60;
} // namespace

int KundaliModel::Expunger12(int value)
{
    if (value > 12) {
        while (value >= 12)
            value -= 12;
    } else if (value < 0) {
        while (value <= 0)
            value += 12;
    }
    return value;
}

void KundaliModel::Clear()
{
    for (QString &t : m_text)
        t.clear();
}

int KundaliModel::cellOfSign(int place) const
{
    return m_style == North ? Expunger12(place - m_houseNumber) : place - 1;
}

void KundaliModel::PlanetPlace(int place, const QString &text)
{
    const int cell = cellOfSign(place);
    if (cell < 0 || cell >= kCells)
        return;
    QString &t = m_text[static_cast<size_t>(cell)];
    t = (t + text).trimmed() + QLatin1Char(' ');
}

QString KundaliModel::HouseText(int index) const
{
    if (index < 1 || index > kCells)
        return {};
    return m_text[static_cast<size_t>(index - 1)];
}

int KundaliModel::LagnaNo() const { return houseNoCaption(0).toInt(); }

KundaliLine KundaliModel::line(int i) const { return kLinesTable[static_cast<size_t>(i)][static_cast<size_t>(m_style)]; }

KundaliRect KundaliModel::planetBox(int i) const
{
    return kPlanetBoxes[static_cast<size_t>(i)][static_cast<size_t>(m_style)];
}

std::optional<KundaliRect> KundaliModel::houseNoBox(int i) const
{
    const NumberCell &n = kNumberBoxes[static_cast<size_t>(i)][static_cast<size_t>(m_style)];
    if (!n.shown || (m_style == North && m_invisHouseNum))
        return std::nullopt;
    return KundaliRect{n.left, n.top, kNumberWidth, kNumberHeight};
}

QString KundaliModel::houseNoCaption(int i) const
{
    return QString::number(m_style == North ? Expunger12(m_houseNumber + i) : i + 1);
}

KundaliRect KundaliModel::border(int borderWidth)
{
    const int w = borderWidth <= 0 ? 1 : borderWidth;
    return {w + 1, w + 1, 999 - w, 999 - w};
}
