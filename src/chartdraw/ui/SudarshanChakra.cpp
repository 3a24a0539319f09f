// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/ui/SudarshanChakra.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <cmath>

SudarshanChakra::SudarshanChakra(QWidget *parent) : Kundali(parent) { setObjectName(QStringLiteral("SudarshanChakra")); }

void SudarshanChakra::paintChart(QPainter &p, const QRectF &target, Surface surface) const
{
    p.save();
    const bool screen = surface == Surface::Screen;
    const double unit = target.width() / KundaliModel::kLogical;
    const auto at = [&](const QPointF &logical) {
        return QPointF(target.left() + logical.x() * unit, target.top() + logical.y() * unit);
    };
    if (screen)
        p.fillRect(target, BackColor());
    p.setRenderHint(QPainter::Antialiasing, true);
    if (screen && !CentrePic().isNull()) {
        const double r = SudarshanModel::kRadius.back() * 0.7 * unit;
        const QPointF c = at(SudarshanModel::centre());
        p.drawPixmap(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r).toRect(), CentrePic());
    }

    // The rings: the outer edge in the border's pen, the rest and the spokes in the lines' pen.
    const QPointF centre = at(SudarshanModel::centre());
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(BorderColor(), BorderWidth()));
    const double outer = SudarshanModel::kRadius.front() * unit;
    p.drawEllipse(centre, outer, outer);
    const QColor lineColor = surface == Surface::Printer ? QColor(Qt::black) : LineColor();
    const double lineWidth = surface == Surface::Printer ? 10.0 / 15.0 : LineWidth();
    p.setPen(QPen(lineColor, lineWidth));
    for (size_t i = 1; i < SudarshanModel::kRadius.size(); ++i) {
        const double r = SudarshanModel::kRadius[i] * unit;
        p.drawEllipse(centre, r, r);
    }
    for (int k = 0; k < SudarshanModel::kCells; ++k) {
        const double a = qDegreesToRadians(SudarshanModel::spokeAngle(k));
        const QPointF dir(std::cos(a), -std::sin(a));
        p.drawLine(centre + dir * SudarshanModel::kRadius.back() * unit, centre + dir * outer);
    }

    // The words of each cell, line by line, centred in its square.
    QFont planetFont = FontForDevice(PlanetFont(), p);
    QFont numberFont = FontForDevice(HouseFont(), p);
    if (surface == Surface::Pdf) {
        for (QFont *f : {&planetFont, &numberFont})
            if (f->family() == QLatin1String("MS Sans Serif"))
                f->setFamily(QStringLiteral("Arial"));
    }
    const QFontMetricsF fm(planetFont, p.device());
    const QFontMetricsF nm(numberFont, p.device());
    for (int r = 0; r < SudarshanModel::kRings; ++r)
        for (int i = 0; i < SudarshanModel::kCells; ++i) {
            const QRectF logical = SudarshanModel::textBox(r, i);
            const QRectF box(at(logical.topLeft()), at(logical.bottomRight()));
            const QStringList lines = WrapWords(m_rings.text(r, i), fm, box.width());
            p.setFont(planetFont);
            p.setPen(TextColor());
            double y = box.center().y() - lines.size() * fm.height() / 2.0;
            for (const QString &line : lines) {
                p.drawText(QPointF(box.center().x() - fm.horizontalAdvance(line) / 2.0, y + fm.ascent()), line);
                y += fm.height();
            }
            const int sign = m_rings.sign(r, i);
            if (sign < 1)
                continue;
            const QString number = QString::number(sign);
            const QPointF n = at(SudarshanModel::numberPoint(r, i));
            p.setFont(numberFont);
            p.setPen(NumberColor());
            p.drawText(QPointF(n.x() - nm.horizontalAdvance(number) / 2.0, n.y() - nm.height() / 2.0 + nm.ascent()), number);
        }
    p.restore();
}
