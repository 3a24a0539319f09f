// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The chart recast in the Krishnamurthy scheme: longitudes under the KP ayanamsa, the Placidus
// cusps, the sign, star and sub lords of planets and cusps, and the significators of the twelve
// houses. Made from one cast chart and kept for its life; a new chart needs a new object.
// Positions and planet numbers are those of clsPlanets (0 the Lagna .. 12 Pluto).

#include <array>
#include <optional>

class KundaliModel;
class clsPlanets;

class clsKPSystem
{
public:
    // Scores of the four significator tests; a planet that passes all four scores 30.
    static constexpr int kScoreCuspLord = 9;
    static constexpr int kScoreOccupant = 8;
    static constexpr int kScoreInStarOfOccupant = 7;
    static constexpr int kScoreInStarOfCuspLord = 6;

    explicit clsKPSystem(const clsPlanets &chart);
    const clsPlanets &Chart() const { return m_chart; }

    // KP longitude of position n (0..26): the chart's sidereal longitude with its own ayanamsa
    // added back and the KP ayanamsa taken off, brought into 0 up to 360. 0 for an empty position.
    double PlntLongi(int n) const;
    // KP sign 1..12 and nakshatra 1..27 of position n.
    int Sign(int n) const;
    int NakOf(int n) const;
    // Planet numbers of the lords of position n's KP sign and KP star.
    int SignLord(int n) const;
    int StarLord(int n) const;
    // Sub lord of position n (0..12); 0 when the position stands exactly at the start of a star.
    int SubLord(int n) const;
    // Moon less Sun plus Lagna, by day and by night alike, into 0..360.
    double ParsFortLongi() const;
    // Sub lord of cusp 1..12.
    int AgeCuspSubLord(int cusp) const;
    // The KP ayanamsa the object was made with.
    double KPAyanVal() const { return m_kpAyan; }
    // Cusp 1..12 in the KP ayanamsa, brought into 0 up to 360.
    double CuspLongi(int cusp) const;
    // Lord of cusp 1..12's sign.
    int CuspSignLord(int cusp) const;

    // True when planet's KP star is one of the three of lord (1..7); Rahu and Ketu rule none here.
    bool PlanetINNakof(int planet, int lord) const;
    // The four significator tests of a house for a planet (1..9).
    bool FindSignifCuspLord(int cusp, int planet) const;  // lord of the cusp's sign
    bool FindSignIfOccup(int cusp, int planet) const;     // stands in the house
    bool FindSignIfNakCusp(int cusp, int planet) const;   // in the star of the cusp's sign lord
    bool FindSignIfNakOccup(int cusp, int planet) const;  // in the star of an occupant
    // True when any of the four tests holds.
    bool PlanetIsSignificator(int planet, int cusp) const;
    // Sum of the scores of the tests that hold, 0..30.
    int PlanetSignifScore(int planet, int cusp) const;
    // The strength band of a significator's score: 0 weak (below 8), 1 moderate (8..14),
    // 2 strong (15..21), 3 very strong (22 and above).
    static int SignifBand(int score);
    // True when the planet stands in the house, cusps included at both ends (the Bhava chart's rule).
    bool PlanetInBhava(int planet, int cusp) const;

    // The sub lord of a place in a star: the star's 120 units of the nine-year cycle, cut into the
    // nine lords' years from the star lord on; x in (a, b] belongs to the span from a to b.
    // 0 for x of 0 or less or above 120, or for a star lord outside the cycle.
    static int SubLordInStar(int starLord, double x);
    // Sub lord of a longitude: the star's lord from nakshatra, the place in the star from longitude.
    static int SubLordOf(int nakshatra, double longitude);
    // Sign 1..12 and nakshatra 1..27 of a longitude, any value folded into 0 up to 360 first.
    static int SignOfLongi(double l);
    static int NakOfLongi(double l);
    // A longitude brought into 0 up to (not including) 360.
    static double Fold360(double l);

    // The sign chart: positions 1..12 in their KP signs, the Lagna's KP sign rising.
    void FillSignKundali(KundaliModel &k, bool english = false) const;
    // The Bhava chart: the Lagna's KP sign rising, each planet 1..12 in the house that holds it by
    // PlanetInBhava; a planet exactly on a cusp in the house that begins there.
    void FillBhavaKundali(KundaliModel &k, bool english = false) const;

private:
    void fillLongitudes() const;

    const clsPlanets &m_chart;
    double m_kpAyan;
    mutable bool m_longiDone = false;
    mutable std::array<double, 27> m_longi{};
    mutable std::array<int, 27> m_sign{};
    mutable std::optional<double> m_parsFort;
    mutable std::optional<std::array<int, 13>> m_subLord;
    mutable std::optional<std::array<int, 13>> m_cuspSubLord;
};
