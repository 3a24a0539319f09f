// SPDX-License-Identifier: AGPL-3.0-or-later
// The "kp" member of chart --json: its shape, its agreement with the cusps printed beside it, and
// the KP positions being the same whatever ayanamsa the chart itself is cast in.
#include "cli/ChartCommand.h"
#include "kp/clsKPSystem.h"
#include "sky/AppSettings.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace {

QJsonObject castJson(int ayanType)
{
    AppSettings::setAyanType(ayanType);
    clsPlanets c;
    c.Person() = MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E");
    c.Calculate();
    return ChartCastJson(c);
}

} // namespace

TEST(KPJson, HoldsPlanetsCuspsAndTheSignificatorsOfEveryHouse)
{
    ScopedSettingsStore store;
    const QJsonObject o = castJson(1);
    const QJsonObject kp = o["kp"].toObject();
    const QJsonArray planets = kp["planets"].toArray();
    const QJsonArray cusps = kp["cusps"].toArray();
    const QJsonArray houses = kp["significators"].toArray();
    ASSERT_EQ(planets.size(), 13);
    ASSERT_EQ(cusps.size(), 12);
    ASSERT_EQ(houses.size(), 12);
    const QJsonArray kpCusps = o["kp_cusps"].toArray();
    for (int k = 0; k < 12; ++k) {
        const QJsonObject c = cusps[k].toObject();
        EXPECT_EQ(c["n"].toInt(), k + 1);
        EXPECT_DOUBLE_EQ(c["longitude"].toDouble(), clsKPSystem::Fold360(kpCusps[k].toDouble()));
        const double l = c["longitude"].toDouble();
        EXPECT_EQ(c["sign_lord"].toInt(), clsPlanets::GetRashiLordNum(clsKPSystem::SignOfLongi(l)));
        EXPECT_EQ(c["sub_lord"].toInt(), clsKPSystem::SubLordOf(clsKPSystem::NakOfLongi(l), l));
        // The cusp's sign lord always signifies its house, with at least the lord's 9.
        bool lordListed = false;
        for (const QJsonValue &v : houses[k].toObject()["planets"].toArray()) {
            const QJsonObject s = v.toObject();
            EXPECT_LE(s["score"].toInt(), 30);
            EXPECT_GT(s["score"].toInt(), 0);
            if (s["n"].toInt() == c["sign_lord"].toInt()) {
                lordListed = true;
                EXPECT_GE(s["score"].toInt(), 9);
            }
        }
        EXPECT_TRUE(lordListed) << "house " << k + 1;
    }
    for (int n = 0; n <= 12; ++n) {
        const QJsonObject p = planets[n].toObject();
        EXPECT_EQ(p["n"].toInt(), n);
        EXPECT_EQ(p["star_lord"].toInt(), clsPlanets::NakLordNum(clsKPSystem::NakOfLongi(p["longitude"].toDouble())));
    }
}

TEST(KPJson, ThePositionsDoNotDependOnTheChartsOwnAyanamsa)
{
    ScopedSettingsStore store;
    const QJsonArray lahiri = castJson(1)["kp"].toObject()["planets"].toArray();
    const QJsonArray raman = castJson(2)["kp"].toObject()["planets"].toArray();
    const QJsonArray tropical = castJson(12)["kp"].toObject()["planets"].toArray();
    for (int n = 0; n <= 12; ++n) {
        const double l = lahiri[n].toObject()["longitude"].toDouble();
        EXPECT_NEAR(raman[n].toObject()["longitude"].toDouble(), l, 1e-6) << n;
        EXPECT_NEAR(tropical[n].toObject()["longitude"].toDouble(), l, 1e-6) << n;
        EXPECT_EQ(tropical[n].toObject()["sub_lord"].toInt(), lahiri[n].toObject()["sub_lord"].toInt()) << n;
    }
}
