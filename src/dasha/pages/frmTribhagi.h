// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Tribhagi Dasha": the nine Mahas from birth with their spans and dates, and the bhuktis of each.

#include "output/ui/TopicPage.h"

struct TribhagiMaha;

class frmTribhagi : public TopicPage
{
    Q_OBJECT
public:
    explicit frmTribhagi(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmTribhagi"), parent) {}

protected:
    void fill() override;

private:
    // A block of the bhuktis of a Maha under its lord's name, at (x, y); the first Maha's, which
    // lists only those after birth, stand at the foot of the block.
    void bhuktiBlock(int x, int y, const TribhagiMaha &maha);
};
