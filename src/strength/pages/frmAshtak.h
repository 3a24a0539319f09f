// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Ashtakvarga & Shodhan": the point tables of the planets, Rahu and the Lagna, the tables after
// the trine and lordship reductions, and the Shodhya Pinda of each planet.

#include "output/ui/TopicPage.h"
#include "strength/Ashtakavarga.h"

class frmAshtak : public TopicPage
{
    Q_OBJECT
public:
    explicit frmAshtak(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmAshtak"), parent) {}
    // The reduced table of planet p (1..7), kept while the page is open.
    const Ashtakavarga::Signs &reduced(int p) const { return m_g[static_cast<size_t>(p)]; }

protected:
    void fill() override;

private:
    std::array<Ashtakavarga::Signs, 8> m_g{};
};

// "Bhinnashtakvarga 1" and "2": the givers of four tables, point by point (Prastara).
class frmBhinnaAshtak : public TopicPage
{
    Q_OBJECT
public:
    // part 1: Saturn, Jupiter, Mars, Sun; part 2: Venus, Mercury, Moon, Lagna.
    explicit frmBhinnaAshtak(int part, QWidget *parent = nullptr);

protected:
    void fill() override;

private:
    int m_part;
};
