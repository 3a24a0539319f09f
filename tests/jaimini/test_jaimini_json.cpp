// SPDX-License-Identifier: AGPL-3.0-or-later
// The karakas, lagnas and padas of chart --json on a cast chart: every list complete, every sign
// in range, every longitude in the sign it is given with.
#include "cli/ChartCommand.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

std::vector<int> ints(const QJsonValue &v)
{
    std::vector<int> out;
    for (const QJsonValue &x : v.toArray())
        out.push_back(x.toInt());
    return out;
}

bool permutationOf(std::vector<int> v, int n)
{
    std::sort(v.begin(), v.end());
    for (int i = 0; i < n; ++i)
        if (static_cast<int>(v.size()) != n || v[static_cast<size_t>(i)] != i + 1)
            return false;
    return true;
}

TEST(JaiminiJson, KarakasLagnasAndPadasOfACastChart)
{
    ScopedSettingsStore store;
    for (int sex : {1, 2}) {
        clsPlanets chart;
        chart.setPerson(
            MakePerson(15, 8, 1980, 14, 35, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12, QStringLiteral("E")));
        chart.Person().setSex(sex);
        chart.Calculate();
        const QJsonObject jm = ChartJson(chart).value(QStringLiteral("jaimini")).toObject();
        ASSERT_TRUE(jm.contains(QStringLiteral("dashas"))) << "the sign dashas sit beside the karakas";

        const QJsonObject karakas = jm.value(QStringLiteral("karakas")).toObject();
        const std::vector<int> eight = ints(karakas.value(QStringLiteral("eight")));
        const std::vector<int> seven = ints(karakas.value(QStringLiteral("seven")));
        EXPECT_TRUE(permutationOf(eight, 8));
        EXPECT_TRUE(permutationOf(seven, 7));
        // The Atma Karaka is the planet furthest into its sign (Rahu counted backward).
        const auto degrees = [&chart](int p) { return p == 8 ? 30 - chart.KrishAmsha(8) : chart.KrishAmsha(p); };
        for (int p = 1; p <= 8; ++p)
            EXPECT_GE(degrees(eight.front()), degrees(p));
        EXPECT_EQ(ints(karakas.value(QStringLiteral("sthira"))), (std::vector<int>{1, 2, 4, 7, 5, 6, 3}));
        EXPECT_EQ(ints(karakas.value(QStringLiteral("bhava"))).front(), clsPlanets::GetRashiLordNum(chart.Sign(0)));

        const QJsonArray lagnas = jm.value(QStringLiteral("lagnas")).toArray();
        EXPECT_EQ(lagnas.size(), 28);
        QSet<QString> keys;
        for (const QJsonValue &v : lagnas) {
            const QJsonObject l = v.toObject();
            const QString key = l.value(QStringLiteral("key")).toString();
            keys.insert(key);
            const int sign = l.value(QStringLiteral("sign")).toInt();
            EXPECT_TRUE(sign >= 1 && sign <= 12) << key.toStdString();
            if (l.contains(QStringLiteral("longitude"))) {
                const double x = l.value(QStringLiteral("longitude")).toDouble();
                EXPECT_EQ(std::min(12, static_cast<int>(x / 30) + 1), sign) << key.toStdString();
            }
        }
        EXPECT_EQ(keys.size(), 28) << "one key a lagna";
        EXPECT_TRUE(keys.contains(QStringLiteral("Shree")) && keys.contains(QStringLiteral("HoraSav")));

        const std::vector<int> padas = ints(jm.value(QStringLiteral("padas")));
        ASSERT_EQ(padas.size(), 12u);
        for (int s : padas)
            EXPECT_TRUE(s >= 1 && s <= 12);
    }
}

} // namespace
