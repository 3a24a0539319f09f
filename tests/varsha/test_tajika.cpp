// SPDX-License-Identifier: AGPL-3.0-or-later
// The Tajika yogas on charts set up by hand: the applying and separating aspects at the edges of
// their orbs, the aspect seen across 0 Aries, and the rules that name no planet.
#include "varsha/clsVarshaYoga.h"
#include "varsha/VarshaCharts.h"

namespace {

class Tajika : public VarshaTest
{
protected:
    // Lagna in Aries, the Sun in Cancer (4th), Mercury and Venus in Gemini (3rd), Jupiter in Leo
    // (5th), Saturn in Libra (7th): away from the Moon and Mars of each test.
    std::unique_ptr<clsPlanets> chart(double moon, double mars)
    {
        auto c = delhi();
        place(*c, {{0, 5}, {1, 100}, {2, 70}, {3, 75}, {5, 130}, {6, 190}, {7, moon}, {4, mars}});
        return c;
    }
};

} // namespace

TEST_F(Tajika, ApplyingAspectByItsDistance)
{
    // Moon (orb 12) behind Mars (orb 8) in Aries: mutual orb 10. Rule 4 is Moon and Mars.
    EXPECT_EQ(clsVarshaYoga(*chart(10, 11)).Ithasala(4), "Purna Ithasala/Moon/Mars,Aspect=Conjunction");
    EXPECT_EQ(clsVarshaYoga(*chart(10, 15)).Ithasala(4), "Vartaman Ithasala/Moon/Mars,Aspect=Conjunction");
    EXPECT_EQ(clsVarshaYoga(*chart(10, 20)).Ithasala(4), "Vartaman Ithasala/Moon/Mars,Aspect=Conjunction");
    EXPECT_EQ(clsVarshaYoga(*chart(10, 21)).Ithasala(4), "Bhavishyat Ithasala/Moon/Mars,Aspect=Conjunction");
    EXPECT_EQ(clsVarshaYoga(*chart(10, 23)).Ithasala(4), "");
    // Equal degrees apply and separate neither way.
    const auto equal = chart(10, 10);
    EXPECT_EQ(clsVarshaYoga(*equal).Ithasala(4), "");
    EXPECT_EQ(clsVarshaYoga(*equal).Easarapha(4), "");
    // The Moon in the 12th from the Lagna (Pisces) spoils it.
    EXPECT_EQ(clsVarshaYoga(*chart(340, 345)).Ithasala(4), "");
    EXPECT_EQ(clsVarshaYoga(*chart(10, 15)).Ithasala(0), "");
    EXPECT_EQ(clsVarshaYoga(*chart(10, 15)).Ithasala(22), "");
}

TEST_F(Tajika, SeparatingAspect)
{
    EXPECT_EQ(clsVarshaYoga(*chart(16, 15)).Easarapha(4), "Musaripha/Moon/Mars,Aspect=Conjunction");
    EXPECT_EQ(clsVarshaYoga(*chart(20, 15)).Easarapha(4), "Easarapha/Moon/Mars,Aspect=Conjunction");
    EXPECT_EQ(clsVarshaYoga(*chart(26, 15)).Easarapha(4), "");
    // An applying pair doesn't separate.
    EXPECT_EQ(clsVarshaYoga(*chart(10, 15)).Easarapha(4), "");
}

TEST_F(Tajika, TheAspectSeesAcrossTheStartOfAries)
{
    // Moon at Pisces 29 and Mars at Aries 1: a conjunction across 0 Aries. The rules then compare
    // the degrees inside the signs, 29 and 1, which lie too far apart to apply or separate.
    auto c = delhi();
    place(*c, {{0, 95}, {1, 200}, {7, 359}, {4, 1}});
    EXPECT_EQ(c->PlanetDegAspect(7, 4), 1);
    EXPECT_EQ(clsVarshaYoga(*c).Easarapha(4), "");
    EXPECT_EQ(clsVarshaYoga(*c).Ithasala(4), "");
}

TEST_F(Tajika, RulesOfTheWholeChart)
{
    // Every planet in the 1st, 2nd, 4th, 5th, 7th, 8th, 10th or 11th sign: Ishkabala.
    const auto c = chart(10, 15);
    const clsVarshaYoga y(*c);
    EXPECT_EQ(y.Ishkabala(), "");              // Mercury and Venus stand in the 3rd
    auto moved = delhi();
    place(*moved, {{0, 5}, {1, 100}, {2, 40}, {3, 45}, {5, 130}, {6, 190}, {7, 10}, {4, 15}});
    EXPECT_EQ(clsVarshaYoga(*moved).Ishkabala(), "Ishkabala Yoga Exists");
    EXPECT_EQ(clsVarshaYoga(*moved).Induvara(), "");
    // A Lagna in Cancer never gives Khalwasara.
    auto cancer = delhi();
    place(*cancer, {{0, 95}});
    EXPECT_EQ(clsVarshaYoga(*cancer).Khalwasara1(), "");
    EXPECT_EQ(clsVarshaYoga(*cancer).Khalwasara2(), "");
    // Nothing is kept: the run reads the same twice, and every report of the run is in the text.
    const QString run = y.CAndPTajakYogas();
    EXPECT_EQ(y.CAndPTajakYogas(), run);
    for (const clsVarshaYoga::Report &r : y.Reports())
        EXPECT_TRUE(run.contains(r.Text + "\r\n\r\n")) << r.Key.toStdString();
    EXPECT_EQ(clsVarshaYoga::CheckRelation(3), "Opposition");
    EXPECT_EQ(clsVarshaYoga::CheckRelation(0), "");
}

TEST_F(Tajika, ARetrogradeMercuryLosesOrb)
{
    auto c = delhi();
    place(*c, {{2, 50}, {15, 49.9}});
    ASSERT_TRUE(c->RetroGrade(2));
    EXPECT_DOUBLE_EQ(c->PlanetMutOrb(2, 4), 7);
}
