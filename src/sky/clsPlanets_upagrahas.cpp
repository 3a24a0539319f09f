// SPDX-License-Identifier: AGPL-3.0-or-later
// The upagrahas: the Sun-based chain. Each point is a few additions away from the Sun, so
// nothing is kept.
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

double clsPlanets::DhumaLongi() const { return Norm360(PlanetLongi(1) + 400.0 / 3); }
double clsPlanets::VyatipataLongi() const { return Norm360(360 - DhumaLongi()); }
double clsPlanets::PariveshaLongi() const { return Norm360(VyatipataLongi() + 180); }
double clsPlanets::IndraChapaLongi() const { return Norm360(360 - PariveshaLongi()); }
double clsPlanets::UpaketuLongi() const { return Norm360(IndraChapaLongi() + 50.0 / 3); }
double clsPlanets::BhukampaLongi() const { return Norm360(PlanetLongi(1) + 80); }
double clsPlanets::UlkaLongi() const { return Norm360(BhukampaLongi() + 40); }
double clsPlanets::BrahmadandaLongi() const { return Norm360(UlkaLongi() + 200.0 / 3); }
double clsPlanets::DhwajaLongi() const { return Norm360(BrahmadandaLongi() + 80); }

double clsPlanets::UpagrahaLongi(int n) const
{
    switch (n) {
    case 1: return DhumaLongi();
    case 2: return VyatipataLongi();
    case 3: return PariveshaLongi();
    case 4: return IndraChapaLongi();
    case 5: return UpaketuLongi();
    case 6: return BhukampaLongi();
    case 7: return UlkaLongi();
    case 8: return BrahmadandaLongi();
    case 9: return DhwajaLongi();
    default: return 0;
    }
}

int clsPlanets::UpagrahaSign(int n) const
{
    // 360 is the end of the last sign, not a thirteenth.
    return Norm12(static_cast<int>(Int(UpagrahaLongi(n) / 30)) + 1);
}

int clsPlanets::UpagrahaNak(int n) const { return NakshatraNum(UpagrahaLongi(n)); }

int clsPlanets::UpaNakPada(int n) const { return NakPadaNum(UpagrahaLongi(n)); }

int clsPlanets::UpagrahaLord(int n)
{
    switch (n) {
    case 1: return 4;
    case 2: return 8;
    case 3: return 7;
    case 4: return 3;
    case 5: return 9;
    default: return 0;
    }
}

QString clsPlanets::UpagrahaName(int n) const { return GetHeadValue(1, n, QStringLiteral("Upagrahas")).toString(); }

QString clsPlanets::UpagrahaNameSmall(int n) const { return GetHeadValue(1, n, QStringLiteral("UpagrahaSmall")).toString(); }
