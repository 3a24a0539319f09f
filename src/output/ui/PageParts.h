// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The drawn parts of a topic page besides labels and charts: a line and a shape (rectangle or
// ellipse). Each knows its geometry in page units, so that screen, paper and PDF draw it alike.

#include <QColor>
#include <QLineF>
#include <QWidget>

class QPainter;

class PageLine : public QWidget
{
    Q_OBJECT
public:
    // A line from a to b in the parent's coordinates.
    PageLine(QPointF a, QPointF b, const QColor &colour, double width, QWidget *parent);
    QLineF pageLine() const { return m_line; }
    QColor BorderColor() const { return m_colour; }
    double BorderWidth() const { return m_width; }
    // Draws the line onto p, whose units are the page's.
    void drawOn(QPainter &p) const;

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QLineF m_line;
    QColor m_colour;
    double m_width;
};

class PageShape : public QWidget
{
    Q_OBJECT
public:
    enum Kind { Rectangle, Ellipse };
    PageShape(const QRect &r, Kind kind, const QColor &border, const QColor &fill, QWidget *parent);
    Kind kind() const { return m_kind; }
    QColor BorderColor() const { return m_border; }
    QColor FillColor() const { return m_fill; }
    // Draws the shape onto p, whose units are the page's.
    void drawOn(QPainter &p) const;

protected:
    void paintEvent(QPaintEvent *) override;

private:
    Kind m_kind;
    QColor m_border;
    QColor m_fill; // invalid: transparent
};
