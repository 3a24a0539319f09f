// SPDX-License-Identifier: AGPL-3.0-or-later
// The catalogue's rules of royal standing and long life: the Raja family by exalted planets and
// by whole charts of signs, the great kings, the divine and the Mahendra rules, and the standing
// rules that read lords and houses.
#include "yoga/clsYoga.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

using P = YogaChart::Planet;

bool clsYoga::ownEx(int p) const { return y.own(p) || y.exalted(p); }
bool clsYoga::kendra(int p) const { return y.chart().PlanetInKendra(p, P::As); }
bool clsYoga::trikona(int p) const { return y.chart().PlanetInTrikona(p, P::As); }
bool clsYoga::sees(int a, int b) const { return y.chart().IfPlanetAspects(a, b); }
int clsYoga::navSign(int p) const { return y.chart().NavamshSign(p); }
int clsYoga::navLord(int p) const { return y.chart().NavamshLord(p); }
double clsYoga::gap(int a, int b) const { return Norm360(y.lon(a) - y.lon(b)); }
int clsYoga::exaltedCount(int from, int to) const
{
    int n = 0;
    for (int p = from; p <= to; ++p)
        n += y.exalted(p) ? 1 : 0;
    return n;
}
bool clsYoga::signFrom(int sign, std::initializer_list<int> counts, int q) const
{
    for (int n : counts)
        if (sign == Norm12(y.S(q) + n - 1))
            return true;
    return false;
}
// Own sign, exalted, or in its own navamsha (the navamsha sign the sign itself).
bool clsYoga::vargottamaStrong(int p) const { return ownEx(p) || y.S(p) == navSign(p); }

// ---- standing ----

bool clsYoga::Chamara() const
{
    return ownEx(y.L(1)) && y.in(y.L(1), {1, 4, 7, 10}) && y.in(P::Ju, {7, 5, 9}) &&
           (y.in(P::Ve, {1, 7, 10, 9}) || y.in(P::Me, {1, 7, 10, 9}) || y.in(P::Mo, {1, 7, 10, 9})) &&
           (y.with(P::Ve, P::Me) || y.with(P::Ve, P::Mo) || y.with(P::Mo, P::Me));
}

bool clsYoga::Veera() const
{
    int malefics = 0, benefics = 0;
    for (int p : {P::Su, P::Ma, P::Sa, P::Ra, P::Ke})
        malefics += y.in(p, {3}) ? 1 : 0;
    for (int p : {P::Me, P::Ve, P::Ju, P::Mo})
        benefics += y.in(p, {3}) ? 1 : 0;
    return malefics >= 2 && benefics >= 1 && y.in(P::Mo, {8});
}

bool clsYoga::Sankha1() const { return ownEx(y.L(1)) && y.chart().PlanetInKendra(y.L(5), y.L(6)); }
bool clsYoga::Sankha2() const
{
    return ownEx(y.L(9)) && y.signIn(y.L(1), {1, 4, 7, 10}) && y.signIn(y.L(10), {1, 4, 7, 10});
}
bool clsYoga::Chhapa() const { return y.in(y.L(1), {1}) && y.in(y.L(10), {4}) && y.in(y.L(4), {10}); }

bool clsYoga::GajaPati1() const { return gap(P::Su, P::Mo) >= 72 && kendra(P::Mo) && y.with(P::Mo, P::Ju); }
bool clsYoga::GajaPati2() const
{
    return y.in(P::Ju, {1}) && kendra(P::Me) && (sees(P::Me, y.L(11)) || sees(P::Me, y.L(9)));
}
bool clsYoga::GajaPati3() const
{
    return y.Lg() == 1 && y.S(P::Ve) == 1 && y.S(P::Me) == 7 && y.S(P::Su) == 7 && y.S(P::Mo) == 7 &&
           y.signIn(P::Ju, {5, 7, 9}) && y.signIn(P::Ma, {6, 7, 10}) && y.signIn(P::Sa, {4, 7, 11});
}

bool clsYoga::Deva1() const
{
    return y.Lg() == 2 && y.S(P::Mo) == 2 && y.in(P::Su, {4}) && y.in(P::Sa, {7}) && y.in(P::Ju, {10});
}
bool clsYoga::Deva2() const { return y.Lg() == 7 && y.S(P::Mo) == 1 && y.S(P::Su) == 1 && sees(P::Mo, P::Me); }
bool clsYoga::Deva3() const { return y.in(P::Ma, {1}) && y.signIn(P::As, {1, 5, 9}) && y.from(P::Ma, {7}, P::Su); }
bool clsYoga::Muni() const { return navSign(P::Ju) == navSign(P::Sa) && y.with(P::Ju, P::Sa) && y.in(P::Ju, {9, 10}); }

// ---- great kings, divine, rays ----

bool clsYoga::Maharajadhiraj1() const { return exaltedCount(1, 7) >= 6; }
bool clsYoga::Maharajadhiraj2() const { return exaltedCount(1, 7) >= 5 && y.in(P::Ju, {1}); }
bool clsYoga::Maharajadhiraj3() const { return exaltedCount(1, 7) >= 4 && y.in(P::Sa, {1}) && y.S(P::Sa) == 11; }
bool clsYoga::Maharajadhiraj4() const { return y.in(P::Me, {1}) && y.Lg() == 1 && y.S(P::Ju) == 4; }

bool clsYoga::Divya1() const
{
    return y.Lg() == 7 && y.S(P::Ju) == 9 && y.S(P::Ve) == 9 && y.S(P::Mo) == 9 && y.S(P::Me) == 7 && y.S(P::Ma) == 6 &&
           y.S(P::Sa) == 10;
}
bool clsYoga::Divya2() const
{
    return y.S(P::Mo) == 12 && y.S(P::Me) == 6 && y.S(P::Ma) == 4 && y.signIn(P::Sa, {10, 9});
}
bool clsYoga::Divya3() const
{
    return y.Lg() == 12 && y.S(P::Mo) == 12 && navSign(P::Mo) == 12 && y.S(P::Sa) == 11 && gap(P::Mo, P::Su) > 168 &&
           gap(P::Mo, P::Su) < 192;
}
bool clsYoga::Divya4() const { return y.Lg() == 10 && y.S(P::Ma) == 10 && y.S(P::Mo) == 4; }
bool clsYoga::Divya5() const { return y.S(P::Su) == 1 && y.S(P::Ma) == 10 && y.S(P::Ju) == 11; }

bool clsYoga::Rashmi2() const
{
    return gap(P::Mo, P::Su) > 168 && gap(P::Mo, P::Su) < 192 && (y.signIn(P::Mo, {2, 4}) || y.S(P::Mo) == navSign(P::Mo)) &&
           y.in(P::As, {9, 10});
}
bool clsYoga::Rashmi3() const { return y.signIn(P::As, {5, 9}) && y.S(P::Su) == 1 && y.S(P::Mo) == 4 && y.S(P::Ju) == 4; }

bool clsYoga::Tarit1() const { return y.from(y.L(1), {3, 6, 10, 11}, P::Mo) && kendra(y.L(1)) && ownEx(y.L(1)); }
bool clsYoga::Tarit3() const
{
    return y.Lg() == 1 && y.S(P::Mo) == 4 && y.S(P::Me) == 1 && y.S(P::Ju) == 7 && y.S(P::Ve) == 10 &&
           gap(P::Mo, P::Su) > 168 && gap(P::Mo, P::Su) < 192;
}
bool clsYoga::Tarit6() const { return kendra(y.L(1)) && y.in(y.L(10), {4}) && y.in(y.L(9), {11}); }

bool clsYoga::VideshYatra1() const { return y.in(y.L(1), {1}) && y.in(y.L(9), {9}); }
bool clsYoga::VideshYatra2() const { return y.in(y.L(1), {9}) && y.in(y.L(9), {1}); }

bool clsYoga::Mahendra1() const
{
    return y.in(P::Mo, {1}) && y.in(P::Ju, {4}) && y.in(P::Ve, {10}) && y.signIn(P::Sa, {10, 11});
}
bool clsYoga::Mahendra2() const { return ownEx(y.L(1)) && kendra(y.L(1)); }
bool clsYoga::Mahendra3() const
{
    for (int p : {P::Su, P::Me, P::Ve, P::Ma, P::Ju, P::Sa})
        if (!y.from(p, {4, 7, 10}, P::Mo))
            return false;
    const clsPlanets &c = y.chart();
    return c.CountPlanetInSign(y.S(P::Mo)) == 1 && c.CountPlanetInSign(Norm12(y.S(P::Mo) + 3)) >= 1 &&
           c.CountPlanetInSign(Norm12(y.S(P::Mo) + 6)) >= 1 && c.CountPlanetInSign(Norm12(y.S(P::Mo) + 9)) >= 1;
}
bool clsYoga::MahaLakshmi() const
{
    const int h2 = y.H(2);
    return trikona(y.L(1)) && y.in(y.L(2), {11}) &&
           (signFrom(h2, {7, 5, 9}, P::Ju) || signFrom(h2, {7}, P::Ve) || signFrom(h2, {7}, P::Mo) || signFrom(h2, {7}, P::Me));
}

// ---- the Raja family ----

bool clsYoga::RajaYoga1() const
{
    return y.exalted(P::Su) && y.exalted(P::Ma) && y.exalted(P::Sa) && (y.in(P::Su, {1}) || y.in(P::Ma, {1}) || y.in(P::Sa, {1}));
}
bool clsYoga::RajaYoga2() const { return y.exalted(P::Su) && y.exalted(P::Ma) && y.exalted(P::Sa) && y.in(P::Ju, {1}); }
bool clsYoga::RajaYoga3() const
{
    return clsPlanets::CheckIfExalted(P::Ju, y.Lg()) && y.exalted(P::Ma) && y.exalted(P::Sa) && y.in(P::Su, {1});
}
bool clsYoga::RajaYoga4() const
{
    return clsPlanets::CheckIfExalted(P::Ju, y.Lg()) && y.exalted(P::Ma) && y.exalted(P::Su) && y.in(P::Sa, {1});
}
bool clsYoga::RajaYoga5() const
{
    return clsPlanets::CheckIfExalted(P::Ju, y.Lg()) && y.exalted(P::Sa) && y.exalted(P::Su) && y.in(P::Ma, {1});
}
bool clsYoga::RajaYoga6() const
{
    return y.exalted(P::Su) && y.exalted(P::Ma) && y.exalted(P::Sa) && y.exalted(P::Ju) &&
           (y.in(P::Su, {1}) || y.in(P::Ma, {1}) || y.in(P::Ju, {1}) || y.in(P::Sa, {1}));
}
// Two exalted planets, one of them rising, and the Moon in Cancer.
bool clsYoga::twoExaltedOneRising(int a, int b) const
{
    return y.exalted(a) && y.exalted(b) && (y.in(b, {1}) || y.in(a, {1})) && y.S(P::Mo) == 4;
}
bool clsYoga::RajaYoga7() const { return twoExaltedOneRising(P::Ma, P::Sa); }
bool clsYoga::RajaYoga8() const { return twoExaltedOneRising(P::Ma, P::Su); }
bool clsYoga::RajaYoga9() const { return twoExaltedOneRising(P::Ma, P::Ju); }
bool clsYoga::RajaYoga10() const { return twoExaltedOneRising(P::Su, P::Sa); }
bool clsYoga::RajaYoga11() const { return twoExaltedOneRising(P::Ju, P::Sa); }
bool clsYoga::RajaYoga12() const { return twoExaltedOneRising(P::Ju, P::Su); }
bool clsYoga::RajaYoga13() const
{
    const auto either = [this](std::initializer_list<int> counts, int q) {
        return y.from(P::As, counts, q) || y.from(P::Mo, counts, q);
    };
    return (y.Lg() == navSign(P::As) || y.S(P::Mo) == navSign(P::Mo)) && either({7}, P::Su) && either({7}, P::Me) &&
           either({7}, P::Ve) && either({5, 7, 9}, P::Ju) && either({4, 7, 8}, P::Ma) && either({3, 7, 10}, P::Sa);
}

namespace {
// Signs of Su, Me, Ve, Ma, Ju, Sa, Mo and the Lagna; 0 where the rule says nothing.
struct SignPattern
{
    int su, me, ve, ma, ju, sa, mo, lg;
};
bool matches(const YogaChart &y, const SignPattern &w)
{
    const int want[] = {w.su, w.me, w.ve, w.ma, w.ju, w.sa, w.mo};
    for (int p = 1; p <= 7; ++p)
        if (want[p - 1] != 0 && y.S(p) != want[p - 1])
            return false;
    return w.lg == 0 || y.Lg() == w.lg;
}
} // namespace

bool clsYoga::RajaYoga14() const
{
    return matches(y, {1, 3, 0, 8, 5, 11, 2, 0}) && y.signIn(P::As, {11, 1, 2});
}
bool clsYoga::RajaYoga15() const
{
    return matches(y, {6, 6, 7, 1, 4, 7, 2, 0}) && y.signIn(P::As, {7, 2});
}
bool clsYoga::RajaYoga16() const { return matches(y, {9, 0, 0, 10, 0, 10, 9, 10}); }
bool clsYoga::RajaYoga17() const { return matches(y, {9, 0, 0, 10, 0, 0, 10, 10}); }
bool clsYoga::RajaYoga18() const { return matches(y, {1, 0, 0, 0, 9, 7, 7, 1}); }
bool clsYoga::RajaYoga19() const { return matches(y, {5, 0, 0, 0, 8, 11, 2, 2}); }
bool clsYoga::RajaYoga20() const { return matches(y, {0, 6, 0, 2, 9, 10, 12, 10}); }
bool clsYoga::RajaYoga21() const { return matches(y, {0, 0, 12, 10, 9, 0, 9, 12}); }
bool clsYoga::RajaYoga22() const { return matches(y, {0, 6, 0, 10, 9, 0, 9, 6}); }
bool clsYoga::RajaYoga23() const { return matches(y, {0, 6, 9, 10, 9, 10, 9, 6}); }
bool clsYoga::RajaYoga24() const { return matches(y, {5, 0, 0, 10, 0, 11, 12, 12}); }
bool clsYoga::RajaYoga25() const { return y.S(P::Ma) == 1 && y.S(P::Ju) == 4 && y.signIn(P::As, {1, 4}); }
bool clsYoga::RajaYoga26() const { return matches(y, {1, 2, 2, 0, 4, 0, 2, 4}); }
bool clsYoga::RajaYoga27() const { return matches(y, {5, 3, 7, 1, 0, 10, 4, 10}); }
bool clsYoga::RajaYoga28() const { return matches(y, {0, 6, 3, 10, 12, 10, 12, 6}); }
bool clsYoga::RajaYoga29() const { return matches(y, {1, 0, 0, 10, 9, 11, 1, 1}); }
bool clsYoga::RajaYoga30() const
{
    return y.signIn(P::Ju, {11, 1, 9}) && y.S(P::Mo) == 7 && y.signIn(P::Su, {11, 1, 9}) && y.signIn(P::Ma, {11, 1, 9}) &&
           y.signIn(P::Sa, {1, 9, 11}) && y.S(P::Ve) == 2 && y.signIn(P::Me, {11, 1, 9}) && y.Lg() == 11;
}
bool clsYoga::RajaYoga31() const
{
    return y.signIn(P::Ju, {4, 6, 2}) && y.S(P::Mo) == 12 && y.signIn(P::Su, {4, 6, 2}) && y.signIn(P::Ma, {4, 6, 2}) &&
           y.signIn(P::Sa, {4, 6, 2}) && y.S(P::Ve) == 7 && y.signIn(P::Me, {4, 6, 2}) && y.Lg() == 4;
}
bool clsYoga::RajaYoga32() const
{
    return y.signIn(P::Ju, {7, 8, 2, 3, 4, 11}) && y.S(P::Mo) == 2 && y.signIn(P::Su, {7, 8, 2, 3, 4, 11}) &&
           y.signIn(P::Ma, {7, 8, 2, 3, 4, 11}) && y.signIn(P::Sa, {7, 8, 2, 3, 4, 11}) &&
           y.signIn(P::Ve, {7, 8, 11, 2, 3, 4}) && y.S(P::Me) == 6 && y.Lg() == 6;
}
bool clsYoga::RajaYoga33() const
{
    return y.in(P::Sa, {1}) && y.in(P::Ju, {4}) && y.in(P::Su, {10}) && y.in(P::Mo, {10}) && y.in(P::Ma, {11}) &&
           y.in(P::Me, {11}) && y.in(P::Ve, {11});
}
bool clsYoga::RajaYoga34() const { return matches(y, {12, 12, 12, 12, 3, 7, 2, 2}); }
bool clsYoga::RajaYoga35() const { return matches(y, {9, 6, 12, 10, 12, 10, 0, 12}); }
bool clsYoga::RajaYoga36() const
{
    return y.in(P::Ju, {1}) && y.in(P::Sa, {11}) && y.in(P::Su, {7}) && y.in(P::Mo, {10}) && y.in(P::Ma, {2}) &&
           y.in(P::Me, {2}) && y.in(P::Ve, {4});
}
bool clsYoga::RajaYoga37() const
{
    return y.in(P::Ju, {1}) && y.in(P::Ve, {1}) && y.in(P::Me, {1}) && y.in(P::Sa, {7}) && y.in(P::Su, {10});
}
// Written as the 33rd; both are kept, as the class lists both.
bool clsYoga::RajaYoga38() const { return RajaYoga33(); }
bool clsYoga::RajaYoga39() const
{
    return y.S(P::Me) == 6 && y.signIn(P::Su, {3, 8}) && y.S(P::Ve) == 12 && y.S(P::Ma) == 8 && y.S(P::Sa) == 11 &&
           y.S(P::Ju) == 12 && y.Lg() == 6;
}
bool clsYoga::RajaYoga40() const
{
    return y.S(P::Su) != 5 && y.S(P::Mo) != 5 && matches(y, {0, 6, 12, 1, 12, 11, 0, 3});
}
bool clsYoga::RajaYoga41() const
{
    // The test on Jupiter's sign always passes: no sign is 5, 3 and 7 at once.
    return y.S(P::Su) != 5 && y.S(P::Mo) != 5 && (y.S(P::Ju) != 5 || y.S(P::Ju) != 3 || y.S(P::Ju) != 7) &&
           matches(y, {1, 6, 0, 1, 0, 11, 0, 3});
}

bool clsYoga::Garuda() const
{
    return gap(P::Mo, P::Su) <= 180 && gap(P::As, P::Su) <= 180.4 && y.exalted(navLord(P::Mo));
}
bool clsYoga::Chandika() const
{
    return y.signIn(P::As, {2, 5, 8, 11}) && y.chart().CheckIfPlanetAspects(P::As, y.L(6)) && y.with(P::Su, y.L(6)) &&
           y.with(P::Su, y.L(9));
}
bool clsYoga::Parijatha() const
{
    const int d = YogaChart::lord(y.S(y.L(1)));
    const clsPlanets &c = y.chart();
    if (c.PlanetAspectedByNatMalefic(d))
        return y.in(navLord(y.L(1)), {1, 4, 7, 10, 5, 9}) || y.exalted(navLord(y.L(1)));
    for (int m : {P::Su, P::Ma, P::Sa, P::Ra, P::Ke})
        if (y.with(d, m))
            return false;
    return y.in(d, {1, 4, 7, 10, 5, 9}) || y.exalted(d);
}

// ---- kings, lords of gods and long life ----

bool clsYoga::RajyaYoga1() const
{
    const clsPlanets &c = y.chart();
    for (int p : {P::Mo, P::Me, P::Ju, P::Ve})
        if (!y.in(p, {9, 11}))
            return false;
    for (int p : {P::Su, P::Ma, P::Sa})
        if (!y.in(p, {6, 10}))
            return false;
    return c.CountPlanetInSign(y.H(9)) >= 1 && c.CountPlanetInSign(y.H(11)) >= 1 && c.CountPlanetInSign(y.H(6)) >= 1 &&
           c.CountPlanetInSign(y.H(10)) >= 1;
}
bool clsYoga::RajyaYoga2() const
{
    for (int p = 1; p <= 9; ++p)
        if (y.chart().CheckHora(p) == 1)
            return true;
    return false;
}
bool clsYoga::Mridanga2() const
{
    if (!ownEx(y.L(1)))
        return false;
    for (int p = 1; p <= 9; ++p) {
        const int q = navLord(p);
        if (y.exalted(p) && (kendra(q) || trikona(q)) && ownEx(q))
            return true;
    }
    return false;
}
bool clsYoga::ManMahendra1() const
{
    return y.in(P::Ve, {2}) && (navLord(P::Ve) == P::Ve || ownEx(P::Ve)) && ownEx(y.L(1));
}
bool clsYoga::ManMahendra3() const { return y.Lg() == 12 && y.S(P::Ve) == 12 && navSign(P::Ve) == 12; }
bool clsYoga::ManMahendra4() const { return y.exalted(y.L(1)) && sees(y.L(1), P::Mo); }
bool clsYoga::Surendra1() const
{
    return y.signIn(P::Sa, {7, 10, 11}) && kendra(P::Sa) && y.with(y.L(10), P::Sa) && sees(y.L(10), P::Sa);
}
bool clsYoga::Surendra2() const { return y.in(P::Ra, {5}) && y.with(P::Mo, P::Ma) && y.in(P::Mo, {2, 3}); }
bool clsYoga::Surendra3() const
{
    return y.signIn(P::As, {2, 5, 8, 11}) && y.in(P::Ju, {5}) && y.in(y.L(1), {10}) && y.chart().PlanetInKendra(P::Ju, P::Mo);
}
bool clsYoga::Surendra4() const
{
    return (y.signIn(P::Mo, {2, 4}) || navLord(P::Mo) == P::Mo || y.in(P::Mo, {9})) && y.in(P::Sa, {10}) && y.in(P::Ma, {2});
}
bool clsYoga::Vikrama1() const
{
    return gap(P::Su, P::Mo) >= 72 && (y.signIn(P::Mo, {2, 4}) || navLord(P::Mo) == P::Mo) && y.in(P::Mo, {4, 7, 10}) &&
           sees(P::Mo, P::Ju) && sees(P::Mo, P::Ve);
}
bool clsYoga::Vikrama2() const
{
    for (int p = 1; p <= 9; ++p)
        if (y.exalted(p) && sees(p, YogaChart::lord(y.S(p))))
            return true;
    return false;
}
bool clsYoga::Vikrama4() const { return ownEx(y.L(1)) && y.S(P::Mo) == 4 && exaltedCount(2, 7) >= 2; }
bool clsYoga::Deva4() const
{
    return y.in(P::Su, {3}) && y.in(P::Mo, {9}) && y.in(P::Ju, {5}) && vargottamaStrong(P::Su) && vargottamaStrong(P::Mo) &&
           vargottamaStrong(P::Ju);
}
bool clsYoga::Mrigendra3() const
{
    return y.Lg() == 10 && y.S(P::Ju) == 10 && y.lon(P::Su) >= 133.333333 && y.lon(P::Su) <= 136.666666;
}
bool clsYoga::Amitayu() const
{
    for (int p : {P::Su, P::Ma, P::Sa})
        if (!y.in(p, {3, 6, 11}))
            return false;
    return y.Lg() == 4 && y.S(P::Ju) == 4 && y.S(P::Mo) == 4 && kendra(P::Me) && kendra(P::Ve);
}
bool clsYoga::Purnayu1() const
{
    const int l1 = y.L(1);
    return kendra(P::Mo) && kendra(P::Ju) && kendra(P::Me) && kendra(P::Ve) &&
           (y.with(l1, P::Mo) || y.with(l1, P::Me) || y.with(l1, P::Ve) || y.with(l1, P::Ju) || sees(l1, P::Ju));
}
bool clsYoga::Purnayu2() const { return kendra(y.L(1)) && y.with(y.L(1), P::Ju) && y.with(y.L(1), P::Ve); }
bool clsYoga::Purnayu3() const
{
    for (int p : {P::Su, P::Ma, P::Sa, P::Ra, P::Ke})
        if (y.in(p, {8}))
            return false;
    return ownEx(y.L(1)) && y.with(y.L(1), y.L(8)) && exaltedCount(1, 9) >= 3;
}
bool clsYoga::Purnayu4() const
{
    for (int p = 1; p <= 9; ++p)
        if (y.exalted(p) && y.with(p, P::Sa) && y.with(p, y.L(8)))
            return true;
    return false;
}
bool clsYoga::Purnayu5() const
{
    for (int p : {P::Su, P::Ma, P::Sa})
        if (!y.in(p, {3, 6, 11}))
            return false;
    return kendra(P::Mo) && kendra(P::Ju) && kendra(P::Ve) && kendra(P::Me);
}
bool clsYoga::Purnayu6() const
{
    for (int p : {P::Ju, P::Ve, P::Me})
        if (!y.in(p, {6, 7, 8}))
            return false;
    for (int p : {P::Su, P::Ma, P::Sa})
        if (!y.in(p, {3, 6, 11}))
            return false;
    return true;
}
bool clsYoga::Purnayu7() const
{
    return kendra(y.L(1)) && y.in(P::Su, {6, 12}) && y.in(P::Ma, {6, 12}) && y.in(P::Sa, {6, 12});
}
bool clsYoga::Purnayu8() const
{
    return y.exalted(y.L(10)) && (y.in(P::Su, {8}) || y.in(P::Ma, {8}) || y.in(P::Sa, {8})) && !y.in(P::Ra, {8}) &&
           !y.in(P::Ke, {8});
}
bool clsYoga::Purnayu9() const
{
    // The innermost term is a sign number, handed to the kendra test as a planet number.
    const int s = y.S(YogaChart::lord(y.S(YogaChart::lord(y.S(y.L(8))))));
    return y.chart().PlanetInKendra(s, P::As) && kendra(y.L(1));
}
bool clsYoga::Purnayu10() const
{
    return y.signIn(P::As, {3, 6, 9, 12}) && kendra(y.L(1)) && trikona(y.L(1)) && y.exalted(y.L(1));
}
bool clsYoga::Shatadhika1() const
{
    return vargottamaStrong(P::Su) && vargottamaStrong(P::Ju) && vargottamaStrong(P::Ma) && y.in(P::Mo, {1}) &&
           y.in(P::Su, {9}) && y.in(P::Ju, {9}) && y.in(P::Ma, {9});
}
bool clsYoga::Shatadhika2() const
{
    return vargottamaStrong(P::Su) && vargottamaStrong(P::Ju) && vargottamaStrong(P::Ma) && y.in(P::Mo, {1}) &&
           navSign(P::Su) == 10 && navSign(P::Ju) == 10 && navSign(P::Ma) == 10;
}
bool clsYoga::Rudra1() const
{
    // The first branch asks the Lagna to be Sagittarius or Pisces and neither; only the second can hold.
    const bool first = y.Lg() != 9 && y.Lg() != 12 && y.signIn(P::As, {9, 12}) && y.in(P::Ju, {12}) && y.L(3) == P::Sa &&
                       y.in(P::Sa, {11});
    return first || (y.signIn(P::As, {9, 12}) && y.in(P::Ju, {12}) && y.in(P::Su, {11}));
}
bool clsYoga::Rudra2() const { return y.in(navLord(y.L(9)), {4, 5}); }
bool clsYoga::Rudra3() const
{
    return (ownEx(P::Me) || navSign(P::Me) == y.S(P::Me)) && (ownEx(P::Ju) || navSign(P::Ju) == y.S(P::Ju)) &&
           (y.with(P::Me, P::Ju) || sees(P::Me, P::Ju));
}
bool clsYoga::Paravata1() const { return y.in(P::Ju, {1}) && kendra(P::Me) && sees(P::Me, y.L(9)); }
bool clsYoga::Paravata2() const
{
    return (y.signIn(P::Sa, {10, 11, 7}) || kendra(P::Sa) || trikona(P::Sa)) && (sees(P::Sa, y.L(11)) || sees(P::Sa, y.L(2)));
}
bool clsYoga::Paravata3() const
{
    return y.in(P::Mo, {1}) && y.in(P::Ju, {4}) && y.in(P::Ve, {10}) && y.signIn(P::Sa, {10, 11, 7});
}
bool clsYoga::Devamsha1() const
{
    bool fallen = false;
    for (int p = 1; p <= 9; ++p)
        fallen = fallen || (y.debilitated(p) && y.with(p, y.L(1)));
    return fallen && y.in(P::Ra, {10}) && y.in(P::Sa, {11}) && sees(P::Sa, y.L(9));
}

// ---- rays, lightning, Kailash, the lotus, the universe ----

bool clsYoga::Rashmi5() const
{
    return y.Lg() == 10 && navSign(P::Ma) != 4 && gap(P::Ma, P::Su) > 8 && gap(P::Su, P::Ma) > 8 && sees(P::Ma, P::Su) &&
           sees(P::Ma, P::Ju) && sees(P::Ma, P::Mo);
}
bool clsYoga::Tarit2() const
{
    return y.signIn(P::Su, {1, 5}) && navLord(P::Ve) == P::Ve && navLord(P::Me) == P::Me && y.from(P::Me, {3, 6, 8}, P::Mo) &&
           y.from(P::Ve, {3, 6, 8}, P::Mo);
}
bool clsYoga::Tarit4() const
{
    return (y.Lg() == 2 || y.S(P::Mo) == 4) && kendra(P::Mo) && gap(P::Mo, P::Su) > 168 && gap(P::Mo, P::Su) < 192;
}
bool clsYoga::Tarit5() const
{
    return y.in(P::Ve, {1}) && y.in(P::Ju, {2}) && gap(P::Su, P::Ve) > 7 && gap(P::Ve, P::Su) > 7 && gap(P::Su, P::Ju) > 9 &&
           gap(P::Ju, P::Su) > 9 && navSign(P::Ve) == 7 && navSign(P::Ju) == 7;
}
bool clsYoga::Kailash1() const
{
    return y.lon(P::Me) > 165 && y.lon(P::Me) < 170 && gap(P::Su, P::Me) > 7 && gap(P::Me, P::Su) > 7 && y.with(P::Me, P::Su);
}
bool clsYoga::Kailash2() const
{
    return gap(P::Su, P::Me) > 7 && gap(P::Me, P::Su) > 7 && y.with(P::Me, P::Su) && y.in(P::Me, {4}) && y.with(P::Sa, P::Mo) &&
           y.in(P::Sa, {10}) && y.in(P::Ma, {1});
}
bool clsYoga::Kailash3() const
{
    return y.with(P::Sa, P::Ma) && y.in(P::Sa, {10, 5, 1}) && y.signIn(P::Mo, {9, 12}) && gap(P::Su, P::Mo) > 168 &&
           gap(P::Su, P::Mo) < 192;
}
bool clsYoga::Dehakashta1() const
{
    const int l1 = y.L(1), lg = y.Lg();
    const bool weak = !y.exalted(l1) && !y.own(l1);
    const bool alone = (!y.with(l1, P::Su) || lg == 5) && (!y.with(l1, P::Ma) || lg == 1 || lg == 8) &&
                       (!y.with(l1, P::Sa) || lg == 10 || lg == 11) && !y.with(l1, P::Ra) && !y.with(l1, P::Ke) &&
                       y.in(l1, {8}) && weak;
    const bool afflicted = ((y.with(l1, P::Su) && lg != 5) || (y.with(l1, P::Ma) && lg != 1 && lg != 8) ||
                            (y.with(l1, P::Sa) && lg != 10 && lg != 11) || y.with(l1, P::Ra) || y.with(l1, P::Ke)) &&
                           weak;
    return alone || afflicted;
}
bool clsYoga::Arvind1() const
{
    // The aspect test is handed the planet numbers of Venus, the Moon, Mercury and Jupiter where
    // it takes a sign: it asks for the signs 3, 7, 2 and 5.
    const int l1 = y.L(1);
    const clsPlanets &c = y.chart();
    return ownEx(l1) && kendra(l1) &&
           (c.CheckIfPlanetAspects(l1, P::Ve) || c.CheckIfPlanetAspects(l1, P::Mo) || c.CheckIfPlanetAspects(l1, P::Me) ||
            c.CheckIfPlanetAspects(l1, P::Ju));
}
bool clsYoga::Arvind2() const { return y.exalted(y.L(1)) && gap(P::Mo, P::Su) > 72 && sees(P::Mo, y.L(1)); }
bool clsYoga::Arvind3() const
{
    return gap(P::Mo, P::Su) > 168 && gap(P::Mo, P::Su) < 192 && y.in(P::Mo, {4, 7, 10}) && sees(P::Mo, P::Ju) &&
           sees(P::Mo, P::Ve);
}
bool clsYoga::Arvind4() const
{
    // The combustion test is handed the lord's longitude as the planet and its number as the
    // longitude, as the rule writes it; outside the planets 2..7 it answers Empty, read as no.
    const int l1 = y.L(1);
    const bool combust = clsPlanets::CheckIfCombust(static_cast<int>(y.lon(l1)), l1, y.lon(P::Su)).value_or(false);
    return !y.debilitated(l1) && !combust && !y.chart().InEnemyHouse(l1) && kendra(l1);
}
bool clsYoga::Arvind5() const
{
    return y.in(P::Ju, {5}) && y.in(P::Mo, {3}) && y.in(P::Su, {9}) &&
           (vargottamaStrong(P::Ju) || vargottamaStrong(P::Mo) || vargottamaStrong(P::Su));
}
bool clsYoga::Arvind6() const
{
    return y.Lg() == 9 && y.in(P::Su, {1}) && navSign(P::Su) == 9 && y.S(P::Mo) == 6 && y.S(P::Ma) == 6 && y.S(P::Ve) == 8;
}
bool clsYoga::Brahamand1() const
{
    for (int p : {P::Su, P::Ma, P::Sa})
        if (!y.in(p, {3, 6, 11}))
            return false;
    const int l1 = y.L(1);
    return sees(l1, P::Mo) || sees(l1, P::Me) || sees(l1, P::Ve) || sees(l1, P::Ju);
}
bool clsYoga::Brahamand2() const
{
    return y.S(P::Ma) == 10 && navSign(P::Ma) != 4 && y.in(P::Sa, {9, 12}) && y.in(P::Su, {7}) && y.in(P::Mo, {7});
}
bool clsYoga::Brahamand3() const
{
    // The last branch asks the Lagna to be Cancer and Aries at once and never holds.
    const int lg = y.Lg(), mo = y.S(P::Mo);
    const bool withSa = y.with(P::Sa, P::Mo) && navSign(P::Sa) != 1;
    return (lg != 4 && ((mo != 10 && mo == 11 && lg == 1 && withSa) || (mo == 10 && lg == 1 && withSa))) ||
           (lg == 4 && navSign(P::Mo) != 8 && lg == 1 && y.with(P::Sa, P::Mo));
}
bool clsYoga::Brahamand4() const
{
    const int l1 = y.L(1);
    return y.S(P::Ju) == 2 && y.S(P::Mo) == 2 && y.in(l1, {5, 9}) && vargottamaStrong(l1) && sees(l1, P::Sa) && sees(l1, P::Ma);
}
bool clsYoga::Rajrajeshwar1() const { return y.S(P::Su) == 12 && y.Lg() == 4 && y.S(P::Mo) == 4 && navSign(P::Mo) != 8; }
bool clsYoga::Rajrajeshwar2() const
{
    const int lg = y.Lg();
    return (lg == 1 && y.in(P::Sa, {1}) && y.signIn(P::Ma, {1, 10}) && navSign(P::Ma) != 4) ||
           (y.signIn(P::As, {7, 9, 10, 11, 12}) && y.in(P::Sa, {1}) && navSign(P::Sa) != 1);
}

// ---- rules kept as written, added with the settled ones ----

bool clsYoga::ManMahendra2() const
{
    if (gap(P::Su, P::Mo) < 72 || !(navLord(P::Mo) == P::Mo || ownEx(P::Mo)) || !sees(P::Mo, P::Ve))
        return false;
    for (int p : {P::Ju, P::Sa, P::Me, P::Ma, P::Su})
        if (sees(P::Mo, p))
            return false;
    return !y.chart().DayBirth();
}
bool clsYoga::Mrigendra2() const
{
    const int l10 = y.L(10);
    return y.in(l10, {8}) && ownEx(l10) && gopuram(l10) == 6;
}
