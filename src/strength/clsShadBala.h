// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The six-fold strength (Shadbala) of the seven planets, 1 Sun .. 7 Moon, in Virupas (60 to the
// Rupa): the positional, directional, temporal, motional, natural and aspectual strengths. Every
// figure is rounded to two decimals, halves to even, and the sums add the rounded figures.
// Nothing is kept in the chart; what costs chart casts (sun events, the year's and month's first
// days) is kept in the object.

#include <QString>

#include <array>
#include <optional>

class clsPlanets;

class clsShadBala
{
public:
    explicit clsShadBala(const clsPlanets &chart);

    // Positional strength: part 1 exaltation, 2 the seven divisions, 3 odd or even sign, 4 odd or
    // even navamsha, 5 kendra, 6 drekkana; and their sum.
    QString GetSubSthanaBala(int part, int planet);
    double SBSthanaBala(int planet);
    // The two odd-even parts as one figure.
    QString DinaRatriBala(int planet);
    QString SBDikBala(int planet);
    // Temporal strength and its parts.
    QString SBNataUnnataBala(int planet);
    QString SBPakshaBala(int planet);
    QString SBTriBhagaBala(int planet);
    QString SBVaraBala(int planet);
    QString SBHoraBala(int planet);
    QString VarshaBala(int &planet);
    QString MaasBala(int &planet);
    QString SBAyanaBala(int &planet);
    QString SBYuddhaBala(int ignored, int planet);
    QString SBKaalaBala(int planet);
    double SBChestaBala(int planet);
    double SBNaisargikaBala(int planet);
    QString SBDrigBala(int planet);
    QString TotalShadBala(int planet);
    QString RupaShadbala(int planet);

    // The required minima in Virupas; 0 outside 1..7.
    static int DesireMinShadBala(int planet);
    static int DesireMinSthanaBala(int planet);
    static int DesireMinDikBala(int planet);
    static int DesireMinKalaBala(int planet);
    static int DesireMinChestaBala(int planet);
    static int DesireMinAyanBala(int planet);

    // Mean longitude and the apex of the fast motion (degrees) after `days` days from 1900.
    double MeanLongiOfPlanets(double days, int planet) const;
    double SheeghrochchaOfPlanets(double days, int planet) const;
    double DaysSince1900() const;
    double ChestaKendra(int planet) const;
    static double BimbaPariman(int planet);

    // Relations, 1..9 both ways: natural, temporal (by the signs), five-fold (their sum).
    void DoPerma();
    void DoTemporal();
    void DoPanchadha();
    int PermaMatrix(int a, int b) const { return m_perma[static_cast<size_t>(a)][static_cast<size_t>(b)]; }
    int TemporalMatrix(int a, int b) const { return m_temporal[static_cast<size_t>(a)][static_cast<size_t>(b)]; }
    int PanchadhaMatrix(int a, int b) const { return m_panchadha[static_cast<size_t>(a)][static_cast<size_t>(b)]; }
    // Aspect tables: angle, base aspect and special aspect of b on a (1..7).
    void SetDrigBala();
    double AspectAngle(int a, int b) const { return m_angle[static_cast<size_t>(a)][static_cast<size_t>(b)]; }
    double BaseAspect(int a, int b) const { return m_base[static_cast<size_t>(a)][static_cast<size_t>(b)]; }
    double SpecialAspect(int a, int b) const { return m_special[static_cast<size_t>(a)][static_cast<size_t>(b)]; }
    // Whether the Moon (waxing) or Mercury (free of malefic company) counts as a benefic.
    bool CondBenefic(int planet) const;
    // A planet's standing in a sign by its own signs and the five-fold relation with the sign's lord.
    bool SignInOwnHouse(int planet, int sign) const;
    bool SignInAdhiMitraHouse(int planet, int sign) const;
    bool SignInMitraHouse(int planet, int sign) const;
    bool SignInSamaHouse(int planet, int sign) const;
    bool SignInSatruHouse(int planet, int sign) const;
    bool SignInAdhiSatruHouse(int planet, int sign) const;

    // The order of the hours' lords from the Sun: Sun, Venus, Mercury, Moon, Saturn, Jupiter, Mars.
    static constexpr std::array<int, 8> HoraSequence{0, 1, 3, 2, 7, 6, 5, 4};

private:
    double uccha(int planet) const;
    double saptaVarga(int planet);
    double ojaRashi(int planet) const;
    double ojaNavamsha(int planet) const;
    double kendra(int planet) const;
    double drekkana(int planet) const;
    int triBhaga() const;
    int horaLord();
    int panchadhaWithLord(int planet, int sign) const;
    double kaalaPartsFor(int planet, bool withSthanaAndDik);

    const clsPlanets &m_c;
    std::array<std::array<int, 10>, 10> m_perma{}, m_temporal{}, m_panchadha{};
    std::array<std::array<double, 8>, 8> m_angle{}, m_base{}, m_special{};
    std::optional<int> m_yearWeekday, m_monthWeekday, m_horaLord;
};
