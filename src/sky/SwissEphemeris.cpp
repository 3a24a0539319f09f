// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/SwissEphemeris.h"

#include <swephexp.h>

void SwissEphemeris::ensureInit()
{
    static bool done = false;
    if (!done) {
        // A null path selects the library's default place (or SE_EPHE_PATH from the environment).
        swe_set_ephe_path(nullptr);
        done = true;
    }
}

double SwissEphemeris::julday(int year, int month, int day, double hour, bool gregorian)
{
    return swe_julday(year, month, day, hour, gregorian ? SE_GREG_CAL : SE_JUL_CAL);
}

bool SwissEphemeris::dateConversion(int year, int month, int day, double hour, double &tjd)
{
    return swe_date_conversion(year, month, day, hour, 'g', &tjd) == OK;
}

double SwissEphemeris::deltat(double tjd)
{
    ensureInit();
    return swe_deltat(tjd);
}

SwissEphemeris::Position SwissEphemeris::calc(double tjd, Body body)
{
    ensureInit();
    Position p;
    char serr[AS_MAXCH] = {0};
    p.flags = swe_calc(tjd, static_cast<int>(body), 0, p.xx.data(), serr);
    if (serr[0] != 0)
        p.error = QString::fromLatin1(serr);
    return p;
}

SwissEphemeris::Houses SwissEphemeris::housesPlacidus(double tjdUt, double lat, double lon)
{
    ensureInit();
    Houses h;
    h.ok = swe_houses(tjdUt, lat, lon, 'P', h.cusps.data(), h.ascmc.data()) == OK;
    return h;
}

double SwissEphemeris::ayanamsa(SiderealMode mode, double tjd)
{
    ensureInit();
    swe_set_sid_mode(static_cast<int>(mode), 0, 0);
    return swe_get_ayanamsa(tjd);
}

QString SwissEphemeris::planetName(Body body)
{
    char name[AS_MAXCH] = {0};
    swe_get_planet_name(static_cast<int>(body), name);
    return QString::fromLatin1(name);
}

QString SwissEphemeris::dataPath()
{
    return QString::fromLatin1(SE_EPHE_PATH);
}
