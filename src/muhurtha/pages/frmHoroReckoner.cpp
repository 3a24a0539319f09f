// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/pages/frmHoroReckoner.h"

#include "chartdraw/ChartFill.h"
#include "chartdraw/ui/Kundali.h"
#include "dasha/TribhagiDasha.h"
#include "dasha/YoginiDasha.h"
#include "dasha/clsDashaVimshottari.h"
#include "jaimini/JaiminiCharts.h"
#include "jaimini/clsJaimini.h"
#include "kp/KPSession.h"
#include "kp/clsKPSystem.h"
#include "output/ui/PageParts.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "strength/clsShadBala.h"
#include "text/GenLabel.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QSet>

#include <algorithm>
#include <array>

namespace {
constexpr int kChart = 330;
const QRect kTableArea(30, 470, 340, 300);
const QRect kGraphArea(400, 470, 330, 300);

QString date(const QDateTime &d) { return d.toString(QStringLiteral("dd/MM/yyyy")); }
} // namespace

frmHoroReckoner::frmHoroReckoner(QWidget *parent) : TopicPage(QStringLiteral("frmHoroReckoner"), parent) {}

QString frmHoroReckoner::qv(const char *key) const
{
    return chart().GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("QuickView")).toString();
}

void frmHoroReckoner::fill()
{
    const clsPlanets &c = chart();
    lblTitle->setText(qv("Title"));
    addLabel(QRect(30, 56, 700, 22), c.Person().Name(), SubHead, Qt::AlignCenter);

    // The birth chart on the left, the chosen chart on the right.
    addLabel(QRect(30, 84, kChart, 24), qv("Lagna Kundli"), SubHead, Qt::AlignCenter);
    Kun1 = addChart(QRect(30, 110, kChart, kChart));
    Kun1->setObjectName(QStringLiteral("Kun1"));
    FillVargaKundali(Kun1->model(), c, 1, true);
    lblKun2 = addLabel(QRect(400, 84, kChart, 24), QString(), SubHead, Qt::AlignCenter);
    lblKun2->setObjectName(QStringLiteral("lblKun2"));
    Kun2 = addChart(QRect(400, 110, kChart, kChart));
    Kun2->setObjectName(QStringLiteral("Kun2"));

    drawShadbala();

    // The nine Mahas in a line: lord and the date it begins.
    QStringList mahas;
    for (const DashaPeriod &m : Vimshottari::Mahas(c))
        mahas << c.PlanetNameFull(m.Lord) + QLatin1Char(' ') + date(m.Start);
    addLabel(QRect(30, 790, 700, 22), qv("Vimshottari"), SubHead, Qt::AlignLeft | Qt::AlignVCenter);
    lblVimElement = addLabel(QRect(30, 814, 700, 44), mahas.join(QStringLiteral("  \u2022  ")), Small,
                             Qt::AlignLeft | Qt::AlignTop);
    lblVimElement->setObjectName(QStringLiteral("lblVimElement"));
    lblVimElement->setWordWrap(true);
    // The menu is the screen's, so its hint is a tool tip: paper has no right click.
    setToolTip(qv("Hint"));

    buildMenu();
    ShowChart(ChartKind::Varga, 6); // the Navamsh beside the birth chart
    ShowTable(TableKind::Panchang);
}

void frmHoroReckoner::drawShadbala()
{
    const clsPlanets &c = chart();
    clsShadBala sb(c);
    addLabel(QRect(kGraphArea.x(), kGraphArea.y(), kGraphArea.width(), 24), qv("ShadbalaGraph"), SubHead, Qt::AlignCenter);
    std::array<double, 7> total{};
    for (int p = 1; p <= 7; ++p)
        total[static_cast<size_t>(p - 1)] = Val(sb.TotalShadBala(p));
    const double top = std::max(1.0, *std::max_element(total.begin(), total.end()));
    // Bars stand on a base line; each has its value above and its planet below.
    const int base = kGraphArea.bottom() - 28, height = kGraphArea.height() - 90, slot = kGraphArea.width() / 7;
    addLine(QPointF(kGraphArea.x(), base), QPointF(kGraphArea.right(), base));
    for (int p = 1; p <= 7; ++p) {
        const double v = total[static_cast<size_t>(p - 1)];
        const int h = static_cast<int>(v / top * height + 0.5);
        const int x = kGraphArea.x() + (p - 1) * slot;
        addRect(QRect(x + 10, base - h, slot - 20, h), QColor(92, 128, 196))->setObjectName(QStringLiteral("bar%1").arg(p));
        addLabel(QRect(x, base - h - 20, slot, 18), QString::number(v, 'f', 0), Small, Qt::AlignCenter);
        addLabel(QRect(x, base + 4, slot, 20), c.PlanetNameSmall(p), SmallBold, Qt::AlignCenter);
    }
}

void frmHoroReckoner::ShowChart(ChartKind kind, int row)
{
    if (!Kun2)
        return;
    const clsPlanets &c = chart();
    KundaliModel &k = Kun2->model();
    switch (kind) {
    case ChartKind::Lagna:
        FillVargaKundali(k, c, 1, true);
        lblKun2->setText(qv("Lagna Kundli"));
        break;
    case ChartKind::Chandra:
        // The rasi chart with the Moon's sign rising.
        FillVargaKundali(k, c, 1, true);
        k.setHouseNumber(c.PlanetSign(7));
        lblKun2->setText(qv("Chandra Kundli"));
        break;
    case ChartKind::BhavaChalit:
        k.Clear();
        c.FillBhavaKundaliEnglish(k);
        lblKun2->setText(qv("Bhava Chalit Chakra"));
        break;
    case ChartKind::KPLagna:
        // The planets in their signs under the KP ayanamsa.
        if (const clsKPSystem *kp = SessionKP())
            kp->FillSignKundali(k, true);
        lblKun2->setText(qv("KP Lagna"));
        break;
    case ChartKind::Varga:
        if (row < 2 || row > 16)
            return;
        FillVargaKundali(k, c, row, true);
        lblKun2->setText(c.GetHeadValue(1, row, QStringLiteral("Shodashvarga")).toString());
        break;
    case ChartKind::Jaimini: {
        if (row < 0 || row >= static_cast<int>(kJaiminiCharts.size()))
            return;
        const JaiminiChart which = kJaiminiCharts[static_cast<size_t>(row)];
        FillJaiminiKundali(k, clsJaimini(c), which, true);
        lblKun2->setText(c.GetHeadValue(1, QString::fromLatin1(JaiminiChartHead(which)), QStringLiteral("Jaimini")).toString());
        break;
    }
    }
    Kun2->update();
}

void frmHoroReckoner::ShowTable(TableKind kind)
{
    if (!Kun2)
        return;
    const clsPlanets &c = chart();
    m_table = kind;
    qDeleteAll(m_tableParts);
    m_tableParts.clear();
    // What the table adds to the page is what it takes away at the next choice.
    const QList<QWidget *> before = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    const int x = kTableArea.x(), y = kTableArea.y();
    switch (kind) {
    case TableKind::Panchang: {
        const Facts rows{{GenLabel(QStringLiteral("Day"), c), c.GetDayName(c.Person().WeekDayOfBirth())},
                         {GenLabel(QStringLiteral("Tithi"), c), c.TithiName(c.Tithi())},
                         {qv("Nakshatra"), c.GetNakshatraName(c.NakOf(7))},
                         {qv("Yoga"), c.YogaName()},
                         {GenLabel(QStringLiteral("Karan"), c), c.KaranName()},
                         {GenLabel(QStringLiteral("Rashi"), c), c.PlanetRashiName(7)}};
        addFacts(x, y, 140, 200, qv("Panchang"), rows, 24);
        break;
    }
    case TableKind::Vimshottari: {
        addLabel(QRect(x, y, kTableArea.width(), 24), qv("Vimshottari"), SubHead, Qt::AlignCenter);
        const Table t = addTable(x, y + 28, {140, 100, 100}, 22,
                                 {GenLabel(QStringLiteral("TPlanets"), c), qv("From"), qv("To")}, 9, Small, true);
        const DashaLevel mahas = Vimshottari::Mahas(c);
        for (int i = 0; i < 9; ++i) {
            const DashaPeriod &m = mahas[static_cast<size_t>(i)];
            t.cell(i, 0)->setText(c.PlanetNameFull(m.Lord));
            t.cell(i, 1)->setText(date(m.Start));
            t.cell(i, 2)->setText(date(Vimshottari::End(m)));
        }
        break;
    }
    case TableKind::Tribhagi: {
        addLabel(QRect(x, y, kTableArea.width(), 24), qv("Tribhagi"), SubHead, Qt::AlignCenter);
        const Table t = addTable(x, y + 28, {140, 100, 100}, 22,
                                 {GenLabel(QStringLiteral("TPlanets"), c), qv("From"), qv("To")}, 9, Small, true);
        const auto mahas = Tribhagi::Mahas(c);
        for (int i = 0; i < 9; ++i) {
            const TribhagiPeriod &m = mahas[static_cast<size_t>(i)].Period;
            t.cell(i, 0)->setText(c.VimName(m.Position));
            t.cell(i, 1)->setText(date(m.Start));
            t.cell(i, 2)->setText(date(m.End));
        }
        break;
    }
    case TableKind::ShatTrimsha:
    case TableKind::Yogini: {
        const bool yogini = kind == TableKind::Yogini;
        addLabel(QRect(x, y, kTableArea.width(), 24), qv(yogini ? "Yogini" : "ShatTrimsha"), SubHead, Qt::AlignCenter);
        const auto yog = [&c](const char *key) { return c.GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("YogText")).toString(); };
        const YoginiRows rows = yogini ? Yogini::YoginiDasha(c) : Yogini::ShatTrimshaDasha(c);
        const Table t = addTable(x, y + 28, {120, 110, 110}, 15, {yog("Dasha"), yog("Lord"), yog("Ends")}, static_cast<int>(rows.size()),
                                 Small, true);
        for (size_t i = 0; i < rows.size(); ++i) {
            const int row = static_cast<int>(i);
            t.cell(row, 0)->setText(c.GetHeadValue(1, rows[i].K, QStringLiteral("YogiCycleName")).toString());
            t.cell(row, 1)->setText(c.GetHeadValue(1, rows[i].K, QStringLiteral("YogiCycleLordName")).toString());
            t.cell(row, 2)->setText(date(rows[i].End));
        }
        break;
    }
    case TableKind::PlanetTotal: {
        c.AshTable();
        addLabel(QRect(x, y, kTableArea.width(), 24), qv("PlanetTotal"), SubHead, Qt::AlignCenter);
        const Table t = addTable(x + 40, y + 28, {140, 120}, 22, {GenLabel(QStringLiteral("TPlanets"), c), qv("Points")}, 7,
                                 Small, true);
        for (int p = 1; p <= 7; ++p) {
            t.cell(p - 1, 0)->setText(c.PlanetNameFull(p));
            t.cell(p - 1, 1)->setText(QString::number(c.AshVarga(p, 13)));
        }
        break;
    }
    case TableKind::SignTotal: {
        c.AshTable();
        addLabel(QRect(x, y, kTableArea.width(), 24), qv("SignTotal"), SubHead, Qt::AlignCenter);
        const Table t = addTable(x + 40, y + 28, {140, 120}, 19, {GenLabel(QStringLiteral("Rashi"), c), qv("Points")}, 12,
                                 Small, true);
        for (int s = 1; s <= 12; ++s) {
            t.cell(s - 1, 0)->setText(c.ConvertRashi(s));
            t.cell(s - 1, 1)->setText(QString::number(c.AshTotal(s)));
        }
        break;
    }
    }
    const QSet<QWidget *> old(before.begin(), before.end());
    for (QWidget *w : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (!old.contains(w)) {
            m_tableParts << w;
            w->show();
        }
    }
}

void frmHoroReckoner::buildMenu()
{
    m_popup = new QMenu(this);
    m_popup->setObjectName(QStringLiteral("mnuPopup"));
    m_popup->setTitle(QStringLiteral("&Click on an Option"));
    m_popup->addSection(QStringLiteral("Click on an Option"));
    m_popup->addAction(QStringLiteral("Panchang"), this, [this] { ShowTable(TableKind::Panchang); });
    QMenu *kundlis = m_popup->addMenu(QStringLiteral("Kundlis"));
    kundlis->addAction(QStringLiteral("Lagna Kundli"), this, [this] { ShowChart(ChartKind::Lagna); });
    kundlis->addAction(QStringLiteral("Chandra Kundli"), this, [this] { ShowChart(ChartKind::Chandra); });
    kundlis->addAction(QStringLiteral("Bhava Chalit Chakra"), this, [this] { ShowChart(ChartKind::BhavaChalit); });
    kundlis->addAction(QStringLiteral("KP Lagna Kundli"), this, [this] { ShowChart(ChartKind::KPLagna); });
    QMenu *sodash = m_popup->addMenu(QStringLiteral("Shodashvarga Kundlis"));
    sodash->setObjectName(QStringLiteral("mnuPopupSodash"));
    static constexpr std::array<const char *, 15> kVargas{
        "Hora", "Drekkana", "Chaturthamsha", "Saptamsh", "Navamsh", "Dashamamsh", "Dwadashamamsh", "Sodashamamsha",
        "Vimshamsha", "Chaturvimshamsha", "Saptvimshamsha", "Trimshamsha", "Khavedamsha", "Akshavedamsha", "Shashtiamsha"};
    for (size_t i = 0; i < kVargas.size(); ++i) {
        const int row = static_cast<int>(i) + 2;
        sodash->addAction(QString::fromLatin1(kVargas[i]), this, [this, row] { ShowChart(ChartKind::Varga, row); });
    }
    QMenu *jaimini = m_popup->addMenu(QStringLiteral("Jaimini Kundlis"));
    jaimini->setObjectName(QStringLiteral("mnuPopupJaimini"));
    // The menu's order, and each item's chart in the order of the Jaimini charts page.
    static constexpr std::array<std::pair<const char *, JaiminiChart>, 9> kJaimini{{
        {"Janma Lagna", JaiminiChart::Janma},
        {"Drekkana Traditional", JaiminiChart::DrekTrad},
        {"Drekkana Pravritti Traya", JaiminiChart::DrekPrav},
        {"Drekkana Somnath", JaiminiChart::DrekSom},
        {"Navamsh Traditional", JaiminiChart::NavTrad},
        {"Navamsha Krishna Mishra", JaiminiChart::NavKri},
        {"Arooda", JaiminiChart::Arudha},
        {"Upapada", JaiminiChart::Upapada},
        {"Karakamsha", JaiminiChart::Karakamsa},
    }};
    for (const auto &[caption, which] : kJaimini) {
        const int place = static_cast<int>(std::find(kJaiminiCharts.begin(), kJaiminiCharts.end(), which) - kJaiminiCharts.begin());
        jaimini->addAction(QString::fromLatin1(caption), this, [this, place] { ShowChart(ChartKind::Jaimini, place); });
    }
    QMenu *dashas = m_popup->addMenu(QStringLiteral("Dashas"));
    dashas->setObjectName(QStringLiteral("mnuPopupDashas"));
    dashas->addAction(QStringLiteral("Vimshottari Dasha"), this, [this] { ShowTable(TableKind::Vimshottari); });
    dashas->addAction(QStringLiteral("Tribhagi Dasha"), this, [this] { ShowTable(TableKind::Tribhagi); });
    dashas->addAction(QStringLiteral("Shat Trimsha Dasha"), this, [this] { ShowTable(TableKind::ShatTrimsha); });
    dashas->addAction(QStringLiteral("Yogini Dasha"), this, [this] { ShowTable(TableKind::Yogini); });
    QMenu *ashtak = m_popup->addMenu(QStringLiteral("Ashtakvarga"));
    ashtak->addAction(QStringLiteral("Planet Total"), this, [this] { ShowTable(TableKind::PlanetTotal); });
    ashtak->addAction(QStringLiteral("Sign Total"), this, [this] { ShowTable(TableKind::SignTotal); });
}

void frmHoroReckoner::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_popup)
        m_popup->popup(event->globalPos());
}
