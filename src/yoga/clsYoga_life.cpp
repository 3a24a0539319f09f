// SPDX-License-Identifier: AGPL-3.0-or-later
// The catalogue's rules of family, body, mind, speech and fortune: the lords of the houses of
// kin, children and marriage, the afflictions of the body, the bolts on the houses and the
// riches of speech and wits.
#include "yoga/clsYoga.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

using P = YogaChart::Planet;

namespace {
constexpr int kMalefics[] = {P::Su, P::Ma, P::Sa, P::Ra, P::Ke};
constexpr int kBenefics[] = {P::Ju, P::Ve, P::Me, P::Mo};
} // namespace

bool clsYoga::withAny(int p, std::initializer_list<int> others) const
{
    for (int q : others)
        if (y.with(p, q))
            return true;
    return false;
}

bool clsYoga::anyIn(std::initializer_list<int> planets, std::initializer_list<int> houses) const
{
    for (int p : planets)
        if (y.in(p, houses))
            return true;
    return false;
}

// ---- family, children, marriage ----

bool clsYoga::Dattaputra() const
{
    const int l1 = y.L(1);
    return y.in(P::Ma, {5}) && y.in(P::Sa, {5}) && y.signIn(l1, {3, 6}) && (y.with(l1, P::Me) || y.from(l1, {7}, P::Me));
}
bool clsYoga::Vatha() const { return y.in(P::Ju, {1}) && y.in(P::Sa, {7}); }
bool clsYoga::DrishtiDurval() const
{
    return (!y.in(P::Su, {1}) && y.in(P::Ma, {2}) && y.in(P::Mo, {6}) && y.in(P::Sa, {12}) && y.in(P::Su, {8})) ||
           (y.in(P::Su, {1}) && y.in(P::Ra, {1}) && (y.in(P::Sa, {1, 9, 5}) || y.in(P::Ma, {1, 9, 5})));
}
bool clsYoga::Rajlakshana() const
{
    for (int p : kBenefics)
        if (!y.in(p, {1, 4, 7, 10}))
            return false;
    return true;
}
bool clsYoga::Gyatibhisthyaktha() const
{
    const int l4 = y.L(4);
    for (int q : kBenefics)
        if (y.with(l4, q) || sees(l4, q))
            return false;
    return withAny(l4, {P::Sa, P::Ma, P::Su, P::Ra, P::Ke}) || y.debilitated(l4) || y.chart().InEnemyHouse(l4);
}
bool clsYoga::MatriDeerghayu() const
{
    return gap(P::Mo, P::Su) >= 72 && y.signIn(P::Mo, {2, 4}) && y.exalted(y.L(4)) && anyIn({P::Mo, P::Me, P::Ve, P::Ju}, {4});
}
bool clsYoga::NishKapata() const
{
    // The last term asks the 4th house to be Libra as well as one of the signs listed, and never holds.
    const int h4 = y.H(4);
    const bool fixedOrFiery = h4 == 1 || h4 == 5 || h4 == 8 || h4 == 10 || h4 == 11;
    return fixedOrFiery && (y.in(P::Ju, {4}) || signFrom(h4, {5, 7, 9}, P::Ju) || y.in(P::Ve, {4}) || signFrom(h4, {7}, P::Ve) ||
                            ((y.S(P::Su) == 1 || y.S(P::Ma) == 10 || y.S(P::Sa) == 7) && h4 == 7));
}
bool clsYoga::SarpaSapa() const
{
    const int l5 = y.L(5), me = y.S(P::Me);
    return (me != 2 && me != 7 &&
            ((!y.with(P::Ju, P::Ma) && y.with(l5, P::Ra) && y.with(l5, P::Sa) && (y.with(l5, P::Mo) || y.from(l5, {7}, P::Mo))) ||
             (y.with(P::Ju, P::Ma) && y.in(P::Ra, {1}) && y.in(l5, {6, 8, 12})))) ||
           (y.signIn(P::Me, {2, 7}) && y.signIn(P::Ra, {1, 8}) && y.in(P::Ra, {5}));
}
bool clsYoga::PitriSapa() const
{
    const auto around = [this](int count) {
        return y.from(P::Sa, {count}, P::Su) || y.from(P::Ma, {count}, P::Su) || y.from(P::Ke, {count}, P::Su) ||
               y.from(P::Ra, {count}, P::Su);
    };
    return (y.Lg() != 3 && ((navLord(P::Su) != P::Sa && y.in(P::Su, {5}) && around(12) && around(2)) ||
                            (navLord(P::Su) == P::Sa && y.in(P::Su, {5})))) ||
           (y.Lg() == 3 && y.S(P::Su) == 7);
}
bool clsYoga::MatriSapa() const
{
    return y.in(y.L(8), {5}) && y.in(y.L(5), {8}) && y.in(P::Mo, {6}) && y.in(y.L(4), {6});
}
bool clsYoga::BhatriSapa() const
{
    return y.in(y.L(1), {8}) && y.in(y.L(5), {8}) && y.in(y.L(3), {5}) && y.in(P::Ma, {5}) && y.in(P::Ra, {5});
}
bool clsYoga::PretaSapa() const
{
    return y.in(P::Su, {5}) && y.in(P::Sa, {5}) && y.in(P::Mo, {7}) && y.in(P::Ra, {1}) && y.in(P::Ju, {12});
}
bool clsYoga::Putrasukh() const
{
    const int h5 = y.H(5);
    const bool listed = h5 == 2 || h5 == 3 || h5 == 4 || h5 == 6 || h5 == 7 || h5 == 9 || h5 == 12;
    if (!listed)
        return (!y.in(P::Ju, {5}) && ((!y.in(P::Me, {5}) && y.in(P::Mo, {5}) && y.in(P::Ve, {5})) ||
                                      (y.in(P::Me, {5}) && y.in(P::Ve, {5})))) ||
               (y.in(P::Ju, {5}) && y.in(P::Ve, {5}));
    return anyIn({P::Ju, P::Ve, P::Me, P::Mo}, {5});
}
bool clsYoga::Kalanirdesat() const
{
    return (!y.in(P::Ju, {5}) && y.in(P::Ju, {9}) && y.from(P::Ve, {9}, P::Ju) && y.with(P::Ve, y.L(1))) ||
           (y.in(P::Ju, {5}) && y.with(y.L(5), P::Ve));
}
bool clsYoga::Kalanasha() const
{
    bool fifthFromJu = false;
    for (int m : kMalefics)
        fifthFromJu = fifthFromJu || y.from(m, {5}, P::Ju);
    return (!y.in(P::Ra, {5}) && fifthFromJu && anyIn({P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {5})) ||
           (y.in(P::Ra, {5}) && withAny(y.L(5), {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}) && y.S(P::Ju) == 10);
}
bool clsYoga::Buddhimaturya() const
{
    const int l5 = y.L(5);
    return y.signIn(P::As, {2, 3, 5, 8, 10, 11, 12}) && y.signIn(l5, {6, 7, 9, 12, 2, 3, 4}) &&
           withAny(l5, {P::Ju, P::Ve, P::Me, P::Mo}) &&
           (y.from(l5, {5, 7, 9}, P::Ju) || y.from(l5, {7}, P::Ve) || y.from(l5, {7}, P::Me) || y.from(l5, {7}, P::Mo));
}
bool clsYoga::BuddhiJada() const
{
    // Saturn would have to stand in the 5th house and in the 11th, 4th or 7th at once.
    return y.in(P::Sa, {5}) && y.in(P::Sa, {11, 4, 7}) &&
           (anyIn({P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {1}) || y.from(P::As, {7}, P::Su) || y.from(P::As, {7, 4, 8}, P::Ma) ||
            y.from(P::As, {7, 3, 10}, P::Sa));
}
bool clsYoga::Jara() const
{
    const int l7 = y.L(7);
    return y.Lg() != 6 && (l7 == P::Ma || l7 == P::Ve) && y.in(y.L(10), {10}) && y.in(y.L(2), {10}) && y.in(l7, {10});
}
bool clsYoga::Satkalatra() const
{
    const int l7 = y.L(7);
    return (y.with(l7, P::Ju) || y.with(l7, P::Me) || y.from(l7, {5, 7, 9}, P::Ju) || y.from(l7, {7}, P::Me)) &&
           (y.with(P::Ve, P::Ju) || y.with(P::Ve, P::Me) || y.from(P::Ve, {5, 7, 9}, P::Ju));
}
bool clsYoga::Bhagyahani() const
{
    return y.in(P::Su, {6, 8, 12}) && y.in(y.L(8), {9}) && y.in(y.L(12), {1}) && y.in(y.L(6), {5});
}
bool clsYoga::Dhatritwa() const
{
    const int l8 = y.L(8);
    return y.exalted(y.L(9)) && withAny(l8, {P::Ju, P::Ve, P::Me, P::Mo}) &&
           (y.from(l8, {7, 5, 9}, P::Ju) || y.from(l8, {7}, P::Ve) || y.from(l8, {7}, P::Me) || y.from(l8, {7}, P::Mo));
}
bool clsYoga::Apakeerti() const
{
    // "Ma.s>n = H10": the 10th house is the n-th sign from Mars.
    return y.in(P::Su, {10}) && y.in(P::Sa, {10}) &&
           (anyIn({P::Ma, P::Ra, P::Ke}, {10}) || signFrom(y.H(10), {7, 6, 10}, P::Ma));
}
bool clsYoga::sixthLordWound(int planet) const
{
    const int l6 = y.L(6);
    return y.Lg() != 8 && y.signIn(l6, {1, 5, 8, 10, 11}) && y.in(l6, {1, 8, 10}) && l6 == planet;
}
bool clsYoga::Vrana1() const { return sixthLordWound(P::Su); }
bool clsYoga::Vrana2() const { return sixthLordWound(P::Mo); }
bool clsYoga::Vrana3() const { return sixthLordWound(P::Ma); }
bool clsYoga::Vrana4() const { return sixthLordWound(P::Me); }
bool clsYoga::Vrana5() const { return sixthLordWound(P::Ju); }
bool clsYoga::Vrana6() const { return sixthLordWound(P::Ve); }
bool clsYoga::Vrana7() const { return sixthLordWound(P::Sa); }
bool clsYoga::Sisnavyadhi() const { return y.in(P::Me, {1}) && y.in(y.L(6), {1}) && y.in(y.L(8), {1}); }
bool clsYoga::Kalatrashanda() const { return y.in(y.L(7), {6}) && y.in(P::Ve, {6}); }
bool clsYoga::Kushtharoga() const
{
    const int l1 = y.L(1), l7 = y.L(7);
    return (!y.with(l1, P::Ma) &&
            ((y.exalted(l7) && y.with(P::Sa, P::Me) && y.with(P::Sa, l1) && y.in(P::Ra, {6}) && y.in(P::Su, {6})) ||
             (!y.exalted(l7) && !y.own(l7) && y.in(P::Ju, {6}) && y.in(P::Sa, {6}) && y.in(P::Mo, {6})))) ||
           (y.with(l1, P::Ma) && y.with(l1, P::Me) && y.in(l1, {4, 12}));
}
bool clsYoga::Bandhana2() const
{
    const int l1 = y.L(1);
    return y.with(l1, P::Sa) && y.with(l1, P::Ra) && y.in(l1, {1, 4, 7, 10, 5, 9});
}
bool clsYoga::Peenasaroga() const
{
    const int n = navLord(y.L(1));
    return y.in(P::Mo, {6}) && y.in(P::Sa, {8}) && anyIn({P::Ke, P::Ra, P::Su}, {12}) && (n == P::Sa || n == P::Su || n == P::Ma);
}
bool clsYoga::Pittaroga() const
{
    // Of the last group only a Sun in the 5th, 7th and 9th from Jupiter at once would fail it: it always passes.
    const int l6 = y.L(6);
    return y.in(P::Su, {6}) &&
           (withAny(P::Su, {P::Ma, P::Sa, P::Ra, P::Ke}) || y.from(P::Su, {7, 4, 8}, P::Ma) || y.from(P::Su, {7, 3, 10}, P::Sa)) &&
           (!y.own(l6) || !y.exalted(l6));
}
bool clsYoga::RajaYogaBhanga() const
{
    return y.Lg() == 5 && y.S(P::Sa) == 7 && y.lon(P::Sa) >= 200 && y.lon(P::Sa) <= 203.333333 &&
           (withAny(P::Sa, {P::Ju, P::Ve, P::Ma}) || y.from(P::Sa, {7, 5, 9}, P::Ju) || y.from(P::Sa, {7}, P::Ve) ||
            y.from(P::Sa, {7, 4, 8}, P::Ma));
}
bool clsYoga::Bharathi() const
{
    const int n2 = navLord(y.L(2)), n5 = navLord(y.L(5)), n11 = navLord(y.L(11)), l9 = y.L(9);
    return (!y.exalted(n2) && ((!y.exalted(n5) && y.exalted(n11) && y.with(n11, l9)) || (y.exalted(n5) && y.with(n5, l9)))) ||
           (y.exalted(n2) && y.with(n2, l9));
}
bool clsYoga::Kulavardhana() const
{
    // Every planet in the 5th house and each also the 5th from the Sun and the Moon in that same
    // house: no chart meets both.
    for (int p : {P::Su, P::Mo, P::Me, P::Ju, P::Ve, P::Sa, P::Ma})
        if (!y.in(p, {5}))
            return false;
    for (int p : {P::Mo, P::Me, P::Ju, P::Ve, P::Sa, P::Ma})
        if (!y.from(p, {5}, P::Su))
            return false;
    return true;
}
bool clsYoga::UttamaArgala() const
{
    return anyIn({P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {3}) &&
           (!y.in(P::Ju, {3}) || !y.in(P::Ve, {3}) || !y.in(P::Me, {3}) || !y.in(P::Mo, {3})) &&
           y.chart().CountPlanetInSign(y.H(3)) >= 3;
}
bool clsYoga::Parakrama1() const
{
    return !UttamaArgala() && y.in(P::Su, {3, 6, 10, 11}) && y.in(P::Ma, {3, 6, 10, 11}) && y.in(P::Sa, {3, 6, 10, 11}) &&
           anyIn({P::Ra, P::Ke}, {3, 6, 10, 11});
}
bool clsYoga::Parakrama2() const
{
    const int n = navSign(y.L(3));
    return (n == 12 || n == 9 || n == 7 || n == 6 || n == 4 || n == 3 || n == 2) &&
           y.chart().PlanetAspectedByNatBenefic(y.L(3)) && y.signIn(P::Ma, {2, 3, 4, 6, 7, 9, 12});
}
bool clsYoga::LagnaShubhArgala() const
{
    for (int p : {P::Ju, P::Ve, P::Mo, P::Me})
        if (!y.in(p, {2, 4, 5, 9, 11}))
            return false;
    return true;
}
bool clsYoga::ChandraShubhArgala() const
{
    for (int p : {P::Ju, P::Ve, P::Me})
        if (!y.from(p, {2, 4, 5, 9, 11}, P::Mo))
            return false;
    return true;
}
bool clsYoga::SubhaGola() const
{
    return gap(P::Mo, P::Su) > 168 && gap(P::Mo, P::Su) < 192 && y.in(P::Mo, {9}) && y.with(P::Mo, P::Ju) &&
           y.with(P::Mo, P::Ve) && navSign(P::Me) == navSign(P::As);
}
bool clsYoga::ParaChatussagar() const
{
    // The planet numbers of the Sun, Mars, the Moon and Uranus stand where signs go: the four
    // movable signs must each hold a planet.
    const clsPlanets &c = y.chart();
    return occupied() == 4 && c.CountPlanetInSign(P::Su) >= 1 && c.CountPlanetInSign(P::Ma) >= 1 &&
           c.CountPlanetInSign(P::Mo) >= 1 && c.CountPlanetInSign(10) >= 1;
}
bool clsYoga::VanchanaChoraBheeti1() const
{
    // No planet is own and exalted at once, so every Sun, Mars and Saturn counts as a malefic.
    return withAny(P::As, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}) && withAny(y.L(1), {P::Su, P::Ma, P::Sa, P::Ra, P::Ke});
}
bool clsYoga::MokshaPrapti() const
{
    return y.Lg() == 9 && y.S(P::Ju) == 9 && navSign(P::Ju) == 1 && y.S(P::Ve) == 3 && y.S(P::Mo) == 6;
}

// ---- body, speech and wits ----

bool clsYoga::Vishnu() const { return y.in(navLord(y.L(9)), {2}) && y.in(y.L(10), {2}) && y.in(y.L(9), {2}); }
bool clsYoga::Brahm() const
{
    const clsPlanets &c = y.chart();
    return c.PlanetInKendra(y.L(9), P::Ju) && c.PlanetInKendra(y.L(11), P::Ve) &&
           (c.PlanetInKendra(y.L(1), P::Me) || c.PlanetInKendra(y.L(10), P::Me));
}
bool clsYoga::Krishanga1() const
{
    const int l1 = y.L(1);
    return y.signIn(l1, {1, 2, 3, 5, 6, 9}) && y.signIn(P::As, {1, 3, 5, 6}) && (l1 == P::Su || l1 == P::Ma || l1 == P::Me) &&
           !anyIn({P::Ju, P::Ve, P::Mo}, {1}) && !withAny(l1, {P::Ju, P::Ve, P::Mo});
}
bool clsYoga::Dehashthoulya1() const
{
    const int n = navSign(y.L(1));
    return y.signIn(y.L(1), {4, 8, 10, 11, 12}) && (n == 12 || n == 11 || n == 10 || n == 8 || n == 4);
}
bool clsYoga::Dehashthoulya2() const
{
    return (y.in(P::Ju, {1}) || sees(P::As, P::Ju)) && y.signIn(P::Ju, {4, 8, 10, 11, 12});
}
bool clsYoga::Dehashthoulya3() const
{
    return y.signIn(P::As, {4, 8, 10, 11, 12}) && (anyIn({P::Ju, P::Ve, P::Me, P::Mo}, {1}) || sees(P::As, P::Ju) ||
                                                   sees(P::As, P::Ve) || sees(P::As, P::Me) || sees(P::As, P::Mo));
}
bool clsYoga::EkBhagini() const { return y.in(P::Me, {3}) && y.with(P::Mo, y.L(3)) && y.with(P::Sa, P::Ma); }
bool clsYoga::BahuSahodara() const
{
    const int l3 = y.L(3);
    return kendra(l3) && y.chart().PlanetInTrikona(P::Ju, l3) && y.with(P::Ma, P::Ju) && y.S(P::Ma) == 10;
}
bool clsYoga::SwaveeryaDhana2() const
{
    const int d = YogaChart::lord(y.S(navLord(y.L(1))));
    const clsPlanets &c = y.chart();
    return c.PlanetInTrikona(d, y.L(2)) || c.PlanetInKendra(d, y.L(2)) || ownEx(d);
}
bool clsYoga::BalyaDhana() const
{
    const int l2 = y.L(2);
    return y.with(l2, y.L(10)) && kendra(l2) && sees(l2, navLord(y.L(1)));
}
bool clsYoga::BhatriMoolatDhana1() const
{
    return y.in(y.L(1), {3}) && y.in(y.L(2), {3}) && y.chart().PlanetAspectedByNatBenefic(y.L(1));
}
bool clsYoga::Sumukh1() const
{
    return kendra(y.L(2)) && (y.chart().PlanetAspectedByNatBenefic(y.L(2)) || anyIn({P::Ju, P::Mo, P::Me, P::Ve}, {2}));
}
bool clsYoga::Durmukha1() const
{
    const int l2 = y.L(2);
    return y.chart().CountPlanetInSign(y.H(2)) >= 2 && (withAny(l2, {P::Su, P::Sa, P::Ma, P::Ra, P::Ke}) || y.debilitated(l2));
}
bool clsYoga::Vagmi1() const
{
    const int l2 = y.L(2);
    return withAny(l2, {P::Ju, P::Ve, P::Mo, P::Me}) && (trikona(l2) || kendra(l2));
}
bool clsYoga::Vagmi2() const
{
    return y.exalted(y.L(2)) && y.with(y.L(2), P::Ju) && !y.chart().PlanetAspectedByNatMalefic(P::Me);
}
bool clsYoga::Satkathadi() const
{
    const int l3 = y.L(3), n = navSign(l3);
    return y.signIn(l3, {2, 3, 6, 9, 12, 4, 7}) && (n == 7 || n == 4 || n == 12 || n == 9 || n == 6 || n == 3 || n == 2) &&
           withAny(l3, {P::Ju, P::Mo, P::Me, P::Ve}) && (y.in(P::Ju, {9, 7, 11}) || anyIn({P::Mo, P::Ve, P::Me}, {9}));
}
bool clsYoga::TeevraBuddhi() const
{
    const int l5 = y.L(5), n = navLord(l5), d = YogaChart::lord(y.S(l5));
    const auto benefic = [](int p) { return p == P::Ju || p == P::Mo || p == P::Me || p == P::Ve; };
    return y.chart().PlanetAspectedByNatBenefic(n) && (benefic(l5) || withAny(n, {P::Ju, P::Mo, P::Me, P::Ve})) && benefic(d) &&
           ownEx(P::Me);
}
bool clsYoga::NavaLakshmi() const
{
    return y.in(y.L(1), {11}) && y.in(y.L(9), {9}) && kendra(y.L(11)) && sees(y.L(1), y.L(11));
}
bool clsYoga::Koteesha() const { return y.exalted(navLord(P::As)) && y.exalted(y.L(9)) && ownEx(y.L(11)); }
bool clsYoga::YuddhaPashchat() const
{
    const int l3 = y.L(3), n = navSign(l3);
    return y.signIn(l3, {2, 5, 8, 11}) && (n == 11 || n == 8 || n == 5 || n == 2) && !y.chart().SashtiAmshaBenefic(l3);
}

// ---- the rules of speech and riches that read the Gopuramsa count ----

bool clsYoga::SwaveeryaDhana1() const
{
    const int l1 = y.L(1);
    return kendra(l1) && y.with(l1, P::Ju) && !y.debilitated(P::Ju) && !combustAsWritten(P::Ju) && gopuram(y.L(2)) == 13 &&
           ownEx(l1);
}
bool clsYoga::BhatriMoolatDhana2() const
{
    return y.in(y.L(3), {2}) && y.in(P::Ju, {2}) && (y.with(P::Ju, y.L(1)) || sees(P::Ju, y.L(1))) && gopuram(y.L(1)) == 13;
}
bool clsYoga::PutraMoolatDhana() const
{
    return y.with(y.L(2), y.L(5)) && y.with(P::Ju, y.L(2)) && gopuram(y.L(1)) == 13;
}
bool clsYoga::ShatruMoolatDhana() const
{
    return y.with(y.L(2), y.L(6)) && y.with(P::Ma, y.L(2)) && gopuram(y.L(1)) == 13;
}
bool clsYoga::Sumukh2() const
{
    return kendra(y.L(2)) && ownEx(y.L(2)) && gopuram(YogaChart::lord(y.S(y.L(2)))) == 4;
}
bool clsYoga::BhojanaSukhya() const
{
    const int l2 = y.L(2);
    return (gopuram(l2) == 13 || ownEx(l2)) && (sees(l2, P::Ve) || sees(l2, P::Ju));
}
bool clsYoga::Vagmi3() const
{
    const int l2 = y.L(2);
    return kendra(l2) && gopuram(l2) == 6 &&
           (y.with(l2, P::Ju) || y.with(l2, P::Ve) || sees(l2, P::Ju) || sees(l2, P::Ve) || gopuram(P::Ju) == 5 ||
            gopuram(P::Ve) == 5);
}
bool clsYoga::Parihasaka() const
{
    const int n = navLord(P::Su);
    return (gopuram(n) == 13 || ownEx(n)) && y.in(n, {2});
}
bool clsYoga::Annadana() const
{
    const int l2 = y.L(2);
    return gopuram(l2) == 13 && (y.with(l2, P::Ju) || sees(l2, P::Ju)) && (y.with(l2, P::Me) || sees(l2, P::Me));
}
bool clsYoga::YuddhaPraveena() const { return gopuram(YogaChart::lord(navSign(y.L(3)))) == 5; }
bool clsYoga::SwaveeryaDhana3() const
{
    const int l1 = y.L(1), l2 = y.L(2);
    const clsPlanets &c = y.chart();
    bool besideExalted = false;
    for (int p = 1; p <= 9; ++p)
        besideExalted = besideExalted || (p != l2 && y.exalted(p) && y.with(l2, p));
    return (c.PlanetInTrikona(l2, l1) || c.PlanetInKendra(l2, l1)) &&
           (l2 == P::Ju || l2 == P::Mo || l2 == P::Me || l2 == P::Ve) && (c.CheckHighestExaltDeg(l2) || besideExalted);
}
bool clsYoga::YuddhaPoorvat() const
{
    // "S(L3) or ...": a sign number is never 0, so the last group always passes.
    return y.chart().CountPlanetInSign(y.H(3)) >= 2 && y.exalted(y.L(3));
}

// ---- rules kept as written, added with the settled ones ----

// "p.s>n = 9" and "= 2": the n-th sign from the planet's is Sagittarius, or Taurus.
bool clsYoga::Khalwata() const
{
    const int lg = y.Lg();
    if (!(lg == 1 || lg == 5 || lg == 8 || lg == 10 || lg == 11))
        return false;
    static constexpr int counts[][2] = {{P::Su, 7}, {P::Ma, 7}, {P::Ma, 4}, {P::Ma, 8}, {P::Sa, 7}, {P::Sa, 3}, {P::Sa, 10}};
    for (int target : {9, 2})
        for (const auto &[p, n] : counts)
            if (Norm12(y.S(p) + n - 1) == target)
                return true;
    return false;
}
bool clsYoga::Trikalagnana() const
{
    return gopuram(P::Ju) == 4 &&
           (withAny(P::Ju, {P::Mo, P::Me, P::Ve}) || sees(P::Ju, P::Mo) || sees(P::Ju, P::Me) || sees(P::Ju, P::Ve)) &&
           CheckMriduAmsha(P::Ju);
}

// ---- the rules that read Gulika ----

bool clsYoga::Durmukha2() const
{
    const int l2 = y.L(2), n = navSign(l2);
    return (l2 == P::Ma || l2 == P::Sa || l2 == P::Su) &&
           (y.chart().GulikaSign() == y.S(l2) || n == navSign(P::Su) || n == navSign(P::Ma) || n == navSign(P::Sa));
}

bool clsYoga::VanchanaChoraBheeti2() const
{
    const int g = y.chart().GulikaSign();
    return !VanchanaChoraBheeti1() && withAny(P::As, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}) &&
           (g == y.Lg() || g == y.H(5) || g == y.H(9));
}

bool clsYoga::VanchanaChoraBheeti3() const
{
    const int g = y.chart().GulikaSign();
    if (VanchanaChoraBheeti1() || VanchanaChoraBheeti2() || !withAny(P::As, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}))
        return false;
    for (int h : {1, 4, 7, 10, 5, 9})
        if (g == y.S(y.L(h)))
            return true;
    return false;
}
