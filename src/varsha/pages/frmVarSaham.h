// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The 36 sahams of the year with their signs, lords and the lords' dignity, then what each signifies.

#include "varsha/pages/VarshaPage.h"

class frmVarSaham : public VarshaPage
{
    Q_OBJECT
public:
    explicit frmVarSaham(QWidget *parent = nullptr) : VarshaPage(QStringLiteral("frmVarSaham"), parent) {}

protected:
    void fillYear(const clsVarsha &v) override;
};
