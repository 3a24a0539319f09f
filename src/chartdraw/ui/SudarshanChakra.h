// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Sudarshan chakra on screen, on paper and in a PDF: three rings of twelve cells about a
// centre, drawn with the chart wheel's colours, fonts and line widths through the same paint entry,
// so that the page walkers print it as they print any chart.

#include "chartdraw/SudarshanModel.h"
#include "chartdraw/ui/Kundali.h"

class SudarshanChakra : public Kundali
{
    Q_OBJECT
public:
    explicit SudarshanChakra(QWidget *parent = nullptr);

    SudarshanModel &rings() { return m_rings; }
    const SudarshanModel &rings() const { return m_rings; }

    void paintChart(QPainter &p, const QRectF &target, Surface surface) const override;

private:
    SudarshanModel m_rings;
};
