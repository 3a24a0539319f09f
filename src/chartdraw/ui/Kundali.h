// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The chart wheel on screen, on paper and in a PDF: one widget whose drawing goes through a QPainter
// in its 1000 by 1000 logical square, so that the three surfaces share the same paint code.

#include "chartdraw/KundaliModel.h"

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QWidget>

#include <array>
#include <optional>

class QPainter;

class Kundali : public QWidget
{
    Q_OBJECT
public:
    explicit Kundali(QWidget *parent = nullptr);

    // The colours of the classic colour numbers: 0x00BBGGRR, or a system colour 0x800000nn.
    static QColor ColorFromLong(qint64 value);
    // A font whose size means the same on any paint device as it does on screen.
    static QFont FontForDevice(const QFont &f, const QPainter &p);

    // The colour number of a colour, 0x00BBGGRR.
    static qint64 LongFromColor(const QColor &c);

    // The look properties follow the user's saved chart look (ChartLook) at every paint, until a
    // caller sets one: from then on that property is the chart's own.
    QColor BackColor() const;
    void setBackColor(const QColor &c);
    QColor ForeColor() const { return m_foreColor; }
    void setForeColor(const QColor &c) { m_foreColor = c; }
    QFont HouseFont() const { return m_houseFont; }
    void setHouseFont(const QFont &f);
    QFont PlanetFont() const { return m_planetFont; }
    void setPlanetFont(const QFont &f);
    QColor LineColor() const;
    void setLineColor(const QColor &c);
    int LineWidth() const;
    void setLineWidth(int w);
    int BorderWidth() const;
    void setBorderWidth(int w);
    QColor BorderColor() const;
    void setBorderColor(const QColor &c);
    QColor TextColor() const;
    void setTextColor(const QColor &c);
    QColor NumberColor() const;
    void setNumberColor(const QColor &c);
    QPixmap CentrePic() const { return m_centrePic; }
    void setCentrePic(const QPixmap &p);
    int HouseNumber() const { return m_model.HouseNumber(); }
    void setHouseNumber(int sign);
    int ChartStyle() const { return m_model.ChartStyle(); }
    void setChartStyle(int style);
    bool InvisHouseNum() const { return m_model.InvisHouseNum(); }

    void Refresh() { update(); }
    // Empties the twelve cells.
    void Clear();
    // Appends text to the cell of sign place (1..12).
    void PlanetPlace(int place, const QString &text);
    static int Expunger12(int value) { return KundaliModel::Expunger12(value); }
    void MakeHouseInvisible();
    // The text of cell index-1 (1..12), otherwise empty.
    QString HouseText(int index) const { return m_model.HouseText(index); }
    // The number in the first number box: the rising sign (North) or 1.
    int LagnaNo() const { return m_model.LagnaNo(); }
    // The window handle of the surface.
    WId hWnd() { return winId(); }
    // Lays the boxes out again and repaints.
    void DrawKundli() { update(); }
    // The chart on a printer page with its top left at x, y, in the painter's units, at the
    // widget's own size: lines in black, every word of every cell on paper.
    void PrintKundli(QPainter &p, double x, double y) const;
    // The chart on a PDF page: lines in their colour, "MS Sans Serif" taken as "Arial".
    void DrawPDFKundli(QPainter &p, double x, double y) const;

    // The model behind the wheel, for the chart's own fill functions.
    KundaliModel &model() { return m_model; }
    const KundaliModel &model() const { return m_model; }

    // Paints the chart into target on any painter (used by the three surfaces above). A wheel of
    // another layout (the Sudarshan chakra) paints itself here and so reaches every surface alike.
    enum class Surface { Screen, Printer, Pdf };
    virtual void paintChart(QPainter &p, const QRectF &target, Surface surface) const;

    QSize sizeHint() const override { return {300, 300}; }

Q_SIGNALS:
    void Click();
    void DblClick();
    void KeyDown(int key, Qt::KeyboardModifiers shift);
    void KeyPress(const QString &text);
    void KeyUp(int key, Qt::KeyboardModifiers shift);
    // Pointer events in the chart's logical units (0..1000 both ways).
    void MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift, double x, double y);
    void MouseMove(Qt::MouseButtons buttons, Qt::KeyboardModifiers shift, double x, double y);
    void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, double x, double y);

protected:
    void paintEvent(QPaintEvent *) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseDoubleClickEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void keyReleaseEvent(QKeyEvent *e) override;

private:
    QPointF logical(const QPointF &pos) const;
    // The value of look key k: the chart's own when set, else the saved look's.
    qint64 lookValue(int k) const;
    void setOwn(int k, qint64 value);
    KundaliModel m_model;
    QColor m_foreColor;
    QFont m_houseFont;
    QFont m_planetFont;
    std::array<std::optional<qint64>, 7> m_own; // by ChartLook::Key
    QPixmap m_centrePic;
};

// Splits text at blanks into the lines that fit width with the font's metrics: words are added, each
// with one blank, while the line with the next word stays narrower than the width. A word wider
// than the width stands on a line of its own.
QStringList WrapWords(const QString &text, const QFontMetricsF &fm, double width);
