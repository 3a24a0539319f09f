// SPDX-License-Identifier: AGPL-3.0-or-later
// The catalogue's Jaimini rules: the lords of the 1st, 5th and 7th, the planets counted from the
// sign of the Atma Karaka, the benefics on the houses, and the balance of the two halves of the chart.
#include "yoga/clsYoga.h"

#include "sky/Functions.h"
#include "jaimini/clsJaimini.h"
#include "sky/clsPlanets.h"

using P = YogaChart::Planet;

// "p.s = AtmaKarakaSign()>n": p stands in the n-th sign from the Atma Karaka's.
bool clsYoga::fromKaraka(std::initializer_list<int> planets, int n) const
{
    const int sign = Norm12(y.S(y.chart().AtmaKaraka()) + n - 1);
    for (int p : planets)
        if (y.S(p) == sign)
            return true;
    return false;
}

// The sign holds one of Jupiter, Venus, Mercury and the Moon, or receives their aspect.
bool clsYoga::beneficOn(int sign) const
{
    for (int p : {P::Ju, P::Ve, P::Me, P::Mo})
        if (y.S(p) == sign)
            return true;
    return signFrom(sign, {7}, P::Mo) || signFrom(sign, {7}, P::Me) || signFrom(sign, {7}, P::Ve) ||
           signFrom(sign, {7, 5, 9}, P::Ju);
}

bool clsYoga::JaiminiRY1() const
{
    const auto marked = [this](int l) { return y.debilitated(l) || y.exalted(l) || l == navLord(l); };
    return marked(y.L(1)) && marked(y.L(5)) && y.with(y.L(1), y.L(5));
}
bool clsYoga::JaiminiRY2() const { return y.with(y.L(1), y.L(5)) || y.with(y.L(5), y.L(7)); }
bool clsYoga::JaiminiRY3() const
{
    return fromKaraka({P::Ve, P::Ma, P::Ke}, 1) && fromKaraka({P::Ve, P::Ma, P::Ke}, 2) && fromKaraka({P::Ve, P::Ma, P::Ke}, 4);
}
bool clsYoga::JaiminiRY4() const
{
    return fromKaraka({P::Ju, P::Me, P::Mo, P::Ve}, 2) && fromKaraka({P::Ju, P::Me, P::Mo, P::Ve}, 4) &&
           fromKaraka({P::Ju, P::Me, P::Mo, P::Ve}, 5);
}
bool clsYoga::JaiminiRY5() const
{
    return fromKaraka({P::Su, P::Sa, P::Ma, P::Ke, P::Ra}, 3) && fromKaraka({P::Su, P::Sa, P::Ma, P::Ke, P::Ra}, 6);
}
bool clsYoga::JaiminiRY6() const { return beneficOn(y.H(2)) && beneficOn(y.H(4)) && beneficOn(y.H(5)); }
bool clsYoga::JaiminiRY8() const { return ownEx(y.L(1)) && ownEx(y.L(7)) && ownEx(y.L(9)); }
bool clsYoga::JaiminiRY9() const
{
    return y.in(P::Ju, {1}) && (y.from(P::Ju, {7}, P::Ve) || y.from(P::Ju, {7}, P::Me)) && y.in(P::Mo, {11}) &&
           (y.from(P::Mo, {7}, P::Ve) || y.from(P::Mo, {7}, P::Me));
}
bool clsYoga::JaiminiRY10() const
{
    return y.in(P::Me, {1}) && (y.from(P::Me, {7}, P::Ve) || y.from(P::Me, {7}, P::Mo)) && y.in(P::Ju, {11}) &&
           (y.from(P::Ju, {7}, P::Ve) || y.from(P::Ju, {7}, P::Mo));
}
bool clsYoga::JaiminiRY11() const
{
    return y.in(P::Me, {1}) && (y.from(P::Me, {7}, P::Ve) || y.from(P::Me, {7}, P::Mo)) && y.in(P::Ju, {7}) &&
           (y.from(P::Ju, {7}, P::Ve) || y.from(P::Ju, {7}, P::Mo));
}
bool clsYoga::JaiminiRY12() const
{
    return y.with(P::Ve, P::Mo) && (fromKaraka({P::Ve}, 1) || fromKaraka({P::Ve}, 7) || fromKaraka({P::Ve}, 10));
}
bool clsYoga::JaiminiRY13() const
{
    // "Mo with Ju.s>7": the Moon in the 7th sign from Jupiter.
    return y.in(P::Mo, {7}) && (withAny(P::Mo, {P::Ju, P::Ve, P::Me}) || y.from(P::Mo, {7, 5, 9}, P::Ju) ||
                                y.from(P::Mo, {7}, P::Ve) || y.from(P::Mo, {7}, P::Me));
}
bool clsYoga::JaiminiRY14() const
{
    for (int p : {P::Ju, P::Ve, P::Me, P::Mo})
        if (kendra(p) || trikona(p))
            return false;
    return true;
}
bool clsYoga::JaiminiRY15() const
{
    return fromKaraka({P::Ju, P::Ve, P::Me, P::Mo}, 1) || fromKaraka({P::Ju, P::Ve, P::Me, P::Mo}, 10);
}
bool clsYoga::JaiminiRY18() const
{
    const clsPlanets &c = y.chart();
    const int a = c.CountPlanetInSign(y.Lg()), b = c.CountPlanetInSign(y.H(7));
    return a != 0 && b != 0 && !y.in(P::Ra, {1}) && !y.in(P::Ke, {1}) && a == b;
}
bool clsYoga::JaiminiArishta1() const
{
    return anyIn({P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {2}) && anyIn({P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {8});
}
bool clsYoga::JaiminiArishta3() const
{
    const clsPlanets &c = y.chart();
    const int a = c.CountPlanetInSign(y.H(2)), b = c.CountPlanetInSign(y.H(9));
    return a != 0 && b != 0 && !anyIn({P::Ra, P::Ke}, {2, 9}) && a == b;
}

// ---- the rules that read the Aroodha and Upapada lagnas (the popular padas) ----

bool clsYoga::maleficFrom(int sign, int n) const
{
    const int target = Norm12(sign + n - 1);
    for (int p : {P::Su, P::Ma, P::Sa, P::Ra, P::Ke})
        if (y.S(p) == target)
            return true;
    return false;
}

// The written terms up to the malefic in the Aroodha's 3rd; what runs on after it is left out.
bool clsYoga::JaiminiRY17() const
{
    const int ak = y.S(y.chart().AtmaKaraka());
    return !maleficFrom(ak, 3) && maleficFrom(clsJaimini(y.chart()).ArudhaLagna(1), 3);
}

bool clsYoga::JaiminiArishta2() const
{
    const int al = clsJaimini(y.chart()).ArudhaLagna(1);
    return maleficFrom(al, 2) && maleficFrom(al, 8);
}

bool clsYoga::JaiminiAscetic() const
{
    return maleficFrom(clsJaimini(y.chart()).UpaPadaLagna(1), 2) && withAny(P::Mo, {P::Ju, P::Me, P::Ve}) &&
           anyIn({P::Ju, P::Me, P::Ve}, {7});
}
