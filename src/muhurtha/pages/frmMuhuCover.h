// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Cover Page" of Muhurtha mode: the act, the place and span searched, the best moment with its
// score and Lagna span, its chart, and the other moments of its day.

#include "output/ui/TopicPage.h"

class frmMuhuCover : public TopicPage
{
    Q_OBJECT
public:
    explicit frmMuhuCover(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmMuhuCover"), parent) {}

protected:
    void fill() override;
};
