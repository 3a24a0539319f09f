// SPDX-License-Identifier: AGPL-3.0-or-later
#include "yoga/clsYoga.h"

#include "sky/clsPlanets.h"

using P = YogaChart::Planet;

const clsYoga::ListedRule clsYoga::kList[27] = {
    {&clsYoga::Parvat, "Parvata"},         {&clsYoga::Chapa, "Chapa"},          {&clsYoga::Shankha, "Shankha"},
    {&clsYoga::Bheri, "Bheri"},            {&clsYoga::Gaja, "Gaja"},            {&clsYoga::KalaNidhi, "KalaNidhi"},
    {&clsYoga::AmsaAvtaar, "Amsavtaar"},   {&clsYoga::Hari, "Hari"},            {&clsYoga::Hara, "Hara"},
    {&clsYoga::Brahma, "Brahma"},          {&clsYoga::Matsya, "Matsya"},        {&clsYoga::Devendra, "Devendra"},
    {&clsYoga::Mukuta, "Mukuta"},          {&clsYoga::Jaya, "Jaya"},            {&clsYoga::Vidyut, "Vidyut"},
    {&clsYoga::Gandharva, "Gandharva"},    {&clsYoga::Brahma, "BrahmaYoga"},    {&clsYoga::Indra, "Indra"},
    {&clsYoga::Ravi, "Ravi"},              {&clsYoga::Go, "Go"},                {&clsYoga::Trilochana, "Trilochana"},
    {&clsYoga::DurYoga, "DurYoga"},        {&clsYoga::Daridra, "Daridra"},      {&clsYoga::SareerSoukhya, "SareeraSoukhya"},
    {&clsYoga::DehaPushti, "DehaPushti"},  {&clsYoga::Rogagrastha, "RogaGrastha"}, {&clsYoga::SadaSanchar, "SadaSanchar"},
};

int clsYoga::occupied() const { return y.chart().SignOccupiedNum(2); }

bool clsYoga::allIn(std::initializer_list<int> houses) const { return y.countIn(houses) == 7; }

bool clsYoga::strongOrOwn(int p) const
{
    return clsPlanets::CheckDigBala(p, y.S(p), y.Lg()) || y.own(p) || y.exalted(p);
}

// ---- the rules of the list ----

bool clsYoga::Parvat() const
{
    for (int p : {P::Ju, P::Ve, P::Me, P::Mo})
        if (!y.in(p, {1, 4, 7, 10, 6, 8}))
            return false;
    for (int p : {P::Su, P::Ma, P::Sa, P::Ra, P::Ke})
        if (y.in(p, {6, 8}))
            return false;
    return true;
}

bool clsYoga::Chapa() const { return y.exalted(y.L(1)) && y.in(y.L(4), {10}) && y.in(y.L(10), {4}); }

bool clsYoga::Shankha() const
{
    return strongOrOwn(y.L(1)) && (y.with(y.L(5), y.L(6)) || y.from(y.L(5), {4, 7, 10}, y.L(6)));
}

bool clsYoga::Bheri() const
{
    return strongOrOwn(y.L(9)) && (y.with(P::Ve, y.L(1)) || y.from(P::Ve, {4, 7, 10}, y.L(1))) &&
           (y.with(P::Ju, y.L(1)) || y.from(P::Ju, {4, 7, 10}, y.L(1)));
}

bool clsYoga::Gaja() const { return y.in(y.L(7), {11}) && y.in(P::Mo, {11}) && y.aspects(y.L(11), y.H(11)); }

bool clsYoga::KalaNidhi() const
{
    return y.S(P::Ju) == 7 && y.in(P::Ju, {2, 5, 9}) &&
           (y.with(P::Me, P::Ju) || y.from(P::Me, {7}, P::Ju) || y.with(P::Ve, P::Ju) || y.from(P::Ve, {7}, P::Ju));
}

bool clsYoga::AmsaAvtaar() const { return y.Lg() == 10 && y.S(P::Sa) == 7 && y.S(P::Ve) == 10 && y.S(P::Ju) == 10; }

bool clsYoga::Hari() const
{
    int n = 0;
    for (int p : {P::Ju, P::Me, P::Ve, P::Mo})
        n += y.from(p, {8, 12}, y.L(2)) ? 1 : 0;
    return n >= 2;
}

namespace {
// Three planets in three different signs.
bool apart(const YogaChart &y, int a, int b, int c) { return y.S(a) != y.S(b) && y.S(b) != y.S(c) && y.S(a) != y.S(c); }
} // namespace

bool clsYoga::Hara() const
{
    return apart(y, P::Me, P::Mo, P::Ju) && y.from(P::Me, {4, 8, 9}, y.L(7)) && y.from(P::Mo, {4, 8, 9}, y.L(7)) &&
           y.from(P::Ju, {4, 8, 9}, y.L(7));
}

bool clsYoga::Brahma() const
{
    return apart(y, P::Su, P::Ve, P::Ma) && y.from(P::Su, {4, 10, 11}, y.L(1)) && y.from(P::Ve, {4, 10, 11}, y.L(1)) &&
           y.from(P::Ma, {4, 10, 11}, y.L(1));
}

bool clsYoga::Matsya() const
{
    return apart(y, P::Su, P::Ma, P::Sa) && y.in(P::Su, {1, 5, 9}) && y.in(P::Ma, {1, 5, 9}) && y.in(P::Sa, {1, 5, 9}) &&
           (y.in(P::Ra, {4, 8}) || y.in(P::Ke, {4, 8})) && (y.in(P::Ju, {5}) || y.in(P::Ve, {5}) || y.in(P::Mo, {5}));
}

bool clsYoga::Devendra() const
{
    return y.Lg() == 11 && y.in(y.L(1), {11}) && y.in(y.L(11), {1}) && y.in(y.L(2), {10}) && y.in(y.L(10), {2});
}

bool clsYoga::Mukuta() const
{
    return y.from(P::Ju, {9}, y.L(9)) && y.in(P::Sa, {10}) &&
           (y.from(P::Me, {9}, P::Ju) || y.from(P::Mo, {9}, P::Ju) || y.from(P::Ve, {9}, P::Ju));
}

bool clsYoga::Jaya() const { return y.exalted(y.L(10)) && y.debilitated(y.L(6)); }

bool clsYoga::Vidyut() const
{
    return y.exalted(y.L(11)) && y.from(y.L(11), {1, 4, 7, 10}, y.L(1)) && y.from(P::Ve, {1, 4, 7, 10}, y.L(1));
}

bool clsYoga::Gandharva() const
{
    return y.in(P::Mo, {9}) && y.chart().CheckIfStrong(P::Su, y.S(P::Su)) && y.in(y.L(10), {3, 7, 11}) && y.with(y.L(10), P::Ju);
}

bool clsYoga::Indra() const { return y.in(y.L(5), {11}) && y.in(y.L(11), {5}) && y.in(P::Mo, {5}); }

bool clsYoga::Ravi() const { return y.in(P::Su, {10}) && y.in(y.L(10), {3}) && y.in(P::Sa, {3}); }

bool clsYoga::Go() const
{
    return y.lon(P::Mo) > 240 && y.lon(P::Mo) < 253 && y.lon(y.L(2)) > 240 && y.lon(y.L(2)) < 270 && y.exalted(y.L(1));
}

bool clsYoga::Trilochana() const
{
    return !y.with(P::Mo, P::Ma) && (y.with(P::Mo, P::Su) || y.from(P::Mo, {5, 9}, P::Su)) &&
           (y.with(P::Ma, P::Su) || y.from(P::Ma, {5, 9}, P::Su));
}

bool clsYoga::SareerSoukhya() const
{
    return y.in(y.L(1), {4, 10, 7}) && y.in(P::Ju, {4, 10, 7}) && y.in(P::Ve, {4, 10, 7});
}

bool clsYoga::DurYoga() const { return y.in(y.L(10), {6, 8, 12}); }

bool clsYoga::Daridra() const { return y.in(y.L(11), {6, 8, 12}); }

bool clsYoga::DehaPushti() const
{
    const int l1 = y.L(1);
    return y.signIn(l1, {1, 4, 7, 10}) &&
           (y.from(P::Ju, {5, 9, 7}, l1) || y.from(P::Ve, {7}, l1) || y.from(P::Mo, {7}, l1) || y.from(P::Me, {7}, l1));
}

bool clsYoga::Rogagrastha() const
{
    const int l1 = y.L(1);
    return y.in(l1, {1}) &&
           (y.in(y.L(6), {1}) || y.in(y.L(8), {1}) || y.in(y.L(12), {1}) || y.debilitated(l1) || y.in(l1, {4, 7, 10, 5, 9}));
}

bool clsYoga::SadaSanchar() const
{
    const int l1 = y.L(1);
    const int s = y.S(YogaChart::lord(y.S(l1)));
    return y.signIn(l1, {1, 4, 7, 10}) || s == 1 || s == 4 || s == 7 || s == 10;
}

// ---- Nabhasha ----

bool clsYoga::Gola_Nabhasha() const
{
    for (int p : {P::Mo, P::Ma, P::Me, P::Ju, P::Ve, P::Sa})
        if (!y.with(P::Su, p))
            return false;
    return true;
}

bool clsYoga::Shoola_Nabhasha() const { return occupied() == 3; }
bool clsYoga::Yuga_Nabhasha() const { return !Gada_Nabhasha() && !Shakata_Nabhasha() && !Vihaga_Nabhasha() && occupied() == 2; }
bool clsYoga::Vallaki_Nabhasha() const { return occupied() == 7; }
bool clsYoga::Damini_Nabhasha() const { return occupied() == 6; }
bool clsYoga::Pasha_Nabhasha() const { return occupied() == 5; }

bool clsYoga::Maala_Nabhasha() const
{
    const clsPlanets &c = y.chart();
    return c.PlanetInKendra(P::Ju, P::As) && c.PlanetInKendra(P::Ve, P::As) && c.PlanetInKendra(P::Me, P::As);
}

bool clsYoga::Sarpa_Nabhasha() const
{
    const clsPlanets &c = y.chart();
    return !c.PlanetInKendra(P::Me, P::As) && c.PlanetInKendra(P::Su, P::As) && c.PlanetInKendra(P::Ma, P::As) &&
           c.PlanetInKendra(P::Sa, P::As);
}

bool clsYoga::Rajju_Nabhasha() const
{
    return y.signIn(P::Su, {1, 4, 7, 10}) && y.signIn(P::Ma, {1, 4, 7, 10}) && y.signIn(P::Sa, {1, 4, 7, 10});
}
bool clsYoga::Mushala_Nabhasha() const
{
    return y.signIn(P::Su, {2, 5, 8, 11}) && y.signIn(P::Ma, {2, 5, 8, 11}) && y.signIn(P::Sa, {2, 5, 8, 11});
}
bool clsYoga::Nala_Nabhasha() const
{
    return y.signIn(P::Su, {3, 6, 9, 12}) && y.signIn(P::Ma, {3, 6, 9, 12}) && y.signIn(P::Sa, {3, 6, 9, 12});
}

bool clsYoga::Chhatra_Nabhasha() const { return occupied() == 7 && allIn({7, 8, 9, 10, 11, 12, 1}); }
bool clsYoga::Chapa_Nabhasha() const { return occupied() == 7 && allIn({10, 11, 12, 1, 2, 3, 4}); }
bool clsYoga::ArdhaChandra1_Nabhasha() const { return occupied() == 7 && allIn({2, 3, 4, 5, 6, 7, 8}); }
bool clsYoga::ArdhaChandra2_Nabhasha() const { return occupied() == 7 && allIn({3, 4, 5, 6, 7, 8, 9}); }
bool clsYoga::ArdhaChandra3_Nabhasha() const { return occupied() == 7 && allIn({5, 6, 7, 8, 9, 10, 11}); }
bool clsYoga::ArdhaChandra4_Nabhasha() const { return occupied() == 7 && allIn({6, 7, 8, 9, 10, 11, 12}); }
bool clsYoga::ArdhaChandra5_Nabhasha() const { return occupied() == 7 && allIn({8, 9, 10, 11, 12, 1, 2}); }
bool clsYoga::ArdhaChandra6_Nabhasha() const { return occupied() == 7 && allIn({9, 10, 11, 12, 1, 2, 3}); }
bool clsYoga::ArdhaChandra7_Nabhasha() const { return occupied() == 7 && allIn({11, 12, 1, 2, 3, 4, 5}); }
bool clsYoga::ArdhaChandra8_Nabhasha() const { return occupied() == 7 && allIn({12, 1, 2, 3, 4, 5, 6}); }
bool clsYoga::Chakra_Nabhasha() const { return occupied() == 6 && allIn({1, 3, 5, 7, 9, 11}); }
bool clsYoga::Samudra_Nabhasha() const { return occupied() == 6 && allIn({2, 4, 6, 8, 10, 12}); }

bool clsYoga::Gada_Nabhasha() const
{
    return occupied() == 2 && (allIn({1, 4}) || allIn({4, 7}) || allIn({7, 10}) || allIn({1, 10}));
}
bool clsYoga::Shakata_Nabhasha() const { return occupied() == 2 && allIn({1, 7}); }
bool clsYoga::Vihaga_Nabhasha() const { return occupied() == 2 && allIn({4, 10}); }

bool clsYoga::Vajra_Nabhasha() const
{
    for (int p : {P::Ju, P::Ve, P::Me, P::Mo})
        if (!y.in(p, {1, 7}))
            return false;
    return y.in(P::Su, {4, 10}) && y.in(P::Ma, {4, 10}) && y.in(P::Sa, {4, 10});
}

bool clsYoga::Yava_Nabhasha() const
{
    for (int p : {P::Ju, P::Ve, P::Me, P::Mo})
        if (!y.in(p, {4, 10}))
            return false;
    return y.in(P::Su, {1, 7}) && y.in(P::Ma, {1, 7}) && y.in(P::Sa, {1, 7});
}

bool clsYoga::Shringhataka_Nabhasha() const { return occupied() == 3 && allIn({1, 5, 9}); }
bool clsYoga::Hala1_Nabhasha() const { return occupied() == 3 && allIn({2, 6, 10}); }
bool clsYoga::Hala2_Nabhasha() const { return occupied() == 3 && allIn({3, 7, 11}); }
bool clsYoga::Kamala_Nabhasha() const { return occupied() == 4 && allIn({1, 4, 7, 10}); }
bool clsYoga::Vapee1_Nabhasha() const { return occupied() == 4 && allIn({2, 5, 8, 11}); }
bool clsYoga::Vapee2_Nabhasha() const { return occupied() == 4 && allIn({3, 6, 9, 12}); }
bool clsYoga::Yupa_Nabhasha() const { return occupied() == 4 && allIn({1, 2, 3, 4}); }
bool clsYoga::Shara_Nabhasha() const { return occupied() == 4 && allIn({4, 5, 6, 7}); }
bool clsYoga::Shakti_Nabhasha() const { return occupied() == 4 && allIn({7, 8, 9, 10}); }
bool clsYoga::Danda_Nabhasha() const { return occupied() == 4 && allIn({10, 11, 12, 1}); }
