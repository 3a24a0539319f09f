// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Jaimini Kundlis": nine charts, three rows of three: the Janma chart, the three Drekkanas, the
// two Navamshas, and the rasi raised from the Upapada, the Karakamsha and the Arudha.

#include "output/ui/TopicPage.h"

#include <array>

class Kundali;

class frmJaimini2 : public TopicPage
{
    Q_OBJECT
public:
    explicit frmJaimini2(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmJaimini2"), parent) {}
    // kunJMTrad, kunJMDTrad, kunJMDPari, kunJMDSoma, kunJMNavTrad, kunJMNavKri, kunJMUpaPad,
    // kunJMKarak, kunJMAruda.
    std::array<Kundali *, 9> kunJM{};

protected:
    void fill() override;
};
