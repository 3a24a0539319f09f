// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The one owner of every call into Swiss Ephemeris. The library keeps global state; this
// program runs on one thread, so the wrapper is a set of plain static calls.

#include <QString>

#include <array>

class SwissEphemeris
{
public:
    // Bodies in the library's own numbering, as the chart walks them.
    enum Body { Sun = 0, Moon, Mercury, Venus, Mars, Jupiter, Saturn, Uranus, Neptune, Pluto, MeanNode, TrueNode };
    // Sidereal modes used here.
    enum SiderealMode { Lahiri = 1, Raman = 3, Krishnamurti = 5 };

    struct Position
    {
        std::array<double, 6> xx{}; // longitude, latitude, distance and their speeds
        int flags = 0;              // the library's return value; negative on failure
        QString error;              // the library's error text, empty when none
        bool ok() const { return flags >= 0; }
    };

    struct Houses
    {
        std::array<double, 13> cusps{}; // 1..12
        std::array<double, 10> ascmc{};
        bool ok = true;
    };

    // Julian day of a calendar date and decimal hour (Gregorian when gregorian is true).
    static double julday(int year, int month, int day, double hour, bool gregorian = true);
    // The same, also telling whether the date was a real calendar date; tjd is set either way.
    static bool dateConversion(int year, int month, int day, double hour, double &tjd);
    // Delta T in days at tjd.
    static double deltat(double tjd);
    // Tropical ecliptic position with the default flag word 0.
    static Position calc(double tjd, Body body);
    // Placidus houses for a universal-time Julian day at a place (east and north positive).
    static Houses housesPlacidus(double tjdUt, double lat, double lon);
    // Ayanamsa of a sidereal mode at tjd; the mode is set for this call.
    static double ayanamsa(SiderealMode mode, double tjd);
    // The library's name of a body.
    static QString planetName(Body body);
    // The data path in use (the library's default).
    static QString dataPath();

private:
    static void ensureInit();
};
