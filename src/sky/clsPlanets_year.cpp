// SPDX-License-Identifier: AGPL-3.0-or-later
// The weekdays on which the Sun began the solar year and the solar month of the birth.
#include "sky/clsPlanets.h"

#include "muhurtha/clsGochara.h"
#include "sky/Functions.h"

#include <cmath>

int clsPlanets::FirstDayOfYear() const
{
    clsPlanets copy;
    copy.setRahuKetuMode(m_rahuKetuMode);
    copy.setTextDB(m_textDb, QSqlDatabase());
    CopySettingTo(copy);
    copy.Person().AddDays(-std::lround(PlanetLongi(1) * 360.0 / 365.2564));
    copy.Calculate();
    // Days while the Sun is more than a degree from 0, then hours, towards 0 from either side.
    for (int guard = 0; guard < 2000; ++guard) {
        const double l = copy.PlanetLongi(1);
        if (l <= 0.5 || l >= 359.5)
            break;
        const int towards = l < 180 ? -1 : 1;
        if (l > 1 && l < 359)
            copy.Person().AddDays(towards);
        else
            copy.Person().SetBirthDate(copy.Person().GetBirthDate().addSecs(towards * 3600));
        copy.Calculate();
    }
    return copy.Person().WeekDayOfBirth();
}

int clsPlanets::FirstDayOfMonth() const
{
    clsGochara search;
    const std::unique_ptr<clsPlanets> entry = search.Gochara(1, Fix(PlanetLongi(1) / 30) * 30, 1.0, *this);
    return entry ? entry->Person().WeekDayOfBirth() : Person().WeekDayOfBirth();
}
