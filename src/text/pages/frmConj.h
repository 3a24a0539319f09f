// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Planetary Conjunctions": the planets that aspect each planet's sign, and the separation of
// every pair of planets with its relation.

#include "output/ui/TopicPage.h"

class frmConj : public TopicPage
{
    Q_OBJECT
public:
    explicit frmConj(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmConj"), parent) {}
    Table aspects;
    Table matrix;

protected:
    void fill() override;

private:
    void fillAspects(int y);
    void fillMatrix(int y);
};
