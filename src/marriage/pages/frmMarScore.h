// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Guna/Dosh Score Table": the eight kutas with each person's detail and the points, the total
// with its verdict, the Manglik consideration, and the four further checks.

#include "output/ui/TopicPage.h"

class frmMarScore : public TopicPage
{
    Q_OBJECT
public:
    explicit frmMarScore(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmMarScore"), parent) {}
    // The large total.
    QLabel *lblMMScore = nullptr;

protected:
    void fill() override;

private:
    // A paragraph wrapped to width at (x, y); answers the y below it.
    int paragraph(int x, int y, int width, const QString &text, const QString &name = QString());
};
