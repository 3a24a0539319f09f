// SPDX-License-Identifier: AGPL-3.0-or-later
// Sign aspects and the ladders of comparison, above all where they tie, on charts placed by hand.
#include "JaiminiChart.h"

namespace {

using Comparisons = JaiminiChart;

// A movable sign aspects the fixed signs but the next one, a fixed sign the movable signs but the
// one before, and a dual sign the other three duals; the relation goes both ways.
TEST(JaiminiAspects, TheSignAspectsFollowTheClassesOfTheSigns)
{
    for (int a = 1; a <= 12; ++a) {
        int seen = 0;
        for (int b = 1; b <= 12; ++b) {
            bool expected = false;
            const int ca = (a - 1) % 3, cb = (b - 1) % 3; // 0 movable, 1 fixed, 2 dual
            if (ca == 0 && cb == 1)
                expected = b != a % 12 + 1;
            else if (ca == 1 && cb == 0)
                expected = a != b % 12 + 1;
            else if (ca == 2 && cb == 2)
                expected = a != b;
            EXPECT_EQ(clsJaimini::SignsAspect(a, b), expected) << a << " to " << b;
            EXPECT_EQ(clsJaimini::SignsAspect(a, b), clsJaimini::SignsAspect(b, a));
            seen += clsJaimini::SignsAspect(a, b) ? 1 : 0;
        }
        EXPECT_EQ(seen, 3) << a;
    }
    EXPECT_FALSE(clsJaimini::SignsAspect(0, 5));
    EXPECT_FALSE(clsJaimini::SignsAspect(1, 13));
}

TEST_F(Comparisons, AspectsOfPlanetsAndCounts)
{
    // Saturn in Sagittarius aspects the other dual signs: Gemini, Virgo and Pisces.
    clsJaimini &j = jm();
    EXPECT_TRUE(j.JAspectedBy(3, 6));
    EXPECT_FALSE(j.JAspectedBy(9, 6));
    EXPECT_TRUE(j.JAspByMalefic(3));
    EXPECT_FALSE(j.JAspByMalefic(0));
    EXPECT_FALSE(j.JAspByBenefic(13));
    // Leo holds Ketu, a malefic, and no benefic; Libra holds Mars.
    EXPECT_EQ(j.CountPltInSignMB(5, 2), 1);
    EXPECT_EQ(j.CountPltInSignMB(5, 1), 0);
    EXPECT_EQ(j.CountPltInSignMB(4, 1), 1);
    double x = 0;
    EXPECT_TRUE(j.IfPlanetJAspects(6, 5, x)) << "Sagittarius and Virgo";
    x = 15; // from Aries instead
    EXPECT_FALSE(j.IfPlanetJAspects(6, 5, x));
}

TEST_F(Comparisons, StrongerPlanetByDignityThenDegreesThenWeight)
{
    place(QStringLiteral("Su1:5 Mo4:25"));
    EXPECT_EQ(jm().StrongerPlanet(7, 1), 1) << "exalted over own sign";
    place(QStringLiteral("Mo2:20"));
    EXPECT_EQ(jm().StrongerPlanet(1, 7), 7) << "both exalted: the degrees decide";
    place(QStringLiteral("Su7:25 Ma3:5"));
    EXPECT_EQ(jm().StrongerPlanet(1, 4), 4) << "the debilitated one loses";
    place(QStringLiteral("Me5:10 Ve3:10"));
    EXPECT_EQ(jm().StrongerPlanet(2, 3), 3) << "equal degrees: Venus weighs more";
    EXPECT_EQ(jm().StrongerPlanet(3, 2), 3);
    EXPECT_EQ(jm().StrongerPlanet(6, 6), 6);
}

TEST_F(Comparisons, StrongerOfThree)
{
    // Two exalted: the degrees among them decide, whatever the third holds.
    place(QStringLiteral("Su1:5 Mo2:8 Ma3:29"));
    EXPECT_EQ(jm().StrongerOfThree(1, 4, 7), 7);
    EXPECT_EQ(jm().StrongerOfThree(4, 1, 1), jm().StrongerPlanet(4, 1));
    EXPECT_EQ(jm().StrongerOfThree(4, 4, 4), 4);
    // One debilitated: the two others are compared.
    place(QStringLiteral("Su7:29 Ma3:5 Ve5:10"));
    EXPECT_EQ(jm().StrongerOfThree(1, 4, 3), 3);
    // A single exalted planet wins outright.
    place(QStringLiteral("Ma10:1 Ve5:10 Su3:20"));
    EXPECT_EQ(jm().StrongerOfThree(1, 3, 4), 4);
}

// The Lagna's sign and the 7th both empty, their lords Mars and Venus at equal degrees in odd
// signs: the parity of the dispositors' signs decides.
TEST_F(Comparisons, ReckoningPointOfTwoEmptyHousesGoesToTheParityStep)
{
    place(QStringLiteral("As1:15 Ma3:10 Ve5:10 Me2 Su9 Ju6 Sa9 Mo10 Ra11 Ke5"));
    EXPECT_EQ(jm().ReckoningPoint(0, 6), 1) << "Mars's dispositor in an even sign, Venus's in an odd one";
    EXPECT_DOUBLE_EQ(jm().ReckoningPointLongi(0, 6), 15);
    place(QStringLiteral("Me3 Su10"));
    EXPECT_EQ(jm().ReckoningPoint(0, 6), 7);
    EXPECT_DOUBLE_EQ(jm().ReckoningPointLongi(0, 6), 195);
    // Greater degrees of a lord come before the parity.
    place(QStringLiteral("Ve5:11"));
    EXPECT_EQ(jm().ReckoningPoint(0, 6), 7);
    place(QStringLiteral("Ma3:12"));
    EXPECT_EQ(jm().ReckoningPoint(0, 6), 1);
    // Any planet in a house outweighs the lords.
    place(QStringLiteral("Mo7"));
    EXPECT_EQ(jm().ReckoningPoint(0, 6), 7);
    EXPECT_EQ(jm().ReckoningPoint(6, 0), 7);
}

TEST_F(Comparisons, ReckoningPointOfHousesWithEqualCounts)
{
    // One planet each side: an exalted one wins; then a debilitated one loses.
    place(QStringLiteral("As1 Su1:2 Mo7:20 Ma3"));
    EXPECT_EQ(jm().ReckoningPoint(0, 6), 1);
    place(QStringLiteral("Su7:2 Mo1:20"));
    EXPECT_EQ(jm().ReckoningPoint(0, 6), 1) << "the Sun is debilitated in Libra";
    // No dignity: the greater degrees.
    place(QStringLiteral("Su4:2 Mo1:10 Ju7:20"));
    EXPECT_EQ(jm().ReckoningPoint(0, 6), 7);
}

TEST_F(Comparisons, CoLordsOfAquariusAndScorpio)
{
    const QString alone = QStringLiteral("As1 Su3 Me3 Ve3 Ma3 Ju3 Mo3 Ke3");
    place(alone + QStringLiteral(" Sa3 Ra9"));
    EXPECT_EQ(jm().LordOfAquarius(), 6) << "Saturn has company";
    place(alone + QStringLiteral(" Sa2 Ra12"));
    EXPECT_EQ(jm().LordOfAquarius(), 8) << "alone both: Rahu in the dual sign";
    place(alone + QStringLiteral(" Sa1 Ra4"));
    EXPECT_EQ(jm().LordOfAquarius(), 8) << "both movable: Rahu further from Aquarius";
    place(alone + QStringLiteral(" Sa10 Ra7"));
    EXPECT_EQ(jm().LordOfAquarius(), 6);
    place(QStringLiteral("Su2 Me4 Ve4 Ju4 Mo4 Sa4 Ra4 Ma2 Ke3"));
    EXPECT_EQ(jm().LordOfScorpio(), 4) << "Mars has the Sun with it";
}

// The Atma Karaka (the Sun, 29 degrees) in Gemini: the 8th is Capricorn, whose lord Saturn stands
// in Aquarius. Mars takes its place, and being on the visible side it is Brahma.
TEST_F(Comparisons, BrahmaFromSaturnInAquariusIsMars)
{
    place(QStringLiteral("Su3:29 Sa11:10 Ma2:10"));
    clsJaimini &j = jm();
    ASSERT_EQ(j.AshtaCharaKaraka(1), 1);
    EXPECT_EQ(j.AK8DLord(), 6);
    EXPECT_EQ(j.Brahma(), 4);
    EXPECT_EQ(j.NominalBrahma(), 6);
    EXPECT_EQ(j.AlternateBrahma(), 4);
}

// Every candidate of the 6th, 8th, 12th and 2nd from the reckoning point stands on the far side.
TEST_F(Comparisons, BrahmaWithoutACandidateIsZero)
{
    place(QStringLiteral("As1:15 Su1:29 Mo6:5 Sa9:5 Me4:10 Ve5:10 Ma3:10 Ju4:20 Ra10:10 Ke4:10"));
    clsJaimini &j = jm();
    ASSERT_EQ(j.ReckoningPoint(0, 6), 1);
    EXPECT_EQ(j.AK8DLord(), 9) << "Ketu has company in Cancer";
    EXPECT_EQ(j.Brahma(), 0);
}

TEST_F(Comparisons, StrongerTrineSignTiesGiveZero)
{
    // Saturn alone in Aries, the Moon alone in Leo, no lord, Jupiter or Mercury with or on them.
    place(QStringLiteral("As1 Sa1:10 Mo5:10 Ma3 Ju3 Me3 Su3 Ve2 Ra12 Ke6"));
    EXPECT_EQ(jm().StrongerTrineSign(0, 4), 0);
    // Jupiter in Libra aspects Leo.
    place(QStringLiteral("Ju7"));
    EXPECT_EQ(jm().StrongerTrineSign(0, 4), 5);
    EXPECT_EQ(jm().StrongerTrineSign(4, 0), 5);
    // A second planet counts for more than any aspect.
    place(QStringLiteral("Ve1"));
    EXPECT_EQ(jm().StrongerTrineSign(0, 4), 1);
}

TEST_F(Comparisons, RudraAndMaheshwara)
{
    // Lagna Aries: Venus rules the 2nd and Mars the 8th. Venus exalted in Pisces wins.
    place(QStringLiteral("As1 Ve12:5 Ma3:25"));
    EXPECT_EQ(jm().Rudra(), 3);
    // Mars, the other, has Saturn with it in Gemini: a malefic, so it is the Aprani Rudra.
    place(QStringLiteral("Sa3"));
    EXPECT_EQ(jm().ApraniRudra(), 4);
    // Atma Karaka the Moon in Capricorn; the 8th lord Sun in Leo is in its own sign, so it is
    // weighed against the 12th lord Jupiter, and then against the stronger of the two.
    place(QStringLiteral("Mo10:29 Su5:5 Ju9:20 Ra1 Ke7"));
    EXPECT_EQ(jm().AtmaKarakaSign(), 10);
    EXPECT_EQ(jm().Maheshwara(), 5);
}

} // namespace
