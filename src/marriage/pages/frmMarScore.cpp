// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/pages/frmMarScore.h"

#include "marriage/MarrSession.h"
#include "marriage/clsMarr.h"
#include "output/ui/PageStyle.h"
#include "session/Session.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <QFontMetrics>

#include <array>

namespace {
constexpr int kLeft = 40, kWidthAll = 680, kRow = 26;
} // namespace

int frmMarScore::paragraph(int x, int y, int width, const QString &text, const QString &name)
{
    QLabel *l = addLabel(QRect(x, y, width, 20), text, Small, Qt::AlignLeft | Qt::AlignTop);
    l->setWordWrap(true);
    if (!name.isEmpty())
        l->setObjectName(name);
    const int h = l->fontMetrics().boundingRect(QRect(0, 0, width, 4000), Qt::TextWordWrap, text).height() + 4;
    l->setGeometry(x, y, width, h);
    return y + h;
}

void frmMarScore::fill()
{
    const SessionGlobals &s = Session();
    const clsPlanets &boy = *s.BoyPlanets;
    const clsPlanets &girl = *s.GalPlanets;
    const clsPlanets &c = chart();
    const auto word = [&c](const QString &key) { return c.GetHeadValue(1, key, QStringLiteral("Marriage")).toString(); };
    const auto w = [&word](const char *key) { return word(QString::fromLatin1(key)); };
    clsMarr &m = *SessionMarr();
    m.DoMatch();
    lblTitle->setText(w("MarScore"));

    addLabel(QRect(kLeft, 58, kWidthAll, 26), w("MatchTable"), SubHead);
    const Table t = addTable(kLeft, 86, {160, 175, 175, 85, 85}, kRow, {w("GROUP"), w("Boy"), w("Girl"), w("Points"), w("MaxPoints")},
                             clsMarr::kKutaCount + 1, Small, true);
    for (int k = 0; k < clsMarr::kKutaCount; ++k) {
        t.cell(k, 0)->setText(word(clsMarr::KutaKey(k)));
        t.cell(k, 1)->setText(m.Detail(k, 1));
        t.cell(k, 2)->setText(m.Detail(k, 2));
        t.cell(k, 3)->setText(NumText(m.Score(k)));
        t.cell(k, 4)->setText(NumText(clsMarr::KutaMax(k)));
    }
    const QString total = NumText(m.TotalScore());
    const int last = clsMarr::kKutaCount;
    t.cell(last, 0)->setText(w("Total"));
    t.cell(last, 3)->setText(total);
    t.cell(last, 4)->setText(QStringLiteral("36"));
    for (int col : {0, 3, 4})
        StyleSmallBold(t.cell(last, col));

    int y = t.rect.bottom() + 14;
    addLabel(QRect(kLeft, y, 300, 40), w("ScoreOf"), SubHead, Qt::AlignLeft | Qt::AlignVCenter);
    lblMMScore = addLabel(QRect(kLeft + 300, y, 120, 40), total, Heading, Qt::AlignLeft | Qt::AlignVCenter);
    lblMMScore->setObjectName(QStringLiteral("lblMMScore"));
    y = paragraph(kLeft, y + 44, kWidthAll, word(m.GetTotSCO()), QStringLiteral("lblVerdict")) + 10;

    addLabel(QRect(kLeft, y, kWidthAll, 26), w("MVichar"), SubHead);
    y = paragraph(kLeft, y + 28, kWidthAll, c.GetHeadValue(1, m.ManglikCode(), QStringLiteral("MANGLIK")).toString(),
                  QStringLiteral("lblManglik"));
    for (int who : {1, 2})
        if (!m.ManglikCancelText(who).isEmpty())
            y = paragraph(kLeft, y + 4, kWidthAll, m.ManglikCancelText(who));
    y += 10;

    addLabel(QRect(kLeft, y, kWidthAll, 26), w("ExMarMatch"), SubHead);
    const Table x = addTable(kLeft, y + 28, {160, 175, 175, 170}, kRow, {w("GROUP"), w("Boy"), w("Girl"), w("Favourable")}, 4, Small, true);
    const QString yes = c.GetHeadValue(1, QStringLiteral("Yes"), QStringLiteral("GEN")).toString();
    const QString no = c.GetHeadValue(1, QStringLiteral("No"), QStringLiteral("GEN")).toString();
    const std::array<const char *, 4> checks{"Rajju", "Mahendra", "StreeDee", "Vedha"};
    const std::array<bool, 4> passed{m.ResuRajju(), m.ResuMahendra(), m.ResuStreeDee(), m.ResuVedha()};
    for (int r = 0; r < 4; ++r) {
        x.cell(r, 0)->setText(w(checks[static_cast<size_t>(r)]));
        // Rajju shows each person's kind; the others are counted between the birth stars.
        x.cell(r, 1)->setText(r == 0 ? boy.Rajju() : boy.GetNakshatraName(boy.Nakshatra()));
        x.cell(r, 2)->setText(r == 0 ? girl.Rajju() : girl.GetNakshatraName(girl.Nakshatra()));
        x.cell(r, 3)->setText(passed[static_cast<size_t>(r)] ? yes : no);
    }
}
