// SPDX-License-Identifier: AGPL-3.0-or-later
// The sign dashas of cast charts: the tables read the chart's own Jaimini choices, and the
// command line lists every table with the fields it has.
#include "cli/ChartCommand.h"
#include "jaimini/clsJaimini.h"
#include "jaimini/clsJaiminiSystem.h"
#include "support/TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <set>

namespace {

struct Birth
{
    int day, month, year, hour, minute;
    const char *gmt;
    int latDeg, latMin;
    const char *ns;
    int lonDeg, lonMin;
    const char *ew;
    int sex;
};

const Birth kBirths[] = {
    {15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E", 1},
    {2, 1, 1962, 4, 10, "5.5", 19, 0, "N", 72, 50, "E", 2},
    {21, 6, 2001, 23, 50, "-5", 40, 43, "N", 74, 0, "W", 1},
    {30, 11, 1947, 9, 5, "1", 48, 51, "N", 2, 21, "E", 2},
};

} // namespace

TEST(JaiminiDashasOfACast, TablesFollowTheChartsOwnChoices)
{
    ScopedSettingsStore store;
    for (const Birth &b : kBirths) {
        clsPlanets chart;
        chart.Person() = MakePerson(b.day, b.month, b.year, b.hour, b.minute, QString::fromLatin1(b.gmt), b.latDeg, b.latMin,
                                    QString::fromLatin1(b.ns), b.lonDeg, b.lonMin, QString::fromLatin1(b.ew));
        chart.Person().setSex(b.sex);
        chart.Calculate();
        const clsJaimini core(chart);
        const clsJaiminiSystem js(core);
        const int lagna = chart.Sign(0);
        const int lord7 = clsPlanets::SignLord(static_cast<int>((lagna + 5) % 12 + 1));
        const auto year = [&b] { return std::to_string(b.year); };

        EXPECT_EQ(js.Sthira(1).front().Sign, core.Sign(core.Brahma())) << year();
        EXPECT_EQ(js.Mandook(2).front().Sign, b.sex == 1 ? core.ReckoningPoint(0, 6) : core.ReckoningPoint(3, 6)) << year();
        EXPECT_EQ(js.Drekkana(1).front().Sign, chart.PrediVarga(lord7, 3)) << year();
        EXPECT_EQ(js.Drekkana(3).front().Sign, core.JmnDrkSign(lord7, 3)) << year();
        EXPECT_EQ(js.CharaRBNS().front().Sign, b.sex == 1 ? lagna : js.SequenceJCD_RBNS()[0]) << year();
        EXPECT_EQ(js.Karaka(2).front().Planet, core.PlanetsByQuadrants(core.AtmaKarakaSign()).front().first) << year();
        for (const JaiminiDashaEntry &e : js.AllDashas()) {
            EXPECT_FALSE(e.Rows.empty()) << e.Key.toStdString() << " " << year();
            if (e.Key.contains(QLatin1String("karaka")))
                continue; // planets may share a sign
            std::set<int> signs;
            for (const JaiminiDashaRow &r : e.Rows)
                signs.insert(r.Sign);
            EXPECT_EQ(signs.size(), e.Rows.size()) << e.Key.toStdString() << " " << year();
        }
    }
}

TEST(JaiminiDashasOfACast, ChartJsonListsEveryTable)
{
    ScopedSettingsStore store;
    QString out, err;
    QTextStream o(&out), e(&err);
    const int status = RunChartCommand({"--date", "15/08/1980", "--time", "14.35", "--lat", "28:38N", "--lon", "77:12E", "--gmt",
                                        "+05.30", "--sex", "F", "--json"},
                                       o, e);
    o.flush();
    ASSERT_EQ(status, 0) << err.toStdString();
    const QJsonArray dashas = QJsonDocument::fromJson(out.toUtf8()).object()["jaimini"].toObject()["dashas"].toArray();
    ASSERT_EQ(dashas.size(), 24);
    std::set<QString> keys;
    for (const QJsonValue &d : dashas) {
        const QString key = d["key"].toString();
        keys.insert(key);
        const QJsonArray rows = d["rows"].toArray();
        const bool withPlanet = key.endsWith(QLatin1String("paryaya")) || key.startsWith(QLatin1String("drekkana")) ||
                                key == QLatin1String("karaka_2") || key == QLatin1String("upa_karaka_2");
        EXPECT_EQ(rows.size(), key.startsWith(QLatin1String("karaka_1")) || key.startsWith(QLatin1String("upa_karaka_1")) ? 8
                               : withPlanet                                                                               ? 9
                                                                                                                          : 12)
            << key.toStdString();
        for (const QJsonValue &r : rows) {
            EXPECT_TRUE(r["sign"].isDouble()) << key.toStdString();
            EXPECT_TRUE(r["years"].isDouble()) << key.toStdString();
            EXPECT_EQ(r.toObject().contains("planet"), withPlanet) << key.toStdString();
        }
    }
    EXPECT_EQ(keys.size(), 24u);
    EXPECT_TRUE(keys.count("chara_rbns") && keys.count("chara_nlkt_3") && keys.count("frontal"));
}
