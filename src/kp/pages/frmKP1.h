// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "KP Longitudes": the planets and the twelve cusps in the KP ayanamsa with their sign, star and
// sub lords, the Part of Fortune, and the span of each house from its cusp to the next.

#include "kp/pages/KPPage.h"

class frmKP1 : public KPPage
{
    Q_OBJECT
public:
    explicit frmKP1(QWidget *parent = nullptr) : KPPage(QStringLiteral("frmKP1"), parent) {}
    Table tblPlanets;
    Table tblCusps;
    Table tblSpans;
    QLabel *lblParsFortuna = nullptr;

protected:
    void fill() override;
};
