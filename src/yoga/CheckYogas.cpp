// SPDX-License-Identifier: AGPL-3.0-or-later
#include "yoga/CheckYogas.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "strength/Ashtakavarga.h"
#include "yoga/YogaChart.h"
#include "yoga/clsYoga.h"

#include <cmath>
#include <functional>

using P = YogaChart::Planet;

namespace CheckYogas {
namespace {

using Test = std::function<bool(const YogaChart &)>;

struct Rule
{
    const char *name;
    const char *text; // nullptr: the name's key
    Test holds;
};

bool anyIn(const YogaChart &y, std::initializer_list<int> planets, std::initializer_list<int> houses)
{
    for (int p : planets)
        if (y.in(p, houses))
            return true;
    return false;
}

bool anyFrom(const YogaChart &y, std::initializer_list<int> planets, std::initializer_list<int> counts, int q)
{
    for (int p : planets)
        if (y.from(p, counts, q))
            return true;
    return false;
}

bool allOf(std::initializer_list<int> planets, const std::function<bool(int)> &f)
{
    for (int p : planets)
        if (!f(p))
            return false;
    return true;
}

bool ownOrExalted(const YogaChart &y, int p) { return y.own(p) || y.exalted(p); }

// The sums of the total table over the signs 1-4, 5-8 and 9-12.
struct Thirds
{
    int a = 0, b = 0, c = 0;
};
Thirds thirds(const clsPlanets &c)
{
    c.AshTable();
    Thirds t;
    for (int s = 1; s <= 4; ++s)
        t.a += c.AshTotal(s);
    for (int s = 5; s <= 8; ++s)
        t.b += c.AshTotal(s);
    for (int s = 9; s <= 12; ++s)
        t.c += c.AshTotal(s);
    return t;
}

// The Kotiswara tally: eight givers with their own flags.
bool kotiswara(const YogaChart &y)
{
    const clsPlanets &c = y.chart();
    static constexpr std::array<std::pair<int, std::array<int, 12>>, 8> kGivers{{
        {P::Su, {0, 0, 1, 0, 0, 1, 1, 1, 0, 1, 1, 0}},
        {P::Mo, {1, 0, 1, 0, 0, 1, 1, 0, 0, 1, 1, 0}},
        {P::Ma, {0, 1, 1, 0, 1, 1, 0, 0, 1, 1, 1, 0}},
        {P::Me, {1, 0, 1, 1, 1, 0, 1, 1, 0, 1, 1, 0}},
        {P::Ju, {1, 0, 0, 1, 0, 0, 1, 1, 0, 1, 1, 1}},
        {P::Ve, {0, 0, 1, 1, 1, 0, 1, 0, 1, 1, 1, 0}},
        {P::Sa, {0, 0, 1, 0, 1, 1, 0, 0, 0, 0, 1, 0}},
        {P::As, {0, 0, 1, 0, 0, 1, 0, 0, 0, 1, 1, 0}},
    }};
    for (int s = 1; s <= 12; ++s)
        c.setAshtak(s, 0);
    for (const auto &[giver, flags] : kGivers)
        c.AshComp(flags, y.S(giver));
    bool found = false;
    for (int s = 1; s <= 12 && !found; ++s) {
        const int moon = y.S(P::Mo);
        found = c.Ashtak(s) == 8 &&
                (s == moon || s == Norm12(moon + 3) || s == Norm12(moon + 6) || s == Norm12(moon + 9));
    }
    for (int s = 1; s <= 12; ++s)
        c.setAshtak(s, 0);
    return found;
}

// Step 1: the Ashtakavarga yogas.
QList<Rule> ashtakaRules()
{
    return {
        {"Damaruka", nullptr, [](const YogaChart &y) { const Thirds t = thirds(y.chart()); return t.a > t.b && t.c > t.b; }},
        {"Kaahala", nullptr, [](const YogaChart &y) { const Thirds t = thirds(y.chart()); return t.a < t.b && t.b < t.c; }},
        {"Veenna", nullptr, [](const YogaChart &y) { const Thirds t = thirds(y.chart()); return t.a > t.b && t.b > t.c; }},
        // As written, "and" binding tighter than "or".
        {"Sarvanga", nullptr,
         [](const YogaChart &y) {
             const Thirds t = thirds(y.chart());
             const int ab = std::abs(t.a - t.b), cb = std::abs(t.c - t.b);
             return ab == 0 || (ab == 1 && cb == 0) || cb == 1;
         }},
        {"Kotiswara", nullptr, kotiswara},
    };
}

// Step 2: the classical list, rules 6 to 76.
QList<Rule> classicRules(bool &ubhaychari)
{
    return {
        {"Gajkeshari", "Gajakeshari", [](const YogaChart &y) { return y.from(P::Ju, {4, 7, 10}, P::Mo); }},
        {"Amala", nullptr, [](const YogaChart &y) { return y.from(P::Ve, {4, 7, 10}, P::Mo); }},
        {"Chandradhi", nullptr, [](const YogaChart &y) { return allOf({P::Ju, P::Ve, P::Me}, [&](int p) { return y.from(p, {6, 7, 8}, P::Mo); }); }},
        {"Lagnadhi", nullptr, [](const YogaChart &y) { return allOf({P::Ju, P::Ve, P::Me}, [&](int p) { return y.in(p, {6, 7, 8}); }); }},
        {"Vasumati", nullptr, [](const YogaChart &y) { return allOf({P::Ju, P::Ve, P::Me, P::Mo}, [&](int p) { return y.in(p, {3, 6, 10, 11}); }); }},
        {"Ruchaka", nullptr, [](const YogaChart &y) { return y.signIn(P::Ma, {1, 8, 10}) && y.in(P::Ma, {1, 4, 7, 10}); }},
        {"Bhadra", nullptr, [](const YogaChart &y) { return y.signIn(P::Me, {3, 6}) && y.in(P::Me, {1, 4, 7, 10}); }},
        {"Hamsa", nullptr, [](const YogaChart &y) { return y.signIn(P::Ju, {4, 9, 12}) && y.in(P::Ju, {1, 4, 7, 10}); }},
        {"Malavya", nullptr, [](const YogaChart &y) { return y.signIn(P::Ve, {2, 7, 12}) && y.in(P::Ve, {1, 4, 7, 10}); }},
        {"Shasha", nullptr, [](const YogaChart &y) { return y.signIn(P::Sa, {10, 11, 7}) && y.in(P::Sa, {1, 4, 7, 10}); }},
        {"Shakata", nullptr, [](const YogaChart &y) { return y.S(P::Ju) - y.S(P::Mo) == 5 && !y.in(P::Mo, {1, 4, 7, 10}); }},
        {"Kemadruma", nullptr,
         [](const YogaChart &y) {
             for (int p : {P::Su, P::Me, P::Ve, P::Ma, P::Ju, P::Sa})
                 if (y.with(p, P::Mo) || y.from(p, {2, 4, 7, 10, 12}, P::Mo))
                     return false;
             return true;
         }},
        {"DainyaYoga", nullptr,
         [](const YogaChart &y) {
             return (!y.in(y.L(6), {6, 8, 12}) || !y.in(y.L(8), {6, 8, 12}) || !y.in(y.L(12), {6, 8, 12})) &&
                    (y.in(YogaChart::lord(y.S(y.L(6))), {6}) || y.in(YogaChart::lord(y.S(y.L(12))), {12}));
         }},
        {"KhalaYoga", nullptr,
         [](const YogaChart &y) {
             if (!y.in(y.L(3), {1, 2, 4, 5, 7, 9, 10, 11}))
                 return false;
             for (int h : {1, 2, 4, 5, 7, 9, 10, 11})
                 if (y.in(y.L(h), {3}))
                     return true;
             return false;
         }},
        {"HarshaYoga", nullptr, [](const YogaChart &y) { return y.in(y.L(6), {6}); }},
        {"SaralaYoga", nullptr, [](const YogaChart &y) { return y.in(y.L(8), {8}); }},
        {"VimalYoga", "VimalaYoga", [](const YogaChart &y) { return y.in(y.L(12), {12}); }},
        {"VipreetRajaYoga", "VipreetaRajaYoga",
         [](const YogaChart &y) { return y.in(y.L(6), {8, 12}) || y.in(y.L(8), {6, 8, 12}) || y.in(y.L(12), {6}); }},
        {"BudhAditya", nullptr, [](const YogaChart &y) { return y.with(P::Me, P::Su) && y.signIn(P::Me, {3, 5, 6}); }},
        {"VidyaYoga", nullptr,
         [](const YogaChart &y) {
             const auto apart = [&](int a, int b) { const int d = std::abs(y.S(y.L(a)) - y.S(y.L(b))); return d == 0 || d == 6; };
             return apart(4, 5) || apart(1, 5) || apart(2, 4);
         }},
        {"KahalaYoga", "Kahala",
         [](const YogaChart &y) { return ownOrExalted(y, y.L(1)) && std::abs(y.S(y.L(4)) - y.S(y.L(9))) == 6; }},
        {"ChandraMangala", "ChandraMangalaYoga", [](const YogaChart &y) { return y.with(P::Ma, P::Mo); }},
        {"GuruMangala", "GuruMangalaYoga", [](const YogaChart &y) { return y.with(P::Ju, P::Ma); }},
        {"Jeeva", "JeevaYoga", [](const YogaChart &y) { return y.with(P::Mo, P::Ju); }},
        {"Ubhaychari", "UbhaychariYoga",
         [&ubhaychari](const YogaChart &y) {
             ubhaychari = anyFrom(y, {P::Ju, P::Me, P::Ve}, {2}, P::Su) && anyFrom(y, {P::Ju, P::Me, P::Ve}, {12}, P::Su);
             return ubhaychari;
         }},
        {"SubhavesiYoga", nullptr,
         [&ubhaychari](const YogaChart &y) { return !ubhaychari && anyFrom(y, {P::Ju, P::Ve, P::Me}, {2}, P::Su); }},
        {"SubhavasiYoga", nullptr,
         [&ubhaychari](const YogaChart &y) { return !ubhaychari && anyFrom(y, {P::Ju, P::Ve, P::Me}, {11}, P::Su); }},
        // A planet other than the Sun (and the nodes) in the 2nd, and in the 12th, from the Moon.
        {"Sunapha", "SunaphaYoga", [](const YogaChart &y) { return anyFrom(y, {P::Me, P::Ve, P::Ma, P::Ju, P::Sa}, {2}, P::Mo); }},
        {"Anapha", "AnaphaYoga", [](const YogaChart &y) { return anyFrom(y, {P::Me, P::Ve, P::Ma, P::Ju, P::Sa}, {12}, P::Mo); }},
        {"Pravrajya", nullptr,
         [](const YogaChart &y) {
             int n = 0;
             for (int p = 1; p <= 7; ++p)
                 n += y.with(p, y.L(10)) ? 1 : 0;
             return n >= 5;
         }},
        {"Samudra", nullptr, [](const YogaChart &y) { return allOf({1, 2, 3, 4, 5, 6, 7}, [&](int p) { return y.S(p) % 2 == 0; }); }},
        {"Kuldeepaka", nullptr, [](const YogaChart &y) { return y.in(P::Ve, {1}) && y.in(P::Me, {1}) && y.in(P::Ju, {1, 4, 7, 10}); }},
        {"Anivahuppu", "AnivaHuppu",
         [](const YogaChart &y) {
             for (int p = 1; p <= 9; ++p) {
                 int behind = 0, ahead = 0;
                 bool alone = true;
                 for (int q = 1; q <= 9; ++q) {
                     if (q == p)
                         continue;
                     const int d = y.S(q) - y.S(p);
                     alone = alone && d != 0;
                     behind += d >= -6 && d <= -1 ? 1 : 0;
                     ahead += d >= 1 && d <= 6 ? 1 : 0;
                 }
                 if (alone && behind == 4 && ahead == 4)
                     return true;
             }
             return false;
         }},
        // Planet 10 has no sign among the ten the scan reads, so this rule can't hold as written.
        {"Bhagya", "BhagyaYoga", [](const YogaChart &y) { return y.S(10) != 0 && y.with(10, y.L(9)) && y.in(10, {11}); }},
        {"Koorma", "KoormaYoga",
         [](const YogaChart &y) {
             return allOf({P::Ju, P::Me, P::Ve, P::Mo}, [&](int p) { return y.in(p, {5, 6, 7}); }) &&
                    allOf({P::Sa, P::Ra, P::Su}, [&](int p) { return y.in(p, {1, 3, 11}); });
         }},
        {"Kusuma", "KusumaYoga",
         [](const YogaChart &y) {
             return y.signIn(P::As, {2, 5, 8, 11}) && y.in(P::Ve, {1, 4, 7, 10}) && y.in(P::Mo, {1, 5, 9}) && y.in(P::Ju, {9}) &&
                    y.in(P::Sa, {10});
         }},
        {"Kusuma", "KusumaYoga", [](const YogaChart &y) { return y.in(P::Ju, {1}) && y.in(P::Mo, {7}) && y.in(P::Su, {2}); }},
        {"NabhiYoga", nullptr,
         [](const YogaChart &y) {
             return std::fabs(y.lon(P::Mo) - y.lon(P::Su)) <= 180 && y.in(P::Mo, {12}) && y.in(P::Ju, {12}) && y.in(y.L(11), {9});
         }},
        {"Kankandanda", "KankandandaYoga", [](const YogaChart &y) { return allOf({1, 2, 3, 4, 5, 6, 7}, [&](int p) { return y.signIn(p, {12, 1, 2, 7}); }); }},
        {"Ishtbala", "IshtbalaYoga", [](const YogaChart &y) { return y.in(y.L(1), {1, 4, 10}) && y.in(y.L(5), {1, 4, 10}) && y.in(y.L(9), {1, 4, 10}); }},
        {"Mooshala", "MooshalaYoga", [](const YogaChart &y) { return y.in(P::Ra, {11}) && y.exalted(y.L(10)) && y.from(y.L(10), {4, 7}, P::Sa); }},
        {"Kulshreshtha", "KulshreshthaYoga",
         [](const YogaChart &y) {
             return ownOrExalted(y, P::Ve) &&
                    (clsPlanets::CheckIfExalted(P::Ve, y.S(P::Sa)) || clsPlanets::CheckOwnHouse(P::Ve, y.S(P::Sa)));
         }},
        {"Ashtlakshmi", "AshtlakshamiYoga",
         [](const YogaChart &y) {
             const int next = Norm12(y.S(P::Ju) + 1);
             return ownOrExalted(y, P::Ju) && (next == y.H(1) || next == y.H(4) || next == y.H(7) || next == y.H(10));
         }},
        {"Pradhana", "PradhanaYoga",
         [](const YogaChart &y) {
             return allOf({P::Sa, P::Ma, P::Su}, [&](int p) { return y.in(p, {3, 6, 10, 11}); }) &&
                    (y.in(P::Ra, {3, 6, 10, 11}) || y.in(P::Ke, {3, 6, 10, 11}));
         }},
        // As written, "and" binding tighter than "or" inside each half.
        {"Arishta", "ArishtaYoga",
         [](const YogaChart &y) {
             const bool first = y.with(P::Sa, P::Mo) || y.from(P::Sa, {4, 11}, P::Mo) ||
                                (y.from(P::Sa, {7}, P::Mo) && y.with(P::Ma, P::Ve)) || y.from(P::Ma, {10, 6, 7}, P::Ve);
             const bool second = y.with(P::Sa, P::Ve) || y.from(P::Sa, {4, 11}, P::Ve) ||
                                 (y.from(P::Sa, {7}, P::Ve) && y.with(P::Ma, P::Mo)) || y.from(P::Ma, {10, 6, 7}, P::Mo);
             return first && second;
         }},
        {"AkhandaSamrajya", nullptr,
         [](const YogaChart &y) { return y.signIn(P::As, {5, 8, 11}) && (y.with(y.L(11), P::Mo) || y.from(y.L(11), {4, 7, 10}, P::Mo)); }},
        {"LakshmiYoga", nullptr, [](const YogaChart &y) { return ownOrExalted(y, y.L(9)) && y.in(y.L(9), {1, 4, 7, 10, 5, 9}); }},
        {"Gouri", "GouriYoga",
         [](const YogaChart &y) { return ownOrExalted(y, y.L(9)) && y.in(y.L(9), {1, 4, 5, 7, 9, 10}) && y.S(P::Mo) - y.S(P::Ju) == 8; }},
        {"Chatussgara", "Chatussagara", [](const YogaChart &y) { return y.countIn({1, 4, 7, 10}) == 7; }},
        {"Srikanta", "SrikantaYoga",
         [](const YogaChart &y) {
             return ownOrExalted(y, y.L(1)) && y.exalted(P::Mo) && y.exalted(P::Su) && y.in(y.L(1), {1, 4, 5, 7, 9, 10}) &&
                    y.in(P::Mo, {1, 4, 5, 7, 9, 10}) && y.in(P::Su, {1, 4, 5, 7, 9, 10});
         }},
        {"Srinath", "SrinathYoga",
         [](const YogaChart &y) {
             return ownOrExalted(y, y.L(9)) && y.exalted(P::Ve) && y.exalted(P::Me) && y.in(y.L(9), {1, 4, 5, 7, 9, 10}) &&
                    y.in(P::Ve, {1, 4, 5, 7, 9, 10}) && y.in(P::Me, {1, 4, 5, 7, 9, 10});
         }},
        {"Saraswati", "SaraswatiYoga",
         [](const YogaChart &y) { return y.exalted(P::Ju) && y.in(P::Ju, {1, 4, 5, 7, 9, 10}) && y.in(P::Ve, {1, 4, 5, 7, 9, 10}); }},
        {"Pushkala", "PushkalaYoga",
         [](const YogaChart &y) {
             bool strongInFirst = false;
             for (int p = 1; p <= 7; ++p)
                 strongInFirst = strongInFirst || (y.in(p, {1}) && ownOrExalted(y, p));
             return strongInFirst && y.aspects(YogaChart::lord(y.S(P::Mo)), y.Lg());
         }},
        {"Viranchi", "ViranchiYoga",
         [](const YogaChart &y) {
             const bool six8 = y.signIn(P::As, {6, 8});
             return y.signIn(P::As, {5, 8}) && y.exalted(P::Ju) && (y.in(P::Ju, {1, 4, 5, 7, 9, 10}) || six8) && y.exalted(P::Sa) &&
                    (y.in(P::Sa, {1, 4, 5, 7, 9, 10}) || six8);
         }},
        {"GuruChandala", "GuruchandalaYoga",
         [](const YogaChart &y) {
             return (y.with(P::Ra, P::Ju) || y.from(P::Ra, {7}, P::Ju)) &&
                    (y.signIn(P::Su, {3, 6, 9, 12}) || y.signIn(P::Ma, {2, 3, 5, 6, 9, 12}) || y.signIn(P::Sa, {3, 6, 7, 9, 10, 12}) ||
                     y.signIn(P::Ra, {9, 12}));
         }},
        {"Kalasarpa", "KalsarpaYoga",
         [](const YogaChart &y) {
             return allOf({0, 1, 2, 3, 4, 5, 6, 7}, [&](int p) { return y.lon(p) < y.lon(P::Ra) && y.lon(p) > y.lon(P::Ke); });
         }},
        {"Kalamrit", "Kalamrita",
         [](const YogaChart &y) {
             return allOf({0, 1, 2, 3, 4, 5, 6, 7}, [&](int p) { return y.lon(p) < y.lon(P::Ke) && y.lon(p) > y.lon(P::Ra); });
         }},
        // As written: the Lagna lord's longitude stands where the planet number goes.
        {"Bhandana", "BandhanaYoga",
         [](const YogaChart &y) {
             const int l1 = y.L(1);
             const std::optional<bool> combust = clsPlanets::CheckIfCombust(static_cast<int>(CLng(y.lon(l1))), l1, y.lon(P::Su));
             return combust.value_or(false) && y.S(P::Su) == 7;
         }},
        {"Meerati", "MeeratiYoga",
         [](const YogaChart &y) {
             const int l3 = y.L(3);
             if (y.countIn({3}) != 0 || !y.in(l3, {6, 8, 12}))
                 return false;
             for (int p : {P::Sa, P::Ma, P::Ra, P::Ke})
                 if (y.with(l3, p) || y.aspects(p, y.S(l3)))
                     return true;
             return false;
         }},
        {"Narpat", "NarpatYoga",
         [](const YogaChart &y) {
             for (int p = 1; p <= 7; ++p) {
                 const int l = YogaChart::lord(y.S(p));
                 if (clsPlanets::CheckIfExalted(p, Norm12(y.S(p) + 6)) && clsPlanets::CheckIfExalted(l, Norm12(y.S(l) + 6)))
                     return true;
             }
             return false;
         }},
        {"Abdhuta", "Abadhuta",
         [](const YogaChart &y) {
             const int first = y.countIn({1});
             return (first == 1 || first == 2) && y.countIn({2, 12, 6, 8}) >= 4;
         }},
        {"Garuda", nullptr,
         [](const YogaChart &y) {
             const long hour = y.chart().Person().Hour();
             const int l = YogaChart::lord(y.chart().PrediVarga(P::Mo, 4));
             return hour >= 6 && hour <= 19 && std::fabs(y.lon(P::Mo) - y.lon(P::Su)) <= 180 && y.exalted(l);
         }},
        {"Siva", "SivaYoga", [](const YogaChart &y) { return (y.in(y.L(5), {9}) || y.in(y.L(10), {5})) && y.in(y.L(9), {10}); }},
        {"Durgesh", "DurgeshaYoga",
         [](const YogaChart &y) {
             return y.exalted(P::Ma) && y.in(y.L(9), {7}) && y.exalted(YogaChart::lord(y.chart().PrediVarga(P::Ra, 4)));
         }},
        {"SubhaKartari", "ShubhaKartari",
         [](const YogaChart &y) {
             return anyIn(y, {P::Ju, P::Ve, P::Me, P::Mo}, {12}) && anyIn(y, {P::Ju, P::Ve, P::Me, P::Mo}, {2}) &&
                    !anyIn(y, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {2, 12}) && anyFrom(y, {P::Ju, P::Ve, P::Me}, {12}, P::Mo) &&
                    anyFrom(y, {P::Ju, P::Ve, P::Me}, {2}, P::Mo);
         }},
        {"Papakartari", "PapaKartari",
         [](const YogaChart &y) {
             return anyIn(y, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {12}) && anyIn(y, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {2}) &&
                    !anyIn(y, {P::Ju, P::Ve, P::Me, P::Mo}, {2, 12}) && anyFrom(y, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {12}, P::Mo) &&
                    anyFrom(y, {P::Su, P::Ma, P::Sa, P::Ra, P::Ke}, {2}, P::Mo);
         }},
        {"Chandala", "ChandalaYoga",
         [](const YogaChart &y) {
             return y.in(P::Ra, {1}) && allOf({P::Mo, P::Me, P::Ve}, [&](int p) { return y.in(p, {1, 4, 7, 10}); });
         }},
        // As written: the divisional table read with Mars as the planet and the benefic's number as the row.
        {"Kulpamsala", nullptr,
         [](const YogaChart &y) {
             bool ninth = false;
             for (int p : {P::Ju, P::Ve, P::Me, P::Mo})
                 ninth = ninth || y.chart().PrediVarga(4, p) == 9;
             return !y.from(P::Mo, {7}, y.L(1)) && anyIn(y, {P::Ju, P::Ve, P::Me, P::Mo}, {1, 4, 7, 10}) &&
                    anyIn(y, {P::Su, P::Sa, P::Ma, P::Ra, P::Ke}, {1, 4, 7, 10}) && ninth;
         }},
        {"Mlechchha", "MlechchhaYoga",
         [](const YogaChart &y) { return (y.in(P::Su, {1}) && y.in(P::Sa, {7})) || (y.in(P::Sa, {1}) && y.in(P::Ma, {3})); }},
        {"Dharmakarma", "DharmaKarmaYoga", [](const YogaChart &y) { return y.in(y.L(9), {10}) && y.in(y.L(10), {9}); }},
        {"Simhasan", "SimhasanYoga", [](const YogaChart &y) { return y.in(y.L(10), {1, 2}); }},
    };
}

// The Raja ladder: each group's tests with their paragraph keys.
struct RajaTest
{
    const char *text;
    Test holds;
};

// Whether the lord of house 9 (or 10) aspects its own house by sign, judged from where it stands.
bool lordAspectsOwnHouse(const YogaChart &y, int house)
{
    const int l = y.L(house);
    const bool nine = house == 9;
    switch (l) {
    case P::Su: case P::Me: case P::Ve: case P::Mo: return y.in(l, {nine ? 3 : 4});
    case P::Ma: return nine ? y.in(l, {2, 3, 6}) : y.in(l, {3, 4, 7});
    case P::Ju: return nine ? y.in(l, {1, 3, 5}) : y.in(l, {2, 4, 6});
    case P::Sa: return nine ? y.in(l, {3, 7, 12}) : y.in(l, {4, 8, 1});
    default: return false;
    }
}

bool saturnAngular(const YogaChart &y) { return y.in(P::Sa, {1, 5, 7, 11}); }

const QList<RajaTest> &rajaFirst()
{
    static const QList<RajaTest> tests{
        {"RajaYoga77", [](const YogaChart &y) { return y.exalted(y.L(10)) && y.exalted(y.L(9)); }},
        {"RajaYoga78", [](const YogaChart &y) { return y.own(y.L(10)) && y.own(y.L(9)); }},
        {"RajaYoga79",
         [](const YogaChart &y) {
             return ((y.S(y.L(9)) == 10 && y.S(y.L(10)) == 10) || (y.S(y.L(9)) == 9 && y.S(y.L(10)) == 9)) &&
                    (y.exalted(y.L(10)) || y.exalted(y.L(9)));
         }},
        // As written, "and" binding tighter than "or" in the bracket.
        {"RajaYoga80", [](const YogaChart &y) { return saturnAngular(y) && (y.L(9) == P::Ma || (y.L(10) == P::Ma && y.in(P::Ma, {3}))); }},
        {"RajaYoga81",
         [](const YogaChart &y) { return saturnAngular(y) && (y.in(y.L(9), {9}) || y.in(y.L(10), {11}) || y.in(y.L(11), {10})); }},
        {"RajaYoga82", [](const YogaChart &y) { return saturnAngular(y) && (y.exalted(y.L(10)) || y.exalted(y.L(9))); }},
        {"RajaYoga83", [](const YogaChart &y) { return saturnAngular(y) && (y.with(P::Ju, P::Sa) || y.from(P::Ju, {7}, P::Sa)); }},
    };
    return tests;
}

const QList<RajaTest> &rajaSecond()
{
    static const QList<RajaTest> tests{
        {"RajaYoga84", [](const YogaChart &y) { return y.with(y.L(9), y.L(10)) && y.in(y.L(9), {9, 10}); }},
        {"RajaYoga85",
         [](const YogaChart &y) {
             bool ninth = false, tenth = false;
             for (int p = 1; p <= 7; ++p) {
                 ninth = ninth || (y.exalted(p) && y.in(p, {9}));
                 tenth = tenth || (y.exalted(p) && y.in(p, {10}));
             }
             return ninth && tenth;
         }},
        {"RajaYoga86",
         [](const YogaChart &y) {
             const auto plain = [&](int h) { const int s = y.H(h); return s != 3 && s != 5 && s != 8 && s != 9; };
             return plain(9) && lordAspectsOwnHouse(y, 9) && plain(10) && lordAspectsOwnHouse(y, 10);
         }},
    };
    return tests;
}

const QList<RajaTest> &rajaAverage()
{
    static const QList<RajaTest> tests{
        {"RajaYoga88",
         [](const YogaChart &y) {
             const auto marked = [&](int h) { const int s = y.H(h); return s == 3 || s == 5 || s == 8 || s == 9; };
             return marked(9) && lordAspectsOwnHouse(y, 9) && marked(10) && lordAspectsOwnHouse(y, 10);
         }},
        {"RajaYoga89", [](const YogaChart &y) { return y.from(y.L(9), {7}, y.L(10)); }},
        {"RajaYoga89", [](const YogaChart &y) { return y.with(y.L(9), y.L(10)) && y.in(y.L(9), {1, 4, 5, 7, 10}); }},
    };
    return tests;
}

const QList<RajaTest> &rajaModest()
{
    static const QList<RajaTest> tests{
        {"RajaYoga91", [](const YogaChart &y) { return y.in(y.L(2), {10}) && y.in(y.L(11), {10}); }},
        {"RajaYoga92",
         [](const YogaChart &y) {
             bool joined = false;
             for (int node : {P::Ra, P::Ke})
                 for (int h : {1, 4, 7, 10})
                     joined = joined || y.with(node, y.L(h));
             return joined && (y.in(P::Ra, {5, 9}) || y.in(P::Ke, {5, 9}));
         }},
        {"RajaYoga93", [](const YogaChart &y) { return y.in(y.L(10), {1}) && y.in(y.L(1), {10}); }},
        {"RajaYoga93", [](const YogaChart &y) { return y.with(y.L(1), y.L(10)) && y.in(y.L(1), {1, 10}); }},
        {"RajaYoga94", [](const YogaChart &y) { return y.in(y.L(9), {1}) && y.in(y.L(1), {9}); }},
        {"RajaYoga94", [](const YogaChart &y) { return y.with(y.L(1), y.L(9)) && y.in(y.L(1), {1, 9}); }},
        {"RajaYoga95", [](const YogaChart &y) { return y.in(y.L(9), {7}) && y.in(y.L(7), {9}); }},
    };
    return tests;
}

// The exchanges of lords between the good houses, in the order they are tried.
inline constexpr std::array<std::pair<int, int>, 26> kExchanges{{
    {1, 2}, {1, 4}, {1, 5}, {1, 7}, {1, 9}, {1, 10}, {1, 11}, {2, 4}, {2, 5}, {2, 7}, {2, 9}, {2, 10}, {2, 11},
    {4, 5}, {4, 7}, {4, 9}, {4, 10}, {4, 11}, {5, 7}, {9, 5}, {10, 5}, {11, 5}, {7, 9}, {10, 7}, {11, 7}, {9, 10},
}};

// The Dhana group: the first test that holds prints once.
const QList<Test> &dhanaTests()
{
    const auto lagnaOwn = [](int lg) { return [lg](const YogaChart &y) { return y.Lg() == lg && y.S(y.L(1)) == lg; }; };
    static const QList<Test> tests{
        [](const YogaChart &y) { return y.signIn(P::As, {3, 10}) && y.in(P::Ve, {5}) && y.in(P::Sa, {11}); },
        [](const YogaChart &y) { return y.signIn(P::As, {6, 7}) && y.in(P::Sa, {5}) && y.in(P::Me, {11}) && y.with(P::Ma, P::Me); },
        [](const YogaChart &y) { return y.Lg() == 1 && y.S(P::Su) == 5 && y.in(P::Ju, {11}) && y.with(P::Mo, P::Ju); },
        [](const YogaChart &y) { return y.signIn(P::As, {5, 8}) && y.in(P::Ju, {5}) && y.in(P::Ma, {11}) && y.with(P::Mo, P::Ma); },
        [=](const YogaChart &y) { return lagnaOwn(5)(y) && y.signIn(P::Ma, {2, 5, 10, 11}) && y.signIn(P::Ju, {1, 5, 9, 11}); },
        [=](const YogaChart &y) { return lagnaOwn(4)(y) && y.signIn(P::Ma, {1, 4, 9, 10}) && y.signIn(P::Ju, {1, 2, 4, 8}); },
        [=](const YogaChart &y) { return lagnaOwn(1)(y) && y.S(P::Mo) == 7 && y.S(P::Ve) == 7 && y.signIn(P::Sa, {4, 7, 11}); },
        [=](const YogaChart &y) { return lagnaOwn(8)(y) && y.S(P::Mo) == 2 && y.S(P::Ve) == 2 && y.signIn(P::Sa, {2, 6, 11}); },
        [=](const YogaChart &y) { return lagnaOwn(3)(y) && y.S(P::Ve) == 9 && y.signIn(P::Sa, {1, 6, 9}); },
        [=](const YogaChart &y) { return lagnaOwn(6)(y) && y.S(P::Ve) == 12 && y.signIn(P::Sa, {4, 9, 12}); },
        [=](const YogaChart &y) { return lagnaOwn(9)(y) && y.S(P::Me) == 3 && y.signIn(P::Ma, {2, 3, 6}); },
        [=](const YogaChart &y) { return lagnaOwn(12)(y) && y.S(P::Me) == 6 && y.signIn(P::Ma, {5, 6, 9}); },
        [=](const YogaChart &y) { return lagnaOwn(2)(y) && y.S(P::Me) == 8 && y.signIn(P::Sa, {5, 8, 12}); },
        [=](const YogaChart &y) { return lagnaOwn(7)(y) && y.S(P::Me) == 1 && y.signIn(P::Sa, {1, 5, 10}); },
    };
    return tests;
}

// Step 3 after the Dhana group: wealth, brothers and the houses, rules 77 to 93.
QList<Rule> lordRules(bool &ayatna, bool &bandhu)
{
    return {
        {"Bahudravyarjan", nullptr, [](const YogaChart &y) { return y.in(y.L(1), {2}) && y.in(y.L(2), {11}) && y.in(y.L(11), {1}); }},
        {"AnthyaVayasi", nullptr,
         [](const YogaChart &y) { return y.in(y.L(1), {1}) && (y.with(P::Mo, y.L(1)) || y.with(P::Ju, y.L(1)) || y.with(P::Ve, y.L(1)) || y.with(P::Me, y.L(1))); }},
        {"MatriMoolat", nullptr, [](const YogaChart &y) { return y.with(y.L(2), y.L(4)) && y.aspects(y.L(4), y.S(y.L(2))); }},
        {"KalatraMoolat", nullptr, [](const YogaChart &y) { return y.with(y.L(2), y.L(7)) && y.aspects(y.L(7), y.S(y.L(2))); }},
        {"AmarAnanta", nullptr,
         [](const YogaChart &y) {
             int score = 0;
             for (int p = 1; p <= 7; ++p) {
                 if (!y.in(p, {2}))
                     continue;
                 score += 1;
                 for (int h : {1, 2, 4, 5, 9, 10, 11})
                     if (p == y.L(h)) {
                         score += 100;
                         break;
                     }
                 if (clsPlanets::CheckDigBala(p, y.S(p), y.Lg()) || y.exalted(p) || y.own(p))
                     score += 1000;
             }
             return score > 1100;
         }},
        {"Ayatna", nullptr, [](const YogaChart &y) { return y.in(y.L(1), {2}) && y.S(y.L(2)) == y.L(1); }},
        {"Bhaskara", nullptr,
         [](const YogaChart &y) { return y.from(P::Me, {2}, P::Su) && y.from(P::Mo, {11}, P::Me) && y.from(P::Ju, {5}, P::Me); }},
        {"Marut", nullptr,
         [](const YogaChart &y) { return y.from(P::Ju, {5, 9}, P::Ve) && y.from(P::Mo, {5}, P::Ju) && y.from(P::Su, {4, 7, 10}, P::Mo); }},
        {"Budha", nullptr,
         [](const YogaChart &y) {
             return y.in(P::Ju, {1}) && y.in(P::Mo, {1, 4, 7, 10}) && y.from(P::Ra, {2}, P::Mo) && y.from(P::Su, {3}, P::Ra) &&
                    y.with(P::Ma, P::Su);
         }},
        {"EkaBhagini", nullptr, [](const YogaChart &y) { return y.in(P::Me, {3}) && y.with(y.L(3), P::Mo) && y.with(P::Ma, P::Sa); }},
        {"UttamGraha", nullptr,
         [](const YogaChart &y) {
             const int l4 = y.L(4);
             return (y.with(l4, P::Mo) || y.with(l4, P::Me) || y.with(l4, P::Ve) || y.with(l4, P::Ju)) && y.in(l4, {1, 4, 5, 7, 9, 10});
         }},
        {"UttamGraha2", nullptr, [](const YogaChart &y) { return y.in(y.L(4), {10}) && y.in(y.L(10), {10}) && y.in(P::Ma, {3, 4, 10, 7}); }},
        {"VichitraSaudha", nullptr,
         [](const YogaChart &y) { return y.in(y.L(4), {10}) && y.in(y.L(10), {10}) && y.in(P::Ma, {10}) && y.with(P::Sa, P::Ma); }},
        {"AyatnaGriha", nullptr,
         [&ayatna](const YogaChart &y) {
             const int l1 = y.L(1);
             ayatna = y.in(l1, {1, 4}) && y.in(y.L(7), {1, 4}) && (anyFrom(y, {P::Mo, P::Me, P::Ve}, {7}, l1) || y.from(P::Ju, {5, 7, 9}, l1));
             return ayatna;
         }},
        {"AyatnaGriha", nullptr,
         [&ayatna](const YogaChart &y) {
             const int l4 = y.L(4);
             return !ayatna && y.in(y.L(9), {1, 4, 7, 10}) && (clsPlanets::CheckDigBala(l4, y.S(l4), y.Lg()) || y.exalted(l4));
         }},
        {"BandhuPujya", nullptr,
         [&bandhu](const YogaChart &y) {
             const int l4 = y.L(4);
             bandhu = (l4 == P::Ju || l4 == P::Ve || l4 == P::Me || l4 == P::Mo) &&
                      (y.from(l4, {7}, P::Mo) || y.from(l4, {7}, P::Me) || y.from(l4, {7}, P::Ve) || y.from(l4, {5, 7, 9}, P::Ju)) &&
                      y.in(P::Me, {1});
             return bandhu;
         }},
        {"BandhuPujya", nullptr,
         [&bandhu](const YogaChart &y) {
             const int l4 = y.L(4);
             return !bandhu && (y.in(P::Ju, {4, 8, 10, 12}) || y.with(P::Ju, l4) || y.from(P::Ju, {5, 7, 9}, l4));
         }},
    };
}

void print(QList<Hit> &hits, YogaOutput *out, const QString &name, const QString &text)
{
    hits.append({name, text});
    if (out) {
        out->PutYogaHead(name);
        out->PutYogaText(text);
    }
}

void runRules(const QList<Rule> &rules, const YogaChart &y, QList<Hit> &hits, YogaOutput *out)
{
    for (const Rule &r : rules)
        if (r.holds(y))
            print(hits, out, QString::fromLatin1(r.name), QString::fromLatin1(r.text ? r.text : r.name));
}

// One group of the ladder: the first test that holds prints the group's name once.
bool runRaja(const QList<RajaTest> &tests, const char *name, const YogaChart &y, QList<Hit> &hits, YogaOutput *out)
{
    for (const RajaTest &t : tests)
        if (t.holds(y)) {
            print(hits, out, QString::fromLatin1(name), QString::fromLatin1(t.text));
            return true;
        }
    return false;
}

} // namespace

QList<Hit> ScanYogas(const clsPlanets &c, YogaOutput *out)
{
    QList<Hit> hits;
    const YogaChart y(c);
    QString rajaStop; // cleared at the start of every scan

    runRules(ashtakaRules(), y, hits, out);

    bool ubhaychari = false;
    runRules(classicRules(ubhaychari), y, hits, out);
    if (runRaja(rajaFirst(), "RajaNo1", y, hits, out))
        rajaStop = QStringLiteral("NOMORE");
    if (rajaStop != QLatin1String("NOMORE") && runRaja(rajaSecond(), "Raja2nd", y, hits, out))
        rajaStop = QStringLiteral("NOMORE");
    if (rajaStop != QLatin1String("NOMORE") && runRaja(rajaAverage(), "RajaAve", y, hits, out))
        rajaStop = QStringLiteral("NOMORE");
    if (rajaStop != QLatin1String("NOMORE"))
        runRaja(rajaModest(), "RajaMode", y, hits, out);
    for (const auto &[a, b] : kExchanges)
        if (y.in(y.L(a), {b}) && y.in(y.L(b), {a})) {
            print(hits, out, QStringLiteral("MahaYoga"), QStringLiteral("MahaYoga"));
            break;
        }

    for (const Test &t : dhanaTests())
        if (t(y)) {
            print(hits, out, QStringLiteral("DhanaYoga"), QStringLiteral("DhanaYoga"));
            break;
        }
    bool ayatna = false, bandhu = false;
    runRules(lordRules(ayatna, bandhu), y, hits, out);

    const clsYoga yogas(c);
    for (const clsYoga::ListedRule &r : clsYoga::kList)
        if ((yogas.*r.rule)())
            print(hits, out, QString::fromLatin1(r.key), QString::fromLatin1(r.key));
    return hits;
}

QStringList NameKeys(const QList<Hit> &hits)
{
    QStringList out;
    for (const Hit &h : hits)
        out << h.nameKey;
    return out;
}

namespace {
void collect(QStringList &names, QStringList &texts)
{
    bool flag = false, flag2 = false;
    const auto add = [&](const QList<Rule> &rules) {
        for (const Rule &r : rules) {
            names << QString::fromLatin1(r.name);
            texts << QString::fromLatin1(r.text ? r.text : r.name);
        }
    };
    add(ashtakaRules());
    add(classicRules(flag));
    add(lordRules(flag, flag2));
    for (auto [tests, name] : {std::pair{&rajaFirst(), "RajaNo1"}, std::pair{&rajaSecond(), "Raja2nd"},
                               std::pair{&rajaAverage(), "RajaAve"}, std::pair{&rajaModest(), "RajaMode"}}) {
        names << QString::fromLatin1(name);
        for (const RajaTest &t : *tests)
            texts << QString::fromLatin1(t.text);
    }
    names << QStringLiteral("MahaYoga") << QStringLiteral("DhanaYoga");
    texts << QStringLiteral("MahaYoga") << QStringLiteral("DhanaYoga");
    for (const clsYoga::ListedRule &r : clsYoga::kList) {
        names << QString::fromLatin1(r.key);
        texts << QString::fromLatin1(r.key);
    }
    names.removeDuplicates();
    texts.removeDuplicates();
}
} // namespace

QStringList AllNameKeys()
{
    QStringList names, texts;
    collect(names, texts);
    return names;
}

QStringList AllTextKeys()
{
    QStringList names, texts;
    collect(names, texts);
    return texts;
}

} // namespace CheckYogas
