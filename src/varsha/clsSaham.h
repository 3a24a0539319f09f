// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The 36 sahams of the annual chart: sensitive points worked out from the longitudes of two
// bodies and a third, each kept after its first use.

#include <QString>

#include <array>

class clsPlanets;

class clsSaham
{
public:
    static constexpr int kCount = 36;
    explicit clsSaham(const clsPlanets &annual) : m_chart(annual) {}

    double Punya() const;
    double Vidya() const;
    double Yasha() const;
    double Mitra() const;
    double Mahatya() const;
    double Asha() const;
    double Samartha() const;
    double Bhatri() const;
    double Gaurava() const;
    double Pitri() const;
    double Raja() const;
    double Matri() const;
    double Apatya() const;
    double Jeeva() const;
    double Karma() const;
    double Roga() const;
    double Kali() const;
    double Shastra() const;
    double Bandhu() const;
    double Nidhana() const;
    double Paradesha() const;
    double Dhana() const;
    double Paradara() const;
    double Vanija() const;
    double Karyasiddhi() const;
    double Vivaha() const;
    double Santapa() const;
    double Shraddha() const;
    double Preeti() const;
    double Jadya() const;
    double Vyapara() const;
    double Shatru() const;
    double Jalapatana() const;
    double Bandhana() const;
    double Apaghat() const;
    double Vittahani() const;

    // The saham of number n (1..36); 0 outside.
    double SahamLongi(int n) const;
    // Fix(longitude / 30) + 1.
    long SahamSign(int n) const;
    // Lord of sign s.
    long SahamLord(int s) const;
    // The sahams of good effect.
    static bool CheckIfSahamBenefic(int n);
    // Whether saham n bears fruit this year: 20 for each of five conditions of its kind; 2 for
    // four of them, 3 for all five, else 0.
    long IsSahamResultFructifies(int n) const;
    // For a fructifying saham the four day counts "d1+d2+d3+d4"; else empty.
    QString SahamResultDays(int n) const;
    // "Ascendant Dasha(<lord>+<lord>)" when a fully fructifying saham stands in the Lagna's sign
    // with the Lagna's lord in the state of its kind; else empty.
    QString SahamResultPatDasha(int n) const;
    // The member name of saham n ("Punya"), the key of its English word; empty outside 1..36.
    static QString SahamKey(int n);
    // The formula: a, b, c the longitudes of bodies A, B, C (0 the Lagna), over1 and over2 (when
    // above 0) replacing a, b or c by slot 1, 2 or 3. dayNight: a night birth takes b from a.
    double CalculateSaham(int a, int b, int c, bool dayNight, double over1 = 0, int slot1 = 0, double over2 = 0,
                          int slot2 = 0) const;

private:
    double memo(int n, double (clsSaham::*compute)() const) const;
    double punya() const;
    double vidya() const;
    double yasha() const;
    double mitra() const;
    double mahatya() const;
    double asha() const;
    double samartha() const;
    double bhatri() const;
    double gaurava() const;
    double pitri() const;
    double matri() const;
    double apatya() const;
    double jeeva() const;
    double karma() const;
    double roga() const;
    double kali() const;
    double shastra() const;
    double bandhu() const;
    double nidhana() const;
    double paradesha() const;
    double dhana() const;
    double paradara() const;
    double vanija() const;
    double karyasiddhi() const;
    double vivaha() const;
    double santapa() const;
    double shraddha() const;
    double preeti() const;
    double jadya() const;
    double vyapara() const;
    double shatru() const;
    double jalapatana() const;
    double bandhana() const;
    double apaghat() const;
    double vittahani() const;
    // The house-lord sahams: a the middle of house k, b the lord of the k-th sign from the Lagna.
    double houseSaham(int k) const;

    const clsPlanets &m_chart;
    mutable std::array<double, kCount + 1> m_value{};
};
