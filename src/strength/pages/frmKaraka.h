// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Planetary Avasthas": the fixed and the two movable lists of karakas, the states of the nine
// planets in six families, and the nine taras counted from the birth star.

#include "output/ui/TopicPage.h"

#include <array>

class frmKaraka : public TopicPage
{
    Q_OBJECT
public:
    explicit frmKaraka(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmKaraka"), parent) {}
    enum List { Sthira, Sapta, Ashta };
    // The planet shown in row i (0-based) of a karaka list, or the state of planet p (1..9) in the
    // family column f (0..5), or the stars of tara row t (0..8), as shown.
    QString karaka(List l, int row) const;
    QString state(int planet, int family) const;
    QString taraStars(int row) const;

protected:
    void fill() override;

private:
    std::array<QVector<QVector<QLabel *>>, 3> m_lists;
    QVector<QVector<QLabel *>> m_states, m_taras;
};
