// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Vimshottari Dasha": the nine Mahas with their spans, and the nine Antars of each.

#include "dasha/clsDashaVimshottari.h"
#include "output/ui/TopicPage.h"

class frmVimsot : public TopicPage
{
    Q_OBJECT
public:
    explicit frmVimsot(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmVimsot"), parent) {}

protected:
    void fill() override;
    // A block of nine sub-periods under the name of their parent, at (x, y).
    void subBlock(int x, int y, const DashaPeriod &parent, bool withEnd);
};

// "Vimshottari-Pratyantara": the nine Antars of the Maha running today, and the nine
// Pratyantaras of each.
class frmPratyan : public frmVimsot
{
    Q_OBJECT
public:
    explicit frmPratyan(QWidget *parent = nullptr);
    // The day the page counts as today (the clock's date unless set, for tests and pictures).
    static void setToday(const QDateTime &today);

protected:
    void fill() override;
};
