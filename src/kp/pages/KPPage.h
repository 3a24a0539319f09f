// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// What the four KP pages share: the session's KP recast, their words from category
// "Krishnamurthy", and the significators of a house or a planet sorted into four strength bands.

#include "output/ui/TopicPage.h"

#include <array>

class clsKPSystem;

class KPPage : public TopicPage
{
    Q_OBJECT
public:
    using TopicPage::TopicPage;

protected:
    // The KP recast of the page's chart.
    const clsKPSystem &kp() const;
    // A word of the KP pages.
    QString head(const char *key) const;
    // The language's "-", shown in an empty cell.
    QString dash() const;
    // A planet's name, or the dash for no planet (a sub lord of 0).
    QString lordName(int p) const;
    QString lordNameFull(int p) const;
    // Heads of the four bands: weak, moderate, strong, very strong.
    QStringList bandHeads() const;
    // Items put into the four bands by score, each followed by a blank as the table shows it;
    // a band left empty shows the dash.
    using Bands = std::array<QString, 4>;
    void addToBand(Bands &b, int score, const QString &item) const;
    void fillBands(Bands &b) const;
};
