// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Bhava Table & Chalit Chakra": the beginnings and middles of the twelve bhavas, and the chart of
// the planets in their bhavas.

#include "output/ui/TopicPage.h"

class Kundali;

class frmBhav : public TopicPage
{
    Q_OBJECT
public:
    explicit frmBhav(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmBhav"), parent) {}
    Kundali *kunChalit = nullptr;

protected:
    void fill() override;
};
