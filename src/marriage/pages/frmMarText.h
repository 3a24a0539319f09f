// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Match Score Analysis": for each kuta its heading and points and the paragraph that explains
// what the couple's pairing means.

#include "output/ui/TextPage.h"

class frmMarText : public TextPage
{
    Q_OBJECT
public:
    explicit frmMarText(QWidget *parent = nullptr) : TextPage(QStringLiteral("frmMarText"), parent) {}

protected:
    void fill() override;
};
