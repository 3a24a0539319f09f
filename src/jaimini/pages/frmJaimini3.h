// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Jaimini Sphutas Etc.": the six Sphutas, the four lists of karakas, and the sign aspects: for
// each sign its frontal and lateral aspects and the planets in it.

#include "output/ui/TopicPage.h"

class frmJaimini3 : public TopicPage
{
    Q_OBJECT
public:
    explicit frmJaimini3(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmJaimini3"), parent) {}

    QVector<QVector<QLabel *>> sphutaCells, ashtaCells, saptaCells, aspectCells;

protected:
    void fill() override;
};
