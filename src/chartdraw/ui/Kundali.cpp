// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/ui/Kundali.h"

#include "chartdraw/ChartLook.h"
#include "sky/AppSettings.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPaintDevice>
#include <QPainter>
#include <QPalette>

namespace {
constexpr double kScreenDpi = 96.0;

QRectF toDevice(const KundaliRect &r, const QRectF &target)
{
    const double sx = target.width() / KundaliModel::kLogical;
    const double sy = target.height() / KundaliModel::kLogical;
    return {target.left() + r.left * sx, target.top() + r.top * sy, r.width * sx, r.height * sy};
}

} // namespace

QStringList WrapWords(const QString &text, const QFontMetricsF &fm, double width)
{
    QStringList lines;
    QString line;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QString candidate = line + word + QLatin1Char(' ');
        if (line.isEmpty() || fm.horizontalAdvance(candidate) < width) {
            line = candidate;
            continue;
        }
        lines << line.trimmed();
        line = word + QLatin1Char(' ');
    }
    if (!line.trimmed().isEmpty())
        lines << line.trimmed();
    return lines;
}

QColor Kundali::ColorFromLong(qint64 value)
{
    if (value & 0x80000000LL) {
        // System colours: the few a chart can meet, from the application's palette.
        const QPalette pal = QApplication::palette();
        switch (value & 0xFF) {
        case 0x05: return pal.color(QPalette::Base);       // window background
        case 0x08: return pal.color(QPalette::Text);       // window text
        case 0x0F: return pal.color(QPalette::Button);     // button face
        case 0x12: return pal.color(QPalette::ButtonText); // button text
        default: return pal.color(QPalette::Window);
        }
    }
    return QColor(static_cast<int>(value & 0xFF), static_cast<int>((value >> 8) & 0xFF),
                  static_cast<int>((value >> 16) & 0xFF));
}

qint64 Kundali::LongFromColor(const QColor &c)
{
    return static_cast<qint64>(c.red()) | static_cast<qint64>(c.green()) << 8 | static_cast<qint64>(c.blue()) << 16;
}

QFont Kundali::FontForDevice(const QFont &f, const QPainter &p)
{
    QFont out = f;
    const QPaintDevice *d = p.device();
    if (d && d->devType() != QInternal::Widget && d->logicalDpiY() > 0 && f.pointSizeF() > 0)
        out.setPointSizeF(f.pointSizeF() * kScreenDpi / d->logicalDpiY());
    return out;
}

Kundali::Kundali(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Kundali"));
    setFocusPolicy(Qt::ClickFocus);
    m_houseFont = font();
    m_planetFont = font();
    m_foreColor = palette().color(QPalette::ButtonText);
    // The style is taken when the chart is made: its cells are filled for that style. The widths
    // and colours are read at each paint.
    m_model.setChartStyle(AppSettings::KundStyle());
}

qint64 Kundali::lookValue(int k) const
{
    const auto &own = m_own[static_cast<size_t>(k)];
    return own ? *own : ChartLook::Current()[static_cast<ChartLook::Key>(k)];
}

void Kundali::setOwn(int k, qint64 value)
{
    m_own[static_cast<size_t>(k)] = value;
    update();
}

QColor Kundali::BackColor() const { return ColorFromLong(lookValue(ChartLook::BackColor)); }
QColor Kundali::LineColor() const { return ColorFromLong(lookValue(ChartLook::LineColor)); }
QColor Kundali::BorderColor() const { return ColorFromLong(lookValue(ChartLook::BorderColor)); }
QColor Kundali::TextColor() const { return ColorFromLong(lookValue(ChartLook::TxtColor)); }
QColor Kundali::NumberColor() const { return ColorFromLong(lookValue(ChartLook::NumColor)); }
int Kundali::LineWidth() const { return qMax<int>(1, static_cast<int>(lookValue(ChartLook::LineWidth))); }
int Kundali::BorderWidth() const { return qMax<int>(1, static_cast<int>(lookValue(ChartLook::BorderWidth))); }

void Kundali::setBackColor(const QColor &c) { setOwn(ChartLook::BackColor, LongFromColor(c)); }
void Kundali::setLineColor(const QColor &c) { setOwn(ChartLook::LineColor, LongFromColor(c)); }
void Kundali::setBorderColor(const QColor &c) { setOwn(ChartLook::BorderColor, LongFromColor(c)); }
void Kundali::setTextColor(const QColor &c) { setOwn(ChartLook::TxtColor, LongFromColor(c)); }
void Kundali::setNumberColor(const QColor &c) { setOwn(ChartLook::NumColor, LongFromColor(c)); }
void Kundali::setLineWidth(int w) { setOwn(ChartLook::LineWidth, w <= 0 ? 1 : w); }
void Kundali::setBorderWidth(int w) { setOwn(ChartLook::BorderWidth, w <= 0 ? 1 : w); }
void Kundali::setHouseFont(const QFont &f) { m_houseFont = f, update(); }
void Kundali::setPlanetFont(const QFont &f) { m_planetFont = f, update(); }
void Kundali::setCentrePic(const QPixmap &p) { m_centrePic = p, update(); }
void Kundali::setHouseNumber(int sign) { m_model.setHouseNumber(sign), update(); }
void Kundali::setChartStyle(int style) { m_model.setChartStyle(style), update(); }
void Kundali::Clear() { m_model.Clear(), update(); }
void Kundali::PlanetPlace(int place, const QString &text) { m_model.PlanetPlace(place, text), update(); }
void Kundali::MakeHouseInvisible() { m_model.MakeHouseInvisible(), update(); }

void Kundali::paintChart(QPainter &p, const QRectF &target, Surface surface) const
{
    p.save();
    const bool screen = surface == Surface::Screen;
    const QColor back = BackColor(), border = BorderColor(), text = TextColor(), number = NumberColor();
    const int borderWidth = BorderWidth();
    const double unit = target.width() / KundaliModel::kLogical;
    // Widths are told in pixels of the surface the chart stands on; paper and PDF draw in the
    // page's units, where a pixel is one unit.
    const double pixel = 1.0;
    // The background on every surface, so that paper shows the chart as the screen does; a white
    // chart leaves the paper as it is.
    if (screen || back != QColor(Qt::white))
        p.fillRect(target, back);
    p.setRenderHint(QPainter::Antialiasing, true);

    if (screen && !m_centrePic.isNull())
        p.drawPixmap(toDevice(KundaliModel::centre(), target).toRect(), m_centrePic);

    // The border first, then the lines, then the boxes.
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(border, borderWidth * pixel));
    p.drawRect(toDevice(KundaliModel::border(borderWidth), target));

    const QColor lineColor = surface == Surface::Printer ? QColor(Qt::black) : LineColor();
    const double lineWidth = surface == Surface::Printer ? pixel * 10.0 / 15.0 : LineWidth() * pixel;
    p.setPen(QPen(lineColor, lineWidth));
    for (int i = 0; i < KundaliModel::kLines; ++i) {
        if (!m_model.lineVisible(i))
            continue;
        const KundaliLine l = m_model.line(i);
        p.drawLine(QPointF(target.left() + l.x1 * unit, target.top() + l.y1 * unit),
                   QPointF(target.left() + l.x2 * unit, target.top() + l.y2 * unit));
    }

    QFont planetFont = FontForDevice(m_planetFont, p);
    if (surface == Surface::Pdf && planetFont.family() == QLatin1String("MS Sans Serif"))
        planetFont.setFamily(QStringLiteral("Arial"));
    p.setFont(planetFont);
    p.setPen(text);
    const QFontMetricsF fm(planetFont, p.device());
    for (int i = 0; i < KundaliModel::kCells; ++i) {
        const QString &text = m_model.cellText(i);
        if (text.trimmed().isEmpty())
            continue;
        const QRectF box = toDevice(m_model.planetBox(i), target);
        if (screen)
            p.setClipRect(box);
        double y = box.top();
        for (const QString &line : WrapWords(text, fm, box.width())) {
            const double w = fm.horizontalAdvance(line);
            p.drawText(QPointF(box.left() + (box.width() - w) / 2.0, y + fm.ascent()), line);
            y += fm.height();
        }
        if (screen)
            p.setClipping(false);
    }

    QFont houseFont = FontForDevice(m_houseFont, p);
    if (surface == Surface::Pdf && houseFont.family() == QLatin1String("MS Sans Serif"))
        houseFont.setFamily(QStringLiteral("Arial"));
    p.setFont(houseFont);
    const QFontMetricsF hm(houseFont, p.device());
    for (int i = 0; i < KundaliModel::kCells; ++i) {
        const std::optional<KundaliRect> box = m_model.houseNoBox(i);
        if (!box)
            continue;
        const QString caption = m_model.houseNoCaption(i);
        const QPointF at(target.left() + box->left * unit, target.top() + box->top * unit);
        if (m_model.houseNoOpaque())
            p.fillRect(QRectF(at, QSizeF(hm.horizontalAdvance(caption) + 2, hm.height())), back);
        p.setPen(number);
        p.drawText(QPointF(at.x() + 1, at.y() + hm.ascent()), caption);
    }
    p.restore();
}

void Kundali::PrintKundli(QPainter &p, double x, double y) const
{
    paintChart(p, QRectF(x, y, width(), height()), Surface::Printer);
}

void Kundali::DrawPDFKundli(QPainter &p, double x, double y) const
{
    paintChart(p, QRectF(x, y, width(), height()), Surface::Pdf);
}

void Kundali::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    // The wheel is square: it takes the largest square the widget holds, at the top left.
    const double side = qMin(width(), height()) - 1;
    paintChart(p, QRectF(0, 0, side, side), Surface::Screen);
}

QPointF Kundali::logical(const QPointF &pos) const
{
    const double side = qMax(1, qMin(width(), height()) - 1);
    return pos * (KundaliModel::kLogical / side);
}

void Kundali::mousePressEvent(QMouseEvent *e)
{
    const QPointF l = logical(e->position());
    Q_EMIT MouseDown(e->button(), e->modifiers(), l.x(), l.y());
}

void Kundali::mouseReleaseEvent(QMouseEvent *e)
{
    const QPointF l = logical(e->position());
    Q_EMIT MouseUp(e->button(), e->modifiers(), l.x(), l.y());
    if (rect().contains(e->position().toPoint()))
        Q_EMIT Click();
}

void Kundali::mouseMoveEvent(QMouseEvent *e)
{
    const QPointF l = logical(e->position());
    Q_EMIT MouseMove(e->buttons(), e->modifiers(), l.x(), l.y());
}

void Kundali::mouseDoubleClickEvent(QMouseEvent *) { Q_EMIT DblClick(); }

void Kundali::keyPressEvent(QKeyEvent *e)
{
    Q_EMIT KeyDown(e->key(), e->modifiers());
    if (!e->text().isEmpty())
        Q_EMIT KeyPress(e->text());
}

void Kundali::keyReleaseEvent(QKeyEvent *e) { Q_EMIT KeyUp(e->key(), e->modifiers()); }
