// SPDX-License-Identifier: AGPL-3.0-or-later
// The catalogue's rules of vehicles and wealth: the lords of the 4th, 9th and 11th, the wealth of
// the 2nd, 5th, 9th and 11th lords, and the riches of whole charts of signs.
#include "yoga/clsYoga.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

using P = YogaChart::Planet;

// ---- vehicles ----

bool clsYoga::Vahana1() const
{
    const int l1 = y.L(1), l4 = y.L(4);
    return y.in(l1, {4, 9, 11}) || y.with(l1, l4) || y.with(l1, y.L(9)) || y.with(l1, y.L(11)) ||
           (y.exalted(l4) && y.in(l4, {1, 4, 7, 10, 5, 9}));
}
bool clsYoga::Vahana2() const
{
    const bool strong = ownEx(P::Ve) || ownEx(P::Mo);
    // The first branch asks Venus and the Moon to be weak and strong at once, so only the second counts.
    return (!strong && strong && y.in(P::Mo, {2}) && y.in(P::Ve, {2})) ||
           (strong && (y.from(P::Mo, {7, 3}, P::Ve) || y.from(P::Ve, {3}, P::Mo)));
}
bool clsYoga::Vahana3() const
{
    const int h4 = y.H(4);
    return y.in(y.L(4), {1}) && y.in(y.L(9), {1}) &&
           (y.in(P::Ju, {4}) || signFrom(h4, {5}, P::Ju) || signFrom(h4, {7}, P::Ju) || signFrom(h4, {9}, P::Ju));
}
bool clsYoga::Vahana4() const { return y.with(P::Ju, y.L(4)) && y.in(P::Ju, {1, 4, 5, 7, 9, 10}); }
bool clsYoga::Vahana5() const { return ownEx(P::Ve) && y.in(P::Ve, {4}) && y.exalted(y.L(4)); }
bool clsYoga::Vahana6() const { return ownEx(P::Ve) && y.L(4) == P::Ve && y.in(P::Ve, {9, 10, 11}); }
bool clsYoga::Vahana7() const
{
    return gap(P::Mo, P::Su) >= 72 && ownEx(P::Mo) && y.L(4) == P::Mo && y.in(P::Mo, {9, 10, 11});
}
bool clsYoga::Vahana8() const
{
    // The last test always passes: Jupiter can't stand in four signs at once.
    const int j = y.S(P::Ju);
    return y.Lg() == 4 && y.S(P::Me) == 7 && y.S(P::Ve) == 7 && (j != 2 || j != 5 || j != 6 || j != 9);
}
bool clsYoga::Vahana9() const
{
    const bool juStrong = y.own(P::Ju) || clsPlanets::CheckIfExalted(P::Ju, y.Lg());
    return (!juStrong && ownEx(P::Ju) && y.in(P::Ju, {4}) && ownEx(P::Ve) && ownEx(P::Sa) && y.in(P::Sa, {4})) ||
           (juStrong && y.in(P::Ju, {4}) && ownEx(P::Ve) && y.in(P::Ve, {7}) && ownEx(P::Sa));
}
bool clsYoga::Vahana10() const { return y.in(y.L(4), {9}) && y.in(y.L(9), {4}); }
bool clsYoga::Vahana11() const { return y.in(y.L(4), {11}) && y.in(y.L(11), {4}); }
bool clsYoga::Vahana12() const { return y.in(y.L(4), {5}) && y.in(y.L(5), {4}); }
bool clsYoga::Vahana13() const
{
    return y.in(y.L(4), {1}) && y.in(y.L(1), {4}) && (y.in(P::Ju, {1, 4, 7, 10, 5, 9}) || y.in(P::Ve, {1, 5, 7, 9}));
}
bool clsYoga::Vahana14() const { return y.in(y.L(5), {9}) && y.in(y.L(9), {10}); }
bool clsYoga::Vahana15() const { return y.in(y.L(9), {9}) && y.in(y.L(1), {1}); }

// ---- wealth by the lords ----

bool clsYoga::DhanaYoga2() const { return y.in(y.L(2), {5}) && y.in(y.L(5), {2}); }
bool clsYoga::DhanaYoga3() const { return y.in(y.L(2), {11}) && y.in(y.L(11), {2}); }
bool clsYoga::DhanaYoga4() const { return y.in(y.L(5), {5}) && y.in(y.L(9), {9}); }
bool clsYoga::DhanaYoga5() const
{
    const int l2 = y.L(2);
    return y.with(l2, y.L(11)) && y.with(l2, y.L(5)) && y.with(l2, y.L(9)) && !y.with(l2, y.L(6)) && !y.with(l2, y.L(8)) &&
           !y.with(l2, y.L(12));
}
bool clsYoga::DhanaYoga6() const
{
    // Each "not Mercury or not Jupiter" passes always; what is left is the 2nd lord and the pair together.
    const auto neither = [](int l) { return l != P::Me || l != P::Ju; };
    return (y.L(2) == P::Me || y.L(2) == P::Ju) && neither(y.L(6)) && neither(y.L(8)) && neither(y.L(12)) && y.with(P::Me, P::Ju);
}
bool clsYoga::DhanaYoga7() const { return y.in(y.L(11), {11}) && y.in(y.L(2), {2}) && y.in(y.L(1), {1}); }
bool clsYoga::DhanaYoga8() const
{
    const int l2 = y.L(2);
    return y.in(l2, {1}) && y.in(y.L(11), {1}) && !y.with(l2, y.L(6)) && !y.with(l2, y.L(8)) && !y.with(l2, y.L(12));
}
bool clsYoga::DhanaYoga11() const { return y.with(y.L(10), y.L(2)) && y.in(y.L(10), {1, 4, 5, 7, 9, 10}); }
bool clsYoga::DhanaYoga13() const { return y.with(y.L(2), y.L(3)) && y.in(y.L(2), {1, 4, 7, 10}); }
bool clsYoga::DhanaYoga14() const
{
    int n = 0;
    for (int p = 1; p <= 9; ++p)
        n += y.own(p) ? 1 : 0;
    return n >= 4;
}
bool clsYoga::DhanaYoga15() const { return ownEx(y.L(2)) && y.in(y.L(2), {11, 10, 9}); }
bool clsYoga::DhanaYoga18() const
{
    for (int h : {1, 4, 7, 10})
        if (!(y.in(P::Ju, {h}) || y.in(P::Me, {h}) || y.in(P::Ve, {h}) || y.in(P::Mo, {h})))
            return false;
    return true;
}
bool clsYoga::DhanaYoga20() const
{
    return y.S(P::Me) == 4 && !y.in(P::Me, {6}) && !y.in(P::Me, {8}) && !y.in(P::Me, {12}) && y.in(P::Sa, {11});
}
bool clsYoga::DhanaYoga21() const { return y.own(y.L(5)) && y.in(P::Sa, {11}); }
bool clsYoga::DhanaYoga22() const { return y.Lg() == 1 && y.S(P::Su) == 5 && y.in(P::Ju, {11}); }
bool clsYoga::DhanaYoga23() const { return y.signIn(P::Ju, {9, 12}) && y.in(P::Mo, {5}); }
bool clsYoga::DhanaYoga24() const { return y.Lg() == 5 && y.S(P::Ju) == 5 && y.S(P::Su) == 5 && y.S(P::Ma) == 5; }
bool clsYoga::DhanaYoga25() const { return y.Lg() == 4 && y.S(P::Ju) == 4 && y.S(P::Mo) == 4 && y.S(P::Ma) == 4; }
bool clsYoga::DhanaYoga26() const
{
    return y.signIn(P::As, {1, 8}) && y.in(P::Ma, {1}) && y.in(P::Sa, {1}) && y.in(P::Ve, {1}) && y.in(P::Me, {1});
}
bool clsYoga::DhanaYoga27() const { return y.signIn(P::As, {12, 9}) && y.in(P::Ma, {1}) && y.in(P::Mo, {1}) && y.in(P::Ju, {1}); }
bool clsYoga::DhanaYoga28() const
{
    return y.signIn(P::As, {3, 6}) && y.in(P::Me, {1}) && (y.in(P::Ve, {1}) || y.from(P::As, {7}, P::Ve)) &&
           (y.in(P::Sa, {1}) || y.from(P::As, {7, 3, 10}, P::Sa));
}
bool clsYoga::DhanaYoga29() const
{
    return y.signIn(P::As, {2, 7}) && y.in(P::Ve, {1}) && (y.in(P::Su, {1}) || y.from(P::As, {7}, P::Su)) &&
           (y.in(P::Mo, {1}) || y.from(P::As, {7}, P::Mo));
}
bool clsYoga::DhanaYoga30() const
{
    return !y.in(P::Sa, {6}) && !y.in(P::Sa, {8}) && !y.in(P::Sa, {12}) && y.S(P::Sa) == 6 && y.S(P::Ma) == 6 &&
           y.S(P::Ra) == 6 && y.S(P::Ve) == 6;
}
bool clsYoga::DhanaYoga32() const
{
    return y.in(y.L(1), {2}) && y.from(y.L(1), {5, 7, 9}, P::Ju) && y.in(y.L(11), {10}) && y.from(y.L(11), {5, 7, 9}, P::Ju);
}
bool clsYoga::DhanaYoga34() const { return (y.in(P::Ju, {2}) || kendra(P::Ju) || trikona(P::Ju)) && y.with(y.L(1), P::Ju); }
bool clsYoga::DhanaYoga37() const { return y.in(y.L(11), {1}) && y.in(y.L(2), {11}) && y.in(y.L(1), {2}); }
bool clsYoga::DhanaYoga47() const
{
    return y.in(P::Me, {2}) && y.with(P::Ve, P::Me) && y.in(P::Ju, {8}) && y.with(P::Ju, P::Mo) &&
           (ownEx(P::Mo) || ownEx(P::Ve) || ownEx(P::Ju));
}

// ---- wealth by whole charts of signs ----

namespace {
// Sign of each named planet, then the Lagna's.
bool at(const YogaChart &y, std::initializer_list<std::pair<int, int>> signs, int lagna)
{
    for (const auto &[p, s] : signs)
        if (y.S(p) != s)
            return false;
    return y.Lg() == lagna;
}
} // namespace

bool clsYoga::DhanaYoga48() const { return at(y, {{P::Ve, 2}, {P::Ma, 12}}, 10); }
bool clsYoga::DhanaYoga49() const { return at(y, {{P::Ve, 7}, {P::Ma, 5}}, 3); }
bool clsYoga::DhanaYoga50() const { return at(y, {{P::Me, 3}, {P::Ma, 1}, {P::Mo, 1}, {P::Ju, 1}}, 11); }
bool clsYoga::DhanaYoga51() const { return at(y, {{P::Me, 6}, {P::Ma, 4}, {P::Mo, 4}, {P::Ju, 4}}, 2); }
bool clsYoga::DhanaYoga52() const { return at(y, {{P::Su, 5}, {P::Sa, 11}, {P::Mo, 11}, {P::Ju, 11}}, 1); }
bool clsYoga::DhanaYoga53() const { return at(y, {{P::Su, 4}, {P::Sa, 10}, {P::Mo, 4}}, 6); }
bool clsYoga::DhanaYoga54() const { return at(y, {{P::Su, 5}, {P::Sa, 11}, {P::Mo, 5}}, 7); }
bool clsYoga::DhanaYoga55() const { return at(y, {{P::Me, 3}, {P::Ju, 9}}, 5); }
bool clsYoga::DhanaYoga56() const { return at(y, {{P::Me, 10}, {P::Ju, 12}}, 8); }
bool clsYoga::DhanaYoga57() const { return at(y, {{P::Ma, 1}, {P::Ve, 7}}, 9); }
bool clsYoga::DhanaYoga58() const { return at(y, {{P::Ma, 8}, {P::Ve, 2}}, 4); }
bool clsYoga::DhanaYoga59() const { return at(y, {{P::Mo, 4}, {P::Sa, 10}}, 12); }
bool clsYoga::DhanaYoga60() const
{
    return y.S(P::Mo) == 4 && y.signIn(P::Me, {10, 4}) && y.signIn(P::Ju, {10, 12, 8, 4}) && y.Lg() == 4;
}
bool clsYoga::DhanaYoga61() const
{
    return y.S(P::Ma) == 1 && y.signIn(P::Me, {1, 7}) && y.signIn(P::Ve, {1, 7}) && y.signIn(P::Sa, {1, 11, 7, 4}) && y.Lg() == 1;
}
bool clsYoga::DhanaYoga62() const
{
    return y.S(P::Ma) == 8 && y.signIn(P::Me, {2, 8}) && y.signIn(P::Ve, {2, 8}) && y.signIn(P::Sa, {6, 11, 8, 2}) && y.Lg() == 8;
}
bool clsYoga::DhanaYoga63() const
{
    return y.S(P::Me) == 3 && y.signIn(P::Sa, {1, 3, 6, 9}) && y.Lg() == 3 && y.signIn(P::Ju, {11, 3, 7, 9});
}
bool clsYoga::DhanaYoga64() const
{
    return y.S(P::Me) == 6 && y.signIn(P::Sa, {4, 12, 6, 9}) && y.Lg() == 6 && y.signIn(P::Ju, {2, 6, 10, 12});
}
bool clsYoga::DhanaYoga65() const
{
    return y.signIn(P::Me, {3, 9}) && y.signIn(P::Ma, {2, 3, 6, 9}) && y.Lg() == 9 && y.S(P::Ju) == 9;
}
bool clsYoga::DhanaYoga66() const
{
    return y.signIn(P::Me, {6, 12}) && y.signIn(P::Ma, {5, 12, 6, 9}) && y.Lg() == 12 && y.S(P::Ju) == 12;
}
bool clsYoga::DhanaYoga67() const
{
    return y.signIn(P::Me, {2, 8}) && y.signIn(P::Sa, {2, 12, 5, 8}) && y.Lg() == 2 && y.S(P::Ve) == 2;
}
bool clsYoga::DhanaYoga68() const
{
    return y.signIn(P::Me, {1, 7}) && y.signIn(P::Sa, {1, 10, 5, 7}) && y.Lg() == 7 && y.S(P::Ve) == 7;
}
bool clsYoga::DhanaYoga69() const
{
    return y.signIn(P::Ma, {4, 10, 3, 7}) && y.Lg() == 10 && y.signIn(P::Ju, {4, 10, 6, 2}) && y.S(P::Sa) == 10;
}
bool clsYoga::DhanaYoga70() const
{
    return y.signIn(P::Ma, {11, 5, 8, 4}) && y.Lg() == 11 && y.signIn(P::Ju, {11, 5, 7, 3}) && y.S(P::Sa) == 11;
}
bool clsYoga::DhanaYoga71() const
{
    return y.signIn(P::Ma, {11, 5, 2, 10}) && y.Lg() == 5 && y.signIn(P::Ju, {11, 5, 9, 1}) && y.S(P::Su) == 5;
}

// ---- riches ----

bool clsYoga::NashtadravyaPrapti() const
{
    return y.Lg() == 10 && y.S(P::Mo) == 11 && y.chart().CountPlanetInSign(y.S(P::Mo)) == 1 && y.S(P::Me) != 5 &&
           y.S(P::Su) != 5 && y.S(P::Ju) != 5 && y.S(P::Ju) != 3 && y.S(P::Ju) != 7;
}
bool clsYoga::Sampat1() const
{
    return kendra(y.L(1)) && y.with(y.L(1), P::Ju) && y.with(P::Ju, P::Ve) && y.with(P::Ju, P::Me);
}
bool clsYoga::Sampat2() const
{
    const int l1 = y.L(1);
    return ownEx(l1) && (y.with(l1, P::Mo) || y.with(l1, P::Ju) || y.with(l1, P::Ve) || y.with(l1, P::Me) ||
                         y.chart().PlanetAspectedByNatBenefic(l1));
}
bool clsYoga::Sampat5() const { return ownEx(y.L(1)) && y.in(y.L(1), {4, 7, 10}); }
bool clsYoga::Sampat6() const
{
    return y.in(P::Su, {1}) && y.chart().PlanetAspectedByNatBenefic(P::Su) && y.in(y.L(1), {10});
}
bool clsYoga::Sampat8() const
{
    const auto any = [this](int h) {
        return y.in(P::Ju, {h}) || y.in(P::Mo, {h}) || y.in(P::Me, {h}) || y.in(P::Ve, {h});
    };
    return !y.in(P::Ma, {5}) && !y.in(P::Su, {5}) && !y.in(P::Sa, {5}) && any(5) && any(11);
}
bool clsYoga::Sampat9() const { return y.Lg() == 1 && y.S(P::Ju) == 1 && y.S(P::Mo) == 10; }

// ---- loss of wealth ----

bool clsYoga::combustAsWritten(int p) const
{
    // The rules hand the planet's longitude where the planet goes and its number where its
    // longitude goes; outside the planets 2..7 the test answers Empty, read as no.
    return clsPlanets::CheckIfCombust(static_cast<int>(y.lon(p)), p, y.lon(P::Su)).value_or(false);
}

bool clsYoga::Dhanahani1() const
{
    const int l2 = y.L(2);
    return y.S(P::Mo) == 1 && y.S(P::Su) == 9 && y.S(P::Ve) == 10 && y.S(P::Sa) == 11 &&
           (y.chart().PlanetAspectedByNatMalefic(l2) || y.in(P::Sa, {2}) || y.with(l2, P::Sa) || y.in(P::Ke, {2}) ||
            y.with(l2, P::Ke));
}
bool clsYoga::Dhanahani3() const
{
    const clsPlanets &c = y.chart();
    const int l1 = y.L(1), l2 = y.L(2);
    const bool loss = (y.in(P::Me, {12}) || y.in(l2, {12})) && (y.in(P::Su, {12}) || y.debilitated(P::Su));
    const bool firstHit = c.PlanetAspectedByNatMalefic(l1) || y.with(l1, P::Sa) || y.with(l1, P::Ke);
    return (!firstHit && (c.PlanetAspectedByNatMalefic(l2) || y.with(l2, P::Sa) || y.with(l2, P::Ke)) && loss) ||
           (firstHit && loss);
}
bool clsYoga::Dhanahani4() const
{
    return y.in(y.L(11), {12}) && y.in(y.L(12), {2}) && (y.in(y.L(2), {6, 8, 12}) || y.debilitated(y.L(2)));
}
bool clsYoga::Dhanahani5() const
{
    return y.in(y.L(2), {6}) && anyIn({P::Ma, P::Sa, P::Ra, P::Ke}, {6}) && (y.in(P::Su, {6}) || y.debilitated(P::Su));
}
bool clsYoga::Dhanahani13() const
{
    const int n12 = navLord(y.L(12));
    return y.with(n12, y.L(2)) || sees(n12, navLord(y.L(2)));
}
bool clsYoga::Dhanahani14() const
{
    if (y.S(P::Su) != 7 || !kendra(P::Su))
        return false;
    for (int p = 2; p <= 9; ++p)
        if (y.with(p, P::Su))
            return false;
    return true;
}
bool clsYoga::Dhanahani15() const
{
    const int l11 = y.L(11), l12 = y.L(12);
    return (y.in(P::Sa, {11}) || y.with(P::Sa, l11)) && (y.in(P::Ke, {11}) || y.with(P::Ke, l11)) &&
           (y.in(P::Sa, {12}) || y.with(P::Sa, l12)) && (y.in(P::Ke, {12}) || y.with(P::Ke, l12));
}
bool clsYoga::Dhanahani17() const
{
    // The Moon in the 2nd is a planet there, which the first term forbids.
    return y.chart().CountPlanetInSign(y.H(2)) == 0 && gap(P::Su, P::Mo) <= 72 && sees(P::Mo, P::Me) && y.in(P::Mo, {2});
}
bool clsYoga::Dhanahani18() const
{
    return anyIn({y.L(6), y.L(8), y.L(12)}, {2}) && anyIn({y.L(5), y.L(9)}, {2}) &&
           y.chart().CountPlanetInSign(y.H(2)) >= 2 && anyIn({P::Ve, P::Mo}, {8});
}
bool clsYoga::Dhanahani19() const
{
    const int l8 = y.L(8);
    return y.in(l8, {2}) && y.in(P::Ma, {2}) &&
           (combustAsWritten(l8) || combustAsWritten(P::Ma) || y.in(P::Ke, {2}) || y.in(P::Sa, {2}));
}
bool clsYoga::Dhanahani20() const { return y.in(y.L(1), {8}) && y.in(y.L(8), {2, 7}); }
bool clsYoga::Dhanahani21() const
{
    // The lord of the 1st in the 6th and in the 2nd or 7th at once: never.
    return y.in(y.L(6), {1}) && y.in(y.L(1), {6}) && y.in(y.L(1), {2, 7});
}
bool clsYoga::Dhanahani22() const
{
    const int l2 = y.L(2), l7 = y.L(7);
    return y.in(P::Su, {1}) && y.in(P::Mo, {1}) &&
           (sees(P::Mo, l7) || sees(P::Mo, l2) || y.with(P::Mo, l2) || y.with(P::Mo, l7));
}
bool clsYoga::Dhanahani24() const
{
    return y.in(y.L(9), {12}) && y.in(y.L(12), {2}) && y.chart().CountPlanetInSign(y.H(3)) >= 2;
}
bool clsYoga::Dhanahani26() const { return y.with(P::Su, P::Mo) && navSign(P::Su) == 4 && navSign(P::Mo) == 5; }
bool clsYoga::Dhanahani27() const
{
    int fallen = 0;
    for (int p = 1; p <= 9; ++p)
        fallen += y.debilitated(p) ? 1 : 0;
    return fallen >= 3 && y.S(P::Su) == 11 && y.with(P::Su, P::Mo) && navSign(P::Ve) == 6;
}
bool clsYoga::Dhanahani28() const
{
    return y.S(P::Me) == 12 && y.S(P::Mo) == 8 && y.S(P::Ma) == 4 && y.S(P::Sa) == 1 && y.S(P::Ve) == 10;
}
bool clsYoga::Dhanahani29() const { return y.S(P::Su) == 7 && y.in(P::Su, {5, 9}) && y.in(P::Ma, {8}); }
bool clsYoga::Dhanahani30() const
{
    const int l8 = y.L(8);
    const clsPlanets &c = y.chart();
    return (withAny(l8, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}) || c.PlanetAspectedByNatMalefic(l8)) &&
           !withAny(l8, {P::Mo, P::Ju, P::Me, P::Ve}) && !c.PlanetAspectedByNatBenefic(l8);
}
bool clsYoga::Dhanahani31() const
{
    const int l8 = y.L(8);
    bool before = false, after = false;
    for (int m : {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}) {
        before = before || y.from(m, {12}, l8);
        after = after || y.from(m, {2}, l8);
    }
    for (int b : {P::Mo, P::Ju, P::Me, P::Ve})
        if (y.from(b, {12, 2}, l8))
            return false;
    return before && after;
}
bool clsYoga::Dhanahani32() const { return y.S(P::Su) == 2 && y.S(P::Mo) == 12 && y.S(P::Sa) == 1 && y.S(P::Ma) == 4; }
bool clsYoga::Dhanahani33() const { return y.in(y.L(9), {12}) && kendra(P::Sa); }
bool clsYoga::Dhanahani34() const
{
    return allIn({1, 7, 12}) && y.countIn({1}) >= 1 && y.countIn({7}) >= 1 && y.countIn({12}) >= 1;
}

// ---- great wealth and fortune ----

bool clsYoga::MahaDhanaYoga2() const
{
    for (int h : {2, 9, 11})
        if (!ownEx(y.L(h)) || !kendra(y.L(h)))
            return false;
    return true;
}
bool clsYoga::Sampat3() const
{
    return y.with(y.L(2), P::Ju) && (y.in(P::Ju, {2}) || kendra(P::Ju)) && !combustAsWritten(P::Ju) && !y.debilitated(P::Ju);
}
bool clsYoga::Sampat7() const
{
    return y.with(y.L(1), P::Ju) && (y.in(P::Ju, {2}) || trikona(P::Ju) || kendra(P::Ju)) && !combustAsWritten(P::Ju) &&
           !y.debilitated(P::Ju);
}

// ---- the rules that read the sixtieth parts ----

bool clsYoga::DhanaYoga9() const
{
    return y.in(y.L(1), {2}) && y.in(y.L(11), {10}) && clsPlanets::PlanetBenefic(navLord(y.L(2)));
}
bool clsYoga::Dhanahani7() const
{
    const clsPlanets &c = y.chart();
    return y.with(y.L(10), y.L(11)) && y.with(y.L(1), y.L(11)) && !c.SashtiAmshaBenefic(y.L(10)) &&
           !c.SashtiAmshaBenefic(y.L(1));
}
bool clsYoga::Dhanahani8() const
{
    const clsPlanets &c = y.chart();
    const auto afflicted = [&](int l) { return !y.exalted(l) && !y.own(l) && sees(l, P::Ma) && !c.SashtiAmshaBenefic(l); };
    return afflicted(y.L(2)) && afflicted(y.L(11));
}

// ---- the rules that read the Gopuramsa count of the sixteen divisions ----

int clsYoga::gopuram(int p) const { return y.chart().PlanetGopuramsa(p); }

// The lord of the 1st, 10th, ... through its navamsha lord, which a benefic aspects by sign.
bool clsYoga::beneficView(int p) const
{
    return y.from(p, {7, 5, 9}, P::Ju) || y.from(p, {7}, P::Ve) || y.from(p, {7}, P::Me) || y.from(p, {7}, P::Mo);
}

bool clsYoga::DhanaYoga12() const { return gopuram(y.L(2)) == 5; }
bool clsYoga::DhanaYoga16() const
{
    const int n = navLord(y.L(1));
    return gopuram(n) == 13 && beneficView(n);
}
bool clsYoga::DhanaYoga17() const
{
    const int n = navLord(y.L(10));
    return gopuram(n) == 13 && beneficView(n);
}
bool clsYoga::DhanaYoga19() const
{
    return gopuram(navLord(y.L(1))) == 13 && gopuram(navLord(y.L(2))) == 13 && gopuram(navLord(y.L(11))) == 13;
}
bool clsYoga::DhanaYoga33() const { return y.in(P::Ve, {2, 12}) && y.in(P::Ju, {2}) && gopuram(y.L(1)) == 13; }
bool clsYoga::DhanaYoga39() const
{
    const int h3 = y.H(3), l3 = y.L(3);
    return y.in(y.L(1), {3}) && y.in(y.L(2), {3}) &&
           (y.in(P::Ju, {3}) || signFrom(h3, {7, 5, 9}, P::Ju) || y.in(P::Su, {3}) || signFrom(h3, {7}, P::Su) ||
            y.in(P::Ma, {3}) || signFrom(h3, {7, 4, 8}, P::Ma)) &&
           gopuram(l3) == 13 && (y.in(l3, {3}) || y.chart().CheckIfPlanetAspects(y.L(1), l3));
}
// The 2nd lord joins or aspects, by the sign test as the rules call it, one of the others.
bool clsYoga::secondLordMeets(std::initializer_list<int> others) const
{
    const int l2 = y.L(2);
    for (int q : others)
        if (y.with(l2, q) || y.chart().CheckIfPlanetAspects(l2, q))
            return true;
    return false;
}
bool clsYoga::DhanaYoga40() const { return secondLordMeets({y.L(4)}) && gopuram(y.L(4)) == 13; }
bool clsYoga::DhanaYoga41() const { return secondLordMeets({y.L(8)}) && gopuram(y.L(8)) == 13; }
bool clsYoga::DhanaYoga42() const
{
    return secondLordMeets({y.L(5), P::Ju}) && (gopuram(y.L(1)) == 13 || gopuram(y.L(2)) == 13);
}
bool clsYoga::DhanaYoga43() const { return secondLordMeets({y.L(6), P::Ma}) && gopuram(y.L(2)) == 13; }
bool clsYoga::DhanaYoga44() const { return secondLordMeets({y.L(7), P::Ve}) && gopuram(y.L(2)) == 13; }
bool clsYoga::DhanaYoga45() const
{
    // The first branch asks the 2nd lord to meet the 10th lord or Mercury and not to: only the second counts.
    const bool meets = secondLordMeets({y.L(10), P::Me});
    return (!meets && meets && gopuram(P::Su) == 13 && y.in(P::Su, {4})) || (meets && gopuram(y.L(2)) == 13);
}
bool clsYoga::Dhanahani2() const
{
    const int l12 = y.L(12);
    return (y.with(l12, P::Ke) || y.with(l12, P::Sa)) && y.S(l12) == Norm12(y.chart().KarakamsaLagna() + 8);
}
bool clsYoga::MahaDhanaYoga1() const { return DhanaYoga18() && (gopuram(y.L(2)) == 5 || gopuram(y.L(2)) == 6); }
bool clsYoga::Sampat4() const { return gopuram(P::Su) == 7 && ownEx(y.L(1)); }
bool clsYoga::Sampat11() const { return gopuram(P::Ju) == 5 && gopuram(P::Ve) == 4 && gopuram(y.L(2)) == 9; }
bool clsYoga::Sampat12() const
{
    const int l2 = y.L(2);
    return (y.with(l2, P::Ju) || sees(l2, P::Ju)) && (gopuram(l2) == 6 || gopuram(l2) == 5);
}

// ---- wealth through the navamsha lords ----

bool clsYoga::DhanaYoga31() const
{
    const auto good = [this](int l) {
        const int n = navLord(l);
        return (n == P::Mo || n == P::Me || n == P::Ve || n == P::Ju) && y.from(n, {5, 7, 9}, P::Ju);
    };
    return good(y.L(1)) && good(y.L(2));
}
bool clsYoga::DhanaYoga35() const
{
    // The navamsha lord's number stands where the aspect test takes a sign.
    const int l2 = y.L(2);
    return y.with(l2, y.L(9)) && kendra(l2) && y.chart().CheckIfPlanetAspects(l2, navLord(y.L(1)));
}
bool clsYoga::DhanaYoga36() const
{
    const int n1 = navLord(y.L(1)), n2 = navLord(y.L(2)), n11 = navLord(y.L(11));
    for (int p : {P::Su, P::Ma, P::Sa})
        if (y.in(p, {1, 2, 11}) && ownEx(p) && (sees(n1, p) || sees(n2, p) || sees(n11, p)))
            return true;
    return false;
}

// ---- rules kept as written, added with the settled ones ----

// "lord((Lg + 9))": a sign number past 12 counts on round the zodiac, so this is the 10th lord.
bool clsYoga::DhanaYoga10() const { return y.S(navLord(y.L(11))) == Norm12(y.S(y.L(10))); }
// "S((Lg + 1))" and "S((Lg + 8))" stand for the 2nd and 9th signs, whose lords the rule then
// names as L2 and L9.
bool clsYoga::DhanaYoga38() const
{
    return ownEx(y.L(1)) && ownEx(y.L(2)) && ownEx(y.L(9)) && y.in(y.L(1), {2, 9});
}
// The 2nd lord's navamsha lord alone in the 6th, 8th or 12th ("no planet in that house" but the
// one that stands there).
bool clsYoga::secondNavLordAlone() const
{
    const int n = navLord(y.L(2));
    if (!y.in(n, {6, 8, 12}))
        return false;
    for (int q = 1; q <= 9; ++q)
        if (q != n && y.with(q, n))
            return false;
    return true;
}
bool clsYoga::Dhanahani10() const { return secondNavLordAlone() && sees(navLord(y.L(2)), y.L(1)); }
bool clsYoga::Dhanahani11() const
{
    return secondNavLordAlone() && !y.chart().SashtiAmshaBenefic(navLord(y.L(2)));
}
bool clsYoga::MahaDhanaYoga3() const
{
    const clsPlanets &c = y.chart();
    return c.CheckHighestExaltDeg(navLord(y.L(1))) && c.CheckHighestExaltDeg(navLord(y.L(9))) && gopuram(y.L(11)) == 13;
}
bool clsYoga::Sampat10() const
{
    const int l2 = y.L(2);
    return gopuram(l2) == 4 && gopuram(navLord(l2)) == 5;
}

// ---- the losses that read Gulika ----

bool clsYoga::Dhanahani16() const { return y.S(y.L(12)) == y.chart().GulikaSign() || y.with(y.L(12), y.L(6)); }

bool clsYoga::Dhanahani25() const
{
    const int g = y.chart().GulikaSign();
    return kendra(P::Mo) && kendra(P::Ju) && kendra(P::Sa) && (g == y.H(5) || g == y.H(8) || g == y.H(12)) &&
           y.in(P::Ma, {5, 8, 12});
}
