// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Tajika yogas of the annual chart. Each rule looks at the chart and answers its report, or
// the empty text when the yoga isn't there; nothing is kept between calls.

#include <QString>
#include <QStringList>

class clsPlanets;

class clsVarshaYoga
{
public:
    explicit clsVarshaYoga(const clsPlanets &annual) : c(annual) {}

    QString Ishkabala() const;
    QString Induvara() const;
    // Ithasala and Easarapha of pair n (1..21) of their tables.
    QString Ithasala(int n) const;
    QString Easarapha(int n) const;
    QString Nakta() const;
    QString Yamaya() const;
    QString Kamboola() const;
    QString Kamboola1() const;
    QString Kamboola2() const;
    QString Kamboola3() const;
    QString GairiKamboola1() const;
    QString GairiKamboola2() const;
    QString Dupparikutha() const;
    QString Khalwasara1() const;
    QString Khalwasara2() const;
    QString Manahoo() const;
    QString Duttota1() const;
    QString Duttota2() const;
    QString Durupha() const;
    QString Kuttha() const;
    QString Thamvira() const;
    QString Radda1() const;
    QString Radda2() const;
    QString Radda3() const;
    QString Radda4() const;
    // The name of an aspect code: "Conjunction", "Square", "Opposition", "Trine", "Sextile", or "".
    static QString CheckRelation(int code);

    // One yoga of the run with its key (the rule's name, "Ithasala5") and report.
    struct Report
    {
        QString Key, Text;
    };
    // The rules in their order, Ishkabala to Thamvira, with the reports of those that hold.
    QList<Report> Reports() const;
    // The reports joined as the test page shows them, each followed by two line ends.
    QString CAndPTajakYogas() const;

private:
    const clsPlanets &c;
};
