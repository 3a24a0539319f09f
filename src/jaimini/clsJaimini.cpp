// SPDX-License-Identifier: AGPL-3.0-or-later
// The chart as the Jaimini members read it, the birth ghatika, the special lagnas, the varnada,
// the padas and the Drekkana and Navamsha variants.
#include "jaimini/clsJaimini.h"

#include "sky/Functions.h"
#include "sky/SunEvents.h"
#include "sky/clsPlanets.h"

#include <array>
#include <cmath>

namespace {
bool odd(int s)
{
    return s % 2 != 0;
}

// The Somanath drekkana: the 24 spans of 10 degrees of a 240-degree round, from 0.
// clang-format off
inline constexpr std::array<int, 24> kSomanathSign{1, 2, 3, 12, 11, 10, 4, 5, 6, 9, 8, 7,
                                                   7, 8, 9, 6, 5, 4, 10, 11, 12, 3, 2, 1};
// clang-format on
static_assert(kSomanathSign.size() == 24);

// Kala numbers of the Indu Lagna, planets 1..7 (Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon).
inline constexpr std::array<int, 7> kInduKala{30, 8, 12, 6, 10, 1, 16};
static_assert(kInduKala.size() == 7);
} // namespace

clsJaimini::clsJaimini(const clsPlanets &chart) : m_chart(chart)
{
    JaiminiPadaPopular();
    JaiminiPadaConditional();
    FillHouseVarnada();
}

// ---- the chart ----

int clsJaimini::Sign(int n) const
{
    return m_chart.Sign(n);
}
int clsJaimini::SignLord(int s)
{
    return clsPlanets::GetRashiLordNum(s);
}
double clsJaimini::PlanetLongi(int n) const
{
    return m_chart.PlanetLongi(n);
}
double clsJaimini::KrishAmsha(int n) const
{
    return m_chart.KrishAmsha(n);
}
bool clsJaimini::Exalted(int p) const
{
    return m_chart.Exalted(p);
}
bool clsJaimini::Debilitated(int p) const
{
    return m_chart.Debilitated(p);
}
int clsJaimini::Sex() const
{
    return m_chart.Person().Sex();
}
int clsJaimini::Clock12(int x)
{
    return Norm12(x);
}
int clsJaimini::ConstClsOfSigns(int n) const
{
    return SignClass(Sign(n));
}
int clsJaimini::NavamshSign(int p) const
{
    return m_chart.NavamshSign(p);
}

int clsJaimini::signOfLongi(double x)
{
    const int s = static_cast<int>(Fix(x / 30)) + 1;
    return s > 12 ? 12 : s;
}

// ---- birth ghatika ----

long clsJaimini::MinToDec(double x)
{
    const double whole = Fix(x);
    return CLng(whole * 60 + (x - whole) * 100);
}

void clsJaimini::sunrises() const
{
    if (m_sunrise[0] != 0)
        return;
    m_sunrise[0] = m_chart.SunRiseTime();
    m_sunrise[1] = m_chart.NextSunRiseTime();
    m_sunrise[2] = NeighbourSunEvent(m_chart, SunEvent::Rise, -1);
}

// Ghatikas from sunrise to birth. A ghatika is taken as 24 minutes plus the day's drift of the
// sunrise in whole minutes; a birth at sunrise or before it counts from the previous sunrise.
double clsJaimini::ghatikaRatio() const
{
    sunrises();
    const clsPerson &who = m_chart.Person();
    const double t = static_cast<double>(who.Hour()) + static_cast<double>(who.Minutes()) / 100.0;
    const double rise = m_sunrise[0];
    double l, n;
    if (t > rise) {
        l = static_cast<double>(MinToDec(m_sunrise[1]) - MinToDec(rise) + 24);
        n = static_cast<double>(MinToDec(t) - MinToDec(rise));
    } else {
        const long before = MinToDec(m_sunrise[2]);
        l = static_cast<double>(MinToDec(rise) - before + 24);
        n = static_cast<double>(MinToDec(t) + 24 * 60 - before);
    }
    return l == 0 ? 0 : n / l;
}

double clsJaimini::BirthGhatika() const
{
    if (m_ghatika == 0)
        m_ghatika = ghatikaRatio();
    return m_ghatika;
}

// ---- the lagnas ----

int clsJaimini::HoraLagna(int mode) const
{
    switch (mode) {
    case 1: {
        const int n = static_cast<int>(Fix(BirthGhatika() / 2.5));
        return odd(Sign(0)) ? Clock12(Sign(1) + n) : Clock12(Sign(0) + n);
    }
    case 2:
        return signOfLongi(Norm360(2 * PlanetLongi(0)));
    case 3: {
        const double d = m_chart.DayBirth() ? m_chart.DayDuration() : m_chart.NightDuration();
        if (d <= 0)
            return Sign(0);
        const int n = static_cast<int>(Fix(BirthGhatika() / (d / 12))) + 1;
        return odd(Sign(0)) ? Clock12(Sign(0) + n) : Clock12(13 - n);
    }
    default:
        return 0;
    }
}

int clsJaimini::BhavaLagna() const
{
    const int n = static_cast<int>(Fix(BirthGhatika() / 5));
    return odd(Sign(0)) ? Clock12(Sign(1) + n) : Clock12(Sign(0) + n);
}

double clsJaimini::GhatikaLagnaLongi() const
{
    const double g = ghatikaRatio();
    return Norm360((Sign(0) - 1) * 30 + ::Clock12(g) * 30);
}

int clsJaimini::GhatikaLagnaSign() const
{
    return signOfLongi(GhatikaLagnaLongi());
}

int clsJaimini::SapadaGhatikaLagna() const
{
    const double fifths = BirthGhatika() / 5;
    const int n = static_cast<int>(Fix((fifths - Fix(fifths)) / 0.25)) + 1;
    return Clock12(NavamshSign(7) + n - 1);
}

int clsJaimini::AyurLagna() const
{
    const int n = static_cast<int>(Fix(BirthGhatika() / 5)) + 1;
    return Clock12(NavamshSign(7) + n - 1);
}

double clsJaimini::PranapadaLongi() const
{
    const double p = ::Clock12(4 * ghatikaRatio()) * 30;
    const double sun = PlanetLongi(1);
    switch (ConstClsOfSigns(1)) {
    case 2:
        return Norm360(p + sun + 240);
    case 3:
        return Norm360(p + sun + 120);
    default:
        return Norm360(p + sun);
    }
}

int clsJaimini::PranaPadaSign() const
{
    return signOfLongi(PranapadaLongi());
}

namespace {
// The Moon's degrees within its nakshatra.
double moonInStar(const clsPlanets &c)
{
    return c.PlanetLongi(7) - (c.NakOf(7) - 1) * 360.0 / 27;
}
} // namespace

double clsJaimini::ShreeLagnaLongi() const
{
    return Norm360(PlanetLongi(0) + 27 * moonInStar(m_chart));
}
int clsJaimini::ShreeLagna() const
{
    return signOfLongi(ShreeLagnaLongi());
}

int clsJaimini::TripravanaLagna() const
{
    return signOfLongi(Norm360(PlanetLongi(0) + 2 * PlanetLongi(7)));
}

int clsJaimini::InduKalaValue(int p)
{
    return p >= 1 && p <= 7 ? kInduKala[static_cast<size_t>(p - 1)] : 0;
}

int clsJaimini::InduLagna() const
{
    const int a = InduKalaValue(SignLord(Clock12(Sign(0) + 8)));
    const int b = InduKalaValue(SignLord(Clock12(Sign(7) + 8)));
    return Clock12(Sign(7) + Clock12(a + b) - 1);
}

int clsJaimini::TaraLagna() const
{
    return Clock12(Sign(0) + static_cast<int>(Fix(moonInStar(m_chart) / (10.0 / 9))));
}

int clsJaimini::NakshatraLagna() const
{
    const int n = static_cast<int>(Fix(moonInStar(m_chart) * 12 / (360.0 / 27)));
    return clsPlanets::NakLordNum(m_chart.NakOf(7)) == 9 ? Clock12(Sign(0) - n) : Clock12(Sign(0) + n);
}

int clsJaimini::PakaLagna() const
{
    return Sign(SignLord(Sign(0)));
}
int clsJaimini::Swamsha() const
{
    return NavamshSign(0);
}
int clsJaimini::KarakamsaLagna() const
{
    return m_chart.KarakamsaLagna();
}

// The first planet with a Yogada, else the lord of the Moon's sign.
int clsJaimini::yogadaPlanet() const
{
    for (int p = 1; p <= 9; ++p)
        if (GetYogada(p) != 0)
            return p;
    return SubhaPatiGraha();
}

double clsJaimini::yogaLongi(double base) const
{
    return Norm360(base + PlanetLongi(yogadaPlanet()));
}
double clsJaimini::DivyaLagnaLongi() const
{
    return yogaLongi(PlanetLongi(0));
}
double clsJaimini::SphutaYogaLagnaLongi() const
{
    return yogaLongi(PlanetLongi(SignLord(Sign(0))));
}
int clsJaimini::DivyaLagnaSign() const
{
    return signOfLongi(DivyaLagnaLongi());
}
int clsJaimini::SphutaYogaLagnaSign() const
{
    return signOfLongi(SphutaYogaLagnaLongi());
}

// ---- varnada ----

int clsJaimini::varnadaOf(int s, int h)
{
    const int a = odd(s) ? s : 13 - s;
    const int b = odd(h) ? h : 13 - h;
    const int apart = a < b ? b - a : a - b;
    if (odd(s))
        return odd(h) ? Clock12(s + h) : Clock12(apart);
    return odd(h) ? 13 - Clock12(apart) : 13 - Clock12(a + b);
}

int clsJaimini::VarnadaLagnaSign(int mode) const
{
    const int h = HoraLagna(mode);
    return h == 0 ? 0 : varnadaOf(Sign(0), h);
}

void clsJaimini::FillHouseVarnada()
{
    const int hora = HoraLagna(2);
    m_houseVarnada[0] = VarnadaLagnaSign(2);
    for (int k = 1; k <= 11; ++k)
        m_houseVarnada[static_cast<size_t>(k)] = varnadaOf(Clock12(Sign(0) + k), Clock12(hora + k));
}

int clsJaimini::HouseVarnada(int h) const
{
    return h >= 1 && h <= 12 ? static_cast<int>(m_houseVarnada[static_cast<size_t>(h - 1)]) : 0;
}

int clsJaimini::VarnadaXthSign(int h) const
{
    return HouseVarnada(h);
}

// ---- padas ----

void clsJaimini::JaiminiPadaPopular()
{
    for (int house = 1; house <= 12; ++house) {
        const int s = Clock12(Sign(0) + house - 1);
        const int a = Sign(SignLord(s));
        m_padaPopular[static_cast<size_t>(house)] = a == s ? s : Clock12(a + Clock12(a - s));
    }
}

void clsJaimini::JaiminiPadaConditional()
{
    for (int house = 1; house <= 12; ++house) {
        const int s = Clock12(Sign(0) + house - 1);
        const int a = Sign(SignLord(s));
        int pada;
        if (a == s || a == Clock12(s + 6))
            pada = Clock12(s + 9);
        else if (a == Clock12(s + 3) || a == Clock12(s + 9))
            pada = Clock12(s + 3);
        else
            pada = Clock12(a + Clock12(a - s));
        m_padaConditional[static_cast<size_t>(house)] = pada;
    }
}

int clsJaimini::JaiminiPadaSign(int h, int mode) const
{
    if (h < 1 || h > 12)
        return 0;
    return mode == 1 ? m_padaPopular[static_cast<size_t>(h)] : m_padaConditional[static_cast<size_t>(h)];
}

int clsJaimini::ArudhaLagna(int mode) const
{
    return JaiminiPadaSign(1, mode);
}
int clsJaimini::UpaPadaLagna(int mode) const
{
    return JaiminiPadaSign(12, mode);
}

// ---- Drekkana and Navamsha variants ----

void clsJaimini::FillJmnDrk(int mode) const
{
    if (mode != 2 && mode != 3)
        return;
    for (int p = 0; p <= 9; ++p) {
        const double l = PlanetLongi(p);
        long sign;
        if (mode == 2) {
            // The round of 120 degrees closes at 120 itself: the 13th span is Aries again.
            sign = Clock12(static_cast<int>(Fix(ModOneBased(l, 120) / 10)) + 1);
        } else {
            const int span = static_cast<int>(Fix(ModOneBased(l, 240) / 10)) % 24;
            sign = kSomanathSign[static_cast<size_t>(span)];
        }
        m_jmnDrk[static_cast<size_t>(p)] = sign;
    }
}

int clsJaimini::JmnDrkSign(int p, int mode) const
{
    FillJmnDrk(mode);
    return p >= 0 && p <= 9 ? static_cast<int>(m_jmnDrk[static_cast<size_t>(p)]) : 0;
}

int clsJaimini::DrekkanaLagna(int mode) const
{
    return JmnDrkSign(0, mode);
}
int clsJaimini::TraditionalDrekkanaLagna() const
{
    return m_chart.PrediVarga(0, 3);
}

int clsJaimini::NavamshLagna(int mode) const
{
    return mode == 2 ? kmNavSign(0) : NavamshSign(0);
}

int clsJaimini::kmNavSign(int p) const
{
    const int n = static_cast<int>(Fix(KrishAmsha(p) / (10.0 / 3))) + 1;
    switch (Sign(p)) {
    case 1:
    case 9:
        return n;
    case 5:
        return Clock12(n + 6);
    case 3:
    case 11:
        return Clock12(n + 9);
    case 7:
        return Clock12(n + 3);
    case 2:
    case 10:
        return Clock12(13 - n);
    case 6:
        return Clock12(7 - n);
    case 4:
    case 12:
        return Clock12(4 - n);
    case 8:
        return Clock12(10 - n);
    default:
        return 0;
    }
}

int clsJaimini::JaiminiNavamshSign(int p) const
{
    return Sex() == 1 ? NavamshSign(p) : kmNavSign(p);
}
int clsJaimini::KMNavLord(int p) const
{
    return SignLord(kmNavSign(p));
}
int clsJaimini::NavSignLord(int p) const
{
    return SignLord(NavamshSign(p));
}
