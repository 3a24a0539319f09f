// SPDX-License-Identifier: AGPL-3.0-or-later
// The special lagnas, padas, variants, karakas and Sphutas on charts placed by hand, against
// values worked out by hand; the birth ghatika on cast charts around sunrise.
#include "JaiminiChart.h"

#include "sky/Functions.h"

#include <cmath>
#include <vector>

namespace {

using Lagnas = JaiminiChart;

// The padas of the first house with the Lagna in Aries, by where its lord Mars stands; the
// popular rule counts on from the lord, the conditional one moves the 1st and 7th to the 10th and
// the 4th and 10th to the 4th.
TEST_F(Lagnas, PadasOfTheFirstHouseByTheLordsPlace)
{
    struct Row
    {
        const char *mars;
        int popular, conditional;
    };
    for (const Row &r :
         {Row{"Ma1", 1, 10}, Row{"Ma7", 1, 10}, Row{"Ma4", 7, 4}, Row{"Ma10", 7, 4}, Row{"Ma3", 5, 5}, Row{"Ma12", 11, 11}}) {
        place(QString::fromLatin1(r.mars));
        clsJaimini &j = jm();
        EXPECT_EQ(j.ArudhaLagna(1), r.popular) << r.mars;
        EXPECT_EQ(j.ArudhaLagna(2), r.conditional) << r.mars;
        EXPECT_EQ(j.ArudhaLagna(5), r.conditional) << "any mode but 1 is conditional";
        EXPECT_EQ(j.JaiminiPadaSign(1, 1), r.popular);
    }
    // The 12th from Aries is Pisces; its lord Jupiter in Leo is 6 signs on, and 6 more is Capricorn.
    place(QStringLiteral("Ju5"));
    EXPECT_EQ(jm().UpaPadaLagna(1), 10);
    EXPECT_EQ(jm().UpaPadaLagna(2), 10);
    EXPECT_EQ(jm().JaiminiPadaSign(0, 1), 0);
    EXPECT_EQ(jm().JaiminiPadaSign(13, 2), 0);
}

TEST_F(Lagnas, LagnasFromTheMoonsStarAndTheLagnasDegree)
{
    // Moon 18 degrees: 4 2/3 degrees into Bharani (a Venus star).
    place(QStringLiteral("As1:10 Mo1:18"));
    clsJaimini &j = jm();
    EXPECT_EQ(j.TaraLagna(), 5);                 // 4.67 / (10 / 9) = 4.2: four signs on
    EXPECT_EQ(j.NakshatraLagna(), 5);            // 4.67 * 12 / 13.33 = 4.2: forward
    EXPECT_EQ(j.TripravanaLagna(), 2);           // 10 + 36 = 46
    EXPECT_NEAR(j.ShreeLagnaLongi(), 136, 1e-9); // 10 + 27 * 4.67
    EXPECT_EQ(j.ShreeLagna(), 5);

    // Moon 5 degrees into Ashwini, a Ketu star: the Nakshatra Lagna counts backward.
    place(QStringLiteral("Mo1:5"));
    EXPECT_EQ(jm().NakshatraLagna(), 9); // Fix(4.5) = 4 back from Aries
}

TEST_F(Lagnas, HoraLagnaOfTheDoubledLagnaAndItsLastDegree)
{
    place(QStringLiteral("As4:10"));
    EXPECT_EQ(jm().HoraLagna(2), 7); // 100 doubled is 200
    // Libra 0 doubled is 360 itself, which is the end of Pisces, not a 13th sign.
    setLongi(0, 180);
    EXPECT_EQ(jm().HoraLagna(2), 12);
    EXPECT_EQ(jm().HoraLagna(4), 0);
}

TEST_F(Lagnas, InduPakaAndVarnada)
{
    // Lagna Aries, Moon Cancer: the 9th lord from each is Jupiter (10 kalas); 20 is 8, and the
    // 8th sign from Cancer is Aquarius.
    place(QStringLiteral("As1 Mo4 Ma5"));
    EXPECT_EQ(jm().InduLagna(), 11);
    EXPECT_EQ(jm().PakaLagna(), 5);

    // Varnada with the Vriddhakarika Hora Lagna, one row of each parity pair.
    struct Row
    {
        double lagna;
        int varnada;
    };
    for (const Row &r : {Row{10, 2}, Row{80, 4}, Row{50, 5}, Row{95, 11}}) {
        setLongi(0, r.lagna);
        clsJaimini &j = jm();
        EXPECT_EQ(j.VarnadaLagnaSign(2), r.varnada) << r.lagna;
        EXPECT_EQ(j.HouseVarnada(1), r.varnada);
    }
    EXPECT_EQ(jm().HouseVarnada(13), 0);
}

TEST_F(Lagnas, DrekkanaVariantsAtTheEdgesOfTheirRounds)
{
    struct Row
    {
        double longi;
        int parivritti, somanath;
    };
    // 0 and 120 start the round again; 355 is the 12th span of the 240-degree round from 240.
    for (const Row &r : {Row{0, 1, 1}, Row{119, 12, 7}, Row{120, 1, 7}, Row{125, 1, 7}, Row{239, 12, 1}, Row{245, 1, 1},
                         Row{355, 12, 7}, Row{100, 11, 8}}) {
        setLongi(0, r.longi);
        clsJaimini &j = jm();
        EXPECT_EQ(j.JmnDrkSign(0, 2), r.parivritti) << r.longi;
        EXPECT_EQ(j.DrekkanaLagna(3), r.somanath) << r.longi;
    }
    // A mode without a rule leaves the table as the last fill made it.
    setLongi(0, 100);
    clsJaimini &j = jm();
    EXPECT_EQ(j.JmnDrkSign(0, 2), 11);
    EXPECT_EQ(j.JmnDrkSign(0, 1), 11);
    EXPECT_EQ(j.JmnDrkSign(0, 3), 8);
    EXPECT_EQ(j.JmnDrkSign(0, 1), 8);
}

TEST_F(Lagnas, KrishnaMishraNavamshaBySign)
{
    struct Row
    {
        const char *venus;
        int nav;
    };
    for (const Row &r : {Row{"Ve1:29", 9}, Row{"Ve2:5", 11}, Row{"Ve3:1", 10}, Row{"Ve5:0.5", 7}, Row{"Ve6:15", 2},
                         Row{"Ve7:4", 5}, Row{"Ve8:29", 1}, Row{"Ve12:1", 3}}) {
        place(QString::fromLatin1(r.venus));
        const clsJaimini &woman = jm(2);
        EXPECT_EQ(woman.kmNavSign(3), r.nav) << r.venus;
        EXPECT_EQ(woman.JaiminiNavamshSign(3), r.nav) << "a woman's navamsha is Krishna Mishra's";
        EXPECT_EQ(woman.KMNavLord(3), clsJaimini::SignLord(r.nav));
        const clsJaimini &man = jm(1);
        EXPECT_EQ(man.JaiminiNavamshSign(3), man.NavamshSign(3)) << "a man's is the traditional one";
    }
}

TEST_F(Lagnas, EightAndSevenCharaKarakas)
{
    // The spread: Moon 24, Saturn 21, Rahu 11 (counted 19), Jupiter 18, Mars 12, Venus 9,
    // Mercury 6, Sun 3.
    clsJaimini &j = jm();
    std::vector<int> eight, seven;
    for (int i = 1; i <= 8; ++i)
        eight.push_back(j.AshtaCharaKaraka(i));
    for (int i = 1; i <= 7; ++i)
        seven.push_back(j.SaptaCharaKaraka(i));
    EXPECT_EQ(eight, (std::vector<int>{7, 6, 8, 5, 4, 3, 2, 1}));
    EXPECT_EQ(seven, (std::vector<int>{7, 6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(j.AshtaCharaKaraka(0), 0);
    EXPECT_EQ(j.AshtaCharaKaraka(9), 0);
    EXPECT_EQ(j.SaptaCharaKaraka(8), 0);
    EXPECT_EQ(j.AtmaKarakaSign(), 10);

    // Rahu counts backward from the end of its sign.
    place(QStringLiteral("Ra11:1"));
    EXPECT_EQ(jm().AshtaCharaKaraka(1), 8);
    EXPECT_EQ(jm().SaptaCharaKaraka(1), 7);
    place(QStringLiteral("Ra11:29"));
    EXPECT_EQ(jm().AshtaCharaKaraka(8), 8);

    // Equal degrees at the head keep the planet order.
    place(QStringLiteral("Su2:20 Me3:20 Mo10:2 Sa9:1 Ra11:25"));
    EXPECT_EQ(jm().AshtaCharaKaraka(1), 1);
    EXPECT_EQ(jm().AshtaCharaKaraka(2), 2);

    EXPECT_EQ(clsJaimini::SaptaCharaKarakaName(5), QStringLiteral("Apatya Karaka"));
    EXPECT_EQ(clsJaimini::AshtaCharaKarakaName(5), QStringLiteral("Pitri Karaka"));
}

TEST_F(Lagnas, FixedKarakasAndTheUpaKaraka)
{
    place(QStringLiteral("As1"));
    std::vector<int> bhava, sthira;
    for (int i = 1; i <= 7; ++i) {
        bhava.push_back(jm().SaptaBhavaKaraka(i));
        sthira.push_back(clsJaimini::SaptaSthiraKaraka(i));
    }
    EXPECT_EQ(bhava, (std::vector<int>{4, 3, 2, 7, 1, 2, 3}));
    EXPECT_EQ(sthira, (std::vector<int>{1, 2, 4, 7, 5, 6, 3}));

    // The furthest from the cusp wins; an exact tie goes by the tie numbers (Jupiter 42 over the
    // Sun 38, Mars 37 over Saturn 36).
    place(QStringLiteral("Su4:10 Ju4:10"));
    EXPECT_EQ(jm().UpaKarakaGraha(), 7) << "the Moon at 294 is the furthest";
    place(QStringLiteral("Mo3 Sa2 Ma2:1 Ra1 Ke7"));
    EXPECT_EQ(jm().UpaKarakaGraha(), 5);
    place(QStringLiteral("Ma12:20 Sa12:20"));
    EXPECT_EQ(jm().UpaKarakaGraha(), 4);
}

TEST_F(Lagnas, SphutasAndTheirConclusions)
{
    // Sun 10, Jupiter 20, Venus 32: sum 62, its 27-fold 1674 is 234 (Scorpio 24), and
    // 4 * 10 + 3 * 20 + 3 * 32 = 196.
    place(QStringLiteral("Su1:10 Ju1:20 Ve2:2"));
    clsJaimini &man = jm(1);
    EXPECT_NEAR(man.SphutasLongi(1, 1), 234, 1e-9);
    EXPECT_NEAR(man.SphutasLongi(2, 1), 62, 1e-9);
    EXPECT_NEAR(man.SphutasLongi(3, 1), 196, 1e-9);
    EXPECT_EQ(man.SphutasConcl(1, 1), 4); // even sign, 8th part
    EXPECT_EQ(man.SphutasConcl(2, 1), 1); // Gemini, 1st part
    EXPECT_EQ(man.SphutasConcl(3, 1), 1); // Libra, 5th part
    EXPECT_EQ(man.SphutasConcl(1, 2), 0) << "the Kshetra conclusion is a woman's";
    clsJaimini &woman = jm(2);
    EXPECT_EQ(woman.SphutasConcl(2, 1), 0) << "the Beeja conclusion is a man's";
    EXPECT_NE(woman.SphutasConcl(2, 2), 0);
    EXPECT_EQ(woman.SphutasLongi(4, 1), 0);
}

// The Lagna in Aries aspects only Leo, Scorpio and Aquarius. With no planet there, no planet has
// a Yogada, and the Divya and Sphuta Yoga lagnas add the longitude of the Moon's sign's lord.
TEST_F(Lagnas, DivyaLagnaFallsBackOnTheMoonsLord)
{
    place(QStringLiteral("Ke6:11 Ra12:11"));
    clsJaimini &j = jm();
    for (int p = 1; p <= 9; ++p)
        EXPECT_EQ(j.GetYogada(p), 0) << p;
    EXPECT_EQ(j.SubhaPatiGraha(), 6);
    EXPECT_NEAR(j.DivyaLagnaLongi(), 15 + 261, 1e-9);
    EXPECT_EQ(j.DivyaLagnaSign(), 10);
    EXPECT_NEAR(j.SphutaYogaLagnaLongi(), Norm360(192 + 261), 1e-9) << "from Mars, the Lagna's lord";

    // Jupiter in Leo, seen by the Lagna, now has a Yogada and takes the Moon's lord's place.
    place(QStringLiteral("Ju5:18"));
    EXPECT_NE(jm().GetYogada(5), 0);
    EXPECT_NEAR(jm().DivyaLagnaLongi(), 15 + 138, 1e-9);
    EXPECT_EQ(clsJaimini::YogadaStrength(3), QStringLiteral("Ardha Vali"));
    EXPECT_EQ(clsJaimini::YogadaStrength(9), QStringLiteral("None"));
}

TEST_F(Lagnas, PlanetsInQuadrantOrder)
{
    // From Aries: Aries, Cancer, Libra, Capricorn, then Taurus ..., then Gemini ...
    std::vector<int> planets;
    for (const auto &[p, s] : jm().PlanetsByQuadrants(1)) {
        planets.push_back(p);
        EXPECT_EQ(jm().Sign(p), s);
    }
    EXPECT_EQ(planets, (std::vector<int>{3, 4, 7, 1, 9, 8, 2, 5, 6}));
}

// ---- birth ghatika on cast charts ----

clsPerson delhi(int hour, int minutes)
{
    return MakePerson(15, 8, 1980, hour, minutes, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12,
                      QStringLiteral("E"));
}

TEST(JaiminiGhatika, CountedFromSunriseAndABirthAtSunriseCountsFromTheDayBefore)
{
    ScopedSettingsStore store;
    clsPlanets morning;
    morning.setPerson(delhi(10, 0));
    morning.Calculate();
    const double rise = morning.SunRiseTime();
    clsJaimini mid(morning);
    // A ghatika is close to 24 minutes: the day's drift of the sunrise moves it by a minute or two.
    const double minutes = 600 - MinToDec(rise) * 60;
    EXPECT_NEAR(mid.BirthGhatika(), minutes / 24, minutes / 24 * 0.1);
    EXPECT_EQ(clsJaimini::MinToDec(rise), std::lround(MinToDec(rise) * 60));

    // The sunrise found depends a little on the moment the search starts from: move the birth
    // onto the sunrise until the chart's own sunrise is its birth.
    clsPlanets atRise;
    int h = 0, m = 0;
    double at = rise;
    for (int tries = 0; tries < 4; ++tries) {
        h = static_cast<int>(at);
        m = static_cast<int>(std::lround((at - h) * 100));
        atRise.setPerson(delhi(h, m));
        atRise.Calculate();
        if (atRise.SunRiseTime() == at)
            break;
        at = atRise.SunRiseTime();
    }
    ASSERT_EQ(atRise.SunRiseTime(), at);
    const double g = clsJaimini(atRise).BirthGhatika();
    EXPECT_GT(g, 55) << "a birth at sunrise closes the day before";
    EXPECT_LT(g, 61);

    clsPlanets after;
    after.setPerson(delhi(h, m + 1));
    after.Calculate();
    EXPECT_NEAR(clsJaimini(after).BirthGhatika(), 1.0 / 24, 0.005);
}

} // namespace
