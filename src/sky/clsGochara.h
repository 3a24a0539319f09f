// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The time search: walks a copy of a chart through time, in steps of minutes, until a body stands
// at a given sidereal longitude.

#include <QDateTime>

#include <memory>
#include <vector>

class clsPlanets;

class clsGochara
{
public:
    // A chart near chart's moment at which planet (0 Lagna .. 12 Pluto) lies within tolerance arc
    // minutes of target (degrees); when 25 judged passes miss, the chart of the 26th pass. chart
    // isn't changed. A caller that must tell a hit from a miss compares the result's longitude.
    std::unique_ptr<clsPlanets> Gochara(long planet, double target, double tolerance, const clsPlanets &chart);

private:
    // Everything a pass starts from: the working chart's clock and the kept values of the last pass.
    struct PassState
    {
        long day, month, year, hour, minutes;
        double prevL, step;
        QDateTime prevDate;
        bool wrapped;
        bool operator==(const PassState &) const = default;
    };

    void clearState();
    void findMoment();
    PassState passState() const;
    void finishCycle(const std::vector<PassState> &seen, long first);
    void nextStep();
    bool crossingSeen(double lc);
    bool isPast() const;
    double jumpLimit() const;
    double secantRate() const;
    double rawLongitude() const;

    long m_planet = 0;
    double m_target = 0;
    double m_tolerance = 0;
    std::unique_ptr<clsPlanets> m_work; // moves; the result
    QDateTime m_startDate;              // the moment the search started from
    double m_l = 0;
    double m_prevL = 0; // 0: none yet
    double m_difference = 0;
    double m_step = 0;
    double m_rate = 0;
    double m_prevDifference = 0;
    double m_prevStep = 0;
    QDateTime m_prevDate;
    bool m_wrapped = false;
    long m_pass = 0;
};
