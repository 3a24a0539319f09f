// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Harsha Bala of the seven planets, the Sun-based upagrahas of the annual chart with their wheel,
// and the five officials with the lord of the year and the Muntha.

#include "varsha/pages/VarshaPage.h"

class Kundali;

class frmVarChart2 : public VarshaPage
{
    Q_OBJECT
public:
    explicit frmVarChart2(QWidget *parent = nullptr) : VarshaPage(QStringLiteral("frmVarChart2"), parent) {}
    Kundali *UpaKun = nullptr;

protected:
    void fillYear(const clsVarsha &v) override;
};
