// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// One annual reading: the birth chart, the annual chart of an age, and what the year is read by:
// the Muntha, the five officials and the lord of the year, the Tri-pataka signs, the annual
// balas, the Patyayini periods, and the objects of the sahams and the Tajika yogas. Every value
// is worked out from the two charts on demand; a new year means a new object.

#include <QDateTime>
#include <QString>

#include <array>
#include <memory>
#include <optional>
#include <vector>

class clsPlanets;
class clsSaham;
class clsVarshaYoga;

// One period of an annual dasha as the pages and the command line show it.
struct VarshaDashaRow
{
    int Lord = 0;      // the planet of the period (0 the Lagna)
    int Place = 0;     // its place in the cycle (the Mudda dashas), or the row
    QString Name;      // the name shown: the period's own name in the Mudda Yogini, else the lord's
    double Days = 0;   // the span before rounding
    QDateTime Start, End;
};

class clsVarsha
{
public:
    // birth and annual must be cast and outlive the object; age 0..99.
    clsVarsha(const clsPlanets &birth, const clsPlanets &annual, int age);
    ~clsVarsha();
    clsVarsha(const clsVarsha &) = delete;
    clsVarsha &operator=(const clsVarsha &) = delete;

    const clsPlanets &Birth() const { return m_birth; }
    const clsPlanets &Annual() const { return m_annual; }
    int Age() const { return m_age; }

    // ---- The Muntha, the officials and the lord of the year ----
    // The Muntha's sign: the birth ascendant's sign moved on by the age.
    int Muntha() const;
    int MunthaSign() const { return Muntha(); }
    // Its house from the annual ascendant, 1..12.
    int MunthaHouse() const;
    int MunthaLord() const;
    // Its longitude: the birth ascendant's degree inside the Muntha's sign.
    double MunthaLongi() const;
    // The annual planet casts its aspect on the Muntha; any of Jupiter, Venus, Moon, Mercury does.
    bool MunthaAspByPlanet(int planet) const;
    bool MunthaAspByBenefic() const;
    // Lord of the annual Sun's sign by day, of the annual Moon's sign by night.
    int DinaRatriLord() const;
    // Lord of the three signs by the annual ascendant's sign, day or night.
    int TriRashiLord() const;
    // The five officials, i = 1..5: day-night lord, annual ascendant's lord, birth ascendant's lord,
    // Muntha's lord, three-sign lord. 0 outside.
    int Panchadhikari(int i) const;
    // Planet a with Pancha Vargiya total ta beats b with tb: the higher total, and on an exact tie
    // the higher total after each planet's fixed weight, a winning when equal.
    static bool Stronger(int a, double ta, int b, double tb);
    // Planets 1..7 that are no official, ascending.
    std::vector<int> OtherPlanets() const;
    // The lord of the year from the officials, its fallback from the other planets, and the last
    // resort from all seven (0 when none stands).
    int Varsheswara() const;
    int NCVarsheswara() const;
    int UltVarsheswara() const;
    // House of a sign counted from the annual ascendant's sign.
    int FindHouse(int sign) const;
    // The planet's sign and house in the Tri-pataka wheel, planets 1..9; 0 outside.
    int TriSign(int planet) const;
    int TriHouse(int planet) const;

    // ---- Annual balas (planets 1..7; others give 0) ----
    // The annual friendship: b is in a's set (a 1..8).
    static bool VarshaFriend(int a, int b);
    // Lord of the hadda interval that holds a longitude (each interval includes its lower end).
    static int HaddaLord(double longitude);
    bool HBala1(int p) const;
    bool HBala2(int p) const;
    bool HBala3(int p) const;
    bool Hbala4(int p) const;
    // 5 points for each of the four that holds.
    long HarshaBalaDet(int p) const;
    double KshetraBala(int p) const;
    double UchchaBala(int p) const;
    double HaddaBala(int p) const;
    double DrekkanBala(int p) const;
    double NavamshBala(int p) const;
    // i 1 Kshetra, 2 Uchcha, 3 Hadda, 4 Drekkan, 5 Navamsh; Empty for other i.
    std::optional<double> PanchBala(int i, int p) const;
    double PanchBalaTotal(int p) const;
    // 1 below 7, 2 below 13, else 3.
    static long PanchaBalaStrength(double total);
    long Rasibala(int p) const { return DwaDashaBala(1, p); }
    long Horabala(int p) const { return DwaDashaBala(2, p); }
    long DrekkanaBala(int p) const { return DwaDashaBala(3, p); }
    long PadamshBala(int p) const { return DwaDashaBala(4, p); }
    long PanchamAmshBala(int p) const { return DwaDashaBala(5, p); }
    long SastamshBala(int p) const { return DwaDashaBala(6, p); }
    long SaptamAmshBala(int p) const { return DwaDashaBala(7, p); }
    long AshtamAmshBala(int p) const { return DwaDashaBala(8, p); }
    long DwaNavamshBala(int p) const { return DwaDashaBala(9, p); }
    long DashamAmshBala(int p) const { return DwaDashaBala(10, p); }
    long EkaDashamAmshBala(int p) const { return DwaDashaBala(11, p); }
    long DwaDashamAmshBala(int p) const { return DwaDashaBala(12, p); }
    // 1 when the lord of division i (1..12) is p or p's annual friend, else -1; 0 outside.
    long DwaDashaBala(int i, int p) const;
    long SumPosiDwaDashBala(int p) const;
    long SumNegiDwaDashBala(int p) const;
    long DwaDashScore(int p) const;
    // 1 (best) .. 9 by the score.
    long DwaDashBalaClass(int p) const;

    // ---- Patyayini (rows 0..7; computed once) ----
    long PatPlanet(int i) const;
    double PatKrish(int i) const;
    double PatPatyamsh(int i) const;

    // ---- The three annual dashas with their dates, from the annual moment ----
    std::vector<VarshaDashaRow> PatyayiniRows() const;
    std::vector<VarshaDashaRow> MuddaYoginiRows() const;
    std::vector<VarshaDashaRow> MuddaVimshottariRows() const;

    // The objects of the sahams and the Tajika rules, made on first use.
    clsSaham &Saham() const;
    clsVarshaYoga &VarshaYoga() const;

private:
    bool inOrb(int planet, double angle) const;
    bool strongPlace(int planet) const;
    bool stronger(int a, int b) const;
    // Steps 3 to 9 of the choice over candidates; fallback when nothing is left.
    int chooseLord(std::vector<int> candidates, int (clsVarsha::*fallback)() const) const;
    int strongest(const std::vector<int> &candidates) const;
    void computePatyayini() const;

    const clsPlanets &m_birth;
    const clsPlanets &m_annual;
    int m_age;
    mutable int m_muntha = 0;
    mutable double m_munthaLongi = -1;
    mutable bool m_patDone = false;
    mutable std::array<long, 8> m_patPlanet{};
    mutable std::array<double, 8> m_patKrish{};
    mutable std::array<double, 8> m_patDays{};
    mutable std::unique_ptr<clsSaham> m_saham;
    mutable std::unique_ptr<clsVarshaYoga> m_yoga;
};
