// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The yoga scan: the Ashtakavarga yogas, the classical list with the Raja ladder and the exchange
// of lords, the rules of wealth and the houses, and the class's list, each printing its name and
// paragraph when it holds.

#include <QString>
#include <QStringList>

class clsPlanets;

// Where the scan writes: a heading with the yoga's name, then its paragraph.
class YogaOutput
{
public:
    virtual ~YogaOutput() = default;
    virtual void PutYogaHead(const QString &name) = 0;
    virtual void PutYogaText(const QString &key) = 0;
};

namespace CheckYogas {
// One yoga that holds: the key of its name (YOGNAME) and of its paragraph (YOGAS).
struct Hit
{
    QString nameKey, textKey;
};
// The whole scan of a chart, in its order, with RajaStop cleared at the start. Each hit goes to
// out (when given) as its name from YOGNAME and its paragraph key.
QList<Hit> ScanYogas(const clsPlanets &c, YogaOutput *out = nullptr);
// The name keys of the hits, in order (what the command line prints).
QStringList NameKeys(const QList<Hit> &hits);
// Every key the scan can print, names and paragraphs (for the text tables).
QStringList AllNameKeys();
QStringList AllTextKeys();
} // namespace CheckYogas
