// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A text page that shows one of the readings of text/Readings: its title, then each heading and
// the paragraph of its key. A key whose paragraph is Null leaves the heading alone on the page.

#include "output/ui/TextPage.h"
#include "text/Readings.h"

#include <functional>

class ReadingPage : public TextPage
{
    Q_OBJECT
public:
    using Reader = std::function<Reading(const clsPlanets &)>;
    ReadingPage(const QString &name, Reader reader, QWidget *parent = nullptr)
        : TextPage(name, parent), m_reader(std::move(reader))
    {
    }

protected:
    void fill() override;

private:
    Reader m_reader;
};

// "Planetary Conjunction Results".
class frmConjPredi : public ReadingPage
{
    Q_OBJECT
public:
    explicit frmConjPredi(QWidget *parent = nullptr) : ReadingPage(QStringLiteral("frmConjPredi"), ConjunctionReading, parent) {}
};

// "Birth Nakshatra Result".
class frmNakshatra : public ReadingPage
{
    Q_OBJECT
public:
    explicit frmNakshatra(QWidget *parent = nullptr) : ReadingPage(QStringLiteral("frmNakshatra"), NakshatraReading, parent) {}
};

// "Result for Placement of Planets".
class frmGrahaFala : public ReadingPage
{
    Q_OBJECT
public:
    explicit frmGrahaFala(QWidget *parent = nullptr) : ReadingPage(QStringLiteral("frmGrahaFala"), GrahaFalaReading, parent) {}
};

// "Prediction on Houses".
class frmBhavaFal : public ReadingPage
{
    Q_OBJECT
public:
    explicit frmBhavaFal(QWidget *parent = nullptr) : ReadingPage(QStringLiteral("frmBhavaFal"), BhavaFalaReading, parent) {}
};
