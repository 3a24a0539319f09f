// SPDX-License-Identifier: AGPL-3.0-or-later
// How far the Vakya positions lie from the ephemeris, 1900-2100.
//
// Every 10 days at 12:00 local mean time of Ujjain (23°11' N, 75°46' E, the meridian of the
// traditional reckoning) clsVakya is cast, and Swiss Ephemeris gives the apparent tropical
// longitude of each body at the same instant (universal time = clock time - 75°46' / 15,
// plus delta T). Two comparisons are printed as Markdown tables:
//   A. own ayanamsa: Vakya longitude against ephemeris longitude less the Vakya ayanamsa of
//      the same moment (clsVakya::Ayanamsha), which measures the method's planetary theory;
//   B. Lahiri: Vakya longitude against ephemeris longitude less the Lahiri ayanamsa, which is
//      what a user sees beside a chart cast from the ephemeris with the default ayanamsa.
// Rahu is compared with the mean node. The Lagna is cast at hours that step through the day
// and compared with the ephemeris ascendant at the same place (A only).

#include "sky/clsVakya.h"

#include <swephexp.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

constexpr double LatDeg = 23, LatMin = 11, LongDeg = 75, LongMin = 46;
constexpr double Longitude = LongDeg + LongMin / 60;
constexpr double Latitude = LatDeg + LatMin / 60;
constexpr int StepDays = 10;

double fold(double d)
{
    d = std::fmod(d, 360.0);
    if (d > 180)
        d -= 360;
    if (d <= -180)
        d += 360;
    return d;
}

struct Stat {
    std::vector<double> abs;
    double sumAbs = 0, sum = 0, maxAbs = 0;
    int n = 0;
    int maxY = 0, maxM = 0, maxD = 0;
    double sumEarly = 0, sumLate = 0; // signed sums before and from 2000
    int nEarly = 0, nLate = 0;

    void add(double diff, int y, int m, int d)
    {
        const double a = std::fabs(diff);
        abs.push_back(a);
        sumAbs += a;
        sum += diff;
        ++n;
        if (y < 2000) {
            sumEarly += diff;
            ++nEarly;
        } else {
            sumLate += diff;
            ++nLate;
        }
        if (a > maxAbs) {
            maxAbs = a;
            maxY = y;
            maxM = m;
            maxD = d;
        }
    }

    double percentile95()
    {
        std::sort(abs.begin(), abs.end());
        return abs.empty() ? 0 : abs[static_cast<std::size_t>(0.95 * (abs.size() - 1))];
    }
};

struct Body {
    const char *name;
    int ipl;
    double (clsVakya::*value)() const;
};

const std::array<Body, 8> bodies{{
    {"Sun", SE_SUN, &clsVakya::Sun},
    {"Moon", SE_MOON, &clsVakya::Moon},
    {"Mars", SE_MARS, &clsVakya::Mars},
    {"Mercury", SE_MERCURY, &clsVakya::Mercury},
    {"Jupiter", SE_JUPITER, &clsVakya::Jupiter},
    {"Venus", SE_VENUS, &clsVakya::Venus},
    {"Saturn", SE_SATURN, &clsVakya::Saturn},
    {"Rahu (mean node)", SE_MEAN_NODE, &clsVakya::Rahu},
}};

const char *const lagnaRows[] = {"Lagna, all hours", "Lagna, 07:00-23:00", "Lagna, 00:00-05:00"};

void printTable(const char *title, std::array<Stat, 11> &stats, int rows)
{
    std::printf("\n%s\n\n", title);
    std::printf("| Body | mean abs. diff. | 95%% of abs. diff. below | largest abs. diff. | on | "
                "mean signed, 1900-1999 | mean signed, 2000-2100 |\n");
    std::printf("|---|---:|---:|---:|---|---:|---:|\n");
    for (int b = 0; b < rows; ++b) {
        Stat &s = stats[b];
        const char *name = b < 8 ? bodies[b].name : lagnaRows[b - 8];
        std::printf("| %s | %.3f | %.3f | %.3f | %04d-%02d-%02d | %+.3f | %+.3f |\n", name,
                    s.sumAbs / s.n, s.percentile95(), s.maxAbs, s.maxY, s.maxM, s.maxD,
                    s.sumEarly / s.nEarly, s.sumLate / s.nLate);
    }
}

} // namespace

int main()
{
    swe_set_sid_mode(SE_SIDM_LAHIRI, 0, 0);
    std::array<Stat, 11> own{}, lahiri{};
    bool moshier = false;
    int samples = 0;

    const double first = swe_julday(1900, 1, 1, 12.0, SE_GREG_CAL);
    const double last = swe_julday(2100, 12, 31, 12.0, SE_GREG_CAL);
    for (double local = first; local <= last; local += StepDays, ++samples) {
        int y, m, d;
        double h;
        swe_revjul(local, SE_GREG_CAL, &y, &m, &d, &h);
        const double ut = local - Longitude / 15 / 24;
        const double et = ut + swe_deltat(ut);

        clsVakya v;
        v.Calculate(d, m, y, 12, 0, 0, LatDeg, LatMin, LongDeg, LongMin, 0);
        const double ayanLahiri = swe_get_ayanamsa_ut(ut);

        for (std::size_t b = 0; b < bodies.size(); ++b) {
            double xx[6];
            char serr[256];
            const int ret = swe_calc(et, bodies[b].ipl, 0, xx, serr);
            if (ret < 0) {
                std::fprintf(stderr, "swe_calc: %s\n", serr);
                return 1;
            }
            if (ret & SEFLG_MOSEPH)
                moshier = true;
            const double vakya = (v.*bodies[b].value)();
            own[b].add(fold(vakya - (xx[0] - v.Ayanamsha())), y, m, d);
            lahiri[b].add(fold(vakya - (xx[0] - ayanLahiri)), y, m, d);
        }

        // the Lagna at an hour that steps through the day from one sample to the next
        const int hour = (samples * 7) % 24;
        clsVakya at;
        at.Calculate(d, m, y, hour, 0, 0, LatDeg, LatMin, LongDeg, LongMin, 0);
        const double utHour = ut + (hour - 12) / 24.0;
        double cusps[13], ascmc[10];
        swe_houses(utHour, Latitude, Longitude, 'P', cusps, ascmc);
        const double lagnaDiff = fold(at.Lagna() - (ascmc[0] - at.Ayanamsha()));
        own[8].add(lagnaDiff, y, m, d);
        if (hour >= 7)
            own[9].add(lagnaDiff, y, m, d);
        else if (hour <= 5)
            own[10].add(lagnaDiff, y, m, d);
    }

    std::printf("%d samples, every %d days from 1900-01-01 to 2100-12-31, 12:00 local mean time "
                "at %.0f°%.0f' N %.0f°%.0f' E; ephemeris: %s.\n",
                samples, StepDays, LatDeg, LatMin, LongDeg, LongMin,
                moshier ? "Moshier (files not found)" : "Swiss Ephemeris files");
    std::printf("Differences are Vakya minus ephemeris, in degrees.\n");
    printTable("A. Ephemeris tropical longitude less the Vakya ayanamsa of the same moment:", own, 11);
    printTable("B. Ephemeris tropical longitude less the Lahiri ayanamsa:", lahiri, 8);
    return 0;
}
