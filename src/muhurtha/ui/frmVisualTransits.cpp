// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/ui/frmVisualTransits.h"

#include "session/EntryValidation.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

#include <array>

namespace {
// The bodies drawn, 1..12 and the Lagna, with their colours.
constexpr std::array<int, 13> kBodies{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0};
const std::array<QColor, 13> &bodyColours()
{
    static const std::array<QColor, 13> c{QColor(120, 120, 120), QColor(230, 140, 0),  QColor(40, 160, 60),
                                          QColor(210, 90, 170),  QColor(200, 30, 30),  QColor(230, 190, 0),
                                          QColor(40, 40, 160),   QColor(90, 130, 210), QColor(90, 60, 40),
                                          QColor(140, 100, 70),  QColor(0, 150, 150),  QColor(60, 90, 160),
                                          QColor(120, 60, 140)};
    return c; // by body number 0..12
}
constexpr double kMarker = 110; // twips
} // namespace

// The canvas: the circle and one marker a body, drawn from the chart at each repaint.
class TransitCanvas : public QWidget
{
public:
    TransitCanvas(const clsPlanets &chart, QWidget *parent) : QWidget(parent), m_chart(chart)
    {
        setObjectName(QStringLiteral("picCanvas"));
        setMinimumSize(420, 405);
        setAutoFillBackground(true);
        QPalette p = palette();
        p.setColor(QPalette::Window, QColor(12, 18, 40));
        setPalette(p);
    }
    bool labels = true;
    bool cast = false;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const double s = std::min(width() / VisualTransits::kCanvasWidth, height() / VisualTransits::kCanvasHeight);
        p.translate((width() - VisualTransits::kCanvasWidth * s) / 2, (height() - VisualTransits::kCanvasHeight * s) / 2);
        p.scale(s, s);
        p.setPen(QPen(QColor(90, 110, 170), 12));
        p.drawEllipse(QPointF(VisualTransits::kCentreX, VisualTransits::kCentreY), VisualTransits::kCircleRadius,
                      VisualTransits::kCircleRadius);
        if (!cast)
            return;
        QFont f = font();
        f.setPixelSize(static_cast<int>(150));
        p.setFont(f);
        for (int body : kBodies) {
            const QPointF at = VisualTransits::PlaceBody(VisualTransits::OrbitRadius(body), m_chart.PlanetLongi(body));
            const QColor c = bodyColours()[static_cast<size_t>(body)];
            p.setPen(Qt::NoPen);
            p.setBrush(c.lighter(150));
            p.drawEllipse(QRectF(at, QSizeF(kMarker, kMarker)));
            if (labels) {
                p.setPen(c.lighter(170));
                p.drawText(QPointF(at.x() + 100 + kMarker, at.y() - 50 + kMarker), clsPlanets::PlanetNameEng(body));
            }
        }
    }

private:
    const clsPlanets &m_chart;
};

frmVisualTransits::frmVisualTransits(const clsPlanets &natal, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmVisualTransits"));
    setWindowTitle(QStringLiteral("Visual Transits"));
    m_chart.setRahuKetuMode(natal.RahuKetuMode());
    // The place of the person; the moment is the window's own.
    natal.CopySettingTo(m_chart);

    txtDate = new QLineEdit;
    txtDate->setObjectName(QStringLiteral("txtDate"));
    txtDate->setInputMask(QStringLiteral("99/99/9999"));
    txtTime = new QLineEdit;
    txtTime->setObjectName(QStringLiteral("txtTime"));
    txtTime->setInputMask(QStringLiteral("99.99"));
    optAM = new QRadioButton(QStringLiteral("AM"));
    optPM = new QRadioButton(QStringLiteral("PM"));
    optAM->setObjectName(QStringLiteral("optAMPM0"));
    optPM->setObjectName(QStringLiteral("optAMPM1"));
    auto *ampm = new QButtonGroup(this);
    ampm->addButton(optAM);
    ampm->addButton(optPM);
    txtFactor = new QSpinBox;
    txtFactor->setObjectName(QStringLiteral("txtFactor"));
    txtFactor->setRange(1, 999);
    txtFactor->setValue(1);

    auto *units = new QGroupBox(QStringLiteral("Step"));
    auto *unitBox = new QGridLayout(units);
    const auto unitButton = [&](const char *name, const char *text, int row, int col) {
        auto *b = new QRadioButton(QString::fromLatin1(text));
        b->setObjectName(QString::fromLatin1(name));
        unitBox->addWidget(b, row, col);
        return b;
    };
    optMins = unitButton("optMins", "Minutes", 0, 0);
    optHours = unitButton("optHours", "Hours", 0, 1);
    optDays = unitButton("optDays", "Days", 1, 0);
    optMonths = unitButton("optMonths", "Months", 1, 1);
    optYears = unitButton("optYears", "Years", 2, 0);
    optCenturies = unitButton("optCenturies", "Centuries", 2, 1);
    optDays->setChecked(true);

    cmdGenerate = new QPushButton(QStringLiteral("&Generate"));
    cmdGenerate->setObjectName(QStringLiteral("cmdGenerate"));
    cmdStart = new QPushButton(QStringLiteral("&Start"));
    cmdStart->setObjectName(QStringLiteral("cmdStart"));
    cmdStop = new QPushButton(QStringLiteral("S&top"));
    cmdStop->setObjectName(QStringLiteral("cmdStop"));
    cmdStop->setEnabled(false);
    chkPlaLabels = new QCheckBox(QStringLiteral("Planet labels"));
    chkPlaLabels->setObjectName(QStringLiteral("chkPlaLabels"));
    chkPlaLabels->setChecked(true);
    lblAscVal = new QLabel;
    lblAscVal->setObjectName(QStringLiteral("lblAscVal"));
    lblValues = new QLabel;
    lblValues->setObjectName(QStringLiteral("lblValues"));
    lblValues->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblValues->setMinimumWidth(210);

    m_canvas = new TransitCanvas(m_chart, this);
    Trigger = new QTimer(this);
    Trigger->setObjectName(QStringLiteral("Trigger"));
    Trigger->setInterval(200);

    auto *form = new QGridLayout;
    form->addWidget(new QLabel(QStringLiteral("Date")), 0, 0);
    form->addWidget(txtDate, 0, 1, 1, 2);
    form->addWidget(new QLabel(QStringLiteral("Time")), 1, 0);
    form->addWidget(txtTime, 1, 1);
    auto *ampmRow = new QHBoxLayout;
    ampmRow->addWidget(optAM);
    ampmRow->addWidget(optPM);
    form->addLayout(ampmRow, 1, 2);
    form->addWidget(new QLabel(QStringLiteral("Step by")), 2, 0);
    form->addWidget(txtFactor, 2, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdGenerate);
    buttons->addWidget(cmdStart);
    buttons->addWidget(cmdStop);
    auto *side = new QVBoxLayout;
    side->addLayout(form);
    side->addWidget(units);
    side->addLayout(buttons);
    side->addWidget(chkPlaLabels);
    auto *ascRow = new QHBoxLayout;
    ascRow->addWidget(new QLabel(QStringLiteral("Lagna:")));
    ascRow->addWidget(lblAscVal, 1);
    side->addLayout(ascRow);
    side->addWidget(lblValues, 1);
    auto *top = new QHBoxLayout(this);
    top->addWidget(m_canvas, 1);
    top->addLayout(side);

    connect(cmdGenerate, &QPushButton::clicked, this, [this] {
        if (readBoxes())
            cast();
    });
    connect(cmdStart, &QPushButton::clicked, this, [this] {
        if (!readBoxes())
            return;
        cast();
        setRunning(true);
    });
    connect(cmdStop, &QPushButton::clicked, this, [this] { setRunning(false); });
    connect(Trigger, &QTimer::timeout, this, &frmVisualTransits::Tick);
    connect(chkPlaLabels, &QCheckBox::toggled, this, [this](bool on) {
        m_canvas->labels = on;
        m_canvas->update();
    });

    const QDateTime now = QDateTime::currentDateTime();
    setMoment(QDateTime(now.date(), QTime(now.time().hour(), now.time().minute()), Qt::UTC));
}

frmVisualTransits::~frmVisualTransits() = default;

void frmVisualTransits::setMoment(const QDateTime &m)
{
    m_moment = m;
    showMoment();
    cast();
}

void frmVisualTransits::showMoment()
{
    txtDate->setText(m_moment.date().toString(QStringLiteral("dd/MM/yyyy")));
    const int h = m_moment.time().hour();
    const int h12 = h % 12 == 0 ? 12 : h % 12;
    txtTime->setText(QStringLiteral("%1.%2").arg(h12, 2, 10, QLatin1Char('0')).arg(m_moment.time().minute(), 2, 10, QLatin1Char('0')));
    (h < 12 ? optAM : optPM)->setChecked(true);
}

bool frmVisualTransits::readBoxes()
{
    const QDate d = ParseEntryDate(txtDate->text());
    const auto t = ParseEntryTime(txtTime->text());
    if (!d.isValid()) {
        QMessageBox::warning(this, windowTitle(), QStringLiteral("Please enter a valid date as dd/mm/yyyy."));
        txtDate->setFocus();
        return false;
    }
    if (!t || t->whole < 1 || t->whole > 12 || t->minutes > 59) {
        QMessageBox::warning(this, windowTitle(), QStringLiteral("Please enter a valid time as hh.mm (1 to 12 hours, 0 to 59 minutes)."));
        txtTime->setFocus();
        return false;
    }
    const int hour = t->whole % 12 + (optPM->isChecked() ? 12 : 0);
    m_moment = QDateTime(d, QTime(hour, t->minutes), Qt::UTC);
    return true;
}

void frmVisualTransits::cast()
{
    clsPerson &p = m_chart.Person();
    const QDate d = m_moment.date();
    const QTime t = m_moment.time();
    p.setDay(d.day());
    p.setMonth(d.month());
    p.setYear(d.year());
    p.setHour(t.hour());
    p.setMinutes(t.minute());
    p.setAMPM(t.hour() < 12 ? 1 : 2);
    m_chart.Calculate();

    lblAscVal->setText(VisualTransits::ValueText(m_chart, 0));
    QStringList lines;
    for (int body = 1; body <= 12; ++body)
        lines << VisualTransits::ValueLine(m_chart, body);
    lblValues->setText(lines.join(QLatin1Char('\n')));
    m_canvas->cast = true;
    m_canvas->update();
}

VisualTransits::Unit frmVisualTransits::unit() const
{
    using U = VisualTransits::Unit;
    return optMins->isChecked()     ? U::Minutes
           : optHours->isChecked()  ? U::Hours
           : optMonths->isChecked() ? U::Months
           : optYears->isChecked()  ? U::Years
           : optCenturies->isChecked() ? U::Centuries
                                       : U::Days;
}

void frmVisualTransits::Tick()
{
    m_moment = VisualTransits::Step(m_moment, unit(), txtFactor->value());
    showMoment();
    cast();
}

void frmVisualTransits::setRunning(bool on)
{
    for (QWidget *w : std::initializer_list<QWidget *>{txtDate, txtTime, txtFactor, cmdGenerate, cmdStart})
        w->setEnabled(!on);
    cmdStop->setEnabled(on);
    if (on)
        Trigger->start();
    else
        Trigger->stop();
}
