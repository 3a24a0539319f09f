// SPDX-License-Identifier: AGPL-3.0-or-later
// The eight kutas over every pair of birth stars, a couple worked by hand, the verdict's
// rounding, the Manglik rules with their cancellations, and the four further checks.
#include "MarriageCharts.h"

#include "sky/AppSettings.h"
#include "sky/Functions.h"

#include <set>

namespace {

class GunaMilan : public MarriageCharts
{
};

TEST_F(GunaMilan, EveryPairOfStarsStaysWithinEachMaximumAndAddsUp)
{
    std::set<double> seen[clsMarr::kKutaCount];
    for (int b = 1; b <= 27; ++b) {
        for (int g = 1; g <= 27; ++g) {
            moonInNakshatra(boy, b);
            moonInNakshatra(girl, g);
            clsMarr m(&boy, &girl);
            m.DoMatch();
            double sum = 0;
            for (int k = 0; k < clsMarr::kKutaCount; ++k) {
                ASSERT_GE(m.Score(k), 0) << b << ' ' << g << ' ' << k;
                ASSERT_LE(m.Score(k), clsMarr::KutaMax(k)) << b << ' ' << g << ' ' << k;
                EXPECT_FALSE(m.Detail(k, 1).isEmpty() || m.Detail(k, 2).isEmpty()) << b << ' ' << g << ' ' << k;
                sum += m.Score(k);
                seen[k].insert(m.Score(k));
            }
            ASSERT_DOUBLE_EQ(m.TotalScore(), sum);
            EXPECT_EQ(m.RoundedTotal(), CLng(sum));
            // Equal Nadi takes the 8 points away.
            if (boy.NadiNo() == girl.NadiNo()) {
                EXPECT_EQ(m.ScoreNadi(), 0);
                EXPECT_LE(m.TotalScore(), 28);
            }
            // The counts of the two stars mirror each other.
            EXPECT_EQ(Norm9(m.TaraNo(1) + m.TaraNo(2) - 1), 1) << b << ' ' << g;
        }
    }
    // The tables are read: each kuta reaches its maximum and 0 somewhere.
    for (int k = 0; k < clsMarr::kKutaCount; ++k) {
        EXPECT_EQ(*seen[k].rbegin(), clsMarr::KutaMax(k)) << k;
        EXPECT_EQ(*seen[k].begin(), k == clsMarr::Tara ? 1.5 : 0) << k;
    }
}

TEST_F(GunaMilan, ACoupleWorkedByHand)
{
    // Boy: Moon in Ashwini (Aries); girl: Moon in Rohini (Taurus).
    moonInNakshatra(boy, 1);
    moonInNakshatra(girl, 4);
    clsMarr m(&boy, &girl);
    m.DoMatch();
    EXPECT_EQ(m.ScoreVarna(), 1);    // Kshatriya (3) over Vaishya (2)
    EXPECT_EQ(m.ScoreVashya(), 2);   // both four-footed
    EXPECT_EQ(m.TaraNo(1), 7);       // Ashwini is the 7th from Rohini
    EXPECT_EQ(m.TaraNo(2), 4);       // Rohini the 4th from Ashwini
    EXPECT_EQ(m.ScoreTara(), 1.5);   // a 7th halves it
    EXPECT_EQ(m.ScoreYoni(), 3);     // Horse and Serpent
    EXPECT_EQ(m.ScoreGraha(), 3);    // Mars and Venus, neutral both ways
    EXPECT_EQ(m.ScoreGana(), 6);     // Deva boy, Manushya girl
    EXPECT_EQ(m.ScoreRasi(), 0);     // 2/12
    EXPECT_EQ(m.ScoreNadi(), 8);     // Adi and Antya
    EXPECT_DOUBLE_EQ(m.TotalScore(), 24.5);
    EXPECT_EQ(m.RoundedTotal(), 24);
    EXPECT_EQ(m.GetTotSCO(), QStringLiteral("SCO28"));

    EXPECT_EQ(m.DetVarna(1), QStringLiteral("Kshatriya"));
    EXPECT_EQ(m.DetTara(1), QStringLiteral("Vadha"));
    EXPECT_EQ(m.DetTara(2), QStringLiteral("Kshema"));
    EXPECT_EQ(m.DetGraha(1), QStringLiteral("Mars"));
    EXPECT_EQ(m.DetGraha(2), QStringLiteral("Venus"));
    EXPECT_EQ(m.DetRasi(1), QStringLiteral("Aries"));
    EXPECT_EQ(m.DetRasi(2), QStringLiteral("Taurus"));

    EXPECT_TRUE(m.ResuRajju());    // Pada (feet) and Kantha (neck)
    EXPECT_TRUE(m.ResuMahendra()); // the girl's star is the 4th from the boy's
    EXPECT_EQ(m.StreeDeerghaCount(), 25);
    EXPECT_TRUE(m.ResuStreeDee());
    EXPECT_TRUE(m.ResuVedha());

    const QStringList tags{QStringLiteral("[MBCD]"), QStringLiteral("[MCCC]"), QStringLiteral("[MDHE]"), QStringLiteral("[MEBE]"),
                           QStringLiteral("[MFDG]"), QStringLiteral("[MGBC]"), QStringLiteral("[MHBC]"), QStringLiteral("[MIBD]")};
    for (int k = 0; k < clsMarr::kKutaCount; ++k)
        EXPECT_EQ(m.MatchTag(k), tags[k]) << k;

    // The other way round the letters change places, and the Varna point is lost.
    clsMarr swapped(&girl, &boy);
    swapped.DoMatch();
    EXPECT_EQ(swapped.ScoreVarna(), 0);
    EXPECT_EQ(swapped.MatchTag(clsMarr::Rasi), QStringLiteral("[MHCB]"));
    EXPECT_EQ(swapped.MatchTag(clsMarr::Tara), QStringLiteral("[MDEH]"));
}

TEST_F(GunaMilan, TheSameStarAndTheSameSign)
{
    moonInNakshatra(boy, 10);
    moonInNakshatra(girl, 10);
    clsMarr m(&boy, &girl);
    m.DoMatch();
    EXPECT_EQ(m.TaraNo(1), 1);
    EXPECT_EQ(m.TaraNo(2), 1);
    EXPECT_EQ(m.ScoreTara(), 3);
    EXPECT_TRUE(m.ResuVedha());
    EXPECT_FALSE(m.ResuMahendra()); // the count is 1
    EXPECT_FALSE(m.ResuRajju());    // one Rajju
    EXPECT_EQ(m.ScoreNadi(), 0);
    EXPECT_EQ(m.ScoreYoni(), 4);
    EXPECT_EQ(m.ScoreRasi(), 7);

    // Moon in Aries for both: the four-footed pair scores in full.
    moonInNakshatra(boy, 2);
    moonInNakshatra(girl, 1);
    m.DoMatch();
    EXPECT_EQ(m.ScoreVashya(), 2);
}

TEST_F(GunaMilan, FurtherChecksAtTheirEdges)
{
    clsMarr m(&boy, &girl);
    const auto check = [&](int b, int g) {
        moonInNakshatra(boy, b);
        moonInNakshatra(girl, g);
        m.GetExtMatchScore();
    };
    // Vedha pairs either way round; Chitra (14) has no partner.
    check(1, 18);
    EXPECT_FALSE(m.ResuVedha());
    check(23, 5);
    EXPECT_FALSE(m.ResuVedha());
    check(14, 13);
    EXPECT_TRUE(m.ResuVedha());
    // Mahendra counts from the boy's star round the circle.
    check(25, 1); // 1 is the 4th from 25
    EXPECT_TRUE(m.ResuMahendra());
    check(1, 25);
    EXPECT_TRUE(m.ResuMahendra());
    check(1, 27);
    EXPECT_FALSE(m.ResuMahendra());
    // Stree Deergha: the boy's star beyond the 13th from the girl's.
    check(14, 1);
    EXPECT_EQ(m.StreeDeerghaCount(), 14);
    EXPECT_TRUE(m.ResuStreeDee());
    check(13, 1);
    EXPECT_FALSE(m.ResuStreeDee());
    check(1, 2);
    EXPECT_EQ(m.StreeDeerghaCount(), 27);
    EXPECT_TRUE(m.ResuStreeDee());
}

TEST(GunaMilanVerdict, TheTotalRoundsHalvesToEvenBeforeItsBand)
{
    EXPECT_EQ(clsMarr::VerdictKey(6.5), QStringLiteral("SCO6"));
    EXPECT_EQ(clsMarr::VerdictKey(7), QStringLiteral("SCO10"));
    EXPECT_EQ(clsMarr::VerdictKey(10.5), QStringLiteral("SCO10"));
    EXPECT_EQ(clsMarr::VerdictKey(11.5), QStringLiteral("SCO14"));
    EXPECT_EQ(clsMarr::VerdictKey(18.5), QStringLiteral("SCO18"));
    EXPECT_EQ(clsMarr::VerdictKey(19), QStringLiteral("SCO23"));
    EXPECT_EQ(clsMarr::VerdictKey(23.5), QStringLiteral("SCO28"));
    EXPECT_EQ(clsMarr::VerdictKey(28.5), QStringLiteral("SCO28"));
    EXPECT_EQ(clsMarr::VerdictKey(29), QStringLiteral("SCO36"));
    EXPECT_EQ(clsMarr::VerdictKey(36), QStringLiteral("SCO36"));
    EXPECT_EQ(clsMarr::VerdictKey(0), QStringLiteral("SCO6"));
}

class Manglik : public MarriageCharts
{
protected:
    QString code()
    {
        clsMarr m(&boy, &girl);
        m.PutManglikResult();
        boyCancel = m.ManglikCancelText(1);
        girlCancel = m.ManglikCancelText(2);
        return m.ManglikCode();
    }
    QString boyCancel, girlCancel;
};

TEST_F(Manglik, TheBasicRuleByModeAndItsCorrections)
{
    clsMarr m(&boy, &girl);
    // Mars in the Ascendant's own sign, Aries: never, in either mode.
    EXPECT_FALSE(m.Manglik(1, 1));
    // The 8th from Libra (H = 7).
    EXPECT_TRUE(m.Manglik(2, 7));
    // The 1st counts in the North, the 2nd in the South.
    EXPECT_TRUE(m.Manglik(2, 2));
    EXPECT_FALSE(m.Manglik(3, 2));
    AppSettings::overrideForRun(QStringLiteral("Settings"), QStringLiteral("CalcMangMod"), 2);
    EXPECT_FALSE(m.Manglik(2, 2));
    EXPECT_TRUE(m.Manglik(3, 2));
    EXPECT_FALSE(m.Manglik(1, 1));
    EXPECT_TRUE(m.Manglik(2, 7));
    // Corrections: Gemini only the 4th, Sagittarius only the 7th, Pisces the 4th and 7th.
    EXPECT_TRUE(m.Manglik(6, 3));
    EXPECT_FALSE(m.Manglik(10, 3));
    EXPECT_TRUE(m.Manglik(3, 9));
    EXPECT_FALSE(m.Manglik(5, 9));
    EXPECT_TRUE(m.Manglik(3, 12));
    EXPECT_FALSE(m.Manglik(1, 12));
    // Scorpio: the 7th and 8th hold, the 2nd, 4th and 12th don't.
    EXPECT_TRUE(m.Manglik(3, 8));
    EXPECT_FALSE(m.Manglik(11, 8));
}

TEST_F(Manglik, TheCancellations)
{
    EXPECT_TRUE(clsMarr::FindIfKCancel(45));   // Taurus
    EXPECT_FALSE(clsMarr::FindIfKCancel(10));  // Aries
    EXPECT_TRUE(clsMarr::FindIfKCancel(319));  // Aquarius
    EXPECT_TRUE(clsMarr::FindIfJupCancels(5, 1));
    EXPECT_TRUE(clsMarr::FindIfJupCancels(1, 7)); // the 7th from Libra, across Pisces
    EXPECT_FALSE(clsMarr::FindIfJupCancels(4, 1));
    // Mars opposite Rahu, or with the Moon; not in a sign square to all of them.
    EXPECT_TRUE(clsMarr::FindMarsCancel(10, 100, 130, 160, 160, 190));
    EXPECT_TRUE(clsMarr::FindMarsCancel(10, 100, 20, 160, 160, 70));
    EXPECT_FALSE(clsMarr::FindMarsCancel(10, 100, 130, 160, 160, 70));
}

TEST_F(Manglik, NeitherPartnerGivesBFGF)
{
    // Mars in the Aries Ascendant, the Moon in Aquarius (Mars in its 3rd).
    place(boy, {5, 100, 110, 120, 10, 160, 200, 310, 250, 70});
    place(girl, {5, 100, 110, 120, 10, 160, 200, 310, 250, 70});
    EXPECT_EQ(code(), QStringLiteral("BFGF"));
    EXPECT_TRUE(boyCancel.isEmpty());
}

TEST_F(Manglik, FromTheMoonAloneCountsAndACancelledBoyWithAPlainGirlGivesBCGT)
{
    // Boy: Taurus Ascendant (which cancels), Mars in Scorpio, the 7th.
    place(boy, {35, 100, 110, 120, 215, 160, 200, 130, 250, 70});
    // Girl: Aries Ascendant, Mars in Cancer (the 4th), and nothing that cancels: Jupiter in
    // Taurus, the Moon, Venus, the Sun and Mercury in Gemini, Rahu in Taurus, the Moon (Mars's
    // lord) in the 3rd.
    place(girl, {5, 70, 75, 80, 95, 40, 200, 65, 45, 225});
    EXPECT_EQ(code(), QStringLiteral("BCGT"));
    EXPECT_TRUE(boyCancel.startsWith(QStringLiteral("The boy's Manglik dosha is cancelled")));
    EXPECT_TRUE(boyCancel.contains(QStringLiteral("Taurus, Cancer, Leo, Virgo, Capricorn or Aquarius")));
    EXPECT_TRUE(girlCancel.isEmpty());

    // Mars in the Aries Ascendant is no dosha, but the Moon in Capricorn puts Mars in its 4th.
    place(girl, {5, 70, 75, 80, 10, 40, 200, 280, 45, 225});
    // Jupiter in the 5th from the Moon and Mars in its own sign on the Ascendant cancel it.
    EXPECT_EQ(code().right(2), QStringLiteral("GC"));
    EXPECT_EQ(clsMarr::CancelFlags(girl), (std::array<bool, 6>{false, false, true, false, false, true}));
    EXPECT_TRUE(girlCancel.startsWith(QStringLiteral("The girl's Manglik dosha is cancelled")));
}

} // namespace
