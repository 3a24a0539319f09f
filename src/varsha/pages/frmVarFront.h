// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The annual front page: the annual and the birth wheel, the Muntha, the lord of the year and the
// positions of the annual chart.

#include "varsha/pages/VarshaPage.h"

class Kundali;

class frmVarFront : public VarshaPage
{
    Q_OBJECT
public:
    explicit frmVarFront(QWidget *parent = nullptr) : VarshaPage(QStringLiteral("frmVarFront"), parent) {}
    Kundali *kunVarsha = nullptr;
    Kundali *kunBirth = nullptr;
    QLabel *lblMunSignVal = nullptr;
    QLabel *lblMunHouseVal = nullptr;
    QLabel *lblVarsheshWar = nullptr;
    QLabel *lblNowYear = nullptr;

protected:
    void fillYear(const clsVarsha &v) override;

private:
    // Both wheels: the ascendants, the planets 1..12 in their signs, the Muntha on the annual one.
    void KundTextPutter(const clsVarsha &v);
};
