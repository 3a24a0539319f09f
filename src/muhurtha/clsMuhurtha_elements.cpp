// SPDX-License-Identifier: AGPL-3.0-or-later
// The elements of the electional rules: each code's test of the scan chart's moment.
#include "muhurtha/clsMuhurtha.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

namespace {

bool oneOf(int v, std::initializer_list<int> set) { return std::find(set.begin(), set.end(), v) != set.end(); }

// Rahu Kaal by weekday (Sunday first): start included, end excluded, in decimal hours.
struct Window
{
    double start, end;
};
inline constexpr std::array<Window, 7> kRahuKaal{{
    {16.5, 18}, {7.5, 9}, {15, 16.5}, {12, 13.5}, {13.5, 15}, {10.5, 12}, {9, 10.5},
}};

// Nakshatras of Sarvartha Siddhi by weekday (Sunday first); 0 pads a short row.
inline constexpr std::array<std::array<int, 7>, 7> kSiddhiNakshatras{{
    {1, 8, 12, 13, 19, 21, 26},
    {4, 5, 8, 17, 22, 0, 0},
    {1, 3, 9, 26, 0, 0, 0},
    {3, 4, 5, 13, 17, 0, 0},
    {1, 7, 8, 17, 27, 0, 0},
    {1, 7, 17, 22, 27, 0, 0},
    {4, 15, 22, 0, 0, 0, 0},
}};

// Ghatis after sunrise at which the poisoned part of the day begins, by weekday (Sunday first).
inline constexpr std::array<int, 7> kVishGhati{20, 2, 12, 10, 7, 5, 25};
// The ghati of each tithi 1..15 after which its four poisoned ghatis begin (the same for n + 15).
inline constexpr std::array<int, 15> kVishTithiGhati{15, 5, 8, 7, 7, 5, 4, 8, 7, 10, 3, 13, 14, 7, 8};

// The clock (hh.mm) a count of ghatis after sunrise r: x * 24 / 60 hours, its fraction as minutes,
// sixty minutes carried into the hour.
double clockAfterSunrise(double r, double ghatis)
{
    const double x = ghatis * 24.0 / 60.0;
    double at = r + Int(x) + (x - Int(x)) * 60 / 100;
    while (std::round((at - Int(at)) * 100) / 100 > 0.59)
        at = at - 0.6 + 1;
    return at;
}

// Sun's nakshatras that make Paat dosha with the Moon's nakshatra of the row; 0 pads.
struct PaatRow
{
    int moon;
    std::array<int, 7> sun;
};
inline constexpr std::array<PaatRow, 11> kPaatDosha{{
    {4, {6, 7, 11, 14, 19, 24, 0}},
    {5, {5, 6, 10, 13, 18, 23, 0}},
    {10, {1, 5, 8, 13, 18, 27, 0}},
    {12, {3, 6, 11, 12, 16, 25, 0}},
    {13, {2, 5, 10, 15, 24, 25, 0}},
    {15, {3, 8, 13, 22, 23, 27, 0}},
    {17, {1, 6, 11, 20, 21, 25, 0}},
    {19, {4, 9, 18, 19, 23, 26, 0}},
    {21, {2, 7, 11, 12, 16, 19, 24}},
    {26, {2, 11, 12, 16, 19, 24, 0}},
    {27, {1, 10, 11, 15, 18, 23, 0}},
}};

// Latta: (planet, count of nakshatras from it) in the order tested; the Moon's row applies only
// while its longitude is 180 or less.
struct LattaStep
{
    int planet, step;
};
inline constexpr std::array<LattaStep, 8> kLatta{{{1, 12}, {6, 8}, {5, 6}, {4, 3}, {2, -7}, {8, -9}, {3, -5}, {7, -22}}};

// Sign pairs of Kranti samya.
inline constexpr std::array<std::array<int, 2>, 6> kKrantiPairs{{{1, 5}, {2, 10}, {7, 11}, {6, 12}, {4, 8}, {3, 9}}};

// Tithi dagdha: the Sun's two signs and the two tithis burnt while it stands in them.
struct DagdhaRow
{
    int sign1, sign2, tithi1, tithi2;
};
inline constexpr std::array<DagdhaRow, 6> kTithiDagdha{{
    {9, 12, 2, 17}, {2, 11, 4, 19}, {1, 4, 6, 21}, {3, 6, 8, 23}, {5, 8, 10, 25}, {7, 10, 12, 27},
}};

// Sun's degrees within its sign at which the earth sleeps: [from, to).
inline constexpr std::array<Window, 5> kEarthSleeping{{{5, 6}, {7, 8}, {9, 11}, {21, 22}, {28, 29}}};

// Houses of the Lagna chart that spoil it, planet by planet (1 Sun .. 9 Ketu); 0 pads.
inline constexpr std::array<std::array<int, 5>, 9> kLagnaShuddhiHouses{{
    {1, 7, 0, 0, 0},  // Sun
    {7, 8, 0, 0, 0},  // Mercury
    {3, 6, 7, 8, 0},  // Venus
    {1, 7, 8, 10, 0}, // Mars
    {7, 8, 0, 0, 0},  // Jupiter
    {1, 7, 12, 0, 0}, // Saturn
    {1, 6, 7, 8, 12}, // Moon
    {1, 7, 0, 0, 0},  // Rahu
    {1, 7, 0, 0, 0},  // Ketu
}};

template <size_t N> bool inRow(const std::array<int, N> &row, int v)
{
    return v != 0 && std::find(row.begin(), row.end(), v) != row.end();
}

// Folds into 1..27 by whole turns; 0 stays 0 and matches no nakshatra.
int fold27(int v)
{
    while (v > 27)
        v -= 27;
    while (v < 0)
        v += 27;
    return v;
}

} // namespace

bool clsMuhurtha::fires(const QString &code, const QString &value, bool &known) const
{
    const clsPlanets &c = *m_scan;
    const clsPerson &p = c.Person();
    const int weekday = p.WeekDayOfBirth();
    const int tithi = c.Tithi();
    const int nak = c.Nakshatra();
    const auto equalsValue = [&value](int n) { return QString::number(n) == value; };
    const bool marriage = MuhuCategory() == QLatin1String("MARRIAGE");
    known = true;

    if (code == u"T" || code == u"KP" || code == u"SP")
        return equalsValue(tithi);
    if (code == u"N")
        return equalsValue(nak);
    if (code == u"D" || code == u"D2")
        return equalsValue(weekday);
    if (code == u"L" || code == u"L2")
        return equalsValue(c.PlanetSign(0));
    if (code == u"M" || code == u"MN")
        return equalsValue(clsPlanets::VikramiMonth(c.PlanetLongi(1), p.GetBirthDate()));
    if (code == u"M12") {
        if (marriage)
            return (m_boy && moonSignFires(*m_boy)) || (m_girl && moonSignFires(*m_girl));
        return m_natal && moonSignFires(*m_natal);
    }
    if (code == u"TG") {
        if (marriage)
            return (m_boy && taraFires(*m_boy)) || (m_girl && taraFires(*m_girl));
        return m_natal && taraFires(*m_natal);
    }
    if (code == u"RIKTABAD")
        return TithiGroup(tithi) == 4;
    if (code == u"UTTARAYAN")
        return c.GetSunAyan() == 1;
    if (code == u"RAHUKAAL") {
        if (weekday < 1 || weekday > 7)
            return false;
        const Window w = kRahuKaal[static_cast<size_t>(weekday - 1)];
        const double t = p.GetBirthDecimalTime();
        return t >= w.start && t < w.end;
    }
    if (code == u"DP" || code == u"DP2")
        return (weekday == 1 && tithi == 2 && nak == 23) || (weekday == 2 && tithi == 7 && nak == 14)
            || (weekday == 3 && tithi == 12 && nak == 5);
    if (code == u"TP" || code == u"TP2")
        return (weekday == 1 && tithi == 2 && oneOf(nak, {3, 7})) || (weekday == 2 && tithi == 7 && oneOf(nak, {12, 16}))
            || (weekday == 3 && tithi == 12 && oneOf(nak, {21, 26}));
    if (code == u"SD") {
        const int g = TithiGroup(tithi);
        return (weekday == 6 && g == 1) || (weekday == 4 && g == 2) || (weekday == 3 && g == 3) || (weekday == 7 && g == 4);
    }
    if (code == u"SSD")
        return weekday >= 1 && weekday <= 7 && inRow(kSiddhiNakshatras[static_cast<size_t>(weekday - 1)], nak);
    if (code == u"PH")
        return nak >= 23 && nak <= 27;
    if (code == u"BHADRA" || code == u"BHADRABAD")
        return c.KaranNumber() == 7
            && ((oneOf(tithi, {4, 8, 11, 15}) && p.Hour() <= 12) || (oneOf(tithi, {18, 22, 25, 29}) && p.Hour() > 12));
    if (code == u"MDIR")
        return oneOf(c.FindPlanetDirection(7), {1, 3});
    if (code == u"YOGNIV")
        return (tithi >= 1 && tithi <= 15) || tithi == 30;
    if (code == u"DISHASHULA")
        return weekday == 2 || weekday == 7;
    if (code == u"VISHDAY")
        return vishDayFires();
    if (code == u"VISHTITHI")
        return vishTithiFires();
    if (code == u"JUPVENCOMBUST")
        return c.Combust(5).value_or(false) || c.Combust(3).value_or(false);
    if (code == u"LAGNASHUDDHI")
        return lagnaShuddhi();
    if (code == u"LATTADOSHA")
        return lattaDosha();
    if (code == u"PAATDOSHA")
        return paatDosha();
    if (code == u"KRANTISAMYA") {
        const int sun = c.PlanetRashiNum(1);
        const int moon = c.PlanetRashiNum(7);
        for (const auto &pair : kKrantiPairs)
            if (inRow(pair, sun) && inRow(pair, moon))
                return true;
        return false;
    }
    if (code == u"YUTIDOSHA") {
        for (int planet : {1, 4, 6, 8, 9, 3})
            if (nak == c.NakOf(planet))
                return true;
        return false;
    }
    if (code == u"JAMITRADOSHA") {
        const int seventh = Norm12(c.PlanetRashiNum(0) + 6);
        for (int planet = 1; planet <= 9; ++planet)
            if (c.PlanetRashiNum(planet) == seventh)
                return true;
        return false;
    }
    if (code == u"UPAGRAHADOSHA") {
        const int n = static_cast<int>(Norm27(c.NakOf(7) - c.NakOf(1) + 1));
        return oneOf(n, {5, 7, 8, 10, 14, 15, 19, 21, 22, 23, 24, 25});
    }
    if (code == u"TITHIDAGDHADOSHA") {
        const int sun = c.PlanetRashiNum(1);
        for (const DagdhaRow &r : kTithiDagdha)
            if ((sun == r.sign1 || sun == r.sign2) && (tithi == r.tithi1 || tithi == r.tithi2))
                return true;
        return false;
    }
    if (code == u"EARTHSLEEPING") {
        const double x = Norm30(c.PlanetLongi(1));
        for (const Window &w : kEarthSleeping)
            if (x >= w.start && x < w.end)
                return true;
        return false;
    }
    if (code == u"HARISHAYAN")
        return GetHariShayan(tithi, clsPlanets::VikramiMonth(c.PlanetLongi(1), p.GetBirthDate()));
    if (code == u"KHARMAAS")
        return GetKharMaas(c.PlanetSign(1));
    // Recognised, with no rule yet: they never fire.
    if (code == u"EKARGALADOSHA" || code == u"VEDHANAK" || code == u"BOYSURYA" || code == u"GIRLGURU"
        || code == u"BOYMOON" || code == u"GIRLMOON")
        return false;
    known = false;
    return false;
}

bool clsMuhurtha::moonSignFires(const clsPlanets &natal) const
{
    int c = natal.PlanetRashiNum(7) - m_scan->PlanetSign(7);
    if (c < 0)
        c += 12;
    return c != 6 && c != 8;
}

bool clsMuhurtha::taraFires(const clsPlanets &natal) const
{
    int c = m_scan->Nakshatra() - natal.Nakshatra() + 1;
    if (c < 1)
        c += 27;
    return oneOf(c % 9, {0, 2, 4, 6, 8});
}

bool clsMuhurtha::vishDayFires() const
{
    const int weekday = m_scan->Person().WeekDayOfBirth();
    if (weekday < 1 || weekday > 7)
        return false;
    const double r = daySunrise();
    const double x = kVishGhati[static_cast<size_t>(weekday - 1)] * 24.0 / 60.0;
    double start = r + Int(x) + (x - Int(x)) * 60 / 100;
    // The minutes are compared to two places, so that 0.59 written as 0.5900001 carries no hour.
    if (std::round((start - Int(start)) * 100) / 100 > 0.59)
        start = start - 0.6 + 1;
    const double t = m_scan->Person().GetBirthDecimalTime();
    return start <= t && t <= start + 1.6;
}

bool clsMuhurtha::vishTithiFires() const
{
    const clsPlanets &c = *m_scan;
    const clsPerson &p = c.Person();
    // The Moon's distance from the Sun within its half of the month gives the tithi (0..14 here)
    // and how much of it has run: a tithi is taken as sixty ghatis, twelve degrees.
    double d = c.PlanetLongi(7) - c.PlanetLongi(1);
    if (d < 0)
        d += 360;
    if (d > 180)
        d -= 180;
    const int n = static_cast<int>(Int(d / 12)) % 15;
    const double run = (d - 12.0 * Int(d / 12)) / 12 * 60;
    // The tithi began `run` ghatis before the moment; its poisoned ghatis begin the table's count
    // after that, counted here from sunrise.
    const double r = daySunrise();
    const double hoursSinceSunrise = (p.Hour() + p.Minutes() / 60.0) - (Int(r) + (r - Int(r)) * 100 / 60);
    const double from = hoursSinceSunrise * 2.5 - run + kVishTithiGhati[static_cast<size_t>(n)];
    // A window that closed before sunrise belongs to the day before.
    if (from + 4 < 0)
        return false;
    const double t = p.Hour() + p.Minutes() / 100.0;
    const double start = from < 0 ? r : clockAfterSunrise(r, from);
    return start <= t && t <= clockAfterSunrise(r, from + 4);
}

double clsMuhurtha::daySunrise() const
{
    const clsPerson &p = m_scan->Person();
    const QDate date(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()));
    const auto it = m_sunrises.constFind(date);
    if (it != m_sunrises.cend())
        return *it;
    // One reference clock a day: every moment of the day, and a moment tested alone, read the
    // same sunrise.
    if (!m_dayChart)
        m_dayChart = std::make_unique<clsPlanets>();
    clsPlanets &day = *m_dayChart;
    m_scan->CopySettingTo(day);
    day.setRahuKetuMode(m_scan->RahuKetuMode());
    day.Person().setHour(6);
    day.Person().setMinutes(0);
    day.Calculate();
    const double r = day.SunRiseTime();
    m_sunrises.insert(date, r);
    return r;
}

bool clsMuhurtha::lagnaShuddhi() const
{
    const clsPlanets &c = *m_scan;
    for (int planet = 1; planet <= 9; ++planet)
        if (inRow(kLagnaShuddhiHouses[static_cast<size_t>(planet - 1)], c.PlanetHouse(planet)))
            return true;
    return c.PlanetHouse(clsPlanets::FindRashiLordNo(c.PlanetSign(0))) == 1;
}

bool clsMuhurtha::lattaDosha() const
{
    const clsPlanets &c = *m_scan;
    const int nak = c.Nakshatra();
    for (const LattaStep &s : kLatta) {
        if (s.planet == 7 && c.PlanetLongi(7) > 180)
            continue;
        if (fold27(c.NakOf(s.planet) + s.step - 1) == nak)
            return true;
    }
    return false;
}

bool clsMuhurtha::paatDosha() const
{
    const clsPlanets &c = *m_scan;
    const int moon = c.Nakshatra();
    for (const PaatRow &r : kPaatDosha)
        if (r.moon == moon)
            return inRow(r.sun, c.NakOf(1));
    return false;
}
