// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Jaimini reading of one chart: the special lagnas, the padas (Arudhas), the Drekkana and
// Navamsha variants, the karakas and the Sphutas; the sign aspects, the frontal and lateral tables
// and the ladder of strength comparisons between planets and houses.
// Planet numbers: 0 the Lagna, 1 Sun, 2 Mercury, 3 Venus, 4 Mars, 5 Jupiter, 6 Saturn, 7 Moon,
// 8 Rahu, 9 Ketu. Signs are 1..12; an odd sign is a sign of odd number.
// The object reads the chart on each question and keeps only the two pada tables and the house
// varnada table (built at construction), the birth ghatika and the sunrises (on first use) and the
// Jaimini drekkana table (rewritten by each JmnDrkSign). Build a new one when the chart changes.

#include <QString>

#include <array>
#include <utility>
#include <vector>

class clsPlanets;

class clsJaimini
{
public:
    // Reads chart for the life of the object; builds the pada and house varnada tables.
    explicit clsJaimini(const clsPlanets &chart);
    virtual ~clsJaimini() = default;
    clsJaimini(const clsJaimini &) = delete;
    clsJaimini &operator=(const clsJaimini &) = delete;

    const clsPlanets &Chart() const { return m_chart; }

    // ---- The chart as the Jaimini members read it ----
    // Sign 1..12 of planet n (0 the Lagna), by Fix of longitude / 30.
    int Sign(int n) const;
    // Lord of sign s (0 outside 1..12).
    static int SignLord(int s);
    double PlanetLongi(int n) const;
    // Degrees of n within its sign.
    double KrishAmsha(int n) const;
    bool Exalted(int p) const;
    bool Debilitated(int p) const;
    // The person's sex: 1 male, otherwise female.
    int Sex() const;
    // A whole number folded into 1..12; a multiple of 12 gives 12.
    static int Clock12(int x);
    // Class of planet n's sign: 1 movable (1, 4, 7, 10), 2 fixed (2, 5, 8, 11), 3 dual.
    int ConstClsOfSigns(int n) const;

    // ---- Birth ghatika ----
    // Ghatikas from sunrise to birth (kept after the first call).
    double BirthGhatika() const;
    // Whole minutes of an hh.mm clock: Fix(x) * 60 + (x - Fix(x)) * 100, rounded.
    static long MinToDec(double x);

    // ---- Special lagnas: sign-valued ones return 1..12, longitudes 0..360 ----
    // 1 traditional, 2 Vriddhakarika, 3 Savayava.
    int HoraLagna(int mode) const;
    int BhavaLagna() const;
    int AyurLagna() const;
    int SapadaGhatikaLagna() const;
    int TripravanaLagna() const;
    int ShreeLagna() const;
    int InduLagna() const;
    int TaraLagna() const;
    int NakshatraLagna() const;
    int PakaLagna() const;
    int Swamsha() const;
    int GhatikaLagnaSign() const;
    int PranaPadaSign() const;
    int DivyaLagnaSign() const;
    int SphutaYogaLagnaSign() const;
    double ShreeLagnaLongi() const;
    double GhatikaLagnaLongi() const;
    double PranapadaLongi() const;
    double DivyaLagnaLongi() const;
    double SphutaYogaLagnaLongi() const;
    // Navamsha sign of the Atma Karaka (the seven-planet one of the chart).
    int KarakamsaLagna() const;
    // Kala number of planets 1..7 for the Indu Lagna; 0 for others.
    static int InduKalaValue(int p);

    // ---- Varnada ----
    // The Varnada Lagna with the Hora Lagna of the mode.
    int VarnadaLagnaSign(int mode) const;
    // Varnada of house h (1..12) from the house table; 0 outside.
    int HouseVarnada(int h) const;
    int VarnadaXthSign(int h) const;

    // ---- Padas ----
    // mode 1 popular, any other conditional.
    int ArudhaLagna(int mode) const;
    int UpaPadaLagna(int mode) const;
    int JaiminiPadaSign(int h, int mode) const;

    // ---- Drekkana and Navamsha variants ----
    // 1 traditional, 2 Krishna Mishra: sign of the Lagna.
    int NavamshLagna(int mode) const;
    // 2 Parivritti Traya, 3 Somanath: sign of the Lagna.
    int DrekkanaLagna(int mode) const;
    int TraditionalDrekkanaLagna() const;
    // Refills the drekkana table for the mode, then returns the entry of planet p (0..9).
    // Modes other than 2 and 3 leave the table as it was.
    int JmnDrkSign(int p, int mode) const;
    // Navamsha sign of p by arithmetic (the chart's NavamshSign).
    int NavamshSign(int p) const;
    // Krishna Mishra Navamsha sign of p.
    int kmNavSign(int p) const;
    // NavamshSign for a male, kmNavSign otherwise.
    int JaiminiNavamshSign(int p) const;
    int KMNavLord(int p) const;
    int NavSignLord(int p) const;

    // ---- Karakas ----
    // Planet at rank i: eight chara karakas (1..8, Rahu counted backward), seven chara (1..7),
    // the fixed seven, and the lords of the first seven houses. 0 outside the ranks.
    int AshtaCharaKaraka(int i) const;
    int SaptaCharaKaraka(int i) const;
    static int SaptaSthiraKaraka(int i);
    int SaptaBhavaKaraka(int i) const;
    static QString AshtaCharaKarakaName(int i);
    static QString SaptaCharaKarakaName(int i);
    // Sign of the eight-fold Atma Karaka.
    int AtmaKarakaSign() const;
    int UpaKarakaGraha() const;
    // Lord of the Moon's sign.
    int SubhaPatiGraha() const;
    // Vimshottari years of the Moon's star's place in the nine-cycle.
    int VmPltDasConst() const;

    // ---- Yogada ----
    // 0..5 for planet p; the word of a code.
    int GetYogada(int p) const;
    static QString YogadaStrength(int code);

    // ---- Sphutas ----
    // which 1..3; kind 1 Beeja, otherwise Kshetra.
    double SphutasLongi(int which, int kind) const;
    int SphutasConcl(int which, int kind) const;

    // ---- Sign aspects ----
    // Signs a and b aspect each other by the sign aspect table.
    static bool SignsAspect(int a, int b);
    // Planet p (1..9) stands in a sign that aspects s.
    bool JAspectedBy(int s, int p) const;
    // Some malefic (benefic) stands in a sign that aspects s; false outside 1..12.
    bool JAspByMalefic(int s) const;
    bool JAspByBenefic(int s) const;
    // kind 1: benefics among 1..7 in s; otherwise malefics among 1..9 in s.
    int CountPltInSignMB(int s, int kind) const;
    // p's sign aspects q's sign; x, when not 0, puts the first sign at Fix(x / 30) + 1.
    bool IfPlanetJAspects(int p, int q, double &x) const;
    bool IfPlanetJAspects(int p, int q) const;
    bool IfDrekPlanetJAspects(int p, int q) const;
    bool IfNavPlanetJAspects(int p, int q) const;
    static bool JMalefic(int p);
    static bool JBenefic(int p);

    // ---- Frontal and lateral tables (by planet p's sign, or by sign s for the names) ----
    int PlanetFrontalSign(int p) const;
    int FrontalSign(int p) const;
    int PlanetLateralSignA(int p) const;
    int PlanetLateralSignB(int p) const;
    int FrontalAspectSign(int p) const;
    // The sign signs of the page's aspect table: frontal sign of s, and its two lateral signs.
    static int FrontalAspectNameSign(int s);
    static std::pair<int, int> LateralAspectNameSigns(int s);
    QString FrontalAspectName(int s) const;
    QString LateralAspectName(int s) const;

    // ---- Strength comparisons ----
    static double PlanetWeight(int p);
    // Score of the planets in house k from the Lagna's sign (k from 0).
    double SignPlanetScore(int k) const;
    // The stronger of the houses a and b (from 0, the Lagna's sign) as a sign.
    int ReckoningPoint(int a, int b) const;
    double ReckoningPointLongi(int a, int b) const;
    int StrongerPlanet(int a, int b) const;
    int StrongerOfThree(int a, int b, int c) const;
    int LordOfAquarius() const;
    int LordOfScorpio() const;
    int AK8DLord() const;
    int Brahma() const;
    int NominalBrahma() const;
    int AlternateBrahma() const;
    int Rudra() const;
    int ApraniRudra() const;
    int PraniRudra() const;
    int Maheshwara() const;
    // The stronger of two houses (from 0) by score as a sign; 0 on a tie.
    int StrongerTrineSign(int a, int b) const;

    // ---- Planets in quadrant order ----
    // Up to nine (planet, sign) pairs: from s through its quadrants, then the next sign's ...
    std::vector<std::pair<int, int>> PlanetsByQuadrants(int s) const;

private:
    void JaiminiPadaPopular();
    void JaiminiPadaConditional();
    void FillHouseVarnada();
    void FillJmnDrk(int mode) const;
    static int varnadaOf(int s, int h);
    // Sign of a longitude, Fix(x / 30) + 1, with 360 itself (13) counted as 12.
    static int signOfLongi(double x);
    int karakaRank(int i, int count) const;
    int yogadaPlanet() const;
    double ghatikaRatio() const;
    void sunrises() const;
    double yogaLongi(double base) const;
    int houseWinner(int a, int b) const;
    int parityStep(int x, int y) const;
    int lordLadder(int x, int y) const;
    int coLord(int main, int node, int sign) const;

    const clsPlanets &m_chart;
    std::array<int, 13> m_padaPopular{};
    std::array<int, 13> m_padaConditional{};
    std::array<long, 12> m_houseVarnada{};
    mutable std::array<long, 10> m_jmnDrk{};
    mutable double m_ghatika = 0;
    // Sunrise of the day, of the next day, of the day before (hh.mm); 0 = not yet.
    mutable std::array<double, 3> m_sunrise{};
};
