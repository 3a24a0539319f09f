// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/pages/frmSodash.h"

#include "chartdraw/ChartFill.h"
#include "chartdraw/ui/Kundali.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

namespace {
constexpr int kChart = 320;
constexpr std::array<QPoint, 4> kPlaces{{{40, 110}, {400, 110}, {40, 570}, {400, 570}}};
} // namespace

void frmSodash::fill()
{
    for (size_t i = 0; i < kPlaces.size(); ++i) {
        const QPoint at = kPlaces[i];
        lblVarga[i] = addLabel(QRect(at.x(), at.y() - 34, kChart, 26), QString(), SubHead, Qt::AlignCenter);
        kunVarga[i] = addChart(QRect(at, QSize(kChart, kChart)));
        kunVarga[i]->setObjectName(QStringLiteral("kunVarga%1").arg(i));
    }
    MakePage(m_page == 0 ? 1 : m_page);
}

void frmSodash::MakePage(int n)
{
    if (n < 1 || n > 4)
        return;
    m_page = n;
    if (!isLoaded() || !kunVarga[0])
        return; // the load draws the page asked for
    const clsPlanets &c = chart();
    lblTitle->setText(GenLabel(QStringLiteral("Shodash%1").arg(n), c));
    for (int i = 0; i < 4; ++i) {
        const int row = (n - 1) * 4 + i + 1;
        lblVarga[static_cast<size_t>(i)]->setText(c.GetHeadValue(1, row, QStringLiteral("Shodashvarga")).toString());
        FillVargaKundali(kunVarga[static_cast<size_t>(i)]->model(), c, row);
        kunVarga[static_cast<size_t>(i)]->update();
    }
}
