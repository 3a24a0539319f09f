// SPDX-License-Identifier: AGPL-3.0-or-later
// The pages of a birth on a day without sunrise or sunset say so, and say what the day parts are
// counted from; on an ordinary day they say nothing of it.
#include "session/Session.h"
#include "sky/clsPlanets.h"
#include "sky/pages/frmPage1.h"
#include "strength/pages/frmShadbala.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"

#include <QDir>
#include <QLabel>
#include <QSqlDatabase>

#include <gtest/gtest.h>

namespace {

class PolarPages : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(OpenTextDB(QStringLiteral("ENGLISH"), db)); }
    void TearDown() override
    {
        Session().CurPlanets.reset();
        CloseTextDB(db);
    }
    void cast(int day, int month, int latDeg, int hour = 9, int minutes = 50)
    {
        auto c = std::make_unique<clsPlanets>();
        c->setTextDB(db, QSqlDatabase());
        c->Person() = MakePerson(day, month, 2021, hour, minutes, "1", latDeg, 0, "N", 18, 57, "E");
        c->Person().setName(QStringLiteral("Polar"));
        c->Person().setPLOB(QStringLiteral("Longyearbyen"));
        c->Person().setCountry(QStringLiteral("Norway"));
        c->Calculate();
        Session().CurPlanets = std::move(c);
    }
    // All the words the page shows, one label a line.
    static QString words(const QWidget &page)
    {
        QStringList out;
        for (const QLabel *l : page.findChildren<QLabel *>())
            out << l->text();
        return out.join(QLatin1Char('\n'));
    }
    static void shoot(QWidget &page, const QString &name)
    {
        const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
        if (out.isEmpty())
            return;
        QDir().mkpath(out);
        page.grab().save(out + QLatin1Char('/') + name);
    }
    ScopedSettingsStore store;
    QSqlDatabase db;
};

} // namespace

TEST_F(PolarPages, GeneralDetailsTellTheMidnightSunAndThePolarNight)
{
    cast(1, 6, 75);
    frmPage1 june;
    june.Load();
    const QString shown = words(june);
    EXPECT_TRUE(shown.contains("Sun does not set (midnight sun) on this day.")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("Midnight sun: day parts reckoned from 6:00 and 18:00 local mean time")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("2 (equal day)")); // 4 h 6 min after 5.44: the second watch
    shoot(june, "page-page1-polar.png");

    cast(15, 12, 75, 20, 0);
    frmPage1 december;
    december.Load();
    EXPECT_TRUE(words(december).contains("Sun does not rise (polar night) on this day."));
    EXPECT_TRUE(words(december).contains("5 (equal day)")); // 2 h 16 min after 17.44: the first of the night

    cast(1, 6, 28);
    frmPage1 ordinary;
    ordinary.Load();
    EXPECT_FALSE(words(ordinary).contains("midnight sun"));
    EXPECT_FALSE(words(ordinary).contains("equal day"));
}

TEST_F(PolarPages, ShadbalaStatesTheRuleOfItsDayParts)
{
    cast(1, 6, 75);
    frmShadbala page;
    page.Load();
    EXPECT_TRUE(words(page).contains("Sun does not set (midnight sun). Tribhaga and Hora Bala: day parts reckoned from 6:00 and "
                                     "18:00 local mean time."))
        << words(page).toStdString();
    shoot(page, "page-shadbala-polar.png");

    cast(1, 6, 28);
    frmShadbala ordinary;
    ordinary.Load();
    EXPECT_FALSE(words(ordinary).contains("Tribhaga and Hora Bala:"));
}
