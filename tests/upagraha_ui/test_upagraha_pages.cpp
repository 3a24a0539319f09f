// SPDX-License-Identifier: AGPL-3.0-or-later
// The upagraha and dasha pages show the chart's own points and periods, say so plainly where the
// Sun doesn't rise or set, and leave the stored school alone; the Quick View menu opens the three
// dashas. (The PDF of every topic, these with them, is checked with the print walk.)
#include "dasha/TribhagiDasha.h"
#include "dasha/YoginiDasha.h"
#include "dasha/pages/frmTribhagi.h"
#include "dasha/pages/frmYogini.h"
#include "muhurtha/pages/frmHoroReckoner.h"
#include "output_ui/DelhiSession.h"
#include "sky/pages/frmUpagraha.h"
#include "support/RecordingSink.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QMenu>

namespace {

class UpagrahaPages : public DelhiSession
{
protected:
    static QStringList words(const QWidget &page)
    {
        QStringList out;
        for (const QLabel *l : page.findChildren<QLabel *>())
            out << l->text();
        return out;
    }
    // The words that follow the first label reading `first`.
    static QStringList after(const QStringList &all, const QString &first, int count)
    {
        const qsizetype at = all.indexOf(first);
        return at < 0 ? QStringList() : all.mid(at + 1, count);
    }
    // Casts the session's chart again for another place and moment.
    void recast(int day, int month, int year, int hour, int latDeg, const char *gmt)
    {
        clsPlanets &c = *Session().CurPlanets;
        c.Person() = MakePerson(day, month, year, hour, 0, gmt, latDeg, 0, "N", 18, 57, "E");
        c.Person().setName("Polar");
        c.Calculate();
    }
};

} // namespace

TEST_F(UpagrahaPages, TheUpagrahaTablesShowBothSchoolsAndLeaveTheSettingAlone)
{
    RecordingSink sink;
    const ScopedMessageSink scoped(&sink);
    const clsPlanets &c = *Session().CurPlanets;
    Session().CurPlanets->setUpagrahaMode(2);
    frmUpagraha page;
    page.Load();
    const QStringList shown = words(page);
    for (const char *heading : {"Sun Based Upagrahas", "Day Based Upagrahas (Parashari)", "Day Based Upagrahas (Kalidasa)"})
        EXPECT_TRUE(shown.contains(heading)) << heading;
    EXPECT_EQ(shown.count("Gulika"), 2) << "once in each school";
    EXPECT_EQ(shown.count("Mandi"), 2);
    // Dhuma's row: its sign, degrees in the sign, the sign's lord, nakshatra and pada.
    const double dhuma = c.DhumaLongi();
    EXPECT_EQ(after(shown, "Dhuma", 5),
              QStringList({c.ConvertToDegNoVal(dhuma), clsPlanets::ConvertValNoDeg(dhuma),
                           c.PlanetNameFull(clsPlanets::SignLord(clsPlanets::UpagrahaSignOf(dhuma))),
                           c.GetNakshatraName(clsPlanets::NakshatraNum(dhuma)), QString::number(clsPlanets::NakPadaNum(dhuma))}));
    // Kala of each school, in the order of the page: the Parashari first.
    const qsizetype first = shown.indexOf("Kala");
    ASSERT_GE(first, 0);
    EXPECT_EQ(shown[first + 2], clsPlanets::ConvertValNoDeg(c.DayPartUpagraha(10, 2)));
    EXPECT_EQ(shown[shown.indexOf("Kala", first + 1) + 2], clsPlanets::ConvertValNoDeg(c.DayPartUpagraha(10, 1)));
    EXPECT_EQ(c.UpagrahaMode(), 2) << "showing both schools doesn't change the one in force";
    EXPECT_TRUE(shown.join('\n').contains(QStringLiteral("Birth by day")));
    EXPECT_EQ(sink.reports, QStringList());
    shoot(page, "page-upagraha.png");
}

TEST_F(UpagrahaPages, WithoutSunriseTheUpagrahaPageSaysSoInsteadOfGivingTimes)
{
    recast(1, 6, 2021, 10, 75, "1");
    frmUpagraha june;
    june.Load();
    QStringList shown = words(june);
    EXPECT_TRUE(shown.contains("The Sun does not set here on this day (midnight sun).")) << shown.join('|').toStdString();
    EXPECT_FALSE(shown.contains("Day Based Upagrahas (Parashari)"));
    EXPECT_FALSE(shown.contains("Gulika"));
    EXPECT_TRUE(shown.contains("Dhwaja")) << "the Sun-based points stand";
    shoot(june, "page-upagraha-polar.png");

    recast(15, 12, 2021, 20, 75, "1");
    frmUpagraha december;
    december.Load();
    shown = words(december);
    EXPECT_TRUE(shown.contains("The Sun does not rise here on this day (polar night)."));
    EXPECT_FALSE(shown.join('\n').contains("Sunrise"));
}

TEST_F(UpagrahaPages, TheDashaPagesShowTheRowsOfTheirDashas)
{
    RecordingSink sink;
    const ScopedMessageSink scoped(&sink);
    const clsPlanets &c = *Session().CurPlanets;
    frmTribhagi tribhagi;
    tribhagi.Load();
    const QStringList t = words(tribhagi);
    EXPECT_EQ(tribhagi.lblTitle->text(), "Tribhagi Dasha");
    const auto mahas = Tribhagi::Mahas(c);
    // Each Maha row: its lord, the span in years and months, from and to.
    const QString saturn = c.VimName(mahas[1].Period.Position);
    const qsizetype row = t.indexOf(saturn);
    ASSERT_GE(row, 0);
    const long months = static_cast<long>(mahas[1].Years * 12 + 1e-9);
    EXPECT_EQ(t.mid(row + 1, 3), QStringList({QStringLiteral("%1 Yrs %2 Mths").arg(months / 12).arg(months % 12),
                                              mahas[1].Period.Start.toString("dd/MM/yyyy"), mahas[1].Period.End.toString("dd/MM/yyyy")}));
    EXPECT_TRUE(t.contains(mahas[0].Period.Start.toString("dd/MM/yyyy"))) << "the first Maha begins at birth";
    shoot(tribhagi, "page-tribhagi.png");

    frmYogini yogini;
    yogini.Load();
    const QStringList y = words(yogini);
    for (const char *heading : {"Yogini Dasha", "Shat Trimsha Dasha", "Dasha", "Lord", "Span", "Ends"})
        EXPECT_TRUE(y.contains(heading)) << heading;
    // Both tables end with their sixteenth row's end date; Sankata, wherever it falls, lasts 8 years.
    EXPECT_TRUE(y.contains(Yogini::YoginiDasha(c)[15].End.toString("dd/MM/yyyy")));
    EXPECT_TRUE(y.contains(Yogini::ShatTrimshaDasha(c)[15].End.toString("dd/MM/yyyy")));
    EXPECT_TRUE(y.contains("8 Yrs"));
    EXPECT_EQ(y.count("Sankata"), 4) << "twice in each table";
    EXPECT_EQ(sink.reports, QStringList());
    shoot(yogini, "page-yogini.png");
}

TEST_F(UpagrahaPages, QuickViewOpensTheThreeDashas)
{
    frmHoroReckoner page;
    page.Load();
    QMenu *menu = page.mnuPopup();
    ASSERT_NE(menu, nullptr);
    auto *dashas = menu->findChild<QMenu *>("mnuPopupDashas");
    ASSERT_NE(dashas, nullptr);
    QStringList items;
    for (QAction *a : dashas->actions())
        items << a->text();
    EXPECT_EQ(items, QStringList({"Vimshottari Dasha", "Tribhagi Dasha", "Shat Trimsha Dasha", "Yogini Dasha"}));
    const clsPlanets &c = *Session().CurPlanets;
    dashas->actions()[1]->trigger();
    EXPECT_EQ(page.tableShown(), frmHoroReckoner::TableKind::Tribhagi);
    EXPECT_TRUE(words(page).contains(Tribhagi::Mahas(c)[8].Period.End.toString("dd/MM/yyyy")));
    dashas->actions()[2]->trigger();
    EXPECT_EQ(page.tableShown(), frmHoroReckoner::TableKind::ShatTrimsha);
    EXPECT_TRUE(words(page).contains(Yogini::ShatTrimshaDasha(c)[15].End.toString("dd/MM/yyyy")));
    dashas->actions()[3]->trigger();
    EXPECT_EQ(page.tableShown(), frmHoroReckoner::TableKind::Yogini);
    EXPECT_FALSE(words(page).contains(Yogini::ShatTrimshaDasha(c)[15].End.toString("dd/MM/yyyy")))
        << "the table before is gone";
    shoot(page, "page-hororeckoner-yogini.png");
}
