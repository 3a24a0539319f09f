// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The chart as the yoga rules read it: the signs of the Lagna and the nine grahas, the lords of
// the houses, and the phrases the rules are written in ("p in 1,4,7,10", "p in 2,12 from q",
// "p with q"). Planet numbers: 0 Lagna, 1 Sun, 2 Mercury, 3 Venus, 4 Mars, 5 Jupiter, 6 Saturn,
// 7 Moon, 8 Rahu, 9 Ketu.

#include <array>
#include <cstddef>
#include <initializer_list>

class clsPlanets;

class YogaChart
{
public:
    enum Planet { As = 0, Su = 1, Me = 2, Ve = 3, Ma = 4, Ju = 5, Sa = 6, Mo = 7, Ra = 8, Ke = 9 };

    explicit YogaChart(const clsPlanets &c);
    const clsPlanets &chart() const { return m_c; }

    // Sign 1..12 of planet p (0..9); 0 for any other number.
    int S(int p) const { return p >= 0 && p <= 9 ? m_sign[static_cast<size_t>(p)] : 0; }
    int Lg() const { return m_sign[0]; }
    // The sign of house n from the Lagna, and the lord of house n.
    int H(int n) const;
    int L(int n) const { return n >= 1 && n <= 12 ? m_lord[static_cast<size_t>(n)] : 0; }
    static int lord(int sign);

    // p stands in one of the houses from the Lagna.
    bool in(int p, std::initializer_list<int> houses) const;
    // p stands in one of the signs counted from q's sign (q's own sign the first).
    bool from(int p, std::initializer_list<int> counts, int q) const;
    bool with(int p, int q) const { return S(p) != 0 && S(p) == S(q); }
    bool signIn(int p, std::initializer_list<int> signs) const;
    bool own(int p) const;
    bool exalted(int p) const;
    bool debilitated(int p) const;
    double lon(int p) const;
    // p casts a sign aspect on sign s (Rahu and Ketu on the 7th).
    bool aspects(int p, int s) const;
    // How many of the planets 1..7 stand in the houses.
    int countIn(std::initializer_list<int> houses) const;

private:
    const clsPlanets &m_c;
    std::array<int, 10> m_sign{};
    std::array<int, 13> m_lord{};
};
