// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The three dashas of the year, one under the other: Patyayini, Mudda Yogini, Mudda Vimshottari.

#include "varsha/pages/VarshaPage.h"

class frmVarshaDasha : public VarshaPage
{
    Q_OBJECT
public:
    explicit frmVarshaDasha(QWidget *parent = nullptr) : VarshaPage(QStringLiteral("frmVarshaDasha"), parent) {}

protected:
    void fillYear(const clsVarsha &v) override;
};
