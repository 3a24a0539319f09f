// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/pages/frmJaimini2.h"

#include "chartdraw/ui/Kundali.h"
#include "jaimini/JaiminiCharts.h"
#include "jaimini/clsJaimini.h"
#include "jaimini/pages/JaiminiPage.h"

namespace {
constexpr int kChart = 228;
constexpr std::array<int, 3> kColumns{22, 266, 510};
constexpr std::array<int, 3> kRowTops{90, 410, 730};
inline constexpr std::array<const char *, 9> kControl{"kunJMTrad",   "kunJMDTrad",  "kunJMDPari", "kunJMDSoma", "kunJMNavTrad",
                                                      "kunJMNavKri", "kunJMUpaPad", "kunJMKarak", "kunJMAruda"};
} // namespace

void frmJaimini2::fill()
{
    const clsPlanets &c = chart();
    lblTitle->setText(JaiminiLabel(c, "JaiminiHead"));
    const clsJaimini jm(c);
    for (size_t i = 0; i < kJaiminiCharts.size(); ++i) {
        const JaiminiChart which = kJaiminiCharts[i];
        const QRect at(kColumns[i % 3], kRowTops[i / 3], kChart, kChart);
        // The titles may run a little wider than their charts, into the gaps between them.
        addLabel(QRect(at.left() - 8, at.top() - 26, kChart + 16, 22), JaiminiLabel(c, JaiminiChartHead(which)), SubHead,
                 Qt::AlignCenter);
        kunJM[i] = addChart(at);
        kunJM[i]->setObjectName(QString::fromLatin1(kControl[i]));
        FillJaiminiKundali(kunJM[i]->model(), jm, which);
        kunJM[i]->update();
    }
}
