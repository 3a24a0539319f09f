// SPDX-License-Identifier: AGPL-3.0-or-later
// The yoga scan on charts placed by hand: rules that hold and rules that narrowly miss, the Raja
// ladder printing only its first step, the groups that print once, and the keys of every rule
// in the English texts.
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"
#include "text/TextDB.h"
#include "yoga/CheckYogas.h"
#include "yoga/clsYoga.h"

#include <gtest/gtest.h>

namespace {

class YogaScan : public ::testing::Test
{
protected:
    enum { As = 0, Su = 1, Me = 2, Ve = 3, Ma = 4, Ju = 5, Sa = 6, Mo = 7, Ra = 8, Ke = 9 };
    void SetUp() override
    {
        for (int n = 0; n <= 25; ++n)
            chart.setPlanetLongi(n, 0);
    }
    // Planet p in the middle of sign s, at `deg` degrees into it when given.
    void put(int p, int sign, double deg = 15) { chart.setPlanetLongi(p, (sign - 1) * 30 + deg); }
    // Planets spread so that no rule of interest holds by accident.
    void spread(int lagna)
    {
        put(As, lagna);
        const int signs[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
        for (int p = 1; p <= 9; ++p)
            put(p, signs[p]);
    }
    QStringList keys() { return CheckYogas::NameKeys(CheckYogas::ScanYogas(chart)); }
    ScopedSettingsStore store;
    clsPlanets chart;
};

} // namespace

TEST_F(YogaScan, NabhashaCountsOfOccupiedSigns)
{
    put(As, 1);
    for (int p = 1; p <= 7; ++p)
        put(p, 5);
    clsYoga one(chart);
    EXPECT_TRUE(one.Gola_Nabhasha());
    EXPECT_FALSE(one.Shoola_Nabhasha() || one.Pasha_Nabhasha() || one.Damini_Nabhasha() || one.Vallaki_Nabhasha() ||
                 one.Yuga_Nabhasha());

    // Two signs, the 1st and 7th from the Lagna: Shakata, and so not Yuga.
    for (int p : {Su, Me, Ve, Ma})
        put(p, 1);
    for (int p : {Ju, Sa, Mo})
        put(p, 7);
    clsYoga two(chart);
    EXPECT_TRUE(two.Shakata_Nabhasha());
    EXPECT_FALSE(two.Yuga_Nabhasha());
    put(Mo, 8); // two signs no longer in the 1st and 7th
    put(Ju, 8);
    put(Sa, 8);
    EXPECT_TRUE(clsYoga(chart).Yuga_Nabhasha());

    // Seven signs from the 7th house round to the 1st: Vallaki and Chhatra at once.
    for (int p = 1; p <= 7; ++p)
        put(p, 6 + p); // signs 7..13, the last wrapping to Aries
    put(Mo, 1);
    clsYoga seven(chart);
    EXPECT_TRUE(seven.Vallaki_Nabhasha());
    EXPECT_TRUE(seven.Chhatra_Nabhasha());
    EXPECT_FALSE(seven.ArdhaChandra1_Nabhasha());
}

TEST_F(YogaScan, ThePanchaMahapurushaRulesNeedTheSignAndTheHouse)
{
    spread(10); // Capricorn rising: Aries is the 4th house
    put(Ma, 1);
    EXPECT_TRUE(keys().contains("Ruchaka"));
    put(As, 12); // Pisces rising: Aries is the 2nd
    EXPECT_FALSE(keys().contains("Ruchaka"));
}

TEST_F(YogaScan, KemadrumaFailsWithACompanionOfTheMoon)
{
    // The Moon alone in Libra, nobody in the 2nd, 4th, 7th, 10th or 12th from it.
    put(As, 1);
    put(Mo, 7);
    for (int p : {Su, Me, Ve, Ma, Ju, Sa})
        put(p, 3);
    put(Ra, 5);
    put(Ke, 11);
    EXPECT_TRUE(keys().contains("Kemadruma"));
    put(Sa, 7);
    EXPECT_FALSE(keys().contains("Kemadruma"));
}

TEST_F(YogaScan, UbhayachariSilencesItsTwoNeighbours)
{
    spread(1);
    put(Su, 5);
    put(Ju, 6); // 2nd from the Sun
    put(Ve, 4); // 12th from the Sun
    QStringList k = keys();
    EXPECT_TRUE(k.contains("Ubhaychari"));
    EXPECT_FALSE(k.contains("SubhavesiYoga"));
    put(Ve, 8);
    k = keys();
    EXPECT_FALSE(k.contains("Ubhaychari"));
    EXPECT_TRUE(k.contains("SubhavesiYoga"));
}

TEST_F(YogaScan, OnlyTheFirstStepOfTheRajaLadderPrints)
{
    // Aries rising: Jupiter lords the 9th, Saturn the 10th. Both exalted (Cancer, Libra): the first
    // step. The lords of 1 and 10 exchanged would also meet a modest test.
    spread(1);
    put(Ju, 4);
    put(Sa, 7);
    const QStringList k = keys();
    EXPECT_EQ(k.count("RajaNo1"), 1);
    EXPECT_FALSE(k.contains("Raja2nd") || k.contains("RajaAve") || k.contains("RajaMode"));
    const QList<CheckYogas::Hit> hits = CheckYogas::ScanYogas(chart);
    for (const CheckYogas::Hit &h : hits)
        if (h.nameKey == "RajaNo1")
            EXPECT_EQ(h.textKey, "RajaYoga77");

    // Without the exaltations, the lords of 1 and 10 exchanged: Mars in Capricorn, Saturn in Aries.
    spread(1);
    put(Ma, 10);
    put(Sa, 1);
    const QStringList modest = keys();
    EXPECT_FALSE(modest.contains("RajaNo1") && modest.contains("RajaMode"));
    EXPECT_TRUE(modest.contains("RajaNo1") || modest.contains("RajaMode"));
    // A second chart scanned afterwards still gets its own ladder.
    spread(1);
    put(Ju, 4);
    put(Sa, 7);
    EXPECT_TRUE(keys().contains("RajaNo1"));
}

TEST_F(YogaScan, TheDhanaGroupAndTheExchangesPrintOnce)
{
    // Capricorn rising, Venus in the 5th, Saturn in the 11th: the first wealth test.
    spread(10);
    put(Ve, 2);
    put(Sa, 8);
    EXPECT_EQ(keys().count("DhanaYoga"), 1);
    // Several exchanges of good lords still give one "MahaYoga".
    spread(1); // Aries: lords of 1 Mars, 2 Venus, 4 Moon, 5 Sun
    put(Ma, 2);
    put(Ve, 1);
    put(Mo, 5);
    put(Su, 4);
    EXPECT_EQ(keys().count("MahaYoga"), 1);
}

TEST_F(YogaScan, BrahmaPrintsBothItsEntries)
{
    // Gemini rising with Mercury in Aries: the Sun, Venus and Mars in the 4th, 10th and 11th from it.
    spread(3);
    put(Me, 1);
    put(Su, 4);
    put(Ve, 10);
    put(Ma, 11);
    const QStringList k = keys();
    EXPECT_TRUE(k.contains("Brahma"));
    EXPECT_TRUE(k.contains("BrahmaYoga"));
    EXPECT_LT(k.indexOf("Brahma"), k.indexOf("BrahmaYoga"));
    put(Ma, 12); // Mars one sign on: no longer
    EXPECT_FALSE(keys().contains("Brahma"));
}

TEST_F(YogaScan, SunaphaAndAnaphaByThePlanetsAroundTheMoon)
{
    spread(1);
    put(Mo, 6);
    for (int p : {Me, Ve, Ma, Ju, Sa})
        put(p, 10);
    put(Su, 7); // the Sun in the 2nd from the Moon doesn't count
    EXPECT_FALSE(keys().contains("Sunapha"));
    put(Sa, 7);
    EXPECT_TRUE(keys().contains("Sunapha"));
    put(Ju, 5);
    EXPECT_TRUE(keys().contains("Anapha"));
}

TEST(YogaTexts, EveryKeyTheScanCanPrintHasItsWords)
{
    ScopedSettingsStore store;
    QSqlDatabase db;
    ASSERT_TRUE(OpenTextDB("ENGLISH", db));
    for (const QString &key : CheckYogas::AllNameKeys())
        EXPECT_FALSE(GetHeadValue(db, 7, key).toString().isEmpty()) << key.toStdString();
    for (const QString &key : CheckYogas::AllTextKeys())
        EXPECT_GT(GetHeadValue(db, 2, key).toString().size(), 80) << key.toStdString();
    CloseTextDB(db);
}
