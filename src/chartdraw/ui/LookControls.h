// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The small controls of the look editors: a colour box that opens the colour dialog when clicked,
// a width box that takes no typing and steps between 1 and 10, and the editors' captions.

#include <QColor>
#include <QSpinBox>
#include <QToolButton>

#include <functional>

class ColorBox : public QToolButton
{
    Q_OBJECT
public:
    explicit ColorBox(const QString &name, QWidget *parent = nullptr);
    QColor colour() const { return m_colour; }
    // The colour as a colour number, 0x00BBGGRR.
    qint64 value() const;
    void setColour(const QColor &c);
    void setValue(qint64 colourNumber);

    // How a click asks for a colour: by default the colour dialog, opened on the box's colour. An
    // invalid answer (the dialog cancelled) keeps the colour. Tests answer in its place.
    using Picker = std::function<QColor(const QColor &current, QWidget *parent)>;
    static void setPicker(Picker picker);

Q_SIGNALS:
    // The user chose a colour.
    void colourChosen(const QColor &c);

protected:
    void paintEvent(QPaintEvent *) override;

private:
    void pick();
    QColor m_colour{Qt::black};
};

// A width from 1 to 10 by its arrows; every key that would type into it is swallowed. A stored 0
// shows as 0, and the first step up gives 1.
class WidthSpin : public QSpinBox
{
    Q_OBJECT
public:
    explicit WidthSpin(const QString &name, QWidget *parent = nullptr);

protected:
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent *e) override;
};

// The caption of key in category "Look" of the language's words; fallback while no language is open.
QString LookText(const char *key, const char *fallback);
