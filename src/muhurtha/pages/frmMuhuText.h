// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Muhurtha Analysis": the best moment in words, the elements that fired with their points, the
// Lagna span, the other moments of the day, and the reading of the act.

#include "output/ui/TextPage.h"

class frmMuhuText : public TextPage
{
    Q_OBJECT
public:
    explicit frmMuhuText(QWidget *parent = nullptr) : TextPage(QStringLiteral("frmMuhuText"), parent) {}

protected:
    void fill() override;
};
