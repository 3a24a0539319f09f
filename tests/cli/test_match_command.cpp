// SPDX-License-Identifier: AGPL-3.0-or-later
// "orbanta match": the JSON of a couple, worked against the match itself, and refusals that name
// whose field is wrong and cast nothing.
#include "cli/MatchCommand.h"
#include "support/TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {
struct MatchRun
{
    int status;
    QString out;
    QString err;
};

MatchRun match(const QStringList &args)
{
    QString out, err;
    QTextStream o(&out), e(&err);
    const int status = RunMatchCommand(args, o, e);
    o.flush();
    e.flush();
    return {status, out, err};
}

// Arun, 15/08/1980 14.35 at Delhi, and Bela, 02/02/1987 18.00 at Chennai, by coordinates.
const QStringList kBoy{"--date", "15/08/1980", "--time", "14.35", "--lat", "28:38N", "--lon", "77:12E", "--gmt", "+05.30", "--name", "Arun"};
const QStringList kGirl{"--girl-date", "02/02/1987", "--girl-time", "18.00", "--girl-lat", "13:05N", "--girl-lon", "80:17E",
                        "--girl-gmt", "+05.30", "--girl-name", "Bela"};
} // namespace

TEST(MatchCommand, JsonHoldsBothPersonsTheEightKutasAndTheVerdict)
{
    ScopedSettingsStore store;
    const MatchRun r = match(kBoy + kGirl + QStringList{"--json"});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
    const QJsonObject o = QJsonDocument::fromJson(r.out.toUtf8()).object();
    ASSERT_FALSE(o.isEmpty());
    const QJsonObject boy = o["boy"].toObject(), girl = o["girl"].toObject();
    EXPECT_EQ(boy["name"].toString(), "Arun");
    EXPECT_EQ(boy["moon_sign"].toInt(), 6);   // Virgo
    EXPECT_EQ(boy["nakshatra"].toInt(), 13);  // Hasta
    EXPECT_EQ(girl["name"].toString(), "Bela");
    EXPECT_EQ(girl["year"].toInt(), 1987);
    EXPECT_EQ(girl["moon_sign"].toInt(), 12); // Pisces
    EXPECT_EQ(girl["nakshatra"].toInt(), 26); // Uttara Bhadrapada

    // Worked by hand from the two Moons: Vaishya below Brahmin 0; human and water 0.5; the 6th and
    // 5th taras 1.5; Buffalo and Cow 3; Mercury and Jupiter 0.5; Deva and Manushya 6; 7/7 7;
    // Adi and Madhya 8: 26.5, which rounds to 26.
    const QJsonArray kutas = o["kutas"].toArray();
    ASSERT_EQ(kutas.size(), 8);
    const QStringList names{"VarnaKuta", "VashyaKuta", "DinaKuta", "YoniKuta", "GrahaKuta", "GanaKuta", "RasiKuta", "NadiKuta"};
    const double points[] = {0, 0.5, 1.5, 3, 0.5, 6, 7, 8};
    double sum = 0;
    for (int k = 0; k < 8; ++k) {
        const QJsonObject row = kutas[k].toObject();
        EXPECT_EQ(row["name"].toString(), names[k]);
        EXPECT_EQ(row["points"].toDouble(), points[k]) << k;
        EXPECT_EQ(row["max"].toDouble(), k + 1);
        sum += row["points"].toDouble();
    }
    EXPECT_EQ(kutas[3].toObject()["boy"].toString(), "Buffalo");
    EXPECT_EQ(kutas[4].toObject()["girl"].toString(), "Jupiter");
    EXPECT_EQ(sum, 26.5);
    EXPECT_EQ(o["total"].toInt(), 26);
    EXPECT_EQ(o["verdict"].toString(), "SCO28");

    const QJsonObject manglik = o["manglik"].toObject();
    EXPECT_EQ(manglik["code"].toString().size(), 4);
    EXPECT_TRUE(manglik.contains("boy_cancellation") && manglik.contains("girl_cancellation"));
    const QJsonObject checks = o["checks"].toObject();
    EXPECT_TRUE(checks["rajju"].toBool());
    EXPECT_FALSE(checks["mahendra"].toBool()); // Uttara Bhadrapada is the 14th from Hasta
    EXPECT_TRUE(checks["stree_deergha"].toBool());
    EXPECT_TRUE(checks["vedha"].toBool());
}

TEST(MatchCommand, TheTableShowsTheKutasAndTheTotal)
{
    ScopedSettingsStore store;
    const MatchRun r = match(kBoy + kGirl);
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.contains("Arun"));
    EXPECT_TRUE(r.out.contains("26.5 / 36"));
    EXPECT_TRUE(r.out.contains("SCO28"));
}

TEST(MatchCommand, BadInputNamesWhoseFieldItIsAndGivesTwo)
{
    ScopedSettingsStore store;
    QStringList badGirl = kGirl;
    badGirl[1] = "31/02/1987";
    MatchRun r = match(kBoy + badGirl + QStringList{"--json"});
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(r.err.startsWith("Girl: Invalid Date")) << r.err.toStdString();

    QStringList badBoy = kBoy;
    badBoy[5] = "95:00N";
    r = match(badBoy + kGirl);
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.startsWith("Boy: ")) << r.err.toStdString();

    r = match(kBoy + kGirl.mid(2));
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.startsWith("Girl: Missing --girl-date")) << r.err.toStdString();

    r = match(kBoy + kGirl + QStringList{"--girl-place", "Chennai"});
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.contains("--girl-place stands in place of")) << r.err.toStdString();

    r = match(kBoy + kGirl + QStringList{"--sex", "F"});
    EXPECT_EQ(r.status, 2) << "the first birth is the boy's";
}

TEST(MatchCommand, WithoutThePagesTheReportCannotBeWritten)
{
    // This library alone can't draw pages; the program registers the writer at start.
    ScopedSettingsStore store;
    SetMatchPdfWriter({});
    const MatchRun r = match(kBoy + kGirl + QStringList{"--out", "/tmp/never-written.pdf"});
    EXPECT_EQ(r.status, 1);
    EXPECT_FALSE(r.err.isEmpty());
}
