// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/SunEvents.h"

#include "sky/clsGochara.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <cmath>

namespace {
// Arc minutes within which the Lagna counts as on the Sun's point.
constexpr double kSunTolerance = 9.0;
// A search result further than this from the point, in degrees, has missed it: near the bound of
// latitude the Lagna runs so unevenly (a sign in minutes, another in hours) that the time search's
// steps can carry it round and round the circle. A result that only swings across the point
// because one minute of motion exceeds the tolerance stays well inside.
constexpr double kMissDegrees = 1.0;
// Strides of two hours: below the bound of latitude the Lagna never covers the whole circle in
// that time, so one stride holds at most one pass. 13 strides make 26 hours.
constexpr int kStrideMinutes = 120;
constexpr int kStrides = 13;

std::unique_ptr<clsPlanets> castAt(const clsPlanets &base, const QDateTime &moment)
{
    auto c = std::make_unique<clsPlanets>();
    c->setRahuKetuMode(base.RahuKetuMode());
    base.CopySettingTo(*c);
    c->Person().SetBirthDate(moment);
    c->Calculate();
    return c;
}

// Degrees the Lagna still has to go, forward, to reach target: 0..360. Between two passes it only
// shrinks; at a pass it jumps back to nearly 360.
double remaining(const clsPlanets &c, double target)
{
    return Norm360(target - c.PlanetLongi(0));
}

QDateTime clockOf(const clsPlanets &c)
{
    return c.Person().GetBirthDate();
}

// Halves [a, b] (a earlier, the pass after a and not after b) down to one minute; the nearer end.
std::unique_ptr<clsPlanets> halve(const clsPlanets &base, std::unique_ptr<clsPlanets> a, std::unique_ptr<clsPlanets> b,
                                  double target)
{
    while (clockOf(*a).secsTo(clockOf(*b)) > 60) {
        const qint64 half = clockOf(*a).secsTo(clockOf(*b)) / 120 * 60;
        auto mid = castAt(base, clockOf(*a).addSecs(half));
        if (remaining(*mid, target) > remaining(*a, target))
            b = std::move(mid);
        else
            a = std::move(mid);
    }
    const double before = remaining(*a, target);
    const double after = 360 - remaining(*b, target);
    return before <= after ? std::move(a) : std::move(b);
}
} // namespace

std::unique_ptr<clsPlanets> LagnaPassBetween(const clsPlanets &base, const QDateTime &from, const QDateTime &to, double target)
{
    return halve(base, castAt(base, from), castAt(base, to), target);
}

std::unique_ptr<clsPlanets> LagnaPassChart(const clsPlanets &start, double target, int sense)
{
    sense = sense < 0 ? -1 : 1;
    const QDateTime t0 = clockOf(start);
    std::unique_ptr<clsPlanets> near = castAt(start, t0);
    for (int k = 1; k <= kStrides; ++k) {
        auto far = castAt(start, t0.addSecs(qint64(sense) * k * kStrideMinutes * 60));
        const bool passed =
            sense > 0 ? remaining(*far, target) > remaining(*near, target) : remaining(*near, target) > remaining(*far, target);
        if (passed)
            return sense > 0 ? halve(start, std::move(near), std::move(far), target)
                             : halve(start, std::move(far), std::move(near), target);
        near = std::move(far);
    }
    return near;
}

std::unique_ptr<clsPlanets> SunEventChart(const clsPlanets &chart, SunEvent event, int direction)
{
    clsPlanets copy;
    copy.setRahuKetuMode(chart.RahuKetuMode());
    chart.CopySettingTo(copy);
    if (direction != 0)
        copy.Person().AddDays(direction);
    copy.Calculate();
    const double sun = copy.PlanetLongi(1);
    const double target = event == SunEvent::Rise ? sun : Norm360(sun + 180);
    clsGochara search;
    std::unique_ptr<clsPlanets> found = search.Gochara(0, target, kSunTolerance, copy);
    double miss = std::fmod(std::fabs(found->PlanetLongi(0) - target), 360);
    if (miss > 180)
        miss = 360 - miss;
    if (miss <= kMissDegrees)
        return found;
    // Missed: walk the way the search set out, which is where it looks for the point.
    return LagnaPassChart(copy, target, target - copy.PlanetLongi(0) < 0 ? -1 : 1);
}

namespace {
// Hours the place's local mean time runs ahead of its zone clock.
double meanTimeLead(const clsPerson &p)
{
    double lon = p.LongDeg() + p.LongMT() / 60.0;
    if (p.TextEW().toUpper() == QLatin1String("W"))
        lon = -lon;
    return lon / 15.0 - Val(p.GMTDIFF());
}
} // namespace

SunDay SunDayKind(const clsPlanets &chart, int direction)
{
    const clsPerson &p = chart.Person();
    double lat = p.LatDeg() + p.LatMT() / 60.0;
    if (p.TextNS().toUpper() == QLatin1String("S"))
        lat = -lat;
    // The Sun's tropical longitude moved on to the day's local mean noon at its mean daily motion;
    // within a day that is a few arc minutes of declination at most.
    const double clock = p.Hour() + p.Minutes() / 60.0 + p.seconds() / 3600.0;
    const double toNoon = 12.0 - meanTimeLead(p) - clock + 24.0 * direction;
    const double sun = chart.PlanetLongi(1) + chart.PlanetLongi(13) + 0.9856 * toNoon / 24.0;
    const double obliq = chart.Obliq() > 20 && chart.Obliq() < 27 ? chart.Obliq() : 23.44;
    constexpr double rad = 3.14159265358979323846 / 180.0;
    const double decl = std::asin(std::sin(obliq * rad) * std::sin(sun * rad));
    const double x = -std::tan(lat * rad) * std::tan(decl);
    if (x < -1)
        return SunDay::MidnightSun;
    if (x > 1)
        return SunDay::PolarNight;
    return SunDay::Normal;
}

double EqualDayClock(const clsPlanets &chart, SunEvent event)
{
    const double local = event == SunEvent::Rise ? 6.0 : 18.0;
    long minutes = std::lround((local - meanTimeLead(chart.Person())) * 60.0);
    minutes = ((minutes % 1440) + 1440) % 1440;
    return minutes / 60 + (minutes % 60) / 100.0;
}

double NeighbourSunEvent(const clsPlanets &chart, SunEvent event, int direction)
{
    if (SunDayKind(chart, direction) != SunDay::Normal)
        return EqualDayClock(chart, event);
    return Val(SunEventChart(chart, event, direction)->Person().GetBirthTime());
}
