// SPDX-License-Identifier: AGPL-3.0-or-later
// The weekdays on which the Sun began the solar year and the solar month of the birth.
#include "sky/clsPlanets.h"

#include "sky/clsGochara.h"
#include "sky/Functions.h"

#include <QDateTime>

namespace {
// The weekday (1 Sunday .. 7 Saturday) of the moment a person's clock shows: 24:00 belongs to
// the next day.
int weekdayOfMoment(const clsPerson &p)
{
    const QDateTime moment = p.GetBirthDate();
    return moment.isValid() ? moment.date().dayOfWeek() % 7 + 1 : p.WeekDayOfBirth();
}
} // namespace

int clsPlanets::FirstDayOfYear() const
{
    clsPlanets copy;
    copy.setRahuKetuMode(m_rahuKetuMode);
    copy.setTextDB(m_textDb, QSqlDatabase());
    CopySettingTo(copy);
    clsPerson &p = copy.Person();
    // The copy moves as a moment, never by its date fields alone: a cast can leave a birth at
    // midnight as 24:00 of the day before, and a date moved by its fields would stay put there.
    const auto move = [&p](qint64 seconds) { p.SetBirthDate(p.GetBirthDate().addSecs(seconds)); };
    constexpr qint64 kDay = 86400, kHour = 3600;
    move(-kDay * CLng(PlanetLongi(1) * 360.0 / 365.2564));
    copy.Calculate();
    // Days while the Sun is more than a degree from 0, then hours, towards 0 from either side.
    for (int guard = 0; guard < 2000; ++guard) {
        const double l = copy.PlanetLongi(1);
        if (l <= 0.5 || l >= 359.5)
            break;
        const int towards = l < 180 ? -1 : 1;
        move(towards * (l > 1 && l < 359 ? kDay : kHour));
        copy.Calculate();
    }
    return weekdayOfMoment(p);
}

int clsPlanets::FirstDayOfMonth() const
{
    clsGochara search;
    const std::unique_ptr<clsPlanets> entry = search.Gochara(1, Fix(PlanetLongi(1) / 30) * 30, 1.0, *this);
    return entry ? weekdayOfMoment(entry->Person()) : Person().WeekDayOfBirth();
}
