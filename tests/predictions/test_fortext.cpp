// SPDX-License-Identifier: AGPL-3.0-or-later
// The general predictions: the small scores and steps worked out by hand, the health lists of a
// chart without close aspects, and every key the report reads over a sweep of charts.
#include "sky/clsPlanets.h"
#include "support/EnglishChart.h"
#include "text/ForText.h"
#include "support/RecordingSink.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

namespace {

class Recorder final : public PredictionOutput
{
public:
    void PutHead(const QString &text) override { heads << text; }
    void PutText(const QString &text) override { texts << text; }
    QStringList heads, texts;
};

class Predictions : public EnglishChart
{
protected:
};

} // namespace

TEST(PredictionSteps, ProfessionVotesAndMarriageSteps)
{
    EXPECT_EQ(ForText::JoinProfessionVotes({"Ser", "", ""}), "S");
    EXPECT_EQ(ForText::JoinProfessionVotes({"", "SerB", "Bus"}), "SB") << "stops at SB";
    EXPECT_EQ(ForText::JoinProfessionVotes({"", "BUS", "Bus"}), "BB");
    EXPECT_EQ(ForText::JoinProfessionVotes({"Ser", "BUS", ""}), "SB");
    EXPECT_EQ(ForText::JoinProfessionVotes({"Ser", "Ser", "Bus"}), "SSB");
    EXPECT_EQ(ForText::MarriageStep(5), "4");
    EXPECT_EQ(ForText::MarriageStep(4), "") << "a total of 4 stands on no step";
    EXPECT_EQ(ForText::MarriageStep(2), "2");
    EXPECT_EQ(ForText::MarriageStep(0), "-1");
    EXPECT_EQ(ForText::MarriageStep(-1), "") << "nor does -1";
    EXPECT_EQ(ForText::MarriageStep(-3), "-3");
    EXPECT_EQ(ForText::MarriageStep(-6), "-6");
    EXPECT_EQ(ForText::MarriageStep(-7), "");
    EXPECT_EQ(ForText::FindBeneficMalefic(6), "M");
    EXPECT_EQ(ForText::FindBeneficMalefic(7), "B");
}

TEST(PredictionSteps, TwentyFourthDivisionByHand)
{
    EXPECT_EQ(ForText::FindCVP(0), 5);      // Aries, first part: 1 + 4
    EXPECT_EQ(ForText::FindCVP(29.9), 4);   // Aries, 24th part: 24 folds to 12, + 4 = 16 folds to 4
    EXPECT_EQ(ForText::FindCVP(31.3), 5);   // Taurus, second part: 2 + 3
    EXPECT_EQ(ForText::FindCVP(359.99), 3); // Pisces, last part: 12 + 3
}

TEST_F(Predictions, AChartWithoutCloseAspectsReadsTheQuietHealthKeys)
{
    // Everything in steps of 7 degrees: nothing conjunct, square or opposite anything.
    for (int n = 0; n <= 25; ++n)
        chart.setPlanetLongi(n, 0);
    for (int p = 1; p <= 12; ++p)
        chart.setPlanetLongi(p, 7.0 * p);
    ForText f(chart);
    f.HealthText();
    const QStringList keys = f.KeysRead();
    for (const char *k : {"HEALTH/NA", "HEALTH/ASCN", "HEALTH/MOONN", "HEALTH/SUNN"})
        EXPECT_TRUE(keys.contains(k)) << k;
    EXPECT_EQ(f.CheckBudhAdityaYoga(), 1) << "Mercury and the Sun share Aries";
    chart.setPlanetLongi(1, 65);
    chart.setPlanetLongi(2, 70);
    EXPECT_EQ(ForText(chart).CheckBudhAdityaYoga(), 3);
    chart.setPlanetLongi(2, 100);
    EXPECT_EQ(ForText(chart).CheckBudhAdityaYoga(), 0);
}

TEST_F(Predictions, TheLastEducationLineThatHoldsWins)
{
    for (int n = 0; n <= 25; ++n)
        chart.setPlanetLongi(n, 0);
    // Lagna Aries; Mars with Saturn in Aquarius, Saturn not 4/7/8 from Mars, and no later line.
    for (int p = 1; p <= 12; ++p)
        chart.setPlanetLongi(p, 95); // Cancer, out of the way
    chart.setPlanetLongi(0, 5);
    chart.setPlanetLongi(4, 305);
    chart.setPlanetLongi(6, 310);
    chart.setPlanetLongi(7, 185); // the Moon in Libra, not in 4, 5, 9
    ForText f(chart);
    EXPECT_FALSE(f.FindEduLine(1).isEmpty());
    EXPECT_EQ(f.KeysRead().last(), "EDUCATION/Eng-Tech");
    chart.setPlanetLongi(6, 155); // Saturn in Virgo, the 8th from Mars: "Engg" replaces it
    ForText g(chart);
    g.FindEduLine(1);
    EXPECT_EQ(g.KeysRead().last(), "EDUCATION/Engg");
    chart.setPlanetLongi(6, 35); // Saturn in Taurus: Mars is now also the 10th from it, and "Tech" comes last
    ForText h(chart);
    h.FindEduLine(1);
    EXPECT_EQ(h.KeysRead().last(), "EDUCATION/Tech");
}

TEST_F(Predictions, EveryKeyOfASweepOfChartsIsInTheTexts)
{
    RecordingSink sink;
    const ScopedMessageSink scoped(&sink);
    for (int step = 0; step < 48; ++step) {
        chart.Person() = MakePerson(1 + (step * 5) % 28, 1 + step % 12, 1930 + step, (step * 7) % 24, (step * 11) % 60, "5.5",
                                    8 + step % 45, 0, step % 3 ? "N" : "S", 70 + step % 20, 0, "E");
        chart.Calculate();
        Recorder out;
        ForText f(chart);
        f.Write(out);
        EXPECT_EQ(out.heads.size(), 9);
        for (const QString &t : out.texts)
            EXPECT_FALSE(t.trimmed().isEmpty());
    }
    EXPECT_EQ(sink.reports, QStringList());
}
