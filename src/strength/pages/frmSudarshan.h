// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Sudarshan Chakra": the chart read from the Lagna, the Moon and the Sun at once, as three rings
// of twelve signs about one centre, with two notes on reading it.

#include "output/ui/TopicPage.h"

class SudarshanChakra;

class frmSudarshan : public TopicPage
{
    Q_OBJECT
public:
    explicit frmSudarshan(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmSudarshan"), parent) {}
    SudarshanChakra *chkSudarshan = nullptr;

protected:
    void fill() override;
};
