// SPDX-License-Identifier: AGPL-3.0-or-later
// The time search. Each pass estimates a rate in minutes of time per degree of motion, from the
// body's usual motion, the chart's own speed and the last two passes, and moves the working chart
// by the distance still to go times that rate.
#include "sky/clsGochara.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <array>
#include <cmath>
#include <vector>

namespace {

// a: the usual rate (minutes per degree); b: the largest allowed rate; c: the distance in degrees
// under which the search counts as near.
struct PlanetRate
{
    double a, b, c;
};
inline constexpr std::array<PlanetRate, 13> kPlanetRates{{
    {3.5, 5, 5},         // 0 Lagna
    {1450, 5000, 30},    // 1 Sun
    {1200, 5000, 30},    // 2 Mercury
    {1300, 5000, 30},    // 3 Venus
    {1800, 8000, 30},    // 4 Mars
    {9500, 50000, 30},   // 5 Jupiter
    {10000, 40000, 30},  // 6 Saturn
    {105, 300, 30},      // 7 Moon
    {23000, 60000, 30},  // 8 Rahu
    {23000, 60000, 30},  // 9 Ketu
    {28000, 60000, 30},  // 10 Uranus
    {50000, 120000, 30}, // 11 Neptune
    {50000, 120000, 30}, // 12 Pluto
}};
static_assert(kPlanetRates.size() == 13);

PlanetRate planetRates(long planet)
{
    return planet >= 0 && planet <= 12 ? kPlanetRates[static_cast<size_t>(planet)] : PlanetRate{0, 0, 0};
}

constexpr long kPassesWalked = 26; // 25 passes are judged, the 26th is walked and ends the search
// No pass moves further than this, in minutes (about 190 years): a rate worked out from a body that
// hardly moved can be enormous, and the clock must stay within the calendar.
constexpr double kLargestStep = 1e8;

// Mars, Jupiter and Saturn.
bool isOuterSlow(long planet)
{
    return planet == 4 || planet == 5 || planet == 6;
}
bool isNode(long planet)
{
    return planet == 8 || planet == 9;
}

// The position table and the speed members read only planets whose entries exist; any other
// number moves nowhere.
double speedOf(const clsPlanets &c, long planet)
{
    return planet >= 0 && planet <= 13 ? c.PlanetSpeed(static_cast<int>(planet)) : 0;
}
// The Lagna never moves backward. RetroGrade(0) compares it with the ayanamsa entry, which is true
// for nearly every Lagna: the rate would double near the target, every step would overshoot by as
// much as it should have moved, and the search would swing across the target until its last pass.
bool retroOf(const clsPlanets &c, long planet)
{
    return planet >= 1 && planet <= 13 && c.RetroGrade(static_cast<int>(planet));
}

} // namespace

std::unique_ptr<clsPlanets> clsGochara::Gochara(long planet, double target, double tolerance, const clsPlanets &chart)
{
    clearState();
    m_work = std::make_unique<clsPlanets>();
    m_work->setRahuKetuMode(chart.RahuKetuMode());
    chart.CopySettingTo(*m_work);
    m_planet = planet;
    m_target = target;
    m_tolerance = tolerance;
    m_wrapped = false;
    m_work->Calculate();
    // The start moment: a second copy of chart, calculated, would hold exactly this clock, and
    // only its clock is ever read.
    m_startDate = m_work->Person().GetBirthDate();
    m_pass = 0;
    findMoment();
    std::unique_ptr<clsPlanets> result = std::move(m_work);
    clearState();
    return result;
}

void clsGochara::clearState()
{
    m_planet = 0;
    m_target = m_tolerance = 0;
    m_work.reset();
    m_startDate = QDateTime();
    m_l = m_prevL = m_difference = m_step = m_rate = m_prevDifference = m_prevStep = 0;
    m_prevDate = QDateTime();
    m_wrapped = false;
    m_pass = 0;
}

double clsGochara::rawLongitude() const
{
    return m_planet >= 0 && m_planet <= 26 ? m_work->PlanetLongi(static_cast<int>(m_planet)) : 0;
}

clsGochara::PassState clsGochara::passState() const
{
    const clsPerson &p = m_work->Person();
    return {p.Day(), p.Month(), p.Year(), p.Hour(), p.Minutes(), m_prevL, m_step, m_prevDate, m_wrapped};
}

void clsGochara::findMoment()
{
    // A pass is a function of the state it starts from. When a state comes back (the search swings
    // across a target narrower than one minute's motion), the passes go round the same cycle up to
    // the last one, so the chart of the last pass is known without walking them.
    std::vector<PassState> seen;
    seen.reserve(kPassesWalked);
    for (;;) {
        ++m_pass;
        const PassState now = passState();
        for (size_t j = 0; j < seen.size(); ++j) {
            if (seen[j] == now) {
                finishCycle(seen, static_cast<long>(j) + 1);
                return;
            }
        }
        seen.push_back(now);

        nextStep();
        m_work->Person().AddMinutes(m_step);
        m_work->Calculate();
        if (m_pass >= kPassesWalked)
            return;
        const double x = rawLongitude() * 60;
        bool goOn;
        if (m_target == 0)
            goOn = std::fabs(x - 21600) > m_tolerance && x > m_tolerance;
        else if (m_target == 360)
            goOn = 21600 - m_tolerance > x && x > m_tolerance;
        else
            goOn = std::fabs(x - m_target * 60) > m_tolerance;
        if (!goOn)
            return;
    }
}

// Pass m_pass starts from the state that pass first began from, so every pass from first on
// repeats with the period m_pass - first, each of them judged a miss. The chart after the last
// walked pass stands where pass kPassesWalked + 1 would begin.
void clsGochara::finishCycle(const std::vector<PassState> &seen, long first)
{
    const long period = m_pass - first;
    const long end = first + (kPassesWalked + 1 - first) % period;
    if (end == first)
        return; // the working chart already stands there
    const PassState &s = seen[static_cast<size_t>(end - 1)];
    clsPerson &p = m_work->Person();
    p.setDay(s.day);
    p.setMonth(s.month);
    p.setYear(s.year);
    p.setHour(s.hour);
    p.setMinutes(s.minutes);
    m_work->Calculate();
}

void clsGochara::nextStep()
{
    const PlanetRate r = planetRates(m_planet);
    const double raw = rawLongitude();

    // 1-2. Unfold the longitude by 360 when it has jumped over the 0/360 point.
    m_l = raw;
    const bool seen = crossingSeen(raw);
    if (seen || m_wrapped) {
        m_l = isPast() ? raw - 360 : raw + 360;
        if (crossingSeen(m_l))
            m_wrapped = !m_wrapped;
    }

    // 3-4.
    m_difference = (m_target - m_l) * 60;
    const bool far = !(std::fabs(m_difference) / 60 < r.c);
    double rate = m_step != 0 && m_l != m_prevL ? secantRate() : r.a;

    // 5. The chart's own speed. The Lagna's costs a further cast, and its value (never below 0)
    // matters only near the target or when the rate exceeds the largest allowed one, so it is
    // asked for only then.
    double speed = 0;
    bool haveSpeed = false;
    const auto needSpeed = [&] {
        if (!haveSpeed) {
            speed = speedOf(*m_work, m_planet);
            haveSpeed = true;
        }
    };
    const auto chartRate = [&] {
        needSpeed();
        return std::fabs(60 / speed);
    };
    if (m_planet != 0)
        needSpeed();

    // 6-9.
    if (!far && chartRate() < r.b)
        rate = chartRate();
    if (rate > r.b) {
        if (isOuterSlow(m_planet))
            rate = (r.a + chartRate()) / 2;
        else
            rate = far ? (r.a + chartRate()) / 2 : r.a;
    }
    if (m_planet != 0 && speed < 0) {
        if (isOuterSlow(m_planet)) {
            if (!far)
                rate = r.a + chartRate();
        } else {
            rate = far ? (r.a + chartRate()) / 2 : r.a;
        }
    }
    if (m_planet != 4 && rate > r.b)
        rate = r.b;

    // 10-11.
    if (!isNode(m_planet) && retroOf(*m_work, m_planet) && std::fabs(m_difference) <= 120)
        rate *= 2;
    if (rate < 1) {
        rate = secantRate();
        if (rate == 0)
            rate = r.a;
        if (rate < 1 && m_planet == 2)
            rate = r.a;
    }
    m_rate = rate;

    // 12-14.
    if (m_l < 0 || m_l > 360)
        m_l = raw;
    double step = m_difference / 60 * rate;
    if (std::isnan(step))
        step = 1;
    else if (std::fabs(step) > kLargestStep)
        step = std::copysign(kLargestStep, step);
    if (step >= -1 && step < 0)
        step = -1;
    else if (step >= 0 && step < 1)
        step = 1;
    if (isNode(m_planet))
        step = -step;

    // 15.
    m_prevDifference = m_difference;
    m_prevL = m_l;
    m_prevStep = m_step;
    m_step = step;
    m_prevDate = m_work->Person().GetBirthDate();
}

double clsGochara::secantRate() const
{
    if (m_prevL == 0)
        return 0;
    const double r = (m_prevL - m_l) * 60 / m_step; // arc minutes per minute
    return std::fabs(60 / r);                       // minutes per degree
}

bool clsGochara::isPast() const
{
    return rawLongitude() > m_target;
}

double clsGochara::jumpLimit() const
{
    const QDateTime now = m_work->Person().GetBirthDate();
    const double m = std::fabs(static_cast<double>(m_prevDate.secsTo(now) / 60));
    const double lo = m_planet == 2 ? 90 : 60;
    const double hi = 150;
    const long a = CLng(planetRates(m_planet).a);
    if (a == 0)
        return hi;
    const double j = static_cast<double>(CLng(m / static_cast<double>(a)));
    return j < lo ? lo : (j > hi ? hi : j);
}

bool clsGochara::crossingSeen(double lc)
{
    if (m_prevL == 0)
        return false;
    const double p = m_prevL;
    const double j = jumpLimit();
    const QDateTime now = m_work->Person().GetBirthDate();
    const bool before = now < m_startDate;
    const bool after = now > m_startDate;
    if (!m_wrapped) {
        if (isPast())
            return lc > p + j && before;
        return lc < p - j && after;
    }
    if (isPast()) {
        if (lc < p - j && before)
            m_wrapped = false;
    } else {
        if (lc > p + j && after)
            m_wrapped = false;
    }
    return false;
}
