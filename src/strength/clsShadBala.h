// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The six-fold strength (Shadbala) of the seven planets, 1 Sun .. 7 Moon, in Virupas (60 to the
// Rupa): the positional, directional, temporal, motional, natural and aspectual strengths. Every
// figure is rounded to two decimals, halves to even, and the sums add the rounded figures.
// Nothing is kept in the chart and no figure is kept in the object: each call reads the chart.
// The object keeps only the weekdays on which the Sun began the year and the month of the birth,
// found by recasting; the sun events it reads are kept by the chart itself.

#include <QString>

#include <array>
#include <optional>

class clsPlanets;

class clsShadBala
{
public:
    // Reads chart for the life of the object; builds the relation and aspect tables.
    explicit clsShadBala(const clsPlanets &chart);

    // ---- Positional strength (Sthana Bala) ----
    // Part 1 exaltation, 2 the seven divisions, 3 odd or even sign, 4 odd or even navamsha,
    // 5 kendra, 6 drekkana, as "0.00"; "0.00" for any other part or planet.
    QString GetSubSthanaBala(int part, int planet);
    // The sum of the six parts as shown.
    double SBSthanaBala(int planet);
    // Parts 3 and 4 added, shown as one figure.
    QString DinaRatriBala(int planet);

    // ---- Directional strength (Dik Bala) ----
    QString SBDikBala(int planet);

    // ---- Temporal strength (Kala Bala) and its nine parts ----
    QString SBNataUnnataBala(int planet);
    QString SBPakshaBala(int planet);
    QString SBTriBhagaBala(int planet);
    QString SBVaraBala(int planet);
    QString SBHoraBala(int planet);
    // 15 for the lord of the weekday that began the solar year (kept after the first call).
    QString VarshaBala(int &planet);
    // 30 for the lord of the weekday that began the solar month (kept after the first call).
    QString MaasBala(int &planet);
    QString SBAyanaBala(int &planet);
    // The planetary war: the planet's whole sum, raised or lowered; the first argument isn't read.
    QString SBYuddhaBala(int ignored, int planet);
    QString SBKaalaBala(int planet);
    // Which third of the day (1..3) or of the night (1..3) holds the birth; 0 in none.
    int GetTriBhaga() const;
    // The lord of the hour of birth, 0 when the hour falls on no lord.
    int HoraLordOfBirth() const;

    // ---- Motional, natural and aspectual strength ----
    double SBChestaBala(int planet);
    double SBNaisargikaBala(int planet);
    QString SBDrigBala(int planet);

    // ---- Totals ----
    QString TotalShadBala(int planet);
    // The total in Rupas.
    QString RupaShadbala(int planet);

    // ---- The required minima in Virupas; 0 outside 1..7 ----
    static int DesireMinShadBala(int planet);
    static int DesireMinSthanaBala(int planet);
    static int DesireMinDikBala(int planet);
    static int DesireMinKalaBala(int planet);
    static int DesireMinChestaBala(int planet);
    static int DesireMinAyanBala(int planet);

    // ---- Motion ----
    // Days from the start of 1900 to the birth, at the reference longitude.
    double DaysSince1900() const;
    // Mean longitude (1..6) and the apex of the fast motion (2..6) after `days` days, in degrees;
    // 0 for other planets.
    double MeanLongiOfPlanets(double days, int planet) const;
    double SheeghrochchaOfPlanets(double days, int planet) const;
    // The motional arc 0..180 of planets 2..6.
    double ChestaKendra(int planet) const;
    // Size of the disc of planets 2..6 (1 for the others).
    static double BimbaPariman(int planet);

    // ---- Relations, 1..9 both ways; row a, column b: b as a sees it ----
    void DoPerma();
    void DoTemporal();
    void DoPanchadha();
    // Natural 1 friend, 0 neutral, -1 enemy; temporal 1 or -1 by the signs (0 on the diagonal);
    // five-fold, their sum. 0 outside 1..9.
    int PermaMatrix(int a, int b) const { return cell(m_perma, a, b); }
    int TemporalMatrix(int a, int b) const { return cell(m_temporal, a, b); }
    int PanchadhaMatrix(int a, int b) const { return cell(m_panchadha, a, b); }
    // Sign is an own sign of planet (Mercury Gemini alone; Rahu 11, Ketu 8).
    bool SignInOwnHouse(int planet, int sign) const;
    // The five-fold relation of planet with the lord of sign is 2, 1, 0, -1, -2.
    bool SignInAdhiMitraHouse(int planet, int sign) const;
    bool SignInMitraHouse(int planet, int sign) const;
    bool SignInSamaHouse(int planet, int sign) const;
    bool SignInSatruHouse(int planet, int sign) const;
    bool SignInAdhiSatruHouse(int planet, int sign) const;

    // ---- Aspects, 1..7 both ways; a is aspected, b aspects ----
    void SetDrigBala();
    // The angle from b forward to a (0 on the diagonal), b's aspect on a, and what b's special
    // aspect adds to it.
    double AspectAngle(int a, int b) const { return cell(m_angle, a, b); }
    double BaseAspect(int a, int b) const { return cell(m_base, a, b); }
    double SpecialAspect(int a, int b) const { return cell(m_special, a, b); }
    // Planet's aspect counts as a benefic's: Jupiter, Venus, the waxing Moon, and Mercury unless
    // the Sun, Mars or Saturn shares its sign.
    bool CondBenefic(int planet) const;

    // The lords of the hours in their order, 1..7: Sun, Venus, Mercury, Moon, Saturn, Jupiter, Mars.
    static constexpr std::array<int, 8> HoraSequence{0, 1, 3, 2, 7, 6, 5, 4};

    // ---- The table of the page: thirty-one rows by planet ----
    enum FigureRow : int {
        RowUchcha, RowSaptaVarga, RowOjaYugma, RowKendra, RowDrekkana, RowSthanaTotal, RowDik,
        RowNataUnnata, RowPaksha, RowTriBhaga, RowAbda, RowMasa, RowVara, RowHora, RowAyana, RowYuddha, RowKalaTotal,
        RowChesta, RowNaisargika, RowDrig, RowTotal, RowRupa,
        RowMinShad, RowMinSthana, RowMinDik, RowMinKala, RowMinChesta, RowMinAyana,
        RowRatio, RowRank, RowStrong, FigureRows
    };
    // The head of each row in category "ShadBala".
    static constexpr std::array<const char *, FigureRows> FigureKeys{
        "Uchcha",   "SaptaVarga", "OjaYugma",  "Kendra",   "Drekkana",   "SthanaTotal", "Dik",    "NataUnnata",
        "Paksha",   "TriBhaga",   "Abda",      "Masa",     "Vara",       "Hora",        "Ayana",  "Yuddha",
        "KalaTotal", "Chesta",    "Naisargika", "Drig",    "Total",      "Rupa",        "MinShad", "MinSthana",
        "MinDik",   "MinKala",    "MinChesta", "MinAyana", "Ratio",      "Rank",        "Strong"};
    using FigureColumn = std::array<QString, FigureRows>;
    // The figures of planets 1..7 (entry 0 empty): strengths as "0.00", minima as whole numbers,
    // the total over the required total as "0.00", the rank 1..7 by that ratio (equal ratios
    // share a rank), and the key "Yes" or "No" for a total that reaches the required one.
    std::array<FigureColumn, 8> FigureTable();

private:
    template <typename T, size_t N> static T cell(const std::array<std::array<T, N>, N> &m, int a, int b)
    {
        return a >= 0 && b >= 0 && static_cast<size_t>(a) < N && static_cast<size_t>(b) < N
                   ? m[static_cast<size_t>(a)][static_cast<size_t>(b)]
                   : T{};
    }
    double uccha(int planet) const;
    double saptaVarga(int planet);
    double ojaRashi(int planet) const;
    double ojaNavamsha(int planet) const;
    double kendra(int planet) const;
    double drekkana(int planet) const;
    int panchadhaWithLord(int planet, int sign) const;
    double yuddhaSum(int planet);
    FigureColumn figures(int planet);

    const clsPlanets &m_c;
    std::array<std::array<int, 10>, 10> m_perma{}, m_temporal{}, m_panchadha{};
    std::array<std::array<double, 8>, 8> m_angle{}, m_base{}, m_special{};
    std::optional<int> m_yearWeekday, m_monthWeekday;
};
