// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "KP Significations": the significators of each house sorted by strength, and the same
// significators by the four tests that make them (cusp lord, occupants, and the stars of both).

#include "kp/pages/KPPage.h"

class frmKP2 : public KPPage
{
    Q_OBJECT
public:
    explicit frmKP2(QWidget *parent = nullptr) : KPPage(QStringLiteral("frmKP2"), parent) {}
    Table tblBands;
    Table tblTests;

protected:
    void fill() override;
};
