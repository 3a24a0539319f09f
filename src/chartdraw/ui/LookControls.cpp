// SPDX-License-Identifier: AGPL-3.0-or-later
#include "chartdraw/ui/LookControls.h"

#include "chartdraw/ChartLook.h"
#include "chartdraw/ui/Kundali.h"
#include "session/Session.h"
#include "text/TextDB.h"

#include <QColorDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace {
ColorBox::Picker &picker()
{
    static ColorBox::Picker p;
    return p;
}
} // namespace

ColorBox::ColorBox(const QString &name, QWidget *parent) : QToolButton(parent)
{
    setObjectName(name);
    setFixedSize(44, 24);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QToolButton::clicked, this, &ColorBox::pick);
}

qint64 ColorBox::value() const { return Kundali::LongFromColor(m_colour); }

void ColorBox::setColour(const QColor &c)
{
    m_colour = c;
    setToolTip(c.name().toUpper());
    update();
}

void ColorBox::setValue(qint64 colourNumber) { setColour(Kundali::ColorFromLong(colourNumber)); }

void ColorBox::setPicker(Picker p) { picker() = std::move(p); }

void ColorBox::pick()
{
    const QColor chosen = picker() ? picker()(m_colour, this) : QColorDialog::getColor(m_colour, this);
    if (!chosen.isValid())
        return;
    setColour(chosen);
    Q_EMIT colourChosen(chosen);
}

void ColorBox::paintEvent(QPaintEvent *)
{
    QStylePainter p(this);
    QStyleOptionToolButton opt;
    initStyleOption(&opt);
    opt.text.clear();
    opt.icon = QIcon();
    p.drawComplexControl(QStyle::CC_ToolButton, opt);
    const QRect swatch = rect().adjusted(4, 4, -5, -5);
    p.fillRect(swatch, m_colour);
    p.setPen(palette().color(QPalette::Dark));
    p.drawRect(swatch);
}

WidthSpin::WidthSpin(const QString &name, QWidget *parent) : QSpinBox(parent)
{
    setObjectName(name);
    setRange(0, ChartLook::kMaxWidth);
    lineEdit()->setReadOnly(true);
    setFixedWidth(60);
}

QAbstractSpinBox::StepEnabled WidthSpin::stepEnabled() const
{
    StepEnabled e = StepNone;
    if (value() < ChartLook::kMaxWidth)
        e |= StepUpEnabled;
    if (value() > 1)
        e |= StepDownEnabled;
    return e;
}

void WidthSpin::keyPressEvent(QKeyEvent *e)
{
    // The arrows and page keys step; anything else would type, and is swallowed.
    switch (e->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        QSpinBox::keyPressEvent(e);
        return;
    default:
        e->accept();
    }
}

QString LookText(const char *key, const char *fallback)
{
    const QSqlDatabase &db = Session().TextDB;
    if (!db.isOpen())
        return QString::fromUtf8(fallback);
    const QVariant v = GetHeadValue(db, 1, QString::fromLatin1(key), QStringLiteral("Look"));
    return v.isValid() && !v.toString().isEmpty() ? v.toString() : QString::fromUtf8(fallback);
}
