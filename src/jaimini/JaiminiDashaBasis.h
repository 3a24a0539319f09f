// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// What the sign dashas read of a chart: the planets' signs, the person's sex and the handful of
// Jaimini choices (the stronger house, Brahma, the karakas, the co-lords, the variant drekkanas
// and navamshas) that decide where a dasha starts. The tables are functions of these alone, so a
// test can pose any combination of choices directly.
// Planet numbers: 0 the Lagna, 1 Sun, 2 Mercury, 3 Venus, 4 Mars, 5 Jupiter, 6 Saturn, 7 Moon,
// 8 Rahu, 9 Ketu. Signs 1..12. Houses are counted from 0, the Lagna's sign.

#include <memory>
#include <utility>
#include <vector>

class clsJaimini;

class JaiminiDashaBasis
{
public:
    virtual ~JaiminiDashaBasis() = default;

    // Sign 1..12 of planet p (0..9).
    virtual int Sign(int p) const = 0;
    // The person's sex: 1 male, anything else female.
    virtual int Sex() const = 0;
    // The stronger of the houses a and b, as a sign.
    virtual int ReckoningPoint(int a, int b) const = 0;
    // Brahma, 0 when no planet qualifies.
    virtual int Brahma() const = 0;
    // The stronger of the houses a and b by their planets' score, as a sign; 0 on a tie.
    virtual int StrongerTrineSign(int a, int b) const = 0;
    // Planet of chara karaka rank i (1..8, Rahu included).
    virtual int AshtaCharaKaraka(int i) const = 0;
    virtual int AtmaKarakaSign() const = 0;
    virtual int UpaKarakaGraha() const = 0;
    // The co-lord chosen for Aquarius (Saturn or Rahu) and for Scorpio (Mars or Ketu).
    virtual int LordOfAquarius() const = 0;
    virtual int LordOfScorpio() const = 0;
    // Drekkana sign of planet p: mode 1 the ordinary drekkana, 2 Parivritti Traya, 3 Somanath.
    virtual int DrekkanaSign(int p, int mode) const = 0;
    // Hora Lagna: 1 traditional, 2 Vriddhakarika, 3 Savayava.
    virtual int HoraLagna(int mode) const = 0;
    // The frontal sign of planet p's sign.
    virtual int FrontalSign(int p) const = 0;
    // Arudha Lagna: 1 popular rule, otherwise conditional.
    virtual int ArudhaLagna(int mode) const = 0;
    // Navamsha sign of planet p: the ordinary one and Krishna Mishra's.
    virtual int NavamshSign(int p) const = 0;
    virtual int kmNavSign(int p) const = 0;
    // Up to nine (planet, sign) pairs from sign s through its quadrants, then the next sign's.
    virtual std::vector<std::pair<int, int>> PlanetsByQuadrants(int s) const = 0;

    // Derived from Sign alone.
    int LagnaSign() const { return Sign(0); }
    bool Exalted(int p) const;
    bool Debilitated(int p) const;
};

// The basis that reads a chart through its Jaimini object; core must outlive it.
std::unique_ptr<JaiminiDashaBasis> MakeJaiminiDashaBasis(const clsJaimini &core);
