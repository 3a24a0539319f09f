// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Visual Transits": the sky turning on a timer at the birth's place. Each tick moves the moment
// by the chosen step, casts the chart once and repaints the canvas once.

#include "muhurtha/VisualTransits.h"
#include "sky/clsPlanets.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTimer;
class TransitCanvas;

class frmVisualTransits : public QDialog
{
    Q_OBJECT
public:
    // The sky at the place of `natal`'s person, starting now.
    explicit frmVisualTransits(const clsPlanets &natal, QWidget *parent = nullptr);
    ~frmVisualTransits() override;

    QLineEdit *txtDate;
    QLineEdit *txtTime;
    QRadioButton *optAM;
    QRadioButton *optPM;
    QSpinBox *txtFactor;
    QRadioButton *optMins, *optHours, *optDays, *optMonths, *optYears, *optCenturies;
    QPushButton *cmdGenerate;
    QPushButton *cmdStart;
    QPushButton *cmdStop;
    QTimer *Trigger;
    QCheckBox *chkPlaLabels;
    QLabel *lblAscVal;
    QLabel *lblValues;

    // The moment the sky shows.
    QDateTime moment() const { return m_moment; }
    const clsPlanets &sky() const { return m_chart; }
    // One tick of the timer: step, cast, repaint. Public for the benchmark and the tests.
    void Tick();
    // Makes the moment now instead of the clock's present (tests, screenshots).
    void setMoment(const QDateTime &m);

private:
    bool readBoxes();
    void showMoment();
    void cast();
    void setRunning(bool on);
    VisualTransits::Unit unit() const;

    clsPlanets m_chart;
    QDateTime m_moment;
    TransitCanvas *m_canvas;
};
