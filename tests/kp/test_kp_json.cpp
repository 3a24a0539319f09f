// SPDX-License-Identifier: AGPL-3.0-or-later
// The "kp" member of chart --json: the same positions whatever ayanamsa the chart is cast in, and
// every house signified by its cusp's lord.
#include "cli/ChartCommand.h"
#include "sky/AppSettings.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace {

QJsonObject kpJson(int ayanType)
{
    AppSettings::setAyanType(ayanType);
    clsPlanets c;
    c.Person() = MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E");
    c.Calculate();
    return ChartCastJson(c)["kp"].toObject();
}

} // namespace

TEST(KPJson, ThePositionsDoNotDependOnTheChartsOwnAyanamsa)
{
    ScopedSettingsStore store;
    const QJsonObject lahiri = kpJson(1);
    const QJsonArray planets = lahiri["planets"].toArray(), tropical = kpJson(12)["planets"].toArray();
    ASSERT_EQ(planets.size(), 13);
    for (int n = 0; n <= 12; ++n) {
        EXPECT_NEAR(tropical[n].toObject()["longitude"].toDouble(), planets[n].toObject()["longitude"].toDouble(), 1e-6) << n;
        EXPECT_EQ(tropical[n].toObject()["sub_lord"], planets[n].toObject()["sub_lord"]) << n;
    }
    const QJsonArray cusps = lahiri["cusps"].toArray(), houses = lahiri["significators"].toArray();
    ASSERT_EQ(cusps.size(), 12);
    ASSERT_EQ(houses.size(), 12);
    for (int k = 0; k < 12; ++k) {
        bool lordListed = false;
        for (const QJsonValue &v : houses[k].toObject()["planets"].toArray())
            lordListed |= v.toObject()["n"] == cusps[k].toObject()["sign_lord"] && v.toObject()["score"].toInt() >= 9;
        EXPECT_TRUE(lordListed) << "house " << k + 1;
    }
}
