// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Planet Maitri Chakra": the natural, temporal and five-fold friendship of the nine planets, one
// grid each, rows the planet that regards and columns the planet regarded.

#include "output/ui/TopicPage.h"

#include <array>

class frmMaitri : public TopicPage
{
    Q_OBJECT
public:
    explicit frmMaitri(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmMaitri"), parent) {}
    enum Grid { Permanent, Temporal, Panchadha };
    // The word in grid g for planet a regarding b (1..9), as shown.
    QString cell(Grid g, int a, int b) const;

protected:
    void fill() override;

private:
    std::array<QVector<QVector<QLabel *>>, 3> m_grids; // lblPermanent, lblTemporal, lblPanchadha
};
