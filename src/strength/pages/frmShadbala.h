// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Shad Bala": thirty-one figures for each of the seven planets: the parts and totals of the six
// strengths, the total in Rupas, the required minima, and how each planet stands against them.

#include "output/ui/TopicPage.h"

class frmShadbala : public TopicPage
{
    Q_OBJECT
public:
    explicit frmShadbala(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmShadbala"), parent) {}
    static constexpr int kRows = 31;
    // The figure of row r (0..30) for planet p (1..7), as shown.
    QString figure(int row, int planet) const;

protected:
    void fill() override;

private:
    QVector<QVector<QLabel *>> m_cells; // [row][column 1..7]
};
