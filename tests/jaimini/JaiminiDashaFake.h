// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A posed chart for the sign dasha tests: the planets' signs and every Jaimini choice set by hand.
#include "jaimini/JaiminiDashaBasis.h"

#include <array>
#include <map>
#include <utility>
#include <vector>

class FakeDashaBasis : public JaiminiDashaBasis
{
public:
    // Signs of the Lagna and the planets 1..9.
    std::array<int, 10> signs{};
    int sex = 1;
    std::map<std::pair<int, int>, int> reckoning; // (a, b) -> sign; missing: the first house
    int brahma = 0;
    std::map<std::pair<int, int>, int> strongerTrine;    // missing: 0, a tie
    std::array<int, 9> chara{0, 1, 2, 3, 4, 5, 6, 7, 8}; // ranks 1..8 from index 1
    int atmaKarakaSign = 1;
    int upaKaraka = 1;
    int lordOfAquarius = 6, lordOfScorpio = 4;
    std::map<std::pair<int, int>, int> drekkana; // (planet, mode) -> sign
    int frontal = 1;
    int horaLagna = 1;
    int arudha = 1;
    std::array<int, 10> navamsha{}, kmNavamsha{};
    // When set, returned as the quadrant list of any sign; otherwise the list is walked from the signs.
    std::vector<std::pair<int, int>> quadrants;
    mutable std::vector<int> quadrantsAskedFor;
    mutable std::vector<std::pair<int, int>> reckoningAsked;

    int Sign(int p) const override { return p >= 0 && p <= 9 ? signs[static_cast<size_t>(p)] : 0; }
    int Sex() const override { return sex; }
    int ReckoningPoint(int a, int b) const override
    {
        reckoningAsked.emplace_back(a, b);
        const auto it = reckoning.find({a, b});
        return it != reckoning.end() ? it->second : wrap(signs[0] + a);
    }
    int Brahma() const override { return brahma; }
    int StrongerTrineSign(int a, int b) const override
    {
        const auto it = strongerTrine.find({a, b});
        return it != strongerTrine.end() ? it->second : 0;
    }
    int AshtaCharaKaraka(int i) const override { return i >= 1 && i <= 8 ? chara[static_cast<size_t>(i)] : 0; }
    int AtmaKarakaSign() const override { return atmaKarakaSign; }
    int UpaKarakaGraha() const override { return upaKaraka; }
    int LordOfAquarius() const override { return lordOfAquarius; }
    int LordOfScorpio() const override { return lordOfScorpio; }
    int DrekkanaSign(int p, int mode) const override
    {
        const auto it = drekkana.find({p, mode});
        return it != drekkana.end() ? it->second : 0;
    }
    int HoraLagna(int) const override { return horaLagna; }
    int FrontalSign(int) const override { return frontal; }
    int ArudhaLagna(int) const override { return arudha; }
    int NavamshSign(int p) const override { return navamsha[static_cast<size_t>(p)]; }
    int kmNavSign(int p) const override { return kmNavamsha[static_cast<size_t>(p)]; }
    std::vector<std::pair<int, int>> PlanetsByQuadrants(int s) const override
    {
        quadrantsAskedFor.push_back(s);
        if (!quadrants.empty())
            return quadrants;
        std::vector<std::pair<int, int>> out;
        for (int i = 0; i < 3 && out.size() < 9; ++i)
            for (int j = 0; j < 4 && out.size() < 9; ++j)
                for (int p = 1; p <= 9 && out.size() < 9; ++p)
                    if (signs[static_cast<size_t>(p)] == wrap(s + i + 3 * j))
                        out.emplace_back(p, signs[static_cast<size_t>(p)]);
        return out;
    }

    static int wrap(int x) { return ((x - 1) % 12 + 12) % 12 + 1; }
};
