// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Planetary Positions & Lagna Kundali" of a couple: the two Lagna charts and one table of the
// planets with each person's sign, degrees and motion.

#include "output/ui/TopicPage.h"

class Kundali;

class frmMarCover : public TopicPage
{
    Q_OBJECT
public:
    explicit frmMarCover(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmMarCover"), parent) {}
    Kundali *kunBoy = nullptr;
    Kundali *kunGal = nullptr;

protected:
    void fill() override;
};
