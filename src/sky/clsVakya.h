// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The traditional (Vakya) computation: the Sun, the Moon, the five star planets, the nodes and
// the Lagna from whole revolutions in a great age and a day count from the start of the Kali age.

#include <array>

// The motion tables of the method.
namespace VakyaTable {

// One star planet: revolutions in the age, its apogee, and the bounds of its two epicycles.
struct StarPlanetRow {
    double R;    // revolutions in the age: of the planet when Outer, else of its fast point
    bool Outer;  // true for Mars, Jupiter, Saturn: the mean planet is the base, the Sun the fast point
    double Uoff; // position of the apogee at the epoch, degrees
    double U;    // revolutions of the apogee in the age
    double S1;   // fast epicycle at |sin| = 0
    double S2;   // fast epicycle at |sin| = 1
    double M1;   // slow epicycle at |sin| = 0
    double M2;   // slow epicycle at |sin| = 1
};

enum StarPlanet { Mars, Jupiter, Saturn, Mercury, Venus };

//                                                 R           flag   Uoff    U      S1   S2   M1  M2
inline constexpr std::array<StarPlanetRow, 5> StarPlanets{{
    /* Mars    */ {2296832,  true,  129.96, 0.204, 235, 232, 75, 72},
    /* Jupiter */ {364212,   true,  171,    0.9,   70,  72,  33, 32},
    /* Saturn  */ {146580,   true,  236.61, 0.039, 39,  40,  49, 48},
    /* Mercury */ {17937044, false, 220.32, 0.368, 133, 132, 30, 28},
    /* Venus   */ {7022364,  false, 79.65,  0.535, 262, 260, 12, 11},
}};
static_assert(StarPlanets.size() == 5);

// Rising time of a sign in palas: Base plus or minus one of the ascensional terms a, b, c
// worked out for the latitude.
struct RisingRow {
    double Base;
    int Sign;  // +1 or -1
    char Term; // 'a', 'b' or 'c'
};

inline constexpr std::array<RisingRow, 12> RisingTimes{{
    /*  1 Aries       */ {278.3333333, -1, 'a'},
    /*  2 Taurus      */ {299.166667,  -1, 'b'},
    /*  3 Gemini      */ {322.5,       -1, 'c'},
    /*  4 Cancer      */ {322.5,       +1, 'c'},
    /*  5 Leo         */ {299.166667,  +1, 'b'},
    /*  6 Virgo       */ {278.3333333, +1, 'a'},
    /*  7 Libra       */ {278.3333333, +1, 'a'},
    /*  8 Scorpio     */ {299.166667,  +1, 'b'},
    /*  9 Sagittarius */ {322.5,       +1, 'c'},
    /* 10 Capricorn   */ {322.5,       -1, 'c'},
    /* 11 Aquarius    */ {299.166667,  -1, 'b'},
    /* 12 Pisces      */ {278.333333,  -1, 'a'},
}};
static_assert(RisingTimes.size() == 12);

} // namespace VakyaTable

class clsVakya
{
public:
    // Beyond this latitude (degrees, either hemisphere) the half-day formula of the Lagna has no
    // answer on some dates; the Lagna is then worked out at this latitude and LagnaValid() is false.
    static constexpr double MaxLagnaLatitude = 66.5;

    // Whether the Lagna of this method is defined at latDeg + latMin / 60 degrees (north or south).
    static bool LagnaDefined(double latDeg, double latMin);

    // Casts the moment: clock time as given; longitude and ayan are not used. With south true the
    // latitude enters as south (the traditional form, south false, takes every place as north).
    void Calculate(int day, int month, int year, int hour, int minute, int second, double latDeg,
                   double latMin, double longDeg, double longMin, double ayan, bool south = false);

    // Kali day (no time of day) of the date of the last Calculate; 0 before any Calculate.
    double FindKaliDin() const;
    // Kali day (no time of day) of a calendar date, Gregorian; needs no Calculate.
    static double KaliDinOf(int day, int month, int year);
    // Rising time of sign k (1..12, folded) in palas at a latitude in degrees, south negative.
    static double RisingTime(int k, double latitude);
    // Ayanamsa of this method for a Kali day, in degrees, not wrapped.
    static double CalcVakyaAyanamsha(double kd);
    // Arc cosine in radians; throws std::domain_error when |x| > 1 or x is not a number.
    static double Acos(double x);
    // Arc sine in radians; throws std::domain_error (the classic error 6) when |x| > 1 or x is not a number.
    static double Asin(double x);

    // Results of the last Calculate, degrees 0..360.
    double Sun() const { return m_sun; }
    double Moon() const { return m_moon; }
    double Mars() const { return m_mars; }
    double Mercury() const { return m_mercury; }
    double Jupiter() const { return m_jupiter; }
    double Venus() const { return m_venus; }
    double Saturn() const { return m_saturn; }
    double Ketu() const { return m_ketu; }
    double Rahu() const { return m_rahu; }
    double Lagna() const { return m_lagna; }
    void setSun(double v) { m_sun = v; }
    void setMoon(double v) { m_moon = v; }
    void setMars(double v) { m_mars = v; }
    void setMercury(double v) { m_mercury = v; }
    void setJupiter(double v) { m_jupiter = v; }
    void setVenus(double v) { m_venus = v; }
    void setSaturn(double v) { m_saturn = v; }
    void setKetu(double v) { m_ketu = v; }
    void setRahu(double v) { m_rahu = v; }
    void setLagna(double v) { m_lagna = v; }

    // Ayanamsa of this method at the moment of the last Calculate, degrees.
    double Ayanamsha() const { return m_ayanamsa; }
    // False when the last Calculate's latitude lay beyond MaxLagnaLatitude.
    bool LagnaValid() const { return m_lagnaValid; }

private:
    static double dayNumber(int d, int m, int y);
    static double mean(double revolutions, double kd);
    static double meanSun(double kd);
    static double trueSun(double kd, double r);
    static double trueMoon(double kd, double r);
    static double calcSun(double kd);
    static double calcMoon(double kd);
    static double calcKetu(double kd);
    static double starPlanet(const VakyaTable::StarPlanetRow &p, double kd);
    void calcStarPlanets(double kd);
    double latitude() const;
    double calcLagna() const;

    double m_sun = 0, m_moon = 0, m_mars = 0, m_mercury = 0, m_jupiter = 0, m_venus = 0, m_saturn = 0,
           m_ketu = 0, m_rahu = 0, m_lagna = 0;
    int m_day = 0, m_month = 0, m_year = 0;
    int m_hour = 0, m_minute = 0, m_second = 0;
    double m_latDeg = 0, m_latMin = 0;
    bool m_south = false;
    bool m_calculated = false;
    bool m_lagnaValid = true;
    double m_ayanamsa = 0;
};
