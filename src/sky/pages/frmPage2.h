// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Lagna & Planet Positions": the Lagna chart and the table of the planets.

#include "output/ui/TopicPage.h"

class Kundali;

class frmPage2 : public TopicPage
{
    Q_OBJECT
public:
    explicit frmPage2(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmPage2"), parent) {}
    Kundali *kunLagna = nullptr;

protected:
    void fill() override;
};
