// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/PageParts.h"

#include <QPainter>

PageLine::PageLine(QPointF a, QPointF b, const QColor &colour, double width, QWidget *parent)
    : QWidget(parent), m_line(a, b), m_colour(colour), m_width(width)
{
    const int pad = static_cast<int>(width) + 1;
    setGeometry(QRectF(a, b).normalized().toAlignedRect().adjusted(-pad, -pad, pad, pad));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PageLine::drawOn(QPainter &p) const
{
    p.save();
    p.setPen(QPen(m_colour, m_width));
    p.drawLine(m_line);
    p.restore();
}

void PageLine::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.translate(-pos());
    drawOn(p);
}

PageShape::PageShape(const QRect &r, Kind kind, const QColor &border, const QColor &fill, QWidget *parent)
    : QWidget(parent), m_kind(kind), m_border(border), m_fill(fill)
{
    setGeometry(r);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PageShape::drawOn(QPainter &p) const
{
    p.save();
    p.setPen(QPen(m_border, 1));
    p.setBrush(m_fill.isValid() ? QBrush(m_fill) : QBrush(Qt::NoBrush));
    const QRectF r = QRectF(geometry()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (m_kind == Ellipse)
        p.drawEllipse(r);
    else
        p.drawRect(r);
    p.restore();
}

void PageShape::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.translate(-pos());
    drawOn(p);
}
