// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Quick View": one board with the birth chart, a second chart and a table chosen from the
// page's menu, the Shad Bala of the seven planets as bars, and the line of the Vimshottari Mahas.

#include "output/ui/TopicPage.h"

#include <QList>

class Kundali;
class QMenu;

class frmHoroReckoner : public TopicPage
{
    Q_OBJECT
public:
    explicit frmHoroReckoner(QWidget *parent = nullptr);

    // What the second chart shows.
    enum class ChartKind { Lagna, Chandra, BhavaChalit, Varga, Jaimini, KPLagna };
    // What the table beside the bars shows.
    enum class TableKind { Panchang, Vimshottari, Tribhagi, ShatTrimsha, Yogini, PlanetTotal, SignTotal };

    Kundali *Kun1 = nullptr;       // the birth chart, always
    Kundali *Kun2 = nullptr;       // the chart chosen from the menu
    QLabel *lblKun2 = nullptr;     // its title
    QLabel *lblVimElement = nullptr;

    // The menu the page offers on a right click ("&Click on an Option").
    QMenu *mnuPopup() const { return m_popup; }
    // The menu's choices, also for the tests. row: the divisional row 2..16 for ChartKind::Varga;
    // for ChartKind::Jaimini the place 0..8 of the chart in the Jaimini charts page.
    void ShowChart(ChartKind kind, int row = 0);
    void ShowTable(TableKind kind);
    TableKind tableShown() const { return m_table; }

protected:
    void fill() override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void buildMenu();
    void drawShadbala();
    QString qv(const char *key) const;

    QMenu *m_popup = nullptr;
    QList<QWidget *> m_tableParts;
    TableKind m_table = TableKind::Panchang;
};
