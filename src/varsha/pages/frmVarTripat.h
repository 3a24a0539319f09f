// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Tri-pataka wheel of the year: the twelve fields with the planets in their Tri-pataka signs,
// and the vedhas that strike each of the Moon, the Lagna and the seven planets.

#include "varsha/pages/VarshaPage.h"

class frmVarTripat : public VarshaPage
{
    Q_OBJECT
public:
    explicit frmVarTripat(QWidget *parent = nullptr) : VarshaPage(QStringLiteral("frmVarTripat"), parent) {}
    // The signs a body in sign s strikes (three of them).
    static const std::array<int, 3> &VedhaSigns(int s);
    // The names that strike body i (0 the Lagna, 1..7), separated by blanks.
    static QString Vedhas(const clsVarsha &v, int i);

protected:
    void fillYear(const clsVarsha &v) override;
};
