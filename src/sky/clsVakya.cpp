// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/clsVakya.h"

#include "sky/Functions.h"

#include <cmath>
#include <stdexcept>

#include <swephexp.h>

namespace {

constexpr double DaysOfAge = 1577917828;   // civil days in which all revolutions are counted
constexpr double KaliEpoch = 588466;       // day number of the start of the Kali count
constexpr double TimeShift = 0.01875;      // fraction of a day of motion taken from every mean longitude
constexpr double SineRatio = 3438.0 / 21600; // an epicycle in degrees to an equation in degrees
constexpr double DegPerRad = 57.29578;     // divisor for every sine, cosine and tangent
constexpr double Pi = 3.14159265358979;    // for the arc functions and their degrees

constexpr double SunRevolutions = 4320000;
constexpr double SunApogeeRevolutions = 0.387;
constexpr double SunApogeeAtEpoch = 77.13;
constexpr double SunEpicycle = 15;
constexpr double SunEpicycleLeast = 13.666666666666666;

constexpr double MoonRevolutions = 57753336;
constexpr double MoonApogeeRevolutions = 488199;
constexpr double MoonApogeeAtEpoch = 90;
constexpr double MoonEpicycle = 33;
constexpr double MoonEpicycleLeast = 31.666666666666668;

constexpr double NodeRevolutions = 232246;

constexpr double AyanamshaRevolutions = 179.929;
constexpr double AyanamshaOffset = 52.29000000000002;

constexpr double Obliquity = 23.45;
constexpr double DeclinationAriesEnd = 11.47699;  // declination at the end of Aries
constexpr double DeclinationTaurusEnd = 20.15943; // declination at the end of Taurus

double sinDeg(double d) { return std::sin(d / DegPerRad); }
double cosDeg(double d) { return std::cos(d / DegPerRad); }
double tanDeg(double d) { return std::tan(d / DegPerRad); }
double toDegrees(double rad) { return rad * 180 / Pi; }

// The remainder of a division by 360 that keeps the fraction and the sign of v.
double mod360(double v) { return std::fmod(v, 360.0); }

double plus360IfNegative(double v) { return v < 0 ? v + 360 : v; }

} // namespace

bool clsVakya::LagnaDefined(double latDeg, double latMin)
{
    const double lat = latDeg + latMin / 60;
    return std::fabs(lat) <= MaxLagnaLatitude;
}

double clsVakya::dayNumber(int d, int m, int y)
{
    return Fix(swe_julday(y, m, d, 0.0, SE_GREG_CAL)) + 1;
}

double clsVakya::KaliDinOf(int day, int month, int year)
{
    return dayNumber(day, month, year) - KaliEpoch;
}

double clsVakya::FindKaliDin() const
{
    return m_calculated ? KaliDinOf(m_day, m_month, m_year) : 0.0;
}

double clsVakya::CalcVakyaAyanamsha(double kd)
{
    return Frac(kd / DaysOfAge * AyanamshaRevolutions) * 360 - AyanamshaOffset;
}

double clsVakya::Acos(double x)
{
    if (!(x >= -1 && x <= 1))
        throw std::domain_error("clsVakya::Acos: argument outside -1..1");
    if (x == -1)
        return Pi;
    if (x == 1)
        return 0;
    return Pi / 2 - std::atan(x / std::sqrt(1 - x * x));
}

double clsVakya::Asin(double x)
{
    if (!(x >= -1 && x <= 1))
        throw std::domain_error("clsVakya::Asin: argument outside -1..1");
    const double r = std::sqrt(1 - x * x);
    if (r == 0)
        return Sgn(x) * Pi / 2;
    return std::atan(x / r);
}

void clsVakya::Calculate(int day, int month, int year, int hour, int minute, int second,
                         double latDeg, double latMin, double /*longDeg*/, double /*longMin*/,
                         double /*ayan*/, bool south)
{
    m_day = day;
    m_month = month;
    m_year = year;
    m_hour = hour;
    m_minute = minute;
    m_second = second;
    m_latDeg = latDeg;
    m_latMin = latMin;
    m_south = south;
    m_calculated = true;

    const double t = hour + minute / 60.0 + second / 3600.0;
    const double kd = dayNumber(day, month, year) - KaliEpoch + t / 24;
    m_ayanamsa = CalcVakyaAyanamsha(kd);
    m_sun = calcSun(kd);
    m_moon = calcMoon(kd);
    calcStarPlanets(kd);
    m_ketu = calcKetu(kd);
    m_rahu = Norm360(m_ketu + 180);
    m_lagnaValid = LagnaDefined(latDeg, latMin);
    m_lagna = calcLagna();
}

// Mean longitude for the given revolutions in the age, less the time shift. It may lie a
// little below 0.
double clsVakya::mean(double revolutions, double kd)
{
    double m = Frac(revolutions / DaysOfAge * kd) * 360;
    if (m > 360)
        m -= 360;
    return m - (revolutions / DaysOfAge) * 360 * TimeShift;
}

double clsVakya::meanSun(double kd) { return mean(SunRevolutions, kd); }

double clsVakya::trueSun(double kd, double r)
{
    const double m = meanSun(kd);
    const double apogee = Frac(SunApogeeRevolutions / DaysOfAge * kd) * 360 + SunApogeeAtEpoch;
    const double d = plus360IfNegative(apogee - m);
    const double s = sinDeg(d);
    const double c = r - std::fabs(s) * (r - SunEpicycleLeast);
    const double e = SineRatio * c;
    double t = m + s * e;
    if (t > 360)
        t -= 360;
    if (t < 0)
        t += 360;
    return t;
}

double clsVakya::calcSun(double kd) { return Norm360(mod360(trueSun(kd, SunEpicycle))); }

double clsVakya::trueMoon(double kd, double r)
{
    const double m = plus360IfNegative(mean(MoonRevolutions, kd));
    // the time shift is taken from the count of the apogee's revolutions itself
    const double q = MoonApogeeRevolutions - (MoonApogeeRevolutions / DaysOfAge) * 360 * TimeShift;
    const double apogee = Frac(q / DaysOfAge * kd) * 360 + MoonApogeeAtEpoch;
    const double d = plus360IfNegative(apogee - m);
    const double s = sinDeg(d);
    const double c = r - std::fabs(s) * (r - MoonEpicycleLeast);
    const double e = SineRatio * c;
    return mod360(m + s * e);
}

double clsVakya::calcMoon(double kd) { return Norm360(mod360(trueMoon(kd, MoonEpicycle))); }

double clsVakya::calcKetu(double kd)
{
    double n = Frac(NodeRevolutions / DaysOfAge * kd) * 360 + 180;
    if (n > 360)
        n -= 360;
    n = plus360IfNegative(n - (NodeRevolutions / DaysOfAge) * 360 * TimeShift);
    const double k = plus360IfNegative(180 - n);
    return Norm360(k);
}

// Half a fast, half a slow, a whole slow and a whole fast correction: the first two on the
// running value, the third on the mean again.
double clsVakya::starPlanet(const VakyaTable::StarPlanetRow &p, double kd)
{
    const double S = plus360IfNegative(meanSun(kd));
    const double M = plus360IfNegative(mean(p.R, kd));
    const double base = p.Outer ? M : S;
    const double far = p.Outer ? S : M;

    auto fast = [&p](double d) {
        const double s = sinDeg(d);
        const double c = p.S1 - std::fabs(s) * (p.S1 - p.S2);
        const double r = c / 360;
        return toDegrees(Asin(r * s / std::sqrt(r * r + 2 * r * cosDeg(d) + 1)));
    };
    auto slow = [&p](double d) {
        const double s = sinDeg(d);
        const double c = p.M1 - std::fabs(s) * (p.M1 - p.M2);
        return s * SineRatio * c;
    };

    const double d1 = plus360IfNegative(far - base);
    const double Z = Norm360(base + fast(d1) / 2);
    const double A = Frac(p.U / DaysOfAge * kd) * 360 + p.Uoff;
    const double d2 = plus360IfNegative(A - Z);
    const double W = Norm360(Z + slow(d2) / 2);
    const double d3 = plus360IfNegative(A - W);
    const double Q = Norm360(base + slow(d3));
    const double d4 = plus360IfNegative(far - Q);
    return Norm360(Q + fast(d4));
}

void clsVakya::calcStarPlanets(double kd)
{
    namespace T = VakyaTable;
    m_mars = starPlanet(T::StarPlanets[T::Mars], kd);
    m_jupiter = starPlanet(T::StarPlanets[T::Jupiter], kd);
    m_saturn = starPlanet(T::StarPlanets[T::Saturn], kd);
    m_mercury = starPlanet(T::StarPlanets[T::Mercury], kd);
    m_venus = starPlanet(T::StarPlanets[T::Venus], kd);
}

// Latitude of the last Calculate in degrees, south negative, held within the Lagna's limit.
double clsVakya::latitude() const
{
    double lat = m_latDeg + m_latMin / 60;
    if (lat > MaxLagnaLatitude)
        lat = MaxLagnaLatitude;
    else if (lat < -MaxLagnaLatitude)
        lat = -MaxLagnaLatitude;
    return m_south ? -lat : lat;
}

double clsVakya::RisingTime(int k, double latitude)
{
    const double tanLat = tanDeg(latitude);
    auto x = [tanLat](double v) { return tanDeg(v) * tanLat * 3438 / 6; };
    const double a = x(DeclinationAriesEnd);
    const double b = x(DeclinationTaurusEnd) - a;
    const double c = x(Obliquity) - x(DeclinationTaurusEnd);

    const VakyaTable::RisingRow &row = VakyaTable::RisingTimes[Norm12(k) - 1];
    const double term = row.Term == 'a' ? a : (row.Term == 'b' ? b : c);
    return row.Sign > 0 ? row.Base + term : row.Base - term;
}

// Counts the rising times of the signs out from sunrise, in tropical degrees.
double clsVakya::calcLagna() const
{
    const double lat = latitude();
    const double Ls = Norm360(m_ayanamsa + m_sun);
    const double declination = sinDeg(Ls) * Obliquity;
    const double x = -tanDeg(lat) * tanDeg(declination);
    const double halfDay = toDegrees(Acos(x)) / 15;
    const double sunrise = 12 - halfDay;

    const double t = m_hour + m_minute / 60.0 + m_second / 3600.0;
    const double T = (t - sunrise) * 2.5 * 60; // palas since sunrise

    const int s = static_cast<int>(Int(Ls / 30)) + 1;
    const double r0 = RisingTime(s, lat);
    const double left = r0 * (30 * s - Ls) / 30;
    const double done = (30 / r0) * (r0 - left);

    double L;
    if (T < left) {
        L = (T / r0) * 30 + done + 30 * (s - 1);
    } else {
        double rest = T - left;
        L = rest;
        for (int i = 1; i <= 12; ++i) {
            const int k = Norm12(i + s);
            const int j = Norm12(i + s - 1);
            const double r = RisingTime(k, lat);
            const double before = rest;
            rest -= r;
            if (rest >= 0) {
                L = (before / r) * 30 + 30 * j;
                continue;
            }
            // the sign reached: only the first round scales by its own rising time
            if (i == 1)
                L = (before / r) * 30 + 30 * j;
            break;
        }
    }
    return Norm360(L - m_ayanamsa);
}
