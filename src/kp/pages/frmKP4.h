// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "KP Kundlis": the ruling planets of the birth, the Part of Fortune and the KP ayanamsa, the
// balance of the birth Maha, and two charts: the planets in their KP signs and in their houses.

#include "kp/pages/KPPage.h"

class Kundali;

class frmKP4 : public KPPage
{
    Q_OBJECT
public:
    explicit frmKP4(QWidget *parent = nullptr) : KPPage(QStringLiteral("frmKP4"), parent) {}
    Kundali *kunLagna = nullptr;
    Kundali *kunBhav = nullptr;
    QLabel *lblBalance = nullptr;

protected:
    void fill() override;
};
