// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// What a chart wheel holds, apart from how it is painted: the style, the sign of the first house,
// the text of the twelve cells, and the fixed geometry of the three styles in a logical square of
// 1000 by 1000 units (origin top left, y downward). Knows nothing of planets; callers append text.

#include <QString>

#include <array>
#include <optional>

struct KundaliRect
{
    int left, top, width, height;
};

struct KundaliLine
{
    int x1, y1, x2, y2;
};

class KundaliModel
{
public:
    enum Style { North = 0, East = 1, South = 2 };
    static constexpr int kLogical = 1000;
    static constexpr int kCells = 12;
    static constexpr int kLines = 8;

    // The wrap used for cells and signs: above 12 subtracts 12 until below 12, below 0 adds 12 until
    // above 0; 0 to 12 stand, so 12 stays 12, 0 stays 0, 13 gives 1, -1 gives 11 and -12 gives 12.
    static int Expunger12(int value);

    // Empties the twelve cells; the number boxes are not touched.
    void Clear();
    // Appends text to the cell of sign `place` (1..12): the old text plus the new, trimmed, and one blank.
    void PlanetPlace(int place, const QString &text);
    // The text of cell index-1 for index 1..12, otherwise empty.
    QString HouseText(int index) const;
    // The number shown in the first number box: the rising sign in the North style, 1 otherwise.
    int LagnaNo() const;
    // Hides the twelve number boxes for good.
    void MakeHouseInvisible() { m_invisHouseNum = true; }
    bool InvisHouseNum() const { return m_invisHouseNum; }

    int ChartStyle() const { return m_style; }
    void setChartStyle(int style) { m_style = style >= North && style <= South ? style : North; }
    // Sign number of the first house (North style).
    int HouseNumber() const { return m_houseNumber; }
    void setHouseNumber(int sign) { m_houseNumber = sign; }

    // Geometry of the current style, in logical units.
    bool lineVisible(int i) const { return m_style != North || i < 6; }
    KundaliLine line(int i) const;                       // i = 0..7 for Line1..Line8
    KundaliRect planetBox(int i) const;                  // lblPlanet(i)
    std::optional<KundaliRect> houseNoBox(int i) const; // lblHouseNo(i) when shown; width/height are a nominal size
    QString houseNoCaption(int i) const;                 // the number in lblHouseNo(i)
    // Whether number box i is opaque (East) or transparent (North, South).
    bool houseNoOpaque() const { return m_style == East; }
    // squMain for a border width: left and top BorderWidth+1, width and height 999-BorderWidth.
    static KundaliRect border(int borderWidth);
    // The picture in the middle, the same in all styles.
    static constexpr KundaliRect centre() { return {400, 400, 200, 200}; }
    // The cell a sign's text goes to in the current style.
    int cellOfSign(int place) const;
    // Text of cell i (0..11).
    const QString &cellText(int i) const { return m_text[static_cast<size_t>(i)]; }

private:
    int m_style = South;
    int m_houseNumber = 1;
    bool m_invisHouseNum = false;
    std::array<QString, kCells> m_text;
};
