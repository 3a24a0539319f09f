// SPDX-License-Identifier: AGPL-3.0-or-later
// The strength of motion (Chesta Bala): the days since 1900, the motion tables, the mean
// longitudes and the apexes of the fast motion.
#include "strength/clsShadBala.h"

#include "strength/ShadBalaFigures.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <QDate>

#include <algorithm>
#include <cmath>

using namespace ShadBalaFigures;

namespace {

// Motion in degrees: row by place (units, tens, hundreds, thousands, ten thousands of days),
// column by digit 1..9.
using MotionTable = std::array<std::array<double, 9>, 5>;

// The Sun, also the mean motion of Mercury and Venus.
inline constexpr MotionTable kSunMotion{{
    {0.9856, 1.9712, 2.9568, 3.9524, 4.928, 5.9136, 6.8992, 7.8848, 8.8704},
    {9.856, 19.712, 29.568, 39.524, 49.28, 59.136, 68.992, 78.848, 88.704},
    {98.5602, 197.1205, 295.6808, 34.2411, 132.8013, 231.3616, 329.9218, 68.4821, 167.0424},
    {265.6026, 71.2053, 76.808, 342.4106, 248.0133, 153.6159, 59.2186, 324.8212, 230.4239},
    {146.0265, 272.0531, 48.0796, 184.1062, 320.1327, 96.1593, 232.1868, 8.2124, 144.2389},
}};
// Mars.
inline constexpr MotionTable kMarsMotion{{
    {0.524, 1.048, 1.5721, 2.0961, 2.6201, 3.1441, 3.668, 4.192, 4.716},
    {5.24, 10.48, 15.721, 20.961, 26.201, 31.441, 36.68, 41.92, 47.16},
    {52.4, 104.8, 157.21, 209.61, 262.01, 314.41, 6.814, 59.22, 111.62},
    {164.02, 328.04, 132.06, 296.08, 100.1, 264.12, 68.14, 232.55, 36.17},
    {200.19, 40.39, 240.58, 80.78, 280.97, 121.16, 321.36, 161.55, 1.74},
}};
// Jupiter.
inline constexpr MotionTable kJupiterMotion{{
    {0.0831, 0.16619, 0.24929, 0.33239, 0.4155, 0.4986, 0.5817, 0.6658, 0.7479},
    {0.831, 1.6619, 2.4929, 3.3239, 4.155, 4.986, 5.817, 6.658, 7.479},
    {8.31, 16.619, 24.929, 33.239, 41.55, 49.86, 58.17, 66.58, 74.79},
    {83.1, 166.19, 249.29, 332.39, 55.48, 138.58, 221.67, 304.77, 78.87},
    {110.96, 221.96, 332.89, 83.85, 194.82, 305.78, 56.74, 167.71, 278.67},
}};
// Saturn.
inline constexpr MotionTable kSaturnMotion{{
    {0.033439, 0.06688, 0.10032, 0.13376, 0.1672, 0.200636, 0.23408, 0.26751, 0.30095},
    {0.33439, 0.6688, 1.0032, 1.3376, 1.672, 2.00636, 2.3408, 2.6751, 3.0095},
    {3.3439, 6.688, 10.032, 13.376, 16.72, 20.0636, 23.408, 26.751, 30.095},
    {33.439, 66.88, 100.32, 133.76, 167.2, 200.636, 234.08, 267.51, 300.95},
    {334.39, 308.79, 283.18, 257.57, 231.97, 206.36, 180.75, 152.14, 122.54},
}};
// The apex of the fast motion of Mercury.
inline constexpr MotionTable kMercuryApex{{
    {4.0923, 8.184, 12.277, 16.369, 20.462, 24.554, 28.646, 32.738, 36.8309},
    {40.923, 81.84, 122.77, 163.69, 204.62, 245.54, 286.46, 327.38, 8.309},
    {49.23, 98.46, 147.69, 196.93, 246.16, 295.39, 344.62, 33.85, 83.09},
    {133.32, 264.64, 36.95, 169.27, 301.59, 73.908, 206.34, 338.5, 110.86},
    {243.18, 126.36, 9.54, 252.72, 135.9, 19.08, 262.26, 145.44, 28.63},
}};
// The apex of the fast motion of Venus.
inline constexpr MotionTable kVenusApex{{
    {1.60215, 3.20429, 4.806, 6.409, 8.010732, 9.6129, 11.21, 12.817, 14.419318},
    {16.0215, 32.0429, 48.06, 64.09, 80.10732, 96.129, 116.15, 128.17, 144.19318},
    {160.215, 320.429, 120.64, 280.86, 81.0732, 241.29, 41.5, 201.72, 1.9318},
    {162.15, 324.29, 246.44, 288.52, 90.732, 252.88, 55.02, 217.17, 19.318},
    {181.46, 2.93, 184.39, 5.86, 187.32, 8.87, 190.25, 11.71, 193.18},
}};

// The motion of `days` days by table t: the table by the digits of the days, and what is left
// below a day at the rate of one day. A digit that rounds up to 10 is read as 9, the rest going
// on to the lower places.
double motion(const MotionTable &t, double days)
{
    static constexpr std::array<double, 4> kPlaces{10000, 1000, 100, 10};
    double sum = 0;
    double d = days;
    for (size_t i = 0; i < kPlaces.size(); ++i) {
        const double place = kPlaces[i];
        if (d < place)
            continue;
        const long digit = std::min(9L, CLng(d) / static_cast<long>(place));
        d -= static_cast<double>(digit) * place;
        if (digit > 0)
            sum += t[4 - i][static_cast<size_t>(digit - 1)];
    }
    if (d > 1) {
        const long units = std::min(9L, static_cast<long>(Int(d)));
        d -= static_cast<double>(units);
        sum += t[0][static_cast<size_t>(units - 1)];
    }
    sum += d * t[0][0];
    return Norm360(sum);
}

} // namespace

double clsShadBala::DaysSince1900() const
{
    const clsPerson &p = m_c.Person();
    const double g = MinToDec(p.Longitude());
    const double u = 455.0 / 6.0; // the reference longitude, 75 degrees 50 minutes
    double t = MinToDec(Val(p.GetBirthTime()));
    if (g > u)
        t -= (g - u) / 15;
    else if (g < u)
        t += (u - g) / 15;
    const QDate born(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()));
    const double dayOfYear = static_cast<double>(QDate(born.year(), 1, 1).daysTo(born));
    return static_cast<double>(p.Year() - 1900) * 365.2564 + dayOfYear - 1 + t / 24;
}

double clsShadBala::MeanLongiOfPlanets(double days, int planet) const
{
    const double years = static_cast<double>(m_c.Person().Year() - 1900);
    switch (planet) {
    case 1: case 2: case 3: return Norm360(motion(kSunMotion, days) + 257.4568);
    case 4: return Norm360(motion(kMarsMotion, days) + 270.22);
    case 5: return Norm360(motion(kJupiterMotion, days) + 220.04 - 3.33 - years * 0.0067);
    case 6: return Norm360(motion(kSaturnMotion, days) + 236.74 + 5.0 + years * 0.001);
    default: return 0;
    }
}

double clsShadBala::SheeghrochchaOfPlanets(double days, int planet) const
{
    const double years = static_cast<double>(m_c.Person().Year() - 1900);
    switch (planet) {
    case 2: return Norm360(motion(kMercuryApex, days) + 164.0 + 6.67 - years * 0.00133);
    case 3: return Norm360(motion(kVenusApex, days) + 328.51 - 5.0 - years * 0.0001);
    case 4: case 5: case 6: return MeanLongiOfPlanets(days, 1);
    default: return 0;
    }
}

double clsShadBala::ChestaKendra(int planet) const
{
    const double d = DaysSince1900();
    const double s = SheeghrochchaOfPlanets(d, planet);
    const double m = MeanLongiOfPlanets(d, planet);
    const double c = Norm360(s - (m + m_c.PlanetLongi(planet)) / 2);
    return c > 180 ? 360 - c : c;
}

double clsShadBala::SBChestaBala(int planet)
{
    int p = planet;
    if (planet == 1)
        return rounded(value(SBAyanaBala(p)));
    if (planet == 7)
        return rounded(value(SBPakshaBala(p)));
    if (!inRange(planet, 2, 6))
        return 0;
    return rounded(ChestaKendra(planet) / 3);
}
