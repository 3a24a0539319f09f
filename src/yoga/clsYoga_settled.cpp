// SPDX-License-Identifier: AGPL-3.0-or-later
// The catalogue's rules whose terms this program settles: the ones that count over planets
// without saying how many, and the ones whose terms run on "of the same kind". Each says what it
// reads; docs/decisions.md ("Yoga catalogue") gives the reasons. Counting rules use the seven
// planets 1..7; malefics are the Sun, Mars, Saturn, Rahu and Ketu, benefics Jupiter, Venus,
// Mercury and the Moon, as in the rest of the catalogue.
#include "yoga/clsYoga.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

using P = YogaChart::Planet;

namespace {

constexpr std::initializer_list<int> kMalefic{P::Su, P::Ma, P::Sa, P::Ra, P::Ke};
constexpr std::initializer_list<int> kBenefic{P::Ju, P::Ve, P::Me, P::Mo};

} // namespace

int clsYoga::countIn(std::initializer_list<int> planets, std::initializer_list<int> houses) const
{
    int n = 0;
    for (int p : planets)
        n += y.in(p, houses) ? 1 : 0;
    return n;
}

// The planet joins, or is seen by the sign test of, one of the benefics: with Jupiter, Venus,
// Mercury or the Moon, 7th from Venus, Mercury or the Moon, or 5th, 7th or 9th from Jupiter.
bool clsYoga::beneficLinked(int p) const
{
    return withAny(p, kBenefic) || y.from(p, {7}, P::Ve) || y.from(p, {7}, P::Me) || y.from(p, {7}, P::Mo) ||
           y.from(p, {7, 5, 9}, P::Ju);
}

// ---- standing and long life ----

// At least five of the seven planets in the hora of their kind: the Sun, Mars and Jupiter in the
// Sun's half of their sign, the Moon, Venus and Saturn in the Moon's, Mercury in either.
bool clsYoga::RajyaYoga3() const
{
    const clsPlanets &c = y.chart();
    int n = 0;
    for (int p : {P::Su, P::Ma, P::Ju})
        n += c.CheckHora(p) == 1 ? 1 : 0;
    for (int p : {P::Mo, P::Ve, P::Sa})
        n += c.CheckHora(p) == 7 ? 1 : 0;
    return n + 1 >= 5; // Mercury always stands in one of the two
}

// The first exalted planet, taken Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, has a
// navamsha lord own or exalted in a kendra from the Lagna; the Lagna lord own or exalted.
bool clsYoga::Mridanga1() const
{
    if (!ownEx(y.L(1)))
        return false;
    static constexpr int order[][2] = {{P::Su, 1}, {P::Mo, 2}, {P::Ma, 10}, {P::Me, 6}, {P::Ju, 4}, {P::Ve, 12}, {P::Sa, 7}};
    for (const auto &[p, sign] : order)
        if (y.S(p) == sign) {
            const int n = navLord(p);
            return ownEx(n) && y.chart().PlanetInKendra(n, P::As);
        }
    return false;
}

// At least two planets exalted and in kendras from the Lagna, and the Moon in a kendra.
bool clsYoga::Vikrama3() const
{
    int n = 0;
    for (int p = 1; p <= 7; ++p)
        n += y.exalted(p) && kendra(p) ? 1 : 0;
    return n >= 2 && kendra(P::Mo);
}

// The 10th lord among at least three planets that stand own or exalted in kendras.
bool clsYoga::Mrigendra1() const
{
    int n = 0;
    for (int p = 1; p <= 7; ++p)
        n += ownEx(p) && kendra(p) ? 1 : 0;
    const int l10 = y.L(10);
    return n >= 3 && ownEx(l10) && kendra(l10);
}

// At least three benefics in kendras or trikonas, no malefic in the 8th, the 8th lord own or exalted.
bool clsYoga::Purnayu11() const
{
    int n = 0;
    for (int p : kBenefic)
        n += kendra(p) || trikona(p) ? 1 : 0;
    return n >= 3 && countIn(kMalefic, {8}) == 0 && ownEx(y.L(8));
}

// At least three benefics in kendras and the Lagna lord own or exalted.
bool clsYoga::Paravata4() const { return countIn(kBenefic, {1, 4, 7, 10}) >= 3 && ownEx(y.L(1)); }

// At least two planets own in kendras and the 9th lord with the 10th lord.
bool clsYoga::Devamsha2() const
{
    int n = 0;
    for (int p = 1; p <= 7; ++p)
        n += y.own(p) && kendra(p) ? 1 : 0;
    return n >= 2 && y.with(y.L(9), y.L(10));
}

// The 9th and 2nd lords joined or in aspect, and then the 6th and 7th lords, or the 5th and 6th,
// joined, in kendras from each other or in aspect. (The first branch as written can't hold.)
bool clsYoga::Devamsha3() const
{
    const auto joined = [this](int a, int b) { return y.with(a, b) || sees(a, b); };
    const auto near = [this, &joined](int a, int b) { return joined(a, b) || y.chart().PlanetInKendra(a, b); };
    return joined(y.L(9), y.L(2)) && (near(y.L(6), y.L(7)) || near(y.L(5), y.L(6)));
}

// At least four planets exalted and the Lagna lord in a kendra.
bool clsYoga::Maharajadhiraj5() const { return exaltedCount(1, 7) >= 4 && kendra(y.L(1)); }

// At least three planets exalted in kendras and Jupiter in the 1st or 4th.
bool clsYoga::Maharajadhiraj6() const
{
    int n = 0;
    for (int p = 1; p <= 7; ++p)
        n += y.exalted(p) && kendra(p) ? 1 : 0;
    return n >= 3 && y.in(P::Ju, {1, 4});
}

// The Sun and the Moon own, exalted or in their own navamsha, and at least two other planets exalted.
bool clsYoga::Rashmi1() const
{
    return vargottamaStrong(P::Su) && vargottamaStrong(P::Mo) && exaltedCount(2, 6) >= 2;
}

// The written terms, with Venus held off the Sun on both sides as Mercury is.
bool clsYoga::Rashmi4() const
{
    return y.signIn(P::Su, {1, 4, 5, 8, 9, 12}) && navSign(P::Su) == 12 && y.signIn(P::Mo, {1, 2, 4, 5, 9, 12}) &&
           navSign(P::Mo) == 12 && gap(P::Mo, P::Su) > 12 && gap(P::Su, P::Mo) > 12 &&
           y.signIn(P::Me, {2, 3, 6, 7, 10, 11}) && navSign(P::Me) == 11 && gap(P::Me, P::Su) > 7 &&
           gap(P::Su, P::Me) > 7 && y.signIn(P::Ve, {2, 3, 12, 7, 10, 11}) && navSign(P::Ve) == 11 &&
           gap(P::Ve, P::Su) > 7 && gap(P::Su, P::Ve) > 7;
}

// The written terms: the Lagna lord in a dusthana, out of its own sign, with no benefic on it.
bool clsYoga::Dehakashta2() const
{
    const int l1 = y.L(1);
    if (!y.in(l1, {6, 8, 12}) || l1 == YogaChart::lord(y.S(l1)))
        return false;
    for (int b : kBenefic)
        if (y.with(l1, b) || sees(l1, b))
            return false;
    return true;
}

// At least three planets own or exalted in kendras, the Moon among the kendras too.
bool clsYoga::Rajrajeshwar3() const
{
    int n = 0;
    for (int p = 1; p <= 7; ++p)
        n += ownEx(p) && kendra(p) ? 1 : 0;
    return n >= 3 && kendra(P::Mo);
}

// The tortoise: at least two of Jupiter, Venus and Mercury own or exalted in the 5th, 6th or 7th,
// and at least two of the Sun, Mars and Saturn own or exalted in the 1st, 3rd or 11th.
bool clsYoga::Kurma() const
{
    int gentle = 0, hard = 0;
    for (int p : {P::Ju, P::Ve, P::Me})
        gentle += ownEx(p) && y.in(p, {5, 6, 7}) ? 1 : 0;
    for (int p : {P::Su, P::Ma, P::Sa})
        hard += ownEx(p) && y.in(p, {1, 3, 11}) ? 1 : 0;
    return gentle >= 2 && hard >= 2;
}

// The written terms: the benefics on the 8th and on the 10th.
bool clsYoga::JaiminiRY7() const { return beneficOn(y.H(8)) && beneficOn(y.H(10)); }

// At least two benefics in kendras from the Atma Karaka's sign.
bool clsYoga::JaiminiRY16() const
{
    int n = 0;
    for (int p : kBenefic)
        n += fromKaraka({p}, 1) || fromKaraka({p}, 4) || fromKaraka({p}, 7) || fromKaraka({p}, 10) ? 1 : 0;
    return n >= 2;
}

// An empty 5th, and the 6th and 12th, or else the 4th and 10th, holding as many planets as each
// other, neither of them Rahu or Ketu's.
bool clsYoga::JaiminiArishta4() const
{
    const clsPlanets &c = y.chart();
    const auto balanced = [&](int a, int b) {
        const int na = c.CountPlanetInSign(y.H(a)), nb = c.CountPlanetInSign(y.H(b));
        return na != 0 && nb != 0 && !anyIn({P::Ra, P::Ke}, {a, b}) && na == nb;
    };
    if (c.CountPlanetInSign(y.H(5)) != 0)
        return false;
    if (c.CountPlanetInSign(y.H(4)) == 0)
        return balanced(6, 12);
    return balanced(4, 10);
}

// ---- wealth and its loss ----

// The two branches as written: the 11th lord not of six own divisions, the lord of the 11th from
// the Moon of six, ...; or the 11th lord of six, in a kendra or trikona, with a benefic in the 10th.
bool clsYoga::DhanaYoga46() const
{
    const int l11 = y.L(11), n11 = navLord(l11);
    const bool placed = trikona(l11) || kendra(l11);
    if (gopuram(l11) != 6)
        return gopuram(YogaChart::lord(Norm12(y.S(P::Mo) + 10))) == 6 && placed && withAny(n11, kBenefic);
    return placed && anyIn(kBenefic, {10});
}

// The 2nd lord in the 8th with at least two malefics there.
bool clsYoga::Dhanahani6() const { return y.in(y.L(2), {8}) && countIn(kMalefic, {8}) >= 2; }
// The 2nd lord in the 12th with at least two malefics there.
bool clsYoga::Dhanahani9() const { return y.in(y.L(2), {12}) && countIn(kMalefic, {12}) >= 2; }
// At least two malefics in the 2nd, its lord neither own nor exalted.
bool clsYoga::Dhanahani12() const { return countIn(kMalefic, {2}) >= 2 && !ownEx(y.L(2)); }
// At least two malefics in the 11th, its lord debilitated or in a dusthana.
bool clsYoga::Dhanahani23() const
{
    const int l11 = y.L(11);
    return countIn(kMalefic, {11}) >= 2 && (y.debilitated(l11) || y.in(l11, {6, 8, 12}));
}
// At least two of the Sun, Mars and Saturn cast their sign aspect on the 2nd, and no benefic
// holds or aspects it.
bool clsYoga::Dhanahani35() const
{
    const int h2 = y.H(2);
    int n = 0;
    for (int p : {P::Su, P::Ma, P::Sa})
        n += y.aspects(p, h2) ? 1 : 0;
    for (int b : kBenefic)
        if (y.S(b) == h2 || y.aspects(b, h2))
            return false;
    return n >= 2;
}
// The 2nd and 11th lords both in dusthanas, each joined by a malefic.
bool clsYoga::Dhanahani36() const
{
    const int l2 = y.L(2), l11 = y.L(11);
    const auto marred = [this](int l) {
        for (int m : kMalefic)
            if (m != l && y.with(l, m))
                return true;
        return false;
    };
    return y.in(l2, {6, 8, 12}) && y.in(l11, {6, 8, 12}) && marred(l2) && marred(l11);
}

// ---- the life topics ----

// The written terms: neither Jupiter nor Saturn rising, the Moon at least 72 degrees past the
// Sun, the Moon and Mercury in kendras, and Mercury joined or seen by any planet but the Moon.
bool clsYoga::MatiBhrama() const
{
    return !y.with(P::As, P::Ju) && !y.with(P::As, P::Sa) && gap(P::Mo, P::Su) > 72 && y.in(P::Mo, {1, 4, 7, 10}) &&
           y.in(P::Me, {1, 4, 7, 10}) &&
           (y.with(P::Me, P::Su) || y.from(P::Me, {7}, P::Su) || y.with(P::Me, P::Ve) || y.from(P::Me, {7}, P::Ve) ||
            y.with(P::Me, P::Ju) || y.from(P::Me, {7, 5, 9}, P::Ju) || y.from(P::Me, {7, 3, 10}, P::Sa) ||
            y.from(P::Me, {7, 4, 8}, P::Ma));
}

// Planets other than the Sun on both sides of the Moon: one of Mars, Mercury, Jupiter, Venus and
// Saturn in the 2nd sign from it and another in the 12th.
bool clsYoga::Durdhura() const
{
    bool second = false, twelfth = false;
    for (int p : {P::Ma, P::Me, P::Ju, P::Ve, P::Sa}) {
        second = second || y.from(p, {2}, P::Mo);
        twelfth = twelfth || y.from(p, {12}, P::Mo);
    }
    return second && twelfth;
}

// No sign of honesty in the 4th (NishKapata fails) and malefics in both the 4th and the 5th.
bool clsYoga::Kapata() const { return !NishKapata() && countIn(kMalefic, {4}) >= 1 && countIn(kMalefic, {5}) >= 1; }

// The Lagna lord and the 4th lord both joined or seen by a benefic, for the Lagnas of the list
// and for Sagittarius (whose Jupiter rules both); never for Gemini, which has its own rule.
bool clsYoga::MatriSneha() const
{
    const int lg = y.Lg();
    if (lg == 3 || !(lg == 1 || lg == 4 || lg == 5 || lg == 7 || lg == 9 || lg == 10 || lg == 11))
        return false;
    return beneficLinked(y.L(1)) && beneficLinked(y.L(4));
}

bool clsYoga::MatriShatrutwa() const
{
    const auto marred = [this](int p) {
        return withAny(p, kMalefic) || y.from(p, {7}, P::Su) || y.from(p, {7, 4, 8}, P::Ma) || y.from(p, {7, 3, 10}, P::Sa);
    };
    return !MatriSneha() && y.Lg() == 3 && marred(P::Me) && marred(P::Mo);
}

// The written terms up to Rahu in the 5th. Of them, "not combust or not debilitated", the 5th
// lord "not in 6 or not in 8 or not in 12" and the malefics' list always pass.
bool clsYoga::BahuSantana() const
{
    const int l5 = y.L(5), h5 = y.H(5);
    return l5 != P::Ju && ownEx(l5) &&
           (anyIn({P::Ve, P::Me, P::Mo}, {5}) || signFrom(h5, {7}, P::Ve) || signFrom(h5, {7}, P::Me) ||
            signFrom(h5, {7}, P::Mo)) &&
           y.in(P::Ra, {5});
}

// Jupiter rules the 5th, neither combust and debilitated at once; the rest of the written terms
// always pass (a sign can't be 5th and 7th from one planet).
bool clsYoga::Suputra() const
{
    return y.L(5) == P::Ju && !(combustAsWritten(P::Ju) && y.debilitated(P::Ju));
}

// The 5th lord, Jupiter or not, combust or debilitated, in a dusthana, with a malefic in the 5th
// or Mars or Saturn seeing it; and no rule of many, good or happy children holding.
bool clsYoga::Aputra() const
{
    if (BahuSantana() || Suputra() || Putrasukh())
        return false;
    const int l5 = y.L(5), h5 = y.H(5);
    return (combustAsWritten(l5) || y.debilitated(l5)) && y.in(l5, {6, 8, 12}) &&
           (anyIn(kMalefic, {5}) || signFrom(h5, {4, 7, 8}, P::Ma) || signFrom(h5, {3, 7, 10}, P::Sa));
}

bool clsYoga::Anapathya() const
{
    if (BahuSantana() || Suputra() || Aputra())
        return false;
    const auto weak = [this](int l, int sign) { return clsPlanets::CheckIfDebi(l, sign) || combustAsWritten(l); };
    // "lon(Ju.s)": the rule hands Jupiter's sign number where the planet goes.
    return weak(y.L(1), y.Lg()) && weak(y.L(5), y.H(5)) && weak(y.L(7), y.H(7)) &&
           (y.debilitated(P::Ju) || combustAsWritten(y.S(P::Ju)));
}

bool clsYoga::Ekputra() const
{
    if (BahuSantana() || Suputra() || Aputra())
        return false;
    const int l5 = y.L(5);
    // The combustion tests hand the sign number where the longitude goes.
    const double sun = y.lon(P::Su);
    return (kendra(l5) || trikona(l5)) && !y.debilitated(P::Ju) &&
           !clsPlanets::CheckIfCombust(P::Ju, y.S(P::Ju), sun).value_or(false) && !y.debilitated(l5) &&
           !clsPlanets::CheckIfCombust(l5, y.S(l5), sun).value_or(false);
}

// The Moon with Saturn: every other written term always passes.
bool clsYoga::Durbhashi() const { return y.with(P::Mo, P::Sa); }

// The Moon in Libra seen or joined by Saturn and by Mars (the branch for the Moon out of Libra
// asks for a longitude inside Libra and can't hold).
bool clsYoga::Nisthura() const
{
    return y.S(P::Mo) == 7 && (y.with(P::Mo, P::Sa) || y.from(P::Mo, {3, 7, 10}, P::Sa)) &&
           (y.with(P::Mo, P::Ma) || y.from(P::Mo, {4, 7, 8}, P::Ma));
}

// The written terms, with the Moon's navamsha kept off the Lagna navamsha lord's as Jupiter's and
// Venus's are. "NavamshLord(Lg)" is the lord of the Lagna's navamsha.
bool clsYoga::Krishanga2() const
{
    const int nl = navLord(P::As), nAs = navSign(P::As), nNl = navSign(nl);
    const int l = YogaChart::lord(nAs);
    return y.signIn(nl, {1, 2, 3, 5, 6, 9}) && nAs == 6 && (l == P::Su || l == P::Ma || l == P::Me) &&
           navSign(P::Ju) != nAs && navSign(P::Ve) != nAs && navSign(P::Mo) != nAs && navSign(P::Ju) != nNl &&
           navSign(P::Ve) != nNl && navSign(P::Mo) != nNl;
}

// A gentle sixtieth part: the planet's shashtiamsha is one of the benefic ones.
bool clsYoga::CheckMriduAmsha(int p) const { return y.chart().SashtiAmshaBenefic(p); }
