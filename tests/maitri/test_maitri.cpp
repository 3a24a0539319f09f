// SPDX-License-Identifier: AGPL-3.0-or-later
// The friendship tables of the Maitri page on a chart worked by hand.
#include "cli/ChartCommand.h"
#include "maitri/HandChart.h"
#include "strength/Maitri.h"
#include "strength/clsShadBala.h"

#include <QJsonArray>

namespace {
using Relations = HandChart;
} // namespace

TEST_F(Relations, FiveFoldTableAgreesWithTheHandWorkedChart)
{
    placeByHand();
    const Maitri m(chart);
    struct Case
    {
        int a, b, natural, temporal, fiveFold;
    };
    // Signs: Sun 1, Mercury 6, Venus 7, Mars 4, Jupiter 9, Saturn 11, Moon 2, Rahu 3, Ketu 9.
    const Case cases[] = {
        {1, 4, 1, 1, 2},    // Mars 3 signs on from the Sun: a friend twice over
        {1, 7, 1, 1, 2},    // the Moon in the sign after the Sun's
        {1, 3, -1, -1, -2}, // Venus opposite the Sun
        {2, 3, 1, 1, 2},    // Venus next to Mercury
        {2, 7, -1, -1, -2}, // the Moon 8 signs on from Mercury
        {7, 2, 1, -1, 0},   // Mercury 4 signs on from the Moon
        {6, 7, -1, 1, 0},   // the Moon 3 signs on from Saturn, across Pisces
        {5, 9, 0, -1, -1},  // Ketu in Jupiter's own sign: the same sign is no temporal friend
        {4, 5, 1, -1, 0},   // Jupiter 5 signs on from Mars
        {3, 6, 1, -1, 0},
        {6, 3, 1, -1, 0},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(testing::Message() << k.a << " sees " << k.b);
        EXPECT_EQ(m.Natural(k.a, k.b), k.natural);
        EXPECT_EQ(m.Temporal(k.a, k.b), k.temporal);
        EXPECT_EQ(m.FiveFold(k.a, k.b), k.fiveFold);
    }
    EXPECT_EQ(Maitri::FiveFoldHead(*m.FiveFold(1, 4)), "Atimitra");
    EXPECT_EQ(Maitri::FiveFoldHead(*m.FiveFold(1, 3)), "Atishatru");
    EXPECT_EQ(Maitri::FiveFoldHead(*m.FiveFold(5, 9)), "Enemy");
}

TEST_F(Relations, JupiterAndRahuAreFriendsHereButNotInTheStrengthTables)
{
    placeByHand();
    const Maitri m(chart);
    const clsShadBala sb(chart);
    // Rahu in Gemini is 7 signs from Jupiter in Sagittarius, and the other way round.
    for (const auto &[a, b] : {std::pair{5, 8}, std::pair{8, 5}}) {
        EXPECT_EQ(m.Natural(a, b), 1);
        EXPECT_EQ(sb.PermaMatrix(a, b), 0);
        EXPECT_EQ(m.FiveFold(a, b), 0) << "friend by nature, enemy by place";
        EXPECT_EQ(sb.PanchadhaMatrix(a, b), -1);
    }
    // Every other pair is the strength tables' own.
    for (int a = 1; a <= 9; ++a)
        for (int b = 1; b <= 9; ++b) {
            if (a != b && !((a == 5 && b == 8) || (a == 8 && b == 5))) {
                EXPECT_EQ(m.FiveFold(a, b), sb.PanchadhaMatrix(a, b)) << a << "," << b;
            }
        }
}

TEST_F(Relations, JsonGivesTheFiveFoldMatrixRowByRow)
{
    placeByHand();
    const QJsonArray rows = ChartCastJson(chart).value("maitri").toArray();
    ASSERT_EQ(rows.size(), 9);
    for (int a = 1; a <= 9; ++a) {
        const QJsonArray row = rows[a - 1].toArray();
        ASSERT_EQ(row.size(), 9);
        EXPECT_TRUE(row[a - 1].isNull()) << a;
    }
    EXPECT_EQ(rows[0].toArray()[3].toInt(), 2);  // Sun regards Mars
    EXPECT_EQ(rows[4].toArray()[7].toInt(), 0);  // Jupiter regards Rahu
    EXPECT_EQ(rows[1].toArray()[6].toInt(), -2); // Mercury regards the Moon
}
