// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/JaiminiDashaBasis.h"

#include "jaimini/clsJaimini.h"
#include "sky/clsPlanets.h"

bool JaiminiDashaBasis::Exalted(int p) const
{
    return clsPlanets::CheckIfExalted(p, Sign(p));
}
bool JaiminiDashaBasis::Debilitated(int p) const
{
    return clsPlanets::CheckIfDebi(p, Sign(p));
}

namespace {

class CoreBasis final : public JaiminiDashaBasis
{
public:
    explicit CoreBasis(const clsJaimini &core) : m_core(core) {}

    int Sign(int p) const override { return m_core.Sign(p); }
    int Sex() const override { return m_core.Sex(); }
    int ReckoningPoint(int a, int b) const override { return m_core.ReckoningPoint(a, b); }
    int Brahma() const override { return m_core.Brahma(); }
    int StrongerTrineSign(int a, int b) const override { return m_core.StrongerTrineSign(a, b); }
    int AshtaCharaKaraka(int i) const override { return m_core.AshtaCharaKaraka(i); }
    int AtmaKarakaSign() const override { return m_core.AtmaKarakaSign(); }
    int UpaKarakaGraha() const override { return m_core.UpaKarakaGraha(); }
    int LordOfAquarius() const override { return m_core.LordOfAquarius(); }
    int LordOfScorpio() const override { return m_core.LordOfScorpio(); }
    // The Jaimini drekkana has no rule of its own for mode 1: the ordinary drekkana stands there.
    int DrekkanaSign(int p, int mode) const override
    {
        return mode == 1 ? m_core.Chart().PrediVarga(p, 3) : m_core.JmnDrkSign(p, mode);
    }
    int HoraLagna(int mode) const override { return m_core.HoraLagna(mode); }
    int FrontalSign(int p) const override { return m_core.FrontalSign(p); }
    int ArudhaLagna(int mode) const override { return m_core.ArudhaLagna(mode); }
    int NavamshSign(int p) const override { return m_core.NavamshSign(p); }
    int kmNavSign(int p) const override { return m_core.kmNavSign(p); }
    std::vector<std::pair<int, int>> PlanetsByQuadrants(int s) const override { return m_core.PlanetsByQuadrants(s); }

private:
    const clsJaimini &m_core;
};

} // namespace

std::unique_ptr<JaiminiDashaBasis> MakeJaiminiDashaBasis(const clsJaimini &core)
{
    return std::make_unique<CoreBasis>(core);
}
