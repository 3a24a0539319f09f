// SPDX-License-Identifier: AGPL-3.0-or-later
// The sign dashas on posed charts: hand-worked rows of one chart for every table, the two schools
// of the Chara dasha and the co-lords of Aquarius and Scorpio, both sexes where the order depends
// on it, and a sweep of random charts over the rules every table must keep.
#include "jaimini/JaiminiDashaFake.h"
#include "jaimini/clsJaiminiSystem.h"
#include "sky/Functions.h"
#include "support/TestSupport.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

// Lagna in Aries; Sun in Leo (own), Mercury debilitated and Venus exalted in Pisces, Mars exalted
// in Capricorn with the Moon, Jupiter in Gemini, Saturn exalted in Libra, Rahu in Taurus, Ketu in
// Scorpio.
FakeDashaBasis chartA()
{
    FakeDashaBasis f;
    f.signs = {1, 5, 12, 12, 10, 3, 7, 10, 2, 8};
    return f;
}

struct Posed
{
    explicit Posed(const FakeDashaBasis &f)
    {
        auto b = std::make_unique<FakeDashaBasis>(f);
        basis = b.get();
        system = std::make_unique<clsJaiminiSystem>(std::move(b));
    }
    FakeDashaBasis *basis = nullptr;
    std::unique_ptr<clsJaiminiSystem> system;
};

std::vector<int> signsOf(const JaiminiDashaTable &t)
{
    std::vector<int> out;
    for (const JaiminiDashaRow &r : t)
        out.push_back(r.Sign);
    return out;
}
std::vector<double> yearsOf(const JaiminiDashaTable &t)
{
    std::vector<double> out;
    for (const JaiminiDashaRow &r : t)
        out.push_back(r.Years);
    return out;
}
std::vector<int> planetsOf(const JaiminiDashaTable &t)
{
    std::vector<int> out;
    for (const JaiminiDashaRow &r : t)
        out.push_back(r.Planet);
    return out;
}
bool distinct(const std::vector<int> &v)
{
    return std::set<int>(v.begin(), v.end()).size() == v.size();
}

} // namespace

TEST(JaiminiChara, RbnsYearsCountFromTheLordByItsSignsParity)
{
    Posed p(chartA());
    // Leo holds its lord (12); Cancer, Virgo and Sagittarius have theirs in the 7th (10); the
    // rest count forward from an odd lord's sign, backward from an even one.
    const std::array<int, 12> expected{9, 10, 9, 10, 12, 10, 5, 2, 10, 3, 4, 9};
    for (int s = 1; s <= 12; ++s)
        EXPECT_EQ(p.system->DashaDurationRBNS(s), expected[static_cast<size_t>(s - 1)]) << s;
    EXPECT_EQ(p.system->FullCycle(2), 93);
    EXPECT_EQ(p.system->DashaDurationRBNS(0), 0);
    EXPECT_EQ(p.system->DashaDurationRBNS(13), 0);

    // The cycle is the sum of the table: moving the Sun opposite Leo turns 12 into 10.
    FakeDashaBasis moved = chartA();
    moved.signs[1] = 11;
    Posed q(moved);
    EXPECT_EQ(q.system->DashaDurationRBNS(5), 10);
    EXPECT_EQ(q.system->FullCycle(2), 91);
}

TEST(JaiminiChara, NlktYearsInTheThreeModes)
{
    Posed p(chartA());
    // Mode 1 counts by the group of the sign; mode 2 gives Scorpio and Aquarius by their co-lords
    // (Ketu in Scorpio counts to Mars; the chosen Saturn in Libra for Aquarius); mode 3 adds one
    // for an exalted lord and takes one off for a debilitated one.
    const std::array<int, 12> mode1{9, 10, 9, 6, 12, 6, 5, 2, 6, 3, 4, 9};
    const std::array<int, 12> mode2{9, 10, 9, 6, 12, 6, 5, 2, 6, 3, 4, 9};
    const std::array<int, 12> mode3{10, 11, 8, 6, 12, 5, 6, 2, 6, 4, 5, 9};
    for (int s = 1; s <= 12; ++s) {
        EXPECT_EQ(p.system->DashaDurationNLKT(s, 1), mode1[static_cast<size_t>(s - 1)]) << s;
        EXPECT_EQ(p.system->DashaDurationNLKT(s, 2), mode2[static_cast<size_t>(s - 1)]) << s;
        EXPECT_EQ(p.system->DashaDurationNLKT(s, 3), mode3[static_cast<size_t>(s - 1)]) << s;
    }
    EXPECT_EQ(p.system->FullCycle(1, 1), 81);
    EXPECT_EQ(p.system->FullCycle(1, 3), 84);

    // A lord in its own sign gives 12 in both schools, in the 7th 10 by RBNS and 6 by NLKT;
    // Mercury exalted in its own Virgo is the one 13.
    FakeDashaBasis virgo = chartA();
    virgo.signs[2] = 6;
    Posed v(virgo);
    EXPECT_EQ(v.system->DashaDurationRBNS(6), 12);
    EXPECT_EQ(v.system->DashaDurationNLKT(6, 1), 12);
    EXPECT_EQ(v.system->DashaDurationNLKT(6, 3), 13);
    EXPECT_EQ(v.system->DashaDurationRBNS(3), 3);
    EXPECT_EQ(v.system->DashaDurationNLKT(3, 1), 3);
    EXPECT_EQ(v.system->DashaDurationNLKT(3, 3), 4);
    EXPECT_EQ(p.system->DashaDurationRBNS(4), 10);
    EXPECT_EQ(p.system->DashaDurationNLKT(4, 1), 6);
}

TEST(JaiminiChara, CoLordsOfAquariusAndScorpio)
{
    struct Case
    {
        int sign, lord, lordSign, node, nodeSign, chosen, mode2, mode3;
    };
    const Case cases[] = {
        // Aquarius: Saturn (other sign Capricorn) and Rahu.
        {11, 6, 11, 8, 11, 6, 12, 12}, // both in Aquarius
        {11, 6, 3, 8, 3, 6, 8, 8},     // together elsewhere: the plain count
        {11, 6, 10, 8, 5, 6, 6, 6},    // Saturn in Capricorn: count to Rahu
        {11, 6, 11, 8, 5, 6, 6, 6},    // Saturn at home, Rahu away: count to Rahu
        {11, 6, 4, 8, 11, 6, 7, 7},    // Rahu at home, Saturn away: count to Saturn, no dignity
        {11, 6, 7, 8, 2, 6, 4, 5},     // the chosen Saturn exalted
        {11, 6, 1, 8, 2, 6, 10, 9},    // the chosen Saturn debilitated
        {11, 6, 7, 8, 2, 8, 9, 9},     // Rahu chosen: no dignity step
        // Scorpio: Mars (other sign Aries) and Ketu.
        {8, 4, 8, 9, 8, 4, 12, 12},
        {8, 4, 1, 9, 3, 4, 7, 7},
        {8, 4, 6, 9, 8, 4, 10, 10},
        {8, 4, 10, 9, 2, 4, 2, 3},
        {8, 4, 4, 9, 2, 4, 8, 7},
        {8, 4, 4, 9, 2, 9, 6, 6},
    };
    for (const Case &c : cases) {
        FakeDashaBasis f = chartA();
        f.signs[static_cast<size_t>(c.lord)] = c.lordSign;
        f.signs[static_cast<size_t>(c.node)] = c.nodeSign;
        (c.sign == 11 ? f.lordOfAquarius : f.lordOfScorpio) = c.chosen;
        Posed p(f);
        EXPECT_EQ(p.system->DashaDurationNLKT(c.sign, 2), c.mode2) << c.sign << " " << c.lordSign << " " << c.nodeSign;
        EXPECT_EQ(p.system->DashaDurationNLKT(c.sign, 3), c.mode3) << c.sign << " " << c.lordSign << " " << c.nodeSign;
    }
}

TEST(JaiminiChara, SequencesOfBothSchoolsForEveryLagnaAndSex)
{
    struct Case
    {
        int lagna, sex;
        std::array<int, 12> rbns;
    };
    const Case cases[] = {
        {1, 1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}}, {1, 2, {4, 5, 6, 7, 8, 9, 10, 11, 12, 1, 2, 3}},
        {2, 1, {2, 9, 4, 11, 6, 1, 8, 3, 10, 5, 12, 7}}, {3, 1, {3, 7, 11, 4, 8, 12, 5, 9, 1, 6, 10, 2}},
        {6, 2, {3, 11, 7, 2, 10, 6, 1, 9, 5, 12, 8, 4}}, {12, 1, {12, 8, 4, 11, 7, 3, 10, 6, 2, 9, 5, 1}},
    };
    for (const Case &c : cases) {
        FakeDashaBasis f = chartA();
        f.signs[0] = c.lagna;
        f.sex = c.sex;
        Posed p(f);
        EXPECT_EQ(p.system->SequenceJCD_RBNS(), c.rbns) << c.lagna << " " << c.sex;
        EXPECT_EQ(signsOf(p.system->CharaRBNS()), std::vector<int>(c.rbns.begin(), c.rbns.end()));
    }
    // Every Lagna and sex gives all twelve signs once, from the sign the table names.
    const int womanStart[] = {4, 11, 6, 1, 8, 3, 10, 5, 12, 7, 2, 9};
    for (int g = 1; g <= 12; ++g)
        for (int sex : {1, 2}) {
            FakeDashaBasis f = chartA();
            f.signs[0] = g;
            f.sex = sex;
            Posed p(f);
            const auto &seq = p.system->SequenceJCD_RBNS();
            EXPECT_TRUE(distinct(std::vector<int>(seq.begin(), seq.end()))) << g << " " << sex;
            EXPECT_EQ(seq[0], sex == 1 ? g : womanStart[g - 1]) << g << " " << sex;
            // NLKT: from the Lagna, forward when its 9th is Aries-Gemini or Libra-Sagittarius.
            const auto nlkt = p.system->SequenceJCD_NLKT();
            const int ninth = FakeDashaBasis::wrap(g + 8);
            const int dir = DirectGroup(ninth) == 1 ? 1 : -1;
            EXPECT_EQ(nlkt[0], g);
            EXPECT_EQ(nlkt[1], FakeDashaBasis::wrap(g + dir)) << g;
        }
}

TEST(JaiminiChara, BhuktiAndThreeLevelPeriods)
{
    Posed p(chartA());
    const auto signs = [](const std::vector<JaiminiBhuktiRow> &rows) {
        std::vector<int> out;
        for (const JaiminiBhuktiRow &r : rows)
            out.push_back(r.Sign);
        return out;
    };
    // RBNS kind 1: from the lord's sign, forward when odd (the Sun in Leo), else backward (Mars in
    // Capricorn for Aries), one year a row; as many rows as the dasha has years.
    EXPECT_EQ(signs(p.system->SetBhukti(5, 2, 1)), (std::vector<int>{5, 6, 7, 8, 9, 10, 11, 12, 1, 2, 3, 4}));
    EXPECT_EQ(signs(p.system->SetBhukti(1, 2, 1)), (std::vector<int>{10, 9, 8, 7, 6, 5, 4, 3, 2}));
    EXPECT_EQ(p.system->SetBhukti(1, 2, 1)[0].Length, 1);
    // Otherwise: from the next sign, in the direction of the 9th's group, N rows of N.
    EXPECT_EQ(signs(p.system->SetBhukti(8, 2, 2)), (std::vector<int>{9, 10}));
    EXPECT_EQ(p.system->SetBhukti(8, 2, 2)[1].Length, 2);
    EXPECT_EQ(signs(p.system->SetBhukti(4, 1, 0)), (std::vector<int>{5, 6, 7, 8, 9, 10}));
    FakeDashaBasis backward = chartA();
    backward.signs[0] = 4; // the 9th, Pisces, runs backward
    EXPECT_EQ(signs(Posed(backward).system->SetBhukti(4, 1, 0)), (std::vector<int>{3, 2, 1, 12, 11, 10}));
    // Jupiter debilitated in Capricorn leaves Sagittarius no year in NLKT mode 3: no rows.
    FakeDashaBasis zero = chartA();
    zero.signs[5] = 10;
    Posed z(zero);
    EXPECT_EQ(z.system->DashaDurationNLKT(9, 3), 0);
    EXPECT_TRUE(z.system->SetBhukti(9, 1, 0, 3).empty());
    EXPECT_TRUE(p.system->SetBhukti(13, 1, 0).empty());

    // Leo, 12 years: three parts of 4 years on its trines; an odd part runs forward, ten sub-parts
    // of 4.8 months, each of twelve signs from its own.
    const JaiminiSSSPeriods leo = p.system->SSSPeriods(5);
    EXPECT_EQ(leo.Parts[2].Sign, 1);
    EXPECT_DOUBLE_EQ(leo.Parts[0].Years, 4);
    EXPECT_DOUBLE_EQ(leo.Parts[0].Subs[0].Months, 4.8);
    EXPECT_EQ(leo.Parts[0].Subs[9].Sign, 2);
    EXPECT_EQ(leo.Parts[0].Subs[9].Signs[11], 1);
    // Taurus, 10 years: an even part records the 9th from each sign it runs through.
    const JaiminiSSSPeriods taurus = p.system->SSSPeriods(2);
    EXPECT_EQ(taurus.Parts[1].Sign, 6);
    EXPECT_EQ(taurus.Parts[0].Subs[0].Sign, 10);
    EXPECT_EQ(taurus.Parts[0].Subs[9].Sign, 7);
    EXPECT_DOUBLE_EQ(taurus.Parts[0].Years, 10.0 / 3);
}

TEST(JaiminiSignDashas, SthiraDrigAndMandookOrders)
{
    struct Case
    {
        int brahma, brahmaSign, mode;
        std::vector<int> signs;
    };
    const Case sthira[] = {
        {6, 7, 1, {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6}},  {6, 7, 2, {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6}},
        {2, 12, 1, {12, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}}, {2, 12, 2, {12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1}},
        {0, 1, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}}, // no Brahma: from the Lagna
    };
    for (const Case &c : sthira) {
        FakeDashaBasis f = chartA();
        f.brahma = c.brahma;
        Posed p(f);
        EXPECT_EQ(signsOf(p.system->Sthira(c.mode)), c.signs) << c.brahma << " " << c.mode;
        EXPECT_EQ(p.system->Sthira(c.mode)[0].Years, clsJaiminiSystem::SignClassYears(c.brahmaSign));
    }

    Posed p(chartA());
    EXPECT_EQ(signsOf(p.system->Drig()), (std::vector<int>{1, 5, 9, 2, 6, 10, 3, 7, 11, 4, 8, 12}));
    EXPECT_EQ(yearsOf(p.system->Drig()), (std::vector<double>{7, 8, 9, 8, 9, 7, 9, 7, 8, 7, 8, 9}));

    // Mandook with the 7th the stronger: by the Drig years, leaping through the quadrants.
    FakeDashaBasis seventh = chartA();
    seventh.reckoning[{0, 6}] = 7;
    seventh.reckoning[{3, 6}] = 4;
    Posed m(seventh);
    EXPECT_EQ(signsOf(m.system->Mandook(1)), (std::vector<int>{7, 10, 1, 4, 8, 11, 2, 5, 9, 12, 3, 6}));
    EXPECT_EQ(yearsOf(m.system->Mandook(1)), (std::vector<double>{7, 7, 7, 7, 8, 8, 8, 8, 9, 9, 9, 9}));
    EXPECT_EQ(signsOf(m.system->Mandook(2)), (std::vector<int>{7, 11, 3, 8, 12, 4, 9, 1, 5, 10, 2, 6}));
    EXPECT_EQ(yearsOf(m.system->Mandook(2)), std::vector<double>(12, 9));
    seventh.sex = 2;
    Posed w(seventh);
    EXPECT_EQ(signsOf(w.system->Mandook(2)), (std::vector<int>{4, 8, 12, 5, 9, 1, 6, 10, 2, 7, 11, 3}));
    // An even first sign leaps backward.
    FakeDashaBasis even = chartA();
    even.signs[0] = 2;
    Posed e(even);
    EXPECT_EQ(signsOf(e.system->Mandook(1)), (std::vector<int>{2, 11, 8, 5, 1, 10, 7, 4, 12, 9, 6, 3}));
}

TEST(JaiminiSignDashas, YogardhaAveragesNlktAndSthira)
{
    FakeDashaBasis f = chartA();
    f.reckoning[{0, 6}] = 7;
    Posed p(f);
    // From Libra forward: (NLKT mode 2 + the class years) / 2.
    EXPECT_EQ(signsOf(p.system->Yogardha(1)), (std::vector<int>{7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(yearsOf(p.system->Yogardha(1)), (std::vector<double>{6, 5, 7.5, 5, 6, 9, 8, 9, 9, 6.5, 10, 7.5}));
    // The other mode starts where the Mandook does: Libra for a man, the stronger of 4th and 7th for a woman.
    f.sex = 2;
    f.reckoning[{3, 6}] = 4;
    Posed w(f);
    EXPECT_EQ(w.system->Yogardha(2)[0].Sign, 4);
    EXPECT_EQ(w.system->Yogardha(2)[1].Sign, 5);
    EXPECT_DOUBLE_EQ(w.system->Yogardha(2)[0].Years, 6.5);
}

TEST(JaiminiSignDashas, KarakaAndUpaKarakaRows)
{
    FakeDashaBasis f = chartA();
    f.chara = {0, 5, 4, 3, 2, 1, 6, 7, 8};
    f.atmaKarakaSign = 3;
    f.upaKaraka = 6;
    Posed p(f);
    // Mode 1: the eight karakas' signs counted from the Lagna; no planet column.
    EXPECT_EQ(signsOf(p.system->Karaka(1)), (std::vector<int>{3, 10, 12, 12, 5, 7, 10, 2}));
    EXPECT_EQ(yearsOf(p.system->Karaka(1)), (std::vector<double>{2, 9, 11, 11, 4, 6, 9, 1}));
    // Mode 2: the planets from the Atma Karaka's sign through the quadrants. Ketu's years are its
    // sign's number, a lord in its sign 12, else the longer count from the 1st or the 7th.
    const JaiminiDashaTable &k2 = p.system->Karaka(2);
    EXPECT_EQ(p.basis->quadrantsAskedFor.back(), 3);
    EXPECT_EQ(planetsOf(k2), (std::vector<int>{5, 2, 3, 6, 4, 7, 1, 9, 8}));
    EXPECT_EQ(signsOf(k2), (std::vector<int>{3, 12, 12, 7, 10, 10, 5, 8, 2}));
    EXPECT_EQ(yearsOf(k2), (std::vector<double>{9, 12, 12, 7, 10, 10, 12, 8, 8}));
    // Upa-Karaka: the same from the sign of the Upa Karaka graha (Saturn in Libra).
    const JaiminiDashaTable &u2 = p.system->UpaKaraka(2);
    EXPECT_EQ(p.basis->quadrantsAskedFor.back(), 7);
    EXPECT_EQ(planetsOf(u2).front(), 6);
    EXPECT_EQ(yearsOf(p.system->UpaKaraka(1)), yearsOf(p.system->Karaka(1)));
    // A karaka in the Lagna's sign runs 12 years.
    f.signs[5] = 1;
    Posed q(f);
    EXPECT_EQ(q.system->Karaka(1)[0].Years, 12);
}

TEST(JaiminiSignDashas, DrekkanaRowsByTheClassOfTheFirstSign)
{
    struct Case
    {
        int first;
        std::vector<int> signs;
    };
    // Venus rules the 7th from Aries; its drekkana sign opens the table.
    const Case cases[] = {
        {4, {4, 5, 6, 7, 8, 9, 10, 11, 12}},
        {5, {5, 10, 3, 8, 1, 6, 11, 4, 9}},
        {6, {6, 9, 12, 3, 7, 10, 1, 4, 8}},
    };
    for (const Case &c : cases)
        for (int mode = 1; mode <= 3; ++mode) {
            FakeDashaBasis f = chartA();
            f.drekkana[{3, mode}] = c.first;
            Posed p(f);
            EXPECT_EQ(signsOf(p.system->Drekkana(mode)), c.signs) << c.first << " " << mode;
            EXPECT_EQ(p.basis->quadrantsAskedFor.back(), c.first);
        }
    FakeDashaBasis f = chartA();
    f.drekkana[{3, 2}] = 5;
    f.quadrants = {{5, 3}, {2, 12}, {3, 12}, {6, 7}, {4, 10}, {7, 10}, {1, 5}, {9, 8}, {8, 2}};
    Posed p(f);
    // Odd planet sign: from it to the row's sign; even: back from it, plus one.
    EXPECT_EQ(yearsOf(p.system->Drekkana(2)), (std::vector<double>{2, 3, 10, 1, 10, 5, 6, 5, 6}));
    EXPECT_EQ(planetsOf(p.system->Drekkana(2)), (std::vector<int>{5, 2, 3, 6, 4, 7, 1, 9, 8}));
    EXPECT_TRUE(p.system->Drekkana(0).empty());
    EXPECT_TRUE(p.system->Drekkana(4).empty());
}

TEST(JaiminiSignDashas, ParyayasStartFromTheStrongerHouse)
{
    FakeDashaBasis f = chartA();
    f.strongerTrine[{0, 4}] = 5;
    f.atmaKarakaSign = 3;
    Posed p(f);
    const JaiminiDashaTable &chara = p.system->CharaParyaya();
    EXPECT_EQ(signsOf(chara), (std::vector<int>{5, 10, 3, 8, 1, 6, 11, 4, 9}));
    EXPECT_EQ(planetsOf(chara), (std::vector<int>{5, 2, 3, 6, 4, 7, 1, 9, 8}));
    EXPECT_EQ(yearsOf(chara), (std::vector<double>{2, 10, 9, 11, 9, 8, 6, 8, 5}));

    // A tie of scores falls back on the ladder: the 5th and the 9th both won, so they are compared.
    FakeDashaBasis tie = chartA();
    tie.reckoning[{0, 4}] = 5;
    tie.reckoning[{0, 8}] = 9;
    tie.reckoning[{4, 8}] = 9;
    Posed t(tie);
    EXPECT_EQ(t.system->CharaParyayaStart(), 9);
    EXPECT_EQ(t.basis->reckoningAsked.back(), std::make_pair(4, 8));
    // The Lagna winning both times starts there.
    Posed l(chartA());
    EXPECT_EQ(l.system->CharaParyayaStart(), 1);

    // Sthira Paryaya: the first sign and its 7th in pairs, forward from an odd start.
    FakeDashaBasis st = chartA();
    st.strongerTrine[{0, 6}] = 7;
    st.strongerTrine[{3, 6}] = 4;
    Posed sm(st);
    EXPECT_EQ(signsOf(sm.system->SthiraParyaya()), (std::vector<int>{7, 1, 8, 2, 9, 3, 10, 4, 11}));
    st.sex = 2;
    Posed sw(st);
    EXPECT_EQ(signsOf(sw.system->SthiraParyaya()), (std::vector<int>{4, 10, 3, 9, 2, 8, 1, 7, 12}));
    FakeDashaBasis none = chartA();
    none.reckoning[{0, 6}] = 7;
    Posed sn(none);
    EXPECT_EQ(sn.system->SthiraParyaya()[0].Sign, 7);
}

TEST(JaiminiSignDashas, TrineNavamshaAndFrontalForBothSexes)
{
    FakeDashaBasis f = chartA();
    f.strongerTrine[{0, 4}] = 5;
    Posed m(f);
    EXPECT_EQ(signsOf(m.system->Trine()), (std::vector<int>{5, 10, 3, 8, 1, 6, 11, 4, 9, 2, 7, 12}));
    // Years: the Sun at home 12; Saturn in Libra for even Capricorn counts back 3; Mercury in
    // Pisces for odd Gemini counts forward 9; Jupiter in the 7th from Sagittarius 10.
    EXPECT_EQ(yearsOf(m.system->Trine()), (std::vector<double>{12, 3, 9, 10, 9, 10, 8, 10, 10, 2, 5, 9}));
    f.sex = 2;
    Posed w(f);
    EXPECT_EQ(signsOf(w.system->Trine()), (std::vector<int>{10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 12, 11}));

    // Navamsha: the Arudha in Cancer, its lord the Moon in navamsha Taurus (Krishna Mishra: Leo).
    FakeDashaBasis n = chartA();
    n.arudha = 4;
    n.navamsha = {0, 1, 6, 12, 10, 4, 7, 2, 0, 0};
    n.kmNavamsha = {0, 3, 9, 11, 2, 8, 1, 5, 0, 0};
    Posed nm(n);
    EXPECT_EQ(signsOf(nm.system->Navamsha()), (std::vector<int>{2, 9, 4, 11, 6, 1, 8, 3, 10, 5, 12, 7}));
    EXPECT_EQ(nm.system->Navamsha()[0].Years, 2); // Venus in navamsha Pisces, back from even Taurus
    EXPECT_EQ(nm.system->Navamsha()[1].Years, 7); // Jupiter in navamsha Cancer, forward from Sagittarius
    EXPECT_EQ(nm.system->Navamsha()[5].Years, 9); // Mars in navamsha Capricorn, forward from Aries
    n.sex = 2;
    Posed nw(n);
    EXPECT_EQ(signsOf(nw.system->Navamsha()), (std::vector<int>{5, 10, 3, 8, 1, 6, 11, 4, 9, 2, 7, 12}));

    // Varnada: the Hora Lagna in Leo, the stronger of the 1st and 5th houses; the count runs
    // forward from an odd sign to its lord, backward from an even one.
    FakeDashaBasis v = chartA();
    v.horaLagna = 5;
    v.reckoning[{0, 4}] = 5;
    Posed vp(v);
    EXPECT_EQ(signsOf(vp.system->Varnada(2)), (std::vector<int>{5, 6, 7, 8, 9, 10, 11, 12, 1, 2, 3, 4}));
    EXPECT_EQ(yearsOf(vp.system->Varnada(2)), (std::vector<double>{12, 6, 5, 10, 6, 3, 8, 9, 9, 2, 9, 6}));
    EXPECT_EQ(vp.basis->reckoningAsked.back(), std::make_pair(0, 4));
    EXPECT_TRUE(vp.system->Varnada(1).empty());

    struct Case
    {
        int lagna, sex, frontal, first, second;
    };
    const Case frontal[] = {{1, 1, 8, 1, 2}, {2, 1, 7, 7, 8}, {1, 2, 8, 8, 7}, {2, 2, 7, 2, 1}};
    for (const Case &c : frontal) {
        FakeDashaBasis ff = chartA();
        ff.signs[0] = c.lagna;
        ff.sex = c.sex;
        ff.frontal = c.frontal;
        Posed p(ff);
        EXPECT_EQ(p.system->Frontal()[0].Sign, c.first) << c.lagna << " " << c.sex;
        EXPECT_EQ(p.system->Frontal()[1].Sign, c.second) << c.lagna << " " << c.sex;
        EXPECT_EQ(yearsOf(p.system->Frontal()), std::vector<double>(12, 9));
    }
}

TEST(JaiminiSignDashas, CellReadersAndNames)
{
    Posed p(chartA());
    EXPECT_EQ(p.system->JaiminiDrigDasha(1, 2).toInt(), 5);
    EXPECT_EQ(p.system->JaiminiDrigDasha(3, 2).toDouble(), 8);
    // No planet column, an unknown field, rows outside the table, the Chara dasha: empty.
    for (const QVariant &v :
         {p.system->JaiminiDrigDasha(2, 2), p.system->JaiminiDrigDasha(4, 2), p.system->JaiminiDrigDasha(1, 0),
          p.system->JaiminiDrigDasha(1, 13), p.system->JaiminiKarakaDasha(1, 2, 1), p.system->JaiminiCharaDasha(1, 1, 1)})
        EXPECT_FALSE(v.isValid());
    EXPECT_EQ(p.system->JaiminiKarakaDasha(2, 2, 1).toInt(), p.system->Karaka(2)[0].Planet);
    EXPECT_EQ(clsJaiminiSystem::JDashaName(9), QStringLiteral("Sagittarius Dasha"));
    EXPECT_TRUE(clsJaiminiSystem::JDashaName(13).isEmpty());
}

// Random posed charts: every twelve-row table holds each sign once, every nine-row table nine
// different signs, and the years stay in the range of their rule.
TEST(JaiminiSignDashas, EveryTableKeepsItsSignsAndYearRange)
{
    QRandomGenerator rng(16);
    const auto sign = [&rng] { return static_cast<int>(rng.bounded(1, 13)); };
    for (int run = 0; run < 300; ++run) {
        FakeDashaBasis f;
        for (int &s : f.signs)
            s = sign();
        f.sex = static_cast<int>(rng.bounded(1, 3));
        const int g = f.signs[0];
        for (auto [a, b] : {std::pair{0, 6}, {3, 6}, {0, 4}, {0, 8}})
            f.reckoning[{a, b}] = FakeDashaBasis::wrap(g + (rng.bounded(2) ? a : b));
        for (auto [a, b] : {std::pair{0, 4}, {0, 6}, {3, 6}})
            if (rng.bounded(2))
                f.strongerTrine[{a, b}] = FakeDashaBasis::wrap(g + (rng.bounded(2) ? a : b));
        f.brahma = static_cast<int>(rng.bounded(0, 10));
        f.atmaKarakaSign = sign();
        f.upaKaraka = static_cast<int>(rng.bounded(1, 8));
        f.lordOfAquarius = rng.bounded(2) ? 6 : 8;
        f.lordOfScorpio = rng.bounded(2) ? 4 : 9;
        for (int p = 0; p <= 9; ++p)
            for (int mode = 1; mode <= 3; ++mode)
                f.drekkana[{p, mode}] = sign();
        f.frontal = sign();
        f.arudha = sign();
        for (int p = 0; p <= 9; ++p) {
            f.navamsha[static_cast<size_t>(p)] = sign();
            f.kmNavamsha[static_cast<size_t>(p)] = sign();
        }
        Posed p(f);
        for (const JaiminiDashaEntry &e : p.system->AllDashas()) {
            const std::vector<int> signs = signsOf(e.Rows);
            const bool karakaFromPlanets =
                e.Key.startsWith(QLatin1String("karaka")) || e.Key.startsWith(QLatin1String("upa_karaka"));
            if (!karakaFromPlanets) {
                EXPECT_TRUE(e.Rows.size() == 12 || e.Rows.size() == 9) << e.Key.toStdString();
                EXPECT_TRUE(distinct(signs)) << e.Key.toStdString() << " run " << run;
            }
            double low = 1, high = 12;
            if (e.Key == QLatin1String("chara_nlkt_3"))
                low = 0, high = 13;
            else if (e.Key == QLatin1String("sthira_1") || e.Key == QLatin1String("sthira_2") || e.Key == QLatin1String("drig") ||
                     e.Key == QLatin1String("mandook_1"))
                low = 7, high = 9;
            else if (e.Key == QLatin1String("mandook_2") || e.Key == QLatin1String("frontal"))
                low = 9, high = 9;
            else if (e.Key.startsWith(QLatin1String("yogardha")))
                low = 4, high = 10.5;
            for (const JaiminiDashaRow &r : e.Rows) {
                EXPECT_TRUE(r.Sign >= 1 && r.Sign <= 12) << e.Key.toStdString();
                EXPECT_TRUE(r.Years >= low && r.Years <= high) << e.Key.toStdString() << " " << r.Years;
                EXPECT_EQ(r.Planet != 0, e.HasPlanet) << e.Key.toStdString();
            }
        }
    }
}
