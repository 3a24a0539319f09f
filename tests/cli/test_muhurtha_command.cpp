// SPDX-License-Identifier: AGPL-3.0-or-later
// "orbanta muhurtha" on the shipped acts: the list, a search, the one-moment test of its best
// moment, and the messages for a span or a time that can't be searched.
#include "cli/MuhurthaCommand.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
struct MuhuRun
{
    int status;
    QString out;
    QString err;
};

MuhuRun muhurtha(const QStringList &args)
{
    QString out, err;
    QTextStream o(&out), e(&err);
    const int status = RunMuhurthaCommand(args, o, e);
    o.flush();
    e.flush();
    return {status, out, err};
}

const QStringList kDelhi{"--lat", "28:38N", "--lon", "77:12E", "--gmt", "+05.30"};
} // namespace

TEST(MuhurthaCommand, ListsTheActsWithCodeCategoryAndName)
{
    const MuhuRun r = muhurtha({"--list"});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_GE(r.out.count(QLatin1Char('\n')), 12);
    EXPECT_TRUE(r.out.contains(QRegularExpression(QStringLiteral("^VIVAH +MARRIAGE +Marriage$"), QRegularExpression::MultilineOption)));
}

TEST(MuhurthaCommand, TheBestMomentScoresTheSameWhenTestedAlone)
{
    ScopedSettingsStore store;
    const MuhuRun search = muhurtha(QStringList{"--act", "GRIHAPRAVESH", "--from", "01/02/2025", "--to", "28/02/2025", "--json"} + kDelhi);
    ASSERT_EQ(search.status, 0) << search.err.toStdString();
    const QJsonObject o = QJsonDocument::fromJson(search.out.toUtf8()).object();
    EXPECT_EQ(o["act"].toObject()["code"].toString(), "GRIHAPRAVESH");
    EXPECT_EQ(o["samples"].toInt(), 28 * 5); // 06.00, 08.30, 11.00, 13.30 and 16.00 each day
    const QJsonObject best = o["best"].toObject();
    const QJsonArray day = o["best_day"].toArray();
    ASSERT_EQ(day.size(), 5);
    double top = -1e9;
    for (const auto &m : day)
        top = std::max(top, m.toObject()["score"].toDouble());
    EXPECT_EQ(best["score"].toDouble(), top);
    double sum = 0;
    for (const auto &e : best["elements"].toArray())
        sum += e.toObject()["points"].toDouble();
    EXPECT_EQ(std::max(sum, 0.0), best["score"].toDouble());
    EXPECT_FALSE(best["lagna_start"].toString().isEmpty());

    const MuhuRun at = muhurtha(QStringList{"--act", "GRIHAPRAVESH", "--at", best["date"].toString(), "--time", best["time"].toString(), "--json"} + kDelhi);
    ASSERT_EQ(at.status, 0) << at.err.toStdString();
    const QJsonObject one = QJsonDocument::fromJson(at.out.toUtf8()).object();
    EXPECT_EQ(one["samples"].toInt(), 1);
    EXPECT_EQ(one["best"].toObject()["score"].toDouble(), best["score"].toDouble());
    EXPECT_EQ(one["best"].toObject()["elements"], best["elements"]);
}

TEST(MuhurthaCommand, WritesTheReportToAFile)
{
    ScopedSettingsStore store;
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("best.txt"));
    const MuhuRun r = muhurtha(QStringList{"--act", "yatra", "--from", "1/3/2025", "--to", "3/3/2025", "--start", "9.00", "--end", "12.00", "--out", file} + kDelhi);
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.isEmpty());
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(f.readAll());
    EXPECT_TRUE(text.contains(QStringLiteral("(6 moments cast)"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Lagna      : ")));
}

TEST(MuhurthaCommand, SpansAndTimesThatCantBeSearched)
{
    ScopedSettingsStore store;
    struct Case
    {
        QStringList args;
        const char *message;
    };
    const std::vector<Case> cases{
        {{"--act", "VIVAH", "--from", "02/01/2025", "--to", "01/01/2025"}, "lies before the first"},
        {{"--act", "VIVAH", "--from", "01/01/2025", "--to", "02/01/2035"}, "at most ten years"},
        {{"--act", "VIVAH", "--from", "31/02/2025", "--to", "02/03/2025"}, "first day of the span is not a valid date"},
        {{"--act", "VIVAH", "--from", "01/01/2025", "--to", "02/01/2025", "--start", "24.00"}, "start time must be"},
        {{"--act", "VIVAH", "--from", "01/01/2025", "--to", "02/01/2025", "--end", "10.75"}, "end time must be"},
        {{"--act", "NOSUCH", "--from", "01/01/2025", "--to", "02/01/2025"}, "is not an act"},
        {{"--from", "01/01/2025", "--to", "02/01/2025"}, "Missing --act"},
        {{"--act", "VIVAH", "--at", "01/01/2025", "--time", "10.00", "--from", "01/01/2025"}, "leave out --from"},
    };
    for (const Case &c : cases) {
        const MuhuRun r = muhurtha(c.args + kDelhi);
        EXPECT_EQ(r.status, 2) << c.message;
        EXPECT_TRUE(r.err.contains(QString::fromLatin1(c.message))) << r.err.toStdString();
        EXPECT_TRUE(r.out.isEmpty());
    }
    // Ten years to the day is still allowed.
    EXPECT_TRUE(muhurtha(QStringList{"--act", "VIVAH", "--from", "01/01/2025", "--to", "01/01/2035", "--start", "12.00", "--end", "11.00", "--json"} + kDelhi).status == 0);
}
