// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The annual balas of the seven planets: Pancha Vargiya Bala, and Dwadash Vargiya Bala with its
// twelve divisions down the side.

#include "varsha/pages/VarshaPage.h"

class frmVarBalas : public VarshaPage
{
    Q_OBJECT
public:
    explicit frmVarBalas(QWidget *parent = nullptr) : VarshaPage(QStringLiteral("frmVarBalas"), parent) {}

protected:
    void fillYear(const clsVarsha &v) override;
};
