// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/clsSaham.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

namespace {

inline constexpr std::array<const char *, clsSaham::kCount> kKeys{
    "Punya",   "Vidya",   "Yasha",     "Mitra",    "Mahatya",     "Asha",   "Samartha", "Bhatri",  "Gaurava",
    "Pitri",   "Raja",    "Matri",     "Apatya",   "Jeeva",       "Karma",  "Roga",     "Kali",    "Shastra",
    "Bandhu",  "Nidhana", "Paradesha", "Dhana",    "Paradara",    "Vanija", "Karyasiddhi", "Vivaha", "Santapa",
    "Shraddha", "Preeti", "Jadya",     "Vyapara",  "Shatru",      "Jalapatana", "Bandhana", "Apaghat", "Vittahani"};
static_assert(kKeys.size() == 36);

// Numbers of the sahams of good effect.
inline constexpr std::array<int, 26> kBenefic{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 18, 19, 21, 22, 24, 25, 26, 28, 29, 31, 33};

} // namespace

double clsSaham::CalculateSaham(int a, int b, int c, bool dayNight, double over1, int slot1, double over2, int slot2) const
{
    std::array<double, 4> v{0, m_chart.PlanetLongi(a), m_chart.PlanetLongi(b), m_chart.PlanetLongi(c)};
    if (over1 > 0 && slot1 >= 1 && slot1 <= 3)
        v[static_cast<size_t>(slot1)] = over1;
    if (over2 > 0 && slot2 >= 1 && slot2 <= 3)
        v[static_cast<size_t>(slot2)] = over2;
    const double la = v[1], lb = v[2], lc = v[3];
    const double lagna = m_chart.PlanetLongi(0);
    double x = 0, y = 0, r = 0;
    if (!dayNight) {
        x = Norm360(la - lb);
        y = Norm360(la - lc);
        r = la - lb + lc;
    } else if (m_chart.DayBirth()) {
        x = Norm360(la - lb);
        y = Norm360(la - lagna);
        r = la - lb + lc;
    } else {
        x = Norm360(lb - la);
        y = Norm360(lagna - la);
        r = lb - la + lc;
    }
    if (x < y)
        r += 30;
    return Norm360(r);
}

double clsSaham::memo(int n, double (clsSaham::*compute)() const) const
{
    double &v = m_value[static_cast<size_t>(n)];
    if (v == 0)
        v = (this->*compute)();
    return v;
}

double clsSaham::punya() const { return CalculateSaham(7, 1, 0, true); }
double clsSaham::vidya() const { return CalculateSaham(1, 7, 0, true); }
double clsSaham::yasha() const { return CalculateSaham(5, 1, 0, true, Punya(), 2); }
double clsSaham::mitra() const { return CalculateSaham(5, 1, 3, true, Punya(), 2); }
double clsSaham::mahatya() const { return CalculateSaham(1, 4, 0, true, Punya(), 1); }
double clsSaham::asha() const { return CalculateSaham(6, 4, 0, true); }
double clsSaham::samartha() const
{
    const int s = m_chart.Sign(0);
    if (s == 1 || s == 8)
        return CalculateSaham(5, 4, 0, true);
    return CalculateSaham(4, clsPlanets::SignLord(s), 0, true);
}
double clsSaham::bhatri() const { return CalculateSaham(5, 6, 0, false); }
double clsSaham::gaurava() const { return CalculateSaham(5, 7, 1, true); }
double clsSaham::pitri() const { return CalculateSaham(6, 1, 0, true); }
double clsSaham::matri() const { return CalculateSaham(7, 3, 0, true); }
double clsSaham::apatya() const { return CalculateSaham(5, 7, 0, true); }
double clsSaham::jeeva() const { return CalculateSaham(6, 5, 0, true); }
double clsSaham::karma() const { return CalculateSaham(4, 2, 0, true); }
double clsSaham::roga() const { return CalculateSaham(0, 7, 0, false); }
double clsSaham::kali() const { return CalculateSaham(5, 4, 0, true); }
double clsSaham::shastra() const { return CalculateSaham(5, 6, 2, true); }
double clsSaham::bandhu() const { return CalculateSaham(2, 7, 0, true); }
double clsSaham::nidhana() const { return CalculateSaham(1, 7, 0, true, m_chart.BhavMid(7), 1); }
double clsSaham::houseSaham(int k) const
{
    const int lord = clsPlanets::SignLord(Norm12(m_chart.Sign(0) + k));
    return CalculateSaham(1, 1, 0, true, m_chart.BhavMid(k), 1, m_chart.PlanetLongi(lord), 2);
}
double clsSaham::paradesha() const { return houseSaham(8); }
double clsSaham::dhana() const { return houseSaham(1); }
double clsSaham::paradara() const { return CalculateSaham(3, 1, 0, true); }
double clsSaham::vanija() const { return CalculateSaham(7, 2, 0, true); }
double clsSaham::karyasiddhi() const
{
    if (m_chart.DayBirth())
        return CalculateSaham(6, 1, clsPlanets::SignLord(m_chart.Sign(1)), false);
    return CalculateSaham(6, 7, clsPlanets::SignLord(m_chart.Sign(7)), false);
}
double clsSaham::vivaha() const { return CalculateSaham(3, 6, 0, true); }
double clsSaham::santapa() const { return CalculateSaham(6, 7, 1, true, m_chart.BhavMid(5), 3); }
double clsSaham::shraddha() const { return CalculateSaham(3, 4, 0, true); }
double clsSaham::preeti() const { return CalculateSaham(1, 1, 0, true, Shastra(), 1, Punya(), 2); }
double clsSaham::jadya() const { return CalculateSaham(4, 6, 2, true); }
double clsSaham::vyapara() const { return CalculateSaham(4, 2, 0, false); }
double clsSaham::shatru() const { return CalculateSaham(4, 6, 0, true); }
double clsSaham::jalapatana() const { return CalculateSaham(1, 6, 0, true, 105.0, 1); }
double clsSaham::bandhana() const { return CalculateSaham(1, 6, 0, true, Punya(), 1); }
double clsSaham::apaghat() const { return CalculateSaham(1, 4, 0, true, m_chart.BhavMid(7), 1); }
double clsSaham::vittahani() const { return houseSaham(11); }

double clsSaham::Punya() const { return memo(1, &clsSaham::punya); }
double clsSaham::Vidya() const { return memo(2, &clsSaham::vidya); }
double clsSaham::Yasha() const { return memo(3, &clsSaham::yasha); }
double clsSaham::Mitra() const { return memo(4, &clsSaham::mitra); }
double clsSaham::Mahatya() const { return memo(5, &clsSaham::mahatya); }
double clsSaham::Asha() const { return memo(6, &clsSaham::asha); }
double clsSaham::Samartha() const { return memo(7, &clsSaham::samartha); }
double clsSaham::Bhatri() const { return memo(8, &clsSaham::bhatri); }
double clsSaham::Gaurava() const { return memo(9, &clsSaham::gaurava); }
double clsSaham::Pitri() const { return memo(10, &clsSaham::pitri); }
double clsSaham::Raja() const { return memo(11, &clsSaham::pitri); }
double clsSaham::Matri() const { return memo(12, &clsSaham::matri); }
double clsSaham::Apatya() const { return memo(13, &clsSaham::apatya); }
double clsSaham::Jeeva() const { return memo(14, &clsSaham::jeeva); }
double clsSaham::Karma() const { return memo(15, &clsSaham::karma); }
double clsSaham::Roga() const { return memo(16, &clsSaham::roga); }
double clsSaham::Kali() const { return memo(17, &clsSaham::kali); }
double clsSaham::Shastra() const { return memo(18, &clsSaham::shastra); }
double clsSaham::Bandhu() const { return memo(19, &clsSaham::bandhu); }
double clsSaham::Nidhana() const { return memo(20, &clsSaham::nidhana); }
double clsSaham::Paradesha() const { return memo(21, &clsSaham::paradesha); }
double clsSaham::Dhana() const { return memo(22, &clsSaham::dhana); }
double clsSaham::Paradara() const { return memo(23, &clsSaham::paradara); }
double clsSaham::Vanija() const { return memo(24, &clsSaham::vanija); }
double clsSaham::Karyasiddhi() const { return memo(25, &clsSaham::karyasiddhi); }
double clsSaham::Vivaha() const { return memo(26, &clsSaham::vivaha); }
double clsSaham::Santapa() const { return memo(27, &clsSaham::santapa); }
double clsSaham::Shraddha() const { return memo(28, &clsSaham::shraddha); }
double clsSaham::Preeti() const { return memo(29, &clsSaham::preeti); }
double clsSaham::Jadya() const { return memo(30, &clsSaham::jadya); }
double clsSaham::Vyapara() const { return memo(31, &clsSaham::vyapara); }
double clsSaham::Shatru() const { return memo(32, &clsSaham::shatru); }
double clsSaham::Jalapatana() const { return memo(33, &clsSaham::jalapatana); }
double clsSaham::Bandhana() const { return memo(34, &clsSaham::bandhana); }
double clsSaham::Apaghat() const { return memo(35, &clsSaham::apaghat); }
double clsSaham::Vittahani() const { return memo(36, &clsSaham::vittahani); }

double clsSaham::SahamLongi(int n) const
{
    using Member = double (clsSaham::*)() const;
    static constexpr std::array<Member, kCount> kMembers{
        &clsSaham::Punya,    &clsSaham::Vidya,       &clsSaham::Yasha,    &clsSaham::Mitra,     &clsSaham::Mahatya,
        &clsSaham::Asha,     &clsSaham::Samartha,    &clsSaham::Bhatri,   &clsSaham::Gaurava,   &clsSaham::Pitri,
        &clsSaham::Raja,     &clsSaham::Matri,       &clsSaham::Apatya,   &clsSaham::Jeeva,     &clsSaham::Karma,
        &clsSaham::Roga,     &clsSaham::Kali,        &clsSaham::Shastra,  &clsSaham::Bandhu,    &clsSaham::Nidhana,
        &clsSaham::Paradesha, &clsSaham::Dhana,      &clsSaham::Paradara, &clsSaham::Vanija,    &clsSaham::Karyasiddhi,
        &clsSaham::Vivaha,   &clsSaham::Santapa,     &clsSaham::Shraddha, &clsSaham::Preeti,    &clsSaham::Jadya,
        &clsSaham::Vyapara,  &clsSaham::Shatru,      &clsSaham::Jalapatana, &clsSaham::Bandhana, &clsSaham::Apaghat,
        &clsSaham::Vittahani};
    if (n < 1 || n > kCount)
        return 0;
    return (this->*kMembers[static_cast<size_t>(n - 1)])();
}

long clsSaham::SahamSign(int n) const
{
    // A point at 360 is the end of the last sign.
    return Norm12(static_cast<int>(Fix(SahamLongi(n) / 30)) + 1);
}

long clsSaham::SahamLord(int s) const { return clsPlanets::SignLord(s); }

bool clsSaham::CheckIfSahamBenefic(int n)
{
    for (int b : kBenefic)
        if (b == n)
            return true;
    return false;
}

QString clsSaham::SahamKey(int n)
{
    if (n < 1 || n > kCount)
        return {};
    return QString::fromLatin1(kKeys[static_cast<size_t>(n - 1)]);
}

namespace {
bool inRanges(double d, std::initializer_list<std::pair<double, double>> halfOpen)
{
    for (const auto &[from, to] : halfOpen)
        if (d >= from && d < to)
            return true;
    return false;
}
} // namespace

long clsSaham::IsSahamResultFructifies(int n) const
{
    if (n < 1 || n > kCount)
        return 0;
    const clsPlanets &c = m_chart;
    const double l = SahamLongi(n);
    const int g = static_cast<int>(SahamSign(n));
    const int r = static_cast<int>(SahamLord(g));
    const int lg = c.Sign(0);
    const int sr = c.Sign(r);
    const auto fromLord = [&](int k) { return Norm360(l - c.PlanetLongi(clsPlanets::SignLord(Norm12(g + k)))); };
    const double d7 = fromLord(7), d10 = fromLord(10);
    const bool retro = c.RetroGrade(r);
    const bool combust = clsPlanets::CheckIfCombust(r, c.PlanetLongi(1), c.PlanetLongi(r)).value_or(false);
    const bool trika = c.PlanetInTrika(r, 0);
    const int lagnaLordSign = c.Sign(clsPlanets::SignLord(lg));
    int score = 0;
    if (CheckIfSahamBenefic(n)) {
        score += 20 * (clsPlanets::CheckIfExalted(r, sr) || clsPlanets::CheckOwnHouse(r, sr) || c.InAdhiMitraHouse(r) || c.InFriendHouse(r));
        score += 20 * (!retro && !combust && !trika);
        score += 20 * (sr == lagnaLordSign || sr == lg || sr == Norm12(lg + 2) || sr == Norm12(lg + 4) || sr == Norm12(lg + 8)
                       || sr == Norm12(lg + 10) || (clsPlanets::PlanetBenefic(r) && sr == Norm12(lg + 6)));
        score += 20 * inRanges(d7, {{4, 90}, {94, 180}, {184, 270}, {274, 360}});
        bool pair = false;
        for (const auto &[p, q] : {std::pair{4, 0}, {64, 60}, {124, 120}, {184, 180}, {244, 240}, {300, 300}})
            pair = pair || (d10 <= p && d7 >= q);
        score += 20 * pair;
    } else {
        score += 20 * (clsPlanets::CheckIfDebi(r, sr) || c.InAdhiSatruHouse(r) || c.InEnemyHouse(r));
        score += 20 * (retro || combust || trika);
        score += 20 * (sr == lagnaLordSign || sr == lg || sr == Norm12(lg + 3) || sr == Norm12(lg + 9)
                       || (!clsPlanets::PlanetBenefic(r) && sr == Norm12(lg + 6)));
        score += 20 * ((d7 >= 0 && d7 <= 4) || (d7 >= 90 && d7 <= 94) || (d7 >= 180 && d7 <= 184) || (d7 >= 270 && d7 <= 274));
        bool pair = false;
        for (const auto &[p, q] : {std::pair{4, 60}, {64, 120}, {184, 180}, {124, 240}, {244, 300}, {304, 360}})
            pair = pair || (d10 >= p && d7 < q);
        score += 20 * pair;
    }
    return score == 100 ? 3 : score == 80 ? 2 : 0;
}

QString clsSaham::SahamResultDays(int n) const
{
    const long fruit = IsSahamResultFructifies(n);
    if (fruit != 2 && fruit != 3)
        return {};
    const clsPlanets &c = m_chart;
    const int g = static_cast<int>(SahamSign(n));
    const int r = static_cast<int>(SahamLord(g));
    const double q = c.PlanetLongi(clsPlanets::SignLord(Norm12(g + (CheckIfSahamBenefic(n) ? 10 : 7))));
    constexpr double kYear = 365.2564;
    const long d1 = static_cast<long>(Fix(Norm360(SahamLongi(n) - q) * kYear / 360));
    const long d2 = CLng(kYear - d1);
    const long d3 = static_cast<long>(Fix(Norm360(c.PlanetLongi(r) - q) * kYear / 360));
    const long d4 = CLng(kYear - d3);
    return QStringLiteral("%1+%2+%3+%4").arg(d1).arg(d2).arg(d3).arg(d4);
}

QString clsSaham::SahamResultPatDasha(int n) const
{
    if (IsSahamResultFructifies(n) != 3)
        return {};
    const clsPlanets &c = m_chart;
    const int lg = c.Sign(0);
    const int g = static_cast<int>(SahamSign(n));
    if (g != lg)
        return {};
    const int lord = clsPlanets::SignLord(lg);
    const int s = c.Sign(lord);
    const bool state = CheckIfSahamBenefic(n)
                           ? clsPlanets::CheckIfExalted(lord, s) || clsPlanets::CheckOwnHouse(lord, s)
                           : clsPlanets::CheckIfDebi(lord, s) || clsPlanets::CheckIfCombust(lord, c.PlanetLongi(1), c.PlanetLongi(lord)).value_or(false)
                                 || c.PlanetInTrika(lord, 0);
    if (!state)
        return {};
    return QStringLiteral("Ascendant Dasha(") + c.PlanetName(clsPlanets::SignLord(Norm12(g + 10))) + QLatin1Char('+')
           + c.PlanetName(static_cast<int>(SahamLord(g))) + QLatin1Char(')');
}
