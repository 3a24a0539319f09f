// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "KP Significations contd...": the houses each planet signifies, by strength, and the houses
// signified by the sub lord of each cusp.

#include "kp/pages/KPPage.h"

class frmKP3 : public KPPage
{
    Q_OBJECT
public:
    explicit frmKP3(QWidget *parent = nullptr) : KPPage(QStringLiteral("frmKP3"), parent) {}
    Table tblPlanets;
    Table tblSubLords;

protected:
    void fill() override;

private:
    // The houses planet p signifies, in the four bands.
    Bands housesOf(int p) const;
};
