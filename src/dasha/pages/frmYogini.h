// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Yogini & ShatTrimsha Dasha": the two eight-fold dashas side by side, sixteen periods each from
// birth.

#include "dasha/YoginiDasha.h"
#include "output/ui/TopicPage.h"

class frmYogini : public TopicPage
{
    Q_OBJECT
public:
    explicit frmYogini(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmYogini"), parent) {}

protected:
    void fill() override;

private:
    // The heads and the Yogini table.
    void YoginiDashaJanm();
    void ShatTrimshaDasha();
    // One table of rows at x, with the place number of the cycle in a first column when numbered.
    void table(int x, const QList<int> &widths, const YoginiRows &rows, bool numbered);
    QString GetYears() const;
};
